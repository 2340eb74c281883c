// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/ImageReferences.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"
#include "tests/support/WindowUnderTest.h"

#include <QGraphicsPixmapItem>
#include <QSignalSpy>

using testsupport::MessageLog;
using testsupport::WindowUnderTest;

namespace {

constexpr int width = 64;
constexpr int height = 48;

QImage rgb(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
}

/// What the markers on the scene say, read independently.
QList<reference::Marker> markersOn(const QGraphicsScene &scene)
{
    QList<reference::Marker> markers;
    for (const QGraphicsItem *item : scene.items()) {
        if (const auto *square = qgraphicsitem_cast<const QGraphicsRectItem *>(item))
            markers.append({3, square->pen().color(), square->rect()});
        else if (const auto *disc = qgraphicsitem_cast<const QGraphicsEllipseItem *>(item))
            markers.append({4, disc->pen().color(), disc->rect()});
    }
    return markers;
}

} // namespace

class TestMask : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void overlayOfPaintedMarkers();
    void statusTextsAndProgress();
    void diagnostics();
    void orderOnTheScene();
    void twiceGivesOneOverlay();
    void leavesTheZoomAlone();
    void opacityComesFromTheSettings();
    void withoutAPicture();
    void withoutAPictureTheOldResultStays();
    void withoutSeeds();
    void everyRectangleKeeps_data();
    void everyRectangleKeeps();
    void onlyTheRectangleOfAnItemCounts();
    void heightIsNotRead();
    void blueIsIgnored_data();
    void blueIsIgnored();
    void otherItemsAreIgnored();
    void squaresAtTheEdges_data();
    void squaresAtTheEdges();
    void undoAndEraserTakeSeedsAway();
    void previewDropsTheOverlay();
    void overlayMayBeGone();

private:
    /// The object's pixels that the markers on the scene ask for.
    QList<int> expected(WindowUnderTest &t) const
    {
        const reference::Seeds seeds =
            reference::collectSeeds(markersOn(t.probe.imageScene()), width, height);
        QList<int> object;
        reference::watershed(m_picture, seeds.keep, seeds.remove, object, reference::edgeMap(m_picture));
        return object;
    }
    QString file() const { return m_folder.filePath("picture.png"); }

    QTemporaryDir m_folder;
    QImage m_picture = testpictures::blobImage(width, height, 3);
};

void TestMask::initTestCase()
{
    QVERIFY(m_picture.save(file()));
}

void TestMask::overlayOfPaintedMarkers()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionKeep_arker");
    t.mouse.stroke({t.at(20, 10), t.at(24, 20), t.at(28, 30)});
    t.trigger("action_Remove_Marker");
    t.mouse.stroke({t.at(50, 5), t.at(50, 25)});
    t.trigger("actionBlueMarker");
    t.mouse.stroke({t.at(10, 40)});
    t.trigger("actionKeep_arker");
    QCOMPARE(t.probe.imageScene().items().size(), 7);
    const QList<int> object = expected(t);
    QVERIFY(!object.isEmpty() && object.size() < width * height);
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), object);
    const QGraphicsPixmapItem *overlay = t.probe.maskItem();
    QVERIFY(overlay != nullptr);
    QCOMPARE(rgb(overlay->pixmap()), reference::overlayImage(object, width, height));
    QVERIFY(!overlay->pixmap().hasAlphaChannel());
    QCOMPARE(overlay->scene(), &t.probe.imageScene());
    QCOMPARE(overlay->zValue(), 7.0);
    QCOMPARE(overlay->pos(), QPointF());
    QCOMPARE(overlay->offset(), QPointF());
    QVERIFY(overlay->isVisible());
    QCOMPARE(overlay->opacity(), double(0.6F));
}

void TestMask::statusTextsAndProgress()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 20);
    t.statusTexts.clear();
    QSignalSpy progress(&t.progressBar(), &QProgressBar::valueChanged);
    t.trigger("actionMask");
    QCOMPARE(t.statusTexts, QStringList({"Isolating object", "Displaying image", "Ready"}));
    QVERIFY(t.progressBar().isHidden());
    t.statusTexts.clear();
    t.window.updatemask();
    QCOMPARE(t.statusTexts, QStringList({"Isolating object"})); // the caller replaces it
}

void TestMask::diagnostics()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 20);
    t.trigger("actionMask");
    const auto count = t.probe.outmask().size();
    QVERIFY(count > 0);
    MessageLog log;
    t.trigger("actionMask");
    QCOMPARE(log.taken(), QStringList({"outmask size before watd is 0",
                                       QString("outmask size after watd is %1").arg(count)}));
}

void TestMask::orderOnTheScene()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.trigger("actionMask");
    t.dab("action_Remove_Marker", 50, 20);
    const auto items = t.probe.imageScene().items();
    QList<int> types;
    for (const QGraphicsItem *item : items)
        types << item->type();
    QCOMPARE(types, QList<int>({4, 3, 7, 7}));
    QCOMPARE(items[2], t.probe.maskItem());
    QCOMPARE(items[3]->zValue(), 0.0);
}

void TestMask::twiceGivesOneOverlay()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 20);
    for (int i = 0; i < 3; ++i) {
        t.trigger("actionMask");
        QCOMPARE(t.probe.imageScene().items().size(), 4);
        QCOMPARE(t.probe.maskItem()->scene(), &t.probe.imageScene());
    }
}

void TestMask::leavesTheZoomAlone()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 20);
    for (int i = 0; i < 8; ++i)
        t.trigger("actionZoom_In");
    testsupport::settle();
    const QTransform zoom = t.view.transform();
    // The progress bar comes and goes with every mask; the canvas must not give way to it.
    for (int i = 0; i < 3; ++i) {
        t.trigger("actionMask");
        testsupport::settle();
        QCOMPARE(t.view.transform(), zoom);
    }
}

void TestMask::opacityComesFromTheSettings()
{
    QSettings().setValue("MOPACITY", "0");
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionMask");
    QVERIFY(t.probe.maskItem() != nullptr);
    QCOMPARE(t.probe.maskItem()->opacity(), 0.0);
    // Not to be seen, and yet the topmost picture.
    QCOMPARE(t.probe.imageScene().items().first(), t.probe.maskItem());
    QSettings().setValue("MOPACITY", "0.25");
    t.probe.settings().sync();
    t.window.updatetoolssettings();
    t.trigger("actionMask");
    QCOMPARE(t.probe.maskItem()->opacity(), 0.25);
}

void TestMask::withoutAPicture()
{
    WindowUnderTest t;
    MessageLog log;
    t.trigger("actionMask");
    QCOMPARE(log.taken(), QStringList());
    QCOMPARE(t.statusTexts, QStringList({"Displaying image", "Ready"}));
    QVERIFY(t.probe.maskItem() != nullptr);
    QVERIFY(t.probe.maskItem()->pixmap().isNull());
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    QCOMPARE(t.probe.outmask(), QList<int>());
    t.trigger("actionMask");
    QCOMPARE(t.probe.imageScene().items().size(), 1);
}

void TestMask::withoutAPictureTheOldResultStays()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 20);
    t.trigger("actionMask");
    const QList<int> before = t.probe.outmask();
    t.probe.imageScene().clear();
    t.statusTexts.clear();
    t.window.updatemask();
    QCOMPARE(t.probe.outmask(), before);
    QCOMPARE(t.statusTexts, QStringList());
    QCOMPARE(t.probe.maskItem(), nullptr);
}

void TestMask::withoutSeeds()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), expected(t));
    t.dab("actionKeep_arker", 20, 20);
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), expected(t));
    t.probe.undoStack().undo();
    t.dab("action_Remove_Marker", 20, 20);
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), expected(t));
}

void TestMask::everyRectangleKeeps_data()
{
    QTest::addColumn<QColor>("pen");
    QTest::newRow("green") << QColor(50, 255, 50);
    QTest::newRow("red of the Remove marker") << QColor(255, 10, 10);
    QTest::newRow("blue of the Blue marker") << QColor(10, 10, 255);
    QTest::newRow("black") << QColor(0, 0, 0);
    QTest::newRow("none at all") << QColor();
    QTest::newRow("transparent") << QColor(0, 0, 0, 0);
}

void TestMask::everyRectangleKeeps()
{
    QFETCH(QColor, pen);
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("action_Remove_Marker", 50, 20);
    t.probe.imageScene().addRect(20, 20, 10, 10, QPen(QColor(50, 255, 50)));
    t.trigger("actionMask");
    const QList<int> green = t.probe.outmask();
    QVERIFY(!green.isEmpty());
    for (QGraphicsItem *item : t.probe.imageScene().items())
        if (item->type() == QGraphicsRectItem::Type)
            delete item;
    t.probe.imageScene().addRect(20, 20, 10, 10, QPen(pen), QBrush(Qt::white));
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), green);
    QCOMPARE(t.probe.outmask(), expected(t));
}

void TestMask::onlyTheRectangleOfAnItemCounts()
{
    WindowUnderTest t;
    t.openPicture(file());
    auto *keep = t.probe.imageScene().addRect(20, 20, 10, 10);
    auto *remove = t.probe.imageScene().addEllipse(50, 20, 8, 8, QPen(QColor(255, 10, 10)));
    t.trigger("actionMask");
    const QList<int> plain = t.probe.outmask();
    QCOMPARE(plain, expected(t));
    for (QGraphicsItem *item : QList<QGraphicsItem *>{keep, remove}) {
        item->setPos(-17, 9);
        item->setRotation(30);
        item->setScale(2);
        item->setOpacity(0.1);
        item->setZValue(-5);
    }
    keep->hide();
    t.trigger("actionMask");
    QList<int> moved = t.probe.outmask();
    QCOMPARE(moved, plain);
}

void TestMask::heightIsNotRead()
{
    WindowUnderTest t;
    t.openPicture(file());
    auto *keep = t.probe.imageScene().addRect(20, 20, 10, 10);
    t.dab("action_Remove_Marker", 50, 20);
    t.trigger("actionMask");
    const QList<int> square = t.probe.outmask();
    keep->setRect(20, 20, 10, 1);
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), square);
    keep->setRect(20.9, 20.9, 10.9, 40); // truncated to whole numbers
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), square);
    keep->setRect(20, 20, 11, 10);
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), expected(t));
}

void TestMask::blueIsIgnored_data()
{
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<bool>("counts");
    QTest::newRow("blue") << QColor(10, 10, 255, 255) << false;
    QTest::newRow("nearly blue") << QColor(10, 10, 254, 255) << true;
    QTest::newRow("translucent blue") << QColor(10, 10, 255, 254) << true;
    QTest::newRow("red") << QColor(255, 10, 10) << true;
    QTest::newRow("green") << QColor(50, 255, 50) << true;
    QTest::newRow("default pen") << QPen().color() << true;
}

void TestMask::blueIsIgnored()
{
    QFETCH(QColor, pen);
    QFETCH(bool, counts);
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 5);
    t.trigger("actionMask");
    const QList<int> without = t.probe.outmask();
    auto *disc = t.probe.imageScene().addEllipse(22, 22, 3, 3, QPen(pen), QBrush(Qt::blue));
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), expected(t));
    QCOMPARE(t.probe.outmask() != without, counts);
    delete disc;
}

void TestMask::otherItemsAreIgnored()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 50, 5);
    t.trigger("actionMask");
    const QList<int> without = t.probe.outmask();
    t.probe.imageScene().addLine(0, 0, 60, 40, QPen(QColor(50, 255, 50)));
    t.probe.imageScene().addPath(QPainterPath(QPointF(5, 5)), QPen(QColor(255, 10, 10)));
    t.probe.imageScene().addSimpleText("text");
    t.probe.imageScene().addPolygon(QPolygonF(QRectF(1, 1, 30, 30)), QPen(QColor(50, 255, 50)));
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), without);
}

void TestMask::squaresAtTheEdges_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("past the right edge") << QRectF(width - 4, 20, 10, 10);
    QTest::newRow("past the lower edge") << QRectF(20, height - 3, 10, 10);
    QTest::newRow("past the corner") << QRectF(width - 2, height - 2, 255, 255);
    QTest::newRow("left of the picture") << QRectF(-3, 20, 10, 10);
    QTest::newRow("left of the first row") << QRectF(-3, 0, 10, 10);
    QTest::newRow("above the picture") << QRectF(20, -4, 10, 10);
    QTest::newRow("far above and left") << QRectF(-200, -200, 255, 255);
    QTest::newRow("begins at the right edge") << QRectF(width, 20, 10, 10);
    QTest::newRow("begins at the lower edge") << QRectF(20, height, 10, 10);
    QTest::newRow("beyond") << QRectF(500, 500, 10, 10);
    QTest::newRow("no side") << QRectF(20, 20, 0, 10);
    QTest::newRow("side below one") << QRectF(20, 20, 0.9, 10);
    QTest::newRow("between 0 and -1") << QRectF(-0.9, -0.9, 5.9, 5);
    QTest::newRow("larger than the picture") << QRectF(0, 0, 255, 255);
}

void TestMask::squaresAtTheEdges()
{
    QFETCH(QRectF, rect);
    for (const bool keep : {true, false}) {
        WindowUnderTest t;
        t.openPicture(file());
        t.dab("actionKeep_arker", 20, 20);
        t.dab("action_Remove_Marker", 50, 5);
        if (keep)
            t.probe.imageScene().addRect(rect, QPen(QColor(50, 255, 50)));
        else
            t.probe.imageScene().addEllipse(rect, QPen(QColor(255, 10, 10)));
        t.trigger("actionMask");
        QCOMPARE(t.probe.outmask(), expected(t));
        QCOMPARE(rgb(t.probe.maskItem()->pixmap()),
                 reference::overlayImage(t.probe.outmask(), width, height));
    }
}

void TestMask::undoAndEraserTakeSeedsAway()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("action_Remove_Marker", 50, 5);
    t.dab("actionKeep_arker", 20, 20);
    t.trigger("actionMask");
    const QList<int> one = t.probe.outmask();
    t.dab("actionKeep_arker", 40, 38);
    t.trigger("actionMask");
    QVERIFY(t.probe.outmask() != one);
    t.probe.undoStack().undo();
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), one);
    t.dab("actionKeep_arker", 40, 38);
    t.trigger("actionEraser");
    t.mouse.click(t.at(44, 42));
    t.trigger("actionMask");
    QCOMPARE(t.probe.outmask(), one);
}

void TestMask::previewDropsTheOverlay()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.dab("action_Remove_Marker", 50, 5);
    t.dab("actionKeep_arker", 20, 20);
    t.trigger("actionMask");
    QCOMPARE(t.probe.imageScene().items().size(), 4);
    t.action("actionPreview").setChecked(true);
    QCOMPARE(t.probe.maskItem(), nullptr);
    QCOMPARE(t.probe.imageScene().items().size(), 3);
}

void TestMask::overlayMayBeGone()
{
    WindowUnderTest t;
    t.openPicture(file());
    t.trigger("actionMask");
    delete t.probe.maskItem();
    QCOMPARE(t.probe.maskItem(), nullptr);
    t.trigger("actionMask");
    QVERIFY(t.probe.maskItem() != nullptr);
    t.probe.imageScene().clear();
    t.trigger("actionMask");
    QCOMPARE(t.probe.imageScene().items().size(), 1);
}

ORNEVO_TEST_MAIN(TestMask)
#include "tst_mask.moc"
