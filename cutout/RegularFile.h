// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

namespace cutout {

/// Opens what is a regular file, or a link to one, for reading. Anything else is refused without waiting for
/// it and without reading from it: a named pipe would keep the program until somebody writes into it, and a
/// device has no end. Whatever takes the file's place meanwhile is refused as well.
[[nodiscard]] bool openRegularFile(QFile &file, const QString &path);

} // namespace cutout
