// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/ProgressStep.h"
#include "app/WaitCursor.h"
#include "canvas/PictureItem.h"
#include "canvas/SettingsKeys.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QFileInfo>

#include <new>

using namespace Qt::StringLiterals;

QString MainWindow::lastDirectory() const
{
    return settings
        .value(settings::currentDirectory.name, QLatin1StringView(settings::currentDirectory.windowDefault))
        .toString();
}

void MainWindow::on_actionOpen_triggered()
{
    currentFile = QFileDialog::getOpenFileName(
        this, tr("Open Image"), lastDirectory(),
        tr("Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)"));
    if (currentFile.isEmpty()) {
        form->statusBar->showMessage(tr("No file selected"));
        return;
    }
    const app::WaitCursor busy;
    repaintAfterDialog();
    open();
    // Whether or not the picture could be read, what belonged to the one before goes.
    isOriginalFile = true;
    previewOffset = QPoint();
    previewImage = QImage();
    form->actionPreview->setChecked(false);
    undoStack.clear();
    form->graphicsView->discardErasedDabs();
    backgroundItem = nullptr;
}

void MainWindow::open()
{
    const app::WaitCursor busy;
    settings.setValue(settings::currentDirectory.name, QFileInfo(currentFile).canonicalPath());
    imageScene.clear();
    previewScene.clear();
    maskItem = nullptr;
    outmask.clear();

    const QImage picture = cutout::readPhoto(currentFile);
    // All the memory that the picture takes is got before anything refers to the picture.
    const QPixmap pixmap = QPixmap::fromImage(picture);
    cutout::EdgeMap edges = cutout::newEdgeMap(picture);
    if (pixmap.isNull() || edges == nullptr) {
        form->statusBar->showMessage(tr("Failed to read image"));
        return;
    }
    form->hint->hide();
    setWindowTitle(u"Ornevo Pro - "_s + QFileInfo(currentFile).fileName());
    form->statusBar->showMessage(tr("image opened"));

    imagePixmap = pixmap;
    imageScene.addItem(new canvas::PictureItem(imagePixmap));
    imageScene.setSceneRect(imagePixmap.rect());
    // The canvas scales with its size: scroll bars that come later, with the first zoom, would scale it too.
    form->graphicsView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    form->graphicsView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    form->graphicsView->setScene(&imageScene);
    form->graphicsView->fitInView(imageScene.sceneRect(), Qt::KeepAspectRatio);
    form->graphicsView->setCacheMode(QGraphicsView::CacheBackground);
    form->graphicsView->show();

    form->statusBar->showMessage(tr("Image loaded. Preprocessing image."));
    {
        const app::ProgressStep progress(form->progressBar);
        workingImage = picture;
        edgeMap = std::move(edges);
        colorsobel();
    }
    form->statusBar->showMessage(memoryRanOut ? tr("Not enough memory to find the edges") : tr("Ready"));
}

void MainWindow::colorsobel()
{
    memoryRanOut = false;
    if (edgeMap == nullptr)
        return;
    try {
        cutout::findEdges(workingImage, edgeMap);
    } catch (const std::bad_alloc &) { // differences of brightness remain to go by
        memoryRanOut = true;
    }
}
