// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "imaging/BlurKernels.cpp" // read once for every instruction set
#include <hwy/foreach_target.h>
// The line above comes first.
#include <hwy/highway.h>

#include "imaging/BlurKernels.h"

#include <cmath>
#include <cstddef>

HWY_BEFORE_NAMESPACE();
namespace blurkernels {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int blockPixels = 16;
constexpr hn::CappedTag<std::uint32_t, blockPixels> pixelTag;
constexpr hn::CappedTag<double, 8> doubleTag;
constexpr hn::Rebind<std::int32_t, decltype(doubleTag)> intTag;
constexpr hn::Rebind<std::uint8_t, decltype(doubleTag)> fewBytesTag;
constexpr hn::CappedTag<std::uint16_t, 32> wordTag;
constexpr hn::Rebind<std::int16_t, decltype(wordTag)> shortTag;
constexpr hn::Rebind<std::uint8_t, decltype(wordTag)> bytesTag;

using IntVector = hn::VFromD<decltype(intTag)>;
using WordVector = hn::VFromD<decltype(wordTag)>;

HWY_INLINE bool IsFlat(const std::uint32_t *pixels, std::uint32_t pixel)
{
    const auto wanted = hn::Set(pixelTag, pixel);
    auto differences = hn::Zero(pixelTag);
    for (int i = 0; i < blockPixels; i += static_cast<int>(hn::Lanes(pixelTag)))
        differences = hn::Or(differences, hn::Xor(wanted, hn::LoadU(pixelTag, pixels + i)));
    return hn::AllTrue(pixelTag, hn::Eq(differences, hn::Zero(pixelTag)));
}

// Goes in blocks, one of which every run that is long enough must hold.
void FindFlatRuns(const std::uint32_t *pixels, int width, int minimum, std::vector<FlatRun> &runs)
{
    runs.clear();
    int end = 0; // of the run before
    int x = 0;
    while (x + blockPixels <= width) {
        const std::uint32_t pixel = pixels[x];
        if (!IsFlat(pixels + x, pixel)) {
            x += blockPixels;
            continue;
        }
        int from = x;
        while (from > end && pixels[from - 1] == pixel)
            --from;
        x += blockPixels;
        while (x + blockPixels <= width && IsFlat(pixels + x, pixel))
            x += blockPixels;
        while (x < width && pixels[x] == pixel)
            ++x;
        if (x - from >= minimum)
            runs.push_back({from, x, pixel});
        end = x;
    }
}

HWY_INLINE IntVector LoadInts(const std::uint8_t *from)
{
    return hn::PromoteTo(intTag, hn::LoadU(fewBytesTag, from));
}

void SmoothBytes(const std::uint8_t *in, int from, int to, std::span<const double> half, std::uint8_t *out)
{
    const int lanes = static_cast<int>(hn::Lanes(doubleTag));
    const int radius = static_cast<int>(half.size()) - 1;
    int i = from;
    for (; i + lanes <= to; i += lanes) {
        auto sum = hn::Mul(hn::Set(doubleTag, half[0]), hn::PromoteTo(doubleTag, LoadInts(in + i)));
        for (int k = 1; k <= radius; ++k) {
            const auto pair = hn::Add(LoadInts(in + (i + 4 * k)), LoadInts(in + (i - 4 * k)));
            const auto weight = hn::Set(doubleTag, half[static_cast<std::size_t>(k)]);
            // Two roundings: a fused multiplication would give other bytes.
            sum = hn::Add(sum, hn::Mul(weight, hn::PromoteTo(doubleTag, pair)));
        }
        hn::StoreU(hn::DemoteTo(fewBytesTag, hn::DemoteTo(intTag, sum)), fewBytesTag, out + i);
    }
    for (; i < to; ++i) {
        double sum = half[0] * in[i];
        for (int k = 1; k <= radius; ++k)
            sum += half[static_cast<std::size_t>(k)] * (in[i + 4 * k] + in[i - 4 * k]);
        out[i] = static_cast<std::uint8_t>(static_cast<int>(sum));
    }
}

HWY_INLINE WordVector LoadWords(const std::uint8_t *from)
{
    return hn::PromoteTo(wordTag, hn::LoadU(bytesTag, from));
}

HWY_INLINE WordVector Product(WordVector sum, Factor factor)
{
    return hn::ShiftRightSame(hn::MulHigh(hn::ShiftLeft<7>(sum), hn::Set(wordTag, factor.factor)),
                              factor.shift);
}

std::uint32_t ProductOfOne(std::uint32_t sum, Factor factor)
{
    return ((sum << 7) * factor.factor >> 16) >> factor.shift;
}

void CombineBytes(std::span<const std::uint8_t *const> rows, int from, int to,
                  std::span<const Factor> factors, std::uint8_t *out)
{
    const int lanes = static_cast<int>(hn::Lanes(wordTag));
    const std::size_t radius = factors.size() - 1;
    const auto lowByte = hn::Set(shortTag, 0xFF);
    int i = from;
    for (; i + lanes <= to; i += lanes) {
        auto value = Product(LoadWords(rows[radius] + i), factors[0]);
        for (std::size_t k = 1; k <= radius; ++k) {
            const auto pair = hn::Add(LoadWords(rows[radius + k] + i), LoadWords(rows[radius - k] + i));
            value = hn::Add(value, Product(pair, factors[k]));
        }
        const auto bytes = hn::And(hn::BitCast(shortTag, value), lowByte);
        hn::StoreU(hn::DemoteTo(bytesTag, bytes), bytesTag, out + i);
    }
    for (; i < to; ++i) {
        std::uint32_t value = ProductOfOne(rows[radius][i], factors[0]);
        for (std::size_t k = 1; k <= radius; ++k) {
            const int pair = rows[radius + k][i] + rows[radius - k][i];
            value += ProductOfOne(static_cast<std::uint32_t>(pair), factors[k]);
        }
        out[i] = static_cast<std::uint8_t>(value);
    }
}

} // namespace
} // namespace HWY_NAMESPACE
} // namespace blurkernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace blurkernels {

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

std::optional<std::vector<Factor>> wholeFactors(std::span<const double> half)
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

void findFlatRuns(const std::uint32_t *pixels, int width, int minimum, std::vector<FlatRun> &runs)
{
    HWY_DYNAMIC_DISPATCH(FindFlatRuns)(pixels, width, minimum, runs);
}

void smoothBytes(const std::uint8_t *in, int from, int to, std::span<const double> half, std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(SmoothBytes)(in, from, to, half, out);
}

void combineBytes(std::span<const std::uint8_t *const> rows, int from, int to,
                  std::span<const Factor> factors, std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(CombineBytes)(rows, from, to, factors, out);
}

} // namespace blurkernels

#endif // HWY_ONCE
