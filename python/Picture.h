// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/LargeMemory.h"
#include "core/Views.h"
#include "python/Pixels.h"

namespace ornevo::python {

/// An image in the layout of the core: where it has that already, it is looked at in place, and else copied
/// once. Used without the GIL. Throws std::bad_alloc.
class Picture
{
public:
    /// With any order of the colours, for work that treats them alike.
    static Picture inAnyOrder(const StridedView &image);
    static Picture blueFirst(const StridedView &image);

    [[nodiscard]] const PictureView &view() const { return m_view; }

private:
    Picture() = default;
    static Picture copied(const StridedView &image, ChannelOrder order);

    LargeArray<std::uint8_t> m_copy;
    PictureView m_view;
};

/// A plane of bytes, likewise.
class Plane
{
public:
    explicit Plane(const StridedView &plane);

    [[nodiscard]] const PlaneView &view() const { return m_view; }

private:
    LargeArray<std::uint8_t> m_copy;
    PlaneView m_view;
};

} // namespace ornevo::python
