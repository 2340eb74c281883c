// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FileReplacement.h"
#include "tests/reference/TestPictures.h"
#include "tests/reliability/FailingCalls.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/reliability/WindowUser.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using testsupport::contentsOf;

namespace {

/// A small disk of its own at a folder, where the system lets us have one.
class SmallDisk
{
public:
    SmallDisk(const QString &folder, const char *size) : m_folder(QFile::encodeName(folder))
    {
        m_mounted = mount("none", m_folder.constData(), "tmpfs", 0, size) == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    [[nodiscard]] bool isThere() const { return m_mounted; }

private:
    [[maybe_unused]] testsupport::UncountedLeaks m_uncounted;
    QByteArray m_folder;
    bool m_mounted;
};

} // namespace

/// The system refuses something while a file is written, or ends the program there. The file that was there
/// before is there, or the new one; both whole.
class TestFailingCalls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { testsupport::printFatalMessagesOnly(); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_photo = m_folder->filePath("photo.png");
        testsupport::put(m_photo, picturefiles::encoded(testpictures::randomImage(160, 120, 1), "png"));
        m_user = std::make_unique<WindowUser>();
        m_user->open(m_photo);
        m_user->layDabs();
        m_user->preview(true);
        QCOMPARE(m_user->status(), "Ready");
    }

    void cleanup()
    {
        failCall(nullptr, 0, 0);
        m_user.reset();
        m_folder.reset();
    }

    void writing_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("save");
        for (const bool save : {true, false})
            for (const auto &[call, error] :
                 {std::pair("open", EIO), std::pair("open", EACCES), std::pair("open", EMFILE),
                  std::pair("write", ENOSPC), std::pair("write", EIO), std::pair("fsync", EIO),
                  std::pair("fsync", ENOSPC), std::pair("close", EIO), std::pair("rename", EIO),
                  std::pair("rename", EACCES), std::pair("mmap", ENOMEM), std::pair("ftruncate", EIO)})
                QTest::addRow("%s: %s %d", save ? "save" : "export", call, error)
                    << QByteArray(call) << error << save;
    }

    /// Each time that the call is made may be the one from which on it fails.
    void writing()
    {
        QFETCH(QByteArray, call);
        QFETCH(int, error);
        QFETCH(bool, save);
        const QString target = m_folder->filePath(save ? "out.jpg" : "out.png");
        const std::function<void()> write = [&] {
            if (save)
                m_user->window.save(target);
            else
                m_user->exportTo(target, 100);
        };
        write();
        const QByteArray whole = contentsOf(target);
        QVERIFY(whole.size() > 5000);
        const QByteArray older = "an older file";
        bool failed = true;
        for (int after = 0; failed; ++after) {
            QVERIFY(after < 5000);
            testsupport::put(target, older);
            failCall(call.constData(), error, after);
            write();
            failed = failedCalls() > 0;
            failCall(nullptr, 0, 0);
            // These two are not always needed.
            QVERIFY2(failed || after > 0 || call == "mmap" || call == "ftruncate",
                     "nothing was made to fail");
            const QByteArray now = contentsOf(target);
            QVERIFY2(now == whole || now == older, qPrintable(QString::number(now.size())));
            QVERIFY(failed || now == whole);
            QVERIFY2(now == older || call != "fsync" || !failed, "replaced though it was not stored");
            QCOMPARE(names(), QStringList({QFileInfo(target).fileName(), "photo.png"}));
            if (after > 40) // the later ones are Qt's own, in the dialog
                break;
        }
    }

    /// In a folder that takes no new file the older one is overwritten; what fails there is undone.
    void overwriting_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char *call : {"fsync", "close", "ftruncate", "posix_fallocate", "pread"})
            QTest::newRow(call) << QByteArray(call);
    }

    void overwriting()
    {
        QFETCH(QByteArray, call);
        const QString target = m_folder->filePath("file");
        const QByteArray older(3000, 'o');
        testsupport::put(target, older);
        // Renaming is what the folder forbids here, so that root can be stopped as well.
        const QString bound = m_folder->filePath("bound");
        testsupport::put(bound, {});
        const QByteArray from = QFile::encodeName(target);
        const QByteArray to = QFile::encodeName(bound);
        if (mount(from.constData(), to.constData(), nullptr, MS_BIND, nullptr) != 0)
            QSKIP("only root can mount; tst_filereplacement has a locked folder for others");
        // The first of some calls is for the file beside, which can't take the place of a mount.
        const bool ofBoth = call == "fsync" || call == "close";
        failCall(call.constData(), EIO, ofBoth ? 1 : 0);
        const bool written = cutout::replaceFile(bound, QByteArray(9000, 'n'));
        const int failures = failedCalls();
        failCall(nullptr, 0, 0);
        umount2(to.constData(), MNT_DETACH);
        QVERIFY(!written);
        QVERIFY(failures > 0);
        // Where only the closing fails the contents can't be put back any more, and are all there.
        const QByteArray now = contentsOf(target);
        if (call == "close")
            QVERIFY(now == QByteArray(9000, 'n'));
        else if (call == "ftruncate")
            QVERIFY(now.startsWith(older)); // nor can it get its length back
        else
            QCOMPARE(now, older);
    }

    void snapshots_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char *call : {"open", "write", "ftruncate", "close", "mmap"})
            QTest::newRow(call) << QByteArray(call);
    }

    /// Undo works whatever happens to its files.
    void snapshots()
    {
        QFETCH(QByteArray, call);
        QList<QImage> states{m_user->probe.previewImage().copy()};
        QUndoStack &stack = m_user->probe.undoStack();
        stack.clear();
        for (int i = 0; i < 6; ++i) {
            failCall(i % 2 == 0 ? call.constData() : nullptr, EIO, i / 2);
            m_user->brush(QRect(20 * i, 10, 40, 60));
            states.append(m_user->probe.previewImage().copy());
        }
        QCOMPARE(stack.count(), 6);
        QVERIFY(states.first() != states.last());
        for (int i = 0; i < 60; ++i) {
            failCall(i % 3 == 0 ? call.constData() : nullptr, EIO, i % 5);
            stack.setIndex((i * 5) % 7);
            failCall(nullptr, 0, 0);
            QVERIFY2(m_user->probe.previewImage() == states.at(stack.index()),
                     qPrintable(QString::number(i)));
        }
    }

    /// A settings file that can't be written costs the settings and nothing else.
    void settings()
    {
        QSettings &store = m_user->probe.settings();
        store.setValue("KEEPMSIZE", 17);
        store.sync();
        const QByteArray before = contentsOf(store.fileName());
        QVERIFY(before.contains("KEEPMSIZE=17"));
        for (const char *call : {"open", "write", "rename"}) {
            failCall(call, EIO, 0);
            store.setValue("KEEPMSIZE", 18);
            store.sync();
            failCall(nullptr, 0, 0);
            const QByteArray now = contentsOf(store.fileName());
            QVERIFY2(now == before || now.contains("KEEPMSIZE=18"), call);
            store.setValue("KEEPMSIZE", 17);
            store.sync();
        }
    }

    void fewDescriptors()
    {
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit few{64, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
        for (int i = 0; i < 100; ++i)
            m_user->brush(QRect(i, 10, 20, 20));
        m_user->exportTo(m_folder->filePath("out.png"), 100);
        m_user->saveAs(m_folder->filePath("out.jpg"));
        const QString status = m_user->status();
        m_user->open(m_photo);
        const QString opened = m_user->status();
        setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY(!QImage(m_folder->filePath("out.png")).isNull());
        QVERIFY(!QImage(m_folder->filePath("out.jpg")).isNull());
        QCOMPARE(status, "Ready");
        QCOMPARE(opened, "Ready");
    }

    /// A disk that is really full.
    void smallDisk()
    {
        const QString folder = m_folder->filePath("disk");
        QDir().mkpath(folder);
        const SmallDisk disk(folder, "size=100k");
        if (!disk.isThere())
            QSKIP("only root can mount a small disk; tst_faults limits the size of files for others");
        const QString target = folder + "/out.jpg";
        testsupport::put(target, "older");
        testsupport::put(folder + "/ballast", QByteArray(88000, 'b'));
        m_user->window.save(target);
        QCOMPARE(contentsOf(target), QByteArray("older"));
        m_user->exportTo(folder + "/out.png", 160);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList({"ballast", "out.jpg"}));
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(folder));
        const QImage untouched = m_user->probe.previewImage().copy();
        m_user->brush(QRect(0, 0, 160, 120));
        QVERIFY(m_user->probe.previewImage() != untouched);
        m_user->probe.undoStack().undo();
        qputenv("TMPDIR", temporary);
        QCOMPARE(m_user->probe.previewImage(), untouched);
        QFile::remove(folder + "/ballast");
        m_user->window.save(target);
        QVERIFY(!QImage(target).isNull());
    }

    void killed_data()
    {
        QTest::addColumn<bool>("save");
        QTest::newRow("save") << true;
        QTest::newRow("export") << false;
    }

    /// Whenever the program ends, the old file is there or the new one.
    void killed()
    {
        QFETCH(bool, save);
        constexpr int rounds = 100;
        const QString target = m_folder->filePath(save ? "out.jpg" : "out.png");
        QProcess program;
        program.setProgram(WRITE_ONCE);
        program.setArguments({m_photo, target});
        QVERIFY(startedWriting(program));
        QElapsedTimer clock;
        clock.start();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
        const auto longest = static_cast<quint32>(clock.nsecsElapsed() / 1000);
        const QByteArray whole = contentsOf(target);
        QVERIFY(whole.size() > 5000);
        const QByteArray older(20000, 'o');
        QRandomGenerator random(7);
        int news = 0;
        for (int round = 0; round < rounds; ++round) {
            testsupport::put(target, older);
            QVERIFY(startedWriting(program));
            usleep(random.bounded(longest));
            program.kill();
            program.waitForFinished();
            const QByteArray now = contentsOf(target);
            QVERIFY2(now == older || now == whole, qPrintable(QString::number(now.size())));
            news += now == whole ? 1 : 0;
        }
        fprintf(stderr, "killed %d times; %d times the new file was there\n", rounds, news);
        QVERIFY2(news > 0 && news < rounds, "the moments were not spread over the writing");
    }

private:
    static bool startedWriting(QProcess &program)
    {
        program.start();
        while (program.waitForReadyRead())
            if (program.readAllStandardOutput().contains("ready"))
                return true;
        return false;
    }

    [[nodiscard]] QStringList names() const { return testsupport::namesIn(m_folder->path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowUser> m_user;
    QString m_photo;
};

ORNEVO_TEST_MAIN(TestFailingCalls)
#include "tst_failingcalls.moc"
