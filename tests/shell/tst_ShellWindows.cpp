#include "shell/ui/ShellWindows.h"

#include <QMdiSubWindow>
#include <QTableView>
#include <QTest>

#include "foundation/PropertyFile.h"
#include "shell/BarsDesk.h"
#include "support/FakeForms.h"
#include "support/FakeHelp.h"

using namespace Qt::StringLiterals;

/// Windows that are opened over an area, without a shell.
class tst_ShellWindows : public QObject {
    Q_OBJECT

private:
    /// A clock's window, as the area sees it.
    class ClockChild final : public QWidget, public FakeClock {
    public:
        ClockChild(const Program& program, const QString& name, QStringList& log)
            : FakeClock(program.Windows, name, log), program_(program) {
            File = program.Module.Paths.ZoneFileFolder + name + QStringLiteral(".ini");
        }
        void SetProperty() override {
            program_.Module.CurrentProperties.Reset();
            mduLib::ReadPropertyFile(program_.Services.FileSystem, File,
                                     program_.Module.CurrentProperties);
        }

    private:
        Program program_;
    };

    struct Desk : BarsDesk {
        FakeForm ShellForm{Windows, u"frmMain"_s, u"Tempolark Central"_s, Log};
        ShellWindows Opened{TheProgram, {Window, ShellForm, Shell},     *Area, Settings,
                            State,      [this] {
                Log += u"covered"_s; }};
        Desk() {
            Module.Paths.DataFolder = Machine.AppFolder() + u"/tester"_s;
            Module.Paths.ZoneFileFolder = Machine.AppFolder() + u"/zones/"_s;
            Module.Paths.ShortcutsFile = Machine.AppFolder() + u"/tester/Shortcuts.txt"_s;
            Machine.WriteFile(u"tester/Shortcuts.txt"_s, "Clocks=F2\r\nDisable=Ctrl+D\r\n");
            mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ShortcutsFile,
                                     Module.ShortcutList);
            Opened.AddTo(Commands);
            Window.resize(1300, 800);
            Window.show();
        }
        ~Desk() { delete Area; }
        Q_DISABLE_COPY_MOVE(Desk)

        ClockChild* OpenClock(const QString& name = u"UTC"_s) {
            Machine.WriteFile(u"zones/"_s + name + u".ini"_s,
                              Machine.ReadFile(u"ini/Tempolark.ini"_s));
            auto* clock = new ClockChild(TheProgram, name, Log);
            QMdiSubWindow* frame = Area->addSubWindow(clock);
            frame->setGeometry(100, 50, 200, 200);
            frame->show();
            Area->setActiveSubWindow(frame);
            return clock;
        }
        IForm* Front() { return Area->ActiveChild(); }
        QMdiSubWindow* Frame() { return Area->activeSubWindow(); }
        template <class Widget>
        Widget* In(const QString& name) {
            return Frame()->findChild<Widget*>(name);
        }
        int Count() { return static_cast<int>(Area->subWindowList().size()); }
        /// The keys of the window in front go there.
        QWidget* Grid() { return Frame()->findChild<QTableView*>(); }
    };

private Q_SLOTS:
    void TimeZonesOpenOnce() {
        Desk desk;
        QVERIFY(desk.Commands.Run(u"ChooseTimeZone"_s));
        QCOMPARE(desk.Area->subWindowList().size(), 1);
        QCOMPARE(desk.Area->ActiveChild()->Name(), u"frmTimeZones"_s);
        QCOMPARE(desk.Log.count(u"covered"_s), 1);
        QMdiSubWindow* frame = desk.Area->subWindowList().first();
        frame->showMinimized();
        desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"ChooseTimeZone"_s));
        QCOMPARE(desk.Area->subWindowList().size(), 2);
        QVERIFY(!frame->isMinimized());
        QCOMPARE(desk.Area->ActiveChild()->Name(), u"frmTimeZones"_s);
    }

    void NewBeginsWithTheDefaults() {
        Desk desk;
        desk.Machine.WriteFile(u"ini/Tempolark.ini"_s, "Clock:Clocks=Digital\r\n");
        QVERIFY(desk.Commands.Run(u"NewClock"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.ZoneDefaultFile());
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, desk.Module.CurrentProperties), u"Digital"_s);
        QCOMPARE(desk.State[u"NewClock"_s](1).Tag, u"True"_s);
        QCOMPARE(desk.Front()->Name(), u"frmProperties"_s);
        QCOMPARE(desk.Front()->Caption(), u"Properties -  _"_s);
        QCOMPARE(desk.Frame()->pos(), QPoint(0, 0));
        QCOMPARE(desk.Log, QStringList{u"covered"_s});
        QVERIFY(desk.Commands.Run(u"NewClock"_s));
        QCOMPARE(desk.Count(), 1);
    }

    void PropertiesOfTheShell() {
        Desk desk;
        desk.Hold({{u"Tool Bar"_s, u"Left"_s}});
        QVERIFY(desk.Commands.Run(u"Properties"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.CentralFile);
        QCOMPARE(mduLib::GetProperty(u"Tool Bar"_s, desk.Module.CurrentProperties), u"Left"_s);
        QCOMPARE(desk.Front()->Caption(), u"Properties - TempolarkCentral"_s);
        QCOMPARE(desk.Front()->AsPropertyWindow()->PropertyFile(), desk.Module.Paths.CentralFile);
        QVERIFY(desk.Area->viewport()->rect().contains(desk.Frame()->geometry()));
        QVERIFY(desk.Commands.Run(u"NewClock"_s));
        QVERIFY(desk.Commands.Run(u"Properties"_s));
        QCOMPARE(desk.Count(), 2);
        QCOMPARE(desk.Front()->Caption(), u"Properties - TempolarkCentral"_s);
    }

    /// The button goes by the window in front, and the window opens beside it.
    void PropertiesOfTheClockInFront() {
        Desk desk;
        const ClockChild* clock = desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, clock->File);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        QCOMPARE(desk.Front()->AsPropertyWindow()->PropertyFile(), clock->File);
        QCOMPARE(desk.Frame()->pos(), QPoint(300, 50));
        QCOMPARE(desk.Log, QStringList{u"covered"_s});
    }

    void OneWindowForAFile() {
        Desk desk;
        desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QMdiSubWindow* first = desk.Frame();
        desk.OpenClock(u"Tokyo"_s);
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Count(), 4);
        QVERIFY(desk.Frame() != first);
        first->showMinimized();
        desk.Area->setActiveSubWindow(desk.Area->subWindowList().first());
        QCOMPARE(desk.Front()->Caption(), u"UTC"_s);
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Count(), 4);
        QCOMPARE(desk.Frame(), first);
        QVERIFY(!first->isMinimized());
    }

    void PropertiesWithoutAClockAreTheShells() {
        Desk desk;
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Front()->Caption(), u"Properties - TempolarkCentral"_s);
    }

    void ShortcutsOpenOnce() {
        Desk desk;
        QVERIFY(desk.Commands.Run(u"SetShortcut"_s));
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        QCOMPARE(desk.Front()->Caption(), u"Shortcuts - Clock Shortcuts"_s);
        QCOMPARE(desk.Frame()->pos(), QPoint(0, 0));
        QCOMPARE(desk.Log, QStringList{u"covered"_s});
        QMdiSubWindow* frame = desk.Frame();
        frame->showMinimized();
        desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"SetShortcut"_s));
        QCOMPARE(desk.Count(), 2);
        QCOMPARE(desk.Frame(), frame);
        QVERIFY(!frame->isMinimized());
    }

    void ShortcutsOpenBesideTheClockInFront() {
        Desk desk;
        desk.OpenClock();
        desk.Opened.Open(ShellWindow::Shortcuts);
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        QCOMPARE(desk.Frame()->pos(), QPoint(300, 50));
    }

    /// However low the shell is, something of the window can be taken hold of.
    void AWindowIsNeverTooLow() {
        Desk desk;
        desk.Window.resize(300, 120);
        QVERIFY(desk.Commands.Run(u"SetShortcut"_s));
        QVERIFY2(desk.Frame()->height() >= 100,
                 qPrintable(QString::number(desk.Frame()->height())));
    }

    void OpensWhatAClockAsksFor() {
        Desk desk;
        desk.OpenClock();
        desk.Opened.Open(ShellWindow::Properties);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        desk.Opened.Open(ShellWindow::TimeZones);
        QCOMPARE(desk.Front()->Name(), u"frmTimeZones"_s);
    }

    /// The windows are asked one by one; one whose save fails stays, and so does the shell.
    void WindowsThatEditCloseBehindTheirQuestion() {
        Desk desk;
        desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"SetShortcut"_s));
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        desk.Machine.Files.Unwritable += desk.Module.Paths.ShortcutsFile;
        desk.Shell.BoxAnswers = {6};
        QVERIFY(!desk.Opened.CloseEditors());
        QCOMPARE(desk.Shell.Take(),
                 (QStringList{u"box 36, Save Shortcut: Do you want to save the Clock Shortcuts?"_s,
                              desk.Module.Paths.ShortcutsFile + u" can't be written"_s}));
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        desk.Machine.Files.Unwritable.clear();
        desk.Shell.BoxAnswers = {6};
        QVERIFY(desk.Opened.CloseEditors());
        QVERIFY(desk.Machine.ReadFile(u"tester/Shortcuts.txt"_s).contains("Clocks=Ctrl+J"));
        QVERIFY(!desk.Log.contains(u"UTC: close"_s));  // clocks are not asked
    }

    void HelpGoesByTheWindowInFront() {
        Desk desk;
        const QString folder = desk.Machine.AppFolder() + u"/Help/"_s;
        QVERIFY(desk.Commands.Run(u"Help"_s));
        desk.Opened.ShowClockHelp();
        desk.Opened.ShowHelp(u"Other.chm"_s);
        desk.OpenClock();
        desk.Opened.ShowClockHelp();
        desk.Opened.OpenTimeZones();
        desk.Opened.ShowHelp();
        desk.Opened.OpenShortcuts();
        desk.Opened.ShowHelp();
        desk.Opened.ShowCentralProperties(false);
        desk.Opened.ShowClockHelp();
        const std::vector<FakeHelp::Page> pages = {{folder + u"TempolarkCentral.chm"_s, 100},
                                                   {folder + u"Tempolark.chm"_s, 600},
                                                   {folder + u"Other.chm"_s, 100},
                                                   {folder + u"Tempolark.chm"_s, 600},
                                                   {folder + u"TempolarkCentral.chm"_s, 200},
                                                   {folder + u"TempolarkCentral.chm"_s, 300},
                                                   {folder + u"TempolarkCentral.chm"_s, 400}};
        QVERIFY(desk.Machine.Help.Pages == pages);
        desk.Shell.Take();
        desk.Machine.Help.Refusal = u"no viewer"_s;
        desk.Opened.ShowHelp();
        QCOMPARE(desk.Shell.Take(), QStringList{u"no viewer"_s});
    }
};

QTEST_MAIN(tst_ShellWindows)
#include "tst_ShellWindows.moc"
