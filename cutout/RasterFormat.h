// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace cutout {

/// The formats, as Qt names them, that a file which begins like this may be read in, whatever its name. Only
/// raster formats are among them: the picture plugins that a desktop happens to have may read drawings and
/// documents, which can pull other files into the picture. Empty for what is none of them; more than one
/// where the beginning says little.
///
/// `beginning` is the first kilobyte of the file, or all of a shorter one.
[[nodiscard]] QList<QByteArray> rasterFormats(const QByteArray &beginning);

} // namespace cutout
