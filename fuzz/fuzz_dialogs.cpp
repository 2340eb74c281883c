// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/dialogs/BackgroundDialog.h"
#include "app/dialogs/ExportDialog.h"
#include "app/dialogs/OptionsDialog.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

QString anyText(Input &input)
{
    QByteArray bytes(input.byte() % 12, 0);
    for (char &letter : bytes)
        letter = static_cast<char>(input.byte());
    return input.byte() % 2 == 0 ? QString::fromUtf8(bytes) : QString::number(input.integer());
}

/// Types into every field and clicks what can be ticked, as the input has it.
void fillIn(QDialog &dialog, Input &input)
{
    for (QLineEdit *line : dialog.findChildren<QLineEdit *>()) {
        line->clear();
        line->insert(anyText(input)); // through the validator, as typing goes
    }
    for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        if (button->isCheckable() && input.byte() % 2 == 0)
            button->click();
    for (QSpinBox *box : dialog.findChildren<QSpinBox *>())
        if (input.byte() % 2 == 0)
            box->setValue(input.integer());
    for (QSpinBox *box : dialog.findChildren<QSpinBox *>())
        require(box->value() >= box->minimum() && box->value() <= box->maximum(), "a number is in its range");
    for (QDoubleSpinBox *box : dialog.findChildren<QDoubleSpinBox *>())
        require(box->value() >= box->minimum() && box->value() <= box->maximum(), "a number is in its range");
}

} // namespace

/// Anything in the fields of the dialogs, and what they hand on.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application();
    static QSettings settings(WindowHarness::scratchFile() + ".ini", QSettings::IniFormat);
    Input input(data, size);
    switch (input.byte() % 3) {
    case 0: {
        OptionsDialog dialog(&settings, nullptr);
        fillIn(dialog, input);
        dialog.accept();
        QMetaObject::invokeMethod(&dialog, "on_buttonBox_accepted");
        OptionsDialog again(&settings, nullptr);
        break;
    }
    case 1: {
        ExportDialog dialog(1 + input.below(70000), 1 + input.below(70000), &settings, nullptr);
        fillIn(dialog, input);
        dialog.findChild<QLabel *>("label_2")->setText(anyText(input));
        int width = 0;
        int height = 0;
        QString name;
        dialog.GetSettings(&width, &height, &name);
        require(width >= 0 && height >= 0, "an export has a size");
        break;
    }
    default: {
        BackgroundDialog dialog(nullptr);
        fillIn(dialog, input);
        dialog.findChild<QLabel *>("colorlabel")->setText(anyText(input));
        dialog.findChild<QLabel *>("picturelabel")->setText(anyText(input));
        QMetaObject::invokeMethod(&dialog, "on_buttonBox_accepted");
        require(dialog.accepted && (dialog.useColor || !dialog.picturePath.isEmpty()),
                "there is a colour or a picture");
        break;
    }
    }
    return 0;
}
