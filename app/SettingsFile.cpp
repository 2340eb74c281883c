// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/SettingsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = qint64{16} << 20; // some hundred times what the program writes

bool canBeRead(const QString &path)
{
    const QFileInfo file(path);
    return !file.exists() || (file.isFile() && file.size() <= largestFile);
}

/// The folder of the user's settings files. Only a store can tell, and it reads its file when it is made:
/// this one has a name that nobody else gives.
QString settingsFolder()
{
    const QSettings store(QSettings::NativeFormat, QSettings::UserScope, u"ornevo-looks-for-its-folder"_s,
                          u"none"_s);
    return QFileInfo(QFileInfo(store.fileName()).path()).path();
}

} // namespace

void app::avoidSpecialSettingsFiles()
{
    const QDir folder(settingsFolder());
    const QString organization = QCoreApplication::organizationName();
    const QStringList files{organization + u'/' + QCoreApplication::applicationName() + u".conf"_s,
                            organization + u".conf"_s};
    for (const QString &name : files)
        if (!canBeRead(folder.filePath(name)))
            QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                               QProcess::nullDevice() + u"/none"_s);
}
