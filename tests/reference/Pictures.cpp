// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/Pictures.h"

#include <algorithm>
#include <cstddef>

namespace testpictures {

namespace {

using reference::Picture;
using Bytes = std::vector<std::uint8_t>;

std::size_t area(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

template <typename Value> Bytes planeOf(int width, int height, Value value)
{
    Bytes plane;
    plane.reserve(area(width, height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            plane.push_back(static_cast<std::uint8_t>(value(x, y)));
    return plane;
}

std::uint32_t rgb(int red, int green, int blue)
{
    return 0xff000000U | static_cast<std::uint32_t>(red) << 16 | static_cast<std::uint32_t>(green) << 8 |
           static_cast<std::uint32_t>(blue);
}

template <typename Color> Picture pictureOf(int width, int height, Color color)
{
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.at(x, y) = color(x, y);
    return picture;
}

std::uint32_t randomColor(Random &random)
{
    const int red = random.byte();
    const int green = random.byte();
    const int blue = random.byte();
    return rgb(red, green, blue);
}

} // namespace

std::vector<std::pair<int, int>> awkwardExtents()
{
    std::vector<std::pair<int, int>> sizes{
        {1, 1},  {1, 2},  {2, 1},  {1, 5},   {5, 1},   {1, 64},   {64, 1},  {2, 2},  {2, 3},  {3, 2},
        {2, 17}, {17, 2}, {3, 3},  {3, 4},   {4, 3},   {3, 31},   {31, 3},  {4, 4},  {5, 5},  {5, 6},
        {6, 5},  {6, 6},  {6, 7},  {7, 6},   {7, 7},   {7, 8},    {8, 7},   {8, 8},  {8, 9},  {9, 8},
        {9, 9},  {9, 10}, {10, 9}, {10, 10}, {11, 11}, {11, 12},  {12, 11}, {7, 33}, {33, 7}, {8, 63},
        {63, 8}, {9, 65}, {65, 9}, {100, 5}, {5, 100}, {129, 10},
    };
    for (const int width : {15, 16, 17, 31, 32, 33})
        for (const int height : {15, 16, 17, 31, 32, 33})
            sizes.emplace_back(width, height);
    for (const int width : {63, 64, 65})
        for (const int height : {31, 64, 65})
            sizes.emplace_back(width, height);
    return sizes;
}

Bytes randomPlane(int width, int height, std::uint32_t seed)
{
    Random random(seed);
    return planeOf(width, height, [&random](int, int) { return random.byte(); });
}

Bytes constantPlane(int width, int height, std::uint8_t value)
{
    return Bytes(area(width, height), value);
}

Bytes rampPlane(int width, int height, int start, int step)
{
    return planeOf(width, height, [start, step](int x, int) { return (start + x * step) & 0xff; });
}

Bytes stepPlane(int width, int height, int at, std::uint8_t left, std::uint8_t right)
{
    return planeOf(width, height, [at, left, right](int x, int) { return x < at ? left : right; });
}

Bytes plateauPlane(int width, int height, int levels, std::uint32_t seed)
{
    Random random(seed);
    return planeOf(width, height, [&random, levels](int, int) { return random.below(levels); });
}

Bytes sparsePlane(int width, int height, int oneIn, std::uint32_t seed)
{
    Random random(seed);
    return planeOf(width, height, [&random, oneIn](int, int) {
        const int value = 1 + random.below(255);
        return random.below(oneIn) == 0 ? value : 0;
    });
}

Picture randomPicture(int width, int height, std::uint32_t seed)
{
    Random random(seed);
    return pictureOf(width, height, [&random](int, int) { return randomColor(random); });
}

Picture constantPicture(int width, int height, std::uint32_t color)
{
    return pictureOf(width, height, [color](int, int) { return color | 0xff000000u; });
}

Picture rampPicture(int width, int height, int step)
{
    return pictureOf(width, height, [step](int x, int y) {
        return rgb((x * step) & 0xff, (y * step) & 0xff, ((x + y) * step) & 0xff);
    });
}

Picture stepPicture(int width, int height, int at, std::uint32_t left, std::uint32_t right)
{
    return pictureOf(width, height,
                     [at, left, right](int x, int) { return (x < at ? left : right) | 0xff000000u; });
}

Picture plateauPicture(int width, int height, int tile, int colors, std::uint32_t seed)
{
    Random random(seed);
    std::vector<std::uint32_t> palette;
    for (int i = 0; i < colors; ++i)
        palette.push_back(randomColor(random));
    const int columns = width / tile + 1;
    const int rows = height / tile + 1;
    std::vector<std::uint32_t> tiles;
    for (int i = 0; i < columns * rows; ++i)
        tiles.push_back(palette.at(static_cast<std::size_t>(random.below(colors))));
    return pictureOf(width, height, [&tiles, tile, columns](int x, int y) {
        return tiles.at(static_cast<std::size_t>((y / tile) * columns + x / tile));
    });
}

Picture greyStepsPicture(int width, int height, std::uint32_t seed)
{
    return greyPicture(width, height, randomPlane(width, height, seed));
}

Picture greyPicture(int width, int height, const Bytes &plane)
{
    return pictureOf(width, height, [&plane, width](int x, int y) {
        const int grey = plane.at(area(width, y) + static_cast<std::size_t>(x));
        return rgb(grey, grey, grey);
    });
}

Picture blobPicture(int width, int height, std::uint32_t seed)
{
    struct Blob
    {
        int x;
        int y;
        int radius;
        int red;
        int green;
        int blue;
    };
    Random random(seed);
    std::vector<Blob> blobs;
    for (int i = 0; i < 5; ++i) {
        Blob blob{};
        blob.x = random.below(std::max(width, 1));
        blob.y = random.below(std::max(height, 1));
        blob.radius = 2 + random.below(std::max((width + height) / 3, 1));
        blob.red = random.byte();
        blob.green = random.byte();
        blob.blue = random.byte();
        blobs.push_back(blob);
    }
    return pictureOf(width, height, [&random, &blobs](int x, int y) {
        int red = 90;
        int green = 110;
        int blue = 130;
        for (const Blob &blob : blobs) {
            const std::int64_t dx = x - blob.x;
            const std::int64_t dy = y - blob.y;
            const std::int64_t reach = std::int64_t{blob.radius} * blob.radius;
            const std::int64_t weight = reach - (dx * dx + dy * dy);
            if (weight <= 0)
                continue;
            red += static_cast<int>((blob.red - red) * weight / reach);
            green += static_cast<int>((blob.green - green) * weight / reach);
            blue += static_cast<int>((blob.blue - blue) * weight / reach);
        }
        const auto noisy = [&random](int value) { return std::clamp(value + random.below(7) - 3, 0, 255); };
        red = noisy(red);
        green = noisy(green);
        blue = noisy(blue);
        return rgb(red, green, blue);
    });
}

Picture randomArgbPicture(int width, int height, std::uint32_t seed)
{
    Random random(seed);
    return pictureOf(width, height, [&random](int, int) { return random.next(); });
}

Bytes blobMask(int width, int height, std::uint32_t seed)
{
    Random random(seed);
    Bytes mask(area(width, height), 0);
    for (int i = 0; i < 3; ++i) {
        const int centreX = random.below(std::max(width, 1));
        const int centreY = random.below(std::max(height, 1));
        const int radius = 1 + random.below(std::max((width + height) / 6, 1));
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if ((x - centreX) * (x - centreX) + (y - centreY) * (y - centreY) <= radius * radius)
                    mask.at(area(width, y) + static_cast<std::size_t>(x)) = 1;
    }
    return mask;
}

Picture blobMaskPicture(int width, int height, std::uint32_t seed)
{
    const Bytes mask = blobMask(width, height, seed);
    return pictureOf(width, height, [&mask, width](int x, int y) {
        return mask.at(area(width, y) + static_cast<std::size_t>(x)) ? 0xff000000u : 0xffffffffu;
    });
}

std::vector<int> randomPixels(int width, int height, int count, std::uint32_t seed)
{
    std::vector<int> indices;
    if (width < 1 || height < 1)
        return indices;
    Random random(seed);
    for (int i = 0; i < count; ++i)
        indices.push_back(random.below(width * height));
    return indices;
}

} // namespace testpictures
