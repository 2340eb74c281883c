// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Version.h"
#include "python/Docstrings.h"
#include "python/Functions.h"

#include <pybind11/pybind11.h>

#include <exception>
#include <stdexcept>
#include <string>

namespace py = pybind11;
using namespace ornevo::python;

namespace {

/// What the core refuses although it passed the checks here, as a picture so wide and low that its places
/// can't be counted. It calls the picture by another name.
void translateRefusal(std::exception_ptr thrown)
{
    try {
        std::rethrow_exception(thrown);
    } catch (const std::invalid_argument &refusal) {
        std::string text = refusal.what();
        if (text.starts_with("picture ") || text.starts_with("src "))
            text.replace(0, text.find(' '), "image");
        PyErr_SetString(PyExc_ValueError, text.c_str());
    }
}

} // namespace

PYBIND11_MODULE(_ornevo, module)
{
    // The docstrings begin with a signature of their own, which tells names and defaults.
    py::options options;
    options.disable_function_signatures();
    // What people see is the package; they need not know where it keeps its machine code.
    module.attr("__name__") = "ornevo";
    module.attr("__version__") = ornevo::version();
    py::register_local_exception_translator(translateRefusal);
    module.def("edge_map", &edgeMap, docstrings::edgeMap);
    module.def("cut_out", &cutOut, docstrings::cutOut);
    module.def("watershed", &watershed, docstrings::watershed);
    module.def("wave_segment", &waveSegment, docstrings::waveSegment);
    module.def("smooth", &smooth, docstrings::smooth);
    module.def("feather", &feather, docstrings::feather);
    module.attr("__name__") = "ornevo._ornevo";
}
