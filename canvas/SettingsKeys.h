// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// \file
/// The settings that the program keeps, and what each of its readers takes for a key that is not stored. The
/// readers differ on purpose: the window works with its own intensities until the user has seen the dialog
/// once. Defaults are texts, as a settings file holds them; null means that the reader does not read the key.
namespace settings {

struct Key
{
    const char *name;
    const char *windowDefault;
    const char *viewDefault;
    const char *dialogDefault;
};

inline constexpr Key keepMarkerSize{"KEEPMSIZE", "10", "10", "10"};
inline constexpr Key removeMarkerSize{"REMOVEMSIZE", "10", "10", "10"};
inline constexpr Key keepBrushSize{"KEEPBSIZE", "10", "10", "10"};
inline constexpr Key removeBrushSize{"REMOVEBSIZE", "10", "10", "10"};
inline constexpr Key eraserSize{"ERASERMSIZE", "10", "10", "10"};
inline constexpr Key blueMarkerSize{"BLUEMSIZE", nullptr, "10", "10"};
inline constexpr Key sameSize{"SAMESIZECHECKED", "true", "false", nullptr};
inline constexpr Key maskOpacity{"MOPACITY", "0.6", "0.6", "0.6"};
inline constexpr Key keepBrushIntensity{"KEEPBINTEN", "150", nullptr, "50"};
inline constexpr Key removeBrushIntensity{"REMOVEBINTEN", "100", nullptr, "20"};
inline constexpr Key smoothEdges{"SMOOTHEDGESCHECKED", "true", nullptr, "true"};
inline constexpr Key gaussSize{"GOUSSIZE", "5", nullptr, "5"};
inline constexpr Key currentDirectory{"CurrDir", "", nullptr, ""};

} // namespace settings
