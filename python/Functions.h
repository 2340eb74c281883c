// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

/// \file
/// The functions of the module. Each takes its arguments apart and checks them all, makes its result, and
/// works without the GIL. docs/python.md and Docstrings.h say what they do.
namespace ornevo::python {

using Args = pybind11::args;
using Kwargs = pybind11::kwargs;

pybind11::array edgeMap(const Args &byPosition, const Kwargs &byName);
pybind11::array smooth(const Args &byPosition, const Kwargs &byName);
pybind11::array feather(const Args &byPosition, const Kwargs &byName);
pybind11::array waveSegment(const Args &byPosition, const Kwargs &byName);
pybind11::array cutOut(const Args &byPosition, const Kwargs &byName);
pybind11::array watershed(const Args &byPosition, const Kwargs &byName);

} // namespace ornevo::python
