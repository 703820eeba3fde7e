#include <QTest>

#include "clock/DialDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::MessageTyping;

class tst_MessageTyping : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensWithMessageAndColour() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s, u"Tea"_s));
        QCOMPARE(desk.View.Log, QStringList{u"open Tea"_s});
        QCOMPARE(desk.View.Last.Colour, 0x0000FF);
        QCOMPARE(desk.Typing.Slot(), 1);
        QVERIFY(desk.Controls.txtMsg(1).Visible);
        QVERIFY(desk.Data.ActiveEditFlag);
    }

    void OpensNothingWithoutATimer() {
        DialDesk desk;
        for (const int slot : {-1, 0, 1, 100, 101}) {
            desk.Typing.OpenMessageBox(slot);
        }
        QCOMPARE(desk.View.Log, QStringList());
        QCOMPARE(desk.Typing.Slot(), 0);
        desk.Typing.Type(u"x"_s);
        desk.Typing.Escape();
        desk.Typing.FinishMessage();
        desk.Typing.Follow();
        QVERIFY(!desk.Typing.Delete());
        QCOMPARE(desk.View.Log, QStringList());
        QCOMPARE(desk.File(), QByteArray());
    }

    void WhatIsTypedIsTheTimersAtOnce() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Typing.Type(u"Te"_s);
        desk.Typing.Type(u"Tea"_s);
        QCOMPARE(desk.Timers.Timer(1).Message, u"Tea"_s);
        QCOMPARE(desk.Controls.txtMsg(1).Caption, u"Tea"_s);
        QCOMPARE(desk.File(), QByteArray());
    }

    // As the file has them, so that it runs the same when it comes back.
    void EndsOfLinesBecomeBlanks() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Typing.Type(u"Tea\r\nis\nready\rnow"_s);
        QCOMPARE(desk.Timers.Timer(1).Message, u"Tea is ready now"_s);
    }

    void FinishingSavesAndPlacesTheMark() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Typing.Type(u" Tea\r\nis ready "_s);
        desk.Host.Marks.clear();
        desk.Typing.FinishMessage();
        QCOMPARE(desk.File(), QByteArray("5,Red,,,#16/06/2026 15:5=Tea is ready\r\n"));
        QCOMPARE(desk.Host.Marks, std::vector({FakeTimerHost::Mark{1, 15, 6}}));
        QCOMPARE(desk.View.Log, (QStringList{u"open "_s, u"close"_s}));
        QVERIFY(!desk.Controls.txtMsg(1).Visible);
        QVERIFY(!desk.Data.ActiveEditFlag);
        QCOMPARE(desk.Typing.Slot(), 0);
        QCOMPARE(desk.Host.TakeEvents(), QStringList());
        desk.Typing.FinishMessage();
        QCOMPARE(desk.View.Log.size(), 2);
    }

    void AnotherBoxFinishesTheFirst() {
        DialDesk desk;
        desk.Add(u"03:05"_s);
        desk.Add(u"04:05"_s, u"Eggs"_s);
        desk.Typing.OpenMessageBox(1);
        desk.Typing.Type(u"Tea"_s);
        desk.Typing.OpenMessageBox(2);
        QCOMPARE(desk.View.Log, (QStringList{u"open "_s, u"close"_s, u"open Eggs"_s}));
        QVERIFY(desk.File().contains("15:5=Tea"));
        QCOMPARE(desk.Typing.Slot(), 2);
    }

    void EscapeKeepsATimerWithAMessage() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Typing.Type(u"Tea"_s);
        desk.Typing.Escape();
        QVERIFY(desk.Timers.Timer(1).OnDial);
        QCOMPARE(desk.File(), QByteArray("5,Red,,,#16/06/2026 15:5=Tea\r\n"));
        QCOMPARE(desk.View.Log.last(), u"close"_s);
    }

    void EscapeRemovesATimerWithoutAMessage() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s, u"Tea"_s));
        desk.Typing.Type({});
        desk.Typing.Escape();
        QVERIFY(desk.Timers.Timer(1).IsFree());
        QVERIFY(!desk.Controls.imgTimer(1).Visible);
        QCOMPARE(desk.File(), QByteArray());
        QCOMPARE(desk.View.Log.last(), u"close"_s);
        QCOMPARE(desk.Typing.Slot(), 0);
    }

    void DeleteInAnEmptyBox_data() {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("removes");
        QTest::newRow("nothing") << QString() << QString() << true;
        QTest::newRow("None") << QString() << u"None"_s << true;
        QTest::newRow("an action") << QString() << u"Log Off"_s << false;
        QTest::newRow("a message") << u"T"_s << u"None"_s << false;
    }

    void DeleteInAnEmptyBox() {
        QFETCH(QString, message);
        QFETCH(QString, action);
        QFETCH(bool, removes);
        DialDesk desk;
        desk.Add(u"03:05"_s, message);
        timers::ClockTimer timer = desk.Timers.Timer(1);
        timer.TimerAction = action;
        desk.Timers.ChangeTimer(1, timer);
        desk.Typing.OpenMessageBox(1);
        QCOMPARE(desk.Typing.Delete(), removes);
        QCOMPARE(desk.Timers.Timer(1).OnDial, !removes);
        QCOMPARE(desk.Typing.Slot(), removes ? 0 : 1);
    }

    // While the message is typed its timer comes due.
    void ATimerDoesNotFireBeforeItsBoxIsClosed() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"12:00"_s));
        desk.Typing.Type(u"Tea"_s);
        desk.Timers.CheckTimers(u"15/06/2026 12:00:01"_s);
        desk.Typing.Follow();
        QCOMPARE(desk.Messages.PendingMessage(), QString());
        QCOMPARE(desk.View.Log, QStringList{u"open "_s});
        desk.Typing.Type(u"Tea is ready"_s);
        desk.Typing.FinishMessage();
        desk.Timers.CheckTimers(u"15/06/2026 12:01:02"_s);
        QCOMPARE(desk.Messages.PendingMessage(), u"Tea is ready"_s);
        QVERIFY(desk.Timers.Timer(1).IsFree());
    }

    void BehindAnotherWindowItFires() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"12:00"_s));
        desk.Typing.Type(u"Tea"_s);
        desk.View.InFront = false;
        desk.Timers.CheckTimers(u"15/06/2026 12:00:01"_s);
        QCOMPARE(desk.Messages.PendingMessage(), u"Tea"_s);
        desk.Typing.Follow();
        QCOMPARE(desk.View.Log.last(), u"close"_s);
        QVERIFY(!desk.Data.ActiveEditFlag);
    }

    void OnlyItsOwnTimerWaits() {
        DialDesk desk;
        desk.Add(u"12:00"_s, u"Eggs"_s);
        desk.Typing.OpenMessageBox(desk.Add(u"12:00"_s));
        desk.Timers.CheckTimers(u"15/06/2026 12:00:01"_s);
        QCOMPARE(desk.Messages.PendingMessage(), u"Eggs"_s);
        QVERIFY(desk.Timers.Timer(2).OnDial);
    }

    void ATimerThatIsRemovedClosesItsBox() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"12:00"_s));
        desk.Typing.Type(u"Tea"_s);
        desk.Timers.ClearTimerSlot(1);
        desk.Typing.Type(u"Tea is"_s);
        desk.Typing.Follow();
        QCOMPARE(desk.View.Log.last(), u"close"_s);
        QCOMPARE(desk.Timers.Timer(1).Message, QString());
        QVERIFY(!desk.Data.ActiveEditFlag);
    }

    // The slot is another timer's when the box that was open on it finishes.
    void AnotherTimerInTheSlotStays() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Timers.ClearTimerSlot(1);
        desk.Add(u"09:00"_s, u"Eggs"_s);
        desk.Typing.Type(u"Tea"_s);
        desk.Typing.Escape();
        QCOMPARE(desk.Timers.Timer(1).Message, u"Eggs"_s);
        QVERIFY(desk.Timers.Timer(1).OnDial);
    }

    void ACalculatorStandsStill_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::newRow("calculator") << ClockKind::Calculator;
        QTest::newRow("typed into") << ClockKind::CalculatorInput;
    }

    void ACalculatorStandsStill() {
        QFETCH(ClockKind, kind);
        DialDesk desk;
        desk.Calculate(kind, u"15/06/2026 15:05:00"_s);
        desk.Controls.lblLocation(1).Caption = u"typed"_s;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s), MessageTyping::Timer::New);
        QVERIFY(desk.Data.Is(ClockKind::CalculatorMessage));
        desk.Typing.FinishMessage();
        QVERIFY(desk.Data.Is(ClockKind::Calculator));
        QCOMPARE(desk.Calculator.Presents, 1);
        QCOMPARE(desk.Controls.lblLocation(1).Caption, desk.Data.Zone.CurrentName);
        QVERIFY(desk.Timers.Timer(1).OnDial);
    }

    void AnotherKindStaysAsItIs() {
        DialDesk desk;
        for (const ClockKind kind :
             {ClockKind::Analogue, ClockKind::Digital, ClockKind::AnalogueAndDigital}) {
            desk.Data.Tag = {kind, false};
            desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
            QVERIFY(desk.Data.Is(kind));
            desk.Typing.FinishMessage();
            QVERIFY(desk.Data.Is(kind));
        }
        QCOMPARE(desk.Calculator.Presents, 0);
    }

    // 24 hours from now is 12:00:00 on the 16th.
    void ALaterDayIsDeferred_data() {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("line");
        QTest::newRow("a day ahead") << u"16/06/2026 12:00:00"_s << u"12:00"_s << QString();
        QTest::newRow("a second more")
            << u"16/06/2026 12:00:01"_s << u"12:00"_s << u"16/06/2026 12:00=Tea"_s;
        QTest::newRow("days ahead")
            << u"20/06/2026 9:30:00"_s << u"09:34"_s << u"20/06/2026 09:34=Tea"_s;
        QTest::newRow("the times go on behind midnight")
            << u"20/06/2026 23:55:00"_s << u"00:02"_s << u"21/06/2026 00:02=Tea"_s;
        QTest::newRow("a little before")
            << u"20/06/2026 9:30:00"_s << u"09:00"_s << u"20/06/2026 09:00=Tea"_s;
        QTest::newRow("days ago") << u"10/06/2026 9:30:00"_s << u"09:34"_s << QString();
        QTest::newRow("a time of today") << u"9:30"_s << u"09:34"_s << QString();
        QTest::newRow("no time") << u"soon"_s << u"09:34"_s << QString();
    }

    void ALaterDayIsDeferred() {
        QFETCH(QString, moment);
        QFETCH(QString, time);
        QFETCH(QString, line);
        DialDesk desk;
        desk.Calculate(ClockKind::Calculator, moment);
        desk.Typing.OpenMessageBox(desk.Add(time), MessageTyping::Timer::New);
        desk.Typing.Type(u"Tea"_s);
        desk.Typing.FinishMessage();
        QCOMPARE(desk.Timers.DeferredTimerLines(),
                 line.isEmpty() ? QStringList() : QStringList{line});
        QCOMPARE(desk.Timers.Timer(1).OnDial, line.isEmpty());
        if (!line.isEmpty()) {
            QCOMPARE(desk.File(), (line + u"\r\n"_s).toUtf8());
            QCOMPARE(desk.Host.TakeEvents(),
                     QStringList{u"status:The timer is kept for "_s + line.section(u'=', 0, 0)});
        }
    }

    // Its time has nothing to do with the calculated one, so the day is that one's own. A day that
    // has gone would drop it for good.
    void AnOldTimerIsDeferred_data() {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("line");
        QTest::newRow("days ahead") << u"20/06/2026 9:30:00"_s << u"20/06/2026 03:05=Tea"_s;
        QTest::newRow("late on that day") << u"20/06/2026 23:55:00"_s << u"20/06/2026 03:05=Tea"_s;
        QTest::newRow("a day ahead") << u"16/06/2026 12:00:00"_s << QString();
        QTest::newRow("days ago") << u"10/06/2026 9:30:00"_s << QString();
    }

    void AnOldTimerIsDeferred() {
        QFETCH(QString, moment);
        QFETCH(QString, line);
        DialDesk desk;
        desk.Calculate(ClockKind::Calculator, moment);
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s, u"Tea"_s));
        desk.Typing.FinishMessage();
        QCOMPARE(desk.Timers.Timer(1).OnDial, line.isEmpty());
        QCOMPARE(desk.Timers.DeferredTimerLines(),
                 line.isEmpty() ? QStringList() : QStringList{line});
        QVERIFY(desk.Data.Is(ClockKind::Calculator));
    }

    void TellsWhatTheFileCannotKeep() {
        DialDesk desk;
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Typing.Type(u"Tea = ready"_s);
        desk.Typing.FinishMessage();
        QCOMPARE(desk.Host.TakeEvents(),
                 QStringList{u"status:When the clock is closed, the message is cut at \"=\""_s});
        QCOMPARE(desk.File(), QByteArray("5,Red,,,#16/06/2026 15:5=Tea = ready\r\n"));
    }

    // A deferred line keeps an hour of twelve, which the file of today would lose.
    void TellsWhatADeferredLineCannotKeep() {
        DialDesk desk;
        desk.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(9, 0), Qt::UTC));
        desk.Calculate(ClockKind::Calculator, u"20/06/2026 12:30:00"_s);
        desk.Typing.OpenMessageBox(desk.Add(u"12:30"_s), MessageTyping::Timer::New);
        desk.Typing.FinishMessage();
        QCOMPARE(desk.Host.TakeEvents(),
                 QStringList{u"status:The timer is kept for 20/06/2026 12:30"_s});
    }

    void AtTheMarkOfAnAnalogueClock() {
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Analogue, false};
        desk.Add(u"03:05"_s);
        mduUILib::Control& mark = desk.Controls.imgTimer(1);
        mark.Left = 40;
        mark.Top = 70;
        mark.Width = mark.Height = 14;
        QCOMPARE(desk.Typing.Place(1), QRectF(40, 70, 200, 26));
        mark.Left = 290;  // it comes back into the window
        mark.Top = 190;
        QCOMPARE(desk.Typing.Place(1), QRectF(100, 174, 200, 26));
    }

    void AboveTheMarksOfAnotherClock() {
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Add(u"03:05"_s);
        desk.Controls.imgTimer(1).Height = 14;
        QCOMPARE(desk.Typing.Place(1), QRectF(50, 200 - 14 - 26 - 4, 200, 26));
    }

    void WideEnoughToTypeIn_data() {
        QTest::addColumn<int>("face");
        QTest::addColumn<double>("width");
        QTest::newRow("wide") << 600 << 500.0;
        QTest::newRow("less than the least") << 200 << 140.0;
        QTest::newRow("narrow") << 90 << 90.0;
    }

    void WideEnoughToTypeIn() {
        QFETCH(int, face);
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Canvas.Resize(face, 100);
        desk.Add(u"03:05"_s);
        QTEST(desk.Typing.Place(1).width(), "width");
        QVERIFY(desk.Typing.Place(1).left() >= 0);
    }

    void InsideTheOutline() {
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Add(u"03:05"_s);
        desk.Controls.imgTimer(1).Height = 14;
        desk.Host.Outline = [](double top, double height, double) {
            return QRectF(110, top - 60, 80, height);
        };
        QCOMPARE(desk.Typing.Place(1), QRectF(110, 96, 80, 26));
    }

    // In the lower corner of a diamond nobody could type.
    void NotInACornerOfTheOutline_data() {
        QTest::addColumn<double>("corner");
        QTest::addColumn<double>("width");
        QTest::newRow("wide enough") << 70.0 << 70.0;
        QTest::newRow("too narrow") << 69.0 << 90.0;
    }

    void NotInACornerOfTheOutline() {
        QFETCH(double, corner);
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Add(u"03:05"_s);
        desk.Host.Outline = [corner](double top, double height, double) {
            return top > 0 ? QRectF(100, 150, corner, height) : QRectF(90, 40, 90, height);
        };
        QTEST(desk.Typing.Place(1).width(), "width");
    }

    void FollowsItsMark() {
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Analogue, false};
        desk.Typing.OpenMessageBox(desk.Add(u"03:05"_s));
        desk.Controls.imgTimer(1).Left = 60;
        desk.Typing.Follow();
        QCOMPARE(desk.View.Last.Place.left(), 60.0);
        QCOMPARE(desk.View.Log, QStringList{u"open "_s});
    }

    void OnAFineScreen() {
        DialDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Canvas.Drawn = drawing::Surface(600, 400, 2);
        desk.Add(u"03:05"_s);
        desk.Controls.imgTimer(1).Height = 28;
        QCOMPARE(desk.Typing.Place(1), QRectF(100, 400 - 28 - 52 - 8, 400, 52));
    }
};

QTEST_MAIN(tst_MessageTyping)
#include "tst_MessageTyping.moc"
