// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/support/Activation.h"

#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QKeySequence>
#include <QTest>
#include <QTimer>
#include <QWindow>

/// Sits in the real program, which loads it as it would a driver of an input device, and presses keys in its
/// window: those of ORNEVO_KEYS, separated by blanks. What the program calls itself goes to the file
/// ORNEVO_REPORT. With tst_program, which starts the program.
class KeyPresser : public QObject
{
    Q_OBJECT

public:
    KeyPresser()
    {
        // Not before the program has an event loop and a window that takes keys.
        connect(&m_looks, &QTimer::timeout, this, &KeyPresser::look);
        m_looks.start(1);
    }

private:
    void look()
    {
        QWidget *window = QApplication::activeWindow();
        if (window == nullptr)
            for (QWidget *shown : QApplication::topLevelWidgets())
                if (shown->isVisible() && shown->windowHandle()->isExposed())
                    testsupport::activate(*shown); // a bare X server has nobody else to do it
        if (window == nullptr || !window->windowHandle()->isExposed())
            return;
        m_looks.stop();
        report();
        const QStringList keys = qEnvironmentVariable("ORNEVO_KEYS").split(' ', Qt::SkipEmptyParts);
        for (const QString &key : keys) {
            const QKeyCombination pressed = QKeySequence(key)[0];
            QTest::keyClick(window->windowHandle(), pressed.key(), pressed.keyboardModifiers());
        }
    }

    static void report()
    {
        QFile file(qEnvironmentVariable("ORNEVO_REPORT"));
        if (file.open(QIODevice::WriteOnly))
            file.write(
                (QCoreApplication::applicationName() + '\n' + QCoreApplication::organizationName()).toUtf8());
    }

    QTimer m_looks;
};

class KeysFromInside : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "KeysFromInside.json")

public:
    QObject *create(const QString & /*key*/, const QString & /*specification*/) override
    {
        return new KeyPresser;
    }
};

#include "KeysFromInside.moc"
