// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QImageReader>
#include <QSettings>
#include <QTemporaryDir>

/// A program without a screen, unless one is asked for, that keeps quiet and keeps its settings to itself.
class BenchmarkApplication
{
public:
    BenchmarkApplication(int &argc, char **argv) : m_application(prepared(argc), argv)
    {
        for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
            QSettings::setPath(format, QSettings::UserScope, m_settings.path());
        QApplication::setApplicationName("Ornevo benchmark");
        QApplication::setOrganizationName("Ornevo benchmark");
        QImageReader::setAllocationLimit(0); // for what is decoded by QImage alone
    }

private:
    static int &prepared(int &argc)
    {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        return argc;
    }

    QTemporaryDir m_settings;
    QApplication m_application;
};
