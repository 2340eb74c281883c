// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/ModalDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QObject>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <list>

namespace testsupport {

/// Answers modal dialogs while the code that opened them waits in their event loops. Answers are given in the
/// order in which they were registered, each to the next dialog of its class. A dialog that nobody waits for
/// is dismissed after a while, so that a test fails and does not hang.
class ModalAnswers : public QObject
{
public:
    ModalAnswers() { scheduleLook(); }

    template <typename Dialog> void expect(std::function<void(Dialog &)> answer)
    {
        m_answers.push_back([answer](QWidget *widget) {
            auto *dialog = qobject_cast<Dialog *>(widget);
            return dialog == nullptr ? std::function<void()>() : [answer, dialog] { answer(*dialog); };
        });
    }

    /// Types the name into the next file dialog and confirms it. `look` sees the dialog before.
    void chooseFile(const QString &path, std::function<void(QFileDialog &)> look = {})
    {
        expect<QFileDialog>([path, look](QFileDialog &dialog) {
            if (look)
                look(dialog);
            dialog.setDirectory(QFileInfo(path).absolutePath());
            // Its model reads folders in another thread and may not know the file at once.
            auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
            auto *button = dialog.findChild<QDialogButtonBox *>()->button(confirming(dialog));
            const auto typed = [&] {
                name->clear();
                name->setText(path);
                return button->isEnabled();
            };
            if (QTest::qWaitFor(typed, patience))
                QTest::mouseClick(button, Qt::LeftButton);
        });
    }
    void cancelFile()
    {
        expect<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    }

    [[nodiscard]] bool allGiven() const { return m_answers.empty() && m_dismissed.isEmpty(); }
    [[nodiscard]] QString report() const
    {
        return QString("%1 answers not asked for; dismissed: [%2]")
            .arg(m_answers.size())
            .arg(m_dismissed.join(", "));
    }

    static void press(QDialog &dialog, QDialogButtonBox::StandardButton which)
    {
        auto *box = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(box->button(which), Qt::LeftButton);
    }

private:
    static QDialogButtonBox::StandardButton confirming(const QFileDialog &dialog)
    {
        return dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                              : QDialogButtonBox::Open;
    }

    void scheduleLook()
    {
        QTimer::singleShot(5, this, [this] { look(); });
    }

    void look()
    {
        scheduleLook(); // first of all: an answer may open the next dialog and wait for it
        QWidget *modal = QApplication::activeModalWidget();
        if (modal == nullptr || !modal->isVisible()) {
            m_unanswered.invalidate();
            return;
        }
        if (!takesKeys(*modal))
            return;
        if (!m_answers.empty()) {
            if (const auto answer = m_answers.front()(modal)) {
                m_answers.pop_front();
                m_unanswered.invalidate();
                answer();
                return;
            }
        }
        if (!m_unanswered.isValid()) {
            m_unanswered.start();
        } else if (m_unanswered.elapsed() > patience) {
            m_unanswered.invalidate();
            m_dismissed << modal->metaObject()->className() + QString(" ") + modal->windowTitle();
            modal->close();
        }
    }

    static constexpr int patience = 1500; // ms
    std::list<std::function<std::function<void()>(QWidget *)>> m_answers;
    QStringList m_dismissed;
    QElapsedTimer m_unanswered;
};

} // namespace testsupport
