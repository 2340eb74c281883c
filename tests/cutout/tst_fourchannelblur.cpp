// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FourChannelBlur.h"
#include "tests/imaging/Planes.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"
#include "tests/support/Photographs.h"
#include "tests/support/TestMain.h"

#include <limits>

using testsupport::described;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// Pictures of all kinds; the fourth byte varies in the first one only.
QList<QImage> picturesOfAllKinds(QSize size, std::uint32_t seed)
{
    const int w = size.width();
    const int h = size.height();
    return {testpictures::randomArgbImage(w, h, seed), testpictures::constantImage(w, h, 0xFFFFFFFF),
            testpictures::blobMaskImage(w, h, seed),
            testpictures::stepImage(w, h, w / 2, 0xFF000000, 0xFFFFFFFF)};
}

QImage blurred(const QImage &src, int size, double sigma)
{
    QImage dst = testpictures::randomArgbImage(src.width(), src.height(), 77);
    cutout::blurFourChannels(src, dst, size, sigma, {});
    return dst;
}

QImage expectedOf(const QImage &src, int size, double sigma)
{
    QImage dst = testpictures::randomArgbImage(src.width(), src.height(), 77);
    reference::fourChannelBlur(src, dst, size, sigma);
    return dst;
}

QList<int> progressOf(const QImage &src, int size)
{
    QList<int> reports;
    QImage dst(src.size(), src.format());
    cutout::blurFourChannels(src, dst, size, 1.0, [&reports](int percent) { reports.append(percent); });
    return reports;
}

} // namespace

class TestFourChannelBlur : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void agreesOnPaddedPictures();
    void agreesOnPhotographs();
    void evenSizeActsAsTheNextOddOne();
    void frameIsLeftAsItWas();
    void onePixelInteriorOf2rPlus1();
    void widerThanThePictureChangesNothing_data();
    void widerThanThePictureChangesNothing();
    void constantLosesAtMostRadius();
    void fourthByteGoesThroughTheBlurLikeTheOthers();
    void progressNeverFalls();
    void progressOfASmallPicture();
    void targetsThatDoNotFitAreLeftAlone();
    void sharedTargetIsNotTheSource();
};

void TestFourChannelBlur::agrees_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("sigma");
    // The program's own choice of sigma, for the sizes of its settings and beyond.
    for (const int size : {1, 2, 3, 4, 5, 6, 7, 9, 10, 15, 31})
        QTest::addRow("size %d", size) << size << size / 5.0;
    for (const int size :
         {0, -1, -2, -7, std::numeric_limits<int>::min(), std::numeric_limits<int>::min() + 1})
        QTest::addRow("size %d", size) << size << 1.0;
    for (const double sigma : {0.0, -1.0, 0.1, 50.0, notANumber, infinite, -infinite, 1e200, 1e-200})
        QTest::addRow("sigma %g", sigma) << 5 << sigma;
}

void TestFourChannelBlur::agrees()
{
    QFETCH(int, size);
    QFETCH(double, sigma);
    for (const QSize extent : testpictures::awkwardSizes())
        for (const QImage &src : picturesOfAllKinds(extent, 51))
            VERIFY_SAME(described(extent), blurred(src, size, sigma), expectedOf(src, size, sigma));
}

void TestFourChannelBlur::agreesOnPaddedPictures()
{
    for (const QSize extent : {QSize(1, 1), QSize(5, 5), QSize(6, 9), QSize(33, 16)}) {
        const QImage plain = testpictures::randomArgbImage(extent.width(), extent.height(), 52);
        const QImage before = testpictures::randomArgbImage(extent.width(), extent.height(), 77);
        for (const int pads : {0, 1, 5}) {
            const QImage src = testpictures::paddedImage(plain, pads, 1);
            QImage dst = testpictures::paddedImage(before, 5 - pads, 2);
            cutout::blurFourChannels(src, dst, 5, 1.0, {});
            VERIFY_SAME(described(extent), dst, expectedOf(plain, 5, 1.0));
            VERIFY_SAME("source", src, plain);
            QVERIFY(testpictures::paddingUntouched(src, 1));
            QVERIFY(testpictures::paddingUntouched(dst, 2));
        }
    }
}

void TestFourChannelBlur::agreesOnPhotographs()
{
    SKIP_WITHOUT_PHOTOGRAPHS();
    for (const QString &path : testsupport::availablePhotographs()) {
        const QImage picture = testsupport::smallPhotograph(path, {120, 120});
        VERIFY_SAME(path.toUtf8(), blurred(picture, 5, 1.0), expectedOf(picture, 5, 1.0));
    }
}

void TestFourChannelBlur::evenSizeActsAsTheNextOddOne()
{
    const QImage src = testpictures::randomArgbImage(20, 20, 53);
    for (const int even : {0, 2, 4, 6, 18})
        VERIFY_SAME(QByteArray::number(even), blurred(src, even, 1.3), blurred(src, even + 1, 1.3));
    QVERIFY(blurred(src, 4, 1.3) != blurred(src, 3, 1.3));
}

void TestFourChannelBlur::frameIsLeftAsItWas()
{
    const QImage src = testpictures::constantImage(12, 11, 0xFFFFFFFF);
    QImage dst = testpictures::constantImage(12, 11, 0xFF123456);
    cutout::blurFourChannels(src, dst, 5, 1.0, {});
    for (int y = 0; y < 11; ++y)
        for (int x = 0; x < 12; ++x)
            QCOMPARE(dst.pixel(x, y) == 0xFF123456, x < 2 || y < 2 || x >= 10 || y >= 9);
}

void TestFourChannelBlur::onePixelInteriorOf2rPlus1()
{
    const QImage src = testpictures::randomArgbImage(5, 5, 54);
    const QImage untouched = testpictures::randomArgbImage(5, 5, 77);
    const QImage dst = blurred(src, 5, 1.0);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 5; ++x)
            QCOMPARE(dst.pixel(x, y) == untouched.pixel(x, y), x != 2 || y != 2);
    for (const QSize smaller : {QSize(4, 9), QSize(9, 4), QSize(4, 4)}) {
        const QImage small = testpictures::randomArgbImage(smaller.width(), smaller.height(), 55);
        VERIFY_SAME(described(smaller), blurred(small, 5, 1.0),
                    testpictures::randomArgbImage(smaller.width(), smaller.height(), 77));
    }
}

void TestFourChannelBlur::widerThanThePictureChangesNothing_data()
{
    QTest::addColumn<int>("size");
    for (const int size :
         {22, 23, 1 << 20, 1 << 30, std::numeric_limits<int>::max() - 1, std::numeric_limits<int>::max()})
        QTest::addRow("%d", size) << size;
}

void TestFourChannelBlur::widerThanThePictureChangesNothing()
{
    QFETCH(int, size);
    const QImage src = testpictures::randomArgbImage(21, 22, 56);
    VERIFY_SAME("huge", blurred(src, size, 1.0), testpictures::randomArgbImage(21, 22, 77));
}

void TestFourChannelBlur::constantLosesAtMostRadius()
{
    bool lost = false;
    for (int grey = 0; grey <= 255; ++grey) {
        const int centre =
            qRed(blurred(testpictures::constantImage(5, 5, qRgb(grey, 0, 0)), 5, 1.0).pixel(2, 2));
        QVERIFY(centre <= grey &&
                centre >= grey - 4); // one each for the centre, two rings and the first pass
        lost = lost || centre < grey;
    }
    QVERIFY(lost);
}

void TestFourChannelBlur::fourthByteGoesThroughTheBlurLikeTheOthers()
{
    const reference::Plane grey = testsupport::planeFrom({16, 16}, testpictures::randomPlane(16, 16, 57));
    QImage src(16, 16, QImage::Format_ARGB32);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            src.setPixel(x, y, qRgba(grey.at(x, y), grey.at(x, y), grey.at(x, y), grey.at(x, y)));
    const QImage dst = blurred(src, 7, 1.4);
    for (int y = 3; y < 13; ++y)
        for (int x = 3; x < 13; ++x)
            QCOMPARE(qAlpha(dst.pixel(x, y)), qBlue(dst.pixel(x, y)));
    // An opaque picture loses a little of its opaqueness, then.
    const QImage opaque = blurred(testpictures::constantImage(9, 9, 0xFFFFFFFF), 5, 1.0);
    QCOMPARE(qAlpha(opaque.convertToFormat(QImage::Format_ARGB32).pixel(4, 4)), qRed(opaque.pixel(4, 4)));
    QVERIFY(qRed(opaque.pixel(4, 4)) < 255);
}

void TestFourChannelBlur::progressNeverFalls()
{
    for (const int height : {6, 50, 1000}) {
        const QList<int> reports = progressOf(testpictures::randomArgbImage(20, height, 58), 5);
        QVERIFY(std::is_sorted(reports.begin(), reports.end()));
        QCOMPARE(reports.first(), 0);
        QCOMPARE(reports.last(), 45 + (height - 3) * 45 / height);
    }
}

void TestFourChannelBlur::progressOfASmallPicture()
{
    // Only the first pass has rows to go through.
    for (const QSize extent : {QSize(1, 1), QSize(4, 4), QSize(40, 3), QSize(3, 40)}) {
        const QImage picture = testpictures::randomArgbImage(extent.width(), extent.height(), 59);
        const QList<int> reports = progressOf(picture, 5);
        QVERIFY(!reports.isEmpty());
        QCOMPARE(reports.last(), (extent.height() - 1) * 45 / extent.height());
    }
}

void TestFourChannelBlur::targetsThatDoNotFitAreLeftAlone()
{
    const QImage src = testpictures::randomArgbImage(12, 12, 60);
    const auto refused = [](const QImage &from, QImage to) {
        const QImage before = to.copy();
        bool reported = false;
        cutout::blurFourChannels(from, to, 5, 1.0, [&reported](int) { reported = true; });
        return to == before && !reported;
    };
    QVERIFY(refused(src, QImage()));
    QVERIFY(refused(QImage(), src));
    QVERIFY(refused(QImage(), QImage()));
    QVERIFY(refused(src, testpictures::randomArgbImage(12, 13, 1)));
    QVERIFY(refused(src, testpictures::randomArgbImage(13, 12, 1)));
    QVERIFY(refused(src, src.convertToFormat(QImage::Format_RGB888)));
    QVERIFY(refused(src.convertToFormat(QImage::Format_Grayscale8), src));
    QImage both = src.copy();
    cutout::blurFourChannels(both, both, 5, 1.0, {});
    VERIFY_SAME("its own source", both, src);
}

void TestFourChannelBlur::sharedTargetIsNotTheSource()
{
    // The mask starts as a copy of its source, with which it shares its memory until it is written.
    const QImage src = testpictures::randomArgbImage(14, 14, 61);
    const QImage before = src.copy();
    QImage dst = src;
    cutout::blurFourChannels(src, dst, 5, 1.0, {});
    VERIFY_SAME("source", src, before);
    QImage expected = before.copy();
    reference::fourChannelBlur(before, expected, 5, 1.0);
    VERIFY_SAME("target", dst, expected);
}

ORNEVO_TEST_MAIN(TestFourChannelBlur)
#include "tst_fourchannelblur.moc"
