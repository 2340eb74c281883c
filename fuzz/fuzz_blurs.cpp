// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FourChannelBlur.h"
#include "fuzz/Input.h"
#include "fuzz/SimdTarget.h"
#include "imaging/GaussianBlur.h"
#include "tests/reference/ImageReferences.h"

#include <bit>

namespace {

using Blur = void (*)(CFrImage<unsigned char> &src, CFrImage<unsigned char> &dst, double sigma, int size);
using PlainBlur = void (*)(const reference::Plane &src, reference::Plane &dst, double sigma, int size);

void compare(const reference::Plane &src, const reference::Plane &old, double sigma, int size, Blur blur,
             PlainBlur plain, const char *name)
{
    reference::Plane expected = old;
    plain(src, expected, sigma, size);
    reference::Plane in = src;
    reference::Plane found = old;
    CFrImage<unsigned char> from{in.data.data(), in.width, in.height, 1, 1};
    CFrImage<unsigned char> to{found.data.data(), found.width, found.height, 1, 1};
    blur(from, to, sigma, size);
    require(found == expected, name);
    require(in == src, "a blur leaves its source as it is");
}

double anySigma(Input &input)
{
    if (input.byte() % 2 == 0)
        return input.below(1000) / 100.0;
    const auto high = static_cast<std::uint64_t>(static_cast<std::uint32_t>(input.integer()));
    return std::bit_cast<double>(high << 32 | static_cast<std::uint32_t>(input.integer()));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const SimdTarget target(data, size);
    Input input(data, size);
    const int width = 1 + input.below(48);
    const int height = 1 + input.below(48);
    // Most of the time would go into the weights of thousands of taps.
    const int kind = input.byte();
    const int taps = kind % 64 == 0 ? input.below(4000) - 100 : input.below(kind % 8 == 0 ? 150 : 25) - 2;
    const double sigma = anySigma(input);
    reference::Plane plane(width, height);
    plane.data = input.bytes(plane.data.size());
    const reference::Plane old(width, height, input.byte());

    compare(
        plane, old, sigma, taps,
        [](auto &src, auto &dst, double s, int n) { FrGaussianBlurAny(&src, &dst, s, n); },
        reference::blurAny, "FrGaussianBlurAny is the reference to the byte");
    compare(
        plane, old, sigma, taps, [](auto &src, auto &dst, double s, int) { FrGaussianBlur99(&src, &dst, s); },
        [](auto &src, auto &dst, double s, int) { reference::blur99(src, dst, s); },
        "FrGaussianBlur99 is the reference to the byte");
    compare(
        plane, old, sigma, taps, [](auto &src, auto &dst, double, int) { FrGaussianBlurFast(&src, &dst); },
        [](auto &src, auto &dst, double, int) { reference::blurFast(src, dst); },
        "FrGaussianBlurFast is the reference to the byte");
    compare(
        plane, old, sigma, taps, [](auto &src, auto &dst, double, int) { FrGaussianBlur33(&src, &dst); },
        [](auto &src, auto &dst, double, int) { reference::blur33(src, dst); },
        "FrGaussianBlur33 is the reference to the byte");

    const QImage picture = input.picture(width, height, QImage::Format_ARGB32);
    QImage expected(width, height, QImage::Format_ARGB32);
    expected.fill(0x12345678U);
    QImage found = expected.copy();
    reference::fourChannelBlur(picture, expected, taps, sigma);
    int last = 0;
    cutout::blurFourChannels(picture, found, taps, sigma, [&last](int percent) {
        require(percent >= last && percent <= 100, "progress does not fall");
        last = percent;
    });
    require(found == expected, "the blur of four channels is the reference to the byte");
    return 0;
}
