// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// Cuts an object out of a photograph without any window:
//
//     cut-out PHOTO STROKES OUTPUT.png [TRUE-MASK]
//
// STROKES is a text file like samples/still-life-strokes.txt. With a mask that is known to be right, the
// program also prints how well its own agrees: the intersection over the union of both.

#include "imaging/EdgeMap.h"
#include "segmentation/FrWatershed.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPointF>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>

namespace {

struct Seeds
{
    QList<int> keep;
    QList<int> remove;
};

constexpr int dabSize = 10;

// The pixels of a square dab, as indices y * width + x.
void addDab(QPointF corner, const QImage &photo, QList<int> &seeds)
{
    const int left = std::max(0, int(corner.x()));
    const int top = std::max(0, int(corner.y()));
    for (int y = top; y < std::min(top + dabSize, photo.height()); ++y)
        for (int x = left; x < std::min(left + dabSize, photo.width()); ++x)
            seeds.append(y * photo.width() + x);
}

bool readStrokes(const QString &path, const QImage &photo, Seeds &seeds)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    for (QTextStream in(&file); !in.atEnd();) {
        const QStringList words = in.readLine().section('#', 0, 0).split(' ', Qt::SkipEmptyParts);
        if (words.isEmpty())
            continue;
        if (words.size() != 5)
            return false;
        const QPointF from(words[1].toDouble(), words[2].toDouble());
        const QPointF step = QPointF(words[3].toDouble(), words[4].toDouble()) - from;
        const int dabs = 1 + int(std::hypot(step.x(), step.y()) / (dabSize / 2));
        for (int dab = 0; dab <= dabs; ++dab)
            addDab(from + step * dab / dabs, photo, words[0] == "keep" ? seeds.keep : seeds.remove);
    }
    return true;
}

double agreement(const QImage &cutOut, const QImage &truth)
{
    qint64 both = 0;
    qint64 either = 0;
    for (int y = 0; y < truth.height(); ++y) {
        for (int x = 0; x < truth.width(); ++x) {
            const bool found = qAlpha(cutOut.pixel(x, y)) != 0;
            const bool wanted = qGray(truth.pixel(x, y)) != 0;
            both += found && wanted;
            either += found || wanted;
        }
    }
    return either == 0 ? 1.0 : double(both) / double(either);
}

int fail(const QString &message)
{
    std::fprintf(stderr, "cut-out: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv); // finds the plugins that read pictures
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 4 || words.size() > 5)
        return fail("usage: cut-out PHOTO STROKES OUTPUT.png [TRUE-MASK]");

    // Four bytes a pixel, blue first: what both libraries work on.
    QImage photo = QImage(words[1]).convertToFormat(QImage::Format_RGB32);
    if (photo.isNull())
        return fail("can't read the photo " + words[1]);
    Seeds seeds;
    if (!readStrokes(words[2], photo, seeds))
        return fail("can't read the strokes " + words[2]);

    const auto pixels = std::size_t(photo.width()) * std::size_t(photo.height());
    const auto edges = std::make_unique<unsigned char[]>(pixels);
    imaging::computeEdgeMap(photo, edges.get());

    QList<int> object;
    if (FrWatershed(&photo, seeds.keep, seeds.remove, object, edges.get(), nullptr) != 0)
        return fail("nothing to flood from: there have to be strokes of both kinds inside of the photo");

    QImage cutOut(photo.size(), QImage::Format_ARGB32);
    cutOut.fill(Qt::transparent);
    for (const int index : object) {
        const int x = index % photo.width();
        const int y = index / photo.width();
        cutOut.setPixel(x, y, photo.pixel(x, y));
    }
    if (!cutOut.save(words[3], "PNG"))
        return fail("can't write " + words[3]);
    std::printf("%lld of %zu pixels kept\n", static_cast<long long>(object.size()), pixels);

    if (words.size() == 5) {
        const QImage truth(words[4]);
        if (truth.size() != photo.size())
            return fail("the mask has not the size of the photo");
        std::printf("intersection over union: %.4f\n", agreement(cutOut, truth));
    }
    return 0;
}
