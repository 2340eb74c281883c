// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FileReplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace cutout {

#ifdef Q_OS_UNIX

namespace {

/// An open file; closes it at the latest when it goes.
class Handle
{
public:
    explicit Handle(int number) : m_number(number) {}
    ~Handle()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    /// Some file systems report only now that they could not store what was written.
    bool close() { return ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

/// From the file's beginning.
bool writeAll(int file, const QByteArray &contents)
{
    qsizetype done = 0;
    while (done < contents.size()) {
        const ssize_t written =
            pwrite(file, contents.constData() + done, static_cast<std::size_t>(contents.size() - done), done);
        if (written < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(written, 0);
    }
    return true;
}

/// Where a chain of links ends, whether or not there is something; empty when it goes round in circles.
QString endOfLinks(QString path)
{
    constexpr int mostLinks = 40; // what the system follows
    for (int i = 0; i < mostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return QFileInfo(path).isSymLink() ? QString() : path;
}

enum class Outcome { Done, Failed, NotAllowed };

bool isLackOfRights(int error)
{
    // EBUSY: the file is the end of a mount and can't be exchanged.
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

void takeOver(int file, const struct stat &older)
{
    mode_t mode = older.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    // The group may be ours to give when the owner isn't.
    const bool groupKept = fchown(file, older.st_uid, older.st_gid) == 0 ||
                           fchown(file, static_cast<uid_t>(-1), older.st_gid) == 0;
    if (!groupKept) // whichever group it is now may do what everybody may
        mode = (mode & ~mode_t{S_IRWXG}) | (mode & S_IRWXG & ((mode & S_IRWXO) << 3));
    fchmod(file, mode);
}

/// A name that nobody has yet; short, as the file's own may be as long as there may be.
QByteArray nameBeside(const QByteArray &path)
{
    const QByteArray folder = path.left(path.lastIndexOf('/') + 1);
    return folder + ".ornevo-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36) + ".tmp";
}

/// `older` is null when there is no file yet.
Outcome exchange(const QByteArray &path, const QByteArray &contents, const struct stat *older)
{
    const QByteArray temporary = nameBeside(path);
    Handle file(::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen())
        return isLackOfRights(errno) ? Outcome::NotAllowed : Outcome::Failed;
    if (older != nullptr)
        takeOver(file.number(), *older);
    const bool stored = writeAll(file.number(), contents) && fsync(file.number()) == 0 && file.close();
    if (stored && std::rename(temporary.constData(), path.constData()) == 0)
        return Outcome::Done;
    const int error = errno;
    ::unlink(temporary.constData());
    return stored && isLackOfRights(error) ? Outcome::NotAllowed : Outcome::Failed;
}

bool storeInPlace(int file, const QByteArray &contents)
{
    return writeAll(file, contents) && ftruncate(file, contents.size()) == 0 && fsync(file) == 0;
}

bool overwrite(const QByteArray &path, const QByteArray &contents)
{
    Handle file(::open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status
    {
    };
    if (!file.isOpen() || fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    QByteArray older(status.st_size, Qt::Uninitialized);
    if (pread(file.number(), older.data(), static_cast<std::size_t>(older.size()), 0) != older.size())
        return false;
    // Reserving touches no contents, so that a disk that is too full is found in time.
    if (contents.size() > older.size() && posix_fallocate(file.number(), 0, contents.size()) != 0) {
        if (ftruncate(file.number(), older.size()) != 0)
            qWarning("a file could not be given back its length");
        return false;
    }
    if (storeInPlace(file.number(), contents) && file.close())
        return true;
    if (file.isOpen() && !storeInPlace(file.number(), older))
        qWarning("a file could not be given back its contents");
    return false;
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &contents)
{
    if (path.isEmpty() || path.endsWith(u'/'))
        return false;
    const QByteArray name = QFile::encodeName(endOfLinks(path));
    if (name.isEmpty())
        return false;
    struct stat older
    {
    };
    const bool exists = ::stat(name.constData(), &older) == 0;
    if (exists && (!S_ISREG(older.st_mode) || ::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0))
        return false;
    const Outcome outcome = exchange(name, contents, exists ? &older : nullptr);
    if (outcome == Outcome::NotAllowed && exists)
        return overwrite(name, contents);
    return outcome == Outcome::Done;
}

#else

bool replaceFile(const QString &path, const QByteArray &contents)
{
    QSaveFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(contents) != contents.size() || !file.flush()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

#endif

} // namespace cutout
