// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/LargeMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;

} // namespace

TEST(LargeMemory, arrays)
{
    for (const std::size_t count : {std::size_t{0}, std::size_t{1}, hugePage - 1, hugePage, hugePage + 1}) {
        const ornevo::LargeArray<unsigned char> array = ornevo::makeLargeArray<unsigned char>(count);
        ASSERT_NE(array, nullptr);
        std::fill_n(array.get(), count, std::uint8_t{7});
        if (count >= hugePage) {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(array.get()) % hugePage, 0U);
        }
    }
    EXPECT_EQ(ornevo::makeLargeArray<int>(std::size_t{1} << 62), nullptr);
    EXPECT_EQ(ornevo::makeLargeArray<int>(~std::size_t{0} / 4), nullptr);
    ornevo::LargeArray<int> moved;
    moved = ornevo::makeLargeArray<int>(3);
    EXPECT_NE(moved, nullptr);
}

TEST(LargeMemory, containers)
{
    std::vector<int, ornevo::LargeAllocator<int>> numbers(5, 1);
    for (int i = 0; i < 2'000'000; ++i) // grows through small and large memory
        numbers.push_back(i);
    EXPECT_EQ(numbers[4], 1);
    EXPECT_EQ(numbers.back(), 1'999'999);
    using Chars = std::vector<char, ornevo::LargeAllocator<char>>;
    EXPECT_THROW(Chars(~std::size_t{0} / 2), std::bad_alloc);
}
