// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/WindingRegion.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"

#include <QPainterPath>
#include <QTransform>

namespace {

/// Whether it has the pixels of QRegion's own. The rectangles can differ: QRegion does not always join them.
bool isRight(const QRegion &region, const QPolygon &polygon, const QRect &bounds)
{
    return region.xored(QRegion(polygon, Qt::WindingFill).intersected(bounds)).isEmpty();
}

QByteArray wordsOf(const QPolygon &polygon)
{
    QByteArray words;
    for (const QPoint &point : polygon)
        words += QByteArray::number(point.x()) + ',' + QByteArray::number(point.y()) + ' ';
    return words;
}

} // namespace

/// The region of a polygon is QRegion's own, pixel by pixel.
class TestWindingRegion : public QObject
{
    Q_OBJECT

private slots:
    void anyPolygon_data()
    {
        QTest::addColumn<int>("reach");
        for (const int reach : {1, 2, 3, 5, 9, 20, 60, 300, 3000})
            QTest::addRow("within %d", reach) << reach;
    }

    void anyPolygon()
    {
        QFETCH(int, reach);
        testpictures::Random random(static_cast<std::uint32_t>(reach));
        const int rounds = reach < 1000 ? 1500 : 10;
        for (int round = 0; round < rounds; ++round) {
            QPolygon polygon;
            for (int i = random.below(13); i >= 0; --i)
                polygon << QPoint(random.below(2 * reach + 1) - reach, random.below(2 * reach + 1) - reach);
            const QRect bounds(random.below(reach) - reach / 2, random.below(reach) - reach / 2,
                               random.below(reach + 3), random.below(reach + 3));
            const QRegion region = cutout::windingRegion(polygon, bounds);
            QVERIFY2(isRight(region, polygon, bounds), wordsOf(polygon).constData());
        }
    }

    void discs_data()
    {
        QTest::addColumn<int>("largest");
        for (const int largest : {3, 12, 100, 1500, 5000})
            QTest::addRow("up to %d", largest) << largest;
    }

    /// As the brushes make them: the fill polygon of several circles, many of them in each other.
    void discs()
    {
        QFETCH(int, largest);
        testpictures::Random random(static_cast<std::uint32_t>(largest));
        const int rounds = largest < 1000 ? 300 : 3;
        for (int round = 0; round < rounds; ++round) {
            QPainterPath path;
            for (int i = random.below(10); i >= 0; --i) {
                const int side = random.below(largest + 1);
                path.addEllipse(QRectF(random.below(2 * largest) - largest,
                                       random.below(2 * largest) - largest, side, side - random.below(2)));
            }
            const QPolygon polygon = path.toFillPolygon(QTransform()).toPolygon();
            const QRect bounds(0, 0, 1 + random.below(2 * largest), 1 + random.below(2 * largest));
            const QRegion region = cutout::windingRegion(polygon, bounds);
            QVERIFY(isRight(region, polygon, bounds));
        }
    }

    void nothing()
    {
        QVERIFY(cutout::windingRegion({}, QRect(0, 0, 9, 9)).isEmpty());
        const QPolygon hexagon({{0, 3}, {2, 0}, {6, 0}, {8, 3}, {6, 6}, {2, 6}});
        QVERIFY(!cutout::windingRegion(hexagon, QRect(0, 0, 9, 9)).isEmpty());
        QVERIFY(cutout::windingRegion(hexagon, QRect()).isEmpty());
        QVERIFY(cutout::windingRegion(hexagon, QRect(20, 0, 9, 9)).isEmpty());
        QVERIFY(cutout::windingRegion(hexagon, QRect(0, 20, 9, 9)).isEmpty());
    }

    /// More rows than QRegion takes, of which few count.
    void farBeyondTheBounds()
    {
        constexpr int far = 1 << 28;
        const QPolygon hexagon(
            {{-far, 0}, {-far / 2, -far}, {far / 2, -far}, {far, 0}, {far / 2, far}, {-far / 2, far}});
        QCOMPARE(cutout::windingRegion(hexagon, QRect(0, 0, 50, 40)), QRegion(0, 0, 50, 40));
    }
};

ORNEVO_TEST_MAIN(TestWindingRegion)
#include "tst_windingregion.moc"
