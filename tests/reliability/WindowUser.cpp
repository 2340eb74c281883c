// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/WindowUser.h"

#include "tests/support/DialogParts.h"
#include "tests/support/FileChooser.h"
#include "tests/support/ModalWatch.h"

#include <QLabel>
#include <QMessageBox>
#include <QSpinBox>

#include <functional>

namespace {

/// Answers every message box with Yes, or with OK where that is all, and every other dialog as `answer` has
/// it.
testsupport::ModalWatch sayingYes(std::function<void(QDialog &)> answer)
{
    return testsupport::ModalWatch([answer](QDialog *dialog) {
        if (auto *box = qobject_cast<QMessageBox *>(dialog))
            box->button(box->buttons().size() > 1 ? QMessageBox::Yes : QMessageBox::Ok)->click();
        else if (dialog != nullptr)
            answer(*dialog);
    });
}

/// The dialog goes in any case, also when it does not like the name.
testsupport::ModalWatch choosing(const QString &path)
{
    return sayingYes([path, asked = false](QDialog &dialog) mutable {
        if (std::exchange(asked, true))
            dialog.reject();
        else
            testsupport::enterFileName(dynamic_cast<QFileDialog &>(dialog), path);
    });
}

} // namespace

void WindowUser::open(const QString &path)
{
    const auto watch = choosing(path);
    trigger("actionOpen");
}

void WindowUser::saveAs(const QString &path)
{
    const auto watch = choosing(path);
    trigger("actionSave_As");
}

void WindowUser::save()
{
    const auto watch = sayingYes([](QDialog &dialog) { dialog.reject(); });
    trigger("actionSave");
}

void WindowUser::exportTo(const QString &path, int width, int height)
{
    const auto watch = sayingYes([&](QDialog &dialog) {
        testsupport::part<QSpinBox>(dialog, "spinBox").setValue(width);
        if (height > 0)
            testsupport::part<QSpinBox>(dialog, "spinBox_2").setValue(height);
        // Past the file dialog, which would refuse a name that leads nowhere; the place can vanish later.
        testsupport::part<QLabel>(dialog, "label_2").setText(path);
        dialog.accept();
    });
    trigger("actionExport");
}
