#include <QTest>

#include "clock/ClockCanvas.h"
#include "clock/FakeScreen.h"
#include "clock/RecordingParts.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

namespace {

constexpr QRgb White = 0xFFFFFFFF, Clear = 0;

/// A canvas of 60 by 40 logical pixels, which has its surface.
struct CanvasDesk {
    FakeScreen Screen;
    RecordingParts Parts;
    clockcore::WatchedState State;
    clockcore::ClockCanvas Canvas{State, Screen, Parts.ThePlacement};

    explicit CanvasDesk(double ratio = 1) {
        Screen.Ratio = ratio;
        Parts.ThePlacement.Outer = {0, 0, 1000.4, 700.4};
        Canvas.TakeSurface();
        Canvas.SetFace(Parts.TheFace);
        State = ClockState::Running;
    }
    QStringList Calls() { return std::exchange(Parts.Log, {}); }
    QRgb Pixel(int x, int y) const { return Canvas.Painted().Image().pixel(x, y); }
};

}  // namespace

class tst_ClockCanvas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ASurfaceOfDevicePixels() {
        CanvasDesk desk(1.5);
        QCOMPARE(desk.Canvas.Painted().ScaleWidth(), 90);
        QCOMPARE(desk.Canvas.Painted().ScaleHeight(), 60);
        QCOMPARE(desk.Canvas.Painted().DevicePixelRatio(), 1.5);
        QCOMPARE(desk.Canvas.Painted().Height(), 700);  // twips of the outer window
        QCOMPARE(desk.Canvas.OuterSize(), QSizeF(1000.4, 700.4));
    }

    void ASurfaceBeginsInTheBackgroundColour() {
        CanvasDesk desk;
        desk.Canvas.SetBackColor(0x0000FF);  // red
        QCOMPARE(desk.Calls(), QStringList{u"StillChanged"_s});
        QCOMPARE(desk.Pixel(5, 5), White);
        desk.Canvas.TakeSurface();
        QCOMPARE(desk.Pixel(5, 5), 0xFFFF0000U);
        QCOMPARE(desk.Calls(), QStringList{u"StillChanged"_s});
    }

    void KnowsWhetherItFitsTheScreen() {
        CanvasDesk desk;
        QVERIFY(desk.Canvas.FitsTheScreen());
        desk.Screen.Ratio = 2;
        QVERIFY(!desk.Canvas.FitsTheScreen());
        desk.Canvas.TakeSurface();
        QVERIFY(desk.Canvas.FitsTheScreen());
    }

    void PresentsInLogicalPixels() {
        CanvasDesk desk(1.5);
        desk.Canvas.Present(QRect(3, 3, 4, 1));  // 2 to 4.67 across, 2 to 2.67 down
        QCOMPARE(desk.Screen.Updates, std::vector<QRegion>{QRect(2, 2, 3, 1)});
    }

    void PresentsNoMoreThanTheWindow() {
        CanvasDesk desk;
        desk.Canvas.Present(QRect(50, 30, 100, 100));
        QCOMPARE(desk.Screen.Updates, std::vector<QRegion>{QRect(50, 30, 10, 10)});
    }

    void WhatWasPresentedIsNotExposed() {
        CanvasDesk desk;
        desk.Canvas.Present(QRect(0, 0, 10, 10));
        QCOMPARE(desk.Canvas.Exposed(QRect(0, 0, 10, 4)), QRegion());
        QCOMPARE(desk.Canvas.Exposed(QRect(0, 4, 20, 6)), QRegion(10, 4, 10, 6));
        QCOMPARE(desk.Canvas.Exposed(QRect(0, 0, 10, 10)), QRegion(0, 0, 10, 10));
    }

    void ALockHoldsChangesBack() {
        CanvasDesk desk;
        desk.Canvas.LockWindowUpdate(true);
        desk.Canvas.Present(QRect(0, 0, 10, 10));
        desk.Canvas.Present(QRect(20, 0, 10, 10));
        QVERIFY(desk.Screen.Updates.empty());
        desk.Canvas.LockWindowUpdate(false);
        QCOMPARE(desk.Screen.Updates.size(), 1U);
        QCOMPARE(desk.Screen.Updates[0], QRegion(0, 0, 10, 10) + QRegion(20, 0, 10, 10));
        desk.Canvas.Present(QRect(0, 0, 1, 1));
        QCOMPARE(desk.Screen.Updates[1], QRegion(0, 0, 1, 1));
    }

    void ClsShowsTheWholeAnew() {
        CanvasDesk desk;
        desk.Canvas.Surface().SetPixel(3, 3, 0);
        desk.Canvas.Cls();
        QCOMPARE(desk.Pixel(3, 3), White);
        QCOMPARE(desk.Calls(), QStringList{u"Invalidate"_s});
        QCOMPARE(desk.Screen.Updates, std::vector<QRegion>{QRect(0, 0, 60, 40)});
    }

    void TheColourKeyHoldsOutsideAShell() {
        CanvasDesk desk;
        desk.Canvas.Surface().SetPixel(3, 3, 0);
        desk.Canvas.SetColourKey(true);
        QVERIFY(desk.Parts.ThePlacement.ColourKey);
        QCOMPARE(desk.Canvas.ShownPicture().pixel(0, 0), White);
        desk.Screen.MDIChild = false;
        QCOMPARE(qAlpha(desk.Canvas.ShownPicture().pixel(0, 0)), 0);
        QCOMPARE(desk.Canvas.ShownPicture().pixel(3, 3), 0xFF000000U);
        QCOMPARE(qAlpha(desk.Canvas.SeenPicture().pixel(0, 0)), 0);
        desk.Canvas.SetColourKey(false);
        QCOMPARE(desk.Canvas.ShownPicture().pixel(0, 0), White);
    }

    void NothingIsSeenOutsideTheOutline() {
        CanvasDesk desk;
        desk.Parts.ThePlacement.Offset = {4, 20};
        QCOMPARE(desk.Canvas.SeenPicture().pixel(0, 0), White);
        const QRegion outline(14, 30, 10, 10);
        desk.Canvas.SetWindowRgn(outline);
        QCOMPARE(desk.Parts.ThePlacement.Outlines, std::vector<QRegion>{outline});
        QCOMPARE(desk.Canvas.Outline(), outline);
        const QImage seen = desk.Canvas.SeenPicture();
        QCOMPARE(seen.size(), QSize(60, 40));
        QCOMPARE(seen.pixel(9, 10), Clear);
        QCOMPARE(seen.pixel(10, 9), Clear);
        QCOMPARE(seen.pixel(10, 10), White);
        QCOMPARE(seen.pixel(19, 19), White);
        QCOMPARE(seen.pixel(20, 19), Clear);
        QCOMPARE(desk.Canvas.ShownPicture().pixel(0, 0), White);
    }

    void IsSeenWhereItIsLookedAt_data() {
        QTest::addColumn<bool>("isChild");
        QTest::addColumn<bool>("inSight");
        QTest::addColumn<bool>("lookedAt");
        QTest::addColumn<bool>("seen");
        QTest::newRow("in sight") << true << true << true << true;
        QTest::newRow("covered in the shell") << true << false << true << false;
        QTest::newRow("alone, as far as one knows") << false << false << true << true;
        QTest::newRow("not looked at") << true << true << false << false;
        QTest::newRow("alone and not looked at") << false << true << false << false;
    }

    void IsSeenWhereItIsLookedAt() {
        QFETCH(bool, isChild);
        QFETCH(bool, inSight);
        QFETCH(bool, lookedAt);
        CanvasDesk desk;
        desk.Screen.MDIChild = isChild;
        desk.Screen.InSight = inSight;
        desk.Canvas.SetLookedAt(lookedAt);
        QTEST(desk.Canvas.CanBeSeen(), "seen");
    }

    void ShowsNoChangesBeforeTheFirstTick_data() {
        QTest::addColumn<ClockState>("state");
        QTest::addColumn<bool>("shows");
        QTest::newRow("loading") << ClockState::Loading << false;
        QTest::newRow("first tick due") << ClockState::FirstTickDue << false;
        QTest::newRow("running") << ClockState::Running << true;
        QTest::newRow("redraw requested") << ClockState::RedrawRequested << true;
        QTest::newRow("closing") << ClockState::Closing << false;
    }

    void ShowsNoChangesBeforeTheFirstTick() {
        QFETCH(ClockState, state);
        CanvasDesk desk;
        desk.State = state;
        desk.Canvas.ShowChanges();
        QTEST(desk.Calls().contains(u"ShowChanges"_s), "shows");
    }

    void PassesOnWhatIsTheWindows() {
        CanvasDesk desk;
        desk.Canvas.ShowStatus(u"Saved"_s);
        QCOMPARE(desk.Screen.Status, QStringList{u"Saved"_s});
        QCOMPARE(desk.Canvas.ParentBackColor(), 0x804020);
        desk.Parts.ThePlacement.State = 2;
        QCOMPARE(desk.Canvas.WindowState(), 2);
        desk.Canvas.SetTransparent(true);
        QVERIFY(desk.Canvas.IsTransparent());
    }

    void ANullIconIsTheStoredOne() {
        CanvasDesk desk;
        desk.Canvas.SetIcon({});
        QImage red(7, 7, QImage::Format_RGB32);
        desk.Canvas.SetIcon(red);
        QCOMPARE(desk.Parts.ThePlacement.Icons.size(), 2U);
        QVERIFY(!desk.Parts.ThePlacement.Icons[0].isNull());
        QCOMPARE(desk.Parts.ThePlacement.Icons[1].size(), QSize(7, 7));
    }

    void WithoutAFaceItIsASurfaceAlone() {
        FakeScreen screen;
        RecordingParts parts;
        const clockcore::WatchedState state;
        clockcore::ClockCanvas canvas(state, screen, parts.ThePlacement);
        canvas.StillChanged();
        canvas.ShowChanges();
        canvas.Cls();
        QCOMPARE(canvas.Painted().ScaleWidth(), 1);
    }
};

QTEST_MAIN(tst_ClockCanvas)
#include "tst_ClockCanvas.moc"
