// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/AlphaBrush.h"
#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/ExportComposition.h"
#include "cutout/IndexPicture.h"
#include "tests/imaging/Planes.h"
#include "tests/reference/MaskReference.h"
#include "tests/support/Differences.h"
#include "tests/support/TestMain.h"

#include <limits>
#include <random>

using testsupport::described;

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb black = 0xFF000000;
constexpr QRgb green = 0xFF00FF00;

QImage argb(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_ARGB32);
}

QImage argb(const QPixmap &pixmap)
{
    return argb(pixmap.toImage());
}

QImage checkerboard()
{
    QImage picture(8, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            picture.setPixel(x, y, (x / 4 + y / 4) % 2 == 0 ? 0xFFFFFFFF : 0xFFC0C0C0);
    return picture;
}

QImage filled(int width, int height, QRgb colour)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill(colour);
    return picture;
}

/// The brush batch as the program applies it.
void brush(QImage &picture, const QList<QRect> &squares, QPoint offset, int change)
{
    cutout::changeAlpha(picture, cutout::brushBatch(squares, offset, picture.size()).pixels, change);
}

/// What the program passes on for an export whose background item shows `source`.
cutout::ExportLayers layersOf(const reference::ExportSource &source)
{
    cutout::ExportLayers layers;
    if (source.backgroundImage.isNull()) {
        QImage canvas =
            filled(source.backgroundPixmap.width(), source.backgroundPixmap.height(), source.backgroundColor);
        layers.canvas = QPixmap::fromImage(canvas);
    } else {
        layers.canvas = QPixmap::fromImage(source.backgroundImage);
    }
    layers.cutOut = source.previewImage;
    layers.offset = source.previewOffset;
    layers.background = QSize(static_cast<int>(source.backgroundExtent.width() * source.m11),
                              static_cast<int>(source.backgroundExtent.height() * source.m22));
    return layers;
}

reference::ExportSource exportSource(QSize size, QRgb colour)
{
    reference::ExportSource source;
    source.backgroundColor = colour;
    source.backgroundPixmap = QPixmap(size);
    source.backgroundPixmap.fill(Qt::white);
    source.backgroundExtent = size;
    source.previewImage = testpictures::randomArgbImage(size.width(), size.height(), 91);
    return source;
}

} // namespace

Q_DECLARE_METATYPE(reference::ExportSource)

class TestMaskPictures : public QObject
{
    Q_OBJECT

private slots:
    void indicesAgree();
    void indexNamesAPixelOfItsRow();
    void indicesOffThePictureAreIgnored();
    void indicesOfNoPicture();
    void inkAndPaper();
    void cutOutAgrees();
    void cutOutTurnsGreyIntoItsComplement();
    void cutOutOfOtherFormats();
    void cutOutWithAMaskThatDoesNotFit();
    void brushAgrees_data();
    void brushAgrees();
    void brushStopsAtTheEndsOfAlpha_data();
    void brushStopsAtTheEndsOfAlpha();
    void brushCountsAnOverlapOnce();
    void brushFollowsTheHandTool();
    void brushWithoutSquares();
    void brushFarOff();
    void alphaOfPaddedPicture();
    void alphaRefusesOtherFormats();
    void backgroundAgrees_data();
    void backgroundAgrees();
    void backgroundPictureKeepsItsProportions();
    void backgroundOverCheckerboardsOfAnySize();
    void backgroundWithoutACheckerboard();
    void exportAgrees_data();
    void exportAgrees();
    void exportOfManyTiles();
    void exportKeepsTransparency();
    void exportOfAZoomedBackgroundShrinksTheObject();
    void exportWithNothingToDo();
    void exportOfAHugeObjectIsDrawnScaled();
};

void TestMaskPictures::indicesAgree()
{
    for (const QSize size : testpictures::awkwardSizes()) {
        const int w = size.width();
        const int h = size.height();
        QList<int> indices = testpictures::randomIndices(w, h, w * h / 2 + 1, 71);
        indices += QList<int>{-1, -w, -w - 1, w * h, w * h + 1, 0, 0, w * h - 1};
        VERIFY_SAME(described(size), cutout::paintIndices(size, indices, black, white),
                    reference::hardMaskImage(indices, w, h));
        VERIFY_SAME(described(size), cutout::paintIndices(size, indices, green, white),
                    reference::overlayImage(indices, w, h));
    }
}

void TestMaskPictures::indexNamesAPixelOfItsRow()
{
    const QImage picture = cutout::paintIndices({3, 5}, {7}, black, white);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 3; ++x)
            QCOMPARE(picture.pixel(x, y), x == 1 && y == 2 ? black : white);
}

void TestMaskPictures::indicesOffThePictureAreIgnored()
{
    const QList<int> off{std::numeric_limits<int>::min(), -1, 12, 13, std::numeric_limits<int>::max()};
    VERIFY_SAME("off", cutout::paintIndices({4, 3}, off, black, white),
                testpictures::constantImage(4, 3, white));
}

void TestMaskPictures::indicesOfNoPicture()
{
    for (const QSize size : {QSize(), QSize(0, 0), QSize(0, 4), QSize(-3, 4), QSize(1 << 30, 1 << 30)})
        QVERIFY(cutout::paintIndices(size, {0, 1}, black, white).isNull());
}

void TestMaskPictures::inkAndPaper()
{
    const QImage picture = cutout::paintIndices({2, 1}, {1}, 0xFF0000FF, 0xFF102030);
    QCOMPARE(picture.format(), QImage::Format_RGB32);
    QCOMPARE(testsupport::pixelsOf(picture), std::vector<QRgb>({0xFF102030, 0xFF0000FF}));
}

void TestMaskPictures::cutOutAgrees()
{
    for (const QSize size : testpictures::awkwardSizes()) {
        const int w = size.width();
        const int h = size.height();
        const QImage photo = testpictures::randomImage(w, h, 72);
        const QImage mask = testpictures::randomImage(w, h, 73);
        const QImage expected = reference::cutOut(QPixmap::fromImage(photo), mask);
        VERIFY_SAME(described(size), cutout::cutOut(photo, mask), expected);
        VERIFY_SAME(
            described(size),
            cutout::cutOut(testpictures::paddedImage(photo, 2, 1), testpictures::paddedImage(mask, 3, 1)),
            expected);
    }
}

void TestMaskPictures::cutOutTurnsGreyIntoItsComplement()
{
    for (int grey = 0; grey <= 255; ++grey) {
        const QImage object = cutout::cutOut(filled(1, 1, 0xFF123456), filled(1, 1, qRgb(1, 2, grey)));
        QCOMPARE(object.format(), QImage::Format_ARGB32);
        QCOMPARE(object.pixel(0, 0), qRgba(0x12, 0x34, 0x56, 255 - grey)); // 128 gives 127
    }
}

void TestMaskPictures::cutOutOfOtherFormats()
{
    const QImage mask = testpictures::constantImage(3, 3, 0xFF404040);
    QImage grey(3, 3, QImage::Format_Grayscale8);
    grey.fill(99);
    QCOMPARE(cutout::cutOut(grey, mask).pixel(1, 1), qRgba(99, 99, 99, 0xBF));
    QVERIFY(cutout::cutOut(QImage(), mask).isNull());
}

void TestMaskPictures::cutOutWithAMaskThatDoesNotFit()
{
    const QImage photo = testpictures::constantImage(4, 3, 0xFF808080);
    const QImage smaller = cutout::cutOut(photo, testpictures::constantImage(2, 2, white));
    QCOMPARE(qAlpha(smaller.pixel(1, 1)), 0);
    QCOMPARE(qAlpha(smaller.pixel(2, 1)), 255);
    QCOMPARE(qAlpha(smaller.pixel(1, 2)), 255);
    const QImage larger = cutout::cutOut(photo, testpictures::constantImage(9, 9, white));
    QCOMPARE(larger.size(), photo.size());
    QCOMPARE(qAlpha(larger.pixel(3, 2)), 0);
    VERIFY_SAME("no mask", cutout::cutOut(photo, QImage()), photo);
}

void TestMaskPictures::brushAgrees_data()
{
    QTest::addColumn<QList<QRect>>("squares");
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("one dab") << QList<QRect>{{10, 10, 20, 20}} << QPoint();
    QTest::newRow("one pixel") << QList<QRect>{{10, 10, 1, 1}} << QPoint();
    QTest::newRow("two pixels") << QList<QRect>{{10, 10, 2, 2}} << QPoint();
    QTest::newRow("no area") << QList<QRect>{{10, 10, 0, 0}} << QPoint();
    QTest::newRow("across the left edge") << QList<QRect>{{-9, 5, 20, 20}} << QPoint();
    QTest::newRow("across the lower right") << QList<QRect>{{50, 40, 30, 30}} << QPoint();
    QTest::newRow("off the picture") << QList<QRect>{{500, 5, 20, 20}} << QPoint();
    QTest::newRow("overlapping") << QList<QRect>{{5, 5, 20, 20}, {12, 9, 20, 20}, {5, 5, 20, 20}} << QPoint();
    QTest::newRow("apart") << QList<QRect>{{1, 1, 9, 9}, {40, 30, 9, 9}} << QPoint();
    QTest::newRow("stroke") << QList<QRect>{{3, 3, 7, 7}, {6, 4, 7, 7}, {9, 6, 7, 7}, {13, 8, 7, 7}}
                            << QPoint();
    QTest::newRow("offset") << QList<QRect>{{40, 30, 20, 20}} << QPoint(30, -10);
    QTest::newRow("whole picture") << QList<QRect>{{-100, -100, 300, 300}} << QPoint();
}

void TestMaskPictures::brushAgrees()
{
    QFETCH(QList<QRect>, squares);
    QFETCH(QPoint, offset);
    for (const int intensity : {0, 1, 100, 150, 255}) {
        for (const bool keep : {true, false}) {
            const QImage before = testpictures::randomArgbImage(64, 48, 81);
            QImage picture = before.copy();
            QImage expected = before.copy();
            const reference::BrushBatch batch =
                reference::applyBrush(expected, squares, offset,
                                      keep ? reference::Brush::Keep : reference::Brush::Remove, intensity);
            brush(picture, squares, offset, keep ? intensity : -intensity);
            VERIFY_SAME(QByteArray::number(intensity), picture, expected);
            QCOMPARE(cutout::brushBatch(squares, offset, picture.size()).box, batch.box);
        }
    }
}

void TestMaskPictures::brushStopsAtTheEndsOfAlpha_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<int>("change");
    QTest::addColumn<int>("result");
    QTest::newRow("kept to the full") << 200 << 150 << 255;
    QTest::newRow("removed to nothing") << 50 << -100 << 0;
    QTest::newRow("just full") << 105 << 150 << 255;
    QTest::newRow("not quite full") << 104 << 150 << 254;
    QTest::newRow("just nothing") << 100 << -100 << 0;
    QTest::newRow("not quite nothing") << 101 << -100 << 1;
    QTest::newRow("no change") << 77 << 0 << 77;
}

void TestMaskPictures::brushStopsAtTheEndsOfAlpha()
{
    QFETCH(int, alpha);
    QFETCH(int, change);
    QFETCH(int, result);
    QImage picture = filled(5, 5, qRgba(11, 22, 33, alpha));
    cutout::changeAlpha(picture, QRegion(1, 1, 2, 3), change);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 5; ++x)
            QCOMPARE(picture.pixel(x, y),
                     qRgba(11, 22, 33, QRect(1, 1, 2, 3).contains(x, y) ? result : alpha));
}

void TestMaskPictures::brushCountsAnOverlapOnce()
{
    QImage picture = filled(40, 40, 0x00FFFFFF);
    brush(picture, {{5, 5, 20, 20}, {10, 5, 20, 20}, {10, 5, 20, 20}}, {}, 60);
    for (const QRgb pixel : testsupport::pixelsOf(picture))
        QVERIFY(qAlpha(pixel) == 0 || qAlpha(pixel) == 60);
    QCOMPARE(qAlpha(picture.pixel(17, 15)), 60);
}

void TestMaskPictures::brushFollowsTheHandTool()
{
    QImage picture = filled(140, 140, 0x00FFFFFF);
    brush(picture, {{100, 100, 20, 20}}, {30, -10}, 60);
    QCOMPARE(qAlpha(picture.pixel(80, 120)), 60); // centre of the dab at (70, 110)
    QCOMPARE(qAlpha(picture.pixel(71, 120)), 60);
    QCOMPARE(qAlpha(picture.pixel(68, 120)), 0);
    QCOMPARE(qAlpha(picture.pixel(110, 110)), 0);
}

void TestMaskPictures::brushWithoutSquares()
{
    const cutout::BrushBatch batch = cutout::brushBatch({}, {3, 4}, {10, 10});
    QVERIFY(batch.pixels.isEmpty());
    QCOMPARE(batch.box, QRect(0, 0, 0, 0));
}

void TestMaskPictures::brushFarOff()
{
    constexpr int far = std::numeric_limits<int>::max();
    for (const QPoint offset : {QPoint(far, far), QPoint(-far, -far), QPoint(far, -far)})
        QVERIFY(cutout::brushBatch({{5, 5, 20, 20}}, offset, {30, 30}).pixels.isEmpty());
    QVERIFY(cutout::brushBatch({{5, 5, 20, 20}}, {}, {}).pixels.isEmpty());
}

void TestMaskPictures::alphaOfPaddedPicture()
{
    const QImage before = testpictures::randomArgbImage(20, 20, 82);
    QImage padded = testpictures::paddedImage(before, 3, 4);
    QImage plain = before.copy();
    const QRegion region = QRegion(-5, -5, 12, 12) + QRegion(15, 15, 30, 30);
    cutout::changeAlpha(padded, region, 90);
    cutout::changeAlpha(plain, region, 90);
    VERIFY_SAME("padded", padded, plain);
    QVERIFY(testpictures::paddingUntouched(padded, 4));
    QVERIFY(plain != before);
}

void TestMaskPictures::alphaRefusesOtherFormats()
{
    QImage grey(4, 4, QImage::Format_Grayscale8);
    grey.fill(9);
    const QImage before = grey.copy();
    cutout::changeAlpha(grey, QRegion(0, 0, 4, 4), 50);
    QCOMPARE(grey, before);
    QImage none;
    cutout::changeAlpha(none, QRegion(0, 0, 4, 4), 50);
    QVERIFY(none.isNull());
}

void TestMaskPictures::backgroundAgrees_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<QSize>("picture");
    for (const QRgb colour : {0x00000000U, 0xFFFFFFFFU, 0xFF2060A0U, 0x80FF0000U, 0x01FFFFFFU, 0xFE000000U})
        QTest::addRow("colour %08x", colour) << colour << QSize(0, 0);
    for (const QSize size : {QSize(40, 30), QSize(90, 30), QSize(10, 60), QSize(1, 1), QSize(7, 500)})
        QTest::addRow("picture %d x %d", size.width(), size.height()) << QRgb(white) << size;
}

void TestMaskPictures::backgroundAgrees()
{
    QFETCH(QRgb, colour);
    QFETCH(QSize, picture);
    const QImage chosen =
        picture.isEmpty() ? QImage() : testpictures::randomImage(picture.width(), picture.height(), 83);
    for (const QSize size : {QSize(1, 1), QSize(40, 30), QSize(8, 8), QSize(7, 91)})
        VERIFY_SAME(
            described(size), argb(cutout::backgroundLayer(size, colour, checkerboard(), chosen)),
            argb(reference::backgroundLayer(colour, chosen, checkerboard(), size.width(), size.height())));
}

void TestMaskPictures::backgroundPictureKeepsItsProportions()
{
    const QPixmap layer = cutout::backgroundLayer({40, 30}, 0, checkerboard(), filled(100, 20, 0xFF336699));
    QCOMPARE(layer.size(), QSize(40, 8)); // a part stays uncovered
    QCOMPARE(argb(layer).pixel(20, 4), 0xFF336699);
}

/// Which rows of the checkerboard are repeated depends on whether its width stays as it is.
void TestMaskPictures::backgroundOverCheckerboardsOfAnySize()
{
    std::mt19937 random(7);
    const auto upTo = [&random](unsigned int most) { return static_cast<int>(1 + random() % most); };
    for (int i = 0; i < 400; ++i) {
        const QImage noise =
            testpictures::randomImage(upTo(40), upTo(40), i).convertToFormat(QImage::Format_RGB32);
        const QSize size(i % 2 == 0 ? noise.width() : upTo(70), upTo(70));
        const auto colour = static_cast<QRgb>(random());
        VERIFY_SAME(described(size), argb(cutout::backgroundLayer(size, colour, noise, {})),
                    argb(reference::backgroundLayer(colour, {}, noise, size.width(), size.height())));
    }
}

void TestMaskPictures::backgroundWithoutACheckerboard()
{
    QVERIFY(cutout::backgroundLayer({40, 30}, 0x80FF0000, QImage(), QImage()).isNull());
    QVERIFY(cutout::backgroundLayer({40, 30}, white, QImage(), QImage()).isNull());
    QVERIFY(cutout::backgroundLayer({0, 0}, white, checkerboard(), QImage()).isNull());
    QVERIFY(!cutout::backgroundLayer({40, 30}, white, QImage(), filled(4, 3, white)).isNull());
}

void TestMaskPictures::exportAgrees_data()
{
    QTest::addColumn<reference::ExportSource>("source");
    reference::ExportSource source = exportSource({40, 30}, 0xFF4080C0);
    QTest::newRow("colour") << source;
    source.previewOffset = {7, -5};
    QTest::newRow("moved") << source;
    source.previewOffset = {-39, 29};
    QTest::newRow("almost off") << source;
    source.m11 = source.m22 = 1.05 * 1.05;
    QTest::newRow("zoomed in") << source;
    source.m11 = source.m22 = 0.4;
    QTest::newRow("zoomed out") << source;
    source.backgroundColor = 0;
    QTest::newRow("transparent") << source;
    source.backgroundImage = testpictures::randomImage(55, 21, 92);
    source.backgroundExtent = QSizeF(40, 15);
    QTest::newRow("picture") << source;
    source.previewImage = QImage();
    QTest::newRow("no object") << source;
}

void TestMaskPictures::exportAgrees()
{
    QFETCH(reference::ExportSource, source);
    for (const QSize size : {QSize(40, 30), QSize(80, 60), QSize(13, 7), QSize(1, 1), QSize(55, 21)})
        VERIFY_SAME(described(size), argb(cutout::composeExport(layersOf(source), size)),
                    argb(reference::exportComposition(source, size.width(), size.height())));
}

/// Of an object of many tiles some are wholly opaque, some wholly transparent, and some both.
void TestMaskPictures::exportOfManyTiles()
{
    reference::ExportSource source = exportSource({300, 200}, 0xFF4080C0);
    source.previewImage = testpictures::randomImage(300, 200, 71).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x) {
            QRgb pixel = source.previewImage.pixel(x, y);
            const int alpha = std::clamp(255 - 2 * (std::abs(x - 150) + std::abs(y - 90) - 80), 0, 255);
            source.previewImage.setPixel(x, y, (pixel & 0x00FFFFFFU) | static_cast<QRgb>(alpha) << 24);
        }
    for (const QRgb colour : {0xFF4080C0U, 0x00000000U, 0x80102030U}) {
        source.backgroundColor = colour;
        for (const QPoint offset : {QPoint(0, 0), QPoint(-70, 33), QPoint(129, -131), QPoint(299, 199),
                                    QPoint(-299, -199), QPoint(300, 0), QPoint(1 << 29, -(1 << 29))}) {
            source.previewOffset = offset;
            for (const QSize size : {QSize(300, 200), QSize(600, 400), QSize(9999, 20)})
                VERIFY_SAME(described(size), argb(cutout::composeExport(layersOf(source), size)),
                            argb(reference::exportComposition(source, size.width(), size.height())));
        }
    }
}

void TestMaskPictures::exportKeepsTransparency()
{
    reference::ExportSource source = exportSource({20, 20}, 0);
    source.previewImage = filled(20, 20, 0x00FFFFFF);
    source.previewImage.setPixel(3, 4, 0xFF112233);
    const QImage result = argb(cutout::composeExport(layersOf(source), {20, 20}));
    QCOMPARE(result.pixel(3, 4), 0xFF112233);
    QCOMPARE(qAlpha(result.pixel(10, 10)), 0);
}

void TestMaskPictures::exportOfAZoomedBackgroundShrinksTheObject()
{
    reference::ExportSource source = exportSource({200, 100}, white);
    source.m11 = source.m22 = 1.05 * 1.05;
    source.previewImage = filled(200, 100, black);
    const QImage result = argb(cutout::composeExport(layersOf(source), {200, 100}));
    // 200 / trunc(220.5) and 100 / trunc(110.25), and truncated again: 181 x 90.
    QCOMPARE(result.pixel(180, 89), black);
    QCOMPARE(result.pixel(181, 89), white);
    QCOMPARE(result.pixel(180, 90), white);
}

void TestMaskPictures::exportWithNothingToDo()
{
    cutout::ExportLayers layers = layersOf(exportSource({20, 20}, 0xFF336699));
    QVERIFY(cutout::composeExport(layers, {}).isNull());
    QVERIFY(cutout::composeExport(layers, {0, 20}).isNull());
    QVERIFY(cutout::composeExport(layers, {20, -1}).isNull());
    layers.background = {}; // no extent, no scale: the background alone
    VERIFY_SAME("no extent", argb(cutout::composeExport(layers, {20, 20})), filled(20, 20, 0xFF336699));
    layers.canvas = QPixmap();
    QVERIFY(cutout::composeExport(layers, {20, 20}).isNull());
}

void TestMaskPictures::exportOfAHugeObjectIsDrawnScaled()
{
    cutout::ExportLayers layers;
    layers.canvas = QPixmap::fromImage(filled(10, 10, white));
    layers.cutOut = filled(100, 100, 0xFF112233);
    layers.background = QSize(1, 1); // the object is 40000 x 40000 then
    VERIFY_SAME("covered", argb(cutout::composeExport(layers, {400, 400})), filled(400, 400, 0xFF112233));
    layers.offset = QPoint(1, 0); // and lies to the right of all that is exported
    VERIFY_SAME("moved off", argb(cutout::composeExport(layers, {400, 400})), filled(400, 400, white));
}

ORNEVO_TEST_MAIN(TestMaskPictures)
#include "tst_maskpictures.moc"
