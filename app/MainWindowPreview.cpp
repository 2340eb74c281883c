// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "canvas/PictureItem.h"
#include "canvas/SceneLayers.h"
#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/IndexPicture.h"
#include "imaging/FourChannelBlur.h"
#include "ui_MainWindow.h"

#include <QDebug>

#include <new>

namespace {

constexpr double sizeToSigma = 5.0;

} // namespace

void MainWindow::on_actionPreview_toggled(bool checked)
{
    const WaitCursor busy;
    if (checked) {
        updatemask();
        setEditingActionsEnabled(false);
        putToolsDown(false);
        previewImage = QImage();
        updatepreview();
        form->graphicsView->setScene(&previewScene);
    } else {
        setEditingActionsEnabled(true);
        form->graphicsView->setScene(&imageScene);
        putToolsDown(true);
    }
}

void MainWindow::updatepreview()
{
    const WaitCursor busy;
    updatepreviewmask();
    if (maskImage.isNull() && !workingImage.isNull()) { // without a mask all of the photo would be shown
        previewScene.clear();
        form->statusBar->showMessage(tr("Not enough memory for a preview"));
        return;
    }
    applypreviewmask();
}

void MainWindow::updatepreviewmask()
{
    constexpr QRgb black = qRgb(0, 0, 0);
    constexpr QRgb white = qRgb(255, 255, 255);
    qWarning() << "outmask size is" << outmask.size();
    maskImage = QImage(); // what memory it had can serve the next one
    QImage sharp = cutout::paintIndices(workingImage.size(), outmask, black, white);
    maskImage = smoothEdges ? roomForBlur(sharp, gaussSize) : QImage();
    if (maskImage.isNull())
        maskImage = sharp; // not to be smoothed, or no room for that
    else
        blur(&sharp, &maskImage, gaussSize, gaussSize / sizeToSigma);
}

void MainWindow::blur(QImage *src, QImage *dst, int size, double sigma)
{
    try {
        blurFourChannels(*src, *dst, size, sigma,
                         [this](int percent) { form->progressBar->setValue(percent); });
    } catch (const std::bad_alloc &) {
        *dst = src->copy(); // short of memory, the border stays hard; the program goes on
    }
}

void MainWindow::applypreviewmask()
{
    previewScene.clear(); // first, so that its pictures and the new ones are never there together
    QPixmap background;
    QPixmap object;
    applypreviewmasktopixmap(&background, &object);
    backgroundItem = new PictureItem(background);
    previewItem = new PictureItem(object);
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
        if (topmostPicture() == nullptr)
            return;
        form->statusBar->showMessage(tr("getting inversed mask"));
        previewImage = cutout::cutOut(imagePixmap.toImage(), maskImage);
        form->statusBar->showMessage(tr("painting alpha channel"));
        form->statusBar->showMessage(tr("painting alpha channel done, now feather"));
        form->statusBar->showMessage(tr("feather done"));
    }
    // With room for alpha even where nothing is transparent yet, the brushes can change it piece by piece.
    *object = QPixmap::fromImage(cutout::premultiplied(previewImage), Qt::NoOpaqueDetection);
    *background = cutout::backgroundLayer(workingImage.size(), backgroundColor,
                                          QImage(":/icons/chessbackground.png"), backgroundImage);
}
