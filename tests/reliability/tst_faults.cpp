// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/reliability/ShortMemory.h"
#include "tests/reliability/WindowUser.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>

#include <unistd.h>

using testsupport::contentsOf;

/// What can happen to the program from outside: disks that are full, folders that go, files that change.
/// No file of the user's may be lost, nothing half written may stay under a name that was asked for, and the
/// program goes on.
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_photo = file("photo.jpg");
        testsupport::put(m_photo, picturefiles::encoded(picturefiles::smallPicture(120, 90, 1), "jpg"));
        m_before = contentsOf(m_photo);
        m_user = std::make_unique<WindowUser>();
        m_user->open(m_photo);
        QCOMPARE(m_user->status(), "Ready");
    }

    void cleanup()
    {
        // Whatever happened, the next picture can be opened and worked on.
        const QString other = file("other.png");
        testsupport::put(other, picturefiles::encoded(picturefiles::smallPicture(30, 20, 2), "png"));
        m_user->open(other);
        QCOMPARE(m_user->status(), "Ready");
        QCOMPARE(m_user->probe.workingImage().size(), QSize(30, 20));
        m_user->layDabs();
        m_user->preview(true);
        QCOMPARE(m_user->probe.previewImage().size(), QSize(30, 20));
        m_user.reset();
        m_folder.reset();
        QCOMPARE(testsupport::namesIn(QDir::tempPath()), m_tempBefore);
    }

    void initTestCase()
    {
        testsupport::printFatalMessagesOnly();
        m_tempBefore = testsupport::namesIn(QDir::tempPath());
    }

    void fullDiskOnSave_data()
    {
        QTest::addColumn<int>("percent");
        for (const int percent : {0, 1, 10, 25, 50, 75, 90, 99})
            QTest::addRow("space for %d %%", percent) << percent;
    }

    /// Wherever in the file the disk is full, the photo that it was to replace stays whole.
    void fullDiskOnSave()
    {
        QFETCH(int, percent);
        const QString large = file("photo.jpg");
        testsupport::put(large, picturefiles::encoded(testpictures::randomImage(300, 200, 5), "jpg"));
        m_user->open(large);
        m_before = contentsOf(large);
        m_user->window.save(file("whole.jpg"));
        const qint64 needed = QFileInfo(file("whole.jpg")).size();
        QVERIFY(needed > 50000);
        QFile::remove(file("whole.jpg"));
        {
            const testsupport::FullDisk disk(static_cast<rlim_t>(needed * percent / 100));
            m_user->save();
        }
        QCOMPARE(contentsOf(large), m_before);
        QCOMPARE(m_user->status(), "Ready"); // the photo as it is on the disk, read again
        QCOMPARE(names(), QStringList("photo.jpg"));
    }

    void fullDiskOnSaveAs()
    {
        {
            const testsupport::FullDisk disk(500);
            m_user->saveAs(file("new.jpg"));
        }
        QCOMPARE(m_user->status(), "Failed to read image");
        QCOMPARE(names(), QStringList("photo.jpg"));
        QCOMPARE(contentsOf(m_photo), m_before);
    }

    void fullDiskOnExport_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("png") << "cut-out.png";
        QTest::newRow("jpg") << "cut-out.jpg";
    }

    void fullDiskOnExport()
    {
        QFETCH(QString, name);
        previewed();
        {
            const testsupport::FullDisk disk(700);
            m_user->exportTo(file(name), 100);
        }
        QCOMPARE(names(), QStringList("photo.jpg"));
        m_user->exportTo(file(name), 100); // and with space on the disk
        QVERIFY(!QImage(file(name)).isNull());
        const QByteArray whole = contentsOf(file(name));
        {
            const testsupport::FullDisk disk(700);
            m_user->exportTo(file(name), 100);
        }
        QCOMPARE(contentsOf(file(name)), whole); // an older export stays whole
    }

    /// The snapshots of brush batches have nowhere to go: undo works all the same.
    void fullDiskOnBrushing()
    {
        previewed();
        const QImage untouched = m_user->probe.previewImage().copy();
        {
            const testsupport::FullDisk disk(60);
            m_user->brush(QRect(5, 5, 60, 60));
        }
        const QImage brushed = m_user->probe.previewImage().copy();
        QVERIFY(brushed != untouched);
        m_user->probe.undoStack().undo();
        QCOMPARE(m_user->probe.previewImage(), untouched);
        m_user->probe.undoStack().redo();
        QCOMPARE(m_user->probe.previewImage(), brushed);
    }

    /// Not even a temporary folder.
    void noTemporaryFolder()
    {
        previewed();
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", m_photo.toLocal8Bit() + "/no-folder");
        const QImage untouched = m_user->probe.previewImage().copy();
        for (int i = 0; i < 3; ++i)
            m_user->brush(QRect(5 + 10 * i, 5, 30, 30));
        const QImage brushed = m_user->probe.previewImage().copy();
        QVERIFY(brushed != untouched);
        m_user->probe.undoStack().setIndex(0);
        QCOMPARE(m_user->probe.previewImage(), untouched);
        m_user->probe.undoStack().setIndex(3);
        QCOMPARE(m_user->probe.previewImage(), brushed);
        m_user->probe.undoStack().clear();
        qputenv("TMPDIR", temporary);
    }

    void nowhereToWrite_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a missing folder") << file("missing/out.jpg");
        QTest::newRow("a file for a folder") << file("photo.jpg/out.jpg");
        QTest::newRow("a folder for a file") << file("");
        QTest::newRow("a folder of the kernel's") << "/proc/out.jpg";
        QTest::newRow("a name that is too long") << file(QString(300, 'x') + ".jpg");
    }

    void nowhereToWrite()
    {
        QFETCH(QString, path);
        if (!path.startsWith('/'))
            path = file(path);
        previewed();
        m_user->exportTo(path, 100);
        m_user->preview(false);
        m_user->window.save(path);
        QCOMPARE(contentsOf(m_photo), m_before);
        QCOMPARE(names(), QStringList("photo.jpg"));
    }

    /// A folder that takes no new file: the photo itself can be written, and is.
    void readOnlyFolder()
    {
        if (geteuid() == 0)
            QSKIP("root writes into folders that are read-only; nowhereToWrite() has a path that stops root");
        previewed();
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
        m_user->exportTo(file("out.jpg"), 100);
        QCOMPARE(contentsOf(m_photo), m_before);
        m_user->preview(false);
        m_user->save();
        QVERIFY(
            QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(m_user->status(), "Ready");
        QVERIFY(contentsOf(m_photo) != m_before);
        QCOMPARE(QImage(m_photo).size(), QSize(120, 90));
        QCOMPARE(names(), QStringList("photo.jpg"));
    }

    /// The folder goes while the picture is being worked on.
    void vanishedFolder()
    {
        previewed();
        QVERIFY(QDir(m_folder->path()).removeRecursively());
        m_user->exportTo(file("out.png"), 100);
        QVERIFY(!QFileInfo::exists(file("out.png")));
        m_user->preview(false);
        m_user->save();
        QCOMPARE(m_user->status(), "Failed to read image");
        m_user->trigger("actionMask");
        QDir().mkpath(m_folder->path());
    }

    /// What is under the name is not what was chosen a moment ago.
    void fileThatChanges_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("opens");
        QTest::newRow("another picture")
            << picturefiles::encoded(picturefiles::smallPicture(17, 200, 3), "png") << true;
        QTest::newRow("half of it") << QByteArray("\xff\xd8\xff\xe0 and then nothing more") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void fileThatChanges()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, opens);
        previewed();
        testsupport::put(m_photo, contents);
        m_user->window.open(); // chosen before, read now, with the preview still on
        QCOMPARE(m_user->status(), opens ? "Ready" : "Failed to read image");
        m_user->brush(QRect(5, 5, 20, 20));
        for (int i = 0; i < 4; ++i)
            m_user->probe.undoStack().undo();
        for (int i = 0; i < 4; ++i)
            m_user->probe.undoStack().redo();
        m_user->preview(false);
        m_user->preview(true);
        m_user->exportTo(file("out.png"), 50);
    }

    /// Every allocation of the way from the file to the export may be the one that fails.
    void pictureLargerThanMemory_data()
    {
        QTest::addColumn<int>("mebibytes");
        for (const int mebibytes : {5, 17, 27, 35, 45, 55, 65, 75, 85, 100, 125, 175})
            QTest::addRow("%d MiB", mebibytes) << mebibytes;
    }

    void pictureLargerThanMemory()
    {
        QFETCH(int, mebibytes);
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        const QString path = file("large.bmp");
        testsupport::put(path, picturefiles::encoded(testpictures::rampImage(2048, 2048, 3), "bmp"));
        // Qt converts large pictures in threads and waits for ever for one that has no memory for its stack;
        // a program that has worked for a while has them.
        const QImage warm = testpictures::randomArgbImage(1024, 1024, 1);
        QVERIFY(!warm.convertToFormat(QImage::Format_RGBA64).isNull());
        QVERIFY(!warm.convertToFormat(QImage::Format_ARGB32_Premultiplied).isNull());
        {
            const ShortMemory memory(static_cast<rlim_t>(mebibytes) << 20);
            m_user->probe.currentFile() = path;
            m_user->window.open(); // the file dialog itself needs more than there is
            QVERIFY2(mebibytes > 20 || m_user->status() == "Failed to read image",
                     qPrintable(m_user->status()));
            m_user->layDabs();
            m_user->trigger("actionMask");
            m_user->preview(true);
            m_user->brush(QRect(100, 100, 900, 900));
            m_user->probe.undoStack().undo();
            m_user->exportTo(file("out.png"), 64, 64);
            m_user->preview(false);
        }
        QFile::remove(path);
        QFile::remove(file("out.png"));
        QCOMPARE(names(), QStringList("photo.jpg"));
        QCOMPARE(contentsOf(m_photo), m_before);
    }

    /// With nothing found, nothing of the photo may be on the preview, whichever picture there was no memory
    /// for.
    void previewLargerThanMemory_data()
    {
        QTest::addColumn<int>("mebibytes");
        for (const int mebibytes : {10, 18, 26, 34, 50})
            QTest::addRow("%d MiB", mebibytes) << mebibytes;
    }

    void previewLargerThanMemory()
    {
        QFETCH(int, mebibytes);
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        openLargePicture();
        QCOMPARE(m_user->status(), "Ready");
        {
            const ShortMemory memory(static_cast<rlim_t>(mebibytes) << 20);
            m_user->preview(true);
        }
        const QImage shown = m_user->probe.previewImage();
        QVERIFY(shown.isNull() || qAlpha(shown.pixel(1000, 1000)) < 8); // smoothed, white is a little less
    }

    /// With memory again, a background choice shows the object as the marks have it, or nothing at all.
    void backgroundAfterAShortPreview_data() { previewLargerThanMemory_data(); }

    void backgroundAfterAShortPreview()
    {
        QFETCH(int, mebibytes);
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        openLargePicture();
        m_user->layDabs();
        m_user->preview(true);
        const QImage whole = m_user->probe.previewImage();
        QVERIFY(!whole.isNull());
        m_user->preview(false);
        {
            const ShortMemory memory(static_cast<rlim_t>(mebibytes) << 20);
            m_user->preview(true);
        }
        m_user->window.applypreviewmask();
        if (m_user->status() == "Ready") {
            QVERIFY(m_user->probe.previewImage() == whole);
        } else {
            QCOMPARE(m_user->status(), "Not enough memory for a preview");
            QVERIFY(m_user->probe.previewItem() == nullptr);
        }
    }

    /// Of a picture with long rows there is memory for all, then for the picture and not for its edges, then
    /// for neither.
    void edgesLargerThanMemory()
    {
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        const QImage wide = picture(65536, 16);
        testsupport::put(file("wide.bmp"), picturefiles::encoded(wide, "bmp"));
        QStringList said;
        for (int mebibytes = 40; mebibytes >= 2; mebibytes -= 2) {
            {
                const ShortMemory memory(static_cast<rlim_t>(mebibytes) << 20);
                m_user->probe.currentFile() = file("wide.bmp");
                m_user->window.open(); // the file dialog itself needs more than there is
            }
            if (said.isEmpty() || said.last() != m_user->status())
                said << m_user->status();
            QCOMPARE(m_user->probe.workingImage().size(), wide.size());
            const unsigned char *const edges = m_user->probe.edgeMap();
            if (said.last() == "Not enough memory to find the edges")
                QVERIFY(std::all_of(edges, edges + 65536 * 16, [](unsigned char edge) { return edge == 0; }));
        }
        QCOMPARE(said, (QStringList{"Ready", "Not enough memory to find the edges", "Failed to read image"}));
    }

    /// A picture that is nothing but width takes no more memory for its edges than another.
    void nothingButWidth()
    {
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        testsupport::put(file("wide.bmp"), picturefiles::encoded(picture(10'000'000, 4), "bmp"));
        {
            const ShortMemory memory(rlim_t{400} << 20); // 160 MiB of pixels, 40 of edges
            m_user->probe.currentFile() = file("wide.bmp");
            m_user->window.open();
        }
        QCOMPARE(m_user->status(), "Ready");
        m_user->open(m_photo);
    }

private:
    /// Of two colours, in few bytes.
    static QImage picture(int width, int height)
    {
        QImage mono(width, height, QImage::Format_Mono);
        for (int y = 0; y < height; ++y)
            std::fill_n(mono.scanLine(y), mono.bytesPerLine(), static_cast<uchar>(0x0F * (1 + y)));
        return mono;
    }

    void openLargePicture()
    {
        testsupport::put(file("large.bmp"),
                         picturefiles::encoded(testpictures::rampImage(2048, 2048, 3), "bmp"));
        m_user->open(file("large.bmp"));
    }

    [[nodiscard]] QString file(const QString &name) const
    {
        return m_folder == nullptr ? name : m_folder->filePath(name);
    }

    [[nodiscard]] QStringList names() const { return testsupport::namesIn(m_folder->path()); }

    void previewed()
    {
        m_user->layDabs();
        m_user->preview(true);
        QVERIFY(!m_user->probe.previewImage().isNull());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowUser> m_user;
    QString m_photo;
    QByteArray m_before;
    QStringList m_tempBefore;
};

ORNEVO_TEST_MAIN(TestFaults)
#include "tst_faults.moc"
