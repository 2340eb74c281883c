// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/PictureItem.h"

#include "imaging/Halving.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

constexpr std::size_t mostLevels = 16; // down to a pixel

} // namespace

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
    std::size_t levels = 0; // halvings that leave at least as many pixels as the screen shows
    while (scale <= 0.5 && levels < mostLevels) {
        scale *= 2;
        ++levels;
    }
    while (m_reduced.size() < levels) {
        QImage half = halved(m_reduced.empty() ? pixmap().toImage() : m_reduced.back());
        if (half.isNull())
            break;
        m_reduced.push_back(std::move(half));
    }
    return levels == 0 || m_reduced.empty() ? nullptr : &m_reduced[std::min(levels, m_reduced.size()) - 1];
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
