// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "canvas/PictureItem.h"
#include "canvas/SceneLayers.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QScrollBar>

#include <new>

using namespace Qt::StringLiterals;

void MainWindow::on_actionPreview_toggled(bool checked)
{
    const app::WaitCursor busy;
    if (checked) {
        updatemask();
        setEditingActionsEnabled(false);
        putToolsDown(false);
        previewImage = QImage();
        updatepreview();
        showScene(previewScene);
    } else {
        setEditingActionsEnabled(true);
        showScene(imageScene);
        putToolsDown(true);
    }
}

// A view that gets another scene zooms about the middle of that scene next, whatever part of it is shown.
void MainWindow::showScene(QGraphicsScene &scene)
{
    ZelGraphicsView &view = *form->graphicsView;
    const QPoint scrolled(view.horizontalScrollBar()->value(), view.verticalScrollBar()->value());
    view.setScene(&scene);
    view.centerOn(view.mapToScene(view.viewport()->rect()).boundingRect().center());
    view.horizontalScrollBar()->setValue(scrolled.x()); // the centring rounds
    view.verticalScrollBar()->setValue(scrolled.y());
}

void MainWindow::updatepreview()
{
    const app::WaitCursor busy;
    updatepreviewmask();
    // Without a mask all of the photo would be shown, or nothing of it.
    memoryRanOut = memoryRanOut || (maskImage.isNull() && !workingImage.isNull());
    if (memoryRanOut) {
        previewScene.clear();
        form->statusBar->showMessage(tr("Not enough memory for a preview"));
        return;
    }
    applypreviewmask();
}

void MainWindow::updatepreviewmask()
{
    qWarning() << "outmask size is" << outmask.size();
    maskImage = QImage(); // what memory it had can serve the next one
    QImage sharp = cutout::objectMask(workingImage.size(), outmask);
    maskImage = smoothEdges ? cutout::blurDestination(sharp, gaussSize) : sharp;
    if (smoothEdges && !maskImage.isNull())
        blur(&sharp, &maskImage, gaussSize, cutout::smoothingSigma(gaussSize));
}

void MainWindow::blur(QImage *src, QImage *dst, int size, double sigma)
{
    try {
        cutout::blurFourChannels(*src, *dst, size, sigma,
                                 [this](int percent) { form->progressBar->setValue(percent); });
    } catch (const std::bad_alloc &) {
        *dst = QImage(); // a hard border for a soft one would go unnoticed
    }
}

void MainWindow::applypreviewmask()
{
    previewScene.clear(); // first, so that its pictures and the new ones are never there together
    QPixmap background;
    QPixmap object;
    try {
        applypreviewmasktopixmap(&background, &object);
    } catch (const std::bad_alloc &) { // what could not be made is null
    }
    const bool photoShown = topmostPicture() != nullptr && !workingImage.isNull();
    if (photoShown && (background.isNull() || object.isNull())) { // nothing there, nothing to export
        form->statusBar->showMessage(tr("Not enough memory for a preview"));
        return;
    }
    auto *behind = new canvas::PictureItem(background);
    behind->keepPainted();
    backgroundItem = behind;
    previewItem = new canvas::PictureItem(object);
    previewScene.addItem(backgroundItem);
    previewScene.addItem(previewItem);
    backgroundItem->setZValue(layers::backgroundZ);
    previewItem->setZValue(layers::objectZ);
    previewItem->setPos(previewOffset);
    framePreview();
    form->statusBar->showMessage(tr("Ready"));
}

// Without a frame of its own the scene would grow with the object under the hand, and a centred view follow
// it at half the pointer's speed; and it would never shrink for a smaller photo.
void MainWindow::framePreview()
{
    const QRectF photo(previewItem->pixmap().rect()); // where it lies before any hand moves it
    previewScene.setSceneRect(photo.united(backgroundItem->sceneBoundingRect()));
}

void MainWindow::applypreviewmasktopixmap(QPixmap *background, QPixmap *object)
{
    if (previewImage.isNull()) {
        if (topmostPicture() == nullptr || memoryRanOut) // no mask to cut it with
            return;
        form->statusBar->showMessage(tr("getting inversed mask"));
        previewImage = cutout::cutOut(imagePixmap.toImage(), maskImage);
        form->statusBar->showMessage(tr("painting alpha channel"));
        form->statusBar->showMessage(tr("painting alpha channel done, now feather"));
        form->statusBar->showMessage(tr("feather done"));
    }
    // With an alpha channel even where nothing is transparent yet, the brushes can change it piece by piece.
    *object = QPixmap::fromImage(cutout::premultiplied(previewImage), Qt::NoOpaqueDetection);
    *background = cutout::backgroundLayer(workingImage.size(), backgroundColor,
                                          QImage(u":/icons/chessbackground.png"_s), backgroundImage);
}
