// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/WindowHarness.h"

#include "tests/support/Files.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Sandbox.h"

namespace {

const testsupport::Sandbox &sandbox()
{
    static const testsupport::Sandbox folder;
    return folder;
}

} // namespace

QApplication &WindowHarness::application()
{
    // Never destroyed: at the end of the program, what of Qt's it would need has gone before it.
    static auto &app = []() -> QApplication & {
        static int argc = 1;
        static char name[] = "fuzz";
        static char *argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        testsupport::printFatalMessagesOnly();
        sandbox();
        return *new QApplication(argc, argv);
    }();
    return app;
}

QString WindowHarness::scratchFile()
{
    return sandbox().file("scratch");
}

WindowHarness &WindowHarness::instance()
{
    application();
    static WindowHarness harness;
    return harness;
}

QString WindowHarness::file(const QByteArray &contents)
{
    const QString path = sandbox().file("input");
    testsupport::put(path, contents);
    return path;
}
