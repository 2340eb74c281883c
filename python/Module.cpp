// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Version.h"
#include "python/Docstrings.h"
#include "python/Functions.h"

#include <pybind11/pybind11.h>

#include <array>
#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace py = pybind11;
using namespace ornevo::python;

namespace {

/// What the core refuses although it passed the checks here, as a picture so wide and low that its places
/// can't be counted. It calls the picture by other names.
void setRefusal(const std::invalid_argument &refusal)
{
    std::string text = refusal.what();
    if (text.starts_with("picture ") || text.starts_with("src "))
        text.replace(0, text.find(' '), "image");
    PyErr_SetString(PyExc_ValueError, text.c_str());
}

using Function = py::array (*)(const Args &, const Kwargs &);

/// A function as Python calls it; no C++ exception gets out.
template <Function function> PyObject *called(PyObject * /*module*/, PyObject *byPosition, PyObject *byName)
{
    try {
        const auto args = py::reinterpret_borrow<Args>(byPosition);
        const auto kwargs = byName != nullptr ? py::reinterpret_borrow<Kwargs>(byName) : Kwargs();
        return function(args, kwargs).release().ptr();
    } catch (py::error_already_set &error) {
        error.restore();
    } catch (const std::bad_alloc &) {
        PyErr_NoMemory();
    } catch (const std::invalid_argument &refusal) {
        setRefusal(refusal);
    } catch (const std::exception &error) {
        PyErr_SetString(PyExc_RuntimeError, error.what());
    }
    return nullptr;
}

template <Function function> PyMethodDef method(const char *name, const char *documentation)
{
    // Python's own type of pointer to functions that take names; the flags say what it really is.
    return {name, reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(&called<function>)),
            METH_VARARGS | METH_KEYWORDS, documentation};
}

} // namespace

PYBIND11_MODULE(_ornevo, module)
{
    // Functions of the module itself, so that they can be pickled, as multiprocessing does; those that
    // pybind11 makes can not. Their docstrings begin with a signature, which tells names and defaults.
    static std::array<PyMethodDef, 7> methods{
        method<&edgeMap>("edge_map", docstrings::edgeMap),
        method<&cutOut>("cut_out", docstrings::cutOut),
        method<&watershed>("watershed", docstrings::watershed),
        method<&waveSegment>("wave_segment", docstrings::waveSegment),
        method<&smooth>("smooth", docstrings::smooth),
        method<&feather>("feather", docstrings::feather),
        PyMethodDef{nullptr, nullptr, 0, nullptr},
    };
    // What people see is the package; they need not know where it keeps its machine code.
    module.attr("__name__") = "ornevo";
    if (PyModule_AddFunctions(module.ptr(), methods.data()) != 0)
        throw py::error_already_set();
    module.attr("__name__") = "ornevo._ornevo";
    module.attr("__version__") = ornevo::version();
}
