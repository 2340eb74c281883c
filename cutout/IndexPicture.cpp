// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/IndexPicture.h"

#include "cutout/LargePicture.h"

#include <algorithm>
#include <cstddef>

namespace cutout {

QImage paintIndices(QSize size, const QList<int> &indices, QRgb ink, QRgb paper)
{
    QImage picture = makeLargePicture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    // Rows of four-byte pixels have no padding, so that an index is a position in the picture's memory.
    Q_ASSERT(picture.bytesPerLine() == qsizetype{4} * size.width());
    auto *pixels = reinterpret_cast<QRgb *>(picture.bits());
    const auto count = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    ink |= 0xFF000000U;
    paper |= 0xFF000000U;
    // The paper is laid just ahead of the ink. Indices mostly ascend, so that the picture is gone through
    // once.
    std::size_t laid = 0;
    for (const int index : indices) {
        const auto place = static_cast<std::size_t>(index);
        if (place >= count) // a negative index turns into a huge one
            continue;
        if (place >= laid) {
            std::fill(pixels + laid, pixels + place, paper);
            laid = place + 1;
        }
        pixels[place] = ink;
    }
    std::fill(pixels + laid, pixels + count, paper);
    return picture;
}

} // namespace cutout
