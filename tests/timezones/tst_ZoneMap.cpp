#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "support/FakeServices.h"
#include "timezones/ui/ZoneMap.h"

using namespace Qt::StringLiterals;

namespace {

/// A map of 780 by 390 pixels: a column is 30 pixels wide, 180 W lies 16.67 from the left edge and
/// Greenwich 376.67; a degree is 2 pixels.
struct Desk {
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    int BandChanges = 0;
    QList<int> Clicked;
    QList<QPoint> Menus;
    ZoneMap Map{TheProgram,
                {[this] { ++BandChanges; }, [this](int dot) { Clicked += dot; },
                 [this](const QPoint& at) { Menus += at; }},
                nullptr};

    Desk() {
        Map.resize(780, 390);
        Map.SetDots({{u"Greenwich"_s, {0, 0}, false},
                     {u"Ten East"_s, {0, 10}, true},
                     {u"Far South"_s, {-40, 120}, false}});
        Map.show();
        QVERIFY(QTest::qWaitForWindowExposed(&Map));
    }

    QPoint At(int dot) const { return Map.PointOfDot(dot).toPoint(); }
    QWidget& Band() { return *Map.findChild<QWidget*>(u"shpArea"_s); }
    void Press(const QPoint& at) { QTest::mousePress(&Map, Qt::LeftButton, {}, at); }
    void Move(const QPoint& at, Qt::MouseButtons held) {
        QMouseEvent move(QEvent::MouseMove, at, Map.mapToGlobal(at), Qt::NoButton, held,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&Map, &move);
    }
    void MovePressed(const QPoint& at) { Move(at, Qt::LeftButton); }
    void Release(const QPoint& at) { QTest::mouseRelease(&Map, Qt::LeftButton, {}, at); }
    void Click(const QPoint& at) { QTest::mouseClick(&Map, Qt::LeftButton, {}, at); }
    void Key(Qt::Key key) { QTest::keyClick(&Map, key); }
    QColor Pixel(const QPoint& at) { return Map.grab().toImage().pixelColor(at); }

    /// The dots that have pixels of the highlight's colour around them.
    QList<int> Ringed() {
        const QImage map = Map.grab().toImage();
        QList<int> ringed;
        for (int dot = 0; dot < 3; ++dot) {
            const QImage around = map.copy(QRect(At(dot) - QPoint(9, 9), QSize(19, 19)));
            for (int i = 0; i < 19 * 19; ++i) {
                if (around.pixelColor(i % 19, i / 19) == Map.palette().color(QPalette::Highlight)) {
                    ringed += dot;
                    break;
                }
            }
        }
        return ringed;
    }

    QString TipAt(const QPoint& at) {
        QHelpEvent help(QEvent::ToolTip, at, Map.mapToGlobal(at));
        QCoreApplication::sendEvent(&Map, &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

}  // namespace

/// The map's mouse and keys (ZoneMap), and what it paints (ZoneMapPaint).
class tst_ZoneMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DotsStandAtTheirPlaces() {
        const Desk desk;
        QCOMPARE(desk.At(0), QPoint(377, 195));
        QCOMPARE(desk.At(1), QPoint(397, 195));
        QCOMPARE(desk.At(2), QPoint(617, 275));
    }

    void AClickPicksADot() {
        Desk desk;
        desk.Click(desk.At(2));
        desk.Click(desk.At(0) - QPoint(0, 6));
        QCOMPARE(desk.Clicked, QList<int>({2, 0}));
        desk.Click(desk.At(0) - QPoint(0, 8));
        QCOMPARE(desk.Clicked.size(), 2);
        QCOMPARE(desk.BandChanges, 0);
    }

    void TheNearestDotIsPicked() {
        Desk desk;
        desk.Map.SetDots({{u"Left"_s, {0, 0}, false}, {u"Right"_s, {0, 4}, false}});
        desk.Click(desk.At(0) + QPoint(3, 0));
        desk.Click(desk.At(0) + QPoint(6, 0));
        QCOMPARE(desk.Clicked, QList<int>({0, 1}));
    }

    void ATremblingHandStillClicks() {
        Desk desk;
        desk.Press(desk.At(0));
        desk.MovePressed(desk.At(0) + QPoint(2, 1));
        desk.Release(desk.At(0) + QPoint(2, 1));
        QCOMPARE(desk.Clicked, QList<int>({0}));
        QVERIFY(!desk.Map.Band().G());
    }

    void ADragPicksABand() {
        Desk desk;
        desk.Press({200, 300});
        desk.MovePressed({204, 300});  // (204 * 15 - 5650) / 450 = -5.76
        QCOMPARE(desk.BandChanges, 1);
        QCOMPARE(*desk.Map.Band().G(), -5.76);
        QVERIFY(desk.Band().isVisible());
        QCOMPARE(desk.Band().width(), 30);
        QCOMPARE(desk.Map.cursor().shape(), Qt::ClosedHandCursor);
        desk.Release(desk.At(0));
        QVERIFY(!desk.Band().isVisible());
        QVERIFY(desk.Clicked.isEmpty());
        QCOMPARE(desk.Map.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(*desk.Map.Band().G(), -5.76);
        desk.MovePressed({300, 300});
        QCOMPARE(desk.BandChanges, 1);
    }

    void ALetGoOfAnotherButtonEndsNothing() {
        Desk desk;
        desk.Press(desk.At(0));
        QTest::mouseRelease(&desk.Map, Qt::MiddleButton, {}, desk.At(0));
        QVERIFY(desk.Clicked.isEmpty());
        desk.Release(desk.At(0));
        desk.Release(desk.At(0));
        QCOMPARE(desk.Clicked, QList<int>({0}));
    }

    void KeysStepThroughTheHours() {
        Desk desk;
        desk.Key(Qt::Key_Right);
        QCOMPARE(*desk.Map.Band().G(), 0.0);
        desk.Key(Qt::Key_Right);
        desk.Key(Qt::Key_Right);
        desk.Key(Qt::Key_Left);
        QCOMPARE(*desk.Map.Band().G(), 1.0);
        QCOMPARE(desk.BandChanges, 4);
        QCOMPARE(desk.Band().geometry().center().x(), 406);  // 376.67 and a column
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.Map.Band().G());
        QVERIFY(!desk.Band().isVisible());
        QCOMPARE(desk.BandChanges, 5);
        desk.Key(Qt::Key_Left);
        QCOMPARE(*desk.Map.Band().G(), 0.0);
        desk.Key(Qt::Key_Up);
        QCOMPARE(desk.BandChanges, 6);
    }

    void KeysStopAtTheLastHour() {
        Desk desk;
        for (int step = 0; step < 20; ++step) {
            desk.Key(Qt::Key_Right);
        }
        QCOMPARE(*desk.Map.Band().G(), 14.0);
        for (int step = 0; step < 40; ++step) {
            desk.Key(Qt::Key_Left);
        }
        QCOMPARE(*desk.Map.Band().G(), -12.0);
    }

    void TheBandFollowsTheSize() {
        Desk desk;
        desk.Key(Qt::Key_Right);
        desk.Map.resize(1560, 780);
        QCOMPARE(desk.Band().width(), 60);
    }

    void AnotherFocusHidesTheBand() {
        Desk desk;
        desk.Key(Qt::Key_Right);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&desk.Map, &out);
        QVERIFY(!desk.Band().isVisible());
        desk.Press({200, 300});
        desk.MovePressed({260, 300});
        QCoreApplication::sendEvent(&desk.Map, &out);
        QVERIFY(desk.Band().isVisible());
    }

    void TipsNameTheDots() {
        Desk desk;
        QCOMPARE(desk.TipAt(desk.At(2)), u"Far South"_s);
        QCOMPARE(desk.TipAt(desk.At(0) + QPoint(0, 6)), u"Greenwich"_s);
        std::vector<MapDot> dots;
        for (int dot = 1; dot <= 4; ++dot) {
            dots.push_back({u"Zone %1"_s.arg(dot), {0, 0}, false});
        }
        dots.push_back({u"Nearest"_s, {0, 1}, false});
        desk.Map.SetDots(dots);
        QCOMPARE(desk.TipAt(desk.At(4) + QPoint(1, 0)),
                 u"Nearest\nZone 1\nZone 2\nZone 3\nand 1 more"_s);
        dots.pop_back();
        desk.Map.SetDots(dots);
        // The one that lies on top goes first.
        QCOMPARE(desk.TipAt(desk.At(0)), u"Zone 4\nZone 1\nZone 2\nZone 3"_s);
    }

    void ATipGoesWhereThereIsNoDot() {
        Desk desk;
        QCOMPARE(desk.TipAt(desk.At(2)), u"Far South"_s);
        desk.TipAt({390, 350});
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void ThePointerTellsADot() {
        Desk desk;
        desk.Move(desk.At(1), Qt::NoButton);
        QCOMPARE(desk.Map.cursor().shape(), Qt::PointingHandCursor);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&desk.Map, &leave);
        QCOMPARE(desk.Map.cursor().shape(), Qt::ArrowCursor);
    }

    void MenusByMouseAndKey() {
        Desk desk;
        QTest::mouseClick(&desk.Map, Qt::RightButton, {}, QPoint(30, 40));
        QContextMenuEvent byMouse(QContextMenuEvent::Mouse, {30, 40},
                                  desk.Map.mapToGlobal(QPoint(30, 40)));
        QCoreApplication::sendEvent(&desk.Map, &byMouse);
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(&desk.Map, &byKey);
        QCOMPARE(desk.Menus, QList<QPoint>({desk.Map.mapToGlobal(QPoint(30, 40)),
                                            desk.Map.mapToGlobal(desk.Map.rect().center())}));
        QVERIFY(desk.Clicked.isEmpty());
    }

    void CheckedDotsStandOut() {
        Desk desk;
        QCOMPARE(desk.Pixel(desk.At(0)).name(), u"#f4f7fa"_s);
        QCOMPARE(desk.Pixel(desk.At(1)).name(), u"#ffb300"_s);
    }

    /// Drawn eight times as large: a rim of a pixel lies on the circle of the dot's radius, 3.2.
    void DotsHaveADarkRim() {
        Desk desk;
        const QPoint corner = desk.At(0) - QPoint(10, 10);
        QImage large(160, 160, QImage::Format_RGB32);
        large.setDevicePixelRatio(8);
        desk.Map.render(&large, {}, QRect(corner, QSize(20, 20)));
        const auto colourAt = [&](double distance) {
            const QPointF place = desk.Map.PointOfDot(0) + QPointF(distance, 0) - corner;
            return large.pixelColor((place * 8).toPoint()).name();
        };
        QCOMPARE(colourAt(2.2), u"#f4f7fa"_s);
        QCOMPARE(colourAt(3.2), u"#101c2c"_s);
        QVERIFY(colourAt(4.2) != u"#101c2c"_s);
    }

    void TheCurrentDotHasARing() {
        Desk desk;
        QCOMPARE(desk.Ringed(), QList<int>());
        desk.Map.SetCurrentDot(0);
        QCOMPARE(desk.Ringed(), QList<int>{0});
        desk.Map.SetCurrentDot(2);
        QCOMPARE(desk.Ringed(), QList<int>{2});
        desk.Map.SetCurrentDot(-1);
        QCOMPARE(desk.Ringed(), QList<int>());
    }

    /// In June at noon, Greenwich time, it is night on the other side; twelve hours later it is
    /// night here.
    void NightMovesOn() {
        Desk desk;
        const QPoint near(410, 160);
        const QPoint far(725, 210);
        const int day = desk.Pixel(near).lightness();
        QVERIFY(desk.Pixel(far).lightness() < day);
        desk.Machine.Clock.Advance(12 * 3600 * 1000);
        QVERIFY(desk.Pixel(near).lightness() < day);
        QCOMPARE(desk.Pixel(far).lightness(), day);
    }

    void AHiddenMapLooksAtNoSun() {
        Desk desk;
        const QPoint near(410, 160);
        const QColor day = desk.Pixel(near);
        desk.Map.hide();
        desk.Machine.Clock.Advance(12 * 3600 * 1000);
        QCOMPARE(desk.Pixel(near), day);
        desk.Map.show();
        QVERIFY(desk.Pixel(near) != day);
    }
};

QTEST_MAIN(tst_ZoneMap)
#include "tst_ZoneMap.moc"
