// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tour/Driver.h"

#include "tests/support/WindowDriver.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

#include <exception>

Driver::Driver(QMainWindow &window, const QString &folder, int patience)
    : m_window(window),
      m_canvas(window.findChild<QGraphicsView *>("graphicsView")),
      m_folder(folder),
      m_answers(patience)
{
    expect(m_canvas != nullptr, "the window has no canvas");
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
    testsupport::settle();
}

void Driver::clickMenu(const QString &menuName, const QString &actionName)
{
    auto *menu = m_window.findChild<QMenu *>(menuName);
    auto *action = m_window.findChild<QAction *>(actionName);
    expect(menu != nullptr && action != nullptr, "there is no " + actionName + " in " + menuName);
    QMenuBar *bar = m_window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    expect(QTest::qWaitForWindowExposed(menu), menuName + " did not open");
    // By keys: when a menu takes a click for one differs from one Qt to the next.
    for (qsizetype i = menu->actions().size(); i > 0 && menu->activeAction() != action; --i)
        QTest::keyClick(menu, Qt::Key_Down);
    expect(menu->activeAction() == action, actionName + " can't be reached in " + menuName);
    const QSignalSpy triggered(action, &QAction::triggered);
    QTest::keyClick(menu, Qt::Key_Return);
    expect(QTest::qWaitFor([&] { return !triggered.isEmpty(); }), actionName + " was not triggered");
    testsupport::settle();
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
    testsupport::settle();
}

void Driver::drag(QPointF from, QPointF to, int moves)
{
    testsupport::CanvasMouse mouse(*m_canvas);
    mouse.move(m_canvas->mapFromScene(from));
    mouse.press(m_canvas->mapFromScene(from));
    for (int i = 0; i <= moves; ++i)
        mouse.move(m_canvas->mapFromScene(from + (to - from) * i / moves));
    mouse.release(m_canvas->mapFromScene(to));
    testsupport::settle();
}

void Driver::withDialog(const char *className, const std::function<void(QWidget &)> &answer,
                        const std::function<void()> &cause)
{
    const Awaiting shown(QString("the dialog %1").arg(className));
    std::exception_ptr failure; // must not fly through the dialog's event loop
    m_answers.expectNamed(className, [&](QDialog &dialog) {
        try {
            testsupport::settle();
            answer(dialog);
        } catch (...) {
            failure = std::current_exception();
            dialog.close();
        }
    });
    cause();
    const bool allWell = m_answers.waitForAll();
    if (failure)
        std::rethrow_exception(failure);
    expect(allWell, m_answers.report());
    testsupport::settle();
}

void Driver::chooseFile(QWidget &dialog, const QString &path)
{
    auto *chooser = qobject_cast<QFileDialog *>(&dialog);
    expect(chooser != nullptr, "no file dialog to type into");
    const Awaiting known("the file dialog to know " + path);
    expect(testsupport::typeFileName(*chooser, path, testsupport::DialogAnswers::usualPatience),
           "the file dialog does not let " + path + " be chosen");
}

void Driver::click(QWidget &dialog, const QString &name)
{
    auto *widget = dialog.findChild<QWidget *>(name);
    expect(widget != nullptr && widget->isEnabled(), "no " + name + " to click");
    QTest::mouseClick(widget, Qt::LeftButton, {},
                      QPoint(qMin(12, widget->width() / 2), widget->height() / 2));
    testsupport::settle();
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
    testsupport::settle();
    const QString name = QString("%1-%2.png").arg(++m_number, 2, 10, QChar('0')).arg(title);
    expect(widget.grab().save(file(name)), "can't write " + file(name));
    qInfo("%s", qPrintable(name));
}
