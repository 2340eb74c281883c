// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowDriver.h"

#include <QApplication>

/// The real window, off screen and in a sandbox, one for all inputs of a fuzzer's run.
class WindowHarness
{
public:
    static WindowHarness &instance();
    static QApplication &application();
    /// A name for a file of a target's own.
    static QString scratchFile();

    MainWindow &window() { return m_driver.window; }
    MainWindowProbe &probe() { return m_driver.probe; }
    /// Writes bytes to a file of the harness and returns its path.
    static QString file(const QByteArray &contents);
    /// Ticks or unticks the preview.
    void preview(bool on) { m_driver.preview(on); }
    /// Lays a Keep and a Remove dab.
    void layDabs() { m_driver.layDabs(); }

private:
    WindowHarness() = default;

    testsupport::MainWindowDriver m_driver;
};
