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
int colorStep(const QImage &picture, int p, int q)
{
    const int width = picture.width();
    const uchar *pixelP = picture.constScanLine(p / width) + 4 * (p % width);
    const uchar *pixelQ = picture.constScanLine(q / width) + 4 * (q % width);
    int sum = 0;
    for (int k = 0; k <= 2; ++k)
        sum += static_cast<std::uint8_t>(pixelP[k] - pixelQ[k]);
    return sum;
}

} // namespace

int waveSegment(const QImage &picture, QList<QList<int>> &regions, int threshold)
{
    const int width = picture.width();
    const int height = picture.height();
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
            QList<int> region;
            QList<int> current{i};
            QList<int> next;
            while (!current.isEmpty()) {
                for (const int e : current) {
                    region.append(e);
                    const auto test = [&](int n) {
                        if (!takenAt(n) && colorStep(picture, e, n) < threshold) {
                            takenAt(n) = 1;
                            next.append(n);
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
                next = QList<int>();
            }
            regions.append(region);
        }
    }
    return 0;
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
