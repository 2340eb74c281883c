// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/ExportDialog.h"

#include "canvas/SettingsKeys.h"
#include "core/Truncation.h"
#include "ui_ExportDialog.h"

#include <QEvent>
#include <QFileDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// The first ending that a filter such as "JPG Files (*.jpg)" names.
QString endingOf(const QString &filter)
{
    static const QRegularExpression pattern(uR"(\*\.(\w+))"_s);
    return pattern.match(filter).captured(1);
}

/// Asks for the name of a file to write. A name without an ending gets that of the filter in use, before the
/// chooser asks whether a file of that name may be replaced. Empty after Cancel.
QString askForFileName(QWidget *parent, const QString &caption, const QString &directory,
                       const QString &filters)
{
    QFileDialog chooser(parent, caption, directory, filters);
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    const auto followFilter = [&chooser](const QString &filter) {
        chooser.setDefaultSuffix(endingOf(filter));
    };
    QObject::connect(&chooser, &QFileDialog::filterSelected, followFilter);
    followFilter(chooser.selectedNameFilter());
    return chooser.exec() == QDialog::Accepted ? chooser.selectedFiles().value(0) : QString();
}

} // namespace

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
    m_form->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
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
    const QString directory = m_settings
                                  ->value(settings::currentDirectory.name,
                                          QLatin1StringView(settings::currentDirectory.dialogDefault))
                                  .toString();
    const QString name =
        askForFileName(this, tr("Save File"), directory, tr("JPG Files (*.jpg);;PNG Files (*.png)"));
    if (name.isEmpty())
        return;
    m_form->label_2->setText(name);
    // Return, which has opened the chooser so far, now confirms.
    QPushButton *ok = m_form->buttonBox->button(QDialogButtonBox::Ok);
    ok->setEnabled(true);
    ok->setDefault(true);
}

void ExportDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
