// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/ExportDialog.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/Keys.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsPixmapItem>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <memory>

using testsupport::DialogAnswers;
using testsupport::MessageLog;
using testsupport::part;
using testsupport::WindowUnderTest;

namespace {

constexpr int width = 60;
constexpr int height = 44;

QPushButton &okOf(const QWidget &dialog)
{
    return *part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok);
}

QImage argb(const QImage &image)
{
    return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void formOfTheDialog();
    void heightFollowsTheWidth_data();
    void heightFollowsTheWidth();
    void freeHeight();
    void fileChooser();
    void fileChooserCancelled();
    void nameWithoutAnEnding_data();
    void nameWithoutAnEnding();
    void completedNameIsAskedAbout();
    void returnConfirmsAfterChoosing();
    void noSettingsOfTheDialogAreLost();
    void widthOfZero();
    void languageChange();
    void nothingToExport();
    void startingSize();
    void diagnostics();
    void previewNeverShown();
    void previewGoneWithTheLastPicture();
    void composition_data();
    void composition();
    void backgroundPicture_data();
    void backgroundPicture();
    void zoomedTwiceShrinksTheObject();
    void movedByHand();
    void checkerboardIsNotExported();
    void jpegIsWrittenAtFullQuality();
    void cancelAfterAFileExports();
    void cancelWithoutAFile();
    void sizeOfZero();
    void suffixes_data();
    void suffixes();
    void lostTransparency_data();
    void lostTransparency();
    void folderThatCannotBeWritten_data();
    void folderThatCannotBeWritten();
    void existingFileIsReplaced();
    void failureLeavesTheOldFile();
    void stateIsUntouched();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    void startPreview(WindowUnderTest &t)
    {
        t.openPicture(file("picture.png"));
        t.dab("actionKeep_arker", 20, 15);
        t.dab("action_Remove_Marker", 45, 5);
        t.trigger("actionPreview");
        if (t.probe.outmask().isEmpty())
            qFatal("there is no object");
    }
    /// Exports through the dialogs. A size of -1 leaves what the dialog starts with.
    void exportTo(WindowUnderTest &t, const QString &path, QSize size = {}, bool confirm = true)
    {
        t.answers.expect<ExportDialog>([size, confirm](ExportDialog &dialog) {
            QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
            if (size.isValid()) {
                QTest::mouseClick(&part<QCheckBox>(dialog, "checkBox"), Qt::LeftButton, {}, QPoint(8, 10));
                part<QSpinBox>(dialog, "spinBox").setValue(size.width());
                part<QSpinBox>(dialog, "spinBox_2").setValue(size.height());
            }
            testsupport::press(dialog, confirm ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        });
        t.answers.chooseFile(path);
        t.trigger("actionExport");
    }
    static QImage expected(WindowUnderTest &t, QSize size)
    {
        const QGraphicsPixmapItem *background = t.probe.backgroundItem();
        const reference::ExportSource source{t.probe.backgroundImage(),     t.probe.backgroundColor(),
                                             background->pixmap(),          background->boundingRect().size(),
                                             background->transform().m11(), background->transform().m22(),
                                             t.probe.previewImage(),        t.probe.previewOffset()};
        return reference::exportComposition(source, size.width(), size.height()).toImage();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QImage m_picture = testpictures::blobImage(width, height, 4);
    QImage m_backdrop = testpictures::blobImage(120, 66, 5);
};

void TestExport::initTestCase()
{
    QCOMPARE(m_picture.size(), QSize(width, height));
}

void TestExport::init()
{
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_picture.save(file("picture.png")));
}

void TestExport::formOfTheDialog()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Export"));
    QCOMPARE(dialog.size(), QSize(400, 300));
    QCOMPARE(part<QLabel>(dialog, "label").text(), QString("FileName"));
    QCOMPARE(part<QLabel>(dialog, "label_2").text(), QString());
    QCOMPARE(part<QLabel>(dialog, "label_3").text(), QString("Width"));
    QCOMPARE(part<QLabel>(dialog, "label_4").text(), QString("Height"));
    QCOMPARE(part<QPushButton>(dialog, "pushButton").text(), QString("..."));
    QCOMPARE(part<QSpinBox>(dialog, "spinBox").maximum(), 9999);
    QCOMPARE(part<QSpinBox>(dialog, "spinBox_2").maximum(), 9999);
    QCOMPARE(part<QSpinBox>(dialog, "spinBox").value(), 800);
    QCOMPARE(part<QSpinBox>(dialog, "spinBox_2").value(), 600);
    QVERIFY(part<QSpinBox>(dialog, "spinBox").isEnabled());
    QVERIFY(!part<QSpinBox>(dialog, "spinBox_2").isEnabled());
    QCOMPARE(part<QCheckBox>(dialog, "checkBox").text(), QString("Keep Aspect Ratio"));
    QVERIFY(part<QCheckBox>(dialog, "checkBox").isChecked());
    QCOMPARE(part<QDialogButtonBox>(dialog, "buttonBox").standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QVERIFY(!okOf(dialog).isEnabled());
    QVERIFY(part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel)->isEnabled());
    for (const char *name : {"verticalLayout", "verticalLayout_2", "horizontalLayout", "gridLayout"})
        QVERIFY(dialog.findChild<QLayout *>(name) != nullptr);
}

void TestExport::heightFollowsTheWidth_data()
{
    QTest::addColumn<QSize>("start");
    QTest::addColumn<int>("newWidth");
    QTest::addColumn<int>("newHeight");
    QTest::newRow("1000 of 4:3") << QSize(800, 600) << 1000 << 750;
    QTest::newRow("333 of 4:3") << QSize(800, 600) << 333 << 249;
    QTest::newRow("0") << QSize(800, 600) << 0 << 0;
    QTest::newRow("1") << QSize(800, 600) << 1 << 0;
    QTest::newRow("high") << QSize(100, 400) << 9999 << 9999;
    QTest::newRow("thirds") << QSize(300, 100) << 3 << reference::exportHeight(3, 100.0F / 300.0F);
    for (const int candidate : {7, 41, 83, 123, 997, 4999})
        QTest::addRow("single precision, %d", candidate)
            << QSize(997, 331) << candidate << reference::exportHeight(candidate, 331.0F / 997.0F);
}

void TestExport::heightFollowsTheWidth()
{
    QFETCH(QSize, start);
    QFETCH(int, newWidth);
    QFETCH(int, newHeight);
    QSettings settings;
    ExportDialog dialog(start.width(), start.height(), &settings, nullptr);
    part<QSpinBox>(dialog, "spinBox").setValue(newWidth);
    QCOMPARE(part<QSpinBox>(dialog, "spinBox_2").value(), newHeight);
}

void TestExport::freeHeight()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto &checkBox = part<QCheckBox>(dialog, "checkBox");
    auto &heightBox = part<QSpinBox>(dialog, "spinBox_2");
    QTest::mouseClick(&checkBox, Qt::LeftButton, {}, QPoint(8, checkBox.height() / 2));
    QVERIFY(!checkBox.isChecked());
    QVERIFY(heightBox.isEnabled());
    QCOMPARE(heightBox.value(), 600);
    heightBox.setValue(10);
    part<QSpinBox>(dialog, "spinBox").setValue(1000);
    QCOMPARE(heightBox.value(), 10);
    QTest::mouseClick(&checkBox, Qt::LeftButton, {}, QPoint(8, checkBox.height() / 2));
    QVERIFY(!heightBox.isEnabled());
    QCOMPARE(heightBox.value(), 750);
}

void TestExport::fileChooser()
{
    QSettings settings;
    settings.setValue("CurrDir", m_folder->path());
    ExportDialog dialog(800, 600, &settings, nullptr);
    dialog.show();
    DialogAnswers answers;
    QString caption;
    QString directory;
    QStringList filters;
    QWidget *parent = nullptr;
    bool saves = false;
    answers.chooseFile(file("out.png"), [&](QFileDialog &chooser) {
        caption = chooser.windowTitle();
        directory = chooser.directory().canonicalPath();
        filters = chooser.nameFilters();
        parent = chooser.parentWidget();
        saves = chooser.acceptMode() == QFileDialog::AcceptSave;
    });
    QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QCOMPARE(caption, QString("Save File"));
    QCOMPARE(directory, QFileInfo(m_folder->path()).canonicalFilePath());
    QCOMPARE(filters, QStringList({"JPG Files (*.jpg)", "PNG Files (*.png)"}));
    QCOMPARE(parent, &dialog);
    QVERIFY(saves);
    QCOMPARE(part<QLabel>(dialog, "label_2").text(), file("out.png"));
    QVERIFY(okOf(dialog).isEnabled());
    QVERIFY(!QFile::exists(file("out.png")));
}

void TestExport::fileChooserCancelled()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    dialog.show();
    DialogAnswers answers;
    answers.cancelFile();
    QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    QVERIFY(!okOf(dialog).isEnabled());
    QCOMPARE(part<QLabel>(dialog, "label_2").text(), QString());
    answers.chooseFile(file("out.png"));
    QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    answers.cancelFile();
    QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    QVERIFY(okOf(dialog).isEnabled());
    QCOMPARE(part<QLabel>(dialog, "label_2").text(), file("out.png"));
}

void TestExport::nameWithoutAnEnding_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("shown");
    QTest::newRow("as it comes") << "out"
                                 << ""
                                 << "out.jpg";
    QTest::newRow("png") << "out"
                         << "PNG Files (*.png)"
                         << "out.png";
    QTest::newRow("jpg again") << "out"
                               << "JPG Files (*.jpg)"
                               << "out.jpg";
    QTest::newRow("dot in the folder") << "v1.0/out"
                                       << "PNG Files (*.png)"
                                       << "v1.0/out.png";
    QTest::newRow("ending typed") << "out.jpg"
                                  << ""
                                  << "out.jpg";
    QTest::newRow("another than the filter's") << "out.png"
                                               << ""
                                               << "out.png";
}

/// The chosen filter completes the name, and that file is written.
void TestExport::nameWithoutAnEnding()
{
    QFETCH(QString, typed);
    QFETCH(QString, filter);
    QFETCH(QString, shown);
    QVERIFY(QDir(m_folder->path()).mkpath("v1.0"));
    WindowUnderTest t;
    startPreview(t);
    QString label;
    t.answers.expect<ExportDialog>([&label](ExportDialog &dialog) {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        label = part<QLabel>(dialog, "label_2").text();
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file(typed), [&filter](QFileDialog &chooser) {
        auto *filters = chooser.findChild<QComboBox *>("fileTypeCombo");
        for (int presses = 0; !filter.isEmpty() && filters->currentText() != filter && presses < 2; ++presses)
            QTest::keyClick(filters, presses == 0 ? Qt::Key_Down : Qt::Key_Up);
        // The filter that comes first counts as chosen once another was.
        if (filter.startsWith("JPG")) {
            QTest::keyClick(filters, Qt::Key_Down);
            QTest::keyClick(filters, Qt::Key_Up);
        }
        if (!filter.isEmpty())
            QCOMPARE(filters->currentText(), filter);
    });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(label, file(shown));
    QVERIFY(!QImage(file(shown)).isNull());
}

void TestExport::completedNameIsAskedAbout()
{
    QSettings settings;
    QVERIFY(QFile::copy(file("picture.png"), file("out.jpg")));
    ExportDialog dialog(800, 600, &settings, nullptr);
    dialog.show();
    DialogAnswers answers;
    answers.chooseFile(file("out"));
    QString question;
    answers.expect<QMessageBox>([&question](QMessageBox &box) {
        question = box.text();
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    answers.cancelFile(); // No leads back to the chooser
    QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QVERIFY2(question.contains("out.jpg"), qPrintable(question));
    QCOMPARE(part<QLabel>(dialog, "label_2").text(), QString());
    QVERIFY(!okOf(dialog).isEnabled());
}

/// Return opens the chooser, confirms the name there, and then the dialog.
void TestExport::returnConfirmsAfterChoosing()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    DialogAnswers answers;
    answers.chooseFile(file("out.png"));
    testsupport::pressKey(dialog, Qt::Key_Return);
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QVERIFY(dialog.isVisible());
    testsupport::pressKey(dialog, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestExport::noSettingsOfTheDialogAreLost()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    int w = 0;
    int h = 0;
    QString name = "not empty";
    dialog.GetSettings(&w, &h, &name);
    QCOMPARE(w, 800);
    QCOMPARE(h, 600);
    QCOMPARE(name, QString());
    part<QCheckBox>(dialog, "checkBox").setChecked(false);
    part<QSpinBox>(dialog, "spinBox").setValue(5);
    part<QSpinBox>(dialog, "spinBox_2").setValue(9);
    part<QLabel>(dialog, "label_2").setText("<b>file</b>.png");
    dialog.GetSettings(&w, &h, &name);
    QCOMPARE(w, 5);
    QCOMPARE(h, 9);
    QCOMPARE(name, QString("<b>file</b>.png"));
}

/// Nothing to nothing has no ratio; to any height it is as large as the box allows.
void TestExport::widthOfZero()
{
    QSettings settings;
    for (const auto &[start, following] : {std::pair(0, 0), std::pair(7, 9999)}) {
        ExportDialog dialog(0, start, &settings, nullptr);
        QCOMPARE(part<QSpinBox>(dialog, "spinBox_2").value(), start);
        part<QSpinBox>(dialog, "spinBox").setValue(3);
        QCOMPARE(part<QSpinBox>(dialog, "spinBox_2").value(), following);
    }
}

void TestExport::languageChange()
{
    QSettings settings;
    ExportDialog dialog(800, 600, &settings, nullptr);
    part<QCheckBox>(dialog, "checkBox").setText("Seitenverhältnis");
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&dialog, &event);
    QCOMPARE(part<QCheckBox>(dialog, "checkBox").text(), QString("Keep Aspect Ratio"));
}

void TestExport::nothingToExport()
{
    WindowUnderTest t;
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    t.trigger("actionPreview"); // two empty items
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(t.status(), QString("Ready"));
}

void TestExport::startingSize()
{
    WindowUnderTest t;
    QSize size;
    const auto look = [&size](ExportDialog &dialog) {
        size = QSize(part<QSpinBox>(dialog, "spinBox").value(), part<QSpinBox>(dialog, "spinBox_2").value());
        dialog.reject();
    };
    t.openPicture(file("picture.png"));
    t.answers.expect<ExportDialog>(look);
    t.trigger("actionExport");
    QCOMPARE(size, QSize(width, height));
    t.probe.backgroundImage() = m_backdrop;
    t.answers.expect<ExportDialog>(look);
    t.trigger("actionExport");
    QCOMPARE(size, m_backdrop.size());
    t.probe.workingImage() = QImage();
    t.answers.expect<ExportDialog>(look);
    t.trigger("actionExport");
    QCOMPARE(size, m_backdrop.size());
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestExport::diagnostics()
{
    WindowUnderTest t;
    MessageLog log;
    t.trigger("actionExport");
    QCOMPARE(log.taken(), QStringList({"Export"}));
}

void TestExport::previewNeverShown()
{
    WindowUnderTest t;
    t.openPicture(file("picture.png"));
    exportTo(t, file("out.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QVERIFY(!QFile::exists(file("out.png")));
}

void TestExport::previewGoneWithTheLastPicture()
{
    WindowUnderTest t;
    startPreview(t);
    t.openPicture(file("picture.png"));
    exportTo(t, file("out.png"));
    QVERIFY(!QFile::exists(file("out.png")));
    startPreview(t);
    t.trigger("actionPreview"); // off again; the layers are still there
    exportTo(t, file("out.png"));
    QCOMPARE(argb(QImage(file("out.png"))), argb(expected(t, QSize(width, height))));
}

void TestExport::composition_data()
{
    QTest::addColumn<uint>("colour");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("offset");
    const QSize own(width, height);
    QTest::newRow("white") << 0xFFFFFFFFU << own << QPoint();
    QTest::newRow("colour, moved") << 0xFF336699U << own << QPoint(7, -9);
    QTest::newRow("transparent") << 0U << own << QPoint();
    QTest::newRow("translucent") << 0x80FF0000U << own << QPoint(3, 2);
    QTest::newRow("larger") << 0xFFFFFFFFU << QSize(150, 110) << QPoint(5, 5);
    QTest::newRow("smaller") << 0xFF00FF00U << QSize(31, 23) << QPoint(-5, 7);
    QTest::newRow("stretched") << 0U << QSize(200, 20) << QPoint(-11, -11);
    QTest::newRow("one pixel") << 0xFFFFFFFFU << QSize(1, 1) << QPoint();
    QTest::newRow("moved out of sight") << 0xFF808080U << own << QPoint(1000, 1000);
}

void TestExport::composition()
{
    QFETCH(uint, colour);
    QFETCH(QSize, size);
    QFETCH(QPoint, offset);
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = colour;
    t.window.applypreviewmask();
    t.probe.previewOffset() = offset;
    exportTo(t, file("out.png"), size);
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    const QImage written(file("out.png"));
    QCOMPARE(written.size(), size);
    QCOMPARE(argb(written), argb(expected(t, size)));
}

void TestExport::backgroundPicture_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("own size") << 0 << QSize(120, 66) << QPoint();
    QTest::newRow("moved") << 0 << QSize(120, 66) << QPoint(9, 4);
    QTest::newRow("zoomed") << 2 << QSize(120, 66) << QPoint(9, 4);
    QTest::newRow("shrunk") << -3 << QSize(120, 66) << QPoint(-9, 4);
    QTest::newRow("another size") << 1 << QSize(77, 91) << QPoint(2, -4);
}

void TestExport::backgroundPicture()
{
    QFETCH(int, zoom);
    QFETCH(QSize, size);
    QFETCH(QPoint, offset);
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundImage() = m_backdrop;
    t.window.applypreviewmask();
    for (int i = 0; i < qAbs(zoom); ++i)
        t.trigger(zoom > 0 ? "actionBackgroundZoomPlus" : "actionBackgroundZoomMinus");
    t.probe.previewOffset() = offset;
    exportTo(t, file("out.png"), size);
    QCOMPARE(argb(QImage(file("out.png"))), argb(expected(t, size)));
}

void TestExport::zoomedTwiceShrinksTheObject()
{
    // A photo as large as the background, with an object that fills it.
    QVERIFY(testpictures::constantImage(200, 100, 0xFF0000FF).save(file("blue.png")));
    WindowUnderTest t;
    t.openPicture(file("blue.png"));
    t.trigger("actionPreview");
    t.probe.previewImage() = argb(testpictures::constantImage(200, 100, 0xFF0000FF));
    t.probe.backgroundImage() = testpictures::constantImage(200, 100, 0xFFFF0000);
    t.window.applypreviewmask();
    t.trigger("actionBackgroundZoomPlus");
    t.trigger("actionBackgroundZoomPlus");
    exportTo(t, file("out.png"));
    const QImage written(file("out.png"));
    QCOMPARE(written.size(), QSize(200, 100));
    int columns = 0;
    for (int x = 0; x < 200; ++x)
        columns += written.pixel(x, 0) == 0xFF0000FF;
    // 200 * 1.1025 = 220.5, truncated to 220: the object is int(200 * 200 / 220) = 181 wide.
    QCOMPARE(columns, 181);
    QCOMPARE(written.pixel(190, 50), 0xFFFF0000U);
}

void TestExport::movedByHand()
{
    WindowUnderTest t;
    startPreview(t);
    t.trigger("actionHandTool");
    t.mouse.press(t.at(30, 20));
    t.mouse.move(t.at(40, 26));
    t.mouse.release(t.at(40, 26));
    QVERIFY(!t.probe.previewOffset().isNull());
    exportTo(t, file("out.png"));
    QCOMPARE(argb(QImage(file("out.png"))), argb(expected(t, QSize(width, height))));
}

void TestExport::checkerboardIsNotExported()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0;
    t.window.applypreviewmask();
    exportTo(t, file("out.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report())); // and no warning came up
    const QImage written(file("out.png"));
    QVERIFY(written.hasAlphaChannel());
    int clear = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int alpha = qAlpha(t.probe.previewImage().pixel(x, y));
            QCOMPARE(qAlpha(written.pixel(x, y)), alpha);
            clear += alpha == 0;
        }
    QVERIFY(clear > 0);
}

void TestExport::jpegIsWrittenAtFullQuality()
{
    WindowUnderTest t;
    startPreview(t);
    exportTo(t, file("out.jpg"));
    QCOMPARE(QImageReader(file("out.jpg")).format(), QByteArray("jpeg"));
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(expected(t, QSize(width, height)).save(&buffer, "JPG", 100));
    QFile written(file("out.jpg"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), buffer.data());
}

void TestExport::cancelAfterAFileExports()
{
    WindowUnderTest t;
    startPreview(t);
    exportTo(t, file("out.png"), QSize(), false);
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(argb(QImage(file("out.png"))), argb(expected(t, QSize(width, height))));
}

void TestExport::cancelWithoutAFile()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0;
    const auto before = QDir(m_folder->path()).entryList();
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) { dialog.reject(); });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(QDir(m_folder->path()).entryList(), before);
}

void TestExport::sizeOfZero()
{
    WindowUnderTest t;
    startPreview(t);
    for (const QSize size : {QSize(0, 10), QSize(10, 0), QSize(0, 0)}) {
        exportTo(t, file("out.png"), size);
        QVERIFY(!QFile::exists(file("out.png")));
    }
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestExport::suffixes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("png") << "out.png" << QByteArray("png");
    QTest::newRow("PNG") << "out.PNG" << QByteArray("png");
    QTest::newRow("jpg") << "out.jpg" << QByteArray("jpeg");
    QTest::newRow("JPEG") << "out.JPEG" << QByteArray("jpeg");
    QTest::newRow("two dots") << "out.png.jpg" << QByteArray("jpeg");
    QTest::newRow("unknown") << "out.picture" << QByteArray();
}

void TestExport::suffixes()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);
    WindowUnderTest t;
    startPreview(t);
    exportTo(t, file(name));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(QFile::exists(file(name)), !format.isEmpty());
    QCOMPARE(QImageReader(file(name)).format(), format);
}

void TestExport::lostTransparency_data()
{
    QTest::addColumn<uint>("colour");
    QTest::addColumn<bool>("picture");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("warned");
    QTest::newRow("transparent jpg") << 0U << false << "out.jpg" << true;
    QTest::newRow("transparent JPG") << 0U << false << "out.JPG" << true;
    QTest::newRow("transparent jPeG") << 0U << false << "out.jPeG" << true;
    QTest::newRow("nearly opaque") << 0xFEFFFFFFU << false << "out.jpg" << true;
    QTest::newRow("opaque") << 0xFF000000U << false << "out.jpg" << false;
    QTest::newRow("png") << 0U << false << "out.png" << false;
    QTest::newRow("hidden by a picture") << 0U << true << "out.jpg" << true;
}

void TestExport::lostTransparency()
{
    QFETCH(uint, colour);
    QFETCH(bool, picture);
    QFETCH(QString, name);
    QFETCH(bool, warned);
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = colour;
    if (picture)
        t.probe.backgroundImage() = m_backdrop;
    t.window.applypreviewmask();
    bool alreadyWritten = false;
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    const QWidget *parent = &t.window;
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file(name));
    if (warned)
        t.answers.expect<QMessageBox>([&](QMessageBox &box) {
            alreadyWritten = QFile::exists(file(name));
            title = box.windowTitle();
            text = box.text();
            icon = box.icon();
            buttons = box.standardButtons();
            parent = box.parentWidget();
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QVERIFY(QFile::exists(file(name)));
    if (!warned)
        return;
    QVERIFY(alreadyWritten);
    QCOMPARE(title, QString("Transparency was lost"));
    QCOMPARE(text,
             QString("You've selected a transparent background color but saving as jpeg. Transparency of the "
                     "color was lost. Please choose .png to save transparent backgrounds"));
    QCOMPARE(icon, QMessageBox::Warning);
    QCOMPARE(buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(parent, nullptr);
}

void TestExport::folderThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << "missing/out.png";
    QTest::newRow("a file for a folder") << "picture.png/out.png";
    QTest::newRow("no right to write") << "locked/out.png";
    QTest::newRow("a folder of that name") << "folder.png";
}

void TestExport::folderThatCannotBeWritten()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkpath("folder.png/inside"));
    QVERIFY(QDir(m_folder->path()).mkpath("locked"));
    QVERIFY(QFile::setPermissions(file("locked"), QFile::ReadOwner | QFile::ExeOwner));
    if (name.startsWith("locked") && QFileInfo(file("locked")).isWritable())
        QSKIP("this user may write everywhere");
    WindowUnderTest t;
    startPreview(t);
    t.statusTexts.clear();
    t.answers.expect<ExportDialog>([&](ExportDialog &dialog) {
        part<QLabel>(dialog, "label_2").setText(file(name)); // the chooser itself would object
        okOf(dialog).setEnabled(true);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report())); // nothing is reported
    QCOMPARE(t.statusTexts, QStringList());
    QVERIFY(!QFileInfo(file(name)).isFile());
    QCOMPARE(argb(QImage(file("picture.png"))), argb(m_picture));
    QFile::setPermissions(file("locked"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestExport::existingFileIsReplaced()
{
    QFile old(file("out.png"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(100000, 'x'));
    old.close();
    WindowUnderTest t;
    startPreview(t);
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file("out.png"));
    t.answers.expect<QMessageBox>([](QMessageBox &box) { // of the file chooser
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(argb(QImage(file("out.png"))), argb(expected(t, QSize(width, height))));
}

void TestExport::failureLeavesTheOldFile()
{
    QFile old(file("out.picture"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("what was there");
    old.close();
    WindowUnderTest t;
    startPreview(t);
    t.answers.expect<ExportDialog>([&](ExportDialog &dialog) {
        part<QLabel>(dialog, "label_2").setText(file("out.picture"));
        dialog.accept();
    });
    t.trigger("actionExport");
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("what was there"));
}

void TestExport::stateIsUntouched()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundImage() = m_backdrop;
    t.window.applypreviewmask();
    t.trigger("actionBackgroundZoomPlus");
    t.probe.previewOffset() = QPoint(3, 4);
    const QImage cutOut = t.probe.previewImage();
    const auto items = t.probe.previewScene().items();
    const QTransform zoom = t.probe.backgroundItem()->transform();
    const QVariant directory = t.probe.settings().value("CurrDir");
    const int commands = t.probe.undoStack().count();
    t.statusTexts.clear();
    exportTo(t, file("out.png"), QSize(40, 40));
    exportTo(t, file("again.jpg"), QSize(40, 40));
    QCOMPARE(t.probe.previewImage(), cutOut);
    QCOMPARE(t.probe.backgroundImage(), m_backdrop);
    QCOMPARE(t.probe.previewScene().items(), items);
    QCOMPARE(t.probe.backgroundItem()->transform(), zoom);
    QCOMPARE(t.probe.previewOffset(), QPoint(3, 4));
    QCOMPARE(t.probe.settings().value("CurrDir"), directory);
    QCOMPARE(t.probe.undoStack().count(), commands);
    QCOMPARE(t.statusTexts, QStringList());
}

ORNEVO_TEST_MAIN(TestExport)
#include "tst_export.moc"
