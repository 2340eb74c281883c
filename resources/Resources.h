// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

namespace resources {

/// Makes what is compiled in known to Qt: pictures under ":/icons" and ":/cursors", the help under ":/help",
/// the catalogues under ":/translations". May be called any number of times.
void registerAll();

} // namespace resources
