// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/FeatheringReference.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace reference {

namespace {

/// A mask pixel above the first row is not set.
bool isSetAt(const Plane &mask, int x, int y)
{
    return y >= 0 && mask.at(x, y) != 0;
}

void setAlpha(Picture &picture, const std::vector<int> &ring, int rowLength, std::uint32_t alpha)
{
    for (const int i : ring) {
        const int y = i / rowLength;
        const int x = i % rowLength;
        if (x < picture.width && y < picture.height)
            picture.at(x, y) = (picture.at(x, y) & 0x00ffffffU) | alpha << 24;
    }
}

} // namespace

void feather(Picture &picture, const Plane &mask, int count)
{
    const int w = mask.width;
    const int h = mask.height;
    std::vector<std::int32_t> ringPlane(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), 0);
    const auto entry = [&ringPlane](int index) -> std::int32_t & {
        return ringPlane.at(static_cast<std::size_t>(index));
    };

    std::vector<int> ring1;
    for (int y = 1; y <= h - 2; ++y) {
        for (int x = 1; x <= w - 2; ++x) {
            if (isSetAt(mask, x, y))
                continue;
            int set = 0;
            int clear = 0;
            for (int row = -1; row <= 1; ++row) {
                for (int column = -1; column <= 1; ++column) {
                    if (row == 0 && column == 0)
                        continue;
                    if (isSetAt(mask, x + column, y + row))
                        ++set;
                    else
                        ++clear;
                }
            }
            if (set >= 1 && clear >= 1) {
                entry(y * w + x) = 1;
                ring1.push_back(y * w + x);
            }
        }
    }

    std::vector<int> ring2;
    std::vector<int> ring3;
    std::vector<int> ring4;
    std::vector<int> current = ring1;
    // An empty ring is followed by empty rings only.
    for (int k = 2; k - 1 <= count && !current.empty(); ++k) {
        std::vector<int> next;
        const auto take = [&](int index) {
            entry(index) = k;
            next.push_back(index);
        };
        for (const int i : current) {
            const int x = i % w;
            const int y = i / w;
            if (i > 0 && x != 0 && entry(i - 1) == 0 && isSetAt(mask, x - 1, y))
                take(i - 1);
            if (i < h * w - 1 && x != w - 1 && entry(i + 1) == 0 && isSetAt(mask, x + 1, y))
                take(i + 1);
            if (i > w && entry(i - w) == 0 && isSetAt(mask, x, y - 1))
                take(i - w);
            // The step down looks at the pixel above.
            if (i / w < h - 1 && entry(i + w) == 0 && isSetAt(mask, x, y - 1))
                take(i + w);
        }
        current = next;
        if (k == 2)
            ring2 = current;
        if (k == 3)
            ring3 = current;
        if (k == 4)
            ring4 = current;
    }

    setAlpha(picture, ring1, w, 0);
    setAlpha(picture, ring2, w, 0);
    setAlpha(picture, ring3, w, 100);
    setAlpha(picture, ring4, w, 180);
}

} // namespace reference
