// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/GaussianBlur.h"
#include "tests/imaging/Planes.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"
#include "tests/support/TestMain.h"

#include <cmath>
#include <functional>
#include <limits>

using reference::Plane;
using testsupport::described;
using testsupport::GuardedPlane;
using testsupport::planeFrom;
using testsupport::planesOfAllKinds;
using testsupport::viewOf;

namespace {

using View = CFrImage<unsigned char>;
using Filter = std::function<int(View *, View *)>;
using ReferenceFilter = std::function<void(const Plane &, Plane &)>;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// Empty when the filter gives what the reference gives, to the bit, in place of whatever dst held before.
QByteArray complaint(const Filter &filter, const ReferenceFilter &referenceFilter, const Plane &picture)
{
    Plane src = picture;
    const Plane garbage =
        planeFrom({src.width, src.height}, testpictures::randomPlane(src.width, src.height, 4711));
    Plane expected = garbage;
    referenceFilter(picture, expected);
    GuardedPlane<unsigned char> dst(garbage);
    View srcView = viewOf(src);
    View dstView = dst.view();
    if (filter(&srcView, &dstView) != 0)
        return "did not return 0";
    if (!dst.guardsWhole())
        return "wrote outside the plane";
    if (!(src == picture))
        return "changed its input";
    return testsupport::firstDifference(dst.values(), expected.data, src.width);
}

/// The same over all awkward sizes and kinds of picture.
QByteArray complaintAnywhere(const Filter &filter, const ReferenceFilter &referenceFilter)
{
    for (const QSize size : testpictures::awkwardSizes()) {
        int kind = 0;
        for (const Plane &picture : planesOfAllKinds(size, 17)) {
            const QByteArray words = complaint(filter, referenceFilter, picture);
            if (!words.isEmpty())
                return described(size) + ", kind " + QByteArray::number(kind) + ": " + words;
            ++kind;
        }
    }
    return {};
}

Filter any(double sigma, int size)
{
    return [=](View *src, View *dst) { return FrGaussianBlurAny(src, dst, sigma, size); };
}

ReferenceFilter referenceAny(double sigma, int size)
{
    return [=](const Plane &src, Plane &dst) { reference::blurAny(src, dst, sigma, size); };
}

Filter ninetyNine(double sigma)
{
    return [=](View *src, View *dst) { return FrGaussianBlur99(src, dst, sigma); };
}

ReferenceFilter referenceNinetyNine(double sigma)
{
    return [=](const Plane &src, Plane &dst) { reference::blur99(src, dst, sigma); };
}

Plane filtered(const Filter &filter, Plane src)
{
    Plane dst(src.width, src.height, 99);
    View srcView = viewOf(src);
    View dstView = viewOf(dst);
    filter(&srcView, &dstView);
    return dst;
}

Plane constant(int width, int height, std::uint8_t value)
{
    return Plane(width, height, value);
}

Plane impulse(int side, std::uint8_t value)
{
    Plane plane(side, side, 0);
    plane.at(side / 2, side / 2) = value;
    return plane;
}

} // namespace

class TestGaussianBlur : public QObject
{
    Q_OBJECT

private slots:
    void unusableSigmaGivesTheKernelThatChangesNothing_data();
    void unusableSigmaGivesTheKernelThatChangesNothing();
    void anyAgrees_data();
    void anyAgrees();
    void anyWithDegenerateParameters_data();
    void anyWithDegenerateParameters();
    void anyWithAnEvenSizeBrightens();
    void anyWiderThanThePictureCopies_data();
    void anyWiderThanThePictureCopies();
    void anyOfAConstantLosesAtMostRadius();
    void anyCutsAfterEveryTap();
    void ninetyNineAgrees_data();
    void ninetyNineAgrees();
    void ninetyNineOfAConstant();
    void constantsShowTheOrderOfTheSum();
    void rampsShowHowPairsAreAdded_data();
    void rampsShowHowPairsAreAdded();
    void fastAgrees();
    void fastOfAConstant();
    void fastLeavesABandOfFive();
    void thirtyThreeAgrees();
    void thirtyThreeOfWhite();
    void thirtyThreeWeighsTheRightNeighbourHalf();
    void thirtyThreeGoesByTheSizeOfTheTarget();
    void onePixelInteriorOf2rPlus1_data();
    void onePixelInteriorOf2rPlus1();
    void inPlace();
    void moreThanOneChannelWritesNothing();
};

void TestGaussianBlur::unusableSigmaGivesTheKernelThatChangesNothing_data()
{
    QTest::addColumn<double>("sigma");
    for (const double sigma : {0.0, -0.0, notANumber, infinite, -infinite, 1e200, -1e200, 1e-200})
        QTest::addRow("%g", sigma) << sigma;
}

void TestGaussianBlur::unusableSigmaGivesTheKernelThatChangesNothing()
{
    QFETCH(double, sigma);
    const Plane picture = planeFrom({20, 20}, testpictures::randomPlane(20, 20, 3));
    QVERIFY(filtered(any(sigma, 7), picture) == picture);
    QVERIFY(filtered(ninetyNine(sigma), picture) == picture);
}

void TestGaussianBlur::anyAgrees_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("sigma");
    for (const int size : {1, 3, 5, 7, 9, 15})
        for (const double sigma : {0.6, 1.4, 5.0})
            QTest::addRow("size %d, sigma %g", size, sigma) << size << sigma;
}

void TestGaussianBlur::anyAgrees()
{
    QFETCH(int, size);
    QFETCH(double, sigma);
    const QByteArray words = complaintAnywhere(any(sigma, size), referenceAny(sigma, size));
    QVERIFY2(words.isEmpty(), words.constData());
}

void TestGaussianBlur::anyWithDegenerateParameters_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("sigma");
    for (const int size : {0, -1, -7, std::numeric_limits<int>::min(), 2, 4, 6, 31, 64, 201})
        QTest::addRow("size %d", size) << size << 1.4;
    for (const double sigma : {0.0, -1.4, notANumber, infinite, 1e200, 1e-200, 1e-3, 1e9})
        QTest::addRow("sigma %g", sigma) << 7 << sigma;
}

void TestGaussianBlur::anyWithDegenerateParameters()
{
    anyAgrees();
}

void TestGaussianBlur::anyWithAnEvenSizeBrightens()
{
    // An even kernel is applied with one tap more than it was normalised for.
    const Plane grey = constant(21, 21, 100);
    QVERIFY(filtered(any(1.4, 4), grey).at(10, 10) > 100);
    QVERIFY(filtered(any(1.4, 5), grey).at(10, 10) <= 100);
}

void TestGaussianBlur::anyWiderThanThePictureCopies_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {22, 23, 41, 1 << 20, 1 << 30, std::numeric_limits<int>::max()})
        QTest::addRow("%d", size) << size;
}

void TestGaussianBlur::anyWiderThanThePictureCopies()
{
    QFETCH(int, size);
    const Plane picture = planeFrom({21, 22}, testpictures::randomPlane(21, 22, 5));
    QVERIFY(filtered(any(1.4, size), picture) == picture);
}

void TestGaussianBlur::anyOfAConstantLosesAtMostRadius()
{
    constexpr int radius = 3;
    bool lost = false;
    for (int value = 0; value <= 255; ++value) {
        const Plane blurred = filtered(any(1.4, 7), constant(9, 9, static_cast<std::uint8_t>(value)));
        const int centre = blurred.at(4, 4);
        QVERIFY2(centre <= value && centre >= value - radius - 1, qPrintable(QString::number(value)));
        lost = lost || centre < value;
        QCOMPARE(int(blurred.at(2, 4)), value); // the border band is a copy
    }
    QVERIFY(lost);
}

void TestGaussianBlur::anyCutsAfterEveryTap()
{
    // Truncated once at the end, the picture would come out brighter somewhere.
    const Plane picture = planeFrom({33, 33}, testpictures::randomPlane(33, 33, 8));
    const Plane tapwise = filtered(any(1.4, 9), picture);
    const Plane once = filtered(ninetyNine(1.4), picture);
    int darker = 0;
    for (std::size_t i = 0; i < tapwise.data.size(); ++i) {
        QVERIFY(tapwise.data[i] <= once.data[i]);
        darker += tapwise.data[i] < once.data[i] ? 1 : 0;
    }
    QVERIFY(darker > 0);
}

void TestGaussianBlur::ninetyNineAgrees_data()
{
    QTest::addColumn<double>("sigma");
    for (const double sigma : {0.3, 1.0, 1.4, 3.0, 100.0, 0.0, -2.0, notANumber, infinite, 1e-200})
        QTest::addRow("%g", sigma) << sigma;
}

void TestGaussianBlur::ninetyNineAgrees()
{
    QFETCH(double, sigma);
    const QByteArray words = complaintAnywhere(ninetyNine(sigma), referenceNinetyNine(sigma));
    QVERIFY2(words.isEmpty(), words.constData());
}

void TestGaussianBlur::ninetyNineOfAConstant()
{
    for (int value = 0; value <= 255; ++value) {
        const Plane blurred = filtered(ninetyNine(1.4), constant(12, 12, static_cast<std::uint8_t>(value)));
        QVERIFY(blurred.at(6, 6) == value || blurred.at(6, 6) == value - 1);
        QCOMPARE(int(blurred.at(3, 6)), value);
    }
}

void TestGaussianBlur::constantsShowTheOrderOfTheSum()
{
    // A sum of doubles depends on its order by a hair, and on a constant picture the hair decides whether the
    // value or one less is stored: here it shows whether the pairs are added from the centre outward.
    int otherwise = 0;
    for (const double sigma : {0.7, 1.0, 1.4, 2.0, 3.3}) {
        const std::vector<double> weights = reference::gaussianWeights(9, sigma);
        for (int value = 0; value <= 255; ++value) {
            const Plane picture = constant(9, 9, static_cast<std::uint8_t>(value));
            const QByteArray words = complaint(ninetyNine(sigma), referenceNinetyNine(sigma), picture);
            QVERIFY2(words.isEmpty(), words.constData());
            double horizontal = 0.0;
            for (const double weight : weights)
                horizontal += weight * value;
            double both = 0.0;
            for (const double weight : weights)
                both += weight * horizontal;
            otherwise += static_cast<int>(both) != filtered(ninetyNine(sigma), picture).at(4, 4) ? 1 : 0;
        }
    }
    QVERIFY2(otherwise > 0, "from left to right the sums came out the same: nothing was shown");
}

void TestGaussianBlur::rampsShowHowPairsAreAdded_data()
{
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    for (const int across : {-9, 0, 3, 13})
        for (const int down : {-11, 0, 7, 14})
            QTest::addRow("%d across, %d down", across, down) << across << down;
}

void TestGaussianBlur::rampsShowHowPairsAreAdded()
{
    // On an even slope the two pixels of a pair differ while the sum comes out within a hair of a whole
    // number, so that it shows whether a pair is added before it is weighted.
    QFETCH(int, across);
    QFETCH(int, down);
    for (int middle = 120; middle <= 136; ++middle) {
        Plane picture(9, 9);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 9; ++x)
                picture.at(x, y) = static_cast<std::uint8_t>(middle + (x - 4) * across + (y - 4) * down);
        for (int i = 1; i <= 60; ++i) {
            const double sigma = 0.1 * i;
            const QByteArray once = complaint(ninetyNine(sigma), referenceNinetyNine(sigma), picture);
            QVERIFY2(once.isEmpty(), once.constData());
            const QByteArray tapwise = complaint(any(sigma, 9), referenceAny(sigma, 9), picture);
            QVERIFY2(tapwise.isEmpty(), tapwise.constData());
        }
    }
}

void TestGaussianBlur::fastAgrees()
{
    const QByteArray words = complaintAnywhere(FrGaussianBlurFast, reference::blurFast);
    QVERIFY2(words.isEmpty(), words.constData());
}

void TestGaussianBlur::fastOfAConstant()
{
    for (int value = 0; value <= 255; ++value) {
        const Plane picture = constant(14, 14, static_cast<std::uint8_t>(value));
        const Plane blurred = filtered(FrGaussianBlurFast, picture);
        QVERIFY(blurred.at(7, 7) == value || blurred.at(7, 7) == value - 1);
    }
}

void TestGaussianBlur::fastLeavesABandOfFive()
{
    const Plane picture = planeFrom({20, 20}, testpictures::randomPlane(20, 20, 6));
    const Plane blurred = filtered(FrGaussianBlurFast, picture);
    int changed = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool inner = x >= 5 && x < 15 && y >= 5 && y < 15;
            QVERIFY(inner || blurred.at(x, y) == picture.at(x, y));
            changed += blurred.at(x, y) != picture.at(x, y) ? 1 : 0;
        }
    }
    QVERIFY(changed > 80);
}

void TestGaussianBlur::thirtyThreeAgrees()
{
    const QByteArray words = complaintAnywhere(FrGaussianBlur33, reference::blur33);
    QVERIFY2(words.isEmpty(), words.constData());
}

void TestGaussianBlur::thirtyThreeOfWhite()
{
    const Plane blurred = filtered(FrGaussianBlur33, constant(9, 8, 255));
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 9; ++x)
            QCOMPARE(int(blurred.at(x, y)), x >= 2 && x < 7 && y >= 2 && y < 6 ? 206 : 0);
}

void TestGaussianBlur::thirtyThreeWeighsTheRightNeighbourHalf()
{
    const Plane blurred = filtered(FrGaussianBlur33, impulse(9, 255));
    QCOMPARE(int(blurred.at(3, 4)), 13); // sees the light on its right
    QCOMPARE(int(blurred.at(5, 4)), 28); // on its left
    QCOMPARE(int(blurred.at(4, 3)), 28);
    QCOMPARE(int(blurred.at(4, 5)), 28);
    QCOMPARE(int(blurred.at(4, 4)), 57);
    QCOMPARE(int(blurred.at(3, 3)), 13);
}

void TestGaussianBlur::thirtyThreeGoesByTheSizeOfTheTarget()
{
    Plane src = planeFrom({12, 12}, testpictures::randomPlane(12, 12, 9));
    Plane upper = planeFrom({12, 9}, {src.data.begin(), src.data.begin() + 12 * 9});
    Plane expected(12, 9, 1);
    reference::blur33(upper, expected);
    Plane dst(12, 9, 1);
    View srcView = viewOf(src);
    View dstView = viewOf(dst);
    QCOMPARE(FrGaussianBlur33(&srcView, &dstView), 0);
    VERIFY_SAME("the upper nine rows", dst.data, expected.data, 12);
}

void TestGaussianBlur::onePixelInteriorOf2rPlus1_data()
{
    QTest::addColumn<int>("radius");
    for (const int radius : {1, 2, 3, 7})
        QTest::addRow("%d", radius) << radius;
}

void TestGaussianBlur::onePixelInteriorOf2rPlus1()
{
    QFETCH(int, radius);
    const int side = 2 * radius + 1;
    const Plane picture = impulse(side, 255);
    Plane blurred = filtered(any(1.4, side), picture);
    QVERIFY(blurred.at(radius, radius) < 255);
    blurred.at(radius, radius) = 255;
    QVERIFY(blurred == picture); // and nothing else
    // One row or one column less, and there is no interior.
    for (const QSize size : {QSize(side - 1, side), QSize(side, side - 1)}) {
        const Plane smaller = planeFrom(size, testpictures::randomPlane(size.width(), size.height(), 2));
        QVERIFY(filtered(any(1.4, side), smaller) == smaller);
    }
}

void TestGaussianBlur::inPlace()
{
    for (const QSize size : testpictures::awkwardSizes()) {
        const Plane picture = planeFrom(size, testpictures::randomPlane(size.width(), size.height(), 12));
        for (const Filter &filter : {any(1.4, 7), any(2.0, 1), ninetyNine(1.4)}) {
            Plane plane = picture;
            View view = viewOf(plane);
            QCOMPARE(filter(&view, &view), 0);
            VERIFY_SAME(described(size), plane.data, filtered(filter, picture).data, size.width());
        }
    }
}

void TestGaussianBlur::moreThanOneChannelWritesNothing()
{
#ifndef NDEBUG
    QSKIP("a debug build stops the caller with an assertion");
#else
    Plane src = constant(24, 12, 50);
    const Plane before = constant(24, 12, 77);
    for (const Filter &filter : {Filter(FrGaussianBlurFast), Filter(FrGaussianBlur33)}) {
        Plane dst = before;
        View srcView{src.data.data(), 12, 12, 2, 1};
        View dstView{dst.data.data(), 12, 12, 2, 1};
        QCOMPARE(filter(&srcView, &dstView), 0);
        QVERIFY(dst == before);
    }
#endif
}

ORNEVO_TEST_MAIN(TestGaussianBlur)
#include "tst_gaussianblur.moc"
