// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FlatPicture.h"

#include <QBitmap>
#include <QPainter>

namespace cutout {

QImage flattened(QPixmap pixmap)
{
    pixmap.setMask(QBitmap()); // an empty mask drops whatever transparency there was
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
