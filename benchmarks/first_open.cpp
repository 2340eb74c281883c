// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How long the first photo takes after the start, when all memory is fresh.
//
//   first_open decode FILE   decodes it by QImage alone
//   first_open open FILE     opens it in the window
//   first_open start FILE    no photo at all: from the start of the process until its window is painted
//
// Prints milliseconds of the processor. A process of its own for each, since the second photo finds memory
// that the first one left.

#include "benchmarks/BenchmarkApplication.h"
#include "benchmarks/ProgramAtWork.h"

#include <cstdio>
#include <ctime>

namespace {

double milliseconds()
{
    return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

int main(int argc, char *argv[])
{
    const BenchmarkApplication application(argc, argv);
    const QString work = argc == 3 ? argv[1] : "";
    if (work != "decode" && work != "open" && work != "start") {
        std::fprintf(stderr, "usage: first_open decode|open|start FILE\n");
        return 2;
    }
    const QString file = argv[2];
    ProgramAtWork program(file);
    QApplication::processEvents();
    const double start = work == "start" ? 0 : milliseconds(); // the clock began with the process
    int width = 0;
    if (work == "open") {
        program.open();
        width = program.size().width();
    } else if (work == "decode") {
        width = QImage(file).width();
    } else {
        width = program.window().width();
    }
    std::printf("%s %d %.3f\n", qPrintable(work), width, milliseconds() - start);
    return width > 0 ? 0 : 1;
}
