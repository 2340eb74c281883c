// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/ProgressStep.h"
#include "app/WaitCursor.h"
#include "canvas/MarkerDabs.h"
#include "canvas/PictureItem.h"
#include "canvas/SceneLayers.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <QDebug>

#include <new>

QGraphicsPixmapItem *MainWindow::topmostPicture() const
{
    for (QGraphicsItem *item : imageScene.items())
        if (auto *picture = qgraphicsitem_cast<QGraphicsPixmapItem *>(item))
            return picture;
    return nullptr;
}

void MainWindow::updatemask()
{
    delete maskItem.get(); // takes it off the scene as well
    maskItem = nullptr;
    memoryRanOut = false;
    if (topmostPicture() == nullptr)
        return;

    const app::WaitCursor busy;
    form->statusBar->showMessage(tr("Isolating object"));
    const app::ProgressStep progress(form->progressBar);
    outmask.clear();
    qWarning() << "outmask size before watd is" << outmask.size();
    try {
        const cutout::Seeds seeds = markers::seedsOf(imageScene.items(), workingImage.size());
        outmask = cutout::floodObject(workingImage, edgeMap, seeds,
                                      [this](int percent) { form->progressBar->setValue(percent); });
    } catch (const std::bad_alloc &) {
        outmask = {}; // the picture has no mask; the program goes on
        memoryRanOut = true;
    }
    qWarning() << "outmask size after watd is" << outmask.size();
}

void MainWindow::on_actionMask_triggered()
{
    const app::WaitCursor busy;
    const QString noMemory = tr("Not enough memory for a mask");
    updatemask();
    if (memoryRanOut) {
        form->statusBar->showMessage(noMemory);
        return;
    }
    form->statusBar->showMessage(tr("Displaying image"));
    const QPixmap overlay = QPixmap::fromImage(cutout::objectOverlay(workingImage.size(), outmask));
    if (overlay.isNull() && !workingImage.isNull()) {
        form->statusBar->showMessage(noMemory);
        return;
    }
    maskItem = new canvas::PictureItem(overlay);
    imageScene.addItem(maskItem);
    maskItem->setZValue(layers::maskOverlayZ);
    maskItem->setOpacity(maskOpacity);
    maskItem->setVisible(true);
    form->statusBar->showMessage(tr("Ready"));
}
