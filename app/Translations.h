// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// The languages that the program speaks beside its own English.
namespace translations {

/// Their names as the catalogues carry them: "de" for ornevo_de.qm.
QStringList languages();

/// The first language of the list that the program speaks, or nothing for English. The list holds names as
/// QLocale::uiLanguages() gives them, the preferred language first.
QString languageFor(const QStringList &preferred);

/// Makes the running application speak that language, its dialogs by Qt included; nothing is English. What
/// was installed before goes. Windows that are open hear of it by QEvent::LanguageChange.
void install(const QString &language);

/// Installs the language of the desktop.
void installForDesktop();

} // namespace translations
