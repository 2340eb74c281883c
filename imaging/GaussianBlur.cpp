// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/GaussianBlur.h"

#include "imaging/GaussianWeights.h"
#include "imaging/RowFilters.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>

using namespace rowfilters;

namespace {

using Bytes = CFrImage<unsigned char>;
unsigned char *rowOf(const Bytes &plane, int y)
{
    return plane.data + std::ptrdiff_t{y} * plane.width;
}

void copyBorder(const Bytes &src, Bytes &dst, int band)
{
    const int width = src.width;
    const int height = src.height;
    for (int y = 0; y < height; ++y) {
        const unsigned char *from = rowOf(src, y);
        unsigned char *to = rowOf(dst, y);
        const bool inner = y >= band && y < height - band && width > 2 * std::ptrdiff_t{band};
        const int count = inner ? band : width;
        std::memmove(to, from, static_cast<std::size_t>(count));
        if (inner)
            std::memmove(to + width - band, from + width - band, static_cast<std::size_t>(band));
    }
}

using VerticalPass = void (*)(RowRing<double> &, int, HalfKernel, int, int, std::uint8_t *);

void smoothSeparably(const Bytes &src, Bytes &dst, HalfKernel half, VerticalPass verticalPass)
{
    const int radius = static_cast<int>(half.size()) - 1;
    if (src.width > 2 * radius && src.height > 2 * radius) {
        RowRing<double> rows(src.width, 2 * radius + 1);
        for (int y = 0; y < 2 * radius; ++y)
            smoothRow(rowOf(src, y), src.width, half, rows.row(y));
        for (int y = radius; y < src.height - radius; ++y) {
            smoothRow(rowOf(src, y + radius), src.width, half, rows.row(y + radius));
            verticalPass(rows, y, half, radius, src.width - radius, rowOf(dst, y));
        }
    }
    copyBorder(src, dst, radius);
}

// A kernel wider than the picture leaves every pixel in the border band; so wide a one need not be made.
int tapsThatMatter(const Bytes &src, int size)
{
    const int widest = std::max(src.width, src.height);
    return std::min(std::max(size, 1), widest <= (1 << 29) ? 2 * widest + 1 : size);
}

constexpr int fastKernel[5][5] = {
    {2, 4, 5, 4, 2}, {4, 9, 12, 9, 4}, {5, 12, 15, 12, 5}, {4, 9, 12, 9, 4}, {2, 4, 5, 4, 2}};
constexpr int fastDivisor = 159;
constexpr int fastBand = 5;

// Indexed by column, then row. The seventh entry (right neighbour) has the weight of a corner on purpose.
constexpr double smallKernel[9] = {0.05472157, 0.11098164, 0.05472157,  0.11098164, 0.22508352,
                                   0.11098164, 0.05472157, 0.054721575, 0.05472157};

unsigned char smallKernelAt(const Bytes &src, int stride, int x, int y)
{
    int sum = 0;
    for (int column = 0; column < 3; ++column)
        for (int row = 0; row < 3; ++row)
            sum += static_cast<int>(src.data[std::ptrdiff_t{y - 1 + row} * stride + x - 1 + column] *
                                    smallKernel[3 * column + row]);
    return static_cast<unsigned char>(std::clamp(sum, 0, 255));
}

} // namespace

int FrGaussianBlurAny(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma, int size)
{
    smoothSeparably(*src, *dst, gaussianHalfKernel(tapsThatMatter(*src, size), sigma), cutAtEachTap);
    return 0;
}

int FrGaussianBlur99(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma)
{
    smoothSeparably(*src, *dst, gaussianHalfKernel(9, sigma), cutOnce);
    return 0;
}

int FrGaussianBlurFast(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    assert(src->channels == 1);
    if (src->channels != 1)
        return 0;
    for (int y = fastBand; y < src->height - fastBand; ++y) {
        unsigned char *out = rowOf(*dst, y);
        for (int x = fastBand; x < src->width - fastBand; ++x) {
            int sum = 0;
            for (int row = 0; row < 5; ++row)
                for (int column = 0; column < 5; ++column)
                    sum += fastKernel[row][column] * rowOf(*src, y + row - 2)[x + column - 2];
            out[x] = static_cast<unsigned char>(sum / fastDivisor);
        }
    }
    copyBorder(*src, *dst, fastBand);
    return 0;
}

int FrGaussianBlur33(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst)
{
    assert(src->channels == 1);
    if (src->channels != 1)
        return 0;
    const int width = dst->width;
    const int height = dst->height;
    for (int y = 0; y < height; ++y) {
        unsigned char *out = rowOf(*dst, y);
        for (int x = 0; x < width; ++x) {
            const bool frame = y <= 1 || y >= height - 2 || x <= 1 || x >= width - 2;
            out[x] = frame ? 0 : smallKernelAt(*src, width, x, y);
        }
    }
    return 0;
}
