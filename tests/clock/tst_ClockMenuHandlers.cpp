#include <QApplication>
#include <QMenu>
#include <QTest>

#include "clock/SettingsDesk.h"
#include "clock/ui/ClockMenuHandlers.h"
#include "clock/ui/TimersOnDial.h"
#include "drawing/StockPictures.h"
#include "support/FakeDialogs.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockPart;

namespace {

/// The menus of a clock over a plain widget.
struct MenuDesk : SettingsDesk {
    QWidget Form;
    clockcore::WidgetScreen FormScreen{Form, nullptr, nullptr};
    clockcore::LookDialogs Dialogs{Form, TheProgram, Data.State, Canvas, Look};
    timers::ActionList Actions{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, TimerHost}};
    clockcore::PartMenus OnParts{Data,
                                 TheProgram,
                                 {Controls, Parts.TheWindow, Parts.ThePlacement, Canvas, Settings,
                                  Dialogs, Messages, Voice, Parts.TheSpoken}};
    timers::ClockTimers Timers{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, TimerHost}, Messages};
    drawing::CalculatorClock Calculator;
    clockcore::TimersOnDial Dial{
        Data,
        TheProgram,
        {Form, Controls, Canvas, TimerHost, Calculator, Timers, Actions, OnParts}};
    clockcore::ClockMenuHandlers Menus{
        Data,
        TheProgram,
        {Form, FormScreen, Parts.TheWindow, Controls, Canvas, Files, Styles, Look, Dialogs,
         Settings, Messages, Actions, Voice, Parts.TheSpoken, OnParts}};

    MenuDesk() {
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

    void AKindIsChosen() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Analogue and Digital"_s));
        QVERIFY(desk.Data.Is(ClockKind::AnalogueAndDigital));
    }

    void AColourIsChosenOrPicked() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Red"_s));
        QCOMPARE(desk.Value(u"Window Background Colour"_s), u"Red"_s);
        desk.Machine.Dialogs.ColourAnswers = {4711};
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Custom"_s));
        QCOMPARE(desk.Value(u"Window Background Colour"_s), u"4711"_s);
    }

    void AStyleIsChosenOrAskedFor() {
        MenuDesk desk;
        desk.Module.Paths.StylesFolder = desk.Machine.AppFolder() + u"/Styles/"_s;
        desk.WriteStyle(u"Mine.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s);
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Mine"_s));
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Magenta"_s);
        desk.Machine.Dialogs.FileAnswers = {
            desk.WriteStyle(u"Other.ini"_s, u"Hour Hand Colour"_s, u"Cyan"_s)};
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"More"_s));
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Cyan"_s);
    }

    void CloseClosesTheClock() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Face);
        desk.Calls();
        QVERIFY(MenuDesk::Choose(u"Close"_s));
        QCOMPARE(desk.Calls(), u"CloseClock"_s);
    }

    void WithoutAShellThereIsNoHelp() {
        MenuDesk desk;
        desk.OpenName(ClockPart::Face);
        QVERIFY(MenuDesk::Choose(u"Help"_s));
        QCOMPARE(desk.Calls(), QString());
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

    void TheSpeakerHasAHint() {
        MenuDesk desk;
        QVERIFY(!desk.Menus.SpeakerHint().isEmpty());
    }
};

QTEST_MAIN(tst_ClockMenuHandlers)
#include "tst_ClockMenuHandlers.moc"
