// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Views.h"

class QImage;

namespace imaging {

/// The pixels of a picture of four bytes a pixel, for the functions of core/. The view is good as long as the
/// picture lives and is not changed. A null picture gives a view without pixels; any other depth throws
/// std::invalid_argument.
[[nodiscard]] ornevo::PictureView viewOf(const QImage &picture);

/// The same to write through; a picture whose pixels are shared gets its own first.
[[nodiscard]] ornevo::MutablePictureView mutableViewOf(QImage &picture);

} // namespace imaging
