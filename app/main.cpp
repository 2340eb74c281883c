// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"
#include "app/SettingsFile.h"
#include "app/Translations.h"
#include "canvas/UndoSnapshot.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // These two name the file of the settings that people have, and stay: see docs/compatibility.md.
    QApplication::setApplicationName(u"Ornevo Pro 2.7 for Mac OS X"_s);
    QApplication::setOrganizationName(u"Tirelo software"_s);
    app::avoidSpecialSettingsFiles();
    canvas::removeAbandonedSnapshots();
    translations::installForDesktop();
    MainWindow window(nullptr);
    QObject::connect(&window, SIGNAL(mwquit()), &application, SLOT(quit()));
    window.show();
    return QApplication::exec();
}
