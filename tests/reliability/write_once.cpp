// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/WindowUser.h"
#include "tests/support/TestMain.h"

#include <QFileInfo>

#include <cstdio>

namespace {

QStringList arguments;

} // namespace

/// A window that saves or exports once, for a test that ends the program meanwhile. Says "ready" before.
class WriteOnce : public QObject
{
    Q_OBJECT

private slots:
    void writes()
    {
        WindowUser user;
        user.open(arguments.at(0));
        user.layDabs();
        user.preview(true);
        QCOMPARE(user.status(), "Ready");
        puts("ready");
        fflush(stdout);
        if (arguments.at(1).endsWith(".jpg"))
            user.window.save(arguments.at(1));
        else
            user.exportTo(arguments.at(1), 400);
    }
};

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 1;
    arguments = {QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])};
    return testsupport::runTest<WriteOnce>(1, argv);
}
#include "write_once.moc"
