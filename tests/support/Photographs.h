// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

namespace testsupport {

/// Photographs that Debian's packages mate-backgrounds and python3-skimage install; a few of each, since one
/// more of a kind shows little. Empty where neither is there.
inline QStringList installedPhotographs()
{
    const QStringList candidates{"/usr/share/backgrounds/mate/nature/Garden.jpg",
                                 "/usr/share/backgrounds/mate/nature/LadyBird.jpg",
                                 "/usr/share/backgrounds/mate/nature/FreshFlower.jpg",
                                 "/usr/lib/python3/dist-packages/skimage/data/astronaut.png",
                                 "/usr/lib/python3/dist-packages/skimage/data/camera.png",
                                 "/usr/lib/python3/dist-packages/skimage/data/coffee.png",
                                 "/usr/lib/python3/dist-packages/skimage/data/rocket.jpg"};
    QStringList found;
    for (const QString &candidate : candidates)
        if (QFileInfo::exists(candidate))
            found.append(candidate);
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
    if (testsupport::installedPhotographs().isEmpty())                                                       \
    QSKIP("neither mate-backgrounds nor python3-skimage is installed")
