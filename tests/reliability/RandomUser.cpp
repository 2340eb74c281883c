// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/RandomUser.h"

#include "canvas/SettingsKeys.h"
#include "tests/reliability/PictureFiles.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QTest>

#include <array>

namespace {

// The settings as somebody with a text editor, or another version of the program, could leave them.
constexpr std::array settingValues = {"0",   "1",    "10",          "255",  "256",   "300", "-1",
                                      "-7",  "4",    "2147483647",  "many", "",      "0.5", "-3.5",
                                      "nan", "1e99", "-2147483648", "true", "false", "199"};

} // namespace

RandomUser::RandomUser(MainWindow &window, unsigned seed, const QString &folder)
    : m_window(window),
      m_probe(window),
      m_canvas(window.findChild<QGraphicsView *>("graphicsView")),
      m_random(seed),
      m_folder(folder),
      m_answers(m_random)
{
    meddleWithFiles();
}

QString RandomUser::step()
{
    const QString what = act();
    stopTime();
    if (m_random.below(3) == 0) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        stopTime();
    }
    return what;
}

QString RandomUser::act()
{
    const int oneOfHundred = m_random.below(100);
    if (oneOfHundred < 52)
        return useMouse();
    if (oneOfHundred < 75)
        return triggerAction();
    if (oneOfHundred < 82)
        return pressKey();
    if (oneOfHundred < 88)
        return undoOrRedo();
    if (oneOfHundred < 94)
        return letTimersFire();
    if (oneOfHundred < 97)
        return reshapeWindow();
    if (oneOfHundred < 98)
        return zoomFar();
    return m_random.below(2) == 0 ? meddleWithSettings() : meddleWithFiles();
}

void RandomUser::openForSure(const QString &path)
{
    m_answers.setFiles({path}, {path});
    for (int attempt = 0; attempt < 50 && m_probe.currentFile() != path; ++attempt)
        m_window.findChild<QAction *>("actionOpen")->trigger();
}

QPoint RandomUser::somewhere()
{
    const QSize size = m_canvas->viewport()->size();
    // Often in the view, now and then beyond its edges.
    if (m_random.below(8) == 0)
        return {m_random.below(size.width() + 400) - 200, m_random.below(size.height() + 400) - 200};
    return {m_random.below(std::max(size.width(), 1)), m_random.below(std::max(size.height(), 1))};
}

void RandomUser::sendMouse(QEvent::Type type, QPoint position, Qt::MouseButton button,
                             Qt::MouseButtons buttons)
{
    QWidget *viewport = m_canvas->viewport();
    QMouseEvent event(type, position, viewport->mapToGlobal(QPointF(position)), button, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &event);
}

QString RandomUser::useMouse()
{
    const auto button = std::array{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                   Qt::MiddleButton}[static_cast<std::size_t>(m_random.below(5))];
    switch (m_random.below(6)) {
    case 0: // a press that is never released, or later
        sendMouse(QEvent::MouseButtonPress, somewhere(), button, button);
        return "press";
    case 1:
        sendMouse(QEvent::MouseButtonRelease, somewhere(), button, Qt::NoButton);
        return "release";
    case 2:
        sendMouse(QEvent::MouseMove, somewhere(), Qt::NoButton, Qt::NoButton);
        return "move";
    case 3: {
        if (m_random.below(4) == 0)
            sendMouse(QEvent::MouseButtonDblClick, somewhere(), button, button);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_canvas->viewport(), &leave);
        QCoreApplication::sendEvent(m_canvas, &leave);
        return "leave";
    }
    default:
        break;
    }
    QPoint position = somewhere();
    const int moves = 1 + m_random.below(14);
    const QPoint stride(m_random.below(41) - 20, m_random.below(41) - 20);
    sendMouse(QEvent::MouseButtonPress, position, button, button);
    for (int move = 0; move < moves; ++move) {
        position += stride;
        sendMouse(QEvent::MouseMove, position, Qt::NoButton, button);
    }
    if (m_random.below(4) != 0)
        sendMouse(QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    return "drag";
}

QString RandomUser::triggerAction()
{
    // The help windows stay with the window until it goes: a few will do.
    static const QStringList rare = {"actionIndex", "actionOpen", "actionExport", "actionSave_As"};
    const QList<QAction *> actions = m_window.findChildren<QAction *>();
    QAction *action = actions.at(m_random.below(static_cast<int>(actions.size())));
    const bool wanted = m_random.below(4) == 0;
    if (!wanted && rare.contains(action->objectName()))
        return "nothing";
    if (action->objectName() == "actionIndex" && m_random.below(10) != 0)
        return "nothing";
    const QString name = action->objectName().isEmpty() ? action->text() : action->objectName();
    if (action->isEnabled()) // hidden or not: an enabled action can be reached
        action->trigger();
    return name;
}

QString RandomUser::pressKey()
{
    struct Press
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const std::array presses = {
        Press{Qt::Key_Right, Qt::ControlModifier}, Press{Qt::Key_Left, Qt::ControlModifier},
        Press{Qt::Key_Up, Qt::ControlModifier},    Press{Qt::Key_Down, Qt::ControlModifier},
        Press{Qt::Key_Z, Qt::ControlModifier},     Press{Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
        Press{Qt::Key_Q, Qt::ControlModifier},     Press{Qt::Key_Escape, Qt::NoModifier},
        Press{Qt::Key_Tab, Qt::NoModifier},        Press{Qt::Key_PageDown, Qt::NoModifier},
        Press{Qt::Key_A, Qt::NoModifier},          Press{Qt::Key_O, Qt::ControlModifier},
        Press{Qt::Key_S, Qt::ControlModifier}};
    const auto chosen = static_cast<std::size_t>(m_random.below(static_cast<int>(presses.size())));
    const int times = m_random.below(12) == 0 && chosen < 6 ? 300 : 1; // leant on the key: sizes wrap around
    if (m_window.isVisible())
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&m_window, presses[chosen].key, presses[chosen].modifiers);
    return "key " + QKeySequence(presses[chosen].modifiers | presses[chosen].key).toString();
}

QString RandomUser::undoOrRedo()
{
    QUndoStack &stack = m_probe.undoStack();
    const int times = 1 + m_random.below(8);
    const int kind = m_random.below(3);
    if (kind == 2) {
        stack.setIndex(m_random.below(stack.count() + 1));
        return "travel through the history";
    }
    for (int i = 0; i < times; ++i)
        kind == 0 ? stack.undo() : stack.redo();
    return kind == 0 ? "undo" : "redo";
}

QString RandomUser::zoomFar()
{
    const int times = 5 + m_random.below(m_random.below(3) == 0 ? 400 : 30);
    QAction *zoom = m_window.findChild<QAction *>(m_random.below(2) == 0 ? "actionZoom_In" : "actionZoom_Out");
    for (int i = 0; i < times; ++i)
        zoom->trigger();
    return QStringLiteral("%1 %2 times").arg(zoom->objectName()).arg(times);
}

QString RandomUser::reshapeWindow()
{
    switch (m_random.below(5)) {
    case 0:
        m_window.setVisible(!m_window.isVisible());
        return "hide or show";
    case 1:
        m_window.setWindowState(m_window.windowState() ^ Qt::WindowMinimized);
        return "minimise or restore";
    case 2:
        m_window.setWindowState(m_window.windowState() ^ Qt::WindowMaximized);
        return "maximise or restore";
    default:
        m_window.resize(30 + m_random.below(900), 30 + m_random.below(700));
        return "resize";
    }
}

void RandomUser::stopTime()
{
    const auto stop = [](QTimer &timer, bool &due) {
        if (!timer.isActive() || timer.interval() == 0) // what waits for the next turn only may have it
            return;
        timer.stop();
        due = true;
    };
    stop(m_probe.brushTimer(), m_brushDue);
    stop(m_probe.skipLastRectTimer(), m_forgettingDue);
}

QString RandomUser::letTimersFire()
{
    if (m_brushDue) {
        m_brushDue = false;
        QMetaObject::invokeMethod(&m_window, "on_ProcessBrushMouseEvent");
    }
    if (m_forgettingDue && m_random.below(2) == 0) {
        m_forgettingDue = false;
        QMetaObject::invokeMethod(&m_window, "on_TimeToSkipLastRect");
    }
    QCoreApplication::processEvents();
    return "wait";
}

QString RandomUser::meddleWithSettings()
{
    const QString name = settings::all[static_cast<std::size_t>(m_random.below(settings::all.size()))]->name;
    const QString value = settingValues[static_cast<std::size_t>(m_random.below(settingValues.size()))];
    m_probe.settings().setValue(name, value);
    m_window.updatetoolssettings();
    m_window.findChild<QAction *>("actionPreferences")->trigger();
    return name + " = " + value;
}

QString RandomUser::meddleWithFiles()
{
    const QDir folder(m_folder);
    QDir(folder).removeRecursively();
    folder.mkpath(".");
    const QStringList files = picturefiles::writeAssortment(m_folder);
    QStringList targets = {
        folder.filePath("out-1.jpg"),       folder.filePath("out-2.png"), folder.filePath("out-3.jpeg"),
        folder.filePath("out-4.gif"),       folder.filePath("out-5"),     folder.filePath("folder.png"),
        folder.filePath("nowhere/out.jpg"), folder.filePath("photo.jpg"), folder.filePath("drawing.png")};
    m_answers.setFiles(files, targets);
    if (m_random.below(3) == 0) // gone between choosing and reading
        QFile::remove(m_probe.currentFile());
    return "meddle with the files";
}
