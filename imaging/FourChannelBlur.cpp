// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/FourChannelBlur.h"

#include "imaging/GaussianWeights.h"
#include "imaging/RowFilters.h"

#include <QImage>

#include <algorithm>
#include <cstdint>
#include <vector>

using namespace rowfilters;

namespace {

constexpr int channels = 4;

// Each byte of a row has its neighbours four bytes away; the row is smoothed in doubles and cut once.
void smoothInterleavedRow(const std::uint8_t *in, int width, HalfKernel half, std::vector<double> &sums,
                          std::uint8_t *out)
{
    const int radius = static_cast<int>(half.size()) - 1;
    const int from = radius * channels;
    const int to = (width - radius) * channels;
    for (int i = from; i < to; ++i)
        sums[static_cast<std::size_t>(i)] = half[0] * in[i];
    for (int k = 1; k <= radius; ++k) {
        const double weight = half[static_cast<std::size_t>(k)];
        for (int i = from; i < to; ++i)
            sums[static_cast<std::size_t>(i)] += weight * (in[i + k * channels] + in[i - k * channels]);
    }
    for (int i = from; i < to; ++i)
        out[i] = static_cast<std::uint8_t>(static_cast<int>(sums[static_cast<std::size_t>(i)]));
}

void combineRows(RowRing<std::uint8_t> &rows, int y, HalfKernel half, int from, int to, std::uint8_t *out)
{
    const std::uint8_t *centre = rows.row(y);
    for (int i = from; i < to; ++i)
        out[i] = static_cast<std::uint8_t>(static_cast<int>(centre[i] * half[0]));
    for (int k = 1; k < static_cast<int>(half.size()); ++k) {
        const std::uint8_t *above = rows.row(y - k);
        const std::uint8_t *below = rows.row(y + k);
        const double weight = half[static_cast<std::size_t>(k)];
        for (int i = from; i < to; ++i)
            out[i] = static_cast<std::uint8_t>(static_cast<int>(out[i] + (below[i] + above[i]) * weight));
    }
}

class Progress
{
public:
    Progress(const ProgressCallback &callback, int height) : m_callback(callback), m_height(height) {}
    void rowDone(int y, int passStart) const
    {
        if (m_callback)
            m_callback(passStart + static_cast<int>(std::int64_t{y} * passShare / m_height));
    }
    static constexpr int passShare = 45;

private:
    const ProgressCallback &m_callback;
    int m_height;
};

bool canBlur(const QImage &src, const QImage &dst)
{
    return &src != &dst && !src.isNull() && src.size() == dst.size() && src.depth() == 32 &&
           dst.depth() == 32;
}

} // namespace

void blurFourChannels(const QImage &src, QImage &dst, int size, double sigma,
                      const ProgressCallback &progress)
{
    if (!canBlur(src, dst))
        return;
    const int width = src.width();
    const int height = src.height();
    const int radius = std::max(size, 0) / 2; // an even size counts as the next odd one
    const Progress report(progress, height);
    if (width <= 2LL * radius || height <= 2LL * radius) {
        report.rowDone(height - 1, 0);
        return;
    }

    const std::vector<double> half = gaussianHalfKernel(2 * radius + 1, sigma);
    RowRing<std::uint8_t> rows(width * channels, 2 * radius + 1);
    std::vector<double> sums(static_cast<std::size_t>(width) * channels);
    for (int y = 0; y < height; ++y) {
        smoothInterleavedRow(src.constScanLine(y), width, half, sums, rows.row(y));
        const int ready = y - radius;
        if (ready < radius) {
            report.rowDone(y, 0);
            continue;
        }
        combineRows(rows, ready, half, radius * channels, (width - radius) * channels, dst.scanLine(ready));
        report.rowDone(ready, Progress::passShare);
    }
}
