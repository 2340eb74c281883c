// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"

#include "ui_BackgroundDialog.h"

#include <QColorDialog>
#include <QEvent>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned int opaqueWhite = 0xFFFFFFFF;
constexpr unsigned int transparent = 0x00000000;
constexpr int hexadecimal = 16;
constexpr int digits = 8;

} // namespace

// In the form, pushButton chooses the colour, which colorlabel holds as hexadecimal ARGB; pushButton_2
// chooses the picture, whose path picturelabel holds.

BackgroundDialog::BackgroundDialog(QWidget *parent)
    : QDialog(parent), m_form(std::make_unique<Ui_BackgroundDialog>())
{
    m_form->setupUi(this);
}

BackgroundDialog::~BackgroundDialog() = default;

void BackgroundDialog::enableChoosers(bool colour, bool picture)
{
    m_form->pushButton->setEnabled(colour);
    m_form->pushButton_2->setEnabled(picture);
}

void BackgroundDialog::on_pictureradioButton_clicked()
{
    enableChoosers(false, true);
}
void BackgroundDialog::on_colorradioButton_clicked()
{
    enableChoosers(true, false);
}
void BackgroundDialog::on_whiteradioButton_clicked()
{
    enableChoosers(false, false);
}
void BackgroundDialog::on_transparentradioButton_clicked()
{
    enableChoosers(false, false);
}

void BackgroundDialog::on_pushButton_clicked()
{
    const QColor chosen = QColorDialog::getColor(Qt::white, this, tr("Please select the background color"),
                                                 QColorDialog::ShowAlphaChannel);
    if (!chosen.isValid())
        return;
    m_form->colorlabel->setText(u"%1"_s.arg(chosen.rgba(), digits, hexadecimal));
    // Who has chosen a colour wants it, whatever was ticked before.
    m_form->colorradioButton->setChecked(true);
    enableChoosers(true, false);
}

void BackgroundDialog::on_pushButton_2_clicked()
{
    const QString chosen = QFileDialog::getOpenFileName(this, tr("Open Image"), QString(),
                                                        tr("Image Files (*.png *.jpg *.bmp)"));
    if (chosen.isEmpty())
        return;
    m_form->picturelabel->setText(chosen);
    m_form->pictureradioButton->setChecked(true);
    enableChoosers(false, true);
}

void BackgroundDialog::on_buttonBox_accepted()
{
    accepted = true;
    useColor = true;
    if (m_form->colorradioButton->isChecked()) {
        color = m_form->colorlabel->text().trimmed().toUInt(nullptr, hexadecimal);
    } else if (m_form->whiteradioButton->isChecked()) {
        color = opaqueWhite;
    } else if (m_form->transparentradioButton->isChecked()) {
        color = transparent;
    } else if (m_form->pictureradioButton->isChecked()) {
        picturePath = m_form->picturelabel->text();
        useColor = picturePath.isEmpty();
        color = opaqueWhite;
    }
}

void BackgroundDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
