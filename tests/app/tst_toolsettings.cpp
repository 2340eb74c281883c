// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/SceneLayers.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QFile>
#include <QGraphicsEllipseItem>
#include <QGraphicsPixmapItem>

#include <cmath>
#include <optional>

using testsupport::action;
using testsupport::CanvasMouse;
using testsupport::status;

class TestToolSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void defaults();
    void sizeSteps_data();
    void sizeSteps();
    void keepMarkerComesFirst();
    void toolsWithoutAStep_data();
    void toolsWithoutAStep();
    void missingSharedSize();
    void wrapAround_data();
    void wrapAround();
    void intensitySteps();
    void intensityNeedsABrush();
    void intensityWrapsAround();
    void brushStepResizesTheCircle();
    void markerStepReachesTheCanvas();
    void sharedSizeReachesEveryTool();
    void restart();
    void hostileSizes_data();
    void hostileSizes();
    void hostileOpacity_data();
    void hostileOpacity();
    void hostileGaussSize_data();
    void hostileGaussSize();

private:
    void restartWindow();
    void openMarkAndMask();
    void store(const QString &key, const QVariant &value);
    QVariant stored(const QString &key);
    QRectF newestDab();

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<MainWindowProbe> probe;
    QGraphicsView *view = nullptr;
    std::optional<CanvasMouse> mouse; ///< over it
};

namespace {

constexpr int width = 120;
constexpr int height = 90;

} // namespace

void TestToolSettings::initTestCase()
{
    QVERIFY(testpictures::blobImage(width, height, 4).save(folder.filePath("photo.png")));
}

void TestToolSettings::init()
{
    QSettings().clear();
    restartWindow();
}

void TestToolSettings::cleanup()
{
    probe.reset();
    window.reset();
}

void TestToolSettings::restartWindow()
{
    probe.reset();
    window.reset(); // writes its store
    window = std::make_unique<MainWindow>();
    probe = std::make_unique<MainWindowProbe>(*window);
    view = testsupport::canvas(*window);
    mouse.emplace(*view);
    testsupport::show(*window);
}

void TestToolSettings::store(const QString &key, const QVariant &value)
{
    probe->settings().setValue(key, value);
    window->updatetoolssettings();
}

QVariant TestToolSettings::stored(const QString &key)
{
    return probe->settings().value(key);
}

void TestToolSettings::openMarkAndMask()
{
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    action(*window, "actionKeep_arker")->trigger();
    mouse->draw({{50, 45}, {60, 45}, {70, 45}});
    action(*window, "action_Remove_Marker")->trigger();
    mouse->draw({{10, 10}, {10, 80}, {110, 80}, {110, 10}});
    action(*window, "actionMask")->trigger();
    QCOMPARE(status(*window), "Ready");
}

/// The dab that one press and move over the middle lays.
QRectF TestToolSettings::newestDab()
{
    const qsizetype before = probe->imageScene().items().size();
    const QPoint position = view->mapFromScene(60, 45);
    mouse->press(position);
    mouse->move(position, Qt::LeftButton);
    mouse->release(position);
    const QList<QGraphicsItem *> items = probe->imageScene().items(Qt::AscendingOrder);
    if (items.size() != before + 1)
        return {};
    if (auto *ellipse = qgraphicsitem_cast<QGraphicsEllipseItem *>(items.last()))
        return ellipse->rect();
    if (auto *square = qgraphicsitem_cast<QGraphicsRectItem *>(items.last()))
        return square->rect();
    return {};
}

void TestToolSettings::defaults()
{
    QCOMPARE(int{probe->keepMarkerSize()}, 10);
    QCOMPARE(int{probe->removeMarkerSize()}, 10);
    QCOMPARE(int{probe->keepBrushSize()}, 10);
    QCOMPARE(int{probe->removeBrushSize()}, 10);
    QCOMPARE(int{probe->eraserSize()}, 10);
    QCOMPARE(probe->maskOpacity(), 0.6F);
    QCOMPARE(int{probe->brushIntensityKeep()}, 150);
    QCOMPARE(int{probe->brushIntensityRemove()}, 100);
    QCOMPARE(probe->smoothEdges(), true);
    QCOMPARE(probe->gaussSize(), 5);
    QVERIFY(probe->settings().allKeys().isEmpty()); // reading stores nothing
    QCOMPARE(status(*window), "");
}

void TestToolSettings::sizeSteps_data()
{
    QTest::addColumn<bool>("preview");
    QTest::addColumn<bool>("sameSize");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("key");
    const char *keepKey = "KEEPMSIZE";
    const char *shared = "Tool size is %1";
    const char *foreground = "Foreground marker size is %1";
    QTest::newRow("keep marker") << false << false << "actionKeep_arker" << foreground << keepKey;
    QTest::newRow("keep marker, shared") << false << true << "actionKeep_arker" << foreground << keepKey;
    QTest::newRow("remove marker") << false << false << "action_Remove_Marker"
                                   << "Background marker size is %1"
                                   << "REMOVEMSIZE";
    QTest::newRow("remove marker, shared") << false << true << "action_Remove_Marker" << shared << keepKey;
    QTest::newRow("eraser, shared") << false << true << "actionEraser" << shared << keepKey;
    QTest::newRow("blue marker, shared") << false << true << "actionBlueMarker" << shared << keepKey;
    QTest::newRow("no tool, shared") << false << true << "" << shared << keepKey;
    QTest::newRow("remove brush") << true << false << "actionBackground_Brush"
                                  << "Background brush size is %1"
                                  << "REMOVEBSIZE";
    QTest::newRow("keep brush") << true << false << "actionForeground_Brush"
                                << "Foreground brush size is %1"
                                << "KEEPBSIZE";
    // In the preview the Keep marker sleeps, and with it the shared size.
    QTest::newRow("remove brush, shared") << true << true << "actionBackground_Brush"
                                          << "Background brush size is %1"
                                          << "REMOVEBSIZE";
    QTest::newRow("keep brush, shared") << true << true << "actionForeground_Brush"
                                        << "Foreground brush size is %1"
                                        << "KEEPBSIZE";
}

void TestToolSettings::sizeSteps()
{
    QFETCH(bool, preview);
    QFETCH(bool, sameSize);
    QFETCH(QString, tool);
    QFETCH(QString, message);
    QFETCH(QString, key);
    store("SAMESIZECHECKED", sameSize);
    const QMap<QString, unsigned char *> members{{"KEEPMSIZE", &probe->keepMarkerSize()},
                                                 {"REMOVEMSIZE", &probe->removeMarkerSize()},
                                                 {"KEEPBSIZE", &probe->keepBrushSize()},
                                                 {"REMOVEBSIZE", &probe->removeBrushSize()},
                                                 {"ERASERMSIZE", &probe->eraserSize()}};
    if (preview)
        action(*window, "actionPreview")->trigger();
    if (!tool.isEmpty())
        action(*window, tool)->trigger();
    int expected = 10;
    for (const auto &[pressed, step] : {std::pair{Qt::Key_Right, 1},
                                        {Qt::Key_Right, 1},
                                        {Qt::Key_Left, -1},
                                        {Qt::Key_Left, -1},
                                        {Qt::Key_Left, -1}}) {
        testsupport::key(*window, pressed);
        expected += step;
        QCOMPARE(status(*window), message.arg(expected));
        QCOMPARE(stored(key).toInt(), expected);
        for (auto member = members.cbegin(); member != members.cend(); ++member)
            QCOMPARE(int{**member}, member.key() == key ? expected : 10);
    }
    QStringList keys = probe->settings().allKeys();
    keys.removeAll("SAMESIZECHECKED");
    QCOMPARE(keys, QStringList{key}); // and nothing else is written
}

void TestToolSettings::keepMarkerComesFirst()
{
    // Markers and brushes are of different groups, so one of each can be checked; the first rule wins.
    store("SAMESIZECHECKED", false);
    action(*window, "actionBackground_Brush")->setEnabled(true);
    action(*window, "actionForeground_Brush")->setEnabled(true);
    action(*window, "actionForeground_Brush")->setChecked(true);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Foreground brush size is 11");
    action(*window, "actionBackground_Brush")->setChecked(true);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Background brush size is 11");
    action(*window, "action_Remove_Marker")->setChecked(true);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Background marker size is 11");
    action(*window, "actionKeep_arker")->setChecked(true);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Foreground marker size is 11");
    action(*window, "actionKeep_arker")->setEnabled(false);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Background brush size is 12");
    action(*window, "actionBackground_Brush")->setEnabled(false);
    testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Background brush size is 12"); // checked but asleep
    QCOMPARE(int{probe->keepMarkerSize()}, 11);
    QCOMPARE(int{probe->keepBrushSize()}, 11);
}

void TestToolSettings::toolsWithoutAStep_data()
{
    QTest::addColumn<bool>("preview");
    QTest::addColumn<QString>("tool");
    QTest::newRow("no tool") << false << "";
    QTest::newRow("eraser") << false << "actionEraser";
    QTest::newRow("blue marker") << false << "actionBlueMarker";
    QTest::newRow("hand") << true << "actionHandTool";
    QTest::newRow("no tool in the preview") << true << "";
}

void TestToolSettings::toolsWithoutAStep()
{
    QFETCH(bool, preview);
    QFETCH(QString, tool);
    store("SAMESIZECHECKED", false);
    if (preview)
        action(*window, "actionPreview")->trigger();
    if (!tool.isEmpty())
        action(*window, tool)->trigger();
    const QString before = status(*window);
    for (const Qt::Key pressed : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Left})
        testsupport::key(*window, pressed);
    QCOMPARE(status(*window), before);
    QCOMPARE(probe->settings().allKeys(), QStringList{"SAMESIZECHECKED"});
}

void TestToolSettings::missingSharedSize()
{
    action(*window, "action_Remove_Marker")->trigger();
    testsupport::key(*window, Qt::Key_Right); // a missing key counts as "shared" here
    QCOMPARE(status(*window), "Tool size is 11");
    QCOMPARE(stored("KEEPMSIZE").toInt(), 11);
    QVERIFY(!probe->settings().contains("SAMESIZECHECKED"));
    store("SAMESIZECHECKED", false);
    testsupport::key(*window, Qt::Key_Left);
    QCOMPARE(status(*window), "Background marker size is 9");
    QCOMPARE(stored("REMOVEMSIZE").toInt(), 9);
}

void TestToolSettings::wrapAround_data()
{
    QTest::addColumn<bool>("preview");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("message");
    QTest::newRow("keep") << false << "actionKeep_arker"
                          << "KEEPMSIZE"
                          << "Foreground marker size is %1";
    QTest::newRow("remove") << false << "action_Remove_Marker"
                            << "REMOVEMSIZE"
                            << "Background marker size is %1";
    QTest::newRow("keep brush") << true << "actionForeground_Brush"
                                << "KEEPBSIZE"
                                << "Foreground brush size is %1";
    QTest::newRow("remove brush") << true << "actionBackground_Brush"
                                  << "REMOVEBSIZE"
                                  << "Background brush size is %1";
}

void TestToolSettings::wrapAround()
{
    QFETCH(bool, preview);
    QFETCH(QString, tool);
    QFETCH(QString, key);
    QFETCH(QString, message);
    store("SAMESIZECHECKED", false);
    store(key, 1);
    if (preview)
        action(*window, "actionPreview")->trigger();
    action(*window, tool)->trigger();
    for (const int expected : {0, 255, 254}) {
        testsupport::key(*window, Qt::Key_Left);
        QCOMPARE(status(*window), message.arg(expected));
        QCOMPARE(stored(key).toInt(), expected);
    }
    for (const int expected : {255, 0, 1}) {
        testsupport::key(*window, Qt::Key_Right);
        QCOMPARE(status(*window), message.arg(expected));
        QCOMPARE(stored(key).toInt(), expected);
    }
}

void TestToolSettings::intensitySteps()
{
    action(*window, "actionPreview")->trigger();
    action(*window, "actionBackground_Brush")->trigger();
    testsupport::key(*window, Qt::Key_Up);
    QCOMPARE(status(*window), "Background brush intensity is 101");
    QCOMPARE(stored("REMOVEBINTEN").toInt(), 101);
    testsupport::key(*window, Qt::Key_Down);
    testsupport::key(*window, Qt::Key_Down);
    QCOMPARE(status(*window), "Background brush intensity is 99");
    QCOMPARE(stored("REMOVEBINTEN").toInt(), 99);
    QVERIFY(!probe->settings().contains("KEEPBINTEN"));
    action(*window, "actionForeground_Brush")->trigger();
    testsupport::key(*window, Qt::Key_Down);
    QCOMPARE(status(*window), "Foreground brush intensity is 149");
    QCOMPARE(stored("KEEPBINTEN").toInt(), 149);
    QCOMPARE(int{probe->brushIntensityKeep()}, 149);
    QCOMPARE(int{probe->brushIntensityRemove()}, 99);
    QCOMPARE(probe->settings().allKeys().size(), 2);
}

void TestToolSettings::intensityNeedsABrush()
{
    for (const char *tool :
         {"actionKeep_arker", "action_Remove_Marker", "actionEraser", "actionBlueMarker"}) {
        action(*window, tool)->trigger();
        testsupport::key(*window, Qt::Key_Up);
        testsupport::key(*window, Qt::Key_Down);
        QCOMPARE(status(*window), "");
    }
    action(*window, "actionForeground_Brush")->setChecked(true); // checked, but asleep outside the preview
    testsupport::key(*window, Qt::Key_Up);
    QCOMPARE(status(*window), "");
    QVERIFY(probe->settings().allKeys().isEmpty());
}

void TestToolSettings::intensityWrapsAround()
{
    store("KEEPBINTEN", 255);
    store("REMOVEBINTEN", 0);
    action(*window, "actionPreview")->trigger();
    action(*window, "actionForeground_Brush")->trigger();
    testsupport::key(*window, Qt::Key_Up);
    QCOMPARE(status(*window), "Foreground brush intensity is 0");
    QCOMPARE(stored("KEEPBINTEN").toInt(), 0);
    action(*window, "actionBackground_Brush")->trigger();
    testsupport::key(*window, Qt::Key_Down);
    QCOMPARE(status(*window), "Background brush intensity is 255");
    QCOMPARE(stored("REMOVEBINTEN").toInt(), 255);
}

void TestToolSettings::brushStepResizesTheCircle()
{
    store("SAMESIZECHECKED", false);
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    action(*window, "actionPreview")->trigger();
    testsupport::settle();
    view->resetTransform();
    view->centerOn(width / 2, height / 2);
    for (const char *tool : {"actionForeground_Brush", "actionBackground_Brush"}) {
        action(*window, tool)->trigger();
        mouse->move(view->mapFromScene(60, 45));
        const auto circle = [this]() -> QRectF {
            for (QGraphicsItem *item : probe->previewScene().items())
                if (auto *ellipse = qgraphicsitem_cast<QGraphicsEllipseItem *>(item))
                    return ellipse->rect();
            return {};
        };
        QCOMPARE(circle(), QRectF(55, 40, 10, 10));
        testsupport::key(*window, Qt::Key_Right);
        testsupport::key(*window, Qt::Key_Right);
        QCOMPARE(circle(), QRectF(54, 39, 12, 12)); // at once, without a move
        mouse->move(view->mapFromScene(60, 45));
        QCOMPARE(circle(), QRectF(54, 39, 12, 12)); // and the canvas knows the new size
        for (int i = 0; i < 6; ++i)
            testsupport::key(*window, Qt::Key_Left);
        QCOMPARE(circle(), QRectF(57, 42, 6, 6));
    }
}

void TestToolSettings::markerStepReachesTheCanvas()
{
    store("SAMESIZECHECKED", false);
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    view->resetTransform();
    view->centerOn(width / 2, height / 2);
    for (const char *tool : {"actionKeep_arker", "action_Remove_Marker"}) {
        action(*window, tool)->trigger();
        const double before = newestDab().width();
        QVERIFY(before > 0);
        for (int i = 0; i < 6; ++i)
            testsupport::key(*window, Qt::Key_Right);
        QCOMPARE(newestDab().width(), before + 6);
    }
}

void TestToolSettings::sharedSizeReachesEveryTool()
{
    store("SAMESIZECHECKED", true);
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    action(*window, "action_Remove_Marker")->trigger();
    for (int i = 0; i < 4; ++i)
        testsupport::key(*window, Qt::Key_Right);
    QCOMPARE(status(*window), "Tool size is 14");
    QCOMPARE(newestDab().width(), 14.0);
    QCOMPARE(int{probe->removeMarkerSize()}, 10); // the window's own copy is not shared
    QVERIFY(!probe->settings().contains("REMOVEMSIZE"));
}

void TestToolSettings::restart()
{
    store("SAMESIZECHECKED", false);
    action(*window, "actionKeep_arker")->trigger();
    testsupport::key(*window, Qt::Key_Right);
    action(*window, "action_Remove_Marker")->trigger();
    testsupport::key(*window, Qt::Key_Left);
    action(*window, "actionPreview")->trigger();
    action(*window, "actionForeground_Brush")->trigger();
    testsupport::key(*window, Qt::Key_Up);
    testsupport::key(*window, Qt::Key_Right);
    const QString file = probe->settings().fileName();
    restartWindow();
    QFile text(file); // what another process would see
    QVERIFY(text.open(QIODevice::ReadOnly));
    const QByteArray content = text.readAll();
    for (const char *line :
         {"KEEPMSIZE=11", "REMOVEMSIZE=9", "KEEPBINTEN=151", "KEEPBSIZE=11", "SAMESIZECHECKED=false"})
        QVERIFY2(content.contains(line), content.constData());
    QCOMPARE(int{probe->keepMarkerSize()}, 11);
    QCOMPARE(int{probe->removeMarkerSize()}, 9);
    QCOMPARE(int{probe->keepBrushSize()}, 11);
    QCOMPARE(int{probe->removeBrushSize()}, 10);
    QCOMPARE(int{probe->brushIntensityKeep()}, 151);
    QVERIFY(file.contains("Tirelo software"));
    QVERIFY(file.contains("Ornevo Pro 2.7 for Mac OS X"));
}

void TestToolSettings::hostileSizes_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("text") << "large" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("300") << "300" << 44;
    QTest::newRow("256") << "256" << 0;
    QTest::newRow("negative") << "-1" << 255;
    QTest::newRow("very negative") << "-2147483648" << 0;
    QTest::newRow("too large for a number") << "99999999999999999999" << 0;
}

void TestToolSettings::hostileSizes()
{
    QFETCH(QString, value);
    QFETCH(int, expected);
    probe->settings().setValue("SAMESIZECHECKED", false);
    for (const char *key : {"KEEPMSIZE", "REMOVEMSIZE", "KEEPBSIZE", "REMOVEBSIZE", "ERASERMSIZE",
                            "BLUEMSIZE", "KEEPBINTEN", "REMOVEBINTEN"})
        probe->settings().setValue(key, value);
    restartWindow();
    for (const unsigned char member : {probe->keepMarkerSize(), probe->removeMarkerSize(),
                                       probe->keepBrushSize(), probe->removeBrushSize(), probe->eraserSize(),
                                       probe->brushIntensityKeep(), probe->brushIntensityRemove()})
        QCOMPARE(int{member}, expected);
    openMarkAndMask();
    action(*window, "actionEraser")->trigger();
    mouse->press(view->mapFromScene(60, 45));
    mouse->release(view->mapFromScene(60, 45));
    action(*window, "actionPreview")->trigger();
    for (const char *brush : {"actionForeground_Brush", "actionBackground_Brush"}) {
        action(*window, brush)->trigger();
        mouse->draw({{40, 40}, {60, 45}, {70, 50}});
        QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
    }
    QCOMPARE(probe->previewImage().size(), QSize(width, height));
}

void TestToolSettings::hostileOpacity_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<double>("shown");
    QTest::addColumn<double>("blueDab");
    QTest::newRow("half") << "0.5" << 0.5 << 0.05;
    QTest::newRow("below") << "-3" << 0.0 << 0.0;
    QTest::newRow("above") << "17" << 1.0 << 1.0;
    QTest::newRow("somewhat above") << "4" << 1.0 << 0.4;
    QTest::newRow("text") << "thick" << 0.0 << 0.0;
    QTest::newRow("infinite") << "inf" << 1.0 << 1.0;
    QTest::newRow("nan") << "nan" << 0.0 << 0.0;
}

void TestToolSettings::hostileOpacity()
{
    QFETCH(QString, value);
    QFETCH(double, shown);
    QFETCH(double, blueDab);
    probe->settings().setValue("MOPACITY", value);
    probe->settings().setValue("SAMESIZECHECKED", false);
    restartWindow();
    openMarkAndMask();
    QVERIFY(probe->maskItem() != nullptr);
    const double opacity = probe->maskItem()->opacity();
    QVERIFY2(std::abs(opacity - shown) < 1e-6, qPrintable(QString::number(opacity)));
    const QList<QGraphicsItem *> before = probe->imageScene().items();
    action(*window, "actionBlueMarker")->trigger();
    mouse->draw({{40, 40}, {60, 45}});
    int dabs = 0;
    for (const QGraphicsItem *item : probe->imageScene().items()) {
        if (before.contains(item) || item->zValue() != layers::dabZ)
            continue;
        ++dabs;
        QVERIFY2(std::abs(item->opacity() - blueDab) < 1e-6, qPrintable(QString::number(item->opacity())));
    }
    QCOMPARE(dabs, 2);
}

void TestToolSettings::hostileGaussSize_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("expected");
    for (const int size :
         {-2147483647 - 1, -5, -1, 0, 1, 2, 3, 4, 5, 6, 15, 89, 90, 91, 1000, 65537, 2147483647})
        QTest::addRow("%d", size) << QString::number(size) << size;
    QTest::newRow("text") << "soft" << 0;
    QTest::newRow("too large for a number") << "99999999999999999999" << 0;
}

void TestToolSettings::hostileGaussSize()
{
    QFETCH(QString, value);
    QFETCH(int, expected);
    probe->settings().setValue("GOUSSIZE", value);
    restartWindow();
    QCOMPARE(probe->gaussSize(), expected);
    openMarkAndMask();
    action(*window, "actionPreview")->trigger();
    QCOMPARE(status(*window), "Ready");
    // A kernel wider than the picture smooths nothing, so what it does is known without computing it.
    const bool smooths = expected < 1000;
    const int size = std::max(expected, -5);
    const QImage mask = reference::maskImage(probe->outmask(), width, height, smooths, size);
    QVERIFY(!probe->outmask().isEmpty());
    QCOMPARE(probe->maskImage(), mask);
    QCOMPARE(probe->previewImage(), reference::cutOut(probe->imagePixmap(), mask));
}

ORNEVO_TEST_MAIN(TestToolSettings)
#include "tst_toolsettings.moc"
