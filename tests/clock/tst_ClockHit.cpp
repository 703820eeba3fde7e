#include <QTest>

#include "clock/ClockHit.h"

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
    void AnEmptyClockIsItsFace() { QCOMPARE(clockcore::PartAt({}, {10, 10}), ClockPart::Face); }

    void EachPartInItsRectangle() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        Put(controls.imgAction(1), 20, 0, 10, 10);
        Put(controls.lblActionMsg(1), 40, 0, 10, 10);
        Put(controls.lblMsg(1), 60, 0, 10, 10);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), ClockPart::Speaker);
        QCOMPARE(clockcore::PartAt(controls, {15, 5}), ClockPart::Face);
        QCOMPARE(clockcore::PartAt(controls, {25, 5}), ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {45, 5}), ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {65, 5}), ClockPart::Message);
        QCOMPARE(clockcore::PartAt(controls, {65, 15}), ClockPart::Face);
    }

    void TheUpperOneIsMeant() {
        mduUILib::ClockControls controls;
        Put(controls.lblMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), ClockPart::Message);
        Put(controls.lblActionMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), ClockPart::Action);
        Put(controls.imgSpeaker(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), ClockPart::Speaker);
    }

    void AHiddenPartIsNotMeant() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        controls.imgSpeaker(1).Visible = false;
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), ClockPart::Face);
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
