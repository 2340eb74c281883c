// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/MarkerDabs.h"

#include "canvas/SeedSquare.h"

#include <QPen>

namespace markers {

cutout::Seeds seedsOf(const QList<QGraphicsItem *> &items, QSize size)
{
    cutout::Seeds seeds;
    for (const QGraphicsItem *item : items) {
        if (const auto *dab = qgraphicsitem_cast<const QGraphicsRectItem *>(item))
            appendSeedSquare(dab->rect(), size, seeds.keep);
        else if (const auto *disc = qgraphicsitem_cast<const QGraphicsEllipseItem *>(item))
            if (disc->pen().color() != QColor(blueColour))
                appendSeedSquare(disc->rect(), size, seeds.remove);
    }
    return seeds;
}

} // namespace markers
