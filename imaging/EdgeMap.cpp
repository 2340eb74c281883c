// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeMap.h"

#include "imaging/GaussianWeights.h"
#include "imaging/RowFilters.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

using namespace rowfilters;

namespace {

constexpr int taps = 7;
constexpr int radius = taps / 2;
constexpr double sigma = 1.4;

/// One colour plane on its way to Sobel magnitudes. Rows go in from the top; only as many are kept as the
/// smoothing and the derivative reach, so that no plane of the picture's size is ever made.
class ChannelGradient
{
public:
    ChannelGradient(int width, int height, int byteInPixel)
        : m_width(width),
          m_height(height),
          m_byte(byteInPixel),
          m_half(gaussianHalfKernel(taps, sigma)),
          m_plane(width, taps),
          m_smooth(width, taps),
          m_blurred(width, 3)
    {
    }

    /// Takes in row `y` of the picture.
    void take(const std::uint8_t *pixels, int y)
    {
        std::uint8_t *plane = m_plane.row(y);
        for (int x = 0; x < m_width; ++x)
            plane[x] = pixels[4 * x + m_byte];
        if (m_width > 2 * radius)
            smoothRow(plane, m_width, m_half, m_smooth.row(y));
    }

    /// Makes the blurred row `y`, once the rows down to y + radius, as far as they exist, were taken in.
    void blur(int y)
    {
        std::uint8_t *blurred = m_blurred.row(y);
        std::memcpy(blurred, m_plane.row(y), static_cast<std::size_t>(m_width)); // the border band stays
        if (y >= radius && y < m_height - radius)
            cutAtEachTap(m_smooth, y, m_half, radius, m_width - radius, blurred);
    }

    /// Magnitudes of row `y`, once the blurred rows y - 1 to y + 1 were made.
    void magnitudes(int y, std::uint8_t *out)
    {
        sobelMagnitudeRow(m_blurred.row(y - 1), m_blurred.row(y), m_blurred.row(y + 1), m_width, out);
    }

private:
    int m_width;
    int m_height;
    int m_byte;
    std::vector<double> m_half;
    RowRing<std::uint8_t> m_plane;
    RowRing<double> m_smooth;
    RowRing<std::uint8_t> m_blurred;
};

struct EdgeStatistics
{
    int largest = 0;
    std::uint64_t sum = 0;
};

class EdgeStrip
{
public:
    explicit EdgeStrip(const QImage &picture)
        : m_picture(picture),
          m_width(picture.width()),
          m_height(picture.height()),
          m_channels{ChannelGradient(m_width, m_height, 0), ChannelGradient(m_width, m_height, 1),
                     ChannelGradient(m_width, m_height, 2)},
          m_magnitudes(3 * static_cast<std::size_t>(m_width))
    {
    }

    /// Averaged magnitudes of row `y`; rows are asked for from the top, each once.
    void row(int y, std::uint8_t *out)
    {
        const bool frame = y == 0 || y == m_height - 1;
        if (frame) {
            std::memset(out, 0, static_cast<std::size_t>(m_width));
            return;
        }
        makeBlurredUpTo(y + 1);
        std::uint8_t *magnitudes = m_magnitudes.data();
        for (ChannelGradient &channel : m_channels) {
            channel.magnitudes(y, magnitudes);
            magnitudes += m_width;
        }
        const std::uint8_t *blue = m_magnitudes.data();
        for (int x = 0; x < m_width; ++x)
            out[x] = static_cast<std::uint8_t>((blue[x] + blue[x + m_width] + blue[x + 2 * m_width]) / 3);
    }

private:
    void makeBlurredUpTo(int last)
    {
        for (; m_nextBlurred <= last; ++m_nextBlurred) {
            const int needed = std::min(m_nextBlurred + radius, m_height - 1);
            for (; m_nextTaken <= needed; ++m_nextTaken)
                for (ChannelGradient &channel : m_channels)
                    channel.take(m_picture.constScanLine(m_nextTaken), m_nextTaken);
            for (ChannelGradient &channel : m_channels)
                channel.blur(m_nextBlurred);
        }
    }

    const QImage &m_picture;
    int m_width;
    int m_height;
    std::array<ChannelGradient, 3> m_channels;
    std::vector<std::uint8_t> m_magnitudes;
    int m_nextTaken = 0;
    int m_nextBlurred = 0;
};

EdgeStatistics averageGradients(const QImage &picture, std::uint8_t *edges)
{
    EdgeStatistics statistics;
    EdgeStrip strip(picture);
    for (int y = 0; y < picture.height(); ++y) {
        std::uint8_t *row = edges + static_cast<std::ptrdiff_t>(y) * picture.width();
        strip.row(y, row);
        std::uint32_t rowSum = 0;
        int rowLargest = 0;
        for (int x = 0; x < picture.width(); ++x) {
            rowSum += row[x];
            rowLargest = std::max<int>(rowLargest, row[x]);
        }
        statistics.sum += rowSum;
        statistics.largest = std::max(statistics.largest, rowLargest);
    }
    return statistics;
}

} // namespace

void computeEdgeMap(const QImage &picture, std::uint8_t *edges)
{
    const auto pixels =
        static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
    if (pixels == 0)
        return;
    const EdgeStatistics statistics = averageGradients(picture, edges);
    const auto mean = static_cast<int>(statistics.sum / pixels);
    const int lift = 255 - statistics.largest;
    for (std::size_t i = 0; i < pixels; ++i)
        edges[i] = edges[i] < mean ? std::uint8_t{0} : static_cast<std::uint8_t>(edges[i] + lift);
}
