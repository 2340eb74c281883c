// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "app/SettingsFile.h"
#include "tests/support/MainWindowProbe.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

/// What a settings file may be that is none. A program that waited for it would end by the test's time limit.
class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void aFileIsRead()
    {
        {
            QSettings store;
            m_path = store.fileName();
            store.setValue("KEEPMSIZE", 33);
        }
        app::avoidSpecialSettingsFiles();
        QCOMPARE(QSettings().fileName(), m_path);
        QCOMPARE(QSettings().value("KEEPMSIZE").toInt(), 33);
    }

    // The last ones: what they do holds for the rest of the program.
    void notWhatIsNone_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"pipe", "link to a device", "vast file", "pipe for all programs"})
            QTest::newRow(kind) << kind;
    }

    void notWhatIsNone()
    {
        QFETCH(QString, kind);
        const QString folder = QFileInfo(m_path).path();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QFileInfo(folder).path());
        const bool forAll = kind == "pipe for all programs";
        const QString path = forAll ? folder + ".conf" : m_path;
        QFile::remove(m_path);
        QFile::remove(path);
        if (kind.startsWith("pipe")) {
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (kind == "vast file") {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64{1} << 40));
        } else {
            QVERIFY(QFile::link("/dev/zero", path));
        }
        app::avoidSpecialSettingsFiles();
        MainWindow window(nullptr);
        MainWindowProbe probe(window);
        QCOMPARE(int{probe.keepMarkerSize()}, 10);
        probe.settings().setValue("KEEPMSIZE", 44);
        probe.settings().sync();
        QFile::remove(path);
    }

private:
    QString m_path;
};

ORNEVO_TEST_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
