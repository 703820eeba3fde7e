#include <QTest>

#include "foundation/Dates.h"

using namespace Qt::StringLiterals;

class tst_Dates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsMoments_data();
    void readsMoments();
    void refusesOtherTexts_data();
    void refusesOtherTexts();
    void aTimeHasNoDate();
    void writesDates();
    void checksDates_data();
    void checksDates();
    void carriesParts();
};

void tst_Dates::readsMoments_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("moment");
    QTest::newRow("date") << u"25/03/2008"_s << u"25/03/2008 0:00:00"_s;
    QTest::newRow("short date") << u"5/3/2008"_s << u"05/03/2008 0:00:00"_s;
    QTest::newRow("present year") << u"5/3"_s << u"05/03/2026 0:00:00"_s;
    QTest::newRow("leap day") << u"29/2/2024"_s << u"29/02/2024 0:00:00"_s;
    QTest::newRow("early year") << u"1/1/100"_s << u"01/01/0100 0:00:00"_s;
    QTest::newRow("date and time") << u"25/03/2008 2:05:09"_s << u"25/03/2008 2:05:09"_s;
    QTest::newRow("several blanks") << u" 25/03/2008   14:05 "_s << u"25/03/2008 14:05:00"_s;
    QTest::newRow("present year and time") << u"5/3 1:02"_s << u"05/03/2026 1:02:00"_s;
    QTest::newRow("PM") << u"25/03/2008 2:05 PM"_s << u"25/03/2008 14:05:00"_s;
    QTest::newRow("noon") << u"25/03/2008 12:00 pm"_s << u"25/03/2008 12:00:00"_s;
    QTest::newRow("midnight") << u"25/03/2008 12:30AM"_s << u"25/03/2008 0:30:00"_s;
    QTest::newRow("hour of 24 before PM")
        << u"25/03/2008 15:05:00 PM"_s << u"25/03/2008 15:05:00"_s;
    QTest::newRow("hour of 24 before AM") << u"25/03/2008 00:05 AM"_s << u"25/03/2008 0:05:00"_s;
}

void tst_Dates::readsMoments() {
    QFETCH(QString, text);
    const auto parsed = mduAPILib::ParseMoment(text, 2026);
    QVERIFY(parsed);
    QVERIFY(parsed->HasDate);
    QCOMPARE(parsed->HasTime, text.contains(u':'));
    QCOMPARE(parsed->Moment.timeSpec(), Qt::UTC);
    QTEST(mduAPILib::MomentText(parsed->Moment), "moment");
}

void tst_Dates::refusesOtherTexts_data() {
    QTest::addColumn<QString>("text");
    for (const QString& text : {QString(),
                                u"  "_s,
                                u"abc"_s,
                                u"31/4/2008"_s,
                                u"29/2/2023"_s,
                                u"0/1/2008"_s,
                                u"1/13/2008"_s,
                                u"25.03.2008"_s,
                                u"25/03/08"_s,
                                u"25/03/10000"_s,
                                u"25/03/2008 "
                                "25:00"_s,
                                u"12:60"_s,
                                u"24:00"_s,
                                u"1:2:60"_s,
                                u"13:00 AM"_s,
                                u"12"_s,
                                u"12:"_s,
                                u"AM"_s,
                                u"25/03/2008x"_s,
                                u"25/03/200812:00"_s,
                                u"-1/3/2008"_s,
                                u"١/٣/٢٠٠٨"_s,
                                u"12:00 25/03/2008"_s,
                                u"1/2/3/4"_s}) {
        QTest::newRow(qPrintable(u"\""_s + text + u"\""_s)) << text;
    }
}

void tst_Dates::refusesOtherTexts() {
    QFETCH(QString, text);
    QVERIFY(!mduAPILib::ParseMoment(text, 2026));
}

void tst_Dates::aTimeHasNoDate() {
    const auto parsed = mduAPILib::ParseMoment(u"14:05:06"_s, 2026);
    QVERIFY(parsed);
    QVERIFY(!parsed->HasDate);
    QVERIFY(parsed->HasTime);
    QCOMPARE(parsed->Moment.time(), QTime(14, 5, 6));
    QVERIFY(!mduAPILib::ParseMoment(u"29/2"_s, 2026));
    QVERIFY(mduAPILib::ParseMoment(u"29/2"_s, 2024));
}

void tst_Dates::writesDates() {
    QCOMPARE(mduAPILib::ShortDate(QDate(2008, 3, 25)), u"25/03/2008"_s);
    QCOMPARE(mduAPILib::ShortDate(QDate(800, 12, 1)), u"01/12/0800"_s);
    QCOMPARE(mduAPILib::ShortDate(QDate()), QString());
    QCOMPARE(mduAPILib::MomentText(QDateTime(QDate(2008, 3, 25), QTime(9, 5, 7), Qt::UTC)),
             u"25/03/2008 9:05:07"_s);
}

void tst_Dates::checksDates_data() {
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("year");
    QTest::addColumn<bool>("valid");
    QTest::newRow("good") << 29 << 2 << 2024 << true;
    QTest::newRow("no leap year") << 29 << 2 << 2023 << false;
    QTest::newRow("day 0") << 0 << 1 << 2023 << false;
    QTest::newRow("month 13") << 1 << 13 << 2023 << false;
    QTest::newRow("first year") << 1 << 1 << 100 << true;
    QTest::newRow("before it") << 1 << 1 << 99 << false;
    QTest::newRow("last year") << 31 << 12 << 9999 << true;
    QTest::newRow("behind it") << 1 << 1 << 10000 << false;
    QTest::newRow("negative year") << 1 << 1 << -1 << false;
}

void tst_Dates::checksDates() {
    QFETCH(int, day);
    QFETCH(int, month);
    QFETCH(int, year);
    QTEST(mduAPILib::ValidDate(day, month, year).has_value(), "valid");
}

void tst_Dates::carriesParts() {
    const QDate date(2008, 12, 31);
    QCOMPARE(mduAPILib::MomentText(mduAPILib::MomentAt(date, 2, 3, 4)), u"31/12/2008 2:03:04"_s);
    QCOMPARE(mduAPILib::MomentText(mduAPILib::MomentAt(date, 24, 61, 61)), u"01/01/2009 1:02:01"_s);
    QCOMPARE(mduAPILib::MomentText(mduAPILib::MomentAt(date, -1, 0, 0)), u"30/12/2008 23:00:00"_s);
    QCOMPARE(mduAPILib::MomentAt(date, 0, 0, 0).timeSpec(), Qt::UTC);
}

QTEST_GUILESS_MAIN(tst_Dates)
#include "tst_Dates.moc"
