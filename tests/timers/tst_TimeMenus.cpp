#include <QTest>
#include <limits>

#include "timers/TimeMenus.h"

using namespace Qt::StringLiterals;

class tst_TimeMenus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnHourHasTwelveSteps() {
        QCOMPARE(
            timers::FillTimeMenu(u"3"_s, 2026),
            QStringList({u"03:00"_s, u"03:05"_s, u"03:10"_s, u"03:15"_s, u"03:20"_s, u"03:25"_s,
                         u"03:30"_s, u"03:35"_s, u"03:40"_s, u"03:45"_s, u"03:50"_s, u"03:55"_s}));
    }

    void ASpotHasTwelveMinutes() {
        QCOMPARE(
            timers::FillTimeMenu(u"3:12"_s, 2026),
            QStringList({u"03:12"_s, u"03:13"_s, u"03:14"_s, u"03:15"_s, u"03:16"_s, u"03:17"_s,
                         u"03:18"_s, u"03:19"_s, u"03:20"_s, u"03:21"_s, u"03:22"_s, u"03:23"_s}));
    }

    void Ends_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("spot of twelve o'clock") << u"12:00"_s << u"12:00"_s << u"12:11"_s;
        QTest::newRow("last spot") << u"11:48"_s << u"11:48"_s << u"11:59"_s;
        QTest::newRow("over midnight") << u"23:55"_s << u"23:55"_s << u"00:06"_s;
        QTest::newRow("afternoon") << u"3:12 PM"_s << u"15:12"_s << u"15:23"_s;
        QTest::newRow("with seconds") << u"9:05:59"_s << u"09:05"_s << u"09:16"_s;
        QTest::newRow("blanks") << u"  7 "_s << u"07:00"_s << u"07:55"_s;
        QTest::newRow("zero") << u"0"_s << u"00:00"_s << u"00:55"_s;
        QTest::newRow("date") << u"16/11/2026"_s << u"00:00"_s << u"00:55"_s;
        QTest::newRow("date without a year") << u"16/11"_s << u"00:00"_s << u"00:55"_s;
        QTest::newRow("date and time") << u"16/11/2026 9:30"_s << u"09:30"_s << u"09:41"_s;
    }

    void Ends() {
        QFETCH(QString, text);
        const QStringList captions = timers::FillTimeMenu(text, 2026);
        QCOMPARE(captions.size(), 12);
        QTEST(captions.first(), "first");
        QTEST(captions.last(), "last");
    }

    void NoTimes_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks") << u"  "_s;
        QTest::newRow("word") << u"noon"_s;
        QTest::newRow("hour 24") << u"24"_s;
        QTest::newRow("minute 60") << u"3:60"_s;
        QTest::newRow("negative") << u"-3"_s;
        QTest::newRow("fraction") << u"3.5"_s;
        QTest::newRow("no date") << u"31/2/2026"_s;
    }

    void NoTimes() {
        QFETCH(QString, text);
        QCOMPARE(timers::FillTimeMenu(text, 2026), QStringList());
    }

    void Minutes() {
        QCOMPARE(timers::FillMinutesMenu(5),
                 QStringList({u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s,
                              u"13"_s, u"14"_s, u"15"_s, u"16"_s}));
        QCOMPARE(timers::FillMinutesMenu(-3).last(), u"8"_s);
        QCOMPARE(timers::FillMinutesMenu(std::numeric_limits<int>::max()).last(), u"2147483658"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TimeMenus)
#include "tst_TimeMenus.moc"
