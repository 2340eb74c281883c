// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <hwy/targets.h>

#include <cstdint>

namespace coretest {

/// Calls check() with every instruction set that this machine has and the library was compiled for, one after
/// the other.
template <typename Check> void onEveryTarget(Check check)
{
    const auto targets = hwy::SupportedAndGeneratedTargets();
    ASSERT_FALSE(targets.empty());
    for (const std::int64_t target : targets) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
        check();
        hwy::SetSupportedTargetsForTest(0);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace coretest
