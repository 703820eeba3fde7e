#include <QTest>

#include "clock/PartWalk.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;
using clockcore::ClockHit;
using clockcore::ClockKind;
using clockcore::ClockPart;
using clockcore::DragObject;
using clockcore::PartWalk;

namespace {

/// A clock of 200 by 100 pixels where nothing is seen but what a test shows.
struct WalkDesk : TimerDesk {
    clockcore::ClockData Data;

    explicit WalkDesk(ClockKind kind) {
        Data.Tag = {kind, false};
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"-1"_s, Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"-1"_s, Data.EditProperties());
        for (mduUILib::ControlArray* array : Controls.All()) {
            for (mduUILib::Control& control : array->Members) {
                control.Width = control.Height = 10;
            }
        }
    }
    void SetTimer(int slot, const QString& time, bool onDial = true) {
        timers::ClockTimer timer;
        timer.TimerTime = time;
        timer.OnDial = onDial;
        timer.Permanent = u"P"_s;
        Timers.ChangeTimer(slot, timer);
    }
    /// What a screen reader is told of the parts, one behind the other.
    QString Order() const {
        QStringList parts;
        for (const ClockHit& hit : clockcore::PartsInOrder(Data, Controls, {200, 100}, Timers)) {
            parts += PartName(Controls, hit);
        }
        return parts.join(u", "_s);
    }
};

}  // namespace

class tst_PartWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AllPartsInTheirOrder() {
        WalkDesk desk(ClockKind::AnalogueAndDigital);
        mduUILib::ClockControls& controls = desk.Controls;
        for (mduUILib::ControlArray* array :
             {&controls.lblLocation, &controls.imgFlag, &controls.imgSpeaker, &controls.lblMsg,
              &controls.imgAction, &controls.lblDigitalNumber}) {
            (*array)(1).Visible = true;
        }
        controls.lblDigitalNumber(3).Visible = true;
        controls.lblHour(60).Visible = controls.lblHour(15).Visible = true;
        controls.lblHour(16).Visible = true;  // between two numbers there is none to go to
        for (const int spot : {6, 16, 60}) {
            controls.imgClockNumber(spot).Visible = true;
            controls.imgClockNumber(spot).ToolTipText = u"at %1"_s.arg(spot);
        }
        desk.SetTimer(4, u"03:14"_s);  // of spot 16
        desk.SetTimer(2, u"12:05"_s);  // of spot 60
        QCOMPARE(desk.Order(),
                 u"Hands, Hour number 3, Hour number 12, Timer spot at 16, Timer spot at 60, "
                 "Timer 2, Timer 4, Action, Message, Speaker, Flag, Digits, Name of the zone"_s);
    }

    void WhatIsHiddenIsPassedOver() {
        WalkDesk desk(ClockKind::Digital);
        QCOMPARE(desk.Order(), QString());
        desk.Controls.lblDigitalNumber(5).Visible = true;
        QCOMPARE(desk.Order(), u"Digits"_s);
        desk.SetTimer(1, u"03:14"_s);  // its spot is hidden, its mark is not
        QCOMPARE(desk.Order(), u"Timer 1, Digits"_s);
    }

    /// A dial that was dragged to the edge has numbers beyond it.
    void WhatLiesBeyondTheEdgeIsPassedOver() {
        WalkDesk desk(ClockKind::Digital);
        mduUILib::Control& flag = desk.Controls.imgFlag(1);
        flag.Visible = true;
        flag.Left = 199;
        QCOMPARE(desk.Order(), u"Flag"_s);
        flag.Left = 200;
        QCOMPARE(desk.Order(), QString());
        flag.Left = 50;
        flag.Top = -10;
        QCOMPARE(desk.Order(), QString());
        flag.Top = -9;
        QCOMPARE(desk.Order(), u"Flag"_s);
    }

    /// One that is off the dial has no spot, and neither has a text that is no time.
    void SpotsOfTimers() {
        WalkDesk desk(ClockKind::Digital);
        for (mduUILib::Control& spot : desk.Controls.imgClockNumber.Members) {
            spot.Visible = true;
        }
        desk.SetTimer(1, u"03:14"_s, false);
        QCOMPARE(desk.Order(), QString());
        desk.SetTimer(1, u"soon"_s);
        QCOMPARE(desk.Order(), u"Timer 1"_s);
        desk.SetTimer(1, u"12:13"_s);
        desk.Controls.imgClockNumber(1).ToolTipText = u"12:12"_s;
        QCOMPARE(desk.Order(), u"Timer spot 12:12, Timer 1"_s);
    }

    void ToTheEndAndOut() {
        const std::vector<ClockHit> parts = {{ClockPart::Hands}, {ClockPart::Flag}};
        PartWalk walk;
        QVERIFY(!walk.Focus());
        QVERIFY(walk.Step(parts, true));
        QCOMPARE(walk.Focus()->Part, ClockPart::Hands);
        QVERIFY(walk.Step(parts, true));
        QCOMPARE(walk.Focus()->Part, ClockPart::Flag);
        QVERIFY(!walk.Step(parts, true));
        QVERIFY(!walk.Focus());
        QVERIFY(walk.Step(parts, true));
        QCOMPARE(walk.Focus()->Part, ClockPart::Hands);
    }

    void BackFromTheEnd() {
        const std::vector<ClockHit> parts = {{ClockPart::Hands}, {ClockPart::Flag}};
        PartWalk walk;
        QVERIFY(walk.Step(parts, false));
        QCOMPARE(walk.Focus()->Part, ClockPart::Flag);
        QVERIFY(walk.Step(parts, false));
        QCOMPARE(walk.Focus()->Part, ClockPart::Hands);
        QVERIFY(!walk.Step(parts, false));
        QVERIFY(!walk.Focus());
    }

    void APartThatIsGoneIsOutside() {
        PartWalk walk;
        QVERIFY(walk.Step({{ClockPart::Hands}, {ClockPart::Flag}}, true));
        QVERIFY(walk.Step({{ClockPart::Digits}, {ClockPart::Flag}}, true));
        QCOMPARE(walk.Focus()->Part, ClockPart::Digits);
        QVERIFY(!walk.Step({}, true));
        QVERIFY(!walk.Focus());
    }

    void WhatIsPushed() {
        clockcore::DragGround ground;
        QCOMPARE(PushedWith(ClockPart::Hands, ground), DragObject::Dial);
        QCOMPARE(PushedWith(ClockPart::Speaker, ground), DragObject::Speaker);
        QCOMPARE(PushedWith(ClockPart::Location, ground), DragObject::Location);
        QCOMPARE(PushedWith(ClockPart::Flag, ground), DragObject::Flag);
        QCOMPARE(PushedWith(ClockPart::HourNumber, ground), DragObject::None);
        QCOMPARE(PushedWith(ClockPart::Digits, ground), DragObject::Digits);
        ground.HasFreeDigits = false;
        QCOMPARE(PushedWith(ClockPart::Digits, ground), DragObject::None);
    }
};

QTEST_MAIN(tst_PartWalk)
#include "tst_PartWalk.moc"
