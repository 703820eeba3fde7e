#include <QApplication>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>

#include "clock/ui/MdiPlacement.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using clockcore::CentredPart;
using clockcore::ClockFrame;
using clockcore::MdiPlacement;

namespace {

constexpr auto Rate = "Window Open/Close Animation Rate"_L1;

/// What every clock has: the keys of a window, and a clock that is advanced by hand.
struct Keys {
    FakeServices Machine;
    clockcore::ClockData Data;

    Keys() {
        Set(u"Window Shape"_s, u"Normal"_s);
        Set(u"Window Border"_s, u"3D Border"_s);
        Set(u"Window Title Bar"_s, u"Yes"_s);
        Set(Rate, u"0"_s);
        for (const QString& key :
             {u"Window Top"_s, u"Window Left"_s, u"Window Width"_s, u"Window Height"_s}) {
            Set(key, u"-1"_s);
        }
    }
    void Set(const QString& key, const QString& value) {
        mduLib::PutProperty(key, value, Data.EditProperties());
    }
    QString Get(const QString& key) const { return mduLib::GetProperty(key, Data.Properties()); }
};

/// A clock in a shell, 200 by 150 at (100, 50).
struct Child : Keys {
    QMdiArea Area;
    QWidget* Clock = new QWidget;
    MdiPlacement Place{*Clock, &Area, Data, &Machine.Clock};

    Child() {
        Area.resize(804, 604);
        Area.show();
        Place.MakeFrame();
        Place.SetOuterRect({1500, 750, 3000, 2250});
    }
    ClockFrame& Frame() { return *Place.Frame(); }
    void Frame(const QString& border, const QString& titleBar) {
        Set(u"Window Border"_s, border);
        Set(u"Window Title Bar"_s, titleBar);
        Place.ApplyWindowBorder();
        Place.ApplyTitleBar();
    }
    /// Whether nothing but the corners of a title bar is cut off the frame.
    bool IsWhole() {
        const QRegion mask = Frame().mask();
        return mask.isEmpty() || mask.boundingRect() == Frame().rect();
    }
    /// Height of the title bar, with the upper border.
    int Above() {
        Frame().layout()->activate();
        return Place.SurfaceOffset().y();
    }
    int Beside() {
        Frame().layout()->activate();
        return Place.SurfaceOffset().x();
    }
    /// Widgets in the shell that are no frames: what is left of a clock that has closed.
    QList<QWidget*> Afterimages() {
        QList<QWidget*> found;
        for (QWidget* widget :
             Area.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (qobject_cast<ClockFrame*>(widget) == nullptr) {
                found += widget;
            }
        }
        return found;
    }
};

/// A clock by itself on a screen of 800 by 800.
struct Alone : Keys {
    QWidget Clock;
    MdiPlacement Place{Clock, nullptr, Data, &Machine.Clock};
};

}  // namespace

class tst_MdiPlacement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Borders_data() {
        QTest::addColumn<QString>("border");
        QTest::addColumn<int>("style");
        QTest::newRow("none") << u"No Border"_s << 1;
        QTest::newRow("3D") << u"3D Border"_s << 3;
        QTest::newRow("classic") << u"Classic"_s << 7;
        QTest::newRow("unknown") << u"Golden"_s << 3;
        QTest::newRow("case matters") << u"no border"_s << 3;
        QTest::newRow("missing") << u"0"_s << 3;
    }
    void Borders() {
        QFETCH(QString, border);
        QFETCH(int, style);
        Child child;
        child.Set(u"Window Border"_s, border);
        child.Place.ApplyWindowBorder();
        QCOMPARE(static_cast<int>(child.Frame().Look().Border), style);
    }

    void UnknownBorderKeepsTheOneBefore() {
        Child child;
        child.Frame(u"Classic"_s, u"Yes"_s);
        child.Frame(u"Golden"_s, u"Yes"_s);
        QVERIFY(child.Frame().Look().Border == mduUILib::WindowBorder::Plain);
    }

    void BorderWidths() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Frame(u"No Border"_s, u"No"_s);
        QCOMPARE(child.Place.SurfaceOffset(), QPoint(0, 0));
        QCOMPARE(child.Clock->size(), QSize(200, 150));
        child.Frame(u"Classic"_s, u"No"_s);
        QCOMPARE(child.Beside(), 1);
        QCOMPARE(child.Above(), 1);
        child.Frame(u"3D Border"_s, u"No"_s);
        QVERIFY(child.Beside() > 1);
        QCOMPARE(child.Above(), child.Beside());
    }

    void TitleBar() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Frame(u"3D Border"_s, u"Yes"_s);
        QVERIFY(child.Above() > 15);
        const Qt::WindowFlags titled = child.Frame().windowFlags();
        QVERIFY(titled & Qt::WindowTitleHint);
        QVERIFY(titled & Qt::WindowSystemMenuHint);
        QVERIFY(!(titled & Qt::WindowMinMaxButtonsHint));
        child.Frame(u"3D Border"_s, u"No"_s);
        QVERIFY(child.Above() < 10);
        QVERIFY(!(child.Frame().windowFlags() & Qt::WindowTitleHint));
        child.Frame(u"3D Border"_s, u"anything else is yes"_s);
        QVERIFY(child.Above() > 15);
    }

    void FrameOfAFigureHasNoEffect_data() {
        QTest::addColumn<QString>("shape");
        for (const char* shape :
             {"Circle", "Ellips", "Diamond", "Pentagon", "Hexagon", "Octagon"}) {
            QTest::newRow(shape) << QString::fromLatin1(shape);
        }
    }
    void FrameOfAFigureHasNoEffect() {
        QFETCH(QString, shape);
        Child child;
        child.Place.ShowClockWindow(true);
        child.Set(u"Window Shape"_s, shape);
        child.Frame(u"Classic"_s, u"Yes"_s);
        QCOMPARE(child.Place.SurfaceOffset(), QPoint(0, 0));
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
        // Back to a rectangle, the keys count again.
        child.Set(u"Window Shape"_s, u"Normal"_s);
        child.Frame(u"Golden"_s, u"Yes"_s);
        QVERIFY(child.Frame().Look().Border == mduUILib::WindowBorder::Raised);
        QVERIFY(child.Above() > 15);
    }

    void UnknownShapeKeepsItsFrame() {
        Child child;
        child.Set(u"Window Shape"_s, u"Blob"_s);
        child.Frame(u"No Border"_s, u"No"_s);
        QVERIFY(child.Frame().Look().Border == mduUILib::WindowBorder::Raised);
        QVERIFY(child.Frame().Look().TitleBar);
    }

    void FrameKeepsThePlace() {
        Child child;
        child.Place.ShowClockWindow(true);
        for (const QString& titleBar : {u"No"_s, u"Yes"_s}) {
            for (const QString& border : {u"No Border"_s, u"Classic"_s, u"3D Border"_s}) {
                child.Frame(border, titleBar);
                QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
                QVERIFY(child.Frame().isVisible());
            }
        }
    }

    void SmallClockStaysSmall() {
        Child child;
        child.Frame(u"No Border"_s, u"No"_s);
        child.Place.ShowClockWindow(true);
        child.Place.SetOuterSize({450, 300});
        child.Frame(u"3D Border"_s, u"Yes"_s);
        QCOMPARE(child.Frame().size(), QSize(30, 20));
        child.Frame(u"No Border"_s, u"No"_s);
        QCOMPARE(child.Frame().size(), QSize(30, 20));
        QCOMPARE(child.Clock->size(), QSize(30, 20));
    }

    void FrameOfAHiddenClockDoesNotShowIt() {
        Child child;
        child.Frame(u"No Border"_s, u"No"_s);
        QVERIFY(!child.Frame().isVisible());
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
    }

    void FrameKeepsTheState() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Place.SetWindowState(2);
        child.Frame(u"No Border"_s, u"No"_s);
        QCOMPARE(child.Place.WindowState(), 2);
        QCOMPARE(child.Frame().size(), child.Area.viewport()->size());
        child.Place.SetWindowState(0);
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
        QCOMPARE(child.Clock->size(), QSize(200, 150));
    }

    void MinimisedClockIsItsTitleBar() {
        Child child;
        child.Frame(u"No Border"_s, u"No"_s);
        child.Place.SetWindowRgn(QRegion(0, 0, 200, 150, QRegion::Ellipse));
        child.Place.ShowClockWindow(true);
        child.Place.SetWindowState(1);
        QVERIFY(child.Frame().height() > 15);
        QVERIFY(child.IsWhole());
        QVERIFY(child.Frame().windowFlags() & Qt::WindowMinimizeButtonHint);
        child.Place.SetWindowState(0);
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
        QCOMPARE(child.Place.SurfaceOffset(), QPoint(0, 0));
        QVERIFY(!child.Frame().mask().isEmpty());
        QVERIFY(!(child.Frame().windowFlags() & Qt::WindowMinimizeButtonHint));
    }

    void SameFrameAgainDoesNothing() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Frame(u"Classic"_s, u"No"_s);
        QSignalSpy states(&child.Frame(), &QMdiSubWindow::windowStateChanged);
        child.Frame().setWindowFlag(Qt::WindowStaysOnTopHint);  // would be lost if flags were set
        child.Frame(u"Classic"_s, u"No"_s);
        QVERIFY(child.Frame().windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(states.count(), 0);
    }

    void OutlineSurvives() {
        Child child;
        child.Frame(u"No Border"_s, u"No"_s);
        const QRegion figure(10, 0, 100, 100, QRegion::Ellipse);
        child.Place.SetWindowRgn(figure);
        QCOMPARE(child.Frame().mask(), figure);
        child.Place.ShowClockWindow(true);
        QCOMPARE(child.Frame().mask(), figure);
        child.Frame().resize(300, 200);
        QCOMPARE(child.Frame().mask(), figure);
        child.Place.SetWindowState(2);
        QCOMPARE(child.Frame().mask(), figure);
        child.Place.SetWindowState(0);
        QCOMPARE(child.Frame().mask(), figure);
        child.Frame().hide();
        child.Frame().show();
        QCOMPARE(child.Frame().mask(), figure);
        child.Place.SetWindowRgn({});
        QVERIFY(child.Frame().mask().isEmpty());
    }

    void MiddlePart_data() {
        QTest::addColumn<double>("part");
        QTest::addColumn<QRect>("rect");
        QTest::newRow("all") << 1.0 << QRect(0, 0, 200, 100);
        QTest::newRow("half") << 0.5 << QRect(50, 25, 100, 50);
        QTest::newRow("tenth") << 0.1 << QRect(90, 45, 20, 10);
        QTest::newRow("nothing leaves a pixel") << 0.0 << QRect(99, 49, 1, 1);
    }
    void MiddlePart() {
        QFETCH(double, part);
        QFETCH(QRect, rect);
        QCOMPARE(CentredPart(QRect(0, 0, 200, 100), part), rect);
    }

    void LogicalPixels() {
        const QRegion device = QRegion(20, 0, 100, 50) + QRegion(0, 50, 30, 7);
        QCOMPARE(clockcore::ToLogicalPixels(device, 1), device);
        QCOMPARE(clockcore::ToLogicalPixels(device, 2),
                 QRegion(10, 0, 50, 25) + QRegion(0, 25, 15, 3));
        QVERIFY(clockcore::ToLogicalPixels({}, 2).isEmpty());
    }

    void BordersAreDrawnAllRound() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Frame(u"Classic"_s, u"No"_s);
        const QImage frame = child.Frame().grab().toImage();
        QCOMPARE(frame.pixel(100, 0), frame.pixel(0, 75));
        QCOMPARE(frame.pixel(100, 149), frame.pixel(199, 75));
        QCOMPARE(frame.pixel(100, 149), frame.pixel(0, 75));
        QVERIFY(frame.pixel(100, 0) != frame.pixel(100, 75));
    }

    void OpensAtOnceWithoutARate_data() {
        QTest::addColumn<QString>("rate");
        QTest::newRow("0") << u"0"_s;
        QTest::newRow("below") << u"-1"_s;
        QTest::newRow("text") << u"slow"_s;
    }
    void OpensAtOnceWithoutARate() {
        QFETCH(QString, rate);
        Child child;
        child.Set(Rate, rate);
        child.Place.ShowClockWindow(true);
        QVERIFY(child.Frame().isVisible());
        QVERIFY(child.IsWhole());
    }

    void OpensInTheTimeOfItsRate() {
        Child child;
        child.Set(Rate, u"300"_s);
        child.Place.ShowClockWindow(true);
        QVERIFY(child.Clock->isVisible());
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
        QCOMPARE(child.Frame().mask().boundingRect().size(), QSize(1, 1));
        child.Machine.Clock.Advance(150);
        QCOMPARE(child.Frame().mask().boundingRect().size(), QSize(100, 75));
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
        child.Machine.Clock.Advance(149);
        QVERIFY(!child.IsWhole());
        child.Machine.Clock.Advance(1);
        QVERIFY(child.IsWhole());
        QCOMPARE(child.Frame().geometry(), QRect(100, 50, 200, 150));
    }

    void LongestOpening() {
        Child child;
        child.Set(Rate, u"100000"_s);
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.Advance(9900);
        QVERIFY(!child.IsWhole());
        child.Machine.Clock.Advance(120);
        QVERIFY(child.IsWhole());
    }

    void FigureOpensToo() {
        Child child;
        child.Frame(u"No Border"_s, u"No"_s);
        child.Set(Rate, u"300"_s);
        const QRegion figure(0, 0, 200, 150, QRegion::Ellipse);
        child.Place.SetWindowRgn(figure);
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.Advance(255);
        QCOMPARE(child.Frame().mask(), figure & CentredPart(QRect(0, 0, 200, 150), 0.85));
        child.Machine.Clock.Advance(60);
        QCOMPARE(child.Frame().mask(), figure);
    }

    void ClockThatWasSetBackEndsTheOpening() {
        Child child;
        child.Set(Rate, u"300"_s);
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.SetNow(child.Machine.Clock.Now().addDays(1));
        child.Machine.Clock.Advance(15);
        QVERIFY(child.IsWhole());
    }

    void ResizedWhileItOpens() {
        Child child;
        child.Set(Rate, u"300"_s);
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.Advance(150);
        child.Frame().resize(400, 300);
        QCOMPARE(child.Frame().mask().boundingRect().size(), QSize(200, 150));
        child.Machine.Clock.Advance(200);
        QVERIFY(child.IsWhole());
    }

    void OpensMaximised() {
        Child child;
        child.Set(Rate, u"300"_s);
        child.Set(u"Window State"_s, u"Maximized"_s);
        child.Place.ApplyWindowState();
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.Advance(315);
        QCOMPARE(child.Place.WindowState(), 2);
        QVERIFY(child.IsWhole());
    }

    void ClosesAtOnceAndItsImageShrinks() {
        Child child;
        child.Place.ShowClockWindow(true);
        child.Set(Rate, u"300"_s);
        const auto before = child.Afterimages().size();
        child.Place.ShowClockWindow(false);
        QVERIFY(!child.Frame().isVisible());
        QCOMPARE(child.Afterimages().size(), before + 1);
        const QWidget* image = child.Afterimages().constLast();
        QCOMPARE(image->geometry(), QRect(100, 50, 200, 150));
        child.Machine.Clock.Advance(150);
        QCOMPARE(image->mask().boundingRect().size(), QSize(100, 75));
        child.Machine.Clock.Advance(150);
        QVERIFY(!image->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(child.Afterimages().size(), before);
    }

    void ClosesWithoutAnImage() {
        Child child;
        const auto before = child.Afterimages().size();
        child.Place.ShowClockWindow(true);
        child.Place.ShowClockWindow(false);
        QCOMPARE(child.Afterimages().size(), before);
        child.Set(Rate, u"300"_s);
        child.Place.ShowClockWindow(false);  // nothing to be seen
        QCOMPARE(child.Afterimages().size(), before);
    }

    void ShellClosesWhileAnImageShrinks() {
        Keys keys;
        keys.Set(Rate, u"300"_s);
        auto area = std::make_unique<QMdiArea>();
        area->show();
        auto* clock = new QWidget;
        MdiPlacement place(*clock, area.get(), keys.Data, &keys.Machine.Clock);
        place.MakeFrame();
        place.ShowClockWindow(true);
        place.ShowClockWindow(false);
        area.reset();
        keys.Machine.Clock.Advance(400);
        QVERIFY(place.Frame() == nullptr);
    }

    void ClosesWhileItOpens() {
        Child child;
        child.Set(Rate, u"300"_s);
        child.Place.ShowClockWindow(true);
        child.Machine.Clock.Advance(150);
        child.Place.ShowClockWindow(false);
        QVERIFY(!child.Frame().isVisible());
        child.Machine.Clock.Advance(400);
        QVERIFY(!child.Frame().isVisible());
    }

    /// One that still speaks is there for a while, but no longer seen.
    void ClosingGivesThePlaceUp() {
        Child child;
        child.Place.ApplyWindowRect();
        child.Place.ShowClockWindow(true);
        QVERIFY(child.Frame().Place().Stands());
        child.Place.ShowClockWindow(false);
        QVERIFY(!child.Frame().Place().Stands());
    }

    void WrapperFillsTheShell() {
        Child child;
        child.Data.Tag = {clockcore::ClockKind::Analogue, true};
        child.Set(u"Window State"_s, u"Minimized"_s);
        child.Place.ApplyWindowState();
        QVERIFY(child.Frame().isVisible());
        QCOMPARE(child.Place.WindowState(), 2);
        QCOMPARE(child.Frame().size(), child.Area.viewport()->size());
        QCOMPARE(child.Clock->size(), child.Area.viewport()->size());
        child.Place.ApplyTitleBar();
        child.Place.ApplyWindowBorder();
        QCOMPARE(child.Place.SurfaceOffset(), QPoint(0, 0));
    }

    // The container is 12000 by 9000 twips, the clock 3000 by 2250.
    void PositionMenu_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<QString>("stored");
        QTest::newRow("tl") << u"Top Left"_s << QPoint(0, 0) << u"7,7,7,7"_s;
        QTest::newRow("tr") << u"Top Right"_s << QPoint(600, 0) << u"7,7,7,7"_s;
        QTest::newRow("bl") << u"Bottom Left"_s << QPoint(0, 450) << u"7,7,7,7"_s;
        QTest::newRow("br") << u"Bottom Right"_s << QPoint(600, 450) << u"7,7,7,7"_s;
        QTest::newRow("centre") << u"Centre"_s << QPoint(300, 225) << u"-1,-1,7,7"_s;
        QTest::newRow("auto") << u"Centre Auto Size"_s << QPoint(300, 225) << u"-1,-1,-1,-1"_s;
        QTest::newRow("nothing") << u"Elsewhere"_s << QPoint(100, 50) << u"7,7,7,7"_s;
    }
    void PositionMenu() {
        QFETCH(QString, caption);
        QFETCH(QPoint, place);
        QFETCH(QString, stored);
        Child child;
        child.Area.setFrameShape(QFrame::NoFrame);
        child.Area.resize(800, 600);
        const QStringList keys = {u"Window Top"_s, u"Window Left"_s, u"Window Width"_s,
                                  u"Window Height"_s};
        for (const QString& key : keys) {
            child.Set(key, u"7"_s);
        }
        child.Place.ShowClockWindow(true);
        child.Place.MoveTo(caption);
        QCOMPARE(child.Frame().geometry(), QRect(place, QSize(200, 150)));
        QStringList values;
        for (const QString& key : keys) {
            values += child.Get(key);
        }
        QCOMPARE(values.join(u','), stored);
    }

    void AloneOnTheScreen() {
        Alone alone;
        alone.Place.ApplyWindowRect();
        QCOMPARE(alone.Clock.geometry(), QRect(300, 300, 200, 200));
        alone.Set(u"Window Width"_s, u"1500"_s);
        alone.Set(u"Window Left"_s, u"150"_s);
        alone.Place.ApplyWindowRect();
        QCOMPARE(alone.Clock.geometry(), QRect(10, 300, 100, 200));
    }

    /// Shown maximised it stays so; its place is for when it is shown normal.
    void AloneAndMaximised() {
        Alone alone;
        alone.Set(u"Window State"_s, u"Maximized"_s);
        alone.Place.ApplyWindowState();
        QCOMPARE(alone.Place.WindowState(), 2);
        alone.Place.ApplyWindowRect();
        QCOMPARE(alone.Clock.geometry(), QRect(300, 300, 200, 200));
        alone.Place.SetWindowState(2);
        QTRY_VERIFY(alone.Clock.width() > 200);
        const QRect whole = alone.Clock.geometry();
        alone.Place.ApplyWindowRect();
        QCOMPARE(alone.Clock.geometry(), whole);
        alone.Place.SetWindowState(0);
        alone.Set(u"Window Left"_s, u"150"_s);
        alone.Place.ApplyWindowRect();
        QCOMPARE(alone.Clock.geometry(), QRect(10, 300, 200, 200));
    }

    void FrameAlone() {
        Alone alone;
        alone.Place.ApplyWindowRect();
        alone.Place.ApplyTitleBar();
        alone.Place.ShowClockWindow(true);
        QVERIFY(alone.Clock.windowFlags() & Qt::WindowTitleHint);
        QVERIFY(alone.Clock.windowFlags() & Qt::WindowStaysOnTopHint);
        QVERIFY(!(alone.Clock.windowFlags() & Qt::WindowMinMaxButtonsHint));
        QSignalSpy closed(qApp, &QApplication::lastWindowClosed);
        alone.Set(u"Window Title Bar"_s, u"No"_s);
        alone.Place.ApplyTitleBar();
        QVERIFY(!(alone.Clock.windowFlags() & Qt::WindowTitleHint));
        QVERIFY(!(alone.Clock.windowFlags() & Qt::FramelessWindowHint));
        alone.Set(u"Window Border"_s, u"No Border"_s);
        alone.Place.ApplyWindowBorder();
        QVERIFY(alone.Clock.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(alone.Clock.isVisible());
        QCOMPARE(alone.Clock.geometry(), QRect(300, 300, 200, 200));
        QCoreApplication::processEvents();
        QCOMPARE(closed.count(), 0);
    }

    void FigureAlone() {
        Alone alone;
        alone.Place.ApplyWindowRect();
        alone.Set(u"Window Shape"_s, u"Circle"_s);
        const QRegion figure(10, 0, 180, 190, QRegion::Ellipse);
        alone.Place.SetWindowRgn(figure);
        alone.Place.ShowClockWindow(true);
        QVERIFY(alone.Clock.windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(alone.Clock.mask(), figure);
        QCOMPARE(alone.Place.SurfaceOffset(), QPoint(0, 0));
    }

    void ColourKey() {
        Alone alone;
        alone.Place.ApplyWindowRect();
        alone.Place.ShowClockWindow(true);
        alone.Place.SetColourKey(true);
        QVERIFY(alone.Clock.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(alone.Clock.isVisible());
        QCOMPARE(alone.Clock.geometry(), QRect(300, 300, 200, 200));
        alone.Place.SetColourKey(false);
        QVERIFY(!alone.Clock.testAttribute(Qt::WA_TranslucentBackground));
        Child child;
        child.Place.SetColourKey(true);
        QVERIFY(!child.Clock->testAttribute(Qt::WA_TranslucentBackground));
    }

    void OpensAlone() {
        Alone alone;
        alone.Set(Rate, u"300"_s);
        alone.Place.ApplyWindowRect();
        alone.Place.ShowClockWindow(true);
        alone.Machine.Clock.Advance(150);
        QCOMPARE(alone.Clock.mask().boundingRect().size(), QSize(100, 100));
        alone.Machine.Clock.Advance(150);
        QVERIFY(alone.Clock.mask().isEmpty());
        alone.Place.ShowClockWindow(false);
        QVERIFY(!alone.Clock.isVisible());
    }

    void NoClockNoAnimation() {
        Keys keys;
        keys.Set(Rate, u"300"_s);
        QWidget clock;
        MdiPlacement place(clock, nullptr, keys.Data);
        place.ShowClockWindow(true);
        QVERIFY(clock.isVisible());
        QVERIFY(clock.mask().isEmpty());
    }
};

QTEST_MAIN(tst_MdiPlacement)
#include "tst_MdiPlacement.moc"
