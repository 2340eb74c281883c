// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ProgressStep.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"
#include "tests/support/WindowUnderTest.h"

#include <QProgressBar>
#include <QScreen>
#include <QSignalSpy>

using testsupport::WindowUnderTest;

namespace {

class Paintings : public QObject
{
public:
    explicit Paintings(QProgressBar &bar) : m_bar(bar) { bar.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            values.append(m_bar.value());
        return false;
    }
    [[nodiscard]] bool has(int value) const { return values.contains(value); }
    QList<int> values;

private:
    QProgressBar &m_bar;
};

} // namespace

/// The bar moves on the screen during a long step, and does not make it longer.
class TestProgress : public QObject
{
    Q_OBJECT

private slots:
    void slowStepIsSeenMoving()
    {
        WindowUnderTest t;
        t.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&t.window));
        t.progressBar().setValue(70); // of the step before
        const Paintings paintings(t.progressBar());
        const app::ProgressStep step(&t.progressBar());
        for (int percent = 1; percent <= 5; ++percent) {
            QTest::qSleep(50);
            t.progressBar().setValue(percent);
        }
        QCOMPARE(paintings.values, (QList<int>{0, 1, 2, 3, 4, 5}));
    }

    void quickStepIsHardlyPainted()
    {
        WindowUnderTest t;
        t.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&t.window));
        QSignalSpy changes(&t.progressBar(), &QProgressBar::valueChanged);
        const Paintings paintings(t.progressBar());
        // A value is painted if 40 ms have passed since the last painting, and not otherwise. The bar's own
        // clock was set somewhere between these two times, however long the machine does other things
        // meanwhile.
        constexpr qint64 pause = 40'000'000;
        QElapsedTimer clock;
        clock.start();
        qint64 paintedAfter = clock.nsecsElapsed();
        const app::ProgressStep step(&t.progressBar());
        qint64 paintedBefore = clock.nsecsElapsed();
        for (int percent = 1; percent <= 100; ++percent) {
            QTest::qSleep(1);
            const qint64 before = clock.nsecsElapsed();
            t.progressBar().setValue(percent);
            const qint64 after = clock.nsecsElapsed();
            if (paintings.has(percent)) {
                QVERIFY2(after - paintedAfter >= pause, qPrintable(QString::number(after - paintedAfter)));
                paintedAfter = before;
                paintedBefore = after;
            } else {
                QVERIFY2(before - paintedBefore < pause, qPrintable(QString::number(before - paintedBefore)));
            }
        }
        QCOMPARE(changes.size(), 100); // every one is reported to whoever listens
        // At the start, and of the tenth of a second at least that this takes.
        QVERIFY(paintings.values.size() >= 3);
        QCOMPARE(QSet<int>(paintings.values.begin(), paintings.values.end()).size(), paintings.values.size());
    }

    void barLeavesTheScreen()
    {
        WindowUnderTest t;
        const auto onScreen = [&t] { return t.window.screen()->grabWindow(t.window.winId()).toImage(); };
        QCoreApplication::processEvents();
        const QImage before = onScreen();
        {
            const app::ProgressStep step(&t.progressBar());
            QTest::qSleep(60);
            t.progressBar().setValue(42);
            QVERIFY(onScreen() != before);
        }
        QCoreApplication::processEvents();
        QCOMPARE(onScreen(), before);
    }

    /// The band that waits for it under the canvas is narrow, and the canvas keeps its size.
    void barComesAndGoesWithoutMovingTheCanvas()
    {
        WindowUnderTest t;
        testsupport::settle();
        const QRect canvas = t.view.geometry();
        const int below = t.window.centralWidget()->height() - canvas.bottom();
        QVERIFY2(below <= 14, qPrintable(QString::number(below)));
        {
            const app::ProgressStep step(&t.progressBar());
            testsupport::settle();
            QCOMPARE(t.view.geometry(), canvas);
            QVERIFY(t.progressBar().height() >= 4); // enough to be seen
        }
        testsupport::settle();
        QCOMPARE(t.view.geometry(), canvas);
    }

    /// Hidden and shown once more, it is painted like any other widget.
    void barIsPaintedAgainAfterAStep()
    {
        WindowUnderTest t;
        t.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&t.window));
        {
            const app::ProgressStep step(&t.progressBar());
            QVERIFY(t.progressBar().isVisible());
        }
        QVERIFY(!t.progressBar().isVisible());
        QVERIFY(t.progressBar().updatesEnabled());
        const Paintings paintings(t.progressBar());
        t.progressBar().show();
        QTest::qSleep(60);
        t.progressBar().setValue(42);
        QCOMPARE(paintings.values, QList<int>{42});
    }
};

ORNEVO_TEST_MAIN(TestProgress)
#include "tst_progress.moc"
