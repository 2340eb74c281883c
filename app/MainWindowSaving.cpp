// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "cutout/PictureFile.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QGraphicsPixmapItem>
#include <QMessageBox>
#include <QPainter>

void MainWindow::save(const QString &path)
{
    const WaitCursor busy;
    const QGraphicsPixmapItem *picture = topmostPicture();
    if (picture == nullptr || picture->pixmap().isNull())
        return;
    QPixmap pixmap = picture->pixmap();
    pixmap.setMask(emptyMask); // an empty mask drops whatever transparency there was
    QImage flat(pixmap.size(), QImage::Format_ARGB32);
    flat.fill(0xFFFFFFFF);
    QPainter painter(&flat);
    painter.drawPixmap(0, 0, pixmap);
    painter.end();
    cutout::writePicture(flat, path, "JPG");
}

void MainWindow::saveAndReopen(const QString &path)
{
    const WaitCursor busy;
    repaintAfterDialog();
    form->actionPreview->setChecked(false); // as opening does: the cut-out goes with the photo
    save(path);
    currentFile = path;
    open();
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
    saveAndReopen(name);
    isOriginalFile = false;
}
