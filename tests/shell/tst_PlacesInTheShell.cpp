#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTest>

#include "clock/ui/ClockFrame.h"
#include "shell/ShellDesk.h"

namespace {

const QString Utc = u"UTC"_s;
const QString Tokyo = u"Tokyo Standard Time"_s;
const QString Nepal = u"Nepal Standard Time"_s;

/// A shell of 700 by 600 with three clocks.
struct ThreeClocks : Desk {
    bool Open() {
        Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                          "Window Width=10500\r\nWindow Height=9000\r\n");
        return Start() && LaunchAll();
    }
    bool LaunchAll() {
        bool launched = true;
        for (const QString& zone : {Utc, Tokyo, Nepal}) {
            launched = Shell->LaunchTempolark(zone) != 0 && launched;
        }
        Settle();
        return launched;
    }
    QMdiArea& Area() const { return *Shell->findChild<QMdiArea*>(); }
    clockcore::ClockFrame& Frame(int index) const {
        return *qobject_cast<clockcore::ClockFrame*>(Area().subWindowList()[index]);
    }
    void Choose(const QString& button, const QString& entry) const {
        Desk::Item(Desk::Open(button), entry)->trigger();
    }
    QString Stored(const QString& zone, const QString& key) const {
        for (const QByteArray& line : User(u"TimeZones/"_s + zone + u".ini"_s).split('\n')) {
            const QString text = QString::fromUtf8(line).trimmed();
            if (text.section(u'=', 0, 0) == u"Window:"_s + key) {
                return text.section(u'=', 1).section(u',', 0, 0);
            }
        }
        return {};
    }
    QList<int> States() const {
        QList<int> states;
        for (int i = 1; i < Windows.Count(); ++i) {
            states += Windows[i].WindowState();
        }
        return states;
    }
};

}  // namespace

/// Where the clocks of a shell stand, by its menus and buttons.
class tst_PlacesInTheShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AllThroughEveryState() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        const QList<QRect> places = {{10, 20, 200, 150}, {220, 40, 210, 160}, {50, 250, 220, 170}};
        for (int i = 0; i < 3; ++i) {
            desk.Frame(i).setGeometry(places[i]);
        }
        const QStringList commands = {u"Maximize"_s, u"Minimize"_s, u"Restore"_s,
                                      u"Minimize"_s, u"Maximize"_s, u"Minimize"_s};
        const QList<int> states = {2, 1, 0, 1, 2, 1};
        for (int i = 0; i < commands.size(); ++i) {
            desk.Choose(commands[i], u"All"_s);
            desk.Settle();
            QCOMPARE(desk.States(), QList<int>(3, states[i]));
        }
        QCOMPARE(Desk::Texts(desk.Desk::Open(u"Restore"_s)),
                 (QStringList{u"Restore"_s, Utc, Tokyo, Nepal, u"All"_s}));
        desk.Choose(u"Organize Windows"_s, u"Restore All"_s);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(desk.Frame(i).geometry(), places[i]);
        }
        desk.Choose(u"Organize Windows"_s, u"Maximise All"_s);
        desk.Choose(u"Organize Windows"_s, u"Minimise All"_s);
        desk.Shell->SetWindowState(1);
        desk.Shell->SetWindowState(2);
        desk.Shell->SetWindowState(0);
        desk.Stop();
        QCOMPARE(desk.Stored(Utc, u"Window Height"_s), u"2250"_s);
        QCOMPARE(desk.Stored(Tokyo, u"Window Left"_s), u"3300"_s);
        QCOMPARE(desk.Stored(Nepal, u"Window Width"_s), u"3300"_s);
    }

    void ScrolledShellKeepsThePlaces() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        desk.Frame(0).setGeometry(10, 20, 200, 150);
        desk.Frame(1).setGeometry(400, 300, 200, 150);
        desk.Frame(2).setGeometry(1200, 900, 200, 150);
        desk.Area().horizontalScrollBar()->setValue(270);
        desk.Area().verticalScrollBar()->setValue(130);
        QCOMPARE(desk.Frame(0).pos(), QPoint(-260, -110));
        desk.Stop();
        QCOMPARE(desk.Stored(Utc, u"Window Left"_s), u"150"_s);
        QCOMPARE(desk.Stored(Utc, u"Window Top"_s), u"300"_s);
        QCOMPARE(desk.Stored(Tokyo, u"Window Left"_s), u"6000"_s);
        QCOMPARE(desk.Stored(Tokyo, u"Window Top"_s), u"4500"_s);
        QCOMPARE(desk.Stored(Nepal, u"Window Left"_s), u"18000"_s);
        QCOMPARE(desk.Stored(Nepal, u"Window Top"_s), u"13500"_s);

        // At the next start all are seen, and the places stay.
        QVERIFY(desk.Start() && desk.LaunchAll());
        for (int i = 0; i < 3; ++i) {
            QVERIFY(desk.Area().viewport()->rect().intersects(desk.Frame(i).geometry()));
        }
        desk.Stop();
        QCOMPARE(desk.Stored(Nepal, u"Window Left"_s), u"18000"_s);
        QCOMPARE(desk.Stored(Nepal, u"Window Top"_s), u"13500"_s);
    }

    void NewClocksStandSideBySide() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        for (int i = 0; i < 3; ++i) {
            QVERIFY(desk.Area().viewport()->rect().contains(desk.Frame(i).geometry()));
            for (int other = 0; other < i; ++other) {
                QVERIFY(!desk.Frame(i).geometry().intersects(desk.Frame(other).geometry()));
            }
        }
    }

    void WindowMenuRestoresAMinimisedClock() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        desk.Frame(1).setGeometry(220, 40, 210, 160);
        desk.Choose(u"Maximize"_s, Tokyo);
        desk.Choose(u"Minimize"_s, u"All"_s);
        desk.Choose(u"Organize Windows"_s, Tokyo);
        QCOMPARE(desk.States(), (QList<int>{1, 0, 1}));
        QCOMPARE(desk.Frame(1).geometry(), QRect(220, 40, 210, 160));
        QCOMPARE(desk.Area().activeSubWindow(), &desk.Frame(1));
        // A maximised one stays so.
        desk.Choose(u"Maximize"_s, Utc);
        desk.Choose(u"Organize Windows"_s, Tokyo);
        desk.Choose(u"Organize Windows"_s, Utc);
        QCOMPARE(desk.States(), (QList<int>{2, 0, 1}));
        QCOMPARE(desk.Area().activeSubWindow(), &desk.Frame(0));
    }

    void OpenOfAnOpenZoneBringsItsClockToTheFront() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        desk.Choose(u"Minimize"_s, Utc);
        QVERIFY(desk.Area().activeSubWindow() != &desk.Frame(0) || desk.States()[0] == 1);
        desk.Desk::Open(u"Launch"_s);
        Desk::Item(desk.Menu(u"Open"_s), Utc)->trigger();
        desk.Settle();
        QCOMPARE(desk.Clocks(), (QStringList{Utc, Tokyo, Nepal}));
        QCOMPARE(desk.States(), (QList<int>{0, 0, 0}));
        QCOMPARE(desk.Area().activeSubWindow(), &desk.Frame(0));
        QCOMPARE(desk.Status().section(u" << "_s, 0, 0), u"Tempolark for UTC is open already."_s);
        desk.Desk::Open(u"Launch"_s);
        Desk::Item(desk.Menu(u"LastOpened"_s), u"All"_s)->trigger();
        desk.Settle();
        QCOMPARE(desk.Clocks().size(), 3);
    }

    void OneClockBeforeItsFirstTick() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, "UTC=UTC\r\nUTC.ini=UTC.ini\r\n");
        desk.Module.CommandLine = Utc;
        QVERIFY(desk.Start());
        QVERIFY(!desk.Shell->findChild<clockcore::ClockFrame*>()->isVisible());
        QVERIFY(desk.Shell->LaunchTempolark(Utc) != 0);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{Utc});
        QCOMPARE(desk.Windows[1].WindowState(), 0);
    }

    void ClosedClockOpensAgain() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        desk.Windows[1].Unload();
        QVERIFY(desk.Shell->LaunchTempolark(Utc) != 0);
        desk.Settle();
        QCOMPARE(desk.Clocks(), (QStringList{Tokyo, Nepal, Utc}));
    }

    void Tiles() {
        ThreeClocks desk;
        QVERIFY(desk.Open());
        const QSize room = desk.Area().contentsRect().size();
        QVERIFY(room.width() > room.height());
        desk.Frame(0).setGeometry(1200, 900, 200, 150);
        desk.Area().horizontalScrollBar()->setValue(500);
        // Three in one band: by rows one over the other, by columns side by side.
        desk.Shell->DoMenuItem(8.0F, 1);
        QCOMPARE(desk.Area().horizontalScrollBar()->value(), 0);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(desk.Frame(i).width(), room.width());
            QCOMPARE(desk.Frame(i).x(), 0);
            QCOMPARE(desk.Frame(i).y(), room.height() * i / 3);
        }
        desk.Shell->DoMenuItem(8.0F, 2);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(desk.Frame(i).height(), room.height());
            QCOMPARE(desk.Frame(i).y(), 0);
            QCOMPARE(desk.Frame(i).x(), room.width() * i / 3);
        }
    }
};

QTEST_MAIN(tst_PlacesInTheShell)
#include "tst_PlacesInTheShell.moc"
