// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/SeedSquare.h"
#include "tests/reference/MaskReference.h"
#include "tests/support/TestMain.h"

#include <limits>

namespace {

QList<int> seedsOf(const QRectF &rect, QSize size)
{
    QList<int> seeds;
    markers::appendSeedSquare(rect, size, seeds);
    return seeds;
}

} // namespace

class TestSeedSquare : public QObject
{
    Q_OBJECT

private slots:
    void agrees_data();
    void agrees();
    void runsColumnByColumn();
    void isClippedRightAndBelow();
    void isNotClippedLeftAndAbove();
    void isAppended();
    void farOutAddsNothing();
};

void TestSeedSquare::agrees_data()
{
    QTest::addColumn<QRectF>("rect");
    for (const double x : {-25.0, -3.7, -3.0, -0.9, 0.0, 4.6, 9.99, 19.0, 19.9, 20.0, 20.5, 21.0, 400.0})
        for (const double y : {-30.0, -3.0, -0.5, 0.0, 7.0, 14.99, 15.0, 15.5, 16.0, 99.0})
            for (const double side : {-4.0, 0.0, 0.9, 1.0, 6.7, 50.0})
                QTest::addRow("(%g, %g), side %g", x, y, side) << QRectF(x, y, side, 3.0);
}

void TestSeedSquare::agrees()
{
    QFETCH(QRectF, rect);
    for (const QSize size : {QSize(20, 15), QSize(1, 1), QSize(20, 1), QSize(0, 0)})
        QCOMPARE(seedsOf(rect, size), reference::seedSquare(rect, size.width(), size.height()));
}

void TestSeedSquare::runsColumnByColumn()
{
    QCOMPARE(seedsOf({2.9, 1.9, 2.9, 77.0}, {10, 8}), QList<int>({12, 22, 13, 23}));
}

void TestSeedSquare::isClippedRightAndBelow()
{
    QCOMPARE(seedsOf({8, 0, 5, 5}, {10, 1}), QList<int>({8, 9}));
    QCOMPARE(seedsOf({0, 6, 1, 1}, {10, 8}), QList<int>({60}));
    QCOMPARE(seedsOf({0, 6, 5, 5}, {1, 8}), QList<int>({6, 7}));
}

void TestSeedSquare::isNotClippedLeftAndAbove()
{
    // The picture continues to the left into the end of the row above.
    QCOMPARE(seedsOf({-3, 2, 1, 1}, {10, 8}), QList<int>({17}));
    QCOMPARE(seedsOf({-3, 0, 4, 4}, {10, 1}), QList<int>({-3, -2, -1, 0}));
    QCOMPARE(seedsOf({5, -2, 1, 1}, {10, 8}), QList<int>({-15}));
}

void TestSeedSquare::isAppended()
{
    QList<int> seeds{7, 7};
    markers::appendSeedSquare({1, 1, 1, 1}, {4, 4}, seeds);
    markers::appendSeedSquare({1, 1, 1, 1}, {4, 4}, seeds);
    QCOMPARE(seeds, QList<int>({7, 7, 5, 5}));
}

void TestSeedSquare::farOutAddsNothing()
{
    const double infinite = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(seedsOf({1e300, 0, 5, 5}, {10, 8}).isEmpty());
    QVERIFY(seedsOf({0, infinite, 5, 5}, {10, 8}).isEmpty());
    QVERIFY(seedsOf({0, 0, notANumber, 5}, {10, 8}).isEmpty());
    QVERIFY(seedsOf({0, 0, -infinite, 5}, {10, 8}).isEmpty());
    // So far above that the index would not fit into an int.
    QVERIFY(seedsOf({0, -1e300, 1, 1}, {10, 8}).isEmpty());
}

ORNEVO_TEST_MAIN(TestSeedSquare)
#include "tst_seedsquare.moc"
