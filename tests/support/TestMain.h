// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/PlainDesktop.h"
#include "tests/support/Sandbox.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTest>

namespace testsupport {

/// Runs a test object in a sandbox, off the screen unless QT_QPA_PLATFORM names a platform.
template <typename TestObject> int runTest(int argc, char *argv[])
{
    const Sandbox sandbox;
    stayOffscreen();
    usePlainDesktop();
    QApplication application(argc, argv);
    TestObject test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace testsupport

#define ORNEVO_TEST_MAIN(TestObject)                                                                         \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        return testsupport::runTest<TestObject>(argc, argv);                                                 \
    }
