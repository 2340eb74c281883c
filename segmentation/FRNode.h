// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// A pixel that waits in a level queue of the flooding, as programs that keep such queues of their own see
/// it.
struct FRNode
{
    int index;  ///< y · width + x
    int offset; ///< byte offset of the pixel in the colour picture: y · bytesPerLine + 4 · x
};
static_assert(sizeof(FRNode) == 2 * sizeof(int));
