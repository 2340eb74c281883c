// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "python/StridedView.h"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <vector>

namespace ornevo::python {

/// An array that was handed in, after all checks. Its memory stays where it is as long as this exists: the
/// array can't be resized in place meanwhile, by another thread or by a progress callable.
struct ArrayArgument
{
    StridedView view;
    pybind11::dtype type;
    bool isGrey = false; ///< without a dimension of channels
    std::vector<pybind11::weakref> pins;
};

/// An array of uint8, `(H, W)`, `(H, W, 3)` or `(H, W, 4)`, of no more pixels than an int can count. This and
/// the others raise TypeError for what is no such array, ValueError for a wrong shape; both name the
/// argument.
[[nodiscard]] ArrayArgument imageArgument(pybind11::handle object, const char *name);

/// Arrays `(H, W)` of the size of `picture`: of bool, of uint8, of any integers in any byte order.
[[nodiscard]] ArrayArgument maskArgument(pybind11::handle object, const char *name,
                                         const StridedView &picture);
[[nodiscard]] ArrayArgument edgesArgument(pybind11::handle object, const char *name,
                                          const StridedView &picture);
[[nodiscard]] ArrayArgument markersArgument(pybind11::handle object, const char *name,
                                            const StridedView &picture);

/// A new array `(H, W)`, or `(H, W, channels)`, with values that are yet to be written.
template <typename T> pybind11::array_t<T> newPlane(const StridedView &picture)
{
    return pybind11::array_t<T>({picture.height, picture.width});
}
pybind11::array_t<std::uint8_t> newPicture(const StridedView &picture, int channels);

} // namespace ornevo::python
