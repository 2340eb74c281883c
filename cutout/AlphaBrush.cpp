// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/AlphaBrush.h"

#include "core/Truncation.h"
#include "cutout/WindingRegion.h"

#include <QPainterPath>
#include <QPolygon>
#include <QTransform>

#include <algorithm>

namespace cutout {

namespace {

// With the view zoomed far out a dab can be far larger than the picture, and its corners where no int
// reaches. Beyond this many rows they are brought nearer.
constexpr double mostRows = 20000;

// So far off the picture, the rounding of a clipped edge does not show in it.
constexpr double margin = 64;

/// What is left of a polygon on the side of the line x = bound (or y = bound) that `sign` points away from.
/// Inside, the winding numbers stay as they are.
QPolygonF clipAt(const QPolygonF &polygon, bool alongX, double bound, double sign)
{
    const auto excess = [=](QPointF point) { return sign * ((alongX ? point.x() : point.y()) - bound); };
    QPolygonF result;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        if (excess(from) <= 0)
            result.append(from);
        if ((excess(from) <= 0) != (excess(to) <= 0))
            result.append(from + (to - from) * (excess(from) / (excess(from) - excess(to))));
    }
    return result;
}

QPolygonF clipAround(QPolygonF polygon, QSize size)
{
    polygon = clipAt(polygon, true, -margin, -1);
    polygon = clipAt(polygon, true, size.width() + margin, 1);
    polygon = clipAt(polygon, false, -margin, -1);
    return clipAt(polygon, false, size.height() + margin, 1);
}

} // namespace

BrushBatch brushBatch(const QList<QRect> &squares, QPoint offset, QSize size)
{
    QPainterPath path;
    // Widened to doubles first, so that no coordinate can overflow.
    for (const QRect &square : squares)
        path.addEllipse(QRectF(double(square.x()) - offset.x(), double(square.y()) - offset.y(),
                               square.width(), square.height()));
    QPolygonF outline = path.toFillPolygon(QTransform());
    QRectF bounds = path.boundingRect();
    if (outline.boundingRect().height() > mostRows) {
        outline = clipAround(outline, size);
        bounds = outline.boundingRect();
    }
    const QRect box(ornevo::roundToInt(bounds.x()), ornevo::roundToInt(bounds.y()),
                    ornevo::roundToInt(bounds.width()), ornevo::roundToInt(bounds.height()));
    // By winding, so that overlapping dabs are one area and no pixel is counted twice.
    return {windingRegion(outline.toPolygon(), QRect(QPoint(0, 0), size)), box};
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

} // namespace cutout
