// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"

#include "canvas/PictureItem.h"

#include <algorithm>

namespace {

// QImage::copy() takes an empty rectangle for the whole picture.
QImage pixelsIn(const QImage &image, const QRect &area)
{
    return area.isEmpty() ? QImage() : image.copy(area);
}

constexpr int uncompressed = 100;

} // namespace

CBrushCommand::CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap,
                             QImage *image, const QImage &before)
    : m_item(item),
      m_area(area),
      m_afterPixmap(afterPixmap),
      m_image(image),
      m_before(before),
      m_after(pixelsIn(*image, area))
{
}

void CBrushCommand::redo()
{
    if (m_afterPixmap != nullptr) {
        showFirstTime();
        moveToDisk();
        return;
    }
    loadFromDisk();
    putBack(m_after);
}

void CBrushCommand::undo()
{
    loadFromDisk();
    putBack(m_before);
}

void CBrushCommand::showFirstTime()
{
    // An item that shows it already would be repainted from end to end.
    if (m_item != nullptr && m_item->pixmap().cacheKey() != m_afterPixmap->cacheKey())
        m_item->setPixmap(*m_afterPixmap);
    m_afterPixmap = nullptr; // it is the caller's, and soon gone
}

void CBrushCommand::moveToDisk()
{
    if (m_before.isNull() || !m_store.open())
        return;
    const bool saved = m_before.save(&m_store, "PNG", uncompressed) &&
                       m_after.save(&m_store, "PNG", uncompressed) && m_store.flush() &&
                       m_store.error() == QFileDevice::NoError;
    if (!saved) { // a full disk: better to keep the pixels than the file
        m_store.close();
        m_store.remove();
        return;
    }
    m_store.seek(0);
    m_before = QImage();
    m_after = QImage();
}

void CBrushCommand::loadFromDisk()
{
    if (!m_before.isNull() || !m_store.isOpen())
        return;
    m_before.load(&m_store, "PNG");
    m_after.load(&m_store, "PNG");
}

void CBrushCommand::putBack(const QImage &pixels)
{
    const QRect area = m_area.intersected(m_image->rect());
    if (pixels.isNull() || area.isEmpty() || m_image->depth() != 32)
        return;
    const QImage source = pixels.convertToFormat(m_image->format());
    const int columns = std::min(area.width(), source.width() - (area.left() - m_area.left()));
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const int sourceRow = y - m_area.top();
        if (sourceRow >= source.height())
            break;
        const auto *from =
            reinterpret_cast<const QRgb *>(source.constScanLine(sourceRow)) + (area.left() - m_area.left());
        std::copy_n(from, std::max(columns, 0), reinterpret_cast<QRgb *>(m_image->scanLine(y)) + area.left());
    }
    if (m_item != nullptr)
        updatePixmap(*m_item, *m_image, area);
}
