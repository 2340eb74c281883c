// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/ExportComposition.h"

#include <QPainter>

#include <cmath>

namespace cutout {

namespace {

constexpr double mostPixels = 1 << 28;

void drawObject(QPainter &painter, const ExportLayers &layers, double scaleX, double scaleY)
{
    const QPointF corner(std::trunc(layers.offset.x() * scaleX), std::trunc(layers.offset.y() * scaleY));
    const QSizeF extent(std::trunc(layers.cutOut.width() * scaleX),
                        std::trunc(layers.cutOut.height() * scaleY));
    if (extent.width() * extent.height() > mostPixels) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(corner, extent), layers.cutOut);
        return;
    }
    const QImage object =
        layers.cutOut.scaled(extent.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(corner, object);
}

} // namespace

QPixmap composeExport(const ExportLayers &layers, QSize size)
{
    if (size.isEmpty() || layers.canvas.isNull())
        return {};
    QPixmap result = layers.canvas.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (result.isNull() || layers.cutOut.isNull() || layers.background.isEmpty())
        return result;
    QPainter painter(&result);
    drawObject(painter, layers, double(size.width()) / layers.background.width(),
               double(size.height()) / layers.background.height());
    return result;
}

} // namespace cutout
