#include "shell/ui/ShellWindows.h"

#include <QMdiSubWindow>
#include <QTest>

#include "shell/BarsDesk.h"
#include "support/FakeForms.h"
#include "support/FakeHelp.h"

using namespace Qt::StringLiterals;

/// Windows that are opened over an area, without a shell.
class tst_ShellWindows : public QObject {
    Q_OBJECT

private:
    /// A clock's window, as the area sees it.
    class ClockChild final : public QWidget, public FakeForm {
    public:
        ClockChild(Forms& windows, QStringList& log)
            : FakeForm(windows, ClockWindowName, QStringLiteral("UTC"), log) {}
    };

    struct Desk : BarsDesk {
        FakeForm ShellForm{Windows, u"frmMain"_s, u"Tempolark Central"_s, Log};
        ShellWindows Opened{TheProgram, {Window, ShellForm, Shell}, *Area, Settings, [this] {
                                Log += u"covered"_s;
                            }};
        Desk() {
            Module.Paths.ZoneFileFolder = Machine.AppFolder() + u"/zones/"_s;
            Opened.AddTo(Commands);
            Window.show();
        }
        ~Desk() { delete Area; }
        Q_DISABLE_COPY_MOVE(Desk)
        void OpenClock() {
            Area->addSubWindow(new ClockChild(Windows, Log))->show();
            Area->setActiveSubWindow(Area->subWindowList().last());
        }
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
        desk.Machine.WriteFile(u"ini/Tempolark.ini"_s, "Clocks=Digital\r\n");
        QVERIFY(desk.Commands.Run(u"NewClock"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.ZoneDefaultFile());
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, desk.Module.CurrentProperties), u"Digital"_s);
        QCOMPARE(desk.Area->ActiveChild()->Name(), u"frmTimeZones"_s);
    }

    void PropertiesLayTheShellsSettingsOut() {
        Desk desk;
        desk.Hold({{u"Tool Bar"_s, u"Left"_s}});
        QVERIFY(desk.Commands.Run(u"Properties"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.CentralFile);
        QCOMPARE(mduLib::GetProperty(u"Tool Bar"_s, desk.Module.CurrentProperties), u"Left"_s);
        QCOMPARE(desk.Shell.Take(), QStringList{u"The property window can't be opened yet"_s});
    }

    /// The button goes by the window in front.
    void PropertiesOfTheClockInFront() {
        Desk desk;
        desk.OpenClock();
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, QString());
        QCOMPARE(desk.Shell.Take(), QStringList{u"The property window can't be opened yet"_s});
        delete desk.Area->subWindowList().first();
        QVERIFY(desk.Commands.Run(u"ActiveProperties"_s));
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.CentralFile);
    }

    void ShortcutsAnswer() {
        Desk desk;
        QVERIFY(desk.Commands.Run(u"SetShortcut"_s));
        QCOMPARE(desk.Shell.Take(), QStringList{u"The shortcut window can't be opened yet"_s});
    }

    void OpensWhatAClockAsksFor() {
        Desk desk;
        desk.Opened.Open(ShellWindow::Shortcuts);
        QCOMPARE(desk.Shell.Take(), QStringList{u"The shortcut window can't be opened yet"_s});
        desk.OpenClock();
        desk.Opened.Open(ShellWindow::Properties);
        QCOMPARE(desk.Shell.Take(), QStringList{u"The property window can't be opened yet"_s});
        desk.Opened.Open(ShellWindow::TimeZones);
        QCOMPARE(desk.Area->ActiveChild()->Name(), u"frmTimeZones"_s);
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
        const std::vector<FakeHelp::Page> pages = {{folder + u"TempolarkCentral.chm"_s, 100},
                                                   {folder + u"Tempolark.chm"_s, 600},
                                                   {folder + u"Other.chm"_s, 100},
                                                   {folder + u"Tempolark.chm"_s, 600},
                                                   {folder + u"TempolarkCentral.chm"_s, 200}};
        QVERIFY(desk.Machine.Help.Pages == pages);
        desk.Shell.Take();
        desk.Machine.Help.Refusal = u"no viewer"_s;
        desk.Opened.ShowHelp();
        QCOMPARE(desk.Shell.Take(), QStringList{u"no viewer"_s});
    }
};

QTEST_MAIN(tst_ShellWindows)
#include "tst_ShellWindows.moc"
