// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <pybind11/pybind11.h>

#include <array>
#include <cstddef>

namespace ornevo::python {

constexpr std::size_t mostParameters = 4;

/// The parameters of a function: the first `required` of `names` have to be given, the others may be. All of
/// them may be given by position or by name, and `progress` beside them by its name only.
struct Signature
{
    const char *function;
    std::array<const char *, mostParameters> names; ///< those behind the last one are null
    std::size_t required;
};

/// The arguments of a call, taken apart as Python does it for functions that are written in Python. (What the
/// binding library does by itself answers a wrong call with the list of all signatures.)
class Arguments
{
public:
    /// Raises TypeError for arguments that are missing, surplus, unknown or given twice.
    Arguments(const Signature &signature, const pybind11::args &byPosition, const pybind11::kwargs &byName);

    /// None where the argument was not given.
    [[nodiscard]] pybind11::handle operator[](std::size_t parameter) const { return m_values.at(parameter); }
    [[nodiscard]] pybind11::handle progress() const { return m_progress; }

private:
    void takeByPosition(const pybind11::args &arguments);
    void takeByName(pybind11::handle name, pybind11::handle value);

    const Signature &m_signature;
    std::array<pybind11::handle, mostParameters> m_values;
    pybind11::handle m_progress;
};

/// An integer, where one beyond the range of int is as good as the largest or the smallest. Raises TypeError
/// that names the argument.
[[nodiscard]] int integerArgument(pybind11::handle value, const char *name);

/// A finite number of at least 0. Raises TypeError or ValueError.
[[nodiscard]] double sigmaArgument(pybind11::handle value, const char *name);

} // namespace ornevo::python
