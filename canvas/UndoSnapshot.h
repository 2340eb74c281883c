// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QTemporaryFile>

/// The pixels that an undo entry will put back. They can be moved to a temporary file of their own, so that a
/// long history costs disk and not memory; where there can't be one they stay in memory: on a full disk,
/// without a temporary folder, and when the program is running short of file descriptors, which opening and
/// saving need more.
class UndoSnapshot
{
public:
    explicit UndoSnapshot(const QImage &pixels) : m_pixels(pixels) {}

    /// Moves the pixels to the file.
    void store();

    /// The pixels, read from the file if they are there; null when they can't be.
    [[nodiscard]] QImage pixels();

    /// Other pixels take the place of what is stored.
    void replace(const QImage &pixels);

private:
    bool openFile();
    void removeFile();

    QImage m_pixels; ///< null while they are in the file
    QTemporaryFile m_file;
};

/// Removes the files that a program which was killed has left in the temporary folder. Where the file system
/// knows files without a name there are none. Only files of this user's are touched, under the name that
/// snapshots have, and only when no program that runs holds them.
void removeAbandonedSnapshots();
