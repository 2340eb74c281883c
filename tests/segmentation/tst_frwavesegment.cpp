// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWaveSegment.h"
#include "tests/reference/ImageReferences.h"
#include "tests/segmentation/Scenes.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

#include <QProgressBar>
#include <QStatusBar>

#include <limits>

using testsupport::described;

namespace {

using Indices = QList<int>;
using Regions = QList<Indices>;

Regions regionsOf(QImage picture, int threshold)
{
    Regions regions;
    return FrWaveSegment(&picture, regions, threshold, nullptr, nullptr) == 0 ? regions : Regions();
}

Regions expectedOf(const QImage &picture, int threshold)
{
    Regions regions;
    reference::waveSegment(picture, regions, threshold);
    return regions;
}

} // namespace

class TestFrWaveSegment : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void agreesOnPaddedPictures();
    void agreesOnPhotographs();
    void withoutThresholdEveryPixelIsARegion_data();
    void withoutThresholdEveryPixelIsARegion();
    void constantPictureIsOneRegionThatListsItsStartTwice();
    void firstPixelOfTheSecondRowNeverStepsUp();
    void stepIntoTheBrighterWrapsAround();
    void rampGrowsLeftwardAndVertically();
    void thresholdIsNotReached();
    void fourthByteIsIgnored();
    void regionsAreAppended();
    void reportsRowsAndStates();
    void nullPicture();
    void predicates();
};

void TestFrWaveSegment::agrees_data()
{
    QTest::addColumn<int>("threshold");
    for (const int threshold : {-5, 0, 1, 4, 10, 60, 255, 256, 300, 500, 765, 766})
        QTest::addRow("%d", threshold) << threshold;
}

void TestFrWaveSegment::agrees()
{
    QFETCH(int, threshold);
    for (const QSize size : testpictures::awkwardSizes()) {
        const QList<QImage> pictures = testsupport::picturesToSegment(size, 3);
        for (int p = 0; p < pictures.size(); ++p)
            QVERIFY2(regionsOf(pictures[p], threshold) == expectedOf(pictures[p], threshold),
                     described(size, p).constData());
    }
}

void TestFrWaveSegment::agreesOnPaddedPictures()
{
    for (const QImage &picture : testsupport::picturesToSegment({19, 23}, 4)) {
        const QImage padded = testpictures::paddedImage(picture, 7, 5);
        QCOMPARE(regionsOf(padded, 200), expectedOf(picture, 200));
        QVERIFY(testpictures::paddingUntouched(padded, 5));
    }
}

void TestFrWaveSegment::agreesOnPhotographs()
{
    SKIP_WITHOUT_PHOTOGRAPHS();
    for (const QString &path : testsupport::availablePhotographs()) {
        const QImage photo = testsupport::smallPhotograph(path, {120, 120});
        QVERIFY2(!photo.isNull() && regionsOf(photo, 30) == expectedOf(photo, 30), qPrintable(path));
    }
}

void TestFrWaveSegment::withoutThresholdEveryPixelIsARegion_data()
{
    QTest::addColumn<int>("threshold");
    for (const int threshold : {0, -1, std::numeric_limits<int>::min()})
        QTest::addRow("%d", threshold) << threshold;
}

void TestFrWaveSegment::withoutThresholdEveryPixelIsARegion()
{
    QFETCH(int, threshold);
    Regions expected;
    for (int i = 0; i < 12; ++i)
        expected.append(Indices{i});
    QCOMPARE(regionsOf(testpictures::constantImage(4, 3, 0xFF123456), threshold), expected);
}

void TestFrWaveSegment::constantPictureIsOneRegionThatListsItsStartTwice()
{
    for (const int threshold : {1, 766, std::numeric_limits<int>::max()}) {
        const Regions regions = regionsOf(testpictures::constantImage(6, 5, 0xFF123456), threshold);
        QCOMPARE(regions.size(), 1);
        QCOMPARE(regions[0].size(), 31);
        QCOMPARE(regions[0].first(), 0);
        QCOMPARE(regions[0].count(0), 2);
        for (int i = 1; i < 30; ++i)
            QCOMPARE(regions[0].count(i), 1);
    }
    QCOMPARE(regionsOf(testpictures::constantImage(2, 2, 0xFF123456), 1), Regions({{0, 1, 2, 0, 3}}));
}

void TestFrWaveSegment::firstPixelOfTheSecondRowNeverStepsUp()
{
    QCOMPARE(regionsOf(testpictures::constantImage(1, 4, 0xFF123456), 1), Regions({{0, 1, 2, 3}}));
    QCOMPARE(regionsOf(testpictures::constantImage(4, 1, 0xFF123456), 1), Regions({{0, 1, 0, 2, 3}}));
}

void TestFrWaveSegment::stepIntoTheBrighterWrapsAround()
{
    QImage picture = testpictures::constantImage(2, 1, qRgb(10, 0, 0));
    picture.setPixel(1, 0, qRgb(11, 0, 0));
    QCOMPARE(regionsOf(picture, 255), Regions({{0}, {1, 0}})); // 255 into the brighter, 1 back
    QCOMPARE(regionsOf(picture, 256), Regions({{0, 1, 0}}));
}

void TestFrWaveSegment::rampGrowsLeftwardAndVertically()
{
    QImage ramp(6, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 6; ++x)
            ramp.setPixel(x, y, qRgb(40 + x, 40 + x, 40 + x));
    const Regions regions = regionsOf(ramp, 4);
    QCOMPARE(regions, expectedOf(ramp, 4));
    QCOMPARE(regions[0], Indices({0, 6, 12})); // down, and never to the right
    for (const Indices &region : regions)
        for (const int index : region)
            QVERIFY(index % 6 <= region.first() % 6);
    QVERIFY(regions[1].contains(0)); // to the left
    QCOMPARE(regionsOf(ramp, 766).size(), 1);
}

void TestFrWaveSegment::thresholdIsNotReached()
{
    QImage picture = testpictures::constantImage(2, 1, qRgb(10, 20, 30));
    picture.setPixel(1, 0, qRgb(9, 18, 27)); // 1 + 2 + 3 darker
    QCOMPARE(regionsOf(picture, 6).size(), 2);
    QCOMPARE(regionsOf(picture, 7)[0].mid(0, 2), Indices({0, 1}));
}

void TestFrWaveSegment::fourthByteIsIgnored()
{
    const QImage picture = testpictures::randomArgbImage(20, 20, 6);
    QCOMPARE(regionsOf(picture, 300), regionsOf(picture.convertToFormat(QImage::Format_RGB32), 300));
}

void TestFrWaveSegment::regionsAreAppended()
{
    QImage picture = testpictures::constantImage(2, 1, 0xFF000000);
    Regions regions{{42}};
    QCOMPARE(FrWaveSegment(&picture, regions, 0, nullptr, nullptr), 0);
    QCOMPARE(regions, Regions({{42}, {0}, {1}}));
}

void TestFrWaveSegment::reportsRowsAndStates()
{
    QImage picture = testpictures::constantImage(3, 7, 0xFF000000);
    QProgressBar bar;
    QStatusBar status;
    Indices values;
    QStringList messages;
    connect(&bar, &QProgressBar::valueChanged, this, [&values](int value) { values.append(value); });
    connect(&status, &QStatusBar::messageChanged, this,
            [&messages](const QString &message) { messages.append(message); });
    Regions regions;
    FrWaveSegment(&picture, regions, 5, &bar, &status);
    QCOMPARE(values, Indices({0, 14, 28, 42, 57, 71, 85}));
    QCOMPARE(messages.first(), QString("Segmenting image"));
    QCOMPARE(messages.last(), QString("Segmented image"));
    QCOMPARE(status.currentMessage(), QString("Segmented image"));
}

void TestFrWaveSegment::nullPicture()
{
    QImage none;
    QProgressBar bar;
    QStatusBar status;
    Regions regions;
    QCOMPARE(FrWaveSegment(&none, regions, 5, &bar, &status), 0);
    QVERIFY(regions.isEmpty());
    QCOMPARE(status.currentMessage(), QString("Segmented image"));
    QCOMPARE(regionsOf(testpictures::constantImage(1, 1, 0xFF000000), 5), Regions({{0}}));
}

void TestFrWaveSegment::predicates()
{
    for (int value = 0; value <= 255; ++value) {
        QCOMPARE(IsBlack(static_cast<unsigned char>(value)), value == 0);
        QCOMPARE(is_white_mw(static_cast<unsigned char>(value)), value == 255);
    }
}

ORNEVO_TEST_MAIN(TestFrWaveSegment)
#include "tst_frwavesegment.moc"
