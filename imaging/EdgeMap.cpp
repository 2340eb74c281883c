// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeMap.h"

#include "imaging/EdgeKernels.h"
#include "imaging/RowFilters.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <vector>

using namespace edgekernels;
using rowfilters::RowRing;

namespace {

constexpr double sigma = 1.4;

/// The rows of one colour that the smoothing and the derivative reach.
struct Channel
{
    explicit Channel(int width) : levels(width, rows), smooth(width, rows), blurred(width, 3) {}
    RowRing<std::int16_t> levels;
    RowRing<float> smooth;
    RowRing<std::int16_t> blurred;
};

/// Gradients of the picture, row by row from the top. Only as many rows are kept as the filters reach, so
/// that no plane of the picture's size is ever made. (Narrower strips, whose rows would fit into the
/// innermost cache, were slower than whole rows.)
class EdgeStrip
{
public:
    explicit EdgeStrip(const QImage &picture)
        : m_picture(picture),
          m_width(picture.width()),
          m_height(picture.height()),
          m_weights(sigma),
          m_channels{Channel(m_width + rowPadding), Channel(m_width + rowPadding),
                     Channel(m_width + rowPadding)},
          m_averages(static_cast<std::size_t>(m_width + rowPadding))
    {
    }

    /// Averaged gradient magnitudes of row `y`, neither the first nor the last; each row is asked for once,
    /// in order.
    const std::uint8_t *row(int y)
    {
        for (; m_nextBlurred <= y + 1; ++m_nextBlurred) {
            const int needed = std::min(m_nextBlurred + radius, m_height - 1);
            for (; m_nextTaken <= needed; ++m_nextTaken)
                take(m_nextTaken);
            for (Channel &channel : m_channels)
                blur(channel, m_nextBlurred);
        }
        std::array<RowTriple, 3> triples;
        for (std::size_t i = 0; i < triples.size(); ++i) {
            RowRing<std::int16_t> &blurred = m_channels[i].blurred;
            triples[i] = {blurred.row(y - 1), blurred.row(y), blurred.row(y + 1)};
        }
        gradientRow(triples, m_width, m_averages.data());
        return m_averages.data();
    }

private:
    void take(int y)
    {
        splitRow(m_picture.constScanLine(y), m_width,
                 {m_channels[0].levels.row(y), m_channels[1].levels.row(y), m_channels[2].levels.row(y)});
        for (Channel &channel : m_channels)
            smoothRow(channel.levels.row(y), m_width, m_weights, channel.smooth.row(y));
    }

    void blur(Channel &channel, int y)
    {
        const std::int16_t *unchanged = channel.levels.row(y);
        std::int16_t *blurred = channel.blurred.row(y);
        const bool inner = y >= radius && y < m_height - radius && m_width > 2 * radius;
        if (!inner) {
            std::copy_n(unchanged, m_width, blurred);
            return;
        }
        Neighbourhood from;
        for (int i = 0; i < rows; ++i) {
            from.levels[static_cast<std::size_t>(i)] = channel.levels.row(y - radius + i);
            from.smooth[static_cast<std::size_t>(i)] = channel.smooth.row(y - radius + i);
        }
        cutRow(from, m_width, m_weights, blurred);
        std::copy_n(unchanged, radius, blurred); // the border band stays
        std::copy_n(unchanged + m_width - radius, radius, blurred + m_width - radius);
    }

    const QImage &m_picture;
    int m_width;
    int m_height;
    Weights m_weights;
    std::array<Channel, 3> m_channels;
    std::vector<std::uint8_t> m_averages;
    int m_nextTaken = 0;
    int m_nextBlurred = 0;
};

RowStatistics averageGradients(const QImage &picture, std::uint8_t *edges)
{
    const int width = picture.width();
    RowStatistics all;
    EdgeStrip strip(picture);
    for (int y = 0; y < picture.height(); ++y) {
        std::uint8_t *out = edges + static_cast<std::ptrdiff_t>(y) * width;
        if (y == 0 || y == picture.height() - 1) {
            std::memset(out, 0, static_cast<std::size_t>(width));
            continue;
        }
        std::memcpy(out, strip.row(y), static_cast<std::size_t>(width));
        all.add(statisticsOf(out, width));
    }
    return all;
}

} // namespace

void computeEdgeMap(const QImage &picture, std::uint8_t *edges)
{
    const auto pixels =
        static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
    if (pixels == 0)
        return;
    const RowStatistics all = averageGradients(picture, edges);
    const auto mean = static_cast<std::uint8_t>(all.sum / pixels);
    liftAbove(edges, pixels, mean, static_cast<std::uint8_t>(255 - all.largest));
}
