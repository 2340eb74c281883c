// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QTemporaryFile>

namespace canvas {

/// The pixels that an undo entry puts back, from before and after. They can be moved to a temporary file of
/// their own, so that a long history costs disk and not memory: those from before as they are, those from
/// after as what differs, which packs to little. Where there can't be a file they stay in memory: on a full
/// disk, without a temporary folder, and when the program is running short of file descriptors, which opening
/// and saving need more.
class UndoSnapshot
{
public:
    UndoSnapshot(const QImage &before, const QImage &after) : m_before(before), m_after(after) {}

    /// Moves the pixels to the file.
    void store();

    /// Read from the file if they are there; null when they can't be.
    [[nodiscard]] QImage before();
    [[nodiscard]] QImage after();

private:
    bool openFile();
    void removeFile();

    QImage m_before; ///< null while it is in the file
    QImage m_after;  ///< likewise
    QTemporaryFile m_file;
};

/// Removes the files that a program which was killed has left in the temporary folder. Where the file system
/// knows files without a name there are none. Only files of this user's are touched, under the name that
/// snapshots have, and only when no program that runs holds them.
void removeAbandonedSnapshots();

} // namespace canvas
