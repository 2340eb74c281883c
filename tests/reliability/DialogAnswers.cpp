// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/DialogAnswers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int lookEvery = 1; // ms
constexpr int mostPixelsASide = 300;

} // namespace

DialogAnswers::DialogAnswers(testpictures::Random &random) : m_random(random)
{
    QTimer::singleShot(lookEvery, this, &DialogAnswers::look);
}

void DialogAnswers::setFiles(const QStringList &toOpen, const QStringList &toSave)
{
    m_toOpen = toOpen;
    m_toSave = toSave;
}

void DialogAnswers::look()
{
    // Armed before anything is answered: an answer can open the next dialog and only then return.
    QTimer::singleShot(lookEvery, this, &DialogAnswers::look);
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        return;
    m_seen.removeIf([](const QPointer<QDialog> &seen) { return seen == nullptr; });
    if (m_seen.contains(QPointer<QDialog>(dialog))) {
        dialog->reject();
        return;
    }
    m_seen.append(dialog);
    ++m_answered;
    answer(*dialog);
}

void DialogAnswers::answer(QDialog &dialog)
{
    const bool accepts = m_random.below(4) != 0;
    if (auto *box = qobject_cast<QMessageBox *>(&dialog)) {
        const auto buttons = box->buttons();
        buttons.at(m_random.below(static_cast<int>(buttons.size())))->click();
        return;
    }
    if (auto *files = qobject_cast<QFileDialog *>(&dialog)) {
        const QStringList &names = files->acceptMode() == QFileDialog::AcceptSave ? m_toSave : m_toOpen;
        const QString name = names.at(m_random.below(static_cast<int>(names.size())));
        if (!accepts) {
            files->reject();
            return;
        }
        files->findChild<QLineEdit *>("fileNameEdit")->setText(name);
        QMetaObject::invokeMethod(files, "accept");
        return;
    }
    if (auto *colours = qobject_cast<QColorDialog *>(&dialog))
        colours->setCurrentColor(QColor::fromRgba(m_random.next()));
    else
        turnKnobs(dialog);
    const QPointer<QDialog> alive(&dialog);
    if (auto *box = dialog.findChild<QDialogButtonBox *>(); alive != nullptr && box != nullptr)
        if (auto *ok = box->button(QDialogButtonBox::Ok); accepts && ok != nullptr && ok->isEnabled()) {
            ok->click();
            return;
        }
    if (alive != nullptr)
        accepts ? dialog.accept() : dialog.reject();
}

void DialogAnswers::turnKnobs(QDialog &dialog)
{
    // Pictures of this size keep an export short.
    const bool sizes = dialog.findChild<QSpinBox *>("spinBox_2") != nullptr &&
                       dialog.findChild<QSpinBox *>("spinBox_3") == nullptr;
    for (QSpinBox *box : dialog.findChildren<QSpinBox *>()) {
        const int kind = m_random.below(3);
        const int top = sizes ? std::min(box->maximum(), mostPixelsASide) : box->maximum();
        const int value = box->minimum() + m_random.below(top - box->minimum() + 1);
        if (kind == 1 || (sizes && box->value() > mostPixelsASide))
            box->setValue(value);
        else if (kind == 2)
            box->setValue(m_random.below(30));
    }
    for (QDoubleSpinBox *box : dialog.findChildren<QDoubleSpinBox *>())
        box->setValue(box->minimum() + (box->maximum() - box->minimum()) * m_random.below(101) / 100.0);
    for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
        const int oneOfThree = m_random.below(3);
        if (!button->isCheckable() || !button->isEnabled())
            continue;
        if (oneOfThree == 0)
            button->click();
    }
    for (const char *name : {"pushButton", "pushButton_2"})
        if (auto *chooser = dialog.findChild<QPushButton *>(name); chooser != nullptr)
            if (m_random.below(4) != 0 && chooser->isEnabled())
                chooser->click(); // opens the next dialog, and comes back when that one is answered
}
