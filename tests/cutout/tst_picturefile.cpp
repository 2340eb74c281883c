// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/PictureFile.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/Differences.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestMain.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>

#include <unistd.h>

using testsupport::contentsOf;
using testsupport::put;

namespace {

QByteArray encoded(const QImage &picture, const QByteArray &format)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    writer.write(picture);
    return buffer.data();
}

QByteArray bigEndian16(int value)
{
    return QByteArray(1, static_cast<char>(value >> 8)) + static_cast<char>(value);
}

QByteArray littleEndian(quint32 value, int bytes)
{
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(value >> (8 * i));
    return result;
}

/// A JPEG with a note of how the camera was held right behind its start.
QByteArray withOrientation(const QByteArray &jpeg, int orientation)
{
    QByteArray tiff("II*\0\x08\0\0\0\x01\0", 10); // little-endian, one entry
    tiff += QByteArray("\x12\x01\x03\0\x01\0\0\0", 8) + littleEndian(static_cast<quint32>(orientation), 4);
    tiff += QByteArray(4, '\0'); // no further directory
    const QByteArray body = QByteArray("Exif\0\0", 6) + tiff;
    return jpeg.left(2) + "\xFF\xE1" + bigEndian16(static_cast<int>(body.size()) + 2) + body + jpeg.mid(2);
}

/// Four areas of colour, so that every turn and every reflection shows.
QImage quarters(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.setPixel(x, y,
                             y < height / 2 ? (x < width / 2 ? 0xFFF00000 : 0xFF00F000)
                                            : (x < width / 2 ? 0xFF0000F0 : 0xFFF0F0F0));
    return picture;
}

bool nearlySame(QRgb a, QRgb b, int tolerance = 8)
{
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance &&
           qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

/// Colours in the middle of the four quarters, row by row.
QList<QRgb> quartersOf(const QImage &picture)
{
    const int w = picture.width();
    const int h = picture.height();
    return {picture.pixel(w / 4, h / 4), picture.pixel(3 * w / 4, h / 4), picture.pixel(w / 4, 3 * h / 4),
            picture.pixel(3 * w / 4, 3 * h / 4)};
}

/// Bits, the highest first, as the entropy-coded part of a JPEG holds them.
class BitWriter
{
public:
    void put(int value, int count)
    {
        for (int i = count - 1; i >= 0; --i) {
            m_byte = (m_byte << 1) | ((value >> i) & 1);
            if (++m_count == 8)
                flush();
        }
    }
    QByteArray finished()
    {
        while (m_count != 0)
            put(1, 1);
        return m_bytes;
    }

private:
    void flush()
    {
        m_bytes += static_cast<char>(m_byte);
        if ((m_byte & 0xFF) == 0xFF)
            m_bytes += '\0'; // so that no marker is read into it
        m_byte = 0;
        m_count = 0;
    }
    QByteArray m_bytes;
    int m_byte = 0;
    int m_count = 0;
};

/// One block of a constant value: its difference to the middle, and nothing else.
void putBlock(BitWriter &bits, int value)
{
    const int difference = value - 128;
    int category = 0;
    while (qAbs(difference) >> category != 0)
        ++category;
    bits.put(category, 4);
    bits.put(difference >= 0 ? difference : difference + (1 << category) - 1, category);
    bits.put(0, 1); // end of block
}

QByteArray segment(int marker, const QByteArray &body)
{
    return "\xFF" + QByteArray(1, static_cast<char>(marker)) +
           bigEndian16(static_cast<int>(body.size()) + 2) + body;
}

/// A JPEG of 8 x 8 pixels of one colour in four inks, stored inverted as printers' programs do.
QByteArray inkJpeg(const QList<int> &inks)
{
    QByteArray frame = QByteArray("\x08\0\x08\0\x08\x04", 6);
    QByteArray scan = "\x04";
    BitWriter bits;
    for (int i = 0; i < 4; ++i) {
        frame += QByteArray(1, static_cast<char>(i + 1)) + QByteArray("\x11\0", 2);
        scan += QByteArray(1, static_cast<char>(i + 1)) + QByteArray(1, '\0');
        putBlock(bits, inks.at(i));
    }
    QByteArray levels("\0\0\0\0\x09\0\0\0\0\0\0\0\0\0\0\0\0", 17); // nine codes of four bits
    for (char category = 0; category <= 8; ++category)
        levels += category;
    const QByteArray waves("\x10\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 18); // one code: end of block
    return "\xFF\xD8" + segment(0xEE, QByteArray("Adobe\0\x64\0\0\0\0\0", 12)) +
           segment(0xDB, QByteArray(1, '\0') + QByteArray(64, '\x08')) + segment(0xC0, frame) +
           segment(0xC4, levels) + segment(0xC4, waves) + segment(0xDA, scan + QByteArray("\0\x3F\0", 3)) +
           bits.finished() + "\xFF\xD9";
}

/// A GIF of one pixel a frame: first red, then green.
QByteArray animation()
{
    QByteArray gif("GIF89a\x01\0\x01\0\x80\0\0\xF0\0\0\0\xF0\0", 19); // two colours
    for (const char code : {'\x44', '\x4C'}) {
        gif += QByteArray("\x21\xF9\x04\0\x0A\0\0\0", 8);
        gif += QByteArray(",\0\0\0\0\x01\0\x01\0\0\x02\x02", 12) + code + QByteArray("\x01\0", 2);
    }
    return gif + ";";
}

/// A BMP of 32 bits a pixel whose pixels, all 0, take no space on the disk.
bool putHollowBmp(const QString &path, int width, int height)
{
    const qint64 bytes = qint64{4} * width * height;
    QByteArray header = "BM" + littleEndian(static_cast<quint32>(bytes + 54), 4) + littleEndian(0, 4) +
                        littleEndian(54, 4) + littleEndian(40, 4);
    header += littleEndian(static_cast<quint32>(width), 4) + littleEndian(static_cast<quint32>(height), 4);
    header += littleEndian(1, 2) + littleEndian(32, 2) + QByteArray(24, '\0');
    QFile file(path);
    put(path, header);
    return file.open(QIODevice::ReadWrite) && file.resize(bytes + 54);
}

} // namespace

class TestPictureFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsWhatWasWritten_data();
    void readsWhatWasWritten();
    void readsByContentsAndNotByName();
    void standsPhotosUpright_data();
    void standsPhotosUpright();
    void readsDeepColour();
    void readsPalettes();
    void readsInksOfPrinters();
    void readsTheFirstFrame();
    void readsWhatTodaysCamerasMake();
    void refusesMoreThanAGibibyte();
    void refusesAHeaderThatPromisesTooMuch();
    void refusesWhatIsNoPicture_data();
    void refusesWhatIsNoPicture();
    void survivesTruncation_data();
    void survivesTruncation();
    void opensWhatIsLeftOfAPhoto();
    void writesInPlaceOfAnOlderFile();
    void writesJpegAtFullQuality();
    void cannotWrite_data();
    void cannotWrite();
    void cannotWriteIntoAReadOnlyFolder();
    void failingWriteLeavesTheOldFile_data();
    void failingWriteLeavesTheOldFile();
    void failingWriteLeavesNoNewFile();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPictureFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestPictureFile::readsWhatWasWritten_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("lossless");
    for (const char *format : {"png", "PNG", "bmp", "ppm", "tiff", "tif"})
        QTest::newRow(format) << QByteArray(format) << true;
    for (const char *format : {"jpg", "jpeg", "JPG"})
        QTest::newRow(format) << QByteArray(format) << false;
}

void TestPictureFile::readsWhatWasWritten()
{
    QFETCH(QByteArray, format);
    QFETCH(bool, lossless);
    for (const QSize size : {QSize(1, 1), QSize(17, 3), QSize(64, 48)}) {
        const QImage picture = testpictures::blobImage(size.width(), size.height(), 5);
        QVERIFY(cutout::writePicture(picture, path("picture." + format), format));
        const QImage back =
            cutout::readPicture(path("picture." + format)).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(back.size(), size);
        if (lossless)
            VERIFY_SAME(format, back, picture);
        QVERIFY(nearlySame(back.pixel(0, 0), picture.pixel(0, 0), 25));
    }
    QCOMPARE(files(), QStringList("picture." + format)); // and no temporary file beside it
}

void TestPictureFile::readsByContentsAndNotByName()
{
    const QImage picture = testpictures::blobImage(20, 10, 6);
    for (const QString name : {"a.jpg", "b.png", "c.txt", "d", "e.gif", "Foto ä 写真.PNG"}) {
        for (const char *format : {"png", "bmp"}) {
            put(path(name), encoded(picture, format));
            VERIFY_SAME(name.toUtf8(), cutout::readPicture(path(name)).convertToFormat(QImage::Format_RGB32),
                        picture);
        }
        put(path(name), encoded(picture, "jpg"));
        QCOMPARE(cutout::readPicture(path(name)).size(), picture.size());
    }
}

void TestPictureFile::standsPhotosUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QTransform>("turn");
    const QTransform mirror(-1, 0, 0, 1, 0, 0);
    QTest::newRow("none") << 0 << QTransform();
    QTest::newRow("upright") << 1 << QTransform();
    QTest::newRow("mirrored") << 2 << mirror;
    QTest::newRow("upside down") << 3 << QTransform().rotate(180);
    QTest::newRow("upside down, mirrored") << 4 << QTransform(1, 0, 0, -1, 0, 0);
    QTest::newRow("on its side, mirrored") << 5 << QTransform(0, 1, 1, 0, 0, 0);
    QTest::newRow("turned left") << 6 << QTransform().rotate(90);
    QTest::newRow("on its other side, mirrored") << 7 << QTransform(0, -1, -1, 0, 0, 0);
    QTest::newRow("turned right") << 8 << QTransform().rotate(270);
    QTest::newRow("nonsense") << 99 << QTransform();
}

void TestPictureFile::standsPhotosUpright()
{
    QFETCH(int, orientation);
    QFETCH(QTransform, turn);
    const QImage picture = quarters(64, 32);
    put(path("photo.jpg"), withOrientation(encoded(picture, "jpg"), orientation));
    const QImage photo = cutout::readPicture(path("photo.jpg"));
    const QImage expected = picture.transformed(turn);
    QCOMPARE(photo.size(), expected.size());
    const QList<QRgb> colours = quartersOf(photo);
    for (int i = 0; i < 4; ++i)
        QVERIFY2(nearlySame(colours.at(i), quartersOf(expected).at(i)), qPrintable(QString::number(i)));
}

void TestPictureFile::readsDeepColour()
{
    const QImage deep = testpictures::randomImage(9, 7, 7).convertToFormat(QImage::Format_RGBX64);
    put(path("deep.png"), encoded(deep, "png"));
    const QImage back = cutout::readPicture(path("deep.png"));
    QCOMPARE(back.depth(), 64);
    VERIFY_SAME("16 bits", back.convertToFormat(QImage::Format_RGB32), testpictures::randomImage(9, 7, 7));
    QImage grey(4, 4, QImage::Format_Grayscale16);
    grey.fill(QColor(70, 70, 70));
    put(path("grey.png"), encoded(grey, "png"));
    QCOMPARE(cutout::readPicture(path("grey.png")).convertToFormat(QImage::Format_RGB32).pixel(1, 1),
             qRgb(70, 70, 70));
}

void TestPictureFile::readsPalettes()
{
    QImage palette(6, 5, QImage::Format_Indexed8);
    palette.setColorTable({0xFF102030, 0xFFA0B0C0});
    palette.fill(0);
    palette.setPixel(4, 3, 1);
    const QImage grey = testpictures::greyStepsImage(6, 5, 8);
    const QImage bits = palette.convertToFormat(QImage::Format_Mono);
    for (const char *format : {"png", "bmp", "tiff"}) {
        put(path("p"), encoded(palette, format));
        put(path("b"), encoded(bits, format));
        put(path("g"), encoded(grey.convertToFormat(QImage::Format_Grayscale8), format));
        VERIFY_SAME(format, cutout::readPicture(path("p")).convertToFormat(QImage::Format_RGB32),
                    palette.convertToFormat(QImage::Format_RGB32));
        VERIFY_SAME(format, cutout::readPicture(path("g")).convertToFormat(QImage::Format_RGB32), grey);
        VERIFY_SAME(format, cutout::readPicture(path("b")).convertToFormat(QImage::Format_RGB32),
                    bits.convertToFormat(QImage::Format_RGB32));
    }
}

void TestPictureFile::readsInksOfPrinters()
{
    put(path("inks.jpg"), inkJpeg({200, 100, 50, 255}));
    const QImage bright = cutout::readPicture(path("inks.jpg"));
    QCOMPARE(bright.size(), QSize(8, 8));
    QVERIFY2(nearlySame(bright.pixel(4, 4), qRgb(200, 100, 50), 2),
             qPrintable(QString::number(bright.pixel(4, 4), 16)));
    put(path("inks.jpg"), inkJpeg({200, 100, 50, 127})); // half covered with black
    QVERIFY(nearlySame(cutout::readPicture(path("inks.jpg")).pixel(4, 4), qRgb(100, 50, 25), 2));
}

void TestPictureFile::readsTheFirstFrame()
{
    put(path("moving.gif"), animation());
    QImageReader reader(path("moving.gif"));
    QVERIFY(!reader.read().isNull());
    QCOMPARE(reader.read().convertToFormat(QImage::Format_RGB32).pixel(0, 0),
             0xFF00F000); // there is a second
    QCOMPARE(cutout::readPicture(path("moving.gif")).convertToFormat(QImage::Format_RGB32).pixel(0, 0),
             0xFFF00000);
}

void TestPictureFile::readsWhatTodaysCamerasMake()
{
    // 144 MB of pixels: more than the toolkit reads of its own accord.
    QVERIFY(putHollowBmp(path("large.bmp"), 6000, 6000));
    QCOMPARE(cutout::readPicture(path("large.bmp")).size(), QSize(6000, 6000));
}

void TestPictureFile::refusesMoreThanAGibibyte()
{
    QVERIFY(putHollowBmp(path("vast.bmp"), 16500, 16500));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(cutout::readPicture(path("vast.bmp")).isNull());
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(QImageReader::allocationLimit(), 1024);
}

void TestPictureFile::refusesAHeaderThatPromisesTooMuch()
{
    QByteArray bmp = encoded(testpictures::randomImage(4, 4, 1), "bmp");
    bmp.replace(18, 8, littleEndian(0x7FFFFFFF, 4) + littleEndian(0x7FFFFFFF, 4));
    put(path("a.bmp"), bmp);
    put(path("b.ppm"), "P6 2147483647 2147483647 255\nabc");
    put(path("c.pgm"), "P5 60000 60000 255\nabc");
    QElapsedTimer timer;
    timer.start();
    for (const char *name : {"a.bmp", "b.ppm", "c.pgm"})
        QVERIFY2(cutout::readPicture(path(name)).isNull(), name);
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

void TestPictureFile::refusesWhatIsNoPicture_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("The quick brown fox jumps over the lazy dog.\n");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("magic of png alone") << QByteArray("\x89PNG\r\n\x1A\n");
    QTest::newRow("magic of jpeg alone") << QByteArray("\xFF\xD8\xFF\xE0");
    QTest::newRow("beginning and end of jpeg") << QByteArray("\xFF\xD8\xFF\xD9");
    QTest::newRow("magic of gif alone") << QByteArray("GIF89a");
    QTest::newRow("magic of tiff alone") << QByteArray("II*\0", 4);
    QTest::newRow("magic of bmp alone") << QByteArray("BM");
}

void TestPictureFile::refusesWhatIsNoPicture()
{
    QFETCH(QByteArray, contents);
    for (const char *name : {"x.png", "x.jpg", "x.bmp", "x.gif", "x.tiff", "x"}) {
        put(path(name), contents);
        QVERIFY2(cutout::readPicture(path(name)).isNull(), name);
    }
    QVERIFY(cutout::readPicture(path("missing.png")).isNull());
    QVERIFY(cutout::readPicture(m_folder->path()).isNull());
    QVERIFY(cutout::readPicture(QString()).isNull());
}

void TestPictureFile::survivesTruncation_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"png", "jpg", "bmp", "tiff", "ppm"})
        QTest::newRow(format) << QByteArray(format);
}

void TestPictureFile::survivesTruncation()
{
    QFETCH(QByteArray, format);
    const QByteArray whole = encoded(testpictures::blobImage(40, 30, 9), format);
    for (qsizetype bytes = 0; bytes < whole.size(); bytes += 1 + whole.size() / 60) {
        put(path("truncated"), whole.left(bytes));
        const QImage picture = cutout::readPicture(path("truncated"));
        // What is left of a picture may be shown, but nothing else.
        QVERIFY(picture.isNull() || picture.size() == QSize(40, 30));
        QVERIFY(bytes >= 20 || picture.isNull());
    }
}

void TestPictureFile::opensWhatIsLeftOfAPhoto()
{
    const QImage whole = testpictures::blobImage(200, 160, 9);
    QByteArray file = encoded(whole, "jpg");
    put(path("truncated.jpg"), file.left(file.size() / 2));
    const QImage decoded = QImage::fromData(file, "jpg");
    const QImage half = cutout::readPicture(path("truncated.jpg"));
    QCOMPARE(half.size(), whole.size());
    QCOMPARE(half.copy(0, 0, 200, 40), decoded.copy(0, 0, 200, 40)); // what came before the end is there
    QVERIFY(half.copy(0, 144, 200, 16) != decoded.copy(0, 144, 200, 16));
    file = encoded(whole, "bmp");
    put(path("truncated.bmp"), file.left(file.size() / 2));
    const QImage rows = cutout::readPicture(path("truncated.bmp")).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(rows.size(), whole.size());
    QCOMPARE(rows.copy(0, 90, 200, 70), whole.convertToFormat(QImage::Format_RGB32).copy(0, 90, 200, 70));
    QCOMPARE(rows.pixel(100, 10), 0xFF000000U); // and not whatever was in memory
}

void TestPictureFile::writesInPlaceOfAnOlderFile()
{
    const QImage picture = testpictures::randomImage(30, 20, 10);
    put(path("a.png"), QByteArray(100000, 'x'));
    QVERIFY(cutout::writePicture(picture, path("a.png"), "png"));
    VERIFY_SAME("png", cutout::readPicture(path("a.png")).convertToFormat(QImage::Format_RGB32), picture);
    QVERIFY(contentsOf(path("a.png")).size() < 100000);
    QCOMPARE(files(), QStringList("a.png"));
}

void TestPictureFile::writesJpegAtFullQuality()
{
    const QImage picture = testpictures::blobImage(64, 48, 11);
    QVERIFY(cutout::writePicture(picture, path("a.jpg"), "jpg"));
    QCOMPARE(contentsOf(path("a.jpg")), encoded(picture, "jpg"));
}

void TestPictureFile::cannotWrite_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("picture");
    QTest::newRow("no name") << QString() << QByteArray("png") << true;
    QTest::newRow("missing folder") << "no/such/folder/a.png" << QByteArray("png") << true;
    QTest::newRow("a folder") << "." << QByteArray("png") << true;
    QTest::newRow("below a file") << "old.png/a.png" << QByteArray("png") << true;
    QTest::newRow("no format") << "a" << QByteArray() << true;
    QTest::newRow("unknown format") << "a.xyz" << QByteArray("xyz") << true;
    QTest::newRow("format that is only read") << "a.gif" << QByteArray("gif") << true;
    QTest::newRow("no picture") << "a.png" << QByteArray("png") << false;
}

void TestPictureFile::cannotWrite()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);
    QFETCH(bool, picture);
    put(path("old.png"), "old");
    const QImage image = picture ? testpictures::randomImage(8, 8, 12) : QImage();
    QVERIFY(!cutout::writePicture(image, name.isEmpty() ? name : path(name), format));
    QCOMPARE(files(), QStringList("old.png"));
    QCOMPARE(contentsOf(path("old.png")), QByteArray("old"));
    QVERIFY(QDir(m_folder->path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

void TestPictureFile::cannotWriteIntoAReadOnlyFolder()
{
    // Not even the administrator makes files there.
    QVERIFY(!cutout::writePicture(testpictures::randomImage(8, 8, 13), "/proc/a.png", "png"));
    if (geteuid() == 0)
        QSKIP("the administrator may write into any folder of the tests");
    put(path("old.png"), "old");
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool written = cutout::writePicture(testpictures::randomImage(8, 8, 13), path("a.png"), "png");
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(!written);
    QCOMPARE(files(), QStringList("old.png"));
}

void TestPictureFile::failingWriteLeavesTheOldFile_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"png", "jpg", "bmp"})
        QTest::newRow(format) << QByteArray(format);
}

void TestPictureFile::failingWriteLeavesTheOldFile()
{
    QFETCH(QByteArray, format);
    const QString name = path("a." + format);
    const QImage older = testpictures::randomImage(10, 10, 14);
    QVERIFY(cutout::writePicture(older, name, format));
    const QByteArray before = contentsOf(name);
    bool written = true;
    {
        const testsupport::FullDisk disk(2000);
        written = cutout::writePicture(testpictures::randomImage(200, 200, 15), name, format);
    }
    QVERIFY(!written);
    QCOMPARE(contentsOf(name), before);
    QCOMPARE(files(), QStringList("a." + format));
}

void TestPictureFile::failingWriteLeavesNoNewFile()
{
    {
        const testsupport::FullDisk disk(2000);
        QVERIFY(!cutout::writePicture(testpictures::randomImage(200, 200, 16), path("a.png"), "png"));
        // A picture that its format can't hold.
        QVERIFY(
            !cutout::writePicture(testpictures::constantImage(70000, 1, 0xFF000000), path("a.jpg"), "jpg"));
    }
    QVERIFY(files().isEmpty());
}

ORNEVO_TEST_MAIN(TestPictureFile)
#include "tst_picturefile.moc"
