// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/ExactExp.h"
#include "core/GaussianWeights.h"
#include "tests/core/ExpectedWeights.h"
#include "tests/reference/GaussianBlurReference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(ExactExp, isCorrectlyRounded)
{
    for (const coretest::Exponential &expected : coretest::exponentials)
        EXPECT_EQ(ornevo::exactExp(expected.exponent), expected.value) << expected.exponent;
}

TEST(ExactExp, atTheEnds)
{
    EXPECT_EQ(ornevo::exactExp(0.0), 1.0);
    EXPECT_EQ(ornevo::exactExp(-0.0), 1.0);
    EXPECT_EQ(ornevo::exactExp(-std::numeric_limits<double>::denorm_min()), 1.0);
    EXPECT_EQ(ornevo::exactExp(-infinite), 0.0);
    EXPECT_EQ(ornevo::exactExp(-std::numeric_limits<double>::max()), 0.0);
    EXPECT_TRUE(std::isnan(ornevo::exactExp(notANumber)));
}

// The reference takes the C library's exp(), which is off by one bit now and then, but for none of these.
TEST(GaussianWeights, areTheReferenceUpTo99Taps)
{
    for (int taps = 1; taps <= 99; ++taps)
        for (const double sigma : {taps / 5.0, 1.0, 1.4, -1.4}) {
            const std::vector<double> expected = reference::gaussianWeights(taps, sigma);
            const std::vector<double> half = ornevo::gaussianHalfKernel(taps, sigma);
            const std::size_t radius = static_cast<std::size_t>(taps) / 2;
            ASSERT_EQ(half.size(), radius + 1);
            for (std::size_t k = 0; k <= radius; ++k)
                EXPECT_EQ(half[k], expected[radius - k]) << taps << " taps, sigma " << sigma << ", " << k;
        }
}

TEST(GaussianWeights, ofAnUnusableSigmaChangeNothing)
{
    for (const double sigma : {0.0, -0.0, notANumber, infinite, -infinite, 1e200, -1e200, 1e-200})
        EXPECT_EQ(ornevo::gaussianHalfKernel(7, sigma), std::vector<double>({1.0, 0.0, 0.0, 0.0})) << sigma;
}
