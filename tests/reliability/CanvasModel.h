// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/DrawingTools.h"
#include "canvas/SettingsKeys.h"
#include "tests/support/MainWindowProbe.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

/// What the tools should do with the mouse: predicts for every event what it brings about, from the state
/// that can be seen from outside, and compares.
class CanvasModel : public QObject
{
public:
    explicit CanvasModel(MainWindow &window);

    /// Whom a dab that was laid with an undo entry is reported to.
    std::function<void(QGraphicsItem *dab)> dabPushed;

    /// Sends the event to the canvas. Empty when all that came of it is as it should be.
    QString send(QMouseEvent &event);
    /// From here on a press may have ended without the model's knowledge.
    void forgetPress() { m_pressed = false; }

private:
    struct Expected
    {
        std::optional<QPointF> dab;   ///< where a marker lays one
        std::optional<QRect> square;  ///< which the brush passes on
        std::optional<QPoint> offset; ///< where the Hand tool moves the object
        std::optional<QRectF> erased; ///< what the eraser goes over
    };

    [[nodiscard]] Expected predict(const QMouseEvent &event) const;
    [[nodiscard]] std::optional<QRect> brushSquare(QPoint position, const settings::Key &size) const;
    [[nodiscard]] int sizeOf(const settings::Key &key) const;
    [[nodiscard]] QString compareDab(const std::optional<QPointF> &expected, int entriesBefore);
    [[nodiscard]] QString wrongDab(QGraphicsItem *dab, QPointF position) const;
    [[nodiscard]] QGraphicsItem *newestDab(QPointF position) const;
    void trackPress(const QMouseEvent &event);

    mutable MainWindowProbe m_probe;
    QGraphicsView *m_canvas;
    DrawingTools m_tool = ToolNone;
    bool m_pressed = false;
    QPoint m_handFrom; ///< in view pixels
};
