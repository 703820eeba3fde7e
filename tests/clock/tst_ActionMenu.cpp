#include "MenuClicks.h"

namespace {

const QString Zone = u"UTC"_s;
constexpr int Minute = 60'000;

/// A clock on which an action counts down from 12:01 on, with five minutes to go.
struct ActionDesk : ClickedDesk {
    frmTempolark* Clock = nullptr;

    explicit ActionDesk(const QByteArray& timers = "5,red,,Lock Workstation,0#12:1@Go\r\n") {
        Devices.Voices.Names.clear();
        Base.Machine.WriteFile(u"tester/Timers/UTCTimer.txt"_s, timers);
        Clock = Running(Zone);
        Base.Machine.Clock.Advance(Minute + 1000);
    }
    const mduUILib::Control& Label() const { return Clock->Controls().lblActionMsg(1); }
    const mduUILib::Control& Mark() const { return Clock->Controls().imgAction(1); }
    void Open() { Click(*Clock, Label(), Qt::RightButton); }
    const QMenu& Menu(const QString& name) const { return *Clock->findChild<QMenu*>(name); }
};

}  // namespace

/// The menus of a message and of an action that counts down, by real clicks.
class tst_ActionMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HasItsEntries();
    void OpensOnTheMarkAsWell();
    void SpeaksTheActionOnAClick();
    void OffersTwelveTimes_data();
    void OffersTwelveTimes();
    void PostponesTheAction();
    void RunsTheActionWhenItIsDue();
    void CancelsTheAction();
    void ColoursTheText();
    void KeepsTheColourForTheAction();
    void OutlivesTheAction();
    void HidesTheMessage();
};

void tst_ActionMenu::HasItsEntries() {
    ActionDesk desk;
    QVERIFY(desk.Label().Visible);
    desk.Open();
    QVERIFY(ActionDesk::OpenMenu() != nullptr);
    QCOMPARE(ActionDesk::OpenMenu()->objectName(), u"ActionMenu"_s);
    QCOMPARE(
        ActionDesk::Captions(*ActionDesk::OpenMenu()),
        (QStringList{u"Action Time"_s, u"Cancel Action"_s, u"Set Action Message Font Colour"_s}));
}

void tst_ActionMenu::OpensOnTheMarkAsWell() {
    ActionDesk desk;
    desk.Click(*desk.Clock, desk.Mark(), Qt::RightButton);
    QVERIFY(ActionDesk::OpenMenu() != nullptr);
    QCOMPARE(ActionDesk::OpenMenu()->objectName(), u"ActionMenu"_s);
}

// The label shows the seconds as well; they are not spoken.
void tst_ActionMenu::SpeaksTheActionOnAClick() {
    ClickedDesk desk;
    desk.Base.Machine.WriteFile(u"tester/Timers/UTCTimer.txt"_s,
                                "5,red,,Lock Workstation,0#12:1@Go\r\n");
    const frmTempolark* clock = desk.Running(Zone);
    desk.Base.Machine.Clock.Advance(Minute + 1000);
    desk.Devices.Voices.Log.clear();
    desk.Click(*clock, clock->Controls().lblActionMsg(1), Qt::LeftButton);
    desk.Click(*clock, clock->Controls().imgAction(1), Qt::LeftButton);
    QCOMPARE(desk.Devices.Voices.Log,
             QStringList({u"2 Lock Workstation"_s, u"2 Lock Workstation"_s}));
}

void tst_ActionMenu::OffersTwelveTimes_data() {
    QTest::addColumn<QByteArray>("minutes");
    QTest::addColumn<QStringList>("times");

    // A second has gone when the menu opens, so that one minute less is left.
    QTest::newRow("five minutes") << QByteArray("5")
                                  << QStringList{u"2"_s,  u"3"_s,  u"4"_s,  u"5"_s,
                                                 u"6"_s,  u"7"_s,  u"8"_s,  u"9"_s,
                                                 u"10"_s, u"11"_s, u"12"_s, u"13"_s};
    QTest::newRow("one minute") << QByteArray("1")
                                << QStringList{u"6"_s,  u"7"_s,  u"8"_s,  u"9"_s,
                                               u"10"_s, u"11"_s, u"12"_s, u"13"_s,
                                               u"14"_s, u"15"_s, u"16"_s, u"17"_s};
    QTest::newRow("an hour") << QByteArray("60")
                             << QStringList{u"-1"_s, u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s,
                                            u"5"_s,  u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s};
}

void tst_ActionMenu::OffersTwelveTimes() {
    QFETCH(QByteArray, minutes);
    ActionDesk desk(minutes + ",red,,Lock Workstation,0#12:1@Go\r\n");
    desk.Open();
    QTEST(ActionDesk::Captions(desk.Menu(u"ActionTime"_s)), "times");
}

// From 12:01:01 on there are ten minutes again.
void tst_ActionMenu::PostponesTheAction() {
    ActionDesk desk;
    QCOMPARE(desk.Label().Caption, u"Lock Workstation 299"_s);
    desk.Open();
    desk.Choose({u"Action Time"_s, u"10"_s});
    desk.Base.Machine.Clock.Advance(1000);
    QCOMPARE(desk.Label().Caption, u"Lock Workstation 599"_s);
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
}

void tst_ActionMenu::RunsTheActionWhenItIsDue() {
    ActionDesk desk;
    desk.Base.Machine.Clock.Advance(5 * Minute - 2000);
    QCOMPARE(desk.Label().Caption, u"Lock Workstation 1"_s);
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
    desk.Base.Machine.Clock.Advance(2000);
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"lock"_s});
    QVERIFY(!desk.Label().Visible);
}

void tst_ActionMenu::CancelsTheAction() {
    ActionDesk desk;
    desk.Open();
    desk.Choose({u"Cancel Action"_s});
    QVERIFY(!desk.Label().Visible);
    QVERIFY(!desk.Mark().Visible);
    QVERIFY(desk.Clock->Controls().imgTimer(1).Visible);  // the timer's own mark stays
    desk.Base.Machine.Clock.Advance(10 * Minute);
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
}

void tst_ActionMenu::ColoursTheText() {
    ActionDesk desk;
    desk.Open();
    const QMenu& colours = desk.Menu(u"SetActionMsgColour"_s);
    QCOMPARE(ActionDesk::Captions(colours),
             (QStringList{u"Black"_s, u"Blue"_s, u"Cyan"_s, u"Green"_s, u"Magenta"_s, u"Red"_s,
                          u"White"_s, u"Yellow"_s}));
    QCOMPARE(ActionDesk::Ticked(colours), QStringList{u"Blue"_s});
    desk.Choose({u"Set Action Message Font Colour"_s, u"Green"_s});
    QCOMPARE(desk.Label().ForeColor, 0x00FF00);
    desk.Open();
    QCOMPARE(ActionDesk::Ticked(desk.Menu(u"SetActionMsgColour"_s)), QStringList{u"Green"_s});
}

void tst_ActionMenu::KeepsTheColourForTheAction() {
    ActionDesk desk;
    desk.Open();
    desk.Choose({u"Set Action Message Font Colour"_s, u"Yellow"_s});
    ClockProperties stored;
    mduLib::ReadPropertyFile(desk.Base.Machine.Files, desk.Base.Path(Zone), stored);
    QCOMPARE(mduLib::GetPropertyRaw(u"Message Action Colour"_s, stored),
             u"Log Off:Magenta,Normal Shutdown:Red,Reboot:Red,Forced Shutdown:Red,"
             "Lock Workstation:Yellow"_s);
}

// A menu that is still open when its action has run changes nothing any more.
void tst_ActionMenu::OutlivesTheAction() {
    ActionDesk desk;
    desk.Open();
    desk.Base.Machine.Clock.Advance(5 * Minute);
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"lock"_s});
    desk.Choose({u"Set Action Message Font Colour"_s, u"Yellow"_s});
    desk.Base.Machine.Clock.Advance(Minute);
    QVERIFY(!desk.Label().Visible);
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"lock"_s});
}

void tst_ActionMenu::HidesTheMessage() {
    ActionDesk desk("5,red,,None,0#12:1@A message to hide\r\n");
    const mduUILib::Control& message = desk.Clock->Controls().lblMsg(1);
    desk.Base.Machine.Clock.Advance(1000);
    QVERIFY(message.Visible);
    desk.Click(*desk.Clock, message, Qt::RightButton);
    QVERIFY(ActionDesk::OpenMenu() != nullptr);
    QCOMPARE(ActionDesk::Captions(*ActionDesk::OpenMenu()),
             (QStringList{u"Hide Message"_s, u"Set Message Font Colour"_s}));
    desk.Choose({u"Hide Message"_s});
    QVERIFY(!message.Visible);
    QCOMPARE(desk.Clock->PendingMessage(), QString());
}

QTEST_MAIN(tst_ActionMenu)
#include "tst_ActionMenu.moc"
