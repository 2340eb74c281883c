// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/WindowUser.h"

#include "canvas/MarkerDabs.h"
#include "canvas/SceneLayers.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPen>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

constexpr int lookEvery = 2; // ms

/// Runs `cause` and deals with every modal dialog that it opens.
void withDialogs(const std::function<void(QDialog &)> &answer, const std::function<void()> &cause)
{
    const auto alive = std::make_shared<bool>(true);
    const auto look = std::make_shared<std::function<void()>>();
    *look = [=] {
        if (!*alive)
            return;
        QTimer::singleShot(lookEvery, *look);
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(box->buttons().size() > 1 ? QMessageBox::Yes : QMessageBox::Ok)->click();
        else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            answer(*dialog);
    };
    QTimer::singleShot(lookEvery, *look);
    cause();
    *alive = false;
    *look = nullptr;
}

void chooseFile(QDialog &dialog, const QString &path)
{
    // A second look at the same dialog means that it would not have the name.
    if (dialog.property("answered").toBool()) {
        dialog.reject();
        return;
    }
    dialog.setProperty("answered", true);
    dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

} // namespace

WindowUser::WindowUser() : m_probe(m_window) {}

QString WindowUser::status() const
{
    return m_window.statusBar()->currentMessage();
}

void WindowUser::trigger(const char *action)
{
    m_window.findChild<QAction *>(action)->trigger();
}

void WindowUser::open(const QString &path)
{
    withDialogs([&](QDialog &dialog) { chooseFile(dialog, path); }, [this] { trigger("actionOpen"); });
}

void WindowUser::saveAs(const QString &path)
{
    withDialogs([&](QDialog &dialog) { chooseFile(dialog, path); }, [this] { trigger("actionSave_As"); });
}

void WindowUser::save()
{
    withDialogs([](QDialog &dialog) { dialog.reject(); }, [this] { trigger("actionSave"); });
}

void WindowUser::exportTo(const QString &path, int width, int height)
{
    const auto answer = [&](QDialog &dialog) {
        dialog.findChild<QSpinBox *>("spinBox")->setValue(width);
        if (height > 0)
            dialog.findChild<QSpinBox *>("spinBox_2")->setValue(height);
        // Past the file dialog, which would refuse a name that leads nowhere; the place can vanish later.
        dialog.findChild<QLabel *>("label_2")->setText(path);
        dialog.accept();
    };
    withDialogs(answer, [this] { trigger("actionExport"); });
}

void WindowUser::preview(bool on)
{
    m_window.findChild<QAction *>("actionPreview")->setChecked(on);
}

void WindowUser::layDabs()
{
    const QSize size = m_probe.workingImage().size();
    const QRectF middle(size.width() / 2, size.height() / 2, 2, 2);
    m_probe.imageScene().addRect(middle, QPen(QColor(markers::keepColour)))->setZValue(layers::dabZ);
    m_probe.imageScene()
        .addEllipse(QRectF(1, 1, 2, 2), QPen(QColor(markers::removeColour)))
        ->setZValue(layers::dabZ);
}

void WindowUser::brush(const QRect &square)
{
    m_window.findChild<QAction *>("actionForeground_Brush")->setChecked(true);
    QMetaObject::invokeMethod(&m_window, "on_BrushMouseEvent", Q_ARG(QRect, square), Q_ARG(bool, true));
    QMetaObject::invokeMethod(&m_window, "on_ProcessBrushMouseEvent");
}
