// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"
#include "canvas/PictureItem.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/PaintedArea.h"
#include "tests/support/TestMain.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QScreen>
#include <QUndoStack>

#include <cstdlib>

using testsupport::PaintedArea;

namespace {

constexpr QSize pictureSize(900, 700);

// Qt's drawing of a scaled picture counts in 1 / 65536 of a pixel from where it begins: begun elsewhere, it
// is a hundredth of a pixel off after the 640 of the view, which makes so much from black to white.
constexpr int roundingOfParts = 3;

/// What stands on the screen now, without anything being painted for it.
QImage shownBy(QWidget &widget)
{
    return widget.screen()->grabWindow(widget.winId()).toImage().convertToFormat(QImage::Format_RGB32);
}

/// What would stand there if everything were painted.
QImage wantedBy(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A background and a cut-out over it in a window.
struct ShownPicture
{
    explicit ShownPicture(qreal scale)
        : image(testpictures::randomArgbImage(pictureSize.width(), pictureSize.height(), 7)),
          view(&scene),
          painted(view.viewport())
    {
        scene.addItem(new canvas::PictureItem(QPixmap::fromImage(testpictures::randomImage(900, 700, 8))));
        item = new canvas::PictureItem(QPixmap::fromImage(image, Qt::NoOpaqueDetection));
        scene.addItem(item);
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(640, 480);
        view.scale(scale, scale);
        view.show();
    }

    bool waitUntilShown()
    {
        if (!QTest::qWaitForWindowExposed(&view))
            return false;
        if (!QTest::qWaitFor([this] { return onScreen() == expected(); }))
            return false;
        painted.take();
        return true;
    }

    QImage onScreen() { return shownBy(view); }
    QImage expected() { return wantedBy(view); }

    void whiten(const QRect &area)
    {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                image.setPixel(x, y, 0xFFFFFFFF);
    }

    QImage image;
    QGraphicsScene scene;
    QGraphicsView view;
    PaintedArea painted;
    canvas::PictureItem *item = nullptr;
};

class CountedPicture : public canvas::PictureItem
{
public:
    using PictureItem::PictureItem;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        ++paintings;
        PictureItem::paint(painter, option, widget);
    }
    int paintings = 0;
};

/// The upper left part of the view of a photo.
QImage shownAlone(const QImage &photo, qreal scale, QSize size)
{
    QGraphicsScene scene;
    scene.addItem(new canvas::PictureItem(QPixmap::fromImage(photo)));
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view.resize(size);
    view.scale(scale, scale);
    return wantedBy(view);
}

int largestDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < 4 * a.width(); ++x)
            largest = std::max(largest, std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
    return largest;
}

} // namespace

/// The item that shows a large picture and repaints little of it.
class TestPictureItem : public QObject
{
    Q_OBJECT

private slots:
    void backgroundIsPaintedOnce_data();
    void backgroundIsPaintedOnce();
    void mipmapPixelsAreMeans_data()
    {
        QTest::addColumn<int>("factor");
        QTest::newRow("half") << 2;
        QTest::newRow("quarter") << 4;
        QTest::newRow("eighth") << 8;
    }

    /// Noise, of which every pixel that is left out would show.
    void mipmapPixelsAreMeans()
    {
        QFETCH(int, factor);
        const QImage photo =
            testpictures::randomImage(896, 704, 5); // the last mean is one of a whole square, too
        QImage means(photo.size() / factor, QImage::Format_RGB32);
        for (int y = 0; y < means.height(); ++y) {
            for (int x = 0; x < means.width(); ++x) {
                int red = 0, green = 0, blue = 0;
                for (int i = 0; i < factor * factor; ++i) {
                    const QRgb pixel = photo.pixel(x * factor + i % factor, y * factor + i / factor);
                    red += qRed(pixel);
                    green += qGreen(pixel);
                    blue += qBlue(pixel);
                }
                const int count = factor * factor;
                means.setPixel(x, y, qRgb(red / count, green / count, blue / count));
            }
        }
        // Each mipmap level rounds, and the drawing once more.
        const int difference = largestDifference(shownAlone(photo, 1.0 / factor, means.size()), means);
        QVERIFY2(difference <= 4, qPrintable(QString::number(difference)));
    }

    /// Whoever zooms in wants to see the pixels.
    void enlargedPixelsAreSharp()
    {
        const QImage photo = testpictures::randomImage(60, 40, 6);
        QImage squares(photo.size() * 4, QImage::Format_RGB32);
        for (int y = 0; y < squares.height(); ++y)
            for (int x = 0; x < squares.width(); ++x)
                squares.setPixel(x, y, photo.pixel(x / 4, y / 4));
        QCOMPARE(largestDifference(shownAlone(photo, 4.0, squares.size()), squares), 0);
    }

    void changeRepaintsOnlyItself_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<QPoint>("position");
        for (const qreal scale : {0.13, 0.25, 0.4, 0.5, 0.7, 1.0, 1.7, 4.0})
            for (const QPoint position : {QPoint(), QPoint(13, -9)})
                QTest::addRow("zoom %.2f, at %d", scale, position.x()) << scale << position;
    }

    void changeRepaintsOnlyItself()
    {
        QFETCH(qreal, scale);
        QFETCH(QPoint, position);
        ShownPicture shown(scale);
        shown.item->setPos(position);
        QVERIFY(shown.waitUntilShown());
        const QImage before = shown.onScreen();
        const QPoint centre = shown.view.mapToScene(320, 240).toPoint() - position;
        const QRect area = QRect(centre, QSize(30, 20)).intersected(shown.image.rect());
        QVERIFY(!area.isEmpty());

        shown.whiten(area);
        canvas::updatePixmap(*shown.item, shown.image, area);
        QTRY_VERIFY(shown.onScreen() != before);

        const QRect seen = shown.view.mapFromScene(QRectF(area.translated(position))).boundingRect();
        const QRect painted = shown.painted.take().boundingRect();
        QVERIFY(painted.contains(seen.intersected(shown.view.viewport()->rect())));
        QVERIFY2(seen.adjusted(-10, -10, 10, 10).contains(painted),
                 qPrintable(QStringLiteral("%1 x %2 repainted").arg(painted.width()).arg(painted.height())));
        QVERIFY(largestDifference(shown.onScreen(), shown.expected()) <= roundingOfParts);
    }

    /// A command and its undo paint no more than a change by itself.
    void commandRepaintsOnlyItsArea()
    {
        ShownPicture shown(0.5);
        QVERIFY(shown.waitUntilShown());
        const QImage before = shown.onScreen();
        const QRect area(200, 150, 40, 30);
        const QImage old = shown.image.copy(area);
        shown.whiten(area);
        canvas::updatePixmap(*shown.item, shown.image, area);
        QPixmap after = shown.item->pixmap();
        QUndoStack stack;
        stack.push(new CBrushCommand(shown.item, area, &after, &shown.image, old));
        QTRY_VERIFY(shown.onScreen() != before);
        const QRect painted = shown.painted.take().boundingRect();
        QVERIFY(!painted.isEmpty());
        QVERIFY(painted.width() < 60 && painted.height() < 60);

        stack.undo();
        QTRY_VERIFY(largestDifference(shown.onScreen(), before) <= roundingOfParts);
        QVERIFY(!shown.painted.take().isEmpty());
    }

    /// What else was due when the change came is painted all the same.
    void changeDoesNotSwallowOtherRepaints()
    {
        ShownPicture shown(1.0);
        QVERIFY(shown.waitUntilShown());
        shown.item->setPos(5, 5);
        const QRect area(100, 100, 10, 10);
        shown.whiten(area);
        canvas::updatePixmap(*shown.item, shown.image, area);
        QTRY_COMPARE(shown.onScreen(), shown.expected());

        shown.whiten(area.translated(40, 0));
        canvas::updatePixmap(*shown.item, shown.image, area.translated(40, 0));
        shown.item->setOpacity(0.5);
        QTRY_COMPARE(shown.onScreen(), shown.expected());
    }

    /// Whoever presses a button asks every item at that place for its shape.
    void shapeIsNotMadeFromThePixels()
    {
        QImage holes(64, 48, QImage::Format_ARGB32_Premultiplied);
        holes.fill(Qt::transparent);
        for (int x = 0; x < holes.width(); x += 2)
            holes.setPixel(x, 20, 0xFFFF0000);
        const canvas::PictureItem item(QPixmap::fromImage(holes));
        QPainterPath all;
        all.addRect(QRectF(holes.rect()));
        QCOMPARE(item.shape(), all);
        QVERIFY(item.contains(QPointF(31, 5)));
    }

    void everyViewOfTheSceneFollows()
    {
        ShownPicture shown(1.0);
        QGraphicsView other(&shown.scene);
        other.setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
        other.scale(0.3, 0.3);
        other.resize(300, 200);
        other.move(800, 600); // a window that covers another one is grabbed with it
        other.show();
        QVERIFY(shown.waitUntilShown());
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QTRY_COMPARE(shownBy(other), wantedBy(other));
        const QRect area(300, 300, 50, 50);
        shown.whiten(area);
        canvas::updatePixmap(*shown.item, shown.image, area);
        QTRY_COMPARE(shownBy(other), wantedBy(other));
        QCOMPARE(other.viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
        QTRY_COMPARE(shown.onScreen(), shown.expected());
    }
};

void TestPictureItem::backgroundIsPaintedOnce_data()
{
    QTest::addColumn<bool>("kept");
    QTest::addColumn<qreal>("scale");
    for (const qreal scale : {0.2, 0.7, 1.0, 3.0}) {
        QTest::addRow("kept, %.1f", scale) << true << scale;
        QTest::addRow("not kept, %.1f", scale) << false << scale;
    }
}

/// What lies under a picture that changes is painted once, if it was told to keep that; and looks the same.
void TestPictureItem::backgroundIsPaintedOnce()
{
    QFETCH(bool, kept);
    QFETCH(qreal, scale);
    ShownPicture shown(scale);
    auto *behind = new CountedPicture(QPixmap::fromImage(testpictures::randomImage(900, 700, 9)));
    behind->setZValue(-1);
    if (kept)
        behind->keepPainted();
    shown.scene.addItem(behind);
    delete shown.scene.items(Qt::AscendingOrder).at(1); // the one that covers it
    QVERIFY(shown.waitUntilShown());
    const int before = behind->paintings;
    for (int i = 0; i < 5; ++i) {
        shown.whiten(QRect(40 * i, 30, 30, 30));
        shown.item->renew(shown.image, QRect(40 * i, 30, 30, 30));
        shown.scene.update();
        QVERIFY(QTest::qWaitFor([&shown] { return !shown.painted.take().isEmpty(); }));
    }
    if (kept)
        QCOMPARE(behind->paintings, before);
    else
        QCOMPARE(behind->paintings, before + 5);
    QCOMPARE(shown.onScreen(), shown.expected());
}

ORNEVO_TEST_MAIN(TestPictureItem)
#include "tst_pictureitem.moc"
