// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Views.h"
#include "tests/reference/Plane.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace coretest {

inline ornevo::PictureView viewOf(const reference::Picture &picture)
{
    return {reinterpret_cast<const std::uint8_t *>(picture.data.data()), picture.width, picture.height};
}

inline ornevo::MutablePictureView mutableViewOf(reference::Picture &picture)
{
    return {reinterpret_cast<std::uint8_t *>(picture.data.data()), picture.width, picture.height};
}

inline ornevo::PlaneView viewOf(const reference::Plane &plane)
{
    return {plane.data.data(), plane.width, plane.height};
}

inline ornevo::MutablePlaneView mutableViewOf(reference::Plane &plane)
{
    return {plane.data.data(), plane.width, plane.height};
}

/// Rows of bytes with others between them and around, which nobody may touch, off any alignment.
class GuardedRows
{
public:
    GuardedRows(const std::uint8_t *rows, int rowBytes, int height, int padding = 13)
        : m_rowBytes(rowBytes),
          m_height(height),
          m_stride(rowBytes + padding),
          m_memory(static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(height) + 2 * guard, pattern)
    {
        for (int y = 0; y < height; ++y)
            std::copy_n(rows + std::ptrdiff_t{y} * rowBytes, rowBytes, row(y));
    }

    std::uint8_t *row(int y) { return m_memory.data() + guard + std::ptrdiff_t{y} * m_stride; }
    [[nodiscard]] int stride() const { return m_stride; }

    /// The rows without what is between them.
    std::vector<std::uint8_t> values()
    {
        std::vector<std::uint8_t> all;
        for (int y = 0; y < m_height; ++y)
            all.insert(all.end(), row(y), row(y) + m_rowBytes);
        return all;
    }

    [[nodiscard]] bool untouchedAround()
    {
        std::vector<std::uint8_t> around = m_memory;
        for (int y = 0; y < m_height; ++y)
            std::fill_n(around.data() + (row(y) - m_memory.data()), m_rowBytes, pattern);
        return std::all_of(around.begin(), around.end(), [](std::uint8_t byte) { return byte == pattern; });
    }

private:
    static constexpr std::uint8_t pattern = 0xA5;
    static constexpr std::size_t guard = 67;

    int m_rowBytes;
    int m_height;
    int m_stride;
    std::vector<std::uint8_t> m_memory;
};

inline std::vector<std::uint8_t> bytesOf(const reference::Picture &picture)
{
    std::vector<std::uint8_t> bytes(4 * picture.data.size());
    if (!bytes.empty())
        std::memcpy(bytes.data(), picture.data.data(), bytes.size());
    return bytes;
}

} // namespace coretest
