#include <QTest>

#include "clock/MoveDesk.h"
#include "clock/PartDrag.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::DragObject;

namespace {

struct DragDesk : MoveDesk {
    clockcore::PartDrag Drag{Data, ToMove};
};

}  // namespace

class tst_PartDrag : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// (146 + 10) / 312 and (70 + 20) / 225.
    void ADialFollowsAndIsStoredOnce() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Dial);
        QVERIFY(desk.Drag.Follow({20, 20}, {}));
        QVERIFY(desk.Drag.Follow({146, 70}, {}));
        QCOMPARE(desk.Values(DialX, DialY), u"50 40"_s);
        QCOMPARE(desk.Stored(DialX, DialY), u"-1 -1"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(DialX, DialY), u"50 40"_s);
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
        QCOMPARE(desk.Drag.Object(), DragObject::None);
        desk.Drag.Drop();
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
    }

    void AllThatStandsAroundADialGoesWithIt() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({146, 70}, {});
        QCOMPARE(desk.Calls(),
                 u"DrawDialNumbers|SetClockShape|LayOutOverlays|PlaceTimerMarks|"
                 "DrawClockFace"_s);
        QCOMPARE(desk.Parts.TheDial.Drawn.back(), drawing::DialParts::All);
        desk.Data.Tag.Kind = ClockKind::AnalogueAndDigital;
        desk.Drag.Follow({147, 70}, {});
        QCOMPARE(desk.Calls(),
                 u"DrawDialNumbers|SetClockShape|SetDigitalLayout|LayOutOverlays|"
                 "PlaceTimerMarks|DrawClockFace"_s);
    }

    /// (151 + 5) / 312 and (120 - 30) / 225.
    void DigitsAreLaidOutAgain() {
        DragDesk desk;
        desk.Data.Tag.Kind = ClockKind::Digital;
        desk.Drag.Begin(DragObject::Digits);
        QVERIFY(desk.Drag.Follow({151, 120}, {}));
        QCOMPARE(desk.Calls(), u"SetDigitalLayout"_s);
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(DigitsX, DigitsY), u"50 40"_s);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
    }

    /// The read-out has 100 by 20 pixels: its middle stays in 300 by 200.
    void DigitsKeepHalfInSight() {
        DragDesk desk;
        desk.Data.Tag.Kind = ClockKind::Digital;
        desk.Drag.Begin(DragObject::Digits);
        desk.Drag.Follow({-900, 900}, {});
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(DigitsX, DigitsY), u"-16.66667 95"_s);
    }

    void ANameKeepsThePointerWhereItWasTaken() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Location);
        QVERIFY(desk.Drag.Follow({110, 155}, {-70, -120}));
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(30, 30, 60, 10));
        QCOMPARE(desk.Value(NameLeft), u"-1"_s);
        QCOMPARE(desk.Canvas.Shows, 1);
        QVERIFY(desk.Drag.Follow({110, 155}, {500, -500}));
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(240, 0, 60, 10));
        QCOMPARE(desk.Calls(), QString());
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"240 0"_s);
        QCOMPARE(desk.Calls(), u"LayOutOverlays|SaveTimer UTCTimer.txt"_s);
    }

    void ANameIsLetGoAtTheEnd() {
        DragDesk desk;
        desk.Parts.Made.OnCall = [&desk](const QString& call) {
            if (call == u"LayOutOverlays"_s) {
                MoveDesk::Put(desk.Controls.lblLocation(1), {100, 150, 60, 10});
            }
        };
        for (const bool drop : {false, true}) {
            desk.Drag.Begin(DragObject::Location);
            QVERIFY(desk.Drag.Follow({}, {-20, -30}));
            desk.Overlays.LayOutOverlays();
            QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(80, 120, 60, 10));
            drop ? desk.Drag.Drop() : desk.Drag.TakeBack();
            QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(100, 150, 60, 10));
        }
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"80 120"_s);
    }

    void SpeakerAndHandleHaveKeysOfTheirOwn() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Speaker);
        desk.Drag.Follow({}, {100, -82});
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(u"Speaker Image Left"_s, u"Speaker Image Top"_s), u"104 100"_s);
        desk.Drag.Begin(DragObject::Handle);
        desk.Drag.Follow({}, {33, 44});
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(u"Transparent Icon Left"_s, u"Transparent Icon Top"_s), u"33 44"_s);
    }

    void AFlagGoesToACornerAndKeepsItsChoices() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Flag);
        desk.Drag.Follow({}, {-200, 120});
        QCOMPARE(desk.Controls.imgFlag(1).Rect(), QRectF(60, 120, 40, 20));
        desk.Drag.Drop();
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Bottom left"_s);
        QCOMPARE(mduLib::GetPropertyChoices(u"Flag Position"_s, desk.Data.Properties()),
                 u"Top right,Top left,Bottom right,Bottom left,Icon"_s);
    }

    /// A row of choices alone, without a value.
    void ChoicesWithoutAValueStay() {
        DragDesk desk;
        const auto raw = [&desk](const QString& key) {
            return mduLib::GetPropertyRaw(key, desk.Data.Properties());
        };
        for (const QString& key : {u"Flag Position"_s, DialX}) {
            mduLib::PutPropertyRaw(key, u",Icon,50"_s, desk.Data.EditProperties());
        }
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({20, 20}, {});
        desk.Drag.Follow({146, 70}, {});
        QCOMPARE(raw(DialX), u"50,Icon,50"_s);
        desk.Drag.TakeBack();
        QCOMPARE(raw(DialX), u",Icon,50"_s);
        desk.Drag.Begin(DragObject::Flag);
        desk.Drag.Follow({}, {-200, 120});
        desk.Drag.Drop();
        QCOMPARE(raw(u"Flag Position"_s), u"Bottom left,Icon,50"_s);
    }

    void TakenBack() {
        DragDesk desk;
        desk.Set(DialX, u"30"_s);
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({146, 70}, {});
        desk.Calls();
        desk.Drag.TakeBack();
        QCOMPARE(desk.Values(DialX, DialY), u"30 -1"_s);
        QCOMPARE(desk.Stored(DialX, DialY), u"-1 -1"_s);
        QVERIFY(desk.Calls().startsWith(u"DrawDialNumbers|"_s));
        desk.Drag.Drop();
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Drag.Begin(DragObject::Location);
        desk.Drag.Follow({}, {20, 20});
        desk.Drag.TakeBack();
        QCOMPARE(desk.Calls(), u"LayOutOverlays"_s);
        QCOMPARE(desk.Value(NameLeft), u"-1"_s);
    }

    void WhatHasNotMovedIsNotStored() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Drop();
        desk.Drag.Begin(DragObject::Window);
        QVERIFY(!desk.Drag.Follow({10, 10}, {10, 10}));
        desk.Drag.Drop();
        QCOMPARE(desk.Screen.Status, QStringList());
        QCOMPARE(desk.Calls(), QString());
    }

    /// Another style holds other values; what it did not touch goes back.
    void AnotherStyleEndsTheDrag() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Dial);
        QVERIFY(desk.Drag.Follow({146, 70}, {}));
        desk.Set(DialX, u"77"_s);
        QVERIFY(!desk.Drag.Follow({100, 100}, {}));
        QCOMPARE(desk.Values(DialX, DialY), u"77 -1"_s);
        QVERIFY(!desk.Drag.Follow({100, 100}, {}));
        desk.Drag.Drop();
        QCOMPARE(desk.Screen.Status, QStringList());
        QCOMPARE(desk.Stored(DialX, DialY), u"-1 -1"_s);
    }

    void AnotherStyleAtTheDropStoresNothing() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Flag);
        QVERIFY(desk.Drag.Follow({}, {-200, 120}));
        desk.Data.Dial.LastStyle = u"Neon"_s;
        desk.Drag.Drop();
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Top right"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    void AnotherKindEndsTheDrag() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Location);
        QVERIFY(desk.Drag.Follow({}, {-20, -30}));
        desk.Data.Tag.Kind = ClockKind::Digital;
        QVERIFY(!desk.Drag.Follow({}, {-20, -31}));
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
    }

    void TheNamesOwnKeysEndItsDrag() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Location);
        desk.Set(NameTop, u"5"_s);
        QVERIFY(!desk.Drag.Follow({}, {-20, -30}));
        QCOMPARE(desk.Values(NameLeft, NameTop), u"-1 5"_s);
    }

    /// A list of voices that comes in, a timer with a volume of its own.
    void OtherChangesLeaveItBe() {
        DragDesk desk;
        desk.Drag.Begin(DragObject::Dial);
        desk.Set(u"Speaker Volume"_s, u"40"_s);
        QVERIFY(desk.Drag.Follow({20, 20}, {}));
        desk.Set(u"Speaker Volume"_s, u"60"_s);
        QVERIFY(desk.Drag.Follow({146, 70}, {}));
        desk.Set(u"Speaker Volume"_s, u"80"_s);
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(DialX, DialY), u"50 40"_s);
        QCOMPARE(desk.Value(u"Speaker Volume"_s), u"80"_s);
    }

    /// What was only tried out of the look is not saved along with a drop.
    void OnlyItsOwnKeysAreStored() {
        DragDesk desk;
        desk.Set(u"Clock Special"_s, u"World Map"_s);
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({146, 70}, {});
        desk.Drag.Drop();
        QCOMPARE(desk.InFile(u"Clock Special"_s), u"None"_s);
    }

    /// (151 + 5) / 312 and (80 + 10) / 225.
    void AFineScreen() {
        DragDesk desk;
        desk.Canvas.Drawn = drawing::Surface(600, 400, 2);
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({151, 80}, {});
        QCOMPARE(desk.Values(DialX, DialY), u"50 40"_s);
        desk.Drag.Drop();
        desk.Drag.Begin(DragObject::Location);
        desk.Drag.Follow({}, {10, 20});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(120, 190, 60, 10));
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"60 95"_s);
    }
};

QTEST_MAIN(tst_PartDrag)
#include "tst_PartDrag.moc"
