// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/Driver.h"

#include "tests/support/Activation.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

namespace {

constexpr int settleTime = 60; // ms, for the window system to show what happened

/// Open or Save, whichever the file dialog has.
QPushButton &confirming(const QDialogButtonBox &buttons)
{
    for (const auto which : {QDialogButtonBox::Open, QDialogButtonBox::Save})
        if (QPushButton *button = buttons.button(which))
            return *button;
    throw TourError("the file dialog has neither Open nor Save");
}

} // namespace

Driver::Driver(QMainWindow &window, const QString &folder)
    : m_window(window), m_canvas(window.findChild<QGraphicsView *>("graphicsView")), m_folder(folder)
{
    expect(m_canvas != nullptr, "the window has no canvas");
}

void Driver::wait(int milliseconds)
{
    QTest::qWait(milliseconds);
}

void Driver::clickTool(const QString &name)
{
    auto *action = m_window.findChild<QAction *>(name);
    auto *bar = m_window.findChild<QToolBar *>("mainToolBar");
    expect(action != nullptr && bar != nullptr, "there is no " + name);
    QWidget *button = bar->widgetForAction(action);
    expect(button != nullptr && button->isVisible(), name + " has no button to be seen");
    expect(button->isEnabled(), "the button of " + name + " is disabled");
    QTest::mouseClick(button, Qt::LeftButton);
    wait(settleTime);
}

void Driver::clickMenu(const QString &menuName, const QString &actionName)
{
    auto *menu = m_window.findChild<QMenu *>(menuName);
    auto *action = m_window.findChild<QAction *>(actionName);
    expect(menu != nullptr && action != nullptr, "there is no " + actionName + " in " + menuName);
    QMenuBar *bar = m_window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    wait(settleTime);
    expect(menu->isVisible(), menuName + " did not open");
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    wait(settleTime);
}

void Driver::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // Shortcuts reach the active window only, and not every platform makes the window active again after a
    // dialog.
    m_window.activateWindow();
    const Awaiting active("the window to become active");
    expect(QTest::qWaitForWindowActive(&m_window), "the window does not become active");
    // On Wayland no program may activate its own window; to this one it is the active window all the same.
    if (QApplication::activeWindow() == nullptr)
        testsupport::activate(m_window);
    QTest::keyClick(&m_window, key, modifiers);
    wait(settleTime);
}

void Driver::drag(QPointF from, QPointF to, int moves)
{
    QWidget *surface = m_canvas->viewport();
    QTest::mouseMove(surface, m_canvas->mapFromScene(from));
    QTest::mousePress(surface, Qt::LeftButton, {}, m_canvas->mapFromScene(from));
    for (int i = 0; i <= moves; ++i)
        QTest::mouseMove(surface, m_canvas->mapFromScene(from + (to - from) * i / moves));
    QTest::mouseRelease(surface, Qt::LeftButton, {}, m_canvas->mapFromScene(to));
    wait(settleTime);
}

void Driver::withDialog(const char *className, const std::function<void(QWidget &)> &answer,
                        const std::function<void()> &cause)
{
    DialogAnswer awaited(className, [&answer](QWidget &dialog) {
        wait(settleTime);
        answer(dialog);
    });
    cause();
    awaited.finish();
    wait(settleTime);
}

void Driver::chooseFile(QWidget &dialog, const QString &path, int patience)
{
    auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    expect(name != nullptr && buttons != nullptr, "the file dialog has no field for a name");
    // Its list of guesses would get the keys, and on Wayland does not give them on.
    name->setCompleter(nullptr);
    // The dialog reads folders in another thread. Until it has read this one it may not know the file, and
    // what it finds in the folder where it began may still get into the field.
    const Awaiting known("the file dialog to know " + path);
    const auto typed = [&] {
        if (name->text() != path) {
            name->clear();
            QTest::keyClicks(name, path);
        }
        return name->text() == path && confirming(*buttons).isEnabled();
    };
    expect(QTest::qWaitFor(typed, patience), "the file dialog does not let " + path + " be chosen");
    QTest::keyClick(name, Qt::Key_Return);
}

void Driver::click(QWidget &dialog, const QString &name)
{
    auto *widget = dialog.findChild<QWidget *>(name);
    expect(widget != nullptr && widget->isEnabled(), "no " + name + " to click");
    QTest::mouseClick(widget, Qt::LeftButton, {},
                      QPoint(qMin(12, widget->width() / 2), widget->height() / 2));
    wait(settleTime);
}

void Driver::accept(QWidget &dialog)
{
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    expect(buttons != nullptr, "the dialog has no buttons");
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    expect(ok != nullptr && ok->isEnabled(), "OK can't be clicked");
    QTest::mouseClick(ok, Qt::LeftButton);
}

QImage Driver::look() const
{
    return m_window.grab().toImage();
}

void Driver::picture(const QString &title, QWidget &widget)
{
    wait(settleTime);
    const QString name = QString("%1-%2.png").arg(++m_number, 2, 10, QChar('0')).arg(title);
    expect(widget.grab().save(file(name)), "can't write " + file(name));
    qInfo("%s", qPrintable(name));
}
