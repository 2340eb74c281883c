// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"
#include "tests/reference/MaskReference.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/Keys.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QColorDialog>
#include <QGraphicsPixmapItem>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <cmath>

using testsupport::DialogAnswers;
using testsupport::part;
using testsupport::WindowUnderTest;

namespace {

constexpr int width = 60;
constexpr int height = 44;

void choose(QWidget &dialog, const char *radioButton)
{
    auto &button = part<QRadioButton>(dialog, radioButton);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    if (!button.isChecked())
        qFatal("%s does not take a click", radioButton);
}

void press(const QWidget &dialog, const char *button)
{
    QTest::mouseClick(&part<QPushButton>(dialog, button), Qt::LeftButton);
}

/// Of the colour and of the picture.
QPair<bool, bool> choosersEnabled(const QWidget &dialog)
{
    return {part<QPushButton>(dialog, "pushButton").isEnabled(),
            part<QPushButton>(dialog, "pushButton_2").isEnabled()};
}

} // namespace

class TestBackground : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void formOfTheDialog();
    void radioButtonsEnableTheChoosers();
    void colourChooser_data();
    void colourChooser();
    void colourChooserAsks();
    void colourChooserCancelled();
    void pictureChooser();
    void pictureChooserCancelled();
    void chosenColourIsUsed();
    void chosenPictureIsUsed();
    void cancelledChoosersChangeNothing();
    void answers_data();
    void answers();
    void cancelIsNotAccepted();
    void languageChange();
    void dialogStartsAnew();
    void cancelChangesNothing();
    void colourChoice_data();
    void colourChoice();
    void pictureChoice();
    void unreadablePicture();
    void pictureWithoutAName();
    void zoomOfAColour();
    void zoomOfAPicture();
    void zoomIsLostOnRebuild();
    void choiceKeepsBrushWork();

private:
    QString picture() const { return m_folder.filePath("picture.png"); }
    QString backdrop() const { return m_folder.filePath("backdrop.png"); }
    void startPreview(WindowUnderTest &t)
    {
        t.openPicture(picture());
        t.dab("actionKeep_arker", 20, 15);
        t.dab("action_Remove_Marker", 45, 5);
        t.trigger("actionPreview");
    }
    static void accept(WindowUnderTest &t, const char *radioButton)
    {
        t.answers.expect<BackgroundDialog>([radioButton](BackgroundDialog &dialog) {
            choose(dialog, radioButton);
            testsupport::press(dialog, QDialogButtonBox::Ok);
        });
        t.trigger("actionSelect_Background");
    }
    void acceptPicture(WindowUnderTest &t, const QString &path)
    {
        t.answers.expect<BackgroundDialog>([](BackgroundDialog &dialog) {
            choose(dialog, "pictureradioButton");
            press(dialog, "pushButton_2");
            testsupport::press(dialog, QDialogButtonBox::Ok);
        });
        t.answers.chooseFile(path);
        t.trigger("actionSelect_Background");
    }

    QTemporaryDir m_folder;
    QImage m_picture = testpictures::blobImage(width, height, 4);
    QImage m_backdrop = testpictures::blobImage(100, 50, 5);
};

void TestBackground::initTestCase()
{
    QVERIFY(m_picture.save(picture()));
    QVERIFY(m_backdrop.save(backdrop()));
    QFile broken(m_folder.filePath("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
}

void TestBackground::formOfTheDialog()
{
    BackgroundDialog dialog;
    QCOMPARE(dialog.windowTitle(), QString("Select Background Color or Picture"));
    QCOMPARE(dialog.size(), QSize(400, 300));
    QCOMPARE(part<QRadioButton>(dialog, "pictureradioButton").text(), QString("Use picture"));
    QCOMPARE(part<QRadioButton>(dialog, "colorradioButton").text(), QString("Use color"));
    QCOMPARE(part<QRadioButton>(dialog, "whiteradioButton").text(), QString("Use White"));
    QCOMPARE(part<QRadioButton>(dialog, "transparentradioButton").text(), QString("Use Transparent"));
    QVERIFY(!part<QRadioButton>(dialog, "pictureradioButton").isChecked());
    QVERIFY(!part<QRadioButton>(dialog, "colorradioButton").isChecked());
    QVERIFY(part<QRadioButton>(dialog, "whiteradioButton").isChecked());
    QVERIFY(!part<QRadioButton>(dialog, "transparentradioButton").isChecked());
    QCOMPARE(part<QLabel>(dialog, "picturelabel").text(), QString());
    QCOMPARE(part<QLabel>(dialog, "colorlabel").text(), QString("FFFFFFFF"));
    QCOMPARE(part<QPushButton>(dialog, "pushButton").text(), QString("\"...\""));
    QCOMPARE(part<QPushButton>(dialog, "pushButton_2").text(), QString("\"...\""));
    QVERIFY(dialog.findChild<QVBoxLayout *>("verticalLayout") != nullptr);
    QVERIFY(dialog.findChild<QGridLayout *>("gridLayout") != nullptr);
    const auto &box = part<QDialogButtonBox>(dialog, "buttonBox");
    QCOMPARE(box.standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(dialog.accepted, false);
    QCOMPARE(dialog.picturePath, QString());
}

void TestBackground::radioButtonsEnableTheChoosers()
{
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    choose(dialog, "pictureradioButton");
    QCOMPARE(choosersEnabled(dialog), qMakePair(false, true));
    choose(dialog, "colorradioButton");
    QCOMPARE(choosersEnabled(dialog), qMakePair(true, false));
    choose(dialog, "whiteradioButton");
    QCOMPARE(choosersEnabled(dialog), qMakePair(false, false));
    choose(dialog, "colorradioButton");
    choose(dialog, "transparentradioButton");
    QCOMPARE(choosersEnabled(dialog), qMakePair(false, false));
}

void TestBackground::colourChooser_data()
{
    QTest::addColumn<uint>("colour");
    QTest::addColumn<QString>("label");
    QTest::newRow("opaque") << 0xFF12ABEFU << "ff12abef";
    QTest::newRow("alpha 5") << 0x05FF0000U << " 5ff0000";
    QTest::newRow("alpha 0") << 0x00000001U << "       1";
    QTest::newRow("white") << 0xFFFFFFFFU << "ffffffff";
}

void TestBackground::colourChooser()
{
    QFETCH(uint, colour);
    QFETCH(QString, label);
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    DialogAnswers answers;
    answers.expect<QColorDialog>([colour](QColorDialog &chooser) {
        chooser.setCurrentColor(QColor::fromRgba(colour));
        testsupport::press(chooser, QDialogButtonBox::Ok);
    });
    choose(dialog, "colorradioButton");
    press(dialog, "pushButton");
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QCOMPARE(part<QLabel>(dialog, "colorlabel").text(), label);
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.accepted);
    QVERIFY(dialog.useColor);
    QCOMPARE(dialog.color, colour);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestBackground::colourChooserAsks()
{
    BackgroundDialog dialog;
    dialog.show();
    DialogAnswers answers;
    QString title;
    QColor initial;
    bool alpha = false;
    QWidget *parent = nullptr;
    answers.expect<QColorDialog>([&](QColorDialog &chooser) {
        title = chooser.windowTitle();
        initial = chooser.currentColor();
        alpha = chooser.testOption(QColorDialog::ShowAlphaChannel);
        parent = chooser.parentWidget();
        chooser.reject();
    });
    choose(dialog, "colorradioButton");
    press(dialog, "pushButton");
    QCOMPARE(title, QString("Please select the background color"));
    QCOMPARE(initial, QColor(Qt::white));
    QVERIFY(alpha);
    QCOMPARE(parent, &dialog);
}

void TestBackground::colourChooserCancelled()
{
    BackgroundDialog dialog;
    dialog.show();
    DialogAnswers answers;
    answers.expect<QColorDialog>([](QColorDialog &chooser) {
        chooser.setCurrentColor(Qt::red);
        chooser.reject();
    });
    choose(dialog, "colorradioButton");
    press(dialog, "pushButton");
    QCOMPARE(part<QLabel>(dialog, "colorlabel").text(), QString("FFFFFFFF"));
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(dialog.color, 0xFFFFFFFFU);
}

void TestBackground::pictureChooser()
{
    BackgroundDialog dialog;
    dialog.show();
    DialogAnswers answers;
    QString caption;
    QStringList filters;
    QWidget *parent = nullptr;
    answers.chooseFile(backdrop(), [&](QFileDialog &chooser) {
        caption = chooser.windowTitle();
        filters = chooser.nameFilters();
        parent = chooser.parentWidget();
    });
    choose(dialog, "pictureradioButton");
    press(dialog, "pushButton_2");
    QCOMPARE(caption, QString("Open Image"));
    QCOMPARE(filters, QStringList({"Image Files (*.png *.jpg *.bmp)"}));
    QCOMPARE(parent, &dialog);
    QCOMPARE(part<QLabel>(dialog, "picturelabel").text(), backdrop());
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.accepted);
    QVERIFY(!dialog.useColor);
    QCOMPARE(dialog.picturePath, backdrop());
}

void TestBackground::pictureChooserCancelled()
{
    BackgroundDialog dialog;
    dialog.show();
    part<QLabel>(dialog, "picturelabel").setText("/somewhere/else.png");
    DialogAnswers answers;
    answers.cancelFile();
    choose(dialog, "pictureradioButton");
    press(dialog, "pushButton_2");
    QCOMPARE(part<QLabel>(dialog, "picturelabel").text(), QString("/somewhere/else.png"));
}

/// "Use White" is ticked and both choosers are enabled: whoever chooses something there wants it, and
/// confirms it with Return.
void TestBackground::chosenColourIsUsed()
{
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    DialogAnswers answers;
    answers.expect<QColorDialog>([](QColorDialog &chooser) {
        chooser.setCurrentColor(QColor::fromRgba(0xFF12ABEF));
        testsupport::press(chooser, QDialogButtonBox::Ok);
    });
    press(dialog, "pushButton");
    QVERIFY(part<QRadioButton>(dialog, "colorradioButton").isChecked());
    QCOMPARE(choosersEnabled(dialog), qMakePair(true, false));
    testsupport::pressKey(dialog, Qt::Key_Return);
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QVERIFY(dialog.accepted);
    QVERIFY(dialog.useColor);
    QCOMPARE(dialog.color, 0xFF12ABEFU);
}

void TestBackground::chosenPictureIsUsed()
{
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    DialogAnswers answers;
    answers.chooseFile(backdrop());
    press(dialog, "pushButton_2");
    QVERIFY(part<QRadioButton>(dialog, "pictureradioButton").isChecked());
    QCOMPARE(choosersEnabled(dialog), qMakePair(false, true));
    testsupport::pressKey(dialog, Qt::Key_Return);
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QVERIFY(dialog.accepted);
    QVERIFY(!dialog.useColor);
    QCOMPARE(dialog.picturePath, backdrop());
}

void TestBackground::cancelledChoosersChangeNothing()
{
    BackgroundDialog dialog;
    dialog.show();
    DialogAnswers answers;
    answers.expect<QColorDialog>([](QColorDialog &chooser) { chooser.reject(); });
    press(dialog, "pushButton");
    answers.cancelFile();
    press(dialog, "pushButton_2");
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QVERIFY(part<QRadioButton>(dialog, "whiteradioButton").isChecked());
    QCOMPARE(choosersEnabled(dialog), qMakePair(true, true));
    QCOMPARE(part<QLabel>(dialog, "colorlabel").text(), QString("FFFFFFFF"));
    QCOMPARE(part<QLabel>(dialog, "picturelabel").text(), QString());
}

void TestBackground::answers_data()
{
    QTest::addColumn<QString>("radioButton");
    QTest::addColumn<QString>("colourText");
    QTest::addColumn<QString>("pathText");
    QTest::addColumn<bool>("useColour");
    QTest::addColumn<uint>("colour");
    QTest::newRow("as it comes") << ""
                                 << "FFFFFFFF"
                                 << "" << true << 0xFFFFFFFFU;
    QTest::newRow("white") << "whiteradioButton"
                           << "11223344"
                           << "/a.png" << true << 0xFFFFFFFFU;
    QTest::newRow("transparent") << "transparentradioButton"
                                 << "11223344"
                                 << "/a.png" << true << 0U;
    QTest::newRow("colour untouched") << "colorradioButton"
                                      << "FFFFFFFF"
                                      << "" << true << 0xFFFFFFFFU;
    QTest::newRow("colour") << "colorradioButton"
                            << "11223344"
                            << "/a.png" << true << 0x11223344U;
    QTest::newRow("padded colour") << "colorradioButton"
                                   << " 5ff0000"
                                   << "" << true << 0x05FF0000U;
    QTest::newRow("much padded colour") << "colorradioButton"
                                        << "       0"
                                        << "" << true << 0U;
    QTest::newRow("unreadable colour") << "colorradioButton"
                                       << "no colour"
                                       << "" << true << 0U;
    QTest::newRow("colour too long") << "colorradioButton"
                                     << "1FFFFFFFF"
                                     << "" << true << 0U;
    QTest::newRow("picture") << "pictureradioButton"
                             << "11223344"
                             << "/a.png" << false << 0U;
    QTest::newRow("no picture") << "pictureradioButton"
                                << "11223344"
                                << "" << true << 0xFFFFFFFFU;
}

void TestBackground::answers()
{
    QFETCH(QString, radioButton);
    QFETCH(QString, colourText);
    QFETCH(QString, pathText);
    QFETCH(bool, useColour);
    QFETCH(uint, colour);
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    if (!radioButton.isEmpty())
        choose(dialog, radioButton.toLatin1());
    part<QLabel>(dialog, "colorlabel").setText(colourText);
    part<QLabel>(dialog, "picturelabel").setText(pathText);
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.accepted);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.useColor, useColour);
    if (useColour)
        QCOMPARE(dialog.color, colour);
    else
        QCOMPARE(dialog.picturePath, pathText);
}

void TestBackground::cancelIsNotAccepted()
{
    BackgroundDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    choose(dialog, "transparentradioButton");
    testsupport::press(dialog, QDialogButtonBox::Cancel);
    QVERIFY(!dialog.accepted);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    dialog.close();
    QVERIFY(!dialog.accepted);
}

void TestBackground::languageChange()
{
    BackgroundDialog dialog;
    part<QRadioButton>(dialog, "whiteradioButton").setText("Weiß");
    dialog.setWindowTitle("Hintergrund");
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(&dialog, &event);
    QCOMPARE(part<QRadioButton>(dialog, "whiteradioButton").text(), QString("Use White"));
    QCOMPARE(dialog.windowTitle(), QString("Select Background Color or Picture"));
}

void TestBackground::dialogStartsAnew()
{
    WindowUnderTest t;
    startPreview(t);
    acceptPicture(t, backdrop());
    bool white = false;
    QString label;
    t.answers.expect<BackgroundDialog>([&](BackgroundDialog &dialog) {
        white = part<QRadioButton>(dialog, "whiteradioButton").isChecked();
        label = part<QLabel>(dialog, "picturelabel").text();
        dialog.reject();
    });
    t.trigger("actionSelect_Background");
    QVERIFY(white);
    QCOMPARE(label, QString());
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestBackground::cancelChangesNothing()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0x11223344;
    t.probe.previewOffset() = QPoint(4, 5);
    const auto items = t.probe.previewScene().items();
    for (const bool close : {true, false}) {
        t.answers.expect<BackgroundDialog>([close](BackgroundDialog &dialog) {
            choose(dialog, "transparentradioButton");
            if (close)
                dialog.close();
            else
                testsupport::press(dialog, QDialogButtonBox::Cancel);
        });
        t.trigger("actionSelect_Background");
        QCOMPARE(t.probe.backgroundColor(), 0x11223344U);
        QCOMPARE(t.probe.previewOffset(), QPoint(4, 5));
        QCOMPARE(t.probe.previewScene().items(), items);
    }
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestBackground::colourChoice_data()
{
    QTest::addColumn<QString>("radioButton");
    QTest::addColumn<uint>("colour");
    QTest::newRow("white") << "whiteradioButton" << 0xFFFFFFFFU;
    QTest::newRow("transparent") << "transparentradioButton" << 0U;
    QTest::newRow("the label's colour") << "colorradioButton" << 0xFFFFFFFFU;
}

void TestBackground::colourChoice()
{
    QFETCH(QString, radioButton);
    QFETCH(uint, colour);
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0x11223344;
    t.probe.backgroundImage() = m_backdrop;
    t.probe.previewOffset() = QPoint(4, 5);
    t.statusTexts.clear();
    accept(t, radioButton.toLatin1());
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(t.probe.backgroundColor(), colour);
    QVERIFY(t.probe.backgroundImage().isNull());
    QCOMPARE(t.probe.previewOffset(), QPoint());
    QCOMPARE(t.probe.previewItem()->pos(), QPointF());
    QCOMPARE(t.status(), QString("Ready"));
    const QPixmap expected =
        reference::backgroundLayer(colour, QImage(), QImage(":/icons/chessbackground.png"), width, height);
    QCOMPARE(t.probe.backgroundItem()->pixmap().toImage().convertToFormat(QImage::Format_ARGB32),
             expected.toImage().convertToFormat(QImage::Format_ARGB32));
    QSet<QRgb> colours;
    const QImage layer = t.probe.backgroundItem()->pixmap().toImage();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            colours << layer.pixel(x, y);
    QCOMPARE(colours.size() > 1, colour == 0U); // the checkerboard shows through what is transparent only
}

void TestBackground::pictureChoice()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0x11223344;
    t.probe.previewOffset() = QPoint(4, 5);
    acceptPicture(t, backdrop());
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QCOMPARE(t.probe.backgroundImage().convertToFormat(QImage::Format_RGB32), m_backdrop);
    QCOMPARE(t.probe.backgroundColor(), 0x11223344U);
    QCOMPARE(t.probe.previewOffset(), QPoint(4, 5));
    QCOMPARE(t.probe.previewItem()->pos(), QPointF(4, 5));
    QCOMPARE(t.probe.backgroundItem()->pixmap().size(), QSize(60, 30));
    accept(t, "whiteradioButton");
    QVERIFY(t.probe.backgroundImage().isNull());
    QCOMPARE(t.probe.previewOffset(), QPoint());
}

void TestBackground::unreadablePicture()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0xFF00FF00;
    t.probe.backgroundImage() = m_backdrop;
    t.probe.previewOffset() = QPoint(4, 5);
    acceptPicture(t, m_folder.filePath("broken.png"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report())); // no message box came up
    QVERIFY(t.probe.backgroundImage().isNull());
    QCOMPARE(t.probe.backgroundColor(), 0xFF00FF00U);
    QCOMPARE(t.probe.previewOffset(), QPoint(4, 5));
    QCOMPARE(t.probe.backgroundItem()->pixmap().toImage().pixel(3, 3), 0xFF00FF00U);
    QCOMPARE(t.status(), QString("Ready"));
}

void TestBackground::pictureWithoutAName()
{
    WindowUnderTest t;
    startPreview(t);
    t.probe.backgroundColor() = 0;
    accept(t, "pictureradioButton");
    QCOMPARE(t.probe.backgroundColor(), 0xFFFFFFFFU);
    QVERIFY(t.probe.backgroundImage().isNull());
}

void TestBackground::zoomOfAColour()
{
    WindowUnderTest t;
    startPreview(t);
    t.trigger("actionBackgroundZoomPlus");
    t.trigger("actionBackgroundZoomMinus");
    t.trigger("actionBackgroundZoomMinus");
    QCOMPARE(t.probe.backgroundItem()->transform(), QTransform());
}

void TestBackground::zoomOfAPicture()
{
    WindowUnderTest t;
    startPreview(t);
    acceptPicture(t, backdrop());
    const auto scale = [&t] { return t.probe.backgroundItem()->transform(); };
    t.trigger("actionBackgroundZoomPlus");
    QCOMPARE(scale(), QTransform::fromScale(1.05, 1.05));
    t.trigger("actionBackgroundZoomPlus");
    QVERIFY(qFuzzyCompare(scale().m11(), 1.1025));
    QVERIFY(qFuzzyCompare(scale().m22(), 1.1025));
    t.trigger("actionBackgroundZoomMinus");
    t.trigger("actionBackgroundZoomMinus");
    QVERIFY(std::abs(scale().m11() - 1.0) < 1e-15);
    t.trigger("actionBackgroundZoomMinus");
    QVERIFY(qFuzzyCompare(scale().m11(), 0.9523809523809523));
    QCOMPARE(scale().dx(), 0.0); // about the corner
    QCOMPARE(t.probe.backgroundItem()->mapToScene(QPointF(0, 0)), QPointF(0, 0));
    QCOMPARE(t.probe.backgroundImage().size(), m_backdrop.size());
    QCOMPARE(t.probe.backgroundItem()->pixmap().size(), QSize(60, 30));
}

void TestBackground::zoomIsLostOnRebuild()
{
    WindowUnderTest t;
    startPreview(t);
    acceptPicture(t, backdrop());
    t.trigger("actionBackgroundZoomPlus");
    t.window.applypreviewmask();
    QCOMPARE(t.probe.backgroundItem()->transform(), QTransform());
}

void TestBackground::choiceKeepsBrushWork()
{
    WindowUnderTest t;
    startPreview(t);
    t.trigger("actionForeground_Brush");
    const QImage before = t.probe.previewImage();
    const int count = t.probe.undoStack().count();
    t.mouse.stroke({t.at(48, 30), t.at(49, 30)});
    QTRY_COMPARE(t.probe.undoStack().count(), count + 1);
    const QImage brushed = t.probe.previewImage();
    QVERIFY(brushed != before);
    accept(t, "transparentradioButton");
    QCOMPARE(t.probe.previewImage(), brushed);
    t.probe.undoStack().undo();
    QCOMPARE(t.probe.previewImage(), before);
}

ORNEVO_TEST_MAIN(TestBackground)
#include "tst_background.moc"
