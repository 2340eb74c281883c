// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The window and its dialogs in every language, in one that is half as long again, and from right to left.

#include "app/Translations.h"
#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/HelpDialog.h"
#include "app/dialogs/OptionsDialog.h"
#include "tests/support/DialogParts.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowUnderTest.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextEdit>
#include <QToolButton>
#include <QTranslator>

using testsupport::part;
using testsupport::WindowUnderTest;

namespace {

/// A language of the test's own: every text half as long again, between quotation marks by which it is known.
class LongTexts : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char * /*context*/, const char *source, const char * /*comment*/,
                                    int /*count*/) const override
    {
        QString text = QString::fromUtf8(source);
        const bool isName = text.startsWith("Ctrl+") || text.startsWith(":/") || text == "Ornevo Pro";
        return isName ? text : lengthened(text);
    }
    static bool isLong(const QString &text) { return text.contains("\u00ab"); }

private:
    static QString lengthened(QString text)
    {
        static const QRegularExpression markup("<[^>]*>");
        const QString more = QString(qMax(1, QString(text).remove(markup).size() / 2), 'W');
        // In front of the closing tags and of the patterns of a file dialog.
        const qsizetype end = text.endsWith("</p>") ? text.indexOf("</") : text.indexOf(" (*.");
        return text.insert(end < 0 ? text.size() : end, "\u00ab" + more + "\u00bb");
    }
};

constexpr auto longTexts = "longer";

/// Speaks a language for as long as it lives.
class Speaking
{
public:
    explicit Speaking(const QString &language)
    {
        if (language == longTexts)
            QCoreApplication::installTranslator(&m_long);
        else
            translations::install(language);
    }
    ~Speaking()
    {
        QCoreApplication::removeTranslator(&m_long);
        translations::install({});
    }
    Q_DISABLE_COPY_MOVE(Speaking)

private:
    LongTexts m_long;
};

void eachLanguage()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translations::languages())
        QTest::newRow(qPrintable(language)) << language;
    QTest::newRow(longTexts) << QString(longTexts);
}

/// Texts that a widget shows, or reports to a screen reader.
QStringList textsOf(const QWidget &widget)
{
    if (qobject_cast<const QMenu *>(&widget) != nullptr && widget.objectName().isEmpty())
        return {}; // Qt's own, behind a bar that was too narrow for a moment
    QStringList texts{widget.accessibleName(), widget.toolTip(), widget.accessibleDescription()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts << label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts << button->text();
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        texts << menu->title();
    for (const QAction *action : widget.actions())
        texts << action->text() << action->toolTip() << action->shortcut().toString();
    return texts;
}

/// All texts of a window, under the names of its parts.
QStringList allTexts(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget *widget : window.findChildren<QWidget *>())
        for (const QString &text : textsOf(*widget))
            if (!text.isEmpty())
                texts << widget->objectName() + ": " + text;
    if (const auto *document = window.findChild<QTextEdit *>())
        texts << document->toHtml();
    return texts;
}

/// Labels and buttons that have less space than their text needs.
QStringList clipped(const QWidget &window)
{
    QStringList found;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool hasText = qobject_cast<const QLabel *>(widget) != nullptr ||
                             qobject_cast<const QAbstractButton *>(widget) != nullptr;
        const bool inside = window.rect().contains(QRect(widget->mapTo(&window, QPoint()), widget->size()));
        const QSize needed = widget->sizeHint();
        const bool fits = needed.width() <= widget->width() && needed.height() <= widget->height();
        if (hasText && widget->isVisible() && !(inside && fits))
            found << widget->objectName() + " " + textsOf(*widget).join(' ');
    }
    return found;
}

/// What is left in English, apart from names and from the texts of the user's own choice.
QStringList notTranslated(const QWidget &window)
{
    QStringList left;
    const QStringList names{"FFFFFFFF", "5x"};
    for (const QWidget *widget : window.findChildren<QWidget *>())
        for (const QString &text : textsOf(*widget)) {
            const bool isKey = text.startsWith("Ctrl+");
            const bool isText = text.contains(QRegularExpression("[a-z]{2}")) && !isKey;
            if (isText && !names.contains(text) && !LongTexts::isLong(text))
                left << widget->objectName() + ": " + text;
        }
    return left;
}

/// Calls a function with each dialog, shown.
template <typename Look> void withEachDialog(Look look)
{
    QSettings settings;
    OptionsDialog options(&settings, nullptr);
    BackgroundDialog background;
    ExportDialog exporting(40, 30, &settings, nullptr);
    HelpDialog help;
    for (QDialog *dialog : QList<QDialog *>{&options, &background, &exporting, &help}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        look(*dialog);
        dialog->hide();
    }
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nothingIsClipped_data() { eachLanguage(); }
    void nothingIsClipped();
    void helpNeedsNoScrollingSideways_data() { eachLanguage(); }
    void helpNeedsNoScrollingSideways();
    void menusFitTheSmallestWindow_data() { eachLanguage(); }
    void menusFitTheSmallestWindow();
    void everyTextIsTranslatable();
    void shortcutsStay_data() { eachLanguage(); }
    void shortcutsStay();
    void changesWhileRunning_data() { eachLanguage(); }
    void changesWhileRunning();
    void dialogsChangeWhileOpen_data() { eachLanguage(); }
    void dialogsChangeWhileOpen();
    void titleOutlivesAChange();
    void settingsDoNotDependOnIt_data() { eachLanguage(); }
    void settingsDoNotDependOnIt();
    void marksFromRightToLeft();
    void dialogsFromRightToLeft();

private:
    QString m_picture;
    QTemporaryDir m_folder;
};

void TestLanguages::init()
{
    QSettings().clear();
    m_picture = m_folder.filePath("picture.png");
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    QVERIFY(image.save(m_picture));
}

void TestLanguages::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
}

void TestLanguages::nothingIsClipped()
{
    QFETCH(QString, language);
    const Speaking speaking(language);
    withEachDialog([](QDialog &dialog) { QCOMPARE(clipped(dialog), QStringList()); });
}

void TestLanguages::helpNeedsNoScrollingSideways()
{
    QFETCH(QString, language);
    const Speaking speaking(language);
    HelpDialog help;
    help.show();
    QVERIFY(QTest::qWaitForWindowExposed(&help));
    auto &text = part<QTextEdit>(help, "textEdit");
    QVERIFY(text.verticalScrollBar()->maximum() > 0); // the document has been laid out
    QCOMPARE(text.horizontalScrollBar()->maximum(), 0);
}

void TestLanguages::menusFitTheSmallestWindow()
{
    QFETCH(QString, language);
    const Speaking speaking(language);
    WindowUnderTest t;
    QMenuBar &bar = *t.window.menuBar();
    for (QAction *menu : bar.actions())
        QVERIFY2(bar.rect().contains(bar.actionGeometry(menu)), qPrintable(menu->text()));
}

void TestLanguages::everyTextIsTranslatable()
{
    const Speaking speaking(longTexts);
    WindowUnderTest t;
    QCOMPARE(notTranslated(t.window), QStringList());
    withEachDialog([](QDialog &dialog) { QCOMPARE(notTranslated(dialog), QStringList()); });
    t.openPicture(m_picture);
    t.dab("actionKeep_arker", 300, 200);
    t.dab("action_Remove_Marker", 30, 30);
    t.trigger("actionMask");
    t.action("actionPreview").setChecked(true);
    for (const char *step : {"actionIncreaseToolSize", "actionDecreaseToolSoze"})
        t.trigger(step);
    t.action("actionForeground_Brush").setChecked(true);
    t.trigger("actionIncreaseBrushIntensity");
    QVERIFY(t.statusTexts.size() > 10);
    for (const QString &text : t.statusTexts)
        QVERIFY2(text.isEmpty() || LongTexts::isLong(text), qPrintable(text));
}

void TestLanguages::shortcutsStay()
{
    QFETCH(QString, language);
    const auto keys = [] {
        MainWindow window;
        QMap<QString, QKeySequence> all;
        for (const QAction *action : window.findChildren<QAction *>())
            if (!action->objectName().isEmpty())
                all.insert(action->objectName(), action->shortcut());
        return all;
    };
    const auto english = keys();
    QCOMPARE(english.value("actionOpen"), QKeySequence(Qt::CTRL | Qt::Key_O));
    QVERIFY(english.size() >= 30);
    const Speaking speaking(language);
    QCOMPARE(keys(), english);
}

void TestLanguages::changesWhileRunning()
{
    QFETCH(QString, language);
    WindowUnderTest t;
    const QStringList english = allTexts(t.window);
    {
        const Speaking speaking(language);
        QCoreApplication::processEvents();
        const WindowUnderTest fresh;
        QCOMPARE(allTexts(t.window), allTexts(fresh.window));
        QVERIFY(allTexts(t.window) != english);
    }
    QCoreApplication::processEvents();
    QCOMPARE(allTexts(t.window), english);
}

void TestLanguages::dialogsChangeWhileOpen()
{
    QFETCH(QString, language);
    withEachDialog([language](QDialog &dialog) {
        const QStringList english = allTexts(dialog);
        {
            const Speaking speaking(language);
            QCoreApplication::processEvents();
            QVERIFY(allTexts(dialog) != english);
            QTRY_COMPARE(clipped(dialog), QStringList());
        }
        QCoreApplication::processEvents();
        QCOMPARE(allTexts(dialog), english);
    });
}

void TestLanguages::titleOutlivesAChange()
{
    WindowUnderTest t;
    t.openPicture(m_picture);
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - picture.png"));
    const Speaking speaking("de");
    QCoreApplication::processEvents();
    QCOMPARE(t.window.windowTitle(), QString("Ornevo Pro - picture.png"));
}

void TestLanguages::settingsDoNotDependOnIt()
{
    QFETCH(QString, language);
    const auto stored = [] {
        QSettings settings;
        settings.clear();
        OptionsDialog dialog(&settings, nullptr);
        dialog.show();
        part<QDoubleSpinBox>(dialog, "doubleSpinBox").setValue(0.35);
        part<QSpinBox>(dialog, "spinBox").setValue(42);
        testsupport::press(dialog, QDialogButtonBox::Ok);
        QMap<QString, QString> all;
        for (const QString &key : settings.allKeys())
            all.insert(key, settings.value(key).toString());
        return all;
    };
    const auto english = stored();
    QCOMPARE(english.value("MOPACITY"), QString("0.35"));
    const Speaking speaking(language);
    QLocale::setDefault(QLocale(language == longTexts ? "fr" : language));
    QCOMPARE(stored(), english);
    WindowUnderTest t;
    QCOMPARE(t.probe.maskOpacity(), 0.35F);
    QCOMPARE(t.probe.keepMarkerSize(), 42);
}

void TestLanguages::marksFromRightToLeft()
{
    const auto markedPixels = [this](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        WindowUnderTest t;
        t.openPicture(m_picture);
        for (int i = 0; i < 6; ++i)
            t.trigger("actionZoom_In");
        t.view.centerOn(150, 100); // scrolled: bars run the other way round
        t.dab("actionKeep_arker", 150, 100);
        t.action("action_Remove_Marker").setChecked(true);
        t.mouse.stroke({t.at(140, 80), t.at(165, 80)});
        QStringList boxes;
        for (const QGraphicsItem *item : t.probe.imageScene().items()) {
            const QRectF box = item->sceneBoundingRect();
            boxes << QString("%1 %2 %3 %4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
        }
        return boxes;
    };
    const QStringList usual = markedPixels(Qt::LeftToRight);
    QVERIFY2(usual.size() >= 3, qPrintable(usual.join('\n')));
    QCOMPARE(markedPixels(Qt::RightToLeft), usual);
}

void TestLanguages::dialogsFromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const Speaking speaking(longTexts);
    withEachDialog([](QDialog &dialog) {
        QCOMPARE(dialog.layoutDirection(), Qt::RightToLeft);
        QCOMPARE(clipped(dialog), QStringList());
    });
    ExportDialog dialog(40, 30, nullptr, nullptr);
    dialog.show();
    QVERIFY(part<QLabel>(dialog, "label_3").x() > part<QSpinBox>(dialog, "spinBox").x()); // mirrored
}

ORNEVO_TEST_MAIN(TestLanguages)
#include "tst_languages.moc"
