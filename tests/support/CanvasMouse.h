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
        send(QEvent::MouseButtonPress, position, button);
    }
    void move(QPoint position) { send(QEvent::MouseMove, position, Qt::NoButton); }
    void release(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, position, button);
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

private:
    void send(QEvent::Type type, QPoint position, Qt::MouseButton button)
    {
        QMouseEvent event(type, QPointF(position), QPointF(m_view.viewport()->mapToGlobal(position)), button,
                          m_held, Qt::NoModifier);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(m_view.viewport(), &event);
    }

    QGraphicsView &m_view;
    Qt::MouseButtons m_held;
};

} // namespace testsupport
