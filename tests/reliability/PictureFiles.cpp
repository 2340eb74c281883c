// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/PictureFiles.h"

#include "tests/reference/TestPictures.h"
#include "tests/support/Files.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QtEndian>

#include <array>

namespace picturefiles {

namespace {

quint32 crc32(const QByteArray &bytes)
{
    static const auto table = [] {
        std::array<quint32, 256> values{};
        for (quint32 n = 0; n < 256; ++n) {
            quint32 c = n;
            for (int bit = 0; bit < 8; ++bit)
                c = (c & 1U) != 0 ? 0xEDB88320U ^ (c >> 1) : c >> 1;
            values[n] = c;
        }
        return values;
    }();
    quint32 crc = 0xFFFFFFFFU;
    for (const char byte : bytes)
        crc = table[(crc ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFU;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

} // namespace

QByteArray chunk(const char *type, const QByteArray &body)
{
    const QByteArray named = QByteArray(type) + body;
    return bigEndian(static_cast<quint32>(body.size())) + named + bigEndian(crc32(named));
}

QByteArray tinyGif()
{
    return QByteArray::fromHex("47494638396103000200800000ff00000000ff2c000000000300020000020504433004"
                               "53003b");
}

QByteArray encoded(const QImage &picture, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format))
        return {};
    return bytes;
}

QByteArray png(quint32 width, quint32 height, int bitDepth, int colourType, const QByteArray &rows,
               const QByteArray &palette)
{
    QByteArray header = bigEndian(width) + bigEndian(height);
    header += static_cast<char>(bitDepth);
    header += static_cast<char>(colourType);
    header += QByteArray(3, 0);
    QByteArray file = QByteArray::fromHex("89504e470d0a1a0a") + chunk("IHDR", header);
    if (!palette.isEmpty())
        file += chunk("PLTE", palette);
    // qCompress() puts the length in front of the zlib stream.
    return file + chunk("IDAT", qCompress(rows, 9).mid(4)) + chunk("IEND", {});
}

QByteArray jpegWithExif(const QImage &picture, const QByteArray &exif)
{
    const QByteArray plain = encoded(picture, "jpg");
    const QByteArray body = QByteArray("Exif\0\0", 6) + exif;
    QByteArray segment = QByteArray::fromHex("ffe1");
    segment += static_cast<char>((body.size() + 2) >> 8);
    segment += static_cast<char>((body.size() + 2) & 0xFF);
    return plain.left(2) + segment + body + plain.mid(2);
}

QImage smallPicture(int width, int height, unsigned seed)
{
    return testpictures::blobImage(width, height, seed);
}

QStringList writeAssortment(const QString &folder)
{
    const QDir dir(folder);
    QStringList paths;
    const auto add = [&](const QString &name, const QByteArray &contents) {
        paths.append(dir.filePath(name));
        testsupport::put(paths.last(), contents);
    };
    const QImage photo = smallPicture(160, 120, 1);
    const QByteArray jpeg = encoded(photo, "jpg");
    const QByteArray pngBytes = encoded(photo, "png");

    add("photo.jpg", jpeg);
    add("portrait.jpeg", encoded(smallPicture(90, 140, 2), "jpg"));
    add("drawing.png", encoded(testpictures::plateauImage(120, 90, 12, 5, 3), "png"));
    add("wide.bmp", encoded(smallPicture(200, 40, 4), "bmp"));
    add("square.tiff", encoded(smallPicture(64, 64, 5), "tiff"));
    add("tiny.gif", tinyGif());
    add("clear.png", encoded(testpictures::randomArgbImage(80, 60, 6), "png"));
    add("grey.png", encoded(photo.convertToFormat(QImage::Format_Grayscale8), "png"));
    add("palette.png", encoded(photo.convertToFormat(QImage::Format_Indexed8), "png"));
    add("bits.png", encoded(photo.convertToFormat(QImage::Format_Mono), "png"));
    add("deep.png", encoded(photo.convertToFormat(QImage::Format_RGBA64), "png"));
    add("dot.png", encoded(smallPicture(1, 1, 7), "png"));
    add("two.png", encoded(smallPicture(2, 2, 8), "png"));
    add("line.png", encoded(smallPicture(200, 1, 9), "png"));
    add("post.png", encoded(smallPicture(3, 200, 10), "png"));
    add(QString::fromUtf8("Fu\u00df und B\u00e4r \u2713.png"), pngBytes);
    // Turned by the camera: orientation 6.
    add("turned.jpg",
        jpegWithExif(photo, QByteArray("MM\0*\0\0\0\10\0\1\1\22\0\3\0\0\0\1\0\6\0\0\0\0\0\0", 26)));
    add("misnamed.jpg", pngBytes);

    add("empty.png", {});
    add("letter.txt", "Dear user,\nthis is not a picture.\n");
    add("letter.jpg", "nor is this\n");
    add("cut.jpg", jpeg.left(jpeg.size() / 2));
    add("cut.png", pngBytes.left(pngBytes.size() / 3));
    add("vast.png", png(100000, 100000, 8, 2, QByteArray(100, 0)));
    add("fewcolours.png", png(16, 16, 8, 3, QByteArray(16 * 17, 7), QByteArray(9, 'c')));

    dir.mkpath("folder.png");
    paths.append(dir.filePath("folder.png"));
    paths.append(dir.filePath("missing.png"));
    paths.append(dir.filePath("nowhere/photo.jpg"));
    return paths;
}

} // namespace picturefiles
