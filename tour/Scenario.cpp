// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/Scenario.h"

#include "tests/reference/MaskReference.h"
#include "tour/Agreement.h"

#include <QAction>
#include <QFile>
#include <QGraphicsPixmapItem>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include <algorithm>

namespace {

constexpr double leastAgreement = 0.97;
constexpr qreal overlayZ = 7.0;
constexpr qreal objectZ = 10.0;
constexpr int movesPerStroke = 40;
constexpr int movesPerBrushStroke = 12;
constexpr int brushGrowth = 24;
constexpr int mostUndos = 200;
constexpr int helpPictureWidth = 700; // twice what the help shows, for sharp screens

bool isGreen(QRgb pixel)
{
    return (pixel & 0xFFFFFF) == 0x00FF00;
}
bool isMostlyOpaque(QRgb pixel)
{
    return qAlpha(pixel) >= 128;
}

} // namespace

Scenario::Scenario(MainWindow &window, const QString &folder, const QString &samples,
                   const QString &helpPictures)
    : m_window(window),
      m_state(window),
      m_driver(window, folder),
      m_samples(samples),
      m_helpPictures(helpPictures),
      m_strokes(readStrokes(m_samples.filePath("still-life-strokes.txt"))),
      m_truth(m_samples.filePath("still-life-mask.png"))
{
    expect(!m_truth.isNull(), "the sample's true mask can't be read");
}

void Scenario::run()
{
    m_driver.picture("start");
    openPhoto();
    layMarks();
    undoAndErase();
    showMask();
    showPreview();
    touchUp();
    chooseColours();
    choosePicture();
    moveAndZoom();
    touchUpMoved();
    exportPictures();
    readHelp();
    leavePreview();
}

void Scenario::openPhoto()
{
    const QString path = m_samples.absoluteFilePath("still-life.jpg");
    m_driver.withDialog(
        "QFileDialog",
        [&](QWidget &dialog) {
            m_driver.picture("open", dialog);
            Driver::chooseFile(dialog, path);
        },
        [&] { m_driver.clickTool("actionOpen"); });
    expect(m_window.windowTitle() == "Ornevo Pro - still-life.jpg", "the title does not name the photo");
    expect(m_window.statusBar()->currentMessage() == "Ready", "the status bar does not say Ready");
    expect(itemCount(QGraphicsPixmapItem::Type) == 1, "the photo is not on the canvas");
    m_driver.picture("photo");
}

void Scenario::layMarks()
{
    m_driver.clickTool("actionKeep_arker");
    for (const QLineF &stroke : m_strokes.keep)
        m_driver.drag(stroke.p1(), stroke.p2(), movesPerStroke);
    expect(itemCount(QGraphicsRectItem::Type) > 0, "no Keep marks were laid");
    m_driver.picture("keep-marks");

    m_driver.clickTool("action_Remove_Marker");
    for (const QLineF &stroke : m_strokes.remove)
        m_driver.drag(stroke.p1(), stroke.p2(), movesPerStroke);
    expect(itemCount(QGraphicsEllipseItem::Type) > 0, "no Remove marks were laid");
    m_driver.picture("remove-marks");
    helpPicture(3);
}

void Scenario::undoAndErase()
{
    const qsizetype discs = itemCount(QGraphicsEllipseItem::Type);
    m_driver.press(Qt::Key_Z, Qt::ControlModifier);
    expect(itemCount(QGraphicsEllipseItem::Type) == discs - 1, "Undo did not take one Remove dab away");

    const qsizetype squares = itemCount(QGraphicsRectItem::Type);
    m_driver.clickTool("actionEraser");
    m_driver.drag(m_strokes.keep.first().p1(), m_strokes.keep.first().p1(), 1);
    expect(itemCount(QGraphicsRectItem::Type) < squares, "the eraser took nothing away");
    m_driver.picture("undone-and-erased");
}

void Scenario::showMask()
{
    m_driver.clickTool("actionMask");
    const QImage overlay = pixmapAt(overlayZ).toImage();
    expect(overlay.size() == m_truth.size(), "there is no overlay of the photo's size");
    const double agreement = intersectionOverUnion(overlay, m_truth, isGreen);
    qInfo("agreement of the mask with the truth (intersection over union): %.4f", agreement);
    expect(agreement >= leastAgreement, QString("the mask agrees with the truth by %1 only").arg(agreement));
    m_driver.picture("mask");
    helpPicture(4);
}

void Scenario::showPreview()
{
    m_driver.clickTool("actionPreview");
    const QImage object = pixmapAt(objectZ).toImage();
    expect(object.size() == m_truth.size() && object.hasAlphaChannel(), "the preview shows no cut-out");
    const double agreement = intersectionOverUnion(object, m_truth, isMostlyOpaque);
    expect(agreement >= leastAgreement,
           QString("the cut-out agrees with the truth by %1 only").arg(agreement));
    m_driver.picture("preview");
    helpPicture(5);
}

void Scenario::touchUp()
{
    const QImage before = pixmapAt(objectZ).toImage();
    const QPointF inside = m_strokes.keep.first().center();
    m_driver.clickTool("actionBackground_Brush");
    for (int i = 0; i < brushGrowth; ++i)
        m_driver.press(Qt::Key_Right, Qt::ControlModifier);
    expect(m_window.statusBar()->currentMessage() ==
               QString("Background brush size is %1").arg(10 + brushGrowth),
           "the Background brush did not grow");
    m_driver.drag(inside, inside + QPointF(200, 0), movesPerBrushStroke);
    waitForBatch();
    expect(pixmapAt(objectZ).toImage() != before, "the Background brush changed nothing");
    m_driver.picture("background-brush");

    m_driver.clickTool("actionForeground_Brush"); // brings back half of it
    m_driver.drag(inside, inside + QPointF(100, 0), movesPerBrushStroke);
    waitForBatch();
    m_driver.picture("foreground-brush");
    undoAndRedoTouchUp(before);
}

void Scenario::waitForBatch()
{
    const auto processed = [this] { return m_state.pendingBrushRects().isEmpty(); };
    expect(QTest::qWaitFor(processed), "the dabs of the brush are not processed");
}

void Scenario::undoAndRedoTouchUp(const QImage &before)
{
    const QImage touchedUp = m_state.previewImage();
    expect(pixmapAt(objectZ).toImage() != before, "the Foreground brush undid more than its stroke");
    const auto undoAll = [&] {
        for (int undone = 0; pixmapAt(objectZ).toImage() != before; ++undone) {
            expect(undone < mostUndos, "Undo did not bring the cut-out back");
            m_driver.press(Qt::Key_Z, Qt::ControlModifier);
        }
    };
    undoAll();
    m_driver.picture("brushes-undone");
    for (int redone = 0; m_state.previewImage() != touchedUp; ++redone) {
        expect(redone < mostUndos, "Redo did not bring the brushed cut-out back");
        m_driver.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    undoAll();
}

void Scenario::chooseBackground(const QString &radioButton, const std::function<void(QWidget &)> &choose)
{
    m_driver.withDialog(
        "BackgroundDialog",
        [&](QWidget &dialog) {
            Driver::click(dialog, radioButton);
            choose(dialog);
            m_driver.picture("choose-" + radioButton.chopped(11), dialog);
            Driver::accept(dialog);
        },
        [&] { m_driver.clickTool("actionSelect_Background"); });
}

void Scenario::chooseColours()
{
    chooseBackground("transparentradioButton", [](QWidget &) {});
    m_driver.picture("transparent");
    helpPicture(6);
    exportTo("transparent.png");
    const QImage exported(m_driver.file("transparent.png"));
    expect(exported.size() == m_truth.size() && exported.hasAlphaChannel(), "the exported PNG has no alpha");
    const double agreement = intersectionOverUnion(exported, m_truth, isMostlyOpaque);
    expect(agreement >= leastAgreement, QString("the exported object agrees by %1 only").arg(agreement));

    chooseBackground("colorradioButton", [&](QWidget &dialog) {
        m_driver.withDialog(
            "QColorDialog",
            [](QWidget &colours) {
                QLineEdit *html = nullptr;
                for (QLineEdit *edit : colours.findChildren<QLineEdit *>())
                    if (edit->objectName() != "qt_spinbox_lineedit") // those are inside of the spin boxes
                        html = edit;
                if (html == nullptr)
                    throw TourError("the colour chooser has no field for a name");
                html->clear();
                QTest::keyClicks(html, "#3f7fbf");
                Driver::accept(colours);
            },
            [&] { Driver::click(dialog, "pushButton"); });
        expect(dialog.findChild<QLabel *>("colorlabel")->text() == "ff3f7fbf",
               "the chosen colour is not shown");
    });
    m_driver.picture("colour");
    helpPicture(7);
}

void Scenario::choosePicture()
{
    chooseBackground("pictureradioButton", [&](QWidget &dialog) {
        m_driver.withDialog(
            "QFileDialog",
            [&](QWidget &files) { Driver::chooseFile(files, m_samples.absoluteFilePath("background.jpg")); },
            [&] { Driver::click(dialog, "pushButton_2"); });
    });
    m_driver.picture("picture");
}

void Scenario::moveAndZoom()
{
    const QPointF inside = m_strokes.keep.last().center();
    m_driver.clickTool("actionHandTool");
    m_driver.drag(inside, inside + QPointF(-120, 60), 6);
    m_driver.clickTool("actionBackgroundZoomPlus");
    m_driver.clickTool("actionBackgroundZoomPlus");
    m_driver.picture("moved-and-zoomed");
    helpPicture(8);
    m_driver.clickTool("actionZoom_In");
    m_driver.picture("view-zoomed-in");
    m_driver.clickTool("actionZoom_Out");
}

void Scenario::touchUpMoved()
{
    // The right end of the handle has moved with the object; the brush has to land where it is seen.
    const QPointF handle = m_strokes.keep[4].center();
    const QPointF seen = handle + m_state.previewOffset();
    m_driver.clickTool("actionBackground_Brush");
    m_driver.drag(seen, seen + QPointF(0, 60), movesPerBrushStroke);
    waitForBatch();
    expect(qAlpha(m_state.previewImage().pixel(handle.toPoint())) < 255,
           "the brush did not land where it was seen");
    m_driver.picture("touched-up-after-the-move");
}

void Scenario::exportTo(const QString &name)
{
    QFile::remove(m_driver.file(name)); // of an earlier tour; the file dialog would ask
    m_driver.withDialog(
        "ExportDialog",
        [&](QWidget &dialog) {
            m_driver.withDialog(
                "QFileDialog", [&](QWidget &files) { Driver::chooseFile(files, m_driver.file(name)); },
                [&] { Driver::click(dialog, "pushButton"); });
            m_driver.picture("export", dialog);
            Driver::accept(dialog);
        },
        [&] { m_driver.press(Qt::Key_S, Qt::ControlModifier); });
}

void Scenario::exportPictures()
{
    const QImage background(m_samples.filePath("background.jpg"));
    for (const QString name : {"composition.png", "composition.jpg"}) {
        exportTo(name);
        const QImage exported(m_driver.file(name));
        expect(exported.size() == background.size(), name + " has not the size of the background");
    }
    const QImage exported = QImage(m_driver.file("composition.png")).convertToFormat(QImage::Format_RGB32);
    expect(exported == expectedComposition(background),
           "the exported PNG is not the composition to the pixel");
}

QImage Scenario::expectedComposition(const QImage &background)
{
    reference::ExportSource source;
    source.backgroundImage = background;
    source.backgroundExtent = m_state.backgroundItem()->boundingRect().size();
    source.m11 = m_state.backgroundItem()->transform().m11();
    source.m22 = m_state.backgroundItem()->transform().m22();
    source.previewImage = m_state.previewImage();
    source.previewOffset = m_state.previewOffset();
    return reference::exportComposition(source, background.width(), background.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

void Scenario::readHelp()
{
    m_driver.clickMenu("menuHelp", "actionIndex");
    QWidget *help = m_window.findChild<QWidget *>("HelpDialog");
    expect(help != nullptr && QTest::qWaitForWindowExposed(help), "the help did not open");
    m_driver.picture("help", *help);
    help->close();
    m_driver.withDialog(
        "QMessageBox",
        [&](QWidget &box) {
            m_driver.picture("about", box);
            Driver::accept(box);
        },
        [&] { m_driver.clickMenu("menuHelp", "actionAbout"); });
    m_driver.withDialog(
        "OptionsDialog",
        [&](QWidget &dialog) {
            m_driver.picture("preferences", dialog);
            Driver::accept(dialog);
        },
        [&] { m_driver.clickMenu("menuOptions", "actionPreferences"); });
}

void Scenario::leavePreview()
{
    m_driver.clickTool("actionPreview");
    expect(itemCount(QGraphicsRectItem::Type) > 0, "the marks are gone after the preview");
    m_driver.picture("back-to-the-marks");
}

void Scenario::helpPicture(int number)
{
    if (m_helpPictures.isEmpty())
        return;
    const QString path = QString("%1/screenshot_%2.png").arg(m_helpPictures).arg(number, 2, 10, QChar('0'));
    expect(QDir().mkpath(m_helpPictures) &&
               m_driver.look().scaledToWidth(helpPictureWidth, Qt::SmoothTransformation).save(path),
           "can't write " + path);
}

QPixmap Scenario::pixmapAt(qreal z) const
{
    for (QGraphicsItem *item : m_driver.canvas().scene()->items())
        if (auto *picture = qgraphicsitem_cast<QGraphicsPixmapItem *>(item))
            if (picture->zValue() == z)
                return picture->pixmap();
    return {};
}

qsizetype Scenario::itemCount(int type) const
{
    const auto items = m_driver.canvas().scene()->items();
    return std::count_if(items.cbegin(), items.cend(),
                         [type](QGraphicsItem *item) { return item->type() == type; });
}
