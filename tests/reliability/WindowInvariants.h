// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowProbe.h"

#include <QString>

/// What holds of a main window between any two events.
class WindowInvariants
{
public:
    explicit WindowInvariants(MainWindow &window);

    /// Empty when all of them hold, else what does not.
    [[nodiscard]] QString broken();

private:
    [[nodiscard]] QString actions();
    [[nodiscard]] QString editingScene();
    [[nodiscard]] QString preview();
    [[nodiscard]] QString picture();
    [[nodiscard]] QString mask();
    [[nodiscard]] QString history();

    MainWindow &m_window;
    MainWindowProbe m_probe;
    QList<int> m_checkedMask; // shares its memory with the mask, so that an unchanged one is known at once
    unsigned m_lastEdges = 0;
};
