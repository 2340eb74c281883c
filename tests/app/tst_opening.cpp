// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/ImageReferences.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"
#include "tests/support/WindowUnderTest.h"

#include <QGraphicsPixmapItem>

#include <cstring>

using testsupport::WindowUnderTest;

namespace {

const QString failed = "Failed to read image";

/// Writes down what becomes visible and what vanishes.
class VisibilityLog : public QObject
{
public:
    QStringList events;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            events << "show";
        if (event->type() == QEvent::Hide)
            events << "hide";
        return false;
    }
};

bool sameEdges(MainWindowProbe &probe, const QImage &picture)
{
    const auto expected = reference::edgeMap(picture);
    return std::memcmp(probe.edgeMap(), expected.data(), expected.size()) == 0;
}

} // namespace

class TestOpening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void dialogAsksAsItShould();
    void dialogStartsWhereTheLastPictureWas();
    void cancelledDialog();
    void pictureComesUp();
    void statusAndProgress();
    void fitsTheView();
    void titleIsTheFileName();
    void alphaIsDropped();
    void formatByContents();
    void directoryIsCanonical();
    void unreadableFile_data();
    void unreadableFile();
    void unreadableFileAtFirst();
    void failureLeavesAPartialState();
    void secondPictureReplacesTheFirst();
    void secondPictureWhilePreviewing();
    void backgroundChoiceStays();
    void picturesOfManySizes_data();
    void picturesOfManySizes();
    void openingWhileTheCircleIsShown_data();
    void openingWhileTheCircleIsShown();
    void openingMidStroke();
    void openWithoutTheDialog();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QImage m_picture = testpictures::blobImage(90, 60, 1);
    QImage m_other = testpictures::blobImage(40, 70, 2);
};

void TestOpening::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(m_picture.save(file("first.png")));
    QVERIFY(m_other.save(file("second.png")));
    QVERIFY(m_picture.save(file("disguised.jpg"), "PNG"));
    QVERIFY(QDir(m_folder.path()).mkpath("deep/er"));
    QVERIFY(m_picture.save(file("deep/er/a picture, v. 2.png")));
    QFile text(file("notes.txt"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("no picture at all\n");
    QFile empty(file("empty.png"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QFile whole(file("first.png"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QFile truncated(file("truncated.png"));
    QVERIFY(truncated.open(QIODevice::WriteOnly));
    truncated.write(whole.readAll().left(20));
}

void TestOpening::dialogAsksAsItShould()
{
    WindowUnderTest t;
    QString caption;
    QStringList filters;
    QWidget *parent = nullptr;
    t.answers.expect<QFileDialog>([&](QFileDialog &dialog) {
        caption = dialog.windowTitle();
        filters = dialog.nameFilters();
        parent = dialog.parentWidget();
        dialog.reject();
    });
    t.trigger("actionOpen");
    QCOMPARE(caption, QString("Open Image"));
    QCOMPARE(filters,
             QStringList({"Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif)", "All files (*.*)"}));
    QCOMPARE(parent, &t.window);
}

void TestOpening::dialogStartsWhereTheLastPictureWas()
{
    WindowUnderTest t;
    QString directory;
    const auto look = [&directory](QFileDialog &dialog) { directory = dialog.directory().absolutePath(); };
    t.openPicture(file("deep/er/a picture, v. 2.png"));
    t.answers.chooseFile(file("first.png"), look);
    t.trigger("actionOpen");
    QCOMPARE(QDir(directory), QDir(QFileInfo(file("deep/er")).canonicalFilePath()));
    t.answers.chooseFile(file("first.png"), look);
    t.trigger("actionOpen");
    QCOMPARE(QDir(directory), QDir(QFileInfo(m_folder.path()).canonicalFilePath()));
}

void TestOpening::cancelledDialog()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.dab("actionKeep_arker", 20, 20);
    t.probe.isOriginalFile() = false;
    t.probe.previewOffset() = QPoint(3, 4);
    t.probe.outmask() = {1, 2, 3};
    const QVariant directory = t.probe.settings().value("CurrDir");
    t.answers.cancelFile();
    t.trigger("actionOpen");
    QCOMPARE(t.status(), QString("No file selected"));
    QCOMPARE(t.probe.currentFile(), QString());
    QCOMPARE(t.probe.imageScene().items().size(), 2);
    QCOMPARE(t.probe.undoStack().count(), 1);
    QCOMPARE(t.probe.isOriginalFile(), false);
    QCOMPARE(t.probe.previewOffset(), QPoint(3, 4));
    QCOMPARE(t.probe.outmask().size(), 3);
    QCOMPARE(t.probe.settings().value("CurrDir"), directory);
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - first.png"));
    QCOMPARE(t.probe.workingImage(), m_picture);
    t.probe.undoStack().undo();
    QCOMPARE(t.probe.imageScene().items().size(), 1);
}

void TestOpening::pictureComesUp()
{
    WindowUnderTest t;
    t.probe.isOriginalFile() = false;
    t.openPicture(file("first.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(t.probe.workingImage().format(), QImage::Format_RGB32);
    QCOMPARE(t.probe.workingImage(), m_picture);
    QCOMPARE(t.probe.imagePixmap().toImage().convertToFormat(QImage::Format_RGB32), m_picture);
    QVERIFY(sameEdges(t.probe, m_picture));
    QCOMPARE(t.probe.isOriginalFile(), true);
    QCOMPARE(t.probe.currentFile(), file("first.png"));
    QCOMPARE(t.view.scene(), &t.probe.imageScene());
    QCOMPARE(t.probe.imageScene().sceneRect(), QRectF(0, 0, 90, 60));
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    const auto *item = qgraphicsitem_cast<QGraphicsPixmapItem *>(t.probe.imageScene().items().first());
    QVERIFY(item != nullptr);
    QCOMPARE(item->pos(), QPointF());
    QCOMPARE(item->offset(), QPointF());
    QCOMPARE(item->zValue(), 0.0);
    QCOMPARE(item->pixmap().toImage().convertToFormat(QImage::Format_RGB32), m_picture);
    QCOMPARE(t.view.cacheMode(), QGraphicsView::CacheBackground);
    QVERIFY(t.view.isVisible());
    QCOMPARE(t.probe.outmask(), QList<int>());
    QCOMPARE(t.probe.maskItem(), nullptr);
    QCOMPARE(t.probe.previewScene().items().size(), 0);
}

void TestOpening::statusAndProgress()
{
    WindowUnderTest t;
    VisibilityLog log;
    t.progressBar().installEventFilter(&log);
    t.openPicture(file("first.png"));
    QCOMPARE(t.statusTexts, QStringList({"image opened", "Image loaded. Preprocessing image.", "Ready"}));
    QCOMPARE(log.events, QStringList({"show", "hide"}));
    QVERIFY(t.progressBar().isHidden());
    QCOMPARE(t.progressBar().value(), 0);
    testsupport::settle();
    QCOMPARE(t.status(), QString("Ready")); // stays
}

void TestOpening::fitsTheView()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    // Resizing events of the scroll bars that come on may still be under way; fit once more and compare.
    t.window.open();
    const QTransform shown = t.view.transform();
    t.view.fitInView(t.probe.imageScene().sceneRect(), Qt::KeepAspectRatio);
    QCOMPARE(t.view.transform(), shown);
    QCOMPARE(shown.m11(), shown.m22());
    QVERIFY(shown.m11() > 1.0);
}

void TestOpening::titleIsTheFileName()
{
    WindowUnderTest t;
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro"));
    t.openPicture(file("deep/er/a picture, v. 2.png"));
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - a picture, v. 2.png"));
}

void TestOpening::alphaIsDropped()
{
    const QImage translucent = testpictures::randomArgbImage(31, 17, 5);
    QVERIFY(translucent.save(file("translucent.png")));
    WindowUnderTest t;
    t.openPicture(file("translucent.png"));
    QCOMPARE(t.probe.workingImage().format(), QImage::Format_RGB32);
    for (int y = 0; y < 17; ++y)
        for (int x = 0; x < 31; ++x)
            QCOMPARE(t.probe.workingImage().pixel(x, y), translucent.pixel(x, y) | 0xFF000000U);
    QVERIFY(!t.probe.imagePixmap().hasAlphaChannel());
    QVERIFY(sameEdges(t.probe, t.probe.workingImage()));
}

void TestOpening::formatByContents()
{
    WindowUnderTest t;
    t.openPicture(file("disguised.jpg"));
    QCOMPARE(t.status(), QString("Ready"));
    QCOMPARE(t.probe.workingImage(), m_picture);
}

void TestOpening::directoryIsCanonical()
{
    QVERIFY(QFile::link(file("deep/er"), file("shortcut")));
    WindowUnderTest t;
    t.openPicture(file("shortcut/a picture, v. 2.png"));
    QCOMPARE(t.probe.settings().value("CurrDir").toString(), QFileInfo(file("deep/er")).canonicalFilePath());
    QCOMPARE(QSettings().value("CurrDir").toString(), QFileInfo(file("deep/er")).canonicalFilePath());
}

void TestOpening::unreadableFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("text") << "notes.txt";
    QTest::newRow("empty") << "empty.png";
    QTest::newRow("truncated") << "truncated.png";
}

void TestOpening::unreadableFile()
{
    QFETCH(QString, name);
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.statusTexts.clear();
    t.answers.chooseFile(file(name), [](QFileDialog &dialog) { dialog.selectNameFilter("All files (*.*)"); });
    t.trigger("actionOpen");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(t.status(), failed);
    QCOMPARE(t.probe.imageScene().items().size(), 0);
    QCOMPARE(t.probe.currentFile(), file(name));
}

void TestOpening::unreadableFileAtFirst()
{
    WindowUnderTest t;
    t.answers.chooseFile(file("notes.txt"),
                         [](QFileDialog &dialog) { dialog.selectNameFilter("All files (*.*)"); });
    t.trigger("actionOpen");
    QCOMPARE(t.statusTexts, QStringList({failed}));
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro"));
    QVERIFY(t.probe.isOriginalFile());
    QVERIFY(t.probe.workingImage().isNull());
    QCOMPARE(t.probe.edgeMap(), nullptr);
    // What needs a picture goes on without one.
    t.trigger("actionMask");
    t.action("actionPreview").setChecked(true);
    t.action("actionPreview").setChecked(false);
    t.window.colorsobel();
}

void TestOpening::failureLeavesAPartialState()
{
    WindowUnderTest t;
    t.openPicture(file("deep/er/a picture, v. 2.png"));
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 60, 20);
    t.trigger("actionMask");
    t.action("actionPreview").setChecked(true);
    t.probe.previewOffset() = QPoint(5, 6);
    t.probe.isOriginalFile() = false;
    testsupport::settle(); // the progress bar came and went, and the view is resized when events are
                           // processed
    const QTransform zoom = t.view.transform();
    t.statusTexts.clear();
    t.answers.chooseFile(file("notes.txt"),
                         [](QFileDialog &dialog) { dialog.selectNameFilter("All files (*.*)"); });
    t.trigger("actionOpen");
    QCOMPARE(t.statusTexts, QStringList({failed}));
    // Gone:
    QCOMPARE(t.probe.imageScene().items().size(), 0);
    QCOMPARE(t.probe.previewScene().items().size(), 0);
    QCOMPARE(t.probe.maskItem(), nullptr);
    QCOMPARE(t.probe.backgroundItem(), nullptr);
    QCOMPARE(t.probe.previewItem(), nullptr);
    QCOMPARE(t.probe.outmask(), QList<int>());
    QCOMPARE(t.probe.undoStack().count(), 0);
    QVERIFY(t.probe.previewImage().isNull());
    QCOMPARE(t.probe.previewOffset(), QPoint());
    QVERIFY(!t.action("actionPreview").isChecked());
    QCOMPARE(t.view.scene(), &t.probe.imageScene());
    QVERIFY(t.action("actionMask").isEnabled());
    // Moved on:
    QCOMPARE(t.probe.isOriginalFile(), true);
    QCOMPARE(t.probe.currentFile(), file("notes.txt"));
    QCOMPARE(t.probe.settings().value("CurrDir").toString(), QFileInfo(m_folder.path()).canonicalFilePath());
    // Left as it was:
    QCOMPARE(t.probe.workingImage(), m_picture);
    QCOMPARE(t.probe.imagePixmap().toImage().convertToFormat(QImage::Format_RGB32), m_picture);
    QVERIFY(sameEdges(t.probe, m_picture));
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - a picture, v. 2.png"));
    QCOMPARE(t.probe.imageScene().sceneRect(), QRectF(0, 0, 90, 60));
    QCOMPARE(t.view.transform(), zoom);
}

void TestOpening::secondPictureReplacesTheFirst()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 60, 20);
    t.trigger("actionMask");
    QVERIFY(!t.probe.outmask().isEmpty());
    QVERIFY(t.probe.undoStack().count() == 2);
    t.openPicture(file("second.png"));
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    QCOMPARE(t.probe.imageScene().sceneRect(), QRectF(0, 0, 40, 70));
    QCOMPARE(t.probe.workingImage(), m_other);
    QVERIFY(sameEdges(t.probe, m_other));
    QCOMPARE(t.probe.outmask(), QList<int>());
    QCOMPARE(t.probe.maskItem(), nullptr);
    QCOMPARE(t.probe.undoStack().count(), 0);
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - second.png"));
    QVERIFY(t.action("action_Remove_Marker").isChecked()); // the chosen tool stays
}

void TestOpening::secondPictureWhilePreviewing()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.dab("actionKeep_arker", 20, 20);
    t.dab("action_Remove_Marker", 60, 20);
    t.action("actionPreview").setChecked(true);
    t.action("actionForeground_Brush").setChecked(true);
    t.mouse.move(t.at(30, 30));
    QCOMPARE(t.probe.previewScene().items().size(), 3);
    t.probe.previewOffset() = QPoint(7, 8);
    t.openPicture(file("second.png"));
    QVERIFY(!t.action("actionPreview").isChecked());
    QCOMPARE(t.view.scene(), &t.probe.imageScene());
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    QCOMPARE(t.probe.previewScene().items().size(), 0);
    QCOMPARE(t.probe.previewItem(), nullptr);
    QCOMPARE(t.probe.backgroundItem(), nullptr);
    QVERIFY(t.probe.previewImage().isNull());
    QCOMPARE(t.probe.previewOffset(), QPoint());
    QVERIFY(!t.action("actionForeground_Brush").isEnabled());
    QVERIFY(t.action("actionKeep_arker").isEnabled());
    QVERIFY(!t.action("action_Remove_Marker").isChecked());
}

void TestOpening::backgroundChoiceStays()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.probe.backgroundColor() = 0x80123456;
    t.probe.backgroundImage() = m_other;
    t.openPicture(file("second.png"));
    QCOMPARE(t.probe.backgroundColor(), 0x80123456U);
    QCOMPARE(t.probe.backgroundImage(), m_other);
}

void TestOpening::picturesOfManySizes_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size :
         {QSize(1, 1), QSize(1, 40), QSize(40, 1), QSize(2, 2), QSize(3, 7), QSize(257, 129)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void TestOpening::picturesOfManySizes()
{
    QFETCH(QSize, size);
    const QImage picture = testpictures::randomImage(size.width(), size.height(), 9);
    QVERIFY(picture.save(file("sized.png")));
    WindowUnderTest t;
    t.openPicture(file("sized.png"));
    QCOMPARE(t.status(), QString("Ready"));
    QCOMPARE(t.probe.workingImage(), picture);
    QVERIFY(sameEdges(t.probe, picture));
    t.trigger("actionMask");
    t.action("actionPreview").setChecked(true);
    QCOMPARE(t.probe.previewImage().size(), size);
}

void TestOpening::openingWhileTheCircleIsShown_data()
{
    QTest::addColumn<QString>("next");
    for (const char *next : {"move", "leave", "another tool", "grow", "preview", "mask"})
        QTest::newRow(next) << next;
}

void TestOpening::openingWhileTheCircleIsShown()
{
    QFETCH(QString, next);
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.trigger("actionBlueMarker");
    t.mouse.move(t.at(40, 30));
    QCOMPARE(t.probe.imageScene().items().size(), 2);
    t.openPicture(file("second.png"));
    if (next == "move") {
        t.mouse.move(t.at(20, 30));
    } else if (next == "leave") {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&t.view, &leave);
    } else if (next == "another tool") {
        t.trigger("actionKeep_arker");
    } else if (next == "grow") {
        t.view.updateellipse(20);
    } else if (next == "preview") {
        t.action("actionPreview").setChecked(true);
    } else {
        t.trigger("actionMask");
    }
    t.mouse.move(t.at(21, 31));
    t.action("actionPreview").setChecked(false);
    t.trigger("actionKeep_arker");
    QCOMPARE(t.probe.imageScene().items().size(), next == "mask" ? 2 : 1); // the circle went with its tool
}

void TestOpening::openingMidStroke()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    for (const DrawingTools tool :
         {ToolPen, ToolKeepMarker, ToolEraser, ToolBlueMarker, ToolKeepBrush, ToolHand}) {
        t.view.SetTool(tool);
        t.mouse.press(t.at(20, 20));
        t.mouse.move(t.at(22, 22));
        t.probe.currentFile() = file("second.png");
        t.window.open();
        t.mouse.move(t.at(24, 24));
        t.mouse.release(t.at(24, 24));
        t.probe.undoStack().undo();
        t.probe.undoStack().undo();
        QCOMPARE(t.probe.workingImage(), QImage(file("second.png")).convertToFormat(QImage::Format_RGB32));
        QCOMPARE(t.probe.undoStack().index(), 0);
    }
    t.view.SetTool(ToolNone);
    t.openPicture(file("first.png"));
    QCOMPARE(t.probe.imageScene().items().size(), 1);
}

void TestOpening::openWithoutTheDialog()
{
    WindowUnderTest t;
    t.openPicture(file("first.png"));
    t.dab("actionKeep_arker", 20, 20);
    t.probe.isOriginalFile() = false;
    t.probe.currentFile() = file("second.png");
    t.window.open(); // reads; what the dialog's slot resets is left alone
    QCOMPARE(t.probe.isOriginalFile(), false);
    QCOMPARE(t.probe.undoStack().count(), 1);
    t.probe.undoStack().undo();
    QCOMPARE(t.probe.imageScene().items().size(), 1);
    QCOMPARE(t.probe.workingImage(), m_other);
}

ORNEVO_TEST_MAIN(TestOpening)
#include "tst_opening.moc"
