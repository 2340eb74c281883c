// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// \file
/// What lies above what, on both scenes: the Z values of their items. The photo and the pen's line keep 0,
/// which an item has by itself; the line rises to the dabs with its first move.
namespace layers {

// The editing scene.
inline constexpr qreal maskOverlayZ = 7.0;
inline constexpr qreal dabZ = 10.0;

// The preview scene.
inline constexpr qreal backgroundZ = 0.0;
inline constexpr qreal objectZ = 10.0;

// Both.
inline constexpr qreal brushOutlineZ = 20.0;

} // namespace layers
