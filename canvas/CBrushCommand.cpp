// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"

#include "canvas/ItemPointer.h"
#include "canvas/PictureItem.h"

#include <algorithm>
#include <utility>

namespace {

CBrushCommand::Show showIn(QGraphicsPixmapItem *item, const QImage &image)
{
    return [shown = canvas::ItemPointer<QGraphicsPixmapItem>(item), &image](const QRect &area) {
        if (shown != nullptr)
            canvas::updatePixmap(*shown, image, area);
    };
}

} // namespace

CBrushCommand::CBrushCommand(Show show, const QRect &area, QImage *image, const QImage &before)
    : m_show(std::move(show)),
      m_showFirst([this] { m_show(m_area); }),
      m_area(area),
      m_image(image),
      m_snapshot(before, area.isEmpty() ? QImage() : image->copy(area)) // copy() takes an empty one for all
{
}

CBrushCommand::CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap,
                             QImage *image, const QImage &before)
    : CBrushCommand(showIn(item, *image), area, image, before)
{
    m_showFirst = [shown = canvas::ItemPointer<QGraphicsPixmapItem>(item), afterPixmap] {
        // An item that shows it already would be repainted from end to end.
        if (shown != nullptr && shown->pixmap().cacheKey() != afterPixmap->cacheKey())
            shown->setPixmap(*afterPixmap);
    };
}

void CBrushCommand::redo()
{
    if (m_showFirst) {
        std::exchange(m_showFirst, nullptr)();
        m_snapshot.store();
        return;
    }
    putBack(m_snapshot.after());
}

void CBrushCommand::undo()
{
    putBack(m_snapshot.before());
}

void CBrushCommand::putBack(QImage pixels)
{
    const QRect area = m_area.intersected(m_image->rect());
    if (pixels.isNull() || m_image->depth() != 32)
        return;
    pixels.convertTo(m_image->format());
    const int left = area.left() - m_area.left();
    const int top = area.top() - m_area.top();
    const int columns = std::min(area.width(), pixels.width() - left);
    const int rows = std::min(area.height(), pixels.height() - top);
    if (columns <= 0 || rows <= 0)
        return;
    for (int y = 0; y < rows; ++y) {
        const auto *ours = reinterpret_cast<const QRgb *>(pixels.constScanLine(top + y)) + left;
        auto *theirs = reinterpret_cast<QRgb *>(m_image->scanLine(area.top() + y)) + area.left();
        std::copy_n(ours, columns, theirs);
    }
    m_show(area);
}
