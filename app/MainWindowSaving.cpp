// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "cutout/FlatPicture.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QGraphicsPixmapItem>
#include <QMessageBox>

#include <new>

void MainWindow::save(const QString &path)
{
    const app::WaitCursor busy;
    writeScene(path);
}

// False when there was no memory for what was to be written: then all that the user has is in the window, and
// stays there.
bool MainWindow::writeScene(const QString &path)
{
    const QGraphicsPixmapItem *picture = topmostPicture();
    if (picture == nullptr || picture->pixmap().isNull())
        return true;
    try {
        const QImage flat = cutout::flattened(picture->pixmap(), emptyMask);
        if (flat.isNull())
            throw std::bad_alloc();
        cutout::writePicture(flat, path, "JPG");
        return true;
    } catch (const std::bad_alloc &) {
        form->statusBar->showMessage(tr("Not enough memory to save"));
        return false;
    }
}

// False when nothing was written for want of memory: the photo that is open stays.
bool MainWindow::saveAndReopen(const QString &path)
{
    const app::WaitCursor busy;
    repaintAfterDialog();
    form->actionPreview->setChecked(false); // as opening does: the cut-out goes with the photo
    if (!writeScene(path))
        return false;
    currentFile = path;
    open();
    return true;
}

void MainWindow::on_actionSave_triggered()
{
    if (isOriginalFile) {
        const auto answer = QMessageBox::warning(
            this, tr("Save file?"),
            tr("You are going to overwrite your original file.\nAre you sure you want to continue?"),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        if (answer != QMessageBox::Yes)
            return;
    }
    saveAndReopen(currentFile);
}

void MainWindow::on_actionSave_As_triggered()
{
    const QString name =
        QFileDialog::getSaveFileName(this, tr("Save File"), lastDirectory(), tr("JPG Files (*.jpg)"));
    if (name.isEmpty()) {
        form->statusBar->showMessage(tr("No file selected"));
        return;
    }
    if (saveAndReopen(name))
        isOriginalFile = false;
}
