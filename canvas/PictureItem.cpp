// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/PictureItem.h"

#include "cutout/MipmapLevel.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr std::size_t mostLevels = 16; // down to a pixel

/// While it lives, what is changed in a scene is not repainted.
///
/// An item that gets another pixmap has all of itself repainted, however little of it looks different. A
/// scene collects what has to be repainted until it gets round to its posted events; having it do so at once
/// tells apart what was due before, which goes to the screen, and what the new pixmap asks for, which does
/// not.
class RepaintsHeldBack
{
public:
    explicit RepaintsHeldBack(QGraphicsScene *scene) : m_scene(scene)
    {
        if (m_scene == nullptr)
            return;
        collect();
        for (const QGraphicsView *view : m_scene->views())
            if (repaintsInParts(*view) && view->viewport()->updatesEnabled()) {
                m_viewports.push_back(view->viewport());
                // QWidget::setUpdatesEnabled() would repaint everything when it is switched on again.
                view->viewport()->setAttribute(Qt::WA_UpdatesDisabled, true);
            }
    }
    ~RepaintsHeldBack()
    {
        if (m_scene == nullptr)
            return;
        collect();
        for (QWidget *viewport : m_viewports)
            viewport->setAttribute(Qt::WA_UpdatesDisabled, false);
    }
    RepaintsHeldBack(const RepaintsHeldBack &) = delete;
    RepaintsHeldBack &operator=(const RepaintsHeldBack &) = delete;

private:
    /// The others repaint everything or nothing, and remember that they are about to.
    static bool repaintsInParts(const QGraphicsView &view)
    {
        return view.viewportUpdateMode() != QGraphicsView::FullViewportUpdate &&
               view.viewportUpdateMode() != QGraphicsView::NoViewportUpdate;
    }

    void collect() { QCoreApplication::sendPostedEvents(m_scene, QEvent::MetaCall); }

    QGraphicsScene *m_scene;
    std::vector<QWidget *> m_viewports;
};

/// How many of its pixels around a change the item can look different: where it is reduced, what makes a few
/// pixels of the screen.
int reachOfChange(const QGraphicsItem &item)
{
    constexpr qreal screenPixels = 3.0;
    qreal reach = 1.0;
    for (const QGraphicsView *view : item.scene()->views()) {
        const QTransform toScreen = item.deviceTransform(view->viewportTransform());
        const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(toScreen);
        reach = std::max(reach, screenPixels / std::max(scale, 1e-6));
    }
    return static_cast<int>(std::ceil(std::min(reach, 1e6)));
}

} // namespace

namespace canvas {

PictureItem::PictureItem(const QPixmap &pixmap) : QGraphicsPixmapItem(pixmap)
{
    // By default the shape is made of all the pixels' alpha, after every change anew, as soon as somebody
    // presses a button or asks what lies where.
    setShapeMode(BoundingRectShape);
}

void PictureItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->deviceTransform());
    painter->setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    const QImage *level = mipmapFor(scale);
    if (level != nullptr)
        painter->drawImage(QRectF(offset(), QSizeF(pixmap().size())), *level);
    else
        painter->drawPixmap(offset(), pixmap());
}

void PictureItem::keepPainted()
{
    constexpr int limit = 256 * 1024; // KiB; a screen of 7680 x 4320 takes half of it
    QPixmapCache::setCacheLimit(std::max(QPixmapCache::cacheLimit(), limit));
    setCacheMode(DeviceCoordinateCache);
}

const QImage *PictureItem::mipmapFor(qreal scale)
{
    if (m_mipmapsFrom != pixmap().cacheKey()) {
        m_mipmaps.clear();
        m_mipmapsFrom = pixmap().cacheKey();
    }
    std::size_t levels = 0; // those that leave at least as many pixels as the screen shows
    while (scale <= 0.5 && levels < mostLevels) {
        scale *= 2;
        ++levels;
    }
    while (m_mipmaps.size() < levels) {
        QImage next = cutout::nextMipmapLevel(m_mipmaps.empty() ? pixmap().toImage() : m_mipmaps.back());
        if (next.isNull())
            break;
        m_mipmaps.push_back(std::move(next));
    }
    return levels == 0 || m_mipmaps.empty() ? nullptr : &m_mipmaps[std::min(levels, m_mipmaps.size()) - 1];
}

void PictureItem::renewMipmaps(const QRect &area)
{
    QRect changed = area;
    QImage larger = pixmap().toImage();
    for (QImage &level : m_mipmaps) {
        changed = cutout::renewMipmapLevel(level, larger, changed);
        larger = level;
    }
    m_mipmapsFrom = pixmap().cacheKey();
}

void PictureItem::renew(const QImage &image, const QRect &area)
{
    QPixmap shown = pixmap();
    if (shown.size() != image.size() || !shown.hasAlphaChannel()) {
        // An opaque picture stays convertible piece by piece once its pixmap has an alpha channel.
        setPixmap(QPixmap::fromImage(image, Qt::NoOpaqueDetection));
        return;
    }
    const QRect changed = area.intersected(image.rect());
    if (changed.isEmpty())
        return;
    {
        const RepaintsHeldBack held(scene()); // may paint what was due, which makes the copies
        const bool mipmapsAreCurrent = m_mipmapsFrom == shown.cacheKey();
        setPixmap(QPixmap()); // painting on a shared pixmap would copy all of it
        QPainter painter(&shown);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(changed.topLeft(),
                          image.copy(changed).convertToFormat(QImage::Format_ARGB32_Premultiplied));
        painter.end();
        setPixmap(shown);
        if (mipmapsAreCurrent)
            renewMipmaps(changed);
    }
    if (scene() != nullptr) {
        const int reach = reachOfChange(*this);
        update(QRectF(changed.adjusted(-reach, -reach, reach, reach)));
    }
}

void updatePixmap(QGraphicsPixmapItem &item, const QImage &image, const QRect &area)
{
    if (auto *picture = dynamic_cast<PictureItem *>(&item))
        picture->renew(image, area);
    else
        item.setPixmap(QPixmap::fromImage(image));
}

} // namespace canvas
