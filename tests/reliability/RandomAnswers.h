// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/TestPictures.h"
#include "tests/support/ModalWatch.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QStringList>

/// Answers every modal dialog that opens: once at random, and if the dialog will not go, by closing it. The
/// random numbers are drawn once a dialog, whatever the timing, so that a seed gives the same answers again.
class RandomAnswers
{
public:
    explicit RandomAnswers(testpictures::Random &random);

    /// Names to choose from when a file is asked for.
    void setFiles(const QStringList &toOpen, const QStringList &toSave);
    [[nodiscard]] int answered() const { return m_answered; }

    /// What an export dialog held when it was closed.
    struct Export
    {
        QString path;
        QSize size;
    };
    [[nodiscard]] int exports() const { return m_exports; }
    [[nodiscard]] const Export &lastExport() const { return m_lastExport; }

private:
    void look(QDialog *dialog);
    void answer(QDialog &dialog);
    void turnKnobs(QDialog &dialog);
    void pressKeys(QDialog &dialog);
    void noteExport(QDialog &dialog);

    testpictures::Random &m_random;
    QStringList m_toOpen;
    QStringList m_toSave;
    QList<QPointer<QDialog>> m_seen;
    int m_answered = 0;
    Export m_lastExport;
    int m_exports = 0;
    testsupport::ModalWatch m_watch;
};
