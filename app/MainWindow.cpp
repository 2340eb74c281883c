// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "resources/Resources.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QThread>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int undoLimit = 200;
constexpr double zoomStep = 1.2;
constexpr double zoomStepBack = 0.8333333333333334; // 1 / 1.2

} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent), form(std::make_unique<Ui_MainWindow>())
{
    resources::registerAll();
    form->setupUi(this);
    setUpTools();
    setUpUndo();
    letTabIntoTheToolBar();
    setUpProgress();
    setUpStatusBar();
    setUpHint();
    QGuiApplication::setWindowIcon(windowIcon()); // which the dialogs take
    updatetoolssettings();
    form->graphicsView->settings = &settings;
    form->graphicsView->updatetoolssettings();
    form->graphicsView->undoStack = &undoStack;
    form->graphicsView->setAttribute(Qt::WA_Hover);
    connectCanvas();
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpProgress()
{
    // Its place stays: a canvas that grew and shrank with the bar would lose its zoom a little each time.
    QSizePolicy policy = form->progressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    form->progressBar->setSizePolicy(policy);
    form->progressBar->hide();
}

void MainWindow::setUpStatusBar()
{
    // Most texts tell of work that begins now and keeps the event loop from painting them. All else that
    // waits to be painted comes along, such as the photo that was opened.
    connect(form->statusBar, &QStatusBar::messageChanged, form->statusBar,
            [bar = form->statusBar] { bar->repaint(); });
}

bool MainWindow::event(QEvent *event)
{
    // No action has a status tip; the empty one of whatever menu or button the pointer comes by would wipe
    // out what the status bar says.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void MainWindow::setUpHint()
{
    form->hint->setAttribute(Qt::WA_TransparentForMouseEvents); // the canvas beneath is what is used
    form->hint->setForegroundRole(QPalette::Text);              // to be read on the canvas, light or dark
}

void MainWindow::setUpUndo()
{
    undoStack.setUndoLimit(undoLimit);
    QAction *undo = undoStack.createUndoAction(this);
    undo->setShortcut(QKeySequence::Undo);
    // The stack words it once and for all; in another language it is to be worded anew.
    connect(&undoStack, &QUndoStack::undoTextChanged, undo, [undo] {
        undo->setText(QCoreApplication::translate("QUndoStack", "Undo", "Default text for undo action"));
    });
    form->menuActions->addAction(undo);
    // Redo has no place in the menus; its keys work all the same.
    QAction *redo = undoStack.createRedoAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    addAction(redo);
}

void MainWindow::letTabIntoTheToolBar()
{
    // The buttons of a tool bar never take the focus by themselves, and many actions stand there only. By
    // Tab alone, so that a click leaves the keys with the canvas.
    QList<QWidget *> buttons;
    for (QAction *action : form->mainToolBar->actions())
        buttons << form->mainToolBar->widgetForAction(action);
    nameToolBar();
    if (auto *overflow = form->mainToolBar->findChild<QToolButton *>(u"qt_toolbar_ext_button"_s))
        buttons << overflow;
    QWidget *previous = form->graphicsView;
    for (QWidget *button : buttons) {
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        setTabOrder(previous, button);
        previous = button;
    }
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // The focus can hardly be seen on a flat button, but well on a raised one.
    auto *button = qobject_cast<QToolButton *>(watched);
    if (button != nullptr && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        button->setAutoRaise(event->type() == QEvent::FocusOut);
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::repaintAfterDialog()
{
    // On an X server a dialog that was closed leaves its pixels on the screen until the window manager has
    // given the place back, which is when this window is the active one again, and the window has painted it.
    // Work that keeps the one thread busy waits for that, though not for long: there need not be a manager.
    constexpr int patience = 100; // ms
    const QDeadlineTimer deadline(QGuiApplication::platformName() == "xcb"_L1 && isVisible() ? patience : 0);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    while (!isActiveWindow() && !deadline.hasExpired()) {
        QThread::msleep(1);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    repaint();
    form->graphicsView->viewport()->repaint(); // a window's repaint() leaves out its children
}

void MainWindow::connectCanvas()
{
    brushTimer.setSingleShot(true);
    skipLastRectTimer.setSingleShot(true);
    connect(form->graphicsView, SIGNAL(AnyBrush(QRect, bool)), this, SLOT(on_BrushMouseEvent(QRect, bool)));
    connect(form->graphicsView, SIGNAL(HandTool(QPoint, QPoint)), this,
            SLOT(on_HandToolPressed(QPoint, QPoint)));
    connect(&brushTimer, SIGNAL(timeout()), this, SLOT(on_ProcessBrushMouseEvent()));
    connect(&skipLastRectTimer, SIGNAL(timeout()), this, SLOT(on_TimeToSkipLastRect()));
}

void MainWindow::on_actionZoom_In_triggered()
{
    form->graphicsView->scale(zoomStep, zoomStep);
}
void MainWindow::on_actionZoom_Out_triggered()
{
    form->graphicsView->scale(zoomStepBack, zoomStepBack);
}

void MainWindow::on_actionQuit_triggered()
{
    emit mwquit();
}

void MainWindow::on_actionFinematt_triggered() {}
void MainWindow::on_actionSelect_Background_toggled(bool /*checked*/) {}
void MainWindow::finematt(QList<QList<int>> /*regions*/, QList<int> /*pixels*/) {}
void MainWindow::canny(QImage * /*image*/, unsigned char * /*edges*/) {}
