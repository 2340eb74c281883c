// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/MainWindow.h"

#include "app/dialogs/HelpDialog.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QString authorship()
{
    return MainWindow::tr("Ornevo cuts objects out of photographs.\n"
                          "Made by the Ornevo developers, 2026. https://ornevo.example");
}

} // namespace

void MainWindow::on_actionIndex_triggered()
{
    auto *help = new HelpDialog(this);
    help->show();
}

void MainWindow::on_actionContact_Us_triggered()
{
    QDesktopServices::openUrl(QUrl(u"mailto:contact@ornevo.example?subject=Ornevo%20Pro"_s));
}

void MainWindow::on_actionAbout_triggered()
{
    QMessageBox::about(this, tr("Ornevo Pro 2.7 for MacOS X"), authorship());
}

void MainWindow::on_actionTestMenu_triggered()
{
    QMessageBox::about(this, tr("Ornevo Pro 2.5"), authorship());
}
