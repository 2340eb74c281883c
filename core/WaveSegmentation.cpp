// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/WaveSegmentation.h"

#include "core/Checks.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ornevo {

namespace {

class WaveGrower
{
public:
    WaveGrower(const PictureView &picture, int threshold)
        : m_picture(picture),
          m_width(picture.width),
          m_height(picture.height),
          m_threshold(threshold),
          m_taken(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    {
    }

    [[nodiscard]] bool isTaken(int index) const { return m_taken[static_cast<std::size_t>(index)] != 0; }

    /// The region that starts at `start`, until the next call. The start itself is not marked taken, and
    /// a neighbour may take it again: promised, see docs/compatibility.md.
    const std::vector<int> &grow(int start)
    {
        m_region.clear();
        m_wave.assign(1, start);
        while (!m_wave.empty()) {
            m_next.clear();
            for (const int index : m_wave)
                visit(index);
            m_wave.swap(m_next);
        }
        return m_region;
    }

private:
    void visit(int index)
    {
        m_region.push_back(index);
        const int y = index / m_width;
        const int x = index - y * m_width;
        const std::uint8_t *const here = m_picture.row(y) + std::ptrdiff_t{4} * x;
        if (x != 0)
            tryStep(here, index - 1, here - 4);
        if (x < m_width - 1)
            tryStep(here, index + 1, here + 4);
        if (index > m_width) // not >=: promised, see docs/compatibility.md
            tryStep(here, index - m_width, here - m_picture.bytesPerRow);
        if (y < m_height - 1)
            tryStep(here, index + m_width, here + m_picture.bytesPerRow);
    }

    void tryStep(const std::uint8_t *here, int neighbour, const std::uint8_t *there)
    {
        if (isTaken(neighbour) || colourStep(here, there) >= m_threshold)
            return;
        m_taken[static_cast<std::size_t>(neighbour)] = 1;
        m_next.push_back(neighbour);
    }

    // Each difference wraps around a byte, so that a step into the brighter is a large one: promised, see
    // docs/compatibility.md.
    static int colourStep(const std::uint8_t *from, const std::uint8_t *to)
    {
        int sum = 0;
        for (int colour = 0; colour < 3; ++colour)
            sum += static_cast<std::uint8_t>(from[colour] - to[colour]);
        return sum;
    }

    PictureView m_picture;
    int m_width;
    int m_height;
    int m_threshold;
    std::vector<std::uint8_t> m_taken;
    std::vector<int> m_region;
    std::vector<int> m_wave;
    std::vector<int> m_next;
};

} // namespace

void segmentWaves(const PictureView &picture, int threshold, const RegionVisitor &region,
                  const ProgressCallback &progress)
{
    checks::picture(picture, "picture");
    checks::indexable(picture.width, picture.height, "picture");
    if (!region)
        checks::fail("region", "is empty");
    WaveGrower grower(picture, threshold);
    for (int y = 0; y < picture.height; ++y) {
        const int first = y * picture.width;
        for (int index = first; index < first + picture.width; ++index)
            if (!grower.isTaken(index))
                region(grower.grow(index));
        if (progress)
            progress(static_cast<int>(std::int64_t{y} * 100 / picture.height));
    }
}

void labelWaves(const PictureView &picture, int threshold, std::int32_t *labels,
                const ProgressCallback &progress)
{
    checks::picture(picture, "picture");
    checks::words(WordPlaneView<std::int32_t>{labels, picture.width, picture.height, picture.width},
                  "labels");
    std::fill_n(labels, static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height),
                0);
    std::int32_t label = 0;
    const auto paint = [&](const PixelIndices &pixels) {
        ++label;
        for (const int index : pixels)
            if (labels[index] == 0)
                labels[index] = label;
    };
    segmentWaves(picture, threshold, paint, progress);
}

} // namespace ornevo
