// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Watershed.h"

#include "core/Checks.h"
#include "core/Flooding.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

namespace ornevo {

using flooding::EdgeCost;
using flooding::LabelPlane;

class Regions::Labels
{
public:
    using Plane = std::variant<LabelPlane<std::uint8_t>, LabelPlane<std::uint32_t>>;

    Labels(Plane plane, std::size_t regions) : m_plane(std::move(plane)), m_regions(regions) {}

    [[nodiscard]] std::size_t regions() const { return m_regions; }
    [[nodiscard]] std::vector<std::size_t> sizes() const
    {
        return std::visit([this](const auto &plane) { return plane.regionSizes(m_regions); }, m_plane);
    }
    [[nodiscard]] bool hasSize(int width, int height) const
    {
        return std::visit(
            [=](const auto &plane) {
                return plane.width == static_cast<std::size_t>(width) &&
                       plane.height == static_cast<std::size_t>(height);
            },
            m_plane);
    }
    /// Calls visit(begin, end, region) for the runs of pixels of one region, in increasing order.
    template <typename Visit> void forEachPixelRun(Visit visit) const
    {
        std::visit([&](const auto &plane) { plane.forEachPixelRun(visit); }, m_plane);
    }

private:
    Plane m_plane;
    std::size_t m_regions;
};

Regions::Regions() = default;
Regions::Regions(std::unique_ptr<const Labels> labels) : m_labels(std::move(labels)) {}
Regions::Regions(Regions &&other) noexcept = default;
Regions &Regions::operator=(Regions &&other) noexcept = default;
Regions::~Regions() = default;

std::vector<std::size_t> Regions::sizes() const
{
    return flooded() ? m_labels->sizes() : std::vector<std::size_t>();
}

void Regions::listPixels(const std::vector<int *> &destinations) const
{
    if (!flooded())
        return;
    if (destinations.size() != m_labels->regions())
        checks::fail("destinations", "has not one pointer for each region");
    std::vector<int *> next = destinations;
    m_labels->forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t region) {
        int *&pixel = next[region - 1];
        if (pixel == nullptr)
            return;
        for (std::size_t i = begin; i < end; ++i)
            *pixel++ = static_cast<int>(i);
    });
}

void Regions::writeMask(std::size_t region, const MutablePlaneView &mask, std::uint8_t value) const
{
    checks::plane(mask, "mask");
    if (flooded() && !m_labels->hasSize(mask.width, mask.height))
        checks::fail("mask", "has another size than the picture");
    for (int y = 0; y < mask.height && mask.width > 0; ++y)
        std::fill_n(mask.row(y), mask.width, std::uint8_t{0});
    if (!flooded())
        return;
    const auto width = static_cast<std::size_t>(mask.width);
    m_labels->forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t of) {
        if (of == region)
            std::fill_n(mask.row(static_cast<int>(begin / width)) + begin % width, end - begin, value);
    });
}

void Regions::writeLabels(std::int32_t *labels, int width, int height,
                          const std::vector<std::int32_t> &names) const
{
    checks::words(WordPlaneView<std::int32_t>{labels, width, height, width}, "labels");
    if (flooded() && !m_labels->hasSize(width, height))
        checks::fail("labels", "has another size than the picture");
    if (flooded() && !names.empty() && names.size() != m_labels->regions())
        checks::fail("names", "has not one name for each region");
    std::fill_n(labels, static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    if (!flooded())
        return;
    m_labels->forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t region) {
        const std::int32_t name = names.empty() ? static_cast<std::int32_t>(region) : names[region - 1];
        std::fill(labels + begin, labels + end, name);
    });
}

namespace {

void check(const PictureView &picture, const PlaneView &edges)
{
    checks::picture(picture, "picture");
    checks::indexable(picture.width, picture.height, "picture");
    checks::plane(edges, "edges");
    checks::sameSize(edges, picture, "edges");
    // The queues name places, of which a low and wide picture has more than pixels.
    if (flooding::TiledLayout(picture.width, picture.height).size() >
        std::numeric_limits<std::uint32_t>::max())
        checks::fail("picture", "is too wide");
}

template <typename Label>
Regions flood(const PictureView &picture, const PlaneView &edges, const std::vector<PixelIndices> &seeds,
              EdgeCost rule, const ProgressCallback &progress)
{
    flooding::Flooding<Label> flooding(picture, edges, rule);
    for (std::size_t k = 0; k < seeds.size(); ++k)
        flooding.seed(seeds[k], k + 1);
    if (!flooding.run(progress))
        return {};
    return Regions(std::make_unique<const Regions::Labels>(flooding.takeLabels(), seeds.size()));
}

} // namespace

Regions floodTwoRegions(const PictureView &picture, const PlaneView &edges, const PixelIndices &keep,
                        const PixelIndices &remove, const ProgressCallback &progress)
{
    check(picture, edges);
    if (keep.count == 0 || remove.count == 0)
        return {};
    return flood<std::uint8_t>(picture, edges, {keep, remove}, EdgeCost::strength, progress);
}

Regions floodRegions(const PictureView &picture, const PlaneView &edges,
                     const std::vector<PixelIndices> &seeds, const ProgressCallback &progress)
{
    check(picture, edges);
    if (std::all_of(seeds.begin(), seeds.end(), [](const PixelIndices &list) { return list.count == 0; }))
        return {};
    // Few regions, the usual case, fit into labels of one byte.
    if (seeds.size() <= flooding::mostRegions<std::uint8_t>)
        return flood<std::uint8_t>(picture, edges, seeds, EdgeCost::highest, progress);
    return flood<std::uint32_t>(picture, edges, seeds, EdgeCost::highest, progress);
}

} // namespace ornevo
