// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/Pipeline.h"

#include "core/Watershed.h"
#include "cutout/IndexPicture.h"
#include "imaging/EdgeMap.h"
#include "imaging/Views.h"

#include <algorithm>
#include <cstddef>
#include <new>

namespace cutout {

namespace {

constexpr QRgb black = qRgb(0, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb green = qRgb(0, 255, 0);

std::size_t pixelsOf(const QImage &picture)
{
    return static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
}

} // namespace

QImage readPhoto(const QString &path)
{
    return readPicture(path).convertToFormat(QImage::Format_RGB32);
}

EdgeMap newEdgeMap(const QImage &photo)
{
    return ornevo::makeLargeArray<std::uint8_t>(pixelsOf(photo));
}

void findEdges(const QImage &photo, EdgeMap &edges)
{
    try {
        imaging::computeEdgeMap(photo, edges.get());
    } catch (const std::bad_alloc &) {
        std::fill_n(edges.get(), pixelsOf(photo), std::uint8_t{0});
        throw;
    }
}

QList<int> floodObject(const QImage &photo, const EdgeMap &edges, const Seeds &seeds,
                       const ornevo::ProgressCallback &progress)
{
    if (seeds.keep.isEmpty() || seeds.remove.isEmpty())
        return {};
    const ornevo::Regions regions =
        ornevo::floodTwoRegions(imaging::viewOf(photo), {edges.get(), photo.width(), photo.height()},
                                seeds.keep, seeds.remove, progress);
    if (!regions.flooded())
        return {};
    QList<int> object(static_cast<qsizetype>(regions.sizes().front()));
    regions.listPixels({object.data(), nullptr});
    return object;
}

QImage objectOverlay(QSize size, const QList<int> &object)
{
    return paintIndices(size, object, green, white);
}

QImage objectMask(QSize size, const QList<int> &object)
{
    return paintIndices(size, object, black, white);
}

QImage smoothMask(const QImage &mask, int taps, const ornevo::ProgressCallback &progress)
{
    QImage smooth = blurDestination(mask, taps);
    if (smooth.isNull())
        return {};
    try {
        blurFourChannels(mask, smooth, taps, smoothingSigma(taps), progress);
    } catch (const std::bad_alloc &) {
        return {}; // a hard border for a soft one would go unnoticed
    }
    return smooth;
}

QPixmap exportCanvas(QSize size, QRgb colour, const QImage &picture)
{
    return picture.isNull() ? colourCanvas(size, colour) : asPixmap(picture);
}

} // namespace cutout
