// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkPictures.h"

#include <QDirIterator>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>

namespace benchmarkpictures {

namespace {

constexpr int tileSide = 512;

QStringList photoFiles()
{
    QStringList files;
    // Where scripts/fetch-photos unpacks them, or else where the packages install them.
    const QString unpacked = qEnvironmentVariable("ORNEVO_PHOTOS");
    const QStringList folders =
        unpacked.isEmpty()
            ? QStringList{"/usr/share/backgrounds/mate", "/usr/lib/python3/dist-packages/skimage/data"}
            : QStringList{unpacked};
    for (const QString &folder : folders) {
        QDirIterator entries(folder, {"*.jpg", "astronaut.png", "coffee.png"}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            files.append(entries.next());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<QImage> loadPhotos()
{
    QImageReader::setAllocationLimit(0);
    std::vector<QImage> photos;
    for (const QString &file : photoFiles()) {
        const QImage photo = QImage(file).convertToFormat(QImage::Format_RGB32);
        if (photo.width() >= tileSide)
            photos.push_back(photo);
    }
    return photos;
}

/// A pixel of a stand-in photograph.
QRgb blob(int x, int y, std::mt19937 &random)
{
    const auto channel = [&](double frequency) {
        const double wave = std::sin(x * frequency) + std::sin(y * frequency * 1.3);
        return static_cast<int>(128 + 50 * wave) + static_cast<int>(random() % 8);
    };
    return qRgb(channel(0.011), channel(0.017), channel(0.023));
}

QImage makeStandIn()
{
    std::fprintf(stderr, "No photographs found: measuring on made-up pictures.\n");
    std::mt19937 random(1);
    QImage picture(2048, 2048, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            reinterpret_cast<QRgb *>(picture.scanLine(y))[x] = blob(x, y, random);
    return picture;
}

/// Copies a square out of the photo to (left, top) of the mosaic, as far as both reach. Photos that are lower
/// than a square begin again.
void layTile(QImage &mosaic, int left, int top, const QImage &photo, std::mt19937 &random)
{
    const auto upTo = [&](int bound) { return bound > 0 ? static_cast<int>(random() % unsigned(bound)) : 0; };
    const int fromX = upTo(photo.width() - tileSide);
    const int fromY = upTo(photo.height() - tileSide);
    const int width = std::min(tileSide, mosaic.width() - left);
    const int height = std::min(tileSide, mosaic.height() - top);
    for (int y = 0; y < height; ++y)
        std::memcpy(mosaic.scanLine(top + y) + 4 * left,
                    photo.constScanLine((fromY + y) % photo.height()) + 4 * fromX,
                    4 * static_cast<std::size_t>(width));
}

QImage makeMosaic(int megapixels)
{
    static const std::vector<QImage> photos = [] {
        std::vector<QImage> found = loadPhotos();
        if (found.empty())
            found.push_back(makeStandIn());
        return found;
    }();
    const int height = static_cast<int>(std::lround(std::sqrt(megapixels * 1e6 / 1.5)));
    QImage mosaic(height * 3 / 2, height, QImage::Format_RGB32);
    std::mt19937 random(7);
    std::size_t next = 0;
    for (int top = 0; top < mosaic.height(); top += tileSide)
        for (int left = 0; left < mosaic.width(); left += tileSide)
            layTile(mosaic, left, top, photos[next++ % photos.size()], random);
    return mosaic;
}

/// A square dab around a place, clipped by the frame.
void appendDab(QList<int> &seeds, QSize size, int centreX, int centreY, int radius)
{
    for (int y = std::max(1, centreY - radius); y < std::min(size.height() - 1, centreY + radius); ++y)
        for (int x = std::max(1, centreX - radius); x < std::min(size.width() - 1, centreX + radius); ++x)
            seeds.append(y * size.width() + x);
}

} // namespace

const QImage &photoMosaic(int megapixels)
{
    static std::map<int, QImage> made;
    QImage &mosaic = made[megapixels];
    if (mosaic.isNull())
        mosaic = makeMosaic(megapixels);
    return mosaic;
}

QImage smallPicture()
{
    return photoMosaic(1).copy(tileSide - 150, tileSide - 100, 301, 203); // where four photographs meet
}

std::vector<QList<int>> strokes(QSize size, int regions)
{
    std::vector<QList<int>> lists(static_cast<std::size_t>(regions));
    const double band = static_cast<double>(size.width()) / regions;
    const int radius = std::clamp(static_cast<int>(band / 20), 1, 12);
    for (int region = 0; region < regions; ++region) {
        for (int y = size.height() / 10; y < size.height() * 9 / 10; y += radius) {
            const double sway = 0.2 * std::sin(12.0 * y / size.height());
            const int x = static_cast<int>(band * (region + 0.5 + sway));
            appendDab(lists[static_cast<std::size_t>(region)], size, x, y, radius);
        }
    }
    return lists;
}

} // namespace benchmarkpictures
