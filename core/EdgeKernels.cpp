// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/EdgeKernels.cpp" // read once for every instruction set
#include <hwy/foreach_target.h>
// The line above comes first.
#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include "core/EdgeKernels.h"
#include "core/GaussianWeights.h"
#include "core/VectorLoops-inl.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

// What does not depend on the instruction set; guarded, since this file is read many times.
#ifndef ORNEVO_EDGEKERNELS_ONCE
#define ORNEVO_EDGEKERNELS_ONCE

namespace ornevo::edgekernels {

namespace {

static_assert(radius == 3, "the loops below are written out for seven taps");

// A float of this size has the unit as its last bit.
constexpr float floatOffset = 1 << 23;
constexpr int floatExponent = 0x4B000000; // its bits
constexpr int innerBits = 16; // of the fraction of a product of the vertical pass, up to the second pair
constexpr int outerBits = 17; // of the outermost pair

constexpr int innerFraction = (1 << innerBits) - 1;
constexpr int outerFraction = (1 << outerBits) - 1;

/// Smoothed value of a column, as the plain filter forms it: centre first, then the pairs outward.
inline double smoothInDoubles(const std::int16_t *centre, const Weights &weights)
{
    double sum = weights.exact[0] * centre[0];
    for (int k = 1; k <= radius; ++k)
        sum += weights.exact[static_cast<std::size_t>(k)] * (centre[k] + centre[-k]);
    return sum;
}

/// Both passes for one pixel in doubles, every operation in the order that defines the result.
inline std::int16_t blurInDoubles(const std::int16_t *const *levels, int column, const Weights &weights)
{
    std::array<double, rows> smooth;
    for (std::size_t i = 0; i < smooth.size(); ++i)
        smooth[i] = smoothInDoubles(levels[i] + column, weights);
    int value = static_cast<int>(smooth[radius] * weights.exact[0]);
    for (std::size_t k = 1; k <= radius; ++k)
        value = static_cast<int>(value + (smooth[radius + k] + smooth[radius - k]) * weights.exact[k]);
    return static_cast<std::int16_t>(value);
}

} // namespace

} // namespace ornevo::edgekernels

#endif // ORNEVO_EDGEKERNELS_ONCE

HWY_BEFORE_NAMESPACE();
namespace ornevo::edgekernels {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

// Vectors are capped at the width that the padding of the rows allows for. The tags from the second on have
// as many lanes as there are floats in a vector, so that a value only ever changes its width and never its
// place.
constexpr int floatLanes = 16;
constexpr hn::CappedTag<float, floatLanes> floatTag;
constexpr hn::Rebind<std::int32_t, decltype(floatTag)> intTag;
constexpr hn::Rebind<std::int16_t, decltype(floatTag)> shortTag;
constexpr hn::Rebind<std::uint8_t, decltype(floatTag)> narrowByteTag;

using FloatVector = hn::VFromD<decltype(floatTag)>;
using IntVector = hn::VFromD<decltype(intTag)>;
using IntMask = decltype(hn::Eq(IntVector(), IntVector()));
using ShortVector = hn::VFromD<decltype(shortTag)>;

int laneCount()
{
    return static_cast<int>(hn::Lanes(floatTag));
}

void SplitRow(const std::uint8_t *pixels, const std::uint8_t *ahead, int count,
              const std::array<std::int16_t *, 3> &colours)
{
    std::int16_t *const blues = colours[0];
    std::int16_t *const greens = colours[1];
    std::int16_t *const reds = colours[2];
    ornevo::HWY_NAMESPACE::forEachVector<std::int32_t, floatLanes>(
        0, count, [=](auto ints, int x) ORNEVO_VECTOR_LAMBDA {
            const hn::Rebind<std::int16_t, decltype(ints)> shorts;
            hwy::Prefetch(ahead + std::ptrdiff_t{x} * 4);
            const auto whole = hn::LoadU(ints, reinterpret_cast<const std::int32_t *>(pixels) + x);
            // The mask is made inside: a vector of SVE has no size and can't be captured.
            const auto store = [=](auto colour, std::int16_t *to) ORNEVO_VECTOR_LAMBDA {
                hn::StoreU(hn::DemoteTo(shorts, hn::And(colour, hn::Set(ints, 0xFF))), shorts, to + x);
            };
            store(whole, blues);
            store(hn::ShiftRight<8>(whole), greens);
            store(hn::ShiftRight<16>(whole), reds);
        });
}

HWY_INLINE ShortVector LoadLevels(const std::int16_t *from)
{
    return hn::LoadU(shortTag, from);
}

HWY_INLINE FloatVector ToFloats(ShortVector values)
{
    return hn::ConvertTo(floatTag, hn::PromoteTo(intTag, values));
}

void SmoothRow(const std::int16_t *in, int count, const Weights &weights, float *out)
{
    const auto w0 = hn::Set(floatTag, weights.rounded[0]);
    const auto w1 = hn::Set(floatTag, weights.rounded[1]);
    const auto w2 = hn::Set(floatTag, weights.rounded[2]);
    const auto w3 = hn::Set(floatTag, weights.rounded[3]);
    for (int x = 0; x < count - 2 * radius; x += laneCount()) {
        const auto centre = LoadLevels(in + x + 3);
        const auto pair1 = hn::Add(LoadLevels(in + x + 2), LoadLevels(in + x + 4));
        const auto pair2 = hn::Add(LoadLevels(in + x + 1), LoadLevels(in + x + 5));
        const auto pair3 = hn::Add(LoadLevels(in + x), LoadLevels(in + x + 6));
        auto sum = hn::Mul(ToFloats(centre), w0);
        sum = hn::MulAdd(ToFloats(pair1), w1, sum);
        sum = hn::MulAdd(ToFloats(pair2), w2, sum);
        sum = hn::MulAdd(ToFloats(pair3), w3, sum);
        hn::StoreU(sum, floatTag, out + x);
    }
}

// A product with 2^23 added has its floor in the upper half of the float's bits, under the exponent, and its
// fraction in the lower half. Added and compared as halves, neither disturbs the other.
#if HWY_TARGET == HWY_SCALAR

HWY_INLINE IntVector SumOfFloors(IntVector a, IntVector b, IntVector c)
{
    return hn::Add(hn::Add(hn::ShiftRight<innerBits>(a), hn::ShiftRight<innerBits>(b)),
                   hn::ShiftRight<innerBits>(c));
}

HWY_INLINE IntVector SmallestFraction(IntVector a, IntVector b, IntVector c)
{
    const auto fraction = hn::Set(intTag, innerFraction);
    return hn::Min(hn::Min(hn::And(a, fraction), hn::And(b, fraction)), hn::And(c, fraction));
}

#else

constexpr hn::Repartition<std::uint16_t, decltype(intTag)> halvesTag;
constexpr hn::Rebind<std::uint32_t, decltype(intTag)> unsignedTag;

HWY_INLINE IntVector SumOfFloors(IntVector a, IntVector b, IntVector c)
{
    const auto sum =
        hn::Add(hn::Add(hn::BitCast(halvesTag, a), hn::BitCast(halvesTag, b)), hn::BitCast(halvesTag, c));
    return hn::BitCast(intTag, hn::ShiftRight<innerBits>(hn::BitCast(unsignedTag, sum)));
}

HWY_INLINE IntVector SmallestFraction(IntVector a, IntVector b, IntVector c)
{
    const auto smallest =
        hn::Min(hn::Min(hn::BitCast(halvesTag, a), hn::BitCast(halvesTag, b)), hn::BitCast(halvesTag, c));
    return hn::And(hn::BitCast(intTag, smallest), hn::Set(intTag, innerFraction));
}

#endif

/// Where the product counted in `q` lies too near a whole number for floats to decide. A product of nothing
/// but zeros, of which `nothing` is left, is exact.
HWY_INLINE IntMask NearWhole(IntVector q, int fractionMask, int bound, int nothing)
{
    const auto fraction = hn::And(q, hn::Set(intTag, fractionMask));
    return hn::AndNot(hn::Eq(q, hn::Set(intTag, nothing)), hn::Lt(fraction, hn::Set(intTag, bound)));
}

/// Redoes the pixels from `column` on that floats can't decide, from the `levels` of `rows` rows.
HWY_NOINLINE void RedoInDoubles(IntVector q0, IntVector q1, IntVector q2, IntVector q3,
                                const std::int16_t *const *levels, int column, int end,
                                const Weights &weights, std::int16_t *out)
{
    const auto nearInner = [&weights](IntVector q) HWY_ATTR {
        return NearWhole(q, innerFraction, 2 * weights.innerSlack, floatExponent + weights.innerSlack);
    };
    const auto near =
        hn::Or(hn::Or(hn::Or(nearInner(q0), nearInner(q1)), nearInner(q2)),
               NearWhole(q3, outerFraction, 2 * weights.outerSlack, floatExponent + weights.outerSlack));
    if (hn::AllFalse(intTag, near))
        return;
    std::uint8_t bits[8] = {};
    hn::StoreMaskBits(intTag, near, bits);
    for (int i = 0; i < laneCount() && column + i < end; ++i)
        if ((bits[i / 8] >> (i % 8) & 1) != 0)
            out[column + i] = blurInDoubles(levels, column + i, weights);
}

// Why floats give the bytes of the doubles. The filter truncates after every pair of taps: with the products
// P_k = w_k · (t(y - k) + t(y + k)), all of them at least 0, the value is trunc(trunc(trunc(P_0) + P_1) +
// ...), which is the sum of the floors of the four products, as each value before a truncation is a whole
// number plus P_k. In doubles, P_k and that addition are off by less than 1e-12; so the sum of the floors is
// right wherever no product is within 1e-12 of a whole number, and where all the terms are 0, and with them
// every product.
//
// In floats (u = 2^-24 the unit of rounding), a product has gone through eight roundings: of the weight, of
// the first product, three additions, of the pair, of the second weight and of the second product; fewer
// where the machine fuses a multiplication with an addition. All terms are positive, so that it is off by
// less than 8.1 u times the largest product. Adding 2^23 then rounds it to a whole number of units of 2^-16
// (2^-17 for the outermost pair), which may cost half a unit more. `slack` is the next whole number above
// that bound. The number q_k made of P_k + slack therefore lies above P_k, and by less than 2 slack: if its
// fraction is not below 2 slack, no whole number lies between P_k and q_k, none lies within 1e-6 of P_k, and
// the floors are the same. All others, four in ten thousand of a photograph, are redone in doubles.
//
// The outermost pair has a finer unit: over a plain of one grey level no product but the outermost of grey
// 239 comes near a whole number, and with that unit it passes. So a flat area is never slow.
class RowTruncator
{
public:
    RowTruncator(const Weights &weights, int end) : m_weights(weights), m_end(end) {}

    /// Truncates the pixels from `column` on, whose terms are `t0` .. `t3`.
    HWY_INLINE void Truncate(FloatVector t0, FloatVector t1, FloatVector t2, FloatVector t3,
                             const std::int16_t *const *levels, int column, std::int16_t *out) const
    {
        constexpr int exponentInSum = 3 * (floatExponent >> innerBits) + (floatExponent >> outerBits);
        const auto innerOffset = hn::Set(floatTag, floatOffset + static_cast<float>(m_weights.innerSlack));
        const auto outerOffset = hn::Set(floatTag, floatOffset + static_cast<float>(m_weights.outerSlack));
        const auto q0 =
            hn::BitCast(intTag, hn::MulAdd(t0, hn::Set(floatTag, m_weights.scaled[0]), innerOffset));
        const auto q1 =
            hn::BitCast(intTag, hn::MulAdd(t1, hn::Set(floatTag, m_weights.scaled[1]), innerOffset));
        const auto q2 =
            hn::BitCast(intTag, hn::MulAdd(t2, hn::Set(floatTag, m_weights.scaled[2]), innerOffset));
        const auto q3 =
            hn::BitCast(intTag, hn::MulAdd(t3, hn::Set(floatTag, m_weights.scaled[3]), outerOffset));
        const auto floors = hn::Add(SumOfFloors(q0, q1, q2), hn::ShiftRight<outerBits>(q3));
        const auto value = hn::Sub(floors, hn::Set(intTag, exponentInSum));
        hn::StoreU(hn::DemoteTo(shortTag, value), shortTag, out + column);

        const auto near = hn::Or(
            hn::Lt(SmallestFraction(q0, q1, q2), hn::Set(intTag, 2 * m_weights.innerSlack)),
            hn::Lt(hn::And(q3, hn::Set(intTag, outerFraction)), hn::Set(intTag, 2 * m_weights.outerSlack)));
        if (HWY_UNLIKELY(!hn::AllFalse(intTag, near)))
            RedoInDoubles(q0, q1, q2, q3, levels, column, m_end, m_weights, out);
    }

private:
    const Weights &m_weights;
    int m_end;
};

void TruncateRows(const Neighbourhood &from, int count, const Weights &weights,
                  const std::array<std::int16_t *, 2> &out)
{
    const Weights local = weights; // what is written through `out` can't change it
    const RowTruncator truncator(local, count - radius);
    const auto [r0, r1, r2, r3, r4, r5, r6, r7] = from.smooth;
    for (int x = 0; x < count - 2 * radius; x += laneCount()) {
        const auto s1 = hn::LoadU(floatTag, r1 + x);
        const auto s2 = hn::LoadU(floatTag, r2 + x);
        const auto s3 = hn::LoadU(floatTag, r3 + x);
        const auto s4 = hn::LoadU(floatTag, r4 + x);
        const auto s5 = hn::LoadU(floatTag, r5 + x);
        const auto s6 = hn::LoadU(floatTag, r6 + x);
        truncator.Truncate(s3, hn::Add(s2, s4), hn::Add(s1, s5), hn::Add(hn::LoadU(floatTag, r0 + x), s6),
                           from.levels.data(), x + radius, out[0]);
        truncator.Truncate(s4, hn::Add(s3, s5), hn::Add(s2, s6), hn::Add(s1, hn::LoadU(floatTag, r7 + x)),
                           from.levels.data() + 1, x + radius, out[1]);
    }
}

/// Sobel derivative along x at x + 1.
HWY_INLINE ShortVector GradientAlong(const RowTriple &rows, int x)
{
    const auto upper = hn::Sub(LoadLevels(rows.above + x + 2), LoadLevels(rows.above + x));
    const auto mid = hn::Sub(LoadLevels(rows.mid + x + 2), LoadLevels(rows.mid + x));
    const auto lower = hn::Sub(LoadLevels(rows.below + x + 2), LoadLevels(rows.below + x));
    return hn::Add(hn::Add(upper, lower), hn::Add(mid, mid));
}

/// Sobel derivative along y at x + 1.
HWY_INLINE ShortVector GradientDown(const RowTriple &rows, int x)
{
    const auto left = hn::Sub(LoadLevels(rows.above + x), LoadLevels(rows.below + x));
    const auto mid = hn::Sub(LoadLevels(rows.above + x + 1), LoadLevels(rows.below + x + 1));
    const auto right = hn::Sub(LoadLevels(rows.above + x + 2), LoadLevels(rows.below + x + 2));
    return hn::Add(hn::Add(left, right), hn::Add(mid, mid));
}

/// Low byte of the length of a gradient, truncated (promised, see docs/compatibility.md). The sum of the
/// squares stays below 2^24, where floats hold every whole number. The root is at most 1442; with 2048 added,
/// its whole part ends twelve bits above the last of the float. No root below a whole number is so near to it
/// that the roundings could lift it over.
HWY_INLINE IntVector MagnitudeAt(const RowTriple &rows, int x)
{
    const auto along = ToFloats(GradientAlong(rows, x));
    const auto down = ToFloats(GradientDown(rows, x));
    const auto square = hn::MulAdd(along, along, hn::Mul(down, down));
    const auto bits = hn::BitCast(intTag, hn::Add(hn::Sqrt(square), hn::Set(floatTag, 2048.0F)));
    return hn::And(hn::ShiftRight<12>(bits), hn::Set(intTag, 0xFF));
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
    const auto add = [&](const std::uint8_t *from) ORNEVO_VECTOR_LAMBDA {
        const auto values = hn::PromoteTo(intTag, hn::LoadU(narrowByteTag, from));
        sums = hn::Add(sums, values);
        largest = hn::Max(largest, values);
    };
    int x = 0;
    for (; x + laneCount() <= count; x += laneCount())
        add(in + x);
    std::array<std::uint8_t, floatLanes> tail{}; // filled up with zeros, which change neither
    std::copy_n(in + x, count - x, tail.data());
    add(tail.data());
    statistics.sum = static_cast<std::uint64_t>(hn::GetLane(hn::SumOfLanes(intTag, sums)));
    statistics.largest = static_cast<std::uint8_t>(hn::GetLane(hn::MaxOfLanes(intTag, largest)));
}

void LiftAbove(std::uint8_t *bytes, std::size_t count, std::uint8_t mean, std::uint8_t lift)
{
    ornevo::HWY_NAMESPACE::forEachVector<std::uint8_t, 64>(
        std::size_t{0}, count, [=](auto tag, std::size_t i) ORNEVO_VECTOR_LAMBDA {
            const auto values = hn::LoadU(tag, bytes + i);
            // The larger of value and mean is the value where it is not below the mean.
            const auto keep = hn::Eq(hn::Max(values, hn::Set(tag, mean)), values);
            hn::StoreU(hn::IfThenElseZero(keep, hn::Add(values, hn::Set(tag, lift))), tag, bytes + i);
        });
}

} // namespace
} // namespace HWY_NAMESPACE
} // namespace ornevo::edgekernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ornevo::edgekernels {

HWY_EXPORT(SplitRow);
HWY_EXPORT(SmoothRow);
HWY_EXPORT(TruncateRows);
HWY_EXPORT(GradientRow);
HWY_EXPORT(StatisticsOf);
HWY_EXPORT(LiftAbove);

namespace {

/// In units of 2^-bits.
int slackFor(double largestWeight, int bits)
{
    constexpr double roundings = 8.1 * std::numeric_limits<float>::epsilon() / 2;
    const double largestProduct = 2 * 255 * largestWeight * (1 << bits);
    return static_cast<int>(std::lround(roundings * largestProduct)) + 1;
}

} // namespace

Weights::Weights(double sigma)
{
    const std::vector<double> half = gaussianHalfKernel(rows, sigma);
    for (std::size_t k = 0; k < half.size(); ++k) {
        exact[k] = half[k];
        rounded[k] = static_cast<float>(half[k]);
        scaled[k] = rounded[k] * (1 << (k < radius ? innerBits : outerBits));
    }
    innerSlack = slackFor(std::max({half[0] / 2, half[1], half[2]}), innerBits); // the centre counts once
    outerSlack = slackFor(half[3], outerBits);
}

void splitRow(const std::uint8_t *pixels, const std::uint8_t *ahead, int count,
              const std::array<std::int16_t *, 3> &colours)
{
    HWY_DYNAMIC_DISPATCH(SplitRow)(pixels, ahead, count, colours);
}

void smoothRow(const std::int16_t *in, int count, const Weights &weights, float *out)
{
    HWY_DYNAMIC_DISPATCH(SmoothRow)(in, count, weights, out);
}

void truncateRows(const Neighbourhood &from, int count, const Weights &weights,
                  const std::array<std::int16_t *, 2> &out)
{
    HWY_DYNAMIC_DISPATCH(TruncateRows)(from, count, weights, out);
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

} // namespace ornevo::edgekernels

#endif // HWY_ONCE
