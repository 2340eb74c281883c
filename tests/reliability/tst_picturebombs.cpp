// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LeanPicture.h"
#include "cutout/Orientation.h"
#include "cutout/PictureFile.h"
#include "cutout/RasterFormat.h"
#include "tests/reference/TestPictures.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

#include <QBuffer>
#include <QImageWriter>
#include <QProcess>
#include <QtEndian>

#include <algorithm>
#include <functional>

namespace {

constexpr qint64 mostMilliseconds = 20000; // of the processor
constexpr qint64 mostMemoryBesidesPixels = 2048;
constexpr qsizetype largestFile = qsizetype{64} << 20;
constexpr qsizetype large = 60'000'000;

template <typename Number> QByteArray little(Number value)
{
    QByteArray bytes(sizeof(Number), 0);
    qToLittleEndian(value, bytes.data());
    return bytes;
}
QByteArray two(int value)
{
    return little(static_cast<quint16>(value));
}
QByteArray four(qint64 value)
{
    return little(static_cast<quint32>(value));
}

QByteArray repeated(const QByteArray &bytes, qsizetype size)
{
    return bytes.repeated(size / bytes.size());
}

QByteArray segment(int marker, const QByteArray &body)
{
    const auto bytes = body.size() + 2;
    return QByteArray("\xFF") + static_cast<char>(marker) + static_cast<char>(bytes >> 8) +
           static_cast<char>(bytes & 0xFF) + body;
}

/// The tables, frame and scan header of a JPEG; zeros for data make a grey picture.
QByteArray jpegHead(int width, int height, int components, int frameMarker, const QByteArray &before = {})
{
    QByteArray frame = QByteArray("\x08") + static_cast<char>(height >> 8) + static_cast<char>(height) +
                       static_cast<char>(width >> 8) + static_cast<char>(width) +
                       static_cast<char>(components);
    QByteArray scan(1, static_cast<char>(components));
    for (int i = 1; i <= components; ++i) {
        frame += static_cast<char>(i) + QByteArray("\x11\0", 2);
        scan += static_cast<char>(i) + QByteArray(1, 0);
    }
    const bool progressive = frameMarker == 0xC2;
    const QByteArray codes = QByteArray("\x01") + QByteArray(15, 0);
    return "\xFF\xD8" + before + segment(0xDB, QByteArray(1, 0) + QByteArray(64, 8)) +
           segment(frameMarker, frame) + segment(0xC4, QByteArray(1, 0) + codes + QByteArray(1, 0)) +
           segment(0xC4, QByteArray("\x10") + codes + QByteArray(1, progressive ? '\xE0' : '\0')) +
           segment(0xDA, scan + (progressive ? QByteArray(3, 0) : QByteArray("\0\x3F\0", 3)));
}

QByteArray jpeg(int width, int height, int components, const QByteArray &before = {})
{
    return jpegHead(width, height, components, 0xC0, before) + QByteArray(4000, 0) + "\xFF\xD9";
}

/// A picture that is refined again and again, at two bytes each time.
QByteArray scans(int width, int height, int components, int count)
{
    const QByteArray scan = segment(0xDA, QByteArray("\1\1\0\1\x3F\0", 6)) + QByteArray(2, 0);
    return jpegHead(width, height, components, 0xC2) + QByteArray(8, 0) + scan.repeated(count) + "\xFF\xD9";
}

/// A PNG of 8 x 8 pixels with chunks before its pixels.
QByteArray pngWith(const QByteArray &chunks)
{
    QByteArray file = picturefiles::png(8, 8, 8, 2, QByteArray(8 * 25, 0));
    return file.insert(33, chunks); // behind the signature and the header
}

/// zlib's stream of so many bytes.
QByteArray packed(const QByteArray &bytes)
{
    return qCompress(bytes, 9).mid(4);
}

/// zlib's stream of zeros, two thousand of them in thirteen bytes.
QByteArray zerosWithoutEnd(qsizetype size)
{
    QByteArray data;
    quint32 bits = 0;
    int count = 0;
    const auto put = [&](quint32 code, int length) { // codes begin with their highest bit
        for (int bit = length - 1; bit >= 0; --bit) {
            bits |= ((code >> bit) & 1U) << count;
            if (++count == 8) {
                data += static_cast<char>(bits);
                bits = 0;
                count = 0;
            }
        }
    };
    put(0b110, 3); // the last block, in the codes that need no table
    put(0x30, 8);  // a zero
    for (int i = 0; i < 16; ++i)
        put(0b1100010100000, 13); // 258 times what came before
    return QByteArray("\x78\x01") + data.left(2) + repeated(data.mid(2, 13), size);
}

QByteArray gif(int width, int height, const QByteArray &data, const QByteArray &before = {})
{
    QByteArray file = "GIF89a" + two(width) + two(height) + QByteArray("\x81\0\0", 3) + QByteArray(12, 0) +
                      before + "," + QByteArray(4, 0) + two(width) + two(height) + QByteArray(1, 0) + "\2";
    for (qsizetype at = 0; at < data.size(); at += 255) {
        const QByteArray block = data.mid(at, 255);
        file += static_cast<char>(block.size()) + block;
    }
    return file + QByteArray("\0;", 2);
}

/// Codes of twelve bits that each stand for four thousand pixels.
QByteArray longCodes(qsizetype bytes)
{
    QByteArray data;
    quint32 bits = 0;
    int count = 0;
    const auto put = [&](quint32 code, int size) {
        for (bits |= code << count, count += size; count >= 8; bits >>= 8, count -= 8)
            data += static_cast<char>(bits);
    };
    int size = 3;
    put(4, size);
    put(0, size);
    for (quint32 next = 6; next < 4096;) {
        put(next++, size);
        if (next == 1U << size && size < 12)
            ++size;
    }
    put(4095, 12);
    put(4095, 12);
    return data + QByteArray(bytes, '\xFF');
}

QByteArray tiff(int width, int height, const QList<QList<qint64>> &more, const QByteArray &data)
{
    QList<QList<qint64>> tags{{256, 4, 1, width}, {257, 4, 1, height}, {258, 3, 1, 8},
                              {259, 3, 1, 1},     {262, 3, 1, 1},      {277, 3, 1, 1}};
    tags += more;
    std::sort(tags.begin(), tags.end());
    QByteArray file =
        QByteArray("II*\0", 4) + four(8 + data.size()) + data + two(static_cast<int>(tags.size()));
    for (const QList<qint64> &tag : tags)
        file += two(static_cast<int>(tag[0])) + two(static_cast<int>(tag[1])) + four(tag[2]) + four(tag[3]);
    return file + four(0);
}

QByteArray icon(const QByteArray &picture)
{
    return two(0) + two(1) + two(1) + QByteArray("\x08\x08\0\0", 4) + two(1) + two(32) +
           four(picture.size()) + four(22) + picture;
}

QByteArray bitmap(int width, int height, int bits, int compression, const QByteArray &data)
{
    return "BM" + four(0) + four(0) + four(54 + 1024) + four(40) + four(width) + four(height) + two(1) +
           two(bits) + four(compression) + QByteArray(20, 0) + QByteArray(1024, 0) + data;
}

QByteArray webp(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(0xFF336699);
    return picturefiles::encoded(picture, "webp");
}

using Maker = std::function<QByteArray()>;

} // namespace
Q_DECLARE_METATYPE(Maker)

/// Files of up to 64 MB that want to be decoded for ever or into all memory.
class TestPictureBombs : public QObject
{
    Q_OBJECT

private slots:
    void opensOrSaysNo_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::addColumn<QSize>("size"); // of the picture; empty: it is refused
        const auto add = [](const char *name, QSize size, const Maker &make) {
            QTest::newRow(name) << make << size;
        };
        const QSize tiny(8, 8);
        const auto texts = [](int count) {
            const QByteArray body = QByteArray("key\0\0", 5) + packed(QByteArray(7'900'000, 'A'));
            return picturefiles::chunk("zTXt", body).repeated(count);
        };
        add("png: a packed text", tiny, [=] { return pngWith(texts(50)); });
        add("png: 60 MB of packed texts", tiny, [=] { return pngWith(texts(7500)); });
        add("png: a packed profile", tiny, [] {
            return pngWith(
                picturefiles::chunk("iCCP", QByteArray("p\0\0", 3) + packed(QByteArray(500'000'000, 0))));
        });
        add("png: five million empty chunks", tiny,
            [] { return pngWith(repeated(picturefiles::chunk("IDAT", {}), large)); });
        add("png: gigabytes behind the last pixel", {}, [] {
            const QByteArray end = picturefiles::chunk("IEND", {});
            return picturefiles::png(8, 8, 8, 2, {}).left(33) +
                   picturefiles::chunk("IDAT", zerosWithoutEnd(large)) + end;
        });
        add("png: eight gigapixels of one bit", {},
            [] { return picturefiles::png(90000, 90000, 1, 0, QByteArray(100'000'000, 0)); });
        add("jpeg: 100,000 comments", tiny,
            [] { return jpeg(8, 8, 1, segment(0xFE, "c").repeated(100'000)); });
        add("jpeg: 60 MB of comments", tiny,
            [] { return jpeg(8, 8, 1, repeated(segment(0xFE, "c"), large)); });
        add("jpeg: 60 MB of notes", tiny,
            [] { return jpeg(8, 8, 1, repeated(segment(0xE1, "Exif" + QByteArray(65000, 0)), large)); });
        add("jpeg: 60 MB of profile", tiny, [] {
            return jpeg(
                8, 8, 1,
                repeated(segment(0xE2, QByteArray("ICC_PROFILE\0\1\xFF", 14) + QByteArray(65000, 'i')),
                         large));
        });
        add("jpeg: 60 MB of tables", tiny, [] {
            return jpeg(8, 8, 1, repeated(segment(0xC4, QByteArray("\0\1", 2) + QByteArray(16, 0)), large));
        });
        add("jpeg: notes that go round in circles", tiny, [] {
            return jpeg(8, 8, 1, segment(0xE1, QByteArray("Exif\0\0MM\0*\0\0\0\x08\0\0\0\0\0\x08", 20)));
        });
        add("jpeg: 256 megapixels of 4 kB", QSize(65000, 4096), [] { return jpeg(65000, 4096, 3); });
        add("jpeg: 100,000 scans", {}, [] { return scans(4096, 4096, 1, 100'000); });
        add("jpeg: 25 scans of 256 megapixels", QSize(16384, 16384),
            [] { return scans(16384, 16384, 1, 25); });
        add("jpeg: 10 scans of 256 megapixels in colour", QSize(16384, 16384),
            [] { return scans(16384, 16384, 3, 10); });
        add("gif: hundreds of gigapixels behind the last", tiny, [] { return gif(8, 8, longCodes(large)); });
        add("gif: 256 megapixels and as many behind", QSize(16000, 16000),
            [] { return gif(16000, 16000, longCodes(large)); });
        add("gif: 60 MB of comments", tiny,
            [] { return gif(8, 8, longCodes(100), repeated(QByteArray("!\xFE\1c\0", 5), large)); });
        add("icon: a PNG with packed texts", tiny, [=] { return icon(pngWith(texts(100))); });
        add("icon: 256 megapixels", tiny, [] {
            return icon(four(40) + four(16000) + four(32000) + two(1) + two(32) + QByteArray(1000, 0));
        });
        add("bmp: runs behind the last pixel", tiny,
            [] { return bitmap(8, 8, 8, 1, repeated(QByteArray("\xFF\1"), large)); });
        add("tiff: a tile of 900 megapixels", {}, [] {
            return tiff(8, 8, {{322, 4, 1, 30000}, {323, 4, 1, 30000}, {324, 4, 1, 8}, {325, 4, 1, 100}},
                        QByteArray(100, 0));
        });
        add("tiff: 60,000 samples a pixel", {}, [] {
            return tiff(16000, 16000, {{277, 3, 1, 60000}, {273, 4, 1, 8}, {279, 4, 1, 100}},
                        QByteArray(100, 0));
        });
        add("tiff: a row a strip, and 256 million of them", {}, [] {
            return tiff(1, 1 << 28, {{278, 4, 1, 1}, {273, 4, 1, 8}, {279, 4, 1, 1}}, QByteArray(1, 0));
        });
        add("tiff: 60 MB of description", tiny, [] {
            return tiff(8, 8, {{278, 4, 1, 8}, {273, 4, 1, 8}, {279, 4, 1, 64}, {270, 2, large, 8}},
                        QByteArray(large, 'x'));
        });
        add("tga: four gigapixels", {}, [] {
            return QByteArray("\0\0\2\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF\x20\0", 18) + QByteArray(1000, 0);
        });
        add("wbmp: eight gigapixels", {},
            [] { return QByteArray("\0\0\x85\xBF\x10\x85\xBF\x10", 8) + QByteArray(100, 0); });
        add("pbm: eight gigapixels", {}, [] { return QByteArray("P4 90000 90000\n") + QByteArray(100, 0); });
        add("ppm: 60 MB of comment", {}, [] { return QByteArray("P3 8 8 255\n") + QByteArray(large, '#'); });
        add("xbm: eight gigapixels", {}, [] {
            return QByteArray("#define a_width 90000\n#define a_height 90000\nstatic char b[]={") +
                   QByteArray("0x00,").repeated(1000);
        });
        add("xpm: three million colours", {}, [] {
            QByteArray file("/* XPM */\nstatic char *a[]={\n\"8 8 3000000 4\",\n");
            for (int i = 0; i < 3'000'000; ++i)
                file += '"' + QByteArray::number(i + 0x10000, 36).rightJustified(4, 'z') + " c #123456\",\n";
            return file;
        });
        if (QImageWriter::supportedImageFormats().contains("webp"))
            add("webp: 196 megapixels of a few bytes", QSize(14000, 14000),
                [] { return webp(14000, 14000); });
    }

    void opensOrSaysNo()
    {
        QFETCH(Maker, make);
        QFETCH(QSize, size);
        const QTemporaryDir folder;
        const QString path = folder.filePath("bomb");
        const QByteArray file = make();
        QVERIFY(file.size() > 20 && file.size() <= largestFile);
        testsupport::put(path, file);
        QProcess reader;
        reader.start(READ_ONCE, {path});
        QVERIFY(reader.waitForFinished(600'000));
        QCOMPARE(reader.exitStatus(), QProcess::NormalExit);
        const QList<QByteArray> reported = reader.readAllStandardOutput().trimmed().split(' ');
        QCOMPARE(reported.size(), 4);
        const qint64 milliseconds = reported[2].toLongLong();
        const qint64 mebibytes = reported[3].toLongLong();
        fprintf(stderr, "%s: %lld bytes, %lld ms, %lld MiB\n", QTest::currentDataTag(),
                static_cast<long long>(file.size()), static_cast<long long>(milliseconds),
                static_cast<long long>(mebibytes));
        QVERIFY2(milliseconds < mostMilliseconds, reported[2].constData());
        const qint64 pixels = (qint64{4} * size.width() * size.height()) >> 20;
        QVERIFY2(mebibytes > 0 && mebibytes < mostMemoryBesidesPixels + qMax<qint64>(pixels, 0),
                 reported[3].constData());
        const QSize opened(reported[0].toInt(), reported[1].toInt());
        QCOMPARE(opened.isEmpty() ? QSize() : opened, size.isEmpty() ? QSize() : size);
    }

    /// What is dropped changes no pixel.
    void samePixels()
    {
        const QImage picture = testpictures::randomArgbImage(50, 40, 3);
        const QByteArray pngFile = picturefiles::encoded(picture, "png");
        QByteArray withText = pngFile;
        withText.insert(33, picturefiles::chunk("tEXt", QByteArray("Comment\0hello", 13)));
        QCOMPARE(cutout::leanPng(withText), cutout::leanPng(pngFile));
        QCOMPARE(QImage::fromData(cutout::leanPng(withText)), picture);
        const QByteArray jpegFile = picturefiles::encoded(picture, "jpg");
        QCOMPARE(cutout::leanJpeg(jpegFile), jpegFile);
        QByteArray noted = jpegFile;
        noted.insert(2, segment(0xFE, "a comment") + segment(0xED, "a program's"));
        QCOMPARE(cutout::leanJpeg(noted + "what follows"), jpegFile);
        for (qsizetype bytes = 0; bytes < noted.size(); ++bytes) // and no truncation breaks it
            QVERIFY(cutout::leanJpeg(noted.left(bytes)).size() <= bytes);
        for (qsizetype bytes = 0; bytes < withText.size(); bytes += 7)
            QVERIFY(cutout::leanPng(withText.left(bytes)).size() <= qMax<qsizetype>(bytes, 8));
        const QByteArray gifFile = picturefiles::tinyGif();
        QCOMPARE(QImage::fromData(cutout::leanGif(gifFile)), QImage::fromData(gifFile));
        for (const QByteArray &whole : {gifFile, gif(900, 900, longCodes(600))}) {
            const QByteArray other(whole.size(), '\xFF');
            for (qsizetype bytes = 0; bytes < whole.size(); ++bytes) { // nothing behind a cut is looked at
                QByteArray elsewhere = whole.left(bytes) + other;
                QCOMPARE(cutout::leanGif(QByteArray::fromRawData(elsewhere.constData(), bytes)),
                         cutout::leanGif(QByteArray::fromRawData(whole.constData(), bytes)));
            }
        }
    }

    void scansOfAJpeg()
    {
        const auto isTaken = [](const QByteArray &file) { return !cutout::leanJpeg(file).isEmpty(); };
        // Each goes over 2^22 blocks, the first one among them; 2^27 are too many when one more is added.
        QVERIFY(isTaken(scans(16384, 16384, 1, 31)));
        QVERIFY(!isTaken(scans(16384, 16384, 1, 32)));
        QVERIFY(isTaken(scans(16385, 16384, 1, 30)));
        QVERIFY(!isTaken(scans(16385, 16384, 1, 31)));
        QVERIFY(isTaken(scans(8, 8, 1, 99)));
        QVERIFY(!isTaken(scans(8, 8, 1, 100)));
        // Of a picture of several scans all coefficients are in memory: 15 times 2^26 at most.
        QVERIFY(isTaken(scans(20480, 16384, 3, 1)));
        QVERIFY(!isTaken(scans(20488, 16384, 3, 1)));
        QVERIFY(isTaken(jpeg(20488, 16384, 3)));
    }

    /// Kept is what the pixels take, to the byte. Each code of these stands for one pixel more than the one
    /// before.
    void codesOfAGif()
    {
        const QByteArray data = longCodes(0);
        int bits = 3 + 3; // the code that begins, and that of the first pixel
        int size = 3;
        for (int code = 2; code < 60; ++code) {
            bits += size;
            if (code + 5 == 1 << size)
                ++size;
            const int pixels = code * (code + 1) / 2;
            QCOMPARE(cutout::leanGif(gif(pixels, 1, data)), gif(pixels, 1, data.left((bits + 7) / 8)));
        }
    }

    void tilesOfATiff()
    {
        const auto isModest = [](QByteArray bytes) {
            QBuffer file(&bytes);
            return file.open(QIODevice::ReadOnly) && cutout::hasModestTiles(file);
        };
        const QByteArray plain = tiff(8, 8, {}, QByteArray(64, 0));
        QVERIFY(isModest(plain));
        for (const int bytes : {0, 1, 15, 16, 72}) // before the directory
            QVERIFY2(!isModest(plain.left(bytes)), qPrintable(QString::number(bytes)));
        QVERIFY(isModest(tiff(8, 8, {{322, 4, 1, 16384}, {323, 4, 1, 8192}}, QByteArray(64, 0))));
        QVERIFY(!isModest(tiff(8, 8, {{322, 4, 1, 16384}, {323, 4, 1, 8193}}, QByteArray(64, 0))));
        QVERIFY(isModest(tiff(1 << 26, 8, {{277, 3, 1, 2}}, QByteArray(64, 0))));
        QVERIFY(!isModest(tiff(1 << 26, 8, {{277, 3, 1, 3}}, QByteArray(64, 0))));
    }

    void orientation()
    {
        for (int side = 1; side <= 8; ++side) {
            const QByteArray note = cutout::orientationSegment(side);
            QCOMPARE(note.size(), 36);
            QCOMPARE(cutout::orientationIn(note.mid(10)), side);
        }
        QCOMPARE(cutout::orientationIn({}), 1);
        QCOMPARE(cutout::orientationIn("II*"), 1);
        QCOMPARE(cutout::orientationIn(QByteArray("II*\0\xFF\xFF\xFF\xFF", 8)), 1);
    }

    /// Drawings and documents are not let in, whatever plugins there are and whatever the file is called.
    void rasterFormatsOnly()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("photo.jpg");
        for (const QByteArray &beginning :
             {QByteArray(
                  "<?xml version=\"1.0\"?><svg width=\"8\" height=\"8\"><image href=\"/etc/passwd\"/></svg>"),
              QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>"),
              QByteArray("\x1F\x8B\x08"), QByteArray("%PDF-1.4\n"), QByteArray("\x8AMNG\r\n\x1A\n"),
              QByteArray("%!PS"), QByteArray("icns"), QByteArray("text")}) {
            QCOMPARE(cutout::rasterFormats(beginning), QList<QByteArray>({"wbmp", "tga"}));
            testsupport::put(path, beginning);
            QVERIFY(cutout::readPicture(path).isNull());
        }
    }
};

ORNEVO_TEST_MAIN(TestPictureBombs)
#include "tst_picturebombs.moc"
