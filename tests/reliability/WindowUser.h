// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowProbe.h"

#include <QString>

/// Drives a window as a sensible user does, through its actions and dialogs.
class WindowUser
{
public:
    WindowUser();

    MainWindow &window() { return m_window; }
    MainWindowProbe &probe() { return m_probe; }
    [[nodiscard]] QString status() const;

    void open(const QString &path);
    void saveAs(const QString &path);
    /// Saves over the file that is open and answers the question with Yes.
    void save();
    /// Exports at a size of `width`; the height follows, or is set when it is not 0.
    void exportTo(const QString &path, int width, int height = 0);
    void trigger(const char *action);
    void preview(bool on);
    /// Lays a Keep dab in the middle and a Remove dab in the corner.
    void layDabs();
    /// One brush dab on the preview, processed at once.
    void brush(const QRect &square);

private:
    MainWindow m_window;
    MainWindowProbe m_probe;
};
