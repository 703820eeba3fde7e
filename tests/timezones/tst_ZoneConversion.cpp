#include <QTest>

#include "timezones/ZoneConversion.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ConvertZoneTime;

namespace {

TimeZoneRecord ZoneAt(float hoursFromLocal) {
    TimeZoneRecord record;
    record.HoursFromLocal = hoursFromLocal;
    return record;
}

const QDateTime Now(QDate(2026, 6, 15), QTime(12, 0, 0), Qt::UTC);

}  // namespace

class tst_ZoneConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Converts_data();
    void Converts();
    void LeavesInvalidTextsEmpty_data();
    void LeavesInvalidTextsEmpty();
    void TellsMoments();
    void TellsLocalMoments();
};

void tst_ZoneConversion::Converts_data() {
    QTest::addColumn<float>("hours");
    QTest::addColumn<bool>("toZone");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("converted");
    QTest::newRow("19800 seconds")
        << 5.5F << true << u"15/06/2026 12:00:00"_s << u"15/06/2026 17:30:00"_s;
    QTest::newRow("and back") << 5.5F << false << u"15/06/2026 17:30:00"_s
                              << u"15/06/2026 12:00:00"_s;
    QTest::newRow("three quarters")
        << 5.75F << true << u"15/06/2026 12:00:07"_s << u"15/06/2026 17:45:07"_s;
    QTest::newRow("west") << -9.5F << true << u"15/06/2026 12:00:00"_s << u"15/06/2026 2:30:00"_s;
    QTest::newRow("back from the west")
        << -9.5F << false << u"15/06/2026 2:30:00"_s << u"15/06/2026 12:00:00"_s;
    QTest::newRow("a time of today") << 1.0F << true << u"12:30"_s << u"15/06/2026 13:30:00"_s;
    QTest::newRow("with blanks") << 1.0F << true << u"  12:30:09  "_s << u"15/06/2026 13:30:09"_s;
    QTest::newRow("afternoon") << 1.0F << true << u"3:15 PM"_s << u"15/06/2026 16:15:00"_s;
    QTest::newRow("a date") << 1.0F << true << u"15/06/2026"_s << u"15/06/2026 1:00:00"_s;
    QTest::newRow("a date of this year")
        << 1.0F << true << u"3/4 10:00"_s << u"03/04/2026 11:00:00"_s;
    QTest::newRow("day before month")
        << 0.0F << true << u"05/12/2026 10:00"_s << u"05/12/2026 10:00:00"_s;
    QTest::newRow("over midnight") << 1.0F << true << u"23:30"_s << u"16/06/2026 0:30:00"_s;
    QTest::newRow("the day before") << -1.0F << true << u"0:30"_s << u"14/06/2026 23:30:00"_s;
    QTest::newRow("to the leap day")
        << 1.0F << true << u"28/02/2028 23:30"_s << u"29/02/2028 0:30:00"_s;
    QTest::newRow("from the leap day")
        << 1.0F << true << u"29/02/2028 23:30"_s << u"01/03/2028 0:30:00"_s;
    QTest::newRow("a new year") << 1.0F << true << u"31/12/2026 23:30"_s << u"01/01/2027 0:30:00"_s;
    QTest::newRow("first year") << 0.0F << true << u"01/01/0100 0:00"_s << u"01/01/0100 0:00:00"_s;
    QTest::newRow("last second") << 0.0F << true << u"31/12/9999 23:59:59"_s
                                 << u"31/12/9999 23:59:59"_s;
}

void tst_ZoneConversion::Converts() {
    QFETCH(float, hours);
    QFETCH(bool, toZone);
    QFETCH(QString, text);
    QTEST(ConvertZoneTime(text, toZone, ZoneAt(hours), Now), "converted");
}

void tst_ZoneConversion::LeavesInvalidTextsEmpty_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << u"   "_s;
    QTest::newRow("words") << u"noon"_s;
    QTest::newRow("slash") << u"/"_s;
    QTest::newRow("no such day") << u"29/02/2026"_s;
    QTest::newRow("month before day") << u"06/15/2026"_s;
    QTest::newRow("no such hour") << u"24:00"_s;
    QTest::newRow("a number") << u"12"_s;
    QTest::newRow("points") << u"15.06.2026 12:00"_s;
    QTest::newRow("behind the last year") << u"31/12/9999 23:30"_s;
}

void tst_ZoneConversion::LeavesInvalidTextsEmpty() {
    QFETCH(QString, text);
    QCOMPARE(ConvertZoneTime(text, true, ZoneAt(1), Now), QString());
}

void tst_ZoneConversion::TellsMoments() {
    QCOMPARE(mduTimeZones::MomentOfText(u"7:05"_s, Now),
             QDateTime(QDate(2026, 6, 15), QTime(7, 5, 0), Qt::UTC));
    QCOMPARE(mduTimeZones::MomentOfText(u"1/2/2025"_s, Now),
             QDateTime(QDate(2025, 2, 1), QTime(0, 0, 0), Qt::UTC));
    QVERIFY(!mduTimeZones::MomentOfText(QString(), Now));
}

void tst_ZoneConversion::TellsLocalMoments() {
    QCOMPARE(mduTimeZones::LocalMoment(Now, ZoneAt(5.5F)),
             QDateTime(QDate(2026, 6, 15), QTime(6, 30, 0), Qt::UTC));
}

QTEST_GUILESS_MAIN(tst_ZoneConversion)
#include "tst_ZoneConversion.moc"
