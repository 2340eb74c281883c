// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"

#include "canvas/MarkerDabs.h"
#include "canvas/SettingsKeys.h"
#include "core/Truncation.h"
#include "resources/Resources.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QResizeEvent>
#include <QSettings>

#include <algorithm>

namespace {

// The pencils are drawn so that their tip lies there at this width.
constexpr int pencilWidth = 8;
constexpr QPoint pencilTip(4, 21);
constexpr int penWidth = 32;
constexpr QPoint penTip(0, 26);

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

/// How many units of a cursor's hot spot make a point of the view. Qt 6.4 hands the hot spot to an X server
/// as if it were in pixels of the drawing; other platforms take it in points, as QCursor does.
qreal hotSpotScale(qreal pixelRatio)
{
    return QGuiApplication::platformName() == "xcb" ? pixelRatio : 1.0;
}

/// The name of the same drawing with twice the pixels, which QPixmap does not look for by itself.
QString densePath(QString path)
{
    return path.insert(path.lastIndexOf('.'), "@2x");
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

QCursor ZelGraphicsView::cursorOf(DrawingTools tool) const
{
    switch (tool) {
    case ToolPen:
        return pixmapCursor(":/cursors/pen_cursor.png", penWidth, penTip);
    case ToolEraser:
        return pixmapCursor(":/icons/eraser.ico", eraserSize, QPoint(eraserSize / 2, eraserSize / 2));
    case ToolKeepMarker:
        return pixmapCursor(":/icons/greenpencil.PNG", pencilWidth, pencilTip);
    case ToolRemoveMarker:
        return pixmapCursor(":/icons/redpencilv.PNG", pencilWidth, pencilTip);
    case ToolKeepBrush:
    case ToolRemoveBrush:
    case ToolBlueMarker:
        return Qt::BlankCursor; // the brush circle takes its place
    case ToolHand:
        return Qt::OpenHandCursor;
    case ToolNone:
        break;
    }
    return Qt::ArrowCursor;
}

QCursor ZelGraphicsView::pixmapCursor(const QString &path, int width, QPoint hotSpot) const
{
    // Scaled in device pixels, so that the cursor is as sharp as the screen allows.
    const qreal ratio = devicePixelRatioF();
    const int deviceWidth = qRound(width * ratio);
    QPixmap drawing(path);
    if (drawing.width() < deviceWidth) {
        QPixmap dense(densePath(path));
        if (!dense.isNull())
            drawing = dense;
    }
    drawing.setDevicePixelRatio(1.0);
    QPixmap pixmap = width > 0 ? drawing.scaledToWidth(deviceWidth, Qt::SmoothTransformation) : QPixmap();
    if (pixmap.isNull())
        return Qt::ArrowCursor;
    pixmap.setDevicePixelRatio(ratio);
    const QPoint spot = hotSpot * hotSpotScale(ratio);
    return QCursor(pixmap, spot.x(), spot.y());
}

void ZelGraphicsView::updatetoolssettings()
{
    if (settings == nullptr)
        return;
    const auto sizeOf = [this](const settings::Key &key) {
        return static_cast<unsigned char>(settings->value(key.name, key.viewDefault).toInt());
    };
    const bool sameSize = settings->value(settings::sameSize.name, settings::sameSize.viewDefault).toBool();
    keepMarkerSize = sizeOf(settings::keepMarkerSize);
    if (sameSize) {
        removeMarkerSize = keepBrushSize = removeBrushSize = eraserSize = keepMarkerSize;
        return; // the Blue marker and the opacity keep what they had
    }
    removeMarkerSize = sizeOf(settings::removeMarkerSize);
    keepBrushSize = sizeOf(settings::keepBrushSize);
    removeBrushSize = sizeOf(settings::removeBrushSize);
    eraserSize = sizeOf(settings::eraserSize);
    blueMarkerSize = sizeOf(settings::blueMarkerSize);
    markerOpacity = settings->value(settings::maskOpacity.name, settings::maskOpacity.viewDefault).toDouble();
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
        brushOutline->setRect(square);
}

void ZelGraphicsView::mousePressEvent(QMouseEvent *event)
{
    mousePressed = true;
    if (scene() == nullptr)
        return;
    switch (currentTool) {
    case ToolPen:
        PenMousePressed(event);
        break;
    case ToolEraser:
        EraserMousePressed(event);
        break;
    case ToolKeepBrush:
        KeepBrushMousePressed(event);
        break;
    case ToolRemoveBrush:
        RemoveBrushMousePressed(event);
        break;
    case ToolHand:
        HandMousePressed(event);
        break;
    default: // a marker's first dab is laid by the first move
        break;
    }
    QGraphicsView::mousePressEvent(event);
}

void ZelGraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (scene() == nullptr)
        return;
    switch (currentTool) {
    case ToolPen:
        PenMouseMoved(event);
        break;
    case ToolKeepMarker:
        KeepMarkerMouseMoved(event);
        break;
    case ToolRemoveMarker:
        RemoveMarkerMouseMoved(event);
        break;
    case ToolKeepBrush:
        KeepBrushMouseMoved(event);
        break;
    case ToolRemoveBrush:
        RemoveBrushMouseMoved(event);
        break;
    case ToolHand:
        HandMouseMoved(event);
        break;
    case ToolBlueMarker:
        BlueMarkerMouseMoved(event);
        break;
    default: // the eraser erases on a press only
        break;
    }
    QGraphicsView::mouseMoveEvent(event);
}

void ZelGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    mousePressed = false;
    if (scene() == nullptr)
        return;
    if (currentTool == ToolPen)
        PenMouseReleased(event);
    else if (currentTool == ToolHand)
        HandMouseReleased(event);
    QGraphicsView::mouseReleaseEvent(event);
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
    // Zoomed far in, one step can be so long that Qt's moving of the pixels overflows and reads beyond them.
    // Beyond the view's own size it makes no difference how far the pixels move.
    const int farthest = 2 * std::max({1, viewport()->width(), viewport()->height()});
    QGraphicsView::scrollContentsBy(std::clamp(dx, -farthest, farthest), std::clamp(dy, -farthest, farthest));
}

QRect ZelGraphicsView::squareAround(QPoint viewPosition, int half) const
{
    const QPointF first = mapToScene(viewPosition - QPoint(half, half));
    const QPointF second = mapToScene(viewPosition + QPoint(half, half));
    return {ornevo::truncateToInt(first.x()), ornevo::truncateToInt(first.y()),
            ornevo::truncateToInt(second.x() - first.x()), ornevo::truncateToInt(second.y() - first.y())};
}
