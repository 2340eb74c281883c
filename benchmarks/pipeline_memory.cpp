// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How much memory the program takes from opening to export: open, mask, preview, brush, export.
//
//   pipeline_memory make MEGAPIXELS FILE
//       writes a photo to measure with
//   pipeline_memory FILE
//       takes it from step to step and prints by how many bytes a pixel the peak lies above what the started
//       program had
//
// A process of its own for either, since a peak does not go down.

#include "benchmarks/BenchmarkApplication.h"
#include "benchmarks/ProgramAtWork.h"

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>

namespace {

double peakBytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) * 1024.0; // kilobytes, but for Mac OS, where this has not been tried
}

} // namespace

int main(int argc, char *argv[])
{
    const BenchmarkApplication application(argc, argv);
    if (argc == 4 && QString(argv[1]) == "make") {
        writePhoto(std::atoi(argv[2]), argv[3]);
        return 0;
    }
    if (argc != 2) {
        std::fprintf(stderr, "usage: pipeline_memory make MEGAPIXELS FILE | pipeline_memory FILE\n");
        return 2;
    }
    ProgramAtWork program{QString(argv[1])};
    const double started = peakBytes();
    program.open();
    program.layMarks();
    program.run("on_actionMask_triggered");
    QApplication::processEvents();
    program.preview();
    QApplication::processEvents();
    program.brush();
    QApplication::processEvents();
    program.state().exportTo(program.fileFor("cut-out.png"), "png", program.size());
    const double pixels = double(program.size().width()) * program.size().height();
    std::printf("%.1f megapixels: peak %.1f bytes a pixel above the started program\n", pixels * 1e-6,
                (peakBytes() - started) / pixels);
    return 0;
}
