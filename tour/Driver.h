// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/DialogAnswers.h"
#include "tour/TourError.h"

#include <QDir>
#include <QGraphicsView>
#include <QImage>
#include <QMainWindow>
#include <QString>

#include <functional>

/// Drives the program's window as a user does: clicks, drags and types through real events, and takes
/// numbered pictures of what there is to see.
class Driver
{
public:
    /// `folder` exists and takes the pictures. `patience` is how many milliseconds a dialog may take to come
    /// and to go.
    Driver(QMainWindow &window, const QString &folder,
           int patience = testsupport::DialogAnswers::usualPatience);

    [[nodiscard]] QGraphicsView &canvas() const { return *m_canvas; }
    [[nodiscard]] QString file(const QString &name) const { return m_folder.absoluteFilePath(name); }

    /// Clicks the tool-bar button of an action.
    void clickTool(const QString &action);
    /// Opens a menu and clicks the entry of an action in it.
    void clickMenu(const QString &menu, const QString &action);
    /// Presses a key on the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers);
    /// Drags with the left button from one point of the scene to another, in `moves` steps.
    void drag(QPointF from, QPointF to, int moves);

    /// Runs `cause`, which opens a modal dialog, and has `answer` deal with the dialog of class `className`.
    /// Fails when no such dialog comes, or when it does not go after its answer.
    void withDialog(const char *className, const std::function<void(QWidget &)> &answer,
                    const std::function<void()> &cause);
    /// Types a file's name into a file dialog and accepts it.
    static void chooseFile(QWidget &dialog, const QString &path);
    /// Clicks a child widget of a dialog.
    static void click(QWidget &dialog, const QString &name);
    static void accept(QWidget &dialog);

    /// Takes the next numbered picture, of the window or of another widget.
    void picture(const QString &title) { picture(title, m_window); }
    void picture(const QString &title, QWidget &widget);
    /// What the window looks like now.
    [[nodiscard]] QImage look() const;

private:
    QMainWindow &m_window;
    QGraphicsView *m_canvas;
    QDir m_folder;
    int m_number = 0;
    testsupport::DialogAnswers m_answers;
};
