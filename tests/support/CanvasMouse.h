// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsView>
#include <QTest>
#include <QWindow>

namespace testsupport {

/// A mouse over a view that is shown. Its events enter at the window, as those of the platform do, and find their way
/// through Qt to the viewport; nothing moves the pointer of the screen, which would send events of its own.
/// Positions are in coordinates of the viewport.
class CanvasMouse
{
public:
    explicit CanvasMouse(QGraphicsView &view) : m_view(view) {}

    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(window(), button, {}, inWindow(position));
    }
    void move(QPoint position) { QTest::mouseMove(window(), inWindow(position)); }
    void release(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(window(), button, {}, inWindow(position));
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
    QWindow *window() const { return m_view.window()->windowHandle(); }
    QPoint inWindow(QPoint position) const { return m_view.viewport()->mapTo(m_view.window(), position); }

    QGraphicsView &m_view;
};

} // namespace testsupport
