// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeMap.h"
#include "imaging/GaussianWeights.h"
#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"

#include <QTest>

#include <hwy/highway.h>

#include <cmath>
#include <cstdint>
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
                                     .arg(target).arg(i).arg(picture.width()).arg(picture.height())
                                     .arg(edges[i]).arg(wanted)));
        }
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
    for (const int width : {1020, 1023, 1024, 1025, 1027, 1028, 1029, 1031, 1032, 1060, 2047, 2048, 2052, 2053, 3100}) {
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

// Why gradients may be measured in floats: up to the largest sum of squares the root is cut to the same number.
void TestSimdKernels::floatRootsOfSquares()
{
    for (int n = 0; n <= 2 * 1020 * 1020; ++n)
        if (static_cast<int>(std::sqrt(static_cast<float>(n))) != static_cast<int>(std::sqrt(static_cast<double>(n))))
            QFAIL(qPrintable(QString::number(n)));
}

ORNEVO_TEST_MAIN(TestSimdKernels)
#include "tst_simdkernels.moc"
