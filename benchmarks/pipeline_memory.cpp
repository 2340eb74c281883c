// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How much memory the program takes from opening to export: open, mask, preview, brush, export.
//
//   pipeline_memory make MEGAPIXELS FILE     writes a photo to measure with
//   pipeline_memory [--without-window] FILE  takes it from step to step, in the window or by the functions
//   that the
//                                            window calls, and prints by how many bytes a pixel the peak lies
//                                            above what the started program had
//
// A process of its own for either, since a peak does not go down.

#include "benchmarks/BenchmarkApplication.h"
#include "benchmarks/ProgramAtWork.h"
#include "cutout/Pipeline.h"

#include <sys/resource.h>

#include <cstdio>
#include <utility>

namespace {

double peakBytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) * 1024.0; // kilobytes, but for Mac OS, where this has not been tried
}

QSize runInWindow(ProgramAtWork &program)
{
    program.open();
    program.layMarks();
    program.run("on_actionMask_triggered");
    QApplication::processEvents();
    program.preview();
    QApplication::processEvents();
    program.brush();
    QApplication::processEvents();
    program.state().exportTo(program.fileFor("cut-out.png"), "png", program.size());
    return program.size();
}

/// A line across the middle of the object, and one above it.
cutout::Seeds seedsFor(QSize size)
{
    cutout::Seeds seeds;
    for (int x = size.width() / 4; x < size.width() * 3 / 4; ++x) {
        seeds.keep.append(size.height() / 2 * size.width() + x);
        seeds.remove.append(size.height() / 16 * size.width() + x);
    }
    return seeds;
}

QSize runWithoutWindow(const QString &file, const QString &output)
{
    constexpr int taps = 5;
    constexpr QRgb white = qRgb(255, 255, 255);
    const QImage photo = cutout::readPhoto(file);
    const QSize size = photo.size();
    cutout::EdgeMap edges = cutout::newEdgeMap(photo);
    cutout::findEdges(photo, edges);
    const QList<int> object = cutout::floodObject(photo, edges, seedsFor(size));
    QImage mask = cutout::smoothMask(cutout::objectMask(size, object), taps);
    QImage cutOut = cutout::cutOut(photo, mask);
    mask = QImage();
    const QList<QRect> dabs{QRect(size.width() / 2, size.height() / 2, 20, 20)};
    cutout::changeAlpha(cutOut, cutout::brushBatch(dabs, {}, size).pixels, -50);
    cutout::ExportLayers layers{cutout::exportCanvas(size, white, {}), cutOut, {}, size};
    cutout::writePicture(cutout::composeExport(std::move(layers), size), output, "png");
    return size;
}

void report(QSize size, double started)
{
    const double pixels = double(size.width()) * size.height();
    std::printf("%.1f megapixels: peak %.1f bytes a pixel above the started program\n", pixels * 1e-6,
                (peakBytes() - started) / pixels);
}

} // namespace

int main(int argc, char *argv[])
{
    const BenchmarkApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() == 4 && words[1] == "make") {
        writePhoto(words[2].toInt(), words[3]);
    } else if (words.size() == 3 && words[1] == "--without-window") {
        const QTemporaryDir folder;
        const double started = peakBytes();
        report(runWithoutWindow(words[2], folder.filePath("cut-out.png")), started);
    } else if (words.size() == 2) {
        ProgramAtWork program(words[1]);
        const double started = peakBytes();
        report(runInWindow(program), started);
    } else {
        std::fprintf(stderr, "usage: pipeline_memory make MEGAPIXELS FILE | [--without-window] FILE\n");
        return 2;
    }
    return 0;
}
