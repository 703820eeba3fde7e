#include "speech/SpokenPatterns.h"

#include <QLocale>
#include <QTest>

#include "support/FakeSpeechHost.h"

using namespace Qt::StringLiterals;
using namespace speech;

namespace {

/// A voice that writes down: flags, "!" where it is forced, and the text.
class RecordingVoice final : public ClockVoice {
public:
    QStringList Log;
    bool Busy = false;
    bool IsSpeaking() const override { return Busy; }
    void SpeakMessage(const QString& text, int flags, Urgency urgency) override {
        Log += QString::number(flags) + (urgency == Urgency::Urgent ? u"! "_s : u" "_s) + text;
    }
};

const QString SecondKey = u"Speech Second Pattern"_s;
const QString MinuteKey = u"Speech Minute Pattern"_s;
const QString HourKey = u"Speech Hour Pattern"_s;
const QString DayKey = u"Speech Day Pattern"_s;

struct PatternDesk : SpeechDesk {
    RecordingVoice Voice;
    SpokenPatterns Spoken{Context(), Voice};

    /// Sets the four patterns; an empty text switches one off.
    void SetPatterns(const QString& second, const QString& minute, const QString& hour,
                     const QString& day) {
        Set(SecondKey, second);
        Set(MinuteKey, minute);
        Set(HourKey, hour);
        Set(DayKey, day);
        Spoken.ReadPatterns();
    }
};

}  // namespace

class tst_SpokenPatterns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SpeaksTheShortestUnit_data();
    void SpeaksTheShortestUnit();
    void StaysSilentWithoutPatterns();
    void StaysSilentBesideAMessage();
    void StaysSilentBesideAnAction();
    void StaysSilentWhileATextIsSpoken();
    void SpeaksTheClocksTime();
    void SpeaksOncePerMoment();
    void LetsNoLongerUnitFollowInTheSameSecond();
    void SpeaksAgainAfterTheClockIsSetBack();
    void KeepsPatternsUntilTheyAreRead();
    void SpeaksByNumberedKeys();
    void ForcesAKind();
    void SpeaksTheLongestUnitNow_data();
    void SpeaksTheLongestUnitNow();
    void SpeaksNowWhatHasJustBeenSet();
};

void tst_SpokenPatterns::SpeaksTheShortestUnit_data() {
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QStringList>("spoken");
    const QStringList all = {u"second"_s, u"minute"_s, u"hour"_s, u"day"_s};
    const QStringList noSecond = {u"None"_s, u"minute"_s, u"hour"_s, u"day"_s};
    const QStringList longer = {u"0"_s, u"None"_s, u"hour"_s, u"day"_s};
    const QStringList dayOnly = {u""_s, u""_s, u""_s, u"day"_s};
    QTest::newRow("second at midnight") << all << QTime(0, 0, 0) << QStringList{u"0 second"_s};
    QTest::newRow("second at any time") << all << QTime(1, 2, 3) << QStringList{u"0 second"_s};
    QTest::newRow("minute on the hour") << noSecond << QTime(5, 0, 0) << QStringList{u"0 minute"_s};
    QTest::newRow("minute") << noSecond << QTime(5, 1, 0) << QStringList{u"0 minute"_s};
    QTest::newRow("no minute") << noSecond << QTime(5, 1, 1) << QStringList{};
    QTest::newRow("hour at midnight") << longer << QTime(0, 0, 0) << QStringList{u"0 hour"_s};
    QTest::newRow("hour") << longer << QTime(7, 0, 0) << QStringList{u"0 hour"_s};
    QTest::newRow("no hour") << longer << QTime(7, 1, 0) << QStringList{};
    QTest::newRow("day") << dayOnly << QTime(0, 0, 0) << QStringList{u"0 day"_s};
    QTest::newRow("no day") << dayOnly << QTime(12, 0, 0) << QStringList{};
}

void tst_SpokenPatterns::SpeaksTheShortestUnit() {
    QFETCH(QStringList, patterns);
    QFETCH(QTime, time);
    PatternDesk desk;
    desk.SetPatterns(patterns[0], patterns[1], patterns[2], patterns[3]);
    desk.SetTime(16, time.hour(), time.minute(), time.second());
    desk.Spoken.CheckSpokenTime();
    QTEST(desk.Voice.Log, "spoken");
}

void tst_SpokenPatterns::StaysSilentWithoutPatterns() {
    PatternDesk desk;
    desk.SetPatterns(u"None"_s, u"0"_s, QString(), u"None,None,In <Location>"_s);
    desk.SetTime(16, 0, 0, 0);
    desk.Spoken.CheckSpokenTime();
    desk.Spoken.SpeakTimeNow();
    QCOMPARE(desk.Voice.Log, QStringList());
}

void tst_SpokenPatterns::StaysSilentBesideAMessage() {
    PatternDesk desk;
    desk.SetPatterns(u"second"_s, QString(), QString(), QString());
    desk.Controls.lblMsg(1).Visible = true;
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList());
    desk.Controls.lblMsg(1).Visible = false;
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList{u"0 second"_s});
}

void tst_SpokenPatterns::StaysSilentBesideAnAction() {
    PatternDesk desk;
    desk.SetPatterns(u"second"_s, QString(), QString(), QString());
    desk.Controls.lblActionMsg(1).Visible = true;
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList());
}

// 6:30 on the machine is noon of a clock that is five and a half hours ahead.
void tst_SpokenPatterns::StaysSilentWhileATextIsSpoken() {
    PatternDesk desk;
    desk.SetPatterns(u"second"_s, {}, {}, {});
    desk.Voice.Busy = true;
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList());
    desk.Voice.Busy = false;
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList{u"0 second"_s});
}

void tst_SpokenPatterns::SpeaksTheClocksTime() {
    PatternDesk desk;
    desk.Zone.HoursFromLocal = 5.5F;
    desk.Zone.CurrentName = u"India Standard Time"_s;
    desk.SetPatterns(QString(), QString(), u"<Past/To> in <Location>"_s, QString());
    desk.SetTime(15, 6, 0, 0);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList());
    desk.SetTime(15, 6, 30, 0);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList{u"0 12 O'Clock  in India Standard Time"_s});
}

void tst_SpokenPatterns::SpeaksOncePerMoment() {
    PatternDesk desk;
    desk.SetPatterns(u"<Second>"_s, QString(), QString(), QString());
    desk.SetTime(15, 6, 30, 7);
    desk.Spoken.CheckSpokenTime();
    desk.Machine.Clock.Advance(100);
    desk.Spoken.CheckSpokenTime();
    desk.Machine.Clock.Advance(899);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList{u"0 7"_s});
    desk.Machine.Clock.Advance(1);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList({u"0 7"_s, u"0 8"_s}));
}

void tst_SpokenPatterns::LetsNoLongerUnitFollowInTheSameSecond() {
    PatternDesk desk;
    desk.SetPatterns(QString(), u"minute"_s, u"hour"_s, QString());
    desk.SetTime(15, 7, 0, 0);
    desk.Spoken.CheckSpokenTime();
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList{u"0 minute"_s});
}

void tst_SpokenPatterns::SpeaksAgainAfterTheClockIsSetBack() {
    PatternDesk desk;
    desk.SetPatterns(QString(), QString(), u"<ShortTime>"_s, QString());
    desk.SetTime(15, 7, 0, 0);
    desk.Spoken.CheckSpokenTime();
    desk.SetTime(15, 7, 0, 1);
    desk.Spoken.CheckSpokenTime();
    desk.SetTime(15, 7, 0, 0);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList({u"0 07:00"_s, u"0 07:00"_s}));
}

void tst_SpokenPatterns::KeepsPatternsUntilTheyAreRead() {
    PatternDesk desk;
    desk.SetPatterns(QString(), QString(), u"before"_s, QString());
    desk.Set(HourKey, u"after"_s);
    desk.SetTime(15, 7, 0, 0);
    desk.Spoken.CheckSpokenTime();
    desk.Spoken.ReadPatterns();
    desk.SetTime(15, 8, 0, 0);
    desk.Spoken.CheckSpokenTime();
    QCOMPARE(desk.Voice.Log, QStringList({u"0 before"_s, u"0 after"_s}));
}

// The hour's text from its sixth companion, over a day of ticks.
void tst_SpokenPatterns::SpeaksByNumberedKeys() {
    PatternDesk desk;
    desk.Set(HourKey, u"None,None,<ShortTime>"_s);
    desk.Set(HourKey + u"6"_s, u"<ShortTime>"_s);
    desk.Set(DayKey + u"2"_s, u"day"_s);
    desk.Spoken.ReadPatterns();
    desk.SetTime(15, 0, 0, 0);
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        desk.Spoken.CheckSpokenTime();
        desk.Machine.Clock.Advance(1000);
    }
    QCOMPARE(desk.Voice.Log, QStringList({u"0 00:00"_s, u"0 06:00"_s, u"0 12:00"_s, u"0 18:00"_s}));
}

void tst_SpokenPatterns::ForcesAKind() {
    PatternDesk desk;
    desk.SetPatterns(QString(), QString(), u"<LongTime>"_s, QString());
    const QDateTime moment(QDate(2026, 6, 15), QTime(9, 8, 7), Qt::UTC);
    QVERIFY(!desk.Spoken.SpeakPatternOfKind(moment, HourPattern, Urgency::Routine, 0));
    QVERIFY(!desk.Spoken.SpeakPatternOfKind(moment, MinutePattern, Urgency::Urgent, 2));
    QVERIFY(desk.Spoken.SpeakPatternOfKind(moment, HourPattern, Urgency::Urgent, 1));
    QCOMPARE(desk.Voice.Log, QStringList{u"1! 09:08:07"_s});
}

void tst_SpokenPatterns::SpeaksTheLongestUnitNow_data() {
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QStringList>("spoken");
    QTest::newRow("all") << QStringList{u"second"_s, u"minute"_s, u"hour"_s, u"day"_s}
                         << QStringList{u"2! day"_s};
    QTest::newRow("no day") << QStringList{u"second"_s, u"minute"_s, u"hour"_s, u"None"_s}
                            << QStringList{u"2! hour"_s};
    QTest::newRow("minute") << QStringList{u"second"_s, u"minute"_s, u"0"_s, u"None"_s}
                            << QStringList{u"2! minute"_s};
    QTest::newRow("second") << QStringList{u"second"_s, u""_s, u""_s, u""_s}
                            << QStringList{u"2! second"_s};
}

void tst_SpokenPatterns::SpeaksTheLongestUnitNow() {
    QFETCH(QStringList, patterns);
    PatternDesk desk;
    desk.SetPatterns(patterns[0], patterns[1], patterns[2], patterns[3]);
    desk.SetTime(15, 13, 14, 15);
    desk.Controls.lblMsg(1).Visible = true;
    desk.Spoken.SpeakTimeNow();
    QTEST(desk.Voice.Log, "spoken");
}

void tst_SpokenPatterns::SpeaksNowWhatHasJustBeenSet() {
    PatternDesk desk;
    desk.Set(DayKey, u"day"_s);
    desk.Spoken.SpeakTimeNow();
    QCOMPARE(desk.Voice.Log, QStringList{u"2! day"_s});
}

QTEST_GUILESS_MAIN(tst_SpokenPatterns)
#include "tst_SpokenPatterns.moc"
