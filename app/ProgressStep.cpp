// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/ProgressStep.h"

#include <QProgressBar>

namespace {

constexpr int pauseBetweenPaintings = 40; // ms; flows for the eye

} // namespace

namespace app {

ProgressStep::ProgressStep(QProgressBar *bar) : m_bar(bar)
{
    m_bar->show();
    m_bar->repaint(); // not every step has values to tell, and the bar is to be seen during it all the same
    m_bar->setUpdatesEnabled(false);
    m_sincePainted.start();
    m_connection = QObject::connect(bar, &QProgressBar::valueChanged, bar, [this] { paintIfDue(); });
}

ProgressStep::~ProgressStep()
{
    QObject::disconnect(m_connection);
    m_bar->setUpdatesEnabled(true); // first: hidden without, it would stay on the screen
    m_bar->hide();
}

void ProgressStep::paintIfDue()
{
    if (m_sincePainted.elapsed() < pauseBetweenPaintings)
        return;
    m_bar->setUpdatesEnabled(true);
    m_bar->repaint();
    m_bar->setUpdatesEnabled(false);
    m_sincePainted.restart();
}

} // namespace app
