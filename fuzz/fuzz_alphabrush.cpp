// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/AlphaBrush.h"
#include "fuzz/Input.h"
#include "tests/reference/MaskReference.h"

namespace {

QRect anySquare(Input &input, bool wild)
{
    const auto far = [&input] { return input.integer() / 4; }; // a corner plus a side is an int
    if (wild)
        return {far(), far(), far(), far()};
    return {input.below(120) - 40, input.below(120) - 40, input.below(60) - 4, input.below(60) - 4};
}

} // namespace

/// Batches of round dabs, as large and as far off as they come.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const QImage picture =
        input.picture(1 + input.below(48), 1 + input.below(48), QImage::Format_ARGB32).copy();
    const bool wild = input.byte() % 4 == 0;
    const QPoint offset =
        wild ? QPoint(input.integer(), input.integer()) : QPoint(input.below(60) - 30, input.below(60) - 30);
    QList<QRect> squares;
    for (int count = input.byte() % 12; count > 0; --count)
        squares.append(anySquare(input, wild));
    const int intensity = input.byte();
    const bool keep = input.byte() % 2 == 0;

    QImage found = picture.copy();
    const cutout::BrushBatch batch = cutout::brushBatch(squares, offset, picture.size());
    cutout::changeAlpha(found, batch.pixels, keep ? intensity : -intensity);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const bool inside = batch.pixels.contains(QPoint(x, y));
            require(inside || found.pixel(x, y) == picture.pixel(x, y),
                    "a brush changes its own pixels only");
            require((found.pixel(x, y) & 0xFFFFFFU) == (picture.pixel(x, y) & 0xFFFFFFU),
                    "a brush leaves the colours");
        }
    if (wild) // the plain code would list rows by the million
        return 0;
    QImage expected = picture.copy();
    const auto plain = reference::applyBrush(
        expected, squares, offset, keep ? reference::Brush::Keep : reference::Brush::Remove, intensity);
    require(found == expected, "the brush changes the alpha as the reference does");
    require(batch.box == plain.box, "the box is the reference's");
    return 0;
}
