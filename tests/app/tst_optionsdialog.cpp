// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/OptionsDialog.h"
#include "canvas/SettingsKeys.h"
#include "tests/support/DialogParts.h"
#include "tests/support/Keys.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGraphicsEllipseItem>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

using testsupport::action;
using testsupport::part;

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstRun();
    void ranges();
    void form();
    void storedValuesAreShown();
    void valuesOutOfRange();
    void listOfAllKeys();
    void everyKeyHasItsField();
    void okWritesEverything();
    void okWithoutTouching();
    void cancelWritesNothing();
    void tickingSameSize();
    void sameSizeKeepsOwnSizes();
    void gaussStepsByTwo();
    void firstFieldIsTypedOver();
    void languageChange();
    void windowFollowsOk();
    void windowFollowsCancel();
    void canvasFollows();

private:
    QSettings settings;
};

namespace {

QSpinBox *spin(const QWidget &dialog, const char *name)
{
    return &part<QSpinBox>(dialog, name);
}

const QList<std::pair<const char *, const char *>> sizes{
    {"spinBox", "KEEPMSIZE"},     {"spinBox_2", "REMOVEMSIZE"}, {"spinBox_4", "KEEPBSIZE"},
    {"spinBox_5", "REMOVEBSIZE"}, {"spinBox_3", "ERASERMSIZE"}, {"spinBox_8", "BLUEMSIZE"}};
const QList<std::pair<const char *, const char *>> intensities{{"spinBox_6", "KEEPBINTEN"},
                                                               {"spinBox_7", "REMOVEBINTEN"}};

} // namespace

void TestOptionsDialog::init()
{
    settings.clear();
}

void TestOptionsDialog::firstRun()
{
    OptionsDialog dialog(&settings, nullptr);
    QCOMPARE(dialog.windowTitle(), "Preferences");
    for (const auto &[name, key] : sizes)
        QCOMPARE(spin(dialog, name)->value(), 10);
    QCOMPARE(part<QDoubleSpinBox>(dialog, "doubleSpinBox").value(), 0.6);
    QCOMPARE(spin(dialog, "spinBox_6")->value(), 50);
    QCOMPARE(spin(dialog, "spinBox_7")->value(), 20);
    QCOMPARE(spin(dialog, "spinBox_9")->value(), 5);
    QVERIFY(part<QCheckBox>(dialog, "checkBoxSmooth").isChecked());
    QVERIFY(!part<QCheckBox>(dialog, "checkBox").isChecked());
    for (const auto &[name, key] : sizes)
        QVERIFY(spin(dialog, name)->isEnabled());
    QVERIFY(settings.allKeys().isEmpty());
}

void TestOptionsDialog::ranges()
{
    OptionsDialog dialog(&settings, nullptr);
    const auto check = [&dialog](const char *name, int low, int high, int step) {
        QCOMPARE(spin(dialog, name)->minimum(), low);
        QCOMPARE(spin(dialog, name)->maximum(), high);
        QCOMPARE(spin(dialog, name)->singleStep(), step);
    };
    for (const auto &[name, key] : sizes)
        check(name, 0, 99, 1);
    for (const auto &[name, key] : intensities)
        check(name, 0, 254, 1);
    check("spinBox_9", 1, 15, 2);
    const auto *opacity = &part<QDoubleSpinBox>(dialog, "doubleSpinBox");
    QCOMPARE(opacity->minimum(), 0.0);
    QCOMPARE(opacity->maximum(), 1.0);
    QCOMPARE(opacity->singleStep(), 0.1);
    QCOMPARE(opacity->decimals(), 2);
}

void TestOptionsDialog::form()
{
    OptionsDialog dialog(&settings, nullptr);
    auto *grid = &part<QGridLayout>(dialog, "gridLayout_2");
    struct Place
    {
        const char *name;
        int row;
        int column;
        const char *text;
    };
    for (const Place &place : {Place{"label", 0, 0, "Foreground Marker width"},
                               {"spinBox", 0, 1, nullptr},
                               {"checkBox", 0, 3, "Same size for all tools"},
                               {"line", 1, 3, nullptr},
                               {"label_2", 2, 0, "Background Marker width"},
                               {"spinBox_2", 2, 1, nullptr},
                               {"checkBoxSmooth", 2, 3, "Smooth Edges"},
                               {"spinBox_9", 2, 4, nullptr},
                               {"label_3", 3, 0, "Eraser width"},
                               {"spinBox_3", 3, 1, nullptr},
                               {"label_4", 3, 3, "Mask opacity"},
                               {"doubleSpinBox", 3, 4, nullptr},
                               {"label_5", 5, 0, "Foreground Brush width"},
                               {"spinBox_4", 5, 1, nullptr},
                               {"label_7", 5, 3, "Foreground Brush Intensity"},
                               {"spinBox_6", 5, 4, nullptr},
                               {"label_6", 6, 0, "Background Brush width"},
                               {"spinBox_5", 6, 1, nullptr},
                               {"label_8", 6, 3, "Background Brush Intensity"},
                               {"spinBox_7", 6, 4, nullptr},
                               {"label_9", 7, 0, "Blue Marker width"},
                               {"spinBox_8", 7, 1, nullptr}}) {
        auto *widget = &part<QWidget>(dialog, place.name);
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(widget), &row, &column, &rows, &columns);
        QVERIFY2(row == place.row && column == place.column, place.name);
        if (place.text != nullptr)
            QCOMPARE(widget->property("text").toString(), place.text);
    }
    QCOMPARE(part<QDialogButtonBox>(dialog, "buttonBox").orientation(), Qt::Horizontal);
    QCOMPARE(part<QDialogButtonBox>(dialog, "buttonBox").standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void TestOptionsDialog::storedValuesAreShown()
{
    int value = 21;
    for (const auto &[name, key] : sizes + intensities)
        settings.setValue(key, value++);
    settings.setValue("MOPACITY", 0.35);
    settings.setValue("SMOOTHEDGESCHECKED", false);
    settings.setValue("GOUSSIZE", 9);
    settings.setValue("SAMESIZECHECKED", true);
    OptionsDialog dialog(&settings, nullptr);
    value = 21;
    for (const auto &[name, key] : sizes + intensities)
        QCOMPARE(spin(dialog, name)->value(), value++);
    QCOMPARE(part<QDoubleSpinBox>(dialog, "doubleSpinBox").value(), 0.35);
    QVERIFY(!part<QCheckBox>(dialog, "checkBoxSmooth").isChecked());
    QCOMPARE(spin(dialog, "spinBox_9")->value(), 9);
    QVERIFY(!part<QCheckBox>(dialog, "checkBox").isChecked()); // whatever is stored
    QVERIFY(spin(dialog, "spinBox_2")->isEnabled());
}

void TestOptionsDialog::valuesOutOfRange()
{
    settings.setValue("KEEPMSIZE", 150);
    settings.setValue("REMOVEMSIZE", -4);
    settings.setValue("KEEPBSIZE", "wide");
    settings.setValue("KEEPBINTEN", 255);
    settings.setValue("REMOVEBINTEN", -1);
    settings.setValue("MOPACITY", 3.5);
    settings.setValue("GOUSSIZE", 2147483647);
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(settings.value("KEEPMSIZE").toInt(), 99);
    QCOMPARE(settings.value("REMOVEMSIZE").toInt(), 0);
    QCOMPARE(settings.value("KEEPBSIZE").toInt(), 0);
    QCOMPARE(settings.value("KEEPBINTEN").toInt(), 254);
    QCOMPARE(settings.value("REMOVEBINTEN").toInt(), 0);
    QCOMPARE(settings.value("MOPACITY").toDouble(), 1.0);
    QCOMPARE(settings.value("GOUSSIZE").toInt(), 15);
    settings.setValue("MOPACITY", "nan");
    OptionsDialog again(&settings, nullptr);
    const double opacity = part<QDoubleSpinBox>(again, "doubleSpinBox").value();
    QCOMPARE(opacity, 1.0);
}

/// The names are those of the files that users have.
void TestOptionsDialog::listOfAllKeys()
{
    QStringList names;
    for (const settings::Key *key : settings::all)
        names << key->name;
    QCOMPARE(names, QStringList({"SAMESIZECHECKED", "SMOOTHEDGESCHECKED", "KEEPMSIZE", "REMOVEMSIZE",
                                 "KEEPBSIZE", "REMOVEBSIZE", "ERASERMSIZE", "MOPACITY", "KEEPBINTEN",
                                 "REMOVEBINTEN", "BLUEMSIZE", "GOUSSIZE", "CurrDir"}));
}

/// A field for each key but the folder's, and no field for anything else.
void TestOptionsDialog::everyKeyHasItsField()
{
    QStringList expected;
    for (const settings::Key *key : settings::all)
        if (key != &settings::currentDirectory)
            expected << key->name;
    QStringList edited;
    const OptionsDialog dialog(&settings, nullptr);
    for (const QWidget *widget : dialog.findChildren<QWidget *>())
        if (widget->property("settingsKey").isValid())
            edited << widget->property("settingsKey").toString();
    expected.sort();
    edited.sort();
    QCOMPARE(edited, expected);
}

void TestOptionsDialog::okWritesEverything()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    int value = 31;
    for (const auto &[name, key] : sizes + intensities) {
        spin(dialog, name)->selectAll();
        QTest::keyClicks(spin(dialog, name), QString::number(value++));
    }
    part<QDoubleSpinBox>(dialog, "doubleSpinBox").setValue(0.25);
    QTest::mouseClick(&part<QCheckBox>(dialog, "checkBoxSmooth"), Qt::LeftButton, {}, QPoint(8, 8));
    spin(dialog, "spinBox_9")->setValue(11);
    QVERIFY(settings.allKeys().isEmpty()); // nothing before OK
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
    value = 31;
    for (const auto &[name, key] : sizes + intensities)
        QCOMPARE(settings.value(key).toInt(), value++);
    QCOMPARE(settings.value("MOPACITY").toDouble(), 0.25);
    QCOMPARE(settings.value("SMOOTHEDGESCHECKED").toBool(), false);
    QCOMPARE(settings.value("SAMESIZECHECKED"), QVariant(false));
    QCOMPARE(settings.value("GOUSSIZE").toInt(), 11);
    QCOMPARE(settings.allKeys().size(), 12);
}

void TestOptionsDialog::okWithoutTouching()
{
    settings.setValue("SAMESIZECHECKED", true);
    settings.setValue("CurrDir", "/somewhere");
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(settings.value("SAMESIZECHECKED").toBool(), false);
    QCOMPARE(settings.value("KEEPBINTEN").toInt(), 50);
    QCOMPARE(settings.value("REMOVEBINTEN").toInt(), 20);
    QCOMPARE(settings.value("CurrDir").toString(), "/somewhere");
}

void TestOptionsDialog::cancelWritesNothing()
{
    settings.setValue("KEEPMSIZE", 77);
    for (const bool escape : {false, true}) {
        OptionsDialog dialog(&settings, nullptr);
        dialog.show();
        spin(dialog, "spinBox")->setValue(5);
        part<QCheckBox>(dialog, "checkBox").setChecked(true);
        if (escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            testsupport::press(dialog, QDialogButtonBox::Cancel);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int{QDialog::Rejected});
        QCOMPARE(settings.allKeys(), QStringList{"KEEPMSIZE"});
        QCOMPARE(settings.value("KEEPMSIZE").toInt(), 77);
    }
}

void TestOptionsDialog::tickingSameSize()
{
    OptionsDialog dialog(&settings, nullptr);
    auto *same = &part<QCheckBox>(dialog, "checkBox");
    const QStringList followers{"spinBox_2", "spinBox_3", "spinBox_4", "spinBox_5"};
    for (int round = 0; round < 2; ++round) {
        same->click();
        for (const QString &name : followers)
            QVERIFY(!spin(dialog, name.toLatin1())->isEnabled());
        QVERIFY(!spin(dialog, "spinBox_8")->isEnabled());
        QVERIFY(spin(dialog, "spinBox")->isEnabled());
        QVERIFY(spin(dialog, "spinBox_6")->isEnabled());
        same->click();
        for (const QString &name : followers)
            QVERIFY(spin(dialog, name.toLatin1())->isEnabled());
        QVERIFY(!spin(dialog, "spinBox_8")->isEnabled()); // stays off until the dialog is closed
    }
    OptionsDialog next(&settings, nullptr);
    QVERIFY(spin(next, "spinBox_8")->isEnabled());
}

void TestOptionsDialog::sameSizeKeepsOwnSizes()
{
    settings.setValue("REMOVEMSIZE", 33);
    settings.setValue("BLUEMSIZE", 44);
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    part<QCheckBox>(dialog, "checkBox").click();
    testsupport::press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(settings.value("SAMESIZECHECKED").toBool(), true);
    QCOMPARE(settings.value("REMOVEMSIZE").toInt(), 33);
    QCOMPARE(settings.value("BLUEMSIZE").toInt(), 44);
    QCOMPARE(settings.value("KEEPMSIZE").toInt(), 10);
}

void TestOptionsDialog::gaussStepsByTwo()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    QTest::keyClick(spin(dialog, "spinBox_9"), Qt::Key_Up);
    QCOMPARE(spin(dialog, "spinBox_9")->value(), 7);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(spin(dialog, "spinBox_9"), Qt::Key_Up);
    QCOMPARE(spin(dialog, "spinBox_9")->value(), 15);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(spin(dialog, "spinBox_9"), Qt::Key_Down);
    QCOMPARE(spin(dialog, "spinBox_9")->value(), 1);
}

/// A number that is typed replaces the one in the first field, as in all others that the keys come to.
void TestOptionsDialog::firstFieldIsTypedOver()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    testsupport::activate(dialog);
    testsupport::pressKey(dialog, Qt::Key_4);
    testsupport::pressKey(dialog, Qt::Key_2);
    testsupport::pressKey(dialog, Qt::Key_Return);
    QCOMPARE(settings.value("KEEPMSIZE").toInt(), 42);
}

void TestOptionsDialog::languageChange()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.setWindowTitle("other");
    part<QLabel>(dialog, "label").setText("other");
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&dialog, &change);
    QCOMPARE(dialog.windowTitle(), "Preferences");
    QCOMPARE(part<QLabel>(dialog, "label").text(), "Foreground Marker width");
}

void TestOptionsDialog::windowFollowsOk()
{
    MainWindow window;
    MainWindowProbe probe(window);
    testsupport::show(window);
    testsupport::DialogAnswers answers;
    answers.expect<OptionsDialog>([](OptionsDialog &dialog) {
        QVERIFY(dialog.parentWidget() == nullptr);
        spin(dialog, "spinBox")->setValue(23);
        spin(dialog, "spinBox_9")->setValue(13);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    action(window, "actionPreferences")->trigger();
    QCOMPARE(answers.given(), 1);
    QCOMPARE(int{probe.keepMarkerSize()}, 23);
    QCOMPARE(probe.gaussSize(), 13);
    // The window had its own defaults; now it has what the dialog showed.
    QCOMPARE(int{probe.brushIntensityKeep()}, 50);
    QCOMPARE(int{probe.brushIntensityRemove()}, 20);
}

void TestOptionsDialog::windowFollowsCancel()
{
    MainWindow window;
    MainWindowProbe probe(window);
    testsupport::show(window);
    probe.settings().setValue("KEEPMSIZE", 64); // behind the window's back
    probe.settings().setValue("SMOOTHEDGESCHECKED", false);
    testsupport::DialogAnswers answers;
    answers.expect<OptionsDialog>([](OptionsDialog &dialog) {
        spin(dialog, "spinBox")->setValue(23);
        testsupport::press(dialog, QDialogButtonBox::Cancel);
    });
    action(window, "actionPreferences")->trigger();
    QCOMPARE(answers.given(), 1);
    QCOMPARE(int{probe.keepMarkerSize()}, 64);
    QCOMPARE(probe.smoothEdges(), false);
    QCOMPARE(int{probe.brushIntensityKeep()}, 150);
}

void TestOptionsDialog::canvasFollows()
{
    QTemporaryDir folder;
    QImage photo(90, 80, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    QVERIFY(photo.save(folder.filePath("photo.png")));
    MainWindow window;
    MainWindowProbe probe(window);
    testsupport::show(window);
    testsupport::openPhoto(window, folder.filePath("photo.png"));
    testsupport::DialogAnswers answers;
    answers.expect<OptionsDialog>([](OptionsDialog &dialog) {
        spin(dialog, "spinBox_2")->setValue(17);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    action(window, "actionPreferences")->trigger();
    action(window, "action_Remove_Marker")->trigger();
    testsupport::CanvasMouse(*testsupport::canvas(window)).draw({{45, 40}});
    QGraphicsItem *dab = probe.imageScene().items().first();
    QCOMPARE(qgraphicsitem_cast<QGraphicsEllipseItem *>(dab)->rect().width(), 17.0);
}

ORNEVO_TEST_MAIN(TestOptionsDialog)
#include "tst_optionsdialog.moc"
