// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/ZelGraphicsView.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QUndoStack>

#include <array>
#include <cmath>

namespace {

struct Canvas
{
    QGraphicsScene scene;
    ZelGraphicsView view;
    QUndoStack stack;
    QList<QRect> squares;

    Canvas()
    {
        view.undoStack = &stack;
        view.resize(160, 120);
        view.setScene(&scene);
        QObject::connect(&view, &ZelGraphicsView::AnyBrush, &view,
                         [this](const QRect &square, bool) { squares.append(square); });
    }
};

void send(ZelGraphicsView &view, QEvent::Type type, QPoint position)
{
    QMouseEvent event(type, position, QPointF(position), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

} // namespace

/// Every tool at any zoom, anywhere on a scene of any size.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application();
    Input input(data, size);
    Canvas canvas;
    canvas.scene.setSceneRect(0, 0, 1 + input.below(3000), 1 + input.below(3000));
    const double factor = std::pow(1.05, input.below(800) - 400);
    canvas.view.scale(factor, factor);
    canvas.view.SetTool(static_cast<DrawingTools>(input.byte() % toolCount));
    for (int events = input.byte() % 20; events > 0; --events) {
        constexpr std::array types = {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseMove,
                                      QEvent::MouseButtonRelease};
        const QPoint position(input.below(400) - 120, input.below(400) - 120);
        const QPointF there = canvas.view.mapToScene(position);
        const qsizetype before = canvas.squares.size();
        send(canvas.view, types[input.byte() % types.size()], position);
        if (canvas.squares.size() == before || std::abs(there.x()) > 1e8 || std::abs(there.y()) > 1e8)
            continue;
        const QRect square = canvas.squares.constLast(); // of no size: no settings
        require(square.topLeft() == QPoint(static_cast<int>(there.x()), static_cast<int>(there.y())),
                "a brush is where the pointer is");
    }
    require(canvas.stack.count() <= 20, "an event lays one dab");
    if (input.byte() % 4 == 0)
        canvas.view.resize(1 + input.below(600), 1 + input.below(600));
    canvas.stack.setIndex(0);
    return 0;
}
