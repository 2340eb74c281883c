// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineF>
#include <QList>
#include <QString>

/// The coarse strokes that a user would lay on a photograph, in its pixels.
struct Strokes
{
    QList<QLineF> keep;
    QList<QLineF> remove;
};

/// Reads strokes from a text file: a line each, "keep" or "remove" and the coordinates of both ends; '#'
/// starts a comment. Throws std::runtime_error when the file can't be read or a line makes no sense.
[[nodiscard]] Strokes readStrokes(const QString &path);
