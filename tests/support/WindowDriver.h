// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/CanvasMouse.h"
#include "tests/support/DialogAnswers.h"

#include <QAction>
#include <QMainWindow>
#include <QStatusBar>

/// \file
/// What a user does with a main window and reads off it.

namespace testsupport {

inline QAction *action(const QMainWindow &window, const QString &name)
{
    auto *found = window.findChild<QAction *>(name);
    if (found == nullptr)
        qFatal("no action %s", qPrintable(name));
    return found;
}

inline QGraphicsView *canvas(const QMainWindow &window)
{
    return window.findChild<QGraphicsView *>("graphicsView");
}

inline QString status(const QMainWindow &window)
{
    return window.findChild<QStatusBar *>("statusBar")->currentMessage();
}

/// Lets the layouts and whatever else is due come to rest: a hidden progress bar leaves its place to the
/// canvas.
inline void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Shows the window and makes it the active one, without which its shortcuts sleep.
inline void show(QMainWindow &window, QSize size = {640, 560})
{
    window.resize(size);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("the window does not come up");
    activate(window);
    canvas(window)->setFocus();
    settle();
}

/// Opens a picture through the menu's action and the file dialog.
inline void openPhoto(QMainWindow &window, const QString &path)
{
    DialogAnswers answers;
    answers.chooseFile(path);
    action(window, "actionOpen")->trigger();
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    settle();
}

/// Presses a key with the canvas in front.
inline void key(QMainWindow &window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
{
    activate(window);
    canvas(window)->setFocus();
    QTest::keyClick(canvas(window), key, modifiers);
}

/// Presses the keys of a standard action, which differ between platforms.
inline void key(QMainWindow &window, QKeySequence::StandardKey standard)
{
    const QKeyCombination keys = QKeySequence(standard)[0];
    key(window, keys.key(), keys.keyboardModifiers());
}

inline void pressEscape(QWidget &dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

} // namespace testsupport
