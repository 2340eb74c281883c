// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/ImageReferences.h"

#include "tests/reference/TestPictures.h"

#include <cstddef>
#include <optional>

namespace reference {

using testpictures::toPicture;

namespace {

void copyPixels(const Picture &picture, QImage &image)
{
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            reinterpret_cast<QRgb *>(image.scanLine(y))[x] = picture.at(x, y);
}

} // namespace

void fourChannelBlur(const QImage &src, QImage &dst, int size, double sigma)
{
    Picture blurred = toPicture(dst);
    fourChannelBlur(toPicture(src), blurred, size, sigma);
    copyPixels(blurred, dst);
}

std::vector<std::uint8_t> edgeMap(const QImage &picture)
{
    Picture colours(picture.width(), picture.height());
    for (int y = 0; y < colours.height; ++y)
        for (int x = 0; x < colours.width; ++x)
            colours.at(x, y) = picture.pixel(x, y); // of any format
    return edgeMap(colours);
}

int watershed(const QImage &image, const QList<int> &keep, const QList<int> &remove, QList<int> &result,
              const std::vector<std::uint8_t> &edges)
{
    if (keep.isEmpty() || remove.isEmpty())
        return -1;
    const auto labels =
        watershed(toPicture(image), {{keep.begin(), keep.end()}, {remove.begin(), remove.end()}}, edges,
                  EdgeCost::strength);
    if (!labels)
        return -1;
    for (std::size_t i = 0; i < labels->size(); ++i)
        if (labels->at(i) == 1)
            result.append(static_cast<int>(i));
    return 0;
}

int watershedMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
                  const std::vector<std::uint8_t> &edges)
{
    if (seeds.empty())
        return -1;
    const auto labels = watershed(toPicture(image), seeds, edges, EdgeCost::highest);
    if (!labels)
        return -1;
    result.resize(result.size() + static_cast<qsizetype>(seeds.size()));
    for (std::size_t i = 0; i < labels->size(); ++i) {
        const int k = labels->at(i);
        // A result that came in without its first list has no place for the
        // last region.
        if (k > 0 && k < result.size())
            result[k].append(static_cast<int>(i));
    }
    return static_cast<int>(seeds.size());
}

int waveSegment(const QImage &picture, QList<QList<int>> &regions, int threshold)
{
    for (const std::vector<int> &region : waveSegment(toPicture(picture), threshold))
        regions.append(QList<int>(region.begin(), region.end()));
    return 0;
}

void feather(QImage &picture, const QBitmap &mask, int count)
{
    featherWithMaskImage(picture, mask.toImage().convertToFormat(QImage::Format_ARGB32), count);
}

void featherWithMaskImage(QImage &picture, const QImage &mask, int count)
{
    Plane set(mask.width(), mask.height());
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            set.at(x, y) = mask.pixel(x, y) == 0xff000000U;
    Picture feathered = toPicture(picture);
    feather(feathered, set, count);
    copyPixels(feathered, picture);
}

} // namespace reference
