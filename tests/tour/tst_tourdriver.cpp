// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/support/TestMain.h"
#include "tour/Driver.h"

namespace {

constexpr int shortPatience = 200; // ms

/// What the driver throws; empty when all goes well.
QString reportOf(const std::function<void()> &step)
{
    try {
        step();
    } catch (const TourError &error) {
        return error.what();
    }
    return {};
}

/// A window with a canvas, and a driver for it.
struct Drive
{
    Drive() : driver(withCanvas(), QString(), shortPatience) {}

    QMainWindow &withCanvas()
    {
        auto *canvas = new QGraphicsView(&window);
        canvas->setObjectName("graphicsView");
        window.setCentralWidget(canvas);
        return window;
    }

    QMainWindow window;
    Driver driver;
};

} // namespace

class TestTourDriver : public QObject
{
    Q_OBJECT

private slots:
    void answersTheDialog();
    void saysThatNoDialogCame();
    void handsOnWhatTheAnswerThrew();
    void handsOnWhatAnInnerAnswerThrew();
    void namesWhatIsWaitedFor();
};

void TestTourDriver::answersTheDialog()
{
    Drive drive;
    QDialog dialog;
    int result = -1;
    QCOMPARE(reportOf([&] {
                 drive.driver.withDialog(
                     "QDialog", [&](QWidget &) { dialog.accept(); }, [&] { result = dialog.exec(); });
             }),
             QString());
    QCOMPARE(result, int(QDialog::Accepted));
}

void TestTourDriver::saysThatNoDialogCame()
{
    Drive drive;
    QCOMPARE(reportOf([&] {
                 drive.driver.withDialog(
                     "QDialog", [](QWidget &) {}, [] {});
             }),
             QString("QDialog was not shown"));
}

void TestTourDriver::handsOnWhatTheAnswerThrew()
{
    Drive drive;
    QDialog dialog;
    QCOMPARE(reportOf([&] {
                 drive.driver.withDialog(
                     "QDialog", [](QWidget &) { throw TourError("no such button"); }, [&] { dialog.exec(); });
             }),
             QString("no such button"));
}

void TestTourDriver::handsOnWhatAnInnerAnswerThrew()
{
    Drive drive;
    QDialog outer;
    QMessageBox inner;
    const auto openInner = [&](QWidget &) {
        drive.driver.withDialog(
            "QMessageBox", [](QWidget &) { throw TourError("no such text"); }, [&] { inner.exec(); });
    };
    QCOMPARE(reportOf([&] { drive.driver.withDialog("QDialog", openInner, [&] { outer.exec(); }); }),
             QString("no such text"));
}

void TestTourDriver::namesWhatIsWaitedFor()
{
    const Awaiting one("the first");
    const Awaiting two("the second");
    QVERIFY2(awaited().startsWith("the first, in there for the second"), qPrintable(awaited()));
}

ORNEVO_TEST_MAIN(TestTourDriver)
#include "tst_tourdriver.moc"
