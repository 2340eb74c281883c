// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPoint>

#include <memory>
#include <optional>

class Ui_HelpDialog;

/// The help window: a read-only document. A click on a link in it opens the link outside of the program.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget *parent = nullptr);
    ~HelpDialog() override;

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showDocument();
    void showPointer(QPoint position);
    void followLink(QPoint release);

    std::unique_ptr<Ui_HelpDialog> m_form;
    std::optional<QPoint> m_press; ///< where the left button went down in the text
};
