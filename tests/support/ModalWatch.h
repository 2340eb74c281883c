// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Activation.h"

#include <QDialog>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <utility>

namespace testsupport {

/// Calls a function every few milliseconds with the modal dialog in front, or null, while the code that
/// opened it waits in its event loop. The function may open the next dialog: it is called for that one as
/// well before it has returned.
class ModalWatch
{
public:
    explicit ModalWatch(std::function<void(QDialog *)> look) : m_look(std::move(look)) { lookSoon(); }

private:
    // Not a repeating timer: it would be silent while a look waits for the next dialog.
    void lookSoon()
    {
        constexpr int pollTime = 2; // ms
        QTimer::singleShot(pollTime, &m_life, [this] {
            lookSoon();
            m_look(qobject_cast<QDialog *>(QApplication::activeModalWidget()));
        });
    }

    std::function<void(QDialog *)> m_look;
    QObject m_life;
};

/// Whether a dialog has come up and has the focus, which shortly after it was opened it hasn't yet: keys that
/// come before are lost. A bare X server has no one who would give it the focus.
inline bool takesKeys(QWidget &modal)
{
    const QWindow *window = modal.windowHandle();
    if (window == nullptr || !window->isExposed())
        return false;
    if (!modal.isActiveWindow())
        activate(modal);
    return modal.isActiveWindow();
}

} // namespace testsupport
