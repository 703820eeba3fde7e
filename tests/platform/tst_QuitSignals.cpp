#include <QTest>
#include <csignal>

#include "platform/QuitSignals.h"

using platform::QuitSignals;

namespace {

/// What the process does at a signal; read without changing it.
auto HandlerOf(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

}  // namespace

class tst_QuitSignals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachSignalCallsOnce_data() {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void EachSignalCallsOnce() {
        QFETCH(int, signal);
        int calls = 0;
        const QuitSignals quitSignals([&calls] { ++calls; });
        QCOMPARE(std::raise(signal), 0);
        QCOMPARE(calls, 0);  // nothing happens inside the handler
        QTRY_COMPARE(calls, 1);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
    }

    void CallsForEachThatHasCome() {
        int calls = 0;
        const QuitSignals quitSignals([&calls] { ++calls; });
        std::raise(SIGTERM);
        std::raise(SIGINT);
        QTRY_COMPARE(calls, 2);
    }

    /// Else a program that hangs at its end could not be killed any more.
    void AfterItsEndTheSignalsKillAgain() {
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            {
                const QuitSignals quitSignals([] {});
                QVERIFY(HandlerOf(signal) != SIG_DFL);
            }
            QVERIFY(HandlerOf(signal) == SIG_DFL);
        }
    }

    void AnotherOneMayFollow() {
        int calls = 0;
        {
            const QuitSignals before([&calls] { calls += 100; });
        }
        const QuitSignals quitSignals([&calls] { ++calls; });
        std::raise(SIGHUP);
        QTRY_COMPARE(calls, 1);
    }
};

QTEST_GUILESS_MAIN(tst_QuitSignals)
#include "tst_QuitSignals.moc"
