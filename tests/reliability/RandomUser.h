// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reliability/CanvasModel.h"
#include "tests/reliability/CutOutModel.h"
#include "tests/reliability/RandomAnswers.h"
#include "tests/reliability/ResultInvariants.h"
#include "tests/support/MainWindowProbe.h"

#include <QEvent>
#include <QGraphicsView>
#include <QString>

/// Somebody who does to a window whatever can be done, in no order. The same seed does the same again: time
/// stands still for the window's timers, and whether one of them fires is decided by the random number
/// generator.
class RandomUser
{
public:
    /// Whether the window's timers run by the clock. Then the walk is not the same again, and what brush
    /// batches come to is not predicted.
    enum class Time { Still, Real };

    /// `folder` is the user's own, to fill with pictures.
    RandomUser(MainWindow &window, unsigned seed, const QString &folder, Time time);

    /// Does one thing and returns what it was.
    QString step();
    /// What was wrong with what came of the last step; empty when nothing was.
    [[nodiscard]] QString complaint() const { return m_complaint; }
    /// Opens a picture without leaving it to chance, as far as that can be seen from outside.
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
    QString chooseTool();
    QString openOrWrite();
    QString exportOverZoomedPicture();
    QString turnWheel();
    QString changeLooks();
    QString goThroughHistory();
    QString perform(const char *action);

    void sendMouse(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons);
    QPoint somewhere();
    void stopTime();
    void check(const QString &complaint);

    MainWindow &m_window;
    MainWindowProbe m_probe;
    QGraphicsView *m_canvas;
    testpictures::Random m_random;
    QString m_folder;
    Time m_time;
    RandomAnswers m_answers;
    CanvasModel m_canvasModel;
    CutOutModel m_cutOutModel;
    ResultInvariants m_results;
    QString m_complaint;
    int m_stepsDone = 0;
    bool m_brushDue = false;
    bool m_brushed = false; ///< in this step
    bool m_forgettingDue = false;
};
