// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ZelGraphicsView.h"
#include "tests/support/Activation.h"
#include "tests/support/CanvasMouse.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/ModalAnswers.h"

#include <QAction>
#include <QProgressBar>
#include <QStatusBar>

namespace testsupport {

/// A main window on the screen, with a mouse over its canvas and someone to answer its dialogs.
class WindowUnderTest
{
public:
    WindowUnderTest() : probe(window), view(*window.findChild<ZelGraphicsView *>("graphicsView")), mouse(view)
    {
        QObject::connect(window.statusBar(), &QStatusBar::messageChanged, &answers,
                         [this](const QString &text) { statusTexts << text; });
        window.resize(640, 480);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not come up");
        activate(window); // a bare X server has nobody else to do it, and keys need it
    }

    [[nodiscard]] QAction &action(const char *name) const
    {
        auto *found = window.findChild<QAction *>(name);
        if (found == nullptr)
            qFatal("no action %s", name);
        return *found;
    }
    void trigger(const char *name) const { action(name).trigger(); }
    [[nodiscard]] QString status() const { return window.statusBar()->currentMessage(); }
    [[nodiscard]] QProgressBar &progressBar() const
    {
        return *window.findChild<QProgressBar *>("progressBar");
    }

    /// Opens a picture as the user does.
    void openPicture(const QString &path)
    {
        answers.chooseFile(path);
        trigger("actionOpen");
    }

    /// The point of the viewport that shows the middle of a pixel of the scene.
    [[nodiscard]] QPoint at(int x, int y) const { return view.mapFromScene(QPointF(x + 0.5, y + 0.5)); }

    /// One click of a marker with a little movement: a dab, wherever the tool lays it.
    void dab(const char *tool, int x, int y)
    {
        action(tool).setChecked(true);
        mouse.stroke({at(x, y)});
    }

    MainWindow window;
    MainWindowProbe probe;
    ZelGraphicsView &view;
    CanvasMouse mouse;
    ModalAnswers answers;
    QStringList statusTexts;
};

} // namespace testsupport
