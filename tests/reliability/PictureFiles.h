// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

/// \file
/// Files for tests that open what a user may come by: pictures in order, odd, broken and hostile ones.
namespace picturefiles {

/// The file that `picture` makes in `format`; empty where the format can't be written here.
[[nodiscard]] QByteArray encoded(const QImage &picture, const char *format);

/// A GIF of 3 x 2 pixels: Qt reads the format but does not write it.
[[nodiscard]] QByteArray tinyGif();

/// A chunk of a PNG, with its checksum.
[[nodiscard]] QByteArray chunk(const char *type, const QByteArray &body);

/// A PNG that says it is `width` x `height` of the given colour type and depth and then holds `rows` raw
/// bytes, packed. Checksums are right; that the rows are too few, or odd, is up to the caller.
[[nodiscard]] QByteArray png(quint32 width, quint32 height, int bitDepth, int colourType,
                             const QByteArray &rows, const QByteArray &palette = {});

/// A JPEG with these bytes as its EXIF block.
[[nodiscard]] QByteArray jpegWithExif(const QImage &picture, const QByteArray &exif);

/// A small picture that looks like something, with an object in its middle.
[[nodiscard]] QImage smallPicture(int width, int height, unsigned seed);

/// Writes a set of small files into a folder and returns their paths: pictures of every kind and format,
/// then broken ones, a folder and a name that leads nowhere.
QStringList writeAssortment(const QString &folder);

} // namespace picturefiles
