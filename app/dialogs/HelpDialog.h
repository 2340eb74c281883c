// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

class Ui_HelpDialog;

/// The help window: a read-only document.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget *parent = nullptr);
    ~HelpDialog() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui_HelpDialog> m_form;
};
