// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/RowFilters.h"

#include <cmath>

namespace ornevo::rowfilters {

namespace {

std::uint8_t lowByte(double value)
{
    return static_cast<std::uint8_t>(static_cast<int>(value));
}

} // namespace

void smoothRow(const std::uint8_t *in, int width, HalfKernel half, double *out)
{
    const int radius = static_cast<int>(half.size()) - 1;
    for (int x = radius; x < width - radius; ++x)
        out[x] = half[0] * in[x];
    for (int k = 1; k <= radius; ++k) {
        const double weight = half[static_cast<std::size_t>(k)];
        for (int x = radius; x < width - radius; ++x)
            out[x] += weight * (in[x + k] + in[x - k]);
    }
}

void truncateAtEachTap(RowRing<double> &rows, int y, HalfKernel half, int from, int to, std::uint8_t *out)
{
    const double *centre = rows.row(y);
    for (int x = from; x < to; ++x)
        out[x] = lowByte(centre[x] * half[0]);
    for (int k = 1; k < static_cast<int>(half.size()); ++k) {
        const double *above = rows.row(y - k);
        const double *below = rows.row(y + k);
        const double weight = half[static_cast<std::size_t>(k)];
        // The byte is truncated after every pair of taps: promised, see docs/compatibility.md.
        for (int x = from; x < to; ++x)
            out[x] = lowByte(out[x] + (below[x] + above[x]) * weight);
    }
}

void truncateOnce(RowRing<double> &rows, int y, HalfKernel half, int from, int to, std::uint8_t *out)
{
    for (int x = from; x < to; ++x) {
        double sum = half[0] * rows.row(y)[x];
        for (int k = 1; k < static_cast<int>(half.size()); ++k)
            sum += half[static_cast<std::size_t>(k)] * (rows.row(y + k)[x] + rows.row(y - k)[x]);
        out[x] = lowByte(sum);
    }
}

void sobelMagnitudeRow(const std::uint8_t *above, const std::uint8_t *mid, const std::uint8_t *below,
                       int width, std::uint8_t *out)
{
    out[0] = 0;
    out[width - 1] = 0;
    for (int x = 1; x < width - 1; ++x) {
        const int gx =
            above[x + 1] + 2 * mid[x + 1] + below[x + 1] - above[x - 1] - 2 * mid[x - 1] - below[x - 1];
        const int gy =
            above[x - 1] + 2 * above[x] + above[x + 1] - below[x - 1] - 2 * below[x] - below[x + 1];
        // A magnitude of 256 or more wraps: the edge map is promised that way, see docs/compatibility.md.
        out[x] = lowByte(std::sqrt(static_cast<double>(gx * gx + gy * gy)));
    }
}

} // namespace ornevo::rowfilters
