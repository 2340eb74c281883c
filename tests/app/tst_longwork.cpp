// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ProgressStep.h"
#include "app/WaitCursor.h"
#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "tests/reference/TestPictures.h"
#include "tests/support/DialogParts.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QGuiApplication>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QRadioButton>
#include <QToolBar>

#include <stdexcept>

using testsupport::DialogAnswers;
using testsupport::part;
using testsupport::WindowUnderTest;

namespace {

bool pointerWaits()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

/// Notes on the status texts and the paintings of a window how the pointer looks meanwhile.
class Witness : public QObject
{
public:
    explicit Witness(WindowUnderTest &t)
    {
        connect(t.window.statusBar(), &QStatusBar::messageChanged, this, [this](const QString &) { note(); });
        t.view.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && pointerWaits()) {
            ++paintings;
            fileWasThere = fileWasThere || QFile::exists(file);
        }
        return false;
    }
    void note() { (pointerWaits() ? waiting : free) += 1; }

    int waiting = 0;   ///< status texts that came under a wait cursor
    int free = 0;      ///< and without one
    int paintings = 0; ///< of the canvas under a wait cursor
    QString file;
    bool fileWasThere = false; ///< at one of them
};

/// The status texts that were painted, and how often the progress bar and the canvas were painted under each.
class PaintedTexts : public QObject
{
public:
    explicit PaintedTexts(WindowUnderTest &t) : m_t(t)
    {
        for (QWidget *widget : {static_cast<QWidget *>(t.window.statusBar()),
                                static_cast<QWidget *>(&t.progressBar()), t.view.viewport()})
            widget->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || !pointerWaits())
            return false;
        const QString text = m_t.status();
        if (watched == m_t.window.statusBar())
            texts << text;
        else if (watched == &m_t.progressBar())
            ++barBy[text];
        else
            ++canvasBy[text];
        return false;
    }

    QStringList texts;
    QHash<QString, int> barBy;
    QHash<QString, int> canvasBy;

private:
    WindowUnderTest &m_t;
};

} // namespace

/// While the program is busy the pointer says so, and no pixels of a closed dialog are left on the screen.
class TestLongWork : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(testpictures::blobImage(60, 44, 4).save(m_folder.filePath("photo.png"))); }
    void init()
    {
        QSettings().clear();
        QFile::remove(file("out.jpg"));
    }
    void cleanup() { QVERIFY(QGuiApplication::overrideCursor() == nullptr); }
    void opening();
    void stepsAreSeen();
    void menusLeaveTheStatusText();
    void unreadableFile();
    void mask();
    void preview();
    void background();
    void exporting();
    void exportWithALostTransparency();
    void saving();
    void savingAs();
    void exceptions();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    void openAndMark(WindowUnderTest &t) const
    {
        t.openPicture(file("photo.png"));
        t.dab("actionKeep_arker", 20, 15);
        t.dab("action_Remove_Marker", 45, 5);
    }
    static void pressDots(QDialog &dialog)
    {
        QTest::mouseClick(&part<QPushButton>(dialog, "pushButton"), Qt::LeftButton);
    }

    QTemporaryDir m_folder;
};

void TestLongWork::opening()
{
    WindowUnderTest t;
    const Witness witness(t);
    bool inDialog = true;
    t.answers.chooseFile(file("photo.png"), [&](QFileDialog &) { inDialog = pointerWaits(); });
    t.trigger("actionOpen");
    QVERIFY(!inDialog);
    QVERIFY(witness.waiting >= 3);
    QCOMPARE(witness.free, 0);
    t.window.open(); // whoever asks for it
    QCOMPARE(witness.free, 0);
}

/// What the status bar says of a step, and what the step has to show so far, is on the screen while it runs:
/// the event loop, which paints otherwise, is only back when all of it is over.
void TestLongWork::stepsAreSeen()
{
    WindowUnderTest t;
    const PaintedTexts painted(t);
    t.openPicture(file("photo.png"));
    QVERIFY2(painted.texts.contains("Image loaded. Preprocessing image."),
             qPrintable(painted.texts.join(", ")));
    QCOMPARE(painted.barBy.value("Image loaded. Preprocessing image."), 1);
    QCOMPARE(painted.canvasBy.value("Image loaded. Preprocessing image."), 1);
    t.dab("actionKeep_arker", 20, 15);
    t.dab("action_Remove_Marker", 45, 5);
    t.trigger("actionMask");
    QVERIFY2(painted.texts.contains("Isolating object"), qPrintable(painted.texts.join(", ")));
    QVERIFY(painted.barBy.value("Isolating object") >= 1);
}

/// A status text stays until the next one comes, wherever the pointer goes meanwhile.
void TestLongWork::menusLeaveTheStatusText()
{
    WindowUnderTest t;
    t.openPicture(file("photo.png"));
    testsupport::activate(t.window);
    QCOMPARE(t.status(), QString("Ready"));
    QMenuBar &menus = *t.window.menuBar();
    for (const QAction *menu : menus.actions()) {
        QTest::mouseClick(&menus, Qt::LeftButton, {},
                          menus.actionGeometry(const_cast<QAction *>(menu)).center());
        QTRY_VERIFY(menu->menu()->isVisible());
        QTest::keyClick(menu->menu(), Qt::Key_Down);
        QTest::keyClick(menu->menu(), Qt::Key_Escape);
        QTRY_VERIFY(!menu->menu()->isVisible());
        QCOMPARE(t.status(), QString("Ready"));
    }
    auto *toolBar = t.window.findChild<QToolBar *>("mainToolBar");
    for (QAction *action : toolBar->actions())
        action->hover(); // as its button does when the pointer comes
    QCOMPARE(t.status(), QString("Ready"));
}

void TestLongWork::unreadableFile()
{
    WindowUnderTest t;
    const Witness witness(t);
    t.probe.currentFile() = file("nothing.png");
    t.window.open();
    QCOMPARE(t.status(), QString("Failed to read image"));
    QCOMPARE(witness.waiting, 1);
}

void TestLongWork::mask()
{
    WindowUnderTest t;
    openAndMark(t);
    QVERIFY(!pointerWaits());
    const Witness witness(t);
    t.trigger("actionMask");
    QVERIFY(witness.waiting >= 3);
    QCOMPARE(witness.free, 0);
}

void TestLongWork::preview()
{
    WindowUnderTest t;
    openAndMark(t);
    const Witness witness(t);
    t.trigger("actionPreview");
    QVERIFY(witness.waiting >= 3);
    QCOMPARE(witness.free, 0);
}

void TestLongWork::background()
{
    WindowUnderTest t;
    openAndMark(t);
    t.trigger("actionPreview");
    t.window.statusBar()->showMessage("nothing yet"); // a text that stays is not reported
    const Witness witness(t);
    bool inDialog = true;
    t.answers.expect<BackgroundDialog>([&](BackgroundDialog &dialog) {
        inDialog = pointerWaits();
        part<QRadioButton>(dialog, "transparentradioButton").click();
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.trigger("actionSelect_Background");
    QVERIFY(!inDialog);
    QVERIFY(witness.waiting >= 1);
    QCOMPARE(witness.free, 0);
}

void TestLongWork::exporting()
{
    WindowUnderTest t;
    openAndMark(t);
    t.trigger("actionPreview");
    Witness witness(t);
    witness.file = file("out.jpg");
    bool inDialog = true;
    t.answers.expect<ExportDialog>([&](ExportDialog &dialog) {
        inDialog = pointerWaits();
        pressDots(dialog);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file("out.jpg"));
    t.trigger("actionExport");
    QVERIFY(QFile::exists(file("out.jpg")));
    QVERIFY(!inDialog);
    QVERIFY(witness.paintings > 0); // where the dialog was, before the work
    QVERIFY(!witness.fileWasThere);
}

void TestLongWork::exportWithALostTransparency()
{
    WindowUnderTest t;
    openAndMark(t);
    t.trigger("actionPreview");
    t.probe.backgroundColor() = 0;
    bool inWarning = true;
    t.answers.expect<ExportDialog>([](ExportDialog &dialog) {
        pressDots(dialog);
        testsupport::press(dialog, QDialogButtonBox::Ok);
    });
    t.answers.chooseFile(file("out.jpg"));
    t.answers.expect<QMessageBox>([&](QMessageBox &box) {
        inWarning = pointerWaits();
        box.accept();
    });
    t.trigger("actionExport");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QVERIFY(!inWarning);
}

void TestLongWork::saving()
{
    WindowUnderTest t;
    QVERIFY(QFile::copy(file("photo.png"), file("mine.png")));
    t.openPicture(file("mine.png"));
    Witness witness(t);
    bool inQuestion = true;
    t.answers.expect<QMessageBox>([&](QMessageBox &box) {
        inQuestion = pointerWaits();
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    t.trigger("actionSave");
    QVERIFY2(t.answers.allGiven(), qPrintable(t.answers.report()));
    QVERIFY(!inQuestion);
    QVERIFY(witness.paintings > 0);
    QVERIFY(witness.waiting >= 3);
    QCOMPARE(witness.free, 0);
}

void TestLongWork::savingAs()
{
    WindowUnderTest t;
    t.openPicture(file("photo.png"));
    Witness witness(t);
    witness.file = file("out.jpg");
    t.answers.chooseFile(file("out.jpg"));
    t.trigger("actionSave_As");
    QVERIFY(QFile::exists(file("out.jpg")));
    QVERIFY(witness.paintings > 0);
    QVERIFY(witness.waiting >= 3);
    QCOMPARE(witness.free, 0);
}

/// Memory may be short at any moment of the work.
void TestLongWork::exceptions()
{
    WindowUnderTest t;
    try {
        const app::WaitCursor busy;
        const app::ProgressStep progress(&t.progressBar());
        QVERIFY(pointerWaits());
        throw std::runtime_error("the work fails");
    } catch (const std::runtime_error &) {
    }
    QVERIFY(!pointerWaits());
    QVERIFY(!t.progressBar().isVisible());
}

ORNEVO_TEST_MAIN(TestLongWork)
#include "tst_longwork.moc"
