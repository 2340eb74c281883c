// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace cutout {

/// Makes `contents` the file at `path`. Returns whether all of it is known to be on the disk; if not, the
/// file that was there is as it was, and no new one appears.
///
/// The new file takes the older one's place in one step, once the system has said that it is stored. It keeps
/// the older one's permissions, and its owner and group where the system allows; where it does not, others
/// than the owner get no more than everybody. A link stays a link to the file that is written; of several
/// names of one file, the others keep the older contents.
///
/// Where the folder takes no new file or keeps the older one in its place, the older file itself is
/// overwritten, after space for all of it has been reserved; should that fail half-way, its contents are put
/// back, if the disk still takes them.
///
/// Folders, pipes and devices are not written to, nor files that may not be written.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &contents);

} // namespace cutout
