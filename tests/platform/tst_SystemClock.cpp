#include <QElapsedTimer>
#include <QTest>
#include <ctime>

#include "platform/SystemClock.h"

class tst_SystemClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void carriesNoZone();
    void showsTheMachinesZone();
    void firesBehindTheTurnOfTheSecond();
    void stops();
    void isNotReentered();
    void mayDieInsideItsCall();

private:
    platform::SystemClock clock_;
};

void tst_SystemClock::carriesNoZone() {
    QCOMPARE(clock_.Now().timeSpec(), Qt::UTC);
    const qint64 gmt =
        clock_.Now().toSecsSinceEpoch() - static_cast<qint64>(clock_.OffsetFromGmt());
    QVERIFY(qAbs(gmt - QDateTime::currentSecsSinceEpoch()) <= 1);
}

// In a zone that is 5 hours and a half ahead all year.
void tst_SystemClock::showsTheMachinesZone() {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "IST-5:30");
    tzset();
    const int offset = clock_.OffsetFromGmt();
    const qint64 ahead = clock_.Now().toSecsSinceEpoch() - QDateTime::currentSecsSinceEpoch();
    before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
    tzset();
    QCOMPARE(offset, 19'800);
    QVERIFY2(qAbs(ahead - 19'800) <= 1, qPrintable(QString::number(ahead)));
}

// A laden machine may come late, but never before the turn.
void tst_SystemClock::firesBehindTheTurnOfTheSecond() {
    QList<int> past;
    const auto ticker = clock_.MakeTicker([&] { past += clock_.Now().time().msec(); });
    ticker->SetInterval(1000);
    QTRY_VERIFY(past.size() >= 2);
    QVERIFY2(past[0] < 500, qPrintable(QString::number(past[0])));
    QVERIFY2(past[1] < 500, qPrintable(QString::number(past[1])));
}

void tst_SystemClock::stops() {
    int stopped = 0;
    int others = 0;
    const auto ticker = clock_.MakeTicker([&] { ++stopped; });
    const auto other = clock_.MakeTicker([&] { ++others; });
    ticker->SetInterval(10);
    ticker->SetInterval(0);
    QCOMPARE(ticker->Interval(), 0);
    other->SetInterval(10);
    QTRY_VERIFY(others >= 5);
    QCOMPARE(stopped, 0);
}

void tst_SystemClock::isNotReentered() {
    int depth = 0;
    int deepest = 0;
    int calls = 0;
    int others = 0;
    const auto other = clock_.MakeTicker([&] { ++others; });
    const auto ticker = clock_.MakeTicker([&] {
        deepest = qMax(deepest, ++depth);
        const int before = others;
        const QElapsedTimer since = [] {
            QElapsedTimer timer;
            timer.start();
            return timer;
        }();
        while (others < before + 3 && since.elapsed() < 2000) {
            QCoreApplication::processEvents();
        }
        calls += others >= before + 3 ? 1 : 0;  // the other one goes on meanwhile
        --depth;
    });
    other->SetInterval(5);
    ticker->SetInterval(5);
    QTRY_VERIFY(calls >= 2);
    QCOMPARE(deepest, 1);
}

void tst_SystemClock::mayDieInsideItsCall() {
    int calls = 0;
    int others = 0;
    std::unique_ptr<platform::Ticker> ticker = clock_.MakeTicker([&] {
        ++calls;
        ticker.reset();
    });
    const auto other = clock_.MakeTicker([&] { ++others; });
    ticker->SetInterval(5);
    other->SetInterval(5);
    QTRY_VERIFY(others >= 5);
    QCOMPARE(calls, 1);
}

QTEST_GUILESS_MAIN(tst_SystemClock)
#include "tst_SystemClock.moc"
