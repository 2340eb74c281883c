// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/BackgroundLayer.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"
#include "tests/reference/MaskReference.h"

#include <array>

/// Colours over checkerboards of any size and format, and pictures.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application(); // pixmaps need it
    Input input(data, size);
    const QSize wanted(1 + input.below(70), 1 + input.below(70));
    const auto colour = static_cast<QRgb>(input.integer());
    constexpr std::array formats = {QImage::Format_RGB32, QImage::Format_ARGB32,
                                    QImage::Format_ARGB32_Premultiplied};
    // A checkerboard is read from a PNG file, which has not multiplied its colours by their alpha.
    const QImage::Format format = formats[input.byte() % 2];
    const QImage checkerboard = input.picture(1 + input.below(40), 1 + input.below(40), QImage::Format_ARGB32)
                                    .convertToFormat(format);
    const bool showsPicture = input.byte() % 2 == 0;
    QImage picture;
    if (showsPicture)
        picture = input.picture(1 + input.below(40), 1 + input.below(40), QImage::Format_ARGB32)
                      .convertToFormat(formats[input.byte() % formats.size()]);

    const QPixmap found = cutout::backgroundLayer(wanted, colour, checkerboard, picture);
    const QPixmap expected =
        reference::backgroundLayer(colour, picture, checkerboard, wanted.width(), wanted.height());
    require(found.toImage().convertToFormat(QImage::Format_ARGB32) ==
                expected.toImage().convertToFormat(QImage::Format_ARGB32),
            "the background layer is the reference's");
    return 0;
}
