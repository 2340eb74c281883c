// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Activation.h"

#include <QWindow>

namespace testsupport {

/// Whether a dialog has come up and has the focus, which shortly after it was opened it hasn't yet: keys that
/// come before are lost. A bare X server has no one who would give it the focus.
inline bool takesKeys(QWidget &modal)
{
    const QWindow *window = modal.windowHandle();
    if (window == nullptr || !window->isExposed())
        return false;
    if (!modal.isActiveWindow())
        activate(modal);
    return modal.isActiveWindow();
}

} // namespace testsupport
