// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FRNode.h"
#include "segmentation/FrWatershed.h"
#include "tests/reference/ImageReferences.h"
#include "tests/segmentation/Scenes.h"
#include "tests/support/Differences.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

#include <QProgressBar>

#include <cstddef>
#include <limits>
#include <type_traits>

using testsupport::columnsOf;
using testsupport::described;
using testsupport::rowEdges;
using testsupport::rowPicture;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Indices = QList<int>;

/// The Keep region, or nothing where the flooding says that there is none.
Indices flooded(QImage picture, Indices keep, Indices remove, Bytes edges)
{
    Indices result;
    return FrWatershed(&picture, keep, remove, result, edges.data(), nullptr) == 0 ? result : Indices();
}

Indices flooded(const QImage &picture, const Indices &keep, const Indices &remove)
{
    return flooded(picture, keep, remove, testpictures::constantPlane(picture.width(), picture.height(), 0));
}

/// Empty when the flooding does what the plain one does, and leaves alone what it is only to read.
QByteArray complaint(const QImage &picture, const Indices &keep, const Indices &remove, const Bytes &edges)
{
    QImage image = picture;
    Indices keepSeeds = keep;
    Indices removeSeeds = remove;
    Bytes edgeMap = edges;
    Indices result{-7};
    Indices expected{-7};
    const int returned = FrWatershed(&image, keepSeeds, removeSeeds, result, edgeMap.data(), nullptr);
    if (returned != reference::watershed(picture, keep, remove, expected, edges))
        return "returned " + QByteArray::number(returned);
    if (keepSeeds != keep || removeSeeds != remove || edgeMap != edges ||
        image.constBits() != picture.constBits())
        return "changed its input";
    return testsupport::firstDifference(result, expected, 0);
}

Indices allOf(int pixels)
{
    Indices indices;
    for (int i = 0; i < pixels; ++i)
        indices.append(i);
    return indices;
}

Indices square(int left, int top, int side, int width)
{
    Indices indices;
    for (int y = top; y < top + side; ++y)
        for (int x = left; x < left + side; ++x)
            indices.append(y * width + x);
    return indices;
}

/// The pixels just inside the frame.
Indices innerFrame(QSize size)
{
    Indices indices;
    for (int y = 1; y < size.height() - 1; ++y)
        for (int x = 1; x < size.width() - 1; ++x)
            if (y == 1 || y == size.height() - 2 || x == 1 || x == size.width() - 2)
                indices.append(y * size.width() + x);
    return indices;
}

} // namespace

class TestFrWatershed : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void agreesOnPaddedPictures();
    void agreesOnPhotographs();
    void agreesOnLargePictures();
    void uniformPictureIsSplitInTheMiddle();
    void pixelOfAnEdgeCostsTheEdgeWhateverTheColours();
    void neighbouringSeedsAreNeverRelabelled();
    void everythingInsideAStrongEdgeComesBeforeTheEdge();
    void lowestLevelIsDrainedNext();
    void lowestLevelIsDrainedNextAfterAllWereEmpty();
    void firstInFirstOutWithinALevel();
    void stepDownCostsAsTheRightHandNeighbour();
    void greyStepIsTruncated();
    void seedsOnTheFrameCountForNothing();
    void seedInBothListsIsRemoved();
    void seedsOffThePictureAreIgnored();
    void repeatedSeeds();
    void indexNamesAPixelOfAPaddedPicture();
    void nothingToDo_data();
    void nothingToDo();
    void resultIsAppendedTo();
    void reportsProgress();
    void nodeIsTwoIntegers();
};

void TestFrWatershed::agrees_data()
{
    QTest::addColumn<int>("seeds");
    for (const int seeds : {1, 2, 7, 60})
        QTest::addRow("%d seeds of each", seeds) << seeds;
}

void TestFrWatershed::agrees()
{
    QFETCH(int, seeds);
    std::uint32_t seed = 1;
    for (const QSize size : testpictures::awkwardSizes()) {
        const auto edges = testsupport::edgeMaps(size, seed);
        const QList<QImage> pictures = testsupport::picturesToSegment(size, seed);
        for (int p = 0; p < pictures.size(); ++p) {
            for (std::size_t e = 0; e < edges.size(); ++e, seed += 2) {
                const auto keep = testpictures::randomIndices(size.width(), size.height(), seeds, seed);
                const auto remove = testpictures::randomIndices(size.width(), size.height(), seeds, seed + 1);
                const QByteArray words = complaint(pictures[p], keep, remove, edges[e]);
                QVERIFY2(words.isEmpty(),
                         (described(size, p, static_cast<int>(e)) + ": " + words).constData());
            }
        }
    }
}

void TestFrWatershed::agreesOnPaddedPictures()
{
    for (const QSize size : {QSize(3, 3), QSize(17, 9), QSize(33, 40)}) {
        const Bytes edges = testpictures::sparsePlane(size.width(), size.height(), 4, 3);
        const Indices keep = testpictures::randomIndices(size.width(), size.height(), 4, 4);
        const Indices remove = testpictures::randomIndices(size.width(), size.height(), 4, 5);
        for (const QImage &picture : testsupport::picturesToSegment(size, 6)) {
            const QImage padded = testpictures::paddedImage(picture, 5, 7);
            const QByteArray words = complaint(padded, keep, remove, edges);
            QVERIFY2(words.isEmpty(), words.constData());
            QCOMPARE(flooded(padded, keep, remove, edges), flooded(picture, keep, remove, edges));
            QVERIFY(testpictures::paddingUntouched(padded, 7));
        }
    }
}

void TestFrWatershed::agreesOnPhotographs()
{
    SKIP_WITHOUT_PHOTOGRAPHS();
    for (const QString &path : testsupport::availablePhotographs()) {
        const QImage photo = testsupport::smallPhotograph(path);
        QVERIFY2(!photo.isNull(), qPrintable(path));
        const Indices keep = square(photo.width() / 2 - 8, photo.height() / 2 - 8, 16, photo.width());
        const Indices remove = innerFrame(photo.size());
        const QByteArray words = complaint(photo, keep, remove, reference::edgeMap(photo));
        QVERIFY2(words.isEmpty(), (path.toUtf8() + ": " + words).constData());
    }
}

void TestFrWatershed::agreesOnLargePictures()
{
    // Large enough for every level's queue to run through several blocks.
    const QSize size(500, 400);
    for (const QImage &picture : testsupport::picturesToSegment(size, 8)) {
        const Indices keep = square(240, 190, 20, 500);
        for (const Bytes &edges : {testpictures::constantPlane(500, 400, 0), reference::edgeMap(picture)}) {
            const QByteArray words = complaint(picture, keep, innerFrame(size), edges);
            QVERIFY2(words.isEmpty(), words.constData());
        }
    }
}

void TestFrWatershed::uniformPictureIsSplitInTheMiddle()
{
    const QImage even = rowPicture(Bytes(9, 80));
    QCOMPARE(flooded(even, columnsOf(9, {1}), columnsOf(9, {7})), columnsOf(9, {1, 2, 3})); // 4 is the border
    const QImage odd = rowPicture(Bytes(10, 80));
    QCOMPARE(flooded(odd, columnsOf(10, {1}), columnsOf(10, {8})), columnsOf(10, {1, 2, 3, 4}));
}

void TestFrWatershed::pixelOfAnEdgeCostsTheEdgeWhateverTheColours()
{
    const Bytes costs{0, 9, 3, 200, 1, 77, 5, 5, 18, 9, 0};
    const Indices keep = columnsOf(11, {1});
    const Indices remove = columnsOf(11, {9});
    const Indices plain = flooded(rowPicture(Bytes(11, 0)), keep, remove, rowEdges(costs));
    QCOMPARE(plain, columnsOf(11, {1, 2})); // 3 is the dearest, where the regions meet
    for (std::uint32_t seed = 0; seed < 10; ++seed)
        QCOMPARE(flooded(testpictures::randomImage(11, 3, seed), keep, remove, rowEdges(costs)), plain);
}

void TestFrWatershed::neighbouringSeedsAreNeverRelabelled()
{
    const QImage picture = rowPicture(Bytes(8, 10));
    QCOMPARE(flooded(picture, columnsOf(8, {3}), columnsOf(8, {4})), columnsOf(8, {1, 2, 3}));
    QCOMPARE(flooded(picture, columnsOf(8, {4}), columnsOf(8, {3})), columnsOf(8, {4, 5, 6}));
}

void TestFrWatershed::everythingInsideAStrongEdgeComesBeforeTheEdge()
{
    constexpr int side = 17;
    const QImage picture = testpictures::plateauImage(side, side, 2, 6, 3);
    Bytes edges = testpictures::constantPlane(side, side, 0);
    Indices inside;
    for (int y = 4; y <= 12; ++y) {
        for (int x = 4; x <= 12; ++x) {
            if (x == 4 || x == 12 || y == 4 || y == 12)
                edges[static_cast<std::size_t>(y * side + x)] = 255;
            else
                inside.append(y * side + x);
        }
    }
    QCOMPARE(flooded(picture, {8 * side + 8}, innerFrame({side, side}), edges), inside);
}

void TestFrWatershed::lowestLevelIsDrainedNext()
{
    // Behind the first pixel on the left, all is cheap: it has to come before what waits on the right.
    const Bytes costs{0, 0, 9, 1, 1, 1, 1, 1, 10, 0, 0};
    QCOMPARE(flooded(rowPicture(Bytes(11, 50)), columnsOf(11, {1}), columnsOf(11, {9}), rowEdges(costs)),
             columnsOf(11, {1, 2, 3, 4, 5, 6, 7}));
}

void TestFrWatershed::lowestLevelIsDrainedNextAfterAllWereEmpty()
{
    // Only one pixel ever waits, at a level that goes up and down.
    const Bytes costs{0, 0, 0, 9, 200, 3, 255, 1, 90, 5, 0};
    QCOMPARE(flooded(rowPicture(Bytes(11, 50)), columnsOf(11, {2}), columnsOf(11, {1}), rowEdges(costs)),
             columnsOf(11, {2, 3, 4, 5, 6, 7, 8, 9}));
}

void TestFrWatershed::firstInFirstOutWithinALevel()
{
    // Last in, first out would run to the end on one side before the other side moves.
    const QImage picture = rowPicture(Bytes(21, 50));
    QCOMPARE(flooded(picture, columnsOf(21, {1}), columnsOf(21, {19})).size(), 9);
    QCOMPARE(flooded(picture, columnsOf(21, {19}), columnsOf(21, {1})).size(), 9);
}

void TestFrWatershed::stepDownCostsAsTheRightHandNeighbour()
{
    // One column to flood, from a Keep seed on top and a Remove seed at the bottom, which costs 9 to leave.
    // All else of the column is even; the frame on its right alone decides who comes first to the middle.
    QImage picture = testpictures::constantImage(3, 7, 0xFF000000);
    picture.setPixel(1, 5, qRgb(10, 10, 10));
    QCOMPARE(flooded(picture, {4}, {16}), Indices({4, 7, 10}));
    picture.setPixel(2, 2, qRgb(50, 50, 50));
    QCOMPARE(flooded(picture, {4}, {16}), Indices({4, 7}));
    picture.setPixel(0, 2, qRgb(50, 50, 50)); // the left one has no say
    picture.setPixel(2, 2, qRgb(0, 0, 0));
    QCOMPARE(flooded(picture, {4}, {16}), Indices({4, 7, 10}));
}

void TestFrWatershed::greyStepIsTruncated()
{
    // The three weights add up to a hair less than 1 for some steps of grey: those cost one less, and come
    // level with an edge of one less. The order of the sum decides which they are.
    for (int step = 1; step <= 255; ++step) {
        const auto grey = static_cast<std::uint8_t>(step);
        const QImage picture = rowPicture({0, 0, grey, grey, grey, grey, 0});
        const int cost = reference::luminanceDifference(qRgb(step, step, step), qRgb(0, 0, 0));
        QVERIFY(cost == step || cost == step - 1);
        for (const int edge : {cost - 1, cost, cost + 1}) {
            if (edge < 1 || edge > 255)
                continue;
            const Bytes costs{0, 0, 0, 0, static_cast<std::uint8_t>(edge), 0, 0};
            const QByteArray words =
                complaint(picture, columnsOf(7, {1}), columnsOf(7, {5}), rowEdges(costs));
            QVERIFY2(words.isEmpty(), words.constData());
            // Dearer than the edge on the right, the pixel on the left is reached too late to grow.
            const Indices expected = edge < cost ? columnsOf(7, {1}) : columnsOf(7, {1, 2, 3});
            QCOMPARE(flooded(picture, columnsOf(7, {1}), columnsOf(7, {5}), rowEdges(costs)), expected);
        }
    }
}

void TestFrWatershed::seedsOnTheFrameCountForNothing()
{
    const QImage picture = testpictures::constantImage(6, 5, 0xFF808080);
    QVERIFY(flooded(picture, {0, 3, 5, 6, 11, 24, 29}, {14}).isEmpty()); // all Remove
    const Indices kept = flooded(picture, {14}, {0, 3, 5, 6, 11, 24, 29});
    QCOMPARE(kept, Indices({7, 8, 9, 10, 13, 14, 15, 16, 19, 20, 21, 22})); // all Keep but the frame
}

void TestFrWatershed::seedInBothListsIsRemoved()
{
    const QImage picture = rowPicture(Bytes(8, 10));
    QVERIFY(flooded(picture, columnsOf(8, {3}), columnsOf(8, {3})).isEmpty());
    QCOMPARE(flooded(picture, columnsOf(8, {2, 3}), columnsOf(8, {3})), columnsOf(8, {1, 2}));
}

void TestFrWatershed::seedsOffThePictureAreIgnored()
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    const QImage picture = rowPicture(Bytes(8, 10));
    const Indices off{least, least + 1, -24, -8, -1, 24, 25, 1000000, most};
    QCOMPARE(flooded(picture, off + columnsOf(8, {3}), off + columnsOf(8, {4})), columnsOf(8, {1, 2, 3}));
    Indices result{5};
    Indices seeds = off;
    QImage image = picture;
    Bytes edges = testpictures::constantPlane(8, 3, 0);
    QCOMPARE(FrWatershed(&image, seeds, seeds, result, edges.data(), nullptr), -1);
    QCOMPARE(result, Indices{5});
}

void TestFrWatershed::repeatedSeeds()
{
    const QImage picture = testpictures::blobImage(30, 20, 4);
    const Indices keep = testpictures::randomIndices(30, 20, 9, 1);
    const Indices remove = testpictures::randomIndices(30, 20, 9, 2);
    QCOMPARE(flooded(picture, keep + keep + keep, remove + remove), flooded(picture, keep, remove));
}

void TestFrWatershed::indexNamesAPixelOfAPaddedPicture()
{
    // An index counts pixels and never the bytes that pad a row.
    const QImage padded = testpictures::paddedImage(testpictures::constantImage(5, 5, 0xFF808080), 4, 1);
    QCOMPARE(flooded(padded, {12}, {0}), Indices({6, 7, 8, 11, 12, 13, 16, 17, 18}));
}

void TestFrWatershed::nothingToDo_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Indices>("keep");
    QTest::addColumn<Indices>("remove");
    QTest::newRow("no Keep seeds") << QSize(8, 8) << Indices{} << Indices{20};
    QTest::newRow("no Remove seeds") << QSize(8, 8) << Indices{20} << Indices{};
    QTest::newRow("no seeds") << QSize(8, 8) << Indices{} << Indices{};
    QTest::newRow("all on the frame") << QSize(8, 8) << Indices{0, 7, 8} << Indices{63, 15};
    QTest::newRow("no free pixel") << QSize(4, 3) << Indices{5} << Indices{6};
    QTest::newRow("all pixels seeded") << QSize(8, 8) << allOf(64) << allOf(64);
    QTest::newRow("null picture") << QSize(0, 0) << Indices{0} << Indices{1};
    QTest::newRow("one pixel") << QSize(1, 1) << Indices{0} << Indices{0};
    QTest::newRow("frame only") << QSize(2, 2) << Indices{0} << Indices{3};
    QTest::newRow("one row") << QSize(20, 1) << Indices{3} << Indices{9};
    QTest::newRow("one column") << QSize(1, 20) << Indices{3} << Indices{9};
    QTest::newRow("two columns") << QSize(2, 20) << Indices{3} << Indices{9};
    QTest::newRow("one free pixel, seeded") << QSize(3, 3) << Indices{4} << Indices{4};
}

void TestFrWatershed::nothingToDo()
{
    QFETCH(QSize, size);
    QFETCH(Indices, keep);
    QFETCH(Indices, remove);
    QImage picture = size.isEmpty() ? QImage() : testpictures::randomImage(size.width(), size.height(), 1);
    Bytes edges = testpictures::constantPlane(size.width(), size.height(), 0);
    Indices result{3, 1, 4};
    QCOMPARE(FrWatershed(&picture, keep, remove, result, edges.data(), nullptr), -1);
    QCOMPARE(result, Indices({3, 1, 4}));
}

void TestFrWatershed::resultIsAppendedTo()
{
    QImage picture = rowPicture(Bytes(8, 10));
    Bytes edges = rowEdges(Bytes(8, 0));
    Indices keep = columnsOf(8, {3});
    Indices remove = columnsOf(8, {4});
    Indices result{99};
    QCOMPARE(FrWatershed(&picture, keep, remove, result, edges.data(), nullptr), 0);
    QCOMPARE(result, Indices{99} + columnsOf(8, {1, 2, 3}));
}

void TestFrWatershed::reportsProgress()
{
    QImage picture = testpictures::constantImage(210, 110, 0xFF808080);
    Bytes edges = testpictures::constantPlane(210, 110, 0);
    Indices keep{211};
    Indices remove{212};
    Indices result;
    QProgressBar bar;
    Indices values;
    connect(&bar, &QProgressBar::valueChanged, this, [&values](int value) { values.append(value); });
    QCOMPARE(FrWatershed(&picture, keep, remove, result, edges.data(), &bar), 0);
    QCOMPARE(values, Indices({43, 86})); // after 10000 and 20000 of 23100 pixels
}

void TestFrWatershed::nodeIsTwoIntegers()
{
    QVERIFY(std::is_trivially_copyable_v<FRNode>);
    QCOMPARE(sizeof(FRNode), std::size_t{8});
    QCOMPARE(offsetof(FRNode, index), std::size_t{0});
    QCOMPARE(offsetof(FRNode, offset), std::size_t{4});
}

ORNEVO_TEST_MAIN(TestFrWatershed)
#include "tst_frwatershed.moc"
