// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Walks a small photo through the program and compares what the window holds with the plain references: the
/// picture and its edges after opening, the mask, the cut-out, the brush and its undo, the background and the
/// export. Empty, or which of them is wrong. The walk is done once.
const QByteArray &faultOfSteps();
