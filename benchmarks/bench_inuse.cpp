// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What a person waits for while working: from a movement of the mouse or a choice until the screen is right.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "benchmarks/ProgramAtWork.h"
#include "benchmarks/StepChecks.h"
#include "cutout/Pipeline.h"
#include "tests/support/CanvasMouse.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>

#include <benchmark/benchmark.h>

namespace {

/// Lets the window paint what has changed, as its user would see it.
void showIt()
{
    QApplication::processEvents();
}

/// A photo on the screen, and a mouse over it.
class Session
{
public:
    explicit Session(int megapixels)
        : program(megapixels),
          canvas(*program.window().findChild<QGraphicsView *>("graphicsView")),
          mouse(canvas)
    {
        program.open();
        showIt();
    }

    void choose(const char *action) { program.window().findChild<QAction *>(action)->setChecked(true); }

    /// The place of a dab in a grid over the photo, in pixels of the view.
    [[nodiscard]] QPoint place(int dab) const
    {
        const QRect photo =
            canvas.mapFromScene(canvas.scene()->sceneRect()).boundingRect().adjusted(10, 10, -10, -10);
        constexpr int columns = 100;
        constexpr int rows = 50;
        return photo.topLeft() +
               QPoint(dab % columns * photo.width() / columns, dab / columns % rows * photo.height() / rows);
    }

    void layDabs(int count)
    {
        choose("actionKeep_arker");
        mouse.press(place(0));
        for (int dab = 0; dab < count; ++dab)
            mouse.move(place(dab));
        mouse.release(place(0));
        showIt();
    }

    [[nodiscard]] qsizetype items() { return program.state().imageScene().items().size(); }
    [[nodiscard]] QImage shownAround(QPoint position)
    {
        return canvas.viewport()->grab(QRect(position - QPoint(20, 20), QSize(60, 60))).toImage();
    }

    ProgramAtWork program;
    QGraphicsView &canvas;
    testsupport::CanvasMouse mouse;
};

/// Whether the photo changes where a dab is laid, and is as before without it.
QByteArray faultOfMarkers(Session &session, QPoint place)
{
    const qsizetype before = session.items();
    const QImage seen = session.shownAround(place);
    session.mouse.move(place);
    if (session.items() != before + 1 || session.shownAround(place) == seen)
        return "no dab was laid";
    session.program.state().undoStack().undo();
    return session.items() == before && session.shownAround(place) == seen ? "" : "the dab is still there";
}

void markerDab(benchmark::State &state)
{
    Session session(measuring::megapixelsOf(state));
    session.layDabs(static_cast<int>(state.range(1)));
    const QPoint place = session.place(2550) + QPoint(3, 3);
    session.choose("action_Remove_Marker");
    session.mouse.press(place);
    if (!measuring::isRight(state, faultOfMarkers(session, place)))
        return;
    for (auto _ : state) {
        session.mouse.move(place);
        showIt();
        state.PauseTiming();
        session.program.state().undoStack().undo();
        showIt();
        state.ResumeTiming();
    }
}

void eraserDab(benchmark::State &state)
{
    Session session(measuring::megapixelsOf(state));
    session.layDabs(static_cast<int>(state.range(1)));
    const QPoint place = session.place(2550) + QPoint(3, 3);
    for (auto _ : state) {
        state.PauseTiming();
        session.choose("actionKeep_arker");
        session.mouse.stroke({place, place});
        session.choose("actionEraser");
        showIt();
        const qsizetype before = session.items();
        state.ResumeTiming();
        session.mouse.click(place);
        showIt();
        if (!measuring::isRight(state, session.items() < before ? "" : "nothing was erased"))
            break;
    }
}

void brushAtTheUndoLimit(benchmark::State &state, const char *brush)
{
    Session session(measuring::megapixelsOf(state));
    session.program.layMarks();
    session.program.preview();
    QUndoStack &undo = session.program.state().undoStack();
    while (undo.count() < undo.undoLimit())
        session.program.brush();
    session.choose(brush);
    showIt();
    const QPoint middle = session.canvas.viewport()->rect().center();
    const auto batch = [&] {
        session.mouse.press(middle);
        for (int dab = 1; dab < 10; ++dab)
            session.mouse.move(middle + QPoint(4 * dab, 0));
        session.mouse.release(middle + QPoint(36, 0));
        while (!session.program.state().pendingBrushRects().isEmpty())
            showIt();
        showIt();
    };
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    measuring::repeat(state, batch);
    if (undo.count() != undo.undoLimit())
        measuring::isRight(state, "not at the limit");
}

void handStep(benchmark::State &state)
{
    Session session(measuring::megapixelsOf(state));
    session.program.layMarks();
    session.program.preview();
    session.choose("actionHandTool");
    showIt();
    const QPoint middle = session.canvas.viewport()->rect().center();
    session.mouse.press(middle);
    int step = 0;
    const auto move = [&] {
        ++step;
        session.mouse.move(middle + QPoint(step % 50, step % 30)); // far and near, as a hand does
        showIt();
    };
    move();
    const QPoint moved = session.program.state().previewOffset();
    if (!measuring::isRight(state, moved.x() <= 0 || session.program.state().previewItem()->pos() != moved
                                       ? "the object stayed"
                                       : ""))
        return;
    measuring::repeat(state, move);
}

void zoomStep(benchmark::State &state)
{
    Session session(measuring::megapixelsOf(state));
    session.program.layMarks();
    session.program.preview();
    showIt();
    int step = 0;
    const auto zoom = [&] {
        const bool in = step++ % 20 < 10; // up to one and a half times and back
        session.program.run(in ? "on_actionZoom_In_triggered" : "on_actionZoom_Out_triggered");
        showIt();
    };
    const double before = session.canvas.transform().m11();
    zoom();
    if (!measuring::isRight(state, session.canvas.transform().m11() > before ? "" : "no zoom"))
        return;
    measuring::repeat(state, zoom);
}

void changeBackground(benchmark::State &state, const QImage &picture)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    Session session(measuring::megapixelsOf(state));
    session.program.layMarks();
    session.program.preview();
    showIt();
    QRgb blue = 0;
    measuring::repeat(state, [&] {
        session.program.changeBackground(0x80000000U + ++blue % 256, picture);
        showIt();
    });
    measuring::perPixel(state, session.program.size());
}

void backgroundColour(benchmark::State &state)
{
    changeBackground(state, {});
}

void backgroundPicture(benchmark::State &state)
{
    changeBackground(state, benchmarkpictures::photoMosaic(measuring::smokeTest() ? 1 : 12));
}

/// Brings the program to where it exports, and measures what `work` does with the file's name and format.
template <typename Work> void exporting(benchmark::State &state, const QByteArray &format, Work work)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    Session session(measuring::megapixelsOf(state));
    session.program.layMarks();
    session.program.preview();
    showIt();
    work(session.program, session.program.fileFor("out." + format), format);
    measuring::perPixel(state, session.program.size());
}

void exportFile(benchmark::State &state, const QByteArray &format)
{
    exporting(state, format, [&](ProgramAtWork &program, const QString &file, const QByteArray &type) {
        measuring::repeat(state, [&] { program.state().exportTo(file, type, program.size()); });
    });
}

/// The encoder alone, with what the export hands to it, and the writing of its file.
void encode(benchmark::State &state, const QByteArray &format)
{
    exporting(state, format, [&](ProgramAtWork &program, const QString &file, const QByteArray &type) {
        const QSize size = program.size();
        const cutout::ExportLayers layers{cutout::exportCanvas(size, program.state().backgroundColor(), {}),
                                          program.state().previewImage(),
                                          {},
                                          size};
        const QImage picture = cutout::composeExport(layers, size);
        measuring::repeat(state, [&] { picture.save(file, type, 100); });
    });
}

void afterDabs(benchmark::internal::Benchmark *row)
{
    for (const int size : measuring::smokeTest() ? std::vector<int>{1} : std::vector<int>{24, 60})
        for (const int dabs : {10, 5000})
            row->Args({size, dabs});
    row->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}

BENCHMARK(markerDab)->Apply(afterDabs);
BENCHMARK(eraserDab)->Apply(afterDabs);
BENCHMARK_CAPTURE(brushAtTheUndoLimit, keep, "actionForeground_Brush")->Apply(measuring::megapixelsInUse);
BENCHMARK_CAPTURE(brushAtTheUndoLimit, remove, "actionBackground_Brush")->Apply(measuring::megapixelsInUse);
BENCHMARK(handStep)->Apply(measuring::megapixelsInUse);
BENCHMARK(zoomStep)->Apply(measuring::megapixelsInUse);
BENCHMARK(backgroundColour)->Apply(measuring::megapixelsInUse);
BENCHMARK(backgroundPicture)->Apply(measuring::megapixelsInUse);
BENCHMARK_CAPTURE(exportFile, png, "png")->Apply(measuring::megapixelsInUse);
BENCHMARK_CAPTURE(exportFile, jpg, "jpg")->Apply(measuring::megapixelsInUse);
BENCHMARK_CAPTURE(encode, png, "png")->Apply(measuring::megapixelsInUse);
BENCHMARK_CAPTURE(encode, jpg, "jpg")->Apply(measuring::megapixelsInUse);

} // namespace
