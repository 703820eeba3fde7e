#include <QTest>

#include "platform/SimulatedClock.h"
#include "platform/TzFolder.h"

using namespace Qt::StringLiterals;

class tst_SimulatedClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void standsStill();
    void knowsTheOffsetOfItsZone();
    void alignsOneSecondToTheTurn();
    void callsInOrderOfTheMoments();
    void bringsAShotForward();
    void letsASoonerShotCome();
    void stops();
    void isNotReentered();
    void mayDieInsideItsCall();
    void goesByTheInstantOnceItIsTold();
    void livesThroughAnHourTwice();
    void leavesAnHourOut();
    void keepsTheMomentsOfItsTickers();
    void takesAReadingWhileItKnowsTheInstant();

private:
    std::unique_ptr<platform::Ticker> Ticker(const QString& name) {
        return clock_->MakeTicker([this, name] { Note(name); });
    }
    void Note(const QString& name) { calls_ += name + clock_->Now().time().toString(u" ss.zzz"_s); }

    std::unique_ptr<platform::SimulatedClock> clock_;
    QStringList calls_;
};

void tst_SimulatedClock::init() {
    calls_.clear();
    clock_ = std::make_unique<platform::SimulatedClock>(
        QDateTime(QDate(2026, 6, 15), QTime(12, 0, 0, 250), Qt::UTC),
        platform::TzZone("Europe/Oslo"));
}

void tst_SimulatedClock::standsStill() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(100);
    clock_->SetNow(QDateTime(QDate(2026, 6, 15), QTime(13, 0), Qt::UTC));
    QCOMPARE(clock_->Now(), QDateTime(QDate(2026, 6, 15), QTime(13, 0), Qt::UTC));
    QCOMPARE(calls_, QStringList());
    clock_->Advance(50);
    QCOMPARE(clock_->Now().time(), QTime(13, 0, 0, 50));
}

void tst_SimulatedClock::knowsTheOffsetOfItsZone() {
    QCOMPARE(clock_->OffsetFromGmt(), 7200);
    clock_->SetNow(QDateTime(QDate(2026, 1, 15), QTime(12, 0), Qt::UTC));
    QCOMPARE(clock_->OffsetFromGmt(), 3600);
}

void tst_SimulatedClock::alignsOneSecondToTheTurn() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(1000);
    QCOMPARE(ticker->Interval(), 1000);
    clock_->Advance(2000);
    QCOMPARE(calls_, QStringList({u"a 01.000"_s, u"a 02.000"_s}));
}

void tst_SimulatedClock::callsInOrderOfTheMoments() {
    const auto slow = Ticker(u"slow"_s);
    const auto quick = Ticker(u"quick"_s);
    slow->SetInterval(500);
    quick->SetInterval(200);
    clock_->Advance(600);
    QCOMPARE(calls_, QStringList({u"quick 00.450"_s, u"quick 00.650"_s, u"slow 00.750"_s,
                                  u"quick 00.850"_s}));
}

void tst_SimulatedClock::bringsAShotForward() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(5000);
    clock_->Advance(100);
    ticker->SetInterval(50);
    clock_->Advance(60);
    QCOMPARE(calls_, QStringList{u"a 00.400"_s});
}

void tst_SimulatedClock::letsASoonerShotCome() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(200);
    clock_->Advance(100);
    ticker->SetInterval(3000);
    clock_->Advance(3100);
    QCOMPARE(calls_, QStringList({u"a 00.450"_s, u"a 03.450"_s}));
}

void tst_SimulatedClock::stops() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(200);
    ticker->SetInterval(0);
    clock_->Advance(1000);
    QCOMPARE(calls_, QStringList());
}

void tst_SimulatedClock::isNotReentered() {
    std::unique_ptr<platform::Ticker> ticker = clock_->MakeTicker([this] {
        Note(u"in"_s);
        clock_->Advance(250);  // a nested loop, in which it falls due again
        Note(u"out"_s);
    });
    ticker->SetInterval(100);
    clock_->Advance(100);
    QCOMPARE(calls_, QStringList({u"in 00.350"_s, u"out 00.600"_s}));
}

void tst_SimulatedClock::mayDieInsideItsCall() {
    std::unique_ptr<platform::Ticker> ticker = clock_->MakeTicker([this, &ticker] {
        Note(u"a"_s);
        ticker.reset();
    });
    ticker->SetInterval(100);
    clock_->Advance(1000);
    QCOMPARE(calls_, QStringList{u"a 00.350"_s});
}

namespace {

QDateTime Gmt(int month, int day, int hour, int minute, int second = 0) {
    return {QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC};
}

}  // namespace

void tst_SimulatedClock::goesByTheInstantOnceItIsTold() {
    QCOMPARE(clock_->Instant(), Gmt(6, 15, 10, 0).toSecsSinceEpoch());
    clock_->SetInstant(Gmt(1, 15, 12, 0));
    QCOMPARE(clock_->Instant(), Gmt(1, 15, 12, 0).toSecsSinceEpoch());
    QCOMPARE(clock_->Now(), Gmt(1, 15, 13, 0));
    QCOMPARE(clock_->Now().timeSpec(), Qt::UTC);
    clock_->SetZone(platform::TzZone("Asia/Tokyo"));
    QCOMPARE(clock_->Now(), Gmt(1, 15, 21, 0));
}

void tst_SimulatedClock::livesThroughAnHourTwice() {
    clock_->SetInstant(Gmt(10, 25, 0, 59, 59));
    QCOMPARE(clock_->Now(), Gmt(10, 25, 2, 59, 59));
    clock_->Advance(1000);
    QCOMPARE(clock_->Now(), Gmt(10, 25, 2, 0));
    QCOMPARE(clock_->OffsetFromGmt(), 3600);
    clock_->Advance(3'600'000);
    QCOMPARE(clock_->Now(), Gmt(10, 25, 3, 0));
}

void tst_SimulatedClock::leavesAnHourOut() {
    clock_->SetInstant(Gmt(3, 29, 0, 59, 58));
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(1000);
    clock_->Advance(3000);
    QCOMPARE(clock_->Now(), Gmt(3, 29, 3, 0, 1));
    QCOMPARE(calls_, (QStringList{u"a 59.000"_s, u"a 00.000"_s, u"a 01.000"_s}));
}

void tst_SimulatedClock::keepsTheMomentsOfItsTickers() {
    const auto ticker = Ticker(u"a"_s);
    ticker->SetInterval(1000);  // due at 12:00:01
    clock_->SetInstant(Gmt(6, 15, 10, 0));
    clock_->Advance(999);
    QCOMPARE(calls_, QStringList());
    clock_->Advance(1);
    QCOMPARE(calls_, QStringList{u"a 01.000"_s});
}

void tst_SimulatedClock::takesAReadingWhileItKnowsTheInstant() {
    clock_->SetInstant(Gmt(1, 15, 12, 0));
    clock_->SetNow(Gmt(6, 15, 12, 0));
    QCOMPARE(clock_->Now(), Gmt(6, 15, 12, 0));
    QCOMPARE(clock_->Instant(), Gmt(6, 15, 10, 0).toSecsSinceEpoch());
}

QTEST_GUILESS_MAIN(tst_SimulatedClock)
#include "tst_SimulatedClock.moc"
