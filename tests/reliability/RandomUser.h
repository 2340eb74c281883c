// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reliability/DialogAnswers.h"
#include "tests/support/MainWindowProbe.h"

#include <QEvent>
#include <QGraphicsView>
#include <QString>

/// Somebody who does to a window whatever can be done, in no order. The same seed does the same again: time
/// stands still for the window's timers, and whether one of them fires is decided by the random number generator.
class RandomUser
{
public:
    /// `folder` is the user's own, to fill with pictures.
    RandomUser(MainWindow &window, unsigned seed, const QString &folder);

    /// Does one thing and returns what it was.
    QString step();
    /// Opens a picture without leaving it to chance, as far as that can be told from outside.
    void openForSure(const QString &path);
    [[nodiscard]] int dialogsAnswered() const { return m_answers.answered(); }

private:
    QString act();
    QString useMouse();
    QString triggerAction();
    QString pressKey();
    QString undoOrRedo();
    QString zoomFar();
    QString reshapeWindow();
    QString letTimersFire();
    QString meddleWithSettings();
    QString meddleWithFiles();

    void sendMouse(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons);
    QPoint somewhere();
    void stopTime();

    MainWindow &m_window;
    MainWindowProbe m_probe;
    QGraphicsView *m_canvas;
    testpictures::Random m_random;
    QString m_folder;
    DialogAnswers m_answers;
    bool m_brushDue = false;
    bool m_forgettingDue = false;
};
