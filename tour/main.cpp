// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"
#include "tour/Story.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::chrono::minutes longestTour(4);

} // namespace

int main(int argc, char *argv[])
{
    // The file dialogs of the desktop can't be driven, and the user's settings are none of the tour's
    // business.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QTemporaryDir settings;
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, settings.path());
    QApplication application(argc, argv);
    QApplication::setApplicationName("Ornevo tour");
    QApplication::setOrganizationName("Ornevo tour");

    QCommandLineParser parser;
    parser.addOption({"samples", "folder of the sample pictures", "folder", "samples"});
    parser.addOption({"folder", "where the pictures go", "folder", "."});
    parser.addOption({"help-pictures", "where the screenshots of the help go", "folder"});
    parser.addHelpOption();
    parser.process(application);

    QTimer::singleShot(longestTour, &application, [] {
        std::fputs("the tour failed: it waits for something that does not come\n", stderr);
        std::_Exit(1);
    });
    try {
        MainWindow window;
        window.resize(1240, 900);
        window.show();
        Driver::wait(300);
        Story(window, parser.value("folder"), parser.value("samples"), parser.value("help-pictures")).tell();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "the tour failed: %s\n", error.what());
        return 1;
    }
    std::puts("the tour went well");
    return 0;
}
