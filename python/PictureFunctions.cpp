// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/EdgeMap.h"
#include "core/Feathering.h"
#include "core/GaussianBlur.h"
#include "core/WaveSegmentation.h"
#include "python/Arguments.h"
#include "python/Arrays.h"
#include "python/Functions.h"
#include "python/Picture.h"
#include "python/Progress.h"

namespace py = pybind11;

namespace ornevo::python {

py::array edgeMap(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"edge_map", {"image"}, 1};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    Progress progress(arguments.progress());
    auto edges = newPlane<std::uint8_t>(image.view);
    const MutablePlaneView out(edges.mutable_data(), image.view.width, image.view.height);
    {
        const py::gil_scoped_release released;
        // All colours count the same.
        computeEdgeMap(Picture::inAnyOrder(image.view).view(), out, progress.callback());
    }
    progress.finish();
    return edges;
}

py::array smooth(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"smooth", {"image", "size", "sigma"}, 3};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    const int size = integerArgument(arguments[1], "size");
    const double sigma = sigmaArgument(arguments[2], "sigma");
    Progress progress(arguments.progress());
    const StridedView &from = image.view;
    auto smoothed = image.isGrey ? newPlane<std::uint8_t>(from) : newPicture(from, from.channels);
    std::uint8_t *out = smoothed.mutable_data();
    {
        const py::gil_scoped_release released;
        writePacked(from, out); // blurred in place, so that the frame is there
        if (from.channels == 4) {
            const MutablePictureView picture(out, from.width, from.height);
            blurFourChannels(picture, picture, size, sigma, progress.callback());
        } else {
            const MutablePlaneView plane(out, from.width, from.height,
                                         std::ptrdiff_t{from.channels} * from.width, from.channels);
            blurChannels(plane, plane, size, sigma, progress.callback());
        }
    }
    progress.finish();
    return smoothed;
}

py::array feather(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"feather", {"image", "mask", "rings"}, 3};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    const ArrayArgument mask = maskArgument(arguments[1], "mask", image.view);
    const int rings = integerArgument(arguments[2], "rings");
    Progress progress(arguments.progress());
    auto feathered = newPicture(image.view, 4);
    const MutablePictureView out(feathered.mutable_data(), image.view.width, image.view.height);
    {
        const py::gil_scoped_release released;
        writeFourChannels(image.view, ChannelOrder::RedFirst, out.pixels);
        featherEdge(out, Plane(mask.view).view(), rings);
    }
    progress.finish();
    return feathered;
}

py::array waveSegment(const Args &byPosition, const Kwargs &byName)
{
    static constexpr Signature signature{"wave_segment", {"image", "threshold"}, 2};
    const Arguments arguments(signature, byPosition, byName);
    const ArrayArgument image = imageArgument(arguments[0], "image");
    const int threshold = integerArgument(arguments[1], "threshold");
    Progress progress(arguments.progress());
    auto labels = newPlane<std::int32_t>(image.view);
    std::int32_t *out = labels.mutable_data();
    {
        const py::gil_scoped_release released;
        // All colours count the same.
        labelWaves(Picture::inAnyOrder(image.view).view(), threshold, out, progress.callback());
    }
    progress.finish();
    return labels;
}

} // namespace ornevo::python
