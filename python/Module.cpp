// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Version.h"
#include "python/Docstrings.h"
#include "python/Functions.h"

#include <pybind11/pybind11.h>

namespace py = pybind11;
using namespace ornevo::python;

PYBIND11_MODULE(_ornevo, module)
{
    // The docstrings begin with a signature of their own, which tells names and defaults.
    py::options options;
    options.disable_function_signatures();
    // What people see is the package; they need not know where it keeps its machine code.
    module.attr("__name__") = "ornevo";
    module.attr("__version__") = ornevo::version();
    module.def("edge_map", &edgeMap, docstrings::edgeMap);
    module.def("cut_out", &cutOut, docstrings::cutOut);
    module.def("watershed", &watershed, docstrings::watershed);
    module.def("wave_segment", &waveSegment, docstrings::waveSegment);
    module.def("smooth", &smooth, docstrings::smooth);
    module.def("feather", &feather, docstrings::feather);
    module.attr("__name__") = "ornevo._ornevo";
}
