// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/WindowHarness.h"

#include "canvas/MarkerDabs.h"

#include <QAction>
#include <QFile>
#include <QPen>
#include <QSettings>
#include <QTemporaryDir>

namespace {

QTemporaryDir &sandbox()
{
    static QTemporaryDir folder;
    return folder;
}

} // namespace

QApplication &WindowHarness::application()
{
    static const bool quiet = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtFatalMsg)
                fprintf(stderr, "%s\n", qPrintable(text));
        });
        for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
            QSettings::setPath(format, QSettings::UserScope, sandbox().path());
        QCoreApplication::setApplicationName("Ornevo");
        QCoreApplication::setOrganizationName("Ornevo fuzzing");
        return true;
    }();
    static int argc = quiet ? 1 : 0;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    // Never destroyed: at the end of the program, what of Qt's it would need has gone before it.
    static auto &app = *new QApplication(argc, argv);
    return app;
}

QString WindowHarness::scratchFile()
{
    return sandbox().filePath("scratch");
}

WindowHarness &WindowHarness::instance()
{
    application();
    static WindowHarness harness;
    return harness;
}

WindowHarness::WindowHarness() : m_probe(m_window) {}

QString WindowHarness::file(const QByteArray &contents)
{
    const QString path = sandbox().filePath("input");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("the input can't be written");
    return path;
}

void WindowHarness::preview(bool on)
{
    m_window.findChild<QAction *>("actionPreview")->setChecked(on);
}

void WindowHarness::layDabs()
{
    m_probe.imageScene().addRect(QRectF(2, 2, 2, 2), QPen(QColor(markers::keepColour)));
    m_probe.imageScene().addEllipse(QRectF(5, 5, 2, 2), QPen(QColor(markers::removeColour)));
}
