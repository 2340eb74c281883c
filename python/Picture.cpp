// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/Picture.h"

#include <new>

namespace ornevo::python {

namespace {

LargeArray<std::uint8_t> newBytes(std::size_t count)
{
    LargeArray<std::uint8_t> bytes = makeLargeArray<std::uint8_t>(count);
    if (bytes == nullptr && count > 0)
        throw std::bad_alloc();
    return bytes;
}

} // namespace

Picture Picture::inAnyOrder(const StridedView &image)
{
    if (image.channels != 4 || !image.isPacked(4))
        return copied(image, ChannelOrder::RedFirst);
    Picture picture;
    picture.m_view = PictureView(image.data, image.width, image.height, image.rowStride);
    return picture;
}

Picture Picture::blueFirst(const StridedView &image)
{
    return copied(image, ChannelOrder::BlueFirst);
}

Picture Picture::copied(const StridedView &image, ChannelOrder order)
{
    Picture picture;
    picture.m_copy = newBytes(4 * image.pixels());
    writeFourChannels(image, order, picture.m_copy.get());
    picture.m_view = PictureView(picture.m_copy.get(), image.width, image.height);
    return picture;
}

Plane::Plane(const StridedView &plane)
{
    if (plane.isPacked(1)) {
        m_view = PlaneView(plane.data, plane.width, plane.height, plane.rowStride);
        return;
    }
    m_copy = newBytes(plane.pixels());
    writePacked(plane, m_copy.get());
    m_view = PlaneView(m_copy.get(), plane.width, plane.height);
}

} // namespace ornevo::python
