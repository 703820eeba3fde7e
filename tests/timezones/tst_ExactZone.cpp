#include <QTest>

#include "support/ExactMachine.h"
#include "timezones/ExactZone.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ExactZone;

namespace {

QDateTime Reading(int year, int month, int day, int hour, int minute, int second = 0) {
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

}  // namespace

class tst_ExactZone : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsInstants_data();
    void FindsInstants();
    void TakesOneInstant_data();
    void TakesOneInstant();
    void ReadsItsClock();
    void TellsTheNextChange_data();
    void TellsTheNextChange();
    void KnowsOfNoChange();
    void IsGmtWithoutAZone();
};

void tst_ExactZone::FindsInstants_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QDateTime>("reading");
    QTest::addColumn<QByteArrayList>("instants");
    using Instants = QByteArrayList;
    const QString newYork = u"America/New_York"_s;
    QTest::newRow("winter") << newYork << Reading(2026, 1, 15, 12, 0)
                            << Instants{"2026-01-15T17:00:00"};
    QTest::newRow("before the gap")
        << newYork << Reading(2026, 3, 8, 1, 59, 59) << Instants{"2026-03-08T06:59:59"};
    QTest::newRow("the gap's first") << newYork << Reading(2026, 3, 8, 2, 0) << Instants{};
    QTest::newRow("the gap's last") << newYork << Reading(2026, 3, 8, 2, 59, 59) << Instants{};
    QTest::newRow("behind the gap")
        << newYork << Reading(2026, 3, 8, 3, 0) << Instants{"2026-03-08T07:00:00"};
    QTest::newRow("before the repeated hour")
        << newYork << Reading(2026, 11, 1, 0, 59, 59) << Instants{"2026-11-01T04:59:59"};
    QTest::newRow("its first second") << newYork << Reading(2026, 11, 1, 1, 0)
                                      << Instants{"2026-11-01T05:00:00", "2026-11-01T06:00:00"};
    QTest::newRow("its last second") << newYork << Reading(2026, 11, 1, 1, 59, 59)
                                     << Instants{"2026-11-01T05:59:59", "2026-11-01T06:59:59"};
    QTest::newRow("behind it") << newYork << Reading(2026, 11, 1, 2, 0)
                               << Instants{"2026-11-01T07:00:00"};
    QTest::newRow("half an hour twice") << u"Australia/Lord_Howe"_s << Reading(2026, 4, 5, 1, 45)
                                        << Instants{"2026-04-04T14:45:00", "2026-04-04T15:15:00"};
    QTest::newRow("half an hour left out")
        << u"Australia/Lord_Howe"_s << Reading(2026, 10, 4, 2, 15) << Instants{};
    QTest::newRow("a day left out")
        << u"Pacific/Apia"_s << Reading(2011, 12, 30, 12, 0) << Instants{};
    QTest::newRow("the day before") << u"Pacific/Apia"_s << Reading(2011, 12, 29, 23, 59, 59)
                                    << Instants{"2011-12-30T09:59:59"};
    QTest::newRow("the day behind")
        << u"Pacific/Apia"_s << Reading(2011, 12, 31, 0, 0) << Instants{"2011-12-30T10:00:00"};
    QTest::newRow("the far east") << u"Pacific/Kiritimati"_s << Reading(2026, 1, 1, 0, 0)
                                  << Instants{"2025-12-31T10:00:00"};
    QTest::newRow("by the stars") << u"Africa/Monrovia"_s << Reading(1971, 6, 1, 0, 0)
                                  << Instants{"1971-06-01T00:44:30"};
    QTest::newRow("the machine's own") << QString() << Reading(2026, 10, 25, 1, 30)
                                       << Instants{"2026-10-25T00:30:00", "2026-10-25T01:30:00"};
}

void tst_ExactZone::FindsInstants() {
    QFETCH(QString, id);
    QFETCH(QDateTime, reading);
    QFETCH(QByteArrayList, instants);
    const ExactMachine machine("2026-06-15T12:00:00");
    std::vector<qint64> expected;
    for (const QByteArray& instant : instants) {
        expected.push_back(ExactMachine::Instant(instant));
    }
    QCOMPARE(ExactZone(machine.Zones, id).InstantsOf(reading), expected);
}

void tst_ExactZone::TakesOneInstant_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QDateTime>("reading");
    QTest::addColumn<QByteArray>("instant");
    QTest::newRow("of two the earlier") << u"America/New_York"_s << Reading(2026, 11, 1, 1, 30)
                                        << QByteArray("2026-11-01T05:30:00");
    QTest::newRow("in the gap") << u"America/New_York"_s << Reading(2026, 3, 8, 2, 0)
                                << QByteArray("2026-03-08T07:00:00");
    QTest::newRow("at its end") << u"America/New_York"_s << Reading(2026, 3, 8, 2, 59, 59)
                                << QByteArray("2026-03-08T07:59:59");
    QTest::newRow("a day left out")
        << u"Pacific/Apia"_s << Reading(2011, 12, 30, 12, 0) << QByteArray("2011-12-30T22:00:00");
}

void tst_ExactZone::TakesOneInstant() {
    QFETCH(QString, id);
    QFETCH(QDateTime, reading);
    QFETCH(QByteArray, instant);
    const ExactMachine machine("2026-06-15T12:00:00");
    QCOMPARE(ExactZone(machine.Zones, id).InstantOf(reading), ExactMachine::Instant(instant));
}

void tst_ExactZone::ReadsItsClock() {
    const ExactMachine machine("2026-06-15T12:00:00");
    const ExactZone zone(machine.Zones, u"America/New_York"_s);
    QCOMPARE(zone.ReadingAt(ExactMachine::Instant("2026-03-08T06:59:59")),
             Reading(2026, 3, 8, 1, 59, 59));
    QCOMPARE(zone.ReadingAt(ExactMachine::Instant("2026-03-08T07:00:00")),
             Reading(2026, 3, 8, 3, 0));
}

void tst_ExactZone::TellsTheNextChange_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("autumn") << u"America/New_York"_s << QByteArray("2026-03-08T07:00:00")
                            << QByteArray("2026-11-01T06:00:00") << -14400 << -18000;
    QTest::newRow("spring") << u"America/New_York"_s << QByteArray("2026-03-08T06:59:59")
                            << QByteArray("2026-03-08T07:00:00") << -18000 << -14400;
    QTest::newRow("the end of the fast")
        << u"Africa/Casablanca"_s << QByteArray("2026-02-15T02:00:00")
        << QByteArray("2026-03-22T02:00:00") << 0 << 3600;
    QTest::newRow("behind the list") << u"Europe/London"_s << QByteArray("2037-10-25T01:00:00")
                                     << QByteArray("2038-03-28T01:00:00") << 0 << 3600;
}

void tst_ExactZone::TellsTheNextChange() {
    QFETCH(QString, id);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, at);
    QFETCH(int, before);
    QFETCH(int, after);
    const ExactMachine machine("2026-06-15T12:00:00");
    const auto change = ExactZone(machine.Zones, id).NextChange(ExactMachine::Instant(from));
    QVERIFY(change);
    QCOMPARE(change->At, ExactMachine::Instant(at));
    QCOMPARE(change->Before.Offset, before);
    QCOMPARE(change->After.Offset, after);
}

void tst_ExactZone::KnowsOfNoChange() {
    const ExactMachine machine("2026-06-15T12:00:00");
    const ExactZone kolkata(machine.Zones, u"Asia/Kolkata"_s);
    QVERIFY(!kolkata.NextChange(ExactMachine::Instant("2026-06-15T12:00:00")));
    const ExactZone moscow(machine.Zones, u"Europe/Moscow"_s);
    QVERIFY(!moscow.NextChange(ExactMachine::Instant("2014-10-25T22:00:00")));
}

void tst_ExactZone::IsGmtWithoutAZone() {
    const ExactMachine machine("2026-06-15T12:00:00");
    const ExactZone zone(machine.Zones, u"Mars/Phobos"_s);
    QCOMPARE(zone.At(0), platform::ZoneSpan());
    QCOMPARE(zone.ReadingAt(0), Reading(1970, 1, 1, 0, 0));
}

QTEST_GUILESS_MAIN(tst_ExactZone)
#include "tst_ExactZone.moc"
