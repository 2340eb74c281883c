// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/HelpDialog.h"
#include "app/dialogs/OptionsDialog.h"
#include "tests/support/Activation.h"
#include "tests/support/Keys.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QAccessible>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>

using testsupport::focusRound;
using testsupport::WindowUnderTest;

namespace {

/// What a screen reader calls a widget.
QString spokenName(QWidget &widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

QStringList spokenNames(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (QWidget *widget : widgets)
        names << spokenName(*widget);
    return names;
}

/// The names in the order in which Tab comes by them, from the field that has the focus first.
QStringList namesAlongTheTabKey(QDialog &dialog)
{
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return {"the dialog does not come up"};
    testsupport::activate(dialog);
    return spokenNames(focusRound(dialog));
}

/// Labels that stand beside a field and are not tied to it. Those without a buddy only show what was chosen.
QStringList looseLabels(const QDialog &dialog)
{
    QStringList loose;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        if (label->buddy() == nullptr && label->accessibleDescription().isEmpty())
            loose << label->objectName();
    return loose;
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void toolButtonsHaveNames();
    void canvasAndToolBarHaveNames();
    void preferences();
    void exportDialog();
    void exportDialogWithAFreeHeight();
    void background();
    void help();
};

void TestAccessibility::toolButtonsHaveNames()
{
    WindowUnderTest t;
    QList<QWidget *> buttons;
    for (QToolButton *button : t.window.findChild<QToolBar *>("mainToolBar")->findChildren<QToolButton *>())
        buttons << button;
    QCOMPARE(buttons.size(), 17); // sixteen actions, and the one that shows what does not fit
    const QStringList names = spokenNames(buttons);
    QVERIFY2(!names.contains(QString()), qPrintable(names.join(", ")));
    QVERIFY2(QSet<QString>(names.begin(), names.end()).size() == names.size(), qPrintable(names.join(", ")));
    for (QWidget *button : buttons)
        QVERIFY(QAccessible::queryAccessibleInterface(button)->state().focusable);
}

void TestAccessibility::canvasAndToolBarHaveNames()
{
    WindowUnderTest t;
    QCOMPARE(spokenName(t.view), QString("Picture"));
    QCOMPARE(spokenName(t.progressBar()), QString("Progress"));
    QCOMPARE(spokenName(*t.window.findChild<QToolBar *>("mainToolBar")), QString("Tools"));
}

void TestAccessibility::preferences()
{
    QSettings settings;
    OptionsDialog dialog(&settings, nullptr);
    QCOMPARE(
        namesAlongTheTabKey(dialog),
        QStringList({"Foreground Marker width", "Background Marker width", "Eraser width",
                     "Foreground Brush width", "Background Brush width", "Blue Marker width",
                     "Same size for all tools", "Smooth Edges", "Smooth Edges kernel size", "Mask opacity",
                     "Foreground Brush Intensity", "Background Brush Intensity", "OK", "Cancel"}));
    QCOMPARE(looseLabels(dialog), QStringList());
}

void TestAccessibility::exportDialog()
{
    QSettings settings;
    ExportDialog dialog(40, 30, &settings, nullptr);
    // OK comes once a name has been chosen, and the height when it may differ.
    QCOMPARE(namesAlongTheTabKey(dialog),
             QStringList({"Choose the file name", "Width", "Keep Aspect Ratio", "Cancel"}));
    QCOMPARE(looseLabels(dialog), QStringList());
}

void TestAccessibility::exportDialogWithAFreeHeight()
{
    QSettings settings;
    ExportDialog dialog(40, 30, &settings, nullptr);
    dialog.findChild<QAbstractButton *>("checkBox")->setChecked(false);
    QCOMPARE(namesAlongTheTabKey(dialog),
             QStringList({"Choose the file name", "Width", "Height", "Keep Aspect Ratio", "Cancel"}));
}

void TestAccessibility::background()
{
    BackgroundDialog dialog;
    // Of a group of radio buttons Tab comes by the one that is on; arrows lead to the others.
    QCOMPARE(namesAlongTheTabKey(dialog),
             QStringList({"Use White", "Choose the color", "Choose the picture", "OK", "Cancel"}));
    QStringList choices;
    for (int i = 0; i < 4; ++i) {
        choices << spokenName(*dialog.focusWidget());
        testsupport::pressKey(dialog, Qt::Key_Down);
    }
    QCOMPARE(choices, QStringList({"Use White", "Use Transparent", "Use color", "Use picture"}));
    QCOMPARE(looseLabels(dialog), QStringList());
}

void TestAccessibility::help()
{
    HelpDialog dialog;
    QCOMPARE(namesAlongTheTabKey(dialog), QStringList({"Help", "OK", "Cancel"}));
}

ORNEVO_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
