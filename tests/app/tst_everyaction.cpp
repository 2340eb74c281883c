// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QDialogButtonBox>
#include <QGraphicsPixmapItem>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

using testsupport::action;
using testsupport::part;
using testsupport::status;

namespace {

enum State { NoPhoto, Photo, Overlay, ColourPreview, PicturePreview };
const QList<State> states{NoPhoto, Photo, Overlay, ColourPreview, PicturePreview};
const char *const stateNames[] = {"no photo", "photo", "overlay", "preview on a colour",
                                  "preview on a picture"};

bool isPreview(State state)
{
    return state == ColourPreview || state == PicturePreview;
}

enum When { Always, Editing, Previewing, Never };

struct Row
{
    const char *name;
    When enabled;
    bool checkable = false;
    int tool = -1;                 ///< the tool in use afterwards, -1: as before
    const char *text = nullptr;    ///< the status text afterwards, null: as before
    bool dialogs = false;          ///< opens a modal dialog, which is cancelled
    const char *noPhoto = nullptr; ///< the status text without a photo, where it is another
};

// The whole window in one table.
const QList<Row> rows{
    {"actionOpen", Always, false, -1, "No file selected", true},
    {"actionSave", Always, false, -1, nullptr, true, "Failed to read image"},
    {"actionSave_As", Always, false, -1, "No file selected", true},
    {"actionQuit", Always},
    {"actionKeep_arker", Editing, true, 3},
    {"action_Remove_Marker", Editing, true, 4},
    {"actionIndex", Always},
    {"actionAbout", Always, false, -1, nullptr, true},
    {"actionZoom_In", Always},
    {"actionZoom_Out", Always},
    {"actionPreview", Always, true, 0},
    {"actionMask", Editing, false, -1, "Ready"},
    {"actionSelect_Background", Previewing, false, -1, nullptr, true},
    {"actionHandTool", Previewing, true, 7},
    {"actionPreferences", Always, false, -1, nullptr, true},
    {"actionExport", Always, false, -1, nullptr, true},
    {"actionEraser", Editing, true, 2},
    {"actionBackground_Eraser", Always, true},
    {"actionBackground_Brush", Previewing, true, 6},
    {"actionForeground_Brush", Previewing, true, 5},
    {"actionBackgroundZoomPlus", Previewing},
    {"actionBackgroundZoomMinus", Previewing},
    {"actionFinematt", Always},
    {"actionBlueMarker", Always, true, 8},
    {"actionContact_Us", Never},
    {"actionIncreaseToolSize", Always, false, -1, ""},
    {"actionDecreaseToolSoze", Always, false, -1, ""},
    {"actionIncreaseBrushIntensity", Always},
    {"actionDecreaseBrushIntensity", Always},
    {"actionTestMenu", Always, false, -1, nullptr, true},
};

bool expectedEnabled(const Row &row, bool preview)
{
    return row.enabled == Always || (row.enabled == Editing && !preview) ||
           (row.enabled == Previewing && preview);
}

// A tool in use can be recognised from outside by its cursor only.
Qt::CursorShape shapeOf(int tool)
{
    switch (tool) {
    case 0:
        return Qt::ArrowCursor;
    case 5:
    case 6:
    case 8:
        return Qt::BlankCursor;
    case 7:
        return Qt::OpenHandCursor;
    default:
        return Qt::BitmapCursor;
    }
}

} // namespace

class TestEveryAction : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void theTableIsWhole();
    void everyActionInEveryState_data();
    void everyActionInEveryState();
    void toolsInEveryState_data();
    void toolsInEveryState();
    void previewLetsGoOfTools();

private:
    void enter(State state);
    void chooseBackground(const QString &picture);
    void checkEnabled(bool preview);

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<MainWindowProbe> probe;
};

void TestEveryAction::initTestCase()
{
    QVERIFY(testpictures::blobImage(80, 60, 3).save(folder.filePath("photo.png")));
    QVERIFY(testpictures::blobImage(50, 70, 4).save(folder.filePath("background.png")));
}

void TestEveryAction::cleanup()
{
    probe.reset();
    window.reset();
}

void TestEveryAction::chooseBackground(const QString &picture)
{
    testsupport::DialogAnswers answers;
    answers.expect<QDialog>([](QDialog &dialog) {
        part<QRadioButton>(dialog, "pictureradioButton").click();
        part<QPushButton>(dialog, "pushButton_2").click();
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    answers.chooseFile(picture);
    action(*window, "actionSelect_Background")->trigger();
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
}

void TestEveryAction::enter(State state)
{
    QSettings().clear();
    probe.reset();
    window = std::make_unique<MainWindow>();
    probe = std::make_unique<MainWindowProbe>(*window);
    testsupport::show(*window);
    if (state == NoPhoto)
        return;
    testsupport::openPhoto(*window, folder.filePath("photo.png"));
    if (state == Photo)
        return;
    action(*window, "actionKeep_arker")->trigger();
    testsupport::CanvasMouse(*testsupport::canvas(*window)).draw({{35, 30}, {40, 30}});
    action(*window, "action_Remove_Marker")->trigger();
    testsupport::CanvasMouse(*testsupport::canvas(*window)).draw({{8, 8}, {8, 50}, {72, 50}});
    action(*window, state == Overlay ? "actionMask" : "actionPreview")->trigger();
    if (state == PicturePreview)
        chooseBackground(folder.filePath("background.png"));
}

void TestEveryAction::checkEnabled(bool preview)
{
    for (const Row &row : rows) {
        const QAction *found = action(*window, row.name);
        QVERIFY2(found->isEnabled() == expectedEnabled(row, preview), row.name);
        QVERIFY2(found->isCheckable() == row.checkable, row.name);
    }
}

void TestEveryAction::theTableIsWhole()
{
    enter(NoPhoto);
    QStringList named;
    for (const QAction *found : window->findChildren<QAction *>())
        if (found->objectName().startsWith("action"))
            named.append(found->objectName());
    QStringList inTable;
    for (const Row &row : rows)
        inTable.append(row.name);
    named.sort();
    inTable.sort();
    QCOMPARE(inTable, named);
    checkEnabled(false);
    for (const Row &row : rows)
        QVERIFY2(!action(*window, row.name)->isChecked(), row.name);
    QCOMPARE(status(*window), "");
    QCOMPARE(testsupport::canvas(*window)->viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestEveryAction::everyActionInEveryState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("row");
    for (const State state : states)
        for (int row = 0; row < rows.size(); ++row)
            QTest::addRow("%s: %s", stateNames[state], rows.at(row).name) << int{state} << row;
}

void TestEveryAction::everyActionInEveryState()
{
    QFETCH(int, state);
    QFETCH(int, row);
    const Row &expected = rows.at(row);
    const auto before = static_cast<State>(state);
    enter(before);
    checkEnabled(isPreview(before));
    const QString statusBefore = status(*window);
    const auto cursorBefore = testsupport::canvas(*window)->viewport()->cursor().shape();
    QMap<QString, bool> checkedBefore;
    for (const Row &other : rows)
        checkedBefore.insert(other.name, action(*window, other.name)->isChecked());
    const bool enabled = expectedEnabled(expected, isPreview(before));
    const bool isSave = qstrcmp(expected.name, "actionSave") == 0;
    const bool isExport = qstrcmp(expected.name, "actionExport") == 0;
    const bool nothingToAsk = before == NoPhoto && (isSave || isExport);
    QSignalSpy quit(window.get(), &MainWindow::mwquit);

    testsupport::DialogAnswers answers;
    answers.expect<QDialog>(testsupport::pressEscape);
    action(*window, expected.name)->trigger();
    QCOMPARE(answers.given(), enabled && expected.dialogs && !nothingToAsk ? 1 : 0);
    QCOMPARE(quit.size(), qstrcmp(expected.name, "actionQuit") == 0 ? 1 : 0);

    if (!enabled) {
        QCOMPARE(status(*window), statusBefore);
        QCOMPARE(testsupport::canvas(*window)->viewport()->cursor().shape(), cursorBefore);
        for (auto it = checkedBefore.cbegin(); it != checkedBefore.cend(); ++it)
            QCOMPARE(action(*window, it.key())->isChecked(), it.value());
        return;
    }

    // The status text.
    QString text = expected.text == nullptr ? statusBefore : QString(expected.text);
    if (before == NoPhoto && expected.noPhoto != nullptr)
        text = expected.noPhoto;
    const QString name = expected.name;
    if (name == "actionPreview" && !isPreview(before))
        text = "Ready";
    if (name.contains(
            "creaseToolS")) { // with nothing stored the size is everybody's, while the markers are awake
        text = isPreview(before) ? statusBefore
                                 : QString("Tool size is %1").arg(name.startsWith("actionIn") ? 11 : 9);
    }
    QCOMPARE(status(*window), text);

    // What is checked.
    const bool preview = name == "actionPreview" ? !isPreview(before) : isPreview(before);
    checkEnabled(preview);
    const QStringList markers{"actionKeep_arker", "action_Remove_Marker", "actionEraser", "actionBlueMarker"};
    const QStringList brushes{"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"};
    for (auto it = checkedBefore.cbegin(); it != checkedBefore.cend(); ++it) {
        bool checked = it.value();
        if (it.key() == name)
            checked = expected.checkable && (!it.value() || markers.contains(name) || brushes.contains(name));
        else if ((markers.contains(name) && markers.contains(it.key())) ||
                 (brushes.contains(name) && brushes.contains(it.key())))
            checked = false;
        if (name == "actionPreview" && !preview && markers.contains(it.key()) &&
            it.key() != "actionBlueMarker")
            checked = false;
        if (name == "actionPreview" && preview && brushes.contains(it.key()))
            checked = false;
        QVERIFY2(action(*window, it.key())->isChecked() == checked, qPrintable(it.key()));
    }

    // The tool.
    const auto cursor = testsupport::canvas(*window)->viewport()->cursor().shape();
    QCOMPARE(cursor, expected.tool < 0 ? cursorBefore : shapeOf(expected.tool));
    QCOMPARE(testsupport::canvas(*window)->scene(),
             before == NoPhoto && !preview && name != "actionPreview"
                 ? nullptr
                 : (preview ? &probe->previewScene() : &probe->imageScene()));
}

void TestEveryAction::toolsInEveryState_data()
{
    QTest::addColumn<int>("state");
    for (const State state : states)
        QTest::newRow(stateNames[state]) << int{state};
}

void TestEveryAction::toolsInEveryState()
{
    // One after the other in one window, with a stroke of each, and in and out of the preview between them.
    QFETCH(int, state);
    enter(static_cast<State>(state));
    for (int round = 0; round < 2; ++round) {
        for (const Row &row : rows) {
            QAction *tool = action(*window, row.name);
            if (row.tool <= 0 || !tool->isEnabled())
                continue;
            tool->trigger();
            QVERIFY2(tool->isChecked(), row.name);
            QCOMPARE(testsupport::canvas(*window)->viewport()->cursor().shape(), shapeOf(row.tool));
            testsupport::CanvasMouse(*testsupport::canvas(*window))
                .draw({{30, 30}, {35, 32}, {-20, 40}, {50, 20}});
        }
        QTRY_VERIFY(probe->pendingBrushRects().isEmpty());
        action(*window, "actionPreview")->trigger();
        checkEnabled(action(*window, "actionPreview")->isChecked());
        QCOMPARE(testsupport::canvas(*window)->viewport()->cursor().shape(), Qt::ArrowCursor);
    }
    const int entries = probe->undoStack().count();
    QVERIFY(entries > 0 || state == NoPhoto);
    for (int left = entries; left > 0; --left) {
        QCOMPARE(probe->undoStack().index(), left);
        testsupport::key(*window, QKeySequence::Undo);
    }
    QVERIFY(!probe->undoStack().canUndo());
    for (int done = 0; done < entries; ++done) {
        QCOMPARE(probe->undoStack().index(), done);
        testsupport::key(*window, QKeySequence::Redo);
    }
    QVERIFY(!probe->undoStack().canRedo());
}

void TestEveryAction::previewLetsGoOfTools()
{
    enter(Photo);
    QAction *preview = action(*window, "actionPreview");
    for (const char *name :
         {"actionKeep_arker", "action_Remove_Marker", "actionEraser", "actionBlueMarker"}) {
        QAction *marker = action(*window, name);
        marker->trigger();
        preview->trigger();
        QVERIFY2(marker->isChecked(), name); // on the way in the markers fall asleep as they are
        preview->trigger();
        // The Blue marker is none of the preview's business.
        QVERIFY2(marker->isChecked() == (marker->objectName() == "actionBlueMarker"), name);
    }
    preview->trigger();
    for (const char *name : {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool"}) {
        QAction *brush = action(*window, name);
        brush->trigger();
        preview->trigger();
        QVERIFY2(brush->isChecked(), name);
        preview->trigger();
        QVERIFY2(!brush->isChecked(), name);
    }
}

ORNEVO_TEST_MAIN(TestEveryAction)
#include "tst_everyaction.moc"
