// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershedMany.h"
#include "tests/reference/ImageReferences.h"
#include "tests/segmentation/Scenes.h"
#include "tests/support/Differences.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

#include <QProgressBar>

#include <limits>

using testsupport::columnsOf;
using testsupport::described;
using testsupport::rowEdges;
using testsupport::rowPicture;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Indices = QList<int>;
using Regions = QList<Indices>;
using Seeds = std::vector<std::vector<int>>;

Regions flooded(QImage picture, const Seeds &seeds, Bytes edges)
{
    Regions result{Indices{}};
    FrWatershedMany(&picture, seeds, result, edges.data(), nullptr);
    return result;
}

Regions flooded(const QImage &picture, const Seeds &seeds)
{
    return flooded(picture, seeds, testpictures::constantPlane(picture.width(), picture.height(), 0));
}

/// Empty when the flooding does what the plain one does.
QByteArray complaint(const QImage &picture, const Seeds &seeds, const Bytes &edges, const Regions &onEntry)
{
    QImage image = picture;
    Bytes edgeMap = edges;
    Regions result = onEntry;
    Regions expected = onEntry;
    const int returned = FrWatershedMany(&image, seeds, result, edgeMap.data(), nullptr);
    if (returned != reference::watershedMany(picture, seeds, expected, edges))
        return "returned " + QByteArray::number(returned);
    if (edgeMap != edges || image.constBits() != picture.constBits())
        return "changed its input";
    if (result.size() != expected.size())
        return "number of lists";
    for (qsizetype k = 0; k < result.size(); ++k) {
        const QByteArray words = testsupport::firstDifference(result[k], expected[k], 0);
        if (!words.isEmpty())
            return "list " + QByteArray::number(k) + ": " + words;
    }
    return {};
}

Seeds randomSeeds(QSize size, int regions, int each, std::uint32_t seed)
{
    Seeds seeds;
    for (int k = 0; k < regions; ++k) {
        const Indices drawn = testpictures::randomIndices(size.width(), size.height(), each,
                                                          seed + static_cast<std::uint32_t>(k));
        seeds.emplace_back(drawn.begin(), drawn.end());
    }
    return seeds;
}

std::vector<int> rowSeeds(int width, const Indices &columns)
{
    const Indices indices = columnsOf(width, columns);
    return {indices.begin(), indices.end()};
}

/// A seed in each square of a grid, each a region of its own.
Seeds gridOfSeeds(QSize size, int pitch)
{
    Seeds seeds;
    for (int y = 1; y < size.height() - 1; y += pitch)
        for (int x = 1; x < size.width() - 1; x += pitch)
            seeds.push_back({y * size.width() + x});
    return seeds;
}

} // namespace

class TestFrWatershedMany : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void agreesOnPaddedPictures();
    void agreesOnPhotographs();
    void agreesOnManyRegions_data();
    void agreesOnManyRegions();
    void oneRegionTakesAllButTheFrame();
    void edgeCostsTheMostWhateverItsStrength();
    void edgeAllOverGrowsEvenly();
    void edgeComesAfterEveryColour();
    void threeRegionsLeaveALineBetweenThem();
    void laterListWinsASharedPixel();
    void emptyListMakesAnEmptyRegion();
    void seedsOffThePictureAreIgnored();
    void resultHoldsListsAlready();
    void resultWithoutItsFirstList();
    void nothingToDo_data();
    void nothingToDo();
    void reportsProgress();
};

void TestFrWatershedMany::agrees_data()
{
    QTest::addColumn<int>("regions");
    for (const int regions : {1, 2, 3, 9})
        QTest::addRow("%d regions", regions) << regions;
}

void TestFrWatershedMany::agrees()
{
    QFETCH(int, regions);
    std::uint32_t seed = 1;
    for (const QSize size : testpictures::awkwardSizes()) {
        const auto edges = testsupport::edgeMaps(size, seed);
        const QList<QImage> pictures = testsupport::picturesToSegment(size, seed);
        for (int p = 0; p < pictures.size(); ++p) {
            for (std::size_t e = 0; e < edges.size(); ++e, seed += 10) {
                const Seeds seeds = randomSeeds(size, regions, 1 + static_cast<int>(seed % 5), seed);
                const QByteArray words = complaint(pictures[p], seeds, edges[e], {Indices{}});
                QVERIFY2(words.isEmpty(),
                         (described(size, p, static_cast<int>(e)) + ": " + words).constData());
            }
        }
    }
}

void TestFrWatershedMany::agreesOnPaddedPictures()
{
    const QSize size(33, 20);
    const Seeds seeds = randomSeeds(size, 4, 3, 5);
    for (const QImage &picture : testsupport::picturesToSegment(size, 6)) {
        const QImage padded = testpictures::paddedImage(picture, 5, 7);
        const QByteArray words =
            complaint(padded, seeds, testpictures::sparsePlane(33, 20, 4, 3), {Indices{}});
        QVERIFY2(words.isEmpty(), words.constData());
        QCOMPARE(flooded(padded, seeds), flooded(picture, seeds));
    }
}

void TestFrWatershedMany::agreesOnPhotographs()
{
    SKIP_WITHOUT_PHOTOGRAPHS();
    for (const QString &path : testsupport::availablePhotographs()) {
        const QImage photo = testsupport::smallPhotograph(path);
        const Seeds seeds = gridOfSeeds(photo.size(), 40);
        const QByteArray words = complaint(photo, seeds, reference::edgeMap(photo), {Indices{}});
        QVERIFY2(words.isEmpty(), (path.toUtf8() + ": " + words).constData());
    }
}

void TestFrWatershedMany::agreesOnManyRegions_data()
{
    // Labels come in words of two widths: the change lies behind 253 regions.
    QTest::addColumn<int>("regions");
    for (const int regions : {252, 253, 254, 255, 256, 257, 300, 1000, 66000})
        QTest::addRow("%d", regions) << regions;
}

void TestFrWatershedMany::agreesOnManyRegions()
{
    QFETCH(int, regions);
    const QSize size = regions > 1000 ? QSize(300, 290) : QSize(110, 90);
    Seeds seeds = gridOfSeeds(size, regions > 1000 ? 1 : 3);
    QVERIFY(seeds.size() >= static_cast<std::size_t>(regions));
    seeds.resize(static_cast<std::size_t>(regions));
    const QImage picture = testpictures::blobImage(size.width(), size.height(), 11);
    const Bytes edges = testpictures::sparsePlane(size.width(), size.height(), 3, 12);
    const QByteArray words = complaint(picture, seeds, edges, {Indices{}});
    QVERIFY2(words.isEmpty(), words.constData());
    const Regions result = flooded(picture, seeds, edges);
    QCOMPARE(result.size(), qsizetype{regions} + 1);
    for (int k = 1; k <= regions; ++k)
        QVERIFY(result[k].contains(seeds[static_cast<std::size_t>(k) - 1][0]));
}

void TestFrWatershedMany::oneRegionTakesAllButTheFrame()
{
    const QImage picture = testpictures::randomImage(12, 9, 3);
    const Regions result = flooded(picture, {{50}}, testpictures::randomPlane(12, 9, 4));
    QCOMPARE(result.size(), 2);
    QVERIFY(result[0].isEmpty());
    Indices inside;
    for (int y = 1; y < 8; ++y)
        for (int x = 1; x < 11; ++x)
            inside.append(y * 12 + x);
    QCOMPARE(result[1], inside);
}

void TestFrWatershedMany::edgeCostsTheMostWhateverItsStrength()
{
    const QSize size(30, 25);
    const Seeds seeds = randomSeeds(size, 5, 2, 9);
    const QImage picture = testpictures::blobImage(30, 25, 10);
    const Bytes edges = testpictures::sparsePlane(30, 25, 3, 11);
    Bytes strongest = edges;
    Bytes weakest = edges;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        strongest[i] = edges[i] != 0 ? 255 : 0;
        weakest[i] = edges[i] != 0 ? 1 : 0;
    }
    QCOMPARE(flooded(picture, seeds, edges), flooded(picture, seeds, strongest));
    QCOMPARE(flooded(picture, seeds, weakest), flooded(picture, seeds, strongest));
    QVERIFY(flooded(picture, seeds, testpictures::constantPlane(30, 25, 0)) !=
            flooded(picture, seeds, edges));
}

void TestFrWatershedMany::edgeAllOverGrowsEvenly()
{
    const Bytes edges = testpictures::constantPlane(9, 3, 1);
    QCOMPARE(flooded(testpictures::randomImage(9, 3, 5), {rowSeeds(9, {1}), rowSeeds(9, {7})}, edges),
             Regions({{}, columnsOf(9, {1, 2, 3}), columnsOf(9, {5, 6, 7})}));
    const QSize size(40, 30);
    const Seeds seeds = randomSeeds(size, 4, 1, 6);
    QCOMPARE(flooded(testpictures::randomImage(40, 30, 7), seeds, testpictures::constantPlane(40, 30, 9)),
             flooded(testpictures::constantImage(40, 30, 0xFF000000), seeds));
}

void TestFrWatershedMany::edgeComesAfterEveryColour()
{
    // The weak edge behind the left seed costs more than any colour on the right.
    const Bytes costs{0, 0, 1, 0, 0, 0, 0, 0, 0};
    const QImage picture = rowPicture({9, 9, 9, 9, 200, 30, 180, 5, 5});
    QCOMPARE(flooded(picture, {rowSeeds(9, {1}), rowSeeds(9, {7})}, rowEdges(costs)),
             Regions({{}, columnsOf(9, {1}), columnsOf(9, {3, 4, 5, 6, 7})}));
}

void TestFrWatershedMany::threeRegionsLeaveALineBetweenThem()
{
    constexpr int side = 25;
    const QImage picture = testpictures::constantImage(side, side, 0xFF777777);
    const Regions result = flooded(picture, {{5 * side + 5}, {5 * side + 19}, {19 * side + 12}});
    QCOMPARE(result.size(), 4);
    std::vector<int> owner(side * side, 0);
    for (int k = 1; k <= 3; ++k) {
        QVERIFY(result[k].size() > 100);
        for (const int index : result[k]) {
            QCOMPARE(owner[static_cast<std::size_t>(index)], 0);
            owner[static_cast<std::size_t>(index)] = k;
        }
    }
    const auto apart = [&owner](std::size_t a, std::size_t b) {
        return owner[a] == 0 || owner[b] == 0 || owner[a] == owner[b];
    };
    for (std::size_t i = 0; i + side < owner.size(); ++i)
        QVERIFY(apart(i, i + 1) && apart(i, i + side));
}

void TestFrWatershedMany::laterListWinsASharedPixel()
{
    const QImage picture = rowPicture(Bytes(8, 10));
    QCOMPARE(flooded(picture, {rowSeeds(8, {2, 3}), rowSeeds(8, {3}), rowSeeds(8, {4, 4})}),
             Regions({{}, columnsOf(8, {1, 2}), columnsOf(8, {3}), columnsOf(8, {4, 5, 6})}));
}

void TestFrWatershedMany::emptyListMakesAnEmptyRegion()
{
    const QImage picture = rowPicture(Bytes(6, 10));
    QCOMPARE(flooded(picture, {{}, rowSeeds(6, {2}), {}}), Regions({{}, {}, columnsOf(6, {1, 2, 3, 4}), {}}));
}

void TestFrWatershedMany::seedsOffThePictureAreIgnored()
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    const QImage picture = rowPicture(Bytes(6, 10));
    QCOMPARE(flooded(picture, {{least, -1, -6, 18, 19, most, 8}, {0, 5, 17}}),
             Regions({{}, columnsOf(6, {1, 2, 3, 4}), {}}));
}

void TestFrWatershedMany::resultHoldsListsAlready()
{
    const QImage picture = rowPicture(Bytes(8, 10));
    const Seeds seeds{rowSeeds(8, {3}), rowSeeds(8, {4})};
    const Bytes edges = rowEdges(Bytes(8, 0));
    const Regions onEntry{{70, 71}, {80}, {}};
    const QByteArray words = complaint(picture, seeds, edges, onEntry);
    QVERIFY2(words.isEmpty(), words.constData());
    Regions result = onEntry;
    QImage image = picture;
    Bytes edgeMap = edges;
    QCOMPARE(FrWatershedMany(&image, seeds, result, edgeMap.data(), nullptr), 2);
    QCOMPARE(result,
             Regions({{70, 71}, Indices{80} + columnsOf(8, {1, 2, 3}), columnsOf(8, {4, 5, 6}), {}, {}}));
}

void TestFrWatershedMany::resultWithoutItsFirstList()
{
#ifndef NDEBUG
    QSKIP("a debug build stops the caller with an assertion");
#else
    // There is no place for the last region then.
    const QByteArray words =
        complaint(rowPicture(Bytes(8, 10)), {rowSeeds(8, {3}), rowSeeds(8, {4})}, rowEdges(Bytes(8, 0)), {});
    QVERIFY2(words.isEmpty(), words.constData());
#endif
}

void TestFrWatershedMany::nothingToDo_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Regions>("seeds");
    QTest::newRow("no lists") << QSize(8, 8) << Regions{};
    QTest::newRow("an empty list") << QSize(8, 8) << Regions{{}};
    QTest::newRow("on the frame") << QSize(8, 8) << Regions{{0, 7}, {56}};
    QTest::newRow("no free pixel") << QSize(4, 3) << Regions{{5}, {6}};
    QTest::newRow("null picture") << QSize(0, 0) << Regions{{0}};
    QTest::newRow("one pixel") << QSize(1, 1) << Regions{{0}};
    QTest::newRow("two rows") << QSize(9, 2) << Regions{{3}, {12}};
}

void TestFrWatershedMany::nothingToDo()
{
    QFETCH(QSize, size);
    QFETCH(Regions, seeds);
    Seeds lists;
    for (const Indices &list : seeds)
        lists.emplace_back(list.begin(), list.end());
    QImage picture = size.isEmpty() ? QImage() : testpictures::randomImage(size.width(), size.height(), 1);
    Bytes edges = testpictures::constantPlane(size.width(), size.height(), 0);
    Regions result{{3, 1}};
    QCOMPARE(FrWatershedMany(&picture, lists, result, edges.data(), nullptr), -1);
    QCOMPARE(result, Regions({{3, 1}}));
}

void TestFrWatershedMany::reportsProgress()
{
    QImage picture = testpictures::constantImage(210, 110, 0xFF808080);
    Bytes edges = testpictures::constantPlane(210, 110, 0);
    Regions result{{}};
    QProgressBar bar;
    Indices values;
    connect(&bar, &QProgressBar::valueChanged, this, [&values](int value) { values.append(value); });
    QCOMPARE(FrWatershedMany(&picture, {{211}}, result, edges.data(), &bar), 1);
    QCOMPARE(values, Indices({43, 86}));
}

ORNEVO_TEST_MAIN(TestFrWatershedMany)
#include "tst_frwatershedmany.moc"
