// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CMarkerCommand.h"
#include "canvas/ZelGraphicsView.h"
#include "resources/Resources.h"
#include "tests/support/CanvasMouse.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QSettings>
#include <QSignalSpy>
#include <QUndoStack>

#include <optional>

Q_DECLARE_METATYPE(DrawingTools)

namespace {

/// A view in which a point of the viewport is, at zoom 1, the point of the scene.
struct Canvas
{
    explicit Canvas(QRectF sceneRect = QRectF(0, 0, 200, 150)) : scene(sceneRect), mouse(view)
    {
        settings.clear();
        view.setFrameStyle(0);
        view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setMouseTracking(true);
        view.resize(500, 400);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("the view does not come up");
        view.settings = &settings;
        view.undoStack = &stack;
        view.updatetoolssettings();
        view.setScene(&scene);
    }
    void set(const char *key, const QVariant &value)
    {
        settings.setValue(key, value);
        view.updatetoolssettings();
    }
    int count(int type) const
    {
        int found = 0;
        for (const QGraphicsItem *item : scene.items())
            found += item->type() == type;
        return found;
    }

    QSettings settings;
    QUndoStack stack;
    QGraphicsScene scene;
    ZelGraphicsView view;
    testsupport::CanvasMouse mouse;
};

/// A graphics item that reports its end.
class TellingRect : public QGraphicsRectItem
{
public:
    explicit TellingRect(int &deaths) : QGraphicsRectItem(0, 0, 5, 5), m_deaths(deaths) {}
    ~TellingRect() override { ++m_deaths; }

private:
    int &m_deaths;
};

} // namespace

class TestMarkers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { resources::registerAll(); }
    void keepDab();
    void removeDab();
    void clickWithoutMovementLaysNothing();
    void moveWithoutButtonLaysNothing();
    void whereADabIsAccepted_data();
    void whereADabIsAccepted();
    void halfPixelsAtDoubleZoom();
    void onlyTheExtentOfTheSceneCounts();
    void dabMayReachBeyondTheEdge();
    void everyMoveLaysOneDab();
    void dabsShowOnLargePhotos_data();
    void dabsShowOnLargePhotos();
    void dabsOfNoSizeDoNotGrow_data();
    void dabsOfNoSizeDoNotGrow();
    void blueDab();
    void blueDabAtTheEdge();
    void blueDabOpacity_data();
    void blueDabOpacity();
    void undoTakesTheNewestDab();
    void redoBringsNothingBack();
    void secondUndoIsHarmless();
    void commandDeletesOnUndoOnly();
    void commandOfAnotherScene();
    void undoAfterErasing();
    void undoAfterTheSceneWasCleared();
    void erasedDabsAreDiscarded();
    void eraserTakesRectanglesAndEllipsesOnly();
    void eraserGoesByShape();
    void eraserReach();
    void eraserErasesOnPressOnly();
    void penDrawsAPath();
    void penLetsGoOfTheButton();
    void penNeedsTheLeftButton();
    void penTellsWhatItDoes();
};

void TestMarkers::keepDab()
{
    Canvas canvas;
    canvas.set("KEEPMSIZE", 13);
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(40, 30)});
    QCOMPARE(canvas.scene.items().size(), 1);
    const auto *dab = qgraphicsitem_cast<QGraphicsRectItem *>(canvas.scene.items().first());
    QVERIFY(dab != nullptr);
    QCOMPARE(dab->rect(), QRectF(40, 30, 13, 13));
    QCOMPARE(dab->pos(), QPointF());
    QCOMPARE(dab->pen(), QPen(QColor(50, 255, 50, 255)));
    QCOMPARE(dab->brush(), QBrush(QColor(50, 255, 50, 255), Qt::SolidPattern));
    QCOMPARE(dab->zValue(), 10.0);
    QCOMPARE(dab->opacity(), 1.0);
    QCOMPARE(canvas.stack.count(), 1);
    QVERIFY(dynamic_cast<const CMarkerCommand *>(canvas.stack.command(0)) != nullptr);
    QCOMPARE(canvas.stack.command(0)->text(), QString());
}

void TestMarkers::removeDab()
{
    Canvas canvas;
    canvas.set("REMOVEMSIZE", 7);
    canvas.view.SetTool(ToolRemoveMarker);
    canvas.mouse.stroke({QPoint(40, 30)});
    QCOMPARE(canvas.scene.items().size(), 1);
    const auto *dab = qgraphicsitem_cast<QGraphicsEllipseItem *>(canvas.scene.items().first());
    QVERIFY(dab != nullptr);
    QCOMPARE(dab->rect(), QRectF(40, 30, 7, 7));
    QCOMPARE(dab->pos(), QPointF());
    QCOMPARE(dab->pen(), QPen(QColor(255, 10, 10, 255)));
    QCOMPARE(dab->brush(), QBrush(QColor(255, 10, 10, 255), Qt::SolidPattern));
    QCOMPARE(dab->zValue(), 10.0);
    QCOMPARE(dab->opacity(), 1.0);
    QCOMPARE(canvas.stack.count(), 1);
    QVERIFY(dynamic_cast<const CMarkerCommand *>(canvas.stack.command(0)) != nullptr);
}

void TestMarkers::clickWithoutMovementLaysNothing()
{
    Canvas canvas;
    for (const DrawingTools tool : {ToolKeepMarker, ToolRemoveMarker, ToolBlueMarker}) {
        canvas.view.SetTool(tool);
        canvas.mouse.click(QPoint(40, 40));
        canvas.view.SetTool(ToolNone);
        QCOMPARE(canvas.scene.items().size(), 0);
    }
    QCOMPARE(canvas.stack.count(), 0);
}

void TestMarkers::moveWithoutButtonLaysNothing()
{
    Canvas canvas;
    for (const DrawingTools tool : {ToolKeepMarker, ToolRemoveMarker, ToolBlueMarker, ToolPen}) {
        canvas.view.SetTool(tool);
        canvas.mouse.move(QPoint(40, 40));
        canvas.mouse.click(QPoint(40, 40));
        canvas.mouse.move(QPoint(50, 40));
        canvas.view.SetTool(ToolNone);
        QCOMPARE(canvas.count(QGraphicsRectItem::Type) + canvas.count(QGraphicsEllipseItem::Type), 0);
    }
    QCOMPARE(canvas.stack.count(), 0);
}

void TestMarkers::whereADabIsAccepted_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("first pixel") << QPoint(0, 0) << false;
    QTest::newRow("first column") << QPoint(0, 50) << false;
    QTest::newRow("first row") << QPoint(50, 0) << false;
    QTest::newRow("second of both") << QPoint(1, 1) << true;
    QTest::newRow("last of both") << QPoint(199, 149) << true;
    QTest::newRow("beyond the right edge") << QPoint(200, 50) << false;
    QTest::newRow("beyond the lower edge") << QPoint(50, 150) << false;
    QTest::newRow("far out") << QPoint(400, 300) << false;
    QTest::newRow("out at the upper left") << QPoint(-20, -20) << false;
}

void TestMarkers::whereADabIsAccepted()
{
    QFETCH(QPoint, position);
    QFETCH(bool, accepted);
    Canvas canvas;
    for (const DrawingTools tool : {ToolKeepMarker, ToolRemoveMarker, ToolBlueMarker}) {
        canvas.view.SetTool(tool);
        canvas.mouse.press(QPoint(100, 100));
        canvas.mouse.move(position);
        canvas.mouse.release(position);
        canvas.view.SetTool(ToolNone);
        QCOMPARE(canvas.scene.items().size(), accepted ? 1 : 0);
        QCOMPARE(canvas.stack.count(), accepted && tool != ToolBlueMarker ? 1 : 0);
        canvas.stack.clear();
        canvas.scene.clear();
    }
}

void TestMarkers::halfPixelsAtDoubleZoom()
{
    Canvas canvas;
    canvas.view.setTransform(QTransform::fromScale(2, 2));
    canvas.view.SetTool(ToolKeepMarker);
    QCOMPARE(canvas.view.mapToScene(QPoint(1, 21)), QPointF(0.5, 10.5));
    canvas.mouse.stroke({QPoint(1, 21)});
    QCOMPARE(canvas.scene.items().size(), 0);
    canvas.mouse.stroke({QPoint(21, 1)});
    QCOMPARE(canvas.scene.items().size(), 0);
    canvas.mouse.stroke({QPoint(2, 2)});
    QCOMPARE(canvas.scene.items().size(), 1);
    QCOMPARE(qgraphicsitem_cast<QGraphicsRectItem *>(canvas.scene.items().first())->rect(),
             QRectF(1, 1, 10, 10));
    canvas.mouse.stroke({QPoint(3, 5)}); // the position is not rounded
    QCOMPARE(canvas.scene.items(Qt::AscendingOrder).size(), 2);
    QCOMPARE(qgraphicsitem_cast<QGraphicsRectItem *>(canvas.scene.items().first())->rect(),
             QRectF(1.5, 2.5, 10, 10));
}

void TestMarkers::onlyTheExtentOfTheSceneCounts()
{
    Canvas canvas(QRectF(50, 50, 200, 150)); // where it starts does not matter
    canvas.view.SetTool(ToolKeepMarker);
    const auto dabsAt = [&canvas](int x, int y) {
        canvas.mouse.stroke({canvas.view.mapFromScene(QPointF(x, y))});
        return canvas.scene.items().size();
    };
    QCOMPARE(dabsAt(60, 60), 1);
    QCOMPARE(dabsAt(200, 60), 1); // inside the scene, but not below its width
    QCOMPARE(dabsAt(60, 150), 1);
    QCOMPARE(dabsAt(199, 149), 2);
}

void TestMarkers::dabMayReachBeyondTheEdge()
{
    Canvas canvas;
    canvas.set("KEEPMSIZE", 30);
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(195, 145)});
    QCOMPARE(canvas.scene.items().size(), 1);
    QCOMPARE(qgraphicsitem_cast<QGraphicsRectItem *>(canvas.scene.items().first())->rect(),
             QRectF(195, 145, 30, 30));
}

void TestMarkers::everyMoveLaysOneDab()
{
    Canvas canvas;
    canvas.view.SetTool(ToolRemoveMarker);
    canvas.mouse.stroke({QPoint(10, 10), QPoint(90, 10), QPoint(90, 90), QPoint(300, 90), QPoint(20, 90)});
    QCOMPARE(canvas.count(QGraphicsEllipseItem::Type), 4);
    QCOMPARE(canvas.stack.count(), 4);
}

void TestMarkers::dabsOfNoSizeDoNotGrow_data()
{
    dabsShowOnLargePhotos_data();
}

/// They mark no pixel, and an ellipse of no size says nothing of where it is to be painted.
void TestMarkers::dabsOfNoSizeDoNotGrow()
{
    QFETCH(DrawingTools, tool);
    Canvas c;
    c.set("KEEPMSIZE", 0);
    c.set("REMOVEMSIZE", 0);
    c.view.scale(0.5, 0.5);
    c.view.SetTool(tool);
    c.mouse.stroke({c.view.mapFromScene(40, 30), c.view.mapFromScene(60, 30)});
    QVERIFY(!c.scene.items().isEmpty());
    for (const QGraphicsItem *dab : c.scene.items())
        QVERIFY(dab->boundingRect().width() <= 1.0);
}

void TestMarkers::dabsShowOnLargePhotos_data()
{
    QTest::addColumn<DrawingTools>("tool");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("Keep") << ToolKeepMarker << QColor(50, 255, 50);
    QTest::newRow("Remove") << ToolRemoveMarker << QColor(255, 10, 10);
}

/// A dab of few pixels of a photo that is shown much reduced would be a dot that nobody finds again.
void TestMarkers::dabsShowOnLargePhotos()
{
    QFETCH(DrawingTools, tool);
    QFETCH(QColor, colour);
    Canvas c(QRectF(0, 0, 10000, 8000));
    c.scene.setBackgroundBrush(Qt::gray);
    c.view.scale(0.05, 0.05);
    const auto coloured = [&c, colour] {
        const QImage seen = c.view.viewport()->grab().toImage();
        int found = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                found += seen.pixelColor(x, y) == colour;
        return found;
    };
    c.view.SetTool(tool);
    c.mouse.stroke({QPoint(100, 80)});
    const QGraphicsItem *dab = c.scene.items().value(0);
    QVERIFY(dab != nullptr);
    // Seen, but no larger than it is to everyone who asks.
    QVERIFY2(coloured() >= 9, qPrintable(QString::number(coloured())));
    QCOMPARE(dab->shape().boundingRect(), QRectF(1999.5, 1599.5, 11, 11));
    QVERIFY(c.scene.items(QRectF(1960, 1560, 30, 30), Qt::IntersectsItemShape).isEmpty());
    // From nearby as large as ever.
    c.view.scale(20, 20);
    c.view.centerOn(2005, 1605);
    QVERIFY(coloured() >= 70);
    QVERIFY(coloured() <= 121);
    // And gone without a trace.
    c.view.scale(0.05, 0.05);
    c.view.centerOn(0, 0);
    QCoreApplication::processEvents();
    c.stack.undo();
    QCoreApplication::processEvents();
    QCOMPARE(coloured(), 0);
}

void TestMarkers::blueDab()
{
    Canvas canvas;
    canvas.view.SetTool(ToolBlueMarker);
    canvas.mouse.stroke({QPoint(40, 30)});
    QCOMPARE(canvas.scene.items().size(), 2);
    const auto *circle = qgraphicsitem_cast<QGraphicsEllipseItem *>(canvas.scene.items().first());
    QVERIFY(circle != nullptr);
    QCOMPARE(circle->zValue(), 20.0);
    QCOMPARE(circle->rect(), QRectF(35, 25, 10, 10));
    QCOMPARE(circle->pen(), QPen());
    const auto *dab = qgraphicsitem_cast<QGraphicsEllipseItem *>(canvas.scene.items().last());
    QVERIFY(dab != nullptr);
    QCOMPARE(dab->rect(), QRectF(35, 25, 10, 10));
    QCOMPARE(dab->pen(), QPen(QColor(10, 10, 255, 255)));
    QCOMPARE(dab->brush(), QBrush(QColor(10, 10, 255, 255), Qt::SolidPattern));
    QCOMPARE(dab->zValue(), 10.0);
    QCOMPARE(dab->opacity(), 0.06);
    QCOMPARE(canvas.stack.count(), 0);
}

void TestMarkers::blueDabAtTheEdge()
{
    Canvas canvas;
    canvas.view.SetTool(ToolBlueMarker);
    canvas.mouse.press(QPoint(50, 50));
    canvas.mouse.move(QPoint(3, 3)); // the circle would stick out, the dab may
    canvas.mouse.release(QPoint(3, 3));
    QCOMPARE(canvas.scene.items().size(), 1);
    const auto *dab = qgraphicsitem_cast<QGraphicsEllipseItem *>(canvas.scene.items().first());
    QCOMPARE(dab->zValue(), 10.0);
    QCOMPARE(dab->rect(), QRectF(-2, -2, 10, 10));
}

void TestMarkers::blueDabOpacity_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<double>("opacity");
    QTest::newRow("0") << QVariant(0) << 0.0;
    QTest::newRow("text") << QVariant("0.35") << 0.035;
    QTest::newRow("1") << QVariant(1) << 0.1;
    QTest::newRow("10") << QVariant(10) << 1.0;
}

void TestMarkers::blueDabOpacity()
{
    QFETCH(QVariant, stored);
    QFETCH(double, opacity);
    Canvas canvas;
    canvas.set("MOPACITY", stored);
    canvas.view.SetTool(ToolBlueMarker);
    canvas.mouse.stroke({QPoint(40, 30)});
    QCOMPARE(canvas.scene.items().last()->opacity(), opacity);
}

void TestMarkers::undoTakesTheNewestDab()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(40, 20)});
    canvas.view.SetTool(ToolRemoveMarker);
    canvas.mouse.stroke({QPoint(60, 20)});
    QCOMPARE(canvas.stack.count(), 3);
    canvas.stack.undo();
    QCOMPARE(canvas.count(QGraphicsEllipseItem::Type), 0);
    QCOMPARE(canvas.count(QGraphicsRectItem::Type), 2);
    canvas.stack.undo();
    QCOMPARE(canvas.scene.items().size(), 1);
    QCOMPARE(qgraphicsitem_cast<QGraphicsRectItem *>(canvas.scene.items().first())->rect().x(), 20.0);
}

void TestMarkers::redoBringsNothingBack()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20)});
    canvas.stack.undo();
    canvas.stack.redo();
    QCOMPARE(canvas.scene.items().size(), 0);
}

void TestMarkers::secondUndoIsHarmless()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(40, 20)});
    testsupport::MessageLog log;
    for (int i = 0; i < 3; ++i) {
        canvas.stack.undo();
        canvas.stack.redo();
    }
    canvas.stack.setIndex(0);
    canvas.stack.setIndex(2);
    canvas.stack.setIndex(0);
    QCOMPARE(canvas.scene.items().size(), 0);
    QCOMPARE(log.taken(), QStringList());
}

void TestMarkers::commandDeletesOnUndoOnly()
{
    int deaths = 0;
    QGraphicsScene scene;
    auto *item = new TellingRect(deaths);
    scene.addItem(item);
    {
        CMarkerCommand command(&scene, item);
        command.redo();
        QCOMPARE(item->scene(), &scene);
    }
    QCOMPARE(deaths, 0);
    {
        CMarkerCommand command(&scene, item);
        command.undo();
        QCOMPARE(deaths, 1);
        QCOMPARE(scene.items().size(), 0);
        command.redo();
        command.undo();
        QCOMPARE(deaths, 1);
    }
    CMarkerCommand nothing(&scene, nullptr);
    nothing.undo();
    nothing.redo();
}

void TestMarkers::commandOfAnotherScene()
{
    int deaths = 0;
    QGraphicsScene other;
    std::optional<QGraphicsScene> scene;
    scene.emplace();
    auto *item = new TellingRect(deaths);
    scene->addItem(item);
    CMarkerCommand command(&*scene, item);
    other.addItem(item); // leaves the first
    scene.reset();
    command.undo();
    QCOMPARE(deaths, 1);
    QCOMPARE(other.items().size(), 0);
}

void TestMarkers::undoAfterErasing()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(100, 100)});
    canvas.view.SetTool(ToolEraser);
    canvas.mouse.click(QPoint(105, 105));
    QCOMPARE(canvas.scene.items().size(), 1);
    QCOMPARE(canvas.stack.count(), 2); // the commands stay
    QCOMPARE(canvas.stack.index(), 2);
    testsupport::MessageLog log;
    canvas.stack.undo(); // that of the erased dab
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.stack.redo();
    canvas.stack.undo();
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.stack.undo();
    QCOMPARE(canvas.scene.items().size(), 0);
    QCOMPARE(log.taken(), QStringList());
}

void TestMarkers::undoAfterTheSceneWasCleared()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(100, 100)});
    canvas.scene.clear();
    canvas.stack.undo();
    canvas.stack.undo();
    canvas.stack.redo();
    canvas.stack.undo();
    QCOMPARE(canvas.scene.items().size(), 0);
}

void TestMarkers::erasedDabsAreDiscarded()
{
    int deaths = 0;
    {
        Canvas canvas;
        for (int i = 0; i < 3; ++i)
            canvas.scene.addItem(new TellingRect(deaths));
        canvas.stack.push(new CMarkerCommand(&canvas.scene, canvas.scene.items().first()));
        canvas.view.SetTool(ToolEraser);
        canvas.mouse.click(QPoint(4, 4));
        QCOMPARE(canvas.scene.items().size(), 0);
        QCOMPARE(deaths, 0);
        canvas.stack.undo();
        QCOMPARE(deaths, 1);
        canvas.view.discardErasedDabs();
        QCOMPARE(deaths, 3);
        canvas.stack.redo();
        canvas.stack.undo();
        canvas.view.discardErasedDabs();
        canvas.scene.addItem(new TellingRect(deaths));
        canvas.mouse.click(QPoint(4, 4));
        QCOMPARE(deaths, 3);
    }
    QCOMPARE(deaths, 4); // the view's end is the end of what it erased
}

void TestMarkers::eraserTakesRectanglesAndEllipsesOnly()
{
    Canvas canvas;
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::gray);
    canvas.scene.addPixmap(pixmap)->setPos(40, 40);
    canvas.scene.addRect(40, 40, 20, 20, QPen(Qt::black), QBrush(Qt::magenta));
    canvas.scene.addEllipse(40, 40, 20, 20, QPen(Qt::black), QBrush(Qt::cyan));
    canvas.scene.addLine(40, 40, 60, 60);
    QPainterPath path(QPointF(40, 40));
    path.lineTo(60, 60);
    canvas.scene.addPath(path);
    canvas.scene.addRect(100, 100, 20, 20); // out of reach
    canvas.view.SetTool(ToolEraser);
    canvas.mouse.click(QPoint(50, 50));
    QCOMPARE(canvas.count(QGraphicsRectItem::Type), 1);
    QCOMPARE(canvas.count(QGraphicsEllipseItem::Type), 0);
    QCOMPARE(canvas.count(QGraphicsPixmapItem::Type), 1);
    QCOMPARE(canvas.count(QGraphicsLineItem::Type), 1);
    QCOMPARE(canvas.count(QGraphicsPathItem::Type), 1);
    QCOMPARE(canvas.stack.count(), 0);
}

void TestMarkers::eraserGoesByShape()
{
    Canvas canvas;
    canvas.scene.addEllipse(50, 50, 60, 60, QPen(Qt::NoPen), QBrush(Qt::red));
    canvas.view.SetTool(ToolEraser);
    canvas.mouse.click(QPoint(48, 48)); // in the corner of its box, beside the disc
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.mouse.click(QPoint(60, 60));
    QCOMPARE(canvas.scene.items().size(), 0);
}

void TestMarkers::eraserReach()
{
    Canvas canvas;
    canvas.set("ERASERMSIZE", 21); // reaches 10 to each side
    canvas.scene.addRect(50, 50, 10, 10, QPen(Qt::NoPen), QBrush(Qt::red));
    canvas.view.SetTool(ToolEraser);
    canvas.mouse.click(QPoint(38, 55));
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.mouse.click(QPoint(72, 55));
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.mouse.click(QPoint(42, 55));
    QCOMPARE(canvas.scene.items().size(), 0);
    canvas.view.setTransform(QTransform::fromScale(2, 2)); // at double zoom it reaches half as far
    canvas.scene.addRect(50, 50, 10, 10, QPen(Qt::NoPen), QBrush(Qt::red));
    canvas.mouse.click(QPoint(84, 110));
    QCOMPARE(canvas.scene.items().size(), 1);
    canvas.mouse.click(QPoint(94, 110));
    QCOMPARE(canvas.scene.items().size(), 0);
}

void TestMarkers::eraserErasesOnPressOnly()
{
    Canvas canvas;
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(60, 20), QPoint(100, 20)});
    canvas.view.SetTool(ToolEraser);
    canvas.mouse.press(QPoint(25, 25));
    QCOMPARE(canvas.scene.items().size(), 2);
    canvas.mouse.move(QPoint(65, 25));
    canvas.mouse.move(QPoint(105, 25));
    canvas.mouse.release(QPoint(105, 25));
    QCOMPARE(canvas.scene.items().size(), 2);
}

void TestMarkers::penDrawsAPath()
{
    Canvas canvas;
    canvas.view.SetTool(ToolPen);
    canvas.mouse.press(QPoint(20, 20));
    QCOMPARE(canvas.scene.items().size(), 1);
    const auto *line = qgraphicsitem_cast<QGraphicsPathItem *>(canvas.scene.items().first());
    QVERIFY(line != nullptr);
    QCOMPARE(line->pen(), QPen(QColor(255, 255, 10, 255)));
    QCOMPARE(line->brush(), QBrush());
    QCOMPARE(line->zValue(), 0.0);
    QVERIFY(line->path().isEmpty());
    canvas.mouse.move(QPoint(30, 25));
    canvas.mouse.move(QPoint(40, 45));
    canvas.mouse.release(QPoint(40, 45));
    QPainterPath expected(QPointF(20, 20));
    expected.lineTo(30, 25);
    expected.lineTo(40, 45);
    QCOMPARE(line->path(), expected);
    QCOMPARE(line->pen(), QPen(QColor(255, 255, 10, 255), 0));
    QCOMPARE(line->brush().style(), Qt::NoBrush);
    QCOMPARE(line->zValue(), 10.0);
    canvas.mouse.move(QPoint(60, 60)); // the stroke has ended
    QCOMPARE(line->path(), expected);
    QCOMPARE(canvas.stack.count(), 0);
    canvas.mouse.stroke({QPoint(60, 60)}); // the next one is a path of its own
    QCOMPARE(canvas.count(QGraphicsPathItem::Type), 2);
}

void TestMarkers::penLetsGoOfTheButton()
{
    Canvas canvas;
    canvas.view.SetTool(ToolPen);
    canvas.mouse.stroke({QPoint(20, 20), QPoint(30, 25)});
    const auto items = canvas.scene.items();
    canvas.view.SetTool(ToolKeepMarker);
    canvas.mouse.move(QPoint(60, 60)); // no button is held, so no dab is laid
    QCOMPARE(canvas.scene.items(), items);
    QCOMPARE(canvas.stack.count(), 0);
}

void TestMarkers::penNeedsTheLeftButton()
{
    Canvas canvas;
    canvas.view.SetTool(ToolPen);
    canvas.mouse.press(QPoint(20, 20), Qt::RightButton);
    canvas.mouse.move(QPoint(30, 30));
    canvas.mouse.release(QPoint(30, 30), Qt::RightButton);
    QCOMPARE(canvas.scene.items().size(), 0);
    canvas.mouse.stroke({QPoint(40, 40), QPoint(50, 45)});
    const auto *line = qgraphicsitem_cast<QGraphicsPathItem *>(canvas.scene.items().value(0));
    QVERIFY(line != nullptr);
    const QPainterPath drawn = line->path();
    canvas.mouse.press(QPoint(60, 60), Qt::RightButton); // does not take up the line that is done
    canvas.mouse.move(QPoint(70, 70));
    canvas.mouse.release(QPoint(70, 70), Qt::RightButton);
    QCOMPARE(line->path(), drawn);
    QCOMPARE(canvas.scene.items().size(), 1);
}

void TestMarkers::penTellsWhatItDoes()
{
    Canvas canvas;
    QStringList reported;
    connect(&canvas.view, &ZelGraphicsView::ProgressStage, this,
            [&reported](char *text) { reported << text; });
    canvas.view.SetTool(ToolPen);
    canvas.mouse.move(QPoint(10, 10));
    canvas.mouse.press(QPoint(20, 20));
    QCOMPARE(reported, QStringList());
    canvas.mouse.move(QPoint(30, 25));
    QCOMPARE(reported, QStringList({"mouse moved", "path empty", "path z is 0"}));
    reported.clear();
    canvas.mouse.move(QPoint(40, 45));
    QCOMPARE(reported, QStringList({"mouse moved", "path z is 0"}));
    reported.clear();
    canvas.mouse.release(QPoint(40, 45));
    QCOMPARE(reported, QStringList({"Released"}));
}

ORNEVO_TEST_MAIN(TestMarkers)
#include "tst_markers.moc"
