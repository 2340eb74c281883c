// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsEllipseItem>

namespace canvas {

/// The circle that shows where a brush is and how large, in place of a cursor. A light halo on both sides of
/// its dark line keeps it visible on every picture. To those who read the scene it is a plain ellipse with
/// the default pen and brush.
class BrushOutline : public QGraphicsEllipseItem
{
public:
    BrushOutline();

    /// Draws the circle into `square`. `viewPixel` is the side of a pixel of the view in pixels of the scene.
    void showAt(const QRectF &square, qreal viewPixel);

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    [[nodiscard]] qreal lineWidth() const;
    [[nodiscard]] qreal haloWidth() const;

    qreal m_viewPixel = 1.0;
};

} // namespace canvas
