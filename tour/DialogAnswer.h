// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourError.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <exception>
#include <functional>

class QWidget;

/// Answers one modal dialog while the code that opened it waits in the dialog's own event loop. Nothing waits
/// for ever: a dialog that is not the awaited one, or that stays open after its answer, is closed after a
/// while, and finish() says what was there.
class DialogAnswer
{
public:
    static constexpr int usualPatience = 10000; // ms

    DialogAnswer(const char *className, std::function<void(QWidget &)> answer, int patience = usualPatience);

    /// To be called once the dialog has gone. Throws what the answer threw, or a TourError when the dialog
    /// did not come or did not go.
    void finish();

private:
    void look();
    void meet(QWidget &dialog);
    void closeTopmost(const QString &reason);

    enum class State { awaited, inAnswer, answered };

    Awaiting m_awaiting;
    QByteArray m_className;
    std::function<void(QWidget &)> m_answer;
    int m_patience;
    State m_state = State::awaited;
    std::exception_ptr m_failure; // must not fly through the dialog's event loop
    QElapsedTimer m_inState;
    QObject m_life;
};
