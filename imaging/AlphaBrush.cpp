// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/AlphaBrush.h"

#include <QPainterPath>
#include <QPolygon>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

// With the view zoomed far out a dab can be larger than anything. QRegion makes an empty region of a polygon
// with more rows than this, but first fills megabytes for it and never releases them.
constexpr int mostRows = 100000;
constexpr double mostFarAway = 1 << 30;

bool canBecomeRegion(const QRectF &outline)
{
    const auto isNear = [](double coordinate) { return std::abs(coordinate) < mostFarAway; };
    return isNear(outline.left()) && isNear(outline.right()) && isNear(outline.top()) &&
           isNear(outline.bottom()) && qRound(outline.bottom()) - qRound(outline.top()) <= mostRows;
}

} // namespace

BrushBatch brushBatch(const QList<QRect> &squares, QPoint offset, QSize size)
{
    QPainterPath path;
    // Widened to doubles first, so that no coordinate can overflow.
    for (const QRect &square : squares)
        path.addEllipse(QRectF(double(square.x()) - offset.x(), double(square.y()) - offset.y(),
                               square.width(), square.height()));
    const QPolygonF outline = path.toFillPolygon(QTransform());
    if (!canBecomeRegion(outline.boundingRect()))
        return {};
    // Winding, so that overlapping dabs are one area and no pixel is counted twice.
    const QRegion dabs(outline.toPolygon(), Qt::WindingFill);
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
