// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace testsupport {

inline QLineEdit &fileNameField(const QFileDialog &dialog)
{
    auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
    if (name == nullptr)
        qFatal("the file dialog has no field for a name");
    return *name;
}

/// Hands a name to a file dialog, whatever the dialog thinks of it.
inline void enterFileName(QFileDialog &dialog, const QString &path)
{
    fileNameField(dialog).setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

/// Types a name into a file dialog and presses Return. False, with no key pressed, when the dialog does not
/// let the name be chosen within `patience` milliseconds.
[[nodiscard]] inline bool typeFileName(QFileDialog &dialog, const QString &path, int patience)
{
    QLineEdit &name = fileNameField(dialog);
    const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
    const QPushButton *button = dialog.findChild<QDialogButtonBox *>()->button(
        saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    // A file that another filter of names has hidden is known only once its folder is read anew.
    dialog.setDirectory(QFileInfo(path).absolutePath());
    // It is read in another thread. Until then the dialog may not know the file, and what it finds in the
    // folder where it began may still get into the field.
    const auto typed = [&] {
        name.clear();
        name.setText(path);
        return button->isEnabled();
    };
    if (!QTest::qWaitFor(typed, patience))
        return false;
    QTest::keyClick(&name, Qt::Key_Return);
    return true;
}

} // namespace testsupport
