// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"

#include <QGuiApplication>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

// The pencils are drawn so that their tip lies there at this width: kept, see docs/compatibility.md.
constexpr int pencilWidth = 8;
constexpr QPoint pencilTip(4, 21);
constexpr int penWidth = 32;
constexpr QPoint penTip(0, 26);

/// How many units of a cursor's hot spot make a point of the view. Qt 6.4 hands the hot spot to an X server
/// as if it were in pixels of the drawing; other platforms take it in points, as QCursor does.
qreal hotSpotScale(qreal pixelRatio)
{
    return QGuiApplication::platformName() == "xcb"_L1 ? pixelRatio : 1.0;
}

/// The name of the same drawing with twice the pixels, which QPixmap does not look for by itself.
QString densePath(QString path)
{
    return path.insert(path.lastIndexOf(u'.'), "@2x"_L1);
}

/// The drawing at this width, or an arrow where there is nothing to draw.
QCursor drawnCursor(const QString &path, int width, QPoint hotSpot, qreal pixelRatio)
{
    // Scaled in device pixels, so that the cursor is as sharp as the screen allows.
    const int deviceWidth = qRound(width * pixelRatio);
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
    pixmap.setDevicePixelRatio(pixelRatio);
    const QPoint spot = hotSpot * hotSpotScale(pixelRatio);
    return QCursor(pixmap, spot.x(), spot.y());
}

QCursor pencilCursor(const QString &path, qreal pixelRatio)
{
    return drawnCursor(path, pencilWidth, pencilTip, pixelRatio);
}

} // namespace

// A new tool is a value of DrawingTools, a row here, and its handlers. No `default`, so that the compiler
// asks for the row.
ZelGraphicsView::Tool ZelGraphicsView::rowOf(DrawingTools tool)
{
    using View = ZelGraphicsView;
    constexpr MouseHandler nothing = nullptr;
    const Tool noTool{nothing, nothing, nothing, [](const View &) { return QCursor(Qt::ArrowCursor); }};
    // The brush circle takes the cursor's place.
    const auto circle = [](const View &) { return QCursor(Qt::BlankCursor); };
    switch (tool) {
    case ToolNone:
        return noTool;
    case ToolPen:
        return {&View::PenMousePressed, &View::PenMouseMoved, &View::PenMouseReleased, [](const View &view) {
                    return drawnCursor(u":/cursors/pen_cursor.png"_s, penWidth, penTip,
                                       view.devicePixelRatioF());
                }};
    case ToolEraser: // a press erases, however the pointer goes on
        return {&View::EraserMousePressed, nothing, nothing, [](const View &view) {
                    const QPoint middle(view.eraserSize / 2, view.eraserSize / 2);
                    return drawnCursor(u":/icons/eraser.ico"_s, view.eraserSize, middle,
                                       view.devicePixelRatioF());
                }};
    case ToolKeepMarker: // a marker's first dab is laid by the first move
        return {nothing, &View::KeepMarkerMouseMoved, nothing, [](const View &view) {
                    return pencilCursor(u":/icons/greenpencil.PNG"_s, view.devicePixelRatioF());
                }};
    case ToolRemoveMarker:
        return {nothing, &View::RemoveMarkerMouseMoved, nothing, [](const View &view) {
                    return pencilCursor(u":/icons/redpencilv.PNG"_s, view.devicePixelRatioF());
                }};
    case ToolKeepBrush:
        return {&View::KeepBrushMousePressed, &View::KeepBrushMouseMoved, nothing, circle};
    case ToolRemoveBrush:
        return {&View::RemoveBrushMousePressed, &View::RemoveBrushMouseMoved, nothing, circle};
    case ToolHand:
        return {&View::HandMousePressed, &View::HandMouseMoved, &View::HandMouseReleased,
                [](const View &) { return QCursor(Qt::OpenHandCursor); }};
    case ToolBlueMarker:
        return {nothing, &View::BlueMarkerMouseMoved, nothing, circle};
    }
    return noTool; // tools are passed as numbers, and any number can come
}

void ZelGraphicsView::handle(MouseHandler handler, QMouseEvent *event)
{
    if (handler != nullptr)
        (this->*handler)(event);
}

QCursor ZelGraphicsView::cursorOf(DrawingTools tool) const
{
    return rowOf(tool).cursor(*this);
}
