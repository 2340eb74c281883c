// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/support/TestMain.h"
#include "tour/DialogAnswer.h"
#include "tour/Driver.h"

#include <QFileDialog>
#include <QMessageBox>

namespace {

constexpr int shortPatience = 200; // ms

/// What finish() reports; empty when all went well.
QString reportOf(DialogAnswer &answer)
{
    try {
        answer.finish();
    } catch (const TourError &error) {
        return error.what();
    }
    return {};
}

} // namespace

class TestDialogAnswer : public QObject
{
    Q_OBJECT

private slots:
    void answersTheDialog();
    void saysWhatIsOpenInstead();
    void saysWhatKeepsTheDialogOpen();
    void saysThatNoDialogCame();
    void handsOnWhatTheAnswerThrew();
    void namesWhatIsWaitedFor();
    void choosesAFileAtOnce();
    void saysThatAFileCanNotBeChosen();
};

void TestDialogAnswer::answersTheDialog()
{
    QDialog dialog;
    DialogAnswer answer("QDialog", [](QWidget &widget) { qobject_cast<QDialog *>(&widget)->accept(); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(reportOf(answer), QString());
}

void TestDialogAnswer::saysWhatIsOpenInstead()
{
    QMessageBox box(QMessageBox::Warning, "Oh", "Not found");
    DialogAnswer answer(
        "QFileDialog", [](QWidget &) {}, shortPatience);
    box.exec();
    const QString report = reportOf(answer);
    QVERIFY2(report.startsWith("QFileDialog was not shown; open is QMessageBox"), qPrintable(report));
    QVERIFY2(report.contains("Not found"), qPrintable(report));
}

void TestDialogAnswer::saysWhatKeepsTheDialogOpen()
{
    QDialog dialog;
    QMessageBox box(QMessageBox::Warning, "Oh", "Not found", QMessageBox::Ok, &dialog);
    DialogAnswer answer(
        "QDialog", [&box](QWidget &) { box.open(); }, shortPatience);
    dialog.exec();
    const QString report = reportOf(answer);
    QVERIFY2(report.startsWith("QDialog stays open after its answer; open is QMessageBox"),
             qPrintable(report));
    QVERIFY2(report.contains("Not found"), qPrintable(report));
}

void TestDialogAnswer::saysThatNoDialogCame()
{
    DialogAnswer answer(
        "QDialog", [](QWidget &) {}, shortPatience);
    QCOMPARE(reportOf(answer), QString("QDialog was not shown; no dialog is open"));
}

void TestDialogAnswer::handsOnWhatTheAnswerThrew()
{
    QDialog dialog;
    DialogAnswer answer("QDialog", [](QWidget &) { throw TourError("no such button"); });
    dialog.exec();
    QCOMPARE(reportOf(answer), QString("no such button"));
}

void TestDialogAnswer::namesWhatIsWaitedFor()
{
    const Awaiting one("the first");
    const Awaiting two("the second");
    QVERIFY2(awaited().startsWith("the first, in there for the second"), qPrintable(awaited()));
}

void TestDialogAnswer::choosesAFileAtOnce()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(path));
    QFileDialog dialog(nullptr, "Open", QDir::rootPath(), "Pictures (*.png)");
    dialog.setFileMode(QFileDialog::ExistingFile);
    DialogAnswer answer("QFileDialog", [&path](QWidget &widget) { Driver::chooseFile(widget, path); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(reportOf(answer), QString());
    QCOMPARE(dialog.selectedFiles(), QStringList(path));
}

void TestDialogAnswer::saysThatAFileCanNotBeChosen()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("none.png");
    QFileDialog dialog(nullptr, "Open", folder.path());
    dialog.setFileMode(QFileDialog::ExistingFile);
    DialogAnswer answer("QFileDialog",
                        [&path](QWidget &widget) { Driver::chooseFile(widget, path, shortPatience); });
    dialog.exec();
    QVERIFY2(reportOf(answer).contains(path), qPrintable(reportOf(answer)));
}

ORNEVO_TEST_MAIN(TestDialogAnswer)
#include "tst_dialoganswer.moc"
