#include <QTest>

#include "timezones/ZoneEdition.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;

class tst_ZoneEdition : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void GrowsOld_data();
    void GrowsOld();
    void TellsTheEdition();
    void TellsOfAnOldOne();
};

void tst_ZoneEdition::GrowsOld_data() {
    QTest::addColumn<QString>("edition");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<bool>("old");
    QTest::newRow("a, its last day") << u"2025a"_s << QDate(2026, 4, 30) << false;
    QTest::newRow("a, a day later") << u"2025a"_s << QDate(2026, 5, 1) << true;
    QTest::newRow("b, its last day") << u"2025b"_s << QDate(2026, 10, 31) << false;
    QTest::newRow("b, a day later") << u"2025b"_s << QDate(2026, 11, 1) << true;
    QTest::newRow("c, its last day") << u"2025c"_s << QDate(2026, 12, 31) << false;
    QTest::newRow("c, a day later") << u"2025c"_s << QDate(2027, 1, 1) << true;
    QTest::newRow("h") << u"2025h"_s << QDate(2027, 1, 1) << true;
    QTest::newRow("behind z") << u"2025za"_s << QDate(2026, 12, 31) << false;
    QTest::newRow("patched") << u"2025a-dirty"_s << QDate(2026, 5, 1) << true;
    QTest::newRow("of the future") << u"2030a"_s << QDate(2026, 6, 15) << false;
    QTest::newRow("untold") << QString() << QDate(2026, 6, 15) << false;
    QTest::newRow("a year alone") << u"2019"_s << QDate(2026, 6, 15) << false;
    QTest::newRow("no year") << u"unknown"_s << QDate(2026, 6, 15) << false;
    QTest::newRow("a year in the midst") << u"x2019a"_s << QDate(2026, 6, 15) << false;
}

void tst_ZoneEdition::GrowsOld() {
    QFETCH(QString, edition);
    QFETCH(QDate, today);
    QTEST(IsOldEdition(edition, today), "old");
}

void tst_ZoneEdition::TellsTheEdition() {
    QCOMPARE(EditionText(u"2025b"_s), u"Time zone database: edition 2025b"_s);
    QCOMPARE(EditionText({}), u"Time zone database: of an unknown edition"_s);
}

void tst_ZoneEdition::TellsOfAnOldOne() {
    QCOMPARE(OldEditionNotice(u"2025a"_s, QDate(2026, 5, 1)),
             u"The time zone database of this machine (edition 2025a) is older than a year: clocks "
             "may be wrong. The package tzdata brings a new one"_s);
    QCOMPARE(OldEditionNotice(u"2025a"_s, QDate(2026, 4, 30)), QString());
}

QTEST_GUILESS_MAIN(tst_ZoneEdition)
#include "tst_ZoneEdition.moc"
