// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeDetectors.h"
#include "tests/imaging/Planes.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"
#include "tests/support/TestMain.h"

#include <limits>
#include <memory>
#include <new>

using reference::Plane;
using reference::PlaneOf;
using testsupport::described;
using testsupport::GuardedPlane;
using testsupport::planeFrom;
using testsupport::planesOfAllKinds;
using testsupport::viewOf;

namespace {

using Bytes = std::vector<std::uint8_t>;
using View = CFrImage<unsigned char>;

/// What FrSobelEdgeDetector makes of a plane.
Plane magnitudes(Plane src)
{
    View srcView = viewOf(src);
    View dst;
    FrSobelEdgeDetector(&srcView, &dst);
    const std::unique_ptr<unsigned char[]> owner(dst.data);
    return planeFrom({dst.width, dst.height}, Bytes(dst.data, dst.data + src.data.size()));
}

/// A colour picture, packed, as the colour detectors read it.
View packedView(Bytes &picture, QSize size, int channels = 4)
{
    return {picture.data(), size.width(), size.height(), channels, 1};
}

Bytes packed(QSize size, std::uint32_t seed)
{
    return testpictures::randomPlane(4 * size.width(), size.height(), seed);
}

template <typename T> PlaneOf<T> garbage(QSize size)
{
    return PlaneOf<T>(size.width(), size.height(), T{0xA7});
}

} // namespace

class TestEdgeDetectors : public QObject
{
    Q_OBJECT

private slots:
    void sobelAgrees_data();
    void sobelAgrees();
    void sobelLooksAtTheXOrderOnly();
    void sobelIsExactAtItsEnds();
    void magnitudeAgrees();
    void magnitudeSetsUpItsOutput();
    void magnitudeOfASharpStepWraps();
    void magnitudeOfThreeHundredIsFortyFour();
    void magnitudeWithoutMemoryLeavesItsOutput();
    void magnitudeOfAPlaneWithoutPixels();
    void colourDifferenceAgrees();
    void colourDifferenceKeepsLastRowAndColumn();
    void colourDifferenceAtItsLargest();
    void colourDifferenceIgnoresTheFourthByteAndTheChannels();
};

void TestEdgeDetectors::sobelAgrees_data()
{
    QTest::addColumn<int>("xOrder");
    for (const int xOrder : {1, 0, -1, 2})
        QTest::addRow("x order %d", xOrder) << xOrder;
}

void TestEdgeDetectors::sobelAgrees()
{
    QFETCH(int, xOrder);
    for (const QSize size : testpictures::awkwardSizes()) {
        for (const Plane &picture : planesOfAllKinds(size, 23)) {
            Plane src = picture;
            GuardedPlane<short> dst(garbage<short>(size));
            const View srcView = viewOf(src);
            CFrImage<short> dstView = dst.view();
            QCOMPARE(cvSobel(&srcView, &dstView, xOrder, 0, 3), 0);
            QVERIFY(dst.guardsWhole() && src == picture);
            VERIFY_SAME(described(size), dst.values(), reference::sobel(picture, xOrder).data, size.width());
        }
    }
}

void TestEdgeDetectors::sobelLooksAtTheXOrderOnly()
{
    Plane src = planeFrom({9, 9}, testpictures::randomPlane(9, 9, 1));
    const View srcView = viewOf(src);
    for (const int xOrder : {0, 1}) {
        for (const int other : {0, 1, 5, -3}) {
            PlaneOf<short> dst(9, 9);
            CFrImage<short> dstView = viewOf(dst);
            cvSobel(&srcView, &dstView, xOrder, other, other);
            VERIFY_SAME("others", dst.data, reference::sobel(src, xOrder).data, 9);
        }
    }
}

void TestEdgeDetectors::sobelIsExactAtItsEnds()
{
    for (const bool rising : {true, false}) {
        const std::uint8_t left = rising ? 0 : 255;
        const std::uint8_t right = rising ? 255 : 0;
        Plane src = planeFrom({4, 3}, testpictures::stepPlane(4, 3, 2, left, right));
        PlaneOf<short> dst(4, 3);
        const View srcView = viewOf(src);
        CFrImage<short> dstView = viewOf(dst);
        cvSobel(&srcView, &dstView, 1, 0, 3);
        QCOMPARE(int(dst.at(1, 1)), rising ? 1020 : -1020);
    }
}

void TestEdgeDetectors::magnitudeAgrees()
{
    for (const QSize size : testpictures::awkwardSizes())
        for (const Plane &picture : planesOfAllKinds(size, 29))
            VERIFY_SAME(described(size), magnitudes(picture).data, reference::sobelMagnitude(picture).data,
                        size.width());
}

void TestEdgeDetectors::magnitudeSetsUpItsOutput()
{
    unsigned char ofTheCaller[4] = {1, 2, 3, 4}; // on the stack: to release it would be noticed
    Plane src = planeFrom({7, 5}, testpictures::randomPlane(7, 5, 2));
    const Plane before = src;
    View srcView = viewOf(src);
    View dst{ofTheCaller, -1, -2, 9, 9};
    QCOMPARE(FrSobelEdgeDetector(&srcView, &dst), 0);
    const std::unique_ptr<unsigned char[]> owner(dst.data);
    QVERIFY(dst.data != ofTheCaller && dst.data != src.data.data());
    QCOMPARE(dst.width, 7);
    QCOMPARE(dst.height, 5);
    QCOMPARE(dst.channels, 1);
    QCOMPARE(dst.depth, 1);
    QVERIFY(src == before);
    QCOMPARE(ofTheCaller[0], static_cast<unsigned char>(1));
}

void TestEdgeDetectors::magnitudeOfASharpStepWraps()
{
    const Plane edges = magnitudes(planeFrom({6, 5}, testpictures::stepPlane(6, 5, 3, 0, 255)));
    QCOMPARE(int(edges.at(2, 2)), 252); // 1020 modulo 256
    QCOMPARE(int(edges.at(3, 2)), 252);
    QCOMPARE(int(edges.at(1, 2)), 0);
    QCOMPARE(int(edges.at(2, 0)), 0); // the frame
}

void TestEdgeDetectors::magnitudeOfThreeHundredIsFortyFour()
{
    const Plane edges = magnitudes(planeFrom({4, 3}, testpictures::stepPlane(4, 3, 2, 0, 75)));
    QCOMPARE(int(edges.at(1, 1)), 44);
}

void TestEdgeDetectors::magnitudeWithoutMemoryLeavesItsOutput()
{
#if defined(ORNEVO_ADDRESS_SANITIZER)
    QSKIP("the sanitizer ends the program where the allocation fails");
#endif
    unsigned char pixel = 0;
    View src{&pixel, std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), 1, 1};
    View dst{&pixel, 3, 4, 5, 6};
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc, FrSobelEdgeDetector(&src, &dst));
    QVERIFY(dst.data == &pixel && dst.width == 3 && dst.height == 4 && dst.channels == 5 && dst.depth == 6);
}

void TestEdgeDetectors::magnitudeOfAPlaneWithoutPixels()
{
    for (const QSize size : {QSize(0, 0), QSize(0, 5), QSize(5, 0)}) {
        Plane src(size.width(), size.height());
        View srcView = viewOf(src);
        View dst;
        QCOMPARE(FrSobelEdgeDetector(&srcView, &dst), 0);
        const std::unique_ptr<unsigned char[]> owner(dst.data);
        QCOMPARE(QSize(dst.width, dst.height), size);
    }
}

void TestEdgeDetectors::colourDifferenceAgrees()
{
    for (const QSize size : testpictures::awkwardSizes()) {
        Bytes picture = packed(size, 31);
        const Bytes before = picture;
        View src = packedView(picture, size);
        PlaneOf<unsigned short> expected16 = garbage<unsigned short>(size);
        Plane expected8 = garbage<unsigned char>(size);
        GuardedPlane<unsigned short> sums(expected16);
        GuardedPlane<unsigned char> ninths(expected8);
        reference::colorDifference16(picture, expected16);
        reference::colorDifference8(picture, expected8);
        CFrImage<unsigned short> sumsView = sums.view();
        View ninthsView = ninths.view();
        QCOMPARE(FrColorRCEdgeDetector(&src, &sumsView), 0);
        QCOMPARE(FrColorRCEdgeDetector(&src, &ninthsView), 0);
        QVERIFY(sums.guardsWhole() && ninths.guardsWhole() && picture == before);
        VERIFY_SAME(described(size), sums.values(), expected16.data, size.width());
        VERIFY_SAME(described(size), ninths.values(), expected8.data, size.width());
    }
}

void TestEdgeDetectors::colourDifferenceKeepsLastRowAndColumn()
{
    const QSize size(6, 4);
    Bytes picture = packed(size, 3);
    View src = packedView(picture, size);
    Plane dst(6, 4, 0xEE);
    View dstView = viewOf(dst);
    FrColorRCEdgeDetector(&src, &dstView);
    for (int x = 0; x < 6; ++x)
        QCOMPARE(int(dst.at(x, 3)), 0xEE);
    for (int y = 0; y < 4; ++y)
        QCOMPARE(int(dst.at(5, y)), 0xEE);
}

void TestEdgeDetectors::colourDifferenceAtItsLargest()
{
    Bytes picture(16, 0);
    std::fill_n(picture.begin(), 3, std::uint8_t{255});
    View src = packedView(picture, {2, 2});
    PlaneOf<unsigned short> sums(2, 2, 7);
    CFrImage<unsigned short> sumsView = viewOf(sums);
    FrColorRCEdgeDetector(&src, &sumsView);
    QCOMPARE(int(sums.at(0, 0)), 2295);
    Plane ninths(2, 2, 7);
    View ninthsView = viewOf(ninths);
    FrColorRCEdgeDetector(&src, &ninthsView);
    QCOMPARE(int(ninths.at(0, 0)), 255);
}

void TestEdgeDetectors::colourDifferenceIgnoresTheFourthByteAndTheChannels()
{
    const QSize size(9, 7);
    Bytes picture = packed(size, 4);
    Bytes opaque = picture;
    for (std::size_t i = 3; i < opaque.size(); i += 4)
        opaque[i] = static_cast<std::uint8_t>(~opaque[i]);
    Plane one(9, 7);
    Plane other(9, 7);
    View oneView = viewOf(one);
    View otherView = viewOf(other);
    View src = packedView(picture, size, 1);
    View opaqueSrc = packedView(opaque, size, 4);
    FrColorRCEdgeDetector(&src, &oneView);
    FrColorRCEdgeDetector(&opaqueSrc, &otherView);
    VERIFY_SAME("fourth byte", one.data, other.data, 9);
    QVERIFY(std::count(one.data.begin(), one.data.end(), 0) < 40);
}

ORNEVO_TEST_MAIN(TestEdgeDetectors)
#include "tst_edgedetectors.moc"
