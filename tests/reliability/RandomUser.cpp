// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/RandomUser.h"

#include "app/Translations.h"
#include "canvas/SettingsKeys.h"
#include "tests/reliability/PictureFiles.h"
#include "tests/support/Files.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QPalette>
#include <QTest>
#include <QWheelEvent>

#include <array>

namespace {

// The settings as somebody with a text editor, or another version of the program, could leave them.
constexpr std::array settingValues = {"0",   "1",    "10",          "255",  "256",   "300", "-1",
                                      "-7",  "4",    "2147483647",  "many", "",      "0.5", "-3.5",
                                      "nan", "1e99", "-2147483648", "true", "false", "199"};

} // namespace

RandomUser::RandomUser(MainWindow &window, unsigned seed, const QString &folder, Time time)
    : m_window(window),
      m_probe(window),
      m_canvas(window.findChild<QGraphicsView *>("graphicsView")),
      m_random(seed),
      m_folder(folder),
      m_time(time),
      m_answers(m_random),
      m_canvasModel(window),
      m_cutOutModel(window),
      m_results(window, m_answers)
{
    m_canvasModel.dabPushed = [this](QGraphicsItem *dab) { m_cutOutModel.dabPushed(dab); };
    m_results.opened = [this] {
        m_cutOutModel.forgetDabs();
        m_cutOutModel.adopt();
    };
    m_results.cutAnew = [this] { m_cutOutModel.adopt(); };
    meddleWithFiles();
}

QString RandomUser::step()
{
    constexpr int stepsBetweenLooks = 100;
    m_complaint.clear();
    m_brushed = false;
    m_canvasModel.forgetPress();
    m_results.beforeStep();
    const qint64 photo = m_probe.imagePixmap().cacheKey();
    const QString what = act();
    stopTime();
    if (m_probe.imagePixmap().cacheKey() != photo)
        m_cutOutModel.forgetDabs(); // saving opens what was saved, and keeps the history
    check(m_results.afterStep());
    if (m_time == Time::Still)
        check(m_cutOutModel.follow());
    if (m_random.below(3) == 0) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        stopTime();
    }
    // Later, whatever passes over the canvas repaints what was left out.
    const bool brushed = m_brushed && m_random.below(4) == 0;
    if (++m_stepsDone % stepsBetweenLooks == 0 || brushed)
        check(m_results.staleScreen());
    return what;
}

void RandomUser::check(const QString &complaint)
{
    if (m_complaint.isEmpty())
        m_complaint = complaint;
}

QString RandomUser::act()
{
    // Nobody sees what is done to a window that is hidden: rarely, and not for long.
    if ((!m_window.isVisible() || m_window.isMinimized()) && m_random.below(6) == 0) {
        m_window.showNormal();
        return "show";
    }
    const int oneOfHundred = m_random.below(100);
    if (oneOfHundred < 48)
        return useMouse();
    if (oneOfHundred < 60)
        return triggerAction();
    if (oneOfHundred < 68)
        return chooseTool();
    if (oneOfHundred < 72)
        return openOrWrite();
    if (oneOfHundred < 78)
        return pressKey();
    if (oneOfHundred < 84)
        return undoOrRedo();
    if (oneOfHundred < 92)
        return letTimersFire();
    if (oneOfHundred < 95)
        return reshapeWindow();
    if (oneOfHundred < 97)
        return m_random.below(3) == 0 ? zoomFar() : turnWheel();
    if (oneOfHundred < 98)
        return m_random.below(4) == 0 ? goThroughHistory() : changeLooks();
    return m_random.below(2) == 0 ? meddleWithSettings() : meddleWithFiles();
}

QString RandomUser::perform(const char *name)
{
    auto *action = m_window.findChild<QAction *>(name);
    if (action->isEnabled())
        action->trigger();
    return name;
}

QString RandomUser::chooseTool()
{
    constexpr std::array names = {"actionKeep_arker",
                                  "action_Remove_Marker",
                                  "actionEraser",
                                  "actionForeground_Brush",
                                  "actionBackground_Brush",
                                  "actionHandTool",
                                  "actionMask",
                                  "actionPreview",
                                  "actionPreview",
                                  "actionBackgroundZoomPlus",
                                  "actionBackgroundZoomMinus",
                                  "actionSelect_Background"};
    return perform(names[static_cast<std::size_t>(m_random.below(static_cast<int>(names.size())))]);
}

// Seldom enough do a picture behind, its zoom and an export come together by themselves.
QString RandomUser::exportOverZoomedPicture()
{
    m_window.findChild<QAction *>("actionPreview")->setChecked(true);
    for (int attempt = 0; attempt < 6 && m_probe.backgroundImage().isNull(); ++attempt)
        perform("actionSelect_Background");
    const char *zoom = m_random.below(2) == 0 ? "actionBackgroundZoomPlus" : "actionBackgroundZoomMinus";
    for (int times = m_random.below(12); times > 0; --times)
        perform(zoom);
    perform("actionExport");
    return "export over a zoomed picture";
}

QString RandomUser::openOrWrite()
{
    if (m_random.below(6) == 0)
        return exportOverZoomedPicture();

    constexpr std::array names = {"actionOpen",   "actionSave",   "actionSave_As", "actionExport",
                                  "actionExport", "actionExport", "actionExport"};
    return perform(names[static_cast<std::size_t>(m_random.below(static_cast<int>(names.size())))]);
}

QString RandomUser::turnWheel()
{
    constexpr std::array modifiers = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier,
                                      Qt::AltModifier};
    const QPoint position = somewhere();
    const int turn = 120 * (m_random.below(21) - 10);
    QWheelEvent event(position, m_canvas->viewport()->mapToGlobal(QPointF(position)), QPoint(),
                      m_random.below(3) == 0 ? QPoint(turn, 0) : QPoint(0, turn), Qt::NoButton,
                      modifiers[static_cast<std::size_t>(m_random.below(4))], Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_canvas->viewport(), &event);
    return "wheel";
}

QString RandomUser::changeLooks()
{
    switch (m_random.below(6)) {
    case 0: {
        const QPalette dark(QColor::fromRgb(m_random.next()), QColor::fromRgb(m_random.next()));
        QApplication::setPalette(m_random.below(2) == 0 ? dark : QPalette());
        return "palette";
    }
    case 1: {
        QFont font = QApplication::font();
        font.setPointSize(6 + m_random.below(14));
        QApplication::setFont(font);
        return "font";
    }
    case 2:
        QApplication::setStyle(m_random.below(2) == 0 ? "Windows" : "Fusion");
        return "style";
    case 3: {
        const QStringList languages = translations::languages() + QStringList{QString()};
        const QString language = languages[m_random.below(static_cast<int>(languages.size()))];
        translations::install(language);
        return "language " + language;
    }
    case 4:
        QApplication::setLayoutDirection(m_random.below(2) == 0 ? Qt::RightToLeft : Qt::LeftToRight);
        return "direction";
    default:
        m_window.close();
        return "close";
    }
}

QString RandomUser::goThroughHistory()
{
    QUndoStack &stack = m_probe.undoStack();
    for (const int end : {0, stack.count()}) {
        stack.setIndex(end);
        if (m_time == Time::Still)
            check(m_cutOutModel.follow());
    }
    return "undo everything, redo everything";
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
    constexpr std::array modifiers = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    QMouseEvent event(type, position, m_canvas->viewport()->mapToGlobal(QPointF(position)), button, buttons,
                      modifiers[static_cast<std::size_t>(m_random.below(4))]);
    const QString wrong = m_canvasModel.send(event);
    if (m_time == Time::Still)
        check(wrong);
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
    const bool wanted = m_random.below(8) == 0;
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
        Press{Qt::Key_S, Qt::ControlModifier},     Press{Qt::Key_F10, Qt::ShiftModifier},
        Press{Qt::Key_Left, Qt::AltModifier},      Press{Qt::Key_Space, Qt::MetaModifier},
        Press{Qt::Key_Plus, Qt::ControlModifier},  Press{Qt::Key_Minus, Qt::ControlModifier},
        Press{Qt::Key_End, Qt::ShiftModifier},     Press{Qt::Key_Y, Qt::ControlModifier}};
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
    QAction *zoom =
        m_window.findChild<QAction *>(m_random.below(2) == 0 ? "actionZoom_In" : "actionZoom_Out");
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
    if (m_time == Time::Real)
        return;
    const auto stop = [](QTimer &timer, bool &due) {
        if (!timer.isActive())
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
        const int entries = m_probe.undoStack().index();
        check(m_cutOutModel.processBatch());
        m_brushed = m_probe.undoStack().index() != entries;
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
    QStringList files = picturefiles::writeAssortment(m_folder);
    if (m_random.below(6) == 0) {
        files.append(folder.filePath("large.bmp"));
        const int width = 400 + m_random.below(1600);
        testsupport::put(files.last(),
                         picturefiles::encoded(picturefiles::smallPicture(width, 2400 - width, 11), "bmp"));
    }
    QStringList targets = {
        folder.filePath("out-1.jpg"),       folder.filePath("out-2.png"), folder.filePath("out-3.jpeg"),
        folder.filePath("out-4.gif"),       folder.filePath("out-5"),     folder.filePath("folder.png"),
        folder.filePath("nowhere/out.jpg"), folder.filePath("photo.jpg"), folder.filePath("drawing.png")};
    m_answers.setFiles(files, targets);
    if (m_random.below(3) == 0) // gone between choosing and reading
        QFile::remove(m_probe.currentFile());
    return "meddle with the files";
}
