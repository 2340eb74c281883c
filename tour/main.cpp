// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"
#include "tests/support/PlainDesktop.h"
#include "tests/support/Sandbox.h"
#include "tour/Scenario.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPalette>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::chrono::minutes longestTour(4);

/// A dark desktop's colours, for desktops whose theme can't be asked for one.
QPalette darkPalette()
{
    constexpr QRgb window = 0x2B2D30;
    constexpr QRgb base = 0x1E1F22;
    constexpr QRgb text = 0xE6E6E6;
    constexpr QRgb faded = 0x7F8287;
    QPalette palette((QColor(window)), QColor(window)); // the shades of frames and buttons follow from these
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase})
        palette.setColor(role, QColor(base));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(text));
        palette.setColor(QPalette::Disabled, role, QColor(faded));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(faded));
    palette.setColor(QPalette::Highlight, QColor(0x2F65CA));
    palette.setColor(QPalette::HighlightedText, QColor(text));
    palette.setColor(QPalette::Link, QColor(0x6CA8F0));
    return palette;
}

} // namespace

int main(int argc, char *argv[])
{
    testsupport::usePlainDesktop();
    const testsupport::Sandbox sandbox;
    QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.addOption({"samples", "folder of the sample pictures", "folder", "samples"});
    parser.addOption({"folder", "where the pictures go", "folder", "."});
    parser.addOption({"help-pictures", "where the screenshots of the help go", "folder"});
    parser.addOption({"dark", "in the colours of a dark desktop"});
    parser.addHelpOption();
    parser.process(application);
    if (parser.isSet("dark")) {
        QApplication::setStyle("Fusion"); // the other styles bring colours of their own
        QApplication::setPalette(darkPalette());
    }

    QTimer::singleShot(longestTour, &application, [] {
        std::fprintf(stderr, "the tour failed: it still waits for %s\n", qPrintable(awaited()));
        std::_Exit(1);
    });
    try {
        MainWindow window;
        window.resize(1240, 900);
        window.show();
        {
            const Awaiting exposed("the window to be shown");
            expect(QTest::qWaitForWindowExposed(&window), "the window is not shown");
        }
        Scenario(window, parser.value("folder"), parser.value("samples"), parser.value("help-pictures"))
            .run();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "the tour failed: %s\n", error.what());
        return 1;
    }
    std::puts("the tour went well");
    return 0;
}
