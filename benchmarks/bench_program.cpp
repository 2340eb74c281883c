// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The steps of the program as its user meets them, beside what each can't do without: opening beside the
// decoding, the Mask step beside the flooding, and the brush, whose cost must follow the dabs and not the
// picture.

#include "benchmarks/ProgramAtWork.h"
#include "canvas/MarkerDabs.h"
#include "segmentation/FrWatershed.h"

#include <QApplication>
#include <QImageReader>
#include <QSettings>

#include <benchmark/benchmark.h>

namespace {

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int megapixels : {4, 12, 24, 64})
        benchmark->Arg(megapixels);
    benchmark->Unit(benchmark::kMillisecond)->UseRealTime();
}

void countPixels(benchmark::State &state, ProgramAtWork &program)
{
    state.counters["ns/pixel"] = benchmark::Counter(
        program.pixels() * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Lets the window paint what has changed, as its user would see it.
void showIt()
{
    QApplication::processEvents();
}

void decoding(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(QImage(program.file()).width());
    program.open();
    countPixels(state, program);
}
BENCHMARK(decoding)->Apply(sizes);

void opening(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    for (auto _ : state)
        program.open();
    countPixels(state, program);
}
BENCHMARK(opening)->Apply(sizes);

void flooding(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    markers::Seeds seeds =
        markers::seedsOf(program.state().imageScene().items(), program.state().workingImage().size());
    for (auto _ : state) {
        QList<int> mask;
        FrWatershed(&program.state().workingImage(), seeds.keep, seeds.remove, mask,
                    program.state().edgeMap(), nullptr);
    }
    countPixels(state, program);
}
BENCHMARK(flooding)->Apply(sizes);

void maskStep(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    showIt();
    for (auto _ : state) {
        program.run("on_actionMask_triggered");
        showIt();
    }
    countPixels(state, program);
}
BENCHMARK(maskStep)->Apply(sizes);

void previewWithoutFlooding(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    program.preview();
    for (auto _ : state) {
        program.state().previewImage() = QImage();
        program.window().updatepreview();
    }
    countPixels(state, program);
}
BENCHMARK(previewWithoutFlooding)->Apply(sizes);

void brushBatch(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    program.preview();
    showIt();
    for (auto _ : state)
        program.brush();
}
BENCHMARK(brushBatch)->Apply(sizes);

void brushBatchAndUndoShown(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    program.preview();
    showIt();
    for (auto _ : state) {
        program.brush();
        showIt();
        program.state().undoStack().undo();
        showIt();
    }
}
BENCHMARK(brushBatchAndUndoShown)->Apply(sizes);

void brushUndo(benchmark::State &state)
{
    ProgramAtWork program(int(state.range(0)));
    program.open();
    program.layMarks();
    program.preview();
    showIt();
    for (auto _ : state) {
        state.PauseTiming();
        program.brush();
        state.ResumeTiming();
        program.state().undoStack().undo();
    }
}
BENCHMARK(brushUndo)->Apply(sizes);

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QTemporaryDir settings;
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, settings.path());
    QApplication application(argc, argv);
    QApplication::setApplicationName("Ornevo benchmark");
    QApplication::setOrganizationName("Ornevo benchmark");
    QImageReader::setAllocationLimit(0); // for the decoding by QImage alone
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
