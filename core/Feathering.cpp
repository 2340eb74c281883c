// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Feathering.h"

#include "core/Checks.h"

#include <array>
#include <cstddef>
#include <vector>

namespace ornevo {

namespace {

constexpr std::array<std::uint8_t, 4> ringAlpha = {0, 0, 100, 180};

using Ring = std::vector<int>;

class RingWalk
{
public:
    explicit RingWalk(const PlaneView &mask)
        : m_mask(mask),
          m_width(mask.width),
          m_height(mask.height),
          m_taken(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    {
    }

    /// The clear pixels that touch the set area.
    Ring first()
    {
        Ring ring;
        for (int y = 1; y < m_height - 1; ++y)
            for (int x = 1; x < m_width - 1; ++x)
                if (!isSet(x, y) && isBorder(x, y))
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
                takeIf(isSet(x - 1, y), index - 1, ring);
            if (x != m_width - 1)
                takeIf(isSet(x + 1, y), index + 1, ring);
            const bool setAbove = y > 0 && isSet(x, y - 1);
            if (index > m_width)
                takeIf(setAbove, index - m_width, ring);
            if (y < m_height - 1) // looks above, not below: promised, see docs/compatibility.md
                takeIf(setAbove, index + m_width, ring);
        }
        return ring;
    }

private:
    [[nodiscard]] bool isSet(int x, int y) const { return m_mask.row(y)[x] != 0; }

    /// Whether some but not all of the eight neighbours are set.
    [[nodiscard]] bool isBorder(int x, int y) const
    {
        int setNeighbours = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if ((dx != 0 || dy != 0) && isSet(x + dx, y + dy))
                    ++setNeighbours;
        return setNeighbours >= 1 && setNeighbours <= 7;
    }

    void takeIf(bool allowed, int index, Ring &ring)
    {
        if (allowed && m_taken[static_cast<std::size_t>(index)] == 0)
            take(index, ring);
    }

    void take(int index, Ring &ring)
    {
        m_taken[static_cast<std::size_t>(index)] = 1;
        ring.push_back(index);
    }

    PlaneView m_mask;
    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_taken;
};

void setAlpha(const MutablePictureView &picture, const Ring &ring, int maskWidth, std::uint8_t alpha)
{
    for (const int index : ring) {
        const int x = index % maskWidth;
        const int y = index / maskWidth;
        if (x < picture.width && y < picture.height)
            picture.row(y)[std::ptrdiff_t{4} * x + 3] = alpha;
    }
}

} // namespace

void featherEdge(const MutablePictureView &picture, const PlaneView &mask, int rings)
{
    checks::picture(picture, "picture");
    checks::plane(mask, "mask");
    checks::indexable(mask.width, mask.height, "mask");
    RingWalk walk(mask);
    Ring ring = walk.first();
    for (int k = 1; !ring.empty(); ++k) {
        if (k <= static_cast<int>(ringAlpha.size()))
            setAlpha(picture, ring, mask.width, ringAlpha[static_cast<std::size_t>(k) - 1]);
        if (k > rings || k >= static_cast<int>(ringAlpha.size()))
            break; // rings further in change nothing
        ring = walk.next(ring);
    }
}

} // namespace ornevo
