// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The plain versions of the algorithms as a Python module, which the tests compare the real one with.
// Pictures are uint8 (H, W, 4), blue first, without gaps; nothing is checked beyond that.

#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/FeatheringReference.h"
#include "tests/reference/GaussianBlurReference.h"
#include "tests/reference/WatershedReference.h"
#include "tests/reference/WaveSegmentReference.h"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <QImage>

#include <algorithm>
#include <cstring>

namespace py = pybind11;

namespace {

using Bytes = py::array_t<std::uint8_t, py::array::c_style>;
using Indices = std::vector<int>;

QImage imageOf(const Bytes &picture)
{
    QImage image(static_cast<int>(picture.shape(1)), static_cast<int>(picture.shape(0)),
                 QImage::Format_ARGB32);
    const auto rowBytes = static_cast<std::size_t>(4 * image.width());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), picture.data(y, 0, 0), rowBytes);
    return image;
}

Bytes arrayOf(const QImage &image)
{
    Bytes picture({image.height(), image.width(), 4});
    const auto rowBytes = static_cast<std::size_t>(4 * image.width());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(picture.mutable_data(y, 0, 0), image.constScanLine(y), rowBytes);
    return picture;
}

std::vector<std::uint8_t> planeOf(const Bytes &plane)
{
    return {plane.data(), plane.data() + plane.size()};
}

QList<int> listOf(const Indices &indices)
{
    return {indices.begin(), indices.end()};
}

std::vector<Indices> vectorsOf(const QList<QList<int>> &lists)
{
    std::vector<Indices> vectors;
    for (const QList<int> &list : lists)
        vectors.emplace_back(list.begin(), list.end());
    return vectors;
}

Bytes edgeMap(const Bytes &picture)
{
    const std::vector<std::uint8_t> edges = reference::edgeMap(imageOf(picture));
    Bytes plane({picture.shape(0), picture.shape(1)});
    std::copy(edges.begin(), edges.end(), plane.mutable_data());
    return plane;
}

Indices watershed(const Bytes &picture, const Indices &keep, const Indices &remove, const Bytes &edges)
{
    QList<int> result;
    reference::watershed(imageOf(picture), listOf(keep), listOf(remove), result, planeOf(edges));
    return {result.begin(), result.end()};
}

std::vector<Indices> watershedMany(const Bytes &picture, const std::vector<Indices> &seeds,
                                   const Bytes &edges)
{
    QList<QList<int>> result{{}};
    reference::watershedMany(imageOf(picture), seeds, result, planeOf(edges));
    return vectorsOf(result.mid(1));
}

std::vector<Indices> waveSegment(const Bytes &picture, int threshold)
{
    QList<QList<int>> regions;
    reference::waveSegment(imageOf(picture), regions, threshold);
    return vectorsOf(regions);
}

Bytes blur(const Bytes &picture, int size, double sigma)
{
    QImage blurred = imageOf(picture);
    reference::fourChannelBlur(imageOf(picture), blurred, size, sigma);
    return arrayOf(blurred);
}

/// `mask` is a picture, too: black, opaque pixels are set, white ones are clear.
Bytes feather(const Bytes &picture, const Bytes &mask, int rings)
{
    QImage feathered = imageOf(picture);
    reference::featherWithMaskImage(feathered, imageOf(mask), rings);
    return arrayOf(feathered);
}

} // namespace

PYBIND11_MODULE(ornevo_reference, module)
{
    module.def("edge_map", &edgeMap);
    module.def("watershed", &watershed);
    module.def("watershed_many", &watershedMany);
    module.def("wave_segment", &waveSegment);
    module.def("blur", &blur);
    module.def("feather", &feather);
}
