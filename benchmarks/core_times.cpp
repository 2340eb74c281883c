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

#include <algorithm>
#include <memory>

namespace {

std::vector<int> indicesOf(const std::vector<std::int32_t> &markers, std::int32_t label)
{
    std::vector<int> indices;
    for (std::size_t i = 0; i < markers.size(); ++i)
        if (markers[i] == label)
            indices.push_back(static_cast<int>(i));
    return indices;
}

template <typename T> std::unique_ptr<T[]> newArray(std::size_t count)
{
    return std::unique_ptr<T[]>(new T[count]);
}

} // namespace

int main(int argc, char **argv)
{
    const RawScene scene = readScene(argc, argv);
    const ornevo::PictureView picture(scene.picture.data(), scene.width, scene.height);
    const ornevo::PlaneView edges(scene.edges.data(), scene.width, scene.height);
    const std::vector<int> keep = indicesOf(scene.markers, 1);
    const std::vector<int> remove = indicesOf(scene.markers, 2);

    // Results go to new memory, as from Python.
    const std::size_t pixels = scene.edges.size();
    const auto plane = [&](const std::unique_ptr<std::uint8_t[]> &memory) {
        return ornevo::MutablePlaneView(memory.get(), scene.width, scene.height);
    };
    const auto fourBytes = [&](const std::unique_ptr<std::uint8_t[]> &memory) {
        return ornevo::MutablePictureView(memory.get(), scene.width, scene.height);
    };

    printTime("edge_map", [&] { ornevo::computeEdgeMap(picture, plane(newArray<std::uint8_t>(pixels))); });
    printTime("cut_out", [&] {
        ornevo::floodTwoRegions(picture, edges, keep, remove)
            .writeMask(1, plane(newArray<std::uint8_t>(pixels)));
    });
    printTime("watershed", [&] {
        ornevo::floodRegions(picture, edges, {keep, remove})
            .writeLabels(newArray<std::int32_t>(pixels).get(), scene.width, scene.height, {1, 2});
    });
    printTime("wave_segment",
              [&] { ornevo::labelWaves(picture, 200, newArray<std::int32_t>(pixels).get()); });
    printTime("smooth", [&] {
        ornevo::blurFourChannels(picture, fourBytes(newArray<std::uint8_t>(4 * pixels)), 5, 1.2);
    });
    const auto mask = newArray<std::uint8_t>(pixels);
    ornevo::floodTwoRegions(picture, edges, keep, remove).writeMask(1, plane(mask));
    printTime("feather", [&] {
        const auto copy = newArray<std::uint8_t>(4 * pixels);
        std::copy(scene.picture.begin(), scene.picture.end(), copy.get());
        ornevo::featherEdge(fourBytes(copy), plane(mask), 3);
    });
    return 0;
}
