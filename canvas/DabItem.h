// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QGraphicsEllipseItem>
#include <QGraphicsRectItem>
#include <QPainter>
#include <QPen>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <type_traits>

namespace canvas {

/// A marker dab that is never painted smaller than a few pixels of the view. The dabs of a common size are
/// less than one where a large photo is shown as a whole, and nobody would see what is marked. To those who
/// read the scene, and to the eraser, it is a plain item of its own size. One of no size marks nothing, and
/// does not grow.
template <typename Shape> class DabItem : public Shape
{
public:
    /// `viewPixel` is the side of a pixel of the view in pixels of the scene. In a view that is reduced
    /// further later on, the dab becomes smaller.
    DabItem(const QRectF &square, QRgb colour, qreal viewPixel)
        : Shape(square), m_reach(square.isEmpty() ? 0.0 : std::max(0.0, growth(square.width(), viewPixel)))
    {
        Shape::setPen(QPen(QColor(colour)));
        Shape::setBrush(QBrush(QColor(colour)));
    }

    [[nodiscard]] QRectF boundingRect() const override
    {
        return Shape::boundingRect().adjusted(-m_reach, -m_reach, m_reach, m_reach);
    }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        const qreal scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
        const qreal grown =
            scale > 0 ? std::min(m_reach, growth(Shape::rect().width(), 1 / scale)) : qreal(0);
        if (grown <= 0) {
            Shape::paint(painter, option, widget);
            return;
        }
        painter->setPen(Qt::NoPen);
        painter->setBrush(Shape::brush());
        drawIn(painter, Shape::rect().adjusted(-grown, -grown, grown, grown));
    }

private:
    static constexpr qreal smallest = 4.0; ///< in pixels of the view

    /// By how much a dab has to grow on each side; negative when it is large enough.
    static qreal growth(qreal side, qreal viewPixel) { return (smallest * viewPixel - side) / 2; }
    static void drawIn(QPainter *painter, const QRectF &square)
    {
        if constexpr (std::is_same_v<Shape, QGraphicsRectItem>)
            painter->drawRect(square);
        else
            painter->drawEllipse(square);
    }

    qreal m_reach; ///< how far it may be painted beyond its own edge, in pixels of the scene
};

} // namespace canvas
