// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/OvDoFeathering.h"

#include <QImage>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr QRgb black = 0xFF000000U;
constexpr QRgb white = 0xFFFFFFFFU;
constexpr std::array<int, 4> ringAlpha = {0, 0, 100, 180};

using Ring = std::vector<int>;

class RingWalk
{
public:
    explicit RingWalk(const QBitmap &mask)
        : m_mask(mask.toImage().convertToFormat(QImage::Format_ARGB32)),
          m_width(m_mask.width()),
          m_height(m_mask.height()),
          m_taken(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    {
    }

    [[nodiscard]] int width() const { return m_width; }

    /// The clear pixels that touch the set area.
    Ring first()
    {
        Ring ring;
        for (int y = 1; y < m_height - 1; ++y)
            for (int x = 1; x < m_width - 1; ++x)
                if (at(x, y) == white && isBorder(x, y))
                    take(y * m_width + x, ring);
        return ring;
    }

    Ring next(const Ring &current)
    {
        Ring ring;
        for (const int index : current) {
            const int x = index % m_width;
            const int y = index / m_width;
            if (x != 0)
                takeIf(index - 1, isBlack(x - 1, y), ring);
            if (x != m_width - 1)
                takeIf(index + 1, isBlack(x + 1, y), ring);
            if (index > m_width)
                takeIf(index - m_width, isBlack(x, y - 1), ring);
            if (y < m_height - 1) // looks above, not below: cut-outs made so far depend on it
                takeIf(index + m_width, isBlack(x, y - 1), ring);
        }
        return ring;
    }

private:
    [[nodiscard]] QRgb at(int x, int y) const
    {
        return reinterpret_cast<const QRgb *>(m_mask.constScanLine(y))[x];
    }
    [[nodiscard]] bool isBlack(int x, int y) const { return y >= 0 && at(x, y) == black; }

    [[nodiscard]] bool isBorder(int x, int y) const
    {
        int blackNeighbours = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if ((dx != 0 || dy != 0) && at(x + dx, y + dy) == black)
                    ++blackNeighbours;
        return blackNeighbours >= 1 && blackNeighbours <= 7;
    }

    void takeIf(int index, bool maskIsBlack, Ring &ring)
    {
        if (maskIsBlack && m_taken[static_cast<std::size_t>(index)] == 0)
            take(index, ring);
    }

    void take(int index, Ring &ring)
    {
        m_taken[static_cast<std::size_t>(index)] = 1;
        ring.push_back(index);
    }

    QImage m_mask;
    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_taken;
};

void setAlpha(QImage &picture, const Ring &ring, int maskWidth, int alpha)
{
    for (const int index : ring) {
        const int x = index % maskWidth;
        const int y = index / maskWidth;
        if (x < picture.width() && y < picture.height())
            picture.scanLine(y)[std::ptrdiff_t{4} * x + 3] = static_cast<std::uint8_t>(alpha);
    }
}

} // namespace

void OvDoFeathering(QImage *picture, QBitmap mask, int count)
{
    if (picture->depth() != 32 || mask.isNull())
        return;
    RingWalk walk(mask);
    Ring ring = walk.first();
    for (int k = 1; !ring.empty(); ++k) {
        if (k <= static_cast<int>(ringAlpha.size()))
            setAlpha(*picture, ring, walk.width(), ringAlpha[static_cast<std::size_t>(k) - 1]);
        if (k > count || k >= static_cast<int>(ringAlpha.size()))
            break; // rings further in change nothing
        ring = walk.next(ring);
    }
}
