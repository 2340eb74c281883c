// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/ExportComposition.h"

#include <QPainter>

#include <cmath>
#include <new>
#include <utility>

namespace cutout {

namespace {

constexpr double mostPixels = 1 << 28;

void drawObject(QPainter &painter, const ExportLayers &layers, double scaleX, double scaleY)
{
    const QPointF corner(std::trunc(layers.offset.x() * scaleX), std::trunc(layers.offset.y() * scaleY));
    const QSizeF extent(std::trunc(layers.cutOut.width() * scaleX),
                        std::trunc(layers.cutOut.height() * scaleY));
    if (extent.isEmpty())
        return;
    if (extent.width() * extent.height() > mostPixels) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(corner, extent), layers.cutOut);
        return;
    }
    const QImage object =
        layers.cutOut.scaled(extent.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (object.isNull())
        throw std::bad_alloc();
    painter.drawImage(corner, object);
}

} // namespace

QPixmap asPixmap(QImage picture)
{
    const bool empty = picture.isNull();
    QPixmap pixmap = QPixmap::fromImage(std::move(picture));
    if (pixmap.isNull() && !empty)
        throw std::bad_alloc();
    return pixmap;
}

QPixmap colourCanvas(QSize size, QRgb colour)
{
    if (size.isEmpty())
        return {};
    // An opaque canvas without room for alpha needs neither a look for transparent pixels nor a conversion.
    QImage canvas(size, qAlpha(colour) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (canvas.isNull())
        throw std::bad_alloc();
    canvas.fill(colour);
    return asPixmap(std::move(canvas));
}

QPixmap composeExport(ExportLayers layers, QSize size)
{
    if (size.isEmpty() || layers.canvas.isNull())
        return {};
    QPixmap result = layers.canvas.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (result.isNull())
        throw std::bad_alloc();
    layers.canvas = QPixmap(); // painting on a shared pixmap would copy it
    if (layers.cutOut.isNull() || layers.background.isEmpty())
        return result;
    QPainter painter;
    if (!painter.begin(&result))
        throw std::bad_alloc();
    drawObject(painter, layers, double(size.width()) / layers.background.width(),
               double(size.height()) / layers.background.height());
    return result;
}

} // namespace cutout
