// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/reliability/WindowUser.h"
#include "tests/support/Files.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <limits>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr qint64 longestOpening = 20000; // ms, with sanitizers on a slow and busy machine
constexpr qint64 mostMemory = 6144; // MiB: the gigabyte of pixels that may be read, and what is made of it

qint64 peakMemoryInMiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

enum class Outcome { Opens, Fails, Either };

} // namespace
Q_DECLARE_METATYPE(Outcome)

/// Pictures made to break a program that opens them.
class TestHostilePictures : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { QVERIFY2(peakMemoryInMiB() < mostMemory, "more memory than a picture may take"); }

    void opensOrSaysNo_data()
    {
        using namespace picturefiles;
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<Outcome>("outcome");
        const auto add = [](const char *title, const char *name, const QByteArray &contents,
                            Outcome outcome) {
            QTest::newRow(title) << QString(name) << contents << outcome;
        };
        const QImage photo = smallPicture(60, 40, 1);
        const QByteArray jpeg = encoded(photo, "jpg");
        const QByteArray pngBytes = encoded(photo, "png");

        add("a header of 100000 x 100000", "bomb.png", png(100000, 100000, 8, 6, QByteArray(1000, 0)),
            Outcome::Fails);
        add("a header of 2147483647 x 2147483647", "bomb.png",
            png(0x7FFFFFFF, 0x7FFFFFFF, 8, 6, QByteArray(1000, 0)), Outcome::Fails);
        add("a header of 0 x 0", "none.png", png(0, 0, 8, 6, {}), Outcome::Fails);
        add("a bitmap header of 100000 x 100000", "bomb.bmp",
            QByteArray::fromHex("424d4600000000000000360000002800000"
                                "0a0860100a0860100010018000000000000000000000000000000000000000000000000"
                                "00") +
                QByteArray(100, 0),
            Outcome::Fails);
        add("a bitmap of negative width", "bomb.bmp",
            QByteArray::fromHex("424d46000000000000003600000028000000ffffffffffffffff010018000000000000000000"
                                "00000000000000000000000000000000") +
                QByteArray(100, 0),
            Outcome::Fails);
        add("no bytes at all", "empty.png", {}, Outcome::Fails);
        add("one byte", "one.jpg", "x", Outcome::Fails);
        add("a text", "letter.jpg", "Dear user,\n", Outcome::Fails);
        add("a JPEG called PNG", "wrong.png", jpeg, Outcome::Opens);
        add("a PNG called JPEG", "wrong.jpg", pngBytes, Outcome::Opens);
        add("a PNG without suffix", "wrong", pngBytes, Outcome::Opens);
        add("a PNG called text", "wrong.txt", pngBytes, Outcome::Opens);
        add("16 bits a channel", "deep.png", encoded(photo.convertToFormat(QImage::Format_RGBA64), "png"),
            Outcome::Opens);
        add("16 bits of grey", "deep.png", encoded(photo.convertToFormat(QImage::Format_Grayscale16), "png"),
            Outcome::Opens);
        add("one bit", "bits.png", encoded(photo.convertToFormat(QImage::Format_Mono), "png"),
            Outcome::Opens);
        add("a palette with too few entries", "few.png",
            png(16, 16, 8, 3, QByteArray(16 * 17, 7), QByteArray(9, 'c')), Outcome::Either);
        add("a palette picture without palette", "few.png", png(16, 16, 8, 3, QByteArray(16 * 17, 7)),
            Outcome::Either);
        add("rows that end early", "short.png", png(64, 64, 8, 2, QByteArray(100, 0)), Outcome::Either);
        add("garbage behind the picture", "long.png", pngBytes + QByteArray(5000, 'x'), Outcome::Opens);
        add("a JPEG in four inks", "cmyk.jpg", cmykJpeg(), Outcome::Either);
        add("EXIF without end", "exif.jpg", jpegWithExif(photo, QByteArray("MM\0*\0\0\0\10\377\377", 10)),
            Outcome::Opens);
        add("EXIF that points into nowhere", "exif.jpg",
            jpegWithExif(photo, QByteArray("II*\0\377\377\377\377", 8) + QByteArray(100, '\377')),
            Outcome::Opens);
        add("EXIF that points at itself", "exif.jpg",
            jpegWithExif(photo, QByteArray("II*\0\10\0\0\0\0\0\10\0\0\0", 14)), Outcome::Opens);
        add("EXIF with orientation 99", "exif.jpg",
            jpegWithExif(photo, QByteArray("MM\0*\0\0\0\10\0\1\1\22\0\3\0\0\0\1\0\143\0\0\0\0\0\0", 26)),
            Outcome::Opens);
        add("no EXIF although announced", "exif.jpg", jpegWithExif(photo, {}), Outcome::Opens);
        add("a device", "device", {}, Outcome::Fails);
        add("a device without end", "endless device", {}, Outcome::Fails);
        add("a pipe", "pipe", {}, Outcome::Fails);
        add("a folder", "folder", {}, Outcome::Fails);
    }

    void opensOrSaysNo()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, contents);
        QFETCH(Outcome, outcome);
        QString path = m_folder->filePath(name);
        if (name == "folder")
            QDir().mkpath(path);
        else if (name == "device")
            path = "/dev/null";
        else if (name == "endless device")
            path = "/dev/zero";
        else if (name == "pipe")
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else
            testsupport::put(path, contents);
        const bool opened = openedWithinBounds(path);
        if (outcome != Outcome::Either)
            QCOMPARE(opened, outcome == Outcome::Opens);
    }

    void survivesEveryTruncation_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char *format : {"jpg", "png", "bmp", "tiff", "gif"})
            QTest::newRow(format) << QByteArray(format);
    }

    /// A download that broke off, at every hundredth of the file.
    void survivesEveryTruncation()
    {
        QFETCH(QByteArray, format);
        const QByteArray whole = format == "gif"
                                     ? picturefiles::tinyGif()
                                     : picturefiles::encoded(picturefiles::smallPicture(60, 40, 2), format);
        if (whole.isEmpty())
            QSKIP("this machine does not write the format");
        const QString path = m_folder->filePath("truncated." + format);
        int opened = 0;
        for (int percent = 0; percent <= 100; ++percent) {
            testsupport::put(path, whole.left(whole.size() * percent / 100));
            opened += openedWithinBounds(path) ? 1 : 0;
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(opened >= 1); // the whole file, at the least
        QVERIFY(opened <= 100);
    }

    void goesAllTheWay_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("1 x 1") << QSize(1, 1);
        QTest::newRow("2 x 2") << QSize(2, 2);
        QTest::newRow("3 x 3") << QSize(3, 3);
        QTest::newRow("1 x 65535") << QSize(1, 65535);
        QTest::newRow("65535 x 1") << QSize(65535, 1);
        QTest::newRow("2 x 65535") << QSize(2, 65535);
        QTest::newRow("65535 x 4") << QSize(65535, 4);
        QTest::newRow("40000 x 7") << QSize(40000, 7);
    }

    /// Mask, preview, brush and export of pictures of every awkward shape.
    void goesAllTheWay()
    {
        QFETCH(QSize, size);
        const QString path = m_folder->filePath("shape.png");
        testsupport::put(
            path, picturefiles::encoded(testpictures::blobImage(size.width(), size.height(), 1), "png"));
        QElapsedTimer clock;
        clock.start();
        WindowUser user;
        user.window.show();
        user.open(path);
        QCOMPARE(user.status(), "Ready");
        QCOMPARE(user.probe.workingImage().size(), size);
        user.layDabs();
        user.trigger("actionMask");
        QVERIFY(user.probe.maskItem() != nullptr);
        user.preview(true);
        QCOMPARE(user.probe.previewImage().size(), size);
        user.brush(QRect(0, 0, 3, 3));
        user.probe.undoStack().undo();
        QCoreApplication::processEvents();
        const QString out = m_folder->filePath("out.png");
        user.exportTo(out, 50, 50);
        QVERIFY(QFileInfo::exists(out));
        user.preview(false);
        QVERIFY2(clock.elapsed() < longestOpening, "it takes too long");
    }

    void brushLargerThanAnything_data()
    {
        QTest::addColumn<int>("half");
        for (const int half : {15000, 45000, 500000, 1 << 29})
            QTest::addRow("%d pixels", half) << half;
    }

    /// With the view zoomed far out, a dab covers all of the picture and much more.
    void brushLargerThanAnything()
    {
        QFETCH(int, half);
        const QString path = m_folder->filePath("photo.png");
        testsupport::put(path, picturefiles::encoded(picturefiles::smallPicture(60, 40, 1), "png"));
        WindowUser user;
        user.open(path);
        user.layDabs();
        user.preview(true);
        user.probe.brushIntensityKeep() = 255;
        const QImage untouched = user.probe.previewImage().copy();
        QElapsedTimer clock;
        clock.start();
        user.brush(QRect(-half, -half, 2 * half - 1, 2 * half - 1));
        QVERIFY2(clock.elapsed() < 5000, "it takes too long");
        const QImage brushed = user.probe.previewImage();
        for (const QPoint corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 39), QPoint(59, 39)})
            QCOMPARE(qAlpha(brushed.pixel(corner)), 255);
        QVERIFY(brushed != untouched);
        user.probe.undoStack().undo();
        QCOMPARE(user.probe.previewImage(), untouched);
    }

    /// As far in and as far out as it goes, and with the Hand tool on what is shown there.
    void zoomWithoutEnd()
    {
        const QString path = m_folder->filePath("photo.png");
        testsupport::put(path, picturefiles::encoded(picturefiles::smallPicture(60, 40, 1), "png"));
        WindowUser user;
        user.window.show();
        user.open(path);
        user.layDabs();
        user.preview(true);
        for (const char *zoom : {"actionZoom_In", "actionZoom_Out"}) {
            for (int i = 0; i < 600; ++i) {
                user.trigger(zoom);
                if (i % 20 == 0)
                    QCoreApplication::processEvents();
            }
            const int far = std::numeric_limits<int>::max();
            for (int i = 0; i < 5; ++i)
                QMetaObject::invokeMethod(&user.window, "on_HandToolPressed",
                                          Q_ARG(QPoint, QPoint(-far, -far)), Q_ARG(QPoint, QPoint(far, far)));
            const QImage before = user.probe.previewImage().copy();
            const int commands = user.probe.undoStack().index();
            user.brush(QRect(5, 5, 20, 20)); // the cut-out can still be worked on
            QCOMPARE(user.probe.undoStack().index(), commands + 1);
            user.probe.undoStack().undo();
            QCOMPARE(user.probe.previewImage(), before);
        }
        user.open(path);
        QCOMPARE(user.status(), "Ready");
        QCOMPARE(user.probe.workingImage(), QImage(path).convertToFormat(QImage::Format_RGB32));
        QCOMPARE(user.probe.imageScene().items().size(), 1);
    }

    /// Four hundred million pixels of one bit take no more than they have to, or are declined.
    void vastBits()
    {
        const QString path = m_folder->filePath("vast.png");
        testsupport::put(path, picturefiles::png(20000, 20000, 1, 0, QByteArray(20000 * 2501, 0)));
        QVERIFY(QFileInfo(path).size() < 200000);
        openedWithinBounds(path);
    }

    void initTestCase() { testsupport::printFatalMessagesOnly(); }

private:
    /// Opens a file in a window of its own that shows another picture before.
    bool openedWithinBounds(const QString &path)
    {
        if (m_user == nullptr)
            m_user = std::make_unique<WindowUser>();
        m_user->probe.currentFile() = path;
        QElapsedTimer clock;
        clock.start();
        m_user->window.open();
        const bool opened = !m_user->probe.imageScene().items().isEmpty();
        const QString expected = opened ? "Ready" : "Failed to read image";
        if (m_user->status() != expected || clock.elapsed() > longestOpening)
            QTest::qFail(
                qPrintable(QStringLiteral("\"%1\" after %2 ms").arg(m_user->status()).arg(clock.elapsed())),
                __FILE__, __LINE__);
        return opened;
    }

    /// A JPEG of 8 x 8 pixels with four components, all of one value.
    static QByteArray cmykJpeg()
    {
        QByteArray file = QByteArray::fromHex("ffd8ffee000e41646f626500640000000000ffdb004300");
        file += QByteArray(64, 1);
        file += QByteArray::fromHex("ffc0001408000800080401110002110003110004110"
                                    "0ffc4001f0000010501010101010100000000000000000102030405060708090a0b"
                                    "ffc40014100100000000000000000000000000000000ffda000e0401000200030004"
                                    "00003f00");
        return file + QByteArray::fromHex("00000000ffd9");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowUser> m_user;
};

ORNEVO_TEST_MAIN(TestHostilePictures)
#include "tst_hostilepictures.moc"
