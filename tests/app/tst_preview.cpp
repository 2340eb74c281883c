// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QGraphicsPixmapItem>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

using testsupport::MessageLog;
using testsupport::WindowUnderTest;

namespace {

constexpr int width = 60;
constexpr int height = 44;

QImage argb(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage checkerboard()
{
    return QImage(":/icons/chessbackground.png");
}

void markObject(WindowUnderTest &t)
{
    t.dab("actionKeep_arker", 20, 15);
    t.dab("action_Remove_Marker", 45, 5);
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void switchesTheTools();
    void dropsTheToolInHand();
    void layersOnTheScene();
    void maskAndCutOut_data();
    void maskAndCutOut();
    void statusTexts();
    void diagnostics();
    void greyMaskGivesItsComplement();
    void maskOfAnotherSize();
    void existingCutOutIsUsed();
    void backgroundLayer_data();
    void backgroundLayer();
    void missingPictureLeavesThePixmaps();
    void withoutAPicture();
    void switchingOffKeepsTheCaches();
    void switchingOnRebuilds();
    void offsetPlacesTheObject();
    void whatIsSeen();
    void rebuildingWhileTheCircleIsShown();
    void brushBatchAfterThePreviewWent();
    void handToolAfterThePreviewWent();
    void undoOfBrushAfterRebuilding();
    void switchingInAnyOrder();
    void handIsUnderThePointer_data();
    void handIsUnderThePointer();
    void fittedPreviewIsCentred();
    void windowToHalfAndBack();
    void zoomGoesOnWhereItWas();
    void backgroundZoomFramesTheBackground();

private:
    QString file() const { return m_folder.filePath("picture.png"); }

    QTemporaryDir m_folder;
    QImage m_picture = testpictures::blobImage(width, height, 4);
};

void TestPreview::initTestCase()
{
    QVERIFY(m_picture.save(file()));
}

void TestPreview::switchesTheTools()
{
    WindowUnderTest t;
    t.openPicture(file());
    const auto enabled = [&t](std::initializer_list<const char *> names) {
        int count = 0;
        for (const char *name : names)
            count += t.action(name).isEnabled();
        return count;
    };
    const auto editing = {"actionMask", "actionKeep_arker", "action_Remove_Marker", "actionEraser"};
    const auto previewing = {
        "actionForeground_Brush",  "actionBackground_Brush",    "actionHandTool",
        "actionSelect_Background", "actionBackgroundZoomMinus", "actionBackgroundZoomPlus"};
    QCOMPARE(enabled(editing), 4);
    QCOMPARE(enabled(previewing), 0);
    t.trigger("actionPreview");
    QCOMPARE(enabled(editing), 0);
    QCOMPARE(enabled(previewing), 6);
    QCOMPARE(t.view.scene(), &t.probe.previewScene());
    t.trigger("actionPreview");
    QCOMPARE(enabled(editing), 4);
    QCOMPARE(enabled(previewing), 0);
    QCOMPARE(t.view.scene(), &t.probe.imageScene());
}

void TestPreview::dropsTheToolInHand()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionKeep_arker");
    t.trigger("actionPreview");
    QCOMPARE(t.view.viewport()->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(t.action("actionKeep_arker").isChecked()); // unchecked on the way back
    for (const char *name : {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"}) {
        t.trigger(name);
        QVERIFY(t.view.viewport()->cursor().shape() != Qt::ArrowCursor);
        t.trigger("actionPreview");
        QCOMPARE(t.view.viewport()->cursor().shape(), Qt::ArrowCursor);
        for (const char *marker : {"actionKeep_arker", "action_Remove_Marker", "actionEraser"})
            QVERIFY(!t.action(marker).isChecked());
        QVERIFY(t.action(name).isChecked()); // unchecked by the next switch on
        t.trigger("actionPreview");
        QVERIFY(t.action("actionPreview").isChecked());
        QCOMPARE(t.view.viewport()->cursor().shape(), Qt::ArrowCursor);
        // An exclusive group keeps its last action checked against setChecked(false) only where Qt says so.
        QVERIFY(!t.action(name).isChecked());
    }
    t.mouse.stroke({t.at(20, 20), t.at(25, 25)}); // no tool is chosen
    QCOMPARE(t.probe.undoStack().count(), 0);
    QVERIFY(t.probe.pendingBrushRects().isEmpty());
}

void TestPreview::layersOnTheScene()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    const auto items = t.probe.previewScene().items();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items[0], t.probe.previewItem());
    QCOMPARE(items[1], t.probe.backgroundItem());
    QCOMPARE(items[0]->zValue(), 10.0);
    QCOMPARE(items[1]->zValue(), 0.0);
    QCOMPARE(items[0]->pos(), QPointF());
    QCOMPARE(items[1]->pos(), QPointF());
    QCOMPARE(t.probe.previewItem()->pixmap().size(), QSize(width, height));
    QCOMPARE(t.probe.backgroundItem()->pixmap().size(), QSize(width, height));
}

void TestPreview::maskAndCutOut_data()
{
    QTest::addColumn<bool>("smooth");
    QTest::addColumn<QString>("size");
    QTest::newRow("by default") << true << "";
    QTest::newRow("sharp") << false << "";
    for (const char *size : {"0", "1", "2", "3", "4", "7", "12", "41", "-3"})
        QTest::newRow(size) << true << size;
}

void TestPreview::maskAndCutOut()
{
    QFETCH(bool, smooth);
    QFETCH(QString, size);
    if (!smooth)
        QSettings().setValue("SMOOTHEDGESCHECKED", false);
    if (!size.isEmpty())
        QSettings().setValue("GOUSSIZE", size);
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    QVERIFY(!t.probe.outmask().isEmpty());
    QVERIFY(t.probe.outmask().size() < width * height);
    const QImage mask =
        reference::maskImage(t.probe.outmask(), width, height, smooth, size.isEmpty() ? 5 : size.toInt());
    QCOMPARE(t.probe.maskImage().format(), QImage::Format_RGB32);
    QCOMPARE(t.probe.maskImage(), mask);
    const QImage cutOut = reference::cutOut(QPixmap::fromImage(m_picture), mask);
    QCOMPARE(t.probe.previewImage().format(), QImage::Format_ARGB32);
    QCOMPARE(t.probe.previewImage(), cutOut);
    QCOMPARE(argb(t.probe.previewItem()->pixmap()), argb(QPixmap::fromImage(cutOut)));
    if (!smooth) {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                QVERIFY(qAlpha(t.probe.previewImage().pixel(x, y)) % 255 == 0);
    }
}

void TestPreview::statusTexts()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.statusTexts.clear();
    t.trigger("actionPreview");
    QCOMPARE(t.statusTexts,
             QStringList({"Isolating object", "getting inversed mask", "painting alpha channel",
                          "painting alpha channel done, now feather", "feather done", "Ready"}));
    t.statusTexts.clear();
    t.trigger("actionPreview");
    QCOMPARE(t.statusTexts, QStringList());
    QCOMPARE(t.status(), QString("Ready"));
    t.statusTexts.clear();
    t.window.applypreviewmask(); // with the cut-out at hand there is nothing to tell
    QCOMPARE(t.status(), QString("Ready"));
    QVERIFY(!t.statusTexts.contains("getting inversed mask"));
}

void TestPreview::diagnostics()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.window.updatemask();
    const auto count = t.probe.outmask().size();
    MessageLog log;
    t.window.updatepreviewmask();
    QCOMPARE(log.taken(), QStringList({QString("outmask size is %1").arg(count)}));
}

void TestPreview::greyMaskGivesItsComplement()
{
    WindowUnderTest t;
    t.openPicture(file());
    QImage mask(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            mask.setPixel(x, y, qRgb(1, 2, (y * width + x) % 256)); // the blue byte is the one that counts
    t.probe.maskImage() = mask;
    QPixmap background;
    QPixmap object;
    t.window.applypreviewmasktopixmap(&background, &object);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const QRgb seen = t.probe.previewImage().pixel(x, y);
            QCOMPARE(qAlpha(seen), 255 - (y * width + x) % 256);
            QCOMPARE(seen & 0xFFFFFFU, m_picture.pixel(x, y) & 0xFFFFFFU);
        }
    }
    QCOMPARE(qAlpha(t.probe.previewImage().pixel(128 % width, 128 / width)), 127);
    QCOMPARE(argb(object), argb(QPixmap::fromImage(t.probe.previewImage())));
}

void TestPreview::maskOfAnotherSize()
{
    WindowUnderTest t;
    t.openPicture(file());
    QPixmap background;
    QPixmap object;
    t.probe.maskImage() = testpictures::constantImage(10, 90, 0xFFFFFFFF);
    t.window.applypreviewmasktopixmap(&background, &object);
    QCOMPARE(qAlpha(t.probe.previewImage().pixel(9, height - 1)), 0);
    QCOMPARE(qAlpha(t.probe.previewImage().pixel(10, 0)), 255);
    t.probe.previewImage() = QImage();
    t.probe.maskImage() = QImage();
    t.window.applypreviewmasktopixmap(&background, &object);
    QCOMPARE(qAlpha(t.probe.previewImage().pixel(0, 0)), 255);
}

void TestPreview::existingCutOutIsUsed()
{
    WindowUnderTest t;
    t.openPicture(file());
    const QImage drawn = testpictures::randomArgbImage(width, height, 8);
    t.probe.previewImage() = drawn;
    t.probe.maskImage() = testpictures::constantImage(width, height, 0xFFFFFFFF);
    t.statusTexts.clear();
    t.window.applypreviewmask();
    QCOMPARE(t.probe.previewImage(), drawn);
    QCOMPARE(argb(t.probe.previewItem()->pixmap()), argb(QPixmap::fromImage(drawn)));
}

void TestPreview::backgroundLayer_data()
{
    QTest::addColumn<uint>("colour");
    QTest::addColumn<QImage>("picture");
    QTest::newRow("white") << 0xFFFFFFFFU << QImage();
    QTest::newRow("a colour") << 0xFF345678U << QImage();
    QTest::newRow("transparent") << 0x00000000U << QImage();
    QTest::newRow("transparent red") << 0x00FF0000U << QImage();
    QTest::newRow("tinted") << 0x80FF0000U << QImage();
    QTest::newRow("barely tinted") << 0x05FF0000U << QImage();
    QTest::newRow("nearly opaque") << 0xFE00FF00U << QImage();
    QTest::newRow("wide picture") << 0xFFFFFFFFU << testpictures::blobImage(200, 50, 1);
    QTest::newRow("high picture") << 0x00000000U << testpictures::blobImage(31, 77, 2);
    QTest::newRow("same size") << 0x80FF0000U << testpictures::blobImage(width, height, 3);
    QTest::newRow("translucent picture") << 0xFFFFFFFFU << testpictures::randomArgbImage(90, 90, 4);
}

void TestPreview::backgroundLayer()
{
    QFETCH(uint, colour);
    QFETCH(QImage, picture);
    QVERIFY(!checkerboard().isNull());
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionPreview");
    t.probe.backgroundColor() = colour;
    t.probe.backgroundImage() = picture;
    t.window.applypreviewmask();
    const QPixmap expected = reference::backgroundLayer(colour, picture, checkerboard(), width, height);
    QCOMPARE(t.probe.backgroundItem()->pixmap().size(), expected.size());
    QCOMPARE(argb(t.probe.backgroundItem()->pixmap()), argb(expected));
    if (!picture.isNull() && picture.size() != QSize(width, height))
        QVERIFY(expected.width() < width || expected.height() < height); // a part stays uncovered
}

void TestPreview::missingPictureLeavesThePixmaps()
{
    WindowUnderTest t;
    QPixmap background(3, 3);
    background.fill(Qt::red);
    QPixmap object(5, 5);
    object.fill(Qt::green);
    const auto backgroundKey = background.cacheKey();
    const auto objectKey = object.cacheKey();
    t.window.applypreviewmasktopixmap(&background, &object);
    QCOMPARE(background.cacheKey(), backgroundKey);
    QCOMPARE(object.cacheKey(), objectKey);
    QVERIFY(t.probe.previewImage().isNull());
    QCOMPARE(t.statusTexts, QStringList());
}

void TestPreview::withoutAPicture()
{
    WindowUnderTest t;
    t.trigger("actionPreview");
    QCOMPARE(t.statusTexts, QStringList({"Ready"}));
    QCOMPARE(t.probe.previewScene().items().size(), 2);
    QVERIFY(t.probe.backgroundItem()->pixmap().isNull());
    QVERIFY(t.probe.previewItem()->pixmap().isNull());
    QVERIFY(t.probe.maskImage().isNull());
    QVERIFY(t.probe.previewImage().isNull());
    for (const char *name : {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"}) {
        t.trigger(name);
        t.mouse.stroke({QPoint(50, 50), QPoint(60, 60), QPoint(70, 70)});
        QTRY_VERIFY(!t.probe.brushTimer().isActive());
    }
    t.trigger("actionBackgroundZoomPlus");
    t.trigger("actionPreview");
    t.trigger("actionPreview");
    QCOMPARE(t.probe.previewScene().items().size(), 2);
}

void TestPreview::switchingOffKeepsTheCaches()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    const QImage mask = t.probe.maskImage();
    const QImage cutOut = t.probe.previewImage();
    const auto items = t.probe.previewScene().items();
    t.trigger("actionPreview");
    QCOMPARE(t.probe.previewScene().items(), items);
    QCOMPARE(t.probe.maskImage(), mask);
    QCOMPARE(t.probe.previewImage(), cutOut);
}

void TestPreview::switchingOnRebuilds()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    const QImage first = t.probe.previewImage();
    t.probe.previewImage().fill(0x12345678);
    t.window.applypreviewmask(); // a background choice
    QCOMPARE(t.probe.previewImage().pixel(5, 5), 0x12345678U);
    t.trigger("actionPreview");
    t.trigger("actionPreview");
    QCOMPARE(t.probe.previewImage(), first);
    t.trigger("actionPreview");
    t.dab("actionKeep_arker", 45, 35);
    t.trigger("actionPreview");
    QVERIFY(t.probe.previewImage() != first);
    QCOMPARE(t.probe.previewImage(),
             reference::cutOut(QPixmap::fromImage(m_picture),
                               reference::maskImage(t.probe.outmask(), width, height, true, 5)));
}

void TestPreview::offsetPlacesTheObject()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    t.trigger("actionHandTool");
    t.mouse.press(t.at(20, 20));
    t.mouse.move(t.at(27, 15));
    t.mouse.release(t.at(27, 15));
    const QPoint offset = t.probe.previewOffset();
    QVERIFY(!offset.isNull());
    QCOMPARE(t.probe.previewItem()->pos(), QPointF(offset));
    t.window.applypreviewmask();
    QCOMPARE(t.probe.previewItem()->pos(), QPointF(offset));
    QCOMPARE(t.probe.backgroundItem()->pos(), QPointF());
    t.trigger("actionPreview");
    t.trigger("actionPreview");
    QCOMPARE(t.probe.previewItem()->pos(), QPointF(offset));
}

void TestPreview::whatIsSeen()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.probe.backgroundColor() = 0xFF2040A0;
    t.trigger("actionPreview");
    QImage seen(width, height, QImage::Format_RGB32);
    seen.fill(Qt::black);
    QPainter painter(&seen);
    t.probe.previewScene().render(&painter, seen.rect(), QRectF(0, 0, width, height));
    painter.end();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int alpha = 255 - qBlue(t.probe.maskImage().pixel(x, y));
            const QRgb photo = m_picture.pixel(x, y);
            const auto blend = [alpha](int over, int under) {
                return (alpha * over + (255 - alpha) * under) / 255;
            };
            const QRgb got = seen.pixel(x, y);
            QVERIFY(qAbs(qRed(got) - blend(qRed(photo), 0x20)) <= 1);
            QVERIFY(qAbs(qGreen(got) - blend(qGreen(photo), 0x40)) <= 1);
            QVERIFY(qAbs(qBlue(got) - blend(qBlue(photo), 0xA0)) <= 1);
        }
    }
}

void TestPreview::rebuildingWhileTheCircleIsShown()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    for (const char *name : {"actionForeground_Brush", "actionBackground_Brush"}) {
        t.trigger(name);
        t.mouse.move(t.at(30, 20));
        QCOMPARE(t.probe.previewScene().items().size(), 3);
        t.window.applypreviewmask(); // takes the circle with it
        QCOMPARE(t.probe.previewScene().items().size(), 2);
        t.view.updateellipse(9);
        t.mouse.move(t.at(31, 20));
        QCOMPARE(t.probe.previewScene().items().size(), 3);
        t.window.applypreviewmask();
        t.trigger("actionHandTool");
        QCOMPARE(t.probe.previewScene().items().size(), 2);
    }
}

void TestPreview::brushBatchAfterThePreviewWent()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    t.trigger("actionForeground_Brush");
    t.mouse.stroke({t.at(30, 20), t.at(32, 20)});
    QVERIFY(!t.probe.pendingBrushRects().isEmpty());
    t.openPicture(file()); // before the batch is due
    QTRY_VERIFY(!t.probe.brushTimer().isActive());
    QVERIFY(t.probe.pendingBrushRects().isEmpty());
    QCOMPARE(t.probe.undoStack().count(), 0);
    QVERIFY(t.probe.previewImage().isNull());
}

void TestPreview::handToolAfterThePreviewWent()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionPreview");
    t.trigger("actionHandTool");
    t.mouse.press(t.at(30, 20));
    t.probe.previewScene().clear();
    t.mouse.move(t.at(35, 20));
    t.mouse.release(t.at(35, 20));
    QCOMPARE(t.probe.previewItem(), nullptr);
    const QPoint offset = t.probe.previewOffset(); // the hand has moved, and the next object lies there
    QVERIFY(!offset.isNull());
    t.trigger("actionBackgroundZoomPlus");
    QVERIFY(t.probe.previewScene().items().isEmpty());
    t.window.applypreviewmask();
    QCOMPARE(t.probe.previewItem()->pos(), QPointF(offset));
}

void TestPreview::undoOfBrushAfterRebuilding()
{
    WindowUnderTest t;
    t.openPicture(file());
    markObject(t);
    t.trigger("actionPreview");
    t.trigger("actionForeground_Brush");
    const int before = t.probe.undoStack().count();
    const QImage untouched = t.probe.previewImage().copy();
    const auto asShown = [](const QImage &image) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const auto shownCutOut = [&] { return asShown(t.probe.previewItem()->pixmap().toImage()); };
    t.mouse.stroke({t.at(40, 30), t.at(42, 30)});
    QTRY_COMPARE(t.probe.undoStack().count(), before + 1);
    const QImage brushed = t.probe.previewImage().copy();
    QVERIFY(brushed != untouched);
    t.window.applypreviewmask(); // another item shows the cut-out now
    t.probe.undoStack().undo();
    QCOMPARE(t.probe.previewImage(), untouched);
    QCOMPARE(shownCutOut(), asShown(untouched));
    t.probe.undoStack().redo();
    QCOMPARE(t.probe.previewImage(), brushed);
    QCOMPARE(shownCutOut(), asShown(brushed));
    t.trigger("actionPreview");
    t.trigger("actionPreview");
    t.probe.undoStack().undo();
    QCOMPARE(t.probe.previewImage(), untouched);
    QCOMPARE(shownCutOut(), asShown(untouched));
    t.probe.undoStack().undo(); // a marker dab
    t.probe.previewScene().clear();
    t.probe.undoStack().setIndex(0);
    t.probe.undoStack().setIndex(t.probe.undoStack().count());
    t.trigger("actionPreview");
    QCOMPARE(t.view.scene(), &t.probe.imageScene());
}

void TestPreview::switchingInAnyOrder()
{
    const QList<const char *> steps{"actionPreview",
                                    "actionMask",
                                    "actionKeep_arker",
                                    "action_Remove_Marker",
                                    "actionEraser",
                                    "actionBlueMarker",
                                    "actionForeground_Brush",
                                    "actionBackground_Brush",
                                    "actionHandTool",
                                    "actionBackgroundZoomPlus",
                                    "actionZoom_In",
                                    "actionZoom_Out",
                                    "actionIncreaseToolSize",
                                    "actionDecreaseToolSoze",
                                    "actionIncreaseBrushIntensity",
                                    "undo",
                                    "redo",
                                    "stroke",
                                    "stroke",
                                    "stroke",
                                    "pen",
                                    "open",
                                    "rebuild",
                                    "leave",
                                    "wait"};
    WindowUnderTest t;
    t.probe.currentFile() = file();
    t.window.open();
    testpictures::Random random(11);
    for (int i = 0; i < 400; ++i) {
        const QString step = steps[random.below(int(steps.size()))];
        const QPoint position = t.at(random.below(width), random.below(height));
        if (step == "undo") {
            t.probe.undoStack().undo();
        } else if (step == "redo") {
            t.probe.undoStack().redo();
        } else if (step == "stroke") {
            t.mouse.stroke({position, position + QPoint(3, 5), position + QPoint(9, 5)});
        } else if (step == "pen") {
            t.view.SetTool(ToolPen);
            t.mouse.press(position);
            t.mouse.move(position + QPoint(4, 4)); // the button stays down
        } else if (step == "open") {
            t.openPicture(file());
        } else if (step == "rebuild") {
            t.window.applypreviewmask();
        } else if (step == "leave") {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&t.view, &leave);
        } else if (step == "wait") {
            QCoreApplication::processEvents();
        } else {
            t.trigger(step.toLatin1());
        }
    }
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    t.openPicture(file());
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    QCOMPARE(t.probe.workingImage(), m_picture);
}

void TestPreview::handIsUnderThePointer_data()
{
    QTest::addColumn<int>("zoomSteps");
    QTest::addColumn<QPoint>("step");
    QTest::newRow("far out") << -12 << QPoint(-10, 3);
    QTest::newRow("a little out") << -3 << QPoint(-1, 0);
    QTest::newRow("fitted") << 0 << QPoint(-8, -8);
    QTest::newRow("a little in") << 2 << QPoint(7, -7);
    QTest::newRow("far in") << 8 << QPoint(-11, 5);
}

/// The object goes where the pointer goes; all else stays where it is.
void TestPreview::handIsUnderThePointer()
{
    QFETCH(int, zoomSteps);
    QFETCH(QPoint, step);
    WindowUnderTest t;
    const QString large = m_folder.filePath("large.png");
    QVERIFY(testpictures::blobImage(900, 700, 2).save(large));
    t.openPicture(large);
    t.trigger("actionPreview");
    for (int i = 0; i < std::abs(zoomSteps); ++i)
        t.trigger(zoomSteps > 0 ? "actionZoom_In" : "actionZoom_Out");
    t.trigger("actionHandTool");
    QCoreApplication::processEvents();
    const auto where = [&t](const QGraphicsItem *item) {
        return t.view.viewportTransform().map(item->scenePos());
    };
    const QPointF objectBefore = where(t.probe.previewItem());
    const QPointF backgroundBefore = where(t.probe.backgroundItem());
    const auto scrollState = [&t] {
        QList<int> state;
        for (const QScrollBar *bar : {t.view.horizontalScrollBar(), t.view.verticalScrollBar()})
            state << bar->minimum() << bar->maximum() << bar->value();
        return state;
    };
    const QList<int> scrollBefore = scrollState();

    const QPoint start(300, 200);
    t.mouse.press(start);
    for (int i = 1; i <= 12; ++i) {
        t.mouse.move(start + i * step);
        QCoreApplication::processEvents();
    }
    t.mouse.release(start + 12 * step);
    QCoreApplication::processEvents();

    QCOMPARE(where(t.probe.backgroundItem()), backgroundBefore);
    QCOMPARE(scrollState(), scrollBefore);
    const QPointF off = where(t.probe.previewItem()) - objectBefore - QPointF(12 * step);
    const double pixelOfThePicture = std::max(1.0, t.view.transform().m11()); // it lies at whole ones
    QVERIFY2(std::abs(off.x()) <= pixelOfThePicture && std::abs(off.y()) <= pixelOfThePicture,
             qPrintable(QStringLiteral("off by %1, %2").arg(off.x()).arg(off.y())));
}

namespace {

/// How far the middle of the preview lies from that of the canvas.
QPointF offCentre(WindowUnderTest &t)
{
    const QPointF middle =
        t.view.viewportTransform().mapRect(t.probe.backgroundItem()->sceneBoundingRect()).center();
    return middle - QRectF(t.view.viewport()->rect()).center();
}

bool nothingToScroll(const WindowUnderTest &t)
{
    return t.view.horizontalScrollBar()->minimum() == t.view.horizontalScrollBar()->maximum() &&
           t.view.verticalScrollBar()->minimum() == t.view.verticalScrollBar()->maximum();
}

} // namespace

void TestPreview::fittedPreviewIsCentred()
{
    WindowUnderTest t;
    const QString large = m_folder.filePath("large.png");
    QVERIFY(testpictures::blobImage(900, 700, 2).save(large));
    for (const QString &path : {large, file(), large}) {
        t.openPicture(path);
        t.trigger("actionPreview");
        QCoreApplication::processEvents();
        const QPointF off = offCentre(t);
        QVERIFY2(std::abs(off.x()) <= 1.5 && std::abs(off.y()) <= 1.5,
                 qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
        QVERIFY(nothingToScroll(t));
        QCOMPARE(t.probe.previewScene().sceneRect(), QRectF(t.probe.workingImage().rect()));
        // What the Hand tool did to one photo is nothing to the next.
        t.trigger("actionHandTool");
        t.mouse.stroke({QPoint(200, 200), QPoint(20, 20)});
        QVERIFY(nothingToScroll(t));
    }
}

void TestPreview::windowToHalfAndBack()
{
    WindowUnderTest t;
    t.window.resize(1200, 900);
    const QString large = m_folder.filePath("large.png");
    QVERIFY(testpictures::blobImage(900, 700, 2).save(large));
    QCoreApplication::processEvents();
    t.openPicture(large);
    t.trigger("actionPreview");
    t.trigger("actionPreview");
    t.openPicture(file()); // a smaller one after it
    t.trigger("actionPreview");
    QCoreApplication::processEvents();
    const QSize full = t.window.size();
    const double scale = t.view.transform().m11();
    for (int round = 0; round < 3; ++round) {
        for (const QSize size : {full / 2, full}) {
            t.window.resize(size);
            QTRY_COMPARE(t.window.size(), size.expandedTo(t.window.minimumSizeHint()));
            QCoreApplication::processEvents();
            const QRectF shown =
                t.view.viewportTransform().mapRect(t.probe.backgroundItem()->sceneBoundingRect());
            QVERIFY(QRectF(t.view.viewport()->rect()).intersects(shown));
            const QPointF off = offCentre(t);
            QVERIFY2(std::abs(off.x()) <= 1.5 && std::abs(off.y()) <= 1.5,
                     qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
        }
    }
    QVERIFY2(std::abs(t.view.transform().m11() / scale - 1.0) < 0.01,
             qPrintable(QString::number(t.view.transform().m11() / scale)));
    QVERIFY(nothingToScroll(t));
}

/// Who looks at a detail goes on doing so in the preview and back.
void TestPreview::zoomGoesOnWhereItWas()
{
    WindowUnderTest t;
    const QString large = m_folder.filePath("large.png");
    QVERIFY(testpictures::blobImage(900, 700, 2).save(large));
    t.openPicture(large);
    for (int i = 0; i < 6; ++i)
        t.trigger("actionZoom_In");
    t.view.centerOn(240, 160);
    QCoreApplication::processEvents();
    const auto state = [&t] {
        return QPoint(t.view.horizontalScrollBar()->value(), t.view.verticalScrollBar()->value());
    };
    const QPoint scrolled = state();
    for (int round = 0; round < 6; ++round) {
        t.trigger("actionPreview");
        QCoreApplication::processEvents();
        QCOMPARE(state(), scrolled);
        t.trigger("actionZoom_In");
        t.trigger("actionZoom_Out");
        QCoreApplication::processEvents();
        const QPointF off = t.view.mapToScene(t.view.viewport()->rect().center()) - QPointF(240, 160);
        QVERIFY2(std::abs(off.x()) < 6 && std::abs(off.y()) < 6,
                 qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
        t.view.horizontalScrollBar()->setValue(scrolled.x());
        t.view.verticalScrollBar()->setValue(scrolled.y());
    }
}

void TestPreview::backgroundZoomFramesTheBackground()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionPreview");
    t.probe.backgroundImage() = testpictures::blobImage(width, height, 9);
    t.window.applypreviewmask();
    const QRectF photo(0, 0, width, height);
    QCOMPARE(t.probe.previewScene().sceneRect(), photo);
    for (int i = 0; i < 10; ++i)
        t.trigger("actionBackgroundZoomPlus");
    QCOMPARE(t.probe.previewScene().sceneRect(), t.probe.backgroundItem()->sceneBoundingRect());
    QVERIFY(t.probe.previewScene().width() > 1.6 * width);
    for (int i = 0; i < 20; ++i)
        t.trigger("actionBackgroundZoomMinus");
    QCOMPARE(t.probe.previewScene().sceneRect(), photo);
    t.trigger("actionBackgroundZoomPlus");
    t.window.applypreviewmask();
    QCOMPARE(t.probe.previewScene().sceneRect(), photo);
}

ORNEVO_TEST_MAIN(TestPreview)
#include "tst_preview.moc"
