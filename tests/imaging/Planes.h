// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imaging/CFrImage.h"
#include "tests/reference/Plane.h"
#include "tests/reference/TestPictures.h"

#include <QByteArray>
#include <QSize>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace testsupport {

/// A plane of the reference, seen as the filters of the program see it.
template <typename T> CFrImage<T> viewOf(reference::PlaneOf<T> &plane)
{
    return {plane.data.data(), plane.width, plane.height, 1, 1};
}

/// A plane to write into, between two blocks of memory that nobody may touch.
template <typename T> class GuardedPlane
{
public:
    explicit GuardedPlane(const reference::PlaneOf<T> &contents)
        : m_width(contents.width),
          m_height(contents.height),
          m_memory(contents.data.size() + 2 * guard, pattern)
    {
        std::copy(contents.data.begin(), contents.data.end(), m_memory.begin() + guard);
    }

    CFrImage<T> view() { return {m_memory.data() + guard, m_width, m_height, 1, 1}; }

    [[nodiscard]] std::vector<T> values() const { return {m_memory.begin() + guard, m_memory.end() - guard}; }

    [[nodiscard]] bool guardsWhole() const
    {
        const auto whole = [](T value) { return value == pattern; };
        return std::all_of(m_memory.begin(), m_memory.begin() + guard, whole) &&
               std::all_of(m_memory.end() - guard, m_memory.end(), whole);
    }

private:
    static constexpr std::ptrdiff_t guard = 64;
    static constexpr T pattern = 0x5A;
    int m_width;
    int m_height;
    std::vector<T> m_memory;
};

inline reference::Plane planeFrom(QSize size, std::vector<std::uint8_t> values)
{
    reference::Plane plane;
    plane.width = size.width();
    plane.height = size.height();
    plane.data = std::move(values);
    return plane;
}

/// One plane of each kind that filters stumble over, all of one size.
inline std::vector<reference::Plane> planesOfAllKinds(QSize size, std::uint32_t seed)
{
    const int w = size.width();
    const int h = size.height();
    return {planeFrom(size, testpictures::randomPlane(w, h, seed)),
            planeFrom(size, testpictures::plateauPlane(w, h, 3, seed)),
            planeFrom(size, testpictures::rampPlane(w, h, 7, 11)),
            planeFrom(size, testpictures::stepPlane(w, h, w / 2, 0, 255)),
            planeFrom(size, testpictures::constantPlane(w, h, 255))};
}

inline QByteArray described(QSize size)
{
    return QByteArray::number(size.width()) + " x " + QByteArray::number(size.height());
}

} // namespace testsupport
