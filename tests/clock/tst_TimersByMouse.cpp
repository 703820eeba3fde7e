#include <QLineEdit>
#include <QToolTip>

#include "MenuClicks.h"

namespace {

QString TimerPath() {
    return u"tester/Timers/UTCTimer.txt"_s;
}

/// A clock of 400 by 400 in the shell, with a ring of spots, whose timers are made and changed with
/// the mouse and the keyboard. It is noon.
struct MouseDesk : ClickedDesk {
    frmTempolark* Clock = nullptr;

    explicit MouseDesk(const QByteArray& timers = {}, const QByteArray& kind = "Analogue") {
        Base.Machine.WriteFile(TimerPath(), timers);
        Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s,
                               Base.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                                   .replace("Clocks=Analogue", "Clocks=" + kind)
                                   .replace("Window Width=-1", "Window Width=6000")
                                   .replace("Window Height=-1", "Window Height=6000"));
        Base.Area.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Base.Area));
        Clock = Running(u"UTC"_s);
    }
    const mduUILib::Control& Spot(int index) const {
        return Clock->Controls().imgClockNumber(index);
    }
    const mduUILib::Control& Mark(int slot) const { return Clock->Controls().imgTimer(slot); }
    QByteArray File() const { return Base.Machine.ReadFile(TimerPath()); }
    QLineEdit* Box() const {
        auto* box = Clock->findChild<QLineEdit*>(u"txtMsg"_s);
        return box != nullptr && box->isVisible() ? box : nullptr;
    }
    void Key(Qt::Key key) const { QTest::keyClick(Box(), key); }
    void Type(const QString& text) const { QTest::keyClicks(Box(), text); }
    void DoubleClick(const mduUILib::Control& part) {
        const QPoint at = Clock->mapTo(&Base.Area, part.Rect().center().toPoint());
        QTest::mouseClick(Base.Area.windowHandle(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(Base.Area.windowHandle(), Qt::LeftButton, {}, at);
    }
    /// Presses the left button, or moves with it held, or lets it go, at a point of the clock.
    void Press(const QPointF& at) { Mouse(&QTest::mousePress, at); }
    void Release(const QPointF& at) { Mouse(&QTest::mouseRelease, at); }
    void DragTo(const QPointF& at) const {
        QMouseEvent move(QEvent::MouseMove, at, Clock->mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(Clock, &move);
    }

private:
    using Event = void (*)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    void Mouse(Event event, const QPointF& at) {
        event(Base.Area.windowHandle(), Qt::LeftButton, {}, Clock->mapTo(&Base.Area, at.toPoint()),
              -1);
    }
};

}  // namespace

/// Timers on the dial of the real clock, with real clicks and keys.
class tst_TimersByMouse : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TeaIsReady() {
        MouseDesk desk;
        desk.Click(*desk.Clock, desk.Spot(16), Qt::RightButton);
        QCOMPARE(desk.OpenMenu()->objectName(), u"SetTimer"_s);
        desk.Choose({u"03:14"_s});
        QVERIFY(desk.Mark(1).Visible);
        QTRY_VERIFY(desk.Box() != nullptr && desk.Box()->hasFocus());
        QVERIFY(desk.File().endsWith("16/06/2026 15:14=\r\n"));
        desk.Type(u"Tea is ready"_s);
        desk.Key(Qt::Key_Return);
        QVERIFY(desk.Box() == nullptr);
        QVERIFY(desk.File().endsWith("16/06/2026 15:14=Tea is ready\r\n"));
        QVERIFY(desk.File().startsWith("5,Red,.\\SoundFiles\\Marimba.wav,,#"));
        desk.Base.Machine.Clock.Advance((3 * 60 + 14) * 60 * 1000 + 2000);
        QCOMPARE(desk.Clock->PendingMessage(), u"Tea is ready"_s);
        QVERIFY(desk.Clock->Controls().lblMsg(1).Visible);
        QVERIFY(!desk.Mark(1).Visible);
        QCOMPARE(desk.File(), QByteArray("5,Red,.\\SoundFiles\\Marimba.wav,,#16/06/2026 "
                                         "15:14=Tea is ready\r\n"));
    }

    void TheLeftButtonOpensTheMenuOfASpot() {
        MouseDesk desk;
        desk.Click(*desk.Clock, desk.Spot(16), Qt::LeftButton);
        QVERIFY(desk.OpenMenu() != nullptr);
        QCOMPARE(desk.OpenMenu()->objectName(), u"SetTimer"_s);
        desk.Choose({u"03:23"_s});
        QCOMPARE(desk.Mark(1).Visible, true);
    }

    // Where the spots of a small clock stand close, one ends where its neighbour is nearer.
    void AHandThatTremblesMeansTheSpotThatItPressed() {
        MouseDesk desk;
        desk.Clock->parentWidget()->resize(200, 200);
        desk.Base.Machine.Clock.Advance(2000);
        QPoint below = desk.Spot(16).Rect().center().toPoint();
        while (clockcore::PartAt(desk.Clock->Controls(), below).Index == 16) {
            below += QPoint(0, 1);
        }
        QCOMPARE(clockcore::PartAt(desk.Clock->Controls(), below),
                 (clockcore::ClockHit{clockcore::ClockPart::Spot, 17}));
        desk.Press(below - QPoint(0, 1));
        desk.Release(below);
        QVERIFY(desk.OpenMenu() != nullptr);
        QCOMPARE(desk.OpenMenu()->actions().first()->text(), u"03:12"_s);
    }

    // What is pressed on a spot and let go elsewhere is no click.
    void ADragFromASpotOpensNothing() {
        MouseDesk desk;
        const QPointF at = desk.Spot(16).Rect().center();
        desk.Press(at);
        desk.Release(desk.Spot(22).Rect().center());
        QVERIFY(desk.OpenMenu() == nullptr);
        desk.Press({200, 100});
        desk.Release(at);
        QVERIFY(desk.OpenMenu() == nullptr);
    }

    void AnEntryOfTheMarksMenu() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.Click(*desk.Clock, desk.Mark(1), Qt::RightButton);
        QCOMPARE(desk.OpenMenu()->objectName(), u"ImgTimerMenu"_s);
        desk.Choose({u"Set Message Colour"_s, u"Green"_s});
        QCOMPARE(desk.File(), QByteArray("5,Green,,None,0#15:30@Tea\r\n"));
        desk.Click(*desk.Clock, desk.Mark(1), Qt::RightButton);
        desk.Choose({u"Change Timer 03:30"_s, u"03:33"_s});
        QCOMPARE(desk.File(), QByteArray("5,Green,,None,0#15:33@Tea\r\n"));
        desk.Click(*desk.Clock, desk.Mark(1), Qt::RightButton);
        desk.Choose({u"Remove Timer 03:33"_s});
        QVERIFY(!desk.Mark(1).Visible);
    }

    void ADoubleClickOpensTheBox() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.DoubleClick(desk.Mark(1));
        QVERIFY(desk.Box() != nullptr);
        QCOMPARE(desk.Box()->text(), u"Tea"_s);
        desk.Key(Qt::Key_End);
        desk.Type(u"!"_s);
        desk.Key(Qt::Key_Tab);
        QVERIFY(desk.Box() == nullptr);
        QVERIFY(desk.Clock->hasFocus());
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea!\r\n"));
    }

    void AClickBesideTheBoxFinishesIt() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.DoubleClick(desk.Mark(1));
        QTRY_VERIFY(desk.Box()->hasFocus());
        desk.Key(Qt::Key_End);
        desk.Type(u"s"_s);
        desk.Press({200, 60});
        QVERIFY(desk.Box() == nullptr);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Teas\r\n"));
        desk.Release({200, 60});
    }

    void EscapeAndDelete() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n5,Red,,None,0#16:30@Eggs\r\n");
        desk.DoubleClick(desk.Mark(1));
        desk.Box()->selectAll();
        desk.Key(Qt::Key_Delete);
        QVERIFY(desk.Box() != nullptr);
        desk.Key(Qt::Key_Delete);
        QVERIFY(desk.Box() == nullptr);
        QVERIFY(!desk.Mark(1).Visible);
        desk.DoubleClick(desk.Mark(2));
        desk.Key(Qt::Key_Escape);
        QVERIFY(desk.Box() == nullptr);
        QVERIFY(desk.Mark(2).Visible);
        QVERIFY(desk.File().contains("16:30@Eggs\r\n"));
        QVERIFY(!desk.File().contains("15:30"));
    }

    // Keys that mean nothing to a line of text are not the clock's either.
    void ItsKeysAreItsOwn() {
        MouseDesk desk({}, "Calculator");
        desk.Base.Machine.Clock.Advance(1000);
        desk.Click(*desk.Clock, desk.Clock->Controls().lblTimeOutput(1), Qt::RightButton);
        desk.Choose({u"Set Timer"_s, u"12:03"_s});
        QTRY_VERIFY(desk.Box() != nullptr);
        QCOMPARE(desk.Clock->Data().Tag.Text(), u"6"_s);
        desk.Key(Qt::Key_Up);
        desk.Key(Qt::Key_Insert);
        desk.Type(u"Tea"_s);
        QCOMPARE(desk.Box()->text(), u"Tea"_s);
        const QString line = desk.Clock->Controls().lblTimeInput(1).Tag;
        desk.Base.Machine.Clock.Advance(2000);
        QCOMPARE(desk.Clock->Controls().lblTimeInput(1).Tag, line);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Clock->Data().Tag.Text(), u"3"_s);
        QVERIFY(desk.Clock->Controls().lblTimeInput(1).Tag != line);
        QVERIFY(desk.Mark(1).Visible);
    }

    void ALongMessageAndLineEndsComeBack() {
        MouseDesk desk("5,Red,,None,0#15:30@x\r\n");
        desk.DoubleClick(desk.Mark(1));
        desk.Box()->selectAll();
        desk.Box()->insert(u"a #1\r\nb, "_s + QString(10'000, u'x'));
        desk.Key(Qt::Key_Return);
        const QByteArray message = "a #1 b, " + QByteArray(10'000, 'x');
        QCOMPARE(desk.File(), "5,Red,,None,0#15:30@" + message + "\r\n");
        desk.Base.Close(desk.Clock);
        desk.Clock = desk.Running(u"UTC"_s);
        QCOMPARE(desk.Clock->Controls().txtMsg(1).Caption, QString::fromUtf8(message));
    }

    void ClosingKeepsWhatWasTyped() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.DoubleClick(desk.Mark(1));
        desk.Key(Qt::Key_End);
        desk.Type(u" is ready"_s);
        desk.Base.Close(desk.Clock);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea is ready\r\n"));
    }

    void ABoxMayBeOpenWhenTheClockIsDeleted() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.DoubleClick(desk.Mark(1));
        QVERIFY(desk.Box() != nullptr);
        delete desk.Clock->parentWidget();
        QVERIFY(QApplication::focusWidget() == nullptr ||
                QApplication::focusWidget()->objectName() != u"txtMsg"_s);
    }

    void DisablingKeepsWhatWasTyped() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.DoubleClick(desk.Mark(1));
        QTRY_VERIFY(desk.Box()->hasFocus());
        desk.Key(Qt::Key_End);
        desk.Type(u"!"_s);
        desk.Clock->EnableWindow(false);
        QVERIFY(desk.Box() == nullptr);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea!\r\n"));
    }

    // The first of the twelve times is the present minute; W is a key of the clock's own.
    void ATimerWaitsForWhatIsTyped() {
        MouseDesk desk;
        desk.Click(*desk.Clock, desk.Spot(60), Qt::RightButton);
        desk.Choose({u"12:00"_s});
        QTRY_VERIFY(desk.Box() != nullptr && desk.Box()->hasFocus());
        desk.Type(u"w"_s);
        desk.Base.Machine.Clock.Advance(2 * 60 * 1000);
        QVERIFY(desk.Box() != nullptr && desk.Box()->hasFocus());
        desk.Type(u"ait"_s);
        QCOMPARE(desk.Clock->PendingMessage(), QString());
        desk.Key(Qt::Key_Return);
        desk.Base.Machine.Clock.Advance(2000);
        QCOMPARE(desk.Clock->PendingMessage(), u"wait"_s);
        QVERIFY(!desk.Mark(1).Visible);
    }

    void ADisabledClockTakesNoPress() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.Clock->EnableWindow(false);
        const QPointF start = desk.Mark(1).Rect().topLeft();
        desk.DoubleClick(desk.Mark(1));
        QVERIFY(desk.Box() == nullptr);
        desk.Click(*desk.Clock, desk.Spot(16), Qt::LeftButton);
        QVERIFY(desk.OpenMenu() == nullptr);
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(desk.Spot(30).Rect().center());
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
        desk.Release(desk.Spot(30).Rect().center());
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
    }

    void ADisabledCalculatorStaysOne() {
        MouseDesk desk("5,Red,,None,0#20:30@Tea\r\n", "Calculator");
        desk.DoubleClick(desk.Mark(1));
        QVERIFY(desk.Box() != nullptr);
        desk.Key(Qt::Key_Return);
        desk.Clock->EnableWindow(false);
        desk.DoubleClick(desk.Mark(1));
        QVERIFY(desk.Box() == nullptr);
        QCOMPARE(desk.Clock->Data().Tag.Text(), u"3"_s);
    }

    // The press before it was the clock's, what follows is not.
    void DisablingTakesADragBack() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        const QPointF start = desk.Mark(1).Rect().topLeft();
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(desk.Spot(30).Rect().center());
        QVERIFY(desk.Mark(1).Rect().topLeft() != start);
        desk.Clock->EnableWindow(false);
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
    }

    void AMenuIsOpenWhileItsTimerFires() {
        MouseDesk desk("5,Red,,None,0#12:1@Tea\r\n");
        desk.Click(*desk.Clock, desk.Mark(1), Qt::RightButton);
        QVERIFY(desk.OpenMenu() != nullptr);
        desk.Base.Machine.Clock.Advance(61'000);
        QVERIFY(!desk.Mark(1).Visible);
        const QByteArray before = desk.File();
        desk.Choose({u"Remove Permanent Timer"_s});
        QCOMPARE(desk.File(), before);
        QVERIFY(!desk.Mark(1).Visible);
    }

    void AMenuIsOpenWhileTheClockCloses() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.Click(*desk.Clock, desk.Mark(1), Qt::RightButton);
        QVERIFY(desk.OpenMenu() != nullptr);
        desk.Base.Close(desk.Clock);
        QTRY_VERIFY(desk.OpenMenu() == nullptr);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
    }

    void AMarkIsDraggedToAnotherMinute() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        const QPointF at = desk.Mark(1).Rect().center();
        const QPointF start = desk.Mark(1).Rect().topLeft();
        const QPointF six = desk.Spot(30).Rect().center();
        desk.Press(at);
        desk.DragTo(six);
        QVERIFY(desk.Mark(1).Rect().topLeft() != start);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
        desk.Release(six);
        QVERIFY(desk.File() != QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
        QVERIFY(desk.File().contains("#18:") || desk.File().contains("#17:"));
    }

    void ATimerThatFiresTakesItsTimeFromThePointer() {
        MouseDesk desk("5,Red,,None,0#12:1@Tea\r\n");
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(desk.Spot(30).Rect().center());
        QVERIFY(QToolTip::isVisible());
        desk.Base.Machine.Clock.Advance(61'000);
        QVERIFY(!desk.Mark(1).Visible);
        QTRY_VERIFY(!QToolTip::isVisible());
        desk.Release(desk.Spot(30).Rect().center());
    }

    void ARedrawLeavesTheDraggedMark() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(desk.Spot(30).Rect().center());
        const QPointF there = desk.Mark(1).Rect().topLeft();
        desk.Clock->LayOutAgain();
        QVERIFY(desk.Mark(1).Rect().topLeft() != there);
        desk.Base.Machine.Clock.Advance(2000);
        QCOMPARE(desk.Mark(1).Rect().topLeft(), there);
        desk.Release(desk.Spot(30).Rect().center());
    }

    void EscapeTakesADragBack() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        const QPointF at = desk.Mark(1).Rect().center();
        const QPointF start = desk.Mark(1).Rect().topLeft();
        desk.Press(at);
        desk.DragTo(desk.Spot(30).Rect().center());
        QTRY_VERIFY(QToolTip::isVisible());
        QTest::keyClick(desk.Clock, Qt::Key_Escape);
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
        desk.DragTo(desk.Spot(40).Rect().center());
        desk.Release(desk.Spot(40).Rect().center());
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
    }

    void AMenuTakesADragBack_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifier>("with");
        QTest::newRow("right button") << 0 << Qt::NoModifier;
        QTest::newRow("menu key") << int(Qt::Key_Menu) << Qt::NoModifier;
        QTest::newRow("Shift+F10") << int(Qt::Key_F10) << Qt::ShiftModifier;
    }

    void AMenuTakesADragBack() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifier, with);
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        const QPointF start = desk.Mark(1).Rect().topLeft();
        const QPoint six = desk.Spot(30).Rect().center().toPoint();
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(six);
        QVERIFY(desk.Mark(1).Rect().topLeft() != start);
        if (key != 0) {
            QTest::keyClick(desk.Clock, static_cast<Qt::Key>(key), with);
        } else {
            QTest::mousePress(desk.Base.Area.windowHandle(), Qt::RightButton, {},
                              desk.Clock->mapTo(&desk.Base.Area, six));
        }
        QCOMPARE(desk.OpenMenu() != nullptr, key != 0);
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
        if (key != 0) {
            desk.OpenMenu()->close();
        }
        desk.DragTo(desk.Spot(40).Rect().center());
        QCOMPARE(desk.Mark(1).Rect().topLeft(), start);
        desk.Release(six);
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
    }

    void ADragEndsWithTheWindowsSize() {
        MouseDesk desk("5,Red,,None,0#15:30@Tea\r\n");
        desk.Press(desk.Mark(1).Rect().center());
        desk.DragTo(desk.Spot(30).Rect().center());
        desk.Clock->parentWidget()->resize(500, 500);
        desk.Release(desk.Spot(30).Rect().center());
        QCOMPARE(desk.File(), QByteArray("5,Red,,None,0#15:30@Tea\r\n"));
    }
};

QTEST_MAIN(tst_TimersByMouse)
#include "tst_TimersByMouse.moc"
