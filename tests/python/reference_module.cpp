// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The plain versions of the algorithms as a Python module, which the tests compare the real one with.
// Pictures are uint8 (H, W, 4), blue first; nothing is checked beyond that.

#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/FeatheringReference.h"
#include "tests/reference/GaussianBlurReference.h"
#include "tests/reference/WatershedReference.h"
#include "tests/reference/WaveSegmentReference.h"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>

namespace py = pybind11;

namespace {

using Bytes = py::array_t<std::uint8_t, py::array::c_style | py::array::forcecast>;
using Labels = py::array_t<std::int32_t>;
using Lists = std::vector<std::vector<int>>;

reference::Picture pictureOf(const Bytes &array)
{
    reference::Picture picture(static_cast<int>(array.shape(1)), static_cast<int>(array.shape(0)));
    for (std::size_t i = 0; i < picture.data.size(); ++i) {
        const std::uint8_t *pixel = array.data() + 4 * i;
        for (int channel = 0; channel < 4; ++channel)
            picture.data[i] |= std::uint32_t{pixel[channel]} << (8 * channel);
    }
    return picture;
}

Bytes arrayOf(const reference::Picture &picture)
{
    Bytes array({picture.height, picture.width, 4});
    std::uint8_t *out = array.mutable_data();
    for (const std::uint32_t pixel : picture.data)
        for (int channel = 0; channel < 4; ++channel)
            *out++ = static_cast<std::uint8_t>(reference::channelOf(pixel, channel));
    return array;
}

std::vector<std::uint8_t> bytesOf(const Bytes &plane)
{
    return {plane.data(), plane.data() + plane.size()};
}

Bytes edgeMap(const Bytes &picture)
{
    const std::vector<std::uint8_t> edges = reference::edgeMap(pictureOf(picture));
    Bytes plane({picture.shape(0), picture.shape(1)});
    std::copy(edges.begin(), edges.end(), plane.mutable_data());
    return plane;
}

/// The label plane, all 0 where nothing could be flooded.
Labels watershed(const Bytes &picture, const Lists &seeds, const Bytes &edges, bool byStrength)
{
    const auto rule = byStrength ? reference::EdgeCost::strength : reference::EdgeCost::highest;
    const auto flooded = reference::watershed(pictureOf(picture), seeds, bytesOf(edges), rule);
    Labels labels({picture.shape(0), picture.shape(1)});
    std::fill_n(labels.mutable_data(), labels.size(), 0);
    if (flooded)
        std::copy(flooded->begin(), flooded->end(), labels.mutable_data());
    return labels;
}

Lists waveSegment(const Bytes &picture, int threshold)
{
    return reference::waveSegment(pictureOf(picture), threshold);
}

Bytes blur(const Bytes &picture, int size, double sigma)
{
    const reference::Picture src = pictureOf(picture);
    reference::Picture blurred = src;
    reference::fourChannelBlur(src, blurred, size, sigma);
    return arrayOf(blurred);
}

Bytes feather(const Bytes &picture, const Bytes &mask, int rings)
{
    reference::Picture feathered = pictureOf(picture);
    reference::Plane set(feathered.width, feathered.height);
    set.data = bytesOf(mask);
    reference::feather(feathered, set, rings);
    return arrayOf(feathered);
}

} // namespace

PYBIND11_MODULE(ornevo_reference, module)
{
    module.def("edge_map", &edgeMap);
    module.def("watershed", &watershed);
    module.def("wave_segment", &waveSegment);
    module.def("blur", &blur);
    module.def("feather", &feather);
}
