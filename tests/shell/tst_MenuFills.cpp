#include "shell/MenuFills.h"

#include <QTest>
#include <set>

#include "shell/LateMenus.h"
#include "shell/SettingsDesk.h"
#include "support/FakeForms.h"
#include "support/FakeSettings.h"

using namespace Qt::StringLiterals;

/// What the menus show, without a window to show them.
class tst_MenuFills : public QObject {
    Q_OBJECT

private:
    struct Desk : SettingsDesk {
        QStringList Log;
        FakeForm Shell{Windows, u"frmMain"_s, u"shell"_s, Log};
        FakeClock Tokyo{Windows, u"Tokyo"_s, Log};
        FakeForm Zones{Windows, u"frmTimeZones"_s, u"Time Zones"_s, Log};
        shell::MenuState State;
        shell::CentralLook Look{0, 3, true, u"Large Size"_s, true, 0};
        int Active = 0;
        bool Message = false;
        shell::UserLists Lists{TheProgram, [this](const QString& text) { Told += text; }};
        shell::MenuFills Fills{
            TheProgram,
            State,
            Settings,
            Lists,
            {[this] { return Look; }, [this] { return Active; }, [this] { return Message; },
             [this](EditAction action) { return Editable.contains(action); }, [] { return true; }}};
        std::set<EditAction> Editable = {};

        Desk() {
            Module.Paths.DataFolder = Machine.AppFolder() + u"/tester"_s;
            Module.Paths.ZoneFileFolder = Machine.AppFolder() + u"/zones/"_s;
            Module.Paths.StylesFolder = Machine.AppFolder() + u"/styles/"_s;
            for (const QString& file :
                 {u"zones/UTC.ini"_s, u"zones/Tokyo.ini"_s, u"tester/OpenedForms.txt"_s}) {
                Machine.WriteFile(file, "x=1\r\n");
            }
        }
        /// The items that are seen: captions, with a star where checked, a bar where disabled.
        QString Items(const QString& name) {
            QStringList items;
            const shell::MenuArray& array = State[name];
            for (int i = 1; i <= array.Count(); ++i) {
                const shell::MenuItem& item = array(i);
                if (item.Visible) {
                    items += item.Caption + (item.Checked ? u"*"_s : QString()) +
                             (item.Enabled ? QString() : u"|"_s);
                }
            }
            return items.join(u',');
        }
        QString Face(const QString& name) {
            return State[name](1).Caption + u'=' + State[name](1).Tag;
        }
    };

private Q_SLOTS:
    void FileListsZones() {
        Desk desk;
        desk.Lists.Opened().PushLastOpened(u"Tokyo"_s);
        desk.Fills.Refresh(u"File"_s);
        QCOMPARE(desk.Items(u"TimeZone"_s), u"Tokyo*,UTC"_s);
        QCOMPARE(desk.Items(u"DeleteTimeZone"_s), u"Tokyo*,UTC,All"_s);
        QCOMPARE(desk.Items(u"FileItem"_s), u"Tokyo*,All"_s);
        QCOMPARE(desk.Machine.ReadFile(u"tester/OpenedForms.txt"_s), QByteArray("Tokyo=\r\n"));
    }

    /// A list that can't be saved keeps its newest name.
    void AnUnwritableListIsNotReadBack() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/OpenedForms.txt"_s, "UTC=\r\n");
        desk.Machine.Files.Unwritable += desk.Module.Paths.OpenedFormsFile();
        desk.Lists.LoadOpenedForms();
        desk.Lists.Opened().PushLastOpened(u"Tokyo"_s);
        desk.Fills.Refresh(u"File"_s);
        QCOMPARE(desk.Items(u"FileItem"_s), u"Tokyo*,UTC,All"_s);
        QCOMPARE(desk.Told.size(), 1);
    }

    void OpenedActionListsClocks_data() {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("items");
        QTest::newRow("Close") << u"Close"_s << u"Tokyo,All"_s;
        QTest::newRow("Restore") << u"Restore"_s << u"None|"_s;
        QTest::newRow("Auto Start") << u"Auto Start"_s << u"Tokyo*,All"_s;
        QTest::newRow("no command") << u"Launch"_s << QString();
    }

    void OpenedActionListsClocks() {
        QFETCH(QString, tag);
        Desk desk;
        desk.Module.AutoStartList = {};
        mduLib::PutProperty(u"Tokyo"_s, u"Tokyo"_s, desk.Module.AutoStartList);
        desk.State[u"Action"_s](1).Caption = tag;
        desk.Fills.Refresh(u"OpenedAction"_s);
        QTEST(desk.Items(u"Opened"_s), "items");
    }

    void WindowMarksTheOneInFront() {
        Desk desk;
        desk.Fills.Refresh(u"Window"_s);
        QCOMPARE(desk.Items(u"OpenedWindow"_s), u"Tokyo,Time Zones,All"_s);
        desk.Active = desk.Zones.hwnd();
        desk.Fills.Refresh(u"Window"_s);
        QCOMPARE(desk.Items(u"OpenedWindow"_s), u"Tokyo,Time Zones*,All"_s);
        QVERIFY(desk.State[u"WindowItem"_s](9).Visible);
        desk.Windows.Remove(desk.Tokyo);
        desk.Windows.Remove(desk.Zones);
        desk.Fills.Refresh(u"Window"_s);
        QCOMPARE(desk.Items(u"OpenedWindow"_s), u"None|"_s);
        QVERIFY(!desk.State[u"WindowItem"_s](9).Visible);
        desk.Windows.Add(desk.Tokyo);
        desk.Windows.Add(desk.Zones);
    }

    void BarsTellHowTheyAre_data() {
        QTest::addColumn<QString>("menu");
        QTest::newRow("on the bars") << u"BarsMenu"_s;
        QTest::newRow("CProperty") << u"CentralProperty"_s;
        QTest::newRow("View") << u"View"_s;
    }

    void BarsTellHowTheyAre() {
        QFETCH(QString, menu);
        Desk desk;
        desk.Fills.Refresh(menu);
        QCOMPARE(desk.Face(u"WindowTitleBar"_s), u"Hide Title Bar=Yes"_s);
        QCOMPARE(desk.Face(u"AutoShowToolTips"_s), u"Hind Tool Tips=No"_s);
        QCOMPARE(desk.Face(u"HideStatusBar"_s), u"Hide Status Bar=Yes"_s);
        QCOMPARE(desk.Face(u"StatusBarAction"_s), u"Hide Status Bar=Yes"_s);
        QCOMPARE(desk.Items(u"ClearStatusMessage"_s), u"Clear Status Message|"_s);
        QCOMPARE(desk.Items(u"ToolBarPositions"_s), u"Top,Bottom,Left*,Right,Hide"_s);

        desk.Hold({{u"Window Title Bar"_s, u"No"_s}, {u"Auto Show Balloon Tips"_s, u"No"_s}});
        desk.Look = {0, 3, false, u"Small Size"_s, false, 0};
        desk.Message = true;
        desk.Fills.Refresh(menu);
        QCOMPARE(desk.Face(u"WindowTitleBar"_s), u"Show Title Bar=No"_s);
        QCOMPARE(desk.Face(u"AutoShowToolTips"_s), u"Auto Show Tool Tips=Yes"_s);
        QCOMPARE(desk.Face(u"HideStatusBar"_s), u"Show Status Bar=No"_s);
        QCOMPARE(desk.Face(u"StatusBarAction"_s), u"Show Status Bar=No"_s);
        QCOMPARE(desk.Items(u"ClearStatusMessage"_s), u"Clear Status Message"_s);
        QCOMPARE(desk.Items(u"ToolBarPositions"_s), u"Top,Bottom,Left,Right,Hide*"_s);
        QCOMPARE(desk.Items(u"ToolBarSize"_s),
                 u"Small Size*,Small Size with Caption,Large Size,Large Size with Caption"_s);
    }

    void TheRunKeyTurnsWords() {
        Desk desk;
        desk.Fills.Refresh(u"View"_s);
        desk.Fills.Refresh(u"MainMenu"_s);
        QCOMPARE(desk.Items(u"ToolsItem"_s), u"Setup Auto Start|"_s);
        QCOMPARE(desk.Items(u"AutoStart"_s), u"Enable Auto Start"_s);
        desk.Machine.Settings.SetValue(u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
                                       desk.Module.Paths.AppEXEName(), u"x"_s);
        desk.Fills.Refresh(u"View"_s);
        desk.Fills.Refresh(u"MainMenu"_s);
        QCOMPARE(desk.Items(u"ToolsItem"_s), u"Remove Auto Start|"_s);
        QCOMPARE(desk.Items(u"AutoStart"_s), u"Disable Auto Start"_s);
        QVERIFY(desk.Items(u"ScreenSaverTimeMain"_s).startsWith(u"10,20,"_s));
        QCOMPARE(desk.Items(u"ScreenSaverTime"_s), QString());
        desk.Fills.Refresh(u"CentralProperty"_s);
        QVERIFY(desk.Items(u"ScreenSaverTime"_s).endsWith(u",110,120"_s));
    }

    void WhatCantBeUsed() {
        Desk desk;
        desk.Fills.Refresh(u"Edit"_s);
        QCOMPARE(desk.Items(u"EditItem"_s),
                 u"Undo|,Redo|,Cut|,Copy|,Paste|,-|,Delete|,Clear|,Select All|,-|,Find|,Check "
                 u"Spelling|"_s);
        desk.Editable = {EditAction::Redo, EditAction::Find};
        desk.Fills.Refresh(u"Edit"_s);
        QCOMPARE(desk.Items(u"EditItem"_s),
                 u"Undo|,Redo,Cut|,Copy|,Paste|,-|,Delete|,Clear|,Select All|,-|,Find,Check "
                 u"Spelling|"_s);
        desk.Fills.Refresh(u"TempolarkAgent"_s);
        QCOMPARE(desk.Items(u"TempolarkAgentSpeakerMenu"_s), QString());
        QCOMPARE(desk.Items(u"sp1"_s), QString());
        QCOMPARE(desk.Items(u"TempolarkAgentAction"_s),
                 u"Add Tempolark Agent To Tray,Run Tempolark Agent"_s);
    }

    void TheShellsColourIsMarked() {
        Desk desk;
        desk.Hold({{u"Window Background Colour"_s, u"Red"_s}});
        shell::FillLateMenus(desk.State, desk.Machine.Files, desk.Module.Paths.StylesFolder);
        desk.Fills.Refresh(u"CentralProperty"_s);
        QCOMPARE(desk.Items(u"BGColour"_s),
                 u"Black,Blue,Cyan,Green,Magenta,Red*,White,Yellow,Custom"_s);
    }

    void AnUnknownMenuIsLeftAlone() {
        Desk desk;
        desk.Fills.Refresh(u"WindowsProperty"_s);
        desk.Fills.Refresh(u"Nothing"_s);
        QCOMPARE(desk.Items(u"Clocks"_s), u"Analogue,Digital,Calculator"_s);
    }
};

QTEST_GUILESS_MAIN(tst_MenuFills)
#include "tst_MenuFills.moc"
