// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QWidget>

namespace testsupport {

/// Makes a window the active one for this program, whatever the window system says to it: on a bare X server
/// nobody gives activity to a window, and on Wayland no program may take it.
inline void activate(QWidget &window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // Qt 6.5 recommends asking the window system instead
        QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

} // namespace testsupport
