#include "platform/devices/LogindActions.h"

#include <QSemaphore>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using platform::LogindActions;
using platform::SystemActions;

/// What needs no login service; see tst_RealLogin for the rest.
class tst_LogindActions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksInAThreadOfItsOwn();
    void endsWhatHasBegun();
    void tellsNobodyWhenItHasGone();
};

// The caller goes on while the machine is still at it, and is answered in its own thread.
void tst_LogindActions::asksInAThreadOfItsOwn() {
    LogindActions actions(u"1"_s);
    QSemaphore machine;
    QThread* asked = nullptr;
    QThread* answered = nullptr;
    QString told;
    actions.Begin(
        [&](SystemActions& self) {
            machine.acquire();
            asked = QThread::currentThread();
            return self.Open(u"/nonexistent/program"_s, {});
        },
        [&](const QString& reason) {
            answered = QThread::currentThread();
            told = reason;
        });
    QCOMPARE(told, QString());
    machine.release();
    QTRY_COMPARE(told, u"There is no /nonexistent/program"_s);
    QCOMPARE(answered, thread());
    QVERIFY(asked != nullptr && asked != answered);
}

void tst_LogindActions::endsWhatHasBegun() {
    QStringList done;
    {
        LogindActions actions(u"1"_s);
        for (const QString& name : {u"one"_s, u"two"_s}) {
            actions.Begin(
                [&done, name](SystemActions&) {
                    static QMutex mutex;
                    const QMutexLocker lock(&mutex);
                    done += name;
                    return QString();
                },
                [](const QString&) {});
        }
    }
    done.sort();
    QCOMPARE(done, QStringList({u"one"_s, u"two"_s}));
}

void tst_LogindActions::tellsNobodyWhenItHasGone() {
    bool told = false;
    {
        LogindActions actions(u"1"_s);
        actions.Begin([](SystemActions&) { return QString(); },
                      [&](const QString&) { told = true; });
    }
    QCoreApplication::processEvents();
    QVERIFY(!told);
}

QTEST_GUILESS_MAIN(tst_LogindActions)
#include "tst_LogindActions.moc"
