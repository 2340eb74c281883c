// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// \file
/// The inner loops of the four-channel blur, compiled for every instruction set and chosen at run time. None
/// needs padding, and none reads or writes past the ranges it is given.
namespace ornevo::blurkernels {

/// Pixels `from` .. `to` - 1 of a row, all of them `pixel`.
struct FlatRun
{
    int from = 0;
    int to = 0;
    std::uint32_t pixel = 0;
};

/// Lists, in order, the flat runs of a row of four bytes a pixel, those of at least `minimum` pixels, each as
/// long as it can be. `minimum` is at least 32: the search goes in blocks of 16 pixels, one of which lies
/// within every run of that length.
void findFlatRuns(const std::uint8_t *pixels, int width, int minimum, std::vector<FlatRun> &runs);

/// Horizontal pass over the bytes `from` .. `to` - 1 of a row: summed in doubles, centre first, then the
/// pairs outward, and truncated once. The neighbour of a byte is the same colour of the next pixel,
/// `channels` bytes away, so that channels · (half.size() - 1) bytes on both sides are read.
void smoothBytes(const std::uint8_t *in, int from, int to, int channels, std::span<const double> half,
                 std::uint8_t *out);

/// A weight in fixed point: (sum · 2^7 · factor >> 16) >> shift is trunc(sum · weight).
struct Factor
{
    std::uint16_t factor = 0;
    int shift = 0;
};

/// The vertical pass with integer factors, for kernels that allow it. The filter truncates after the centre
/// and after every pair, as docs/compatibility.md promises; as each product is at least 0 and each value so
/// far a whole number, that is the sum of the products, each truncated for itself. A product depends on one
/// sum of two bytes only, so that its factor can be tried on all of them. Nothing comes back where no factor
/// does for some weight, or where a product lies so near below a whole number that the addition in doubles
/// could round it up.
std::optional<std::vector<Factor>> integerFactors(std::span<const double> half);

/// Vertical pass over the bytes `from` .. `to` - 1. `rows` holds an odd number of rows from the top, one more
/// than twice the pairs.
void combineBytes(std::span<const std::uint8_t *const> rows, int from, int to,
                  std::span<const Factor> factors, std::uint8_t *out);

} // namespace ornevo::blurkernels
