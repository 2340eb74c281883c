// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/BlurKernels.h"
#include "core/Checks.h"
#include "core/GaussianBlur.h"
#include "core/GaussianWeights.h"
#include "core/RowFilters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

namespace ornevo {

using namespace rowfilters;
using blurkernels::FlatRun;

namespace {

constexpr int mostColumns = 1 << 28; // their bytes are counted in an int

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

/// Rows of `rows`, the centre in the middle, combined in doubles and truncated after every pair.
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

/// Of four bytes each.
void fillPixels(std::uint8_t *row, int from, int to, std::uint32_t pixel)
{
    for (int x = from; x < to; ++x)
        std::memcpy(row + std::ptrdiff_t{4} * x, &pixel, sizeof pixel);
}

/// Blurs row by row. A mask is flat nearly everywhere: where a pixel of four bytes is the same as all others
/// that the kernel reaches, one known pixel takes the place of the sums.
class BlurredRows
{
public:
    BlurredRows(int width, int channels, HalfKernel half)
        : m_width(width),
          m_channels(channels),
          m_radius(static_cast<int>(half.size()) - 1),
          m_half(half),
          m_flat(half),
          m_factors(blurkernels::integerFactors(half)),
          m_smooth(width * m_channels, 2 * m_radius + 1),
          m_flatParts(static_cast<std::size_t>(2 * m_radius + 1)),
          m_rows(static_cast<std::size_t>(2 * m_radius + 1))
    {
    }

    /// Takes in row `y` of the picture.
    void take(const std::uint8_t *pixels, int y)
    {
        std::vector<FlatRun> &parts = flatParts(y);
        if (m_channels == 4)
            blurkernels::findFlatRuns(pixels, m_width, minimumRun + 2 * m_radius, parts);
        for (FlatRun &part : parts) { // within it the kernel meets nothing else
            part.from += m_radius;
            part.to -= m_radius;
        }
        std::uint8_t *smooth = m_smooth.row(y);
        forEachGap(parts, [&](int from, int to) {
            blurkernels::smoothBytes(pixels, from * m_channels, to * m_channels, m_channels, m_half, smooth);
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
            blurkernels::combineBytes(m_rows, from * m_channels, to * m_channels, *m_factors, out);
        else
            combineInDoubles(m_rows, from * m_channels, to * m_channels, m_half, out);
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
    int m_channels;
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

/// The percentages of the two passes that the filter is made of, one after the other: of all rows, then of
/// the `inner` ones between the border bands. Both passes are done in one, so that after each row the next
/// values are due, in proportion.
class TwoPassProgress
{
public:
    TwoPassProgress(const ProgressCallback &callback, int height, int radius, int inner)
        : m_callback(callback), m_height(height), m_radius(radius), m_values(std::int64_t{height} + inner)
    {
    }

    /// After `rows` rows of all.
    void rowsDone(int rows)
    {
        if (!m_callback)
            return;
        for (const std::int64_t due = m_values * rows / m_height; m_told < due; ++m_told)
            m_callback(static_cast<int>(valueAt(m_told)));
    }

private:
    static constexpr int passShare = 45;

    [[nodiscard]] std::int64_t valueAt(std::int64_t i) const
    {
        return i < m_height ? i * passShare / m_height
                            : passShare + (i - m_height + m_radius) * passShare / m_height;
    }

    const ProgressCallback &m_callback;
    int m_height;
    int m_radius;
    std::int64_t m_values;
    std::int64_t m_told = 0;
};

/// An even size counts as the next odd one.
int radiusOf(int size)
{
    return std::max(size, 0) / 2;
}

} // namespace

void blurChannels(const PlaneView &src, const MutablePlaneView &dst, int size, double sigma,
                  const ProgressCallback &progress)
{
    checks::channels(src, "src");
    checks::channels(dst, "dst");
    checks::sameSize(dst, src, "dst");
    if (dst.channels != src.channels)
        checks::fail("dst", "has another number of channels");
    if (src.width > mostColumns)
        checks::fail("src", "is too wide");
    if (src.width == 0 || src.height == 0)
        return;

    const int radius = radiusOf(size);
    const bool hasInner = src.width > 2LL * radius && src.height > 2LL * radius;
    TwoPassProgress report(progress, src.height, radius, hasInner ? src.height - 2 * radius : 0);
    if (!hasInner) {
        report.rowsDone(src.height);
        return;
    }
    const std::vector<double> half = gaussianHalfKernel(2 * radius + 1, sigma);
    BlurredRows rows(src.width, src.channels, half);
    for (int y = 0; y < src.height; ++y) {
        rows.take(src.row(y), y);
        if (const int ready = y - radius; ready >= radius)
            rows.combine(ready, dst.row(ready));
        report.rowsDone(y + 1);
    }
}

void blurFourChannels(const PictureView &src, const MutablePictureView &dst, int size, double sigma,
                      const ProgressCallback &progress)
{
    constexpr int channels = 4;
    blurChannels({src.pixels, src.width, src.height, src.bytesPerRow, channels},
                 {dst.pixels, dst.width, dst.height, dst.bytesPerRow, channels}, size, sigma, progress);
}

} // namespace ornevo
