// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/Progress.h"

#include "python/Errors.h"

#include <algorithm>

namespace py = pybind11;

namespace ornevo::python {

Progress::Progress(py::handle callable) : m_callable(callable)
{
    if (!callable.is_none() && PyCallable_Check(callable.ptr()) == 0)
        raise(PyExc_TypeError, "progress must be callable or None, not %.200s", typeName(callable));
}

ProgressCallback Progress::callback()
{
    if (m_callable.is_none())
        return {};
    return [this](int percent) {
        // Asking for the GIL can take milliseconds while other threads work; the same percentage isn't worth
        // it.
        if (percent <= m_last)
            return;
        const py::gil_scoped_acquire held;
        report(percent);
    };
}

void Progress::finish()
{
    if (!m_callable.is_none() && m_last < 100)
        report(100);
}

void Progress::report(int percent)
{
    m_last = std::min(percent, 100);
    m_callable(m_last);
}

} // namespace ornevo::python
