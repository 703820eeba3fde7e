#include "shell/ZoneCommands.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "shell/FakeShell.h"
#include "support/FakeForms.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

/// Clicks on zones and clocks, without a shell's window.
class tst_ZoneCommands : public QObject {
    Q_OBJECT

private:
    struct Desk : MachineWithZones {
        QStringList Log;
        FakeShell Shell;
        FakeForm ShellForm{Windows, u"frmMain"_s, u"shell"_s, Log};
        FakeClock Tokyo{Windows, u"Tokyo"_s, Log};
        FakeClock Paris{Windows, u"Paris"_s, Log};
        shell::MenuState State;
        shell::MenuCommands Commands{State};
        shell::UserLists Lists{TheProgram, [this](const QString& text) { Log += text; }};
        shell::ZoneCommands Zones{TheProgram, State, Lists, Shell,
                                  [this] { Log += u"from a file"_s; }};

        Desk() {
            Module.Paths.DataFolder = Machine.AppFolder() + u"/tester"_s;
            Module.Paths.ZoneFileFolder = Machine.AppFolder() + u"/zones/"_s;
            Module.Paths.AutoStartFile = Machine.AppFolder() + u"/tester/AutoStart.txt"_s;
            Machine.WriteFile(u"zones/Tokyo.ini"_s, "x=1\r\n");
            Machine.WriteFile(u"zones/UTC.ini"_s, "x=1\r\n");
            Machine.WriteFile(u"tester/AutoStart.txt"_s, {});
            Zones.AddTo(Commands);
        }
        void Fill(const QString& entry, const std::vector<shell::MenuItem>& items) {
            int index = 0;
            for (const shell::MenuItem& item : items) {
                State[entry].Load(++index) = item;
            }
        }
        bool HasZone(const QString& name) const {
            return Machine.Files.Exists(Module.Paths.ZoneFileFolder + name + u".ini"_s);
        }
        QByteArray AutoStart() const { return Machine.ReadFile(u"tester/AutoStart.txt"_s); }
    };

private Q_SLOTS:
    void AZoneIsLaunched() {
        Desk desk;
        desk.Fill(u"TimeZone"_s, {{u"Tokyo"_s, u"Tokyo"_s}, {u"More"_s, {}}});
        QVERIFY(desk.Commands.DoMenuItem(1, 1));
        QCOMPARE(desk.Shell.Take(), QStringList{u"launch Tokyo"_s});
        QCOMPARE(desk.Log, QStringList());
        QVERIFY(desk.Commands.Click(u"TimeZone"_s, 2));
        QCOMPARE(desk.Shell.Take(), QStringList());
        QCOMPARE(desk.Log, QStringList{u"from a file"_s});
    }

    void TheLastOnesAreLaunched() {
        Desk desk;
        desk.Fill(u"FileItem"_s,
                  {{u"Tokyo"_s, u"Tokyo"_s}, {u"UTC"_s, u"UTC"_s}, {u"All"_s, u"0"_s}});
        desk.Commands.Click(u"FileItem"_s, 2);
        QCOMPARE(desk.Shell.Take(), QStringList{u"launch UTC"_s});
        desk.Commands.Click(u"FileItem"_s, 3);
        QCOMPARE(desk.Shell.Take(), (QStringList{u"launch Tokyo"_s, u"launch UTC"_s}));
        QVERIFY(desk.Lists.SaveOpenedForms());
        QCOMPARE(desk.Machine.ReadFile(u"tester/OpenedForms.txt"_s),
                 QByteArray("UTC=\r\nTokyo=\r\n"));
    }

    void NoneLaunchesNothing() {
        Desk desk;
        desk.Fill(u"FileItem"_s, {{u"None"_s, {}}});
        desk.Commands.Click(u"FileItem"_s, 1);
        QCOMPARE(desk.Shell.Take(), QStringList());
    }

    void AClockIsTold() {
        Desk desk;
        desk.Fill(u"Action"_s, {{u"Minimize"_s, {}}});
        desk.Fill(u"Opened"_s, {{u"Tokyo"_s, QString::number(desk.Tokyo.hwnd())},
                                {u"Paris"_s, QString::number(desk.Paris.hwnd())},
                                {u"All"_s, u"0"_s}});
        desk.Commands.Click(u"Opened"_s, 2);
        QCOMPARE(desk.Log, QStringList{u"Paris: state 1"_s});
        desk.Commands.Click(u"Opened"_s, 3);
        QCOMPARE(desk.Log,
                 (QStringList{u"Paris: state 1"_s, u"Tokyo: state 1"_s, u"Paris: state 1"_s}));
        desk.Fill(u"Action"_s, {{u"Launch"_s, {}}});
        desk.Commands.Click(u"Opened"_s, 1);
        QCOMPARE(desk.Log.size(), 3);
    }

    void AutoStartTurnsOver_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("tokyo");
        QTest::addColumn<bool>("paris");
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("on") << 1 << false << false << QByteArray("Tokyo=Tokyo\r\n");
        QTest::newRow("off") << 2 << false << true << QByteArray("Paris=\r\n");
        QTest::newRow("all, by the first: on")
            << 3 << false << true << QByteArray("Tokyo=Tokyo\r\nParis=Paris\r\n");
        QTest::newRow("all, by the first: off")
            << 3 << true << false << QByteArray("Tokyo=\r\nParis=\r\n");
    }

    void AutoStartTurnsOver() {
        QFETCH(int, index);
        QFETCH(bool, tokyo);
        QFETCH(bool, paris);
        Desk desk;
        desk.Fill(u"Action"_s, {{u"Auto Start"_s, {}}});
        desk.Fill(u"Opened"_s, {{u"Tokyo"_s, u"1"_s, true, true, tokyo},
                                {u"Paris"_s, u"2"_s, true, true, paris},
                                {u"All"_s, u"0"_s, true, true, true}});
        desk.Commands.Click(u"Opened"_s, index);
        QTEST(desk.AutoStart(), "file");
        QCOMPARE(desk.Log, QStringList());
    }

    void RemovingAsksFirst() {
        Desk desk;
        desk.Fill(u"DeleteTimeZone"_s, {{u"Tokyo"_s, u"Tokyo"_s}, {u"All"_s, {}}});
        desk.Shell.BoxAnswers = {7};
        desk.Commands.Click(u"DeleteTimeZone"_s, 1);
        QCOMPARE(desk.Shell.Take(),
                 QStringList{u"box 292, Remove Time Zone: Do you want to remove the time zone "
                             "Tokyo, with the settings of its clock?"_s});
        QVERIFY(desk.HasZone(u"Tokyo"_s));
        desk.Shell.BoxAnswers = {6};
        desk.Commands.Click(u"DeleteTimeZone"_s, 1);
        QCOMPARE(desk.Shell.Take().last(), u"Removed the time zone Tokyo"_s);
        QCOMPARE(desk.Log, QStringList{u"Tokyo: close"_s});
        QVERIFY(!desk.HasZone(u"Tokyo"_s));
        QVERIFY(desk.HasZone(u"UTC"_s));
    }

    void AllAreRemovedAfterOneQuestion() {
        Desk desk;
        desk.Fill(u"DeleteTimeZone"_s, {{u"Tokyo"_s, u"Tokyo"_s}, {u"All"_s, {}}});
        desk.Shell.BoxAnswers = {6};
        desk.Commands.Click(u"DeleteTimeZone"_s, 2);
        QCOMPARE(desk.Shell.Take(),
                 (QStringList{u"box 292, Remove Time Zone: Do you want to remove all 2 time "
                              "zones, with the settings of their clocks?"_s,
                              u"Removed the time zone Tokyo"_s, u"Removed the time zone UTC"_s}));
        QVERIFY(!desk.HasZone(u"UTC"_s));
    }

    void AClockThatStaysKeepsItsZone() {
        Desk desk;
        desk.Tokyo.RefusesToClose = true;
        QCOMPARE(desk.Zones.RemoveZone(u"Tokyo"_s), u"The clock of Tokyo is still open"_s);
        QVERIFY(desk.HasZone(u"Tokyo"_s));
    }

    void ARemovedZoneStartsNoMore() {
        Desk desk;
        mduLib::PutProperty(u"UTC"_s, u"UTC"_s, desk.Module.AutoStartList);
        QCOMPARE(desk.Zones.RemoveZone(u"UTC"_s), QString());
        QCOMPARE(desk.AutoStart(), QByteArray("UTC=\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_ZoneCommands)
#include "tst_ZoneCommands.moc"
