// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/ExportComposition.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>
#include <vector>

namespace cutout {

namespace {

constexpr double mostPixels = 1 << 28;

constexpr int tileSide = 64;

bool canBeDrawnByTiles(const QImage &picture, const QImage &object)
{
    return object.format() == QImage::Format_ARGB32 &&
           (picture.format() == QImage::Format_RGB32 ||
            picture.format() == QImage::Format_ARGB32_Premultiplied);
}

enum class Cover { Nothing, Everything, Some };

Cover coverOf(const QImage &object, const QRect &tile)
{
    QRgb all = 0xFF000000U;
    QRgb any = 0;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        const auto *pixels = reinterpret_cast<const QRgb *>(object.constScanLine(y));
        for (int x = tile.left(); x <= tile.right(); ++x) {
            all &= pixels[x];
            any |= pixels[x];
        }
    }
    if (qAlpha(all) == 255)
        return Cover::Everything;
    return qAlpha(any) == 0 ? Cover::Nothing : Cover::Some;
}

void copyTile(QImage &picture, const QImage &object, const QRect &tile, QPoint corner)
{
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(object.constScanLine(y)) + tile.left();
        auto *to = reinterpret_cast<QRgb *>(picture.scanLine(corner.y() + y)) + (corner.x() + tile.left());
        std::copy_n(from, tile.width(), to);
    }
}

/// Blending is what takes time, and it changes nothing but the tiles that a border goes through: the others
/// are copied or left as they are, with the same result.
void drawByTiles(QImage &picture, const QImage &object, QPoint corner)
{
    const QRect shown = object.rect().intersected(picture.rect().translated(-corner));
    std::vector<QRect> mixed;
    for (int top = shown.top(); top <= shown.bottom(); top += tileSide)
        for (int left = shown.left(); left <= shown.right(); left += tileSide) {
            const QRect tile = QRect(left, top, tileSide, tileSide).intersected(shown);
            const Cover cover = coverOf(object, tile);
            if (cover == Cover::Everything)
                copyTile(picture, object, tile, corner);
            else if (cover == Cover::Some)
                mixed.push_back(tile);
        }
    QPainter painter(&picture);
    for (const QRect &tile : mixed)
        painter.drawImage(corner + tile.topLeft(), object, tile);
}

void drawObject(QImage &picture, const ExportLayers &layers, double scaleX, double scaleY)
{
    const QPointF corner(std::trunc(layers.offset.x() * scaleX), std::trunc(layers.offset.y() * scaleY));
    const QSizeF extent(std::trunc(layers.cutOut.width() * scaleX),
                        std::trunc(layers.cutOut.height() * scaleY));
    if (!QRectF(corner, extent).intersects(picture.rect()))
        return;
    if (extent.width() * extent.height() > mostPixels) {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(corner, extent), layers.cutOut);
        return;
    }
    const QImage object =
        layers.cutOut.scaled(extent.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (object.isNull())
        throw std::bad_alloc();
    if (canBeDrawnByTiles(picture, object))
        drawByTiles(picture, object, corner.toPoint());
    else
        QPainter(&picture).drawImage(corner, object);
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
    // An opaque canvas without an alpha channel needs neither a look for transparent pixels nor a conversion.
    QImage canvas(size, qAlpha(colour) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (canvas.isNull())
        throw std::bad_alloc();
    canvas.fill(colour);
    return asPixmap(std::move(canvas));
}

QImage composeExport(ExportLayers layers, QSize size)
{
    if (size.isEmpty() || layers.canvas.isNull())
        return {};
    QPixmap scaled = layers.canvas.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage result = scaled.toImage();
    if (result.isNull())
        throw std::bad_alloc();
    scaled = QPixmap(); // painting on pixels that are shared would copy them
    layers.canvas = QPixmap();
    result.detach();
    if (result.isNull())
        throw std::bad_alloc();
    if (!layers.cutOut.isNull() && !layers.background.isEmpty())
        drawObject(result, layers, double(size.width()) / layers.background.width(),
                   double(size.height()) / layers.background.height());
    return result;
}

} // namespace cutout
