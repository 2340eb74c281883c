// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/// Photos to tell a scenario with, made by arithmetic alone, so that it is known where the object lies.
namespace scenes {

struct Scene
{
    QImage photo;  ///< Format_RGB32
    QImage object; ///< Format_Grayscale8, 255 where the object is
};

/// A dark bottle on white, with its soft shadow.
Scene bottle(QSize size);
/// A balloon before sky and hills.
Scene balloon(QSize size);
/// A lamp in a room where nearly all is black.
Scene lamp(QSize size);
/// Head and shoulders before a wall; the size is upright.
Scene person(QSize size);
/// A round button, 48 x 48.
Scene icon();
/// Two hills under a sunset, to lay behind something.
QImage sunset(QSize size);

/// A JPEG as a phone held upright writes it: the picture lies on its side, and EXIF says to turn it.
QByteArray lyingJpeg(const QImage &upright, int quality);

/// The common part of two areas beside what either covers, 0 .. 1. `found` has the pixels' indices.
double overlap(const QList<int> &found, const QImage &object);

} // namespace scenes
