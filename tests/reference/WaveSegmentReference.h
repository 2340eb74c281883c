// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#ifndef ORNEVO_TESTS_REFERENCE_WAVESEGMENTREFERENCE_H
#define ORNEVO_TESTS_REFERENCE_WAVESEGMENTREFERENCE_H

#include <QImage>
#include <QList>

namespace reference {

/// Splits the picture into regions of similar colour and appends one list of
/// pixel indices for each region. Always returns 0.
int waveSegment(const QImage &picture, QList<QList<int>> &regions, int threshold);

bool isBlack(unsigned char value);
bool isWhite(unsigned char value);

} // namespace reference

#endif
