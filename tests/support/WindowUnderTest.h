// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/DialogParts.h"
#include "tests/support/MainWindowDriver.h"

namespace testsupport {

/// A main window on the screen, with a mouse over its canvas and someone to answer its dialogs.
class WindowUnderTest : public MainWindowDriver
{
public:
    WindowUnderTest()
    {
        QObject::connect(window.statusBar(), &QStatusBar::messageChanged, &m_life,
                         [this](const QString &text) { statusTexts << text; });
        window.resize(640, 480);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not come up");
        activate(window); // a bare X server has nobody else to do it, and keys need it
    }

    /// Opens a picture as the user does.
    void openPicture(const QString &path)
    {
        answers.chooseFile(path);
        trigger("actionOpen");
    }

    DialogAnswers answers;
    QStringList statusTexts;

private:
    QObject m_life; ///< ends before the others, so that a window on its way out reports to nobody
};

} // namespace testsupport
