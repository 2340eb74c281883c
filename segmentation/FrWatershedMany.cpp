// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershedMany.h"

#include "core/Watershed.h"
#include "imaging/Views.h"
#include "segmentation/ProgressBar.h"

#include <QImage>

#include <cassert>

int FrWatershedMany(QImage *image, std::vector<std::vector<int>> seeds, QList<QList<int>> &result,
                    unsigned char *edges, QProgressBar *progress)
{
    if (seeds.empty())
        return -1;
    assert(!result.isEmpty());
    const ornevo::Regions regions =
        ornevo::floodRegions(imaging::viewOf(*image), {edges, image->width(), image->height()},
                             {seeds.begin(), seeds.end()}, segmentation::showOn(progress));
    if (!regions.flooded())
        return -1;

    const std::vector<std::size_t> sizes = regions.sizes();
    std::vector<int *> destinations(sizes.size(), nullptr);
    // Position 0 stays as it is: promised, see docs/compatibility.md.
    result.resize(result.size() + static_cast<qsizetype>(sizes.size()));
    for (std::size_t k = 1; k <= sizes.size() && static_cast<qsizetype>(k) < result.size(); ++k) {
        QList<int> &pixels = result[static_cast<qsizetype>(k)];
        const qsizetype before = pixels.size();
        pixels.resize(before + static_cast<qsizetype>(sizes[k - 1]));
        destinations[k - 1] = pixels.data() + before;
    }
    regions.listPixels(destinations);
    return static_cast<int>(sizes.size());
}
