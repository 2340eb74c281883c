// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/EdgeDetectors.h"
#include "core/Views.h"

/// \file
/// What every entry of the library asks about its arguments before it does anything. All throw
/// std::invalid_argument, whose text begins with `name`. Not part of the interface.
namespace ornevo::checks {

void picture(const PictureView &view, const char *name);

/// Also that there is one channel.
void plane(const PlaneView &view, const char *name);

/// Also that there are 1 to 4 channels.
void channels(const PlaneView &view, const char *name);

template <typename Element> void words(const WordPlaneView<Element> &view, const char *name);

/// That a view has the width and height of another argument.
void sameSize(int width, int height, int wantedWidth, int wantedHeight, const char *name);
template <typename View, typename Other>
void sameSize(const View &view, const Other &wanted, const char *name)
{
    sameSize(view.width, view.height, wanted.width, wanted.height, name);
}

/// That an int can hold the index of every pixel.
void indexable(int width, int height, const char *name);

[[noreturn]] void fail(const char *name, const char *what);

} // namespace ornevo::checks
