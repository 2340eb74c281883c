// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/IndexPicture.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"

#include <QTest>

#include <limits>

using namespace testpictures;

/// The loops over pixels against the plain ones.
class TestPictureLoops : public QObject
{
    Q_OBJECT
private slots:
    void indicesInAnyOrder();
    void cutOutOfAnyFormat();
    void colourOverCheckerboard();
};

void TestPictureLoops::indicesInAnyOrder()
{
    const QSize size(70, 41);
    QList<int> ascending;
    for (int i = 0; i < size.width() * size.height(); i += 1 + i % 5)
        ascending.append(i);
    const QList<int> mixed = randomIndices(size.width(), size.height(), 900, 21);
    for (const QList<int> &indices :
         {QList<int>(), ascending, mixed, QList<int>(ascending.rbegin(), ascending.rend()), ascending + mixed,
          QList<int>{size.width() * size.height() - 1}}) {
        const QImage mask = cutout::paintIndices(size, indices, qRgb(0, 0, 0), qRgb(255, 255, 255));
        QCOMPARE(mask.format(), QImage::Format_RGB32);
        QCOMPARE(mask, reference::hardMaskImage(indices, size.width(), size.height()));
    }
    QList<int> offPicture = {-1, size.width() * size.height(), std::numeric_limits<int>::min(), 5};
    QCOMPARE(cutout::paintIndices(size, offPicture, qRgb(0, 0, 0), qRgb(255, 255, 255)),
             reference::hardMaskImage({5}, size.width(), size.height()));
    QVERIFY(cutout::paintIndices(QSize(), {1, 2}, qRgb(0, 0, 0), qRgb(255, 255, 255)).isNull());
}

// Photos with and without alpha, and masks of other sizes than the photo.
void TestPictureLoops::cutOutOfAnyFormat()
{
    const QImage argb = randomArgbImage(61, 40, 31);
    for (const QImage &photo :
         {argb, randomImage(61, 40, 32), argb.convertToFormat(QImage::Format_ARGB32_Premultiplied),
          paddedImage(randomImage(61, 40, 33), 3, 34)})
        for (const QSize &size : {QSize(61, 40), QSize(50, 40), QSize(61, 22), QSize(90, 60), QSize(1, 1)}) {
            const QImage mask =
                randomArgbImage(size.width(), size.height(), 35).convertToFormat(QImage::Format_RGB32);
            const QImage result = cutout::cutOut(photo, mask);
            QImage expected = photo.convertToFormat(QImage::Format_ARGB32);
            for (int y = 0; y < std::min(size.height(), 40); ++y)
                for (int x = 0; x < std::min(size.width(), 61); ++x)
                    expected.scanLine(y)[4 * x + 3] = static_cast<uchar>(255 - qBlue(mask.pixel(x, y)));
            QCOMPARE(result.format(), QImage::Format_ARGB32);
            QCOMPARE(result, expected);
        }
    QImage dense = randomImage(8, 8, 36);
    dense.setDevicePixelRatio(2.0);
    dense.setDotsPerMeterX(1234);
    QCOMPARE(cutout::cutOut(dense, dense).devicePixelRatio(), 2.0);
    QCOMPARE(cutout::cutOut(dense, dense).dotsPerMeterX(), 1234);
    QVERIFY(cutout::cutOut(QImage(), dense).isNull());
    QCOMPARE(cutout::cutOut(dense, QImage()), dense.convertToFormat(QImage::Format_ARGB32));
}

void TestPictureLoops::colourOverCheckerboard()
{
    const QImage opaque = plateauImage(23, 17, 4, 3, 41);
    const QImage transparent = randomArgbImage(16, 16, 42);
    for (const QImage &checkerboard :
         {opaque, transparent, transparent.copy(0, 0, 16, 2), opaque.convertToFormat(QImage::Format_Indexed8),
          opaque.convertToFormat(QImage::Format_Mono)})
        for (const QSize &size :
             {QSize(23, 17), QSize(200, 151), QSize(37, 500), QSize(10, 9), QSize(1, 1), QSize(16, 16),
              QSize(15, 17), QSize(17, 1031), QSize(1030, 1029), QSize(9, 380)})
            for (const QRgb colour :
                 {0x00000000U, 0x00FF0000U, 0x80FF8000U, 0x01020304U, 0xFE7F7F7FU, 0xFF336699U}) {
                const QImage layer = cutout::backgroundLayer(size, colour, checkerboard, {}).toImage();
                const QImage expected =
                    reference::backgroundLayer(colour, {}, checkerboard, size.width(), size.height())
                        .toImage();
                if (layer.convertToFormat(QImage::Format_ARGB32) !=
                    expected.convertToFormat(QImage::Format_ARGB32))
                    QFAIL(qPrintable(QStringLiteral("checkerboard format %1, %2 x %3, colour %4")
                                         .arg(checkerboard.format())
                                         .arg(size.width())
                                         .arg(size.height())
                                         .arg(colour, 8, 16)));
                QCOMPARE(layer.hasAlphaChannel(), expected.hasAlphaChannel());
            }
}

ORNEVO_TEST_MAIN(TestPictureLoops)
#include "tst_pictureloops.moc"
