// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// A pixel in a queue of the caller's own. Public for the programs that use it; no function here takes or
/// returns one, and the flooding's own queues hold plain numbers.
struct FRNode
{
    int index;  ///< y · width + x
    int offset; ///< byte offset of the pixel in the colour picture: y · bytesPerLine + 4 · x
};
static_assert(sizeof(FRNode) == 2 * sizeof(int));
