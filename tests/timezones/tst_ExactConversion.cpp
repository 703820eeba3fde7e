#include <QTest>

#include "support/ExactMachine.h"
#include "timezones/ExactConversion.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ConvertedTime;

class tst_ExactConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Converts_data();
    void Converts();
    void ShowsBothReadings_data();
    void ShowsBothReadings();
    void ConvertsByARecordsOwnRules();
    void NamesTheTime_data();
    void NamesTheTime();
};

void tst_ExactConversion::Converts_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("toZone");
    QTest::addColumn<ConvertedTime>("expected");
    const QString newYork = u"America/New_York"_s;
    const auto row = [](const char* name, const QString& id, const QString& text, bool toZone,
                        const ConvertedTime& expected) {
        QTest::newRow(name) << id << text << toZone << expected;
    };
    // It is 20 January; by the offset of the day July would be right and the spring weeks wrong.
    row("today", newYork, u"12:30"_s, true, {u"20/01/2026 7:30:00"_s});
    row("in the weeks of spring", newYork, u"15/03/2026 12:00"_s, true, {u"15/03/2026 8:00:00"_s});
    row("next July", newYork, u"15/07/2026 12:00"_s, true, {u"15/07/2026 7:00:00"_s});
    row("and back", newYork, u"15/07/2026 7:00"_s, false, {u"15/07/2026 12:00:00"_s});
    row("Sydney in January", u"Australia/Sydney"_s, u"15/01/2026 12:00"_s, true,
        {u"15/01/2026 23:00:00"_s});
    row("Sydney in July", u"Australia/Sydney"_s, u"15/07/2026 12:00"_s, true,
        {u"15/07/2026 21:00:00"_s});
    row("left out there", newYork, u"08/03/2026 2:30"_s, false,
        {.Text = u"does not exist"_s, .IsGap = true});
    row("left out here", newYork, u"29/03/2026 1:00:00"_s, true,
        {.Text = u"does not exist"_s, .IsGap = true});
    row("behind what is left out", newYork, u"29/03/2026 2:00:00"_s, true,
        {u"28/03/2026 21:00:00"_s});
    row("twice there", newYork, u"01/11/2026 1:30"_s, false,
        {u"01/11/2026 5:30:00"_s, {u"01/11/2026 5:30:00"_s, u"01/11/2026 6:30:00"_s}});
    row("twice here", newYork, u"25/10/2026 1:30"_s, true,
        {u"24/10/2026 20:30:00"_s, {u"24/10/2026 20:30:00"_s, u"24/10/2026 21:30:00"_s}});
    row("twice in both", u"Europe/Dublin"_s, u"25/10/2026 1:30"_s, true,
        {u"25/10/2026 1:30:00"_s, {u"25/10/2026 1:30:00"_s, u"25/10/2026 1:30:00"_s}});
    row("a day that was left out", u"Pacific/Apia"_s, u"30/12/2011 12:00"_s, false,
        {.Text = u"does not exist"_s, .IsGap = true});
    row("seconds", u"Africa/Monrovia"_s, u"01/06/1971 12:00"_s, false, {u"01/06/1971 12:44:30"_s});
    row("no time", newYork, u"noon"_s, true, {});
    row("the last year", newYork, u"31/12/9999 23:00"_s, true, {u"31/12/9999 18:00:00"_s});
    row("behind it", newYork, u"31/12/9999 23:00"_s, false, {});
}

void tst_ExactConversion::Converts() {
    QFETCH(QString, id);
    QFETCH(QString, text);
    QFETCH(bool, toZone);
    QFETCH(ConvertedTime, expected);
    const ExactMachine machine("2026-01-20T12:00:00");
    const ConvertedTime converted = mduTimeZones::ConvertTime(
        machine.Zones, text, toZone, machine.Record(id), machine.Services.Clock.Now());
    QCOMPARE(converted.Text, expected.Text);
    QCOMPARE(converted.Texts, expected.Texts);
    QCOMPARE(converted.IsGap, expected.IsGap);
}

void tst_ExactConversion::ShowsBothReadings_data() {
    QTest::addColumn<ConvertedTime>("converted");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("times");
    const auto row = [](const char* name, const ConvertedTime& converted, const QString& shown,
                        const QString& times) {
        QTest::newRow(name) << converted << shown << times;
    };
    row("one", {u"01/11/2026 5:30:00"_s}, u"01/11/2026 5:30:00"_s, u"01/11/2026 5:30:00"_s);
    row("in a day", {u"01/11/2026 5:30:00"_s, {u"01/11/2026 5:30:00"_s, u"01/11/2026 6:30:00"_s}},
        u"01/11/2026 5:30:00 or 6:30:00"_s, u"5:30:00 or 6:30:00"_s);
    row("over midnight",
        {u"31/10/2026 23:30:00"_s, {u"31/10/2026 23:30:00"_s, u"01/11/2026 0:30:00"_s}},
        u"31/10/2026 23:30:00 or 01/11/2026 0:30:00"_s, u"23:30:00 or 0:30:00"_s);
    row("the same", {u"25/10/2026 1:30:00"_s, {u"25/10/2026 1:30:00"_s, u"25/10/2026 1:30:00"_s}},
        u"25/10/2026 1:30:00"_s, u"25/10/2026 1:30:00"_s);
    row("none", {.Text = u"does not exist"_s, .IsGap = true}, u"does not exist"_s,
        u"does not exist"_s);
}

void tst_ExactConversion::ShowsBothReadings() {
    QFETCH(ConvertedTime, converted);
    QFETCH(QString, shown);
    QFETCH(QString, times);
    QCOMPARE(converted.Shown(), shown);
    QCOMPARE(converted.ShownAsTimes(), times);
}

void tst_ExactConversion::ConvertsByARecordsOwnRules() {
    const ExactMachine machine("2026-01-20T12:00:00");
    TimeZoneRecord record;
    record.HoursFromLocal = 5.5F;
    const ConvertedTime converted = mduTimeZones::ConvertTime(
        machine.Zones, u"29/03/2026 1:30"_s, true, record, machine.Services.Clock.Now());
    QCOMPARE(converted, (ConvertedTime{u"29/03/2026 7:00:00"_s}));
}

void tst_ExactConversion::NamesTheTime_data() {
    QTest::addColumn<QDateTime>("reading");
    QTest::addColumn<bool>("isZoneTime");
    QTest::addColumn<QString>("name");
    const auto at = [](int month, int day, int hour, int minute, int second) {
        return QDateTime(QDate(2026, month, day), QTime(hour, minute, second), Qt::UTC);
    };
    QTest::newRow("winter") << at(1, 1, 0, 0, 0) << false << u"Standard"_s;
    QTest::newRow("before, by the local clock") << at(3, 8, 6, 59, 59) << false << u"Standard"_s;
    QTest::newRow("behind, by the local clock") << at(3, 8, 7, 0, 0) << false << u"Daylight"_s;
    QTest::newRow("before, by its own") << at(3, 8, 1, 59, 59) << true << u"Standard"_s;
    QTest::newRow("left out") << at(3, 8, 2, 30, 0) << true << u"Daylight"_s;
    QTest::newRow("the earlier of two") << at(11, 1, 1, 30, 0) << true << u"Daylight"_s;
    QTest::newRow("behind them") << at(11, 1, 2, 0, 0) << true << u"Standard"_s;
}

void tst_ExactConversion::NamesTheTime() {
    QFETCH(QDateTime, reading);
    QFETCH(bool, isZoneTime);
    QFETCH(QString, name);
    const ExactMachine machine("2026-06-15T12:00:00");
    QCOMPARE(mduTimeZones::ExactNameAt(machine.Zones, machine.Record(u"America/New_York"_s),
                                       reading, isZoneTime),
             name);
}

QTEST_GUILESS_MAIN(tst_ExactConversion)
#include "tst_ExactConversion.moc"
