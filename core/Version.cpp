// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Version.h"

namespace ornevo {

const char *version() noexcept
{
    return ORNEVO_VERSION_STRING;
}

} // namespace ornevo
