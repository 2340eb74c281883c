// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Views.h"
#include "python/Pixels.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ornevo::python {

/// Marked pixels sorted into one list for each label, labels in increasing order.
class SeedLists
{
public:
    SeedLists() = default;
    explicit SeedLists(const MarkedPixels &marked);

    /// The distinct labels, one for each list.
    [[nodiscard]] const std::vector<std::int32_t> &names() const { return m_names; }
    /// Refers to this object.
    [[nodiscard]] std::vector<PixelIndices> lists() const;

private:
    std::vector<std::int32_t> m_names;
    std::vector<std::size_t> m_ends; ///< of each list within m_indices
    std::vector<int> m_indices;
};

} // namespace ornevo::python
