// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MainWindowProbe.h"

#include <QGraphicsItem>
#include <QImage>
#include <QList>
#include <QRect>
#include <QString>

/// The cut-out and the undo history as they should be: brushed, undone and redone beside the window, by plain
/// code.
class CutOutModel
{
public:
    explicit CutOutModel(MainWindow &window) : m_window(window), m_probe(window) {}

    /// A marker laid a dab, which an entry of the history can take away.
    void dabPushed(QGraphicsItem *dab);
    /// Has the window process the brush squares that wait, and does the same. Empty when they agree.
    QString processBatch();
    /// The photo went, and with it the dabs.
    void forgetDabs();
    /// The window has made a new cut-out, or has another picture: what it has now is the beginning.
    void adopt() { m_cutOut = m_probe.previewImage(); }
    /// Goes through the history as far as the window has gone. Empty when they agree.
    QString follow();

private:
    struct Entry
    {
        QGraphicsItem *dab = nullptr;
        QRect area;
        QImage before; ///< of the area; null: nothing to put back
        QImage after;
    };

    void push(const Entry &entry);
    void putBack(const QRect &area, const QImage &pixels);
    [[nodiscard]] QString undo(Entry &entry);

    MainWindow &m_window;
    MainWindowProbe m_probe;
    QImage m_cutOut;
    QList<Entry> m_entries;
    qsizetype m_index = 0;
};
