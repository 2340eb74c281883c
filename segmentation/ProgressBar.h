// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Progress.h"

#include <QProgressBar>

namespace segmentation {

/// Shows progress on a bar, which may be null.
inline ornevo::ProgressCallback showOn(QProgressBar *bar)
{
    if (bar == nullptr)
        return {};
    return [bar](int percent) { bar->setValue(percent); };
}

} // namespace segmentation
