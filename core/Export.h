// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// \file
/// What a shared library of the core shows to its users. Everything else is hidden, also in the static one,
/// which then adds nothing to what a program or a module shows.
#if defined(ORNEVO_CORE_STATIC)
#define ORNEVO_CORE_EXPORT
#elif defined(_WIN32)
#if defined(ORNEVO_CORE_BUILDING)
#define ORNEVO_CORE_EXPORT __declspec(dllexport)
#else
#define ORNEVO_CORE_EXPORT __declspec(dllimport)
#endif
#else
#define ORNEVO_CORE_EXPORT __attribute__((visibility("default")))
#endif
