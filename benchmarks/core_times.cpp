// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What the Python module's functions cost without Python, for benchmarks/compare_python.py:
//
//     core_times FOLDER WIDTH HEIGHT
//
// FOLDER holds the scene as raw files. Prints the processor seconds of each function, the second run of two.

#include "benchmarks/RawScene.h"
#include "core/EdgeMap.h"
#include "core/Feathering.h"
#include "core/GaussianBlur.h"
#include "core/Watershed.h"
#include "core/WaveSegmentation.h"

namespace {

std::vector<int> indicesOf(const std::vector<std::int32_t> &markers, std::int32_t label)
{
    std::vector<int> indices;
    for (std::size_t i = 0; i < markers.size(); ++i)
        if (markers[i] == label)
            indices.push_back(static_cast<int>(i));
    return indices;
}

} // namespace

int main(int argc, char **argv)
{
    const RawScene scene = readScene(argc, argv);
    const ornevo::PictureView picture(scene.picture.data(), scene.width, scene.height);
    const ornevo::PlaneView edges(scene.edges.data(), scene.width, scene.height);
    const std::vector<int> keep = indicesOf(scene.markers, 1);
    const std::vector<int> remove = indicesOf(scene.markers, 2);

    std::vector<std::uint8_t> bytes(scene.edges.size());
    const ornevo::MutablePlaneView plane(bytes.data(), scene.width, scene.height);
    std::vector<std::int32_t> labels(scene.edges.size());
    std::vector<std::uint8_t> pixels(scene.picture.size());
    const ornevo::MutablePictureView result(pixels.data(), scene.width, scene.height);

    printTime("edge_map", [&] { ornevo::computeEdgeMap(picture, plane); });
    printTime("cut_out", [&] { ornevo::floodTwoRegions(picture, edges, keep, remove).writeMask(1, plane); });
    printTime("watershed", [&] {
        ornevo::floodRegions(picture, edges, {keep, remove})
            .writeLabels(labels.data(), scene.width, scene.height, {1, 2});
    });
    printTime("wave_segment", [&] { ornevo::labelWaves(picture, 200, labels.data()); });
    printTime("smooth", [&] { ornevo::blurFourChannels(picture, result, 5, 1.2); });
    printTime("feather", [&] { ornevo::featherEdge(result, plane, 3); });
    return 0;
}
