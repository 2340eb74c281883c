// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

/// A picture with its edge map and its markers, as benchmarks/compare_python.py leaves it for other programs.
struct RawScene
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> picture; ///< blue, green, red, unused
    std::vector<std::uint8_t> edges;
    std::vector<std::int32_t> markers; ///< 1 keep, 2 remove
};

template <typename T> std::vector<T> readRaw(const std::string &path, std::size_t count)
{
    std::vector<T> values(count);
    std::ifstream file(path, std::ios::binary);
    if (!file.read(reinterpret_cast<char *>(values.data()), static_cast<std::streamsize>(count * sizeof(T))))
        throw std::runtime_error(path + " can't be read");
    return values;
}

inline RawScene readScene(int argc, char **argv)
{
    if (argc != 4)
        throw std::invalid_argument("FOLDER WIDTH HEIGHT");
    RawScene scene;
    scene.width = std::atoi(argv[2]);
    scene.height = std::atoi(argv[3]);
    const auto pixels = static_cast<std::size_t>(scene.width) * static_cast<std::size_t>(scene.height);
    const std::string folder = argv[1];
    scene.picture = readRaw<std::uint8_t>(folder + "/picture", 4 * pixels);
    scene.edges = readRaw<std::uint8_t>(folder + "/edges", pixels);
    scene.markers = readRaw<std::int32_t>(folder + "/markers", pixels);
    return scene;
}

inline double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Runs the work twice and prints what the second run took: the first finds cold memory.
template <typename Work> void printTime(const char *name, Work work)
{
    work();
    const double begin = processorSeconds();
    work();
    std::printf("%s %.6f\n", name, processorSeconds() - begin);
}
