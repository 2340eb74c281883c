// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/FileChooser.h"
#include "tests/support/ModalWatch.h"

#include <QElapsedTimer>
#include <QMessageBox>

#include <list>

namespace testsupport {

/// Answers modal dialogs while the code that opened them waits in their event loops: each answer goes to the
/// next dialog of its class, in the order in which they were expected. A dialog that nobody expects, or that
/// stays open after its answer, is closed after a while, so that a test fails and does not hang.
class DialogAnswers
{
public:
    static constexpr int usualPatience = 10'000; // ms

    explicit DialogAnswers(int patience = usualPatience)
        : m_patience(patience), m_watch([this](QDialog *dialog) { look(dialog); })
    {
    }

    template <typename Dialog> void expect(std::function<void(Dialog &)> answer)
    {
        expectNamed(Dialog::staticMetaObject.className(),
                    [answer](QDialog &dialog) { answer(static_cast<Dialog &>(dialog)); });
    }
    void expectNamed(const QByteArray &className, std::function<void(QDialog &)> answer)
    {
        m_expected.push_back({className, std::move(answer)});
    }

    /// Types the name into the next file dialog and confirms it. `look` sees the dialog before.
    void chooseFile(const QString &path, std::function<void(QFileDialog &)> look = {})
    {
        expect<QFileDialog>([this, path, look](QFileDialog &dialog) {
            if (look)
                look(dialog);
            if (!typeFileName(dialog, path, m_patience))
                giveUp(dialog, "does not let " + path + " be chosen");
        });
    }
    void cancelFile()
    {
        expect<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    }

    /// How many dialogs were answered.
    [[nodiscard]] int given() const { return m_given; }
    /// Whether all that were expected came, no other one, and each went after its answer.
    [[nodiscard]] bool allGiven() const { return m_expected.empty() && m_faults.isEmpty(); }
    /// The same, once those have had time to come that are opened later.
    [[nodiscard]] bool waitForAll()
    {
        return QTest::qWaitFor([this] { return m_expected.empty() || !m_faults.isEmpty(); }, m_patience) &&
               allGiven();
    }
    /// What keeps allGiven() from being true.
    [[nodiscard]] QString report() const
    {
        QStringList faults = m_faults;
        for (const Expected &expected : m_expected)
            faults << expected.className + " was not shown";
        return faults.join("; ");
    }

private:
    struct Expected
    {
        QByteArray className;
        std::function<void(QDialog &)> answer;
    };

    /// Closes a dialog and reports why.
    void giveUp(QDialog &dialog, const QString &reason)
    {
        m_faults
            << QString("%1 \"%2\" %3").arg(dialog.metaObject()->className(), dialog.windowTitle(), reason);
        if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
            m_faults.last() += ": " + box->text();
        dialog.close();
    }

    void look(QDialog *dialog)
    {
        if (dialog == nullptr || m_inAnswer.contains(dialog)) {
            m_unanswered.invalidate();
        } else if (takesKeys(*dialog) && !m_expected.empty() &&
                   dialog->inherits(m_expected.front().className)) {
            give(*dialog);
        } else if (!m_unanswered.isValid()) {
            m_unanswered.start();
        } else if (m_unanswered.elapsed() > m_patience) {
            m_unanswered.invalidate();
            giveUp(*dialog,
                   m_expected.empty() ? "stays open" : "is in the place of " + m_expected.front().className);
        }
    }

    void give(QDialog &dialog)
    {
        const auto answer = std::move(m_expected.front().answer);
        m_expected.pop_front();
        m_unanswered.invalidate();
        ++m_given;
        m_inAnswer.append(&dialog);
        answer(dialog);
        m_inAnswer.removeLast();
        m_unanswered.invalidate();
    }

    int m_patience;
    std::list<Expected> m_expected;
    QList<const QDialog *>
        m_inAnswer; ///< the innermost last; compared only, since an answer may end a dialog
    QStringList m_faults;
    QElapsedTimer m_unanswered;
    int m_given = 0;
    ModalWatch m_watch;
};

} // namespace testsupport
