#include "timers/TimerFile.h"

#include <QTest>

#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

QDateTime At(int day, int hour, int minute = 0) {
    return {QDate(2026, 11, day), QTime(hour, minute), Qt::UTC};
}

ClockTimer Filled(const QString& line) {
    FakeRandom random;
    ClockTimer timer;
    FillTimer(ParseTimerLine(line, 2026).value(), random, timer);
    return timer;
}

ClockTimer Timer(const QString& time, const QString& permanent = {}) {
    return {time, permanent, true, u"5"_s, u"Call home"_s, 255, {}, u"None"_s, u"0"_s};
}

}  // namespace

class tst_TimerFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ReadsLines_data();
    void ReadsLines();
    void SkipsLines_data();
    void SkipsLines();
    void SplitsMeta();
    void UsesLines_data();
    void UsesLines();
    void FillsTimers_data();
    void FillsTimers();
    void TakesMetaValues();
    void KeepsValuesThatAreNotGiven();
    void IgnoresASixthValue();
    void WritesLines_data();
    void WritesLines();
    void WritesNoTimeThatCannotBeRead();
    void WritesOneLine();
    void ReadsWhatItWrites();
    void TellsWhatIsLost_data();
    void TellsWhatIsLost();
    void TellsWhatBreaksALine();
    void WritesALineForALaterDay();
};

void tst_TimerFile::ReadsLines_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("oneShot");
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("message");

    QTest::newRow("permanent") << u"15:5@Call home"_s << false << u"15:5"_s << u"Call home"_s;
    QTest::newRow("one-shot") << u"15:5=Call home"_s << true << u"15:5"_s << u"Call home"_s;
    QTest::newRow("date") << u"16/11/2026 15:5=Go"_s << true << u"16/11/2026 15:5"_s << u"Go"_s;
    QTest::newRow("meta") << u"5,red,,None,0#15:5@Go"_s << false << u"15:5"_s << u"Go"_s;
    QTest::newRow("no message") << u"15:5@"_s << false << u"15:5"_s << QString();
    QTest::newRow("third piece of @") << u"15:5@a@b"_s << false << u"15:5"_s << u"a"_s;
    QTest::newRow("third piece of =") << u"15:5=a=b"_s << true << u"15:5"_s << u"a"_s;
    QTest::newRow("= in a permanent one") << u"15:5@a=b"_s << true << u"15:5"_s << u"a"_s;
    QTest::newRow("@ in a one-shot one") << u"15:5=a@b"_s << true << u"15:5"_s << u"a@b"_s;
    QTest::newRow("# in the message") << u"15:5@No #1"_s << false << u"15:5"_s << u"No #1"_s;
    QTest::newRow("second # in the head") << u"5#15:5#x@Go"_s << false << u"15:5"_s << u"Go"_s;
    QTest::newRow("@ in the sound of a one-shot one")
        << u"5,red,a@b.wav,None,0#16/11/2026 15:5=x"_s << true << u"16/11/2026 15:5"_s << u"x"_s;
    QTest::newRow("@ in the action of a one-shot one")
        << u"5,red,,/opt/x@1/run,0#16/11/2026 15:6=y"_s << true << u"16/11/2026 15:6"_s << u"y"_s;
    QTest::newRow("@ in a path and = in a permanent one")
        << u"5,red,a@b.wav,None,0#15:5@a=b"_s << true << u"15:5"_s << u"a"_s;
    QTest::newRow("plain hour") << u"3:5@Go"_s << false << u"3:5"_s << u"Go"_s;
}

void tst_TimerFile::ReadsLines() {
    QFETCH(QString, line);
    const std::optional<TimerLine> parsed = ParseTimerLine(line, 2026);
    QVERIFY(parsed.has_value());
    QTEST(parsed->OneShot, "oneShot");
    QTEST(parsed->Head, "head");
    QTEST(parsed->Message, "message");
}

void tst_TimerFile::SkipsLines_data() {
    QTest::addColumn<QString>("line");

    QTest::newRow("empty") << QString();
    QTest::newRow("comment") << u"my timers, 15:05"_s;
    QTest::newRow("mark alone") << u"@"_s;
    QTest::newRow("both marks alone") << u"@="_s;
    QTest::newRow("no head") << u"@Call home"_s;
    QTest::newRow("no head behind meta") << u"5,red,,None,0#@Call home"_s;
    QTest::newRow("meta alone") << u"5,red,,None,0#"_s;
    QTest::newRow("hour 24") << u"24:30@Call home"_s;
    QTest::newRow("99:99") << u"99:99=Call home"_s;
    QTest::newRow("minute 60") << u"5:60@Call home"_s;
    QTest::newRow("30 February") << u"30/2/2026 9:30=Call home"_s;
    QTest::newRow("words") << u"noon@Call home"_s;
    QTest::newRow("@ in a path") << u"5,red,a@b.wav,None,0#15:5@Go"_s;
    QTest::newRow("= in a path") << u"5,red,a=b.wav,None,0#15:5@Go"_s;
    QTest::newRow("# in a path") << u"5,red,a#b.wav,None,0#15:5@Go"_s;
    QTest::newRow("long head") << QString(100000, u'1') + u"@Go"_s;
    QTest::newRow("long blanks") << u"1/2"_s + QString(100000, u' ') + u"x@Go"_s;
}

void tst_TimerFile::SkipsLines() {
    QFETCH(QString, line);
    QVERIFY(!ParseTimerLine(line, 2026).has_value());
}

void tst_TimerFile::SplitsMeta() {
    QCOMPARE(ParseTimerLine(u"5,red,,None,0#15:5@Go"_s, 2026)->Meta,
             QStringList({u"5"_s, u"red"_s, QString(), u"None"_s, u"0"_s}));
    QCOMPARE(ParseTimerLine(u"15:5@Go"_s, 2026)->Meta, QStringList{QString()});
    QCOMPARE(ParseTimerLine(u"#15:5@Go"_s, 2026)->Meta, QStringList{QString()});
    QCOMPARE(ParseTimerLine(u"5,red,a@b.wav,/opt/x@1/run,0#16/11/2026 15:5=x"_s, 2026)->Meta,
             QStringList({u"5"_s, u"red"_s, u"a@b.wav"_s, u"/opt/x@1/run"_s, u"0"_s}));
}

void tst_TimerFile::UsesLines_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("hour");  // on 16 November 2026
    QTest::addColumn<bool>("load");
    QTest::addColumn<bool>("defer");

    QTest::newRow("time @") << u"15:5@x"_s << 9 << true << false;
    QTest::newRow("time =") << u"15:5=x"_s << 9 << true << true;
    QTest::newRow("time with both") << u"15:5@x=y"_s << 9 << true << true;
    QTest::newRow("today, morning") << u"16/11/2026 15:5=x"_s << 9 << true << false;
    QTest::newRow("today, midnight") << u"16/11/2026 15:5=x"_s << 0 << true << false;
    QTest::newRow("today, 11 o'clock") << u"16/11/2026 15:5=x"_s << 11 << true << false;
    QTest::newRow("today, noon") << u"16/11/2026 15:5=x"_s << 12 << false << true;
    QTest::newRow("today, evening") << u"16/11/2026 15:5=x"_s << 23 << false << true;
    QTest::newRow("tomorrow, morning") << u"17/11/2026 15:5=x"_s << 9 << false << true;
    QTest::newRow("tomorrow, noon") << u"17/11/2026 15:5=x"_s << 12 << true << false;
    QTest::newRow("tomorrow, early") << u"17/11/2026 0:1=x"_s << 23 << true << false;
    QTest::newRow("in two days") << u"18/11/2026 15:5=x"_s << 12 << false << true;
    QTest::newRow("yesterday, morning") << u"15/11/2026 15:5=x"_s << 9 << false << false;
    QTest::newRow("yesterday, evening") << u"15/11/2026 23:5=x"_s << 23 << false << false;
    QTest::newRow("dated permanent") << u"16/11/2026 15:5@x"_s << 9 << true << false;
    QTest::newRow("long time without a date") << u"15:05:30@x"_s << 9 << false << false;
    QTest::newRow("seven characters") << u"3:05 PM@x"_s << 9 << false << false;
    QTest::newRow("six characters") << u"3:05PM@x"_s << 9 << true << false;
    QTest::newRow("date alone") << u"16/11/2026=x"_s << 9 << true << false;
}

void tst_TimerFile::UsesLines() {
    QFETCH(QString, line);
    QFETCH(int, hour);
    const TimerLineUse use = UseOf(ParseTimerLine(line, 2026).value(), At(16, hour, 59));
    QTEST(use.Load, "load");
    QTEST(use.Defer, "defer");
}

void tst_TimerFile::FillsTimers_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("time");  // before its mark is placed
    QTest::addColumn<QString>("permanent");

    QTest::newRow("below 12") << u"3:5@x"_s << u"3:5"_s << u"P"_s;
    QTest::newRow("two digits") << u"09:30=x"_s << u"09:30"_s << QString();
    QTest::newRow("noon") << u"12:30@x"_s << u"0:30"_s << u"P"_s;
    QTest::newRow("afternoon") << u"15:5@x"_s << u"3:5"_s << u"P"_s;
    QTest::newRow("last minute") << u"23:59=x"_s << u"11:59"_s << QString();
    QTest::newRow("date, afternoon") << u"16/11/2026 15:5=x"_s << u"3:5"_s << QString();
    QTest::newRow("date, morning") << u"16/11/2026 09:30=x"_s << u"16/11/2026 09:30"_s << QString();
    QTest::newRow("both marks") << u"3:5@x=y"_s << u"3:5"_s << QString();
}

void tst_TimerFile::FillsTimers() {
    QFETCH(QString, line);
    const ClockTimer timer = Filled(line);
    QTEST(timer.TimerTime, "time");
    QTEST(timer.Permanent, "permanent");
    QVERIFY(timer.OnDial);
}

void tst_TimerFile::TakesMetaValues() {
    const ClockTimer timer = Filled(u"7x,Blue,.\\Sounds\\bell.wav,Log Off,40#15:5@Call"_s);
    QCOMPARE(timer.DisplayMinutes, u"7"_s);
    QCOMPARE(timer.MessageColour, 0xFF0000);
    QCOMPARE(timer.SoundFile, u".\\Sounds\\bell.wav"_s);
    QCOMPARE(timer.TimerAction, u"Log Off"_s);
    QCOMPARE(timer.MusicVolume, u"40"_s);
    QCOMPARE(timer.Message, u"Call"_s);
    QCOMPARE(Filled(u"2.5#15:5@x"_s).DisplayMinutes, u"2.5"_s);
    QCOMPARE(Filled(u"-3#15:5@x"_s).DisplayMinutes, u"-3"_s);
    QCOMPARE(Filled(u"soon,pink#15:5@x"_s).DisplayMinutes, u"0"_s);
    QCOMPARE(Filled(u"soon,pink#15:5@x"_s).MessageColour, 0);
    QCOMPARE(Filled(u"1,1193046#15:5@x"_s).MessageColour, 1193046);
}

void tst_TimerFile::KeepsValuesThatAreNotGiven() {
    FakeRandom random;
    ClockTimer timer{{}, {}, false, u"9"_s, u"old"_s, 77, u"a.wav"_s, u"None"_s, u"30"_s};
    FillTimer(ParseTimerLine(u"3:5@new"_s, 2026).value(), random, timer);
    QCOMPARE(timer.DisplayMinutes, u"0"_s);
    QCOMPARE(timer.Message, u"new"_s);
    QCOMPARE(timer.MessageColour, 77);
    QCOMPARE(timer.SoundFile, u"a.wav"_s);
    QCOMPARE(timer.TimerAction, u"None"_s);
    QCOMPARE(timer.MusicVolume, u"30"_s);
    FillTimer(ParseTimerLine(u"1,Red,#3:5@new"_s, 2026).value(), random, timer);
    QCOMPARE(timer.SoundFile, QString());
    QCOMPARE(timer.TimerAction, u"None"_s);
}

void tst_TimerFile::IgnoresASixthValue() {
    QCOMPARE(Filled(u"1,Red,a.wav,None,20,99#3:5@x"_s).MusicVolume, u"20"_s);
}

void tst_TimerFile::WritesLines_data() {
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("permanent");
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("line");

    const QString p = u"P"_s;
    QTest::newRow("permanent") << u"03:05"_s << p << 9 << u"5,Red,,None,0#15:5@Call home"_s;
    QTest::newRow("permanent, evening")
        << u"03:05"_s << p << 21 << u"5,Red,,None,0#15:5@Call home"_s;
    QTest::newRow("permanent noon") << u"12:30"_s << p << 9 << u"5,Red,,None,0#24:30@Call home"_s;
    QTest::newRow("permanent 13") << u"13:00"_s << p << 9 << u"5,Red,,None,0#25:0@Call home"_s;
    QTest::newRow("morning") << u"03:05"_s << QString() << 9
                             << u"5,Red,,None,0#16/11/2026 15:5=Call home"_s;
    QTest::newRow("morning 0") << u"00:30"_s << QString() << 0
                               << u"5,Red,,None,0#16/11/2026 12:30=Call home"_s;
    QTest::newRow("morning 12") << u"12:30"_s << QString() << 11
                                << u"5,Red,,None,0#16/11/2026 24:30=Call home"_s;
    QTest::newRow("morning 13") << u"13:30"_s << QString() << 11
                                << u"5,Red,,None,0#16/11/2026 13:30=Call home"_s;
    QTest::newRow("noon") << u"03:05"_s << QString() << 12
                          << u"5,Red,,None,0#17/11/2026 15:5=Call home"_s;
    QTest::newRow("afternoon 12") << u"12:30"_s << QString() << 18
                                  << u"5,Red,,None,0#17/11/2026 12:30=Call home"_s;
    QTest::newRow("afternoon 13") << u"13:30"_s << QString() << 18
                                  << u"5,Red,,None,0#17/11/2026 13:30=Call home"_s;
}

void tst_TimerFile::WritesLines() {
    QFETCH(QString, time);
    QFETCH(QString, permanent);
    QFETCH(int, hour);
    QTEST(TimerLineText(Timer(time, permanent), At(16, hour)), "line");
}

void tst_TimerFile::WritesNoTimeThatCannotBeRead() {
    ClockTimer spent = Timer({}, u"P"_s);
    spent.Message = u" Call = home "_s;
    const QString line = TimerLineText(spent, At(16, 9));
    QCOMPARE(line, u"5,Red,,None,0#@Call = home"_s);
    QVERIFY(!ParseTimerLine(line, 2026).has_value());
    const QString oneShot = TimerLineText(Timer(u"25:99"_s), At(16, 9));
    QCOMPARE(oneShot, u"5,Red,,None,0#=Call home"_s);
    QVERIFY(!ParseTimerLine(oneShot, 2026).has_value());
}

void tst_TimerFile::WritesOneLine() {
    ClockTimer timer = Timer(u"03:05"_s, u"P"_s);
    timer.Message = u"\r\nCall\r\nhome\nsoon\rnow\r\n"_s;
    timer.MessageColour = 0x123456;
    QCOMPARE(TimerLineText(timer, At(16, 9)), u"5,1193046,,None,0#15:5@Call home soon now"_s);
    timer.SoundFile = u"a\nb\r.wav"_s;
    QCOMPARE(TimerLineText(timer, At(16, 9)),
             u"5,1193046,a b .wav,None,0#15:5@Call home soon now"_s);
}

// The last minute of the year, and a leap day.
void tst_TimerFile::ReadsWhatItWrites() {
    const QDateTime eve(QDate(2026, 12, 31), QTime(23, 59), Qt::UTC);
    QCOMPARE(TimerLineText(Timer(u"00:10"_s), eve), u"5,Red,,None,0#01/01/2027 12:10=Call home"_s);
    const QDateTime leap(QDate(2028, 2, 28), QTime(13, 0), Qt::UTC);
    const QString line = TimerLineText(Timer(u"00:10"_s), leap);
    QCOMPARE(line, u"5,Red,,None,0#29/02/2028 12:10=Call home"_s);
    const TimerLine parsed = ParseTimerLine(line, 2028).value();
    QCOMPARE(UseOf(parsed, leap), (TimerLineUse{true, false}));
    QCOMPARE(UseOf(parsed, leap.addSecs(24 * 3600)), (TimerLineUse{false, true}));
    QCOMPARE(UseOf(parsed, leap.addSecs(20 * 3600)), (TimerLineUse{true, false}));
}

void tst_TimerFile::TellsWhatIsLost_data() {
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("permanent");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("lost");
    const QString atEquals = u"When the clock is closed, the message is cut at \"=\""_s;
    const QString atAt = u"When the clock is closed, the message is cut at \"@\""_s;
    const QString noon = u"A timer at 12:30 is kept no longer than its clock is open"_s;
    QTest::newRow("nothing") << u"03:05"_s << QString() << u" me@home #1, soon "_s << 9
                             << QString();
    QTest::newRow("nothing of a permanent one")
        << u"03:05"_s << u"P"_s << u"#1"_s << 9 << QString();
    QTest::newRow("line ends") << u"03:05"_s << QString() << u"a\r\nb"_s << 9 << QString();
    QTest::newRow("no message") << u"03:05"_s << QString() << QString() << 9 << QString();
    QTest::newRow("=") << u"03:05"_s << QString() << u"a=b"_s << 9 << atEquals;
    QTest::newRow("= alone") << u"03:05"_s << QString() << u"="_s << 9 << atEquals;
    QTest::newRow("= of a permanent one") << u"03:05"_s << u"P"_s << u"a=b"_s << 9 << atEquals;
    QTest::newRow("@ of a permanent one") << u"03:05"_s << u"P"_s << u"me@home"_s << 9 << atAt;
    QTest::newRow("twelve in the morning") << u"12:30"_s << QString() << u"a"_s << 9 << noon;
    QTest::newRow("twelve in the afternoon")
        << u"12:30"_s << QString() << u"a"_s << 13 << QString();
    QTest::newRow("permanent at twelve") << u"12:30"_s << u"P"_s << u"a"_s << 13 << noon;
}

void tst_TimerFile::TellsWhatIsLost() {
    QFETCH(QString, time);
    QFETCH(QString, permanent);
    QFETCH(QString, message);
    QFETCH(int, hour);
    ClockTimer timer = Timer(time, permanent);
    timer.Message = message;
    QTEST(WhatIsLost(timer, TimerLineText(timer, At(16, hour)), 2026), "lost");
}

void tst_TimerFile::TellsWhatBreaksALine() {
    QVERIFY(CanBeKept(QString()));
    QVERIFY(CanBeKept(u".\\SoundFiles\\Clock Tick.wav"_s));
    for (const QChar mark : u",#@="_s) {
        QVERIFY2(!CanBeKept(u"/sounds/a"_s + mark + u"b.wav"_s), qPrintable(QString(mark)));
    }
}

void tst_TimerFile::WritesALineForALaterDay() {
    ClockTimer timer = Timer(u"09:30"_s);
    timer.Message = u" Call\nhome "_s;
    const QString line = DeferredLineText(timer, QDate(2026, 11, 19));
    QCOMPARE(line, u"19/11/2026 09:30=Call home"_s);
    const TimerLine parsed = ParseTimerLine(line, 2026).value();
    QCOMPARE(UseOf(parsed, At(19, 9)), (TimerLineUse{true, false}));
    QCOMPARE(UseOf(parsed, At(17, 9)), (TimerLineUse{false, true}));
}

QTEST_APPLESS_MAIN(tst_TimerFile)
#include "tst_TimerFile.moc"
