// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What the window does from opening to export, without it:
//
//     ornevo_pipeline_example PHOTO MARKS OUTPUT [BACKGROUND]
//
// MARKS is a picture of the size of the photo, pure green (0, 255, 0) somewhere inside of the object and pure
// red (255, 0, 0) somewhere outside of it. Without a BACKGROUND picture the object is put on white.

#include "cutout/Pipeline.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

cutout::Seeds seedsOf(const QImage &marks)
{
    cutout::Seeds seeds;
    for (int y = 0; y < marks.height(); ++y)
        for (int x = 0; x < marks.width(); ++x) {
            const QRgb mark = marks.pixel(x, y);
            if (mark == qRgb(0, 255, 0))
                seeds.keep.append(y * marks.width() + x);
            else if (mark == qRgb(255, 0, 0))
                seeds.remove.append(y * marks.width() + x);
        }
    return seeds;
}

void cutOut(const QString &photoFile, const QString &marksFile, const QString &output,
            const QImage &background)
{
    constexpr int taps = 5; // of the border's smoothing
    constexpr QRgb white = qRgb(255, 255, 255);
    const QImage photo = cutout::readPhoto(photoFile);
    const QImage marks = cutout::readPhoto(marksFile);
    if (photo.isNull() || marks.size() != photo.size())
        throw std::runtime_error("a photo is needed, and marks of its size");

    cutout::EdgeMap edges = cutout::newEdgeMap(photo);
    if (edges == nullptr)
        throw std::bad_alloc();
    cutout::findEdges(photo, edges);
    const QList<int> object = cutout::floodObject(photo, edges, seedsOf(marks));
    if (object.isEmpty())
        throw std::runtime_error("marks of both kinds are needed");

    const QImage mask = cutout::smoothMask(cutout::objectMask(photo.size(), object), taps);
    const QImage cutOut = cutout::cutOut(photo, mask);
    if (mask.isNull() || cutOut.isNull())
        throw std::bad_alloc();

    const QPixmap canvas = cutout::exportCanvas(photo.size(), white, background);
    const QSize size = canvas.size();
    const QImage picture = cutout::composeExport({canvas, cutOut, {}, size}, size);
    if (!cutout::writePicture(picture, output, QFileInfo(output).suffix().toLatin1()))
        throw std::runtime_error("can't write the output");
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing is shown
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() < 4 || words.size() > 5) {
        std::fprintf(stderr, "usage: ornevo_pipeline_example PHOTO MARKS OUTPUT [BACKGROUND]\n");
        return 2;
    }
    try {
        cutOut(words[1], words[2], words[3], words.size() == 5 ? cutout::readPhoto(words[4]) : QImage());
    } catch (const std::exception &error) {
        std::fprintf(stderr, "ornevo_pipeline_example: %s\n", error.what());
        return 1;
    }
    return 0;
}
