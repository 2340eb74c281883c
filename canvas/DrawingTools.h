// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// The tools of the canvas. The values are fixed: they are passed as numbers.
enum DrawingTools {
    ToolNone = 0,
    ToolPen = 1,
    ToolEraser = 2,
    ToolKeepMarker = 3,
    ToolRemoveMarker = 4,
    ToolKeepBrush = 5,
    ToolRemoveBrush = 6,
    ToolHand = 7,
    ToolBlueMarker = 8
};
