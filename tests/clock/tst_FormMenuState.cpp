#include "clock/FormMenuState.h"

#include <QTest>

#include "clock/LookDesk.h"
#include "foundation/SystemSettings.h"

using namespace Qt::StringLiterals;
using clockcore::FormMenuState;
using clockcore::FormWindowFacts;

namespace {

struct StateDesk : LookDesk {
    StateDesk() { Module.Paths.StylesFolder = Machine.AppFolder() + u"/Styles/"_s; }

    FormMenuState State(const FormWindowFacts& window = {.IsMDIChild = true}) const {
        return ReadFormMenuState(TheProgram, Data, window);
    }
    /// A file that was used on that day of June.
    void Put(const QString& name, int day) {
        const QString path = Machine.WriteFile(name, "x");
        const QDateTime used(QDate(2026, 6, day), QTime(12, 0));
        QVERIFY(Machine.Files.SetModifiedSeconds(path, used.toSecsSinceEpoch()));
    }
};

}  // namespace

class tst_FormMenuState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsOfTheWindow() {
        const StateDesk desk;
        const FormMenuState state =
            desk.State({.IsMDIChild = true, .IsEnabled = false, .WindowState = 2});
        QCOMPARE(state.ZoneFile, u"UTC"_s);
        QCOMPARE(state.WindowState, 2);
        QVERIFY(!state.Enabled);
        QVERIFY(state.Kind == clockcore::ClockKind::Analogue);
    }

    void TypingIsACalculatorsOwn() {
        StateDesk desk;
        desk.Data.Tag.Kind = clockcore::ClockKind::CalculatorInput;
        QVERIFY(desk.State().Kind == clockcore::ClockKind::Calculator);
    }

    void Colours_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("colour");
        QTest::newRow("a name") << u"Cyan"_s << u"Cyan"_s;
        QTest::newRow("a number") << u"255"_s << u"Red"_s;
        QTest::newRow("a number without a name") << u"4711"_s << u"4711"_s;
        QTest::newRow("another letter case") << u"cYAN"_s << u"Cyan"_s;
        QTest::newRow("transparent") << u"transparent"_s << u"Transparent"_s;
    }
    void Colours() {
        QFETCH(QString, value);
        StateDesk desk;
        desk.Set(u"Window Background Colour"_s, value);
        QTEST(desk.State().Colour, "colour");
    }

    void TheListTellsOfChildren_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("starts");
        QTest::newRow("its name") << u"UTC"_s << true;
        QTest::newRow("another") << u"x"_s << true;
        QTest::newRow("0") << u"0"_s << false;
        QTest::newRow("empty") << u""_s << false;
    }
    void TheListTellsOfChildren() {
        QFETCH(QString, value);
        StateDesk desk;
        QVERIFY(!desk.State().AutoStarts);
        mduLib::PutPropertyRaw(u"UTC"_s, value, desk.Module.AutoStartList);
        QTEST(desk.State().AutoStarts, "starts");
        QVERIFY(!desk.State({}).AutoStarts);
    }

    void TheSettingsTellOfAClockAlone() {
        StateDesk desk;
        mduLib::AddToRunKey(desk.Services.Settings, u"Tempolark UTC"_s, u"x"_s);
        QVERIFY(desk.State({}).AutoStarts);
        QVERIFY(!desk.State().AutoStarts);
    }

    void ListsTheFilesUsedLast() {
        StateDesk desk;
        for (int day = 1; day <= 12; ++day) {
            desk.Put(u"Styles/Style %1.ini"_s.arg(day), day);
        }
        desk.Put(u"Styles/Readme.txt"_s, 30);
        const QStringList ten = {u"Style 12"_s, u"Style 11"_s, u"Style 10"_s, u"Style 9"_s,
                                 u"Style 8"_s,  u"Style 7"_s,  u"Style 6"_s,  u"Style 5"_s,
                                 u"Style 4"_s,  u"Style 3"_s};
        QCOMPARE(desk.State().Styles, ten);
        desk.Data.Dial.LastStyle = u"Style 2"_s;
        QCOMPARE(desk.State().Styles, QStringList(u"Style 2"_s) + ten.mid(0, 9));
    }

    void TheClocksZoneComesFirst() {
        StateDesk desk;
        desk.Put(u"tester/TimeZones/A.ini"_s, 30);
        QCOMPARE(desk.State().Zones, QStringList({u"UTC"_s, u"A"_s}));
        desk.Data.TakenZone = u"A"_s;
        QCOMPARE(desk.State().Zones, QStringList({u"A"_s, u"UTC"_s}));
        QCOMPARE(desk.State().ZoneFile, u"UTC"_s);
    }

    void WhatCantBeChosenIsLeftOut() {
        StateDesk desk;
        desk.Put(u"Styles/Oak.ini"_s, 1);
        desk.Put(u"Styles/Oak.ini.bak"_s, 30);
        for (int copy = 1; copy <= 10; ++copy) {
            desk.Put(u"Styles/%1.ini~"_s.arg(copy), 20);
            desk.Put(u"tester/TimeZones/%1.ini~"_s.arg(copy), 20);
        }
        QCOMPARE(desk.State().Styles, QStringList(u"Oak"_s));
        QCOMPARE(desk.State().Zones, QStringList(u"UTC"_s));
        desk.Data.Dial.LastStyle = u"Elm"_s;  // was deleted
        QCOMPARE(desk.State().Styles, QStringList(u"Oak"_s));
        desk.Data.TakenZone = u"Away"_s;  // the clock's zone stands there, whatever became of it
        QCOMPARE(desk.State().Zones, QStringList({u"Away"_s, u"UTC"_s}));
    }

    void FoldersMayBeEmptyGoneOrFull() {
        StateDesk desk;
        QCOMPARE(desk.State().Styles, QStringList());
        desk.Put(u"Styles/Only.ini"_s, 1);
        QCOMPARE(desk.State().Styles, QStringList(u"Only"_s));
        for (int number = 1; number <= 2000; ++number) {
            desk.Machine.WriteFile(u"Styles/%1.ini"_s.arg(number), "x");
        }
        QCOMPARE(desk.State().Styles.size(), 10);
        desk.Module.Paths.StylesFolder = u"/nowhere/"_s;
        QCOMPARE(desk.State().Styles, QStringList());
    }

    void TellsOfHiddenParts() {
        StateDesk desk;
        desk.Set(u"Speaker"_s, u"No"_s);
        QCOMPARE(desk.State().HiddenParts, QStringList());
        QCOMPARE(desk.State({.Showable = {.Speaker = true}}).HiddenParts,
                 QStringList(u"Speaker"_s));
    }

    void TellsOfTheScreenSaver() {
        StateDesk desk;
        QCOMPARE(desk.State().ScreenSaverTimes.size(), 12);
        QCOMPARE(desk.State().ScreenSaverTime, QString());
        mduLib::ChooseScreenSaverTime(desk.Services.Settings, u"30"_s, u"/other"_s);
        QCOMPARE(desk.State().ScreenSaverTime, u"30"_s);
        mduLib::ChooseScreenSaverTime(desk.Services.Settings, u"30"_s,
                                      desk.Module.Paths.AppEXEName());
        QCOMPARE(desk.State().ScreenSaverTimes, QStringList(u"Disabled"_s));
    }
};

QTEST_MAIN(tst_FormMenuState)
#include "tst_FormMenuState.moc"
