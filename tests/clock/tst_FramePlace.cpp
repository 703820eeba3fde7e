#include <QScrollBar>
#include <QStyleOptionTitleBar>
#include <QTest>

#include "clock/ClockDesk.h"
#include "support/FakeDialogs.h"

using clockcore::ClockFrame;

namespace {

/// A zone's file, which is the default but for some values.
void WriteZone(Desk& desk, const QString& zone, const QMap<QString, QString>& values) {
    ClockProperties properties;
    mduLib::ReadPropertyFile(desk.Machine.Files, desk.Machine.AppFolder() + u"/ini/Tempolark.ini"_s,
                             properties);
    for (auto value = values.begin(); value != values.end(); ++value) {
        mduLib::PutProperty(value.key(), value.value(), properties);
    }
    desk.Machine.WriteFile(u"tester/TimeZones/"_s + zone + u".ini"_s, {});
    mduLib::WritePropertyFile(desk.Machine.Files, properties, desk.Path(zone));
}

QMap<QString, QString> At(const QString& left, const QString& top, const QString& width,
                          const QString& height) {
    return {{u"Window Left"_s, left},
            {u"Window Top"_s, top},
            {u"Window Width"_s, width},
            {u"Window Height"_s, height}};
}

ClockFrame& Frame(const frmTempolark* clock) {
    return *qobject_cast<ClockFrame*>(clock->parentWidget());
}

QStringList StoredPlace(const Desk& desk, const QString& zone) {
    return {desk.Key(zone, u"Window Left"_s), desk.Key(zone, u"Window Top"_s),
            desk.Key(zone, u"Window Width"_s), desk.Key(zone, u"Window Height"_s)};
}

/// An area that scrolls, as the shell's does.
struct ScrollingDesk : Desk {
    ScrollingDesk() {
        Area.setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
        Area.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        Area.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    }
};

void ScrollTo(Desk& desk, int x, int y) {
    desk.Area.horizontalScrollBar()->setValue(x);
    desk.Area.verticalScrollBar()->setValue(y);
    QCOMPARE(desk.Area.horizontalScrollBar()->value(), x);
    QCOMPARE(desk.Area.verticalScrollBar()->value(), y);
}

}  // namespace

/// Clocks that are moved, minimised, maximised, scrolled away.
class tst_FramePlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NineChanges_data() {
        QTest::addColumn<QString>("border");
        QTest::addColumn<QString>("titleBar");
        QTest::addColumn<QString>("shape");
        QTest::newRow("plain") << u"3D Border"_s << u"Yes"_s << u"Normal"_s;
        QTest::newRow("line") << u"Classic"_s << u"Yes"_s << u"Normal"_s;
        QTest::newRow("no title bar") << u"3D Border"_s << u"No"_s << u"Normal"_s;
        QTest::newRow("bare") << u"No Border"_s << u"No"_s << u"Normal"_s;
        QTest::newRow("circle") << u"3D Border"_s << u"Yes"_s << u"Circle"_s;
    }

    /// Normal (0), minimised (1), maximised (2), each after each, with ticks between.
    void NineChanges() {
        QFETCH(QString, border);
        QFETCH(QString, titleBar);
        QFETCH(QString, shape);
        Desk desk;
        for (const QString& zone : {u"UTC"_s, u"Nepal Standard Time"_s}) {
            WriteZone(desk, zone,
                      {{u"Window Border"_s, border},
                       {u"Window Title Bar"_s, titleBar},
                       {u"Window Shape"_s, shape}});
        }
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const auto change = [&](int state) {
            clock->SetWindowState(state);
            QCOMPARE(clock->WindowState(), state);
            desk.Machine.Clock.Advance(1000);
            QCoreApplication::processEvents();
            QCOMPARE(clock->WindowState(), state);
            QVERIFY(Frame(clock).isVisible());
            const QRect expected =
                state == 0 ? QRect(33, 44, 222, 111) : desk.Area.viewport()->rect();
            if (state != 1) {
                QCOMPARE(Frame(clock).geometry(), expected);
                QVERIFY(clock->isVisible());
            } else {
                QVERIFY(Frame(clock).height() > 15 && Frame(clock).height() < 40);
                QVERIFY(desk.Area.viewport()->rect().contains(Frame(clock).geometry()));
            }
            QCOMPARE(Frame(clock).Place().Rect(), QRect(33, 44, 222, 111));
        };
        for (const bool many : {false, true}) {
            if (many) {
                desk.Running(u"Nepal Standard Time"_s);
            }
            Frame(clock).setGeometry(33, 44, 222, 111);
            for (int from = 0; from < 3; ++from) {
                for (int to = 0; to < 3; ++to) {
                    change(from);
                    change(to);
                    change(0);
                }
            }
        }
    }

    void ClosedWhileMinimisedAfterMaximised() {
        Desk desk;
        WriteZone(desk, u"UTC"_s, At(u"150"_s, u"300"_s, u"4500"_s, u"2250"_s));
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        clock->SetWindowState(1);
        QCOMPARE(clock->Style(), WindowStyle::Minimised);
        desk.Close(clock);
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"150"_s, u"300"_s, u"4500"_s, u"2250"_s}));
    }

    void MovedAndThenMaximised() {
        Desk desk;
        for (const int state : {1, 2}) {
            WriteZone(desk, u"UTC"_s, At(u"150"_s, u"300"_s, u"4500"_s, u"2250"_s));
            frmTempolark* clock = desk.Running(u"UTC"_s);
            Frame(clock).setGeometry(40, 60, 200, 100);
            clock->SetWindowState(state);
            desk.Close(clock);
            QCOMPARE(StoredPlace(desk, u"UTC"_s),
                     (QStringList{u"600"_s, u"900"_s, u"3000"_s, u"1500"_s}));
        }
    }

    void StartsInItsState_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("state");
        QTest::newRow("minimised") << u"Minimized"_s << 1;
        QTest::newRow("maximised") << u"Maximized"_s << 2;
    }
    void StartsInItsState() {
        QFETCH(QString, name);
        QFETCH(int, state);
        Desk desk;
        QMap<QString, QString> values = At(u"150"_s, u"300"_s, u"4500"_s, u"2250"_s);
        values[u"Window State"_s] = name;
        for (const int next : {state, 0, 3 - state}) {
            WriteZone(desk, u"UTC"_s, values);
            frmTempolark* clock = desk.Running(u"UTC"_s);
            QCOMPARE(clock->WindowState(), state);
            clock->SetWindowState(next);
            desk.Machine.Clock.Advance(1000);
            clock->SetWindowState(0);
            QCOMPARE(Frame(clock).geometry(), QRect(10, 20, 300, 150));
            clock->SetWindowState(next);
            desk.Close(clock);
            QCOMPARE(StoredPlace(desk, u"UTC"_s),
                     (QStringList{u"150"_s, u"300"_s, u"4500"_s, u"2250"_s}));
        }
    }

    /// A quarter of the shell is 200 by 150 in its middle; a pixel or two go to its frame.
    void OddSizesOfAFile_data() {
        QTest::addColumn<QString>("height");
        for (const char* height : {"", "0", "-1", "-2250", "15", "tall"}) {
            QTest::addRow("'%s'", height) << QString::fromLatin1(height);
        }
    }
    void OddSizesOfAFile() {
        QFETCH(QString, height);
        Desk desk;
        WriteZone(desk, u"UTC"_s, At(u"150"_s, u"300"_s, u"4500"_s, height));
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QRect frame = Frame(clock).geometry();
        QCOMPARE(frame.topLeft(), QPoint(10, 20));
        QCOMPARE(frame.width(), 300);
        QVERIFY(qAbs(frame.height() - 150) <= 1);
        desk.Close(clock);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Height"_s), QString::number(frame.height() * 15));
    }

    void AbsurdPlace() {
        Desk desk;
        WriteZone(desk, u"UTC"_s, At(u"9e9"_s, u"-9e9"_s, u"9e9"_s, u"9e9"_s));
        const frmTempolark* clock = desk.Running(u"UTC"_s);
        QCOMPARE(Frame(clock).pos(), QPoint(0, 0));
        QVERIFY(Frame(clock).width() <= 800 && Frame(clock).height() <= 800);
    }

    void ButtonsOfAMinimisedClock_data() {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("after");
        for (const int before : {0, 2}) {
            QTest::addRow("restore, %d", before)
                << before << int(QStyle::SC_TitleBarNormalButton) << 0;
            QTest::addRow("maximise, %d", before)
                << before << int(QStyle::SC_TitleBarMaxButton) << 2;
        }
    }
    void ButtonsOfAMinimisedClock() {
        QFETCH(int, before);
        QFETCH(int, button);
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        ClockFrame& frame = Frame(clock);
        frame.setGeometry(33, 44, 222, 111);
        clock->SetWindowState(before);
        clock->SetWindowState(1);
        QStyleOptionTitleBar option;
        option.initFrom(&frame);
        option.titleBarFlags = frame.windowFlags();
        option.titleBarState = Qt::WindowMinimized;
        option.rect.setHeight(
            frame.style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, &frame));
        const QPoint place =
            frame.style()
                ->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SubControl(button), &frame)
                .center();
        QTest::mouseMove(&frame, place);
        QTest::mouseClick(&frame, Qt::LeftButton, {}, place);
        QTEST(clock->WindowState(), "after");
        clock->SetWindowState(0);
        QCOMPARE(frame.geometry(), QRect(33, 44, 222, 111));
    }

    void DoubleClickRestoresAMinimisedClock() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Frame(clock).setGeometry(33, 44, 222, 111);
        clock->SetWindowState(2);
        clock->SetWindowState(1);
        QTest::mouseDClick(&Frame(clock), Qt::LeftButton, {}, QPoint(70, 12));
        QCOMPARE(clock->WindowState(), 0);
        QCOMPARE(Frame(clock).geometry(), QRect(33, 44, 222, 111));
    }

    void ChangesInAHiddenShell() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Frame(clock).setGeometry(33, 44, 222, 111);
        clock->SetWindowState(2);
        desk.Area.hide();
        QCOMPARE(clock->WindowState(), 2);
        clock->SetWindowState(1);
        QCOMPARE(clock->WindowState(), 1);
        desk.Area.show();
        QCOMPARE(clock->WindowState(), 1);
        desk.Area.hide();
        clock->SetWindowState(0);
        desk.Area.show();
        QCOMPARE(Frame(clock).geometry(), QRect(33, 44, 222, 111));
        QVERIFY(clock->isVisible());
    }

    /// Three clocks, one far off; each closes while another part of the area is seen.
    void ScrolledWhenItCloses() {
        ScrollingDesk desk;
        const QStringList zones = {u"UTC"_s, u"Nepal Standard Time"_s, u"Tokyo Standard Time"_s};
        QList<frmTempolark*> clocks;
        for (const QString& zone : zones) {
            clocks += desk.Running(zone);
        }
        Frame(clocks[0]).setGeometry(20, 30, 240, 160);
        Frame(clocks[1]).setGeometry(700, 500, 240, 160);
        Frame(clocks[2]).setGeometry(1500, 1200, 240, 160);
        ScrollTo(desk, 333, 444);
        QCOMPARE(Frame(clocks[0]).geometry(), QRect(-313, -414, 240, 160));
        for (int i = 2; i >= 0; --i) {
            desk.Close(clocks[i]);
        }
        QCOMPARE(StoredPlace(desk, zones[0]),
                 (QStringList{u"300"_s, u"450"_s, u"3600"_s, u"2400"_s}));
        QCOMPARE(StoredPlace(desk, zones[1]),
                 (QStringList{u"10500"_s, u"7500"_s, u"3600"_s, u"2400"_s}));
        QCOMPARE(StoredPlace(desk, zones[2]),
                 (QStringList{u"22500"_s, u"18000"_s, u"3600"_s, u"2400"_s}));
    }

    void ScrolledTheOtherWay() {
        ScrollingDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        frmTempolark* far = desk.Running(u"Nepal Standard Time"_s);
        Frame(clock).setGeometry(20, 30, 240, 160);
        Frame(far).setGeometry(-400, -300, 240, 160);
        ScrollTo(desk, -150, -100);
        desk.Close(clock);
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"300"_s, u"450"_s, u"3600"_s, u"2400"_s}));
        desk.Close(far);
        QCOMPARE(desk.Key(u"Nepal Standard Time"_s, u"Window Left"_s), u"-6000"_s);
        QCOMPARE(desk.Key(u"Nepal Standard Time"_s, u"Window Top"_s), u"-4500"_s);
    }

    void SavedWhileScrolled() {
        ScrollingDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Frame(clock).setGeometry(20, 30, 240, 160);
        frmTempolark* far = desk.Running(u"Nepal Standard Time"_s);
        Frame(far).setGeometry(1500, 1200, 240, 160);
        ScrollTo(desk, 100, 200);
        clock->SaveCurrentStyle();
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"300"_s, u"450"_s, u"3600"_s, u"2400"_s}));
        desk.Machine.Dialogs.FileAnswers = {desk.Machine.AppFolder() + u"/Mine.ini"_s};
        clock->SaveStyleAs();
        QVERIFY(desk.Machine.ReadFile(u"Mine.ini"_s).contains("Window Left=300\r\n"));
    }

    void StatesWhileScrolled() {
        ScrollingDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Frame(clock).setGeometry(20, 30, 240, 160);
        frmTempolark* far = desk.Running(u"Nepal Standard Time"_s);
        Frame(far).setGeometry(1500, 1200, 240, 160);
        for (const int state : {1, 2}) {
            ScrollTo(desk, 0, 0);
            clock->SetWindowState(state);
            far->SetFocus();
            ScrollTo(desk, 300, 250);
            clock->SetWindowState(0);
            const QPoint scrolled(desk.Area.horizontalScrollBar()->value(),
                                  desk.Area.verticalScrollBar()->value());
            QCOMPARE(Frame(clock).geometry().translated(scrolled), QRect(20, 30, 240, 160));
            clock->SetWindowState(state);
        }
        desk.Close(clock);
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"300"_s, u"450"_s, u"3600"_s, u"2400"_s}));
    }

    /// The file says 1500, 1200; the area has 800 by 600.
    void OutsideASmallerShell() {
        ScrollingDesk desk;
        WriteZone(desk, u"UTC"_s, At(u"22500"_s, u"18000"_s, u"3600"_s, u"2400"_s));
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QRect room({0, 0}, desk.Area.maximumViewportSize());
        QCOMPARE(Frame(clock).geometry().bottomRight(), room.bottomRight());
        QCOMPARE(Frame(clock).size(), QSize(240, 160));
        // Nobody has moved it: it keeps the place of its file.
        desk.Close(clock);
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"22500"_s, u"18000"_s, u"3600"_s, u"2400"_s}));

        clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        clock->SetWindowState(0);
        desk.Area.resize(1400, 1000);
        QCOMPARE(Frame(clock).geometry().right(), desk.Area.maximumViewportSize().width() - 1);
        desk.Area.resize(1900, 1500);
        QCOMPARE(Frame(clock).geometry(), QRect(1500, 1200, 240, 160));
        desk.Area.resize(800, 600);  // from now on the scroll bars lead to it
        QCOMPARE(Frame(clock).geometry(), QRect(1500, 1200, 240, 160));
    }

    void OutsideAndThenMoved() {
        ScrollingDesk desk;
        WriteZone(desk, u"UTC"_s, At(u"22500"_s, u"18000"_s, u"3600"_s, u"2400"_s));
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Frame(clock).move(20, 30);
        desk.Area.resize(1900, 1500);
        QCOMPARE(Frame(clock).pos(), QPoint(20, 30));
        desk.Close(clock);
        QCOMPARE(StoredPlace(desk, u"UTC"_s),
                 (QStringList{u"300"_s, u"450"_s, u"3600"_s, u"2400"_s}));
    }

    void NewClocksDoNotCoverEachOther() {
        ScrollingDesk desk;
        QList<QRect> places;
        for (const QString& zone : {u"UTC"_s, u"Nepal Standard Time"_s, u"Tokyo Standard Time"_s,
                                    u"India Standard Time"_s}) {
            const QRect place = Frame(desk.Running(zone)).geometry();
            QVERIFY(desk.Area.viewport()->rect().contains(place));
            for (const QRect& other : places) {
                QVERIFY(!other.intersects(place));
            }
            places += place;
        }
    }

    void NewClocksOfOneMoment() {
        ScrollingDesk desk;
        const frmTempolark* first = desk.Launch(u"UTC"_s);
        const frmTempolark* second = desk.Launch(u"Nepal Standard Time"_s);
        // The third belongs where the first would go.
        WriteZone(desk, u"Tokyo Standard Time"_s, At(u"4500"_s, u"3375"_s, u"3000"_s, u"2250"_s));
        const frmTempolark* third = desk.Launch(u"Tokyo Standard Time"_s);
        desk.Machine.Clock.Advance(30);
        QCOMPARE(Frame(third).geometry(), QRect(300, 225, 200, 150));
        QVERIFY(!Frame(first).geometry().intersects(Frame(third).geometry()));
        QVERIFY(!Frame(second).geometry().intersects(Frame(third).geometry()));
        QVERIFY(!Frame(first).geometry().intersects(Frame(second).geometry()));
    }

    void MinimisedClockKeepsItsPlaceForItself() {
        ScrollingDesk desk;
        frmTempolark* first = desk.Running(u"UTC"_s);
        const QRect place = Frame(first).geometry();
        first->SetWindowState(1);
        const frmTempolark* second = desk.Running(u"Nepal Standard Time"_s);
        QVERIFY(!Frame(second).geometry().intersects(place));
    }

    void PlaceOfAClosedClockIsFreeAgain() {
        ScrollingDesk desk;
        frmTempolark* first = desk.Running(u"UTC"_s);
        const QRect place = Frame(first).geometry();
        first->Unload();
        const frmTempolark* second = desk.Running(u"Nepal Standard Time"_s);
        QCOMPARE(Frame(second).geometry(), place);
    }

    void FocusScrollsToTheClock() {
        ScrollingDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Running(u"Nepal Standard Time"_s);
        Frame(clock).setGeometry(1500, 1200, 240, 160);
        QVERIFY(!desk.Area.viewport()->rect().intersects(Frame(clock).geometry()));
        clock->SetFocus();
        QVERIFY(desk.Area.viewport()->rect().contains(Frame(clock).geometry()));
        QCOMPARE(Frame(clock).Place().Rect(), QRect(1500, 1200, 240, 160));
    }
};

QTEST_MAIN(tst_FramePlace)
#include "tst_FramePlace.moc"
