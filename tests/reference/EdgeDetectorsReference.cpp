// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/EdgeDetectorsReference.h"

#include "tests/reference/GaussianBlurReference.h"

#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace reference {

namespace {

/// Calls store(x, y, sum) for every pixel of the upper left
/// (width - 1) x (height - 1) part.
template <typename Store>
void colorDifferences(const std::vector<std::uint8_t> &picture, int w, int h, Store store)
{
    if (h < 2)
        return;
    const auto byteAt = [&picture, w](int x, int y, int k) {
        const std::size_t pixel =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(w) + static_cast<std::size_t>(x);
        return static_cast<int>(picture.at(pixel * 4 + static_cast<std::size_t>(k)));
    };
    for (int y = 1; y <= h - 1; ++y) {
        for (int x = 1; x <= w - 1; ++x) {
            int sum = 0;
            for (int k = 0; k <= 2; ++k) {
                const int a = byteAt(x - 1, y - 1, k);
                const int b = byteAt(x, y - 1, k);
                const int c = byteAt(x - 1, y, k);
                const int d = byteAt(x, y, k);
                sum += std::abs(3 * a - b - d - c);
            }
            store(x - 1, y - 1, sum);
        }
    }
}

} // namespace

PlaneOf<std::int16_t> sobel(const Plane &src, int xOrder)
{
    const int w = src.width;
    const int h = src.height;
    PlaneOf<std::int16_t> dst(w, h, 0);
    const auto s = [&src](int x, int y) { return static_cast<int>(src.at(x, y)); };
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            if (x == 0 || x == w - 1 || y == 0 || y == h - 1) {
                dst.at(x, y) = 0;
                continue;
            }
            int g = 0;
            if (xOrder != 0)
                g = s(x + 1, y - 1) + 2 * s(x + 1, y) + s(x + 1, y + 1) - s(x - 1, y - 1) - 2 * s(x - 1, y) -
                    s(x - 1, y + 1);
            else
                g = s(x - 1, y - 1) + 2 * s(x, y - 1) + s(x + 1, y - 1) - s(x - 1, y + 1) - 2 * s(x, y + 1) -
                    s(x + 1, y + 1);
            dst.at(x, y) = static_cast<std::int16_t>(g);
        }
    }
    return dst;
}

Plane sobelMagnitude(const Plane &src)
{
    const PlaneOf<std::int16_t> horizontal = sobel(src, 1);
    const PlaneOf<std::int16_t> vertical = sobel(src, 0);
    Plane dst(src.width, src.height, 0);
    for (int y = 0; y < src.height; ++y) {
        for (int x = 0; x < src.width; ++x) {
            const int gx = horizontal.at(x, y);
            const int gy = vertical.at(x, y);
            const int m = static_cast<int>(std::sqrt(static_cast<double>(gx * gx + gy * gy)));
            dst.at(x, y) = static_cast<std::uint8_t>(m & 0xff);
        }
    }
    return dst;
}

void colorDifference16(const std::vector<std::uint8_t> &picture, PlaneOf<std::uint16_t> &dst)
{
    colorDifferences(picture, dst.width, dst.height,
                     [&dst](int x, int y, int sum) { dst.at(x, y) = static_cast<std::uint16_t>(sum); });
}

void colorDifference8(const std::vector<std::uint8_t> &picture, Plane &dst)
{
    colorDifferences(picture, dst.width, dst.height,
                     [&dst](int x, int y, int sum) { dst.at(x, y) = static_cast<std::uint8_t>(sum / 9); });
}

std::vector<std::uint8_t> edgeMap(const Picture &picture)
{
    const int w = picture.width;
    const int h = picture.height;
    Plane red(w, h);
    Plane green(w, h);
    Plane blue(w, h);
    for (int x = 0; x < w; ++x) {
        for (int y = 0; y < h; ++y) {
            const std::uint32_t pixel = picture.at(x, y);
            red.at(x, y) = static_cast<std::uint8_t>(channelOf(pixel, 2));
            green.at(x, y) = static_cast<std::uint8_t>(channelOf(pixel, 1));
            blue.at(x, y) = static_cast<std::uint8_t>(channelOf(pixel, 0));
        }
    }

    Plane blurredRed(w, h);
    Plane blurredGreen(w, h);
    Plane blurredBlue(w, h);
    blurAny(red, blurredRed, 1.4, 7);
    blurAny(green, blurredGreen, 1.4, 7);
    blurAny(blue, blurredBlue, 1.4, 7);

    red = sobelMagnitude(blurredRed);
    green = sobelMagnitude(blurredGreen);
    blue = sobelMagnitude(blurredBlue);

    const std::size_t count = red.data.size();
    std::vector<std::uint8_t> edge(count);
    if (count == 0)
        return edge;
    unsigned max = 0;
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned average = (red.data.at(i) + green.data.at(i) + blue.data.at(i)) / 3u;
        edge.at(i) = static_cast<std::uint8_t>(average);
        if (average > max)
            max = average;
        sum += average;
    }
    const std::uint64_t mean = sum / count;
    for (std::size_t i = 0; i < count; ++i) {
        if (edge.at(i) < mean)
            edge.at(i) = 0;
        else
            edge.at(i) = static_cast<std::uint8_t>((edge.at(i) + 255u - max) & 0xff);
    }
    return edge;
}

} // namespace reference
