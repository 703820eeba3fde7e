#include <QTest>

#include "clock/DialDesk.h"
#include "clock/TimerMenus.h"
#include "support/FakeDevices.h"
#include "support/FakeDialogs.h"

using namespace Qt::StringLiterals;
using clockcore::MenuNode;
using timers::ClockTimer;

namespace {

struct MenuDesk : DialDesk {
    FakeDevices Devices;
    platform::Services Sounding = Devices.On(Services);
    Program Sound{Sounding, Module, Windows};
    QObject Clock;
    timers::ActionList Actions{Context};
    clockcore::TimerDialogs Dialogs{Clock, Sound, Dial, Actions};
    clockcore::TimerMenus Menus{Data, Sound, {Dial, Dialogs, Actions}};

    MenuDesk() {
        Actions.FillActionMenu();
        Module.Paths.SoundFilesFolder = Machine.AppFolder() + u"/SoundFiles/"_s;
        Add(u"03:05"_s, u"Tea"_s);
    }

    /// Chooses an entry of the mark's menu, or of its sub-menu of that name.
    void Choose(const QString& caption, const QString& subMenu = {}) {
        const MenuNode menu = Menus.ImgTimerMenu(1);
        const MenuNode part = subMenu.isEmpty() ? menu : Sub(menu, subMenu);
        const MenuNode* entry = Find(part, caption);
        QVERIFY2(entry != nullptr, qPrintable(caption));
        entry->Choose();
    }
    static const MenuNode* Find(const MenuNode& menu, const QString& caption) {
        for (const MenuNode& entry : menu.Children) {
            if (entry.Caption == caption) {
                return &entry;
            }
        }
        return nullptr;
    }
    static MenuNode Sub(const MenuNode& menu, const QString& name) {
        for (const MenuNode& entry : menu.Children) {
            if (entry.Name == name) {
                return entry;
            }
        }
        return {};
    }
    MenuNode Sub(const QString& name) { return Sub(Menus.ImgTimerMenu(1), name); }
    static QStringList Captions(const MenuNode& menu) {
        QStringList captions;
        for (const MenuNode& entry : menu.Children) {
            captions += entry.Caption;
        }
        return captions;
    }
    static QStringList Ticked(const MenuNode& menu) {
        QStringList captions;
        for (const MenuNode& entry : menu.Children) {
            if (entry.Ticked == MenuNode::Tick::On) {
                captions += entry.Caption;
            }
        }
        return captions;
    }
    void Change(const std::function<void(ClockTimer&)>& change) {
        Dial.Change(Dial.Choose(1), change);
    }
};

}  // namespace

class tst_TimerMenus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NoTimeHasNoMenu() {
        MenuDesk desk;
        QVERIFY(desk.Menus.SetTimerMenu({}).Children.empty());
        QVERIFY(desk.Menus.SetTimerMenu(u"soon"_s).Children.empty());
        QCOMPARE(desk.Menus.SetTimerMenu(u"20/06/2026 9:30:59"_s).Children[0].Caption, u"09:30"_s);
    }

    void TwelveTimes() {
        MenuDesk desk;
        const MenuNode menu = desk.Menus.SetTimerMenu(u"12:48"_s);
        QCOMPARE(menu.Name, u"SetTimer"_s);
        QCOMPARE(menu.Caption, u"Set Timer"_s);
        QCOMPARE(
            desk.Captions(menu),
            (QStringList{u"12:48"_s, u"12:49"_s, u"12:50"_s, u"12:51"_s, u"12:52"_s, u"12:53"_s,
                         u"12:54"_s, u"12:55"_s, u"12:56"_s, u"12:57"_s, u"12:58"_s, u"12:59"_s}));
        QCOMPARE(menu.Children[0].Name, u"TimerTime"_s);
        const QStringList hour = desk.Captions(desk.Menus.SetTimerMenu(u"3"_s));
        QCOMPARE(hour.first(), u"03:00"_s);
        QCOMPARE(hour.last(), u"03:55"_s);
    }

    void AChosenTimeMakesATimer() {
        MenuDesk desk;
        desk.Menus.SetTimerMenu(u"4:12"_s).Children[3].Choose();
        QCOMPARE(desk.Timers.Timer(2).TimerTime, u"04:15"_s);
        QVERIFY(desk.Timers.Timer(2).OnDial);
        QCOMPARE(desk.Typing.Slot(), 2);
    }

    void AMarksMenu() {
        MenuDesk desk;
        const MenuNode menu = desk.Menus.ImgTimerMenu(1);
        QCOMPARE(menu.Name, u"ImgTimerMenu"_s);
        QCOMPARE(desk.Captions(menu),
                 (QStringList{
                     u"Edit Message"_s, u"Set Message Colour"_s, u"Set Message Display Time"_s,
                     u"Set Timer Sound"_s, u"Set Timer Action"_s, u"Play Music Volume"_s,
                     u"Change Timer 03:05"_s, u"Remove Timer 03:05"_s, u"Set Permanent Timer"_s}));
        QStringList names;
        for (const MenuNode& entry : menu.Children) {
            names += entry.Name;
        }
        QCOMPARE(names,
                 (QStringList{u"EditMessage"_s, u"SetMessageColour"_s, u"SetMessageDisplayTime"_s,
                              u"SetSoundFile"_s, u"SetAction"_s, u"TimerPlayMusic"_s,
                              u"ChangeTimer"_s, u"RemoveTimer"_s, u"SetTimerPermanent"_s}));
        QVERIFY(desk.Menus.ImgTimerMenu(2).Children.empty());
        QVERIFY(desk.Menus.ImgTimerMenu(0).Children.empty());
    }

    void WithoutASoundDeviceThereAreNoSounds() {
        MenuDesk desk;
        desk.Devices.Sound.Devices = 0;
        QVERIFY(desk.Sub(u"SetSoundFile"_s).Children.empty());
        QCOMPARE(desk.Captions(desk.Menus.ImgTimerMenu(1)).size(), 8);
        desk.Devices.Sound.Devices = 1;
        QVERIFY(!desk.Sub(u"SetSoundFile"_s).Children.empty());
    }

    // Until it has answered, a machine is one without sounds.
    void TheSoundsWaitForTheMachine() {
        MenuDesk desk;
        desk.Devices.Sound.AnswersLater = true;
        QVERIFY(desk.Sub(u"SetSoundFile"_s).Children.empty());
        desk.Devices.Sound.Answer();
        QVERIFY(!desk.Sub(u"SetSoundFile"_s).Children.empty());
    }

    void CountedEarlyTheyAreThereAtOnce() {
        MenuDesk desk;
        desk.Devices.Sound.AnswersLater = true;
        desk.Menus.CountSoundDevices();
        desk.Devices.Sound.Answer();
        QVERIFY(!desk.Sub(u"SetSoundFile"_s).Children.empty());
    }

    // A file may hold any number.
    void AHugeDisplayTime() {
        MenuDesk desk;
        desk.Change([](ClockTimer& timer) { timer.DisplayMinutes = u"1e300"_s; });
        QCOMPARE(desk.Sub(u"SetMessageDisplayTime"_s).Children[0].Caption, u"1000000000"_s);
        desk.Change([](ClockTimer& timer) { timer.DisplayMinutes = u"-1e300"_s; });
        QCOMPARE(desk.Sub(u"SetMessageDisplayTime"_s).Children[0].Caption, u"-1000000000"_s);
    }

    void TheMessageIsEdited() {
        MenuDesk desk;
        desk.Choose(u"Edit Message"_s);
        QCOMPARE(desk.View.Log, QStringList{u"open Tea"_s});
    }

    void Colours() {
        MenuDesk desk;
        const MenuNode menu = desk.Sub(u"SetMessageColour"_s);
        QCOMPARE(desk.Captions(menu),
                 (QStringList{u"Black"_s, u"Blue"_s, u"Cyan"_s, u"Green"_s, u"Magenta"_s, u"Red"_s,
                              u"White"_s, u"Yellow"_s, u"Custom"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"Red"_s});
        QCOMPARE(menu.Children[0].Name, u"MessageColour"_s);
        desk.Choose(u"Blue"_s, u"SetMessageColour"_s);
        QCOMPARE(desk.Timers.Timer(1).MessageColour, 0xFF0000);
        QVERIFY(desk.File().startsWith("5,Blue,"));
        QCOMPARE(desk.Ticked(desk.Sub(u"SetMessageColour"_s)), QStringList{u"Blue"_s});
    }

    void AColourIsPicked() {
        MenuDesk desk;
        desk.Machine.Dialogs.ColourAnswers = {0x123456, -1};
        desk.Choose(u"Custom"_s, u"SetMessageColour"_s);
        QCOMPARE(desk.Timers.Timer(1).MessageColour, 0x123456);
        QVERIFY(desk.File().startsWith("5,1193046,"));
        desk.Choose(u"Custom"_s, u"SetMessageColour"_s);
        QCOMPARE(desk.Timers.Timer(1).MessageColour, 0x123456);
    }

    // Twelve from the present one; behind them what the property offers below it.
    void DisplayTimes() {
        MenuDesk desk;
        const MenuNode menu = desk.Sub(u"SetMessageDisplayTime"_s);
        QCOMPARE(desk.Captions(menu),
                 (QStringList{u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s,
                              u"13"_s, u"14"_s, u"15"_s, u"16"_s, u"-"_s, u"0"_s, u"1"_s, u"2"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"5"_s});
        QCOMPARE(menu.Children[0].Name, u"MessageDisplayTime"_s);
        desk.Choose(u"2"_s, u"SetMessageDisplayTime"_s);
        QCOMPARE(desk.Timers.Timer(1).DisplayMinutes, u"2"_s);
        QVERIFY(desk.File().startsWith("2,Red,"));
        desk.Change([](ClockTimer& timer) { timer.DisplayMinutes = u"0"_s; });
        QCOMPARE(desk.Captions(desk.Sub(u"SetMessageDisplayTime"_s)).size(), 12);
    }

    void Sounds() {
        MenuDesk desk;
        desk.Machine.WriteFile(u"SoundFiles/gong.wav"_s, "x");
        desk.Machine.WriteFile(u"SoundFiles/Bell.wav"_s, "x");
        const MenuNode menu = desk.Sub(u"SetSoundFile"_s);
        QCOMPARE(desk.Captions(menu),
                 (QStringList{u"None"_s, u"Bell.wav"_s, u"gong.wav"_s, u"More"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"None"_s});
        desk.Choose(u"gong.wav"_s, u"SetSoundFile"_s);
        QVERIFY(desk.File().startsWith("5,Red,.\\SoundFiles\\gong.wav,,#"));
        QCOMPARE(desk.Ticked(desk.Sub(u"SetSoundFile"_s)), QStringList{u"gong.wav"_s});
        desk.Choose(u"None"_s, u"SetSoundFile"_s);
        QCOMPARE(desk.Timers.Timer(1).SoundFile, QString());
        desk.Change([](ClockTimer& timer) { timer.SoundFile = u"None"_s; });
        QCOMPARE(desk.Ticked(desk.Sub(u"SetSoundFile"_s)), QStringList{u"None"_s});
    }

    void ASoundIsPicked() {
        MenuDesk desk;
        desk.Machine.Dialogs.FileAnswers = {u"/sounds/horn.mp3"_s, QString(), u"/a,b.wav"_s};
        desk.Choose(u"More"_s, u"SetSoundFile"_s);
        QCOMPARE(desk.Timers.Timer(1).SoundFile, u"\\sounds\\horn.mp3"_s);
        QCOMPARE(desk.Machine.Dialogs.PickerFolders,
                 QStringList{desk.Machine.AppFolder() + u"/SoundFiles/"_s});
        QCOMPARE(desk.Ticked(desk.Sub(u"SetSoundFile"_s)), QStringList());
        desk.Choose(u"More"_s, u"SetSoundFile"_s);
        desk.Choose(u"More"_s, u"SetSoundFile"_s);
        QCOMPARE(desk.Timers.Timer(1).SoundFile, u"\\sounds\\horn.mp3"_s);
    }

    void Actions() {
        MenuDesk desk;
        const MenuNode menu = desk.Sub(u"SetAction"_s);
        QCOMPARE(desk.Captions(menu),
                 (QStringList{u"None"_s, u"Log Off"_s, u"Normal Shutdown"_s, u"Reboot"_s,
                              u"Forced Shutdown"_s, u"Lock Workstation"_s, u"-"_s, u"More"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"None"_s});
        QVERIFY(!menu.Children[6].Choose);
        desk.Choose(u"Reboot"_s, u"SetAction"_s);
        QVERIFY(desk.File().startsWith("5,Red,,Reboot,#"));
        QCOMPARE(desk.Ticked(desk.Sub(u"SetAction"_s)), QStringList{u"Reboot"_s});
    }

    void AProgramIsPicked() {
        MenuDesk desk;
        desk.Module.Paths.ActionFile = desk.Machine.AppFolder() + u"/Action.txt"_s;
        const QString program = desk.Machine.WriteFile(u"tool"_s, "x");
        desk.Machine.Dialogs.FileAnswers = {program, QString(), u"/not/there"_s, u"/a=b"_s};
        desk.Choose(u"More"_s, u"SetAction"_s);
        QCOMPARE(desk.Timers.Timer(1).TimerAction, program);
        const MenuNode menu = desk.Sub(u"SetAction"_s);
        QCOMPARE(menu.Children[7].Caption, program);
        QCOMPARE(desk.Ticked(menu), QStringList{program});
        desk.Choose(u"More"_s, u"SetAction"_s);  // cancelled
        QCOMPARE(desk.Timers.Timer(1).TimerAction, program);
        desk.Choose(u"More"_s, u"SetAction"_s);  // taken, but no program to offer again
        QCOMPARE(desk.Timers.Timer(1).TimerAction, u"/not/there"_s);
        desk.Choose(u"More"_s, u"SetAction"_s);
        QCOMPARE(desk.Timers.Timer(1).TimerAction, u"/not/there"_s);
        QCOMPARE(desk.Sub(u"SetAction"_s).Children.size(), 9);
    }

    void MusicVolumes() {
        MenuDesk desk;
        desk.Data.EditProperties();
        mduLib::PutPropertyRaw(u"Music Volume"_s, u"40,0,20,40,60"_s, desk.Data.EditProperties());
        const MenuNode menu = desk.Sub(u"TimerPlayMusic"_s);
        QCOMPARE(desk.Captions(menu), (QStringList{u"0"_s, u"20"_s, u"40"_s, u"60"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"40"_s});
        QCOMPARE(menu.Children[0].Name, u"MusicVolumeMenu1"_s);
        desk.Choose(u"60"_s, u"TimerPlayMusic"_s);
        QVERIFY(desk.File().startsWith("5,Red,,,60#"));
        QCOMPARE(desk.Ticked(desk.Sub(u"TimerPlayMusic"_s)), QStringList{u"60"_s});
        QCOMPARE(desk.Value(u"Music Volume"_s), u"40"_s);
    }

    void OtherTimes() {
        MenuDesk desk;
        const MenuNode menu = desk.Sub(u"ChangeTimer"_s);
        QCOMPARE(
            desk.Captions(menu),
            (QStringList{u"02:59"_s, u"03:00"_s, u"03:01"_s, u"03:02"_s, u"03:03"_s, u"03:04"_s,
                         u"03:05"_s, u"03:06"_s, u"03:07"_s, u"03:08"_s, u"03:09"_s, u"03:10"_s}));
        QCOMPARE(desk.Ticked(menu), QStringList{u"03:05"_s});
        QCOMPARE(menu.Children[0].Name, u"Timer1"_s);
        desk.Choose(u"03:09"_s, u"ChangeTimer"_s);
        QVERIFY(desk.File().endsWith("15:9=Tea\r\n"));
        QCOMPARE(desk.Captions(desk.Menus.ImgTimerMenu(1))[7], u"Remove Timer 03:09"_s);
    }

    void TheTimerIsRemoved() {
        MenuDesk desk;
        desk.Choose(u"Remove Timer 03:05"_s);
        QVERIFY(desk.Timers.Timer(1).IsFree());
        QCOMPARE(desk.File(), QByteArray());
    }

    void PermanentAndBack() {
        MenuDesk desk;
        desk.Choose(u"Set Permanent Timer"_s);
        QVERIFY(desk.File().endsWith("#15:5@Tea\r\n"));
        desk.Choose(u"Remove Permanent Timer"_s);
        QVERIFY(desk.File().endsWith("#16/06/2026 15:5=Tea\r\n"));
    }
};

QTEST_MAIN(tst_TimerMenus)
#include "tst_TimerMenus.moc"
