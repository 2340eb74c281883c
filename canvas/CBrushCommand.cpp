// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"

#include "canvas/ItemPointer.h"
#include "canvas/PictureItem.h"

#include <algorithm>
#include <utility>

namespace {

// QImage::copy() takes an empty rectangle for the whole picture.
QImage pixelsIn(const QImage &image, const QRect &area)
{
    return area.isEmpty() ? QImage() : image.copy(area);
}

CBrushCommand::Show showIn(QGraphicsPixmapItem *item, const QImage &image)
{
    return [shown = ItemPointer<QGraphicsPixmapItem>(item), &image](const QRect &area) {
        if (shown != nullptr)
            updatePixmap(*shown, image, area);
    };
}

constexpr int uncompressed = 100;

} // namespace

CBrushCommand::CBrushCommand(Show show, const QRect &area, QImage *image, const QImage &before)
    : m_show(std::move(show)),
      m_showFirst([this] { m_show(m_area); }),
      m_area(area),
      m_image(image),
      m_before(before),
      m_after(pixelsIn(*image, area))
{
}

CBrushCommand::CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap,
                             QImage *image, const QImage &before)
    : CBrushCommand(showIn(item, *image), area, image, before)
{
    m_showFirst = [shown = ItemPointer<QGraphicsPixmapItem>(item), afterPixmap] {
        // An item that shows it already would be repainted from end to end.
        if (shown != nullptr && shown->pixmap().cacheKey() != afterPixmap->cacheKey())
            shown->setPixmap(*afterPixmap);
    };
}

void CBrushCommand::redo()
{
    if (m_showFirst) {
        std::exchange(m_showFirst, nullptr)();
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
    m_show(area);
}
