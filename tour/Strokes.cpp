// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/Strokes.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <stdexcept>

Strokes readStrokes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw std::runtime_error("can't read " + path.toStdString());
    Strokes strokes;
    for (QTextStream in(&file); !in.atEnd();) {
        const QString line = in.readLine();
        const QStringList words = line.section('#', 0, 0).split(' ', Qt::SkipEmptyParts);
        if (words.isEmpty())
            continue;
        const bool keep = words[0] == "keep";
        if (words.size() != 5 || (!keep && words[0] != "remove"))
            throw std::runtime_error("not a stroke: " + line.toStdString());
        (keep ? strokes.keep : strokes.remove)
            .append(
                QLineF(words[1].toDouble(), words[2].toDouble(), words[3].toDouble(), words[4].toDouble()));
    }
    return strokes;
}
