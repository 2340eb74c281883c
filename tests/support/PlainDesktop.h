// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QtGlobal>

#include <initializer_list>

namespace testsupport {

/// To be called before the application object is made. What else is installed on the machine, and the desktop
/// that somebody works on, change nothing then: Qt takes its own theme, style, file dialogs and input method.
/// A desktop's theme brings dialogs of its own that no test can reach into, and an input method may keep
/// keys.
inline void usePlainDesktop()
{
    qputenv("QT_QPA_PLATFORMTHEME", "generic");
    qputenv("QT_IM_MODULE", "compose");
    for (const char *variable :
         {"QT_STYLE_OVERRIDE", "QT_PLUGIN_PATH", "XDG_CURRENT_DESKTOP", "KDE_FULL_SESSION",
          "GNOME_DESKTOP_SESSION_ID", "DESKTOP_SESSION", "XMODIFIERS"})
        qunsetenv(variable);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

/// To be called before the application object is made. No window comes up on the screen unless
/// QT_QPA_PLATFORM names one.
inline void stayOffscreen()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace testsupport
