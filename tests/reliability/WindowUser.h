// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowDriver.h"

/// Drives a window, which need not be shown, as a sensible user does, through its actions and dialogs.
/// Whatever a message box asks is answered with Yes.
class WindowUser : public testsupport::MainWindowDriver
{
public:
    void open(const QString &path);
    void saveAs(const QString &path);
    /// Saves over the file that is open.
    void save();
    /// Exports at a size of `width`; the height follows, or is set when it is not 0.
    void exportTo(const QString &path, int width, int height = 0);
};
