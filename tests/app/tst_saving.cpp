// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGraphicsPixmapItem>
#include <QImageReader>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>

using testsupport::action;
using testsupport::contentsOf;
using testsupport::status;

class TestSaving : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void question();
    void noLeavesAllAsItWas_data();
    void noLeavesAllAsItWas();
    void yesSavesAndReopens();
    void questionComesAgain();
    void saveAs();
    void saveAsCancelled();
    void saveAsStartsInTheLastFolder();
    void pngNameHoldsJpeg();
    void overlayAfterMask();
    void overlayGoesWithSaving();
    void previewIsLeft();
    void transparencyIsFlattened();
    void fullStrength();
    void fullDisk();
    void pathsThatTakeNoFile_data();
    void pathsThatTakeNoFile();
    void withoutAPhoto();

private:
    void openPhoto();
    void mark();
    static QImage throughJpeg(const QImage &picture);
    int answerQuestion(QMessageBox::StandardButton button);
    int saveAs(const QString &path);

    std::unique_ptr<QTemporaryDir> folder;
    QString photo;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<MainWindowProbe> probe;
};

void TestSaving::init()
{
    QSettings().clear();
    folder = std::make_unique<QTemporaryDir>();
    photo = folder->filePath("photo.png");
    QVERIFY(testpictures::blobImage(90, 70, 3).save(photo));
    window = std::make_unique<MainWindow>();
    probe = std::make_unique<MainWindowProbe>(*window);
    testsupport::show(*window);
}

void TestSaving::cleanup()
{
    probe.reset();
    window.reset();
    folder.reset();
}

void TestSaving::openPhoto()
{
    testsupport::openPhoto(*window, photo);
}

void TestSaving::mark()
{
    action(*window, "actionKeep_arker")->trigger();
    testsupport::CanvasMouse(*testsupport::canvas(*window)).draw({{40, 35}, {45, 35}, {50, 35}});
    action(*window, "action_Remove_Marker")->trigger();
    testsupport::CanvasMouse(*testsupport::canvas(*window)).draw({{8, 8}, {8, 60}, {80, 60}});
}

/// What is left of a picture after the way through a file.
QImage TestSaving::throughJpeg(const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    picture.convertToFormat(QImage::Format_ARGB32).save(&buffer, "JPG", 100);
    return QImage::fromData(buffer.data(), "JPG").convertToFormat(QImage::Format_RGB32);
}

/// Saves and answers the question; returns how often it was asked.
int TestSaving::answerQuestion(QMessageBox::StandardButton button)
{
    testsupport::DialogAnswers answers;
    answers.expect<QMessageBox>(
        [button](QMessageBox &box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
    action(*window, "actionSave")->trigger();
    return answers.given();
}

int TestSaving::saveAs(const QString &path)
{
    testsupport::DialogAnswers answers;
    if (path.isEmpty())
        answers.expect<QFileDialog>(testsupport::pressEscape);
    else
        answers.chooseFile(path);
    action(*window, "actionSave_As")->trigger();
    return answers.given();
}

void TestSaving::question()
{
    openPhoto();
    testsupport::DialogAnswers answers;
    answers.expect<QMessageBox>([this](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), "Save file?");
        QCOMPARE(box.text(),
                 "You are going to overwrite your original file.\nAre you sure you want to continue?");
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.defaultButton(), qobject_cast<QPushButton *>(box.button(QMessageBox::Yes)));
        QCOMPARE(box.parentWidget(), window.get());
        testsupport::pressEscape(box);
    });
    const QByteArray before = contentsOf(photo);
    action(*window, "actionSave")->trigger();
    QCOMPARE(answers.given(), 1);
    QCOMPARE(contentsOf(photo), before);
}

void TestSaving::noLeavesAllAsItWas_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("No") << false;
    QTest::newRow("Escape") << true;
}

void TestSaving::noLeavesAllAsItWas()
{
    QFETCH(bool, escape);
    openPhoto();
    mark();
    action(*window, "actionMask")->trigger();
    const QByteArray before = contentsOf(photo);
    const QList<QGraphicsItem *> items = probe->imageScene().items();
    const QList<int> outmask = probe->outmask();
    const QString message = status(*window);
    const int entries = probe->undoStack().count();
    QVERIFY(entries > 0);
    if (escape) {
        testsupport::DialogAnswers answers;
        answers.expect<QMessageBox>(testsupport::pressEscape);
        action(*window, "actionSave")->trigger();
        QCOMPARE(answers.given(), 1);
    } else {
        QCOMPARE(answerQuestion(QMessageBox::No), 1);
    }
    QCOMPARE(contentsOf(photo), before);
    QCOMPARE(probe->imageScene().items(), items);
    QCOMPARE(probe->outmask(), outmask);
    QCOMPARE(status(*window), message);
    QCOMPARE(probe->undoStack().count(), entries);
    QVERIFY(probe->isOriginalFile());
    QCOMPARE(probe->currentFile(), photo);
}

void TestSaving::yesSavesAndReopens()
{
    openPhoto();
    mark();
    const QImage before = probe->workingImage().copy();
    testsupport::DialogAnswers answers;
    answers.expect<QMessageBox>(
        [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); }); // the default
    action(*window, "actionSave")->trigger();
    QCOMPARE(answers.given(), 1);
    QVERIFY(contentsOf(photo).startsWith("\xFF\xD8\xFF"));
    QCOMPARE(probe->workingImage(), throughJpeg(before)); // what is worked on is what the file holds
    QCOMPARE(probe->imageScene().items().size(), 1);
    QVERIFY(probe->outmask().isEmpty());
    QCOMPARE(status(*window), "Ready");
    QVERIFY(probe->isOriginalFile());
}

void TestSaving::questionComesAgain()
{
    openPhoto();
    QCOMPARE(answerQuestion(QMessageBox::Yes), 1);
    QCOMPARE(answerQuestion(QMessageBox::Yes), 1);
}

void TestSaving::saveAs()
{
    openPhoto();
    const QByteArray original = contentsOf(photo);
    const QImage before = probe->workingImage().copy();
    const QString copy = folder->filePath("copy.jpg");
    QCOMPARE(saveAs(copy), 1);
    QCOMPARE(contentsOf(photo), original);
    QCOMPARE(QImage(copy).convertToFormat(QImage::Format_RGB32), throughJpeg(before));
    QCOMPARE(probe->currentFile(), copy);
    QVERIFY(!probe->isOriginalFile());
    QCOMPARE(window->windowTitle(), "Ornevo Pro - copy.jpg");
    QCOMPARE(status(*window), "Ready");
    // A copy of our own is overwritten without a question.
    QCOMPARE(answerQuestion(QMessageBox::Yes), 0);
    QVERIFY(!probe->isOriginalFile());
    openPhoto();
    QCOMPARE(answerQuestion(QMessageBox::No), 1);
}

void TestSaving::saveAsCancelled()
{
    openPhoto();
    mark();
    const QList<QGraphicsItem *> items = probe->imageScene().items();
    QCOMPARE(saveAs(QString()), 1);
    QCOMPARE(status(*window), "No file selected");
    QCOMPARE(probe->currentFile(), photo);
    QVERIFY(probe->isOriginalFile());
    QCOMPARE(probe->imageScene().items(), items);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"photo.png"});
}

void TestSaving::saveAsStartsInTheLastFolder()
{
    openPhoto();
    testsupport::DialogAnswers answers;
    answers.expect<QFileDialog>([this](QFileDialog &chooser) {
        QCOMPARE(chooser.windowTitle(), "Save File");
        QCOMPARE(chooser.directory().canonicalPath(), QDir(folder->path()).canonicalPath());
        QCOMPARE(chooser.nameFilters(), QStringList{"JPG Files (*.jpg)"});
        QCOMPARE(chooser.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(chooser.parentWidget(), window.get());
        testsupport::pressEscape(chooser);
    });
    action(*window, "actionSave_As")->trigger();
    QCOMPARE(answers.given(), 1);
}

void TestSaving::pngNameHoldsJpeg()
{
    openPhoto();
    const QString name = folder->filePath("copy.png");
    QCOMPARE(saveAs(name), 1);
    QCOMPARE(QImageReader::imageFormat(name), "jpeg");
    QCOMPARE(probe->currentFile(), name);
    QCOMPARE(status(*window), "Ready"); // and it opens again in spite of its name
    QCOMPARE(probe->workingImage().size(), QSize(90, 70));
}

void TestSaving::overlayAfterMask()
{
    openPhoto();
    mark();
    action(*window, "actionMask")->trigger();
    QVERIFY(probe->maskItem() != nullptr);
    const QImage overlay = probe->maskItem()->pixmap().toImage();
    QVERIFY(!probe->outmask().isEmpty());
    const QString name = folder->filePath("overlay.jpg");
    QCOMPARE(saveAs(name), 1);
    const QImage saved = QImage(name).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(saved, throughJpeg(overlay));
    const QColor object = saved.pixelColor(45, 35);
    QVERIFY(object.green() > 220 && object.red() < 60 && object.blue() < 60);
    const QColor outside = saved.pixelColor(8, 30);
    QVERIFY(outside.green() > 220 && outside.red() > 220 && outside.blue() > 220);
}

void TestSaving::overlayGoesWithSaving()
{
    openPhoto();
    mark();
    action(*window, "actionMask")->trigger();
    QCOMPARE(saveAs(folder->filePath("overlay.jpg")), 1);
    QVERIFY(probe->maskItem() == nullptr);
    QCOMPARE(probe->imageScene().items().size(), 1);
    action(*window, "actionMask")->trigger(); // no dead item in the way
    QCOMPARE(status(*window), "Ready");
}

/// The cut-out goes with the photo that it was cut from, as when another one is opened.
void TestSaving::previewIsLeft()
{
    for (const bool as : {false, true}) {
        openPhoto();
        mark();
        action(*window, "actionPreview")->trigger();
        QVERIFY(action(*window, "actionPreview")->isChecked());
        if (as)
            QCOMPARE(saveAs(folder->filePath("copy.jpg")), 1);
        else
            QCOMPARE(answerQuestion(QMessageBox::Yes), 1);
        QVERIFY(!action(*window, "actionPreview")->isChecked());
        QVERIFY(action(*window, "actionMask")->isEnabled());
        QCOMPARE(testsupport::canvas(*window)->scene(), &probe->imageScene());
    }
    openPhoto();
    action(*window, "actionPreview")->trigger();
    QCOMPARE(answerQuestion(QMessageBox::No), 1);
    QVERIFY(action(*window, "actionPreview")->isChecked());
}

void TestSaving::transparencyIsFlattened()
{
    openPhoto();
    QPixmap pixmap(90, 70);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(20, 20, 30, 30, Qt::blue);
    painter.end();
    auto *item = new QGraphicsPixmapItem(pixmap);
    item->setZValue(30);
    probe->imageScene().addItem(item);
    const QString name = folder->filePath("flat.jpg");
    window->save(name);
    const QImage saved(name);
    QCOMPARE(saved.size(), QSize(90, 70));
    QVERIFY(saved.pixelColor(35, 35).blue() > 220 && saved.pixelColor(35, 35).red() < 40);
    QVERIFY(saved.pixelColor(80, 10).lightness() < 20); // nothing shines through where the pixels were clear
    QVERIFY(!saved.hasAlphaChannel());
}

void TestSaving::fullStrength()
{
    openPhoto();
    QPixmap pixmap(30, 20);
    pixmap.fill(QColor(200, 40, 40));
    auto *item = new QGraphicsPixmapItem(pixmap);
    item->setZValue(30);
    item->setOpacity(0.1);
    item->setPos(50, 40);
    probe->imageScene().addItem(item);
    const QString name = folder->filePath("strong.jpg");
    window->save(name);
    QCOMPARE(QImage(name).convertToFormat(QImage::Format_RGB32), throughJpeg(pixmap.toImage()));
}

void TestSaving::fullDisk()
{
    openPhoto();
    const QByteArray before = contentsOf(photo);
    {
        const testsupport::FullDisk full(600);
        window->save(photo);
        window->save(folder->filePath("new.jpg"));
    }
    QCOMPARE(contentsOf(photo), before);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"photo.png"});
}

void TestSaving::pathsThatTakeNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << "missing/copy.jpg";
    QTest::newRow("a file for a folder") << "photo.png/copy.jpg";
    QTest::newRow("a folder") << ".";
    QTest::newRow("takes none from anybody") << "/proc/copy.jpg";
}

void TestSaving::pathsThatTakeNoFile()
{
    QFETCH(QString, name);
    openPhoto();
    const QByteArray before = contentsOf(photo);
    window->save(QDir(folder->path()).absoluteFilePath(name));
    QCOMPARE(contentsOf(photo), before);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"photo.png"});
    QCOMPARE(probe->imageScene().items().size(), 1);
    // The whole way: what could not be written can't be reopened either, and the status bar says so.
    probe->currentFile() = QDir(folder->path()).absoluteFilePath(name);
    probe->isOriginalFile() = false;
    action(*window, "actionSave")->trigger();
    QCOMPARE(status(*window), "Failed to read image");
    QCOMPARE(contentsOf(photo), before);
}

void TestSaving::withoutAPhoto()
{
    QCOMPARE(answerQuestion(QMessageBox::Yes), 0);
    QCOMPARE(status(*window), "Failed to read image");
    const QString name = folder->filePath("nothing.jpg");
    window->save(name);
    QVERIFY(!QFile::exists(name));
    QCOMPARE(saveAs(name), 1);
    QVERIFY(!QFile::exists(name));
    QCOMPARE(status(*window), "Failed to read image");
    QVERIFY(!probe->isOriginalFile());
}

ORNEVO_TEST_MAIN(TestSaving)
#include "tst_saving.moc"
