#include <QTest>

#include "clock/ClockHit.h"

using clockcore::ClockHit;
using clockcore::ClockPart;
using mduUILib::Control;

namespace {

void Put(Control& control, float left, float top, float width, float height) {
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    control.Visible = true;
}

}  // namespace

class tst_ClockHit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyClockIsItsFace() {
        QCOMPARE(clockcore::PartAt({}, {10, 10}).Part, ClockPart::Face);
    }

    void EachPartInItsRectangle() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        Put(controls.imgAction(1), 20, 0, 10, 10);
        Put(controls.lblActionMsg(1), 40, 0, 10, 10);
        Put(controls.lblMsg(1), 60, 0, 10, 10);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Speaker);
        QCOMPARE(clockcore::PartAt(controls, {15, 5}).Part, ClockPart::Face);
        QCOMPARE(clockcore::PartAt(controls, {25, 5}).Part, ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {45, 5}).Part, ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {65, 5}).Part, ClockPart::Message);
        QCOMPARE(clockcore::PartAt(controls, {65, 15}).Part, ClockPart::Face);
    }

    void TheUpperOneIsMeant() {
        mduUILib::ClockControls controls;
        Put(controls.lblMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Message);
        Put(controls.lblActionMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Action);
        Put(controls.imgSpeaker(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Speaker);
    }

    void OneOfManyHasItsNumber() {
        mduUILib::ClockControls controls;
        Put(controls.imgTimer(100), 0, 0, 10, 10);
        Put(controls.lblHour(60), 20, 0, 10, 10);
        Put(controls.imgClockNumber(1), 40, 0, 10, 10);
        Put(controls.lblDigitalNumber(6), 60, 0, 10, 10);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), (ClockHit{ClockPart::TimerMark, 100}));
        QCOMPARE(clockcore::PartAt(controls, {25, 5}), (ClockHit{ClockPart::HourNumber, 60}));
        QCOMPARE(clockcore::PartAt(controls, {45, 5}), (ClockHit{ClockPart::Spot, 1}));
        QCOMPARE(clockcore::PartAt(controls, {65, 5}), (ClockHit{ClockPart::Digits, 6}));
        QCOMPARE(clockcore::PartAt(controls, {85, 5}), (ClockHit{ClockPart::Face, 1}));
    }

    // As they are painted, the lowest first.
    void EachPartCoversThoseBelow() {
        mduUILib::ClockControls controls;
        const std::pair<mduUILib::Control*, ClockPart> parts[] = {
            {&controls.imgClockNumber(7), ClockPart::Spot},
            {&controls.lblHour(5), ClockPart::HourNumber},
            {&controls.lblDigitalNumber(1), ClockPart::Digits},
            {&controls.lblTimeInput(1), ClockPart::Input},
            {&controls.lblTimeOutput(1), ClockPart::Output},
            {&controls.imgFlag(1), ClockPart::Flag},
            {&controls.lblLocation(1), ClockPart::Location},
            {&controls.imgTimer(3), ClockPart::TimerMark},
            {&controls.lblMsg(1), ClockPart::Message},
        };
        for (const auto& [control, part] : parts) {
            Put(*control, 0, 0, 50, 50);
            QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, part);
        }
    }

    void AHiddenPartIsNotMeant() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        controls.imgSpeaker(1).Visible = false;
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Face);
    }

    void TheFirstOfSeveral() {
        mduUILib::ClockControls controls;
        QVERIFY(clockcore::ControlAt(controls.lblHour, {5, 5}) == nullptr);
        Put(controls.lblHour(7), 0, 0, 10, 10);
        Put(controls.lblHour(30), 5, 0, 10, 10);
        QCOMPARE(clockcore::ControlAt(controls.lblHour, {7, 5}), &controls.lblHour(7));
        QCOMPARE(clockcore::ControlAt(controls.lblHour, {12, 5}), &controls.lblHour(30));
    }
};

QTEST_APPLESS_MAIN(tst_ClockHit)
#include "tst_ClockHit.moc"
