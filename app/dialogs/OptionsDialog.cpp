// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/OptionsDialog.h"

#include "canvas/SettingsKeys.h"
#include "ui_OptionsDialog.h"

#include <QEvent>
#include <QSettings>

OptionsDialog::OptionsDialog(QSettings *settings, QWidget *parent)
    : QDialog(parent), m_form(std::make_unique<Ui_OptionsDialog>()), m_settings(settings)
{
    m_form->setupUi(this);
    // Which spin box is which of the form's is told here and in on_buttonBox_accepted(); spinBox_9 is the
    // number of taps beside "Smooth Edges".
    const auto stored = [this](const settings::Key &key) {
        return m_settings->value(key.name, key.dialogDefault);
    };
    m_form->spinBox->setValue(stored(settings::keepMarkerSize).toInt());
    m_form->spinBox_2->setValue(stored(settings::removeMarkerSize).toInt());
    m_form->spinBox_4->setValue(stored(settings::keepBrushSize).toInt());
    m_form->spinBox_5->setValue(stored(settings::removeBrushSize).toInt());
    m_form->spinBox_3->setValue(stored(settings::eraserSize).toInt());
    m_form->spinBox_8->setValue(stored(settings::blueMarkerSize).toInt());
    m_form->doubleSpinBox->setValue(stored(settings::maskOpacity).toDouble());
    m_form->checkBoxSmooth->setChecked(stored(settings::smoothEdges).toBool());
    m_form->spinBox_9->setValue(stored(settings::gaussSize).toInt());
    m_form->spinBox_6->setValue(stored(settings::keepBrushIntensity).toInt());
    m_form->spinBox_7->setValue(stored(settings::removeBrushIntensity).toInt());
    // "Same size for all tools" is not read: confirming the dialog turns it off unless it is ticked.
    m_form->checkBox->setChecked(false);
}

OptionsDialog::~OptionsDialog() = default;

void OptionsDialog::on_buttonBox_accepted()
{
    m_settings->setValue(settings::sameSize.name, m_form->checkBox->isChecked());
    m_settings->setValue(settings::smoothEdges.name, m_form->checkBoxSmooth->isChecked());
    m_settings->setValue(settings::keepMarkerSize.name, m_form->spinBox->value());
    m_settings->setValue(settings::removeMarkerSize.name, m_form->spinBox_2->value());
    m_settings->setValue(settings::keepBrushSize.name, m_form->spinBox_4->value());
    m_settings->setValue(settings::removeBrushSize.name, m_form->spinBox_5->value());
    m_settings->setValue(settings::eraserSize.name, m_form->spinBox_3->value());
    m_settings->setValue(settings::maskOpacity.name, m_form->doubleSpinBox->value());
    m_settings->setValue(settings::keepBrushIntensity.name, m_form->spinBox_6->value());
    m_settings->setValue(settings::removeBrushIntensity.name, m_form->spinBox_7->value());
    m_settings->setValue(settings::blueMarkerSize.name, m_form->spinBox_8->value());
    m_settings->setValue(settings::gaussSize.name, m_form->spinBox_9->value());
}

void OptionsDialog::on_checkBox_toggled(bool checked)
{
    for (QSpinBox *size : {m_form->spinBox_2, m_form->spinBox_3, m_form->spinBox_4, m_form->spinBox_5})
        size->setEnabled(!checked);
    if (checked)
        m_form->spinBox_8->setEnabled(false); // and stays so: the Blue marker's size is not given back
}

void OptionsDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
