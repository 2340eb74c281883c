// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/HelpDialog.h"

#include "resources/Resources.h"
#include "ui_HelpDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QMouseEvent>
#include <QUrl>

#include <utility>

HelpDialog::HelpDialog(QWidget *parent) : QDialog(parent), m_form(std::make_unique<Ui_HelpDialog>())
{
    resources::registerAll();
    m_form->setupUi(this);
    showDocument();
    // A QTextEdit shows links and does no more for them.
    m_form->textEdit->viewport()->setMouseTracking(true);
    m_form->textEdit->viewport()->installEventFilter(this);
}

HelpDialog::~HelpDialog() = default;

void HelpDialog::showDocument()
{
    //: The help in this language: ":/help/help_" and the catalogue's language, then ".html".
    QFile document(tr(":/help/help_en.html"));
    if (document.open(QIODevice::ReadOnly))
        m_form->textEdit->setHtml(QString::fromUtf8(document.readAll()));
}

bool HelpDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (const auto *mouse = dynamic_cast<QMouseEvent *>(event)) {
        const QPoint position = mouse->position().toPoint();
        const bool left = mouse->button() == Qt::LeftButton;
        if (mouse->type() == QEvent::MouseMove)
            showPointer(position);
        else if (mouse->type() == QEvent::MouseButtonPress && left)
            m_press = position;
        else if (mouse->type() == QEvent::MouseButtonRelease && left)
            followLink(position);
    }
    return QDialog::eventFilter(watched, event);
}

void HelpDialog::showPointer(QPoint position)
{
    const bool onLink = !m_form->textEdit->anchorAt(position).isEmpty();
    m_form->textEdit->viewport()->setCursor(onLink ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void HelpDialog::followLink(QPoint release)
{
    const auto press = std::exchange(m_press, {}); // a double click releases twice
    const QString link = m_form->textEdit->anchorAt(release);
    if (link.isEmpty() || !press)
        return;
    if ((release - *press).manhattanLength() < QApplication::startDragDistance()) // else it is marked to copy
        QDesktopServices::openUrl(QUrl(link));
}

void HelpDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_form->retranslateUi(this);
        showDocument();
    }
}
