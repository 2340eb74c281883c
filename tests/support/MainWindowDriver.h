// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/MarkerDabs.h"
#include "canvas/SceneLayers.h"
#include "canvas/ZelGraphicsView.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/WindowDriver.h"

#include <QPen>
#include <QProgressBar>

namespace testsupport {

/// A main window of the program that need not be shown, a mouse over its canvas, and what is done with it
/// again and again.
class MainWindowDriver
{
public:
    MainWindowDriver()
        : probe(window), view(*window.findChild<ZelGraphicsView *>("graphicsView")), mouse(view)
    {
    }

    [[nodiscard]] QAction &action(const char *name) const { return *testsupport::action(window, name); }
    void trigger(const char *name) const { action(name).trigger(); }
    void preview(bool on) const { action("actionPreview").setChecked(on); }
    [[nodiscard]] QString status() const { return testsupport::status(window); }
    [[nodiscard]] QProgressBar &progressBar() const
    {
        return *window.findChild<QProgressBar *>("progressBar");
    }

    /// Opens a picture without the dialog.
    void openFile(const QString &path)
    {
        probe.currentFile() = path;
        window.open();
    }

    /// The point of the viewport that shows the middle of a pixel of the scene.
    [[nodiscard]] QPoint at(int x, int y) const { return view.mapFromScene(QPointF(x + 0.5, y + 0.5)); }

    /// One click of a marker with a little movement: a dab, wherever the tool lays it.
    void dab(const char *tool, int x, int y)
    {
        action(tool).setChecked(true);
        mouse.stroke({at(x, y)});
    }

    /// Lays a Keep dab in the middle and a Remove dab in the corner, without the mouse.
    void layDabs()
    {
        const QSize size = probe.workingImage().size();
        const QRectF middle(size.width() / 2, size.height() / 2, 2, 2);
        const QRectF corner(1, 1, 2, 2);
        QGraphicsScene &scene = probe.imageScene();
        scene.addRect(middle, QPen(QColor(markers::keepColour)))->setZValue(layers::dabZ);
        scene.addEllipse(corner, QPen(QColor(markers::removeColour)))->setZValue(layers::dabZ);
    }

    /// One dab of the Keep brush on the preview, processed at once.
    void brush(const QRect &square)
    {
        action("actionForeground_Brush").setChecked(true);
        QMetaObject::invokeMethod(&window, "on_BrushMouseEvent", Q_ARG(QRect, square), Q_ARG(bool, true));
        QMetaObject::invokeMethod(&window, "on_ProcessBrushMouseEvent");
    }

    MainWindow window;
    MainWindowProbe probe;
    ZelGraphicsView &view;
    CanvasMouse mouse;
};

} // namespace testsupport
