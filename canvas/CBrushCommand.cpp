// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"

#include "canvas/PictureItem.h"

#include <algorithm>

CBrushCommand::CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap,
                             QImage *image, const QImage &before)
    : m_item(item),
      m_area(area),
      m_afterPixmap(afterPixmap),
      m_image(image),
      m_snapshot(before, area.isEmpty() ? QImage() : image->copy(area))
{
}

void CBrushCommand::redo()
{
    if (m_afterPixmap != nullptr) {
        showFirstTime();
        m_snapshot.store();
        return;
    }
    putBack(m_snapshot.after());
}

void CBrushCommand::undo()
{
    putBack(m_snapshot.before());
}

void CBrushCommand::showFirstTime()
{
    // An item that shows it already would be repainted from end to end.
    if (m_item != nullptr && m_item->pixmap().cacheKey() != m_afterPixmap->cacheKey())
        m_item->setPixmap(*m_afterPixmap);
    m_afterPixmap = nullptr; // it is the caller's, and soon gone
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
    if (m_item != nullptr)
        updatePixmap(*m_item, *m_image, area);
}
