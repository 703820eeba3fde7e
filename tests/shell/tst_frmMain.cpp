#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QToolButton>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "shell/ShellDesk.h"
#include "shell/ui/ToolBar.h"
#include "support/FakeDialogs.h"

using namespace Qt::StringLiterals;

class tst_frmMain : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FirstRunInvites() {
        Desk desk;
        QVERIFY(desk.Start());
        QVERIFY(desk.Shell->isVisible());
        QVERIFY(desk.HeaderShows());
        QCOMPARE(desk.Shell->size(), QSize(800, 700));  // as wide as the screen
        QCOMPARE(
            Desk::Texts(desk.Open(u"Launch"_s)),
            (QStringList{u"New"_s, u"Open"_s, u"Open Last Opened"_s, u"Choose Time Zone"_s,
                         u"Remove Time Zone"_s, u"-"_s, u"&Exit"_s, u"-"_s, u"Set Shortcuts"_s}));
        QCOMPARE(Desk::Texts(desk.Menu(u"Open"_s)), QStringList{u"UTC"_s});
        QCOMPARE(Desk::Texts(desk.Menu(u"LastOpened"_s)), QStringList{u"None"_s});
        Desk::Item(desk.Menu(u"LastOpened"_s), u"None"_s)->trigger();
        QCOMPARE(desk.Clocks(), QStringList());
    }

    void LaunchesFromTheMenu() {
        Desk desk;
        desk.Zone(u"Tokyo Standard Time"_s);
        QVERIFY(desk.Start());
        desk.Open(u"Launch"_s);
        Desk::Click(desk.Menu(u"Open"_s), u"Tokyo Standard Time"_s);
        QCOMPARE(desk.Status(), u"Launched Tempolark for Tokyo Standard Time successfully."_s);
        QVERIFY(!desk.HeaderShows());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Tokyo Standard Time"_s});
        desk.Open(u"Launch"_s);
        QVERIFY(Desk::Item(desk.Menu(u"Open"_s), u"Tokyo Standard Time"_s)->isChecked());
        QVERIFY(!Desk::Item(desk.Menu(u"Open"_s), u"UTC"_s)->isChecked());
    }

    void MoreOpensTheFilePicker() {
        Desk desk;
        for (int i = 10; i < 26; ++i) {
            desk.Zone(u"Zone %1"_s.arg(i));
        }
        QVERIFY(desk.Start());
        desk.Open(u"Launch"_s);
        QCOMPARE(desk.Menu(u"Open"_s)->actions().size(), 16);
        desk.Machine.Dialogs.FileAnswers = {u"/somewhere/Zone 25.ini"_s};
        QVERIFY(desk.HeaderShows());
        Desk::Item(desk.Menu(u"Open"_s), u"More"_s)->trigger();
        QVERIFY(!desk.HeaderShows());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Zone 25"_s});
    }

    void AmpersandIsACharacter() {
        Desk desk;
        desk.Zone(u"A & B"_s);
        QVERIFY(desk.Start());
        desk.Open(u"Launch"_s);
        Desk::Item(desk.Menu(u"Open"_s), u"A && B"_s)->trigger();
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"A & B"_s});
    }

    void ListsAndPlacesSurviveARestart() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Shell->LaunchTempolark(u"Nepal Standard Time"_s);
        desk.Settle();
        auto* area = desk.Shell->findChild<QMdiArea*>();
        area->subWindowList().first()->setGeometry(20, 30, 240, 160);
        desk.Shell->resize(780, 650);
        desk.Stop();
        QCOMPARE(desk.User(u"OpenedForms.txt"_s),
                 QByteArray("Nepal Standard Time=\r\nTokyo Standard Time=\r\n"));
        QVERIFY(desk.User(u"TempolarkCentral.ini"_s).contains("Window Width=11700\r\n"));

        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->size(), QSize(780, 650));
        desk.Open(u"Launch"_s);
        QCOMPARE(Desk::Texts(desk.Menu(u"LastOpened"_s)),
                 (QStringList{u"Nepal Standard Time"_s, u"Tokyo Standard Time"_s, u"All"_s}));
        Desk::Item(desk.Menu(u"LastOpened"_s), u"All"_s)->trigger();
        desk.Settle();
        QCOMPARE(desk.Clocks(), (QStringList{u"Nepal Standard Time"_s, u"Tokyo Standard Time"_s}));
        area = desk.Shell->findChild<QMdiArea*>();
        QCOMPARE(area->subWindowList().last()->geometry(), QRect(20, 30, 240, 160));
    }

    void AutoStartTurnsOver() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Settle();
        QMenu* menu = desk.Open(u"Auto Start"_s);
        QCOMPARE(Desk::Texts(menu),
                 (QStringList{u"Auto Start"_s, u"Tokyo Standard Time"_s, u"UTC"_s, u"All"_s}));
        Desk::Item(menu, u"UTC"_s)->trigger();
        QCOMPARE(desk.User(u"AutoStart.txt"_s), QByteArray("UTC=UTC\r\n"));
        QVERIFY(Desk::Item(desk.Open(u"Auto Start"_s), u"UTC"_s)->isChecked());
        desk.Stop();

        QVERIFY(desk.Start());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"UTC"_s});
        QVERIFY(!desk.HeaderShows());
        Desk::Item(desk.Open(u"Auto Start"_s), u"All"_s)->trigger();
        QCOMPARE(desk.User(u"AutoStart.txt"_s), QByteArray("UTC=\r\n"));
    }

    void CommandsOfThePopUps() {
        Desk desk;
        QVERIFY(desk.Start());
        QMenu* none = desk.Open(u"Close"_s);
        QCOMPARE(Desk::Texts(none), (QStringList{u"Close"_s, u"None"_s}));
        QVERIFY(!Desk::Item(none, u"None"_s)->isEnabled());
        for (const QString& zone : {u"UTC"_s, u"Tokyo Standard Time"_s, u"Nepal Standard Time"_s}) {
            desk.Shell->LaunchTempolark(zone);
        }
        desk.Settle();
        Desk::Item(desk.Open(u"Minimize"_s), u"UTC"_s)->trigger();
        QCOMPARE(desk.Windows[1].WindowState(), 1);
        QCOMPARE(Desk::Texts(desk.Open(u"Restore"_s)),
                 (QStringList{u"Restore"_s, u"UTC"_s, u"All"_s}));
        Desk::Item(desk.Open(u"Restore"_s), u"All"_s)->trigger();
        QCOMPARE(desk.Windows[1].WindowState(), 0);
        Desk::Item(desk.Open(u"Disable"_s), u"UTC"_s)->trigger();
        QVERIFY(!desk.Windows[1].IsEnabled());
        QCOMPARE(Desk::Texts(desk.Open(u"Enable"_s)),
                 (QStringList{u"Enable"_s, u"UTC"_s, u"All"_s}));
        Desk::Item(desk.Open(u"Enable"_s), u"UTC"_s)->trigger();
        QVERIFY(desk.Windows[1].IsEnabled());
        Desk::Item(desk.Open(u"Maximize"_s), u"UTC"_s)->trigger();
        QCOMPARE(desk.Windows[1].WindowState(), 2);
        Desk::Item(desk.Open(u"Close"_s), u"All"_s)->trigger();
        QCOMPARE(desk.Clocks(), QStringList());
    }

    void WindowMenu() {
        Desk desk;
        QVERIFY(desk.Start());
        QCOMPARE(
            Desk::Texts(desk.Open(u"Organize Windows"_s)),
            (QStringList{u"Tile"_s, u"Cascade"_s, u"Arrang Icons"_s, u"Maximise All"_s,
                         u"Restore All"_s, u"Minimise All"_s, u"-"_s, u"Close All"_s, u"None"_s}));
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Settle();
        QMenu* menu = desk.Open(u"Organize Windows"_s);
        QVERIFY(Desk::Item(menu, u"Tokyo Standard Time"_s)->isChecked());
        Desk::Item(menu, u"UTC"_s)->trigger();
        QCOMPARE(desk.Shell->findChild<QMdiArea*>()->activeSubWindow()->windowTitle(), u"UTC"_s);
        Desk::Item(desk.Open(u"Organize Windows"_s), u"Minimise All"_s)->trigger();
        QCOMPARE(desk.Windows[1].WindowState(), 1);
        QCOMPARE(desk.Windows[2].WindowState(), 1);
        Desk::Item(desk.Open(u"Organize Windows"_s), u"Close All"_s)->trigger();
        QCOMPARE(desk.Windows.Count(), 1);
    }

    /// The frame that the window system draws is on the screen, too.
    void TheFrameFitsOnTheScreen() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               "Window Left=0\r\nWindow Top=0\r\nWindow Width=30000\r\n"
                               "Window Height=30000\r\n");
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->size(), QSize(800, 800));
        desk.Machine.Clock.Advance(500);
        const QRect screen = QApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(desk.Shell->frameGeometry()));
        desk.Stop();
        QVERIFY(desk.User(u"TempolarkCentral.ini"_s).contains("Window Height=30000\r\n"));
    }

    void PlaceOfTheShell_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QPoint>("place");
        // The screen of the test is 800 by 800, the shell 600 by 400.
        QTest::newRow("centred") << QByteArray("Window Top=-1\r\nWindow Left=-1\r\n")
                                 << QPoint(100, 200);
        QTest::newRow("centred only down")
            << QByteArray("Window Top=-1\r\nWindow Left=150\r\n") << QPoint(10, 200);
        QTest::newRow("as it stands")
            << QByteArray("Window Top=300\r\nWindow Left=0\r\n") << QPoint(0, 20);
    }

    void PlaceOfTheShell() {
        QFETCH(QByteArray, keys);
        Desk desk;
        QCOMPARE(QApplication::primaryScreen()->availableGeometry().size(), QSize(800, 800));
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               keys + "Window Width=9000\r\nWindow Height=6000\r\n");
        QVERIFY(desk.Start());
        QTEST(desk.Shell->pos(), "place");
        QCOMPARE(desk.Shell->size(), QSize(600, 400));
    }

    void LostDefaultFileEndsTheProgram() {
        Desk desk;
        const QString file = desk.Machine.AppFolder() + u"/ini/Tempolark.ini"_s;
        QVERIFY(QFile::remove(file));
        desk.Machine.Dialogs.BoxAnswers = {1};
        QVERIFY(!desk.Start());
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), std::size_t(1));
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Text, file + u" is not found"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Title, u"Tempolark System Error"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Flags, 16);
    }

    void UnwritableListsAreTold() {
        Desk desk;
        QVERIFY(desk.Start());
        const QString file = desk.Machine.AppFolder() + u"/tester/AutoStart.txt"_s;
        desk.Machine.Files.Unwritable += file;
        desk.Shell->SaveAutoStartList();
        QCOMPARE(desk.Status(), file + u" can't be written"_s);
    }

    /// What is no list, or is more than a reader takes in, is told at the start and never written.
    void OddListsAreLeft_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        const QByteArray binary("GIF89a\0\0\xFF", 9);
        const QByteArray longList = QByteArray("UTC=\r\n").repeated(40000);
        for (const QString& file : {u"AutoStart.txt"_s, u"OpenedForms.txt"_s}) {
            QTest::addRow("binary %s", qPrintable(file)) << file << binary;
            QTest::addRow("40,000 lines %s", qPrintable(file)) << file << longList;
        }
    }

    void OddListsAreLeft() {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        Desk desk;
        desk.Machine.WriteFile(u"tester/"_s + file, content);
        QVERIFY(desk.Start());
        QVERIFY(desk.Status().contains(file));
        desk.Open(u"Launch"_s);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Stop();
        QVERIFY(desk.User(file) == content);
    }

    void AListThatCantBeSavedStaysInMemory() {
        Desk desk;
        desk.Machine.Files.Unwritable +=
            desk.Machine.WriteFile(u"tester/OpenedForms.txt"_s, "Old=\r\n");
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Open(u"Launch"_s);
        QCOMPARE(Desk::Texts(desk.Menu(u"LastOpened"_s)).first(), u"Tokyo Standard Time"_s);
        QVERIFY(desk.Status().contains(u"OpenedForms.txt can't be written"_s));
    }

    void FailedAutoStartShowsTheHeader() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, "a/b=a/b\r\n");
        QVERIFY(desk.Start());
        QCOMPARE(desk.Clocks(), QStringList());
        QVERIFY(desk.HeaderShows());
    }

    void MaximisedShellSizesItsClocks() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               "Window Width=6000\r\nWindow Height=6000\r\n"
                               "Window State=Maximized\r\n");
        desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, "UTC=UTC\r\n");
        QVERIFY(desk.Start());
        desk.Settle();
        QCOMPARE(desk.Shell->WindowState(), 2);
        // A quarter of a screen of 800 by 800, not of the shell's 400 by 400, and in its middle.
        const auto* area = desk.Shell->findChild<QMdiArea*>();
        const QRect clock = area->subWindowList().first()->geometry();
        QVERIFY(qAbs(clock.width() - 200) <= 1);
        // The test's screen leaves a maximised window its size, so that toolbar and status bar take
        // the window's height less that of the inner area.
        const int bars = desk.Shell->height() - area->viewport()->height();
        QVERIFY(qAbs(clock.center().x() - 400) <= 3);
        QVERIFY(qAbs(clock.center().y() - (800 - bars) / 2) <= 3);
    }

    /// The stored place belongs to a normal window, and waits for one.
    void PositionKeysOfAMaximisedShell() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               "Window Left=150\r\nWindow Top=300\r\nWindow Width=6000\r\n"
                               "Window Height=6000\r\nWindow State=Maximized\r\n");
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->WindowState(), 2);
        desk.Stop();
        const QByteArray file = desk.User(u"TempolarkCentral.ini"_s);
        QVERIFY(file.contains("Window Left=150\r\n"));
        QVERIFY(file.contains("Window Width=6000\r\n"));
    }

    void WhatNobodyChangedKeepsItsNumber() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               "Window Left=100\r\nWindow Top=-1\r\nWindow Width=15000\r\n"
                               "Window Height=6000\r\n");
        QVERIFY(desk.Start());
        desk.Stop();
        // 15000 twips are more than the screen has; the window is 400 of 800 pixels high.
        const QByteArray file = desk.User(u"TempolarkCentral.ini"_s);
        QVERIFY(file.contains("Window Width=15000\r\n"));
        QVERIFY(file.contains("Window Top=3000\r\n"));
    }

    void AutoStartedClockStandsInTheMiddle_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::newRow("normal") << QString();
        QTest::newRow("screen saver") << u"/s"_s;
    }

    void AutoStartedClockStandsInTheMiddle() {
        QFETCH(QString, commandLine);
        Desk desk;
        desk.Module.CommandLine = commandLine;
        desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, "UTC=UTC\r\n");
        QVERIFY(desk.Start());
        desk.Settle();
        const auto* area = desk.Shell->findChild<QMdiArea*>();
        const QPoint clock = area->subWindowList().first()->geometry().center();
        const QPoint middle = area->viewport()->rect().center();
        QVERIFY2(
            qAbs(clock.x() - middle.x()) <= 2 && qAbs(clock.y() - middle.y()) <= 2,
            qPrintable(
                u"%1,%2 of %3,%4"_s.arg(clock.x()).arg(clock.y()).arg(middle.x()).arg(middle.y())));
    }

    void ClosedBeforeItsFirstTick() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Stop();
        QVERIFY(desk.User(u"TimeZones/Tokyo Standard Time.ini"_s).contains("Window Top=-1\r\n"));
    }

    void ArrangesIcons() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Settle();
        Desk::Item(desk.Open(u"Organize Windows"_s), u"Minimise All"_s)->trigger();
        auto* area = desk.Shell->findChild<QMdiArea*>();
        for (QMdiSubWindow* child : area->subWindowList()) {
            child->move(50, 60);
        }
        Desk::Item(desk.Open(u"Organize Windows"_s), u"Arrang Icons"_s)->trigger();
        const QRect first = area->subWindowList()[0]->geometry();
        const QRect second = area->subWindowList()[1]->geometry();
        QCOMPARE(first.left(), 0);
        QCOMPARE(first.bottom(), area->contentsRect().height() - 1);
        QCOMPARE(second.left(), first.width());
        QCOMPARE(second.top(), first.top());
    }

    void NamelessMachineZone() {
        Desk desk;
        desk.Shell = std::make_unique<frmMain>(desk.TheProgram);
        QVERIFY(desk.Shell->Load());
        QCOMPARE(desk.Shell->LaunchTempolark(u" "_s), 0);
        QVERIFY(desk.Status().contains(u"The time zone has no name"_s));
        QVERIFY(!QFile::exists(desk.Machine.AppFolder() + u"/tester/TimeZones/ .ini"_s));
    }

    /// A plain file stands where the user's folder should be.
    void DataFolderThatCantBeMadeIsTold() {
        Desk desk;
        desk.Machine.WriteFile(u"tester"_s, "in the way");
        QVERIFY(desk.Start());
        QVERIFY(desk.Shell->isVisible());
        QVERIFY2(desk.Status().contains(desk.Machine.AppFolder() + u"/tester"_s),
                 qPrintable(desk.Status()));
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Settle();
        desk.Stop();
        QCOMPARE(desk.Machine.ReadFile(u"tester"_s), QByteArray("in the way"));
    }

    void CommandLineNamesAClock() {
        Desk desk;
        desk.Module.CommandLine = u" Tokyo Standard Time "_s;
        QVERIFY(desk.Start());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Tokyo Standard Time"_s});
        desk.Stop();
        desk.Module.CommandLine = u"/s"_s;
        QVERIFY(desk.Start());
        QCOMPARE(desk.Clocks(), QStringList());
        desk.Stop();
    }

    void ScreenSaverRunTakesTheScreen() {
        Desk desk;
        desk.Module.CommandLine = u"/s"_s;
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->WindowState(), 2);
        QVERIFY(desk.Shell->windowFlags() & Qt::WindowStaysOnTopHint);
        QVERIFY(!desk.Shell->findChild<ToolBar*>()->isVisible());
        QVERIFY(!desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(desk.Shell->pos(), QPoint(0, 0));
        desk.Stop();
        QVERIFY(desk.User(u"TempolarkCentral.ini"_s).contains("Window Left=-1\r\n"));
        QVERIFY(desk.User(u"TimeZones/s.ini"_s).contains("Clocks="));
    }

    void RefusedNameOfTheCommandLineIsTold() {
        Desk desk;
        desk.Module.CommandLine = u"../../etc/passwd"_s;
        QVERIFY(desk.Start());
        QVERIFY(!desk.Status().isEmpty());
        QVERIFY(desk.Shell->isVisible());
    }

    void KeyboardReachesEveryButton() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(desk.Shell.get()));
        desk.Button(u"Launch"_s)->setFocus();
        QStringList reached;
        for (int i = 0; i < 17; ++i) {
            QWidget* focus = QApplication::focusWidget();
            QVERIFY(focus != nullptr && focus->isVisible());
            reached += focus->accessibleName();
            QTest::keyClick(focus, Qt::Key_Right);
        }
        // The screen is too narrow for all: the others come into view.
        QCOMPARE(reached.join(u','),
                 u"Launch,Close,Disable,Enable,Maximize,Minimize,Restore,Auto Start,Property,"
                 "Shortcut,Timezone,Clock Agent,CProperty,Manage Clocks,Organize Windows,Help,"
                 "Exit"_s);
        QVERIFY(!desk.Button(u"Launch"_s)->isVisible());
        for (int i = 0; i < 16; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        }
        QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Launch"_s);
    }
};

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
