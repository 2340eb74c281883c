// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"
#include "segmentation/OvDoFeathering.h"
#include "tests/reference/ImageReferences.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application(); // bitmaps need it
    Input input(data, size);
    const int width = 1 + input.below(40);
    const int height = 1 + input.below(40);
    const int count = input.byte() % 4 == 0 ? input.integer() : input.below(8) - 1;
    QImage picture = input.picture(width, height, QImage::Format_ARGB32);
    QImage bits(width, height, QImage::Format_MonoLSB);
    const int kind = input.byte() % 3;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            bits.setPixel(x, y,
                          kind == 0 ? input.byte() % 2U : x / 5 % 2U ^ (input.byte() % 8 == 0 ? 1U : 0U));
    const QBitmap mask = QBitmap::fromImage(bits);

    QImage expected = picture.copy();
    reference::feather(expected, mask, count < 0 ? 0 : std::min(count, 1000));
    OvDoFeathering(&picture, mask, count < 0 ? 0 : count);
    require(picture == expected, "OvDoFeathering fades as the reference does");
    return 0;
}
