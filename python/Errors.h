// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <pybind11/pybind11.h>

namespace ornevo::python {

/// Raises a Python exception of the class `type`; `format` and what follows are those of PyErr_Format().
/// Takes the GIL to be held. An error that is set already is dropped.
template <typename... Values> [[noreturn]] void raise(PyObject *type, const char *format, Values... values)
{
    PyErr_Clear();
    PyErr_Format(type, format, values...);
    throw pybind11::error_already_set();
}

/// The name of the class of an object, for messages.
inline const char *typeName(pybind11::handle object)
{
    return Py_TYPE(object.ptr())->tp_name;
}

} // namespace ornevo::python
