// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/RandomAnswers.h"

#include "tests/support/FileChooser.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <array>

namespace {

constexpr int mostPixelsASide = 300;

/// The one dialog that asks for a width and a height.
bool asksForSize(const QDialog &dialog)
{
    return dialog.findChild<QSpinBox *>("spinBox_2") != nullptr &&
           dialog.findChild<QSpinBox *>("spinBox_3") == nullptr;
}

} // namespace

RandomAnswers::RandomAnswers(testpictures::Random &random)
    : m_random(random), m_watch([this](QDialog *dialog) { look(dialog); })
{
}

void RandomAnswers::setFiles(const QStringList &toOpen, const QStringList &toSave)
{
    m_toOpen = toOpen;
    m_toSave = toSave;
}

void RandomAnswers::look(QDialog *dialog)
{
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

void RandomAnswers::answer(QDialog &dialog)
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
        testsupport::enterFileName(*files, name);
        return;
    }
    if (auto *colours = qobject_cast<QColorDialog *>(&dialog))
        colours->setCurrentColor(QColor::fromRgba(m_random.next()));
    else
        turnKnobs(dialog);
    const QPointer<QDialog> alive(&dialog);
    if (m_random.below(4) == 0)
        pressKeys(dialog);
    noteExport(dialog);
    if (auto *box = dialog.findChild<QDialogButtonBox *>(); alive != nullptr && box != nullptr)
        if (auto *ok = box->button(QDialogButtonBox::Ok); accepts && ok != nullptr && ok->isEnabled()) {
            ok->click();
            return;
        }
    if (alive != nullptr)
        accepts ? dialog.accept() : dialog.reject();
}

void RandomAnswers::pressKeys(QDialog &dialog)
{
    constexpr std::array keys = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up,   Qt::Key_Down,
                                 Qt::Key_7,   Qt::Key_Delete,  Qt::Key_Home, Qt::Key_PageUp};
    for (int presses = 1 + m_random.below(6); presses > 0; --presses) {
        QWidget *focus = dialog.focusWidget();
        const Qt::Key key = keys[static_cast<std::size_t>(m_random.below(static_cast<int>(keys.size())))];
        QTest::keyClick(focus != nullptr ? focus : &dialog, key);
    }
}

void RandomAnswers::noteExport(QDialog &dialog)
{
    if (!asksForSize(dialog))
        return;
    // Typing can have left a size that takes minutes.
    for (const char *name : {"spinBox", "spinBox_2"})
        if (auto *box = dialog.findChild<QSpinBox *>(name); box->value() > mostPixelsASide)
            box->setValue(mostPixelsASide);
    ++m_exports;
    m_lastExport = {dialog.findChild<QLabel *>("label_2")->text(),
                    {dialog.findChild<QSpinBox *>("spinBox")->value(),
                     dialog.findChild<QSpinBox *>("spinBox_2")->value()}};
}

void RandomAnswers::turnKnobs(QDialog &dialog)
{
    const bool sizes = asksForSize(dialog); // small pictures keep an export short
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
