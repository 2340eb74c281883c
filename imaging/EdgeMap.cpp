// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/EdgeMap.h"

#include "core/EdgeMap.h"
#include "imaging/Views.h"

#include <QImage>

namespace imaging {

void computeEdgeMap(const QImage &picture, std::uint8_t *edges)
{
    ornevo::computeEdgeMap(viewOf(picture), {edges, picture.width(), picture.height()});
}

} // namespace imaging
