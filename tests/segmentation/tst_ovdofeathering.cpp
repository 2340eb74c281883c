// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/OvDoFeathering.h"
#include "tests/reference/ImageReferences.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/Differences.h"
#include "tests/support/TestMain.h"

#include <functional>
#include <limits>

namespace {

constexpr int most = std::numeric_limits<int>::max();

/// A mask whose set pixels are those for which `set` holds.
QBitmap maskOf(QSize size, const std::function<bool(int, int)> &set)
{
    QImage image(size, QImage::Format_Mono);
    image.setColorTable({0xFFFFFFFF, 0xFF000000});
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, set(x, y) ? 1 : 0);
    return QBitmap::fromImage(image);
}

QBitmap randomMask(QSize size, int oneIn, std::uint32_t seed)
{
    testpictures::Random random(seed);
    return maskOf(size, [&random, oneIn](int, int) { return random.below(oneIn) == 0; });
}

QList<QBitmap> masksOfAllKinds(QSize size, std::uint32_t seed)
{
    const auto blobs = testpictures::blobMask(size.width(), size.height(), seed);
    const auto inBlob = [&blobs, size](int x, int y) {
        return blobs[static_cast<std::size_t>(y * size.width() + x)] != 0;
    };
    return {maskOf(size, inBlob),
            maskOf(size, [&inBlob](int x, int y) { return !inBlob(x, y); }),
            randomMask(size, 2, seed),
            randomMask(size, 9, seed),
            maskOf(size, [](int x, int) { return x % 9 < 5; }),
            maskOf(size, [](int, int y) { return y % 9 < 5; }),
            maskOf(size, [](int, int) { return true; }),
            maskOf(size, [](int, int) { return false; })};
}

QImage feathered(QImage picture, const QBitmap &mask, int count)
{
    OvDoFeathering(&picture, mask, count);
    return picture;
}

QImage opaque(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(0xFF123456);
    return picture;
}

QList<int> alphaOfRow(const QImage &picture, int y)
{
    QList<int> alpha;
    for (int x = 0; x < picture.width(); ++x)
        alpha.append(qAlpha(picture.pixel(x, y)));
    return alpha;
}

QList<int> alphaOfColumn(const QImage &picture, int x)
{
    QList<int> alpha;
    for (int y = 0; y < picture.height(); ++y)
        alpha.append(qAlpha(picture.pixel(x, y)));
    return alpha;
}

/// The right part is set, from column 5 on.
QBitmap rightPart()
{
    return maskOf({12, 9}, [](int x, int) { return x >= 5; });
}

} // namespace

class TestOvDoFeathering : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void agreesOnEverySmallMask();
    void agreesOnPaddedPictures();
    void agreesWhereMaskAndPictureDiffer();
    void fadesOverThreePixels_data();
    void fadesOverThreePixels();
    void frameJoinsLaterRingsOnly();
    void stepDownLooksAtThePixelAbove();
    void nothingLiesAboveTheFirstRow();
    void maskOfOneColourChangesNothing();
    void coloursStay();
    void picturesThatCannotBeFeathered();
};

void TestOvDoFeathering::agrees_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {std::numeric_limits<int>::min(), -1, 0, 1, 2, 3, 4, 10, most})
        QTest::addRow("count %d", count) << count;
}

void TestOvDoFeathering::agrees()
{
    QFETCH(int, count);
    for (const QSize size : testpictures::awkwardSizes()) {
        const QImage picture = testpictures::randomArgbImage(size.width(), size.height(), 5);
        for (const QBitmap &mask : masksOfAllKinds(size, 6)) {
            QImage expected = picture.copy();
            reference::feather(expected, mask, std::min(count, 300));
            VERIFY_SAME(QByteArray::number(size.width()) + " x " + QByteArray::number(size.height()),
                        feathered(picture, mask, count), expected);
        }
    }
}

void TestOvDoFeathering::agreesOnEverySmallMask()
{
    // Every mask of 4 x 4, of which the corners are left clear: all turns that a ring can take at the frame.
    const QSize size(4, 4);
    const QImage picture = opaque(size);
    const QList<int> places{1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14};
    for (int bits = 0; bits < 1 << 12; ++bits) {
        const QBitmap mask = maskOf(size, [&places, bits](int x, int y) {
            const auto place = places.indexOf(4 * y + x);
            return place >= 0 && ((bits >> place) & 1) != 0;
        });
        QImage expected = picture.copy();
        reference::feather(expected, mask, 3);
        VERIFY_SAME(QByteArray::number(bits), feathered(picture, mask, 3), expected);
    }
}

void TestOvDoFeathering::agreesOnPaddedPictures()
{
    const QSize size(21, 17);
    const QImage plain = testpictures::randomArgbImage(21, 17, 7);
    for (const QBitmap &mask : masksOfAllKinds(size, 8)) {
        QImage padded = testpictures::paddedImage(plain, 6, 9);
        OvDoFeathering(&padded, mask, 3);
        VERIFY_SAME("padded", padded, feathered(plain, mask, 3));
        QVERIFY(testpictures::paddingUntouched(padded, 9));
    }
}

void TestOvDoFeathering::agreesWhereMaskAndPictureDiffer()
{
    for (const QBitmap &mask : masksOfAllKinds({20, 18}, 10)) {
        for (const QSize size : {QSize(20, 9), QSize(9, 18), QSize(1, 1), QSize(40, 40), QSize(19, 30)}) {
            const QImage picture = testpictures::randomArgbImage(size.width(), size.height(), 11);
            QImage expected = picture.copy();
            reference::feather(expected, mask, 3);
            VERIFY_SAME("another size", feathered(picture, mask, 3), expected);
        }
    }
}

void TestOvDoFeathering::fadesOverThreePixels_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("alpha");
    const QList<int> ringOne{255, 255, 255, 255, 0, 255, 255, 255, 255, 255, 255, 255};
    const QList<int> full{255, 255, 255, 255, 0, 0, 100, 180, 255, 255, 255, 255};
    QTest::newRow("less than none") << -3 << ringOne;
    QTest::newRow("none") << 0 << ringOne;
    QTest::newRow("one") << 1 << QList<int>{255, 255, 255, 255, 0, 0, 255, 255, 255, 255, 255, 255};
    QTest::newRow("two") << 2 << QList<int>{255, 255, 255, 255, 0, 0, 100, 255, 255, 255, 255, 255};
    QTest::newRow("three") << 3 << full;
    QTest::newRow("four") << 4 << full;
    QTest::newRow("no end") << most << full;
}

void TestOvDoFeathering::fadesOverThreePixels()
{
    QFETCH(int, count);
    QFETCH(QList<int>, alpha);
    QCOMPARE(alphaOfRow(feathered(opaque({12, 9}), rightPart(), count), 4), alpha);
}

void TestOvDoFeathering::frameJoinsLaterRingsOnly()
{
    const QImage picture = feathered(opaque({12, 9}), rightPart(), 3);
    const QList<int> frame{255, 255, 255, 255, 255, 100, 180, 255, 255, 255, 255, 255};
    QCOMPARE(alphaOfRow(picture, 0), frame); // a step later than the row beside it
    QCOMPARE(alphaOfRow(picture, 8), frame);
    QCOMPARE(alphaOfRow(feathered(opaque({12, 9}), rightPart(), 0), 0), QList<int>(12, 255));
}

void TestOvDoFeathering::stepDownLooksAtThePixelAbove()
{
    const QBitmap upper = maskOf({9, 12}, [](int, int y) { return y < 5; });
    // Row 6 is clear, and yet the first ring steps down to it: above that ring all is set.
    QCOMPARE(alphaOfColumn(feathered(opaque({9, 12}), upper, 3), 4),
             QList<int>({255, 255, 180, 100, 0, 0, 0, 255, 255, 255, 255, 255}));
    const QBitmap lower = maskOf({9, 12}, [](int, int y) { return y >= 7; });
    // Row 7 is set, and yet the first ring does not step down to it: above that ring all is clear.
    QCOMPARE(alphaOfColumn(feathered(opaque({9, 12}), lower, 3), 4),
             QList<int>({255, 255, 255, 255, 255, 255, 0, 255, 255, 255, 255, 255}));
}

void TestOvDoFeathering::nothingLiesAboveTheFirstRow()
{
    // One set pixel on the first row, which the first ring below reaches by a step up. From there it may go
    // sideways but not down, where it would look above the picture.
    const QBitmap mask = maskOf({7, 6}, [](int x, int y) { return y == 0 && x >= 2; });
    const QImage picture = feathered(opaque({7, 6}), mask, 3);
    QImage expected = opaque({7, 6});
    reference::feather(expected, mask, 3);
    VERIFY_SAME("first row", picture, expected);
    QCOMPARE(alphaOfRow(picture, 0), QList<int>({255, 255, 0, 0, 0, 0, 100}));
    QCOMPARE(qAlpha(picture.pixel(6, 1)), 255); // below the last one
}

void TestOvDoFeathering::maskOfOneColourChangesNothing()
{
    const QImage picture = testpictures::randomArgbImage(20, 20, 12);
    for (const bool set : {true, false})
        VERIFY_SAME("one colour", feathered(picture, maskOf({20, 20}, [set](int, int) { return set; }), 3),
                    picture);
}

void TestOvDoFeathering::coloursStay()
{
    const QImage picture = testpictures::randomArgbImage(20, 20, 13);
    const QImage result = feathered(picture, randomMask({20, 20}, 3, 14), 3);
    int changed = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            QCOMPARE(result.pixel(x, y) & 0xFFFFFFU, picture.pixel(x, y) & 0xFFFFFFU);
            changed += result.pixel(x, y) != picture.pixel(x, y) ? 1 : 0;
        }
    }
    QVERIFY(changed > 0);
}

void TestOvDoFeathering::picturesThatCannotBeFeathered()
{
    QImage none;
    OvDoFeathering(&none, rightPart(), 3);
    QVERIFY(none.isNull());
    QVERIFY(feathered(opaque({12, 9}), QBitmap(), 3) == opaque({12, 9}));
    QImage grey(12, 9, QImage::Format_Grayscale8);
    grey.fill(77);
    QVERIFY(feathered(grey, rightPart(), 3) == grey);
}

ORNEVO_TEST_MAIN(TestOvDoFeathering)
#include "tst_ovdofeathering.moc"
