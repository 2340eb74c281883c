// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/GaussianBlur.h"

#include "core/Checks.h"
#include "core/GaussianWeights.h"
#include "core/RowFilters.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace ornevo {

using namespace rowfilters;

namespace {

void check(const PlaneView &src, const MutablePlaneView &dst)
{
    checks::plane(src, "src");
    checks::plane(dst, "dst");
    checks::sameSize(dst, src, "dst");
}

void copyBorder(const PlaneView &src, const MutablePlaneView &dst, int band)
{
    const int width = src.width;
    const int height = width == 0 ? 0 : src.height;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t *from = src.row(y);
        std::uint8_t *to = dst.row(y);
        const bool inner = y >= band && y < height - band && width > 2 * std::ptrdiff_t{band};
        const int count = inner ? band : width;
        std::memmove(to, from, static_cast<std::size_t>(count));
        if (inner)
            std::memmove(to + width - band, from + width - band, static_cast<std::size_t>(band));
    }
}

using VerticalPass = void (*)(RowRing<double> &, int, HalfKernel, int, int, std::uint8_t *);

void smoothSeparably(const PlaneView &src, const MutablePlaneView &dst, HalfKernel half,
                     VerticalPass verticalPass)
{
    const int radius = static_cast<int>(half.size()) - 1;
    if (src.width > 2 * radius && src.height > 2 * radius) {
        RowRing<double> rows(src.width, 2 * radius + 1);
        for (int y = 0; y < 2 * radius; ++y)
            smoothRow(src.row(y), src.width, half, rows.row(y));
        for (int y = radius; y < src.height - radius; ++y) {
            smoothRow(src.row(y + radius), src.width, half, rows.row(y + radius));
            verticalPass(rows, y, half, radius, src.width - radius, dst.row(y));
        }
    }
    copyBorder(src, dst, radius);
}

// A kernel wider than the picture leaves every pixel in the border band; so wide a one need not be made.
int tapsThatMatter(const PlaneView &src, int size)
{
    const int widest = std::max(src.width, src.height);
    return std::min(std::max(size, 1), widest <= (1 << 29) ? 2 * widest + 1 : size);
}

constexpr int fastKernel[5][5] = {
    {2, 4, 5, 4, 2}, {4, 9, 12, 9, 4}, {5, 12, 15, 12, 5}, {4, 9, 12, 9, 4}, {2, 4, 5, 4, 2}};
constexpr int fastDivisor = 159;
constexpr int fastBand = 5; // though the kernel reaches 2 only: promised, see docs/compatibility.md

// Indexed by column, then row. The seventh entry (right neighbour) has the weight of a corner: promised, see
// docs/compatibility.md.
constexpr double smallKernel[9] = {0.05472157, 0.11098164, 0.05472157,  0.11098164, 0.22508352,
                                   0.11098164, 0.05472157, 0.054721575, 0.05472157};

std::uint8_t smallKernelAt(const PlaneView &src, int x, int y)
{
    int sum = 0;
    for (int column = 0; column < 3; ++column)
        for (int row = 0; row < 3; ++row)
            sum += static_cast<int>(src.row(y - 1 + row)[x - 1 + column] * smallKernel[3 * column + row]);
    return static_cast<std::uint8_t>(std::clamp(sum, 0, 255));
}

} // namespace

void blurPlane(const PlaneView &src, const MutablePlaneView &dst, double sigma, int size)
{
    check(src, dst);
    smoothSeparably(src, dst, gaussianHalfKernel(tapsThatMatter(src, size), sigma), truncateAtEachTap);
}

void blurPlaneNineTaps(const PlaneView &src, const MutablePlaneView &dst, double sigma)
{
    check(src, dst);
    smoothSeparably(src, dst, gaussianHalfKernel(9, sigma), truncateOnce);
}

void blurPlaneFiveByFive(const PlaneView &src, const MutablePlaneView &dst)
{
    check(src, dst);
    for (int y = fastBand; y < src.height - fastBand; ++y) {
        std::uint8_t *out = dst.row(y);
        for (int x = fastBand; x < src.width - fastBand; ++x) {
            int sum = 0;
            for (int row = 0; row < 5; ++row)
                for (int column = 0; column < 5; ++column)
                    sum += fastKernel[row][column] * src.row(y + row - 2)[x + column - 2];
            out[x] = static_cast<std::uint8_t>(sum / fastDivisor);
        }
    }
    copyBorder(src, dst, fastBand);
}

void blurPlaneThreeByThree(const PlaneView &src, const MutablePlaneView &dst)
{
    check(src, dst);
    for (int y = 0; y < src.height; ++y) {
        std::uint8_t *out = dst.row(y);
        for (int x = 0; x < src.width; ++x) {
            const bool frame = y <= 1 || y >= src.height - 2 || x <= 1 || x >= src.width - 2;
            out[x] = frame ? std::uint8_t{0} : smallKernelAt(src, x, y);
        }
    }
}

} // namespace ornevo
