// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/Translations.h"

#include "resources/Resources.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView translatorName("ornevo translator");

void removeInstalled(QCoreApplication &application)
{
    for (QTranslator *old : application.findChildren<QTranslator *>(translatorName))
        delete old; // which removes it from the application
}

void installCatalogue(QCoreApplication &application, const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    translator->setObjectName(translatorName);
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator; // Qt's own catalogues need not be installed
}

/// The catalogue of one wanted language, or nothing.
QString catalogueFor(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::German:
        return u"de"_s;
    case QLocale::Spanish:
        return u"es"_s;
    case QLocale::French:
        return u"fr"_s;
    case QLocale::Italian:
        return u"it"_s;
    case QLocale::Japanese:
        return u"ja"_s;
    case QLocale::Polish:
        return u"pl"_s;
    case QLocale::Portuguese:
        return u"pt_BR"_s;
    case QLocale::Chinese: // who reads the traditional script is not given the simplified one
        return locale.script() == QLocale::SimplifiedHanScript ? u"zh_CN"_s : QString();
    default:
        return {};
    }
}

} // namespace

QStringList translations::languages()
{
    return {u"de"_s, u"es"_s, u"fr"_s, u"it"_s, u"ja"_s, u"pl"_s, u"pt_BR"_s, u"zh_CN"_s};
}

QString translations::languageFor(const QStringList &preferred)
{
    // Not QTranslator's own search, which has no catalogue for English and would ignore it for the next
    // language of the list.
    for (const QString &name : preferred) {
        const QLocale locale(name);
        const QString language = catalogueFor(locale);
        if (!language.isEmpty() || locale.language() == QLocale::English)
            return language;
    }
    return {};
}

void translations::install(const QString &language)
{
    QCoreApplication &application = *QCoreApplication::instance();
    resources::registerAll();
    removeInstalled(application);
    if (language.isEmpty())
        return;
    // The last one installed is asked first.
    installCatalogue(application, u"qtbase_"_s + language,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installCatalogue(application, u"ornevo_"_s + language, u":/translations"_s);
}

void translations::installForDesktop()
{
    // Whoever asks for C wants to read what the sources say; Qt would still go by LANGUAGE.
    const QLocale desktop = QLocale::system();
    install(desktop.language() == QLocale::C ? QString() : languageFor(desktop.uiLanguages()));
}
