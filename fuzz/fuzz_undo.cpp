// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CBrushCommand.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"

#include <QUndoStack>

#include <vector>

/// Batches on a picture, some of them reaching beyond it, and ways up and down the history.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application();
    Input input(data, size);
    QImage picture = input.picture(1 + input.below(30), 1 + input.below(30), QImage::Format_ARGB32).copy();
    QUndoStack stack;
    std::vector<QImage> states = {picture.copy()};
    int index = 0;
    QRect shown;
    for (int act = input.byte() % 16; act > 0; --act) {
        const int kind = input.byte() % 4;
        if (kind < 2) {
            const QRect area(input.below(60) - 15, input.below(60) - 15, input.below(20), input.below(20));
            const QImage before = area.isEmpty() ? QImage() : picture.copy(area);
            const QRect inside = area & picture.rect();
            for (int y = inside.top(); y <= inside.bottom(); ++y)
                for (int x = inside.left(); x <= inside.right(); ++x)
                    picture.setPixel(x, y, static_cast<QRgb>(input.integer()));
            stack.push(new CBrushCommand([&shown](const QRect &changed) { shown = changed; }, area, &picture,
                                         before));
            require(shown == area, "what was brushed is shown");
            states.resize(static_cast<std::size_t>(++index));
            states.push_back(picture.copy());
        } else {
            index = input.below(stack.count() + 1);
            stack.setIndex(index);
            require(picture == states[static_cast<std::size_t>(index)], "the history gives the picture back");
        }
    }
    return 0;
}
