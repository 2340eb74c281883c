// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershed.h"

#include "segmentation/Flooding.h"

int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress)
{
    constexpr std::size_t keepRegion = 1;
    constexpr std::size_t removeRegion = 2;
    if (keep.isEmpty() || remove.isEmpty() || image->isNull())
        return -1;

    flooding::Flooding<std::uint8_t> picture(*image, edges, flooding::EdgeCost::strength);
    picture.seed(std::as_const(keep), keepRegion);
    picture.seed(std::as_const(remove), removeRegion);
    if (!picture.run(progress))
        return -1;

    const auto kept = static_cast<qsizetype>(picture.marks().regionSizes(2)[keepRegion - 1]);
    result.resize(result.size() + kept);
    int *next = result.data() + (result.size() - kept);
    picture.marks().forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t region) {
        if (region == keepRegion)
            for (std::size_t i = begin; i < end; ++i)
                *next++ = static_cast<int>(i);
    });
    return 0;
}
