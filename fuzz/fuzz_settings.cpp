// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/OptionsDialog.h"
#include "canvas/ZelGraphicsView.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"
#include "tests/reference/TestPictures.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>

/// A settings file with anything in it, and every reader of it.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness &harness = WindowHarness::instance();
    MainWindowProbe &probe = harness.probe();
    harness.preview(false);
    if (probe.workingImage().isNull()) {
        const QString picture = harness.file({});
        testpictures::blobImage(24, 20, 1).save(picture, "png");
        probe.currentFile() = picture;
        harness.window().open();
        harness.layDabs();
    }
    const QString path = probe.settings().fileName();
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the settings can be written");
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    probe.settings().sync();

    harness.window().updatetoolssettings();
    auto *canvas = harness.window().findChild<ZelGraphicsView *>("graphicsView");
    canvas->updatetoolssettings();
    {
        OptionsDialog dialog(&probe.settings(), nullptr);
    }
    for (int tool = ToolNone; tool <= ToolBlueMarker; ++tool)
        canvas->SetTool(static_cast<DrawingTools>(tool));
    harness.window().findChild<QAction *>("actionMask")->trigger();
    harness.preview(true);
    require(probe.previewImage().size() == probe.workingImage().size(), "there is a cut-out");
    harness.window().findChild<QAction *>("actionForeground_Brush")->setChecked(true);
    QMetaObject::invokeMethod(&harness.window(), "on_BrushMouseEvent", Q_ARG(QRect, QRect(3, 3, 9, 9)),
                              Q_ARG(bool, true));
    QMetaObject::invokeMethod(&harness.window(), "on_ProcessBrushMouseEvent");
    for (const char *action : {"actionIncreaseToolSize", "actionDecreaseToolSoze",
                               "actionIncreaseBrushIntensity", "actionDecreaseBrushIntensity"})
        harness.window().findChild<QAction *>(action)->trigger();
    probe.undoStack().clear();
    return 0;
}
