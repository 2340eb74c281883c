// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/MipmapLevel.h"
#include "tests/support/TestMain.h"

#include <algorithm>
#include <random>

namespace {

/// The average of the four pixels under (x, y) of the half, byte by byte, rounded; an edge without a partner
/// counts twice.
QRgb plainAverage(const QImage &picture, int x, int y)
{
    const int right = std::min(2 * x + 1, picture.width() - 1);
    const int below = std::min(2 * y + 1, picture.height() - 1);
    QRgb result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        unsigned sum = 2;
        for (const QPoint at :
             {QPoint(2 * x, 2 * y), QPoint(right, 2 * y), QPoint(2 * x, below), QPoint(right, below)})
            sum += reinterpret_cast<const QRgb *>(picture.constScanLine(at.y()))[at.x()] >> shift & 0xFF;
        result |= (sum / 4) << shift;
    }
    return result;
}

QImage randomPicture(QSize size, unsigned seed)
{
    std::mt19937 random(seed);
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y)
        std::generate_n(reinterpret_cast<QRgb *>(picture.scanLine(y)), size.width(), std::ref(random));
    return picture;
}

} // namespace

class TestMipmapLevel : public QObject
{
    Q_OBJECT

private slots:
    void averagesSquaresOfFour_data();
    void averagesSquaresOfFour();
    void renewsOnlyWhatChanged();
    void refusesOtherFormats();
};

void TestMipmapLevel::averagesSquaresOfFour_data()
{
    QTest::addColumn<QSize>("size");
    for (const int width : {1, 2, 3, 16, 17, 63})
        for (const int height : {1, 2, 3, 8, 9})
            QTest::addRow("%dx%d", width, height) << QSize(width, height);
}

void TestMipmapLevel::averagesSquaresOfFour()
{
    QFETCH(QSize, size);
    const QImage picture = randomPicture(size, 7);
    const QImage half = cutout::nextMipmapLevel(picture);
    QCOMPARE(half.size(), QSize((size.width() + 1) / 2, (size.height() + 1) / 2));
    for (int y = 0; y < half.height(); ++y)
        for (int x = 0; x < half.width(); ++x)
            QCOMPARE(reinterpret_cast<const QRgb *>(half.constScanLine(y))[x], plainAverage(picture, x, y));
}

void TestMipmapLevel::renewsOnlyWhatChanged()
{
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        const QSize size(1 + int(random() % 40), 1 + int(random() % 40));
        QImage picture = randomPicture(size, random());
        QImage half = cutout::nextMipmapLevel(picture);
        const QRect area(int(random() % 50) - 5, int(random() % 50) - 5, int(random() % 20),
                         int(random() % 20));
        const QRect inside = area.intersected(picture.rect());
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            for (int x = inside.left(); x <= inside.right(); ++x)
                reinterpret_cast<QRgb *>(picture.scanLine(y))[x] = random();
        cutout::renewMipmapLevel(half, picture, area);
        QCOMPARE(half, cutout::nextMipmapLevel(picture));
    }
}

void TestMipmapLevel::refusesOtherFormats()
{
    QVERIFY(cutout::nextMipmapLevel(QImage()).isNull());
    QVERIFY(cutout::nextMipmapLevel(QImage(4, 4, QImage::Format_ARGB32)).isNull());
    QVERIFY(!cutout::nextMipmapLevel(QImage(4, 4, QImage::Format_RGB32)).isNull());
}

ORNEVO_TEST_MAIN(TestMipmapLevel)
#include "tst_mipmaplevel.moc"
