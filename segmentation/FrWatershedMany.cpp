// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershedMany.h"

#include "segmentation/Flooding.h"

#include <cassert>

namespace {

template <typename Word>
int floodMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
              const unsigned char *edges, QProgressBar *progress)
{
    flooding::Flooding<Word> picture(image, edges, flooding::EdgeCost::highest);
    for (std::size_t k = 0; k < seeds.size(); ++k)
        picture.seed(seeds[k], static_cast<Word>(k + 1));
    if (!picture.run(progress))
        return -1;

    const std::vector<std::size_t> sizes = picture.sizes(seeds.size());
    result.resize(result.size() + static_cast<qsizetype>(seeds.size()));
    for (std::size_t k = 1; k <= seeds.size() && static_cast<qsizetype>(k) < result.size(); ++k) {
        QList<int> &pixels = result[static_cast<qsizetype>(k)];
        pixels.reserve(pixels.size() + static_cast<qsizetype>(sizes[k - 1]));
    }
    picture.forEachLabelled([&](int index, Word region) {
        const auto position = static_cast<qsizetype>(region);
        if (position < result.size())
            result[position].append(index);
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
    // Words of 32 bits leave eight for the label; more regions than these can tell apart take wider words.
    if (seeds.size() <= flooding::Flooding<std::uint32_t>::mostRegions)
        return floodMany<std::uint32_t>(*image, seeds, result, edges, progress);
    return floodMany<std::uint64_t>(*image, seeds, result, edges, progress);
}
