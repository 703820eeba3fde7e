#include <QApplication>
#include <QMenu>
#include <QTest>

#include "clock/FormDesk.h"
#include "clock/ui/ClockMenuHandlers.h"
#include "clock/ui/TimersOnDial.h"
#include "drawing/StockPictures.h"
#include "support/FakeDialogs.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockPart;

namespace {

/// The menus of a clock over a plain widget.
struct MenuDesk : FormDesk {
    QWidget Form;
    timers::ActionList Actions{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, TimerHost}};
    clockcore::PartMenus OnParts{Data,
                                 TheProgram,
                                 {Controls, Parts.TheWindow, Parts.ThePlacement, Canvas, Settings,
                                  Dialogs, Messages, Voice, Parts.TheSpoken}};
    timers::ClockTimers Timers{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, TimerHost}, Messages};
    drawing::CalculatorClock Calculator;
    Program Sounding{Speaking, Module, Windows};
    clockcore::TimersOnDial Dial{
        Data, Sounding, {Form, Controls, Canvas, TimerHost, Calculator, Timers, Actions, OnParts}};
    clockcore::FormPopup Popup{
        Form,
        Data,
        Controls,
        TheProgram,
        {Screen, Parts.TheWindow, Parts.ThePlacement, Files, Styles, Look, Commands, Voice}};
    clockcore::ClockMenuHandlers Menus{{Form, Controls, Canvas, Messages, Actions, Voice,
                                        Parts.TheSpoken, Popup, Commands, Keys, OnParts, Dial}};

    MenuDesk() {
        Data.TimerFile = Machine.AppFolder() + u"/Timer.txt"_s;
        Form.resize(200, 150);
        Form.show();
    }
    static QMenu* Open() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    QString OpenName(ClockPart part, int index = 1) {
        Menus.ShowMenu({part, index}, {10, 10});
        const QMenu* menu = Open();
        return menu != nullptr ? menu->objectName() : QString();
    }
    /// Chooses an entry of the open menu, or of one of its sub-menus, by its caption.
    static bool Choose(const QString& caption) {
        QMenu* menu = Open();
        for (QAction* action : menu->findChildren<QAction*>()) {
            if (action->text() == caption && action->menu() == nullptr) {
                menu->close();
                action->trigger();
                return true;
            }
        }
        return false;
    }
};

}  // namespace

class tst_ClockMenuHandlers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachPartOpensItsMenu_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("name");
        QTest::newRow("face") << ClockPart::Face << u"FormPopup"_s;
        QTest::newRow("speaker") << ClockPart::Speaker << u"SpeakerMenu"_s;
        QTest::newRow("action") << ClockPart::Action << u"ActionMenu"_s;
        QTest::newRow("message") << ClockPart::Message << u"MessageMenu"_s;
        QTest::newRow("spot") << ClockPart::Spot << u"SetTimer"_s;
        QTest::newRow("a slot without a timer") << ClockPart::TimerMark << u"FormPopup"_s;
    }

    void EachPartOpensItsMenu() {
        QFETCH(ClockPart, part);
        MenuDesk desk;
        QTEST(desk.OpenName(part), "name");
    }

    void ATimersMarkOpensItsMenu() {
        MenuDesk desk;
        QCOMPARE(desk.Timers.SetNewTimer(u"03:05"_s), 1);
        QCOMPARE(desk.OpenName(ClockPart::TimerMark), u"ImgTimerMenu"_s);
        QVERIFY(MenuDesk::Choose(u"Set Permanent Timer"_s));
        QVERIFY(desk.Timers.Timer(1).IsPermanent());
    }

    void ASpotMakesATimer() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Spot, 16);
        QVERIFY(MenuDesk::Choose(u"03:14"_s));
        QCOMPARE(desk.Timers.Timer(1).TimerTime, u"03:14"_s);
        QVERIFY(desk.Form.findChild<QWidget*>(u"txtMsg"_s) != nullptr);
    }

    void TheFormMenuMakesItsClockCurrent() {
        MenuDesk desk;
        desk.Module.Paths.CurrentPropertyFile = u"/another.ini"_s;
        desk.OpenName(ClockPart::Face);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Data.PropertyFileName);
    }

    void AnEntryOfTheFormMenuIsRun() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Analogue and Digital"_s));
        QVERIFY(desk.Data.Is(ClockKind::AnalogueAndDigital));
    }

    void KeysAndTheGroundAreHandedOn() {
        MenuDesk desk;
        QVERIFY(desk.Menus.PressKey(112, 0));
        QCOMPARE(desk.Shell.Take(), QStringList(u"clock help"_s));
        QVERIFY(!desk.Menus.PressKey('A', 0));
        desk.Menus.DoubleClickGround();
        QCOMPARE(desk.Parts.ThePlacement.State, 2);
    }

    void AMessageHides() {
        MenuDesk desk;
        desk.Messages.ShowMessage(u"Tea"_s);
        desk.OpenName(ClockPart::Message);
        QVERIFY(MenuDesk::Choose(u"Hide Message"_s));
        QCOMPARE(desk.Messages.PendingMessage(), QString());
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void ADisabledClockIsEnabled() {
        MenuDesk desk;
        desk.Menus.ShowDisabledMenu({10, 10});
        QVERIFY(MenuDesk::Open() != nullptr);
        QCOMPARE(MenuDesk::Open()->objectName(), u"DisabledMenu"_s);
        QVERIFY(MenuDesk::Choose(u"Enable Clock"_s));
        QVERIFY(desk.Calls().startsWith(u"enable"_s));
    }

    void AnActionIsCancelled() {
        MenuDesk desk;
        desk.Messages.SetPendingAction(u"Lock Workstation"_s);
        QVERIFY(desk.Messages.StartCountdown(desk.Machine.Clock.Now(), 5));
        desk.OpenName(ClockPart::Action);
        QVERIFY(MenuDesk::Choose(u"Cancel Action"_s));
        QCOMPARE(desk.Messages.ActionDeadline(), QString());
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void AClickSpeaksTheAction() {
        MenuDesk desk;
        desk.Devices.Voices.Lasting = true;
        desk.Messages.SetPendingAction(u"Lock Workstation"_s);
        desk.Menus.ClickAction();
        QVERIFY(desk.Controls.imgAction(1).Picture ==
                drawing::GetStockPicture(drawing::StockPicture::ActionSpeaking));
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void FillsTheMenuOfActions() {
        MenuDesk desk;
        QVERIFY(desk.Actions.Entries().empty());
        desk.Menus.FillMenuArrays();
        QVERIFY(!desk.Actions.Entries().empty());
    }

    // A machine may be slow to answer; at the first right click it is to be known.
    void AsksForTheSoundDevicesEarly() {
        MenuDesk desk;
        desk.Devices.Sound.AnswersLater = true;
        desk.Menus.FillMenuArrays();
        QVERIFY(desk.Devices.Sound.IsAsked());
    }

    void TheSpeakerHasAHint() {
        MenuDesk desk;
        QVERIFY(!desk.Menus.SpeakerHint().isEmpty());
    }
};

QTEST_MAIN(tst_ClockMenuHandlers)
#include "tst_ClockMenuHandlers.moc"
