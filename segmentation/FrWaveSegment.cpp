// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWaveSegment.h"

#include <QImage>
#include <QProgressBar>
#include <QStatusBar>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

class WaveGrower
{
public:
    WaveGrower(const QImage &image, int threshold)
        : m_bits(image.constBits()),
          m_bytesPerLine(image.bytesPerLine()),
          m_width(image.width()),
          m_height(image.height()),
          m_threshold(threshold),
          m_taken(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    {
    }

    [[nodiscard]] bool isTaken(int index) const { return m_taken[static_cast<std::size_t>(index)] != 0; }

    /// The region that starts at `start`. The start itself is not marked taken: a neighbour may take it
    /// again.
    QList<int> grow(int start)
    {
        m_region.clear();
        m_wave.assign(1, start);
        while (!m_wave.empty()) {
            m_next.clear();
            for (const int index : m_wave)
                visit(index);
            m_wave.swap(m_next);
        }
        return {m_region.cbegin(), m_region.cend()};
    }

private:
    void visit(int index)
    {
        m_region.push_back(index);
        const int column = index % m_width;
        if (column != 0)
            tryStep(index, index - 1);
        if (column < m_width - 1)
            tryStep(index, index + 1);
        if (index > m_width) // strictly: the pixel at index width never steps up
            tryStep(index, index - m_width);
        if (index / m_width < m_height - 1)
            tryStep(index, index + m_width);
    }

    void tryStep(int from, int to)
    {
        if (isTaken(to) || colourStep(pixel(from), pixel(to)) >= m_threshold)
            return;
        m_taken[static_cast<std::size_t>(to)] = 1;
        m_next.push_back(to);
    }

    [[nodiscard]] const std::uint8_t *pixel(int index) const
    {
        return m_bits + m_bytesPerLine * (index / m_width) + std::ptrdiff_t{4} * (index % m_width);
    }

    // Each difference wraps around a byte, so that a step into the brighter is a large one.
    static int colourStep(const std::uint8_t *from, const std::uint8_t *to)
    {
        int sum = 0;
        for (int colour = 0; colour < 3; ++colour)
            sum += static_cast<std::uint8_t>(from[colour] - to[colour]);
        return sum;
    }

    const std::uint8_t *m_bits;
    std::ptrdiff_t m_bytesPerLine;
    int m_width;
    int m_height;
    int m_threshold;
    std::vector<std::uint8_t> m_taken;
    std::vector<int> m_region;
    std::vector<int> m_wave;
    std::vector<int> m_next;
};

} // namespace

int FrWaveSegment(QImage *image, QList<QList<int>> &regions, int threshold, QProgressBar *progress,
                  QStatusBar *status)
{
    const int width = image->width();
    const int height = image->height();
    WaveGrower grower(*image, threshold);
    for (int y = 0; y < height; ++y) {
        for (int index = y * width; index < (y + 1) * width; ++index)
            if (!grower.isTaken(index))
                regions.append(grower.grow(index));
        if (progress != nullptr)
            progress->setValue(static_cast<int>(std::int64_t{y} * 100 / height));
        if (status != nullptr)
            status->showMessage("Segmenting image");
    }
    if (status != nullptr)
        status->showMessage("Segmented image");
    return 0;
}

bool IsBlack(unsigned char value)
{
    return value == 0;
}

bool is_white_mw(unsigned char value)
{
    return value == 255;
}
