// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QtGlobal>

#include <cstdio>

namespace testsupport {

/// For programs that provoke faults by the hundred, each of which Qt reports.
inline void printFatalMessagesOnly()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
}

/// Collects what goes to the warning channel while it lives, instead of printing it.
class MessageLog
{
public:
    MessageLog()
    {
        lines().clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines() << text.trimmed(); });
    }
    ~MessageLog() { qInstallMessageHandler(m_before); }
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    [[nodiscard]] QStringList taken() const { return lines(); }

private:
    static QStringList &lines()
    {
        static QStringList collected;
        return collected;
    }
    QtMessageHandler m_before = nullptr;
};

} // namespace testsupport
