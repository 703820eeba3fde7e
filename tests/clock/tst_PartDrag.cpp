#include <QTest>

#include "clock/PartDrag.h"
#include "clock/SettingsDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::DragObject;

namespace {

/// A clock in UTC on a surface of 300 by 200 in a window of 312 by 225 logical pixels. Its name has
/// 60 by 10 pixels at (100, 150), its flag 40 by 20 in the corner at the top and to the right, its
/// speaker 14 by 14 at (4, 182), its read-out 100 by 20 at (50, 40).
struct DragDesk : SettingsDesk {
    clockcore::PartDrag Drag{Data,
                             {Controls, Canvas, Parts.TheFace, Parts.TheDial, Parts.TheDigital,
                              Parts.TheBackground, Parts.TheOverlays, Parts.TheTimers, Settings}};

    DragDesk() {
        Canvas.Outer = QSizeF(4680, 3375);
        Data.Tag = {ClockKind::Analogue, false};
        Put(Controls.lblLocation(1), {100, 150, 60, 10});
        Put(Controls.imgFlag(1), {260, 0, 40, 20});
        Put(Controls.imgSpeaker(1), {4, 182, 14, 14});
        Put(Controls.shpArea(1), {0, 0, 16, 16});
        Put(Controls.lblClock(1), {50, 40, 100, 20});
        Put(Controls.lblDigitalNumber(1), {50, 40, 40, 20});
        Put(Controls.lblDigitalNumber(3), {110, 40, 40, 20});
        Controls.lblClock(1).Visible = false;
        Calls();
    }
    static void Put(mduUILib::Control& control, const QRectF& place) {
        control.Left = static_cast<float>(place.left());
        control.Top = static_cast<float>(place.top());
        control.Width = static_cast<float>(place.width());
        control.Height = static_cast<float>(place.height());
        control.Visible = true;
    }
    QString Values(const QString& one, const QString& other) const {
        return Value(one) + u' ' + Value(other);
    }
    QString Stored(const QString& one, const QString& other) const {
        return InFile(one) + u' ' + InFile(other);
    }
};

const QString DialX = u"Clock CentralX(%)"_s;
const QString DialY = u"Clock CentralY(%)"_s;
const QString DigitsX = u"Digital Clock CentralX(%)"_s;
const QString DigitsY = u"Digital Clock CentralY(%)"_s;
const QString NameLeft = u"Time Zone Name Left"_s;
const QString NameTop = u"Time Zone Name Top"_s;
const QString Saved = u"Saved the settings of India at 12:00:00"_s;

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
        desk.Set(u"Clock Special"_s, u"World Map"_s);
        desk.Drag.Drop();
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Top right"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
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

    void PushesAreStoredTogether() {
        DragDesk desk;
        desk.Drag.Nudge(DragObject::Dial, {1, 0});
        desk.Drag.Nudge(DragObject::Dial, {1, 0});
        desk.Drag.Nudge(DragObject::Dial, {0, -1});
        QCOMPARE(desk.Values(DialX, DialY), u"52 49"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Drag.Keep();
        QCOMPARE(desk.Stored(DialX, DialY), u"52 49"_s);
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
        desk.Drag.Keep();
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
    }

    /// The read-out begins at (50, 40) of (300, 200): 16.67 and 20 percent.
    void PushedDigits() {
        DragDesk desk;
        desk.Data.Tag.Kind = ClockKind::Digital;
        desk.Drag.Nudge(DragObject::Digits, {-1, 1});
        QCOMPARE(desk.Values(DigitsX, DigitsY), u"15.66667 21"_s);
    }

    /// A percent of 300 and 200 pixels.
    void PushedPixels() {
        DragDesk desk;
        desk.Drag.Nudge(DragObject::Location, {1, 0});
        desk.Drag.Nudge(DragObject::Location, {0, -1});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(103, 148, 60, 10));
        desk.Drag.Keep();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"103 148"_s);
    }

    void APushedFlagGoesToTheNextCorner() {
        DragDesk desk;
        desk.Drag.Nudge(DragObject::Flag, {-1, 0});
        QCOMPARE(desk.Controls.imgFlag(1).Rect(), QRectF(0, 0, 40, 20));
        desk.Drag.Nudge(DragObject::Flag, {0, 1});
        desk.Drag.Keep();
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Bottom left"_s);
    }

    /// Another style has laid the name out; a push goes on from there, and the one before is gone.
    void APushAfterAnotherStyleBeginsAnew() {
        DragDesk desk;
        desk.Drag.Nudge(DragObject::Location, {1, 0});
        desk.Set(u"Clock Special"_s, u"World Map"_s);
        desk.Calls();
        desk.Drag.Nudge(DragObject::Location, {1, 0});
        QCOMPARE(desk.Calls(), u"LayOutOverlays"_s);
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
        desk.Drag.Keep();
        QVERIFY(desk.InFile(NameLeft) != u"-1"_s);
    }

    void AnotherPartStoresTheFirst() {
        DragDesk desk;
        desk.Drag.Nudge(DragObject::Dial, {1, 0});
        desk.Drag.Nudge(DragObject::Location, {1, 0});
        QCOMPARE(desk.Stored(DialX, DialY), u"51 50"_s);
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
        desk.Drag.Begin(DragObject::Flag);  // a drag takes back what was not kept
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
    }

    void AFineScreen() {
        DragDesk desk;
        desk.Canvas.Drawn = drawing::Surface(600, 400, 2);
        desk.Drag.Begin(DragObject::Dial);
        desk.Drag.Follow({146, 70}, {});
        QCOMPARE(desk.Values(DialX, DialY), u"50 40"_s);
        desk.Drag.Drop();
        desk.Drag.Begin(DragObject::Location);
        desk.Drag.Follow({}, {10, 20});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(120, 190, 60, 10));
        desk.Drag.Drop();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"60 95"_s);
        desk.Drag.Nudge(DragObject::Location, {1, 1});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(126, 194, 60, 10));
    }
};

QTEST_MAIN(tst_PartDrag)
#include "tst_PartDrag.moc"
