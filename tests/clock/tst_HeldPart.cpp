#include <QTest>

#include "clock/HeldPart.h"
#include "clock/MoveDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::DragObject;
using clockcore::HeldPart;
using clockcore::KeyValues;

namespace {

struct HeldDesk : MoveDesk {
    HeldPart Held{Data, ToMove};
};

const KeyValues FiftyForty{{DialX, u"50"_s}, {DialY, u"40"_s}};

}  // namespace

class tst_HeldPart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NothingIsHeld() {
        HeldDesk desk;
        for (const DragObject object : {DragObject::None, DragObject::Window}) {
            desk.Held.Take(object);
            QCOMPARE(desk.Held.Object(), DragObject::None);
            QVERIFY(!desk.Held.IsStillOurs());
            desk.Held.Store();
            desk.Held.TakeBack();
        }
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    void WhatIsPlacedByPercents() {
        HeldDesk desk;
        QVERIFY(!desk.Held.IsPercent());
        for (const DragObject object : {DragObject::Dial, DragObject::Digits}) {
            desk.Held.Take(object);
            QVERIFY(desk.Held.IsPercent());
        }
        for (const DragObject object :
             {DragObject::Flag, DragObject::Location, DragObject::Speaker, DragObject::Handle}) {
            desk.Held.Take(object);
            QVERIFY(!desk.Held.IsPercent());
        }
    }

    /// From (50, 40) to the end of the last digit at (150, 60).
    void WhereItIs() {
        HeldDesk desk;
        desk.Held.Take(DragObject::Location);
        QCOMPARE(desk.Held.Place(), QRectF(100, 150, 60, 10));
        QCOMPARE(desk.Held.ReadOut(), QRectF(50, 40, 100, 20));
        desk.Controls.lblDigitalNumber(3).Visible = false;
        QCOMPARE(desk.Held.ReadOut(), QRectF(50, 40, 40, 20));
        QCOMPARE(desk.Held.Window().Surface, QSizeF(300, 200));
    }

    void AStepInPercentsIsShown() {
        HeldDesk desk;
        desk.Held.Take(DragObject::Dial);
        desk.Held.Put(FiftyForty);
        QCOMPARE(desk.Values(DialX, DialY), u"50 40"_s);
        QVERIFY(desk.Held.IsStillOurs());
        QCOMPARE(desk.Calls(),
                 u"DrawDialNumbers|SetClockShape|LayOutOverlays|PlaceTimerMarks|"
                 "DrawClockFace"_s);
    }

    void AnotherOneTakesItBack() {
        HeldDesk desk;
        desk.Held.Take(DragObject::Dial);
        desk.Held.Put(FiftyForty);
        desk.Held.Take(DragObject::Location);
        QCOMPARE(desk.Values(DialX, DialY), u"-1 -1"_s);
        QCOMPARE(desk.Held.Object(), DragObject::Location);
        QVERIFY(desk.Held.IsStillOurs());
    }

    void OneKeyOfTwoIsEnoughToLoseIt() {
        HeldDesk desk;
        desk.Held.Take(DragObject::Dial);
        desk.Held.Put(FiftyForty);
        desk.Set(DialY, u"41"_s);
        QVERIFY(!desk.Held.IsStillOurs());
        desk.Held.Store();
        QCOMPARE(desk.Values(DialX, DialY), u"-1 41"_s);  // its own goes back
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    void AStepOfOthersStaysInSight() {
        HeldDesk desk;
        desk.Held.Take(DragObject::Speaker);
        desk.Held.MoveTo({290, -7, 14, 14});
        QCOMPARE(desk.Controls.imgSpeaker(1).Rect(), QRectF(286, 0, 14, 14));
        QCOMPARE(desk.Canvas.Shows, 1);
        desk.Held.Store();
        QCOMPARE(desk.Stored(u"Speaker Image Left"_s, u"Speaker Image Top"_s), u"286 0"_s);
    }

    /// One whose step is over is laid out like all others again.
    void ItIsLetGo() {
        HeldDesk desk;
        desk.Parts.Made.OnCall = [&desk](const QString& call) {
            if (call == u"SetSpeakerPosition"_s) {
                MoveDesk::Put(desk.Controls.imgSpeaker(1), {4, 182, 14, 14});
            }
        };
        desk.Held.Take(DragObject::Speaker);
        desk.Held.MoveTo({50, 60, 14, 14});
        desk.Overlays.SetSpeakerPosition();
        QCOMPARE(desk.Held.Place(), QRectF(50, 60, 14, 14));
        desk.Held.TakeBack();
        desk.Overlays.SetSpeakerPosition();
        QCOMPARE(desk.Controls.imgSpeaker(1).Rect(), QRectF(4, 182, 14, 14));
    }
};

QTEST_MAIN(tst_HeldPart)
#include "tst_HeldPart.moc"
