// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/ExactExp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

// How it is computed, in fixed point with 256 bits behind the point, and why the result is the right one.
//
// With a = -x > 0 and k the whole part of a / ln 2, t = (k + 1) ln 2 - a lies in (0, ln 2], and
//
//     exp(x) = 2^-(k + 1) · exp(t),   exp(t) = 1 + t + t²/2! + t³/3! + ... in (1, 2].
//
// a is exact: above 2^-54 the last bit of a double is at least 2^-106. (Up to 2^-54 the result is 1, since
// 1 - a + a²/2 > 1 - 2^-54, which is the middle between 1 and the double below.) ln 2 is truncated, so that t
// is too small by less than (k + 1) · 2^-256 <= 1076 · 2^-256 < 2^-245. Each term t^n/n! is made of the one
// before by a multiplication and a division by n that are truncated, and is too small by less than 3 · 2^-256
// more; the terms end when one is 0, after less than 64, and all that are left out are less than 2^-256
// together. exp(t) is therefore too small by less than 2^-243.
//
// Rounding to 53 bits goes wrong only where a middle between two doubles lies within that error. None does:
// the exponential of no double comes nearer to one than 2^-113 of its size, or 2^-158 where |x| < 2^-30 (V.
// Lefèvre, J.-M. Muller: Worst cases for correct rounding of the elementary functions in double precision,
// 15th IEEE Symposium on Computer Arithmetic, 2001). A subnormal result has fewer bits, and fewer middles.

namespace ornevo {

namespace {

constexpr std::size_t fractionLimbs = 8;

/// A number of 32 bits before the point and 256 behind; the least significant limb comes first.
class FixedPoint
{
public:
    using Limbs = std::array<std::uint32_t, fractionLimbs + 1>;

    constexpr FixedPoint() = default;
    constexpr explicit FixedPoint(const Limbs &limbs) : m_limbs(limbs) {}

    /// `value` is at least 0, below 2^32, and has no bit beyond the 256th behind the point.
    static FixedPoint from(double value)
    {
        FixedPoint result;
        for (std::size_t i = fractionLimbs + 1; i-- > 0;) {
            const double whole = std::floor(value);
            result.m_limbs[i] = static_cast<std::uint32_t>(whole);
            value = std::ldexp(value - whole, 32);
        }
        return result;
    }

    [[nodiscard]] bool isZero() const
    {
        for (const std::uint32_t limb : m_limbs)
            if (limb != 0)
                return false;
        return true;
    }

    friend bool operator<(const FixedPoint &a, const FixedPoint &b)
    {
        return std::lexicographical_compare(a.m_limbs.rbegin(), a.m_limbs.rend(), b.m_limbs.rbegin(),
                                            b.m_limbs.rend());
    }

    FixedPoint &operator+=(const FixedPoint &other)
    {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < m_limbs.size(); ++i) {
            carry += std::uint64_t{m_limbs[i]} + other.m_limbs[i];
            m_limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        return *this;
    }

    /// `other` is not larger.
    FixedPoint &operator-=(const FixedPoint &other)
    {
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i < m_limbs.size(); ++i) {
            const std::uint64_t difference = std::uint64_t{m_limbs[i]} - other.m_limbs[i] - borrow;
            m_limbs[i] = static_cast<std::uint32_t>(difference);
            borrow = difference >> 63;
        }
        return *this;
    }

    friend FixedPoint operator*(const FixedPoint &a, std::uint32_t factor)
    {
        FixedPoint product;
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < a.m_limbs.size(); ++i) {
            carry += std::uint64_t{a.m_limbs[i]} * factor;
            product.m_limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        return product;
    }

    FixedPoint &operator/=(std::uint32_t divisor)
    {
        std::uint64_t rest = 0;
        for (std::size_t i = m_limbs.size(); i-- > 0;) {
            rest = rest << 32 | m_limbs[i];
            m_limbs[i] = static_cast<std::uint32_t>(rest / divisor);
            rest %= divisor;
        }
        return *this;
    }

    /// The product, truncated; it is below 2^32.
    friend FixedPoint operator*(const FixedPoint &a, const FixedPoint &b)
    {
        std::array<std::uint32_t, 2 * (fractionLimbs + 1)> product{};
        for (std::size_t i = 0; i < a.m_limbs.size(); ++i) {
            std::uint64_t carry = 0;
            for (std::size_t j = 0; j < b.m_limbs.size(); ++j) {
                carry += std::uint64_t{a.m_limbs[i]} * b.m_limbs[j] + product[i + j];
                product[i + j] = static_cast<std::uint32_t>(carry);
                carry >>= 32;
            }
            product[i + b.m_limbs.size()] = static_cast<std::uint32_t>(carry);
        }
        FixedPoint result;
        for (std::size_t i = 0; i < result.m_limbs.size(); ++i)
            result.m_limbs[i] = product[fractionLimbs + i];
        return result;
    }

    /// Times 2^60, truncated; the number is below 16.
    [[nodiscard]] std::uint64_t timesTwoToThe60() const
    {
        return std::uint64_t{m_limbs[fractionLimbs]} << 60 | std::uint64_t{m_limbs[fractionLimbs - 1]} << 28 |
               m_limbs[fractionLimbs - 2] >> 4;
    }

private:
    Limbs m_limbs{};
};

constexpr FixedPoint ln2({0x8baafa2bU, 0x8a0d175bU, 0x7298b62dU, 0x40f34326U, 0x03f2f6afU, 0xc9e3b398U,
                          0xd1cf79abU, 0xb17217f7U, 0});

/// Of `t` from 0 to ln 2.
FixedPoint exponentialSeries(const FixedPoint &t)
{
    FixedPoint sum = FixedPoint::from(1.0);
    FixedPoint term = sum;
    for (std::uint32_t n = 1; !term.isZero(); ++n) {
        term = term * t;
        term /= n;
        sum += term;
    }
    return sum;
}

/// `y`, in (1, 2], times 2^bits, rounded to a whole number; `bits` is -1 .. 52. There are no ties.
std::uint64_t roundedTimesPowerOfTwo(const FixedPoint &y, int bits)
{
    return ((y.timesTwoToThe60() >> (59 - bits)) + 1) >> 1;
}

} // namespace

double exactExp(double x)
{
    const double a = -x;
    if (!(a > 0x1p-54)) // also where it is not a number
        return a == a ? 1.0 : a;
    if (a > 746.0) // below half of the smallest double
        return 0.0;

    const FixedPoint exact = FixedPoint::from(a);
    auto k = static_cast<std::uint32_t>(a / 0.69314718055994530942); // may be off by one
    if (exact < ln2 * k)
        --k;
    else if (!(exact < ln2 * (k + 1)))
        ++k;
    FixedPoint t = ln2 * (k + 1);
    t -= exact;

    constexpr int fullBits = 52; // of a double behind its first one
    constexpr int smallestExponent = -1022;
    const int exponent = -static_cast<int>(k) - 1;
    const int bits = std::min(fullBits, fullBits + exponent - smallestExponent);
    if (bits < -1)
        return 0.0;
    return std::ldexp(static_cast<double>(roundedTimesPowerOfTwo(exponentialSeries(t), bits)),
                      exponent - bits);
}

} // namespace ornevo
