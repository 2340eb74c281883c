// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/TourError.h"

#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <QWidget>

namespace {

QStringList &names()
{
    static QStringList all;
    return all;
}

QString described(const QWidget &widget)
{
    QString words = QString("%1 \"%2\"").arg(widget.metaObject()->className(), widget.windowTitle());
    if (const auto *box = qobject_cast<const QMessageBox *>(&widget))
        words += ": " + box->text();
    return words;
}

} // namespace

Awaiting::Awaiting(const QString &what)
{
    names() << what;
}
Awaiting::~Awaiting()
{
    names().removeLast();
}

QString awaited()
{
    QStringList windows;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible())
            windows << described(*window);
    const QString all = names().isEmpty() ? "the end of a step" : names().join(", in there for ");
    return QString("%1 (open windows: %2)").arg(all, windows.join("; "));
}
