// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

namespace resources {

/// Makes the pictures that are compiled in known to Qt, under ":/icons" and ":/cursors". May be called any
/// number of times.
void registerAll();

} // namespace resources
