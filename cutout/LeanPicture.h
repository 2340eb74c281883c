// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>

/// \file
/// Picture files without what the program never uses. A file of a few kilobytes can hold texts, profiles and
/// comments that keep a decoder for minutes and take all memory; what decides the pixels can't, once its
/// own size is bounded. Each function gets a file and gives what its decoder needs of it, which makes the
/// same picture. A file that broke off stays one. Empty means that the file can't be read within bounds.
namespace cutout {

/// Without texts, times and other chunks of no use; with one colour profile of up to a mebibyte.
[[nodiscard]] QByteArray leanPng(QByteArray file);

/// Without comments and programs' own segments; with the orientation, the way the colours are stored, and a
/// colour profile of up to four mebibytes. Ends with the picture. Refuses more scans than a photo can have.
[[nodiscard]] QByteArray leanJpeg(QByteArray file);

/// The first frame alone, and of its data no more than fills it.
[[nodiscard]] QByteArray leanGif(const QByteArray &file);

/// The PNG that is the first picture of an icon file, or an empty one where that is none.
[[nodiscard]] QByteArray pngInIcon(const QByteArray &file);

/// Whether the tiles of a TIFF, which can be larger than the picture by any factor, may be in memory. Leaves
/// the file at its beginning.
[[nodiscard]] bool hasModestTiles(QIODevice &file);

} // namespace cutout
