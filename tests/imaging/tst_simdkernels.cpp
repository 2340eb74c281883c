// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/IndexPicture.h"
#include "imaging/BlurKernels.h"
#include "imaging/EdgeMap.h"
#include "imaging/FourChannelBlur.h"
#include "imaging/GaussianWeights.h"
#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/GaussianBlurReference.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"

#include <QTest>

#include <hwy/highway.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

using namespace testpictures;

/// The fast kernels against the plain ones, with every instruction set that this machine has.
class TestSimdKernels : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { hwy::SetSupportedTargetsForTest(0); }

    void edgeMap_data();
    void edgeMap();
    void edgeMapOfEveryGrey();
    void edgeMapOfAwkwardSizes();
    void edgeMapOfWidePictures();
    void edgeMapOfDeepBlack();
    void floatRootsOfSquares();

    void blur_data();
    void blur();
    void blurOfAwkwardSizes();
    void blurOfEveryGrey();
    void blurWithOddKernels();
    void wholeFactorsOfUsualKernels();

    void indicesInAnyOrder();
    void cutOutOfAnyFormat();
    void colourOverBoard();
};

namespace {

template <typename Check> void onEveryTarget(Check check)
{
    const std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
    QVERIFY(!targets.empty());
    for (const std::int64_t target : targets) {
        hwy::SetSupportedTargetsForTest(target);
        check(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(0);
        if (QTest::currentTestFailed())
            return;
    }
}

void compareEdgeMap(const QImage &picture)
{
    const std::vector<std::uint8_t> expected = reference::edgeMap(picture);
    onEveryTarget([&](const char *target) {
        constexpr std::uint8_t guard = 0xA5;
        std::vector<std::uint8_t> edges(expected.size() + 64, guard);
        computeEdgeMap(picture, edges.data());
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const std::uint8_t wanted = i < expected.size() ? expected[i] : guard;
            if (edges[i] != wanted)
                QFAIL(qPrintable(QStringLiteral("%1: element %2 of %3 x %4 is %5, not %6")
                                     .arg(target)
                                     .arg(i)
                                     .arg(picture.width())
                                     .arg(picture.height())
                                     .arg(edges[i])
                                     .arg(wanted)));
        }
    });
}

void compareBlur(const QImage &picture, int size, double sigma)
{
    QImage expected =
        randomArgbImage(picture.width(), picture.height(), 77).convertToFormat(picture.format());
    const QImage before = expected.copy();
    reference::fourChannelBlur(picture, expected, size, sigma);
    onEveryTarget([&](const char *target) {
        QImage blurred = before.copy();
        blurFourChannels(picture, blurred, size, sigma, {});
        for (int y = 0; y < blurred.height(); ++y)
            for (int i = 0; i < 4 * blurred.width(); ++i)
                if (blurred.constScanLine(y)[i] != expected.constScanLine(y)[i])
                    QFAIL(qPrintable(
                        QStringLiteral("%1, size %2, sigma %3: byte %4 of row %5 of %6 x %7 is %8, not %9")
                            .arg(target)
                            .arg(size)
                            .arg(sigma)
                            .arg(i)
                            .arg(y)
                            .arg(blurred.width())
                            .arg(blurred.height())
                            .arg(blurred.constScanLine(y)[i])
                            .arg(expected.constScanLine(y)[i])));
    });
}

} // namespace

void TestSimdKernels::edgeMap_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::newRow("random") << randomImage(301, 203, 1);
    QTest::newRow("random with alpha") << randomArgbImage(130, 70, 2);
    QTest::newRow("photo-like") << blobImage(640, 320, 3);
    QTest::newRow("ramp") << rampImage(256, 99, 1);
    QTest::newRow("steep ramp") << rampImage(256, 99, 7);
    QTest::newRow("tiles") << plateauImage(257, 129, 9, 4, 4);
    QTest::newRow("black and white tiles") << plateauImage(257, 129, 5, 2, 5);
    QTest::newRow("step") << stepImage(77, 41, 38, qRgb(0, 0, 0), qRgb(255, 255, 255));
    QTest::newRow("greys") << greyStepsImage(200, 100, 6);
    QTest::newRow("sparse") << greyImage(150, 90, sparsePlane(150, 90, 40, 7));
    QTest::newRow("padded") << paddedImage(randomImage(61, 33, 8), 5, 9);
    QTest::newRow("white") << constantImage(65, 65, qRgb(255, 255, 255));
}

void TestSimdKernels::edgeMap()
{
    QFETCH(QImage, picture);
    compareEdgeMap(picture);
}

// A constant plane inside a frame of another grey: the flat part of every level, and all steps up to it.
void TestSimdKernels::edgeMapOfEveryGrey()
{
    for (int grey = 0; grey < 256; ++grey) {
        QImage picture = constantImage(60, 40, qRgb(grey, 255 - grey, (grey * 7) % 256));
        for (int y = 12; y < 28; ++y)
            for (int x = 15; x < 45; ++x)
                picture.setPixel(x, y, qRgb(239, 0, (grey * 3) % 256));
        compareEdgeMap(picture);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestSimdKernels::edgeMapOfAwkwardSizes()
{
    QList<QSize> sizes = awkwardSizes();
    for (int width = 1; width < 84; ++width)
        sizes.append(QSize(width, 9 + width % 5));
    for (int height = 1; height < 16; ++height)
        sizes.append(QSize(23, height));
    for (const QSize &size : sizes) {
        if (size.isEmpty())
            continue;
        compareEdgeMap(randomImage(size.width(), size.height(), 11));
        if (QTest::currentTestFailed())
            return;
    }
}

// Around the width at which a picture is worked off in more than one column.
void TestSimdKernels::edgeMapOfWidePictures()
{
    for (const int width :
         {1020, 1023, 1024, 1025, 1027, 1028, 1029, 1031, 1032, 1060, 2047, 2048, 2052, 2053, 3100}) {
        compareEdgeMap(randomImage(width, 12, static_cast<std::uint32_t>(width)));
        if (QTest::currentTestFailed())
            return;
    }
}

// Nearly black areas, where products are small and zeros abound.
void TestSimdKernels::edgeMapOfDeepBlack()
{
    for (std::uint32_t seed = 0; seed < 8; ++seed) {
        compareEdgeMap(greyImage(180, 120, plateauPlane(180, 120, 2 + static_cast<int>(seed), seed)));
        compareEdgeMap(greyImage(180, 120, sparsePlane(180, 120, 200, seed)));
        if (QTest::currentTestFailed())
            return;
    }
}

// Why gradients may be measured in floats: up to the largest sum of squares the root is cut to the same
// number.
void TestSimdKernels::floatRootsOfSquares()
{
    for (int n = 0; n <= 2 * 1020 * 1020; ++n)
        if (static_cast<int>(std::sqrt(static_cast<float>(n))) !=
            static_cast<int>(std::sqrt(static_cast<double>(n))))
            QFAIL(qPrintable(QString::number(n)));
}

void TestSimdKernels::blur_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::newRow("mask") << blobMaskImage(400, 300, 1);
    QTest::newRow("mask in RGB32") << blobMaskImage(333, 200, 2).convertToFormat(QImage::Format_RGB32);
    QTest::newRow("random") << randomArgbImage(200, 90, 3);
    QTest::newRow("photo-like") << blobImage(320, 200, 4);
    QTest::newRow("large tiles") << plateauImage(520, 260, 100, 5, 5);
    QTest::newRow("tiles of a block") << plateauImage(520, 160, 16, 3, 6);
    QTest::newRow("step off the blocks") << stepImage(200, 60, 101, qRgb(0, 0, 0), qRgb(255, 255, 255));
    QTest::newRow("flat") << constantImage(150, 70, qRgb(255, 255, 255));
    QTest::newRow("padded") << paddedImage(blobMaskImage(210, 90, 7), 3, 8);
}

void TestSimdKernels::blur()
{
    QFETCH(QImage, picture);
    for (const int size : {-1, 0, 1, 2, 3, 5, 8, 9, 15, 32, 33, 34, 41}) {
        compareBlur(picture, size, std::max(size, 1) / 5.0);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestSimdKernels::blurOfAwkwardSizes()
{
    QList<QSize> sizes = awkwardSizes();
    for (int width = 1; width < 100; ++width)
        sizes.append(QSize(width, 7 + width % 4));
    for (const QSize &size : sizes) {
        if (size.isEmpty())
            continue;
        compareBlur(randomArgbImage(size.width(), size.height(), 12), 5, 1.0);
        compareBlur(constantImage(size.width(), size.height(), 0xFF101112U), 5, 1.0);
        if (QTest::currentTestFailed())
            return;
    }
}

// One level in a frame of another, wide enough for whole blocks to be flat.
void TestSimdKernels::blurOfEveryGrey()
{
    for (int grey = 0; grey < 256; ++grey) {
        QImage picture = constantImage(180, 40, qRgb(255 - grey, grey, 17));
        for (int y = 15; y < 25; ++y)
            for (int x = 85; x < 97; ++x)
                picture.setPixel(x, y, qRgb(grey, grey, grey));
        compareBlur(picture, 5, 1.0);
        if (QTest::currentTestFailed())
            return;
    }
}

// Kernels that no setting of the program makes, among them those that change nothing.
void TestSimdKernels::blurWithOddKernels()
{
    const QImage mask = blobMaskImage(150, 70, 13);
    const QImage random = randomArgbImage(90, 40, 14);
    for (const double sigma :
         {0.0, -1.0, 1e-3, 0.1, 0.33, 0.5, 0.7, 1.3, 2.9, 50.0, 1e6, 1e200, std::nan("")})
        for (const int size : {1, 3, 4, 7, 13}) {
            compareBlur(mask, size, sigma);
            compareBlur(random, size, sigma);
            if (QTest::currentTestFailed())
                return;
        }
}

// The vertical pass is fast where its weights have whole factors: the usual kernels must.
void TestSimdKernels::wholeFactorsOfUsualKernels()
{
    for (const int size : {3, 5, 7, 9, 11})
        QVERIFY2(blurkernels::wholeFactors(gaussianHalfKernel(size, size / 5.0)),
                 qPrintable(QString::number(size)));
}

void TestSimdKernels::indicesInAnyOrder()
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
void TestSimdKernels::cutOutOfAnyFormat()
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

void TestSimdKernels::colourOverBoard()
{
    const QImage opaque = plateauImage(23, 17, 4, 3, 41);
    const QImage transparent = randomArgbImage(16, 16, 42);
    for (const QImage &board :
         {opaque, transparent, transparent.copy(0, 0, 16, 2), opaque.convertToFormat(QImage::Format_Indexed8),
          opaque.convertToFormat(QImage::Format_Mono)})
        for (const QSize &size :
             {QSize(23, 17), QSize(200, 151), QSize(37, 500), QSize(10, 9), QSize(1, 1), QSize(16, 16),
              QSize(15, 17), QSize(17, 1031), QSize(1030, 1029), QSize(9, 380)})
            for (const QRgb colour :
                 {0x00000000U, 0x00FF0000U, 0x80FF8000U, 0x01020304U, 0xFE7F7F7FU, 0xFF336699U}) {
                const QImage layer = cutout::backgroundLayer(size, colour, board, {}).toImage();
                const QImage expected =
                    reference::backgroundLayer(colour, {}, board, size.width(), size.height()).toImage();
                if (layer.convertToFormat(QImage::Format_ARGB32) !=
                    expected.convertToFormat(QImage::Format_ARGB32))
                    QFAIL(qPrintable(QStringLiteral("board format %1, %2 x %3, colour %4")
                                         .arg(board.format())
                                         .arg(size.width())
                                         .arg(size.height())
                                         .arg(colour, 8, 16)));
                QCOMPARE(layer.hasAlphaChannel(), expected.hasAlphaChannel());
            }
}

ORNEVO_TEST_MAIN(TestSimdKernels)
#include "tst_simdkernels.moc"
