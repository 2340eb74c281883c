// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// The tools of the canvas. The values are fixed: they are passed as numbers. The comments name the action of
/// the window that chooses the tool.
enum DrawingTools {
    ToolNone = 0,
    ToolPen = 1,          ///< none; draws a line that has no effect on the mask
    ToolEraser = 2,       ///< actionEraser
    ToolKeepMarker = 3,   ///< actionKeep_arker
    ToolRemoveMarker = 4, ///< action_Remove_Marker
    ToolKeepBrush = 5,    ///< actionForeground_Brush
    ToolRemoveBrush = 6,  ///< actionBackground_Brush
    ToolHand = 7,         ///< actionHandTool
    ToolBlueMarker = 8    ///< actionBlueMarker, which has no button
};

inline constexpr int toolCount = ToolBlueMarker + 1;
inline constexpr int toolsWithoutAction = 2; ///< ToolNone and ToolPen
