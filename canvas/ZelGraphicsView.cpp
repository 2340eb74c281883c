// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"

#include "canvas/SettingsKeys.h"
#include "core/Truncation.h"
#include "resources/Resources.h"

#include <QMouseEvent>
#include <QResizeEvent>
#include <QSettings>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

double deviationFromOne(double factor)
{
    return factor > 1.0 ? factor : 1.0 / factor;
}

/// By how much the view has to scale along one axis to keep the picture's apparent size.
double resizeFactor(double shown, double newLength, double oldLength)
{
    if (newLength > shown)
        return newLength / oldLength;
    return newLength >= oldLength ? 1.0 : newLength / oldLength;
}

} // namespace

ZelGraphicsView::ZelGraphicsView(QWidget *parent) : QGraphicsView(parent)
{
    resources::registerAll();            // the cursors
    setBackgroundBrush(palette().mid()); // so that the edges of a white picture can be seen
}

ZelGraphicsView::~ZelGraphicsView()
{
    discardErasedDabs();
}

void ZelGraphicsView::SetTool(DrawingTools tool)
{
    currentTool = tool;
    removeBrushOutline();
    viewport()->setCursor(cursorOf(tool));
}

void ZelGraphicsView::updatetoolssettings()
{
    if (settings == nullptr)
        return;
    readSizes();
    if (currentTool != ToolHand) // which has no size, and may be closed around the object
        viewport()->setCursor(cursorOf(currentTool));
}

void ZelGraphicsView::readSizes()
{
    const auto sizeOf = [this](const settings::Key &key) {
        return static_cast<unsigned char>(
            settings->value(key.name, QLatin1StringView(key.viewDefault)).toInt());
    };
    const bool sameSize =
        settings->value(settings::sameSize.name, QLatin1StringView(settings::sameSize.viewDefault)).toBool();
    keepMarkerSize = sizeOf(settings::keepMarkerSize);
    if (sameSize) {
        removeMarkerSize = keepBrushSize = removeBrushSize = eraserSize = keepMarkerSize;
        return; // the Blue marker and the opacity keep what they had: see docs/compatibility.md
    }
    removeMarkerSize = sizeOf(settings::removeMarkerSize);
    keepBrushSize = sizeOf(settings::keepBrushSize);
    removeBrushSize = sizeOf(settings::removeBrushSize);
    eraserSize = sizeOf(settings::eraserSize);
    blueMarkerSize = sizeOf(settings::blueMarkerSize);
    markerOpacity =
        settings->value(settings::maskOpacity.name, QLatin1StringView(settings::maskOpacity.viewDefault))
            .toDouble();
}

void ZelGraphicsView::updateellipse(int size)
{
    if (brushOutline == nullptr)
        return;
    // Not mapFromScene(): zoomed far in, the circle can lie where no int reaches.
    const QPointF centre = viewportTransform().map(brushOutline->rect().center());
    const QRect square =
        squareAround(QPoint(ornevo::roundToInt(centre.x()), ornevo::roundToInt(centre.y())), size / 2);
    if (scene() != nullptr && scene()->sceneRect().contains(square))
        brushOutline->showAt(square, pixelInScene());
}

void ZelGraphicsView::mousePressEvent(QMouseEvent *event)
{
    if (pressTool(event))
        QGraphicsView::mousePressEvent(event);
}

void ZelGraphicsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The second of two quick presses comes as this and as nothing else; a stroke may begin with it as well.
    if (pressTool(event))
        QGraphicsView::mouseDoubleClickEvent(event);
}

bool ZelGraphicsView::pressTool(QMouseEvent *event)
{
    mousePressed = true;
    if (scene() == nullptr)
        return false;
    handle(rowOf(currentTool).press, event);
    return true;
}

void ZelGraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (scene() == nullptr)
        return;
    // The release went elsewhere. Only the window system knows which buttons are down.
    if (mousePressed && event->spontaneous() && event->buttons() == Qt::NoButton)
        endStroke();
    handle(rowOf(currentTool).move, event);
    QGraphicsView::mouseMoveEvent(event);
}

void ZelGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    mousePressed = false;
    if (scene() == nullptr)
        return;
    handle(rowOf(currentTool).release, event);
    QGraphicsView::mouseReleaseEvent(event);
}

bool ZelGraphicsView::event(QEvent *event)
{
    // A dialog that comes up, or another program, gets the release.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate)
        endStroke();
    return QGraphicsView::event(event);
}

void ZelGraphicsView::endStroke()
{
    if (!mousePressed)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, lastMousePos, viewport()->mapToGlobal(lastMousePos),
                        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    mouseReleaseEvent(&release);
}

void ZelGraphicsView::leaveEvent(QEvent * /*event*/)
{
    removeBrushOutline();
}

void ZelGraphicsView::resizeEvent(QResizeEvent *event)
{
    if (scene() == nullptr)
        return;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    const QSizeF newSize = event->size();
    const QSizeF oldSize = event->oldSize();
    // Without an old size there is nothing to keep in step with.
    if (!newSize.isEmpty() && !oldSize.isEmpty()) {
        const QRectF shown = transform().mapRect(scene()->sceneRect());
        const double sx = resizeFactor(shown.width(), newSize.width(), oldSize.width());
        const double sy = resizeFactor(shown.height(), newSize.height(), oldSize.height());
        const double factor = deviationFromOne(sx) > deviationFromOne(sy) ? sx : sy;
        scale(factor, factor);
    }
    QGraphicsView::resizeEvent(event);
}

void ZelGraphicsView::scrollContentsBy(int dx, int dy)
{
    markPointer(std::nullopt); // it would move along
    // Zoomed far in, one step can be so long that Qt's moving of the pixels overflows and reads beyond them.
    // Beyond the view's own size it makes no difference how far the pixels move.
    const int farthest = 2 * std::max({1, viewport()->width(), viewport()->height()});
    QGraphicsView::scrollContentsBy(std::clamp(dx, -farthest, farthest), std::clamp(dy, -farthest, farthest));
}

qreal ZelGraphicsView::pixelInScene() const
{
    constexpr qreal smallestScale = 1e-9; // at no scale at all there is nothing to see
    return 1.0 /
           std::max(QStyleOptionGraphicsItem::levelOfDetailFromTransform(viewportTransform()), smallestScale);
}

QRect ZelGraphicsView::squareAround(QPoint viewPosition, int half) const
{
    const QPointF first = mapToScene(viewPosition - QPoint(half, half));
    const QPointF second = mapToScene(viewPosition + QPoint(half, half));
    return {ornevo::truncateToInt(first.x()), ornevo::truncateToInt(first.y()),
            ornevo::truncateToInt(second.x() - first.x()), ornevo::truncateToInt(second.y() - first.y())};
}
