// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/AlphaBrush.h"

#include <QPainterPath>
#include <QPolygon>
#include <QTransform>

#include <algorithm>

BrushBatch brushBatch(const QList<QRect> &squares, QPoint offset, QSize size)
{
    QPainterPath path;
    // Widened to doubles first, so that no coordinate can overflow.
    for (const QRect &square : squares)
        path.addEllipse(QRectF(double(square.x()) - offset.x(), double(square.y()) - offset.y(),
                               square.width(), square.height()));
    // Winding, so that overlapping dabs are one area and no pixel is counted twice.
    const QRegion dabs(path.toFillPolygon(QTransform()).toPolygon(), Qt::WindingFill);
    const QRectF bounds = path.boundingRect();
    const QRect box(qRound(bounds.x()), qRound(bounds.y()), qRound(bounds.width()), qRound(bounds.height()));
    return {dabs.intersected(QRect(QPoint(0, 0), size)), box};
}

void changeAlpha(QImage &picture, const QRegion &region, int change)
{
    if (picture.format() != QImage::Format_ARGB32)
        return;
    for (const QRect &part : region) {
        const QRect area = part.intersected(picture.rect());
        for (int y = area.top(); y <= area.bottom(); ++y) {
            auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
            for (int x = area.left(); x <= area.right(); ++x) {
                const int alpha = std::clamp(qAlpha(pixels[x]) + change, 0, 255);
                pixels[x] = (pixels[x] & 0x00FFFFFFU) | (static_cast<QRgb>(alpha) << 24);
            }
        }
    }
}
