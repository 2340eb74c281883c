// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FlatPicture.h"

#include <QPainter>

namespace cutout {

QImage flattened(QPixmap pixmap, const QBitmap &mask)
{
    pixmap.setMask(mask);
    QImage flat(pixmap.size(), QImage::Format_ARGB32);
    if (pixmap.isNull() || flat.isNull())
        return {};
    flat.fill(0xFFFFFFFF);
    QPainter painter;
    if (!painter.begin(&flat))
        return {};
    painter.drawPixmap(0, 0, pixmap);
    return painter.end() ? flat : QImage();
}

} // namespace cutout
