// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeMap.h"
#include "tests/imaging/Planes.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

using testsupport::described;
using testsupport::GuardedPlane;

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The edge map of a picture, or nothing if memory around it was written.
Bytes edgeMapOf(const QImage &picture)
{
    GuardedPlane<unsigned char> edges(reference::Plane(picture.width(), picture.height(), 0x3C));
    imaging::computeEdgeMap(picture, edges.view().data);
    return edges.guardsWhole() ? edges.values() : Bytes();
}

QList<QImage> picturesOfAllKinds(QSize size, std::uint32_t seed)
{
    const int w = size.width();
    const int h = size.height();
    return {testpictures::randomImage(w, h, seed),
            testpictures::rampImage(w, h, 9),
            testpictures::stepImage(w, h, w / 2, 0xFF000000, 0xFFFFFFFF),
            testpictures::stepImage(w, h, w / 3, 0xFFFF0000, 0xFF0000FF),
            testpictures::plateauImage(w, h, 4, 5, seed),
            testpictures::greyStepsImage(w, h, seed),
            testpictures::blobImage(w, h, seed)};
}

int at(const Bytes &edges, int width, int x, int y)
{
    return edges.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                    static_cast<std::size_t>(x));
}

} // namespace

class TestEdgeMap : public QObject
{
    Q_OBJECT

private slots:
    void agrees();
    void agreesOnConstants();
    void agreesOnPaddedPictures();
    void agreesOnPhotographs();
    void blackIsEdgeAllOver();
    void constantLeavesAFaintRing();
    void frameIsFlatWhereTheMeanIsPositive();
    void strongestEdgeIs255();
    void pixelAtTheMeanIsLifted();
    void ignoresTheFourthByte();
    void tallAndWide();
    void nullPicture();
};

void TestEdgeMap::agrees()
{
    for (const QSize size : testpictures::awkwardSizes())
        for (const QImage &picture : picturesOfAllKinds(size, 41))
            VERIFY_SAME(described(size), edgeMapOf(picture), reference::edgeMap(picture), size.width());
}

void TestEdgeMap::agreesOnConstants()
{
    for (int grey = 0; grey <= 255; ++grey) {
        const QImage picture = testpictures::constantImage(13, 11, qRgb(grey, 255 - grey, grey / 2));
        VERIFY_SAME(QByteArray::number(grey), edgeMapOf(picture), reference::edgeMap(picture), 13);
    }
}

void TestEdgeMap::agreesOnPaddedPictures()
{
    for (const QSize size : {QSize(1, 1), QSize(7, 7), QSize(8, 9), QSize(33, 31)}) {
        const QImage picture = testpictures::blobImage(size.width(), size.height(), 5);
        const QImage padded = testpictures::paddedImage(picture, 3, 6);
        VERIFY_SAME(described(size), edgeMapOf(padded), edgeMapOf(picture), size.width());
        QVERIFY(testpictures::paddingUntouched(padded, 6));
    }
}

void TestEdgeMap::agreesOnPhotographs()
{
    SKIP_WITHOUT_PHOTOGRAPHS();
    for (const QString &path : testsupport::availablePhotographs()) {
        const QImage picture = testsupport::smallPhotograph(path);
        QVERIFY2(!picture.isNull(), qPrintable(path));
        VERIFY_SAME(path.toUtf8(), edgeMapOf(picture), reference::edgeMap(picture), picture.width());
    }
}

void TestEdgeMap::blackIsEdgeAllOver()
{
    // Nothing lies below the mean, and the largest value is lifted to 255.
    for (const QSize size : {QSize(1, 1), QSize(3, 3), QSize(20, 20)})
        QCOMPARE(edgeMapOf(testpictures::constantImage(size.width(), size.height(), 0xFF000000)),
                 testpictures::constantPlane(size.width(), size.height(), 255));
}

void TestEdgeMap::constantLeavesAFaintRing()
{
    // The copied border band is brighter than the interior, which the smoothing darkened a little: a faint
    // step, but the strongest edge there is, and so lifted to 255.
    constexpr int side = 20;
    const Bytes edges = edgeMapOf(testpictures::constantImage(side, side, 0xFFC8C8C8));
    QCOMPARE(at(edges, side, 2, 10), 255);
    QCOMPARE(at(edges, side, 3, 10), 255);
    QVERIFY(at(edges, side, 10, 10) < 255);
    QVERIFY(at(edges, side, 1, 10) < 255);
    QCOMPARE(at(edges, side, 10, 10), at(edges, side, 1, 10));
}

void TestEdgeMap::frameIsFlatWhereTheMeanIsPositive()
{
    const Bytes edges = edgeMapOf(testpictures::randomImage(24, 17, 7));
    for (int x = 0; x < 24; ++x)
        QVERIFY(at(edges, 24, x, 0) == 0 && at(edges, 24, x, 16) == 0);
    for (int y = 0; y < 17; ++y)
        QVERIFY(at(edges, 24, 0, y) == 0 && at(edges, 24, 23, y) == 0);
    QVERIFY(std::count(edges.begin(), edges.end(), 0) < 24 * 17);
}

void TestEdgeMap::strongestEdgeIs255()
{
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        const Bytes edges = edgeMapOf(testpictures::blobImage(40, 30, seed));
        QCOMPARE(int(*std::max_element(edges.begin(), edges.end())), 255);
    }
}

void TestEdgeMap::pixelAtTheMeanIsLifted()
{
    // The ring of a constant picture this large is too little to lift the mean above 0, so that the flat
    // pixels lie at the mean and rise with the ring.
    constexpr int side = 150;
    const Bytes edges = edgeMapOf(testpictures::constantImage(side, side, 0xFFC8C8C8));
    QCOMPARE(at(edges, side, 2, 75), 255);
    QVERIFY(at(edges, side, 75, 75) > 0 && at(edges, side, 75, 75) < 255);
    QCOMPARE(at(edges, side, 0, 0), at(edges, side, 75, 75));
}

void TestEdgeMap::ignoresTheFourthByte()
{
    const QImage picture = testpictures::randomArgbImage(21, 19, 8);
    VERIFY_SAME("alpha", edgeMapOf(picture), edgeMapOf(picture.convertToFormat(QImage::Format_RGB32)), 21);
}

void TestEdgeMap::tallAndWide()
{
    for (const QSize size : {QSize(9, 700), QSize(1500, 8), QSize(3, 400), QSize(400, 2)}) {
        const QImage picture = testpictures::randomImage(size.width(), size.height(), 9);
        VERIFY_SAME(described(size), edgeMapOf(picture), reference::edgeMap(picture), size.width());
    }
}

void TestEdgeMap::nullPicture()
{
    std::uint8_t edges[1] = {42};
    imaging::computeEdgeMap(QImage(), edges);
    QCOMPARE(int(edges[0]), 42);
    imaging::computeEdgeMap(QImage(), nullptr);
}

ORNEVO_TEST_MAIN(TestEdgeMap)
#include "tst_edgemap.moc"
