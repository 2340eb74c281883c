// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowProbe.h"

#include <QApplication>
#include <QByteArray>
#include <QString>

/// The real window, off screen and in a sandbox of its own, one for all inputs of a fuzzer's run.
class WindowHarness
{
public:
    static WindowHarness &instance();
    static QApplication &application();
    /// A name for a file of a target's own.
    static QString scratchFile();

    MainWindow &window() { return m_window; }
    MainWindowProbe &probe() { return m_probe; }
    /// Writes bytes to a file of the harness and returns its path.
    QString file(const QByteArray &contents);
    /// Ticks or unticks the preview.
    void preview(bool on);
    /// Lays a Keep and a Remove dab, which lie on any picture from 8 x 8 on.
    void layDabs();

private:
    WindowHarness();

    MainWindow m_window;
    MainWindowProbe m_probe;
};
