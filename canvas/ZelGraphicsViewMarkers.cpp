// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CMarkerCommand.h"
#include "canvas/DabItem.h"
#include "canvas/MarkerDabs.h"
#include "canvas/SceneLayers.h"
#include "canvas/ZelGraphicsView.h"
#include "core/Truncation.h"

#include <QMouseEvent>
#include <QPainterPath>
#include <QPen>
#include <QUndoStack>

namespace {

QPointF scenePosition(const QGraphicsView &view, const QMouseEvent &event)
{
    return view.mapToScene(event.position().toPoint());
}

} // namespace

void ZelGraphicsView::KeepMarkerPressEvent(QMouseEvent * /*event*/) {}
void ZelGraphicsView::KeepMarkerMouseReleased(QMouseEvent * /*event*/) {}
void ZelGraphicsView::RemoveMarkerPressEvent(QMouseEvent * /*event*/) {}
void ZelGraphicsView::RemoveMarkerMouseReleased(QMouseEvent * /*event*/) {}

bool ZelGraphicsView::acceptsDabAt(QPointF position) const
{
    const int x = ornevo::truncateToInt(position.x());
    const int y = ornevo::truncateToInt(position.y());
    const QRectF picture = scene()->sceneRect();
    return x >= 1 && y >= 1 && x < picture.width() && y < picture.height();
}

// The pointer is at the corner of these dabs and in the middle of the Blue ones: kept, see
// docs/compatibility.md.
void ZelGraphicsView::KeepMarkerMouseMoved(QMouseEvent *event)
{
    const QPointF position = scenePosition(*this, *event);
    if (!mousePressed || !acceptsDabAt(position))
        return;
    const QRectF square(position, QSizeF(keepMarkerSize, keepMarkerSize));
    layDab(new canvas::DabItem<QGraphicsRectItem>(square, markers::keepColour, pixelInScene()));
}

void ZelGraphicsView::RemoveMarkerMouseMoved(QMouseEvent *event)
{
    const QPointF position = scenePosition(*this, *event);
    if (!mousePressed || !acceptsDabAt(position))
        return;
    const QRectF square(position, QSizeF(removeMarkerSize, removeMarkerSize));
    layDab(new canvas::DabItem<QGraphicsEllipseItem>(square, markers::removeColour, pixelInScene()));
}

void ZelGraphicsView::layDab(QGraphicsItem *dab)
{
    dab->setZValue(layers::dabZ);
    scene()->addItem(dab);
    if (undoStack != nullptr)
        undoStack->push(new CMarkerCommand(scene(), dab));
}

void ZelGraphicsView::BlueMarkerMouseMoved(QMouseEvent *event)
{
    const QPoint pointer = event->position().toPoint();
    const QRect square = squareAround(pointer, blueMarkerSize >> 1);
    showBrushOutline(square, pointer);
    if (!mousePressed || !acceptsDabAt(scenePosition(*this, *event)))
        return;
    const QColor colour(markers::blueColour);
    QGraphicsItem *dab = scene()->addEllipse(square, QPen(colour), QBrush(colour));
    dab->setZValue(layers::dabZ);
    dab->setOpacity(markerOpacity / 10.0); // barely tinted: kept, see docs/compatibility.md
}

void ZelGraphicsView::EraserMousePressed(QMouseEvent *event)
{
    const int half = eraserSize >> 1;
    const QPoint position = event->position().toPoint();
    const QPointF first = mapToScene(position - QPoint(half, half));
    const QPointF second = mapToScene(position + QPoint(half, half));
    const auto items = scene()->items(QRectF(first, second), Qt::IntersectsItemShape);
    for (QGraphicsItem *item : items) {
        if (item->type() != QGraphicsRectItem::Type && item->type() != QGraphicsEllipseItem::Type)
            continue;
        // Its command may still want to delete it; until then, or until the next picture, it waits here.
        scene()->removeItem(item);
        m_erasedDabs.emplace_back(item);
    }
}

void ZelGraphicsView::discardErasedDabs()
{
    for (const canvas::ItemPointer<QGraphicsItem> &dab : m_erasedDabs)
        delete dab.get();
    m_erasedDabs.clear();
}

void ZelGraphicsView::PenMousePressed(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_penStart = scenePosition(*this, *event);
    penPathItem = scene()->addPath(QPainterPath(m_penStart));
    penPathItem->setPen(QPen(QColor(markers::penColour)));
    mousePressed = true;
}

void ZelGraphicsView::PenMouseMoved(QMouseEvent *event)
{
    if (!mousePressed || penPathItem == nullptr)
        return;
    emit ProgressStage(QByteArray("mouse moved").data());
    QPainterPath path = penPathItem->path();
    if (path.isEmpty()) {
        emit ProgressStage(QByteArray("path empty").data());
        // The item drops a path of a start alone, and the line would begin at the origin.
        path.moveTo(m_penStart);
    }
    path.lineTo(scenePosition(*this, *event));
    penPathItem->setPath(path);
    penPathItem->setPen(QPen(QColor(markers::penColour), 0));
    penPathItem->setZValue(layers::dabZ);
    emit ProgressStage(QStringLiteral("path z is %1").arg(int{penPathItem->isClipped()}).toLatin1().data());
}

void ZelGraphicsView::PenMouseReleased(QMouseEvent * /*event*/)
{
    penPathItem = nullptr;
    mousePressed = false;
    emit ProgressStage(QByteArray("Released").data());
}
