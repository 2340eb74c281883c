// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "ui_MainWindow.h"

#include <QEvent>
#include <QToolButton>

using namespace Qt::StringLiterals;

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MainWindow::retranslate()
{
    const QString title = windowTitle(); // it names the open picture, of which the form knows nothing
    form->retranslateUi(this);
    setWindowTitle(title);
    nameToolBar();
    emit undoStack.undoTextChanged(undoStack.undoText()); // the undo action listens, and words it anew
}

void MainWindow::nameToolBar()
{
    // Not every Qt tells the screen reader the title of a tool bar, and none has a name for its overflow
    // button.
    form->mainToolBar->setAccessibleName(form->mainToolBar->windowTitle());
    if (auto *overflow = form->mainToolBar->findChild<QToolButton *>(u"qt_toolbar_ext_button"_s))
        overflow->setAccessibleName(tr("More tools"));
}
