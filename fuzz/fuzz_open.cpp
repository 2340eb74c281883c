// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"

#include <QAction>
#include <QImageReader>

namespace {

constexpr qint64 mostPixels = 1 << 18; // that one run stays short

bool isSmall(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return !size.isValid() || qint64{size.width()} * size.height() <= mostPixels;
}

} // namespace

/// A file's bytes through the window's own way of opening, and what can be done with what came of it.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness &harness = WindowHarness::instance();
    MainWindowProbe &probe = harness.probe();
    const QString path =
        harness.file(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!isSmall(path))
        return 0;
    probe.currentFile() = path;
    harness.preview(false);
    harness.window().open();
    const bool opened = !probe.imageScene().items().isEmpty();
    if (opened) {
        require(!probe.workingImage().isNull(), "an opened picture has pixels");
        require(probe.workingImage().format() == QImage::Format_RGB32, "it is in the working format");
        require(probe.edgeMap() != nullptr, "it has an edge map");
        harness.layDabs();
        harness.window().findChild<QAction *>("actionMask")->trigger();
        harness.preview(true);
        require(probe.previewImage().size() == probe.workingImage().size(), "the cut-out has its size");
    }
    return 0;
}
