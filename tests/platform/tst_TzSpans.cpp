#include <QTest>

#include "platform/TzFolder.h"
#include "platform/TzSpans.h"

using namespace Qt::StringLiterals;
using platform::ZoneSpan;

namespace {

/// An instant in GMT, as "2026-03-08T07:00:00".
std::int64_t At(const char* gmt) {
    return QDateTime::fromString(QString::fromLatin1(gmt) + u'Z', Qt::ISODate).toSecsSinceEpoch();
}

ZoneSpan SpanAt(const char* iana, const char* gmt) {
    return platform::TzSpanAt(platform::TzZone(iana), At(gmt));
}

constexpr int Hour = 3600;

}  // namespace

class tst_TzSpans : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsASpan_data();
    void TellsASpan();
    void HasNoEndWhereNothingChanges();
    void KnowsZonesThatAreNoFile();
    void GoesOnBehindTheList();
    void KnowsFarYears_data();
    void KnowsFarYears();
};

void tst_TzSpans::TellsASpan_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<int>("offset");
    QTest::addColumn<bool>("summer");
    QTest::addColumn<QByteArray>("since");
    QTest::addColumn<QByteArray>("until");

    const auto row = [](const char* name, const char* iana, const char* at, int offset, bool summer,
                        const char* since, const char* until) {
        QTest::newRow(name) << QByteArray(iana) << QByteArray(at) << offset << summer
                            << QByteArray(since) << QByteArray(until);
    };
    row("a second before summer", "America/New_York", "2026-03-08T06:59:59", -5 * Hour, false,
        "2025-11-02T06:00:00", "2026-03-08T07:00:00");
    row("the first of summer", "America/New_York", "2026-03-08T07:00:00", -4 * Hour, true,
        "2026-03-08T07:00:00", "2026-11-01T06:00:00");
    row("the last of summer", "America/New_York", "2026-11-01T05:59:59", -4 * Hour, true,
        "2026-03-08T07:00:00", "2026-11-01T06:00:00");
    row("in the south", "Australia/Sydney", "2026-01-15T00:00:00", 11 * Hour, true,
        "2025-10-04T16:00:00", "2026-04-04T16:00:00");
    row("half an hour", "Australia/Lord_Howe", "2026-01-15T00:00:00", 11 * Hour, true,
        "2025-10-04T15:30:00", "2026-04-04T15:00:00");
    row("a winter of less than none", "Europe/Dublin", "2026-01-15T00:00:00", 0, false,
        "2025-10-26T01:00:00", "2026-03-29T01:00:00");
    row("its summer", "Europe/Dublin", "2026-07-15T00:00:00", Hour, true, "2026-03-29T01:00:00",
        "2026-10-25T01:00:00");
    row("the fast", "Africa/Casablanca", "2026-03-01T00:00:00", 0, false, "2026-02-15T02:00:00",
        "2026-03-22T02:00:00");
    row("two hours", "Antarctica/Troll", "2026-07-01T00:00:00", 2 * Hour, true,
        "2026-03-29T01:00:00", "2026-10-25T01:00:00");
    row("a summer that stays", "Europe/Moscow", "2012-01-15T00:00:00", 4 * Hour, false,
        "2011-03-26T23:00:00", "2014-10-25T22:00:00");
    row("a pause in summer", "Africa/Cairo", "2014-07-10T00:00:00", 2 * Hour, false,
        "2014-06-26T21:00:00", "2014-07-31T22:00:00");
    row("before a day that was left out", "Pacific/Apia", "2011-12-30T09:59:59", -10 * Hour, true,
        "2011-09-24T14:00:00", "2011-12-30T10:00:00");
    row("behind it", "Pacific/Apia", "2011-12-30T10:00:00", 14 * Hour, true, "2011-12-30T10:00:00",
        "2012-03-31T14:00:00");
}

void tst_TzSpans::TellsASpan() {
    QFETCH(QByteArray, iana);
    QFETCH(QByteArray, at);
    QFETCH(int, offset);
    QFETCH(bool, summer);
    QFETCH(QByteArray, since);
    QFETCH(QByteArray, until);
    const ZoneSpan span = SpanAt(iana, at);
    QCOMPARE(span.Offset, offset);
    QCOMPARE(span.Daylight, summer);
    QCOMPARE(span.Since, At(since));
    QCOMPARE(span.Until, At(until));
}

void tst_TzSpans::HasNoEndWhereNothingChanges() {
    QCOMPARE(SpanAt("Asia/Calcutta", "2026-07-01T00:00:00"), (ZoneSpan{.Offset = 19800}));
}

void tst_TzSpans::KnowsZonesThatAreNoFile() {
    QCOMPARE(platform::TzSpanAt(QTimeZone::utc(), 0), ZoneSpan());
    QCOMPARE(platform::TzSpanAt(QTimeZone(5400), 0), (ZoneSpan{.Offset = 5400}));
}

// The list ends in 2037; a rule goes on from there, also from the very second of the last change.
void tst_TzSpans::GoesOnBehindTheList() {
    QCOMPARE(SpanAt("Europe/London", "2037-10-25T01:00:00").Until, At("2038-03-28T01:00:00"));
    const ZoneSpan spring = SpanAt("Europe/London", "2038-03-28T01:00:00");
    QCOMPARE(spring, (ZoneSpan{Hour, true, At("2038-03-28T01:00:00"), At("2038-10-31T01:00:00")}));
    const ZoneSpan winter = SpanAt("Europe/Dublin", "2040-01-01T00:00:00");
    QCOMPARE(winter, (ZoneSpan{0, false, At("2039-10-30T01:00:00"), At("2040-03-25T01:00:00")}));
}

void tst_TzSpans::KnowsFarYears_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<int>("offset");
    QTest::addColumn<bool>("summer");
    QTest::newRow("year 100") << QByteArray("America/New_York") << QByteArray("0100-07-01T00:00:00")
                              << -5 * Hour << false;
    QTest::newRow("seconds") << QByteArray("Africa/Monrovia") << QByteArray("1971-06-01T00:00:00")
                             << -2670 << false;
    QTest::newRow("behind them") << QByteArray("Africa/Monrovia")
                                 << QByteArray("1972-01-07T00:44:30") << 0 << false;
    QTest::newRow("year 9999") << QByteArray("America/New_York")
                               << QByteArray("9999-07-01T00:00:00") << -4 * Hour << true;
}

void tst_TzSpans::KnowsFarYears() {
    QFETCH(QByteArray, iana);
    QFETCH(QByteArray, at);
    QFETCH(int, offset);
    QFETCH(bool, summer);
    QCOMPARE(SpanAt(iana, at).Offset, offset);
    QCOMPARE(SpanAt(iana, at).Daylight, summer);
}

QTEST_GUILESS_MAIN(tst_TzSpans)
#include "tst_TzSpans.moc"
