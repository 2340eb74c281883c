// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/DialogAnswer.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace {

constexpr int pollTime = 50; // ms

} // namespace

DialogAnswer::DialogAnswer(const char *className, std::function<void(QWidget &)> answer, int patience)
    : m_awaiting(QString("the dialog %1").arg(className)),
      m_className(className),
      m_answer(std::move(answer)),
      m_patience(patience)
{
    m_inState.start();
    QTimer::singleShot(pollTime, &m_life, [this] { look(); });
}

void DialogAnswer::look()
{
    // Not a repeating timer: it would be silent while an answer waits for the next dialog.
    QTimer::singleShot(pollTime, &m_life, [this] { look(); });
    if (m_state == State::inAnswer)
        return;
    QWidget *dialog = QApplication::activeModalWidget();
    if (m_state == State::awaited && dialog != nullptr && dialog->inherits(m_className.constData()))
        meet(*dialog);
    else if (m_inState.elapsed() > m_patience)
        closeTopmost(m_state == State::awaited ? QString("%1 was not shown").arg(m_className)
                                               : QString("%1 stays open after its answer").arg(m_className));
}

void DialogAnswer::meet(QWidget &dialog)
{
    m_state = State::inAnswer;
    try {
        m_answer(dialog);
    } catch (...) {
        m_failure = std::current_exception();
        dialog.close();
    }
    m_state = State::answered;
    m_inState.restart();
}

void DialogAnswer::closeTopmost(const QString &reason)
{
    if (!m_failure)
        m_failure = std::make_exception_ptr(TourError(reason + "; " + topmostDialog()));
    if (QWidget *dialog = QApplication::activeModalWidget())
        dialog->close();
    m_inState.restart();
}

void DialogAnswer::finish()
{
    while (m_state == State::awaited && !m_failure)
        QTest::qWait(pollTime);
    m_state = State::inAnswer; // nothing more to look at
    if (m_failure)
        std::rethrow_exception(m_failure);
}
