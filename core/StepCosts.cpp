// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// Compiled once for every instruction set that pays; the best that the machine has is chosen at run time.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/StepCosts.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "core/StepCosts.h"
#include "core/VectorLoops-inl.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <vector>

#ifndef ORNEVO_CORE_STEPCOSTS_ONCE
#define ORNEVO_CORE_STEPCOSTS_ONCE

namespace ornevo::flooding {

/// Three rows of the edge map.
struct EdgeRows
{
    const std::uint8_t *above;
    const std::uint8_t *here;
    const std::uint8_t *below;
};

} // namespace ornevo::flooding

#endif

HWY_BEFORE_NAMESPACE();

namespace ornevo::flooding::HWY_NAMESPACE {

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

/// Writes how much the pixels of a row but the last differ from their right-hand neighbour and from the pixel
/// above.
void differRow(const std::uint8_t *row, const std::uint8_t *above, std::size_t width, std::uint8_t *toRight,
               std::uint8_t *toAbove)
{
    // As many as there are doubles in a vector.
    ornevo::HWY_NAMESPACE::forEachVector<double, 8>(
        std::size_t{0}, width - 1, [=](auto doubles, std::size_t x) ORNEVO_VECTOR_LAMBDA {
            const hn::Rebind<std::uint32_t, decltype(doubles)> pixels;
            const hn::Rebind<std::uint8_t, decltype(doubles)> bytes;
            const auto load = [=](const std::uint8_t *from) ORNEVO_VECTOR_LAMBDA {
                return hn::LoadU(pixels, reinterpret_cast<const std::uint32_t *>(from + 4 * x));
            };
            const auto here = load(row);
            hn::StoreU(differences(pixels, here, load(row + 4)), bytes, toRight + x);
            hn::StoreU(differences(pixels, here, load(above)), bytes, toAbove + x);
        });
}

/// Puts the costs of a row together: pixelCost() of each neighbour.
void costRow(const EdgeRows &edges, const std::uint8_t *toRight, const std::uint8_t *toAbove,
             std::size_t width, EdgeCost rule, StepCosts *costs)
{
    const std::uint8_t least = rule == EdgeCost::strength ? 0 : 255;
    ornevo::HWY_NAMESPACE::forEachVector<std::uint8_t, 64>(
        std::size_t{1}, width - 1, [=](auto bytes, std::size_t x) ORNEVO_VECTOR_LAMBDA {
            const auto cost = [=](const std::uint8_t *edge,
                                  const std::uint8_t *difference) ORNEVO_VECTOR_LAMBDA {
                const auto e = hn::LoadU(bytes, edge + x);
                return hn::IfThenElse(hn::Eq(e, hn::Zero(bytes)), hn::LoadU(bytes, difference + x),
                                      hn::Max(e, hn::Set(bytes, least)));
            };
            // The step down costs the horizontal difference: promised, see docs/compatibility.md.
            hn::StoreInterleaved4(cost(edges.here - 1, toRight - 1), cost(edges.here + 1, toRight),
                                  cost(edges.above, toAbove), cost(edges.below, toRight), bytes,
                                  reinterpret_cast<std::uint8_t *>(costs + x));
        });
}

} // namespace ornevo::flooding::HWY_NAMESPACE

HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ornevo::flooding {

HWY_EXPORT(differRow);
HWY_EXPORT(costRow);

// Summed in this order and truncated: a grey step of n often comes out as n - 1, which is promised, see
// docs/compatibility.md.
std::uint8_t brightnessDifference(const std::uint8_t *p, const std::uint8_t *q)
{
    const double difference = 0.299 * (p[2] - q[2]) + 0.587 * (p[1] - q[1]) + 0.114 * (p[0] - q[0]);
    return static_cast<std::uint8_t>(std::abs(static_cast<int>(difference)));
}

namespace {

/// Lays eight rows out as a row of tiles.
void interleave(const std::vector<StepCosts> &rows, std::size_t width, StepCosts *tiles)
{
    for (std::size_t x = 0; x < width; ++x)
        for (std::size_t row = 0; row < TiledLayout::rows; ++row)
            tiles[x * TiledLayout::rows + row] = rows[row * width + x];
}

} // namespace

LargeArray<StepCosts> makeStepCosts(const PictureView &picture, const PlaneView &edges, EdgeCost rule)
{
    const auto width = static_cast<std::size_t>(picture.width);
    const auto last = static_cast<std::size_t>(picture.height) - 1;
    const TiledLayout layout(picture.width, picture.height);
    LargeArray<StepCosts> costs = makeLargeArray<StepCosts>(layout.size());
    if (costs == nullptr)
        throw std::bad_alloc();
    std::vector<StepCosts> rows(layout.length());
    std::vector<std::uint8_t> toRight(width);
    std::vector<std::uint8_t> toAbove(width);
    for (std::size_t top = 0; top <= last; top += TiledLayout::rows) {
        const std::size_t end = std::min(top + TiledLayout::rows, last);
        for (std::size_t inner = std::max<std::size_t>(top, 1); inner < end; ++inner) {
            const int y = static_cast<int>(inner);
            HWY_DYNAMIC_DISPATCH(differRow)
            (picture.row(y), picture.row(y - 1), width, toRight.data(), toAbove.data());
            HWY_DYNAMIC_DISPATCH(costRow)
            ({edges.row(y - 1), edges.row(y), edges.row(y + 1)}, toRight.data(), toAbove.data(), width, rule,
             rows.data() + (inner - top) * width);
        }
        interleave(rows, width, costs.get() + layout.at(0, top));
    }
    return costs;
}

} // namespace ornevo::flooding

#endif
