// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ToolActions.h"
#include "app/dialogs/OptionsDialog.h"

namespace {

// Sizes and intensities are bytes: a stored 300 counts as 44, and a step beyond either end wraps around. That
// is kept, see docs/compatibility.md.
unsigned char byteFrom(int value)
{
    return static_cast<unsigned char>(value);
}

} // namespace

void MainWindow::updatetoolssettings()
{
    const auto stored = [this](const settings::Key &key) {
        return settings.value(key.name, QLatin1StringView(key.windowDefault));
    };
    for (const ToolAction &row : ToolTable::rows)
        for (const ToolSetting &setting : {row.size, row.intensity})
            if (setting.key != nullptr)
                this->*setting.member = byteFrom(stored(*setting.key).toInt());
    maskOpacity = static_cast<float>(stored(settings::maskOpacity).toDouble());
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

const MainWindow::ToolAction *MainWindow::toolInUse(ToolSetting ToolAction::*setting) const
{
    for (const ToolAction &row : ToolTable::rows) {
        const QAction *action = form.get()->*row.action;
        if ((row.*setting).message != nullptr && action->isEnabled() && action->isChecked())
            return &row;
    }
    return nullptr;
}

void MainWindow::stepToolSize(int step)
{
    const ToolAction *used = toolInUse(&ToolAction::size);
    const ToolAction &keepMarker = ToolTable::rows.front();
    if (used != &keepMarker && form->actionKeep_arker->isEnabled() &&
        settings.value(settings::sameSize.name, QLatin1StringView(settings::sameSize.windowDefault))
            .toBool()) {
        changeByte(keepMarker.size, tr("Tool size is %1"), step); // which is that of all tools
        form->graphicsView->updatetoolssettings();
    } else if (used != nullptr) {
        changeByte(used->size, tr(used->size.message), step);
        form->graphicsView->updatetoolssettings();
        if (used->mode == ToolAction::Mode::Previewing)
            form->graphicsView->updateellipse(this->*used->size.member);
    }
}

void MainWindow::stepBrushIntensity(int step)
{
    if (const ToolAction *used = toolInUse(&ToolAction::intensity))
        changeByte(used->intensity, tr(used->intensity.message), step);
}

void MainWindow::changeByte(const ToolSetting &setting, const QString &message, int step)
{
    unsigned char &value = this->*setting.member;
    value = byteFrom(value + step);
    form->statusBar->showMessage(message.arg(int{value}));
    settings.setValue(setting.key->name, int{value});
}

void MainWindow::on_actionPreferences_triggered()
{
    OptionsDialog dialog(&settings, nullptr);
    dialog.exec();
    updatetoolssettings();
    form->graphicsView->updatetoolssettings();
}
