// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/UndoSnapshot.h"

#include <QDir>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int uncompressed = 100;
constexpr int quicklyPacked = 85;

/// What turns one of the pictures into the other; null when they are of two sizes or memory is short.
QImage difference(const QImage &one, const QImage &other)
{
    QImage result = one.convertToFormat(QImage::Format_ARGB32);
    const QImage second = other.convertToFormat(QImage::Format_ARGB32);
    if (result.isNull() || result.size() != second.size())
        return {};
    for (int y = 0; y < result.height(); ++y) {
        auto *to = reinterpret_cast<QRgb *>(result.scanLine(y));
        const auto *from = reinterpret_cast<const QRgb *>(second.constScanLine(y));
        std::transform(to, to + result.width(), from, to, [](QRgb a, QRgb b) { return a ^ b; });
    }
    return result;
}
constexpr QLatin1StringView nameBeginning("ornevo-undo-");

#ifdef Q_OS_UNIX

/// Whether the file took one of the last descriptors. A new file gets the lowest number that is free.
bool isAmongTheLast(int descriptor)
{
    constexpr rlim_t keptFree =
        32; // for dialogs, pictures, what they are written to, and the desktop's needs
    rlimit limit{};
    return getrlimit(RLIMIT_NOFILE, &limit) == 0 &&
           static_cast<rlim_t>(descriptor) + keptFree >= limit.rlim_cur;
}

/// For as long as it is open, removeAbandonedSnapshots() sees that somebody needs the file.
void markAsInUse(int descriptor)
{
    flock(descriptor, LOCK_EX | LOCK_NB);
}

/// Closes what has been opened to be looked at.
bool isAbandoned(const QByteArray &path)
{
    const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0)
        return false;
    struct stat status
    {
    };
    const bool ours = fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid();
    const bool abandoned = ours && flock(file, LOCK_EX | LOCK_NB) == 0;
    ::close(file);
    return abandoned;
}

#else

bool isAmongTheLast(int /*descriptor*/)
{
    return false;
}
void markAsInUse(int /*descriptor*/) {}
bool isAbandoned(const QByteArray & /*path*/)
{
    return false; // an open file can't lose its name here; the next one to start would have to know more
}

#endif

} // namespace

namespace canvas {

bool UndoSnapshot::openFile()
{
    m_file.setFileTemplate(QDir::tempPath() + u'/' + nameBeginning + u"XXXXXX"_s);
    if (!m_file.open())
        return false;
    if (isAmongTheLast(m_file.handle())) {
        removeFile();
        return false;
    }
    markAsInUse(m_file.handle());
    return true;
}

void UndoSnapshot::removeFile()
{
    m_file.close();
    m_file.remove();
}

void UndoSnapshot::store()
{
    if (m_before.isNull() || m_before.size() != m_after.size() || !openFile())
        return;
    const QImage change = difference(m_before, m_after);
    const bool stored = !change.isNull() && m_before.save(&m_file, "PNG", uncompressed) &&
                        change.save(&m_file, "PNG", quicklyPacked) && m_file.flush() &&
                        m_file.error() == QFileDevice::NoError;
    if (!stored) {
        removeFile(); // a full disk: better to keep the pixels than the file
        return;
    }
    m_before = QImage();
    m_after = QImage();
}

QImage UndoSnapshot::before()
{
    QImage pixels = m_before;
    if (pixels.isNull() && m_file.isOpen() && m_file.seek(0))
        pixels.load(&m_file, "PNG");
    return pixels;
}

QImage UndoSnapshot::after()
{
    if (!m_after.isNull() || !m_file.isOpen())
        return m_after;
    const QImage first = before();
    QImage change; // follows in the file
    change.load(&m_file, "PNG");
    return difference(first, change);
}

// A file that has just been made and is not yet marked may lose its name here. Its program does not notice:
// the file goes on without.
void removeAbandonedSnapshots()
{
    const QDir folder(QDir::tempPath());
    for (const QString &name :
         folder.entryList({nameBeginning + u"??????"_s}, QDir::Files | QDir::Hidden | QDir::System)) {
        const QString path = folder.filePath(name);
        if (isAbandoned(QFile::encodeName(path)))
            QFile::remove(path);
    }
}

} // namespace canvas
