#include <QStyleHints>

#include "MouseDesk.h"

namespace {

using mduUILib::Control;

const QString DialX = u"Clock CentralX(%)"_s;
const QString DialY = u"Clock CentralY(%)"_s;

bool IsNear(const QString& text, double value) {
    return qAbs(text.toDouble() - value) < 0.0001;
}

}  // namespace

class tst_DragInput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheDialByItsDisc() {
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({150, 80});
        QVERIFY(IsNear(desk.Value(DialX), desk.Across(160)));
        QVERIFY(IsNear(desk.Value(DialY), desk.Down(100)));
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
        desk.MoveTo({120, 70});
        desk.Release({120, 70});
        QVERIFY(IsNear(desk.InFile(DialX), desk.Across(130)));
        QVERIFY(IsNear(desk.InFile(DialY), desk.Down(90)));
        QCOMPARE(desk.Base.Shell.Messages, QStringList{u"Saved the settings of UTC at 12:00:02"_s});
    }

    /// The number three stands to the right of the centre, as far from it as before.
    void ThePartsOfTheDialComeWithIt() {
        MouseDesk desk;
        const QRectF three = desk.Clock->Controls().lblHour(15).Rect();
        const QRectF spot = desk.Clock->Controls().imgClockNumber(15).Rect();
        desk.Drag({170, 60}, {120, 70});
        const QPointF way(130.0 * 300 / desk.Frame()->width() - 150,
                          90.0 * 200 / desk.Frame()->height() - 100);
        const auto moved = [&way](const QRectF& before, const QRectF& now) {
            const QPointF off = now.topLeft() - before.topLeft() - way;
            return qAbs(off.x()) <= 1.5 && qAbs(off.y()) <= 1.5;
        };
        QVERIFY(moved(three, desk.Clock->Controls().lblHour(15).Rect()));
        QVERIFY(moved(spot, desk.Clock->Controls().imgClockNumber(15).Rect()));
    }

    void AClickMovesNothing() {
        MouseDesk desk;
        const int most = QGuiApplication::styleHints()->startDragDistance() - 1;
        desk.Press({170, 60});
        desk.MoveTo({170 + most, 60});
        desk.Release({170 + most, 60});
        QCOMPARE(desk.Value(DialX), u"-1"_s);
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
        desk.MoveTo({40, 40});  // the button is up
        QCOMPARE(desk.Value(DialX), u"-1"_s);
    }

    void EscapeTakesItBack() {
        MouseDesk desk;
        const QImage before = desk.Clock->PaintedSurface().Image().copy();
        desk.Press({170, 60});
        desk.MoveTo({120, 70});
        QVERIFY(desk.Clock->PaintedSurface().Image() != before);
        QTest::keyClick(desk.Clock, Qt::Key_Escape);
        QCOMPARE(desk.Value(DialX), u"-1"_s);
        QVERIFY(desk.Clock->PaintedSurface().Image() == before);
        desk.MoveTo({100, 90});
        desk.Release({100, 90});
        QCOMPARE(desk.Value(DialX), u"-1"_s);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
    }

    void NoOtherKeyDoesAnything_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("with");
        const auto row = [](const char* name, Qt::Key key, Qt::KeyboardModifier with) {
            QTest::newRow(name) << int(key) << int(with);
        };
        row("tab", Qt::Key_Tab, Qt::NoModifier);
        row("tab back", Qt::Key_Backtab, Qt::ShiftModifier);
        row("menu", Qt::Key_Menu, Qt::NoModifier);
        row("menu as well", Qt::Key_F10, Qt::ShiftModifier);
        row("an arrow", Qt::Key_Right, Qt::NoModifier);
        row("a key of the clock's", Qt::Key_Delete, Qt::NoModifier);
    }

    void NoOtherKeyDoesAnything() {
        QFETCH(int, key);
        QFETCH(int, with);
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({150, 80});
        const QString dragged = desk.Value(DialX);
        QTest::keyClick(desk.Clock, Qt::Key(key), Qt::KeyboardModifiers(with));
        QVERIFY(MouseDesk::OpenMenu() == nullptr);
        QCOMPARE(desk.Clock->accessibleDescription(), QString());
        QCOMPARE(desk.Value(DialX), dragged);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
        desk.MoveTo({120, 70});
        desk.Release({120, 70});
        QVERIFY(IsNear(desk.InFile(DialX), desk.Across(130)));
    }

    /// So that a shortcut of the shell's is none meanwhile.
    void KeysAreOverriddenMeanwhile() {
        MouseDesk desk;
        QKeyEvent before(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
        before.ignore();
        QCoreApplication::sendEvent(desk.Clock, &before);
        QVERIFY(!before.isAccepted());
        desk.Press({170, 60});
        desk.MoveTo({150, 80});
        QKeyEvent meanwhile(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
        meanwhile.ignore();
        QCoreApplication::sendEvent(desk.Clock, &meanwhile);
        QVERIFY(meanwhile.isAccepted());
        QVERIFY(IsNear(desk.Value(DialX), desk.Across(160)));  // the press is still to come
    }

    /// 51 percent, with the key still down; the drag goes on from there.
    void WhatWasPushedIsKeptBeforeADrag() {
        MouseDesk desk;
        QTest::keyClick(desk.Clock, Qt::Key_Tab);
        QTest::keyPress(desk.Clock, Qt::Key_Right);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
        const Control& name = desk.Clock->Controls().lblLocation(1);
        desk.Clock->MouseMoveObj(name, 1, 0, 3, 3);
        desk.Clock->MouseMoveObj(name, 1, 0, -17, -27);
        QCOMPARE(desk.InFile(DialX), u"51"_s);
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s), u"-1"_s);
        QTest::keyRelease(desk.Clock, Qt::Key_Right);
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s), u"-1"_s);
    }

    void TheDigits() {
        MouseDesk desk("Clocks=Analogue", "Clocks=Digital");
        const QPoint from = MouseDesk::MiddleOf(desk.Clock->Controls().lblDigitalNumber(3));
        desk.Drag(from, {100, 120});
        QVERIFY(IsNear(desk.InFile(u"Digital Clock CentralX(%)"_s), desk.Across(105)));
        QVERIFY(IsNear(desk.InFile(u"Digital Clock CentralY(%)"_s), desk.Down(90)));
        const QRectF first = desk.Clock->Controls().lblDigitalNumber(1).Rect();
        QVERIFY(qAbs(first.left() - 105.0 * 300 / desk.Frame()->width()) <= 1);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
    }

    void TheName() {
        MouseDesk desk;
        const QRectF before = desk.Clock->Controls().lblLocation(1).Rect();
        const QPoint from = before.center().toPoint();
        desk.Drag(from, from + QPoint(-60, -90));
        const QRectF now = desk.Clock->Controls().lblLocation(1).Rect();
        QCOMPARE(now.topLeft(), before.topLeft() + QPointF(-60, -90));
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s).toDouble(), now.left());
        QCOMPARE(desk.InFile(u"Time Zone Name Top"_s).toDouble(), now.top());
    }

    void ItsPlaceHoldsThroughARedraw_data() {
        using Act = std::function<void(MouseDesk&)>;
        QTest::addColumn<Act>("act");
        QTest::newRow("redraw") << Act([](MouseDesk& desk) { desk.Clock->LayOutAgain(); });
        QTest::newRow("look") << Act([](MouseDesk& desk) {
            desk.Base.Module.CurrentProperties = desk.Clock->Data().Properties();
            desk.Clock->RefreshForm({});
        });
        QTest::newRow("exposed") << Act([](MouseDesk& desk) { desk.Clock->update(); });
    }

    void ItsPlaceHoldsThroughARedraw() {
        QFETCH(std::function<void(MouseDesk&)>, act);
        MouseDesk desk;
        const Control& name = desk.Clock->Controls().lblLocation(1);
        const Control& speaker = desk.Clock->Controls().imgSpeaker(1);
        const QPointF moved = name.Rect().topLeft() + QPointF(-60, -90);
        const QPointF speakerMoved = speaker.Rect().topLeft() + QPointF(60, -90);
        const QPoint from = name.Rect().center().toPoint();
        const QPoint fromSpeaker = speaker.Rect().center().toPoint();
        const auto redraw = [&] {
            act(desk);
            QCoreApplication::processEvents();
            desk.Base.Machine.Clock.Advance(2000);
        };
        desk.Press(from);
        desk.MoveTo(from + QPoint(-60, -90));
        redraw();
        QCOMPARE(name.Rect().topLeft(), moved);
        desk.Release(from + QPoint(-60, -90));
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s).toDouble(), moved.x());
        desk.Press(fromSpeaker, Qt::ControlModifier);
        desk.MoveTo(fromSpeaker + QPoint(60, -90));
        redraw();
        QCOMPARE(speaker.Rect().topLeft(), speakerMoved);
        desk.Release(fromSpeaker + QPoint(60, -90));
        QCOMPARE(desk.InFile(u"Speaker Image Top"_s).toDouble(), speakerMoved.y());
    }

    void TheSpeakerWithCtrl() {
        MouseDesk desk;
        const QRectF before = desk.Clock->Controls().imgSpeaker(1).Rect();
        const QPoint from = before.center().toPoint();
        desk.Drag(from, from + QPoint(60, -90));
        QCOMPARE(desk.InFile(u"Speaker Image Left"_s), u"-1"_s);
        desk.Drag(from, from + QPoint(60, -90), Qt::ControlModifier);
        QCOMPARE(desk.InFile(u"Speaker Image Left"_s).toDouble(), before.left() + 60);
        QCOMPARE(desk.InFile(u"Speaker Image Top"_s).toDouble(), before.top() - 90);
    }

    void TheFlag() {
        QImage flag(30, 20, QImage::Format_RGB32);
        flag.fill(Qt::red);
        MouseDesk desk;
        QVERIFY(flag.save(desk.Base.Machine.AppFolder() + u"/flag.bmp"_s));
        desk.Base.Module.CurrentProperties = desk.Clock->Data().Properties();
        mduLib::PutProperty(u"Flag File"_s, u".\\flag.bmp"_s, desk.Base.Module.CurrentProperties);
        desk.Clock->RefreshForm({});
        const Control& shown = desk.Clock->Controls().imgFlag(1);
        QCOMPARE(shown.Rect(), QRectF(246, 0, 54, 36));
        desk.Drag({270, 10}, {40, 170});
        QCOMPARE(desk.InFile(u"Flag Position"_s), u"Bottom left"_s);
        QCOMPARE(shown.Rect(), QRectF(0, 164, 54, 36));
    }

    void TheHandleOfATransparentClock() {
        MouseDesk desk;
        desk.Clock->SetWindowBackColour({}, u"Transparent"_s);
        const QPoint from = MouseDesk::MiddleOf(desk.Clock->Controls().shpArea(1));
        desk.Drag(from, from + QPoint(50, 40));
        QCOMPARE(desk.InFile(u"Transparent Icon Left"_s), u"50"_s);
        QCOMPARE(desk.InFile(u"Transparent Icon Top"_s), u"40"_s);
        QCOMPARE(desk.Frame()->pos(), QPoint(200, 150));
    }

    void AClockWithoutATitleBarByItsGround() {
        MouseDesk desk("Window Title Bar=Yes", "Window Title Bar=No");
        desk.Drag({170, 60}, {200, 90});
        QCOMPARE(desk.Frame()->pos(), QPoint(230, 180));
        QCOMPARE(desk.Value(DialX), u"-1"_s);
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
        desk.Drag({5, 100}, {5, 60});
        QCOMPARE(desk.Frame()->pos(), QPoint(230, 140));
        desk.Drag({170, 60}, {120, 70}, Qt::ControlModifier);
        QCOMPARE(desk.Frame()->pos(), QPoint(230, 140));
        QVERIFY(IsNear(desk.InFile(DialX), desk.Across(130)));
    }

    void AFigureByItsGround() {
        MouseDesk desk("Window Shape=Normal", "Window Shape=Circle");
        desk.Drag({170, 60}, {200, 90});
        QCOMPARE(desk.Frame()->pos(), QPoint(230, 180));
    }

    void AWindowKeepsThePointerInTheShell() {
        MouseDesk desk("Window Title Bar=Yes", "Window Title Bar=No");
        desk.Press({170, 60});
        desk.MoveTo({180, 60});
        desk.MoveTo({170 - 5000, 60 + 5000});
        const QPoint grip = desk.Clock->mapTo(desk.Frame(), QPoint(170, 60));
        const QPoint corner(0, desk.Base.Area.viewport()->height() - 1);
        QCOMPARE(desk.Frame()->pos() + grip, corner);
        QTest::keyClick(desk.Clock, Qt::Key_Escape);
        QCOMPARE(desk.Frame()->pos(), QPoint(200, 150));
    }

    void AMaximisedWindowStays() {
        MouseDesk desk("Window Title Bar=Yes", "Window Title Bar=No");
        desk.Clock->SetWindowState(2);
        const QPoint before = desk.Frame()->pos();
        desk.Drag({170, 60}, {200, 90});
        QCOMPARE(desk.Frame()->pos(), before);
        QCOMPARE(desk.Clock->WindowState(), 2);
    }

    void WhatComesBackIntoSight() {
        MouseDesk desk;
        desk.Drag({170, 60}, {-400, 900});
        QCOMPARE(desk.InFile(DialX), u"0"_s);
        QCOMPARE(desk.InFile(DialY), u"100"_s);
    }

    void InterruptedDragsAreTakenBack_data() {
        using Act = std::function<void(MouseDesk&)>;
        QTest::addColumn<Act>("act");
        QTest::newRow("disabled") << Act([](MouseDesk& desk) { desk.Clock->EnableWindow(false); });
        QTest::newRow("minimised") << Act([](MouseDesk& desk) { desk.Clock->SetWindowState(1); });
        QTest::newRow("maximised") << Act([](MouseDesk& desk) { desk.Clock->SetWindowState(2); });
        QTest::newRow("resized") << Act([](MouseDesk& desk) { desk.Frame()->resize(280, 210); });
        QTest::newRow("hidden") << Act([](MouseDesk& desk) { desk.Base.Area.hide(); });
        QTest::newRow("another kind") << Act([](MouseDesk& desk) { desk.Clock->SetClocks(3); });
        QTest::newRow("another look") << Act([](MouseDesk& desk) {
            desk.Base.Module.CurrentProperties = desk.Clock->Data().Properties();
            mduLib::PutProperty(DialX, u"-1"_s, desk.Base.Module.CurrentProperties);
            desk.Clock->RefreshForm({});
        });
    }

    void InterruptedDragsAreTakenBack() {
        QFETCH(std::function<void(MouseDesk&)>, act);
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({120, 70});
        QVERIFY(desk.Value(DialX) != u"-1"_s);
        act(desk);
        desk.MoveTo({110, 70});
        desk.Release({110, 70});
        QCOMPARE(desk.Value(DialX), u"-1"_s);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
    }

    void AClockThatClosesStoresNothingOfADrag() {
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({120, 70});
        desk.Base.Close(desk.Clock);
        QTest::mouseRelease(desk.Base.Area.windowHandle(), Qt::LeftButton, {}, {300, 300});
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
    }

    void ADisabledClockIsNotDragged_data() {
        using Act = std::function<void(MouseDesk&)>;
        QTest::addColumn<QByteArray>("enable");
        QTest::addColumn<Act>("act");
        QTest::newRow("from its start") << QByteArray("Enable=No") << Act([](MouseDesk&) {});
        QTest::newRow("in between") << QByteArray("Enable=Yes") << Act([](MouseDesk& desk) {
            desk.MoveTo(MouseDesk::MiddleOf(desk.Clock->Controls().lblLocation(1)));
            QCOMPARE(desk.Clock->cursor().shape(), Qt::OpenHandCursor);
            desk.Clock->EnableWindow(false);
            QCOMPARE(desk.Clock->cursor().shape(), Qt::ArrowCursor);
        });
        QTest::newRow("while the button is held")
            << QByteArray("Enable=Yes") << Act([](MouseDesk& desk) {
                   desk.Press({170, 60});
                   desk.Clock->EnableWindow(false);
               });
    }

    void ADisabledClockIsNotDragged() {
        QFETCH(QByteArray, enable);
        QFETCH(std::function<void(MouseDesk&)>, act);
        MouseDesk desk("Enable=Yes", enable);
        act(desk);
        QVERIFY(!desk.Clock->isEnabled());
        QTest::mousePress(desk.Clock, Qt::LeftButton, {}, {170, 60});
        for (const QPointF at : {QPointF(150, 60), QPointF(120, 70)}) {
            QMouseEvent move(QEvent::MouseMove, at, at, Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(desk.Clock, &move);
            QCoreApplication::processEvents();
            QCOMPARE(desk.Value(DialX), u"-1"_s);
        }
        QTest::mouseRelease(desk.Clock, Qt::LeftButton, {}, {120, 70});
        const Control& name = desk.Clock->Controls().lblLocation(1);
        QMouseEvent over(QEvent::MouseMove, name.Rect().center(), name.Rect().center(),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.Clock, &over);
        desk.Clock->MouseMoveObj(name, 0, 0, 3, 3);
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(desk.InFile(DialX), u"-1"_s);
    }

    /// A button that was let go where nobody saw it.
    void AMoveWithoutTheButtonEndsIt() {
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({120, 70});
        QMouseEvent move(QEvent::MouseMove, QPointF(100, 90), QPointF(100, 90), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.Clock, &move);
        QCOMPARE(desk.Value(DialX), u"-1"_s);
    }

    /// However many the moves, one layout: the face is painted once.
    void ManyMovesAreOnePaint() {
        MouseDesk desk;
        desk.Press({170, 60});
        desk.MoveTo({150, 60});
        const QString before = desk.Value(DialX);
        for (int x = 149; x >= 100; --x) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, 60), QPointF(x, 60), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(desk.Clock, &move);
        }
        QCOMPARE(desk.Value(DialX), before);
        const int revision = desk.Clock->Data().Revision();
        QCoreApplication::processEvents();
        QVERIFY(IsNear(desk.Value(DialX), desk.Across(110)));
        QCOMPARE(desk.Clock->Data().Revision(), revision + 2);  // one for each key
    }

    void WhatTheMouseShows() {
        MouseDesk desk;
        const mduUILib::ClockControls& controls = desk.Clock->Controls();
        desk.MoveTo(MouseDesk::MiddleOf(controls.lblLocation(1)));
        QCOMPARE(desk.Clock->cursor().shape(), Qt::OpenHandCursor);
        desk.MoveTo(MouseDesk::MiddleOf(controls.lblHour(15)));
        QCOMPARE(desk.Clock->cursor().shape(), Qt::BitmapCursor);
        QCOMPARE(desk.Clock->cursor().pixmap().width(), 16);
        desk.MoveTo({170, 60});
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ArrowCursor);
        desk.Press({170, 60});
        desk.MoveTo({120, 70});
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ClosedHandCursor);
        desk.Release({120, 70});
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ArrowCursor);
    }

    /// As a script tells of the mouse: from the object's own corner.
    void MouseMoveObj() {
        MouseDesk desk;
        const Control& name = desk.Clock->Controls().lblLocation(1);
        const QRectF before = name.Rect();
        desk.Clock->MouseMoveObj(name, 0, 0, 3, 3);
        QCOMPARE(desk.Clock->cursor().shape(), Qt::OpenHandCursor);
        desk.Clock->MouseMoveObj(name, 0, 0, -80, -30);
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ArrowCursor);
        desk.Clock->MouseMoveObj(name, 1, 0, 3, 3);
        desk.Clock->MouseMoveObj(name, 1, 0, -17, -27);
        QCoreApplication::processEvents();
        QCOMPARE(name.Rect().topLeft(), before.topLeft() - QPointF(20, 30));
        QCOMPARE(desk.Clock->cursor().shape(), Qt::ClosedHandCursor);
        desk.Clock->MouseMoveObj(name, 0, 0, 3, 3);
        QCOMPARE(desk.Clock->cursor().shape(), Qt::OpenHandCursor);
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s).toDouble(), before.left() - 20);
    }

    void AClockThatStandsAlone() {
        MouseDesk base;
        frmTempolark clock(base.TheProgram, nullptr, nullptr);
        QByteArray file = base.Base.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Window Title Bar=Yes", "Window Title Bar=No");
        base.Base.Machine.WriteFile(u"tester/TimeZones/Nepal Standard Time.ini"_s, file);
        QVERIFY(clock.ShowMeMDIChild(u"Nepal Standard Time"_s));
        base.Base.Machine.Clock.Advance(30);
        const QPoint before = clock.pos();
        const QPoint from(clock.width() / 2 + 20, clock.height() / 2 - 30);
        QTest::mousePress(&clock, Qt::LeftButton, {}, from);
        QTest::mouseMove(&clock, from + QPoint(30, 0));
        QCoreApplication::processEvents();
        QCOMPARE(clock.pos(), before + QPoint(30, 0));
    }
};

QTEST_MAIN(tst_DragInput)
#include "tst_DragInput.moc"
