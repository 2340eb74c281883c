// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/GaussianBlurReference.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace reference {

namespace {

/// Scratch values that a pass leaves out are NaN, so that a later pass that
/// read one of them by mistake would spoil its result visibly.
PlaneOf<double> scratchPlane(int width, int height)
{
    return PlaneOf<double>(width, height, std::numeric_limits<double>::quiet_NaN());
}

std::uint8_t lowByte(double value)
{
    return static_cast<std::uint8_t>(static_cast<int>(value) & 0xff);
}

/// True for the pixels less than \a band pixels away from an edge. In a
/// picture smaller than the band that is every pixel.
bool inBorder(int x, int y, int width, int height, int band)
{
    return x < band || y < band || x >= width - band || y >= height - band;
}

void copyBorder(const Plane &src, Plane &dst, int band)
{
    for (int y = 0; y < src.height; ++y)
        for (int x = 0; x < src.width; ++x)
            if (inBorder(x, y, src.width, src.height, band))
                dst.at(x, y) = src.at(x, y);
}

} // namespace

std::vector<double> gaussianWeights(int n, double sigma)
{
    if (n < 1)
        n = 1;
    const int r = n / 2;

    std::vector<double> w(static_cast<std::size_t>(n));
    double sum = 0.0;
    bool usable = true;
    for (int i = 0; i < n; ++i) {
        const long long d = i - r;
        const double exponent = static_cast<double>(-(d * d)) / (sigma * (sigma + sigma));
        const double weight = std::sqrt(std::exp(exponent) / (sigma * 6.283 * sigma));
        if (!std::isfinite(weight))
            usable = false;
        w.at(static_cast<std::size_t>(i)) = weight;
        sum += weight;
    }
    if (!usable || !std::isfinite(sum) || !(sum > 0.0)) {
        for (double &weight : w)
            weight = 0.0;
        w.at(static_cast<std::size_t>(r)) = 1.0;
        return w;
    }
    for (double &weight : w)
        weight = weight / sum;
    return w;
}

void blurAny(const Plane &src, Plane &dst, double sigma, int size)
{
    const int n = size < 1 ? 1 : size;
    const int r = n / 2;
    const std::vector<double> w = gaussianWeights(n, sigma);
    const auto weight = [&w](int i) { return w.at(static_cast<std::size_t>(i)); };
    const int width = src.width;
    const int height = src.height;

    PlaneOf<double> t = scratchPlane(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = r; x <= width - r - 1; ++x) {
            double sum = weight(r) * src.at(x, y);
            for (int k = 1; k <= r; ++k) {
                const int pair = src.at(x + k, y) + src.at(x - k, y);
                sum = sum + weight(r - k) * pair;
            }
            t.at(x, y) = sum;
        }
    }

    for (int y = r; y <= height - r - 1; ++y) {
        for (int x = r; x <= width - r - 1; ++x) {
            std::uint8_t a = lowByte(t.at(x, y) * weight(r));
            for (int k = 1; k <= r; ++k)
                a = lowByte(a + (t.at(x, y + k) + t.at(x, y - k)) * weight(r - k));
            dst.at(x, y) = a;
        }
    }

    copyBorder(src, dst, r);
}

void blur99(const Plane &src, Plane &dst, double sigma)
{
    const std::vector<double> w = gaussianWeights(9, sigma);
    const double w0 = w.at(0);
    const double w1 = w.at(1);
    const double w2 = w.at(2);
    const double w3 = w.at(3);
    const double w4 = w.at(4);
    const int width = src.width;
    const int height = src.height;

    PlaneOf<double> t = scratchPlane(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 4; x <= width - 5; ++x) {
            t.at(x, y) = w4 * src.at(x, y) + w3 * (src.at(x - 1, y) + src.at(x + 1, y)) +
                         w2 * (src.at(x - 2, y) + src.at(x + 2, y)) +
                         w1 * (src.at(x - 3, y) + src.at(x + 3, y)) +
                         w0 * (src.at(x - 4, y) + src.at(x + 4, y));
        }
    }

    for (int y = 4; y <= height - 5; ++y) {
        for (int x = 4; x <= width - 5; ++x) {
            const double sum = w4 * t.at(x, y) + w3 * (t.at(x, y - 1) + t.at(x, y + 1)) +
                               w2 * (t.at(x, y - 2) + t.at(x, y + 2)) +
                               w1 * (t.at(x, y - 3) + t.at(x, y + 3)) +
                               w0 * (t.at(x, y - 4) + t.at(x, y + 4));
            dst.at(x, y) = lowByte(sum);
        }
    }

    copyBorder(src, dst, 4);
}

void blurFast(const Plane &src, Plane &dst)
{
    static const unsigned kernel[5][5] = {
        {2, 4, 5, 4, 2}, {4, 9, 12, 9, 4}, {5, 12, 15, 12, 5}, {4, 9, 12, 9, 4}, {2, 4, 5, 4, 2},
    };
    const int width = src.width;
    const int height = src.height;

    PlaneOf<std::uint32_t> accumulator(width, height, 0);
    for (int y = 2; y <= height - 3; ++y)
        for (int x = 2; x <= width - 3; ++x)
            for (int row = -2; row <= 2; ++row)
                for (int column = -2; column <= 2; ++column)
                    accumulator.at(x + column, y + row) += src.at(x, y) * kernel[row + 2][column + 2];

    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            dst.at(x, y) = static_cast<std::uint8_t>(accumulator.at(x, y) / 159);

    copyBorder(src, dst, 5);
}

void blur33(const Plane &src, Plane &dst)
{
    // Column by column. The seventh entry, the right neighbour, weighs only as
    // much as a corner; the filter's response depends on it.
    static const double table[9] = {0.05472157, 0.11098164, 0.05472157,  0.11098164, 0.22508352,
                                    0.11098164, 0.05472157, 0.054721575, 0.05472157};
    const int width = dst.width;
    const int height = dst.height;

    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (y <= 1 || y == height - 2 || y == height - 1 || x <= 1 || x == width - 2 || x == width - 1) {
                dst.at(x, y) = 0;
                continue;
            }
            int sum = 0;
            for (int c = 0; c <= 2; ++c)
                for (int r = 0; r <= 2; ++r)
                    sum += static_cast<int>(src.at(x - 1 + c, y - 1 + r) * table[3 * c + r]);
            if (sum < 0)
                sum = 0;
            if (sum > 255)
                sum = 255;
            dst.at(x, y) = static_cast<std::uint8_t>(sum);
        }
    }
}

void channelBlur(const Plane &src, Plane &dst, int channels, int size, double sigma)
{
    int n = size;
    if (n % 2 == 0)
        n = n + 1;
    if (n < 1)
        n = 1;
    const int r = n / 2;
    const std::vector<double> w = gaussianWeights(n, sigma);
    const auto weight = [&w](int i) { return w.at(static_cast<std::size_t>(i)); };
    const int width = src.width / channels;
    const int height = src.height;

    Plane scratch(src.width, height, 0);
    for (int y = 0; y < height; ++y) {
        for (int x = r; x <= width - r - 1; ++x) {
            for (int channel = 0; channel < channels; ++channel) {
                const auto at = [&](int column) { return int{src.at(column * channels + channel, y)}; };
                double sum = weight(r) * at(x);
                for (int k = 1; k <= r; ++k)
                    sum = sum + weight(r - k) * (at(x + k) + at(x - k));
                scratch.at(x * channels + channel, y) = lowByte(sum);
            }
        }
    }

    for (int y = r; y <= height - r - 1; ++y) {
        for (int column = r * channels; column < (width - r) * channels; ++column) {
            std::uint8_t value = lowByte(scratch.at(column, y) * weight(r));
            for (int k = 1; k <= r; ++k) {
                const int pair = scratch.at(column, y + k) + scratch.at(column, y - k);
                value = lowByte(value + pair * weight(r - k));
            }
            dst.at(column, y) = value;
        }
    }
}

void fourChannelBlur(const Picture &src, Picture &dst, int size, double sigma)
{
    const auto bytesOf = [](const Picture &picture) {
        Plane plane(4 * picture.width, picture.height);
        for (int y = 0; y < picture.height; ++y)
            for (int i = 0; i < plane.width; ++i)
                plane.at(i, y) = static_cast<std::uint8_t>(channelOf(picture.at(i / 4, y), i % 4));
        return plane;
    };
    Plane blurred = bytesOf(dst);
    channelBlur(bytesOf(src), blurred, 4, size, sigma);
    for (int y = 0; y < dst.height; ++y)
        for (int x = 0; x < dst.width; ++x) {
            dst.at(x, y) = 0;
            for (int channel = 0; channel < 4; ++channel)
                dst.at(x, y) |= std::uint32_t{blurred.at(4 * x + channel, y)} << (8 * channel);
        }
}

} // namespace reference
