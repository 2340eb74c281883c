// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/dialogs/ExportDialog.h"
#include "core/Truncation.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QMessageBox>

#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isJpeg(const QString &suffix)
{
    return suffix.compare("JPG"_L1, Qt::CaseInsensitive) == 0 ||
           suffix.compare("JPEG"_L1, Qt::CaseInsensitive) == 0;
}

/// How far a picture reaches on its scene, its own zoom included, in whole pixels.
QSize extentOf(const QGraphicsPixmapItem &item)
{
    const QSizeF size = item.boundingRect().size();
    const QTransform zoom = item.transform();
    return {ornevo::truncateToInt(size.width() * zoom.m11()),
            ornevo::truncateToInt(size.height() * zoom.m22())};
}

} // namespace

void MainWindow::on_actionExport_triggered()
{
    qWarning("Export");
    const QSize start = backgroundImage.isNull() ? workingImage.size() : backgroundImage.size();
    if (start.isEmpty())
        return;
    ExportDialog dialog(start.width(), start.height(), &settings, nullptr);
    dialog.exec();
    int width = 0;
    int height = 0;
    QString fileName;
    // A file that was chosen is written, Cancel or not: see docs/compatibility.md.
    dialog.GetSettings(&width, &height, &fileName);
    const QString suffix = QFileInfo(fileName).suffix();
    if (!exportTo(fileName, suffix.toLatin1(), QSize(width, height)))
        return;
    if (qAlpha(backgroundColor) != 255 && isJpeg(suffix))
        QMessageBox::warning(
            nullptr, tr("Transparency was lost"),
            tr("You've selected a transparent background color but saving as jpeg. Transparency of "
               "the color was lost. Please choose .png to save transparent backgrounds"),
            QMessageBox::Ok);
}

bool MainWindow::exportTo(const QString &fileName, const QByteArray &format, QSize size)
{
    const app::WaitCursor busy;
    repaintAfterDialog();
    if (fileName.isEmpty() || backgroundItem == nullptr || previewItem == nullptr)
        return false;
    try {
        cutout::ExportLayers layers{
            cutout::exportCanvas(backgroundItem->pixmap().size(), backgroundColor, backgroundImage),
            previewImage, previewOffset, extentOf(*backgroundItem)};
        cutout::writePicture(cutout::composeExport(std::move(layers), size), fileName, format);
    } catch (const std::bad_alloc &) {
        form->statusBar->showMessage(tr("Not enough memory to export"));
        return false;
    }
    return true;
}
