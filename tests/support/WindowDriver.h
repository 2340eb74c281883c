// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Activation.h"
#include "tests/support/ModalDialog.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <functional>

/// Hands that use a window as a user would: mouse and keys on its widgets, answers to its modal dialogs.
namespace driver {

/// Answers the next modal dialogs, one after the other, while a slot waits for them in an event loop of its
/// own.
class DialogAnswers
{
public:
    using Answer = std::function<void(QWidget *)>;

    explicit DialogAnswers(QList<Answer> answers) : m_answers(std::move(answers))
    {
        m_age.start();
        lookSoon();
    }
    explicit DialogAnswers(Answer answer) : DialogAnswers(QList<Answer>{std::move(answer)}) {}

    /// How many dialogs were answered.
    [[nodiscard]] int given() const { return m_given; }

private:
    // Not a repeating timer: its time would not come again while an answer waits for the next dialog.
    void lookSoon()
    {
        QTimer::singleShot(2, &m_life, [this] { look(); });
    }

    void look()
    {
        lookSoon();
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr)
            return;
        const bool unexpected = m_given == m_answers.size() && !m_seen.contains(dialog);
        if (unexpected || m_age.elapsed() > 10000) {
            dialog->close(); // do not wait for ever
            return;
        }
        if (m_seen.contains(dialog) || !testsupport::takesKeys(*dialog))
            return;
        m_seen.append(dialog);
        const Answer answer = m_answers.at(m_given++);
        answer(dialog); // may open another dialog, which is then looked for from in here
    }

    QList<Answer> m_answers;
    QObject m_life;
    QElapsedTimer m_age;
    QList<QPointer<QWidget>> m_seen;
    int m_given = 0;
};

/// Types a file's name into the toolkit's file dialog and presses Return.
inline void typeFileName(QWidget *dialog, const QString &path)
{
    auto *line = dialog->findChild<QLineEdit *>("fileNameEdit");
    QVERIFY(line != nullptr);
    line->setText(path);
    QTest::keyClick(line, Qt::Key_Return);
}

inline void pressEscape(QWidget *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

inline QAction *action(const QMainWindow &window, const QString &name)
{
    auto *found = window.findChild<QAction *>(name);
    if (found == nullptr)
        qFatal("no action %s", qPrintable(name));
    return found;
}

inline QGraphicsView *canvas(const QMainWindow &window)
{
    return window.findChild<QGraphicsView *>("graphicsView");
}

inline QString status(const QMainWindow &window)
{
    return window.findChild<QStatusBar *>("statusBar")->currentMessage();
}

/// Lets the layouts and whatever else is due come to rest: a hidden progress bar gives its room to the
/// canvas.
inline void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Shows the window and makes it the active one, without which its shortcuts sleep.
inline void show(QMainWindow &window, QSize size = {640, 560})
{
    window.resize(size);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    testsupport::activate(window);
    canvas(window)->setFocus();
    settle();
}

/// Opens a picture through the menu's action and the file dialog.
inline void openPhoto(QMainWindow &window, const QString &path)
{
    DialogAnswers answers([&path](QWidget *dialog) { typeFileName(dialog, path); });
    action(window, "actionOpen")->trigger();
    QCOMPARE(answers.given(), 1);
    settle();
}

/// Presses a key with the canvas in front.
inline void key(QMainWindow &window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
{
    testsupport::activate(window);
    canvas(window)->setFocus();
    QTest::keyClick(canvas(window), key, modifiers);
}

/// Presses the keys of a standard action, which differ between platforms.
inline void key(QMainWindow &window, QKeySequence::StandardKey standard)
{
    const QKeyCombination keys = QKeySequence(standard)[0];
    key(window, keys.key(), keys.keyboardModifiers());
}

inline void press(QGraphicsView &view, QPoint position, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(view.viewport(), button, {}, position);
}

inline void release(QGraphicsView &view, QPoint position, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(view.viewport(), button, {}, position);
}

/// A move of the pointer, sent at once: the X server would deliver moves of its own when it likes, and merge
/// them.
inline void move(QGraphicsView &view, QPoint position, Qt::MouseButtons held = {})
{
    QMouseEvent event(QEvent::MouseMove, position, view.viewport()->mapToGlobal(position), Qt::NoButton, held,
                      {});
    QApplication::sendEvent(view.viewport(), &event);
}

/// Press, moves and release over these points of the scene.
inline void stroke(QGraphicsView &view, const QList<QPointF> &points)
{
    press(view, view.mapFromScene(points.first()));
    for (const QPointF &point : points)
        move(view, view.mapFromScene(point), Qt::LeftButton);
    release(view, view.mapFromScene(points.last()));
}

} // namespace driver
