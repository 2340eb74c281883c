// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/scenarios/Scenes.h"

#include <QBuffer>
#include <QList>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace scenes {

namespace {

/// The noise of a sensor, -8 .. 7.
int grain(int x, int y)
{
    std::uint32_t mixed =
        static_cast<std::uint32_t>(x) * 374761393U + static_cast<std::uint32_t>(y) * 668265263U;
    mixed = (mixed ^ (mixed >> 13U)) * 1274126177U;
    return static_cast<int>(mixed >> 28U) - 8;
}

QRgb grey(double value, int noise)
{
    const int level = std::clamp(static_cast<int>(value) + noise, 0, 255);
    return qRgb(level, level, level);
}

QRgb colour(double red, double green, double blue, int noise)
{
    const auto level = [noise](double value) { return std::clamp(static_cast<int>(value) + noise, 0, 255); };
    return qRgb(level(red), level(green), level(blue));
}

double squared(double value)
{
    return value * value;
}

bool inEllipse(double x, double y, double middleX, double middleY, double halfWidth, double halfHeight)
{
    return squared((x - middleX) / halfWidth) + squared((y - middleY) / halfHeight) <= 1;
}

/// Paints `object` where `inside`, else `ground`. They get the place with the picture's height as the unit
/// and x from the middle, and the noise there.
template <typename Inside, typename Object, typename Ground>
Scene paint(QSize size, Inside inside, Object object, Ground ground)
{
    Scene scene{QImage(size, QImage::Format_RGB32), QImage(size, QImage::Format_Grayscale8)};
    const double unit = size.height();
    for (int row = 0; row < size.height(); ++row) {
        auto *photo = reinterpret_cast<QRgb *>(scene.photo.scanLine(row));
        uchar *mask = scene.object.scanLine(row);
        const double y = (row + 0.5) / unit;
        for (int column = 0; column < size.width(); ++column) {
            const double x = (column + 0.5 - size.width() / 2.0) / unit;
            const bool on = inside(x, y);
            photo[column] = on ? object(x, y, grain(column, row)) : ground(x, y, grain(column, row));
            mask[column] = on ? 255 : 0;
        }
    }
    return scene;
}

QByteArray bigEndian(quint32 value, int bytes)
{
    QByteArray text;
    for (int i = bytes - 1; i >= 0; --i)
        text.append(static_cast<char>(value >> (8 * i)));
    return text;
}

} // namespace

Scene bottle(QSize size)
{
    const auto inside = [](double x, double y) {
        const bool body = std::abs(x) < 0.16 && y > 0.4 && y < 0.85;
        const bool neck = std::abs(x) < 0.05 && y > 0.12 && y < 0.4;
        return body || neck || inEllipse(x, y, 0, 0.4, 0.16, 0.1);
    };
    const auto glass = [](double x, double y, int noise) {
        const bool label = std::abs(x) < 0.12 && y > 0.5 && y < 0.72;
        return label ? colour(120, 60, 40, noise) : colour(20 + 150 * std::abs(x), 70, 40, noise / 2);
    };
    const auto studio = [](double x, double y, int noise) {
        const bool shadow = inEllipse(x, y, 0.12, 0.88, 0.22, 0.02);
        return grey(shadow ? 205 : 255, noise / 4);
    };
    return paint(size, inside, glass, studio);
}

Scene balloon(QSize size)
{
    const auto inside = [](double x, double y) {
        const bool basket = std::abs(x) < 0.04 && y > 0.72 && y < 0.8;
        return basket || inEllipse(x, y, 0, 0.42, 0.27, 0.31);
    };
    const auto cloth = [](double x, double y, int noise) {
        return colour(190 + 40 * x, 45 + 40 * y, 40, noise);
    };
    const auto land = [](double x, double y, int noise) {
        return y > 0.86 + 0.1 * x * x ? colour(60, 110, 50, noise) : colour(90, 140 + 60 * y, 220, noise / 2);
    };
    return paint(size, inside, cloth, land);
}

Scene lamp(QSize size)
{
    const auto inside = [](double x, double y) {
        const bool foot = std::abs(x) < 0.03 && y > 0.5 && y < 0.9;
        return foot || (y > 0.25 && y < 0.55 && std::abs(x) < 0.08 + 0.4 * (y - 0.25));
    };
    const auto shade = [](double /*x*/, double y, int noise) {
        return y < 0.55 ? colour(96, 80, 44, noise / 2) : colour(48, 40, 36, noise / 2);
    };
    const auto room = [](double x, double y, int noise) { return grey(9 + 5 * (x + y), noise / 3); };
    return paint(size, inside, shade, room);
}

Scene person(QSize size)
{
    const auto inside = [](double x, double y) {
        return inEllipse(x, y, 0, 0.36, 0.13, 0.17) || inEllipse(x, y, 0, 0.86, 0.26, 0.34);
    };
    const auto figure = [](double x, double y, int noise) {
        return y < 0.53 ? colour(215 - 60 * x, 165, 140, noise) : colour(40, 60, 125, noise);
    };
    const auto wall = [](double x, double y, int noise) {
        return colour(105 + 30 * y, 135 + 20 * x, 110, noise);
    };
    return paint(size, inside, figure, wall);
}

Scene icon()
{
    const auto inside = [](double x, double y) { return inEllipse(x, y, 0, 0.5, 0.33, 0.33); };
    const auto knob = [](double /*x*/, double y, int /*noise*/) { return colour(30, 90, 230 - 100 * y, 0); };
    const auto ground = [](double /*x*/, double /*y*/, int /*noise*/) { return colour(240, 225, 160, 0); };
    return paint(QSize(48, 48), inside, knob, ground);
}

QImage sunset(QSize size)
{
    const auto inside = [](double x, double y) { return y > 0.7 + 0.2 * x * x; };
    const auto hill = [](double /*x*/, double y, int noise) { return colour(70 * y, 30, 50, noise / 2); };
    const auto sky = [](double /*x*/, double y, int noise) {
        return colour(250, 90 + 160 * y, 60, noise / 4);
    };
    return paint(size, inside, hill, sky).photo;
}

QByteArray lyingJpeg(const QImage &upright, int quality)
{
    constexpr quint32 turnToTheRight = 6;
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    upright.transformed(QTransform().rotate(-90)).save(&buffer, "JPG", quality);
    const QByteArray tag =
        bigEndian(0x0112, 2) + bigEndian(3, 2) + bigEndian(1, 4) + bigEndian(turnToTheRight, 2);
    const QByteArray directory = bigEndian(1, 2) + tag + bigEndian(0, 2) + bigEndian(0, 4);
    const QByteArray exif = QByteArray("Exif\0\0MM\0*\0\0\0\10", 14) + directory;
    const qsizetype afterStart = 2;
    return jpeg.insert(afterStart,
                       QByteArray("\xFF\xE1") + bigEndian(static_cast<quint32>(exif.size()) + 2, 2) + exif);
}

double overlap(const QList<int> &found, const QImage &object)
{
    qint64 common = 0;
    for (const int index : found)
        common += object.constScanLine(index / object.width())[index % object.width()] == 255 ? 1 : 0;
    qint64 area = 0;
    for (int y = 0; y < object.height(); ++y)
        area += std::count(object.constScanLine(y), object.constScanLine(y) + object.width(), uchar(255));
    return double(common) / double(std::max<qint64>(area + found.size() - common, 1));
}

} // namespace scenes
