// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/PictureFile.h"

#include <QGuiApplication>

#include <QFile>

#include <cstdio>
#include <ctime>

namespace {

/// That the program had at once. What getrusage() reports goes back to the program that started this one.
long mostKibibytes()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return -1024;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6, 20).simplified().split(' ').value(0).toLong();
}

} // namespace

/// Reads a picture, and says its width and height, the milliseconds of processor time that it took, and the
/// mebibytes that the program came to have.
int main(int argc, char *argv[])
{
    if (argc != 2)
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const std::clock_t start = std::clock();
    const QImage picture = cutout::readPicture(QString::fromLocal8Bit(argv[1]));
    const std::clock_t end = std::clock();
    printf("%d %d %ld %ld\n", picture.width(), picture.height(), (end - start) * 1000 / CLOCKS_PER_SEC,
           mostKibibytes() / 1024);
    return 0;
}
