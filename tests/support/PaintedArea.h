// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

#include <utility>

namespace testsupport {

/// What of a widget was painted.
class PaintedArea : public QObject
{
public:
    explicit PaintedArea(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
    QRegion take() { return std::exchange(m_region, QRegion()); }

private:
    QRegion m_region;
};

} // namespace testsupport
