// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>

namespace testsupport {

/// A mouse over a view that is shown. Its events go straight to the viewport: a platform drops a move that
/// leads nowhere, which tests need, and moving the pointer of the screen would send events of its own.
/// Positions are in coordinates of the viewport.
class CanvasMouse
{
public:
    explicit CanvasMouse(QGraphicsView &view) : m_view(view) {}

    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held |= button;
        send(QEvent::MouseButtonPress, position, button, m_held);
    }
    void move(QPoint position) { move(position, m_held); }
    /// With these buttons held, whatever was pressed before: a release may have gone to another window.
    void move(QPoint position, Qt::MouseButtons held)
    {
        send(QEvent::MouseMove, position, Qt::NoButton, held);
    }
    void release(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, position, button, m_held);
    }
    void click(QPoint position)
    {
        press(position);
        release(position);
    }
    /// Press at the first position, one move to each, release at the last.
    void stroke(const QList<QPoint> &positions)
    {
        press(positions.first());
        for (const QPoint &position : positions)
            move(position);
        release(positions.last());
    }
    /// The same over points of the scene.
    void draw(const QList<QPointF> &points)
    {
        QList<QPoint> positions;
        for (const QPointF &point : points)
            positions << m_view.mapFromScene(point);
        stroke(positions);
    }

private:
    void send(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, QPointF(position), QPointF(m_view.viewport()->mapToGlobal(position)), button,
                          held, Qt::NoModifier);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(m_view.viewport(), &event);
    }

    QGraphicsView &m_view;
    Qt::MouseButtons m_held;
};

} // namespace testsupport
