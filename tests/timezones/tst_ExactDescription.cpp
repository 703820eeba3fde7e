#include <QTest>

#include "support/ExactMachine.h"
#include "timezones/ExactDescription.h"

using namespace Qt::StringLiterals;

class tst_ExactDescription : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PutsRulesIntoWords_data();
    void PutsRulesIntoWords();
    void DescribesAZone();
    void DescribesAZoneAhead();
    void DescribesAZoneWithoutChanges();
    void TellsDatesWhereThereIsNoRule();
    void TellsThatTheIdentifierIsLacking();
    void DescribesARecordByItsOwnRules();
};

void tst_ExactDescription::PutsRulesIntoWords_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* name, const char* id, const char* at, const QString& words) {
        QTest::newRow(name) << QString::fromLatin1(id) << QByteArray(at) << words;
    };
    row("second", "America/New_York", "2026-03-08T07:00:00", u"Second Sunday in March"_s);
    row("first", "America/New_York", "2026-11-01T06:00:00", u"First Sunday in November"_s);
    row("last", "Europe/London", "2026-03-29T01:00:00", u"Last Sunday in March"_s);
    row("last of a long month", "Europe/London", "2026-10-25T01:00:00",
        u"Last Sunday in October"_s);
    row("by its own clock", "Australia/Sydney", "2026-10-03T16:00:00",
        u"First Sunday in October"_s);
    row("another weekday", "Africa/Cairo", "2026-04-23T22:00:00", u"Last Friday in April"_s);
    row("the Friday before a Sunday", "Asia/Jerusalem", "2026-03-27T00:00:00", {});
    row("once", "Africa/Casablanca", "2026-02-15T02:00:00", {});
    row("of the past", "Europe/Moscow", "2010-03-27T23:00:00", {});
}

void tst_ExactDescription::PutsRulesIntoWords() {
    QFETCH(QString, id);
    QFETCH(QByteArray, at);
    QFETCH(QString, words);
    const ExactMachine machine("2026-06-15T12:00:00");
    QCOMPARE(mduTimeZones::RuleWords(machine.Services, id, ExactMachine::Instant(at), QLocale::c()),
             words);
}

void tst_ExactDescription::DescribesAZone() {
    const ExactMachine machine("2026-06-15T12:00:00");
    QCOMPARE(mduTimeZones::PresentDescription(machine.Services,
                                              machine.Record(u"America/New_York"_s), QLocale::c()),
             u"Standard Begins on First Sunday in November (01/11/2026) at 2:00:00, then 5 hour(s) "
             "behind Local Time\r\n"
             "Daylight Begins on Second Sunday in March (14/03/2027) at 2:00:00, then 4 hour(s) "
             "behind Local Time\r\n"
             "\r\n"
             "Daylight is 4 hour(s) before Greenwich Standard Time\r\n"
             "Standard is 5 hour(s) before Greenwich Standard Time\r\n"
             "\r\n"
             "Daylight is 5 hour(s) behind Local Time\r\n"
             "Exact rules of America/New_York"_s);
}

// A week that begins on Sunday shifts no name.
void tst_ExactDescription::DescribesAZoneAhead() {
    const ExactMachine machine("2026-06-15T12:00:00", "America/New_York");
    QCOMPARE(
        mduTimeZones::PresentDescription(machine.Services, machine.Record(u"Australia/Lord_Howe"_s),
                                         QLocale(QLocale::English, QLocale::UnitedStates)),
        u"Daylight Begins on First Sunday in October (04/10/2026) at 2:00:00, then 15 hour(s) "
        "ahead of Local Time\r\n"
        "Standard Begins on First Sunday in April (04/04/2027) at 2:00:00, then 14 hour(s) "
        "and 30 Minutes ahead of Local Time\r\n"
        "\r\n"
        "Standard is 10 hour(s) and 30 Minutes after Greenwich Standard Time\r\n"
        "Daylight is 11 hour(s) after Greenwich Standard Time\r\n"
        "\r\n"
        "Standard is 14 hour(s) and 30 Minutes ahead of Local Time\r\n"
        "Exact rules of Australia/Lord_Howe"_s);
}

void tst_ExactDescription::DescribesAZoneWithoutChanges() {
    const ExactMachine machine("2026-06-15T12:00:00", "Asia/Kolkata");
    QCOMPARE(mduTimeZones::PresentDescription(machine.Services, machine.Record(u"Asia/Kolkata"_s),
                                              QLocale::c()),
             u"\r\n"
             "Standard is 5 hour(s) and 30 Minutes after Greenwich Standard Time\r\n"
             "\r\n"
             "Standard is the same as Local Time\r\n"
             "Exact rules of Asia/Kolkata"_s);
}

// The clock that it is put to after the fast stays.
void tst_ExactDescription::TellsDatesWhereThereIsNoRule() {
    const ExactMachine machine("2026-02-01T12:00:00");
    const QString text = mduTimeZones::PresentDescription(
        machine.Services, machine.Record(u"Africa/Casablanca"_s), QLocale::c());
    QCOMPARE(text.section(u"\r\n"_s, 0, 1),
             u"Standard Begins on 15/02/2026 at 3:00:00, then the same as Local Time\r\n"
             "Standard Begins on 22/03/2026 at 2:00:00, then 1 hour(s) ahead of Local Time"_s);
}

void tst_ExactDescription::TellsThatTheIdentifierIsLacking() {
    const ExactMachine machine("2026-06-15T12:00:00", "UTC");
    TimeZoneRecord record;
    record.StandardName = u"Town"_s;
    record.LacksId = true;
    QCOMPARE(mduTimeZones::PresentDescription(machine.Services, record, QLocale::c()),
             u"\r\nTown is 0 hour(s) after Greenwich Standard Time\r\n\r\n"
             "Town is 0 hour(s)  later than Local Time\r\n\r\n"
             "The rules are those stored in its file: the time zone database has no identifier "
             "for it"_s);
}

void tst_ExactDescription::DescribesARecordByItsOwnRules() {
    const ExactMachine machine("2026-06-15T12:00:00", "UTC");
    TimeZoneRecord record;
    record.StandardName = u"Town"_s;
    QCOMPARE(mduTimeZones::PresentDescription(machine.Services, record, QLocale::c()),
             u"\r\nTown is 0 hour(s) after Greenwich Standard Time\r\n\r\n"
             "Town is 0 hour(s)  later than Local Time"_s);
}

QTEST_GUILESS_MAIN(tst_ExactDescription)
#include "tst_ExactDescription.moc"
