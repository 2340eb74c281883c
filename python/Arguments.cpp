// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/Arguments.h"

#include "python/Errors.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace py = pybind11;

namespace ornevo::python {

namespace {

std::size_t countOf(const Signature &signature)
{
    const auto end = std::find(signature.names.begin(), signature.names.end(), nullptr);
    return static_cast<std::size_t>(end - signature.names.begin());
}

bool isName(py::handle object, const char *name)
{
    return PyUnicode_CompareWithASCIIString(object.ptr(), name) == 0;
}

} // namespace

Arguments::Arguments(const Signature &signature, const py::args &byPosition, const py::kwargs &byName)
    : m_signature(signature)
{
    takeByPosition(byPosition);
    for (const auto &[name, value] : byName)
        takeByName(name, value);

    for (std::size_t i = 0; i < signature.required; ++i)
        if (!m_values[i])
            raise(PyExc_TypeError, "%s() missing required argument: '%s'", signature.function,
                  signature.names[i]);
    for (py::handle &value : m_values)
        if (!value)
            value = Py_None;
    if (!m_progress)
        m_progress = Py_None;
}

void Arguments::takeByPosition(const py::args &arguments)
{
    const std::size_t count = countOf(m_signature);
    if (arguments.size() > count)
        raise(PyExc_TypeError, "%s() takes at most %zu positional argument%s (%zu given)",
              m_signature.function, count, count == 1 ? "" : "s", arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i)
        m_values[i] = PyTuple_GET_ITEM(arguments.ptr(), static_cast<Py_ssize_t>(i));
}

void Arguments::takeByName(py::handle name, py::handle value)
{
    if (!PyUnicode_Check(name.ptr()))
        raise(PyExc_TypeError, "%s() keywords must be strings", m_signature.function);
    if (isName(name, "progress")) {
        m_progress = value;
        return;
    }
    for (std::size_t i = 0; i < countOf(m_signature); ++i) {
        if (!isName(name, m_signature.names[i]))
            continue;
        if (m_values[i])
            raise(PyExc_TypeError, "%s() got multiple values for argument '%s'", m_signature.function,
                  m_signature.names[i]);
        m_values[i] = value;
        return;
    }
    raise(PyExc_TypeError, "%s() got an unexpected keyword argument '%U'", m_signature.function, name.ptr());
}

int integerArgument(py::handle value, const char *name)
{
    const auto index = py::reinterpret_steal<py::object>(PyNumber_Index(value.ptr()));
    if (!index && PyErr_ExceptionMatches(PyExc_TypeError))
        raise(PyExc_TypeError, "%s must be an integer, not %.200s", name, typeName(value));
    if (!index)
        throw py::error_already_set();
    int overflow = 0;
    const long number = PyLong_AsLongAndOverflow(index.ptr(), &overflow);
    if (overflow != 0)
        return overflow > 0 ? INT_MAX : INT_MIN;
    return static_cast<int>(std::clamp<long>(number, INT_MIN, INT_MAX));
}

double sigmaArgument(py::handle value, const char *name)
{
    const double number = PyFloat_AsDouble(value.ptr());
    if (number == -1.0 && PyErr_Occurred() != nullptr) {
        if (PyErr_ExceptionMatches(PyExc_TypeError) || PyErr_ExceptionMatches(PyExc_ValueError))
            raise(PyExc_TypeError, "%s must be a number, not %.200s", name, typeName(value));
        if (PyErr_ExceptionMatches(PyExc_OverflowError))
            raise(PyExc_ValueError, "%s is too large a number", name);
        throw py::error_already_set();
    }
    if (!std::isfinite(number) || number < 0)
        raise(PyExc_ValueError, "%s must be finite and at least 0, not %R", name, value.ptr());
    return number;
}

} // namespace ornevo::python
