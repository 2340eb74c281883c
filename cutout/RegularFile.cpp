// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/RegularFile.h"

#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace cutout {

#ifdef Q_OS_UNIX

bool openRegularFile(QFile &file, const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    {
    };
    // Opening alone does something to some devices, so that they are not even opened.
    if (name.isEmpty() || stat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const int handle = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0)
        return false;
    if (fstat(handle, &status) != 0 || !S_ISREG(status.st_mode) ||
        !file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(handle);
        return false;
    }
    return true;
}

#else

bool openRegularFile(QFile &file, const QString &path)
{
    file.setFileName(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
}

#endif

} // namespace cutout
