// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The steps of the program as its user meets them, beside what each can't do without: opening beside the
// decoding, the Mask step beside the flooding, and the brush, whose cost must follow the dabs and not the
// picture.

#include "benchmarks/Measuring.h"
#include "benchmarks/ProgramAtWork.h"
#include "benchmarks/StepChecks.h"
#include "canvas/MarkerDabs.h"
#include "cutout/Pipeline.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

/// Lets the window paint what has changed, as its user would see it.
void showIt()
{
    QApplication::processEvents();
}

/// Brings the program to where the brushes are used.
void showPreview(ProgramAtWork &program)
{
    program.open();
    program.layMarks();
    program.preview();
    showIt();
}

void decoding(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    measuring::repeat(state, [&] { benchmark::DoNotOptimize(QImage(program.file()).width()); });
    program.open();
    measuring::perPixel(state, program.size());
}
BENCHMARK(decoding)->Apply(measuring::megapixels);

void opening(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    program.open(); // a photo stays until the next one is there: the third takes the memory of the first
    measuring::repeat(state, [&] { program.open(); });
    measuring::perPixel(state, program.size());
}
BENCHMARK(opening)->Apply(measuring::megapixels);

void openingShown(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    program.open(); // a photo stays until the next one is there: the third takes the memory of the first
    measuring::repeat(state, [&] {
        program.open();
        showIt();
    });
    measuring::perPixel(state, program.size());
}
BENCHMARK(openingShown)->Apply(measuring::megapixels);

void flooding(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    program.open();
    program.layMarks();
    const cutout::Seeds seeds = markers::seedsOf(program.state().imageScene().items(), program.size());
    const QImage photo = program.state().workingImage();
    cutout::EdgeMap edges = cutout::newEdgeMap(photo);
    cutout::findEdges(photo, edges);
    measuring::repeat(state,
                      [&] { benchmark::DoNotOptimize(cutout::floodObject(photo, edges, seeds).size()); });
    measuring::perPixel(state, program.size());
}
BENCHMARK(flooding)->Apply(measuring::megapixels);

void maskStep(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    program.open();
    program.layMarks();
    showIt();
    measuring::repeat(state, [&] {
        program.run("on_actionMask_triggered");
        showIt();
    });
    measuring::perPixel(state, program.size());
}
BENCHMARK(maskStep)->Apply(measuring::megapixels);

void previewWithoutFlooding(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    program.open();
    program.layMarks();
    program.preview();
    measuring::repeat(state, [&] {
        program.state().previewImage() = QImage();
        program.window().updatepreview();
    });
    measuring::perPixel(state, program.size());
}
BENCHMARK(previewWithoutFlooding)->Apply(measuring::megapixels);

void brushBatch(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    showPreview(program);
    measuring::repeat(state, [&] { program.brush(); });
}
BENCHMARK(brushBatch)->Apply(measuring::megapixels);

void brushBatchAndUndoShown(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    showPreview(program);
    measuring::repeat(state, [&] {
        program.brush();
        showIt();
        program.state().undoStack().undo();
        showIt();
    });
}
BENCHMARK(brushBatchAndUndoShown)->Apply(measuring::megapixels);

void brushUndo(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfSteps()))
        return;
    ProgramAtWork program(measuring::megapixelsOf(state));
    showPreview(program);
    for (auto _ : state) {
        state.PauseTiming();
        program.brush();
        state.ResumeTiming();
        program.state().undoStack().undo();
    }
}
BENCHMARK(brushUndo)->Apply(measuring::megapixels);

} // namespace
