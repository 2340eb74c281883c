// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "canvas/CBrushCommand.h"
#include "canvas/PictureItem.h"
#include "cutout/Pipeline.h"
#include "ui_MainWindow.h"

#include <algorithm>

namespace {

constexpr int fullBatch = 10;
constexpr int pauseBeforeBatch = 30;        // ms
constexpr int pauseBeforeForgetting = 1000; // ms

// Off every picture, and no arithmetic with it overflows an int.
constexpr qint64 farthestOffset = 1 << 29;

} // namespace

void MainWindow::on_BrushMouseEvent(QRect rect, bool now)
{
    pendingBrushRects.append(rect);
    const bool wait = !now && pendingBrushRects.size() < fullBatch;
    brushTimer.start(wait ? pauseBeforeBatch : 0);
}

void MainWindow::on_ProcessBrushMouseEvent()
{
    if (pendingBrushRects.isEmpty())
        return;
    if (form->actionForeground_Brush->isChecked())
        on_KeepBrushPressed(pendingBrushRects);
    else if (form->actionBackground_Brush->isChecked())
        on_RemoveBrushPressed(pendingBrushRects);
    lastBrushRect = pendingBrushRects.last();
    skipLastRect = true;
    pendingBrushRects.clear();
    skipLastRectTimer.start(pauseBeforeForgetting);
}

void MainWindow::on_TimeToSkipLastRect()
{
    skipLastRect = true;
}

void MainWindow::on_KeepBrushPressed(QList<QRect> rects)
{
    applyBrush(rects, brushIntensityKeep);
}
void MainWindow::on_RemoveBrushPressed(QList<QRect> rects)
{
    applyBrush(rects, -brushIntensityRemove);
}

void MainWindow::applyBrush(const QList<QRect> &rects, int alphaChange)
{
    if (!form->actionPreview->isChecked() || previewItem == nullptr || previewImage.isNull())
        return; // the preview went while the batch was waiting
    cutout::BrushBatch batch = cutout::brushBatch(rects, previewOffset, previewImage.size());
    // The program only ever sets skipLastRect to true; who sets it to false spares the last dab one batch.
    // Kept, see docs/compatibility.md.
    if (!skipLastRect)
        batch.pixels -= lastBrushRect;
    // With the view zoomed out the box can be far larger than the picture, whose pixels alone can change.
    batch.box &= previewImage.rect();
    // QImage::copy() takes an empty rectangle for the whole picture.
    const QImage before = batch.box.isEmpty() ? QImage() : previewImage.copy(batch.box);
    cutout::changeAlpha(previewImage, batch.pixels, alphaChange);
    const auto show = [this](const QRect &area) { showCutOut(area); };
    undoStack.push(new CBrushCommand(show, batch.box, &previewImage, before));
}

// All that changes the cut-out ends here, undo entries included, which outlive the item that they were made
// for: every background choice brings another one.
void MainWindow::showCutOut(const QRect &area)
{
    if (previewItem != nullptr && !previewImage.isNull())
        canvas::updatePixmap(*previewItem, previewImage, area);
}

void MainWindow::on_HandToolPressed(QPoint prevpos, QPoint pos)
{
    const auto moved = [](qint64 offset, qint64 to, qint64 from) {
        return static_cast<int>(std::clamp(offset + to - from, -farthestOffset, farthestOffset));
    };
    previewOffset = {moved(previewOffset.x(), pos.x(), prevpos.x()),
                     moved(previewOffset.y(), pos.y(), prevpos.y())};
    if (previewItem != nullptr)
        previewItem->setPos(previewOffset);
}
