// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QWidget>

namespace testsupport {

/// The widget of that name in a dialog. The names are relied on from outside: one that is missing ends the
/// test program.
template <typename Widget> Widget &part(const QWidget &dialog, const char *name)
{
    auto *found = dialog.findChild<Widget *>(name);
    if (found == nullptr)
        qFatal("the dialog has no %s", name);
    return *found;
}

/// Clicks one of a dialog's standard buttons.
inline void press(const QWidget &dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

} // namespace testsupport
