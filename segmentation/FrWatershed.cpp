// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWatershed.h"

#include "core/Watershed.h"
#include "imaging/Views.h"
#include "segmentation/ProgressBar.h"

#include <QImage>

#include <utility>

int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress)
{
    if (keep.isEmpty() || remove.isEmpty())
        return -1;
    const ornevo::Regions regions =
        ornevo::floodTwoRegions(imaging::viewOf(*image), {edges, image->width(), image->height()},
                                std::as_const(keep), std::as_const(remove), segmentation::showOn(progress));
    if (!regions.flooded())
        return -1;
    const qsizetype before = result.size();
    result.resize(before + static_cast<qsizetype>(regions.sizes().front()));
    regions.listPixels({result.data() + before, nullptr});
    return 0;
}
