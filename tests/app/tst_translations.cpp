// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The catalogues and the help documents themselves, as the translators wrote them. What the window makes of
// them is in tst_languages.

#include "app/MainWindow.h"
#include "app/Translations.h"
#include "tests/support/TestMain.h"

#include <QLibraryInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

struct Entry
{
    QString context;
    QString source;
    QString translation;
};

QList<Entry> catalogue(const QString &language)
{
    QFile file(QStringLiteral(ORNEVO_RESOURCES_DIR "/translations/ornevo_") + language + ".ts");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no catalogue %s", qPrintable(file.fileName()));
    QXmlStreamReader xml(&file);
    QList<Entry> entries;
    Entry entry;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            entry.context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            entry.source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            entry.translation = xml.readElementText();
            entries << entry;
        }
    }
    return entries;
}

/// All that the expression finds in the text, sorted: languages order their words differently.
QStringList found(const QString &expression, const QString &text)
{
    QStringList all;
    for (auto matches = QRegularExpression(expression).globalMatch(text); matches.hasNext();)
        all << matches.next().captured();
    all.sort();
    return all;
}

QStringList helpLines(const QString &language)
{
    QFile file(":/help/help_" + language + ".html");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no help %s", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll()).split('\n');
}

/// The words in bold type, in order.
QStringList boldWords(const QString &html)
{
    QStringList words;
    const QRegularExpression bold("<b>(.*?)</b>");
    for (auto matches = bold.globalMatch(html); matches.hasNext();)
        words << matches.next().captured(1);
    return words;
}

void eachLanguage()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translations::languages())
        QTest::newRow(qPrintable(language)) << language;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { translations::install({}); }
    void languageFor_data();
    void languageFor();
    void loads_data() { eachLanguage(); }
    void loads();
    void qtSpeaksItToo_data() { eachLanguage(); }
    void qtSpeaksItToo();
    void sameTexts_data() { eachLanguage(); }
    void sameTexts();
    void placesAndMarkup_data() { eachLanguage(); }
    void placesAndMarkup();
    void namesAndKeysStay_data() { eachLanguage(); }
    void namesAndKeysStay();
    void helpHasTheSameShape_data() { eachLanguage(); }
    void helpHasTheSameShape();
    void helpUsesTheWordsOfTheWindow_data() { eachLanguage(); }
    void helpUsesTheWordsOfTheWindow();
    void glossary_data() { eachLanguage(); }
    void glossary();
};

void TestTranslations::languageFor_data()
{
    QTest::addColumn<QStringList>("preferred");
    QTest::addColumn<QString>("language");
    const auto row = [](const QStringList &preferred, const QString &language) {
        QTest::newRow(qPrintable(preferred.join(' '))) << preferred << language;
    };
    row({"de-DE", "de"}, "de");
    row({"de-CH"}, "de");
    row({"es-MX"}, "es");
    row({"fr-CA", "fr"}, "fr");
    row({"it"}, "it");
    row({"ja-JP"}, "ja");
    row({"pl"}, "pl");
    row({"pt-BR", "pt"}, "pt_BR");
    row({"pt-PT"}, "pt_BR");
    row({"zh-CN", "zh"}, "zh_CN");
    row({"zh-Hans-SG"}, "zh_CN");
    row({"zh-Hant-TW"}, "");
    row({"zh-TW"}, "");
    row({"C"}, "");
    row({"en-US", "en"}, "");
    row({"en-GB", "de-DE"}, ""); // English is spoken, and comes first
    row({"nl-NL", "nl", "fr-FR"}, "fr");
    row({"nl", "en", "fr"}, "");
    row({"nl"}, "");
    row({}, "");
    row({"no language at all", "ja"}, "ja");
}

void TestTranslations::languageFor()
{
    QFETCH(QStringList, preferred);
    QFETCH(QString, language);
    QCOMPARE(translations::languageFor(preferred), language);
}

void TestTranslations::loads()
{
    QFETCH(QString, language);
    QCOMPARE(MainWindow::tr("Open"), QString("Open"));
    translations::install(language);
    for (const Entry &entry : catalogue(language))
        QCOMPARE(QCoreApplication::translate(qPrintable(entry.context), qPrintable(entry.source)),
                 entry.translation);
    QVERIFY(MainWindow::tr("Open") != "Open");
    translations::install({});
    QCOMPARE(MainWindow::tr("Open"), QString("Open"));
}

void TestTranslations::qtSpeaksItToo()
{
    QFETCH(QString, language);
    translations::install(language);
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_" + language + ".qm"))
        QSKIP("Qt's own catalogues are not installed here (qt6-translations-l10n)");
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    QVERIFY2(cancel != "Cancel", qPrintable(cancel));
}

void TestTranslations::sameTexts()
{
    QFETCH(QString, language);
    const QList<Entry> entries = catalogue(language);
    QVERIFY(entries.size() > 100);
    const QList<Entry> others = catalogue("de");
    QCOMPARE(entries.size(), others.size());
    for (int i = 0; i < entries.size(); ++i) {
        QCOMPARE(entries.at(i).source, others.at(i).source);
        QVERIFY2(!entries.at(i).translation.trimmed().isEmpty(), qPrintable(entries.at(i).source));
    }
}

void TestTranslations::placesAndMarkup()
{
    QFETCH(QString, language);
    for (const Entry &entry : catalogue(language))
        // Places for numbers, tags, patterns of file names, ends of lines.
        for (const QString kind : {"%[0-9L]+", "</?[a-z]+[^>]*>", R"(\([^)]*\*\.[^)]*\))", "\n"})
            QCOMPARE(found(kind, entry.translation), found(kind, entry.source));
}

void TestTranslations::namesAndKeysStay()
{
    QFETCH(QString, language);
    const QString mnemonic = "(?<!&)&(?![&a-z]+;)[^&\\s]";
    for (const Entry &entry : catalogue(language)) {
        // A letter to press exactly where the English text has one, and only one.
        QCOMPARE(found(mnemonic, entry.translation).size(), found(mnemonic, entry.source).size());
        if (entry.source.startsWith("Ctrl+") || entry.source.startsWith("Ornevo Pro"))
            QCOMPARE(entry.translation, entry.source);
        if (entry.source == ":/help/help_en.html")
            QCOMPARE(entry.translation, ":/help/help_" + language + ".html");
    }
}

void TestTranslations::helpHasTheSameShape()
{
    QFETCH(QString, language);
    translations::install(language);
    const QStringList lines = helpLines(language);
    const QStringList english = helpLines("en");
    QCOMPARE(lines.size(), english.size());
    for (int i = 0; i < lines.size(); ++i) {
        QCOMPARE(found("<[^>]*>", lines.at(i)), found("<[^>]*>", english.at(i)));
        if (english.at(i).contains("<p>") && !english.at(i).contains("<p><img"))
            QVERIFY2(lines.at(i) != english.at(i), qPrintable(lines.at(i)));
    }
}

void TestTranslations::helpUsesTheWordsOfTheWindow()
{
    QFETCH(QString, language);
    QMultiHash<QString, QString> words;
    for (const Entry &entry : catalogue(language))
        words.insert(entry.source, entry.translation);
    const QStringList lines = helpLines(language);
    const QStringList english = helpLines("en");
    int compared = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QStringList bold = boldWords(lines.at(i));
        for (const QString &word : boldWords(english.at(i)))
            if (words.contains(word)) {
                QVERIFY2(bold.contains(words.value(word)), qPrintable(word + " in " + lines.at(i)));
                ++compared;
            }
    }
    QVERIFY(compared >= 20);
}

void TestTranslations::glossary()
{
    QFETCH(QString, language);
    const auto terms = [](const QString &name) {
        QFile file(QStringLiteral(ORNEVO_RESOURCES_DIR "/translations/glossary_") + name + ".md");
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no %s", qPrintable(file.fileName()));
        QStringList english;
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n'))
            if (const QStringList cells = line.split('|'); cells.size() == 5 && !line.startsWith("|--"))
                english << cells.at(1).trimmed();
        return english;
    };
    QCOMPARE(terms(language).size(), 31); // the head and thirty terms
    QCOMPARE(terms(language), terms("de"));
}

ORNEVO_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
