// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

#include <QDirIterator>
#include <QProcess>

using testsupport::contentsOf;

namespace {

constexpr int patience = 30'000; // ms

const QString applicationName = "Ornevo Pro 2.7 for Mac OS X";
const QString organisationName = "Tirelo software";

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); each.hasNext();)
        files << QDir(folder).relativeFilePath(each.next());
    files.removeIf(
        [](const QString &file) { return file.startsWith(".cache/"); }); // the fonts', of the system's
    return files;
}

/// How a run of the program ended.
struct Run
{
    bool ended = false;
    QProcess::ExitStatus how = QProcess::CrashExit;
    int code = -1;
    QByteArray called; ///< application's and organisation's name
    QByteArray said;
};

} // namespace

/// The program as it is installed, in a process of its own and with a home of its own.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.remove("XDG_CONFIG_HOME");
        m_environment.remove("XDG_CONFIG_DIRS");
    }

    void quitEndsIt()
    {
        const Run run = start("Ctrl+Q");
        QVERIFY2(run.ended, run.said);
        QCOMPARE(run.how, QProcess::NormalExit);
        QCOMPARE(run.code, 0);
    }

    void names() { QCOMPARE(start("Ctrl+Q").called, (applicationName + '\n' + organisationName).toUtf8()); }

    void settingsFile()
    {
        QCOMPARE(start("Ctrl+Right Ctrl+Q").code, 0);
        QCOMPARE(filesBelow(m_home->path()), QStringList(".config/" + settingsName()));
    }

    void settingsFileElsewhere()
    {
        m_environment.insert("XDG_CONFIG_HOME", m_home->filePath("else where"));
        QCOMPARE(start("Ctrl+Right Ctrl+Q").code, 0);
        QCOMPARE(filesBelow(m_home->path()), QStringList("else where/" + settingsName()));
    }

    /// Each start begins with what the one before left: 10, and one more every time.
    void secondStartHasTheSettingsOfTheFirst()
    {
        const QString settings = m_home->filePath(".config/" + settingsName());
        QCOMPARE(start("Ctrl+Right Ctrl+Q").code, 0);
        QVERIFY2(contentsOf(settings).contains("KEEPMSIZE=11\n"), contentsOf(settings));
        QCOMPARE(start("Ctrl+Right Ctrl+Right Ctrl+Q").code, 0);
        QVERIFY2(contentsOf(settings).contains("KEEPMSIZE=13\n"), contentsOf(settings));
    }

private:
    static QString settingsName() { return organisationName + "/" + applicationName + ".conf"; }

    /// Starts the program, presses the keys in its window and waits until it has ended.
    Run start(const QString &keys)
    {
        m_environment.insert("HOME", m_home->path());
        m_environment.insert("ORNEVO_KEYS", keys);
        const QTemporaryDir outside;
        m_environment.insert("ORNEVO_REPORT", outside.filePath("names"));
        m_environment.insert("QT_PLUGIN_PATH", ORNEVO_TEST_PLUGINS);
        m_environment.insert("QT_QPA_GENERIC_PLUGINS", "ornevokeys");
        QProcess program;
        program.setProcessEnvironment(m_environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(qEnvironmentVariable("ORNEVO_PROGRAM", ORNEVO_BUILT_PROGRAM), QStringList());
        Run run;
        run.ended = program.waitForFinished(patience);
        run.said = program.readAll();
        if (!run.ended) {
            program.kill();
            program.waitForFinished();
        }
        run.how = program.exitStatus();
        run.code = program.exitCode();
        run.called = contentsOf(outside.filePath("names"));
        return run;
    }

    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
};

ORNEVO_TEST_MAIN(TestProgram)
#include "tst_program.moc"
