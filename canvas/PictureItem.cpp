// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/PictureItem.h"

#include "imaging/Halving.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

PictureItem::PictureItem(const QPixmap &pixmap) : QGraphicsPixmapItem(pixmap) {}

void PictureItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->deviceTransform());
    painter->setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    const QImage *reduced = reducedFor(scale);
    if (reduced != nullptr)
        painter->drawImage(QRectF(offset(), QSizeF(pixmap().size())), *reduced);
    else
        painter->drawPixmap(offset(), pixmap());
}

const QImage *PictureItem::reducedFor(qreal scale)
{
    if (m_reducedFrom != pixmap().cacheKey()) {
        m_reduced.clear();
        m_reducedFrom = pixmap().cacheKey();
    }
    const QImage *found = nullptr;
    for (std::size_t level = 0; scale <= 0.5; ++level, scale *= 2) {
        if (level == m_reduced.size())
            m_reduced.push_back(halved(level == 0 ? pixmap().toImage() : m_reduced.back()));
        if (m_reduced[level].isNull())
            break;
        found = &m_reduced[level];
        if (found->width() == 1 && found->height() == 1)
            break;
    }
    return found;
}

void PictureItem::renewReduced(const QRect &area)
{
    QRect changed = area;
    QImage larger = pixmap().toImage();
    for (QImage &reduced : m_reduced) {
        changed = renewHalved(reduced, larger, changed);
        larger = reduced;
    }
    m_reducedFrom = pixmap().cacheKey();
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
    auto *picture = dynamic_cast<PictureItem *>(&item);
    const bool reducedIsCurrent = picture != nullptr && picture->m_reducedFrom == pixmap.cacheKey();
    item.setPixmap(QPixmap()); // painting on a shared pixmap would copy all of it
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(changed.topLeft(),
                      image.copy(changed).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    painter.end();
    item.setPixmap(pixmap);
    if (reducedIsCurrent)
        picture->renewReduced(changed);
}
