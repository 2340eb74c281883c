// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"
#include "resources/Resources.h"
#include "tests/support/CanvasMouse.h"
#include "tests/support/TestMain.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QMetaMethod>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QUndoStack>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(DrawingTools)

using testsupport::CanvasMouse;

namespace {

constexpr int sceneWidth = 200;
constexpr int sceneHeight = 150;

/// A view alone, in which a point of the viewport is the point of the scene while the zoom is 1.
struct Canvas
{
    Canvas() : mouse(view)
    {
        settings.clear();
        scene.setSceneRect(0, 0, sceneWidth, sceneHeight);
        scene.addPixmap(QPixmap(sceneWidth, sceneHeight));
        view.setFrameStyle(0);
        view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view.setMouseTracking(true);
        view.resize(400, 300);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("the view does not come up");
        view.settings = &settings;
        view.undoStack = &stack;
        view.updatetoolssettings();
        view.setScene(&scene);
    }

    template <typename Item> QList<Item *> itemsOf(const QGraphicsScene &where) const
    {
        QList<Item *> found;
        for (QGraphicsItem *item : where.items())
            if (auto *match = qgraphicsitem_cast<Item *>(item))
                found << match;
        return found;
    }
    QGraphicsEllipseItem *circle() const
    {
        for (auto *ellipse : itemsOf<QGraphicsEllipseItem>(scene))
            if (ellipse->zValue() == 20.0)
                return ellipse;
        return nullptr;
    }
    QSizeF dabSize(DrawingTools tool)
    {
        view.SetTool(tool);
        mouse.stroke({QPoint(100, 80)});
        QGraphicsItem *dab = scene.items().first();
        QSizeF size;
        if (auto *rectangle = qgraphicsitem_cast<QGraphicsRectItem *>(dab))
            size = rectangle->rect().size();
        else if (auto *disc = qgraphicsitem_cast<QGraphicsEllipseItem *>(dab))
            size = disc->rect().size();
        stack.clear();
        if (dab->type() != QGraphicsPixmapItem::Type)
            delete dab;
        return size;
    }
    QSize brushSize(DrawingTools tool)
    {
        QSignalSpy brush(&view, &ZelGraphicsView::AnyBrush);
        view.SetTool(tool);
        mouse.press(QPoint(100, 80));
        mouse.release(QPoint(100, 80));
        return brush.isEmpty() ? QSize(-1, -1) : brush.first().first().toRect().size();
    }

    QSettings settings;
    QUndoStack stack;
    QGraphicsScene scene;
    ZelGraphicsView view;
    CanvasMouse mouse;
};

constexpr DrawingTools allTools[] = {ToolNone,        ToolPen,          ToolEraser,
                                     ToolKeepMarker,  ToolRemoveMarker, ToolKeepBrush,
                                     ToolRemoveBrush, ToolHand,         ToolBlueMarker};

} // namespace

class TestCanvasView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { resources::registerAll(); }
    void toolsHaveTheirNumbers();
    void signalsStandInOrder();
    void cursorOfTool_data();
    void cursorOfTool();
    void cursorGoesToTheViewport();
    void eraserCursorFollowsItsSize();
    void rereadingSizesLeavesTheClosedHand();
    void eraserWithoutASizeHasACursor();
    void handClosesWhileItDrags();
    void settingsByDefault();
    void settingsAreRead();
    void sameSizeLeavesBlueMarkerAndOpacity();
    void sizeIsAByte_data();
    void sizeIsAByte();
    void resizeScales_data();
    void resizeScales();
    void resizeWithoutSceneDoesNothing();
    void realResizeKeepsThePictureInStep();
    void pressAndReleaseWithoutScene();
    void everyButtonHolds();
    void noToolDoesNothing();
    void viewWithoutSettingsOrStack();
    void selectingAnyToolRemovesTheCircle_data();
    void selectingAnyToolRemovesTheCircle();
    void leavingRemovesTheCircle();
    void circleFollowsAndHides();
    void circleTakesANewSize();
    void circleAndPenOutliveNothing_data();
    void circleAndPenOutliveNothing();
    void partsGoInAnyOrder();
};

void TestCanvasView::toolsHaveTheirNumbers()
{
    QCOMPARE(int(ToolNone), 0);
    QCOMPARE(int(ToolPen), 1);
    QCOMPARE(int(ToolEraser), 2);
    QCOMPARE(int(ToolKeepMarker), 3);
    QCOMPARE(int(ToolRemoveMarker), 4);
    QCOMPARE(int(ToolKeepBrush), 5);
    QCOMPARE(int(ToolRemoveBrush), 6);
    QCOMPARE(int(ToolHand), 7);
    QCOMPARE(int(ToolBlueMarker), 8);
}

void TestCanvasView::signalsStandInOrder()
{
    const QMetaObject &meta = ZelGraphicsView::staticMetaObject;
    const QList<QPair<QByteArray, QByteArrayList>> expected{{"ProgressStage(char*)", {"msg"}},
                                                            {"KeepBrush(QRect)", {"rect"}},
                                                            {"RemoveBrush(QRect)", {"rect"}},
                                                            {"AnyBrush(QRect,bool)", {"rect", "now"}},
                                                            {"HandTool(QPoint,QPoint)", {"", ""}}};
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
        QCOMPARE(method.methodSignature(), expected[i].first);
        QCOMPARE(method.parameterNames(), expected[i].second);
    }
}

void TestCanvasView::cursorOfTool_data()
{
    QTest::addColumn<DrawingTools>("tool");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("width");
    QTest::addColumn<QPoint>("hotSpot");
    QTest::newRow("none") << ToolNone << Qt::ArrowCursor << QString() << 0 << QPoint();
    QTest::newRow("pen") << ToolPen << Qt::BitmapCursor << ":/cursors/pen_cursor.png" << 32 << QPoint(0, 26);
    QTest::newRow("eraser") << ToolEraser << Qt::BitmapCursor << ":/icons/eraser.ico" << 25 << QPoint(12, 12);
    QTest::newRow("keep marker") << ToolKeepMarker << Qt::BitmapCursor << ":/icons/greenpencil.PNG" << 8
                                 << QPoint(4, 21);
    QTest::newRow("remove marker") << ToolRemoveMarker << Qt::BitmapCursor << ":/icons/redpencilv.PNG" << 8
                                   << QPoint(4, 21);
    QTest::newRow("keep brush") << ToolKeepBrush << Qt::BlankCursor << QString() << 0 << QPoint();
    QTest::newRow("remove brush") << ToolRemoveBrush << Qt::BlankCursor << QString() << 0 << QPoint();
    QTest::newRow("hand") << ToolHand << Qt::OpenHandCursor << QString() << 0 << QPoint();
    QTest::newRow("blue marker") << ToolBlueMarker << Qt::BlankCursor << QString() << 0 << QPoint();
}

void TestCanvasView::cursorOfTool()
{
    QFETCH(DrawingTools, tool);
    QFETCH(Qt::CursorShape, shape);
    QFETCH(QString, path);
    QFETCH(int, width);
    QFETCH(QPoint, hotSpot);
    Canvas canvas;
    canvas.settings.setValue("ERASERMSIZE", 25);
    canvas.view.updatetoolssettings();
    canvas.view.viewport()->setCursor(Qt::WaitCursor);
    canvas.view.SetTool(tool);
    const QCursor cursor = canvas.view.viewport()->cursor();
    QCOMPARE(cursor.shape(), shape);
    if (shape != Qt::BitmapCursor)
        return;
    const qreal ratio = canvas.view.devicePixelRatioF();
    QPixmap drawing(path);
    QVERIFY2(!drawing.isNull(), "the drawing of the cursor is missing");
    drawing.setDevicePixelRatio(1.0);
    const QImage expected = drawing.scaledToWidth(qRound(width * ratio), Qt::SmoothTransformation).toImage();
    QCOMPARE(cursor.pixmap().width(), qRound(width * ratio));
    QCOMPARE(cursor.pixmap().size(), expected.size());
    QCOMPARE(cursor.pixmap().toImage().convertToFormat(QImage::Format_ARGB32), [&] {
        QImage image = expected.convertToFormat(QImage::Format_ARGB32);
        image.setDevicePixelRatio(ratio);
        return image;
    }());
    QCOMPARE(cursor.hotSpot(), hotSpot);
}

void TestCanvasView::cursorGoesToTheViewport()
{
    Canvas canvas;
    for (const DrawingTools tool : allTools) {
        canvas.view.SetTool(tool);
        QVERIFY(canvas.view.viewport()->testAttribute(Qt::WA_SetCursor));
        QVERIFY(!canvas.view.testAttribute(Qt::WA_SetCursor));
    }
}

void TestCanvasView::eraserCursorFollowsItsSize()
{
    Canvas c;
    const auto width = [&c] {
        const QPixmap drawing = c.view.viewport()->cursor().pixmap();
        return qRound(drawing.width() / drawing.devicePixelRatio());
    };
    c.view.SetTool(ToolEraser);
    QCOMPARE(width(), 10);
    c.settings.setValue("ERASERMSIZE", 33);
    c.view.updatetoolssettings();
    QCOMPARE(width(), 33);
    c.settings.setValue("SAMESIZECHECKED", true);
    c.settings.setValue("KEEPMSIZE", 21);
    c.view.updatetoolssettings();
    QCOMPARE(width(), 21);
    QCOMPARE(c.view.viewport()->cursor().hotSpot(), QPoint(10, 10));
}

void TestCanvasView::rereadingSizesLeavesTheClosedHand()
{
    Canvas c;
    c.view.SetTool(ToolHand);
    c.mouse.press(QPoint(50, 50));
    c.view.updatetoolssettings();
    QCOMPARE(c.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
}

void TestCanvasView::eraserWithoutASizeHasACursor()
{
    Canvas canvas;
    canvas.settings.setValue("ERASERMSIZE", 256);
    canvas.view.updatetoolssettings();
    canvas.view.SetTool(ToolEraser);
    const QCursor cursor = canvas.view.viewport()->cursor();
    QVERIFY(cursor.shape() != Qt::BitmapCursor || !cursor.pixmap().isNull());
}

void TestCanvasView::handClosesWhileItDrags()
{
    Canvas canvas;
    QSignalSpy hand(&canvas.view, &ZelGraphicsView::HandTool);
    canvas.view.SetTool(ToolHand);
    canvas.mouse.move(QPoint(20, 20));
    QCOMPARE(hand.count(), 0);
    canvas.mouse.press(QPoint(30, 20));
    QCOMPARE(canvas.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
    canvas.mouse.move(QPoint(33, 24));
    QCOMPARE(hand.count(), 1);
    QCOMPARE(hand.first().at(0).toPoint(), QPoint(30, 20));
    QCOMPARE(hand.first().at(1).toPoint(), QPoint(33, 24));
    canvas.mouse.release(QPoint(33, 24));
    QCOMPARE(canvas.view.viewport()->cursor().shape(), Qt::OpenHandCursor);
}

void TestCanvasView::settingsByDefault()
{
    Canvas canvas;
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(10, 10));
    QCOMPARE(canvas.dabSize(ToolRemoveMarker), QSizeF(10, 10));
    QCOMPARE(canvas.brushSize(ToolKeepBrush), QSize(10, 10));
    QCOMPARE(canvas.brushSize(ToolRemoveBrush), QSize(10, 10));
    canvas.view.SetTool(ToolEraser);
    QCOMPARE(canvas.view.viewport()->cursor().hotSpot(), QPoint(5, 5));
    canvas.view.SetTool(ToolBlueMarker);
    canvas.mouse.move(QPoint(50, 50));
    QVERIFY(canvas.circle() != nullptr);
    QCOMPARE(canvas.circle()->rect(), QRectF(45, 45, 10, 10));
    // Repainted is a line of a pixel, a white one to each side of it, and another where smoothing may reach.
    QCOMPARE(canvas.circle()->boundingRect(), QRectF(42.5, 42.5, 15, 15));
    canvas.mouse.stroke({QPoint(50, 50)});
    bool found = false;
    for (auto *disc : canvas.itemsOf<QGraphicsEllipseItem>(canvas.scene))
        if (disc->zValue() == 10.0) {
            found = true;
            QCOMPARE(disc->opacity(), 0.06);
        }
    QVERIFY(found);
}

void TestCanvasView::settingsAreRead()
{
    Canvas canvas;
    // As texts, as a file of settings holds them.
    canvas.settings.setValue("KEEPMSIZE", "12");
    canvas.settings.setValue("REMOVEMSIZE", "14");
    canvas.settings.setValue("KEEPBSIZE", "16");
    canvas.settings.setValue("REMOVEBSIZE", "18");
    canvas.settings.setValue("ERASERMSIZE", "20");
    canvas.settings.setValue("BLUEMSIZE", "22");
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(10, 10)); // not before they are asked for
    canvas.view.updatetoolssettings();
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(12, 12));
    QCOMPARE(canvas.dabSize(ToolRemoveMarker), QSizeF(14, 14));
    QCOMPARE(canvas.brushSize(ToolKeepBrush), QSize(16, 16));
    QCOMPARE(canvas.brushSize(ToolRemoveBrush), QSize(18, 18));
    canvas.view.SetTool(ToolEraser);
    QCOMPARE(canvas.view.viewport()->cursor().hotSpot(), QPoint(10, 10));
    canvas.view.SetTool(ToolBlueMarker);
    canvas.mouse.move(QPoint(50, 50));
    QCOMPARE(canvas.circle()->rect(), QRectF(39, 39, 22, 22));
}

void TestCanvasView::sameSizeLeavesBlueMarkerAndOpacity()
{
    Canvas canvas;
    const auto blueDab = [&canvas] {
        canvas.view.SetTool(ToolBlueMarker);
        canvas.mouse.stroke({QPoint(100, 80)});
        canvas.view.SetTool(ToolNone); // takes the circle away
        auto *disc = qgraphicsitem_cast<QGraphicsEllipseItem *>(canvas.scene.items().first());
        const QPair<qreal, qreal> seen(disc->rect().width(), disc->opacity());
        delete disc;
        return seen;
    };
    canvas.settings.setValue("SAMESIZECHECKED", true);
    canvas.settings.setValue("KEEPMSIZE", 24);
    canvas.settings.setValue("REMOVEMSIZE", 40);
    canvas.settings.setValue("KEEPBSIZE", 40);
    canvas.settings.setValue("REMOVEBSIZE", 40);
    canvas.settings.setValue("ERASERMSIZE", 40);
    canvas.settings.setValue("BLUEMSIZE", 40);
    canvas.settings.setValue("MOPACITY", 5);
    canvas.view.updatetoolssettings();
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(24, 24));
    QCOMPARE(canvas.dabSize(ToolRemoveMarker), QSizeF(24, 24));
    QCOMPARE(canvas.brushSize(ToolKeepBrush), QSize(24, 24));
    QCOMPARE(canvas.brushSize(ToolRemoveBrush), QSize(24, 24));
    canvas.view.SetTool(ToolEraser);
    QCOMPARE(canvas.view.viewport()->cursor().hotSpot(), QPoint(12, 12));
    QCOMPARE(blueDab(), qMakePair(10.0, 0.06));
    canvas.settings.setValue("SAMESIZECHECKED", false);
    canvas.view.updatetoolssettings();
    QCOMPARE(canvas.dabSize(ToolRemoveMarker), QSizeF(40, 40));
    QCOMPARE(blueDab(), qMakePair(40.0, 0.5));
}

void TestCanvasView::sizeIsAByte_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("size");
    QTest::newRow("255") << QVariant(255) << 255;
    QTest::newRow("256") << QVariant(256) << 0;
    QTest::newRow("300") << QVariant(300) << 44;
    QTest::newRow("-1") << QVariant(-1) << 255;
    QTest::newRow("no number") << QVariant("large") << 0;
}

void TestCanvasView::sizeIsAByte()
{
    QFETCH(QVariant, stored);
    QFETCH(int, size);
    Canvas canvas;
    canvas.settings.setValue("KEEPMSIZE", stored);
    canvas.settings.setValue("REMOVEMSIZE", stored);
    canvas.view.updatetoolssettings();
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(size, size));
    QCOMPARE(canvas.dabSize(ToolRemoveMarker), QSizeF(size, size));
}

void TestCanvasView::resizeScales_data()
{
    QTest::addColumn<QSize>("scene");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QSize>("before");
    QTest::addColumn<QSize>("after");
    QTest::addColumn<double>("factor");
    const QSize small(200, 150);
    const QSize large(1000, 900);
    QTest::newRow("wider than the picture") << small << 1.0 << QSize(400, 300) << QSize(600, 300) << 1.5;
    QTest::newRow("higher than the picture") << small << 1.0 << QSize(400, 300) << QSize(400, 600) << 2.0;
    QTest::newRow("grown below the picture") << large << 1.0 << QSize(400, 300) << QSize(600, 500) << 1.0;
    QTest::newRow("grown to the picture")
        << QSize(600, 300) << 1.0 << QSize(400, 300) << QSize(600, 300) << 1.0;
    QTest::newRow("just beyond the picture")
        << QSize(599, 300) << 1.0 << QSize(400, 300) << QSize(600, 300) << 1.5;
    QTest::newRow("zoom counts") << small << 4.0 << QSize(400, 300) << QSize(600, 300) << 1.0;
    QTest::newRow("zoom counts, small") << large << 0.1 << QSize(400, 300) << QSize(600, 300) << 1.5;
    QTest::newRow("shrunk width") << large << 1.0 << QSize(400, 300) << QSize(200, 300) << 0.5;
    QTest::newRow("shrunk height") << large << 1.0 << QSize(400, 300) << QSize(400, 100) << 1.0 / 3.0;
    QTest::newRow("both, width more") << small << 1.0 << QSize(400, 300) << QSize(800, 450) << 2.0;
    QTest::newRow("both, height more") << small << 1.0 << QSize(400, 300) << QSize(600, 600) << 2.0;
    QTest::newRow("one shrinks more than the other grows")
        << QSize(100, 100) << 1.0 << QSize(400, 400) << QSize(100, 800) << 0.25;
    QTest::newRow("one grows more than the other shrinks")
        << QSize(100, 100) << 1.0 << QSize(400, 400) << QSize(1600, 200) << 4.0;
    QTest::newRow("a tie goes to the height")
        << QSize(100, 100) << 1.0 << QSize(400, 300) << QSize(800, 150) << 0.5;
    QTest::newRow("a tie goes to the height, grown")
        << QSize(100, 100) << 1.0 << QSize(400, 300) << QSize(200, 600) << 2.0;
    QTest::newRow("same size") << small << 1.0 << QSize(400, 300) << QSize(400, 300) << 1.0;
    QTest::newRow("first size of all") << small << 1.0 << QSize(-1, -1) << QSize(400, 300) << 1.0;
    QTest::newRow("from nothing") << small << 1.0 << QSize(0, 0) << QSize(400, 300) << 1.0;
    QTest::newRow("from no width") << small << 1.0 << QSize(0, 300) << QSize(400, 300) << 1.0;
    QTest::newRow("from no height") << small << 1.0 << QSize(400, 0) << QSize(400, 300) << 1.0;
    QTest::newRow("to nothing") << small << 1.0 << QSize(400, 300) << QSize(0, 0) << 1.0;
}

void TestCanvasView::resizeScales()
{
    QFETCH(QSize, scene);
    QFETCH(double, zoom);
    QFETCH(QSize, before);
    QFETCH(QSize, after);
    QFETCH(double, factor);
    Canvas canvas;
    canvas.scene.setSceneRect(QRect(QPoint(), scene));
    canvas.view.setTransform(QTransform::fromScale(zoom, zoom));
    // Turning the scroll bars on makes resize events of its own; they are not what is looked at here.
    canvas.view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    canvas.view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    canvas.view.setTransform(QTransform::fromScale(zoom, zoom));
    QResizeEvent event(after, before);
    QApplication::sendEvent(canvas.view.viewport(), &event);
    QVERIFY(qFuzzyCompare(canvas.view.transform().m11(), zoom * factor));
    QVERIFY(qFuzzyCompare(canvas.view.transform().m22(), zoom * factor));
}

void TestCanvasView::resizeWithoutSceneDoesNothing()
{
    Canvas canvas;
    canvas.view.setScene(nullptr);
    canvas.view.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    canvas.view.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    canvas.view.resetTransform();
    QResizeEvent event(QSize(800, 600), QSize(400, 300));
    QApplication::sendEvent(canvas.view.viewport(), &event);
    QCOMPARE(canvas.view.transform(), QTransform());
    QCOMPARE(canvas.view.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(canvas.view.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    canvas.view.setScene(&canvas.scene);
    QApplication::sendEvent(canvas.view.viewport(), &event);
    QCOMPARE(canvas.view.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(canvas.view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
}

void TestCanvasView::realResizeKeepsThePictureInStep()
{
    Canvas canvas;
    canvas.view.resize(420, 320);
    QTRY_COMPARE(canvas.view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QTRY_COMPARE(canvas.view.size(), QSize(420, 320));
    canvas.view.resetTransform();
    const QSize before = canvas.view.viewport()->size();
    canvas.view.resize(840, 320);
    QTRY_VERIFY(canvas.view.viewport()->width() == before.width() + 420);
    const double factor = double(before.width() + 420) / before.width();
    QTRY_VERIFY(qFuzzyCompare(canvas.view.transform().m11(), factor));
    QVERIFY(qFuzzyCompare(canvas.view.transform().m22(), factor));
}

void TestCanvasView::pressAndReleaseWithoutScene()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.view.setScene(nullptr);
    canvas.mouse.move(QPoint(50, 50));
    canvas.mouse.press(QPoint(50, 50));
    canvas.mouse.move(QPoint(52, 50));
    canvas.view.setScene(&canvas.scene);
    canvas.mouse.move(QPoint(54, 50)); // the press was noted even without a scene
    QCOMPARE(canvas.stack.count(), 1);
    canvas.view.setScene(nullptr);
    canvas.mouse.release(QPoint(54, 50));
    canvas.view.setScene(&canvas.scene);
    canvas.mouse.move(QPoint(56, 50)); // and so was the release
    QCOMPARE(canvas.stack.count(), 1);
    canvas.view.setScene(nullptr);
    for (const DrawingTools tool : allTools) {
        canvas.view.SetTool(tool);
        canvas.mouse.stroke({QPoint(20, 20), QPoint(30, 30)});
        canvas.view.updateellipse(30);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&canvas.view, &leave);
    }
    QCOMPARE(canvas.stack.count(), 1);
}

void TestCanvasView::everyButtonHolds()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        canvas.stack.clear();
        canvas.mouse.press(QPoint(50, 50), button);
        canvas.mouse.move(QPoint(51, 50));
        canvas.mouse.release(QPoint(51, 50), button);
        QCOMPARE(canvas.stack.count(), 1);
    }
}

void TestCanvasView::noToolDoesNothing()
{
    Canvas canvas;
    QSignalSpy brush(&canvas.view, &ZelGraphicsView::AnyBrush);
    QSignalSpy hand(&canvas.view, &ZelGraphicsView::HandTool);
    canvas.mouse.stroke({QPoint(50, 50), QPoint(60, 60)});
    canvas.view.SetTool(ToolNone);
    canvas.mouse.stroke({QPoint(50, 50), QPoint(60, 60)});
    QCOMPARE(canvas.scene.items().size(), 1);
    QCOMPARE(canvas.stack.count(), 0);
    QCOMPARE(brush.count() + hand.count(), 0);
}

void TestCanvasView::viewWithoutSettingsOrStack()
{
    Canvas canvas;
    canvas.view.settings = nullptr;
    canvas.view.updatetoolssettings();
    QCOMPARE(canvas.dabSize(ToolKeepMarker), QSizeF(10, 10)); // keeps what it had
    canvas.view.undoStack = nullptr;
    for (const DrawingTools tool : allTools) {
        canvas.view.SetTool(tool);
        canvas.mouse.stroke({QPoint(50, 50), QPoint(60, 60)});
    }
    QCOMPARE(canvas.stack.count(), 0);

    ZelGraphicsView bare;
    QGraphicsScene scene(0, 0, 100, 100);
    bare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bare));
    bare.setScene(&scene);
    bare.updatetoolssettings();
    bare.updateellipse(10);
    bare.discardErasedDabs();
    CanvasMouse mouse(bare);
    for (const DrawingTools tool : allTools) {
        bare.SetTool(tool);
        mouse.stroke({QPoint(50, 50), QPoint(60, 60)});
    }
}

void TestCanvasView::selectingAnyToolRemovesTheCircle_data()
{
    QTest::addColumn<DrawingTools>("shown");
    QTest::addColumn<DrawingTools>("next");
    for (const DrawingTools shown : {ToolKeepBrush, ToolRemoveBrush, ToolBlueMarker})
        for (const DrawingTools next : allTools)
            QTest::addRow("%d to %d", int(shown), int(next)) << shown << next;
}

void TestCanvasView::selectingAnyToolRemovesTheCircle()
{
    QFETCH(DrawingTools, shown);
    QFETCH(DrawingTools, next);
    Canvas canvas;
    canvas.view.SetTool(shown);
    canvas.mouse.move(QPoint(50, 50));
    QVERIFY(canvas.circle() != nullptr);
    canvas.view.SetTool(next);
    QCOMPARE(canvas.circle(), nullptr);
    QCOMPARE(canvas.scene.items().size(), 1);
}

void TestCanvasView::leavingRemovesTheCircle()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepBrush);
    canvas.mouse.move(QPoint(50, 50));
    QVERIFY(canvas.circle() != nullptr);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&canvas.view, &leave);
    QCOMPARE(canvas.circle(), nullptr);
    canvas.mouse.move(QPoint(52, 50));
    QVERIFY(canvas.circle() != nullptr);
    QCOMPARE(canvas.circle()->rect(), QRectF(47, 45, 10, 10));
}

void TestCanvasView::circleFollowsAndHides()
{
    Canvas canvas;
    for (const DrawingTools tool : {ToolKeepBrush, ToolRemoveBrush, ToolBlueMarker}) {
        canvas.view.SetTool(tool);
        canvas.mouse.move(QPoint(50, 50));
        QVERIFY(canvas.circle() != nullptr);
        QCOMPARE(canvas.circle()->rect(), QRectF(45, 45, 10, 10));
        QCOMPARE(canvas.circle()->pen(), QPen());
        QCOMPARE(canvas.circle()->brush(), QBrush());
        QCOMPARE(canvas.circle()->zValue(), 20.0);
        canvas.mouse.move(QPoint(5, 5)); // just inside
        QVERIFY(canvas.circle() != nullptr);
        QCOMPARE(canvas.circle()->rect(), QRectF(0, 0, 10, 10));
        canvas.mouse.move(QPoint(4, 50)); // sticks out
        QCOMPARE(canvas.circle(), nullptr);
        canvas.mouse.move(QPoint(195, 145));
        QVERIFY(canvas.circle() != nullptr);
        canvas.mouse.move(QPoint(196, 145));
        QCOMPARE(canvas.circle(), nullptr);
        QCOMPARE(canvas.scene.items().size(), 1);
    }
    // Fractions are truncated, not rounded.
    canvas.view.setTransform(QTransform::fromScale(4, 4));
    canvas.view.horizontalScrollBar()->setValue(0);
    canvas.view.verticalScrollBar()->setValue(0);
    canvas.view.SetTool(ToolKeepBrush);
    canvas.mouse.move(QPoint(103, 103)); // 98 / 4 = 24.5; 10 / 4 = 2.5
    QVERIFY(canvas.circle() != nullptr);
    QCOMPARE(canvas.circle()->rect(), QRectF(24, 24, 2, 2));
}

void TestCanvasView::circleTakesANewSize()
{
    Canvas canvas;
    canvas.view.updateellipse(20); // none is shown
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.view.SetTool(ToolKeepBrush);
    canvas.mouse.move(QPoint(50, 50));
    canvas.view.updateellipse(31);
    QCOMPARE(canvas.circle()->rect(), QRectF(35, 35, 30, 30));
    canvas.view.updateellipse(100); // touches the edge of the scene
    QCOMPARE(canvas.circle()->rect(), QRectF(0, 0, 100, 100));
    canvas.view.updateellipse(102); // would stick out
    QCOMPARE(canvas.circle()->rect(), QRectF(0, 0, 100, 100));
    canvas.mouse.move(QPoint(60, 60)); // the size was not stored
    QCOMPARE(canvas.circle()->rect(), QRectF(55, 55, 10, 10));
}

void TestCanvasView::circleAndPenOutliveNothing_data()
{
    QTest::addColumn<DrawingTools>("tool");
    QTest::addColumn<QString>("loss");
    for (const DrawingTools tool : {ToolKeepBrush, ToolRemoveBrush, ToolBlueMarker, ToolPen, ToolKeepMarker})
        for (const char *loss : {"clear", "other scene", "no scene", "scene deleted", "item deleted"})
            QTest::addRow("%d, %s", int(tool), loss) << tool << QString(loss);
}

void TestCanvasView::circleAndPenOutliveNothing()
{
    QFETCH(DrawingTools, tool);
    QFETCH(QString, loss);
    Canvas canvas;
    auto scene = std::make_unique<QGraphicsScene>(0, 0, sceneWidth, sceneHeight);
    QGraphicsScene other(0, 0, sceneWidth, sceneHeight);
    // Every way in which the view may touch the item next.
    const QList<std::function<void()>> nexts{
        [&] { canvas.mouse.move(QPoint(60, 60)); },
        [&] { canvas.view.SetTool(ToolNone); },
        [&] { canvas.view.updateellipse(20); },
        [&] {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&canvas.view, &leave);
        },
        [&] { canvas.mouse.release(QPoint(60, 60)); },
        [&] { canvas.stack.undo(); },
    };
    for (const auto &next : nexts) {
        if (scene == nullptr)
            scene = std::make_unique<QGraphicsScene>(0, 0, sceneWidth, sceneHeight);
        canvas.view.setScene(scene.get());
        canvas.view.SetTool(tool);
        canvas.mouse.press(QPoint(50, 50));
        canvas.mouse.move(QPoint(51, 51));
        canvas.mouse.move(QPoint(52, 52));
        if (loss == "clear")
            scene->clear();
        else if (loss == "other scene")
            canvas.view.setScene(&other);
        else if (loss == "no scene")
            canvas.view.setScene(nullptr);
        else if (loss == "scene deleted")
            scene.reset();
        else
            qDeleteAll(scene->items());
        next();
        canvas.mouse.move(QPoint(70, 70));
        canvas.mouse.release(QPoint(70, 70));
        canvas.view.SetTool(ToolNone);
        canvas.stack.undo();
        canvas.stack.redo();
        canvas.stack.clear();
        if (scene != nullptr)
            scene->clear();
    }
    for (const QGraphicsItem *item : other.items())
        QVERIFY(item->zValue() != 20.0); // no circle is left behind
}

void TestCanvasView::partsGoInAnyOrder()
{
    for (int order = 0; order < 6; ++order) {
        QSettings settings;
        auto view = std::make_unique<ZelGraphicsView>();
        auto scene = std::make_unique<QGraphicsScene>(0, 0, sceneWidth, sceneHeight);
        auto stack = std::make_unique<QUndoStack>();
        view->settings = &settings;
        view->undoStack = stack.get();
        view->updatetoolssettings();
        view->setFrameStyle(0);
        view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        view->setScene(scene.get());
        CanvasMouse mouse(*view);
        view->SetTool(ToolKeepMarker);
        mouse.stroke({QPoint(40, 40), QPoint(60, 60)});
        view->SetTool(ToolEraser);
        mouse.click(QPoint(42, 42));
        view->SetTool(ToolKeepBrush);
        mouse.move(QPoint(50, 50));
        QCOMPARE(stack->count(), 2);
        const QList<std::function<void()>> goes{[&] { view.reset(); }, [&] { scene.reset(); },
                                                [&] { stack.reset(); }};
        const int orders[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
        for (const int which : orders[order]) {
            goes[which]();
            if (stack != nullptr)
                stack->undo();
        }
    }
}

ORNEVO_TEST_MAIN(TestCanvasView)
#include "tst_canvasview.moc"
