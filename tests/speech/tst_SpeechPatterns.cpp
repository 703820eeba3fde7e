#include "speech/SpeechPatterns.h"

#include <QLocale>
#include <QTest>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using namespace speech;

namespace {

QDateTime At(int day, int hour, int minute, int second) {
    return QDateTime(QDate(2026, 6, day), QTime(hour, minute, second), Qt::UTC);
}

}  // namespace

class tst_SpeechPatterns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void TellsPastAndTo_data();
    void TellsPastAndTo();
    void ExpandsTokens_data();
    void ExpandsTokens();
    void TakesTheUsersLongDate();
    void IsOffByThreeValues_data();
    void IsOffByThreeValues();
    void FindsThePattern_data();
    void FindsThePattern();
    void FindsThePatternInTheFirstRow();
    void IsDueByKind_data();
    void IsDueByKind();
    void IsDueAtAllMomentsOfADay();
    void CountsDaysOfTheMonth();
};

void tst_SpeechPatterns::TellsPastAndTo_data() {
    QTest::addColumn<int>("hour");
    QTest::addColumn<int>("minute");
    QTest::addColumn<QString>("text");
    QTest::newRow("full") << 15 << 0 << u"3 O'Clock "_s;
    QTest::newRow("midnight") << 0 << 0 << u"12 O'Clock "_s;
    QTest::newRow("noon") << 12 << 0 << u"12 O'Clock "_s;
    QTest::newRow("one") << 1 << 0 << u"1 O'Clock "_s;
    QTest::newRow("one at noon") << 13 << 0 << u"1 O'Clock "_s;
    QTest::newRow("ten past") << 15 << 10 << u"10 Past 3"_s;
    QTest::newRow("a minute past midnight") << 0 << 1 << u"1 Past 12"_s;
    QTest::newRow("quarter past") << 15 << 15 << u" Quarter  Past 3"_s;
    QTest::newRow("29 past") << 15 << 29 << u"29 Past 3"_s;
    QTest::newRow("half past") << 15 << 30 << u" Half  Past 3"_s;
    QTest::newRow("29 to") << 15 << 31 << u"29 To 4"_s;
    QTest::newRow("quarter to") << 15 << 45 << u" Quarter  To 4"_s;
    QTest::newRow("ten to") << 15 << 50 << u"10 To 4"_s;
    QTest::newRow("a minute to noon") << 11 << 59 << u"1 To 12"_s;
    QTest::newRow("over noon") << 12 << 40 << u"20 To 1"_s;
    QTest::newRow("ten to one") << 12 << 50 << u"10 To 1"_s;
    QTest::newRow("quarter to midnight") << 23 << 45 << u" Quarter  To 12"_s;
    QTest::newRow("half past midnight") << 0 << 30 << u" Half  Past 12"_s;
    QTest::newRow("after midnight") << 0 << 40 << u"20 To 1"_s;
}

void tst_SpeechPatterns::TellsPastAndTo() {
    QFETCH(int, hour);
    QFETCH(int, minute);
    QTEST(ExpandPattern(At(15, hour, minute, 9), u"<Past/To>"_s, QString()), "text");
}

// Monday, 15 June 2026, 15:05:09
void tst_SpeechPatterns::ExpandsTokens_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("no token") << u"Hello, 5 < 6"_s << u"Hello, 5 < 6"_s;
    QTest::newRow("sentence") << u"The time is <Past/To> in <Location>"_s
                              << u"The time is 5 Past 3 in Pacific Standard Time"_s;
    QTest::newRow("short time") << u"<ShortTime>"_s << u"15:05"_s;
    QTest::newRow("long time") << u"<LongTime>"_s << u"15:05:09"_s;
    QTest::newRow("short date") << u"<ShortDate>"_s << u"15/06/2026"_s;
    QTest::newRow("minute") << u"<Minute>"_s << u"5"_s;
    QTest::newRow("second") << u"<Second>"_s << u"9"_s;
    QTest::newRow("long date") << u"<LongDate>"_s << u"Monday, 15 June 2026"_s;
    QTest::newRow("all") << u"<LongDate>|<Second>|<Minute>|<ShortDate>|<LongTime>|<ShortTime>"
                            "|<Location>|<Past/To>"_s
                         << u"Monday, 15 June 2026|9|5|15/06/2026|15:05:09|15:05"
                            "|Pacific Standard Time|5 Past 3"_s;
    QTest::newRow("twice") << u"<Location> and <Location>"_s
                           << u"Pacific Standard Time and <Location>"_s;
    QTest::newRow("past twice") << u"<Past/To>, <Past/To>"_s << u"5 Past 3, <Past/To>"_s;
    QTest::newRow("letter case") << u"<minute> <MINUTE> <past/to>"_s
                                 << u"<minute> <MINUTE> <past/to>"_s;
    QTest::newRow("unknown") << u"<Hour>"_s << u"<Hour>"_s;
    QTest::newRow("blank inside") << u"< Minute>"_s << u"< Minute>"_s;
    QTest::newRow("nested") << u"<<Minute>>"_s << u"<5>"_s;
}

void tst_SpeechPatterns::ExpandsTokens() {
    QFETCH(QString, pattern);
    QTEST(ExpandPattern(At(15, 15, 5, 9), pattern, u"Pacific Standard Time"_s), "text");
}

void tst_SpeechPatterns::TakesTheUsersLongDate() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString text = ExpandPattern(At(15, 0, 0, 0), u"<LongDate> <ShortDate>"_s, QString());
    QLocale::setDefault(QLocale::c());
    QCOMPARE(text, u"Montag, 15. Juni 2026 15/06/2026"_s);
}

void tst_SpeechPatterns::IsOffByThreeValues_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("off");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("blank") << u"  "_s << true;
    QTest::newRow("zero") << u"0"_s << true;
    QTest::newRow("none") << u"None"_s << true;
    QTest::newRow("other case") << u"none"_s << false;
    QTest::newRow("one") << u"1"_s << false;
    QTest::newRow("text") << u"None of it"_s << false;
}

void tst_SpeechPatterns::IsOffByThreeValues() {
    QFETCH(QString, value);
    QTEST(IsSwitchedOff(value), "off");
}

void tst_SpeechPatterns::FindsThePattern_data() {
    using Keys = QList<std::pair<QString, QString>>;
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("period");
    const QString key = u"Speech Minute Pattern"_s;
    QTest::newRow("no key") << Keys{} << QString() << 0;
    QTest::newRow("plain") << Keys{{key, u"now"_s}} << u"now"_s << 1;
    QTest::newRow("choices behind it") << Keys{{key, u"now,None,later"_s}} << u"now"_s << 1;
    QTest::newRow("plain off") << Keys{{key, u"None,None,later"_s}} << QString() << 0;
    QTest::newRow("numbered") << Keys{{key, u"None"_s}, {key + u"15"_s, u"quarter"_s}}
                              << u"quarter"_s << 15;
    QTest::newRow("numbered without the plain key")
        << Keys{{key + u"15"_s, u"quarter"_s}} << u"quarter"_s << 15;
    QTest::newRow("plain goes first")
        << Keys{{key + u"15"_s, u"quarter"_s}, {key, u"now"_s}} << u"now"_s << 1;
    QTest::newRow("lowest number")
        << Keys{{key + u"30"_s, u"half"_s}, {key + u"5"_s, u"five"_s}} << u"five"_s << 5;
    QTest::newRow("lowest that is on")
        << Keys{{key + u"5"_s, u"0"_s}, {key + u"30"_s, u"half"_s}} << u"half"_s << 30;
    QTest::newRow("number 1") << Keys{{key + u"1"_s, u"one"_s}} << u"one"_s << 1;
    QTest::newRow("number 60") << Keys{{key + u"60"_s, u"last"_s}} << u"last"_s << 60;
    QTest::newRow("number 61") << Keys{{key + u"61"_s, u"beyond"_s}} << QString() << 0;
    QTest::newRow("number with a blank") << Keys{{key + u" 5"_s, u"five"_s}} << QString() << 0;
    QTest::newRow("another kind") << Keys{{u"Speech Hour Pattern"_s, u"hour"_s}} << QString() << 0;
    QTest::newRow("letter case") << Keys{{u"speech minute pattern"_s, u"now"_s}} << u"now"_s << 1;
}

void tst_SpeechPatterns::FindsThePattern() {
    using Keys = QList<std::pair<QString, QString>>;
    QFETCH(Keys, keys);
    ClockProperties properties;
    for (const auto& [key, value] : keys) {
        mduLib::PutPropertyRaw(key, value, properties, u"Speech"_s);
    }
    const SpeechPattern pattern = PatternOfKind(MinutePattern, properties);
    QTEST(pattern.Text, "text");
    QTEST(pattern.Period, "period");
}

void tst_SpeechPatterns::FindsThePatternInTheFirstRow() {
    ClockProperties properties;
    properties.Resize(2);
    properties[1] = {u"Speech"_s, u"Speech Minute Pattern"_s, u"now"_s};
    properties[2] = {u"Clock"_s, u"Clocks"_s, u"Digital"_s};
    QCOMPARE(PatternOfKind(MinutePattern, properties).Text, u"now"_s);
    std::swap(properties[1], properties[2]);
    QCOMPARE(PatternOfKind(MinutePattern, properties).Text, u"now"_s);
}

void tst_SpeechPatterns::IsDueByKind_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("period");
    QTest::addColumn<QDateTime>("moment");
    QTest::addColumn<bool>("due");
    QTest::newRow("each second") << 1 << 1 << At(15, 3, 4, 59) << true;
    QTest::newRow("second 20 of 10") << 1 << 10 << At(15, 3, 4, 20) << true;
    QTest::newRow("second 21 of 10") << 1 << 10 << At(15, 3, 4, 21) << false;
    QTest::newRow("second 0 of 60") << 1 << 60 << At(15, 3, 4, 0) << true;
    QTest::newRow("second 59 of 60") << 1 << 60 << At(15, 3, 4, 59) << false;
    QTest::newRow("minute") << 2 << 1 << At(15, 3, 4, 0) << true;
    QTest::newRow("minute a second late") << 2 << 1 << At(15, 3, 4, 1) << false;
    QTest::newRow("minute 45 of 15") << 2 << 15 << At(15, 3, 45, 0) << true;
    QTest::newRow("minute 46 of 15") << 2 << 15 << At(15, 3, 46, 0) << false;
    QTest::newRow("hour") << 3 << 1 << At(15, 3, 0, 0) << true;
    QTest::newRow("hour at a minute") << 3 << 1 << At(15, 3, 1, 0) << false;
    QTest::newRow("hour at a second") << 3 << 1 << At(15, 3, 0, 1) << false;
    QTest::newRow("hour 18 of 6") << 3 << 6 << At(15, 18, 0, 0) << true;
    QTest::newRow("hour 17 of 6") << 3 << 6 << At(15, 17, 0, 0) << false;
    QTest::newRow("hour 0 of 6") << 3 << 6 << At(15, 0, 0, 0) << true;
    QTest::newRow("day") << 4 << 1 << At(15, 0, 0, 0) << true;
    QTest::newRow("day at one") << 4 << 1 << At(15, 1, 0, 0) << false;
    QTest::newRow("day at a minute") << 4 << 1 << At(15, 0, 1, 0) << false;
    QTest::newRow("day at a second") << 4 << 1 << At(15, 0, 0, 1) << false;
    QTest::newRow("day 14 of 7") << 4 << 7 << At(14, 0, 0, 0) << true;
    QTest::newRow("day 15 of 7") << 4 << 7 << At(15, 0, 0, 0) << false;
    QTest::newRow("off") << 2 << 0 << At(15, 3, 0, 0) << false;
    QTest::newRow("no moment") << 1 << 1 << QDateTime() << false;
    QTest::newRow("no kind") << 5 << 1 << At(15, 0, 0, 0) << false;
}

void tst_SpeechPatterns::IsDueByKind() {
    QFETCH(int, kind);
    QFETCH(int, period);
    QFETCH(QDateTime, moment);
    QTEST(IsDue({u"text"_s, period}, kind, moment), "due");
}

void tst_SpeechPatterns::IsDueAtAllMomentsOfADay() {
    QStringList due;
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        const QDateTime moment = At(15, 0, 0, 0).addSecs(second);
        if (IsDue({u"text"_s, 6}, HourPattern, moment)) {
            due += moment.time().toString(u"hh:mm:ss"_s);
        }
    }
    QCOMPARE(due, QStringList({u"00:00:00"_s, u"06:00:00"_s, u"12:00:00"_s, u"18:00:00"_s}));
}

// From the 30th of a month of 31 days it is three days to the next even day.
void tst_SpeechPatterns::CountsDaysOfTheMonth() {
    QStringList due;
    for (int day = 0; day < 6; ++day) {
        const QDateTime moment(QDate(2026, 7, 29).addDays(day), QTime(0, 0), Qt::UTC);
        if (IsDue({u"text"_s, 2}, DayPattern, moment)) {
            due += moment.date().toString(u"d/M"_s);
        }
    }
    QCOMPARE(due, QStringList({u"30/7"_s, u"2/8"_s}));
}

QTEST_GUILESS_MAIN(tst_SpeechPatterns)
#include "tst_SpeechPatterns.moc"
