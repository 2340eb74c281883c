// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/OptionsDialog.h"

#include "canvas/SettingsKeys.h"
#include "ui_OptionsDialog.h"

#include <QEvent>
#include <QMetaProperty>
#include <QSettings>

namespace {

/// What the user changes of a widget: the value of a spin box, the tick of a check box.
QMetaProperty valueOf(const QWidget &field)
{
    return field.metaObject()->userProperty();
}

} // namespace

OptionsDialog::OptionsDialog(QSettings *settings, QWidget *parent)
    : QDialog(parent), m_form(std::make_unique<Ui_OptionsDialog>()), m_settings(settings)
{
    m_form->setupUi(this);
    for (const settings::Key *key : settings::all) {
        QWidget *field = fieldOf(*key);
        // "Same size for all tools" is not read: confirming the dialog turns it off unless it is ticked.
        // Kept, see docs/compatibility.md.
        if (field == nullptr || key->dialogDefault == nullptr)
            continue;
        const QMetaProperty value = valueOf(*field);
        QVariant stored = m_settings->value(key->name, QLatin1StringView(key->dialogDefault));
        stored.convert(value.metaType()); // whatever cannot be read counts as 0 or unticked
        value.write(field, stored);
    }
    // As Tab does for the other fields. The first one has the focus from the start, and would only take a
    // number that fits beside its own.
    m_form->spinBox->selectAll();
}

OptionsDialog::~OptionsDialog() = default;

QWidget *OptionsDialog::fieldOf(const settings::Key &key) const
{
    for (QWidget *widget : findChildren<QWidget *>())
        if (widget->property("settingsKey").toString() == QLatin1StringView(key.name))
            return widget;
    return nullptr;
}

void OptionsDialog::on_buttonBox_accepted()
{
    for (const settings::Key *key : settings::all)
        if (const QWidget *field = fieldOf(*key))
            m_settings->setValue(key->name, valueOf(*field).read(field));
}

void OptionsDialog::on_checkBox_toggled(bool checked)
{
    for (QSpinBox *size : {m_form->spinBox_2, m_form->spinBox_3, m_form->spinBox_4, m_form->spinBox_5})
        size->setEnabled(!checked);
    if (checked)
        m_form->spinBox_8->setEnabled(false); // and stays so: see docs/compatibility.md
}

void OptionsDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
