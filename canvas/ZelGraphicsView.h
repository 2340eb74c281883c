// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/BrushOutline.h"
#include "canvas/DrawingTools.h"
#include "canvas/ItemPointer.h"

#include <QGraphicsView>
#include <QMutex>
#include <QPoint>

#include <optional>
#include <vector>

class QSettings;
class QUndoStack;

/// The canvas: shows a scene and turns mouse input into actions of the tool in use.
///
/// Marker dabs it lays into the scene itself; for brushes and the hand tool it only computes the geometry and
/// emits signals. It owns the dabs that the eraser took off a scene; the scene's items it only borrows.
///
/// ZelGraphicsView.cpp hands the mouse events to the tool in use. What each tool does with them, and its
/// cursor, is a row of the table in ZelGraphicsViewTools.cpp; the pen, the eraser and the markers are in
/// ZelGraphicsViewMarkers.cpp, the brushes and the hand in ZelGraphicsViewBrushes.cpp.
class ZelGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit ZelGraphicsView(QWidget *parent = nullptr);
    ~ZelGraphicsView() override;

    /// Selects a tool and its cursor; takes the brush circle off the scene.
    void SetTool(DrawingTools tool);

    /// Gives the brush circle, if it is shown, another diameter, in view pixels, about its centre.
    void updateellipse(int size);

    /// Reads the tool sizes and the marker opacity anew from `settings`; the cursor follows.
    void updatetoolssettings();

    /// Deletes the dabs that the eraser took off a scene. An undo command that still names one finds it gone.
    void discardErasedDabs();

    QSettings *settings = nullptr;   ///< where the sizes are read from; not owned, may be null
    QUndoStack *undoStack = nullptr; ///< takes the commands of the markers; not owned, may be null

signals:
    /// What the pen is doing, for whoever looks for a fault. `msg` lives only as long as the emission.
    void ProgressStage(char *msg);
    // Never emitted: AnyBrush() took their place. Part of the fixed interface of the class, like the private
    // members below that nothing uses.
    void KeepBrush(QRect rect);
    void RemoveBrush(QRect rect);
    /// A dab of the brush in use: `rect` is the square around it, in pixels of the scene. `now` on a press,
    /// which is not to wait for more dabs.
    void AnyBrush(QRect rect, bool now);
    /// The hand moved from the first point to the second, in pixels of the scene.
    void HandTool(QPoint, QPoint);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void PenMousePressed(QMouseEvent *event);
    void PenMouseMoved(QMouseEvent *event);
    void PenMouseReleased(QMouseEvent *event);
    void EraserMousePressed(QMouseEvent *event);
    void KeepMarkerPressEvent(QMouseEvent *event);
    void KeepMarkerMouseMoved(QMouseEvent *event);
    void KeepMarkerMouseReleased(QMouseEvent *event);
    void RemoveMarkerPressEvent(QMouseEvent *event);
    void RemoveMarkerMouseMoved(QMouseEvent *event);
    void RemoveMarkerMouseReleased(QMouseEvent *event);
    void BlueMarkerMouseMoved(QMouseEvent *event);
    void KeepBrushMousePressed(QMouseEvent *event);
    void KeepBrushMouseMoved(QMouseEvent *event);
    void KeepBrushMouseReleased(QMouseEvent *event);
    void RemoveBrushMousePressed(QMouseEvent *event);
    void RemoveBrushMouseMoved(QMouseEvent *event);
    void RemoveBrushMouseReleased(QMouseEvent *event);
    void HandMousePressed(QMouseEvent *event);
    void HandMouseMoved(QMouseEvent *event);
    void HandMouseReleased(QMouseEvent *event);

    using MouseHandler = void (ZelGraphicsView::*)(QMouseEvent *);
    /// What a tool does with the mouse, null for nothing, and how the pointer looks before a press.
    struct Tool
    {
        MouseHandler press;
        MouseHandler move;
        MouseHandler release;
        QCursor (*cursor)(const ZelGraphicsView &view);
    };
    [[nodiscard]] static Tool rowOf(DrawingTools tool);
    void handle(MouseHandler handler, QMouseEvent *event);
    bool pressTool(QMouseEvent *event);
    [[nodiscard]] QCursor cursorOf(DrawingTools tool) const;

    void readSizes();
    void endStroke();
    [[nodiscard]] qreal pixelInScene() const;
    [[nodiscard]] QRect squareAround(QPoint viewPosition, int half) const;
    [[nodiscard]] bool acceptsDabAt(QPointF scenePosition) const;
    void layDab(QGraphicsItem *dab);
    void pressBrush(QMouseEvent *event, int size);
    void moveBrush(QMouseEvent *event, int size);
    void showBrushOutline(const QRect &square, QPoint position);
    void removeBrushOutline();
    void markPointer(std::optional<QPoint> position);

    DrawingTools currentTool = ToolNone;
    canvas::ItemPointer<QGraphicsPathItem> penPathItem;     ///< the line being drawn
    canvas::ItemPointer<canvas::BrushOutline> brushOutline; ///< the brush circle
    QMutex toolMutex;                                       // unused
    QPoint lastMousePos;                                    ///< in view pixels
    unsigned char keepMarkerSize = 0;                       // units: SettingsKeys.h
    unsigned char removeMarkerSize = 0;
    unsigned char keepBrushSize = 0;
    unsigned char removeBrushSize = 0;
    unsigned char eraserSize = 0;
    unsigned char blueMarkerSize = 0;
    double markerOpacity = 0.0; ///< ten times that of the Blue marker's dabs
    bool mousePressed = false;
    QPointF m_penStart;                    ///< in scene pixels
    std::optional<QPoint> m_markedPointer; ///< in view pixels; where there is neither circle nor cursor
    std::vector<canvas::ItemPointer<QGraphicsItem>> m_erasedDabs;
};
