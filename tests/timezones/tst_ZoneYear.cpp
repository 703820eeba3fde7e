#include <QTest>

#include "foundation/PropertyLookup.h"
#include "timezones/ZoneYear.h"

using namespace Qt::StringLiterals;

class tst_ZoneYear : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsOtherYears_data() {
        QTest::addColumn<QString>("standard");
        QTest::addColumn<QString>("summer");
        QTest::addColumn<bool>("other");
        QTest::newRow("of this year")
            << u"01/11/2026 2:00:00"_s << u"08/03/2026 2:00:00"_s << false;
        QTest::newRow("of the last") << u"02/11/2025 2:00:00"_s << u"09/03/2025 2:00:00"_s << true;
        QTest::newRow("of the next") << u"07/11/2027 2:00:00"_s << u"14/03/2027 2:00:00"_s << true;
        QTest::newRow("standard time alone")
            << u"02/11/2025 2:00:00"_s << u"5.0.3 1:00:00"_s << true;
        QTest::newRow("daylight time alone")
            << u"5.0.10 2:00:00"_s << u"09/03/2025 2:00:00"_s << true;
        QTest::newRow("rules") << u"5.0.10 2:00:00"_s << u"5.0.3 1:00:00"_s << false;
        QTest::newRow("none") << u"0.0.0 0:00:00"_s << u"0.0.0 0:00:00"_s << false;
        QTest::newRow("no keys") << QString() << QString() << false;
        QTest::newRow("other texts") << u"in autumn"_s << u"in spring"_s << false;
        QTest::newRow("an end behind the year")
            << u"31/12/2027 0:00:00"_s << u"08/03/2026 2:00:00"_s << false;
        QTest::newRow("a beginning before it")
            << u"01/11/2026 2:00:00"_s << u"01/01/2025 0:00:00"_s << false;
        QTest::newRow("an end that has come nearer")
            << u"31/12/2026 0:00:00"_s << u"09/03/2025 2:00:00"_s << true;
        QTest::newRow("New Year's Eve, not at midnight")
            << u"31/12/2025 1:00:00"_s << u"08/03/2026 2:00:00"_s << true;
        QTest::newRow("first of another month")
            << u"01/11/2025 0:00:00"_s << u"08/03/2026 2:00:00"_s << true;
        QTest::newRow("last of another month")
            << u"31/10/2025 0:00:00"_s << u"08/03/2026 2:00:00"_s << true;
        QTest::newRow("another day of January")
            << u"11/01/2025 0:00:00"_s << u"08/03/2026 2:00:00"_s << true;
        QTest::newRow("another day of December")
            << u"30/12/2025 0:00:00"_s << u"08/03/2026 2:00:00"_s << true;
    }

    void TellsOtherYears() {
        QFETCH(QString, standard);
        QFETCH(QString, summer);
        ClockProperties properties;
        mduLib::PutPropertyRaw(u"Time Zone Standard Start Time"_s, standard, properties);
        mduLib::PutPropertyRaw(u"Time Zone Daylight Start Time"_s, summer, properties);
        QTEST(mduTimeZones::IsOfAnotherYear(properties, QDate(2026, 6, 15)), "other");
    }
};

QTEST_GUILESS_MAIN(tst_ZoneYear)
#include "tst_ZoneYear.moc"
