// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

namespace app {

/// Makes the stores that QSettings opens from now on begin with nothing and keep nothing, if a file of this
/// user's that they would read is none: a pipe or a device under its name would keep the program from
/// starting, and so would one that is far too large. The application and organisation names must be set.
void avoidSpecialSettingsFiles();

} // namespace app
