// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <hwy/targets.h>

#include <cstddef>
#include <cstdint>

/// Runs the kernels with one instruction set of this machine, which the last byte of the input chooses, as
/// long as it lives.
class SimdTarget
{
public:
    SimdTarget(const std::uint8_t *data, std::size_t size)
    {
        const auto targets = hwy::SupportedAndGeneratedTargets();
        if (size == 0 || targets.empty())
            return;
        hwy::SetSupportedTargetsForTest(targets[data[size - 1] % targets.size()]);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }
    ~SimdTarget()
    {
        hwy::SetSupportedTargetsForTest(0);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    }
    SimdTarget(const SimdTarget &) = delete;
    SimdTarget &operator=(const SimdTarget &) = delete;
};
