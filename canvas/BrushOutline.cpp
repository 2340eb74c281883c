// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/BrushOutline.h"

#include "canvas/SceneLayers.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace canvas {

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

// Where the view shows the picture reduced, a line by the pen alone would be less than a pixel wide and fade.
qreal BrushOutline::lineWidth() const
{
    return std::max(pen().widthF(), m_viewPixel);
}

qreal BrushOutline::haloWidth() const
{
    return lineWidth() + 2 * m_viewPixel;
}

QRectF BrushOutline::boundingRect() const
{
    const qreal reach = haloWidth() / 2 + m_viewPixel;
    return rect().adjusted(-reach, -reach, reach, reach);
}

void BrushOutline::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    painter->setBrush(brush());
    painter->setPen(QPen(Qt::white, haloWidth()));
    painter->drawEllipse(rect());
    painter->setPen(QPen(pen().color(), lineWidth()));
    painter->drawEllipse(rect());
}

} // namespace canvas
