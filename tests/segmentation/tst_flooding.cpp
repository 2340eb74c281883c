// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The flooding against the plain version of the same.

#include "segmentation/FrWatershed.h"
#include "segmentation/FrWatershedMany.h"
#include "tests/reference/ImageReferences.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

#include <QProgressBar>

#include <algorithm>

using namespace testpictures;

namespace {

using Plane = std::vector<std::uint8_t>;

/// A list of random pixels for each region.
std::vector<std::vector<int>> seedLists(const QImage &image, int regions, int perRegion, std::uint32_t seed)
{
    std::vector<std::vector<int>> lists;
    for (int k = 0; k < regions; ++k) {
        const QList<int> list = randomIndices(image.width(), image.height(), perRegion,
                                              seed + 31U * static_cast<std::uint32_t>(k));
        lists.emplace_back(list.begin(), list.end());
    }
    return lists;
}

/// Floods with ours and with the plain version; true when both return and append the same.
bool twoRegionsAgree(QImage image, Plane edges, QList<int> keep, QList<int> remove)
{
    QList<int> expected{-7};
    const int expectedReturn = reference::watershed(image, keep, remove, expected, edges);
    QList<int> result{-7};
    const int returned = FrWatershed(&image, keep, remove, result, edges.data(), nullptr);
    return returned == expectedReturn && result == expected;
}

bool manyRegionsAgree(QImage image, Plane edges, const std::vector<std::vector<int>> &seeds)
{
    QList<QList<int>> expected{{-7}};
    const int expectedReturn = reference::watershedMany(image, seeds, expected, edges);
    QList<QList<int>> result{{-7}};
    const int returned = FrWatershedMany(&image, seeds, result, edges.data(), nullptr);
    return returned == expectedReturn && result == expected;
}

bool agree(const QImage &image, const Plane &edges, int seedsPerRegion, std::uint32_t seed)
{
    const auto lists = seedLists(image, 2, seedsPerRegion, seed);
    return twoRegionsAgree(image, edges, QList<int>(lists[0].begin(), lists[0].end()),
                           QList<int>(lists[1].begin(), lists[1].end())) &&
           manyRegionsAgree(image, edges, seedLists(image, 3, seedsPerRegion, seed + 1));
}

/// A photograph of this machine, clipped to a size that the plain version floods in a moment.
QImage photo()
{
    for (const QString &file : testsupport::availablePhotographs()) {
        const QImage image(file);
        if (image.width() >= 700 && image.height() >= 500)
            return image.convertToFormat(QImage::Format_RGB32).copy(90, 60, 600, 400);
    }
    return {};
}

} // namespace

class TestFlooding : public QObject
{
    Q_OBJECT

private slots:
    void pictures_data();
    void pictures();
    void photographs();
    void paddedRows();
    void manyRegions_data();
    void manyRegions();
    void seedsOffThePicture();
    void longQueues();
    void progress();
};

void TestFlooding::pictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<std::uint32_t>("seed");
    std::uint32_t seed = 1;
    QList<QSize> sizes = awkwardSizes();
    for (const QSize more : {QSize(3, 3), QSize(4, 3), QSize(17, 66), QSize(65, 40), QSize(131, 90)})
        sizes.append(more);
    for (const QSize size : sizes) {
        QTest::addRow("%dx%d #%u", size.width(), size.height(), seed) << size << seed;
        ++seed;
    }
}

void TestFlooding::pictures()
{
    QFETCH(QSize, size);
    QFETCH(std::uint32_t, seed);
    const int w = size.width();
    const int h = size.height();
    const QImage images[] = {randomImage(w, h, seed),
                             constantImage(w, h, qRgb(90, 120, 30)),
                             rampImage(w, h, 3),
                             plateauImage(w, h, 5, 4, seed),
                             greyStepsImage(w, h, seed),
                             blobImage(w, h, seed),
                             stepImage(w, h, w / 2, qRgb(0, 0, 0), qRgb(255, 255, 255))};
    const Plane edges[] = {constantPlane(w, h, 0), constantPlane(w, h, 255), randomPlane(w, h, seed),
                           sparsePlane(w, h, 3, seed), plateauPlane(w, h, 3, seed)};
    for (std::size_t i = 0; i < std::size(images); ++i)
        for (std::size_t e = 0; e < std::size(edges); ++e)
            for (const int seeds : {1, 7, 60})
                QVERIFY2(agree(images[i], edges[e], seeds, seed + static_cast<std::uint32_t>(seeds)),
                         qPrintable(QString("picture %1, edges %2, %3 seeds").arg(i).arg(e).arg(seeds)));
}

void TestFlooding::photographs()
{
    const QImage image = photo();
    if (image.isNull())
        QSKIP("no photograph on this machine");
    const int w = image.width();
    const int h = image.height();
    for (const int oneIn : {2, 5, 1000000})
        QVERIFY(agree(image, sparsePlane(w, h, oneIn, 5), 40, 11));
}

void TestFlooding::paddedRows()
{
    const QImage image = blobImage(70, 50, 3);
    const QImage padded = paddedImage(image, 5, 4);
    QVERIFY(padded.bytesPerLine() != image.bytesPerLine());
    QVERIFY(agree(padded, sparsePlane(70, 50, 2, 6), 5, 7));
}

void TestFlooding::manyRegions_data()
{
    QTest::addColumn<int>("regions");
    for (const int regions : {1, 2, 7, 8, 9, 64, 300})
        QTest::addRow("%d", regions) << regions;
}

void TestFlooding::manyRegions()
{
    QFETCH(int, regions);
    for (std::uint32_t seed = 1; seed <= 6; ++seed) {
        const QImage image = seed % 2 == 0 ? blobImage(150, 110, seed) : plateauImage(150, 110, 7, 5, seed);
        for (const Plane &edges : {sparsePlane(150, 110, 4, seed), constantPlane(150, 110, 0)})
            QVERIFY(manyRegionsAgree(image, edges, seedLists(image, regions, 9, seed)));
    }
}

void TestFlooding::seedsOffThePicture()
{
    const QImage image = blobImage(40, 30, 9);
    const Plane edges = sparsePlane(40, 30, 3, 9);
    const QList<int> keep{-1, -2147483647, 40 * 30, 2147483647, 40 * 10 + 7, 0, 40 * 12};
    QVERIFY(twoRegionsAgree(image, edges, keep, {40 * 20 + 30, 40 * 30 - 1, 79}));
    QVERIFY(twoRegionsAgree(image, edges, {-5}, {40 * 20 + 30}));
    QVERIFY(twoRegionsAgree(image, edges, {0, 39, 40}, {1}));
    QVERIFY(twoRegionsAgree(image, edges, {}, {41}));
    QVERIFY(twoRegionsAgree(image, edges, {45}, {45}));
}

/// Levels that need many blocks and give them back.
void TestFlooding::longQueues()
{
    const QImage image = greyImage(900, 700, plateauPlane(900, 700, 2, 3));
    QVERIFY(agree(image, constantPlane(900, 700, 0), 400, 2));
    QVERIFY(agree(image, plateauPlane(900, 700, 4, 8), 2000, 3));
}

void TestFlooding::progress()
{
    QImage image = blobImage(300, 200, 4);
    Plane edges = constantPlane(300, 200, 0);
    QList<int> keep{300 * 50 + 60};
    QList<int> remove{300 * 150 + 240};
    QList<int> result;
    QProgressBar bar;
    QList<int> values;
    connect(&bar, &QProgressBar::valueChanged, this, [&](int value) { values.append(value); });
    QCOMPARE(FrWatershed(&image, keep, remove, result, edges.data(), &bar), 0);
    // 298 x 198 pixels less two seeds: five full ten thousands
    QCOMPARE(values, QList<int>({16, 33, 50, 66, 83}));
}

ORNEVO_TEST_MAIN(TestFlooding)
#include "tst_flooding.moc"
