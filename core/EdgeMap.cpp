// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/EdgeMap.h"

#include "core/Checks.h"
#include "core/EdgeKernels.h"
#include "core/RowFilters.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <vector>

namespace ornevo {

using namespace edgekernels;
using rowfilters::RowRing;

namespace {

constexpr double sigma = 1.4;
constexpr int mostColumns = 1 << 28; // far enough from the end of int for all that is counted in bytes

/// The rows of one colour that the smoothing and the derivative reach.
struct Channel
{
    explicit Channel(int width) : levels(width, rows + 1), smooth(width, rows + 1), blurred(width, 4) {}
    RowRing<std::int16_t> levels;
    RowRing<float> smooth;
    RowRing<std::int16_t> blurred;
};

/// Gradients of the picture, row by row from the top. Only as many rows are kept as the filters reach, so
/// that no plane of the picture's size is ever made. (Working in columns, whose rows would fit into the
/// innermost cache, was slower than whole rows.)
class GradientRows
{
public:
    explicit GradientRows(const PictureView &picture)
        : m_picture(picture),
          m_width(picture.width),
          m_height(picture.height),
          m_weights(sigma),
          m_channels{Channel(m_width + rowPadding), Channel(m_width + rowPadding),
                     Channel(m_width + rowPadding)},
          m_unused(static_cast<std::size_t>(m_width + rowPadding))
    {
    }

    /// Writes the averaged gradient magnitudes of row `y`, neither the first nor the last; each row is asked
    /// for once, in order. `out` includes the padding.
    void row(int y, std::uint8_t *out)
    {
        while (m_nextBlurred <= y + 1)
            blurNext();
        std::array<RowTriple, 3> triples;
        for (std::size_t i = 0; i < triples.size(); ++i) {
            RowRing<std::int16_t> &blurred = m_channels[i].blurred;
            triples[i] = {blurred.row(y - 1), blurred.row(y), blurred.row(y + 1)};
        }
        gradientRow(triples, m_width, out);
    }

private:
    void take(int y)
    {
        const std::uint8_t *ahead = m_picture.row(std::min(y + 2, m_height - 1));
        splitRow(m_picture.row(y), ahead, m_width,
                 {m_channels[0].levels.row(y), m_channels[1].levels.row(y), m_channels[2].levels.row(y)});
        for (Channel &channel : m_channels)
            smoothRow(channel.levels.row(y), m_width, m_weights, channel.smooth.row(y));
    }

    [[nodiscard]] bool isInner(int y) const
    {
        return y >= radius && y < m_height - radius && m_width > 2 * radius;
    }

    /// Blurs two rows, or a single one at the border.
    void blurNext()
    {
        const int y = m_nextBlurred;
        const bool both = isInner(y) && isInner(y + 1);
        const int last = both ? y + 1 : y;
        for (; m_nextTaken <= std::min(last + radius, m_height - 1); ++m_nextTaken)
            take(m_nextTaken);
        for (Channel &channel : m_channels) {
            if (isInner(y))
                blurInner(channel, y, both ? channel.blurred.row(y + 1) : m_unused.data());
            else
                std::copy_n(channel.levels.row(y), m_width, channel.blurred.row(y));
        }
        m_nextBlurred = last + 1;
    }

    void blurInner(Channel &channel, int y, std::int16_t *next)
    {
        Neighbourhood from;
        for (int i = 0; i <= rows; ++i) {
            const int row =
                std::min(y - radius + i, m_nextTaken - 1); // a single row has no use for the last one
            from.levels[static_cast<std::size_t>(i)] = channel.levels.row(row);
            from.smooth[static_cast<std::size_t>(i)] = channel.smooth.row(row);
        }
        const std::array<std::int16_t *, 2> blurred{channel.blurred.row(y), next};
        truncateRows(from, m_width, m_weights, blurred);
        for (std::size_t i = 0; i < blurred.size(); ++i) { // the border band stays
            const std::int16_t *unchanged = from.levels[i + radius];
            std::copy_n(unchanged, radius, blurred[i]);
            std::copy_n(unchanged + m_width - radius, radius, blurred[i] + m_width - radius);
        }
    }

    PictureView m_picture;
    int m_width;
    int m_height;
    Weights m_weights;
    std::array<Channel, 3> m_channels;
    std::vector<std::int16_t> m_unused; ///< where the second row goes of a single one
    int m_nextTaken = 0;
    int m_nextBlurred = 0;
};

// Longer rows are worked on in tiles of columns: the few dozen of them that are kept at a time would take
// gigabytes of a picture that is nothing but width.
constexpr int longestRow = 1 << 16;
constexpr int tileColumns = 1 << 9;
constexpr int tileOverlap = radius + 1; // as far as the border of a tile shows in its gradients

/// The columns `from` to `to` - 1. Calls rowDone() after each row.
template <typename RowDone>
RowStatistics averageGradients(const PictureView &picture, int from, int to, const MutablePlaneView &edges,
                               RowDone rowDone)
{
    const int left = std::min(from, tileOverlap);
    const int right = std::min(picture.width - to, tileOverlap);
    const int width = to - from;
    const int height = picture.height;
    const PictureView tile(picture.pixels + std::ptrdiff_t{4} * (from - left), left + width + right, height,
                           picture.bytesPerRow);
    RowStatistics all;
    std::optional<GradientRows> gradients;
    if (height > 2) // else all of it is frame
        gradients.emplace(tile);
    std::vector<std::uint8_t> padded(static_cast<std::size_t>(tile.width) + rowPadding);
    const bool whole = tile.width == picture.width && edges.bytesPerRow == width;
    const std::uint8_t *const end = edges.row(height - 1) + to;
    for (int y = 0; y < height; ++y) {
        std::uint8_t *out = edges.row(y) + from;
        if (y == 0 || y == height - 1) {
            std::memset(out, 0, static_cast<std::size_t>(width));
        } else if (whole && end - (out + width) >= rowPadding) {
            gradients->row(y, out); // the padding falls on rows that are yet to come
            all.add(statisticsOf(out, width));
        } else {
            gradients->row(y, padded.data());
            std::memcpy(out, padded.data() + left, static_cast<std::size_t>(width));
            all.add(statisticsOf(out, width));
        }
        rowDone();
    }
    return all;
}

RowStatistics averageGradients(const PictureView &picture, const MutablePlaneView &edges,
                               const ProgressCallback &progress)
{
    // Tiles of one width, so that none is narrower than the kernel.
    const std::int64_t tiles =
        picture.width <= longestRow ? 1 : (std::int64_t{picture.width} + tileColumns - 1) / tileColumns;
    const auto columnOf = [&](std::int64_t tile) { return static_cast<int>(picture.width * tile / tiles); };
    std::int64_t rowsDone = 0;
    const auto rowDone = [&] {
        ++rowsDone;
        if (progress)
            progress(static_cast<int>(rowsDone * 100 / (tiles * picture.height)));
    };
    RowStatistics all;
    for (std::int64_t tile = 0; tile < tiles; ++tile)
        all.add(averageGradients(picture, columnOf(tile), columnOf(tile + 1), edges, rowDone));
    return all;
}

} // namespace

void computeEdgeMap(const PictureView &picture, const MutablePlaneView &edges,
                    const ProgressCallback &progress)
{
    checks::picture(picture, "picture");
    checks::plane(edges, "edges");
    checks::sameSize(edges, picture, "edges");
    if (picture.width == 0 || picture.height == 0)
        return;
    if (picture.width > mostColumns)
        checks::fail("picture", "is too wide");
    const RowStatistics all = averageGradients(picture, edges, progress);
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(picture.width) * static_cast<std::uint64_t>(picture.height);
    const auto mean = static_cast<std::uint8_t>(all.sum / pixels);
    const auto lift = static_cast<std::uint8_t>(255 - all.largest); // promised, see docs/compatibility.md
    if (edges.bytesPerRow == edges.width) {
        liftAbove(edges.bytes, static_cast<std::size_t>(pixels), mean, lift);
        return;
    }
    for (int y = 0; y < edges.height; ++y)
        liftAbove(edges.row(y), static_cast<std::size_t>(edges.width), mean, lift);
}

} // namespace ornevo
