// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/ExportComposition.h"
#include "cutout/PictureFile.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"
#include "tests/reference/MaskReference.h"

namespace {

/// Whether the plain code makes the object, stretched to what this comes to, in memory.
bool isModest(const QImage &cutOut, QSize background, QSize size)
{
    constexpr double most = 2000;
    return double(cutOut.width()) * size.width() / background.width() < most &&
           double(cutOut.height()) * size.height() / background.height() < most;
}

} // namespace

/// Compositions of any proportions, and the files that come of them.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application(); // pixmaps need it
    Input input(data, size);
    reference::ExportSource source;
    if (input.byte() % 2 == 0)
        source.backgroundImage =
            input.picture(1 + input.below(40), 1 + input.below(40), QImage::Format_ARGB32);
    source.backgroundColor = static_cast<QRgb>(input.integer());
    source.backgroundPixmap = QPixmap(1 + input.below(40), 1 + input.below(40));
    source.backgroundPixmap.fill(Qt::red);
    source.backgroundExtent = source.backgroundPixmap.size();
    source.m11 = input.below(300) / 100.0;
    source.m22 = input.byte() % 4 == 0 ? input.below(300) / 100.0 : source.m11;
    source.previewImage = input.picture(1 + input.below(40), 1 + input.below(40), QImage::Format_ARGB32);
    source.previewOffset = {input.below(100) - 50, input.below(100) - 50};
    const bool far = input.byte() % 8 == 0;
    if (far)
        source.previewOffset = {input.integer() >> 2, input.integer() >> 2};
    const QSize wanted(1 + input.below(80), 1 + input.below(80));

    const QSize extent(static_cast<int>(source.backgroundExtent.width() * source.m11),
                       static_cast<int>(source.backgroundExtent.height() * source.m22));
    const QPixmap canvas = source.backgroundImage.isNull()
                               ? cutout::colourCanvas(source.backgroundPixmap.size(), source.backgroundColor)
                               : cutout::asPixmap(source.backgroundImage);
    const QImage found =
        cutout::composeExport({canvas, source.previewImage, source.previewOffset, extent}, wanted);
    require(found.size() == wanted, "an export has the size that was asked for");
    if (!extent.isEmpty() && !far && isModest(source.previewImage, extent, wanted))
        require(found == reference::exportComposition(source, wanted.width(), wanted.height()).toImage(),
                "the export is the reference's composition");

    const bool png = input.byte() % 2 == 0;
    const QString path = WindowHarness::scratchFile();
    require(cutout::writePicture(found, path, png ? "png" : "jpg"), "an export can be written");
    const QImage written(path);
    require(written.size() == wanted, "the file has the size that was asked for");
    if (png)
        require(written.convertToFormat(QImage::Format_ARGB32) ==
                    found.convertToFormat(QImage::Format_ARGB32),
                "a PNG loses nothing");
    return 0;
}
