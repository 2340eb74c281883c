// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "imaging/EdgeKernels.cpp" // read once for every instruction set
#include <hwy/foreach_target.h>
// The line above comes first.
#include <hwy/highway.h>

#include "imaging/EdgeKernels.h"
#include "imaging/GaussianWeights.h"

#include <algorithm>
#include <limits>
#include <vector>

// What does not depend on the instruction set; guarded, since this file is read many times.
#ifndef ORNEVO_EDGEKERNELS_ONCE
#define ORNEVO_EDGEKERNELS_ONCE

namespace edgekernels {

namespace {

/// Smoothed value of a column, as the plain filter forms it: centre first, then the pairs outward.
inline double smoothInDoubles(const std::uint8_t *centre, const Weights &weights)
{
    double sum = weights.exact[0] * centre[0];
    for (int k = 1; k <= radius; ++k)
        sum += weights.exact[static_cast<std::size_t>(k)] * (centre[k] + centre[-k]);
    return sum;
}

/// Both passes for one pixel in doubles, every operation in the order that defines the result.
inline std::uint8_t blurInDoubles(const Neighbourhood &from, int column, const Weights &weights)
{
    std::array<double, rows> smooth;
    for (std::size_t i = 0; i < smooth.size(); ++i)
        smooth[i] = smoothInDoubles(from.bytes[i] + column, weights);
    int value = static_cast<int>(smooth[radius] * weights.exact[0]);
    for (std::size_t k = 1; k <= radius; ++k)
        value = static_cast<int>(value + (smooth[radius + k] + smooth[radius - k]) * weights.exact[k]);
    return static_cast<std::uint8_t>(value);
}

} // namespace

} // namespace edgekernels

#endif // ORNEVO_EDGEKERNELS_ONCE

HWY_BEFORE_NAMESPACE();
namespace edgekernels {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

// Vectors are capped at the width that the padding of the rows allows for. All tags but the first have as
// many lanes as there are floats in a vector, so that a value only ever changes its width and never its
// place.
constexpr hn::CappedTag<std::uint8_t, 64> byteTag;
constexpr hn::CappedTag<float, 16> floatTag;
constexpr hn::Rebind<std::int32_t, decltype(floatTag)> intTag;
constexpr hn::Rebind<std::int16_t, decltype(floatTag)> shortTag;
constexpr hn::Rebind<std::uint8_t, decltype(floatTag)> narrowByteTag;

using FloatVector = hn::VFromD<decltype(floatTag)>;
using FloatMask = decltype(hn::Eq(FloatVector(), FloatVector()));
using IntVector = hn::VFromD<decltype(intTag)>;
using ShortVector = hn::VFromD<decltype(shortTag)>;

int laneCount()
{
    return static_cast<int>(hn::Lanes(floatTag));
}

void SplitRow(const std::uint8_t *pixels, int count, const std::array<std::uint8_t *, 3> &colours)
{
    const int lanes = static_cast<int>(hn::Lanes(byteTag));
    int x = 0;
    for (; x + lanes <= count; x += lanes) {
        hn::VFromD<decltype(byteTag)> blue, green, red, unused;
        hn::LoadInterleaved4(byteTag, pixels + std::ptrdiff_t{x} * 4, blue, green, red, unused);
        hn::StoreU(blue, byteTag, colours[0] + x);
        hn::StoreU(green, byteTag, colours[1] + x);
        hn::StoreU(red, byteTag, colours[2] + x);
    }
    for (; x < count; ++x)
        for (std::size_t colour = 0; colour < colours.size(); ++colour)
            colours[colour][x] = pixels[std::ptrdiff_t{x} * 4 + static_cast<std::ptrdiff_t>(colour)];
}

IntVector LoadInts(const std::uint8_t *from)
{
    return hn::PromoteTo(intTag, hn::LoadU(narrowByteTag, from));
}

void SmoothRow(const std::uint8_t *in, int count, const Weights &weights, float *out)
{
    const auto w0 = hn::Set(floatTag, weights.rounded[0]);
    const auto w1 = hn::Set(floatTag, weights.rounded[1]);
    const auto w2 = hn::Set(floatTag, weights.rounded[2]);
    const auto w3 = hn::Set(floatTag, weights.rounded[3]);
    for (int x = 0; x < count - 2 * radius; x += laneCount()) {
        const auto centre = LoadInts(in + x + 3);
        const auto pair1 = hn::Add(LoadInts(in + x + 2), LoadInts(in + x + 4));
        const auto pair2 = hn::Add(LoadInts(in + x + 1), LoadInts(in + x + 5));
        const auto pair3 = hn::Add(LoadInts(in + x), LoadInts(in + x + 6));
        auto sum = hn::Mul(hn::ConvertTo(floatTag, centre), w0);
        sum = hn::MulAdd(hn::ConvertTo(floatTag, pair1), w1, sum);
        sum = hn::MulAdd(hn::ConvertTo(floatTag, pair2), w2, sum);
        sum = hn::MulAdd(hn::ConvertTo(floatTag, pair3), w3, sum);
        hn::StoreU(sum, floatTag, out + x);
    }
}

/// The pixels that floats can't decide: all lanes of `near` but those over nothing but zeros.
HWY_NOINLINE void RedoInDoubles(FloatMask near, FloatVector total, const Neighbourhood &from, int column,
                                int end, const Weights &weights, std::uint8_t *out)
{
    near = hn::AndNot(hn::Eq(total, hn::Zero(floatTag)), near);
    if (hn::AllFalse(floatTag, near))
        return;
    std::uint8_t bits[8] = {};
    hn::StoreMaskBits(floatTag, near, bits);
    for (int i = 0; i < laneCount() && column + i < end; ++i)
        if ((bits[i / 8] >> (i % 8) & 1) != 0)
            out[column + i] = blurInDoubles(from, column + i, weights);
}

// Why floats give the bytes of the doubles. The filter cuts after every pair of taps: with the products
// P_k = w_k · (t(y - k) + t(y + k)), all of them at least 0, the value is trunc(trunc(trunc(P_0) + P_1) +
// ...), which is the sum of the floors of the four products, as each value before a cut is a whole number
// plus P_k. In doubles, P_k and that addition are off by less than 1e-12; so the sum of the floors is right
// wherever no product is within 1e-12 of a whole number, and where all the terms are 0, and with them every
// product.
//
// In floats (u = 2^-24 the unit of rounding), a product has gone through nine roundings: of the weight, of
// the first product, three additions, of the pair, of the second weight, of the second product, and of the
// addition of the slack below; fewer where the machine fuses a multiplication with an addition. All terms are
// positive, so the sum is off by less than 9.1 u times its own size. `slack` is 10 u times the largest
// product. The float q_k = P_k + slack ± 0.92 slack therefore lies above P_k, by less than 2 slack; if the
// fraction of q_k is not below 2 slack, no whole number lies between P_k and q_k, none lies within 0.08 slack
// (over 1e-6) of P_k, and the floors are the same. All others, four in ten thousand of a photograph, are
// redone in doubles.
//
// The outermost pair has a bound of its own, the others share one: over a plain of one grey level no product
// but the outermost of grey 239 comes near, which the smaller bound lets pass. So a flat area is never slow.
void CutRow(const Neighbourhood &from, int count, const Weights &weights, std::uint8_t *out)
{
    const auto w0 = hn::Set(floatTag, weights.rounded[0]);
    const auto w1 = hn::Set(floatTag, weights.rounded[1]);
    const auto w2 = hn::Set(floatTag, weights.rounded[2]);
    const auto w3 = hn::Set(floatTag, weights.rounded[3]);
    const auto innerSlack = hn::Set(floatTag, weights.innerSlack);
    const auto outerSlack = hn::Set(floatTag, weights.outerSlack);
    const auto innerBound = hn::Add(innerSlack, innerSlack);
    const auto outerBound = hn::Add(outerSlack, outerSlack);
    const auto pair = [&from](std::size_t k, int x) HWY_ATTR {
        return hn::Add(hn::LoadU(floatTag, from.smooth[radius - k] + x),
                       hn::LoadU(floatTag, from.smooth[radius + k] + x));
    };
    for (int x = 0; x < count - 2 * radius; x += laneCount()) {
        const auto t0 = hn::LoadU(floatTag, from.smooth[radius] + x);
        const auto t1 = pair(1, x);
        const auto t2 = pair(2, x);
        const auto t3 = pair(3, x);
        const auto q0 = hn::MulAdd(t0, w0, innerSlack);
        const auto q1 = hn::MulAdd(t1, w1, innerSlack);
        const auto q2 = hn::MulAdd(t2, w2, innerSlack);
        const auto q3 = hn::MulAdd(t3, w3, outerSlack);
        const auto floor0 = hn::Floor(q0);
        const auto floor1 = hn::Floor(q1);
        const auto floor2 = hn::Floor(q2);
        const auto floor3 = hn::Floor(q3);
        const auto value = hn::Add(hn::Add(floor0, floor1), hn::Add(floor2, floor3));
        hn::StoreU(hn::DemoteTo(narrowByteTag, hn::ConvertTo(intTag, value)), narrowByteTag,
                   out + x + radius);

        const auto fraction = hn::Min(hn::Min(hn::Sub(q0, floor0), hn::Sub(q1, floor1)), hn::Sub(q2, floor2));
        const auto near = hn::Or(hn::Lt(fraction, innerBound), hn::Lt(hn::Sub(q3, floor3), outerBound));
        if (HWY_UNLIKELY(!hn::AllFalse(floatTag, near)))
            RedoInDoubles(near, hn::Add(hn::Add(t0, t1), hn::Add(t2, t3)), from, x + radius, count - radius,
                          weights, out);
    }
}

struct Gradient
{
    ShortVector x, y;
};

ShortVector LoadShorts(const std::uint8_t *from)
{
    return hn::PromoteTo(shortTag, hn::LoadU(narrowByteTag, from));
}

/// Sobel derivatives at x + 1.
Gradient GradientAt(const RowTriple &rows, int x)
{
    const auto upperLeft = LoadShorts(rows.above + x);
    const auto upper = LoadShorts(rows.above + x + 1);
    const auto upperRight = LoadShorts(rows.above + x + 2);
    const auto left = LoadShorts(rows.mid + x);
    const auto right = LoadShorts(rows.mid + x + 2);
    const auto lowerLeft = LoadShorts(rows.below + x);
    const auto lower = LoadShorts(rows.below + x + 1);
    const auto lowerRight = LoadShorts(rows.below + x + 2);
    const auto falling = hn::Sub(upperLeft, lowerRight);
    const auto rising = hn::Sub(upperRight, lowerLeft);
    const auto across = hn::Sub(right, left);
    const auto down = hn::Sub(upper, lower);
    return {hn::Add(hn::Sub(rising, falling), hn::Add(across, across)),
            hn::Add(hn::Add(rising, falling), hn::Add(down, down))};
}

/// The squares stay below 2^24, where floats hold every whole number; the root of such a number, rounded to a
/// float, is cut to the same whole number as the exact one.
IntVector LowByteOfLength(IntVector x, IntVector y)
{
    const auto floatX = hn::ConvertTo(floatTag, x);
    const auto floatY = hn::ConvertTo(floatTag, y);
    const auto length = hn::Sqrt(hn::MulAdd(floatX, floatX, hn::Mul(floatY, floatY)));
    return hn::And(hn::ConvertTo(intTag, length), hn::Set(intTag, 0xFF));
}

IntVector MagnitudeAt(const RowTriple &rows, int x)
{
    const Gradient gradient = GradientAt(rows, x);
    return LowByteOfLength(hn::PromoteTo(intTag, gradient.x), hn::PromoteTo(intTag, gradient.y));
}

void GradientRow(const std::array<RowTriple, 3> &colours, int count, std::uint8_t *out)
{
    const auto third = hn::Set(intTag, 21846); // of 65536, rounded up: exact for sums up to 32767
    for (int x = 0; x < count - 2; x += laneCount()) {
        const auto sum = hn::Add(hn::Add(MagnitudeAt(colours[0], x), MagnitudeAt(colours[1], x)),
                                 MagnitudeAt(colours[2], x));
        const auto average = hn::ShiftRight<16>(hn::Mul(sum, third));
        hn::StoreU(hn::DemoteTo(narrowByteTag, average), narrowByteTag, out + x + 1);
    }
    out[0] = 0;
    out[count - 1] = 0;
}

void StatisticsOf(const std::uint8_t *in, int count, RowStatistics &statistics)
{
    auto sums = hn::Zero(intTag);
    auto largest = hn::Zero(intTag);
    int x = 0;
    for (; x + laneCount() <= count; x += laneCount()) {
        const auto values = LoadInts(in + x);
        sums = hn::Add(sums, values);
        largest = hn::Max(largest, values);
    }
    statistics.sum = static_cast<std::uint64_t>(hn::GetLane(hn::SumOfLanes(intTag, sums)));
    statistics.largest = static_cast<std::uint8_t>(hn::GetLane(hn::MaxOfLanes(intTag, largest)));
    for (; x < count; ++x) {
        statistics.sum += in[x];
        statistics.largest = std::max(statistics.largest, in[x]);
    }
}

void LiftAbove(std::uint8_t *bytes, std::size_t count, std::uint8_t mean, std::uint8_t lift)
{
    const std::size_t lanes = hn::Lanes(byteTag);
    const auto means = hn::Set(byteTag, mean);
    const auto lifts = hn::Set(byteTag, lift);
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
        const auto values = hn::LoadU(byteTag, bytes + i);
        // The larger of value and mean is the value where it is not below the mean.
        const auto keep = hn::Eq(hn::Max(values, means), values);
        hn::StoreU(hn::IfThenElseZero(keep, hn::Add(values, lifts)), byteTag, bytes + i);
    }
    for (; i < count; ++i)
        bytes[i] = bytes[i] < mean ? std::uint8_t{0} : static_cast<std::uint8_t>(bytes[i] + lift);
}

} // namespace
} // namespace HWY_NAMESPACE
} // namespace edgekernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace edgekernels {

HWY_EXPORT(SplitRow);
HWY_EXPORT(SmoothRow);
HWY_EXPORT(CutRow);
HWY_EXPORT(GradientRow);
HWY_EXPORT(StatisticsOf);
HWY_EXPORT(LiftAbove);

Weights::Weights(double sigma)
{
    const std::vector<double> half = gaussianHalfKernel(rows, sigma);
    constexpr double unit = std::numeric_limits<float>::epsilon() / 2;
    constexpr double largestPair = 2 * 255;
    for (std::size_t k = 0; k < half.size(); ++k) {
        exact[k] = half[k];
        rounded[k] = static_cast<float>(half[k]);
    }
    const double largestInner = std::max({half[0], half[1], half[2]});
    innerSlack = static_cast<float>(10 * unit * largestPair * largestInner);
    outerSlack = static_cast<float>(10 * unit * largestPair * half[3]);
}

void splitRow(const std::uint8_t *pixels, int count, const std::array<std::uint8_t *, 3> &colours)
{
    HWY_DYNAMIC_DISPATCH(SplitRow)(pixels, count, colours);
}

void smoothRow(const std::uint8_t *in, int count, const Weights &weights, float *out)
{
    HWY_DYNAMIC_DISPATCH(SmoothRow)(in, count, weights, out);
}

void cutRow(const Neighbourhood &from, int count, const Weights &weights, std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(CutRow)(from, count, weights, out);
}

void gradientRow(const std::array<RowTriple, 3> &colours, int count, std::uint8_t *out)
{
    HWY_DYNAMIC_DISPATCH(GradientRow)(colours, count, out);
}

RowStatistics statisticsOf(const std::uint8_t *in, int count)
{
    RowStatistics statistics;
    HWY_DYNAMIC_DISPATCH(StatisticsOf)(in, count, statistics);
    return statistics;
}

void liftAbove(std::uint8_t *bytes, std::size_t count, std::uint8_t mean, std::uint8_t lift)
{
    HWY_DYNAMIC_DISPATCH(LiftAbove)(bytes, count, mean, lift);
}

} // namespace edgekernels

#endif // HWY_ONCE
