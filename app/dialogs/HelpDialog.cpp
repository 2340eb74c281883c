// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/HelpDialog.h"

#include "ui_HelpDialog.h"

#include <QEvent>

HelpDialog::HelpDialog(QWidget *parent) : QDialog(parent), m_form(std::make_unique<Ui_HelpDialog>())
{
    m_form->setupUi(this);
}

HelpDialog::~HelpDialog() = default;

void HelpDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslateUi(this);
}
