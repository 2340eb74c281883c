// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

class QSettings;
class Ui_ExportDialog;

/// Asks for the size and the file of an export.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts with the given size, whose proportions are kept until the user says otherwise. `settings` is
    /// borrowed.
    ExportDialog(int width, int height, QSettings *settings, QWidget *parent);
    ~ExportDialog() override;

    /// What the dialog shows, also after Cancel: the size in pixels, at most 9999 each way, and the path of
    /// the file, empty while none was chosen. No pointer may be null.
    void GetSettings(int *width, int *height, QString *fileName);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_spinBox_valueChanged(int width);
    void on_checkBox_toggled(bool checked);
    void on_pushButton_clicked();

private:
    void heightFollowsWidth();

    std::unique_ptr<Ui_ExportDialog> m_form;
    QSettings *m_settings;
    float m_aspect;
};
