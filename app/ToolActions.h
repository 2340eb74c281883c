// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"
#include "canvas/DrawingTools.h"
#include "canvas/SettingsKeys.h"
#include "ui_MainWindow.h"

#include <array>

/// \file
/// The actions that choose a tool. The rows feed the groups, the enabling with the mode, the settings and the
/// keys that step them; a new tool needs its row here, and an action in the form, and no slot of its own.

/// Something of a tool that the settings hold as a byte.
struct MainWindow::ToolSetting
{
    const settings::Key *key;          ///< null: the window has no use for it
    unsigned char MainWindow::*member; ///< what is stored under the key
    const char *message;               ///< said after a step; null: the keys do not step it
};

struct MainWindow::ToolAction
{
    /// When the action is enabled. It is unchecked when the mode ends; those of Always stay as they are.
    enum class Mode { Always, Editing, Previewing };

    DrawingTools tool;
    QAction *Ui_MainWindow::*action;
    Mode mode;
    ToolSetting size;
    ToolSetting intensity;
};

struct MainWindow::ToolTable
{
    using Mode = ToolAction::Mode;
    using W = MainWindow;
    using F = Ui_MainWindow;
    static constexpr ToolSetting nothing{nullptr, nullptr, nullptr};

    // The order is that of the groups.
    static constexpr std::array rows{
        ToolAction{ToolKeepMarker,
                   &F::actionKeep_arker,
                   Mode::Editing,
                   {&settings::keepMarkerSize, &W::keepMarkerSize,
                    QT_TRANSLATE_NOOP("MainWindow", "Foreground marker size is %1")},
                   nothing},
        ToolAction{ToolRemoveMarker,
                   &F::action_Remove_Marker,
                   Mode::Editing,
                   {&settings::removeMarkerSize, &W::removeMarkerSize,
                    QT_TRANSLATE_NOOP("MainWindow", "Background marker size is %1")},
                   nothing},
        ToolAction{ToolBlueMarker, &F::actionBlueMarker, Mode::Always, nothing, nothing},
        ToolAction{ToolEraser,
                   &F::actionEraser,
                   Mode::Editing,
                   {&settings::eraserSize, &W::eraserSize, nullptr},
                   nothing},
        ToolAction{ToolKeepBrush,
                   &F::actionForeground_Brush,
                   Mode::Previewing,
                   {&settings::keepBrushSize, &W::keepBrushSize,
                    QT_TRANSLATE_NOOP("MainWindow", "Foreground brush size is %1")},
                   {&settings::keepBrushIntensity, &W::brushIntensityKeep,
                    QT_TRANSLATE_NOOP("MainWindow", "Foreground brush intensity is %1")}},
        ToolAction{ToolRemoveBrush,
                   &F::actionBackground_Brush,
                   Mode::Previewing,
                   {&settings::removeBrushSize, &W::removeBrushSize,
                    QT_TRANSLATE_NOOP("MainWindow", "Background brush size is %1")},
                   {&settings::removeBrushIntensity, &W::brushIntensityRemove,
                    QT_TRANSLATE_NOOP("MainWindow", "Background brush intensity is %1")}},
        ToolAction{ToolHand, &F::actionHandTool, Mode::Previewing, nothing, nothing},
    };
    static_assert(rows.size() + toolsWithoutAction == toolCount, "every tool needs its row");
};
