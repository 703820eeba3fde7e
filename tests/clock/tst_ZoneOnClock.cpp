#include "clock/ZoneOnClock.h"

#include <QTest>

#include "clock/FormDesk.h"

using namespace Qt::StringLiterals;
using clockcore::PresentZone;
using Take = clockcore::ZoneOnClock::Take;

class tst_ZoneOnClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TakesTheZoneAlone() {
        FormDesk desk;
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Hour Hand Colour"_s, u"Red"_s);
        const QByteArray own = desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s);
        const QString colour = desk.Value(u"Hour Hand Colour"_s);
        desk.Calls();
        desk.Zone.TakeZone(u"Tokyo Standard Time"_s, Take::ZoneOnly);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 9.0F);
        QCOMPARE(desk.Value(u"Time Zone Standard GMT (Minutes)"_s), u"-540"_s);
        QCOMPARE(desk.Controls.lblLocation(1).Caption, u"Tokyo Standard Time"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), colour);
        QCOMPARE(PresentZone(desk.Data), u"Tokyo Standard Time"_s);
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
        QCOMPARE(desk.Screen.Status, QStringList(u"UTC shows the time of Tokyo Standard Time"_s));
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s), own);
        QVERIFY(desk.Data.PropertyFileName.endsWith(u"/UTC.ini"_s));
    }

    void TakesTheWholeSet() {
        FormDesk desk;
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Clocks"_s, u"Digital"_s);
        const QByteArray own = desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s);
        desk.Zone.TakeZone(u"Tokyo Standard Time"_s, Take::WholeSet);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 9.0F);
        QCOMPARE(desk.Controls.lblLocation(1).Caption, u"Tokyo Standard Time"_s);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Digital));
        QCOMPARE(desk.Module.CurrentProperties, desk.Data.Properties());
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s), own);
    }

    void AFileOfAnotherYearIsTakenForThisYear() {
        FormDesk desk;
        desk.WriteZone(u"GMT Standard Time"_s, u"Time Zone Daylight Start Time"_s,
                       u"25/03/2007 01:00:00"_s);
        desk.Zone.TakeZone(u"GMT Standard Time"_s, Take::ZoneOnly);
        QCOMPARE(desk.Value(u"Time Zone Daylight Start Time"_s), u"5.0.3 1:00:00"_s);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 1.0F);
        QVERIFY(desk.Machine.ReadFile(u"tester/TimeZones/GMT Standard Time.ini"_s)
                    .contains("25/03/2007"));
    }

    void AFileThatIsGoneIsTold() {
        FormDesk desk;
        const ClockProperties before = desk.Data.Properties();
        desk.Calls();
        desk.Zone.TakeZone(u"Atlantis"_s, Take::ZoneOnly);
        QVERIFY(desk.Screen.Status.value(0).endsWith(
            u"/tester/TimeZones/Atlantis.ini can't be read as a property file"_s));
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Data.Properties(), before);
        QCOMPARE(PresentZone(desk.Data), u"UTC"_s);
    }

    /// Two that can't be read stand before a third, wherever the folder has them.
    void PassesOverWhatCantBeRead_data() {
        QTest::addColumn<bool>("wholeSet");
        QTest::newRow("zone only") << false;
        QTest::newRow("with style") << true;
    }
    void PassesOverWhatCantBeRead() {
        QFETCH(bool, wholeSet);
        FormDesk desk;
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Hour Hand Colour"_s, u"Red"_s);
        for (const QString& name : {u"A"_s, u"N"_s, u"Z"_s}) {
            desk.Machine.WriteFile(u"tester/TimeZones/%1.ini"_s.arg(name), QByteArray("\0\1", 2));
        }
        QStringList zones;
        for (int turn = 0; turn < 2; ++turn) {
            desk.Zone.TakeNextZone(wholeSet ? Take::WholeSet : Take::ZoneOnly);
            zones += PresentZone(desk.Data);
        }
        QCOMPARE(zones, QStringList({u"Tokyo Standard Time"_s, u"UTC"_s}));
        QVERIFY(desk.Screen.Status.filter(u"can't be read"_s).isEmpty());
    }

    void NoneThatCanBeReadIsToldOnce() {
        FormDesk desk;
        for (const QString& name : {u"UTC"_s, u"A"_s}) {
            desk.Machine.WriteFile(u"tester/TimeZones/%1.ini"_s.arg(name), QByteArray("\0\1", 2));
        }
        const ClockProperties before = desk.Data.Properties();
        desk.Calls();
        desk.Zone.TakeNextZone(Take::ZoneOnly);
        QCOMPARE(desk.Screen.Status.size(), 1);
        QVERIFY(desk.Screen.Status[0].endsWith(u"/A.ini can't be read as a property file"_s));
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Data.Properties(), before);
        QCOMPARE(PresentZone(desk.Data), u"UTC"_s);
    }

    void GoesRound() {
        FormDesk desk;
        desk.WriteZone(u"A & B"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.Machine.WriteFile(u"tester/TimeZones/Notes.txt"_s, "x");
        QStringList zones;
        for (int turn = 0; turn < 4; ++turn) {
            desk.Zone.TakeNextZone(Take::ZoneOnly);
            zones += PresentZone(desk.Data);
        }
        QCOMPARE(zones[2], u"UTC"_s);
        QCOMPARE(zones[3], zones[0]);
        zones.sort();
        QVERIFY(zones.contains(u"A & B"_s) && zones.contains(u"Tokyo Standard Time"_s));
    }
};

QTEST_MAIN(tst_ZoneOnClock)
#include "tst_ZoneOnClock.moc"
