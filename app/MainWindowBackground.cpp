// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/dialogs/BackgroundDialog.h"
#include "cutout/Pipeline.h"

#include <QGraphicsPixmapItem>

namespace {

constexpr double zoomStep = 1.05;
constexpr double zoomStepBack = 0.9523809523809523; // 1 / 1.05

} // namespace

void MainWindow::on_actionSelect_Background_triggered()
{
    BackgroundDialog dialog(nullptr);
    dialog.exec();
    if (!dialog.accepted)
        return;
    const app::WaitCursor busy;
    repaintAfterDialog();
    if (dialog.useColor) {
        backgroundColor = dialog.color;
        backgroundImage = QImage();
        previewOffset = QPoint();
    } else {
        backgroundImage = cutout::readPicture(dialog.picturePath);
    }
    applypreviewmask();
}

void MainWindow::on_actionBackgroundZoomPlus_triggered()
{
    scaleBackground(zoomStep);
}
void MainWindow::on_actionBackgroundZoomMinus_triggered()
{
    scaleBackground(zoomStepBack);
}

void MainWindow::scaleBackground(double factor)
{
    if (backgroundImage.isNull() || backgroundItem == nullptr || previewItem == nullptr)
        return;
    backgroundItem->setTransform(QTransform::fromScale(factor, factor), true);
    framePreview();
}
