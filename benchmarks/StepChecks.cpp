// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "benchmarks/StepChecks.h"

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/ProgramAtWork.h"
#include "canvas/MarkerDabs.h"
#include "tests/reference/ImageReferences.h"
#include "tests/reference/MaskReference.h"
#include "tests/support/Differences.h"

#include <QTemporaryDir>

#include <stdexcept>

namespace {

void compare(const char *step, const QImage &actual, const QImage &expected)
{
    const QByteArray fault = testsupport::firstDifference(actual, expected);
    if (!fault.isEmpty())
        throw std::runtime_error(QByteArray(step) + ": " + fault);
}

/// A pixmap without alpha and one whose alpha is 255 everywhere look the same.
QImage asSeen(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

std::vector<std::uint8_t> checkOpening(ProgramAtWork &program)
{
    const QImage photo = QImage(program.file()).convertToFormat(QImage::Format_RGB32);
    compare("opening", program.state().workingImage(), photo);
    const std::vector<std::uint8_t> edges = reference::edgeMap(photo);
    if (!std::equal(edges.begin(), edges.end(), program.state().edgeMap()))
        throw std::runtime_error("opening: other edges");
    return edges;
}

void checkMask(ProgramAtWork &program, const std::vector<std::uint8_t> &edges)
{
    const QImage &photo = program.state().workingImage();
    const cutout::Seeds seeds = markers::seedsOf(program.state().imageScene().items(), photo.size());
    QList<int> expected;
    reference::watershed(photo, seeds.keep, seeds.remove, expected, edges);
    if (expected.isEmpty() || program.state().outmask() != expected)
        throw std::runtime_error("another mask");
}

void checkPreview(ProgramAtWork &program)
{
    MainWindowProbe &state = program.state();
    const QSize size = program.size();
    const QImage mask = reference::maskImage(state.outmask(), size.width(), size.height(),
                                             state.smoothEdges(), state.gaussSize());
    compare("preview", state.previewImage(), reference::cutOut(state.imagePixmap(), mask));
    compare("object shown", asSeen(state.previewItem()->pixmap()),
            asSeen(QPixmap::fromImage(state.previewImage())));
}

void checkBrush(ProgramAtWork &program)
{
    MainWindowProbe &state = program.state();
    const QImage before = state.previewImage().copy();
    QImage expected = before.copy();
    reference::applyBrush(expected, program.brushSquares(), state.previewOffset(), reference::Brush::Remove,
                          state.brushIntensityRemove());
    program.brush();
    compare("brush", state.previewImage(), expected);
    state.undoStack().undo();
    compare("undo of the brush", state.previewImage(), before);
}

void checkBackground(ProgramAtWork &program, QRgb colour, const QImage &picture)
{
    MainWindowProbe &state = program.state();
    program.changeBackground(colour, picture);
    const QPixmap expected =
        reference::backgroundLayer(colour, picture, QImage(":/icons/chessbackground.png"),
                                   program.size().width(), program.size().height());
    compare("background", asSeen(state.backgroundItem()->pixmap()), asSeen(expected));
}

void checkExport(ProgramAtWork &program)
{
    MainWindowProbe &state = program.state();
    const QGraphicsPixmapItem &background = *state.backgroundItem();
    const reference::ExportSource source{state.backgroundImage(),      state.backgroundColor(),
                                         background.pixmap(),          background.boundingRect().size(),
                                         background.transform().m11(), background.transform().m22(),
                                         state.previewImage(),         state.previewOffset()};
    const QSize size = program.size();
    const QString file = program.fileFor("checked.png");
    if (!state.exportTo(file, "png", size))
        throw std::runtime_error("no export");
    compare("export", QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied),
            reference::exportComposition(source, size.width(), size.height())
                .toImage()
                .convertToFormat(QImage::Format_ARGB32)
                .convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

QByteArray walk()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("small.png");
    if (!benchmarkpictures::smallPicture().save(file))
        return "can't write a picture to check with";
    try {
        ProgramAtWork program(file);
        program.open();
        const std::vector<std::uint8_t> edges = checkOpening(program);
        program.layMarks();
        program.run("on_actionMask_triggered");
        checkMask(program, edges);
        program.preview();
        checkPreview(program);
        checkBrush(program);
        checkBackground(program, 0x800000FFU, {});
        checkBackground(program, 0xFFFFFFFFU, benchmarkpictures::photoMosaic(1));
        checkBackground(program, 0xFFFFFFFFU, {});
        checkExport(program);
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return {};
}

} // namespace

const QByteArray &faultOfSteps()
{
    static const QByteArray fault = walk();
    return fault;
}
