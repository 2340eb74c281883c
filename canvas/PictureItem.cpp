// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/PictureItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

PictureItem::PictureItem(const QPixmap &pixmap) : QGraphicsPixmapItem(pixmap) {}

void PictureItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    painter->setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    painter->drawPixmap(offset(), pixmap());
}

void updatePixmap(QGraphicsPixmapItem &item, const QImage &image, const QRect &area)
{
    QPixmap pixmap = item.pixmap();
    if (pixmap.size() != image.size() || !pixmap.hasAlphaChannel()) {
        // An opaque picture stays convertible piece by piece once its pixmap has room for alpha.
        item.setPixmap(QPixmap::fromImage(image, Qt::NoOpaqueDetection));
        return;
    }
    const QRect changed = area.intersected(image.rect());
    if (changed.isEmpty())
        return;
    item.setPixmap(QPixmap()); // painting on a shared pixmap would copy all of it
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(changed.topLeft(),
                      image.copy(changed).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    painter.end();
    item.setPixmap(pixmap);
}
