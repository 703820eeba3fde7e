#include <QTest>

#include "clock/MenuDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockHit;
using clockcore::ClockPart;
using clockcore::ClockState;
using clockcore::MenuNode;

namespace {

const QStringList Colours = {u"Black"_s,   u"Blue"_s, u"Cyan"_s,  u"Green"_s,
                             u"Magenta"_s, u"Red"_s,  u"White"_s, u"Yellow"_s};

/// A sub-menu of times as the timers make it, with the text that it was asked for.
MenuNode Times(const QString& time) {
    return {.Name = u"Times"_s,
            .Caption = u"Times"_s,
            .Children = {{.Name = u"TimerTime"_s, .Caption = time}}};
}

}  // namespace

/// The clock's properties are those of the default file.
class tst_PartMenus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AMenuHasTheNameOfItsPart() {
        const MenuDesk desk;
        QCOMPARE(desk.Menu(ClockPart::Hands).Name, u"HandMenu"_s);
        QCOMPARE(desk.Menu(ClockPart::Flag).Name, u"FlagMenu"_s);
    }

    void APartWithoutAMenuHasNone() {
        const MenuDesk desk;
        for (const ClockPart part : {ClockPart::Face, ClockPart::Spot, ClockPart::TimerMark}) {
            QVERIFY(!desk.Menus.MenuOf({part, 1}));
        }
    }

    void AMenuFromElsewhere() {
        MenuDesk desk;
        ClockHit asked;
        desk.Menus.SetMaker(ClockPart::Spot, [&asked](const ClockHit& hit) {
            asked = hit;
            return MenuNode{.Name = u"SetTimer"_s, .Children = {{.Caption = u"3:00"_s}}};
        });
        QCOMPARE(desk.Menu(ClockPart::Spot, 7).Name, u"SetTimer"_s);
        QCOMPARE(asked, (ClockHit{ClockPart::Spot, 7}));
        desk.Menus.SetMaker(ClockPart::Spot, [](const ClockHit&) { return MenuNode(); });
        QVERIFY(!desk.Menus.MenuOf({ClockPart::Spot, 7}));
    }

    void AGroupHoldsItsSubMenus() {
        const MenuDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QCOMPARE(MenuDesk::Captions(&menu),
                 QStringList({u"Hand Colour"_s, u"Hand Style"_s, u"Hand Length (%)"_s,
                              u"Hand Line Width"_s}));
        QCOMPARE(MenuDesk::Captions(MenuDesk::Find(menu, u"HandColours"_s)),
                 QStringList({u"Hour Hand"_s, u"Minute Hand"_s, u"Second Hand"_s, u"Hand Head"_s}));
    }

    void ListsTheChoices_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QStringList>("ticked");
        const QStringList styles = {
            u"Line"_s,    u"Frame"_s, u"3D Metal Simple"_s, u"3D Gold Simple"_s, u"3D Metal"_s,
            u"3D Gold"_s, u"3D"_s};
        const QStringList lengths = {u"10"_s, u"20"_s, u"30"_s, u"40"_s, u"50"_s,
                                     u"60"_s, u"65"_s, u"70"_s, u"75"_s, u"80"_s,
                                     u"85"_s, u"90"_s, u"95"_s, u"100"_s};
        const QStringList widths = {u"1"_s, u"2"_s, u"3"_s,  u"4"_s,  u"5"_s,  u"6"_s, u"7"_s,
                                    u"8"_s, u"9"_s, u"10"_s, u"12"_s, u"15"_s, u"20"_s};
        const auto hands = [](const char* name) -> QTestData& {
            return QTest::newRow(name) << ClockPart::Hands << QString::fromLatin1(name);
        };
        hands("HourHandStyles") << styles << QStringList{u"3D"_s};
        hands("MinuteHandStyles") << styles << QStringList{u"3D"_s};
        hands("SecondHandStyles") << styles << QStringList{u"Line"_s};
        hands("HourHandLengths") << lengths << QStringList{u"50"_s};
        hands("MinuteHandLengths") << lengths << QStringList{u"75"_s};
        hands("SecondHandLengths") << lengths << QStringList{u"85"_s};
        hands("HourHandLineWidths") << widths << QStringList{u"7"_s};
        hands("MinuteHandLineWidths") << widths << QStringList{u"4"_s};
        hands("SecondHandLineWidths") << widths << QStringList{u"1"_s};
        QTest::newRow("DigitalFormat") << ClockPart::Digits << u"DigitalFormat"_s
                                       << QStringList{u"hh:mm"_s, u"hh:mm:ss"_s, u"hh:mm:ss ampm"_s,
                                                      u"mm:ss"_s, u"hh:mm ampm"_s}
                                       << QStringList{u"hh:mm:ss"_s};
        QTest::newRow("SpotStyle")
            << ClockPart::HourNumber << u"SpotStyle"_s
            << QStringList{u"No Spots"_s, u"Spot 8"_s,       u"Spot 12"_s,   u"Spot 60"_s,
                           u"Cross 4"_s,  u"Horizontal 2"_s, u"Vertical 2"_s}
            << QStringList{u"Spot 60"_s};
        QTest::newRow("LocationSize")
            << ClockPart::Location << u"LocationSize"_s
            << QStringList{u"-1"_s, u"0"_s,  u"4"_s,  u"6"_s,  u"8"_s,  u"10"_s,
                           u"12"_s, u"14"_s, u"16"_s, u"18"_s, u"20"_s, u"24"_s,
                           u"28"_s, u"32"_s, u"36"_s, u"48"_s, u"60"_s, u"72"_s}
            << QStringList{u"-1"_s};
        QTest::newRow("VoiceMenu") << ClockPart::Speaker << u"VoiceMenu"_s
                                   << QStringList{u"Ann"_s, u"Bob"_s} << QStringList();
    }

    void ListsTheChoices() {
        QFETCH(ClockPart, part);
        QFETCH(QString, name);
        const MenuDesk desk;
        const MenuNode menu = desk.Menu(part);
        const MenuNode* list = MenuDesk::Find(menu, name);
        QVERIFY(list != nullptr);
        QTEST(MenuDesk::Captions(list), "captions");
        QTEST(MenuDesk::Ticked(list), "ticked");
    }

    // They are the whole menu.
    void TheCornersOfAFlag() {
        MenuDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Flag);
        QCOMPARE(MenuDesk::Captions(&menu),
                 QStringList({u"Top right"_s, u"Top left"_s, u"Bottom right"_s, u"Bottom left"_s,
                              u"Icon"_s}));
        QCOMPARE(MenuDesk::Ticked(&menu), QStringList{u"Top right"_s});
        QCOMPARE(menu.Children.front().Name, u"FlagPos"_s);
        mduLib::PutPropertyRaw(u"Flag Position"_s, QString(), desk.Data.EditProperties());
        QVERIFY(!desk.Menus.MenuOf({ClockPart::Flag, 1}));
    }

    void AnyColourMayBeChosen_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("name");
        QTest::newRow("hour hand") << ClockPart::Hands << u"HourHandColours"_s;
        QTest::newRow("minute hand") << ClockPart::Hands << u"MinuteHandColours"_s;
        QTest::newRow("second hand") << ClockPart::Hands << u"SecondHandColours"_s;
        QTest::newRow("head") << ClockPart::Hands << u"HandHeadColours"_s;
        QTest::newRow("numbers") << ClockPart::HourNumber << u"HourColour"_s;
        QTest::newRow("digits") << ClockPart::Digits << u"FontColour"_s;
        QTest::newRow("local time") << ClockPart::Input << u"LocalTimeFontColour"_s;
        QTest::newRow("location") << ClockPart::Location << u"LocationColour"_s;
    }

    void AnyColourMayBeChosen() {
        QFETCH(ClockPart, part);
        QFETCH(QString, name);
        const MenuDesk desk;
        const MenuNode menu = desk.Menu(part);
        const MenuNode* list = MenuDesk::Find(menu, name);
        QCOMPARE(MenuDesk::Captions(list), Colours + QStringList({u"Random"_s, u"Custom"_s}));
        QCOMPARE(MenuDesk::Ticked(list), QStringList());  // the default is a number
    }

    void AMessageHasTheEightColours() {
        MenuDesk desk;
        desk.Controls.lblMsg(1).ForeColor = 0x00FF00;
        desk.Controls.lblActionMsg(1).ForeColor = 0xFF0000;
        const MenuNode message = desk.Menu(ClockPart::Message);
        const MenuNode* colours = MenuDesk::Find(message, u"MessageFontColour"_s);
        QCOMPARE(MenuDesk::Captions(colours), Colours);
        QCOMPARE(MenuDesk::Ticked(colours), QStringList{u"Green"_s});
        const MenuNode action = desk.Menu(ClockPart::Action);
        const MenuNode* ofAction = MenuDesk::Find(action, u"SetActionMsgColour"_s);
        QCOMPARE(MenuDesk::Captions(ofAction), Colours);
        QCOMPARE(MenuDesk::Ticked(ofAction), QStringList{u"Blue"_s});
    }

    void TicksThePresentValue_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("ticked");
        QTest::newRow("a name") << u"Blue"_s << QStringList{u"Blue"_s};
        QTest::newRow("blanks around it") << u" Random "_s << QStringList{u"Random"_s};
        QTest::newRow("another letter case") << u"blue"_s << QStringList{u"Blue"_s};
        QTest::newRow("its number") << u"16711680"_s << QStringList{u"Blue"_s};
        QTest::newRow("without a name") << u"4711"_s << QStringList();
        QTest::newRow("nothing") << QString() << QStringList();
    }

    void TicksThePresentValue() {
        QFETCH(QString, value);
        MenuDesk desk;
        desk.Set(u"Hour Hand Colour"_s, value);
        desk.Set(u"Hour Number Colour"_s, value);
        desk.Set(u"Digital Clock Colour"_s, value);
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        const MenuNode numbers = desk.Menu(ClockPart::HourNumber);
        const MenuNode digits = desk.Menu(ClockPart::Digits);
        QTEST(MenuDesk::Ticked(MenuDesk::Find(menu, u"HourHandColours"_s)), "ticked");
        QTEST(MenuDesk::Ticked(MenuDesk::Find(numbers, u"HourColour"_s)), "ticked");
        QTEST(MenuDesk::Ticked(MenuDesk::Find(digits, u"FontColour"_s)), "ticked");
        QCOMPARE(MenuDesk::Ticked(MenuDesk::Find(menu, u"MinuteHandColours"_s)), QStringList());
    }

    // The file is the user's: what it lists is offered, and nothing is made up.
    void TheFileTellsTheChoices_data() {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("none") << u""_s << QStringList() << false;
        QTest::newRow("a value alone") << u"3D"_s << QStringList{u"3D"_s} << true;
        QTest::newRow("one") << u"3D,Line"_s << QStringList{u"Line"_s} << true;
        QTest::newRow("blanks and gaps")
            << u"3D, Line ,,Frame,"_s << QStringList{u"Line"_s, u"Frame"_s} << true;
        QTest::newRow("a comma alone") << u","_s << QStringList() << false;
    }

    void TheFileTellsTheChoices() {
        QFETCH(QString, row);
        MenuDesk desk;
        mduLib::PutPropertyRaw(u"Hour Hand Style"_s, row, desk.Data.EditProperties());
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        const MenuNode* list = MenuDesk::Find(menu, u"HourHandStyles"_s);
        QTEST(MenuDesk::Captions(list), "captions");
        QTEST(list->Enabled, "enabled");
    }

    void FurtherColoursComeBehindTheEight() {
        MenuDesk desk;
        mduLib::PutPropertyRaw(u"Hour Hand Colour"_s, u"Red,Red,Custom,&HFF8000,Blue"_s,
                               desk.Data.EditProperties());
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        const MenuNode* list = MenuDesk::Find(menu, u"HourHandColours"_s);
        QCOMPARE(MenuDesk::Captions(list), Colours + QStringList({u"&HFF8000"_s, u"Custom"_s}));
        QVERIFY(list->Enabled);
    }

    void TheTimesAreThoseOfTheTimers_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("time");
        QTest::newRow("one o'clock") << 5 << u"1"_s;
        QTest::newRow("twelve o'clock") << 60 << u"12"_s;
        QTest::newRow("behind one o'clock") << 6 << u"1:12"_s;
        QTest::newRow("before one o'clock") << 4 << u"0:48"_s;
    }

    void TheTimesAreThoseOfTheTimers() {
        QFETCH(int, index);
        MenuDesk desk;
        desk.Menus.SetTimeMenu(Times);
        const MenuNode menu = desk.Menu(ClockPart::HourNumber, index);
        QCOMPARE(menu.Children.front().Name, u"SetTimer"_s);
        QCOMPARE(menu.Children.front().Caption, u"Set Timer"_s);
        QTEST(menu.Children.front().Children.front().Caption, "time");
        QCOMPARE(menu.Children[1].Caption, u"-"_s);
    }

    // The plain text, without the name in front of it and the caret.
    void ATimerForTheCalculatedTime() {
        MenuDesk desk;
        desk.Menus.SetTimeMenu(Times);
        desk.Controls.lblTimeOutput(1).Tag = u"16/06/2026 9:05:07"_s;
        desk.Controls.lblTimeOutput(1).Caption = u"Tokyo: 16/06/2026 9:05:0_"_s;
        const MenuNode menu = desk.Menu(ClockPart::Output);
        QCOMPARE(menu.Children.front().Name, u"OutputTimer"_s);
        QCOMPARE(menu.Children.front().Children.front().Caption, u"16/06/2026 9:05:07"_s);
    }

    void WithoutTimersThereIsNoRowForThem() {
        MenuDesk desk;
        desk.Controls.lblTimeOutput(1).Tag = u"9:05"_s;
        QCOMPARE(desk.Menu(ClockPart::HourNumber, 5).Children.front().Name, u"NumberStyle"_s);
        QCOMPARE(desk.Menu(ClockPart::Output).Children.front().Name, u"CalculatedTimeFontColour"_s);
    }

    void OnlyADateHasTheMenuOfTheCalculatedTime_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("offered");
        QTest::newRow("date and time") << u"25/03/2008 9:05:07"_s << true;
        QTest::newRow("a time") << u"12:30"_s << true;
        QTest::newRow("nothing") << u""_s << false;
        QTest::newRow("no date") << u"25/13/2008"_s << false;
        QTest::newRow("words") << u"noon"_s << false;
    }

    void OnlyADateHasTheMenuOfTheCalculatedTime() {
        QFETCH(QString, text);
        MenuDesk desk;
        desk.Controls.lblTimeOutput(1).Tag = text;
        QTEST(desk.Menus.MenuOf({ClockPart::Output, 1}).has_value(), "offered");
        QVERIFY(desk.Menus.MenuOf({ClockPart::Input, 1}).has_value());
    }

    void OnAWorldMapTheLocalTimeHasNoMenu() {
        MenuDesk desk;
        desk.Controls.lblTimeOutput(1).Tag = u"12:30"_s;
        desk.Set(u"Clock Special"_s, u"World Map"_s);
        QVERIFY(!desk.Menus.MenuOf({ClockPart::Input, 1}));
        QVERIFY(desk.Menus.MenuOf({ClockPart::Output, 1}));
        desk.Set(u"Clock Special"_s, u"Digital Wave"_s);
        QVERIFY(desk.Menus.MenuOf({ClockPart::Input, 1}));
    }

    // With two minutes left, and with none counting down.
    void TheTimesOfAnAction() {
        MenuDesk desk;
        MenuNode menu = desk.Menu(ClockPart::Action);
        QCOMPARE(MenuDesk::Captions(MenuDesk::Find(menu, u"ActionTime"_s)).first(), u"6"_s);
        desk.Messages.SetPendingAction(u"Lock Workstation"_s);
        QVERIFY(desk.Messages.StartCountdown(desk.Machine.Clock.Now(), 2));
        menu = desk.Menu(ClockPart::Action);
        const MenuNode* times = MenuDesk::Find(menu, u"ActionTime"_s);
        QCOMPARE(MenuDesk::Captions(times),
                 QStringList({u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s,
                              u"12"_s, u"13"_s, u"14"_s, u"15"_s}));
        QVERIFY(times->Children.front().Ticked == MenuNode::Tick::None);
    }

    void ASwitchTellsWhatItIs_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("on");
        QTest::newRow("yes") << u"Yes"_s << true;
        QTest::newRow("no") << u" no "_s << false;
        QTest::newRow("another word") << u"Maybe"_s << true;
    }

    void ASwitchTellsWhatItIs() {
        QFETCH(QString, value);
        QFETCH(bool, on);
        MenuDesk desk;
        desk.Set(u"Speak Timer Message"_s, value);
        const MenuNode menu = desk.Menu(ClockPart::Speaker);
        QCOMPARE(MenuDesk::Find(menu, u"SpeakTimerMessage"_s)->Ticked, clockcore::TickIf(on));
    }

    void TheVoiceInUseIsTicked() {
        MenuDesk desk;
        desk.Set(u"Speaker Voice"_s, u"Bob"_s);
        const MenuNode menu = desk.Menu(ClockPart::Speaker);
        QCOMPARE(MenuDesk::Ticked(MenuDesk::Find(menu, u"VoiceMenu"_s)), QStringList{u"Bob"_s});
    }

    void WithoutVoicesTheirMenuIsShut() {
        MenuDesk desk;
        desk.Devices.Voices.Names.clear();
        speech::SpeakerVoice mute({desk.Data.Properties(), desk.Data.Zone, desk.Controls,
                                   desk.Speaking, desk.Module, desk.SpeechHost});
        const clockcore::PartMenus menus(
            desk.Data, desk.TheProgram,
            {desk.Controls, desk.Parts.TheWindow, desk.Parts.ThePlacement, desk.Canvas,
             desk.Settings, desk.Dialogs, desk.Messages, mute, desk.Parts.TheSpoken});
        const MenuNode menu = *menus.MenuOf({ClockPart::Speaker, 1});
        QVERIFY(!MenuDesk::Find(menu, u"VoiceMenu"_s)->Enabled);
    }

    void TheMenuOfTheTray() {
        MenuDesk desk;
        const MenuNode menu = desk.Menus.SystemTrayMenu();
        QCOMPARE(menu.Name, u"SystemTrayMenu"_s);
        QCOMPARE(MenuDesk::Captions(&menu),
                 QStringList({u"Show Clock"_s, u"Speak Time"_s, u"-"_s, u"Close"_s}));
    }
};

QTEST_MAIN(tst_PartMenus)
#include "tst_PartMenus.moc"
