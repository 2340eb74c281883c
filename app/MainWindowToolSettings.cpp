// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/dialogs/OptionsDialog.h"
#include "canvas/SettingsKeys.h"
#include "ui_MainWindow.h"

namespace {

// Sizes and intensities are bytes: a stored 300 counts as 44, and a step beyond either end wraps around.
unsigned char byteFrom(int value)
{
    return static_cast<unsigned char>(value);
}

bool inUse(const QAction *tool)
{
    return tool->isEnabled() && tool->isChecked();
}

} // namespace

void MainWindow::updatetoolssettings()
{
    const auto stored = [this](const settings::Key &key) {
        return settings.value(key.name, key.windowDefault);
    };
    keepMarkerSize = byteFrom(stored(settings::keepMarkerSize).toInt());
    removeMarkerSize = byteFrom(stored(settings::removeMarkerSize).toInt());
    keepBrushSize = byteFrom(stored(settings::keepBrushSize).toInt());
    removeBrushSize = byteFrom(stored(settings::removeBrushSize).toInt());
    eraserSize = byteFrom(stored(settings::eraserSize).toInt());
    maskOpacity = static_cast<float>(stored(settings::maskOpacity).toDouble());
    brushIntensityKeep = byteFrom(stored(settings::keepBrushIntensity).toInt());
    brushIntensityRemove = byteFrom(stored(settings::removeBrushIntensity).toInt());
    smoothEdges = stored(settings::smoothEdges).toBool();
    gaussSize = stored(settings::gaussSize).toInt();
}

void MainWindow::on_actionIncreaseToolSize_triggered()
{
    stepToolSize(1);
}
void MainWindow::on_actionDecreaseToolSoze_triggered()
{
    stepToolSize(-1);
}
void MainWindow::on_actionIncreaseBrushIntensity_triggered()
{
    stepBrushIntensity(1);
}
void MainWindow::on_actionDecreaseBrushIntensity_triggered()
{
    stepBrushIntensity(-1);
}

void MainWindow::stepToolSize(int step)
{
    const bool keepInUse = form->actionKeep_arker->isChecked();
    const bool sameSize = settings.value(settings::sameSize.name, settings::sameSize.windowDefault).toBool();
    if (form->actionKeep_arker->isEnabled() && (keepInUse || sameSize)) {
        changeToolSize(keepMarkerSize, keepInUse ? tr("Foreground marker size is %1") : tr("Tool size is %1"),
                       settings::keepMarkerSize.name, step);
    } else if (inUse(form->action_Remove_Marker)) {
        changeToolSize(removeMarkerSize, tr("Background marker size is %1"), settings::removeMarkerSize.name,
                       step);
    } else if (inUse(form->actionBackground_Brush)) {
        changeToolSize(removeBrushSize, tr("Background brush size is %1"), settings::removeBrushSize.name,
                       step);
        form->graphicsView->updateellipse(removeBrushSize);
    } else if (inUse(form->actionForeground_Brush)) {
        changeToolSize(keepBrushSize, tr("Foreground brush size is %1"), settings::keepBrushSize.name, step);
        form->graphicsView->updateellipse(keepBrushSize);
    }
}

void MainWindow::changeToolSize(unsigned char &size, const QString &message, const char *key, int step)
{
    size = byteFrom(size + step);
    form->statusBar->showMessage(message.arg(int{size}));
    settings.setValue(key, int{size});
    form->graphicsView->updatetoolssettings();
}

void MainWindow::stepBrushIntensity(int step)
{
    const auto change = [this, step](unsigned char &intensity, const QString &message, const char *key) {
        intensity = byteFrom(intensity + step);
        form->statusBar->showMessage(message.arg(int{intensity}));
        settings.setValue(key, int{intensity});
    };
    if (inUse(form->actionBackground_Brush))
        change(brushIntensityRemove, tr("Background brush intensity is %1"),
               settings::removeBrushIntensity.name);
    else if (inUse(form->actionForeground_Brush))
        change(brushIntensityKeep, tr("Foreground brush intensity is %1"), settings::keepBrushIntensity.name);
}

void MainWindow::on_actionPreferences_triggered()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.exec();
    updatetoolssettings();
    form->graphicsView->updatetoolssettings();
}
