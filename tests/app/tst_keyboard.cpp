// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/support/Activation.h"
#include "tests/support/Keys.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"
#include "tests/support/WindowUnderTest.h"

#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

using testsupport::focusRound;
using testsupport::pressKey;
using testsupport::WindowUnderTest;

namespace {

const QStringList buttonsWhileEditing{"actionOpen",       "actionZoom_In",        "actionZoom_Out",
                                      "actionKeep_arker", "action_Remove_Marker", "actionEraser",
                                      "actionMask",       "actionPreview",        "actionExport"};
const QStringList buttonsInThePreview{"actionOpen",
                                      "actionZoom_In",
                                      "actionZoom_Out",
                                      "actionPreview",
                                      "actionSelect_Background",
                                      "actionHandTool",
                                      "actionBackground_Brush",
                                      "actionForeground_Brush",
                                      "actionBackgroundZoomPlus",
                                      "actionBackgroundZoomMinus",
                                      "actionExport"};

QToolBar &toolBar(const WindowUnderTest &t)
{
    return *t.window.findChild<QToolBar *>("mainToolBar");
}

QWidget &buttonOf(const WindowUnderTest &t, const QString &action)
{
    return *toolBar(t).widgetForAction(&t.action(qPrintable(action)));
}

/// The name of a button's action, or of any other widget.
QString nameOf(const QWidget *widget)
{
    const auto *button = qobject_cast<const QToolButton *>(widget);
    if (button != nullptr && button->defaultAction() != nullptr)
        return button->defaultAction()->objectName();
    return widget == nullptr ? QString("nothing") : widget->objectName();
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    std::transform(widgets.begin(), widgets.end(), std::back_inserter(names), nameOf);
    return names;
}

QString focusName(const WindowUnderTest &t)
{
    return nameOf(t.window.focusWidget());
}

/// Presses Tab until the button of an action has the focus.
bool tabTo(const WindowUnderTest &t, const QString &action)
{
    for (int presses = 0; focusName(t) != action; ++presses) {
        if (presses == 30)
            return false;
        pressKey(t.window, Qt::Key_Tab);
    }
    return true;
}

bool tabToAndPress(const WindowUnderTest &t, const QString &action)
{
    const bool there = tabTo(t, action);
    if (there)
        pressKey(t.window, Qt::Key_Space);
    return there;
}

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void canvasHasTheFocusAtStart();
    void tabWalksTheToolBar();
    void tabWalksTheToolBarOfThePreview();
    void arrowsWalkTheToolBar();
    void focusCanBeSeen_data();
    void focusCanBeSeen();
    void markersAreTakenByKeys();
    void toolsOfThePreviewAreTakenByKeys();
    void zoomByKeys();
    void backgroundZoomByKeys();
    void dialogsOpenByKeys_data();
    void dialogsOpenByKeys();
    void maskByKeys();
    void clicksLeaveTheFocusWithTheCanvas();
    void clicksLeaveTheFocusWithAButton();
    void clickIntoTheCanvasTakesTheFocusBack();
    void canvasKeysStillWork();
    void shortcutsWorkFromAButton();
    void buttonsThatHaveNoRoom();
    void altOpensTheMenus();

private:
    void openPhoto(WindowUnderTest &t)
    {
        t.openPicture(folder.filePath("photo.png"));
        testsupport::activate(t.window); // not every platform makes it active again after a dialog
        testsupport::settle();
    }

    QTemporaryDir folder;
};

void TestKeyboard::initTestCase()
{
    QVERIFY(testpictures::blobImage(800, 600, 3).save(folder.filePath("photo.png")));
    QVERIFY(testpictures::blobImage(50, 70, 4).save(folder.filePath("background.png")));
}

void TestKeyboard::canvasHasTheFocusAtStart()
{
    WindowUnderTest t;
    QCOMPARE(QApplication::focusWidget(), &t.view);
    openPhoto(t);
    QCOMPARE(QApplication::focusWidget(), &t.view);
}

void TestKeyboard::tabWalksTheToolBar()
{
    WindowUnderTest t;
    t.window.resize(1000, 480);
    QStringList expected = buttonsWhileEditing;
    expected.prepend("graphicsView");
    QCOMPARE(namesOf(focusRound(t.window)), expected);
    std::reverse(expected.begin() + 1, expected.end());
    QCOMPARE(namesOf(focusRound(t.window, Qt::Key_Backtab)), expected);
}

void TestKeyboard::tabWalksTheToolBarOfThePreview()
{
    WindowUnderTest t;
    t.window.resize(1000, 480);
    openPhoto(t);
    QVERIFY(tabToAndPress(t, "actionPreview"));
    QVERIFY(t.action("actionPreview").isChecked());
    QCOMPARE(focusName(t), QString("actionPreview"));
    QVERIFY(tabTo(t, "graphicsView"));
    QStringList expected = buttonsInThePreview;
    expected.prepend("graphicsView");
    QCOMPARE(namesOf(focusRound(t.window)), expected);
    std::reverse(expected.begin() + 1, expected.end());
    QCOMPARE(namesOf(focusRound(t.window, Qt::Key_Backtab)), expected);
    QVERIFY(tabToAndPress(t, "actionPreview"));
    QVERIFY(!t.action("actionPreview").isChecked());
}

void TestKeyboard::arrowsWalkTheToolBar()
{
    WindowUnderTest t;
    QVERIFY(tabTo(t, "actionZoom_In"));
    pressKey(t.window, Qt::Key_Right);
    QCOMPARE(focusName(t), QString("actionZoom_Out"));
    pressKey(t.window, Qt::Key_Left);
    pressKey(t.window, Qt::Key_Left);
    QCOMPARE(focusName(t), QString("actionOpen"));
}

void TestKeyboard::focusCanBeSeen_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("action") << "actionZoom_In";
    QTest::newRow("tool that is off") << "actionKeep_arker";
    QTest::newRow("tool that is on") << "actionEraser";
}

// A frame around most of the button, far darker or lighter than what was there.
void TestKeyboard::focusCanBeSeen()
{
    QFETCH(QString, action);
    WindowUnderTest t;
    t.action("actionEraser").setChecked(true);
    QWidget &button = buttonOf(t, action);
    testsupport::settle();
    const QImage before = button.grab().toImage();
    const auto *flat = qobject_cast<const QToolButton *>(&button);
    QVERIFY(flat->autoRaise()); // a frame only where the pointer or the focus is
    QVERIFY(tabTo(t, action));
    for (QAction *other : toolBar(t).actions())
        if (const auto *beside = qobject_cast<QToolButton *>(toolBar(t).widgetForAction(other)))
            QCOMPARE(beside->autoRaise(), beside != flat);
    const QImage focused = button.grab().toImage();
    QCOMPARE(focused.size(), before.size());
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            changed += std::abs(qGray(before.pixel(x, y)) - qGray(focused.pixel(x, y))) >= 64 ? 1 : 0;
    const int around = 2 * (before.width() + before.height());
    QVERIFY2(changed > around * 3 / 4, qPrintable(QString("%1 of %2").arg(changed).arg(around)));
    pressKey(t.window, Qt::Key_Tab);
    QCOMPARE(button.grab().toImage(), before);
}

void TestKeyboard::markersAreTakenByKeys()
{
    WindowUnderTest t;
    openPhoto(t);
    for (const QString name : {"actionKeep_arker", "action_Remove_Marker", "actionEraser"}) {
        QVERIFY2(tabToAndPress(t, name), qPrintable(name));
        QVERIFY2(t.action(qPrintable(name)).isChecked(), qPrintable(name));
        QCOMPARE(t.view.viewport()->cursor().shape(), Qt::BitmapCursor);
        QCOMPARE(focusName(t), name);
    }
}

void TestKeyboard::toolsOfThePreviewAreTakenByKeys()
{
    WindowUnderTest t;
    t.window.resize(1000, 480);
    openPhoto(t);
    QVERIFY(tabToAndPress(t, "actionPreview"));
    for (const auto &[name, shape] :
         {std::pair<QString, Qt::CursorShape>{"actionHandTool", Qt::OpenHandCursor},
          {"actionBackground_Brush", Qt::BlankCursor},
          {"actionHandTool", Qt::OpenHandCursor},
          {"actionForeground_Brush", Qt::BlankCursor}}) {
        QVERIFY2(tabToAndPress(t, name), qPrintable(name));
        QVERIFY2(t.action(qPrintable(name)).isChecked(), qPrintable(name));
        QCOMPARE(t.view.viewport()->cursor().shape(), shape);
    }
}

void TestKeyboard::zoomByKeys()
{
    WindowUnderTest t;
    openPhoto(t);
    QVERIFY(tabToAndPress(t, "actionZoom_In"));
    testsupport::settle(); // the scroll bars come, and scale a little
    const double before = t.view.transform().m11();
    pressKey(t.window, Qt::Key_Space);
    QCOMPARE(t.view.transform().m11(), before * 1.2);
    pressKey(t.window, Qt::Key_Space);
    QCOMPARE(t.view.transform().m11(), before * 1.2 * 1.2);
    QVERIFY(tabToAndPress(t, "actionZoom_Out"));
    QCOMPARE(t.view.transform().m11(), before * 1.2);
}

void TestKeyboard::backgroundZoomByKeys()
{
    WindowUnderTest t;
    t.window.resize(1000, 480);
    openPhoto(t);
    QVERIFY(tabToAndPress(t, "actionPreview"));
    t.answers.expect<QDialog>([&](QDialog &dialog) { // the whole of the dialog by keys, too
        // A window manager may show it before it gives it the keys.
        QTRY_VERIFY(dialog.focusWidget() != nullptr);
        pressKey(dialog, Qt::Key_Down); // transparent
        pressKey(dialog, Qt::Key_Down); // colour
        pressKey(dialog, Qt::Key_Down);
        QCOMPARE(nameOf(dialog.focusWidget()), QString("pictureradioButton"));
        pressKey(dialog, Qt::Key_Space);
        pressKey(dialog, Qt::Key_Tab);
        QCOMPARE(nameOf(dialog.focusWidget()), QString("pushButton_2"));
        t.answers.chooseFile(folder.filePath("background.png"));
        pressKey(dialog, Qt::Key_Space);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    QVERIFY(tabToAndPress(t, "actionSelect_Background"));
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QVERIFY(t.probe.backgroundItem() != nullptr);
    const auto shownWidth = [&] { return t.probe.backgroundItem()->sceneBoundingRect().width(); };
    const double before = shownWidth();
    QVERIFY(tabToAndPress(t, "actionBackgroundZoomPlus"));
    const double enlarged = shownWidth();
    QVERIFY(enlarged > before);
    QVERIFY(tabToAndPress(t, "actionBackgroundZoomMinus"));
    QVERIFY(shownWidth() < enlarged);
}

void TestKeyboard::dialogsOpenByKeys_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArray>("dialog");
    QTest::newRow("open") << "actionOpen" << QByteArray("QFileDialog");
    QTest::newRow("export") << "actionExport" << QByteArray("ExportDialog");
}

void TestKeyboard::dialogsOpenByKeys()
{
    QFETCH(QString, action);
    QFETCH(QByteArray, dialog);
    WindowUnderTest t;
    t.window.resize(1000, 480);
    openPhoto(t);
    QByteArray seen;
    t.answers.expect<QDialog>([&](QDialog &shown) {
        seen = shown.metaObject()->className();
        pressKey(shown, Qt::Key_Escape);
    });
    QVERIFY(tabToAndPress(t, action));
    QCOMPARE(seen, dialog);
    QTRY_COMPARE(focusName(t), action); // and back where it was
}

void TestKeyboard::maskByKeys()
{
    WindowUnderTest t;
    openPhoto(t);
    t.dab("actionKeep_arker", 400, 300);
    t.dab("action_Remove_Marker", 20, 20);
    QVERIFY(t.probe.outmask().isEmpty());
    QVERIFY(tabToAndPress(t, "actionMask"));
    QVERIFY(!t.probe.outmask().isEmpty());
}

void TestKeyboard::clicksLeaveTheFocusWithTheCanvas()
{
    WindowUnderTest t;
    t.window.resize(1000, 480);
    openPhoto(t);
    for (const QString name :
         {"actionZoom_In", "actionZoom_Out", "actionKeep_arker", "action_Remove_Marker", "actionEraser",
          "actionMask", "actionPreview", "actionHandTool", "actionBackground_Brush", "actionForeground_Brush",
          "actionBackgroundZoomPlus", "actionBackgroundZoomMinus"}) {
        QVERIFY2(buttonOf(t, name).isEnabled() && buttonOf(t, name).isVisible(), qPrintable(name));
        QTest::mouseClick(t.window.windowHandle(), Qt::LeftButton, {},
                          buttonOf(t, name).mapTo(&t.window, buttonOf(t, name).rect().center()));
        QCOMPARE(QApplication::focusWidget(), &t.view);
        QCOMPARE(t.action(qPrintable(name)).isChecked(), t.action(qPrintable(name)).isCheckable());
    }
}

void TestKeyboard::clicksLeaveTheFocusWithAButton()
{
    WindowUnderTest t;
    QVERIFY(tabTo(t, "actionEraser"));
    QTest::mouseClick(
        t.window.windowHandle(), Qt::LeftButton, {},
        buttonOf(t, "actionZoom_In").mapTo(&t.window, buttonOf(t, "actionZoom_In").rect().center()));
    QCOMPARE(focusName(t), QString("actionEraser"));
}

void TestKeyboard::clickIntoTheCanvasTakesTheFocusBack()
{
    WindowUnderTest t;
    openPhoto(t);
    QVERIFY(tabTo(t, "actionEraser"));
    QTest::mouseClick(t.window.windowHandle(), Qt::LeftButton, {},
                      t.view.mapTo(&t.window, t.view.rect().center()));
    QCOMPARE(QApplication::focusWidget(), &t.view);
}

void TestKeyboard::canvasKeysStillWork()
{
    WindowUnderTest t;
    openPhoto(t);
    for (int i = 0; i < 8; ++i)
        QTest::mouseClick(&buttonOf(t, "actionZoom_In"), Qt::LeftButton);
    testsupport::settle();
    QScrollBar &across = *t.view.horizontalScrollBar();
    QScrollBar &down = *t.view.verticalScrollBar();
    const int left = across.value();
    const int top = down.value();
    pressKey(t.window, Qt::Key_Right);
    QVERIFY(across.value() > left);
    pressKey(t.window, Qt::Key_Left);
    QCOMPARE(across.value(), left);
    pressKey(t.window, Qt::Key_Down);
    QVERIFY(down.value() > top);
    pressKey(t.window, Qt::Key_Up);
    QCOMPARE(down.value(), top);
    pressKey(t.window, Qt::Key_PageDown);
    QVERIFY(down.value() > top);
    QCOMPARE(QApplication::focusWidget(), &t.view);
}

void TestKeyboard::shortcutsWorkFromAButton()
{
    WindowUnderTest t;
    openPhoto(t);
    QVERIFY(tabToAndPress(t, "actionKeep_arker"));
    const int before = t.probe.keepMarkerSize();
    pressKey(t.window, Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(int(t.probe.keepMarkerSize()), before + 1);
    pressKey(t.window, Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(int(t.probe.keepMarkerSize()), before);
    QCOMPARE(focusName(t), QString("actionKeep_arker"));
    t.dab("actionKeep_arker", 100, 100);
    QCOMPARE(t.probe.undoStack().index(), 1);
    QVERIFY(tabTo(t, "actionEraser"));
    pressKey(t.window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.probe.undoStack().index(), 0);
    t.answers.expect<QFileDialog>([](QFileDialog &dialog) { pressKey(dialog, Qt::Key_Escape); });
    pressKey(t.window, Qt::Key_O, Qt::ControlModifier);
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestKeyboard::buttonsThatHaveNoRoom()
{
    WindowUnderTest t;
    t.window.resize(300, 400);
    QTRY_VERIFY(!buttonOf(t, "actionExport").isVisible());
    QVERIFY(tabToAndPress(t, "qt_toolbar_ext_button"));
    QTRY_VERIFY(buttonOf(t, "actionExport").isVisible());
    QVERIFY(tabTo(t, "graphicsView"));
    QStringList expected = buttonsWhileEditing;
    expected.prepend("graphicsView");
    expected.append("qt_toolbar_ext_button");
    QCOMPARE(namesOf(focusRound(t.window)), expected);
    QVERIFY(tabToAndPress(t, "qt_toolbar_ext_button"));
    QTRY_VERIFY(!buttonOf(t, "actionExport").isVisible());
}

// The titles of the menus have no letters underlined.
void TestKeyboard::altOpensTheMenus()
{
    WindowUnderTest t;
    const QList<QAction *> titles = t.window.menuBar()->actions();
    QCOMPARE(titles.size(), 4);
    for (int steps = 0; steps < titles.size(); ++steps) {
        const QMenu &menu = *titles.at(steps)->menu();
        testsupport::activate(t.window); // nobody else gives it back on a bare X server
        testsupport::settle();
        QCOMPARE(QApplication::focusWidget(), &t.view);
        pressKey(t.window, Qt::Key_Alt);
        for (int i = 0; i < steps; ++i)
            pressKey(t.window, Qt::Key_Right);
        pressKey(t.window, Qt::Key_Down);
        QTRY_VERIFY2(menu.isVisible(), qPrintable(menu.title()));
        QVERIFY(menu.activeAction() != nullptr);
        pressKey(t.window, Qt::Key_Escape);
        QTRY_VERIFY(!menu.isVisible());
        pressKey(t.window, Qt::Key_Escape);
    }
}

ORNEVO_TEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
