// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace testsupport {

/// Presses a key in a window as the platform does: whatever has the focus gets it.
inline void pressKey(const QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

/// The widgets that Tab, or Shift+Tab, comes by from the one that has the focus until it has it again. The
/// one that has it comes first. Ends early if the focus runs in a smaller ring.
inline QList<QWidget *> focusRound(const QWidget &window, Qt::Key key = Qt::Key_Tab)
{
    QList<QWidget *> round;
    for (QWidget *next = window.focusWidget(); !round.contains(next); next = window.focusWidget()) {
        round << next;
        pressKey(window, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return round;
}

} // namespace testsupport
