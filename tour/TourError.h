// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <stdexcept>

/// A step of the tour that did not show what it should.
class TourError : public std::runtime_error
{
public:
    explicit TourError(const QString &message) : std::runtime_error(message.toStdString()) {}
};

/// Throws a TourError with `message` unless `holds`.
inline void expect(bool holds, const QString &message)
{
    if (!holds)
        throw TourError(message);
}

/// While it lives, the tour waits for what it names: that is what is reported when it never comes.
class Awaiting
{
public:
    explicit Awaiting(const QString &what);
    ~Awaiting();
    Awaiting(const Awaiting &) = delete;
    Awaiting &operator=(const Awaiting &) = delete;
};

/// All that is waited for now, the outermost first, and the windows that are open.
[[nodiscard]] QString awaited();
