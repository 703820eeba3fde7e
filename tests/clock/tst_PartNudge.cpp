#include <QTest>

#include "clock/MoveDesk.h"
#include "clock/PartDrag.h"
#include "clock/PartNudge.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::DragObject;

namespace {

struct NudgeDesk : MoveDesk {
    clockcore::PartNudge Pushed{Data, ToMove};
};

}  // namespace

class tst_PartNudge : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PushesAreStoredTogether() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Dial, {1, 0});
        desk.Pushed.Nudge(DragObject::Dial, {1, 0});
        desk.Pushed.Nudge(DragObject::Dial, {0, -1});
        QCOMPARE(desk.Values(DialX, DialY), u"52 49"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Pushed.Keep();
        QCOMPARE(desk.Stored(DialX, DialY), u"52 49"_s);
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
        desk.Pushed.Keep();
        QCOMPARE(desk.Screen.Status, QStringList{Saved});
    }

    /// The read-out begins at (50, 40) of (300, 200): 16.67 and 20 percent.
    void PushedDigits() {
        NudgeDesk desk;
        desk.Data.Tag.Kind = ClockKind::Digital;
        desk.Pushed.Nudge(DragObject::Digits, {-1, 1});
        QCOMPARE(desk.Values(DigitsX, DigitsY), u"15.66667 21"_s);
    }

    /// A percent of 300 and 200 pixels.
    void PushedPixels() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Location, {1, 0});
        desk.Pushed.Nudge(DragObject::Location, {0, -1});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(103, 148, 60, 10));
        desk.Pushed.Keep();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"103 148"_s);
    }

    void APushedFlagGoesToTheNextCorner() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Flag, {-1, 0});
        QCOMPARE(desk.Controls.imgFlag(1).Rect(), QRectF(0, 0, 40, 20));
        desk.Pushed.Nudge(DragObject::Flag, {0, 1});
        desk.Pushed.Keep();
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Bottom left"_s);
    }

    void AnotherPartStoresTheFirst() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Dial, {1, 0});
        desk.Pushed.Nudge(DragObject::Location, {1, 0});
        QCOMPARE(desk.Stored(DialX, DialY), u"51 50"_s);
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
        desk.Pushed.Keep();
        QCOMPARE(desk.InFile(NameLeft), u"103"_s);
    }

    void OtherChangesLeaveThemBe() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Location, {1, 0});
        desk.Set(u"Speaker Volume"_s, u"40"_s);
        desk.Pushed.Nudge(DragObject::Location, {0, -1});
        desk.Set(u"Speaker Volume"_s, u"60"_s);
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Pushed.Keep();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"103 148"_s);
    }

    /// Four device pixels are two of 200 logical ones.
    void AFineScreen() {
        NudgeDesk desk;
        desk.Canvas.Drawn = drawing::Surface(600, 400, 2);
        desk.Pushed.Nudge(DragObject::Location, {1, 1});
        QCOMPARE(desk.Controls.lblLocation(1).Rect(), QRectF(106, 154, 60, 10));
        desk.Pushed.Keep();
        QCOMPARE(desk.Stored(NameLeft, NameTop), u"53 77"_s);
    }

    void TheWindowIsNotPushed() {
        NudgeDesk desk;
        desk.Pushed.Nudge(DragObject::Window, {1, 0});
        desk.Pushed.Keep();
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    /// The mouse holds one part while another is pushed: each is stored at its own end.
    void ADragIsAnothersMatter() {
        NudgeDesk desk;
        clockcore::PartDrag drag(desk.Data, desk.ToMove);
        drag.Begin(DragObject::Location);
        QVERIFY(drag.Follow({}, {-20, -30}));
        desk.Pushed.Keep();
        QCOMPARE(drag.Object(), DragObject::Location);
        QCOMPARE(desk.InFile(NameLeft), u"-1"_s);
    }
};

QTEST_MAIN(tst_PartNudge)
#include "tst_PartNudge.moc"
