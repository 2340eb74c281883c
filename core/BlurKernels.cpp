// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/BlurKernels.cpp" // read once for every instruction set
#include <hwy/foreach_target.h>
// The line above comes first.
#include <hwy/highway.h>

#include "core/BlurKernels.h"
#include "core/VectorLoops-inl.h"

#include <cmath>
#include <cstddef>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace ornevo::blurkernels {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int blockPixels = 16;
constexpr hn::CappedTag<std::uint32_t, blockPixels> pixelTag;

std::uint32_t PixelAt(const std::uint8_t *pixels, int x)
{
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, pixels + std::ptrdiff_t{4} * x, sizeof pixel);
    return pixel;
}

HWY_INLINE bool IsFlat(const std::uint8_t *pixels, int x, std::uint32_t pixel)
{
    const auto *block = reinterpret_cast<const std::uint32_t *>(pixels + std::ptrdiff_t{4} * x);
    const auto wanted = hn::Set(pixelTag, pixel);
    auto differences = hn::Zero(pixelTag);
    for (int i = 0; i < blockPixels; i += static_cast<int>(hn::Lanes(pixelTag)))
        differences = hn::Or(differences, hn::Xor(wanted, hn::LoadU(pixelTag, block + i)));
    return hn::AllTrue(pixelTag, hn::Eq(differences, hn::Zero(pixelTag)));
}

// Goes in blocks, one of which every run that is long enough must hold.
void FindFlatRuns(const std::uint8_t *pixels, int width, int minimum, std::vector<FlatRun> &runs)
{
    runs.clear();
    int end = 0; // of the run before
    int x = 0;
    while (x + blockPixels <= width) {
        const std::uint32_t pixel = PixelAt(pixels, x);
        if (!IsFlat(pixels, x, pixel)) {
            x += blockPixels;
            continue;
        }
        int from = x;
        while (from > end && PixelAt(pixels, from - 1) == pixel)
            --from;
        x += blockPixels;
        while (x + blockPixels <= width && IsFlat(pixels, x, pixel))
            x += blockPixels;
        while (x < width && PixelAt(pixels, x) == pixel)
            ++x;
        if (x - from >= minimum)
            runs.push_back({from, x, pixel});
        end = x;
    }
}

void SmoothBytes(const std::uint8_t *in, int from, int to, int channels, std::span<const double> half,
                 std::uint8_t *out)
{
    const int radius = static_cast<int>(half.size()) - 1;
    ornevo::HWY_NAMESPACE::forEachVector<double, 8>(from, to, [=](auto doubles, int i) ORNEVO_VECTOR_LAMBDA {
        const hn::Rebind<std::int32_t, decltype(doubles)> ints;
        const hn::Rebind<std::uint8_t, decltype(doubles)> bytes;
        auto sum = hn::Mul(hn::Set(doubles, half[0]),
                           hn::PromoteTo(doubles, hn::PromoteTo(ints, hn::LoadU(bytes, in + i))));
        for (int k = 1; k <= radius; ++k) {
            const auto right = hn::PromoteTo(ints, hn::LoadU(bytes, in + (i + channels * k)));
            const auto left = hn::PromoteTo(ints, hn::LoadU(bytes, in + (i - channels * k)));
            const auto weight = hn::Set(doubles, half[static_cast<std::size_t>(k)]);
            // Two roundings: a fused multiplication would give other bytes.
            sum = hn::Add(sum, hn::Mul(weight, hn::PromoteTo(doubles, hn::Add(right, left))));
        }
        hn::StoreU(hn::DemoteTo(bytes, hn::DemoteTo(ints, sum)), bytes, out + i);
    });
}

template <class Words> HWY_INLINE hn::VFromD<Words> Product(Words words, hn::VFromD<Words> sum, Factor factor)
{
    return hn::ShiftRightSame(hn::MulHigh(hn::ShiftLeft<7>(sum), hn::Set(words, factor.factor)),
                              factor.shift);
}

void CombineBytes(std::span<const std::uint8_t *const> rows, int from, int to,
                  std::span<const Factor> factors, std::uint8_t *out)
{
    const std::size_t radius = factors.size() - 1;
    ornevo::HWY_NAMESPACE::forEachVector<std::uint16_t, 32>(
        from, to, [=](auto words, int i) ORNEVO_VECTOR_LAMBDA {
            const hn::RebindToSigned<decltype(words)> shorts;
            const hn::Rebind<std::uint8_t, decltype(words)> bytes;
            const auto load = [=](const std::uint8_t *row) ORNEVO_VECTOR_LAMBDA {
                return hn::PromoteTo(words, hn::LoadU(bytes, row + i));
            };
            auto value = Product(words, load(rows[radius]), factors[0]);
            for (std::size_t k = 1; k <= radius; ++k) {
                const auto pair = hn::Add(load(rows[radius + k]), load(rows[radius - k]));
                value = hn::Add(value, Product(words, pair, factors[k]));
            }
            const auto low = hn::And(hn::BitCast(shorts, value), hn::Set(shorts, 0xFF));
            hn::StoreU(hn::DemoteTo(bytes, low), bytes, out + i);
        });
}

} // namespace
} // namespace HWY_NAMESPACE
} // namespace ornevo::blurkernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ornevo::blurkernels {

HWY_EXPORT(FindFlatRuns);
HWY_EXPORT(SmoothBytes);
HWY_EXPORT(CombineBytes);

namespace {

constexpr std::uint32_t largestPair = 2 * 255;

bool givesProducts(Factor factor, double weight)
{
    for (std::uint32_t sum = 0; sum <= largestPair; ++sum)
        if (((sum << 7) * factor.factor >> 16) >> factor.shift != static_cast<std::uint32_t>(sum * weight))
            return false;
    return true;
}

/// Whether adding a product to a byte in doubles can't lift it to the next whole number.
bool staysBelowWholes(double weight)
{
    constexpr double margin = 1e-9;
    for (std::uint32_t sum = 0; sum <= largestPair; ++sum)
        if (sum * weight - std::floor(sum * weight) > 1.0 - margin)
            return false;
    return true;
}

std::optional<Factor> factorFor(double weight)
{
    if (!(weight >= 0.0 && weight <= 1.0) || !staysBelowWholes(weight))
        return std::nullopt;
    // Down from the largest factor that fits: finer ones round less, but a coarser one may happen to fit as
    // well.
    for (int shift = 15; shift >= 0; --shift) {
        const double exact = std::ldexp(weight, 9 + shift);
        for (const double rounded : {std::floor(exact), std::ceil(exact)}) {
            if (rounded > 65535.0)
                continue;
            const Factor factor{static_cast<std::uint16_t>(rounded), shift};
            if (givesProducts(factor, weight))
                return factor;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::vector<Factor>> integerFactors(std::span<const double> half)
{
    std::vector<Factor> factors;
    for (const double weight : half) {
        const std::optional<Factor> factor = factorFor(weight);
        if (!factor)
            return std::nullopt;
        factors.push_back(*factor);
    }
    return factors;
}

void findFlatRuns(const std::uint8_t *pixels, int width, int minimum, std::vector<FlatRun> &runs)
{
    HWY_DYNAMIC_DISPATCH(FindFlatRuns)(pixels, width, minimum, runs);
}

void smoothBytes(const std::uint8_t *in, int from, int to, int channels, std::span<const double> half,
                 std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(SmoothBytes)(in, from, to, channels, half, out);
}

void combineBytes(std::span<const std::uint8_t *const> rows, int from, int to,
                  std::span<const Factor> factors, std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(CombineBytes)(rows, from, to, factors, out);
}

} // namespace ornevo::blurkernels

#endif // HWY_ONCE
