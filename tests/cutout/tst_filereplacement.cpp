// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FileReplacement.h"
#include "cutout/RegularFile.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using testsupport::contentsOf;

namespace {

constexpr uid_t nobody = 65534;

struct stat statusOf(const QString &path)
{
    struct stat status
    {
    };
    stat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// For its life the program has no more rights than a guest, if it had them.
class Guest
{
public:
    Guest() : m_before(geteuid())
    {
        if (m_before == 0 && seteuid(nobody) != 0)
            qFatal("can't do without root's rights");
    }
    ~Guest()
    {
        if (m_before == 0 && seteuid(0) != 0)
            qFatal("can't get root's rights back");
    }
    Guest(const Guest &) = delete;
    Guest &operator=(const Guest &) = delete;

private:
    uid_t m_before;
};

} // namespace

class TestFileReplacement : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        setMode(m_folder->path(), 0777);
        // The test's own folders let nobody pass otherwise.
        for (QString folder = m_folder->path(); geteuid() == 0 && folder.startsWith("/tmp/");
             folder = QFileInfo(folder).path())
            setMode(folder, statusOf(folder).st_mode | S_IXGRP | S_IXOTH);
    }
    void cleanup() { setMode(m_folder->path(), 0777); }

    void newFile()
    {
        const mode_t mask = umask(027);
        QVERIFY(cutout::replaceFile(path("new"), "new"));
        umask(mask);
        QCOMPARE(contentsOf(path("new")), "new");
        QCOMPARE(mode(path("new")), mode_t{0640});
        QCOMPARE(names(), QStringList("new"));
    }

    void replacesInOneStep()
    {
        put("old");
        const int reader = ::open(QFile::encodeName(path("file")).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(cutout::replaceFile(path("file"), "new contents"));
        char seen[8] = {};
        QCOMPARE(::read(reader, seen, sizeof seen), ssize_t{3}); // who has it open still reads the old file
        ::close(reader);
        QCOMPARE(contentsOf(path("file")), "new contents");
        QCOMPARE(names(), QStringList("file"));
    }

    void keepsPermissions_data()
    {
        QTest::addColumn<int>("permissions");
        for (const int permissions : {0600, 0640, 0664, 0755})
            QTest::addRow("%o", static_cast<unsigned>(permissions)) << permissions;
    }

    void keepsPermissions()
    {
        QFETCH(int, permissions);
        put("old");
        setMode(path("file"), static_cast<mode_t>(permissions));
        QVERIFY(cutout::replaceFile(path("file"), "new"));
        QCOMPARE(mode(path("file")), static_cast<mode_t>(permissions));
    }

    void keepsOwnerAndGroup()
    {
        if (geteuid() != 0)
            QSKIP("only root may give files away");
        put("old");
        QCOMPARE(chown(QFile::encodeName(path("file")).constData(), 1234, 4321), 0);
        QVERIFY(cutout::replaceFile(path("file"), "new"));
        QCOMPARE(statusOf(path("file")).st_uid, uid_t{1234});
        QCOMPARE(statusOf(path("file")).st_gid, gid_t{4321});
    }

    /// The group that the new file has by chance gets nothing that the old one's group had.
    void foreignGroupGetsNothing()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a file of another group");
        put("old");
        QCOMPARE(chown(QFile::encodeName(path("file")).constData(), nobody, 4321), 0);
        setMode(path("file"), 0664);
        {
            const Guest guest;
            QVERIFY(cutout::replaceFile(path("file"), "new"));
        }
        QCOMPARE(contentsOf(path("file")), "new");
        QVERIFY(statusOf(path("file")).st_gid != 4321);
        QCOMPARE(mode(path("file")), mode_t{0644});
    }

    /// The folder takes no new file, but the file may be written.
    void lockedFolder()
    {
        put("a rather long older file");
        setMode(path("file"), 0666);
        setMode(m_folder->path(), 0555);
        const ino_t before = statusOf(path("file")).st_ino;
        {
            const Guest guest;
            QVERIFY(cutout::replaceFile(path("file"), "new"));
            QVERIFY(!cutout::replaceFile(path("other"), "new")); // and a plain write would not make it either
        }
        QCOMPARE(contentsOf(path("file")), "new");
        QCOMPARE(statusOf(path("file")).st_ino, before);
        QCOMPARE(names(), QStringList("file"));
    }

    void lockedFolderAndFullDisk()
    {
        put("older");
        setMode(path("file"), 0666);
        setMode(m_folder->path(), 0555);
        {
            const Guest guest;
            const testsupport::FullDisk disk(1000);
            QVERIFY(!cutout::replaceFile(path("file"), QByteArray(5000, 'n')));
        }
        QCOMPARE(contentsOf(path("file")), "older");
    }

    /// In a folder like /tmp only the owner may exchange a file.
    void stickyFolder()
    {
        if (geteuid() != 0)
            QSKIP("only root can make a file of another owner");
        put("older");
        setMode(path("file"), 0666);
        setMode(m_folder->path(), 01777);
        {
            const Guest guest;
            QVERIFY(cutout::replaceFile(path("file"), "new"));
        }
        QCOMPARE(contentsOf(path("file")), "new");
        QCOMPARE(statusOf(path("file")).st_uid, uid_t{0});
        QCOMPARE(names(), QStringList("file"));
    }

    void fileThatMayNotBeWritten()
    {
        put("older");
        setMode(path("file"), 0444);
        {
            const Guest guest;
            QVERIFY(!cutout::replaceFile(path("file"), "new"));
        }
        QCOMPARE(contentsOf(path("file")), "older");
    }

    void longNames_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<bool>("fits");
        for (const int bytes : {248, 249, 254, 255, 256})
            QTest::addRow("%d bytes", bytes) << bytes << (bytes <= 255);
    }

    void longNames()
    {
        QFETCH(int, bytes);
        QFETCH(bool, fits);
        const QString name = path(QString(bytes - 4, 'n') + ".jpg");
        QCOMPARE(cutout::replaceFile(name, "new"), fits);
        QCOMPARE(cutout::replaceFile(name, "newer"), fits);
        QCOMPARE(contentsOf(name), fits ? QByteArray("newer") : QByteArray());
        QCOMPARE(names().size(), fits ? 1 : 0);
    }

    void linksStayLinks()
    {
        put("older");
        QVERIFY(QFile::link("file", path("link")));
        QVERIFY(QFile::link("link", path("link to link")));
        QVERIFY(QFile::link("missing", path("dangling")));
        QVERIFY(QFile::link("circle", path("circle")));
        QVERIFY(cutout::replaceFile(path("link to link"), "new"));
        QCOMPARE(contentsOf(path("file")), "new");
        QVERIFY(QFileInfo(path("link to link")).isSymLink() && QFileInfo(path("link")).isSymLink());
        QVERIFY(cutout::replaceFile(path("dangling"), "made"));
        QCOMPARE(contentsOf(path("missing")), "made");
        QVERIFY(!cutout::replaceFile(path("circle"), "no"));
        QCOMPARE(names(), QStringList({"circle", "dangling", "file", "link", "link to link", "missing"}));
    }

    void otherNamesKeepTheOlderContents()
    {
        put("older");
        QCOMPARE(
            ::link(QFile::encodeName(path("file")).constData(), QFile::encodeName(path("twin")).constData()),
            0);
        QVERIFY(cutout::replaceFile(path("file"), "new"));
        QCOMPARE(contentsOf(path("file")), "new");
        QCOMPARE(contentsOf(path("twin")), "older");
    }

    void whatIsNoFile()
    {
        QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0666), 0);
        for (const QString &place : {path("pipe"), m_folder->path(), m_folder->path() + '/',
                                     QString("/dev/null"), path("missing/file"), QString()})
            QVERIFY2(!cutout::replaceFile(place, "new"), qPrintable(place));
        QCOMPARE(names(), QStringList("pipe"));
        for (const QString &place : {path("pipe"), m_folder->path(), QString("/dev/zero"), QString()}) {
            QFile file;
            QVERIFY2(!cutout::openRegularFile(file, place), qPrintable(place)); // at once
        }
    }

    void fileThatCanNotBeOpened()
    {
        put("contents");
        QFile file;
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0); // for a new one
        const bool opened = cutout::openRegularFile(file, path("file"));
        setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY(!opened);
        QVERIFY(!file.isOpen());
        QVERIFY(cutout::openRegularFile(file, path("file")));
        QCOMPARE(file.readAll(), "contents");
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void put(const QByteArray &contents) const { testsupport::put(path("file"), contents); }
    static void setMode(const QString &path, mode_t mode)
    {
        QCOMPARE(chmod(QFile::encodeName(path).constData(), mode & 07777), 0);
    }
    static mode_t mode(const QString &path) { return statusOf(path).st_mode & 07777; }

    std::unique_ptr<QTemporaryDir> m_folder;
};

ORNEVO_TEST_MAIN(TestFileReplacement)
#include "tst_filereplacement.moc"
