// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/WaveSegmentReference.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace reference {

namespace {

/// Sum of the three byte differences from p to q, each of which wraps around:
/// a slightly brighter neighbour is far away.
int colorStep(const Picture &picture, int p, int q)
{
    const std::uint32_t from = picture.data.at(static_cast<std::size_t>(p));
    const std::uint32_t to = picture.data.at(static_cast<std::size_t>(q));
    int sum = 0;
    for (int k = 0; k <= 2; ++k)
        sum += static_cast<std::uint8_t>(channelOf(from, k) - channelOf(to, k));
    return sum;
}

} // namespace

std::vector<std::vector<int>> waveSegment(const Picture &picture, int threshold)
{
    const int width = picture.width;
    const int height = picture.height;
    std::vector<std::vector<int>> regions;
    std::vector<std::uint8_t> taken(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    const auto takenAt = [&taken](int index) -> std::uint8_t & {
        return taken.at(static_cast<std::size_t>(index));
    };

    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int i = y * width + x;
            if (takenAt(i))
                continue;
            // The start is not marked, so its own region may take it again.
            std::vector<int> region;
            std::vector<int> current{i};
            std::vector<int> next;
            while (!current.empty()) {
                for (const int e : current) {
                    region.push_back(e);
                    const auto test = [&](int n) {
                        if (!takenAt(n) && colorStep(picture, e, n) < threshold) {
                            takenAt(n) = 1;
                            next.push_back(n);
                        }
                    };
                    if (e > 0 && e % width != 0)
                        test(e - 1);
                    if (e < width * height - 1 && e % width < width - 1)
                        test(e + 1);
                    if (e > width)
                        test(e - width);
                    if (e / width < height - 1)
                        test(e + width);
                }
                current = next;
                next = std::vector<int>();
            }
            regions.push_back(region);
        }
    }
    return regions;
}

bool isBlack(unsigned char value)
{
    return value == 0;
}

bool isWhite(unsigned char value)
{
    return value == 255;
}

} // namespace reference
