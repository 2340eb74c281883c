// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/OptionsDialog.h"
#include "canvas/MarkerDabs.h"
#include "tests/reference/MaskReference.h"
#include "tests/scenarios/Scenes.h"
#include "tests/support/DialogParts.h"
#include "tests/support/Differences.h"
#include "tests/support/Keys.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"
#include "tests/support/WindowUnderTest.h"

#include <QCheckBox>
#include <QGraphicsPixmapItem>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

using scenes::Scene;
using testsupport::DialogAnswers;
using testsupport::part;
using testsupport::pressKey;
using testsupport::WindowUnderTest;

namespace {

#ifdef ORNEVO_ADDRESS_SANITIZER
constexpr bool underSanitizers = true; // the same work takes ten times as long
#else
constexpr bool underSanitizers = false;
#endif

constexpr double alike = 0.97; ///< of the true shape, where the object stands out

QToolButton &buttonOf(const WindowUnderTest &t, const char *action)
{
    auto *toolBar = t.window.findChild<QToolBar *>("mainToolBar");
    auto *button = qobject_cast<QToolButton *>(toolBar->widgetForAction(&t.action(action)));
    if (button == nullptr)
        qFatal("no button for %s", action);
    return *button;
}

void click(const WindowUnderTest &t, const char *action)
{
    QTest::mouseClick(&buttonOf(t, action), Qt::LeftButton);
}

/// A place of the photo, in parts of its width and height, on the screen.
QPoint placeOf(WindowUnderTest &t, double x, double y)
{
    const QSize photo = t.probe.workingImage().size();
    return t.view.mapFromScene(QPointF(x * photo.width(), y * photo.height()));
}

/// A stroke from one place of the photo to another, as a person draws it: a movement every few pixels.
void stroke(WindowUnderTest &t, QPointF from, QPointF to, int moves = 40)
{
    QList<QPoint> positions;
    for (int i = 0; i <= moves; ++i) {
        const QPointF place = from + (to - from) * i / moves;
        positions << placeOf(t, place.x(), place.y());
    }
    t.mouse.stroke(positions);
}

void markAround(WindowUnderTest &t, double left, double right, double top, double bottom)
{
    click(t, "action_Remove_Marker");
    stroke(t, {left, top}, {left, bottom});
    stroke(t, {left, bottom}, {right, bottom});
    stroke(t, {right, bottom}, {right, top});
    stroke(t, {right, top}, {left, top});
}

/// The same for what stands on the lower edge of its photo.
void markBeside(WindowUnderTest &t, double left, double right, double top)
{
    click(t, "action_Remove_Marker");
    stroke(t, {left, 0.98}, {left, top});
    stroke(t, {left, top}, {right, top});
    stroke(t, {right, top}, {right, 0.98});
}

void markInside(WindowUnderTest &t, QPointF from, QPointF to)
{
    click(t, "actionKeep_arker");
    stroke(t, from, to);
}

void chooseBackgroundPicture(WindowUnderTest &t, const QString &file)
{
    t.answers.expect<BackgroundDialog>([](BackgroundDialog &dialog) {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton_2"), Qt::LeftButton);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file);
    click(t, "actionSelect_Background");
}

void exportTo(WindowUnderTest &t, const QString &file)
{
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file);
    click(t, "actionExport");
}

/// The composition put together plainly, a pixel at a time, from what the window shows.
QImage expectedExport(WindowUnderTest &t, QSize size)
{
    const QGraphicsPixmapItem &background = *t.probe.backgroundItem();
    const reference::ExportSource source{t.probe.backgroundImage(),    t.probe.backgroundColor(),
                                         background.pixmap(),          background.boundingRect().size(),
                                         background.transform().m11(), background.transform().m22(),
                                         t.probe.previewImage(),       t.probe.previewOffset()};
    return reference::exportComposition(source, size.width(), size.height()).toImage();
}

QImage asRgb(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_RGB32);
}

/// The area of a cut-out where more than half of the photo is seen.
QList<int> visiblePixels(const QImage &cutOut)
{
    QList<int> indices;
    for (int y = 0; y < cutOut.height(); ++y)
        for (int x = 0; x < cutOut.width(); ++x)
            if (qAlpha(reinterpret_cast<const QRgb *>(cutOut.constScanLine(y))[x]) > 127)
                indices << y * cutOut.width() + x;
    return indices;
}

/// How many pixels of the canvas have just this colour.
int pixelsOf(const WindowUnderTest &t, QRgb colour)
{
    const QImage seen = t.view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    int found = 0;
    for (int y = 0; y < seen.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(seen.constScanLine(y));
        found += static_cast<int>(std::count(row, row + seen.width(), colour));
    }
    return found;
}

/// Where a picture lies in the viewport.
QRect shownAt(const WindowUnderTest &t, const QGraphicsItem &item)
{
    return t.view.mapFromScene(item.sceneBoundingRect()).boundingRect();
}

/// How far the middle of the item is from that of the viewport, the longer way.
int offCentre(const WindowUnderTest &t, const QGraphicsItem &item)
{
    return (shownAt(t, item).center() - t.view.viewport()->rect().center()).manhattanLength();
}

bool nothingToScroll(const WindowUnderTest &t)
{
    const auto empty = [](const QScrollBar &bar) { return bar.minimum() == bar.maximum(); };
    return empty(*t.view.horizontalScrollBar()) && empty(*t.view.verticalScrollBar());
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// The preview shows the cut-out of this very photo, as large as the canvas allows and in its middle.
void verifyFittedPreview(WindowUnderTest &t, const Scene &scene, double least)
{
    QCOMPARE(t.probe.workingImage().size(), scene.photo.size());
    const double found = scenes::overlap(visiblePixels(t.probe.previewImage()), scene.object);
    QVERIFY2(found > least, qPrintable(QString("only %1 of the shape").arg(found)));
    QVERIFY(nothingToScroll(t));
    QVERIFY(offCentre(t, *t.probe.backgroundItem()) <= 2);
    QVERIFY(offCentre(t, *t.probe.previewItem()) <= 2);
    const QRect canvas = t.view.viewport()->rect();
    const QRect shown = shownAt(t, *t.probe.previewItem());
    QVERIFY(canvas.adjusted(-1, -1, 1, 1).contains(shown));
    QVERIFY(shown.height() > canvas.height() * 9 / 10 || shown.width() > canvas.width() * 9 / 10);
}

} // namespace

class TestScenarios : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void productOnWhite();
    void collage();
    void fiftyUndos();
    void smallWindow();
    void keyboardOnly();
    void threePhotosInARow();

private:
    [[nodiscard]] QString file(const char *name) const { return m_folder->filePath(name); }
    QString saved(const QImage &picture, const char *name) const
    {
        if (!picture.save(file(name), nullptr, 92))
            qFatal("can't write %s", name);
        return file(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestScenarios::init()
{
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
}

/// A bottle for a web shop: marked, looked at, set before white, exported as JPEG at half the size.
void TestScenarios::productOnWhite()
{
    const Scene scene = scenes::bottle({1600, 1200});
    WindowUnderTest t;
    t.openPicture(saved(scene.photo, "bottle.png"));
    markInside(t, {0.5, 0.16}, {0.5, 0.8});
    markAround(t, 0.2, 0.8, 0.06, 0.93);
    click(t, "action_Remove_Marker");
    stroke(t, {0.55, 0.885}, {0.62, 0.885}, 10); // the shadow is not for sale
    click(t, "actionMask");
    QVERIFY(scenes::overlap(t.probe.outmask(), scene.object) > alike);
    click(t, "actionPreview");
    QVERIFY(scenes::overlap(visiblePixels(t.probe.previewImage()), scene.object) > alike);
    const QImage expected = expectedExport(t, {800, 600});
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        auto &width = part<QSpinBox>(dialog, "spinBox");
        width.setFocus();
        width.selectAll();
        QTest::keyClicks(&width, "800");
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file("shop")); // completed by the chooser
    click(t, "actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    // Encoded the same way, the plain composition has to come to the same bytes.
    QVERIFY(expected.save(file("expected.jpg"), "JPG", 100));
    VERIFY_SAME("shop.jpg", asRgb(QImage(file("shop.jpg"))), asRgb(QImage(file("expected.jpg"))));
    const QImage shop = asRgb(QImage(file("shop.jpg")));
    QCOMPARE(shop.size(), QSize(800, 600));
    QVERIFY(qGray(shop.pixel(10, 10)) > 250);
    QVERIFY(qGray(shop.pixel(500, 532)) > 250); // where the shadow was
    QVERIFY(qGray(shop.pixel(400, 500)) < 100);
}

/// A balloon laid over a sunset, moved with the Hand tool and the background enlarged, exported as PNG.
void TestScenarios::collage()
{
    const Scene scene = scenes::balloon({1500, 1000});
    WindowUnderTest t;
    t.openPicture(saved(scene.photo, "balloon.jpg"));
    markInside(t, {0.5, 0.2}, {0.5, 0.77});
    markAround(t, 0.25, 0.75, 0.05, 0.84);
    click(t, "actionPreview");
    QVERIFY(scenes::overlap(visiblePixels(t.probe.previewImage()), scene.object) > alike);
    chooseBackgroundPicture(t, saved(scenes::sunset({900, 700}), "sunset.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));

    click(t, "actionHandTool");
    const QPoint from = placeOf(t, 0.5, 0.4);
    const QRect background = shownAt(t, *t.probe.backgroundItem());
    const QRect object = shownAt(t, *t.probe.previewItem());
    const QPoint way(-60, 25);
    t.mouse.stroke({from, from + way / 2, from + way});
    QVERIFY((shownAt(t, *t.probe.previewItem()).topLeft() - object.topLeft() - way).manhattanLength() <= 2);
    QCOMPARE(shownAt(t, *t.probe.backgroundItem()), background);

    const double before = t.probe.backgroundItem()->sceneBoundingRect().width();
    for (int i = 0; i < 4; ++i)
        click(t, "actionBackgroundZoomPlus");
    click(t, "actionBackgroundZoomMinus");
    const double zoomed = t.probe.backgroundItem()->sceneBoundingRect().width() / before;
    QVERIFY(std::abs(zoomed - 1.05 * 1.05 * 1.05) < 1e-6);

    const QImage expected = expectedExport(t, {900, 700});
    exportTo(t, file("collage.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    VERIFY_SAME("collage.png", asRgb(QImage(file("collage.png"))), asRgb(expected));
    // The middle of the balloon, wherever it went, and a corner of the sky.
    const QImage collage = asRgb(QImage(file("collage.png")));
    const double scale = 900 / t.probe.backgroundItem()->sceneBoundingRect().width();
    const QPointF middle = (QPointF(750, 420) + t.probe.previewOffset()) * scale;
    QVERIFY(qBlue(collage.pixel(middle.toPoint())) < 90 && qRed(collage.pixel(middle.toPoint())) > 150);
    VERIFY_SAME("sky", collage.copy(880, 0, 20, 20), asRgb(QImage(file("sunset.png"))).copy(880, 0, 20, 20));
}

/// A lamp in a dark room, corrected with both brushes fifty times, all of it taken back and done again.
void TestScenarios::fiftyUndos()
{
    const Scene scene = scenes::lamp(underSanitizers ? QSize(600, 400) : QSize(6000, 4000));
    WindowUnderTest t;
    t.openPicture(saved(scene.photo, "lamp.jpg"));
    markInside(t, {0.5, 0.3}, {0.5, 0.85});
    markAround(t, 0.3, 0.7, 0.1, 0.95);
    click(t, "actionPreview");
    QVERIFY(scenes::overlap(visiblePixels(t.probe.previewImage()), scene.object) > 0.9);
    QList<QImage> states{t.probe.previewImage().copy()};
    for (int i = 0; i < 50; ++i) {
        click(t, i % 3 == 2 ? "actionForeground_Brush" : "actionBackground_Brush");
        const double y = 0.3 + 0.01 * i;
        stroke(t, {0.45, y}, {0.53, y + 0.02}, 6);
        QTRY_VERIFY(t.probe.pendingBrushRects().isEmpty());
        QVERIFY(t.probe.previewImage() != states.last() || i % 3 == 2);
        states << t.probe.previewImage().copy();
    }
    const int done = t.probe.undoStack().index();
    QCOMPARE(states.size(), 51);
    testsupport::activate(t.window);
    for (int i = 49; i >= 0; --i) {
        testsupport::key(t.window, QKeySequence::Undo);
        QVERIFY2(t.probe.previewImage() == states[i], qPrintable(QString("undo to %1").arg(i)));
    }
    QCOMPARE(t.probe.undoStack().index(), done - 50); // an entry for each stroke
    testsupport::settle();
    QCOMPARE(t.probe.previewItem()->pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
             states[0].convertToFormat(QImage::Format_ARGB32_Premultiplied));
    for (int i = 1; i <= 50; ++i) {
        testsupport::key(t.window, QKeySequence::Redo);
        QVERIFY2(t.probe.previewImage() == states[i], qPrintable(QString("redo to %1").arg(i)));
    }
}

/// Everything within 800 x 600, with buttons that don't fit and a photo that is larger than the window.
void TestScenarios::smallWindow()
{
    const Scene scene = scenes::person({900, 1200});
    WindowUnderTest t;
    t.window.resize(480, 360);
    testsupport::settle();
    QVERIFY(t.window.width() <= 800 && t.window.height() <= 600);
    QVERIFY(writeFile(file("phone.jpg"), scenes::lyingJpeg(scene.photo, 95)));
    t.openPicture(file("phone.jpg"));
    QCOMPARE(t.probe.workingImage().size(), QSize(900, 1200)); // upright
    QVERIFY(nothingToScroll(t));
    markInside(t, {0.5, 0.25}, {0.5, 0.95});
    markBeside(t, 0.06, 0.94, 0.08);
    t.trigger("actionPreview");
    QVERIFY(scenes::overlap(visiblePixels(t.probe.previewImage()), scene.object) > alike);
    QVERIFY(nothingToScroll(t));
    QVERIFY(offCentre(t, *t.probe.backgroundItem()) <= 2);
    // Larger and back: the photo is still there, all of it.
    t.window.resize(790, 590);
    testsupport::settle();
    QVERIFY(offCentre(t, *t.probe.backgroundItem()) <= 2);
    t.window.resize(480, 360);
    testsupport::settle();
    QVERIFY(offCentre(t, *t.probe.backgroundItem()) <= 2);
    QVERIFY(t.view.viewport()->rect().intersects(shownAt(t, *t.probe.previewItem())));
    // Zoomed in, a brush reaches what it is pointed at.
    for (int i = 0; i < 2; ++i)
        t.trigger("actionZoom_In");
    t.trigger("actionBackground_Brush");
    const QPoint hit = t.view.viewport()->rect().center();
    const QPointF pixel = t.view.mapToScene(hit);
    const QImage before = t.probe.previewImage().copy();
    t.mouse.stroke({hit, hit + QPoint(1, 0)});
    QTRY_VERIFY(t.probe.pendingBrushRects().isEmpty());
    QVERIFY(qAlpha(before.pixel(pixel.toPoint())) > qAlpha(t.probe.previewImage().pixel(pixel.toPoint())));
    testsupport::key(t.window, QKeySequence::Undo);
    VERIFY_SAME("undo", t.probe.previewImage(), before);
    const QSize screen(800, 600);
    for (const QSize size : {ExportDialog(1, 1, &t.probe.settings(), nullptr).sizeHint(),
                             BackgroundDialog(nullptr).sizeHint(), t.window.minimumSizeHint()})
        QCOMPARE(size.boundedTo(screen), size);
}

/// A small button: opened, masked, previewed, its background chosen and exported without a mouse, but for the
/// marks themselves.
void TestScenarios::keyboardOnly()
{
    const Scene scene = scenes::icon();
    WindowUnderTest t;
    saved(scene.photo, "icon.png");
    const auto tabTo = [&t](const char *action) {
        for (int i = 0; i < 40 && QApplication::focusWidget() != &buttonOf(t, action); ++i)
            pressKey(t.window, Qt::Key_Tab);
        return QApplication::focusWidget() == &buttonOf(t, action);
    };
    t.answers.chooseFile(file("icon.png"));
    pressKey(t.window, Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(t.probe.workingImage().size(), QSize(48, 48));
    testsupport::activate(t.window);
    QVERIFY(tabTo("actionKeep_arker"));
    pressKey(t.window, Qt::Key_Space);
    QVERIFY(t.action("actionKeep_arker").isChecked());
    t.answers.expect<OptionsDialog>([](OptionsDialog &dialog) { // one size for all tools, and a small one
        pressKey(dialog, Qt::Key_6);
        for (int i = 0; i < 30 && !part<QCheckBox>(dialog, "checkBox").hasFocus(); ++i)
            pressKey(dialog, Qt::Key_Tab);
        pressKey(dialog, Qt::Key_Space);
        pressKey(dialog, Qt::Key_Return);
    });
    t.trigger("actionPreferences");
    testsupport::activate(t.window);
    QCOMPARE(int(t.probe.keepMarkerSize()), 6);
    QCOMPARE(t.status(), QString("Ready")); // of opening still
    // Small enough for 48 pixels.
    for (int i = 0; i < 200 && t.probe.keepMarkerSize() > 4; ++i)
        pressKey(t.window, Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(int(t.probe.keepMarkerSize()), 4);
    stroke(t, {0.4, 0.5}, {0.6, 0.5}, 8);
    QVERIFY(tabTo("action_Remove_Marker"));
    pressKey(t.window, Qt::Key_Space);
    stroke(t, {0.06, 0.06}, {0.9, 0.06}, 20);
    stroke(t, {0.06, 0.06}, {0.06, 0.9}, 20);
    stroke(t, {0.06, 0.9}, {0.9, 0.9}, 20);
    stroke(t, {0.9, 0.06}, {0.9, 0.9}, 20);
    QVERIFY(tabTo("actionMask"));
    pressKey(t.window, Qt::Key_Space);
    const double found = scenes::overlap(t.probe.outmask(), scene.object);
    QVERIFY2(found > 0.85, qPrintable(QString::number(found))); // a pixel of border is much of 48
    QVERIFY(tabTo("actionPreview"));
    pressKey(t.window, Qt::Key_Space);
    QCOMPARE(t.view.scene(), &t.probe.previewScene());

    t.answers.expect<BackgroundDialog>([](BackgroundDialog &dialog) {
        for (int i = 0; i < 20 && !part<QRadioButton>(dialog, "whiteradioButton").hasFocus(); ++i)
            pressKey(dialog, Qt::Key_Tab);
        pressKey(dialog, Qt::Key_Down); // from white to transparent
        pressKey(dialog, Qt::Key_Return);
    });
    QVERIFY(tabTo("actionSelect_Background"));
    pressKey(t.window, Qt::Key_Space);
    testsupport::activate(t.window);
    QCOMPARE(qAlpha(t.probe.backgroundColor()), 0);

    const QImage expected = expectedExport(t, {48, 48});
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        for (int i = 0; i < 20 && !part<QPushButton>(dialog, "pushButton").hasFocus(); ++i)
            pressKey(dialog, Qt::Key_Tab);
        pressKey(dialog, Qt::Key_Space);
        pressKey(dialog, Qt::Key_Return);
    });
    t.answers.chooseFile(file("out.png"));
    pressKey(t.window, Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    const QImage out = QImage(file("out.png")).convertToFormat(QImage::Format_ARGB32);
    VERIFY_SAME("out.png", out, expected.convertToFormat(QImage::Format_ARGB32));
    QCOMPARE(qAlpha(out.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(out.pixel(24, 24)), 255);
}

/// A large photo, then a small one, then one that a phone took upright; each preview is centred, has nothing
/// to scroll and cuts its own photo.
void TestScenarios::threePhotosInARow()
{
    const QSize large = underSanitizers ? QSize(948, 632) : QSize(9486, 6324);
    const QSize upright = underSanitizers ? QSize(600, 800) : QSize(3000, 4000);
    WindowUnderTest t;
    const auto openAndMark = [&](const QString &photo, const std::function<void()> &mark) {
        t.openPicture(photo);
        QVERIFY(nothingToScroll(t));
        mark();
        click(t, "actionPreview");
        testsupport::settle();
    };
    {
        const Scene scene = scenes::balloon(large);
        openAndMark(saved(scene.photo, "large.jpg"), [&] {
            markInside(t, {0.5, 0.2}, {0.5, 0.77});
            // Ten pixels of the photo are less than one here, and the marks can be seen all the same.
            QVERIFY(pixelsOf(t, markers::keepColour) > 300);
            markAround(t, 0.25, 0.75, 0.05, 0.84);
        });
        verifyFittedPreview(t, scene, alike);
    }
    const Scene small = scenes::bottle({400, 300});
    openAndMark(saved(small.photo, "small.png"), [&] {
        markInside(t, {0.5, 0.18}, {0.5, 0.75});
        markAround(t, 0.2, 0.8, 0.02, 0.88); // through the shadow
    });
    verifyFittedPreview(t, small, 0.88); // the border, two pixels wide, is a tenth of it
    const Scene person = scenes::person(upright);
    QVERIFY(writeFile(file("phone.jpg"), scenes::lyingJpeg(person.photo, 92)));
    openAndMark(file("phone.jpg"), [&] {
        markInside(t, {0.5, 0.25}, {0.5, 0.95});
        markBeside(t, 0.06, 0.94, 0.08);
    });
    verifyFittedPreview(t, person, alike);
}

ORNEVO_TEST_MAIN(TestScenarios)
#include "tst_scenarios.moc"
