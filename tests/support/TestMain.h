// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/PlainDesktop.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace testsupport {

/// Runs a test object in a world of its own: its settings and temporary files go to a folder that is removed
/// at the end, and never to the user's own. Offscreen unless QT_QPA_PLATFORM names another platform.
template <typename TestObject> int runTest(int argc, char *argv[])
{
    QTemporaryDir world;
    if (!world.isValid())
        return 1;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QDir(world.path()).mkpath("config");
    QDir(world.path()).mkpath("tmp");
    qputenv("TMPDIR", world.filePath("tmp").toLocal8Bit());
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, world.filePath("config"));
    usePlainDesktop();
    QApplication application(argc, argv);
    QApplication::setApplicationName("Ornevo Pro 2.7 for Mac OS X");
    QApplication::setOrganizationName("Tirelo software");
    TestObject test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace testsupport

#define ORNEVO_TEST_MAIN(TestObject)                                                                         \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        return testsupport::runTest<TestObject>(argc, argv);                                                 \
    }
