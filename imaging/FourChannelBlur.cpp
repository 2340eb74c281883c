// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/FourChannelBlur.h"

#include "imaging/BlurKernels.h"
#include "imaging/GaussianWeights.h"
#include "imaging/RowFilters.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

using namespace rowfilters;
using blurkernels::Block;
using blurkernels::blockPixels;

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

/// Blurs row by row. A mask is flat nearly everywhere: the row is looked at in blocks, and a block that is
/// one pixel with all around it, as far as the kernel reaches, takes the place of the sums with one known
/// pixel.
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
          m_filled(static_cast<int>(blockCount()), 2 * m_radius + 1),
          m_blocks(static_cast<std::size_t>(width / blockPixels)),
          m_runs(blockCount()),
          m_rows(static_cast<std::size_t>(2 * m_radius + 1))
    {
    }

    /// Takes in row `y` of the picture.
    void take(const std::uint8_t *pixels, int y)
    {
        blurkernels::findFlatBlocks(reinterpret_cast<const std::uint32_t *>(pixels), m_blocks);
        std::uint8_t *smooth = m_smooth.row(y);
        Filled *filled = m_filled.row(y);
        std::size_t rough = 0; // first of the blocks not yet smoothed
        for (std::size_t i = 0; i < blockCount(); ++i) {
            if (!isFlatAround(i)) {
                m_runs[i].rows = 0;
                filled[i].known = false;
                continue;
            }
            smoothBlocks(pixels, rough, i, smooth);
            rough = i + 1;
            extendRun(m_runs[i], m_blocks[i].word);
            fillSmooth(filled[i], m_blocks[i].word, smooth + i * blockBytes);
        }
        smoothBlocks(pixels, rough, blockCount(), smooth);
    }

    /// Makes row `y` of the result, once the rows down to y + radius were taken in.
    void combine(int y, std::uint8_t *out)
    {
        for (int k = -m_radius; k <= m_radius; ++k)
            m_rows[static_cast<std::size_t>(k + m_radius)] = m_smooth.row(y + k);
        std::size_t rough = 0;
        for (std::size_t i = 0; i < blockCount(); ++i) {
            if (m_runs[i].rows < 2 * m_radius + 1)
                continue;
            combineBlocks(rough, i, out);
            rough = i + 1;
            std::uint32_t pixels[blockPixels];
            std::fill_n(pixels, blockPixels, m_runs[i].blurred);
            std::memcpy(out + i * blockBytes, pixels, blockBytes);
        }
        combineBlocks(rough, blockCount(), out);
    }

private:
    static constexpr std::size_t blockBytes = channels * blockPixels;

    /// A block of rows that are all the same pixel, and so is what lies beside them.
    struct Run
    {
        std::uint32_t word = 0;
        std::uint32_t blurred = 0;
        int rows = 0;
    };
    /// What a block of a smoothed row holds, if it is known to be all one pixel.
    struct Filled
    {
        std::uint32_t word = 0;
        bool known = false;
    };

    /// With the part of one at the right border.
    std::size_t blockCount() const
    {
        return static_cast<std::size_t>((m_width + blockPixels - 1) / blockPixels);
    }

    /// The blocks at the borders never are: part of them stays as it was.
    bool isFlatAround(std::size_t i) const
    {
        if (i == 0 || i + 1 >= m_blocks.size() || m_radius > blockPixels)
            return false;
        const Block &left = m_blocks[i - 1];
        const Block &right = m_blocks[i + 1];
        const Block &here = m_blocks[i];
        return left.flat && here.flat && right.flat && left.word == here.word && right.word == here.word;
    }

    void extendRun(Run &run, std::uint32_t word)
    {
        if (run.rows > 0 && run.word == word) {
            run.rows = std::min(run.rows + 1, 2 * m_radius + 1);
            return;
        }
        run = {word, m_flat.blurred(word), 1};
    }

    // In the middle of a flat area the row that made room held the same.
    void fillSmooth(Filled &filled, std::uint32_t word, std::uint8_t *to)
    {
        if (filled.known && filled.word == word)
            return;
        filled = {word, true};
        const std::uint32_t smooth = m_flat.smooth(word);
        for (std::size_t i = 0; i < blockBytes; i += sizeof smooth)
            std::memcpy(to + i, &smooth, sizeof smooth);
    }

    struct Bytes
    {
        int from;
        int to;
    };
    /// The blocks `from` .. `to` - 1 without the border band.
    Bytes innerBytes(std::size_t from, std::size_t to) const
    {
        const int left = std::max(static_cast<int>(from) * blockPixels, m_radius);
        const int right = std::min(static_cast<int>(to) * blockPixels, m_width - m_radius);
        return {left * channels, right * channels};
    }

    void smoothBlocks(const std::uint8_t *pixels, std::size_t from, std::size_t to,
                      std::uint8_t *smooth) const
    {
        const Bytes bytes = innerBytes(from, to);
        if (from < to && bytes.from < bytes.to)
            blurkernels::smoothBytes(pixels, bytes.from, bytes.to, m_half, smooth);
    }

    void combineBlocks(std::size_t from, std::size_t to, std::uint8_t *out) const
    {
        const Bytes bytes = innerBytes(from, to);
        if (from >= to || bytes.from >= bytes.to)
            return;
        if (m_factors)
            blurkernels::combineBytes(m_rows, bytes.from, bytes.to, *m_factors, out);
        else
            combineInDoubles(m_rows, bytes.from, bytes.to, m_half, out);
    }

    int m_width;
    int m_radius;
    HalfKernel m_half;
    FlatPixels m_flat;
    std::optional<std::vector<blurkernels::Factor>> m_factors;
    RowRing<std::uint8_t> m_smooth;
    RowRing<Filled> m_filled;
    std::vector<Block> m_blocks;
    std::vector<Run> m_runs;
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

bool canBlur(const QImage &src, const QImage &dst)
{
    return !src.isNull() && src.size() == dst.size() && src.depth() == 32 && dst.depth() == 32;
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
