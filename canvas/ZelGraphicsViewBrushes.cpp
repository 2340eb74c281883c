// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"
#include "core/Truncation.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

// The cross that stands for the pointer, and what it covers with its light border.
constexpr int arm = 4;
constexpr QRect pointerMark(QPoint(-arm - 2, -arm - 2), QPoint(arm + 2, arm + 2));

} // namespace

void ZelGraphicsView::KeepBrushMouseReleased(QMouseEvent * /*event*/) {}
void ZelGraphicsView::RemoveBrushMouseReleased(QMouseEvent * /*event*/) {}

void ZelGraphicsView::KeepBrushMousePressed(QMouseEvent *event)
{
    pressBrush(event, keepBrushSize);
}
void ZelGraphicsView::RemoveBrushMousePressed(QMouseEvent *event)
{
    pressBrush(event, removeBrushSize);
}

void ZelGraphicsView::KeepBrushMouseMoved(QMouseEvent *event)
{
    moveBrush(event, keepBrushSize);
}

void ZelGraphicsView::RemoveBrushMouseMoved(QMouseEvent *event)
{
    moveBrush(event, removeBrushSize);
    if (brushOutline != nullptr) // after a move of this brush alone: kept, see docs/compatibility.md
        scene()->update();
}

void ZelGraphicsView::pressBrush(QMouseEvent *event, int size)
{
    const QRect square = squareAround(event->position().toPoint(), size >> 1);
    if (scene()->sceneRect().contains(square))
        emit AnyBrush(square, true);
}

void ZelGraphicsView::moveBrush(QMouseEvent *event, int size)
{
    const QPoint position = event->position().toPoint();
    const QRect square = squareAround(position, size >> 1);
    showBrushOutline(square, position);
    if (!mousePressed)
        return;
    // Unlike a press, a move counts even where the square leaves the scene: see docs/compatibility.md.
    emit AnyBrush(square, false);
    lastMousePos = position;
}

void ZelGraphicsView::showBrushOutline(const QRect &square, QPoint position)
{
    if (!scene()->sceneRect().contains(square)) {
        removeBrushOutline();
        markPointer(position);
        return;
    }
    markPointer(std::nullopt);
    if (brushOutline == nullptr) {
        brushOutline = new canvas::BrushOutline;
        scene()->addItem(brushOutline);
    }
    brushOutline->showAt(square, pixelInScene());
}

void ZelGraphicsView::removeBrushOutline()
{
    delete brushOutline.get(); // takes it off its scene as well
    brushOutline = nullptr;
    markPointer(std::nullopt);
}

// The tools with a circle have a blank cursor, and there is no circle beside the picture, nor of a brush of
// less than a pixel.
void ZelGraphicsView::markPointer(std::optional<QPoint> position)
{
    for (const std::optional<QPoint> &changed : {m_markedPointer, position})
        if (changed && m_markedPointer != position)
            viewport()->update(pointerMark.translated(*changed));
    m_markedPointer = position;
}

void ZelGraphicsView::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    if (!m_markedPointer)
        return;
    QPainter painter(viewport());
    for (const QPen &pen : {QPen(Qt::white, 3), QPen(Qt::black, 1)}) { // to be seen on whatever there is
        painter.setPen(pen);
        painter.drawLine(*m_markedPointer - QPoint(arm, 0), *m_markedPointer + QPoint(arm, 0));
        painter.drawLine(*m_markedPointer - QPoint(0, arm), *m_markedPointer + QPoint(0, arm));
    }
}

void ZelGraphicsView::HandMousePressed(QMouseEvent *event)
{
    lastMousePos = event->position().toPoint();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void ZelGraphicsView::HandMouseMoved(QMouseEvent *event)
{
    if (!mousePressed)
        return;
    const QPoint position = event->position().toPoint();
    // Where the view is zoomed far out, a step of the pointer can be longer than an int holds.
    const auto scenePoint = [this](QPoint viewPosition) {
        const QPointF there = mapToScene(viewPosition);
        return QPoint(ornevo::roundToInt(there.x()), ornevo::roundToInt(there.y()));
    };
    emit HandTool(scenePoint(lastMousePos), scenePoint(position));
    lastMousePos = position;
}

void ZelGraphicsView::HandMouseReleased(QMouseEvent * /*event*/)
{
    viewport()->setCursor(Qt::OpenHandCursor);
}
