// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/BrushOutline.h"

#include "canvas/SceneLayers.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

BrushOutline::BrushOutline()
{
    setZValue(layers::brushOutlineZ);
}

void BrushOutline::showAt(const QRectF &square, qreal viewPixel)
{
    if (viewPixel != m_viewPixel) {
        prepareGeometryChange();
        m_viewPixel = viewPixel;
    }
    setRect(square);
}

qreal BrushOutline::haloWidth() const
{
    // However thin, a line takes a pixel of the view.
    return std::max(pen().widthF(), m_viewPixel) + 2 * m_viewPixel;
}

QRectF BrushOutline::boundingRect() const
{
    const qreal reach = haloWidth() / 2 + m_viewPixel;
    return rect().adjusted(-reach, -reach, reach, reach);
}

void BrushOutline::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    painter->setPen(QPen(Qt::white, haloWidth()));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(rect());
    QGraphicsEllipseItem::paint(painter, option, widget);
}
