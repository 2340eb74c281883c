// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/Views.h"

#include <QImage>

#include <stdexcept>

namespace imaging {

namespace {

void check(const QImage &picture)
{
    if (!picture.isNull() && picture.depth() != 32)
        throw std::invalid_argument("picture has not four bytes a pixel");
}

} // namespace

ornevo::PictureView viewOf(const QImage &picture)
{
    check(picture);
    return {picture.constBits(), picture.width(), picture.height(), picture.bytesPerLine()};
}

ornevo::MutablePictureView mutableViewOf(QImage &picture)
{
    check(picture);
    return {picture.bits(), picture.width(), picture.height(), picture.bytesPerLine()};
}

} // namespace imaging
