// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// \file
/// The inner loops of the edge map, one row at a time, compiled for every instruction set and chosen at run
/// time. They give the bytes of the plain filters (rowfilters::smoothRow(), truncateAtEachTap(),
/// sobelMagnitudeRow()) on every machine.
///
/// Colours are kept in 16 bits: derivatives and sums of pairs need that much, and widening them again in
/// every loop costs more than the memory. A row handed to them has `rowPadding` readable and writable
/// elements after its last one: loops run on over the end of the row in whole vectors, and what they leave
/// there is of no meaning.
namespace ornevo::edgekernels {

constexpr int radius = 3; ///< the kernels are written out for seven taps
constexpr int rows = 2 * radius + 1;
constexpr int rowPadding = 128;

/// The kernel in doubles, which define the result, and in floats, which find nearly all of it.
class Weights
{
public:
    explicit Weights(double sigma);

    std::array<double, radius + 1> exact{};
    std::array<float, radius + 1> rounded{};
    std::array<float, radius + 1> scaled{}; ///< `rounded`, in the units that the vertical pass counts in
    /// More than a product of the vertical pass can be off, in the same units; see the kernel.
    int innerSlack = 0; ///< up to the second pair
    int outerSlack = 0; ///< for the outermost pair
};

/// The rows y - radius .. y + 1 + radius of one colour: what the rows y and y + 1 are made of.
struct Neighbourhood
{
    std::array<const std::int16_t *, rows + 1> levels{};
    std::array<const float *, rows + 1> smooth{}; ///< from smoothRow()
};

/// Three consecutive rows of one blurred colour.
struct RowTriple
{
    const std::int16_t *above = nullptr;
    const std::int16_t *mid = nullptr;
    const std::int16_t *below = nullptr;
};

struct RowStatistics
{
    std::uint64_t sum = 0;
    std::uint8_t largest = 0;

    void add(const RowStatistics &other)
    {
        sum += other.sum;
        largest = std::max(largest, other.largest);
    }
};

/// Takes `count` pixels (blue, green, red, unused) apart. `pixels` needs no padding. The pixels of `ahead`,
/// as many, are fetched into the cache meanwhile.
void splitRow(const std::uint8_t *pixels, const std::uint8_t *ahead, int count,
              const std::array<std::int16_t *, 3> &colours);

/// Horizontal pass in floats. The sum for column `radius` goes to out[0], so that `out` is read at aligned
/// places.
void smoothRow(const std::int16_t *in, int count, const Weights &weights, float *out);

/// Vertical pass for the columns radius .. count - radius - 1 of the rows y and y + 1, truncated after every
/// pair of taps. Two rows at a time, since they share most of what has to be loaded for them.
void truncateRows(const Neighbourhood &from, int count, const Weights &weights,
                  const std::array<std::int16_t *, 2> &out);

/// Gradient magnitudes of the three colours, each modulo 256, averaged. The first and last column become 0.
void gradientRow(const std::array<RowTriple, 3> &colours, int count, std::uint8_t *out);

/// `in` needs no padding.
RowStatistics statisticsOf(const std::uint8_t *in, int count);

/// Makes 0 of what is below `mean` and adds `lift` modulo 256 to the rest. `bytes` needs no padding.
void liftAbove(std::uint8_t *bytes, std::size_t count, std::uint8_t mean, std::uint8_t lift);

} // namespace ornevo::edgekernels
