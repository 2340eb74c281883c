// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/support/DialogAnswers.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

using testsupport::DialogAnswers;

namespace {

constexpr int shortPatience = 200; // ms

} // namespace

class TestDialogAnswers : public QObject
{
    Q_OBJECT

private slots:
    void answersInOrder();
    void anAnswerMayOpenTheNextDialog();
    void theNextAnswerIsForTheNextDialog();
    void saysWhatIsOpenInstead();
    void saysWhatKeepsTheDialogOpen();
    void saysThatNoDialogCame();
    void waitsForDialogsThatComeLater();
    void choosesAFileAtOnce();
    void saysThatAFileCanNotBeChosen();
};

void TestDialogAnswers::answersInOrder()
{
    DialogAnswers answers;
    answers.expect<QDialog>([](QDialog &dialog) { dialog.accept(); });
    answers.expect<QMessageBox>([](QMessageBox &box) { box.button(QMessageBox::No)->click(); });
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(!answers.allGiven());
    QCOMPARE(answers.given(), 1);
    QMessageBox box(QMessageBox::Question, "Oh", "Really?", QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.exec(), int(QMessageBox::No));
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QCOMPARE(answers.given(), 2);
}

void TestDialogAnswers::anAnswerMayOpenTheNextDialog()
{
    DialogAnswers answers(shortPatience);
    QMessageBox box;
    answers.expect<QDialog>([&](QDialog &dialog) {
        box.exec();
        dialog.accept();
    });
    answers.expect<QMessageBox>([](QMessageBox &inner) { inner.accept(); });
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
}

/// An answer that itself waits keeps its dialog from getting what is meant for the one after it.
void TestDialogAnswers::theNextAnswerIsForTheNextDialog()
{
    DialogAnswers answers;
    QDialog first;
    QDialog second;
    QList<QDialog *> answered;
    answers.expect<QDialog>([&](QDialog &dialog) {
        QVERIFY(!QTest::qWaitFor([&] { return !answered.isEmpty(); }, shortPatience));
        answered << &dialog;
        dialog.accept();
    });
    answers.expect<QDialog>([&](QDialog &dialog) {
        answered << &dialog;
        dialog.accept();
    });
    first.exec();
    second.exec();
    QCOMPARE(answered, QList<QDialog *>({&first, &second}));
}

void TestDialogAnswers::saysWhatIsOpenInstead()
{
    QMessageBox box(QMessageBox::Warning, "Oh", "Not found");
    DialogAnswers answers(shortPatience);
    answers.cancelFile();
    box.exec();
    QVERIFY(!answers.allGiven());
    QCOMPARE(answers.given(), 0);
    QCOMPARE(answers.report(), QString("QMessageBox \"%1\" is in the place of QFileDialog: Not found; "
                                       "QFileDialog was not shown")
                                   .arg(box.windowTitle()));
}

void TestDialogAnswers::saysWhatKeepsTheDialogOpen()
{
    QDialog dialog;
    QMessageBox box(QMessageBox::Warning, "Oh", "Not found", QMessageBox::Ok, &dialog);
    DialogAnswers answers(shortPatience);
    answers.expect<QDialog>([&box](QDialog &) { box.open(); });
    dialog.exec();
    QVERIFY(!answers.allGiven());
    QCOMPARE(
        answers.report(),
        QString("QMessageBox \"%1\" stays open: Not found; QDialog \"\" stays open").arg(box.windowTitle()));
}

void TestDialogAnswers::saysThatNoDialogCame()
{
    DialogAnswers answers(shortPatience);
    answers.expect<QDialog>([](QDialog &) {});
    QVERIFY(!answers.waitForAll());
    QCOMPARE(answers.report(), QString("QDialog was not shown"));
}

void TestDialogAnswers::waitsForDialogsThatComeLater()
{
    DialogAnswers answers;
    QDialog dialog;
    answers.expect<QDialog>([](QDialog &shown) { shown.accept(); });
    dialog.open();
    QVERIFY2(answers.waitForAll(), qPrintable(answers.report()));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestDialogAnswers::choosesAFileAtOnce()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    testsupport::put(path, "a");
    QFileDialog dialog(nullptr, "Open", QDir::rootPath(), "Pictures (*.png)");
    dialog.setFileMode(QFileDialog::ExistingFile);
    DialogAnswers answers;
    answers.chooseFile(path);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY2(answers.allGiven(), qPrintable(answers.report()));
    QCOMPARE(dialog.selectedFiles(), QStringList(path));
}

void TestDialogAnswers::saysThatAFileCanNotBeChosen()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("none.png");
    QFileDialog dialog(nullptr, "Open", folder.path());
    dialog.setFileMode(QFileDialog::ExistingFile);
    DialogAnswers answers(shortPatience);
    answers.chooseFile(path);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(answers.report(), "QFileDialog \"Open\" does not let " + path + " be chosen");
}

ORNEVO_TEST_MAIN(TestDialogAnswers)
#include "tst_dialoganswers.moc"
