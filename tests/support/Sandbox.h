// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace testsupport {

/// Where a test program lives: its settings and temporary files go to a folder that is removed at the end,
/// and never to the user's own. To be made before the application object is. The program is called what the
/// real one is called.
class Sandbox
{
public:
    Sandbox()
    {
        QCoreApplication::setApplicationName("Ornevo Pro 2.7 for Mac OS X");
        QCoreApplication::setOrganizationName("Tirelo software");
        const QDir folder(m_folder.path());
        if (!m_folder.isValid() || !folder.mkpath("config") || !folder.mkpath("tmp"))
            qFatal("no folder for settings and temporary files");
        qputenv("TMPDIR", file("tmp").toLocal8Bit());
        for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
            QSettings::setPath(format, QSettings::UserScope, file("config"));
    }

    /// A name for a file in it.
    [[nodiscard]] QString file(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace testsupport
