// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>

namespace testsupport {

/// A mouse over a view that is shown. Moves go straight to the viewport: a platform drops one that leads nowhere, which
/// tests need, and moving the pointer of the screen would send events of its own. Positions are in coordinates of the
/// viewport.
class CanvasMouse
{
public:
    explicit CanvasMouse(QGraphicsView &view) : m_view(view) {}

    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held |= button;
        QTest::mousePress(m_view.viewport(), button, {}, position);
    }
    void move(QPoint position)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(position), QPointF(m_view.viewport()->mapToGlobal(position)),
                          Qt::NoButton, m_held, Qt::NoModifier);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(m_view.viewport(), &event);
    }
    void release(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_held &= ~Qt::MouseButtons(button);
        QTest::mouseRelease(m_view.viewport(), button, {}, position);
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
    QGraphicsView &m_view;
    Qt::MouseButtons m_held;
};

} // namespace testsupport
