// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

#include <cstdint>
#include <random>
#include <utility>
#include <vector>

// Pictures for the tests. A seed gives the same picture on every platform:
// only the raw output of the generator is used, since the standard
// distributions differ between libraries.

namespace testpictures {

/// Random numbers whose values depend on the seed only.
class Random
{
public:
    explicit Random(std::uint32_t seed) : engine(seed) {}

    std::uint32_t next() { return static_cast<std::uint32_t>(engine()); }
    std::uint8_t byte() { return static_cast<std::uint8_t>(next() >> 24); }
    /// 0 .. bound - 1; bound must be positive.
    int below(int bound) { return static_cast<int>(next() % static_cast<std::uint32_t>(bound)); }

private:
    std::mt19937 engine;
};

/// Sizes (width, height) at which borders, vector tails and small loops go wrong.
std::vector<std::pair<int, int>> awkwardExtents();

// Planes: width x height bytes, row by row.
std::vector<std::uint8_t> randomPlane(int width, int height, std::uint32_t seed);
std::vector<std::uint8_t> constantPlane(int width, int height, std::uint8_t value);
/// Column x holds start + x * step modulo 256.
std::vector<std::uint8_t> rampPlane(int width, int height, int start, int step);
/// \a left up to column \a at - 1, \a right from there on.
std::vector<std::uint8_t> stepPlane(int width, int height, int at, std::uint8_t left, std::uint8_t right);
/// Random values out of 0 .. levels - 1 only, so that most neighbours are
/// equal and the queues meet many ties; levels must be positive.
std::vector<std::uint8_t> plateauPlane(int width, int height, int levels, std::uint32_t seed);
/// Random values of which about one in \a oneIn is not 0.
std::vector<std::uint8_t> sparsePlane(int width, int height, int oneIn, std::uint32_t seed);

// Pictures whose fourth byte is 255.
reference::Picture randomPicture(int width, int height, std::uint32_t seed);
reference::Picture constantPicture(int width, int height, std::uint32_t color);
/// Red grows along x, green along y, blue along both, each modulo 256.
reference::Picture rampPicture(int width, int height, int step);
/// \a left up to column \a at - 1, \a right from there on.
reference::Picture stepPicture(int width, int height, int at, std::uint32_t left, std::uint32_t right);
/// Square tiles of the given side, each of one of a few random colours.
reference::Picture plateauPicture(int width, int height, int tile, int colors, std::uint32_t seed);
/// Random greys: the exact difference of two pixels is a whole number, which
/// the sum in doubles can miss by a hair on either side.
reference::Picture greyStepsPicture(int width, int height, std::uint32_t seed);
/// Grey picture of a plane's values.
reference::Picture greyPicture(int width, int height, const std::vector<std::uint8_t> &plane);
/// Smooth blobs of colour with a little noise: something like a photo.
reference::Picture blobPicture(int width, int height, std::uint32_t seed);

/// Random bytes in all four channels.
reference::Picture randomArgbPicture(int width, int height, std::uint32_t seed);

/// 1 inside a few random discs, 0 outside.
std::vector<std::uint8_t> blobMask(int width, int height, std::uint32_t seed);
/// A blob mask as a picture of 0xff000000 (inside) and 0xffffffff.
reference::Picture blobMaskPicture(int width, int height, std::uint32_t seed);

/// Random pixel indices; repeats are possible. Empty for an empty picture.
std::vector<int> randomPixels(int width, int height, int count, std::uint32_t seed);

} // namespace testpictures
