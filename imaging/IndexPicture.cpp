// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/IndexPicture.h"

#include <cstddef>

QImage paintIndices(QSize size, const QList<int> &indices, QRgb ink, QRgb paper)
{
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.fill(paper);
    // Rows of four-byte pixels have no padding, so that an index is a position in the picture's memory.
    Q_ASSERT(picture.bytesPerLine() == qsizetype{4} * size.width());
    auto *pixels = reinterpret_cast<QRgb *>(picture.bits());
    const auto count = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    for (const int index : indices)
        if (static_cast<std::size_t>(index) < count) // a negative index turns into a huge one
            pixels[index] = ink | 0xFF000000U;
    return picture;
}
