// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/Arrays.h"

#include "python/Errors.h"

#include <climits>

namespace py = pybind11;

namespace ornevo::python {

namespace {

py::array arrayArgument(py::handle object, const char *name)
{
    if (!py::isinstance<py::array>(object))
        raise(PyExc_TypeError, "%s must be a numpy array, not %.200s", name, typeName(object));
    return py::reinterpret_borrow<py::array>(object);
}

/// numpy resizes no array that something refers to weakly, not even with refcheck=False.
std::vector<py::weakref> pinned(const py::array &array)
{
    std::vector<py::weakref> pins;
    for (py::object owner = array; owner && py::isinstance<py::array>(owner);
         owner = py::reinterpret_borrow<py::array>(owner).base())
        pins.emplace_back(owner);
    return pins;
}

ArrayArgument checked(const py::array &array)
{
    ArrayArgument argument;
    argument.type = array.dtype();
    argument.view.data = static_cast<const std::uint8_t *>(array.data());
    argument.view.height = static_cast<int>(array.shape(0));
    argument.view.width = static_cast<int>(array.shape(1));
    argument.view.rowStride = array.strides(0);
    argument.view.columnStride = array.strides(1);
    if (array.ndim() == 3) {
        argument.view.channels = static_cast<int>(array.shape(2));
        argument.view.channelStride = array.strides(2);
    }
    argument.isGrey = array.ndim() == 2;
    argument.pins = pinned(array);
    return argument;
}

bool isUint8(const py::dtype &type)
{
    return type.kind() == 'u' && type.itemsize() == 1;
}

/// As Python shows it; a subclass may have put something else there.
py::tuple shapeOf(const py::array &array)
{
    py::tuple shape(static_cast<std::size_t>(array.ndim()));
    for (py::ssize_t i = 0; i < array.ndim(); ++i)
        shape[static_cast<std::size_t>(i)] = array.shape(i);
    return shape;
}

void checkSize(const py::array &array, const char *name)
{
    // Also the rows and columns of a picture without pixels have to fit.
    constexpr py::ssize_t most = INT_MAX;
    const py::ssize_t height = array.shape(0);
    const py::ssize_t width = array.shape(1);
    if (height > most || width > most || (height > 0 && width > most / height))
        raise(PyExc_ValueError, "%s has more pixels than can be worked on: %zd x %zd, at most %d in all",
              name, width, height, INT_MAX);
}

void checkPlane(const py::array &array, const char *name, const StridedView &picture)
{
    if (array.ndim() != 2 || array.shape(0) != picture.height || array.shape(1) != picture.width)
        raise(PyExc_ValueError,
              "%s must have the height and width of the picture, (%d, %d), not the shape %S", name,
              picture.height, picture.width, shapeOf(array).ptr());
}

} // namespace

ArrayArgument imageArgument(py::handle object, const char *name)
{
    const py::array array = arrayArgument(object, name);
    if (!isUint8(array.dtype()))
        raise(PyExc_TypeError, "%s must be an array of uint8, not of %S", name, array.dtype().ptr());
    if (array.ndim() != 2 && (array.ndim() != 3 || (array.shape(2) != 3 && array.shape(2) != 4)))
        raise(PyExc_ValueError, "%s must have the shape (H, W), (H, W, 3) or (H, W, 4), not %S", name,
              shapeOf(array).ptr());
    checkSize(array, name);
    return checked(array);
}

ArrayArgument maskArgument(py::handle object, const char *name, const StridedView &picture)
{
    const py::array array = arrayArgument(object, name);
    if (array.dtype().kind() != 'b')
        raise(PyExc_TypeError, "%s must be an array of bool, not of %S", name, array.dtype().ptr());
    checkPlane(array, name, picture);
    return checked(array);
}

ArrayArgument edgesArgument(py::handle object, const char *name, const StridedView &picture)
{
    const py::array array = arrayArgument(object, name);
    if (!isUint8(array.dtype()))
        raise(PyExc_TypeError, "%s must be an array of uint8, not of %S", name, array.dtype().ptr());
    checkPlane(array, name, picture);
    return checked(array);
}

ArrayArgument markersArgument(py::handle object, const char *name, const StridedView &picture)
{
    const py::array array = arrayArgument(object, name);
    const char kind = array.dtype().kind();
    if (kind != 'i' && kind != 'u')
        raise(PyExc_TypeError, "%s must be an array of integers, not of %S", name, array.dtype().ptr());
    checkPlane(array, name, picture);
    return checked(array);
}

py::array_t<std::uint8_t> newPicture(const StridedView &picture, int channels)
{
    return py::array_t<std::uint8_t>({picture.height, picture.width, channels});
}

} // namespace ornevo::python
