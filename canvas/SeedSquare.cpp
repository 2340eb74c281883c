// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/SeedSquare.h"

#include "core/Truncation.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace markers {

void appendSeedSquare(const QRectF &rect, QSize size, QList<int> &seeds)
{
    const std::int64_t left = ornevo::truncateToInt(rect.x());
    const std::int64_t top = ornevo::truncateToInt(rect.y());
    const std::int64_t side = ornevo::truncateToInt(rect.width());
    const std::int64_t columns = std::min<std::int64_t>(side, size.width() - left);
    const std::int64_t rows = std::min<std::int64_t>(side, size.height() - top);
    if (columns <= 0 || rows <= 0)
        return;
    for (std::int64_t column = 0; column < columns; ++column) {
        for (std::int64_t row = 0; row < rows; ++row) {
            const std::int64_t index = (top + row) * size.width() + left + column;
            if (index >= std::numeric_limits<int>::min() && index <= std::numeric_limits<int>::max())
                seeds.append(static_cast<int>(index));
        }
    }
}

} // namespace markers
