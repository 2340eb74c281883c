// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/EdgeMap.h"
#include "core/Watershed.h"
#include "python/Arguments.h"
#include "python/Arrays.h"
#include "python/Errors.h"
#include "python/Functions.h"
#include "python/Picture.h"
#include "python/Progress.h"
#include "python/SeedLists.h"

#include <bit>
#include <cstdint>
#include <new>
#include <optional>

namespace py = pybind11;

namespace ornevo::python {

namespace {

/// The edge map that was handed in, or that of the picture.
class Edges
{
public:
    explicit Edges(const std::optional<ArrayArgument> &given, const Picture &picture)
    {
        if (given) {
            m_given.emplace(given->view);
            return;
        }
        const PictureView &view = picture.view();
        m_computed = makeLargeArray<std::uint8_t>(static_cast<std::size_t>(view.width) *
                                                  static_cast<std::size_t>(view.height));
        if (m_computed == nullptr)
            throw std::bad_alloc();
        const MutablePlaneView out(m_computed.get(), view.width, view.height);
        computeEdgeMap(picture.view(), out);
        m_view = out;
    }

    [[nodiscard]] PlaneView view() const { return m_given ? m_given->view() : m_view; }

private:
    std::optional<Plane> m_given;
    LargeArray<std::uint8_t> m_computed;
    PlaneView m_view;
};

std::optional<ArrayArgument> optionalEdges(py::handle object, const StridedView &picture)
{
    if (object.is_none())
        return std::nullopt;
    return edgesArgument(object, "edges", picture);
}

std::vector<int> seedsOf(const ArrayArgument &mask, const char *name)
{
    std::vector<int> seeds;
    {
        const py::gil_scoped_release released;
        seeds = indicesOfSet(mask.view);
    }
    if (seeds.empty())
        raise(PyExc_ValueError, "%s must have at least one True pixel", name);
    return seeds;
}

IntegerType integerType(const py::dtype &type)
{
    constexpr char swapped = std::endian::native == std::endian::little ? '>' : '<';
    return {static_cast<int>(type.itemsize()), type.kind() == 'i', type.byteorder() == swapped};
}

SeedLists seedListsOf(const ArrayArgument &markers, const char *name)
{
    MarkedPixels marked;
    SeedLists lists;
    {
        const py::gil_scoped_release released;
        marked = markedPixels(markers.view, integerType(markers.type));
        lists = SeedLists(marked);
    }
    if (marked.hasNegative)
        raise(PyExc_ValueError, "%s must not be negative", name);
    if (marked.hasTooLarge)
        raise(PyExc_ValueError, "%s must not be above %d", name, INT32_MAX);
    if (lists.names().empty())
        raise(PyExc_ValueError, "%s must have at least one pixel above 0", name);
    return lists;
}

} // namespace

py::array cutOut(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"cut_out", {"image", "keep", "remove", "edges"}, 3};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    const ArrayArgument keep = maskArgument(arguments[1], "keep", image.view);
    const ArrayArgument remove = maskArgument(arguments[2], "remove", image.view);
    const std::optional<ArrayArgument> edges = optionalEdges(arguments[3], image.view);
    Progress progress(arguments.progress());
    const std::vector<int> keepSeeds = seedsOf(keep, "keep");
    const std::vector<int> removeSeeds = seedsOf(remove, "remove");
    auto mask = newPlane<bool>(image.view);
    const MutablePlaneView out(reinterpret_cast<std::uint8_t *>(mask.mutable_data()), image.view.width,
                               image.view.height);
    {
        const py::gil_scoped_release released;
        const Picture picture = Picture::blueFirst(image.view);
        const Edges relief(edges, picture);
        floodTwoRegions(picture.view(), relief.view(), keepSeeds, removeSeeds, progress.callback())
            .writeMask(1, out);
    }
    progress.finish();
    return mask;
}

py::array watershed(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"watershed", {"image", "markers", "edges"}, 2};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    const ArrayArgument markers = markersArgument(arguments[1], "markers", image.view);
    const std::optional<ArrayArgument> edges = optionalEdges(arguments[2], image.view);
    Progress progress(arguments.progress());
    const SeedLists seeds = seedListsOf(markers, "markers");
    auto labels = newPlane<std::int32_t>(image.view);
    std::int32_t *out = labels.mutable_data();
    {
        const py::gil_scoped_release released;
        const Picture picture = Picture::blueFirst(image.view);
        const Edges relief(edges, picture);
        floodRegions(picture.view(), relief.view(), seeds.lists(), progress.callback())
            .writeLabels(out, image.view.width, image.view.height, seeds.names());
    }
    progress.finish();
    return labels;
}

} // namespace ornevo::python
