// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershedMany.h"

#include "segmentation/Flooding.h"

#include <cassert>

namespace {

template <typename Mark>
int floodMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
              const unsigned char *edges, QProgressBar *progress)
{
    flooding::Flooding<Mark> picture(image, edges, flooding::EdgeCost::highest);
    for (std::size_t k = 0; k < seeds.size(); ++k)
        picture.seed(seeds[k], k + 1);
    if (!picture.run(progress))
        return -1;

    result.resize(result.size() + static_cast<qsizetype>(seeds.size()));
    const std::vector<std::size_t> sizes = picture.marks().regionSizes(seeds.size());
    std::vector<int *> next(seeds.size(), nullptr);
    for (std::size_t k = 1; k <= seeds.size() && static_cast<qsizetype>(k) < result.size(); ++k) {
        QList<int> &pixels = result[static_cast<qsizetype>(k)];
        const qsizetype before = pixels.size();
        pixels.resize(before + static_cast<qsizetype>(sizes[k - 1]));
        next[k - 1] = pixels.data() + before;
    }
    picture.marks().forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t region) {
        int *&pixel = next[region - 1];
        if (pixel != nullptr)
            for (std::size_t i = begin; i < end; ++i)
                *pixel++ = static_cast<int>(i);
    });
    return static_cast<int>(seeds.size());
}

} // namespace

int FrWatershedMany(QImage *image, std::vector<std::vector<int>> seeds, QList<QList<int>> &result,
                    unsigned char *edges, QProgressBar *progress)
{
    assert(!result.isEmpty());
    if (seeds.empty() || image->isNull())
        return -1;
    // Few regions, the usual case, fit into marks of one byte.
    if (seeds.size() <= flooding::mostRegions<std::uint8_t>)
        return floodMany<std::uint8_t>(*image, seeds, result, edges, progress);
    return floodMany<std::uint32_t>(*image, seeds, result, edges, progress);
}
