// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/CanvasMouse.h"
#include "tests/support/TestMain.h"

#include <QDialog>
#include <QGraphicsEllipseItem>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtMath>

#include <cmath>
#include <optional>

class TestBrushTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void squareOfTheBrush_data();
    void squareOfTheBrush();
    void squareInNumbers();
    void squareLeftOfTheOrigin();
    void pressOutsideIsSilentAndMoveIsNot();
    void anyButtonPresses();
    void secondOfTwoQuickPressesCounts();
    void movingWithoutAButton();
    void circle();
    void circleGoesAndComesBack();
    void pressLeavesTheCircleAlone();
    void circleShowsOnEveryPicture_data();
    void circleShowsOnEveryPicture();
    void pointerShowsWithoutCircle();
    void pointerMarkStaysWhenScrolling();
    void removeBrushRepaintsTheScene();
    void dialogEndsTheStroke();
    void moveWithoutAButtonEndsTheStroke();
    void sizesWithoutArea_data();
    void sizesWithoutArea();
    void updateEllipse();
    void sizesAreBytes();
    void sharedSize();
    void handSignals_data();
    void handSignals();
    void handDragsAddUp();
    void handCursors();
    void brushCursors();
    void withoutAScene();
    void releaseEndsTheStroke();

private:
    void setBrushSizes(int size);
    QGraphicsEllipseItem *outline() const;
    void zoomTo(double scale);

    std::unique_ptr<QSettings> store;
    std::unique_ptr<QGraphicsScene> scene;
    std::unique_ptr<ZelGraphicsView> view;
    std::optional<testsupport::CanvasMouse> mouse; ///< over it
};

namespace {

int truncated(double value)
{
    return static_cast<int>(std::trunc(value));
}

QRect expectedSquare(const QGraphicsView &view, QPoint position, int size)
{
    const int half = size / 2;
    const QPointF first = view.mapToScene(position.x() - half, position.y() - half);
    const QPointF second = view.mapToScene(position.x() + half, position.y() + half);
    return QRect(truncated(first.x()), truncated(first.y()), truncated(second.x() - first.x()),
                 truncated(second.y() - first.y()));
}

QRect squareOf(const QList<QVariant> &signal)
{
    return signal.at(0).toRect();
}

const DrawingTools brushes[] = {ToolKeepBrush, ToolRemoveBrush};

} // namespace

void TestBrushTools::init()
{
    store = std::make_unique<QSettings>();
    store->clear();
    scene = std::make_unique<QGraphicsScene>(0, 0, 200, 150);
    view = std::make_unique<ZelGraphicsView>();
    mouse.emplace(*view);
    view->settings = store.get();
    view->updatetoolssettings();
    view->setMouseTracking(true);
    view->resize(600, 500);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    view->setScene(scene.get());
}

void TestBrushTools::cleanup()
{
    mouse.reset();
    view.reset();
    scene.reset();
    store->clear();
}

void TestBrushTools::setBrushSizes(int size)
{
    store->setValue("SAMESIZECHECKED", false);
    store->setValue("KEEPBSIZE", size);
    store->setValue("REMOVEBSIZE", size);
    view->updatetoolssettings();
}

void TestBrushTools::zoomTo(double scale)
{
    view->setTransform(QTransform::fromScale(scale, scale));
    view->centerOn(100, 75);
}

QGraphicsEllipseItem *TestBrushTools::outline() const
{
    QGraphicsEllipseItem *found = nullptr;
    for (QGraphicsItem *item : scene->items()) {
        auto *ellipse = qgraphicsitem_cast<QGraphicsEllipseItem *>(item);
        if (ellipse != nullptr && found != nullptr)
            qFatal("two circles");
        if (ellipse != nullptr)
            found = ellipse;
    }
    return found;
}

void TestBrushTools::squareOfTheBrush_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<int>("size");
    for (const double zoom : {0.4, 1.0, 1.2, 1.0 / 1.2, 2.5, 7.3, 40.0})
        for (const int size : {2, 3, 10, 11, 40, 99})
            QTest::addRow("%.2f %d", zoom, size) << zoom << size;
}

void TestBrushTools::squareOfTheBrush()
{
    QFETCH(double, zoom);
    QFETCH(int, size);
    setBrushSizes(size);
    zoomTo(zoom);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        for (const QPoint step : {QPoint(0, 0), QPoint(3, 5), QPoint(-7, 2)}) {
            const QPoint position = view->mapFromScene(100, 75) + step;
            const QRect expected = expectedSquare(*view, position, size);
            const bool inside = scene->sceneRect().contains(expected);
            spy.clear();
            mouse->press(position);
            QCOMPARE(spy.size(), inside ? 1 : 0);
            if (inside) {
                QCOMPARE(squareOf(spy.first()), expected);
                QCOMPARE(spy.first().at(1).toBool(), true);
            }
            spy.clear();
            mouse->move(position, Qt::LeftButton);
            QCOMPARE(spy.size(), 1);
            QCOMPARE(squareOf(spy.first()), expected);
            QCOMPARE(spy.first().at(1).toBool(), false);
            mouse->release(position);
            QCOMPARE(spy.size(), 1); // the release sends nothing
        }
    }
}

void TestBrushTools::squareInNumbers()
{
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    view->SetTool(ToolKeepBrush);
    setBrushSizes(11); // as good as 10: the half is a whole number
    zoomTo(1.0);
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()), QRect(95, 70, 10, 10));
    zoomTo(2.0); // ten pixels on the screen are five of the picture
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()), QRect(97, 72, 5, 5));
    zoomTo(0.5);
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()).size(), QSize(20, 20));
    QCOMPARE(spy.size(), 3);
}

void TestBrushTools::squareLeftOfTheOrigin()
{
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    view->SetTool(ToolRemoveBrush);
    setBrushSizes(10);
    zoomTo(2.0);
    const QPoint corner = view->mapFromScene(0, 0);
    mouse->press(corner);
    mouse->move(corner, Qt::LeftButton);
    // -2.5 is truncated, not floored.
    QCOMPARE(spy.size(), 1);
    QCOMPARE(squareOf(spy.last()), QRect(-2, -2, 5, 5));
}

void TestBrushTools::pressOutsideIsSilentAndMoveIsNot()
{
    setBrushSizes(20);
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        for (const QPointF edge : {QPointF(2, 75), QPointF(199, 75), QPointF(100, 1), QPointF(100, 149),
                                   QPointF(-60, 40), QPointF(230, 170)}) {
            spy.clear();
            const QPoint position = view->mapFromScene(edge);
            mouse->press(position);
            QCOMPARE(spy.size(), 0);
            mouse->move(position, Qt::LeftButton);
            QCOMPARE(spy.size(), 1);
            QCOMPARE(squareOf(spy.first()), expectedSquare(*view, position, 20));
            QVERIFY(outline() == nullptr);
            mouse->release(position);
        }
    }
    // The last square that still fits touches the edge.
    view->SetTool(ToolKeepBrush);
    spy.clear();
    mouse->press(view->mapFromScene(10, 10));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(squareOf(spy.first()), QRect(0, 0, 20, 20));
    mouse->press(view->mapFromScene(9, 10));
    QCOMPARE(spy.size(), 1);
}

void TestBrushTools::anyButtonPresses()
{
    zoomTo(1.0);
    view->SetTool(ToolKeepBrush);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        mouse->press(view->mapFromScene(50, 50), button);
        mouse->move(view->mapFromScene(52, 50), button);
        mouse->release(view->mapFromScene(52, 50), button);
    }
    QCOMPARE(spy.size(), 6);
}

/// The window system turns it into a double click.
void TestBrushTools::secondOfTwoQuickPressesCounts()
{
    view->SetTool(ToolKeepBrush);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    const QPoint position = view->mapFromScene(100, 70);
    mouse->click(position);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(position),
                       QPointF(view->viewport()->mapToGlobal(position)), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &second);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(1), spy.at(0));
    // The button is held now, and draws.
    QMouseEvent move(QEvent::MouseMove, QPointF(position), QPointF(view->viewport()->mapToGlobal(position)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QCOMPARE(spy.size(), 3);
    mouse->release(position);
    QCoreApplication::sendEvent(view->viewport(), &move);
    QCOMPARE(spy.size(), 3);
    view->setScene(nullptr);
    QCoreApplication::sendEvent(view->viewport(), &second); // nothing to draw on, and nothing to crash over
}

void TestBrushTools::movingWithoutAButton()
{
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        for (int x = 20; x < 180; x += 10)
            mouse->move(view->mapFromScene(x, 70));
        QVERIFY(outline() != nullptr);
        QCOMPARE(outline()->rect(), QRectF(165, 65, 10, 10));
    }
    QCOMPARE(spy.size(), 0);
}

void TestBrushTools::circle()
{
    zoomTo(1.0);
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        QVERIFY(outline() == nullptr);
        mouse->move(view->mapFromScene(60, 40));
        QGraphicsEllipseItem *item = outline();
        QVERIFY(item != nullptr);
        QCOMPARE(item->rect(), QRectF(55, 35, 10, 10));
        QCOMPARE(item->zValue(), 20.0);
        QCOMPARE(item->pen(), QPen());
        QCOMPARE(item->brush(), QBrush());
        mouse->move(view->mapFromScene(61, 42), Qt::LeftButton);
        QCOMPARE(outline(), item); // the same circle, moved
        QCOMPARE(item->rect(), QRectF(56, 37, 10, 10));
    }
}

void TestBrushTools::circleGoesAndComesBack()
{
    zoomTo(1.0);
    const auto showIt = [this] {
        mouse->move(view->mapFromScene(60, 40));
        return outline() != nullptr;
    };
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        QVERIFY(showIt());
        mouse->move(view->mapFromScene(3, 40)); // sticks out of the scene
        QVERIFY(outline() == nullptr);
        QVERIFY(showIt());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view.get(), &leave);
        QVERIFY(outline() == nullptr);
        QVERIFY(showIt());
        for (const DrawingTools next : {ToolNone, ToolHand, ToolEraser, ToolKeepMarker, ToolKeepBrush}) {
            view->SetTool(tool);
            QVERIFY(showIt());
            view->SetTool(next);
            QVERIFY(outline() == nullptr);
        }
        view->SetTool(tool);
        QVERIFY(showIt());
        scene->clear(); // takes the circle along
        QVERIFY(showIt());
        view->updateellipse(20);
        view->SetTool(ToolNone);
        QVERIFY(scene->items().isEmpty());
    }
}

void TestBrushTools::pressLeavesTheCircleAlone()
{
    zoomTo(1.0);
    view->SetTool(ToolKeepBrush);
    mouse->press(view->mapFromScene(60, 40));
    QVERIFY(outline() == nullptr);
    mouse->move(view->mapFromScene(60, 40), Qt::LeftButton);
    mouse->press(view->mapFromScene(100, 90));
    QCOMPARE(outline()->rect(), QRectF(55, 35, 10, 10));
}

void TestBrushTools::circleShowsOnEveryPicture_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<double>("zoom");
    QImage noise = testpictures::randomImage(1000, 800, 5);
    for (const double zoom : {0.3, 1.0, 3.0}) {
        QTest::addRow("black, %.1f", zoom) << testpictures::constantImage(1000, 800, 0xFF000000) << zoom;
        QTest::addRow("white, %.1f", zoom) << testpictures::constantImage(1000, 800, 0xFFFFFFFF) << zoom;
        QTest::addRow("noise, %.1f", zoom) << noise << zoom;
    }
}

/// Around the whole circle there is a dark pixel and a light one.
void TestBrushTools::circleShowsOnEveryPicture()
{
    QFETCH(QImage, picture);
    QFETCH(double, zoom);
    constexpr int size = 80;
    scene->setSceneRect(picture.rect());
    scene->addPixmap(QPixmap::fromImage(picture));
    setBrushSizes(size);
    view->setTransform(QTransform::fromScale(zoom, zoom));
    view->centerOn(500, 400);
    view->SetTool(ToolKeepBrush);
    mouse->move(view->mapFromScene(500, 400));
    QVERIFY(outline() != nullptr);
    QCOMPARE(outline()->type(), int{QGraphicsEllipseItem::Type});
    QCOMPARE(outline()->pen(), QPen());
    QCOMPARE(outline()->brush(), QBrush());
    QCOMPARE(outline()->zValue(), 20.0);

    const QImage seen = view->viewport()->grab().toImage();
    const QRectF circle = view->viewportTransform().mapRect(outline()->rect());
    QVERIFY(std::abs(circle.width() - size) < 5);
    const auto hasNear = [&](QPoint place, int darkest, int lightest) {
        for (int y = place.y() - 3; y <= place.y() + 3; ++y)
            for (int x = place.x() - 3; x <= place.x() + 3; ++x)
                if (const int grey = qGray(seen.pixel(x, y)); grey >= darkest && grey <= lightest)
                    return true;
        return false;
    };
    for (int degrees = 0; degrees < 360; degrees += 5) {
        const double angle = qDegreesToRadians(double(degrees));
        const QPointF direction(std::cos(angle), std::sin(angle));
        const QPoint place = (circle.center() + direction * circle.width() / 2.0).toPoint();
        QVERIFY2(hasNear(place, 0, 20), "no dark line");
        QVERIFY2(hasNear(place, 250, 255), "no light line");
    }
}

/// Where there is no circle, beside the picture or of a brush of less than a pixel, the cursor is blank all
/// the same: the view marks the pointer's place.
void TestBrushTools::pointerShowsWithoutCircle()
{
    const auto seen = [this](QPoint position) {
        return view->viewport()->grab(QRect(position - QPoint(10, 10), QSize(21, 21))).toImage();
    };
    scene->setBackgroundBrush(Qt::gray);
    const QPoint beside = view->mapFromScene(QPointF(-20, 75));
    const QPoint within = view->mapFromScene(QPointF(100, 75));
    const QImage empty = seen(beside);
    for (const DrawingTools brush : brushes) {
        setBrushSizes(10);
        view->SetTool(brush);
        QCOMPARE(seen(beside), empty);
        mouse->move(beside);
        QVERIFY(outline() == nullptr);
        QVERIFY(seen(beside) != empty);
        QCOMPARE(view->viewport()->cursor().shape(), Qt::BlankCursor);
        mouse->move(within);
        QVERIFY(outline() != nullptr);
        QCOMPARE(seen(beside), empty);
        mouse->move(beside);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view.get(), &leave);
        QCOMPARE(seen(beside), empty);
        setBrushSizes(1);
        mouse->move(within);
        QVERIFY(outline() == nullptr);
        QVERIFY(seen(within) != empty);
        view->SetTool(ToolHand);
        QCOMPARE(seen(within), empty);
    }
}

/// Scrolling moves what was painted, and the pointer stays where it is.
void TestBrushTools::pointerMarkStaysWhenScrolling()
{
    view->SetTool(ToolKeepBrush);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view->scale(8, 8);
    setBrushSizes(1); // no circle: the cross shows where the pointer is
    const QPoint middle = view->viewport()->rect().center();
    const auto onScreen = [this] {
        const QPoint corner = view->viewport()->mapTo(view.get(), QPoint());
        const QSize size = view->viewport()->size();
        return view->screen()
            ->grabWindow(view->winId(), corner.x(), corner.y(), size.width(), size.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    };
    const auto wanted = [this] {
        return view->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        view->setLayoutDirection(direction);
        mouse->move(middle + QPoint(3, 0));
        mouse->move(middle);
        QTRY_COMPARE(onScreen(), wanted());
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->value() + 30);
        QTRY_COMPARE(onScreen(), wanted());
        view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->value() - 7);
        QTRY_COMPARE(onScreen(), wanted());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view.get(), &leave);
        QTRY_COMPARE(onScreen(), wanted());
    }
}

/// The release goes to the dialog.
void TestBrushTools::dialogEndsTheStroke()
{
    zoomTo(1.0);
    QSignalSpy brush(view.get(), &ZelGraphicsView::AnyBrush);
    QSignalSpy hand(view.get(), &ZelGraphicsView::HandTool);
    for (const DrawingTools tool : {ToolKeepBrush, ToolHand}) {
        view->SetTool(tool);
        mouse->press(view->mapFromScene(60, 40));
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.close();
        brush.clear();
        mouse->move(view->mapFromScene(70, 40), Qt::NoButton);
        mouse->move(view->mapFromScene(80, 40), Qt::NoButton);
        QCOMPARE(brush.size() + hand.size(), 0);
        if (tool == ToolHand)
            QCOMPARE(view->viewport()->cursor().shape(), Qt::OpenHandCursor);
        mouse->release(view->mapFromScene(80, 40));
    }
}

void TestBrushTools::moveWithoutAButtonEndsTheStroke()
{
    zoomTo(1.0);
    QSignalSpy brush(view.get(), &ZelGraphicsView::AnyBrush);
    view->SetTool(ToolKeepBrush);
    mouse->press(view->mapFromScene(60, 40));
    mouse->move(view->mapFromScene(62, 40));
    QCOMPARE(brush.size(), 2);
    testsupport::CanvasMouse released(*view); // knows of no button
    released.move(view->mapFromScene(70, 40));
    released.move(view->mapFromScene(80, 40));
    QCOMPARE(brush.size(), 2);
    QVERIFY(outline() != nullptr); // the circle still follows
    QCOMPARE(outline()->rect().center(), QPointF(80, 40));
}

void TestBrushTools::removeBrushRepaintsTheScene()
{
    zoomTo(1.0);
    QList<QRectF> repainted;
    connect(scene.get(), &QGraphicsScene::changed, this,
            [&repainted](const QList<QRectF> &regions) { repainted += regions; });
    const auto wholeAfterMoveTo = [&](QPointF position) {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        repainted.clear();
        mouse->move(view->mapFromScene(position));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        return std::any_of(repainted.cbegin(), repainted.cend(),
                           [this](const QRectF &region) { return region.contains(scene->sceneRect()); });
    };
    view->SetTool(ToolKeepBrush);
    QVERIFY(!wholeAfterMoveTo({50, 50}));
    QVERIFY(!wholeAfterMoveTo({60, 50}));
    QVERIFY(!repainted.isEmpty()); // the circle itself moved
    view->SetTool(ToolRemoveBrush);
    QVERIFY(wholeAfterMoveTo({50, 50}));
    QVERIFY(wholeAfterMoveTo({60, 50}));
    wholeAfterMoveTo({-40, 50}); // here the circle goes, which the toolkit itself may repaint for
    QVERIFY(!wholeAfterMoveTo({-45, 50}));
}

void TestBrushTools::sizesWithoutArea_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("0") << 0;
    QTest::newRow("1") << 1;
}

void TestBrushTools::sizesWithoutArea()
{
    QFETCH(int, size);
    setBrushSizes(size);
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        spy.clear();
        mouse->press(view->mapFromScene(50, 60));
        QCOMPARE(spy.size(), 0);
        mouse->move(view->mapFromScene(50, 60), Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(squareOf(spy.first()), QRect(50, 60, 0, 0));
        QVERIFY(outline() == nullptr);
        mouse->release(view->mapFromScene(50, 60));
    }
}

void TestBrushTools::updateEllipse()
{
    zoomTo(1.0);
    view->updateellipse(30); // no circle, nothing to do
    view->SetTool(ToolKeepBrush);
    mouse->move(view->mapFromScene(60, 40));
    view->updateellipse(20);
    QCOMPARE(outline()->rect(), QRectF(50, 30, 20, 20));
    view->updateellipse(21);
    QCOMPARE(outline()->rect(), QRectF(50, 30, 20, 20));
    view->updateellipse(90); // would leave the scene
    QCOMPARE(outline()->rect(), QRectF(50, 30, 20, 20));
    view->updateellipse(12);
    QCOMPARE(outline()->rect(), QRectF(54, 34, 12, 12));
    // The size that is passed in is not kept.
    mouse->move(view->mapFromScene(80, 80));
    QCOMPARE(outline()->rect(), QRectF(75, 75, 10, 10));
    zoomTo(2.0);
    mouse->move(view->mapFromScene(80, 80));
    view->updateellipse(40);
    QCOMPARE(outline()->rect().size(), QSizeF(20, 20));
    QVERIFY(QLineF(outline()->rect().center(), QPointF(80, 80)).length() < 1.5);
}

void TestBrushTools::sizesAreBytes()
{
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    view->SetTool(ToolKeepBrush);
    setBrushSizes(300);
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()).size(), QSize(44, 44));
    setBrushSizes(256 + 8);
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()).size(), QSize(8, 8));
    setBrushSizes(-2); // 254
    mouse->move(view->mapFromScene(100, 75), Qt::LeftButton);
    QCOMPARE(squareOf(spy.last()).size(), QSize(254, 254));
    spy.clear();
    setBrushSizes(256);
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(spy.size(), 0);
}

void TestBrushTools::sharedSize()
{
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    setBrushSizes(30);
    store->setValue("KEEPMSIZE", 16);
    store->setValue("SAMESIZECHECKED", true);
    view->updatetoolssettings();
    for (const DrawingTools tool : brushes) {
        view->SetTool(tool);
        mouse->press(view->mapFromScene(100, 75));
        QCOMPARE(squareOf(spy.last()).size(), QSize(16, 16));
    }
    store->remove("SAMESIZECHECKED"); // the canvas takes a missing key for "no"
    view->updatetoolssettings();
    mouse->press(view->mapFromScene(100, 75));
    QCOMPARE(squareOf(spy.last()).size(), QSize(30, 30));
}

void TestBrushTools::handSignals_data()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {0.3, 0.5, 1.0, 1.2, 2.0, 4.0, 8.0})
        QTest::addRow("%.1f", zoom) << zoom;
}

void TestBrushTools::handSignals()
{
    QFETCH(double, zoom);
    zoomTo(zoom);
    view->SetTool(ToolHand);
    QSignalSpy spy(view.get(), &ZelGraphicsView::HandTool);
    const auto rounded = [this](QPoint position) { // halves away from zero
        const QPointF mapped = view->mapToScene(position);
        return QPoint(static_cast<int>(std::round(mapped.x())), static_cast<int>(std::round(mapped.y())));
    };
    QPoint last = view->mapFromScene(0, 0);
    mouse->move(last);
    QCOMPARE(spy.size(), 0);
    mouse->press(last);
    QCOMPARE(spy.size(), 0);
    for (const QPoint step :
         {QPoint(1, 0), QPoint(-3, 1), QPoint(7, -9), QPoint(0, 0), QPoint(-40, -31), QPoint(13, 5)}) {
        spy.clear();
        const QPoint next = last + step;
        mouse->move(next, Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(0).toPoint(), rounded(last));
        QCOMPARE(spy.first().at(1).toPoint(), rounded(next));
        last = next;
    }
    spy.clear();
    mouse->release(last);
    mouse->move(last + QPoint(5, 5));
    QCOMPARE(spy.size(), 0);
    // The next drag starts where it is pressed, not where the last one ended.
    mouse->press(last + QPoint(20, 20));
    mouse->move(last + QPoint(21, 20), Qt::LeftButton);
    QCOMPARE(spy.first().at(0).toPoint(), rounded(last + QPoint(20, 20)));
}

void TestBrushTools::handDragsAddUp()
{
    zoomTo(1.0);
    view->SetTool(ToolHand);
    const QRectF shown = view->mapToScene(view->viewport()->rect()).boundingRect();
    auto *item = scene->addRect(0, 0, 20, 20);
    connect(view.get(), &ZelGraphicsView::HandTool, this,
            [item](QPoint from, QPoint to) { item->setPos(item->pos() + to - from); });
    QPoint position = view->mapFromScene(50, 50);
    mouse->press(position);
    for (int i = 0; i < 25; ++i)
        mouse->move(position += QPoint(1, 0), Qt::LeftButton);
    for (int i = 0; i < 14; ++i)
        mouse->move(position -= QPoint(0, 1), Qt::LeftButton);
    mouse->release(position);
    QCOMPARE(item->pos(), QPointF(25, -14));
    QCOMPARE(view->mapToScene(view->viewport()->rect()).boundingRect(), shown); // the view itself stays put
}

void TestBrushTools::handCursors()
{
    zoomTo(1.0);
    view->SetTool(ToolHand);
    QCOMPARE(view->viewport()->cursor().shape(), Qt::OpenHandCursor);
    const QPoint position = view->mapFromScene(50, 50);
    mouse->press(position);
    QCOMPARE(view->viewport()->cursor().shape(), Qt::ClosedHandCursor);
    mouse->move(position + QPoint(4, 4), Qt::LeftButton);
    QCOMPARE(view->viewport()->cursor().shape(), Qt::ClosedHandCursor);
    mouse->release(position + QPoint(4, 4));
    QCOMPARE(view->viewport()->cursor().shape(), Qt::OpenHandCursor);
}

void TestBrushTools::brushCursors()
{
    for (const DrawingTools tool : brushes) {
        view->SetTool(ToolNone);
        QCOMPARE(view->viewport()->cursor().shape(), Qt::ArrowCursor);
        view->SetTool(tool);
        QCOMPARE(view->viewport()->cursor().shape(), Qt::BlankCursor);
    }
}

void TestBrushTools::withoutAScene()
{
    view->setScene(nullptr);
    QSignalSpy brushed(view.get(), &ZelGraphicsView::AnyBrush);
    QSignalSpy dragged(view.get(), &ZelGraphicsView::HandTool);
    for (const DrawingTools tool : {ToolKeepBrush, ToolRemoveBrush, ToolHand}) {
        view->SetTool(tool);
        mouse->press({100, 100});
        mouse->move({110, 100}, Qt::LeftButton);
        mouse->release({110, 100});
        view->updateellipse(20);
    }
    QCOMPARE(brushed.size(), 0);
    QCOMPARE(dragged.size(), 0);
    // The press without a scene did not leave the button held.
    view->setScene(scene.get());
    zoomTo(1.0);
    view->SetTool(ToolKeepBrush);
    mouse->move(view->mapFromScene(50, 50));
    QCOMPARE(brushed.size(), 0);
}

void TestBrushTools::releaseEndsTheStroke()
{
    zoomTo(1.0);
    QSignalSpy spy(view.get(), &ZelGraphicsView::AnyBrush);
    view->SetTool(ToolRemoveBrush);
    const QPoint position = view->mapFromScene(80, 80);
    mouse->press(position);
    mouse->move(position + QPoint(1, 1), Qt::LeftButton);
    mouse->release(position + QPoint(1, 1));
    mouse->move(position + QPoint(9, 9));
    QCOMPARE(spy.size(), 2);
}

ORNEVO_TEST_MAIN(TestBrushTools)
#include "tst_brushtools.moc"
