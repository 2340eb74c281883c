// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#ifndef ORNEVO_TESTS_REFERENCE_FEATHERINGREFERENCE_H
#define ORNEVO_TESTS_REFERENCE_FEATHERINGREFERENCE_H

#include <QBitmap>
#include <QImage>

namespace reference {

/// Fades the alpha of \a picture along the border of the mask's set area.
void feather(QImage &picture, const QBitmap &mask, int count);

/// The same with the mask as a 32-bit image: black 0xff000000 is set, white
/// 0xffffffff is clear.
void featherWithMaskImage(QImage &picture, const QImage &mask, int count);

} // namespace reference

#endif
