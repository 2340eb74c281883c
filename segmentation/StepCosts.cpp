// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// Compiled once for every instruction set that pays; the best that the machine has is chosen at run time.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "segmentation/StepCosts.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "segmentation/StepCosts.h"

#include <QImage>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <vector>

#ifndef ORNEVO_SEGMENTATION_STEPCOSTS_ONCE
#define ORNEVO_SEGMENTATION_STEPCOSTS_ONCE

namespace flooding {

/// Three rows of the edge map.
struct EdgeRows
{
    const std::uint8_t *above;
    const std::uint8_t *here;
    const std::uint8_t *below;
};

} // namespace flooding

#endif

HWY_BEFORE_NAMESPACE();

namespace flooding::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// One vector of brightnessDifference(p, q): the same operations in the same order, so the same result.
template <class Pixels, class V> HWY_INLINE auto differences(Pixels pixels, V p, V q)
{
    const hn::RebindToSigned<Pixels> whole;
    const hn::Rebind<double, Pixels> real;
    const hn::Rebind<std::uint8_t, Pixels> bytes;
    const auto low = hn::Set(pixels, 0xFF);
    const auto channel = [&](V a, V b) HWY_ATTR {
        const auto difference = hn::Sub(hn::And(a, low), hn::And(b, low));
        return hn::PromoteTo(real, hn::BitCast(whole, difference));
    };
    const auto red = hn::Mul(hn::Set(real, 0.299), channel(hn::ShiftRight<16>(p), hn::ShiftRight<16>(q)));
    const auto green = hn::Mul(hn::Set(real, 0.587), channel(hn::ShiftRight<8>(p), hn::ShiftRight<8>(q)));
    const auto blue = hn::Mul(hn::Set(real, 0.114), channel(p, q));
    const auto sum = hn::Add(hn::Add(red, green), blue);
    return hn::DemoteTo(bytes, hn::Abs(hn::DemoteTo(whole, sum)));
}

/// Writes how much the pixels of a row differ from the right-hand neighbour (left out for the last one) and
/// from the pixel above.
void differRow(const std::uint8_t *row, const std::uint8_t *above, std::size_t width, std::uint8_t *toRight,
               std::uint8_t *toAbove)
{
    const hn::Rebind<std::uint32_t, hn::ScalableTag<double>> pixels;
    const hn::Rebind<std::uint8_t, decltype(pixels)> bytes;
    const std::size_t lanes = hn::Lanes(pixels);
    const auto load = [&](const std::uint8_t *from) HWY_ATTR {
        return hn::LoadU(pixels, reinterpret_cast<const std::uint32_t *>(from));
    };
    std::size_t x = 0;
    for (; x + lanes < width; x += lanes) {
        const auto here = load(row + 4 * x);
        hn::StoreU(differences(pixels, here, load(row + 4 * x + 4)), bytes, toRight + x);
        hn::StoreU(differences(pixels, here, load(above + 4 * x)), bytes, toAbove + x);
    }
    for (; x < width; ++x) {
        if (x + 1 < width)
            toRight[x] = brightnessDifference(row + 4 * x, row + 4 * x + 4);
        toAbove[x] = brightnessDifference(row + 4 * x, above + 4 * x);
    }
}

/// Puts the prices of a row together: pixelCost() of each neighbour.
void priceRow(const EdgeRows &edges, const std::uint8_t *toRight, const std::uint8_t *toAbove,
              std::size_t width, EdgeCost rule, StepCosts *costs)
{
    const hn::ScalableTag<std::uint8_t> bytes;
    const std::size_t lanes = hn::Lanes(bytes);
    const auto least = hn::Set(bytes, rule == EdgeCost::strength ? std::uint8_t{0} : std::uint8_t{255});
    const auto price = [&](const std::uint8_t *edge, const std::uint8_t *difference) HWY_ATTR {
        const auto e = hn::LoadU(bytes, edge);
        return hn::IfThenElse(hn::Eq(e, hn::Zero(bytes)), hn::LoadU(bytes, difference), hn::Max(e, least));
    };
    std::size_t x = 1;
    for (; x + lanes < width; x += lanes)
        hn::StoreInterleaved4(price(edges.here + x - 1, toRight + x - 1),
                              price(edges.here + x + 1, toRight + x), price(edges.above + x, toAbove + x),
                              price(edges.below + x, toRight + x), bytes,
                              reinterpret_cast<std::uint8_t *>(costs + x));
    for (; x + 1 < width; ++x)
        costs[x] = {pixelCost(edges.here[x - 1], toRight[x - 1], rule),
                    pixelCost(edges.here[x + 1], toRight[x], rule),
                    pixelCost(edges.above[x], toAbove[x], rule),
                    // The step down is priced with the horizontal difference. It looks like a slip, but
                    // regions that were cut out before must come out the same, so it stays.
                    pixelCost(edges.below[x], toRight[x], rule)};
}

} // namespace flooding::HWY_NAMESPACE

HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace flooding {

HWY_EXPORT(differRow);
HWY_EXPORT(priceRow);

// Summed in this order and truncated: a grey step of n often comes out as n - 1, and that is relied on.
std::uint8_t brightnessDifference(const std::uint8_t *p, const std::uint8_t *q)
{
    const double difference = 0.299 * (p[2] - q[2]) + 0.587 * (p[1] - q[1]) + 0.114 * (p[0] - q[0]);
    return static_cast<std::uint8_t>(std::abs(static_cast<int>(difference)));
}

namespace {

/// Lays eight rows out as a strip.
void interleave(const std::vector<StepCosts> &rows, std::size_t width, StepCosts *strip)
{
    for (std::size_t x = 0; x < width; ++x)
        for (std::size_t row = 0; row < Strips::rows; ++row)
            strip[x * Strips::rows + row] = rows[row * width + x];
}

} // namespace

LargeArray<StepCosts> makeStepCosts(const QImage &image, const std::uint8_t *edges, EdgeCost rule)
{
    const auto width = static_cast<std::size_t>(image.width());
    const auto last = static_cast<std::size_t>(image.height()) - 1;
    const Strips strips(image.width(), image.height());
    LargeArray<StepCosts> costs = makeLargeArray<StepCosts>(strips.size());
    if (costs == nullptr)
        throw std::bad_alloc();
    std::vector<StepCosts> rows(strips.length());
    std::vector<std::uint8_t> toRight(width);
    std::vector<std::uint8_t> toAbove(width);
    for (std::size_t top = 0; top <= last; top += Strips::rows) {
        for (std::size_t y = std::max<std::size_t>(top, 1); y < std::min(top + Strips::rows, last); ++y) {
            const std::uint8_t *row = image.constScanLine(static_cast<int>(y));
            const std::uint8_t *above = image.constScanLine(static_cast<int>(y) - 1);
            const std::uint8_t *edge = edges + y * width;
            HWY_DYNAMIC_DISPATCH(differRow)(row, above, width, toRight.data(), toAbove.data());
            HWY_DYNAMIC_DISPATCH(priceRow)
            ({edge - width, edge, edge + width}, toRight.data(), toAbove.data(), width, rule,
             rows.data() + (y - top) * width);
        }
        interleave(rows, width, costs.get() + strips.at(0, top));
    }
    return costs;
}

} // namespace flooding

#endif
