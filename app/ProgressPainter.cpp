// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ProgressPainter.h"

#include <QEvent>
#include <QProgressBar>

namespace {

constexpr int pauseBetweenPaintings = 40; // ms; flows for the eye

} // namespace

ProgressPainter::ProgressPainter(QProgressBar *bar) : QObject(bar), m_bar(bar)
{
    bar->installEventFilter(this);
    connect(bar, &QProgressBar::valueChanged, this, &ProgressPainter::paintIfDue);
}

bool ProgressPainter::eventFilter(QObject *watched, QEvent *event)
{
    // The attribute alone: QWidget::setUpdatesEnabled() would ask for a painting when it is switched on.
    if (event->type() == QEvent::Show) {
        m_bar->setAttribute(Qt::WA_UpdatesDisabled, true);
        m_sincePainted.start();
    } else if (event->type() == QEvent::Hide) {
        m_bar->setAttribute(Qt::WA_UpdatesDisabled, false);
        // A widget that is hidden asks for its place to be painted before it tells, and was not heard.
        if (QWidget *parent = m_bar->parentWidget())
            parent->update(m_bar->geometry());
        m_sincePainted.invalidate();
    }
    return QObject::eventFilter(watched, event);
}

void ProgressPainter::paintIfDue()
{
    if (!m_sincePainted.isValid() || m_sincePainted.elapsed() < pauseBetweenPaintings)
        return;
    m_bar->setAttribute(Qt::WA_UpdatesDisabled, false);
    m_bar->repaint();
    m_bar->setAttribute(Qt::WA_UpdatesDisabled, true);
    m_sincePainted.restart();
}
