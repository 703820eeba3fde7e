#include "editor/PropertyOwner.h"

#include <QTest>

#include "editor/PropertyShell.h"
#include "support/FakeDialogs.h"
#include "support/FakeForms.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::PropertyOwner;
using editor::SheetAnswer;
using editor::SheetKind;
using editor::SheetQuestion;

namespace {

struct OwnerDesk {
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    QStringList Log;
    FakeForm Other{Windows, u"frmTimeZones"_s, u"Zones"_s, Log};
    FakeClock Clock{Windows, u"Oslo"_s, Log};
    PropertyShell Shell;
    QString File = u"/clocks/Oslo.ini"_s;  ///< the one that the clock's window edits
    PropertyOwner OfClock{TheProgram, &Shell, Clock.hwnd(), [this] { return File; }};
    PropertyOwner OfShell{TheProgram, &Shell, 0, [this] { return Module.Paths.CentralFile; }};
    PropertyOwner OfNew{TheProgram, &Shell, 0, [this] { return File; }};
    PropertyOwner Alone{TheProgram, nullptr, 0, [] { return QString(); }};

    OwnerDesk() {
        Module.Paths.AppFolder = u"/clocks"_s;
        Module.Paths.CentralFile = u"/clocks/TempolarkCentral.ini"_s;
        Clock.File = File;
    }
};

}  // namespace

class tst_PropertyOwner : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsItsClock() {
        OwnerDesk desk;
        QCOMPARE(desk.OfClock.Clock(), &desk.Clock);
        QVERIFY(!desk.OfClock.IsShell());
        QCOMPARE(desk.OfShell.Clock(), nullptr);
        QVERIFY(desk.OfShell.IsShell());
        QCOMPARE(desk.OfNew.Clock(), &desk.Clock);
        QCOMPARE(desk.Alone.Clock(), nullptr);
        QCOMPARE(desk.OfShell.ClockOf(u"/clocks/Oslo.ini"_s), &desk.Clock);
        QCOMPARE(desk.OfShell.ClockOf(u"/clocks/Lima.ini"_s), nullptr);
        desk.Clock.Unload();
        QCOMPARE(desk.OfClock.Clock(), nullptr);
        QVERIFY(!desk.OfClock.IsShell());
        FakeClock again(desk.Windows, u"Oslo"_s, desk.Log);
        QCOMPARE(desk.OfClock.Clock(), nullptr);  // it has no file yet
        QCOMPARE(desk.OfClock.ClockOf({}), nullptr);
        again.File = desk.File;
        QCOMPARE(desk.OfClock.Clock(), &again);
        desk.File = u"/clocks/Lima.ini"_s;
        QCOMPARE(desk.OfClock.Clock(), nullptr);
    }

    void NamesTheSource() {
        OwnerDesk desk;
        const auto clock = desk.OfClock.SourceOf(u"Oslo"_s);
        QVERIFY(clock.Kind == SheetKind::Clock);
        QCOMPARE(clock.ZoneName, u"Oslo"_s);
        QCOMPARE(clock.DefaultFile, u"/clocks/ini/Tempolark.ini"_s);
        const auto shell = desk.OfShell.SourceOf(u"TempolarkCentral"_s);
        QVERIFY(shell.Kind == SheetKind::Shell);
        QCOMPARE(shell.DefaultFile, u"/clocks/ini/TempolarkCentral.ini"_s);
        const auto made = desk.OfShell.SourceOf({});
        QVERIFY(made.Kind == SheetKind::NewClock);
        QCOMPARE(made.DefaultFile, u"/clocks/ini/Tempolark.ini"_s);
    }

    void AsksThroughTheShell() {
        OwnerDesk desk;
        desk.Shell.Answers = {6, 7};
        const SheetQuestion question{u"Save?"_s, u"Save Property"_s};
        QVERIFY(desk.OfClock.Ask(question));
        QVERIFY(!desk.OfClock.Ask(question));
        QVERIFY(desk.OfClock.Ask(std::nullopt));
        QCOMPARE(desk.Shell.Boxes, QStringList(2, u"Save?|36|Save Property"_s));
        desk.Shell.Answers = {6, 7, 2, 2};
        QCOMPARE(desk.OfClock.AnswerTo(question), SheetAnswer::Yes);
        QCOMPARE(desk.OfClock.AnswerTo(question), SheetAnswer::No);
        QCOMPARE(desk.OfClock.AnswerTo(question), SheetAnswer::Neither);
        QVERIFY(!desk.OfClock.Ask(SheetQuestion{u"Write over?"_s, u"File"_s, 292}));
        QCOMPARE(desk.Shell.Boxes.last(), u"Write over?|292|File"_s);
        desk.Machine.Dialogs.BoxAnswers = {7};
        QVERIFY(!desk.Alone.Ask(question));
        QCOMPARE(desk.Machine.Dialogs.Boxes.front().Title, u"Save Property"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes.front().Flags, 36);
    }

    void Tells() {
        OwnerDesk desk;
        desk.OfClock.Tell({});
        desk.OfClock.Tell(u"Locked"_s);
        QCOMPARE(desk.Shell.Messages, QStringList{u"Locked"_s});
        desk.Machine.Dialogs.BoxAnswers = {1};
        desk.Alone.Tell(u"Locked"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes.front().Text, u"Locked"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes.front().Flags, 48);
    }

    void LooksAtTheClockAsItIs() {
        OwnerDesk desk;
        desk.Module.CurrentProperties[1] = {{}, u"Slot"_s, u"1"_s};
        desk.Clock.OnSetProperty = [&desk] {
            desk.Module.CurrentProperties.Reset();
            desk.Module.CurrentProperties[1] = {{}, u"Hand"_s, u"Red"_s};
        };
        QCOMPARE(desk.OfClock.Now()[1].Name, u"Hand"_s);
        QCOMPARE(desk.Module.CurrentProperties[1].Name, u"Slot"_s);
        QCOMPARE(desk.OfShell.Now(), ClockProperties());
    }

    void PassesOn() {
        OwnerDesk desk;
        desk.OfClock.RefreshForm(u"/clocks/Oslo.ini"_s);
        desk.OfClock.Preview({});
        QCOMPARE(desk.Log, (QStringList{u"Oslo: refresh form"_s, u"Oslo: preview "_s}));
        desk.OfShell.RefreshForm(u"/clocks/TempolarkCentral.ini"_s);
        QCOMPARE(desk.Shell.Refreshed, QStringList{u"/clocks/TempolarkCentral.ini"_s});
        desk.OfNew.RefreshForm({});  // the clock of the file, never the shell
        QCOMPARE(desk.Log.last(), u"Oslo: refresh form"_s);
        QCOMPARE(desk.Shell.Refreshed.size(), 1);
        QVERIFY(desk.OfClock.Launch(u"Lima"_s));
        QCOMPARE(desk.Shell.Launched, QStringList{u"Lima"_s});
        desk.Shell.LaunchHandle = 0;
        QVERIFY(!desk.OfClock.Launch(u"Lima"_s));
        QVERIFY(!desk.Alone.Launch(u"Lima"_s));
        desk.OfClock.ShowHelp();
        QCOMPARE(desk.Shell.Helps, 1);
        desk.Clock.Unload();
        desk.Log.clear();
        desk.OfClock.RefreshForm({});
        desk.OfClock.Preview({});
        desk.OfNew.RefreshForm({});
        QCOMPARE(desk.Log, QStringList());
        QCOMPARE(desk.Shell.Refreshed.size(), 1);
        desk.Alone.RefreshForm({});
        desk.Alone.ShowHelp();
    }
};

QTEST_GUILESS_MAIN(tst_PropertyOwner)
#include "tst_PropertyOwner.moc"
