// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

namespace testsupport {

/// Photographs that Debian's packages mate-backgrounds and python3-skimage ship; a few of each, since one
/// more of a kind shows little. They are looked for where scripts/fetch-photos unpacks them (named by
/// ORNEVO_PHOTOS), then where the packages install them. Empty where there are none.
inline QStringList availablePhotographs()
{
    const QStringList folders{qEnvironmentVariable("ORNEVO_PHOTOS"), "/usr/share/backgrounds/mate/nature",
                              "/usr/lib/python3/dist-packages/skimage/data"};
    QStringList found;
    for (const QString name : {"Garden.jpg", "LadyBird.jpg", "FreshFlower.jpg", "astronaut.png", "camera.png",
                               "coffee.png", "rocket.jpg"}) {
        for (const QString &folder : folders) {
            if (!folder.isEmpty() && QFileInfo::exists(folder + "/" + name)) {
                found.append(folder + "/" + name);
                break;
            }
        }
    }
    return found;
}

/// A photograph as the program works on it, made smaller so that a test stays quick. Null when unreadable.
inline QImage smallPhotograph(const QString &path, QSize bounds = QSize(240, 180))
{
    QImageReader reader(path);
    reader.setScaledSize(reader.size().scaled(bounds, Qt::KeepAspectRatio));
    return reader.read().convertToFormat(QImage::Format_RGB32);
}

} // namespace testsupport

/// Leaves the test, saying why, where no photograph is installed.
#define SKIP_WITHOUT_PHOTOGRAPHS()                                                                           \
    if (testsupport::availablePhotographs().isEmpty())                                                       \
    QSKIP("no photographs: neither unpacked by scripts/fetch-photos nor installed")
