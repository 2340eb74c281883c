// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

/// \file
/// The settings that the program keeps, and what each of its readers takes for a key that is not stored.
/// Defaults are texts, as a settings file holds them; null means that the reader does not read the key. On
/// Linux the file is ~/.config/Tirelo software/Ornevo Pro 2.7 for Mac OS X.conf, by the names in
/// app/main.cpp.
///
/// A new setting needs its key here, in `all` as well, a widget with that key as its `settingsKey` in
/// OptionsDialog.ui, and whoever reads it.
///
/// To change a default, change it in every column that is not null, unless the columns differ, which is
/// kept (see docs/compatibility.md): the window brushes with the intensities of its own column until OK in
/// the preferences, or a key that steps them, stores others, and the dialog offers weaker ones. Nobody checks
/// what a file holds; ranges below are those of the preferences. The keys that step sizes and intensities go
/// from 0 to 255 and wrap around.
namespace settings {

struct Key
{
    const char *name;
    const char *windowDefault; ///< MainWindow, in MainWindowToolSettings.cpp and lastDirectory()
    const char *viewDefault;   ///< ZelGraphicsView::updatetoolssettings()
    const char *dialogDefault; ///< OptionsDialog; of `currentDirectory`, ExportDialog
};

// Side of the square, diameter of the disc, 0 .. 99. Of the two markers in pixels of the picture; of the
// others in pixels of the view, so that they cover more of the picture where it is shown smaller.
inline constexpr Key keepMarkerSize{"KEEPMSIZE", "10", "10", "10"};
inline constexpr Key removeMarkerSize{"REMOVEMSIZE", "10", "10", "10"};
inline constexpr Key keepBrushSize{"KEEPBSIZE", "10", "10", "10"};
inline constexpr Key removeBrushSize{"REMOVEBSIZE", "10", "10", "10"};
inline constexpr Key eraserSize{"ERASERMSIZE", "10", "10", "10"};
inline constexpr Key blueMarkerSize{"BLUEMSIZE", nullptr, "10", "10"};
/// Whether all tools but the Blue marker have the size of the Keep marker. The dialog writes it unread.
inline constexpr Key sameSize{"SAMESIZECHECKED", "true", "false", nullptr};
/// Of the green overlay, 0 (invisible) .. 1. A tenth of it is that of the Blue marker's dabs.
inline constexpr Key maskOpacity{"MOPACITY", "0.6", "0.6", "0.6"};
// What a batch of brush dabs adds to the alpha, or takes from it; 0 .. 254.
inline constexpr Key keepBrushIntensity{"KEEPBINTEN", "150", nullptr, "50"};
inline constexpr Key removeBrushIntensity{"REMOVEBINTEN", "100", nullptr, "20"};
/// Whether the border of the cut-out is smoothed, and with how many taps, 1 .. 15; see
/// cutout::blurFourChannels().
inline constexpr Key smoothEdges{"SMOOTHEDGESCHECKED", "true", nullptr, "true"};
inline constexpr Key gaussSize{"GOUSSIZE", "5", nullptr, "5"};
/// The folder of the photo that was opened last, where file dialogs begin.
inline constexpr Key currentDirectory{"CurrDir", "", nullptr, ""};

/// Every key, in the order in which the preferences write theirs.
inline constexpr std::array all{
    &sameSize,        &smoothEdges, &keepMarkerSize,  &removeMarkerSize,   &keepBrushSize,
    &removeBrushSize, &eraserSize,  &maskOpacity,     &keepBrushIntensity, &removeBrushIntensity,
    &blueMarkerSize,  &gaussSize,   &currentDirectory};

} // namespace settings
