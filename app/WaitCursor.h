// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace app {

/// While one of these lives, the pointer says that the program is busy. It must have gone before a dialog is
/// shown.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

} // namespace app
