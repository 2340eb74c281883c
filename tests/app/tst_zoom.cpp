// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QGraphicsRectItem>
#include <QScrollBar>

#include <cmath>
#include <optional>

using testsupport::action;
using testsupport::CanvasMouse;

class TestZoom : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void factors();
    void tenSteps();
    void noLimit();
    void thereAndBack();
    void openingFitsAgain();
    void itemsStayPut();
    void everyTool();
    void firstStepIsExact();

private:
    double scale() const { return view->transform().m11(); }
    bool isFitted() const;

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> window;
    QGraphicsView *view = nullptr;
    std::optional<CanvasMouse> mouse; ///< over it
};

namespace {

constexpr double nearly = 1e-12;

} // namespace

void TestZoom::init()
{
    QVERIFY(testpictures::blobImage(150, 100, 4).save(folder.filePath("photo.png")));
    QVERIFY(testpictures::blobImage(60, 90, 4).save(folder.filePath("high.png")));
    window = std::make_unique<MainWindow>();
    view = testsupport::canvas(*window);
    mouse.emplace(*view);
    testsupport::show(*window);
}

void TestZoom::cleanup()
{
    window.reset();
}

bool TestZoom::isFitted() const
{
    // All of the picture shows, and it leaves little of the canvas free in one direction.
    const QRectF shown = view->mapToScene(view->viewport()->rect()).boundingRect();
    const QRectF picture = view->sceneRect();
    return shown.adjusted(-1, -1, 1, 1).contains(picture) &&
           (shown.width() < picture.width() * 1.1 || shown.height() < picture.height() * 1.1);
}

void TestZoom::factors()
{
    QCOMPARE(scale(), 1.0); // without a picture as well
    action(*window, "actionZoom_In")->trigger();
    QCOMPARE(scale(), 1.2);
    QCOMPARE(view->transform().m22(), 1.2);
    view->resetTransform();
    action(*window, "actionZoom_Out")->trigger();
    QCOMPARE(scale(), 0.8333333333333334);
    QCOMPARE(view->transform().m22(), 0.8333333333333334);
}

void TestZoom::tenSteps()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    const double fitted = scale();
    for (int i = 0; i < 10; ++i)
        action(*window, "actionZoom_In")->trigger();
    QVERIFY(std::abs(scale() / fitted / std::pow(1.2, 10) - 1.0) < nearly);
    QCOMPARE(view->transform().m11(), view->transform().m22());
}

void TestZoom::noLimit()
{
    for (int i = 0; i < 60; ++i)
        action(*window, "actionZoom_In")->trigger();
    QVERIFY(std::abs(scale() / std::pow(1.2, 60) - 1.0) < 1e-9);
    for (int i = 0; i < 120; ++i)
        action(*window, "actionZoom_Out")->trigger();
    QVERIFY(std::abs(scale() * std::pow(1.2, 60) - 1.0) < 1e-9);
}

void TestZoom::thereAndBack()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    const QTransform before = view->transform();
    action(*window, "actionZoom_In")->trigger();
    action(*window, "actionZoom_Out")->trigger();
    QVERIFY(std::abs(scale() / before.m11() - 1.0) < nearly);
}

void TestZoom::openingFitsAgain()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    QVERIFY(isFitted());
    for (int i = 0; i < 5; ++i)
        action(*window, "actionZoom_In")->trigger();
    QVERIFY(!isFitted());
    testsupport::openPhoto(*window, folder.filePath("high.png"));
    QVERIFY(isFitted());
    QVERIFY(std::abs(view->transform().m11() - view->transform().m22()) < nearly);
    for (int i = 0; i < 5; ++i)
        action(*window, "actionZoom_Out")->trigger();
    QVERIFY(!isFitted());
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    QVERIFY(isFitted());
}

void TestZoom::itemsStayPut()
{
    MainWindowProbe probe(*window);
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    action(*window, "actionKeep_arker")->trigger();
    const auto newestCentre = [&] {
        mouse->draw({{75, 50}});
        return probe.imageScene().items(Qt::AscendingOrder).last()->sceneBoundingRect().center();
    };
    const QPointF first = newestCentre();
    const QRectF scene = probe.imageScene().sceneRect();
    for (int i = 0; i < 4; ++i)
        action(*window, "actionZoom_In")->trigger();
    view->centerOn(75, 50);
    const QPointF second = newestCentre(); // the tools go on working at the new zoom
    QVERIFY(QLineF(first, second).length() < 1.5);
    QCOMPARE(probe.imageScene().sceneRect(), scene);
}

void TestZoom::everyTool()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    const auto check = [this] {
        const double before = scale();
        action(*window, "actionZoom_In")->trigger();
        QVERIFY(std::abs(scale() / before - 1.2) < nearly);
        action(*window, "actionZoom_Out")->trigger();
    };
    for (const char *tool :
         {"actionKeep_arker", "action_Remove_Marker", "actionEraser", "actionBlueMarker"}) {
        action(*window, tool)->trigger();
        check();
    }
    action(*window, "actionPreview")->trigger();
    check();
    for (const char *tool : {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"}) {
        action(*window, tool)->trigger();
        check();
        QVERIFY(action(*window, tool)->isChecked());
    }
}

/// No scroll bar comes up that makes the canvas smaller, and with it the picture.
void TestZoom::firstStepIsExact()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(view->horizontalScrollBar()->maximum(), view->horizontalScrollBar()->minimum());
    QCOMPARE(view->verticalScrollBar()->maximum(), view->verticalScrollBar()->minimum());
    const double fitted = scale();
    const QSize canvas = view->viewport()->size();
    action(*window, "actionZoom_In")->trigger();
    testsupport::settle();
    QVERIFY(std::abs(scale() / fitted - 1.2) < nearly);
    action(*window, "actionZoom_Out")->trigger();
    testsupport::settle();
    QVERIFY(std::abs(scale() / fitted - 1.0) < nearly);
    QCOMPARE(view->viewport()->size(), canvas);
}

ORNEVO_TEST_MAIN(TestZoom)
#include "tst_zoom.moc"
