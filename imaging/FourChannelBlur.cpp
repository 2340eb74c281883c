// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/FourChannelBlur.h"

#include "imaging/BlurKernels.h"
#include "imaging/GaussianWeights.h"
#include "imaging/LargeMemory.h"
#include "imaging/RowFilters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

using namespace rowfilters;
using blurkernels::FlatRun;

namespace {

constexpr int channels = 4;

std::uint8_t lowByte(double value)
{
    return static_cast<std::uint8_t>(static_cast<int>(value));
}

/// What becomes of a pixel whose whole neighbourhood is the same as itself.
class FlatPixels
{
public:
    explicit FlatPixels(HalfKernel half)
    {
        for (int level = 0; level < 256; ++level) {
            const auto i = static_cast<std::size_t>(level);
            double sum = half[0] * level;
            for (const double weight : half.subspan(1))
                sum += weight * (2 * level);
            m_smooth[i] = lowByte(sum);
            std::uint8_t value = lowByte(m_smooth[i] * half[0]);
            for (const double weight : half.subspan(1))
                value = lowByte(value + 2 * m_smooth[i] * weight);
            m_blurred[i] = value;
        }
    }
    std::uint32_t smooth(std::uint32_t pixel) const { return mapped(m_smooth, pixel); }
    std::uint32_t blurred(std::uint32_t pixel) const { return mapped(m_blurred, pixel); }

private:
    using Table = std::array<std::uint8_t, 256>;
    static std::uint32_t mapped(const Table &table, std::uint32_t pixel)
    {
        std::uint32_t result = 0;
        for (int shift = 0; shift < 32; shift += 8)
            result |= std::uint32_t{table[pixel >> shift & 0xFF]} << shift;
        return result;
    }

    Table m_smooth{};
    Table m_blurred{};
};

/// Rows of `rows`, the centre in the middle, combined in doubles and cut after every pair.
void combineInDoubles(const std::vector<const std::uint8_t *> &rows, int from, int to, HalfKernel half,
                      std::uint8_t *out)
{
    const std::size_t radius = half.size() - 1;
    for (int i = from; i < to; ++i)
        out[i] = lowByte(rows[radius][i] * half[0]);
    for (std::size_t k = 1; k <= radius; ++k) {
        const std::uint8_t *above = rows[radius - k];
        const std::uint8_t *below = rows[radius + k];
        for (int i = from; i < to; ++i)
            out[i] = lowByte(out[i] + (below[i] + above[i]) * half[k]);
    }
}

/// What two rows have in common: the parts of at least `minimum` pixels that are the same pixel in both.
void intersect(const std::vector<FlatRun> &a, const std::vector<FlatRun> &b, int minimum,
               std::vector<FlatRun> &common)
{
    common.clear();
    for (std::size_t i = 0, j = 0; i < a.size() && j < b.size();) {
        const FlatRun both{std::max(a[i].from, b[j].from), std::min(a[i].to, b[j].to), a[i].pixel};
        if (a[i].pixel == b[j].pixel && both.to - both.from >= minimum)
            common.push_back(both);
        if (a[i].to < b[j].to)
            ++i;
        else
            ++j;
    }
}

void fillPixels(std::uint8_t *row, int from, int to, std::uint32_t pixel)
{
    std::fill(reinterpret_cast<std::uint32_t *>(row) + from, reinterpret_cast<std::uint32_t *>(row) + to,
              pixel);
}

/// Blurs row by row. A mask is flat nearly everywhere: where a pixel is the same as all others that the
/// kernel reaches, one known pixel takes the place of the sums.
class BlurStrip
{
public:
    BlurStrip(int width, HalfKernel half)
        : m_width(width),
          m_radius(static_cast<int>(half.size()) - 1),
          m_half(half),
          m_flat(half),
          m_factors(blurkernels::wholeFactors(half)),
          m_smooth(width * channels, 2 * m_radius + 1),
          m_flatParts(static_cast<std::size_t>(2 * m_radius + 1)),
          m_rows(static_cast<std::size_t>(2 * m_radius + 1))
    {
    }

    /// Takes in row `y` of the picture.
    void take(const std::uint8_t *pixels, int y)
    {
        std::vector<FlatRun> &parts = flatParts(y);
        blurkernels::findFlatRuns(reinterpret_cast<const std::uint32_t *>(pixels), m_width,
                                  minimumRun + 2 * m_radius, parts);
        for (FlatRun &part : parts) { // within it the kernel meets nothing else
            part.from += m_radius;
            part.to -= m_radius;
        }
        std::uint8_t *smooth = m_smooth.row(y);
        forEachGap(parts, [&](int from, int to) {
            blurkernels::smoothBytes(pixels, from * channels, to * channels, m_half, smooth);
        });
    }

    /// Makes row `y` of the result, once the rows down to y + radius were taken in.
    void combine(int y, std::uint8_t *out)
    {
        m_common = flatParts(y - m_radius);
        for (int i = y - m_radius + 1; i <= y + m_radius && !m_common.empty(); ++i) {
            intersect(m_common, flatParts(i), minimumRun, m_narrowed);
            m_common.swap(m_narrowed);
        }
        for (const FlatRun &part : m_common)
            fillPixels(out, part.from, part.to, m_flat.blurred(part.pixel));
        forEachGap(m_common, [&](int from, int to) { combineGap(y, from, to, out); });
    }

private:
    /// Shorter flat parts are not worth the trouble.
    static constexpr int minimumRun = 32;

    std::vector<FlatRun> &flatParts(int y)
    {
        return m_flatParts[static_cast<std::size_t>(y) % m_flatParts.size()];
    }

    /// Calls `work(from, to)` for what lies between the parts, without the border band.
    template <typename Work> void forEachGap(const std::vector<FlatRun> &parts, Work work) const
    {
        int from = m_radius;
        for (const FlatRun &part : parts) {
            if (from < part.from)
                work(from, part.from);
            from = part.to;
        }
        if (from < m_width - m_radius)
            work(from, m_width - m_radius);
    }

    void combineGap(int y, int from, int to, std::uint8_t *out)
    {
        std::size_t place = 0;
        for (int k = -m_radius; k <= m_radius; ++k) {
            fillFlatParts(y + k, from, to);
            m_rows[place++] = m_smooth.row(y + k);
        }
        if (m_factors)
            blurkernels::combineBytes(m_rows, from * channels, to * channels, *m_factors, out);
        else
            combineInDoubles(m_rows, from * channels, to * channels, m_half, out);
    }

    /// Smoothed rows have their flat parts left out; now they are needed.
    void fillFlatParts(int y, int from, int to)
    {
        for (const FlatRun &part : flatParts(y))
            if (part.from < to && part.to > from)
                fillPixels(m_smooth.row(y), std::max(part.from, from), std::min(part.to, to),
                           m_flat.smooth(part.pixel));
    }

    int m_width;
    int m_radius;
    HalfKernel m_half;
    FlatPixels m_flat;
    std::optional<std::vector<blurkernels::Factor>> m_factors;
    RowRing<std::uint8_t> m_smooth;
    std::vector<std::vector<FlatRun>> m_flatParts; ///< flat as far as the kernel reaches along the row
    std::vector<FlatRun> m_common;
    std::vector<FlatRun> m_narrowed;
    std::vector<const std::uint8_t *> m_rows;
};

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

/// An even size counts as the next odd one.
int radiusOf(int size)
{
    return std::max(size, 0) / 2;
}

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
    const int radius = radiusOf(size);
    const Progress report(progress, height);
    if (width <= 2LL * radius || height <= 2LL * radius) {
        report.rowDone(height - 1, 0);
        return;
    }

    const std::vector<double> half = gaussianHalfKernel(2 * radius + 1, sigma);
    BlurStrip strip(width, half);
    for (int y = 0; y < height; ++y) {
        strip.take(src.constScanLine(y), y);
        const int ready = y - radius;
        if (ready < radius) {
            report.rowDone(y, 0);
            continue;
        }
        strip.combine(ready, dst.scanLine(ready));
        report.rowDone(ready, Progress::passShare);
    }
}

QImage roomForBlur(const QImage &src, int size)
{
    QImage room = makeLargePicture(src.size(), src.format());
    if (room.isNull())
        return room;
    const int width = src.width();
    const int band = std::min(radiusOf(size), width);
    for (int y = 0; y < src.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(src.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(room.scanLine(y));
        const bool between = y >= band && y < src.height() - band && width > 2 * band;
        std::copy_n(from, between ? band : width, to);
        if (between)
            std::copy_n(from + width - band, band, to + width - band);
    }
    return room;
}
