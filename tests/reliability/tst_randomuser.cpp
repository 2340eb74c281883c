// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/PictureFiles.h"
#include "tests/reliability/RandomUser.h"
#include "tests/reliability/WindowInvariants.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <csignal>
#include <cstdlib>
#include <memory>

#include <unistd.h>

namespace {

constexpr int stepsByDefault = 1500;
constexpr int secondsForAStep = 20; // with sanitizers on a busy machine

int fromEnvironment(const char *name, int otherwise)
{
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : otherwise;
}

/// What was done and what came of it, in one number.
quint64 mixed(quint64 trail, const QString &what, int entries)
{
    constexpr quint64 prime = 0x100000001B3;
    for (const QChar letter : what)
        trail = (trail ^ letter.unicode()) * prime;
    return (trail ^ static_cast<quint64>(entries)) * prime;
}

QStringList temporaryFiles()
{
    return QDir(QDir::tempPath()).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

/// A walk through the program without aim or end. ORNEVO_WALK_SEED and ORNEVO_WALK_STEPS choose it;
/// scripts/walk does it for you.
class TestRandomUser : public QObject
{
    Q_OBJECT

public slots:
    void openMail(const QUrl & /*address*/) { ++m_mails; } // no mail program is started

private slots:
    void initTestCase()
    {
        QDesktopServices::setUrlHandler("mailto", this, "openMail");
        QGuiApplication::setQuitOnLastWindowClosed(false); // it comes back
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtFatalMsg || qEnvironmentVariableIsSet("ORNEVO_WALK_VERBOSE"))
                fprintf(stderr, "%s\n", qPrintable(text));
        });
    }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("mailto"); }

    void walks()
    {
        const int seed = fromEnvironment("ORNEVO_WALK_SEED", 1);
        const int steps = fromEnvironment("ORNEVO_WALK_STEPS", stepsByDefault);
        const QTemporaryDir home;
        QVERIFY(home.isValid());
        const QString folder = home.filePath("pictures");
        const int widgetsBefore = static_cast<int>(QApplication::allWidgets().size());
        QElapsedTimer clock;
        clock.start();
        const int longestStep = fromEnvironment("ORNEVO_WALK_STEP_SECONDS", secondsForAStep);
        std::signal(SIGALRM, [](int) { std::abort(); }); // with a look at the stack, if a sanitizer is there
        qint64 longest = 0;
        QString slowest;
        quint64 trail = 0; // the same for the same seed, or the walk can't be repeated
        auto window = std::make_unique<MainWindow>();
        MainWindowProbe probe(*window);
        {
            const auto time = seed % 4 == 3 ? RandomUser::Time::Real : RandomUser::Time::Still;
            RandomUser user(*window, static_cast<unsigned>(seed), folder, time);
            WindowInvariants invariants(*window);
            window->show();
            QVERIFY(QTest::qWaitForWindowActive(window.get()));
            for (int step = 1; step <= steps; ++step) {
                const qint64 begin = clock.elapsed();
                alarm(static_cast<unsigned>(longestStep));
                const QString what = user.step();
                alarm(0);
                if (qEnvironmentVariableIsSet("ORNEVO_WALK_VERBOSE"))
                    fprintf(stderr, "%d %s\n", step, qPrintable(what));
                if (clock.elapsed() - begin > longest) {
                    longest = clock.elapsed() - begin;
                    slowest = QStringLiteral("%1 (%2)").arg(step).arg(what);
                }
                trail = mixed(trail, what, probe.undoStack().count());
                const QString wrong = user.complaint();
                const QString broken = wrong.isEmpty() ? invariants.broken() : wrong;
                QVERIFY2(
                    broken.isEmpty(),
                    qPrintable(
                        QStringLiteral("seed %1, step %2 (%3): %4").arg(seed).arg(step).arg(what, broken)));
                QVERIFY2(temporaryFiles().size() <= 210, "more temporary files than the history can hold");
            }
            const QString tiny = home.filePath("tiny.png");
            testsupport::put(tiny, picturefiles::encoded(picturefiles::smallPicture(5, 4, 1), "png"));
            user.openForSure(tiny);
            fprintf(stderr, "seed %d: %d steps, %d dialogs, %lld ms, longest %lld ms at %s, trail %llx\n",
                    seed, steps, user.dialogsAnswered(), static_cast<long long>(clock.elapsed()),
                    static_cast<long long>(longest), qPrintable(slowest),
                    static_cast<unsigned long long>(trail));
        }
        // Of all that was there, the tiny picture remains.
        QCOMPARE(probe.workingImage().size(), QSize(5, 4));
        QCOMPARE(probe.imageScene().items().size(), 1);
        QVERIFY(probe.previewScene().items().isEmpty());
        QCOMPARE(probe.undoStack().count(), 0);
        QVERIFY(probe.outmask().isEmpty());
        QVERIFY(probe.previewImage().isNull());
        QCOMPARE(temporaryFiles(), QStringList());
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(static_cast<int>(QApplication::allWidgets().size()), widgetsBefore);
    }

private:
    int m_mails = 0;
};

ORNEVO_TEST_MAIN(TestRandomUser)
#include "tst_randomuser.moc"
