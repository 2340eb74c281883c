// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/ExportDialog.h"

#include "canvas/SettingsKeys.h"
#include "core/Truncation.h"
#include "ui_ExportDialog.h"

#include <QEvent>
#include <QFileDialog>
#include <QPushButton>
#include <QSettings>

// In the form, spinBox is the width, spinBox_2 the height, checkBox "Keep Aspect Ratio", pushButton the
// choice of the file and label_2 its name.

ExportDialog::ExportDialog(int width, int height, QSettings *settings, QWidget *parent)
    : QDialog(parent),
      m_form(std::make_unique<Ui_ExportDialog>()),
      m_settings(settings),
      m_aspect(static_cast<float>(height) / static_cast<float>(width))
{
    m_form->setupUi(this);
    m_form->spinBox->setValue(width);
    m_form->spinBox_2->setValue(height);
    m_form->buttonBox->buttons().constFirst()->setEnabled(false);
}

ExportDialog::~ExportDialog() = default;

void ExportDialog::GetSettings(int *width, int *height, QString *fileName)
{
    *width = m_form->spinBox->value();
    *height = m_form->spinBox_2->value();
    *fileName = m_form->label_2->text();
}

void ExportDialog::heightFollowsWidth()
{
    const float height = static_cast<float>(m_form->spinBox->value()) * m_aspect;
    m_form->spinBox_2->setValue(ornevo::truncateToInt(static_cast<double>(height)));
}

void ExportDialog::on_spinBox_valueChanged(int /*width*/)
{
    if (m_form->checkBox->isChecked())
        heightFollowsWidth();
}

void ExportDialog::on_checkBox_toggled(bool checked)
{
    m_form->spinBox_2->setEnabled(!checked);
    if (checked)
        heightFollowsWidth();
}

void ExportDialog::on_pushButton_clicked()
{
    const QString directory =
        m_settings->value(settings::currentDirectory.name, settings::currentDirectory.dialogDefault)
            .toString();
    const QString name = QFileDialog::getSaveFileName(this, tr("Save File"), directory,
                                                      tr("JPG Files (*.jpg);;PNG Files (*.png)"));
    if (name.isEmpty())
        return;
    m_form->buttonBox->buttons().constFirst()->setEnabled(true);
    m_form->label_2->setText(name);
}

void ExportDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
