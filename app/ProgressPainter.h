// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

class QProgressBar;

/// Paints a progress bar a few times a second while it is visible, however often its value changes.
///
/// The work that it tells of keeps the program's one thread busy, and the bar paints itself at once for every
/// new value: with a hundred of them that took as long as the work on a small photo.
class ProgressPainter : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the bar.
    explicit ProgressPainter(QProgressBar *bar);

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void paintIfDue();

private:
    QProgressBar *m_bar;
    QElapsedTimer m_sincePainted;
};
