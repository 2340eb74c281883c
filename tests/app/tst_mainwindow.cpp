// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/OptionsDialog.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QFile>
#include <QGraphicsPixmapItem>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolBar>

using testsupport::MessageLog;
using testsupport::WindowUnderTest;

namespace {

struct ActionRow
{
    const char *name;
    const char *text;
    const char *shortcut;
    const char *icon;
    bool checkable;
    bool enabled;
    bool visible;
    const char *menu;
    int menuPosition;
    int toolBarPosition;
};

// In the order in which they are made.
constexpr ActionRow actionRows[] = {
    {"actionOpen", "Open", "Ctrl+O", ":/icons/Folder.tiff", false, true, true, "menuFile", 1, 1},
    {"actionSave", "Save", "", ":/icons/save_32.png", false, true, true, "", 0, 0},
    {"actionSave_As", "Save As", "", ":/icons/save_32_h.png", false, true, true, "", 0, 0},
    {"actionQuit", "Quit", "Ctrl+Q", ":/icons/delete_32.png", false, true, true, "menuFile", 3, 0},
    {"actionKeep_arker", "\"Keep\" Marker", "", ":/icons/Green Ball.tiff", true, true, true, "menuActions", 1,
     4},
    {"action_Remove_Marker", "\"Remove\" Marker", "", ":/icons/Red Ball.tiff", true, true, true,
     "menuActions", 2, 5},
    {"actionIndex", "Index", "", "", false, true, true, "menuHelp", 1, 0},
    {"actionAbout", "About", "", "", false, true, true, "menuHelp", 3, 0},
    {"actionZoom_In", "Zoom In", "", ":/icons/zoomplus.png", false, true, true, "", 0, 2},
    {"actionZoom_Out", "Zoom Out", "", ":/icons/zoomminus.png", false, true, true, "", 0, 3},
    {"actionPreview", "Preview", "", ":/icons/Play.tiff", true, true, true, "menuActions", 4, 8},
    {"actionMask", "Mask", "", ":/icons/foxglove.png", false, true, true, "menuActions", 5, 7},
    {"actionSelect_Background", "Select Background", "", ":/icons/colors.tiff", false, false, true,
     "menuActions", 10, 9},
    {"actionHandTool", "HandTool", "", ":/icons/openhand.png", true, false, true, "menuActions", 11, 10},
    {"actionPreferences", "Preferences", "", "", false, true, true, "menuOptions", 1, 0},
    {"actionExport", "Export", "Ctrl+S", ":/icons/ToolbarPicturesFolderIcon.png", false, true, true,
     "menuFile", 2, 15},
    {"actionEraser", "Eraser", "", ":/icons/eraser1.png", true, true, true, "menuActions", 3, 6},
    {"actionBackground_Eraser", "Background Eraser", "", "", true, true, true, "", 0, 0},
    {"actionBackground_Brush", "Background Brush", "", ":/icons/redbrush.png", true, false, true, "", 0, 11},
    {"actionForeground_Brush", "Foreground Brush", "", ":/icons/greenbrush.png", true, false, true, "", 0,
     12},
    {"actionBackgroundZoomPlus", "backgroundZoomPlus", "", ":/icons/zoomplusbg.png", false, false, true, "",
     0, 13},
    {"actionBackgroundZoomMinus", "backgroundZoomMinus", "", ":/icons/zoomminusbg.png", false, false, true,
     "", 0, 14},
    {"actionFinematt", "finematt", "", "", false, true, true, "", 0, 0},
    {"actionBlueMarker", "BlueMarker", "", "", true, true, true, "", 0, 0},
    {"actionContact_Us", "Contact Us", "", ":/icons/mail-message-new.png", false, true, false, "menuHelp", 2,
     16},
    {"actionIncreaseToolSize", "increaseToolSize", "Ctrl+Right", "", false, true, true, "menuActions", 6, 0},
    {"actionDecreaseToolSoze", "decreaseToolSize", "Ctrl+Left", "", false, true, true, "menuActions", 7, 0},
    {"actionIncreaseBrushIntensity", "increaseBrushIntensity", "Ctrl+Up", "", false, true, true,
     "menuActions", 8, 0},
    {"actionDecreaseBrushIntensity", "decreaseBrushIntensity", "Ctrl+Down", "", false, true, true,
     "menuActions", 9, 0},
    {"actionTestMenu", "About", "", "", false, true, true, "", 0, 0},
};

constexpr const char *slotSignatures[] = {
    "on_actionTestMenu_triggered()",
    "on_actionDecreaseBrushIntensity_triggered()",
    "on_actionIncreaseBrushIntensity_triggered()",
    "on_actionDecreaseToolSoze_triggered()",
    "on_actionIncreaseToolSize_triggered()",
    "on_actionBlueMarker_toggled(bool)",
    "on_actionContact_Us_triggered()",
    "on_actionFinematt_triggered()",
    "on_actionExport_triggered()",
    "on_actionBackgroundZoomMinus_triggered()",
    "on_actionBackgroundZoomPlus_triggered()",
    "on_actionSelect_Background_toggled(bool)",
    "on_actionHandTool_toggled(bool)",
    "on_actionForeground_Brush_toggled(bool)",
    "on_actionBackground_Brush_toggled(bool)",
    "on_actionEraser_toggled(bool)",
    "on_actionSelect_Background_triggered()",
    "on_actionPreferences_triggered()",
    "on_actionMask_triggered()",
    "on_actionIndex_triggered()",
    "on_actionAbout_triggered()",
    "on_actionSave_As_triggered()",
    "on_actionSave_triggered()",
    "on_actionPreview_toggled(bool)",
    "on_action_Remove_Marker_toggled(bool)",
    "on_actionKeep_arker_toggled(bool)",
    "on_actionZoom_Out_triggered()",
    "on_actionZoom_In_triggered()",
    "on_actionQuit_triggered()",
    "on_actionOpen_triggered()",
    "on_KeepBrushPressed(QList<QRect>)",
    "on_RemoveBrushPressed(QList<QRect>)",
    "on_BrushMouseEvent(QRect,bool)",
    "on_ProcessBrushMouseEvent()",
    "on_TimeToSkipLastRect()",
    "on_HandToolPressed(QPoint,QPoint)",
};

/// The text of a tool tip as it is read, its paragraphs in lines.
QString plainText(const QString &toolTip)
{
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void startsWithoutAWarning();
    void actions_data();
    void actions();
    void actionsAreMadeInOrder();
    void toolBarHoldsNothingElse();
    void menusHoldNothingElse();
    void undoActionComesLast();
    void redoWorksByItsKey();
    void toolTips_data();
    void toolTips();
    void slotsStandInOrder();
    void actionGroups();
    void windowAndItsParts();
    void initialState();
    void quitGoesThroughTheSignal();
    void quitByKey();
    void toolSlots_data();
    void toolSlots();
    void uncheckingLeavesTheTool();
    void groupsAreSeparate();
    void emptySlots();
    void hiddenActionsAreBound();
    void backgroundEraserDoesNothing();
    void undoLimit();
    void undoFromTheMenu();
    void canvasGetsItsSettings();
    void dialogsTakeTheIcon();
    void hintUntilAPhotoIsOpen();
    void hintCanBeRead_data();
    void hintCanBeRead();
};

void TestMainWindow::startsWithoutAWarning()
{
    MessageLog log;
    {
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QApplication::processEvents();
    }
    QStringList ours;
    for (const QString &line : log.taken())
        if (!line.startsWith("This plugin does not support")) // the offscreen platform on itself
            ours << line;
    QCOMPARE(ours, QStringList());
}

void TestMainWindow::actions_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(actionRows)); ++row)
        QTest::newRow(actionRows[row].name) << row;
}

void TestMainWindow::actions()
{
    QFETCH(int, row);
    const ActionRow &expected = actionRows[row];
    MainWindow window;
    const auto *action = window.findChild<QAction *>(expected.name, Qt::FindDirectChildrenOnly);
    QVERIFY(action != nullptr);
    QCOMPARE(action->text(), QString(expected.text));
    QCOMPARE(action->shortcut(), QKeySequence(expected.shortcut, QKeySequence::PortableText));
    QCOMPARE(action->isCheckable(), expected.checkable);
    QVERIFY(!action->isChecked());
    QCOMPARE(action->isEnabled(), expected.enabled && expected.visible); // a hidden action counts as disabled
    QCOMPARE(action->isVisible(), expected.visible);
    window.findChild<QAction *>(expected.name)->setVisible(true);
    QCOMPARE(action->isEnabled(), expected.enabled);
    QCOMPARE(action->icon().isNull(), *expected.icon == 0);
    if (*expected.icon != 0) {
        QVERIFY(QFile::exists(expected.icon));
        const QPixmap fromFile(expected.icon);
        QVERIFY2(!fromFile.isNull(), expected.icon);
        const QSize size = fromFile.size();
        QCOMPARE(action->icon().pixmap(size, 1.0).toImage(),
                 QIcon(expected.icon).pixmap(size, 1.0).toImage());
    }
    for (const char *name : {"menuFile", "menuOptions", "menuActions", "menuHelp"}) {
        const auto *menu = window.findChild<QMenu *>(name);
        const auto position = menu->actions().indexOf(const_cast<QAction *>(action)) + 1;
        QCOMPARE(position, qsizetype{QString(name) == expected.menu ? expected.menuPosition : 0});
    }
    const auto *toolBar = window.findChild<QToolBar *>("mainToolBar");
    QCOMPARE(toolBar->actions().indexOf(const_cast<QAction *>(action)) + 1,
             qsizetype{expected.toolBarPosition});
    if (expected.name == QString("actionSave_As"))
        QVERIFY(action->isIconVisibleInMenu());
    if (expected.name == QString("actionAbout"))
        QVERIFY(!action->isIconVisibleInMenu());
}

void TestMainWindow::actionsAreMadeInOrder()
{
    MainWindow window;
    QStringList made;
    for (const QAction *action : window.findChildren<QAction *>(Qt::FindDirectChildrenOnly))
        if (!action->objectName().isEmpty())
            made << action->objectName();
    QStringList expected;
    for (const ActionRow &row : actionRows)
        expected << row.name;
    // The designer's compiler makes them in the order of the form.
    QCOMPARE(made, expected);
}

void TestMainWindow::toolBarHoldsNothingElse()
{
    MainWindow window;
    const auto *toolBar = window.findChild<QToolBar *>("mainToolBar");
    QCOMPARE(window.findChildren<QToolBar *>().size(), 1);
    QCOMPARE(window.toolBarArea(toolBar), Qt::TopToolBarArea);
    QCOMPARE(toolBar->actions().size(), 16);
}

void TestMainWindow::menusHoldNothingElse()
{
    MainWindow window;
    QStringList menus;
    for (const QAction *action : window.menuBar()->actions())
        menus << action->menu()->objectName() + " " + action->menu()->title();
    QCOMPARE(menus,
             QStringList({"menuFile File", "menuOptions Options", "menuActions Actions", "menuHelp Help"}));
    QCOMPARE(window.findChild<QMenu *>("menuFile")->actions().size(), 3);
    QCOMPARE(window.findChild<QMenu *>("menuOptions")->actions().size(), 1);
    QCOMPARE(window.findChild<QMenu *>("menuActions")->actions().size(), 12);
    QCOMPARE(window.findChild<QMenu *>("menuHelp")->actions().size(), 3);
}

void TestMainWindow::undoActionComesLast()
{
    WindowUnderTest t;
    QAction *undo = t.window.findChild<QMenu *>("menuActions")->actions().last();
    QCOMPARE(undo->shortcut(), QKeySequence(QKeySequence::Undo));
    QCOMPARE(undo->parent(), &t.window);
    QVERIFY(undo->text().startsWith("Undo"));
    QVERIFY(!undo->isEnabled());
    t.probe.undoStack().push(new QUndoCommand);
    QVERIFY(undo->isEnabled());
    undo->trigger();
    QCOMPARE(t.probe.undoStack().index(), 0);
}

void TestMainWindow::redoWorksByItsKey()
{
    WindowUnderTest t;
    t.probe.undoStack().push(new QUndoCommand);
    QTest::keySequence(&t.window, QKeySequence(QKeySequence::Undo));
    QTRY_COMPARE(t.probe.undoStack().index(), 0);
    QTest::keySequence(&t.window, QKeySequence(QKeySequence::Redo));
    QTRY_COMPARE(t.probe.undoStack().index(), 1);
}

void TestMainWindow::toolTips_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("actionKeep_arker") << "\"Keep\" Marker\nUsed to mark the areas of image you want to keep.";
    QTest::newRow("action_Remove_Marker") << "\"Remove\" Marker\nUsed to mark the areas of image you want to "
                                             "remove. They will become background.";
    QTest::newRow("actionPreview")
        << "Preview\nSwitch to preview mode to see how your final picture will look. Some "
           "tools are only available in this mode.";
    QTest::newRow("actionMask")
        << "Mask Tool\nPreview your foreground and background highlighted with colors.";
    QTest::newRow("actionZoom_In") << "Zoom In";
    QTest::newRow("actionZoom_Out") << "Zoom Out";
    QTest::newRow("actionSelect_Background") << "Select Background";
    QTest::newRow("actionBackgroundZoomPlus")
        << "Background Zoom\nScales the background when it is a picture.";
    QTest::newRow("actionBackgroundZoomMinus")
        << "Background Zoom\nScales the background when it is a picture.";
    QTest::newRow("actionBlueMarker") << "Blue marker";
    QTest::newRow("actionContact_Us")
        << "Talk to us!\nHave a question?\nDon't know how to use the product?\nWant a new feature?\nThink "
           "our "
           "product sucks?\nWant to negotiate price?\nTell us about that! Your opinion matters to us.";
}

void TestMainWindow::toolTips()
{
    QFETCH(QString, text);
    MainWindow window;
    const QString toolTip = window.findChild<QAction *>(QTest::currentDataTag())->toolTip();
    QCOMPARE(plainText(toolTip), text);
}

void TestMainWindow::slotsStandInOrder()
{
    const QMetaObject &meta = MainWindow::staticMetaObject;
    int index = meta.methodOffset();
    QCOMPARE(meta.method(index).methodSignature(), QByteArray("mwquit()"));
    QCOMPARE(meta.method(index).methodType(), QMetaMethod::Signal);
    for (const char *signature : slotSignatures) {
        const QMetaMethod method = meta.method(++index);
        QCOMPARE(method.methodSignature(), QByteArray(signature));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Private);
    }
    QCOMPARE(meta.methodCount(), index + 1);
}

void TestMainWindow::actionGroups()
{
    MainWindow window;
    QList<QStringList> groups;
    for (const QActionGroup *group : window.findChildren<QActionGroup *>(Qt::FindDirectChildrenOnly)) {
        QVERIFY(group->exclusionPolicy() == QActionGroup::ExclusionPolicy::Exclusive);
        QStringList names;
        for (const QAction *action : group->actions())
            names << action->objectName();
        groups << names;
    }
    QCOMPARE(groups, QList<QStringList>(
                         {{"actionKeep_arker", "action_Remove_Marker", "actionBlueMarker", "actionEraser"},
                          {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"}}));
}

void TestMainWindow::windowAndItsParts()
{
    MainWindow window;
    QCOMPARE(window.objectName(), QString("MainWindow"));
    QCOMPARE(window.size(), QSize(720, 400));
    QCOMPARE(window.windowTitle(), QString("Ornevo Pro"));
    QVERIFY(!window.hasMouseTracking());
    QVERIFY(!window.windowIcon().isNull());
    QVERIFY(!QPixmap(":/icons/Pterodactyl.png").isNull());
    const QSize iconSize = QPixmap(":/icons/Pterodactyl.png").size();
    QCOMPARE(window.windowIcon().pixmap(iconSize, 1.0).toImage(),
             QIcon(":/icons/Pterodactyl.png").pixmap(iconSize, 1.0).toImage());

    QCOMPARE(window.centralWidget()->objectName(), QString("centralWidget"));
    QVERIFY(!window.centralWidget()->hasMouseTracking());
    const auto *outer = qobject_cast<QHBoxLayout *>(window.centralWidget()->layout());
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->objectName(), QString("horizontalLayout"));
    QCOMPARE(outer->count(), 1);
    const auto *inner = qobject_cast<QVBoxLayout *>(outer->itemAt(0)->layout());
    QVERIFY(inner != nullptr);
    QCOMPARE(inner->objectName(), QString("verticalLayout"));
    QCOMPARE(inner->count(), 2);
    const auto *view = qobject_cast<ZelGraphicsView *>(inner->itemAt(0)->widget());
    QVERIFY(view != nullptr);
    QCOMPARE(view->objectName(), QString("graphicsView"));
    QVERIFY(view->hasMouseTracking());
    QVERIFY(view->testAttribute(Qt::WA_Hover));
    const auto *bar = qobject_cast<QProgressBar *>(inner->itemAt(1)->widget());
    QVERIFY(bar != nullptr);
    QCOMPARE(bar->objectName(), QString("progressBar"));
    QVERIFY(bar->isEnabled());
    QCOMPARE(bar->value(), 0);
    QVERIFY(bar->isHidden());
    QCOMPARE(window.menuBar()->objectName(), QString("menuBar"));
    QCOMPARE(window.menuBar()->geometry(), QRect(0, 0, 719, 21));
    QCOMPARE(window.statusBar()->objectName(), QString("statusBar"));
}

void TestMainWindow::initialState()
{
    WindowUnderTest t;
    QCOMPARE(t.status(), QString());
    QCOMPARE(t.statusTexts, QStringList());
    QCOMPARE(t.view.scene(), nullptr);
    QVERIFY(t.view.viewport()->cursor().shape() == Qt::ArrowCursor);
    QCOMPARE(t.probe.imageScene().items().size(), 0);
    QCOMPARE(t.probe.previewScene().items().size(), 0);
    QVERIFY(t.probe.workingImage().isNull());
    QVERIFY(t.probe.maskImage().isNull());
    QVERIFY(t.probe.previewImage().isNull());
    QVERIFY(t.probe.backgroundImage().isNull());
    QVERIFY(t.probe.imagePixmap().isNull());
    QCOMPARE(t.probe.maskItem(), nullptr);
    QCOMPARE(t.probe.backgroundItem(), nullptr);
    QCOMPARE(t.probe.previewItem(), nullptr);
    QCOMPARE(t.probe.currentFile(), QString());
    QCOMPARE(t.probe.outmask(), QList<int>());
    QCOMPARE(t.probe.previewOffset(), QPoint());
    QCOMPARE(t.probe.backgroundColor(), 0xFFFFFFFFU);
    QCOMPARE(t.probe.lastBrushRect(), QRect());
    QVERIFY(t.probe.skipLastRect());
    QVERIFY(t.probe.pendingBrushRects().isEmpty());
    QVERIFY(t.probe.brushTimer().isSingleShot());
    QVERIFY(t.probe.skipLastRectTimer().isSingleShot());
    QVERIFY(!t.probe.brushTimer().isActive());
    QVERIFY(!t.probe.skipLastRectTimer().isActive());
    QCOMPARE(t.probe.settings().organizationName(), QString("Tirelo software"));
    QCOMPARE(t.probe.settings().applicationName(), QString("Ornevo Pro 2.7 for Mac OS X"));
}

void TestMainWindow::quitGoesThroughTheSignal()
{
    WindowUnderTest t;
    QSignalSpy quit(&t.window, &MainWindow::mwquit);
    t.trigger("actionQuit");
    QCOMPARE(quit.count(), 1);
    QVERIFY(t.window.isVisible());
}

void TestMainWindow::quitByKey()
{
    WindowUnderTest t;
    QObject::connect(&t.window, SIGNAL(mwquit()), qApp, SLOT(quit()));
    t.window.activateWindow();
    QTimer::singleShot(0, &t.window, [&t] { QTest::keyClick(&t.window, Qt::Key_Q, Qt::ControlModifier); });
    QTimer watchdog;
    connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(42); });
    watchdog.start(3000);
    QCOMPARE(QApplication::exec(), 0);
}

void TestMainWindow::toolSlots_data()
{
    QTest::addColumn<QString>("signature");
    // What the tool does on the canvas shows which one it is.
    QTest::newRow("actionEraser") << "erases";
    QTest::newRow("actionKeep_arker") << "rectangle";
    QTest::newRow("action_Remove_Marker") << "ellipse";
    QTest::newRow("actionForeground_Brush") << "brush";
    QTest::newRow("actionBackground_Brush") << "brush";
    QTest::newRow("actionHandTool") << "hand";
    QTest::newRow("actionBlueMarker") << "blue";
}

void TestMainWindow::toolSlots()
{
    QFETCH(QString, signature);
    WindowUnderTest t;
    t.probe.settings().setValue("KEEPBSIZE", 20);
    t.probe.settings().setValue("REMOVEBSIZE", 30);
    t.view.updatetoolssettings();
    QGraphicsScene scene(0, 0, 100, 100);
    t.view.setScene(&scene);
    scene.addRect(40, 40, 20, 20, QPen(Qt::black), QBrush(Qt::black));
    QSignalSpy brush(&t.view, &ZelGraphicsView::AnyBrush);
    QSignalSpy hand(&t.view, &ZelGraphicsView::HandTool);
    t.action(QTest::currentDataTag()).setEnabled(true);
    t.action(QTest::currentDataTag()).trigger();
    QVERIFY(t.action(QTest::currentDataTag()).isChecked());
    t.mouse.stroke({t.at(50, 50)});
    QString seen;
    if (scene.items().isEmpty())
        seen = "erases";
    else if (hand.count() > 0)
        seen = "hand";
    else if (brush.count() > 0)
        seen = "brush";
    for (const QGraphicsItem *item : scene.items()) {
        const auto *rectangle = qgraphicsitem_cast<const QGraphicsRectItem *>(item);
        const auto *ellipse = qgraphicsitem_cast<const QGraphicsEllipseItem *>(item);
        if (rectangle != nullptr && rectangle->zValue() == 10.0)
            seen = "rectangle";
        if (ellipse != nullptr && ellipse->zValue() == 10.0)
            seen = ellipse->pen().color() == QColor(10, 10, 255) ? "blue" : "ellipse";
    }
    QCOMPARE(seen, signature);
    if (seen == "brush") {
        const int size = QString(QTest::currentDataTag()) == "actionForeground_Brush" ? 20 : 30;
        QCOMPARE(brush.first().first().toRect().size(), QSize(size, size));
    }
    t.view.setScene(nullptr);
}

void TestMainWindow::uncheckingLeavesTheTool()
{
    WindowUnderTest t;
    t.trigger("actionKeep_arker");
    QCOMPARE(t.view.viewport()->cursor().hotSpot(), QPoint(4, 21));
    const QCursor pencil = t.view.viewport()->cursor();
    t.trigger("actionBlueMarker");
    QCOMPARE(t.view.viewport()->cursor().shape(), Qt::BlankCursor);
    QVERIFY(!t.action("actionKeep_arker").isChecked());
    t.action("actionBlueMarker").setChecked(false); // nothing is chosen instead
    QCOMPARE(t.view.viewport()->cursor().shape(), Qt::BlankCursor);
    t.trigger("actionKeep_arker");
    QCOMPARE(t.view.viewport()->cursor().shape(), pencil.shape());
    QMetaObject::invokeMethod(&t.window, "on_actionHandTool_toggled", Q_ARG(bool, false));
    QCOMPARE(t.view.viewport()->cursor().shape(), pencil.shape());
}

void TestMainWindow::groupsAreSeparate()
{
    WindowUnderTest t;
    for (const char *name : {"actionForeground_Brush", "actionHandTool"})
        t.action(name).setEnabled(true);
    t.trigger("actionForeground_Brush");
    t.trigger("actionKeep_arker");
    QVERIFY(t.action("actionForeground_Brush").isChecked());
    QVERIFY(t.action("actionKeep_arker").isChecked());
    t.trigger("actionHandTool");
    QVERIFY(!t.action("actionForeground_Brush").isChecked());
    QVERIFY(t.action("actionKeep_arker").isChecked());
    t.trigger("actionEraser");
    QVERIFY(!t.action("actionKeep_arker").isChecked());
    QVERIFY(t.action("actionHandTool").isChecked());
}

void TestMainWindow::emptySlots()
{
    WindowUnderTest t;
    t.trigger("actionFinematt");
    QVERIFY(QMetaObject::invokeMethod(&t.window, "on_actionSelect_Background_toggled", Q_ARG(bool, true)));
    t.window.finematt({{1, 2}, {3}}, {4});
    unsigned char edges = 7;
    QImage image(1, 1, QImage::Format_RGB32);
    t.window.canny(&image, &edges);
    QCOMPARE(int(edges), 7);
    QCOMPARE(t.statusTexts, QStringList());
    QCOMPARE(t.probe.undoStack().count(), 0);
}

void TestMainWindow::hiddenActionsAreBound()
{
    WindowUnderTest t;
    t.answers.cancelFile();
    t.trigger("actionSave_As");
    QCOMPARE(t.status(), QString("No file selected"));
    t.answers.expect<QMessageBox>([](QMessageBox &box) { box.accept(); });
    t.trigger("actionTestMenu");
    t.trigger("actionFinematt");
    t.trigger("actionBlueMarker");
    QCOMPARE(t.view.viewport()->cursor().shape(), Qt::BlankCursor);
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
}

void TestMainWindow::backgroundEraserDoesNothing()
{
    WindowUnderTest t;
    t.trigger("actionKeep_arker");
    t.trigger("actionBackground_Eraser");
    QVERIFY(t.action("actionBackground_Eraser").isChecked());
    QVERIFY(t.action("actionKeep_arker").isChecked());
    QCOMPARE(t.view.viewport()->cursor().hotSpot(), QPoint(4, 21));
    QCOMPARE(t.statusTexts, QStringList());
}

void TestMainWindow::undoLimit()
{
    WindowUnderTest t;
    QCOMPARE(t.probe.undoStack().undoLimit(), 200);
    for (int i = 0; i < 210; ++i)
        t.probe.undoStack().push(new QUndoCommand);
    QCOMPARE(t.probe.undoStack().count(), 200);
}

void TestMainWindow::undoFromTheMenu()
{
    WindowUnderTest t;
    QGraphicsScene scene(0, 0, 100, 100);
    t.view.setScene(&scene);
    t.trigger("actionKeep_arker");
    t.mouse.stroke({t.at(20, 20), t.at(40, 40)});
    QCOMPARE(scene.items().size(), 2);
    t.window.findChild<QMenu *>("menuActions")->actions().last()->trigger();
    QCOMPARE(scene.items().size(), 1);
    QTest::keySequence(&t.window, QKeySequence(QKeySequence::Undo));
    QTRY_COMPARE(scene.items().size(), 0);
    t.view.setScene(nullptr);
}

void TestMainWindow::canvasGetsItsSettings()
{
    QSettings().setValue("KEEPMSIZE", 17);
    WindowUnderTest t;
    QCOMPARE(t.view.settings, &t.probe.settings());
    QCOMPARE(t.view.undoStack, &t.probe.undoStack());
    QCOMPARE(int(t.probe.keepMarkerSize()), 17);
    QGraphicsScene scene(0, 0, 100, 100);
    t.view.setScene(&scene);
    t.trigger("actionKeep_arker");
    t.mouse.stroke({t.at(20, 20)});
    QCOMPARE(qgraphicsitem_cast<QGraphicsRectItem *>(scene.items().first())->rect().width(), 17.0);
    t.view.setScene(nullptr);
}

void TestMainWindow::dialogsTakeTheIcon()
{
    const MainWindow window;
    QSettings settings;
    const OptionsDialog preferences(&settings, nullptr);
    const BackgroundDialog background(nullptr);
    const ExportDialog exporting(4, 3, &settings, nullptr);
    const QImage icon = window.windowIcon().pixmap(32).toImage();
    QVERIFY(!icon.isNull());
    for (const QDialog *dialog :
         {static_cast<const QDialog *>(&preferences), static_cast<const QDialog *>(&background),
          static_cast<const QDialog *>(&exporting)})
        QCOMPARE(dialog->windowIcon().pixmap(32).toImage(), icon);
}

void TestMainWindow::hintUntilAPhotoIsOpen()
{
    QTemporaryDir folder;
    QVERIFY(testpictures::blobImage(40, 30, 4).save(folder.filePath("photo.png")));
    QFile broken(folder.filePath("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    WindowUnderTest t;
    auto &hint = testsupport::part<QLabel>(t.window, "hint");
    QVERIFY(hint.isVisible());
    QVERIFY(hint.text().contains(t.action("actionOpen").shortcut().toString()));
    // It is in nobody's way.
    QCOMPARE(t.view.scene(), nullptr);
    QCOMPARE(QApplication::widgetAt(hint.mapToGlobal(hint.rect().center())), t.view.viewport());
    t.window.resize(200, 150);
    QVERIFY(t.window.width() <= 400); // nothing that it says makes the window wide
    t.window.resize(640, 480);

    t.openPicture(broken.fileName());
    QVERIFY(hint.isVisible());
    t.openPicture(folder.filePath("photo.png"));
    QVERIFY(!hint.isVisible());
    t.openPicture(broken.fileName());
    QVERIFY(!hint.isVisible()); // by now it is known
}

void TestMainWindow::hintCanBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("preview");
    QTest::newRow("light") << false << false;
    QTest::newRow("dark") << true << false;
    QTest::newRow("light, preview of nothing") << false << true;
    QTest::newRow("dark, preview of nothing") << true << true;
}

void TestMainWindow::hintCanBeRead()
{
    QFETCH(bool, dark);
    QFETCH(bool, preview);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(dark ? QPalette(QColor(45, 45, 45)) : QPalette(QColor(239, 239, 239)));
    {
        WindowUnderTest t;
        if (preview)
            t.trigger("actionPreview");
        const auto &hint = testsupport::part<QLabel>(t.window, "hint");
        const QImage shown = t.view.grab(hint.geometry()).toImage();
        const int behind = qGray(shown.pixel(1, 1));
        int contrast = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                contrast = std::max(contrast, std::abs(qGray(shown.pixel(x, y)) - behind));
        QVERIFY2(contrast >= 120, qPrintable(QString::number(contrast)));
    }
    QApplication::setPalette(before);
}

ORNEVO_TEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
