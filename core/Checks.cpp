// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Checks.h"

#include <limits>
#include <stdexcept>
#include <string>

namespace ornevo::checks {

namespace {

/// `rowLength` and `stride` in elements, which can't exceed what a pointer reaches.
void memory(const void *data, int width, int height, std::ptrdiff_t rowLength, std::ptrdiff_t stride,
            const char *name)
{
    if (width < 0 || height < 0)
        fail(name, "has a size below 0");
    if (width == 0 || height == 0)
        return;
    if (data == nullptr)
        fail(name, "is null");
    if (stride < rowLength)
        fail(name, "has rows that overlap");
    if (stride > std::numeric_limits<std::ptrdiff_t>::max() / (std::ptrdiff_t{2} * height))
        fail(name, "is larger than any memory");
}

} // namespace

void fail(const char *name, const char *what)
{
    throw std::invalid_argument(std::string(name) + " " + what);
}

void picture(const PictureView &view, const char *name)
{
    memory(view.pixels, view.width, view.height, std::ptrdiff_t{4} * view.width, view.bytesPerRow, name);
}

void plane(const PlaneView &view, const char *name)
{
    if (view.channels != 1)
        fail(name, "has not one channel");
    memory(view.bytes, view.width, view.height, view.width, view.bytesPerRow, name);
}

void channels(const PlaneView &view, const char *name)
{
    if (view.channels < 1 || view.channels > 4)
        fail(name, "has not one to four channels");
    memory(view.bytes, view.width, view.height, std::ptrdiff_t{view.width} * view.channels, view.bytesPerRow,
           name);
}

template <typename Element> void words(const WordPlaneView<Element> &view, const char *name)
{
    memory(view.elements, view.width, view.height, view.width, view.elementsPerRow, name);
}
template void words(const WordPlaneView<std::int16_t> &view, const char *name);
template void words(const WordPlaneView<std::uint16_t> &view, const char *name);
template void words(const WordPlaneView<std::int32_t> &view, const char *name);

void sameSize(int width, int height, int wantedWidth, int wantedHeight, const char *name)
{
    if (width != wantedWidth || height != wantedHeight)
        fail(name, "has another size");
}

void indexable(int width, int height, const char *name)
{
    if (std::int64_t{width} * height > std::numeric_limits<int>::max())
        fail(name, "has more pixels than an int can count");
}

} // namespace ornevo::checks
