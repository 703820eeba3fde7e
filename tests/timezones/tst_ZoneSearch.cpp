#include <QTest>

#include "timezones/ZoneSearch.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;

namespace {

TimeZoneRecord Record(const QString& name, const QString& display, float hoursWest) {
    TimeZoneRecord record;
    record.StandardName = name;
    record.DisplayName = display;
    record.CurrentGMTHours = hoursWest;
    return record;
}

}  // namespace

class tst_ZoneSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Folds_data();
    void Folds();
    void Finds_data();
    void Finds();
    void GreenwichHasBothSigns();
    void RanksMatches_data();
    void RanksMatches();
};

void tst_ZoneSearch::Folds_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("folded");
    QTest::newRow("accents") << u"São Tomé"_s << u"sao tome"_s;
    QTest::newRow("letters of their own") << u"Łódź, Tromsø"_s << u"lodz, tromso"_s;
    QTest::newRow("dotless") << u"Iğdır, İzmir"_s << u"igdir, izmir"_s;
    QTest::newRow("quotes") << u"St. John\u2019s"_s << u"st. john's"_s;
    QTest::newRow("plain") << u"UTC-11"_s << u"utc-11"_s;
}

void tst_ZoneSearch::Folds() {
    QFETCH(QString, text);
    QTEST(FoldForSearch(text), "folded");
}

void tst_ZoneSearch::Finds_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("found");
    QTest::newRow("nothing typed") << QString() << true;
    QTest::newRow("blanks") << u"   "_s << true;
    QTest::newRow("name") << u"india"_s << true;
    QTest::newRow("part of a name") << u"NDIA STAN"_s << true;
    QTest::newRow("city") << u"Mumbai"_s << true;
    QTest::newRow("country") << u"sri lanka"_s << true;
    QTest::newRow("words in any order") << u"time mumbai"_s << true;
    QTest::newRow("one word that is not there") << u"india paris"_s << false;
    QTest::newRow("offset") << u"+5:30"_s << true;
    QTest::newRow("offset with a zero") << u"+05:30"_s << true;
    QTest::newRow("offset of GMT") << u"gmt+5:30"_s << true;
    QTest::newRow("offset of UTC") << u"UTC+05:30"_s << true;
    QTest::newRow("the beginning of an offset") << u"gmt+5"_s << true;
    QTest::newRow("another offset") << u"+6:30"_s << false;
    QTest::newRow("the other sign") << u"-5:30"_s << false;
}

void tst_ZoneSearch::Finds() {
    QFETCH(QString, typed);
    const QString text =
        ZoneSearchText(Record(u"India Standard Time"_s, u"(GMT+05:30) Mumbai, Delhi"_s, -5.5F),
                       {u"India"_s, u"Sri Lanka"_s});
    QTEST(IsFound(text, SearchWords(typed)), "found");
}

void tst_ZoneSearch::GreenwichHasBothSigns() {
    const QString text = ZoneSearchText(Record(u"UTC"_s, u"Universal"_s, 0), {});
    QVERIFY(IsFound(text, {u"gmt+0:00"_s}));
    QVERIFY(IsFound(text, {u"gmt-00:00"_s}));
    QVERIFY(!IsFound(text, {u"1:00"_s}));
}

void tst_ZoneSearch::RanksMatches_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("display");
    QTest::addColumn<int>("rank");
    const QString eastern = u"Eastern Standard Time"_s;
    const QString cities = u"(GMT-05:00) New York, Toronto"_s;
    QTest::newRow("the name") << u"new york"_s << u"New York"_s << u"(GMT-05:00) New York"_s << 0;
    QTest::newRow("accents aside") << u"sao paulo"_s << u"S\u00E3o Paulo"_s << QString() << 0;
    QTest::newRow("a word at its beginning")
        << u"tokyo"_s << u"Tokyo Standard Time"_s << QString() << 1;
    QTest::newRow("its beginning") << u"india"_s << u"Indianapolis"_s << QString() << 2;
    QTest::newRow("a later word") << u"york"_s << u"New York"_s << QString() << 3;
    QTest::newRow("a city of the zone") << u"new york"_s << eastern << cities << 4;
    QTest::newRow("the middle of a word") << u"ork"_s << u"New York"_s << cities << 5;
    QTest::newRow("words in another order") << u"york new"_s << u"New York"_s << cities << 5;
}

void tst_ZoneSearch::RanksMatches() {
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QFETCH(QString, display);
    QTEST(MatchRank(name, display, SearchWords(typed)), "rank");
}

QTEST_GUILESS_MAIN(tst_ZoneSearch)
#include "tst_ZoneSearch.moc"
