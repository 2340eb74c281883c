// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershed.h"

#include "segmentation/Flooding.h"

int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress)
{
    constexpr std::uint32_t keepRegion = 1;
    constexpr std::uint32_t removeRegion = 2;
    if (keep.isEmpty() || remove.isEmpty() || image->isNull())
        return -1;

    flooding::Flooding<std::uint32_t> picture(*image, edges, flooding::EdgeCost::strength);
    picture.seed(std::as_const(keep), keepRegion);
    picture.seed(std::as_const(remove), removeRegion);
    if (!picture.run(progress))
        return -1;

    result.reserve(result.size() + static_cast<qsizetype>(picture.sizes(2)[0]));
    picture.forEachLabelled([&](int index, std::uint32_t region) {
        if (region == keepRegion)
            result.append(index);
    });
    return 0;
}
