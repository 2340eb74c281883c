// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ToolActions.h"

#include <QActionGroup>

void MainWindow::setUpTools()
{
    auto *markerGroup = new QActionGroup(this);
    auto *brushGroup = new QActionGroup(this);
    for (const ToolAction &row : ToolTable::rows) {
        QAction *action = form.get()->*row.action;
        (row.mode == ToolAction::Mode::Previewing ? brushGroup : markerGroup)->addAction(action);
        // setupUi() has connected those that have a slot of their name.
        const QByteArray slot = "on_" + action->objectName().toLatin1() + "_toggled(bool)";
        if (metaObject()->indexOfSlot(slot.constData()) < 0)
            connect(action, &QAction::toggled, this,
                    [this, tool = row.tool](bool checked) { chooseTool(tool, checked); });
    }
}

void MainWindow::chooseTool(DrawingTools tool, bool checked)
{
    if (checked) // the action that another one of its group unchecks has no say
        form->graphicsView->SetTool(tool);
}

void MainWindow::setEditingActionsEnabled(bool editing)
{
    using Mode = ToolAction::Mode;
    for (const ToolAction &row : ToolTable::rows)
        if (row.mode != Mode::Always)
            (form.get()->*row.action)->setEnabled((row.mode == Mode::Editing) == editing);
    form->actionMask->setEnabled(editing);
    for (QAction *action :
         {form->actionSelect_Background, form->actionBackgroundZoomMinus, form->actionBackgroundZoomPlus})
        action->setEnabled(!editing);
}

void MainWindow::putToolsDown(bool editing)
{
    using Mode = ToolAction::Mode;
    form->graphicsView->SetTool(ToolNone);
    for (const ToolAction &row : ToolTable::rows)
        if (row.mode == (editing ? Mode::Editing : Mode::Previewing))
            (form.get()->*row.action)->setChecked(false);
}

void MainWindow::on_actionEraser_toggled(bool checked)
{
    chooseTool(ToolEraser, checked);
}
void MainWindow::on_actionKeep_arker_toggled(bool checked)
{
    chooseTool(ToolKeepMarker, checked);
}
void MainWindow::on_action_Remove_Marker_toggled(bool checked)
{
    chooseTool(ToolRemoveMarker, checked);
}
void MainWindow::on_actionForeground_Brush_toggled(bool checked)
{
    chooseTool(ToolKeepBrush, checked);
}
void MainWindow::on_actionBackground_Brush_toggled(bool checked)
{
    chooseTool(ToolRemoveBrush, checked);
}
void MainWindow::on_actionHandTool_toggled(bool checked)
{
    chooseTool(ToolHand, checked);
}
void MainWindow::on_actionBlueMarker_toggled(bool checked)
{
    chooseTool(ToolBlueMarker, checked);
}
