// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/HelpDialog.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowDriver.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextEdit>
#include <QUrlQuery>

using testsupport::action;

class TestHelp : public QObject
{
    Q_OBJECT

public slots:
    void takeMail(const QUrl &url) { mails.append(url); }
    void takePage(const QUrl &url) { pages.append(url); }

private slots:
    void init();
    void cleanup();
    void windowsAreModeless();
    void buttonsClose();
    void form();
    void documentInOrder();
    void pictures();
    void languageChange();
    void linkOpensByAClick();
    void linkOpensThroughASelection();
    void doubleClickOpensOnce();
    void linkStaysShutOtherwise();
    void linkIsPointedAt();
    void aboutBoxes_data();
    void aboutBoxes();
    void contact();

private:
    QList<HelpDialog *> helpWindows() { return window->findChildren<HelpDialog *>(); }

    std::unique_ptr<MainWindow> window;
    QList<QUrl> mails;
    QList<QUrl> pages;
};

namespace {

const QUrl tutorials("https://ornevo.example/tutorials");

/// A help window that shows its end, where the link is.
struct HelpAtItsEnd
{
    HelpAtItsEnd() : text(*help.findChild<QTextEdit *>("textEdit"))
    {
        help.show();
        if (!QTest::qWaitForWindowExposed(&help))
            qFatal("the help does not come up");
        text.moveCursor(QTextCursor::End);
        text.ensureCursorVisible();
    }

    /// A point of the viewport in the midst of these words.
    [[nodiscard]] QPoint pointOn(const QString &words) const
    {
        QTextCursor cursor = text.document()->find(words);
        if (cursor.isNull())
            qFatal("the help says nothing of %s", qPrintable(words));
        cursor.setPosition(cursor.selectionStart() + int(words.size() / 2));
        return text.cursorRect(cursor).center();
    }
    void move(QPoint position, Qt::MouseButtons held = {}) const
    {
        QMouseEvent event(QEvent::MouseMove, position, text.viewport()->mapToGlobal(position), Qt::NoButton,
                          held, {});
        QApplication::sendEvent(text.viewport(), &event);
    }
    void press(QPoint position) const { QTest::mousePress(text.viewport(), Qt::LeftButton, {}, position); }
    void release(QPoint position) const
    {
        QTest::mouseRelease(text.viewport(), Qt::LeftButton, {}, position);
    }
    [[nodiscard]] Qt::CursorShape pointer() const { return text.viewport()->cursor().shape(); }

    HelpDialog help;
    QTextEdit &text;
};

} // namespace

void TestHelp::init()
{
    window = std::make_unique<MainWindow>();
    testsupport::show(*window);
    pages.clear();
    QDesktopServices::setUrlHandler("https", this, "takePage");
}

void TestHelp::cleanup()
{
    QDesktopServices::unsetUrlHandler("https");
    window.reset();
}

void TestHelp::windowsAreModeless()
{
    action(*window, "actionIndex")->trigger();
    action(*window, "actionIndex")->trigger();
    action(*window, "actionIndex")->trigger();
    const QList<HelpDialog *> opened = helpWindows();
    QCOMPARE(opened.size(), 3);
    for (const HelpDialog *help : opened) {
        QVERIFY(help->isVisible());
        QVERIFY(!help->isModal());
        QCOMPARE(help->parentWidget(), window.get());
        QVERIFY(help->isWindow());
    }
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    opened.at(0)->close(); // a closed window stays until the main window goes
    QCOMPARE(helpWindows().size(), 3);
    action(*window, "actionIndex")->trigger();
    QCOMPARE(helpWindows().size(), 4);
    const QPointer<HelpDialog> last = helpWindows().last();
    window.reset();
    QVERIFY(last.isNull());
}

void TestHelp::buttonsClose()
{
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        HelpDialog help;
        help.show();
        QTest::mouseClick(help.findChild<QDialogButtonBox *>("buttonBox")->button(button), Qt::LeftButton);
        QVERIFY(!help.isVisible());
        QCOMPARE(help.result(),
                 button == QDialogButtonBox::Ok ? int{QDialog::Accepted} : int{QDialog::Rejected});
    }
}

void TestHelp::form()
{
    HelpDialog help;
    QCOMPARE(help.objectName(), "HelpDialog");
    QCOMPARE(help.windowTitle(), "Ornevo Help");
    QCOMPARE(help.size(), QSize(500, 600));
    auto *box = help.findChild<QDialogButtonBox *>("buttonBox");
    QCOMPARE(box->orientation(), Qt::Vertical);
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *text = help.findChild<QTextEdit *>("textEdit");
    QVERIFY(text->isReadOnly());
    const QString before = text->toPlainText();
    help.show();
    QTest::keyClicks(text, "typed");
    QCOMPARE(text->toPlainText(), before);
    QVERIFY(help.findChild<QLayout *>("horizontalLayout") != nullptr);
    QVERIFY(help.findChild<QLayout *>("verticalLayout")->indexOf(text) >= 0);
}

void TestHelp::documentInOrder()
{
    HelpDialog help;
    const QString html = help.findChild<QTextEdit *>("textEdit")->toHtml();
    // Text and pictures in the order in which they have to come.
    const QStringList landmarks{"mask objects",
                                "new background",
                                "1.",
                                "Foreground Marker",
                                "2.",
                                "screenshot_03.png",
                                "3.",
                                "foxglove.png",
                                "screenshot_04.png",
                                "4.",
                                "Play.tiff",
                                "screenshot_05.png",
                                "5.",
                                "greenbrush.png",
                                "redbrush.png",
                                "6.",
                                "colors.tiff",
                                "white by default",
                                "screenshot_06.png",
                                "screenshot_07.png",
                                "screenshot_08.png",
                                "7.",
                                "openhand.png",
                                "zoomplusbg.png",
                                "zoomminusbg.png",
                                "8.",
                                "ToolbarPicturesFolderIcon.png",
                                "Usefull keyboard shortcuts",
                                "Undo is ⌘Z. It works for markers and brushes.",
                                "⌘Left and ⌘Right change the current brush or marker size.",
                                "⌘Up and ⌘Down change the current brush intensity.",
                                "⌘O and ⌘S work for Open/Save.",
                                "See also:",
                                "<a href=\"http",
                                "tutorials"};
    qsizetype position = html.indexOf("<body");
    for (const QString &landmark : landmarks) {
        const qsizetype next = html.indexOf(landmark, position);
        QVERIFY2(next >= 0, qPrintable(landmark));
        position = next + landmark.size();
    }
    // The shortcuts stand on lines of their own.
    const QStringList lines = help.findChild<QTextEdit *>("textEdit")->toPlainText().split('\n');
    for (qsizetype i = landmarks.indexOf("Usefull keyboard shortcuts"); i <= landmarks.indexOf("See also:");
         ++i)
        QVERIFY2(lines.contains(landmarks.at(i)), qPrintable(landmarks.at(i)));
}

void TestHelp::pictures()
{
    HelpDialog help;
    const QString html = help.findChild<QTextEdit *>("textEdit")->toHtml();
    const QRegularExpression source("<img src=\"([^\"]+)\"");
    QStringList named;
    for (auto matches = source.globalMatch(html); matches.hasNext();)
        named.append(matches.next().captured(1));
    QCOMPARE(named.size(), 15);
    for (const QString &name : named) {
        QVERIFY2(name.startsWith(":/icons/"), qPrintable(name));
        const QPixmap picture(name);
        if (name.contains("screenshot") && !QFile::exists(name)) {
            qWarning("%s is not there yet", qPrintable(name));
            continue;
        }
        QVERIFY2(!picture.isNull(), qPrintable(name));
    }
}

void TestHelp::languageChange()
{
    HelpDialog help;
    auto *text = help.findChild<QTextEdit *>("textEdit");
    const QString before = text->toHtml();
    text->clear();
    help.setWindowTitle("other");
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&help, &change);
    QCOMPARE(text->toHtml(), before);
    QCOMPARE(help.windowTitle(), "Ornevo Help");
}

void TestHelp::linkOpensByAClick()
{
    const HelpAtItsEnd end;
    const QPoint link = end.pointOn(tutorials.toString());
    end.move(link);
    end.press(link);
    QCOMPARE(pages, QList<QUrl>());
    end.release(link);
    QCOMPARE(pages, QList<QUrl>({tutorials}));
    QTest::mouseClick(end.text.viewport(), Qt::LeftButton, {}, link + QPoint(12, 0));
    QCOMPARE(pages, QList<QUrl>({tutorials, tutorials}));
}

void TestHelp::linkOpensThroughASelection()
{
    const HelpAtItsEnd end;
    end.text.selectAll();
    const QPoint link = end.pointOn(tutorials.toString());
    QTest::mouseClick(end.text.viewport(), Qt::LeftButton, {}, link);
    QCOMPARE(pages, QList<QUrl>({tutorials}));
}

void TestHelp::doubleClickOpensOnce()
{
    const HelpAtItsEnd end;
    const QPoint link = end.pointOn(tutorials.toString());
    QTest::mouseClick(end.text.viewport(), Qt::LeftButton, {}, link);
    QTest::mouseDClick(end.text.viewport(), Qt::LeftButton, {}, link);
    end.release(link);
    QCOMPARE(pages, QList<QUrl>({tutorials}));
}

void TestHelp::linkStaysShutOtherwise()
{
    const HelpAtItsEnd end;
    const QPoint link = end.pointOn(tutorials.toString());
    const QPoint words = end.pointOn("Video tutorials");
    QTest::mouseClick(end.text.viewport(), Qt::LeftButton, {}, words);
    QTest::mouseClick(end.text.viewport(), Qt::RightButton, {}, link);
    for (const auto &[from, to] :
         {std::pair{words, link}, {link, words}, {link, link + QPoint(40, 0)}}) { // the last one selects
        end.text.moveCursor(QTextCursor::End); // a press into a selection would drag it away
        end.press(from);
        end.move(to, Qt::LeftButton);
        end.release(to);
    }
    QCOMPARE(pages, QList<QUrl>());
    QVERIFY(end.text.textCursor().hasSelection());
}

void TestHelp::linkIsPointedAt()
{
    const HelpAtItsEnd end;
    end.move(end.pointOn("Video tutorials"));
    QCOMPARE(end.pointer(), Qt::IBeamCursor);
    end.move(end.pointOn(tutorials.toString()));
    QCOMPARE(end.pointer(), Qt::PointingHandCursor);
    end.move(end.pointOn("Video tutorials"));
    QCOMPARE(end.pointer(), Qt::IBeamCursor);
    QVERIFY(end.text.viewport()->hasMouseTracking()); // or no move would come without a button
}

void TestHelp::aboutBoxes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("about") << "actionAbout"
                           << "Ornevo Pro 2.7 for MacOS X";
    QTest::newRow("test menu") << "actionTestMenu"
                               << "Ornevo Pro 2.5";
}

void TestHelp::aboutBoxes()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    QString shownTitle;
    QString text;
    QWidget *parent = nullptr;
    testsupport::DialogAnswers answers;
    answers.expect<QMessageBox>([&](QMessageBox &box) {
        shownTitle = box.windowTitle();
        text = box.text();
        parent = box.parentWidget();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    action(*window, name)->trigger();
    QCOMPARE(answers.given(), 1);
    QCOMPARE(shownTitle, title);
    QCOMPARE(parent, window.get());
    QCOMPARE(text.split('\n').size(), 2);
    QVERIFY(text.contains("Ornevo developers"));
    QVERIFY(text.contains("https://ornevo.example"));
}

void TestHelp::contact()
{
    QVERIFY(!action(*window, "actionContact_Us")->isVisible());
    QDesktopServices::setUrlHandler("mailto", this, "takeMail");
    QVERIFY(QMetaObject::invokeMethod(window.get(), "on_actionContact_Us_triggered"));
    QDesktopServices::unsetUrlHandler("mailto");
    QCOMPARE(mails.size(), 1);
    QVERIFY(mails.first().path().contains('@'));
    QVERIFY(QUrlQuery(mails.first()).queryItemValue("subject", QUrl::FullyDecoded).contains("Ornevo"));
}

ORNEVO_TEST_MAIN(TestHelp)
#include "tst_help.moc"
