// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

class QSettings;
class Ui_OptionsDialog;
namespace settings {
struct Key;
}

/// Edits the tool settings in the store. Cancel writes nothing; OK writes every value that is shown.
class OptionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `settings` is borrowed and must outlive the dialog.
    OptionsDialog(QSettings *settings, QWidget *parent);
    ~OptionsDialog() override;

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_buttonBox_accepted();
    void on_checkBox_toggled(bool checked);

private:
    /// The widget that edits a setting; null if none does.
    [[nodiscard]] QWidget *fieldOf(const settings::Key &key) const;

    std::unique_ptr<Ui_OptionsDialog> m_form;
    QSettings *m_settings;
};
