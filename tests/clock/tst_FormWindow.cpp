#include <QTest>

#include "clock/ui/FormWindow.h"
#include "clock/ui/WidgetScreen.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

/// A plain widget as the window of a clock: in a shell's frame, or alone.
struct Form {
    FakeServices Machine;
    QMdiArea Area;
    QWidget* Widget = new QWidget;
    std::unique_ptr<QWidget> Owned;
    clockcore::ClockData Data;
    mduUILib::ClockControls Controls;
    int Ticks = 0;
    clockcore::WidgetScreen Screen;
    clockcore::MdiPlacement Placement;
    clockcore::ClockCanvas Canvas{Data.State, Screen, Placement};
    clockcore::FormWindow Window;

    explicit Form(bool inShell = true)
        : Owned(inShell ? nullptr : Widget),
          Screen(*Widget, inShell ? &Area : nullptr, nullptr),
          Placement(*Widget, inShell ? &Area : nullptr, Data, &Machine.Clock),
          Window(*Widget, inShell ? &Area : nullptr, Placement, Canvas, Controls,
                 Machine.Clock.MakeTicker([this] { ++Ticks; })) {
        Area.resize(400, 300);
        Area.show();
        Placement.MakeFrame();
        Placement.SetOuterRect({0, 0, 3000, 2250});
    }
};

}  // namespace

class tst_FormWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TicksAndTellsItsIntervals() {
        Form form;
        QList<int> told;
        form.Window.WatchInterval([&](int milliseconds) { told += milliseconds; });
        form.Window.SetTimerInterval(100);
        form.Window.SetTimerInterval(100);
        QCOMPARE(form.Window.TimerInterval(), 100);
        form.Machine.Clock.Advance(200);
        QCOMPARE(form.Ticks, 2);
        form.Window.SetTimerInterval(1000);
        form.Window.StopTimer();
        form.Machine.Clock.Advance(2000);
        QCOMPARE(form.Ticks, 2);
        QCOMPARE(told, (QList{100, 1000}));
    }

    void KnowsItsShell() {
        QVERIFY(Form(true).Window.IsMDIChild());
        QVERIFY(!Form(false).Window.IsMDIChild());
        QVERIFY(Form(true).Screen.IsMDIChild());
        QVERIFY(!Form(false).Screen.IsMDIChild());
    }

    void IsDisabledWithAllThatLiesOnIt() {
        Form form;
        QVERIFY(form.Window.IsEnabled());
        form.Window.EnableWindow(false);
        QVERIFY(!form.Window.IsEnabled());
        QVERIFY(!form.Placement.Outer().isEnabled());
        QVERIFY(!form.Controls.lblHour(60).Enabled);
        form.Window.EnableWindow(true);
        QVERIFY(form.Window.IsEnabled());
        QVERIFY(form.Controls.lblHour(60).Enabled);
    }

    void HidesTheShapesOfHands() {
        Form form;
        for (mduUILib::ControlArray* hand :
             {&form.Controls.shpHourHand, &form.Controls.shpMinuteHand,
              &form.Controls.shpSecondHand}) {
            (*hand)(1).Visible = (*hand)(2).Visible = true;
        }
        form.Controls.lblHour(1).Visible = true;
        form.Window.HideHandShapes();
        for (mduUILib::ControlArray* hand :
             {&form.Controls.shpHourHand, &form.Controls.shpMinuteHand,
              &form.Controls.shpSecondHand}) {
            QVERIFY(!(*hand)(1).Visible && !(*hand)(2).Visible);
        }
        QVERIFY(form.Controls.lblHour(1).Visible);
    }

    void IsActivatedInItsShell() {
        Form form;
        auto* other = form.Area.addSubWindow(new QWidget);
        other->show();
        form.Placement.Outer().show();
        form.Widget->show();
        form.Area.setActiveSubWindow(other);
        QVERIFY(!form.Window.IsActiveForm());
        form.Window.Activate();
        QVERIFY(form.Window.IsActiveForm());
        QCOMPARE(form.Area.focusWidget(), form.Widget);
    }

    void CloseClockClosesTheFrame() {
        Form form(false);
        form.Widget->show();
        form.Window.CloseClock();
        QVERIFY(!form.Widget->isVisible());
    }

    void AHiddenWindowIsOutOfSight() {
        Form form(false);
        QVERIFY(!form.Screen.IsInSight());
        form.Widget->show();
        QVERIFY(form.Screen.IsInSight());
    }

    void WithoutAShellNobodyIsTold() {
        Form form(false);
        QCOMPARE(form.Screen.ShellBackColor(), 0xFFFFFF);
        form.Screen.ShowStatus(u"nobody hears"_s);
        QVERIFY(form.Screen.Shell() == nullptr);
    }

    void MeasuresTheSurface() {
        Form form(false);
        form.Widget->resize(80, 50);
        QCOMPARE(form.Screen.Size(), QSize(80, 50));
        form.Canvas.TakeSurface();
        QCOMPARE(form.Window.ScaleLeft(), 0);
        QCOMPARE(form.Window.ScaleWidth(), form.Canvas.Painted().ScaleWidth());
        QVERIFY(form.Window.ScaleWidth() >= 80);
    }
};

QTEST_MAIN(tst_FormWindow)
#include "tst_FormWindow.moc"
