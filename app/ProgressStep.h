// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QMetaObject>

class QProgressBar;

namespace app {

/// Shows a progress bar for as long as it lives: paints it at once, and then a few times a second, however
/// often its value changes.
///
/// The work that the bar reports keeps the program's one thread busy, and the bar would paint itself at once
/// for every new value: with a hundred of them that took as long as the work on a small photo.
class ProgressStep
{
public:
    explicit ProgressStep(QProgressBar *bar);
    ~ProgressStep();
    Q_DISABLE_COPY_MOVE(ProgressStep)

private:
    void paintIfDue();

    QProgressBar *m_bar;
    QElapsedTimer m_sincePainted;
    QMetaObject::Connection m_connection;
};

} // namespace app
