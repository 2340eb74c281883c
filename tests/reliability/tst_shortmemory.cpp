// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/reliability/ShortMemory.h"
#include "tests/reliability/WindowUser.h"
#include "tests/support/Files.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using testsupport::contentsOf;

/// A photo of twelve megapixels in an address space that ends somewhere. Whatever there is no memory for is
/// said, and no file is written that lacks a part of the picture.
class TestShortMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SKIP_UNLESS_MEMORY_CAN_BE_SHORT();
        testsupport::printFatalMessagesOnly();
        m_photo = m_folder.filePath("photo.bmp");
        testsupport::put(m_photo, picturefiles::encoded(testpictures::rampImage(4000, 3000, 3), "bmp"));
        // Qt converts large pictures in threads and waits for ever for one that has no memory for its stack;
        // a program that has worked for a while has them.
        const QImage warm = testpictures::randomArgbImage(1024, 1024, 1);
        QVERIFY(!warm.convertToFormat(QImage::Format_RGBA64).isNull());
        QVERIFY(!warm.convertToFormat(QImage::Format_ARGB32_Premultiplied).isNull());
        WindowUser user;
        work(user, m_folder.filePath("whole.png"));
        QCOMPARE(user.status(), "Ready");
        m_whole = contentsOf(m_folder.filePath("whole.png"));
        QVERIFY(m_whole.size() > 1000000);
        m_cutOut = user.probe.previewImage();
    }

    void everyLimit_data()
    {
        QTest::addColumn<int>("mebibytes");
        for (int mebibytes = 300; mebibytes <= 1500; mebibytes += 100)
            QTest::addRow("%d MiB", mebibytes) << mebibytes;
        for (const int mebibytes :
             {60, 100, 140, 160, 180, 200, 220, 240, 260, 280}) // more than the program has
            QTest::addRow("%d MiB more", mebibytes) << -mebibytes;
    }

    void everyLimit()
    {
        QFETCH(int, mebibytes);
        const QString out = m_folder.filePath("out.png");
        const QByteArray older("an older export");
        testsupport::put(out, older);
        WindowUser user;
        QString status;
        {
            const ShortMemory memory =
                mebibytes > 0 ? ShortMemory(ShortMemory::Total{static_cast<rlim_t>(mebibytes) << 20})
                              : ShortMemory(static_cast<rlim_t>(-mebibytes) << 20);
            status = work(user, out);
        }
        const QByteArray now = contentsOf(out);
        fprintf(stderr, "%s: %s; %s\n", QTest::currentDataTag(), qPrintable(status),
                now == older ? "the older export stays" : "exported");
        QVERIFY2(now == older || now == m_whole, "something else than the whole picture was written");
        QCOMPARE(now == m_whole, status == "Ready");
        QVERIFY(status == "Ready" || status == "Failed to read image" ||
                status.startsWith("Not enough memory"));
        QFile::remove(out);
    }

private:
    /// From the file to the export; stops where something is said to be missing, and gives the last word.
    QString work(WindowUser &user, const QString &out)
    {
        user.probe.currentFile() = m_photo;
        user.window.open(); // the file dialog itself needs more than there is
        if (user.status() != "Ready")
            return user.status();
        user.layDabs();
        user.trigger("actionMask");
        if (user.status() != "Ready")
            return user.status();
        user.preview(true);
        if (user.status() != "Ready")
            return user.status();
        user.brush(QRect(1000, 1000, 90, 90));
        user.exportTo(out, 2000);
        return user.status();
    }

    QTemporaryDir m_folder;
    QString m_photo;
    QByteArray m_whole;
    QImage m_cutOut;
};

ORNEVO_TEST_MAIN(TestShortMemory)
#include "tst_shortmemory.moc"
