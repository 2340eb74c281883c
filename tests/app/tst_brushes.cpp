// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/PaintedArea.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QAbstractButton>
#include <QGraphicsPixmapItem>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QThread>

#include <optional>

using testsupport::action;
using testsupport::CanvasMouse;
using testsupport::DialogAnswers;
using testsupport::part;

class TestBrushes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pressIsProcessedAtOnce();
    void moveWaits();
    void movesRestartTheTimer();
    void tenSquaresAreABatch();
    void slowDrag();
    void limits_data();
    void limits();
    void overlapCountsOnce();
    void intensityIsReadPerBatch();
    void pastTheEdge();
    void noArea();
    void otherToolDropsTheQueue();
    void otherBrushTakesTheQueue();
    void leavingThePreviewDropsTheQueue();
    void handToolOffset();
    void lastSquareIsKept();
    void undoRedoKeys();
    void undoAfterANewBackground();
    void undoAfterPreviewWasLeft();
    void undoWhileThePreviewIsOff();
    void openingForgets();
    void withoutPreview();
    void randomBatches();
    void exportAfterTouchUp();
    void twoHundredEntries();
    void batchAtTheUndoLimitRepaintsItselfOnly();
    void batchAfterANewBackgroundRepaintsItselfOnly();
    void dabsLeaveTheHiddenPreviewAlone();
    void dialogEndsTheStroke_data();
    void dialogEndsTheStroke();

private:
    QImage &image() { return probe->previewImage(); }
    QUndoStack &stack() { return probe->undoStack(); }
    void usePreviewImage(const QImage &picture);
    void send(const QRect &square, bool now);
    void sendAndWait(const QList<QRect> &squares);
    void checkShown();
    void markAndPreview();
    void answerBackground(const QString &choice, const QString &picture = {});
    QImage composedExport(const QImage &object);

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<MainWindowProbe> probe;
    QGraphicsView *view = nullptr;
    std::optional<CanvasMouse> mouse; ///< over it
};

namespace {

constexpr int width = 160;
constexpr int height = 120;

QImage opaque(QRgb colour, int alpha)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill((colour & 0xFFFFFFU) | (static_cast<QRgb>(alpha) << 24));
    return picture;
}

QImage premultiplied(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

void TestBrushes::initTestCase()
{
    QVERIFY(testpictures::blobImage(width, height, 4).save(folder.filePath("photo.png")));
    QVERIFY(testpictures::blobImage(70, 90, 8).save(folder.filePath("background.png")));
}

void TestBrushes::init()
{
    QSettings().clear();
    window = std::make_unique<MainWindow>();
    probe = std::make_unique<MainWindowProbe>(*window);
    view = testsupport::canvas(*window);
    mouse.emplace(*view);
    testsupport::show(*window);
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    action(*window, "actionPreview")->trigger();
    testsupport::settle();
    view->resetTransform();
    view->centerOn(width / 2, height / 2);
}

void TestBrushes::cleanup()
{
    probe.reset();
    window.reset();
}

void TestBrushes::usePreviewImage(const QImage &picture)
{
    image() = picture;
    window->applypreviewmask();
}

void TestBrushes::send(const QRect &square, bool now)
{
    QVERIFY(QMetaObject::invokeMethod(view, "AnyBrush", Q_ARG(QRect, square), Q_ARG(bool, now)));
}

void TestBrushes::sendAndWait(const QList<QRect> &squares)
{
    for (const QRect &square : squares)
        send(square, false);
    QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
}

/// The preview shows what the image holds.
void TestBrushes::checkShown()
{
    QVERIFY(probe->previewItem() != nullptr);
    QCOMPARE(premultiplied(probe->previewItem()->pixmap().toImage()), premultiplied(image()));
}

void TestBrushes::markAndPreview()
{
    if (action(*window, "actionPreview")->isChecked())
        action(*window, "actionPreview")->trigger();
    action(*window, "actionKeep_arker")->trigger();
    mouse->draw({{70, 60}, {75, 60}, {80, 60}});
    action(*window, "action_Remove_Marker")->trigger();
    mouse->draw({{15, 15}, {15, 60}, {140, 100}, {140, 20}});
    action(*window, "actionPreview")->trigger();
}

void TestBrushes::answerBackground(const QString &choice, const QString &picture)
{
    DialogAnswers answers;
    answers.expect<QDialog>([&](QDialog &dialog) {
        part<QRadioButton>(dialog, qPrintable(choice)).click();
        if (!picture.isEmpty())
            part<QPushButton>(dialog, "pushButton_2").click();
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    if (!picture.isEmpty())
        answers.chooseFile(picture);
    action(*window, "actionSelect_Background")->trigger();
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
}

void TestBrushes::pressIsProcessedAtOnce()
{
    usePreviewImage(opaque(0x102030, 20));
    action(*window, "actionForeground_Brush")->trigger();
    QImage expected = image().copy();
    mouse->press(view->mapFromScene(80, 60));
    QCOMPARE(probe->pendingBrushRects(), QList<QRect>{QRect(75, 55, 10, 10)});
    QCOMPARE(probe->brushTimer().interval(), 0);
    QCOMPARE(stack().count(), 0);
    QCOMPARE(image(), expected); // nothing happens before the loop comes round
    QCoreApplication::processEvents();
    QCOMPARE(stack().count(), 1);
    QVERIFY(probe->pendingBrushRects().isEmpty());
    reference::applyBrush(expected, {QRect(75, 55, 10, 10)}, {}, reference::Brush::Keep, 150);
    QCOMPARE(image(), expected);
    QCOMPARE(qAlpha(image().pixel(80, 60)), 170);
    checkShown();
}

void TestBrushes::moveWaits()
{
    action(*window, "actionBackground_Brush")->trigger();
    const QPoint position = view->mapFromScene(80, 60);
    mouse->press(position);
    QCoreApplication::processEvents();
    QCOMPARE(stack().count(), 1);
    QElapsedTimer age;
    age.start();
    mouse->move(position + QPoint(3, 0), Qt::LeftButton);
    QVERIFY(probe->brushTimer().isActive());
    QVERIFY(probe->brushTimer().isSingleShot());
    QCOMPARE(probe->brushTimer().interval(), 30);
    QCOMPARE(probe->pendingBrushRects().size(), 1);
    QTRY_COMPARE(stack().count(), 2);
    QVERIFY2(age.elapsed() >= 28, qPrintable(QString::number(age.elapsed())));
    QVERIFY(!probe->brushTimer().isActive());
    QVERIFY(probe->skipLastRectTimer().isActive());
    QCOMPARE(probe->skipLastRectTimer().interval(), 1000);
}

void TestBrushes::movesRestartTheTimer()
{
    action(*window, "actionForeground_Brush")->trigger();
    send(QRect(10, 10, 8, 8), false);
    while (probe->brushTimer().remainingTime() > 15) // no events meanwhile
        QTest::qSleep(1);
    QElapsedTimer age;
    age.start();
    send(QRect(12, 10, 8, 8), false);
    QCOMPARE(probe->pendingBrushRects().size(), 2);
    QTRY_COMPARE(stack().count(), 1); // both in one batch
    QVERIFY2(age.elapsed() >= 28, qPrintable(QString::number(age.elapsed())));
    QVERIFY(!probe->brushTimer().isActive());
    QVERIFY(probe->pendingBrushRects().isEmpty());
}

void TestBrushes::tenSquaresAreABatch()
{
    usePreviewImage(opaque(0x405060, 10));
    QImage expected = image().copy();
    action(*window, "actionForeground_Brush")->trigger();
    const QPoint start = view->mapFromScene(50, 60);
    mouse->press(start);
    QCoreApplication::processEvents(); // the press
    QList<QRect> squares;
    for (int i = 1; i <= 10; ++i) {
        mouse->move(start + QPoint(4 * i, 0), Qt::LeftButton);
        squares.append(QRect(45 + 4 * i, 55, 10, 10));
        QCOMPARE(probe->brushTimer().interval(), i < 10 ? 30 : 0);
    }
    mouse->release(start + QPoint(40, 0));
    QCOMPARE(probe->pendingBrushRects(), squares);
    QCoreApplication::processEvents();
    QCOMPARE(stack().count(), 2);
    reference::applyBrush(expected, {QRect(45, 55, 10, 10)}, {}, reference::Brush::Keep, 150);
    reference::applyBrush(expected, squares, {}, reference::Brush::Keep, 150);
    QCOMPARE(image(), expected);
    // A press in the middle of a queue takes the queue along.
    send(QRect(20, 20, 6, 6), false);
    send(QRect(30, 20, 6, 6), false);
    send(QRect(40, 20, 6, 6), true);
    QCOMPARE(probe->brushTimer().interval(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(stack().count(), 3);
}

void TestBrushes::slowDrag()
{
    action(*window, "actionBackground_Brush")->trigger();
    const QPoint start = view->mapFromScene(50, 60);
    mouse->press(start);
    QCoreApplication::processEvents();
    for (int i = 1; i <= 4; ++i) {
        mouse->move(start + QPoint(i * 5, 0), Qt::LeftButton);
        QTRY_COMPARE(stack().count(), 1 + i);
    }
    mouse->release(start + QPoint(20, 0));
    QVERIFY(!probe->brushTimer().isActive()); // the release adds nothing
    QCoreApplication::processEvents();
    QCOMPARE(stack().count(), 5);
}

void TestBrushes::limits_data()
{
    QTest::addColumn<bool>("keep");
    QTest::addColumn<int>("intensity");
    QTest::addColumn<int>("alpha");
    QTest::addColumn<int>("expected");
    QTest::newRow("keep ends at 255") << true << 150 << 200 << 255;
    QTest::newRow("keep just at 255") << true << 150 << 105 << 255;
    QTest::newRow("keep just below") << true << 150 << 104 << 254;
    QTest::newRow("keep from 0") << true << 150 << 0 << 150;
    QTest::newRow("keep 0") << true << 0 << 77 << 77;
    QTest::newRow("keep 255") << true << 255 << 1 << 255;
    QTest::newRow("remove ends at 0") << false << 100 << 50 << 0;
    QTest::newRow("remove just at 0") << false << 100 << 100 << 0;
    QTest::newRow("remove just above") << false << 100 << 101 << 1;
    QTest::newRow("remove from 255") << false << 100 << 255 << 155;
    QTest::newRow("remove 0") << false << 0 << 77 << 77;
    QTest::newRow("remove 255") << false << 255 << 254 << 0;
}

void TestBrushes::limits()
{
    QFETCH(bool, keep);
    QFETCH(int, intensity);
    QFETCH(int, alpha);
    QFETCH(int, expected);
    probe->brushIntensityKeep() = probe->brushIntensityRemove() = static_cast<unsigned char>(intensity);
    (keep ? probe->brushIntensityRemove() : probe->brushIntensityKeep()) = 33; // the other brush's own
    usePreviewImage(opaque(0xA1B2C3, alpha));
    action(*window, keep ? "actionForeground_Brush" : "actionBackground_Brush")->trigger();
    mouse->press(view->mapFromScene(80, 60));
    QCoreApplication::processEvents();
    QCOMPARE(image().pixel(80, 60), (static_cast<QRgb>(expected) << 24) | 0xA1B2C3U);
    QCOMPARE(image().pixel(20, 20), (static_cast<QRgb>(alpha) << 24) | 0xA1B2C3U);
    checkShown();
}

void TestBrushes::overlapCountsOnce()
{
    probe->brushIntensityKeep() = 40;
    usePreviewImage(opaque(0x0, 10));
    action(*window, "actionForeground_Brush")->trigger();
    sendAndWait({QRect(60, 50, 20, 20), QRect(65, 50, 20, 20), QRect(60, 50, 20, 20), QRect(70, 55, 20, 20)});
    QCOMPARE(stack().count(), 1);
    QCOMPARE(qAlpha(image().pixel(72, 60)), 50); // under all of them
    sendAndWait({QRect(60, 50, 20, 20)});        // the next batch counts again
    QCOMPARE(qAlpha(image().pixel(72, 60)), 90);
    QCOMPARE(qAlpha(image().pixel(60, 50)), 10); // the corner of the square, outside the round dab
}

void TestBrushes::intensityIsReadPerBatch()
{
    usePreviewImage(opaque(0x0, 0));
    action(*window, "actionForeground_Brush")->trigger();
    send(QRect(60, 50, 20, 20), true);
    testsupport::key(*window, Qt::Key_Up);
    QTRY_COMPARE(stack().count(), 1);
    QCOMPARE(qAlpha(image().pixel(70, 60)), 151);
}

void TestBrushes::pastTheEdge()
{
    QImage expected = testpictures::randomArgbImage(width, height, 3);
    usePreviewImage(expected.copy());
    const QImage before = expected.copy();
    action(*window, "actionBackground_Brush")->trigger();
    const QList<QRect> squares{QRect(-8, -8, 16, 16), QRect(width - 5, 50, 16, 16),
                               QRect(40, height - 3, 16, 16), QRect(-40, -40, 16, 16),
                               QRect(width + 50, 10, 16, 16)};
    sendAndWait(squares);
    reference::applyBrush(expected, squares, {}, reference::Brush::Remove, 100);
    QCOMPARE(image(), expected);
    QVERIFY(image() != before);
    checkShown();
    stack().undo();
    QCOMPARE(image(), before);
    checkShown();
    // Wholly outside: an entry that changes nothing.
    sendAndWait({QRect(400, 400, 10, 10)});
    QCOMPARE(image(), before);
    QCOMPARE(stack().count(), 1);
    stack().undo();
    stack().redo();
    QCOMPARE(image(), before);
    // With the mouse: a stroke that runs over the edge of the picture.
    mouse->press(view->mapFromScene(150, 60));
    mouse->move(view->mapFromScene(157, 60), Qt::LeftButton);
    mouse->move(view->mapFromScene(164, 60), Qt::LeftButton);
    mouse->release(view->mapFromScene(164, 60));
    QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
    expected = before.copy();
    reference::applyBrush(expected, {QRect(145, 55, 10, 10), QRect(152, 55, 10, 10), QRect(159, 55, 10, 10)},
                          {}, reference::Brush::Remove, 100);
    QCOMPARE(image(), expected);
}

void TestBrushes::noArea()
{
    const QImage before = testpictures::randomArgbImage(width, height, 3);
    usePreviewImage(before.copy());
    action(*window, "actionForeground_Brush")->trigger();
    sendAndWait({QRect(50, 50, 0, 0), QRect(60, 60, 0, 0)});
    QCOMPARE(image(), before);
    stack().undo();
    stack().redo();
    QCOMPARE(image(), before);
    checkShown();
}

void TestBrushes::otherToolDropsTheQueue()
{
    const QImage before = image().copy();
    action(*window, "actionBackground_Brush")->trigger();
    send(QRect(60, 50, 20, 20), false);
    action(*window, "actionHandTool")->trigger();
    QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
    QCOMPARE(stack().count(), 0);
    QCOMPARE(image(), before);
    QCOMPARE(probe->lastBrushRect(), QRect(60, 50, 20, 20));
}

void TestBrushes::otherBrushTakesTheQueue()
{
    usePreviewImage(opaque(0x0, 60));
    action(*window, "actionBackground_Brush")->trigger();
    send(QRect(60, 50, 20, 20), false);
    action(*window, "actionForeground_Brush")->trigger();
    QTRY_COMPARE(stack().count(), 1);
    QCOMPARE(qAlpha(image().pixel(70, 60)), 210);
}

void TestBrushes::leavingThePreviewDropsTheQueue()
{
    action(*window, "actionForeground_Brush")->trigger();
    send(QRect(60, 50, 20, 20), false);
    action(*window, "actionPreview")->trigger();
    action(*window, "actionPreview")->trigger(); // back in before the timer
    const QImage before = image().copy();
    QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
    QCOMPARE(stack().count(), 0);
    QCOMPARE(image(), before);
}

void TestBrushes::handToolOffset()
{
    QImage expected = testpictures::randomArgbImage(width, height, 6);
    usePreviewImage(expected.copy());
    action(*window, "actionHandTool")->trigger();
    QPoint position = view->mapFromScene(80, 60);
    mouse->press(position);
    for (int i = 0; i < 30; ++i)
        mouse->move(position += QPoint(1, 0), Qt::LeftButton);
    for (int i = 0; i < 10; ++i)
        mouse->move(position -= QPoint(0, 1), Qt::LeftButton);
    mouse->release(position);
    QCOMPARE(probe->previewOffset(), QPoint(30, -10));
    QCOMPARE(probe->previewItem()->pos(), QPointF(30, -10));
    QCOMPARE(probe->backgroundItem()->pos(), QPointF(0, 0));
    QCOMPARE(stack().count(), 0); // a drag is no entry

    action(*window, "actionForeground_Brush")->trigger();
    send(QRect(100, 80, 20, 20), true);
    QTRY_COMPARE(stack().count(), 1);
    const reference::BrushBatch batch =
        reference::applyBrush(expected, {QRect(100, 80, 20, 20)}, {30, -10}, reference::Brush::Keep, 150);
    QCOMPARE(batch.box, QRect(70, 90, 20, 20));
    QCOMPARE(image(), expected);
    checkShown();
    QCOMPARE(probe->previewItem()->pos(), QPointF(30, -10));
}

void TestBrushes::lastSquareIsKept()
{
    usePreviewImage(opaque(0x0, 10));
    QCOMPARE(probe->lastBrushRect(), QRect());
    QVERIFY(probe->skipLastRect());
    action(*window, "actionForeground_Brush")->trigger();
    probe->brushIntensityKeep() = 20;
    sendAndWait({QRect(30, 30, 20, 20), QRect(60, 30, 20, 20)});
    QCOMPARE(probe->lastBrushRect(), QRect(60, 30, 20, 20));
    QVERIFY(probe->skipLastRect());
    // Set not to skip it, the next batch leaves the last square alone, and only the next.
    probe->skipLastRect() = false;
    QImage expected = image().copy();
    reference::applyBrush(expected, {QRect(55, 30, 20, 20)}, {}, reference::Brush::Keep, 20, false,
                          QRect(60, 30, 20, 20));
    sendAndWait({QRect(55, 30, 20, 20)});
    QCOMPARE(image(), expected);
    QVERIFY(probe->skipLastRect());
    probe->skipLastRect() = false;
    QTRY_VERIFY_WITH_TIMEOUT(probe->skipLastRect(), 3000); // a second later it is forgotten
}

void TestBrushes::undoRedoKeys()
{
    usePreviewImage(testpictures::randomArgbImage(width, height, 12));
    QList<QImage> states{image().copy()};
    for (int i = 0; i < 4; ++i) {
        action(*window, i % 2 == 0 ? "actionForeground_Brush" : "actionBackground_Brush")->trigger();
        sendAndWait({QRect(20 + 20 * i, 40, 30, 25), QRect(25 + 20 * i, 45, 30, 25)});
        states.append(image().copy());
    }
    QCOMPARE(stack().count(), 4);
    for (int round = 0; round < 3; ++round) {
        for (int i = 3; i >= 0; --i) {
            testsupport::key(*window, QKeySequence::Undo);
            QCOMPARE(image(), states.at(i));
            checkShown();
        }
        testsupport::key(*window, QKeySequence::Undo); // nothing left
        QCOMPARE(image(), states.at(0));
        for (int i = 1; i <= 4; ++i) {
            testsupport::key(*window, QKeySequence::Redo);
            QCOMPARE(image(), states.at(i));
            checkShown();
        }
    }
}

void TestBrushes::undoAfterANewBackground()
{
    usePreviewImage(testpictures::randomArgbImage(width, height, 12));
    const QImage before = image().copy();
    action(*window, "actionForeground_Brush")->trigger();
    sendAndWait({QRect(60, 50, 20, 20)});
    const QImage brushed = image().copy();
    answerBackground("transparentradioButton");
    QCOMPARE(image(), brushed);
    checkShown();
    stack().undo();
    QCOMPARE(image(), before);
    checkShown(); // though its item is a new one
    stack().redo();
    QCOMPARE(image(), brushed);
    checkShown();
    sendAndWait({QRect(30, 50, 20, 20)});
    const QImage again = image().copy();
    answerBackground("pictureradioButton", folder.filePath("background.png"));
    for (int i = 0; i < 3; ++i) {
        stack().undo();
        QCOMPARE(image(), brushed);
        checkShown();
        stack().undo();
        QCOMPARE(image(), before);
        checkShown();
        stack().redo();
        stack().redo();
        QCOMPARE(image(), again);
        checkShown();
    }
}

void TestBrushes::undoAfterPreviewWasLeft()
{
    markAndPreview();
    stack().clear();
    const QImage fresh = image().copy();
    action(*window, "actionBackground_Brush")->trigger();
    sendAndWait({QRect(65, 50, 20, 20)});
    const QImage brushed = image().copy();
    QVERIFY(brushed != fresh);
    action(*window, "actionPreview")->trigger();
    action(*window, "actionPreview")->trigger();
    QCOMPARE(image(), fresh); // cut out anew
    checkShown();
    stack().undo();
    QCOMPARE(image(), fresh);
    checkShown();
    stack().redo();
    QCOMPARE(image(), brushed);
    checkShown();
    stack().undo();
    QCOMPARE(image(), fresh);
    checkShown();
}

void TestBrushes::undoWhileThePreviewIsOff()
{
    markAndPreview();
    stack().clear();
    const QImage fresh = image().copy();
    action(*window, "actionBackground_Brush")->trigger();
    sendAndWait({QRect(65, 50, 20, 20)});
    const QImage brushed = image().copy();
    action(*window, "actionPreview")->trigger();
    testsupport::key(*window, QKeySequence::Undo);
    QCOMPARE(image(), fresh);
    checkShown();
    testsupport::key(*window, QKeySequence::Redo);
    QCOMPARE(image(), brushed);
    checkShown();
}

void TestBrushes::openingForgets()
{
    action(*window, "actionForeground_Brush")->trigger();
    sendAndWait({QRect(60, 50, 20, 20)});
    QCOMPARE(stack().count(), 1);
    send(QRect(30, 30, 10, 10), false);
    testsupport::openPhoto(*window, folder.filePath("background.png"));
    QCOMPARE(stack().count(), 0);
    QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
    QCOMPARE(stack().count(), 0);
    QVERIFY(image().isNull());
}

void TestBrushes::withoutPreview()
{
    MainWindow empty;
    MainWindowProbe inside(empty);
    action(empty, "actionForeground_Brush")->setChecked(true);
    QGraphicsView *canvas = testsupport::canvas(empty);
    QVERIFY(
        QMetaObject::invokeMethod(canvas, "AnyBrush", Q_ARG(QRect, QRect(5, 5, 9, 9)), Q_ARG(bool, true)));
    QVERIFY(QMetaObject::invokeMethod(canvas, "HandTool", Q_ARG(QPoint, QPoint(1, 1)),
                                      Q_ARG(QPoint, QPoint(4, 3))));
    QCOMPARE(inside.pendingBrushRects().size(), 1);
    QTRY_VERIFY(inside.pendingBrushRects().isEmpty());
    QCOMPARE(inside.undoStack().count(), 0);
    QVERIFY(inside.previewImage().isNull());
    QCOMPARE(inside.previewOffset(), QPoint(3, 2));
}

void TestBrushes::randomBatches()
{
    testpictures::Random random(41);
    QImage expected = testpictures::randomArgbImage(width, height, 40);
    usePreviewImage(expected.copy());
    QList<QImage> states{expected.copy()};
    for (int i = 0; i < 60; ++i) {
        const QPoint offset(random.below(41) - 20, random.below(41) - 20);
        probe->previewOffset() = offset;
        const bool keep = random.below(2) == 0;
        const auto intensity = static_cast<unsigned char>(1 + random.below(200));
        (keep ? probe->brushIntensityKeep() : probe->brushIntensityRemove()) = intensity;
        action(*window, keep ? "actionForeground_Brush" : "actionBackground_Brush")->setChecked(true);
        QList<QRect> squares;
        for (int k = random.below(9) + 1; k > 0; --k) {
            const int side = random.below(50);
            squares.append(
                QRect(random.below(width + 60) - 30, random.below(height + 60) - 30, side,
                      std::max(side + random.below(3) - 1, 0))); // at most zooms not quite a square
        }
        for (const QRect &square : squares)
            send(square, false);
        QVERIFY(QMetaObject::invokeMethod(window.get(), "on_ProcessBrushMouseEvent"));
        reference::applyBrush(expected, squares, offset,
                              keep ? reference::Brush::Keep : reference::Brush::Remove, intensity);
        QCOMPARE(image(), expected);
        states.append(expected.copy());
    }
    checkShown();
    for (int i = 59; i >= 0; --i) {
        stack().undo();
        QCOMPARE(image(), states.at(i));
    }
    checkShown();
}

QImage TestBrushes::composedExport(const QImage &object)
{
    reference::ExportSource source;
    source.backgroundColor = probe->backgroundColor();
    source.backgroundPixmap = probe->backgroundItem()->pixmap();
    source.backgroundExtent = probe->backgroundItem()->boundingRect().size();
    source.previewImage = object;
    source.previewOffset = probe->previewOffset();
    return reference::exportComposition(source, width, height).toImage();
}

void TestBrushes::exportAfterTouchUp()
{
    markAndPreview();
    answerBackground("transparentradioButton");
    const auto exported = [this] {
        const QString name = folder.filePath("export.png");
        QFile::remove(name);
        DialogAnswers answers;
        answers.expect<QDialog>([](QDialog &dialog) {
            part<QPushButton>(dialog, "pushButton").click();
            testsupport::press(dialog, QDialogButtonBox::Ok);
        });
        answers.chooseFile(name);
        testsupport::key(*window, Qt::Key_S);
        return QImage(name);
    };
    const QImage before = exported();
    QVERIFY(!before.isNull());
    QCOMPARE(premultiplied(before), premultiplied(composedExport(image())));
    action(*window, "actionBackground_Brush")->trigger();
    sendAndWait({QRect(60, 45, 30, 30)});
    const QImage after = exported();
    QCOMPARE(premultiplied(after), premultiplied(composedExport(image())));
    QVERIFY(after != before);
    stack().undo();
    QCOMPARE(exported(), before);
}

void TestBrushes::twoHundredEntries()
{
    usePreviewImage(opaque(0x0, 100));
    action(*window, "actionForeground_Brush")->trigger();
    probe->brushIntensityKeep() = 0;
    for (int i = 0; i < 205; ++i) {
        send(QRect(60, 50, 4, 4), false);
        QVERIFY(QMetaObject::invokeMethod(window.get(), "on_ProcessBrushMouseEvent"));
    }
    QCOMPARE(stack().count(), 200);
}

namespace {

/// How much of the canvas a batch of one dab repaints.
QSize repaintedByADab(QGraphicsView &view, QUndoStack &stack)
{
    const int before = stack.index();
    const QPoint position = view.mapFromScene(80, 60);
    testsupport::PaintedArea painted(view.viewport());
    CanvasMouse mouse(view);
    mouse.move(position + QPoint(3, 3)); // so that the circle is painted, wherever it was
    mouse.move(position);
    if (!QTest::qWaitFor([&] { return !painted.take().isEmpty(); }))
        qFatal("no circle");
    QSignalSpy pushed(&stack, &QUndoStack::indexChanged);
    mouse.click(position);
    if (!QTest::qWaitFor([&] { return !pushed.isEmpty(); }))
        qFatal("no batch after %d", before);
    QRegion area;
    if (!QTest::qWaitFor([&] { return !(area += painted.take()).isEmpty(); }))
        qFatal("nothing is painted");
    return area.boundingRect().size();
}

bool isSmall(QSize size)
{
    return !size.isEmpty() && size.width() < 40 && size.height() < 40; // of a dab of 10
}

} // namespace

/// There the index of the stack stays, while every push drops the oldest entry.
void TestBrushes::batchAtTheUndoLimitRepaintsItselfOnly()
{
    action(*window, "actionPreview")->trigger();
    action(*window, "actionKeep_arker")->trigger();
    for (int i = 0; i < 210; ++i)
        mouse->draw({QPointF(60 + i % 40, 50 + i / 40)});
    QCOMPARE(stack().count(), 200);
    action(*window, "actionPreview")->trigger();
    action(*window, "actionBackground_Brush")->trigger();
    for (int i = 0; i < 3; ++i) {
        const QSize repainted = repaintedByADab(*view, stack());
        QVERIFY2(isSmall(repainted),
                 qPrintable(QStringLiteral("%1 x %2").arg(repainted.width()).arg(repainted.height())));
        checkShown();
    }
}

void TestBrushes::batchAfterANewBackgroundRepaintsItselfOnly()
{
    action(*window, "actionForeground_Brush")->trigger();
    for (int i = 0; i < 3; ++i)
        repaintedByADab(*view, stack());
    stack().undo();
    answerBackground("transparentradioButton");
    action(*window, "actionForeground_Brush")->setChecked(true);
    testsupport::settle();
    QVERIFY(isSmall(repaintedByADab(*view, stack())));
    checkShown();
    testsupport::PaintedArea painted(view->viewport());
    stack().undo();
    stack().undo(); // of the preview before
    QRegion area;
    QTRY_VERIFY(!(area += painted.take()).isEmpty());
    QVERIFY(isSmall(area.boundingRect().size()));
    checkShown();
}

void TestBrushes::dabsLeaveTheHiddenPreviewAlone()
{
    action(*window, "actionForeground_Brush")->trigger();
    repaintedByADab(*view, stack());
    answerBackground("transparentradioButton");
    action(*window, "actionPreview")->trigger();
    const qint64 shown = probe->previewItem()->pixmap().cacheKey();
    action(*window, "actionKeep_arker")->trigger();
    mouse->draw({{70, 60}, {75, 60}});
    QCOMPARE(stack().count(), 3);
    QCOMPARE(probe->previewItem()->pixmap().cacheKey(), shown);
}

void TestBrushes::dialogEndsTheStroke_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : {"actionKeep_arker", "action_Remove_Marker", "actionForeground_Brush",
                             "actionBackground_Brush", "actionHandTool"})
        QTest::newRow(tool) << tool;
}

/// Press, Ctrl+O, release over the dialog, Escape: no button is down any more.
void TestBrushes::dialogEndsTheStroke()
{
    QFETCH(QString, tool);
    const bool marker = tool.endsWith("arker");
    if (marker)
        action(*window, "actionPreview")->trigger();
    action(*window, tool)->trigger();
    const auto lay = [&](int x, Qt::MouseButtons held) {
        mouse->move(view->mapFromScene(x, 60), held);
        // The brush waits for more dabs.
        if (!QTest::qWaitFor([&] { return probe->pendingBrushRects().isEmpty(); }))
            qFatal("the batch does not come");
        return std::pair(stack().count(), probe->previewOffset());
    };
    mouse->press(view->mapFromScene(60, 60));
    const auto drawn = lay(65, Qt::LeftButton);
    QVERIFY(drawn.first > 0 || !drawn.second.isNull());
    DialogAnswers answers;
    answers.expect<QFileDialog>(testsupport::pressEscape);
    testsupport::key(*window, Qt::Key_O);
    QCOMPARE(answers.given(), 1);
    QCOMPARE(lay(80, {}), drawn);
    QCOMPARE(lay(90, {}), drawn);
    mouse->release(view->mapFromScene(90, 60)); // for the toolkit's own book
    mouse->press(view->mapFromScene(70, 60));
    QVERIFY(lay(75, Qt::LeftButton) != drawn); // the next stroke draws
    mouse->release(view->mapFromScene(75, 60));
}

ORNEVO_TEST_MAIN(TestBrushes)
#include "tst_brushes.moc"
