#include <QTest>

#include "shell/MenuState.h"
#include "shell/ScreenSaver.h"
#include "support/FakeServices.h"
#include "support/FakeSettings.h"

using namespace Qt::StringLiterals;

/// An entry as a text: its captions, a submenu's entries in brackets.
static QString Text(const shell::MenuEntry& entry) {
    QStringList captions;
    for (const shell::MenuRow& row : entry.Rows) {
        captions += row.Caption;
    }
    QString text = entry.Name + u' ' + captions.join(u'|');
    if (!entry.Children.empty()) {
        QStringList children;
        for (const shell::MenuEntry& child : entry.Children) {
            children += Text(child);
        }
        text += u" ["_s + children.join(u"; "_s) + u']';
    }
    return text.trimmed();
}

class tst_ShellMenuData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Catalogue_data() {
        QTest::addColumn<int>("place");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("entries");
        const QString toolBarMenu =
            u"ToolBarMenu Tool Bar [ToolBarSizeMenu ToolBar Size [ToolBarSize Small "
            "Size|Small Size with Caption|Large Size|Large Size with Caption]; "
            "ToolBarPositionMenu Tool Bar Position [ToolBarPositions "
            "Top|Bottom|Left|Right|Hide]; AutoShowToolTips Auto Show Tool Tips; "
            "ToolbarCustomize Customize Toolbar; SaveToolbarSetting Save Current Toolbar "
            "Setting]"_s;
        QTest::newRow("File")
            << 0 << u"File=File"_s
            << u"NewClock New / Open Open [TimeZone] / LastOpened Open Last Opened [FileItem] / "
               "ChooseTimeZone Choose Time Zone / Remove Remove Time Zone [DeleteTimeZone] / - / "
               "Exit &Exit / - / SetShortcut Set Shortcuts"_s;
        QTest::newRow("OpenedAction") << 1 << u"OpenedAction="_s << u"Action / Opened"_s;
        QTest::newRow("TempolarkAgent") << 2 << u"TempolarkAgent="_s
                                        << u"TempolarkAgentSpeakerMenu Tempolark Agent Speaker "
                                           u"[TempolarkAgentSpeakOption Speak "
                                           "Time|Speak/Show Time|None] / sp1 - / "
                                           "TempolarkAgentAction Remove Me From Tray|Close "
                                           "Me"_s;
        QTest::newRow("MainMenu")
            << 3 << u"MainMenu="_s
            << u"AutoStart Auto Start / SetScreenSaverMainMenu Set Screen Saver "
               "[ScreenSaverTimeMain] / - / MainItem |-|Exit|-|Help|About|-|Save Current "
               "Settings|Properties"_s;
        QTest::newRow("Edit") << 4 << u"Edit=&Edit"_s
                              << u"EditItem Undo|Redo|Cut|Copy|Paste|-|Delete|Clear|Select "
                                 "All|-|Find|Check Spelling"_s;
        QTest::newRow("View") << 5 << u"View=&View"_s
                              << u"StatusBarMenu Status Bar [StatusBarAction Hide Status Bar; "
                                 "ClearStatusMessage Clear Status Message] / "_s +
                                     toolBarMenu +
                                     u" / WindowTitleBar Show Window Title Bar / ViewItem ||- / "
                                     "ToolsItem ||||||||||||||Startup"_s;
        QTest::newRow("CentralProperty")
            << 6 << u"CentralProperty="_s
            << u"BackgroundColour Background Colour [BGColour] / WindowTitleBar Show Window Title "
               "Bar / "_s +
                   toolBarMenu +
                   u" / HideStatusBar Hide Status Bar / SaveTempolarkCentralSettings Save "
                   "Tempolark Central Settings / SetScreenSaverMenu Set Screen Saver "
                   "[ScreenSaverTime]"_s;
        QTest::newRow("Window") << 7 << u"Window=&Window"_s
                                << u"WindowItem Tile|Cascade|Arrang Icons|Maximise All|Restore "
                                   "All|Minimise All|-|Close All|- / OpenedWindow"_s;
        QTest::newRow("WindowsProperty")
            << 8 << u"WindowsProperty="_s
            << u"Clock Clock [Clocks Analogue|Digital|Calculator] / ClockStyle Clock Style "
               "[ClockStyles] / ClockColour Clock Colour [ClockColours] / SaveSettings Save "
               "Settings"_s;
        QTest::newRow("BarsMenu") << 9 << u"BarsMenu="_s
                                  << u"StatusBarMenu Status Bar [StatusBarAction Hide Status Bar; "
                                     "ClearStatusMessage Clear Status Message] / "_s +
                                         toolBarMenu;
    }

    void Catalogue() {
        QFETCH(int, place);
        QCOMPARE(shell::MenuCatalogue().size(), std::size_t(10));
        const shell::MenuTable& table = shell::MenuCatalogue()[static_cast<std::size_t>(place)];
        QStringList entries;
        for (const shell::MenuEntry& entry : table.Entries) {
            entries += Text(entry);
        }
        QTEST(table.Name + u'=' + table.Caption, "menu");
        QTEST(entries.join(u" / "_s), "entries");
    }

    void ItemsWithoutACaptionAreHidden() {
        shell::MenuState state;
        QCOMPARE(state[u"MainItem"_s].Count(), 9);
        QVERIFY(!state[u"MainItem"_s](1).Visible);
        QVERIFY(shell::IsSeparator(state[u"MainItem"_s](2)));
        QCOMPARE(state[u"MainItem"_s](3).Caption, u"Exit"_s);
        QVERIFY(!state[u"TimeZone"_s](1).Visible);
        QCOMPARE(state[u"nothing of that name"_s].Count(), 1);
    }

    void ScreenSaverTimes() {
        FakeServices machine;
        shell::MenuArray menu;
        shell::FillScreenSaverMenu(menu, machine.Settings, u"/app/TempolarkCentral.exe"_s);
        QCOMPARE(menu.Count(), 12);
        QCOMPARE(menu(1).Caption, u"10"_s);
        QCOMPARE(menu(12).Caption, u"120"_s);
        QVERIFY(menu(12).Visible);
        machine.Settings.SetValue(u"Control Panel\\Desktop"_s, u"SCRNSAVE.EXE"_s,
                                  u"/app/TempolarkCentral.exe"_s);
        shell::FillScreenSaverMenu(menu, machine.Settings, u"/app/TempolarkCentral.exe"_s);
        QCOMPARE(menu(1).Caption, u"Disabled"_s);
        QVERIFY(menu(1).Visible);
        QVERIFY(!menu(2).Visible);
        QVERIFY(!menu(12).Visible);
    }

    void AutoStartItemTurnsItsWords() {
        FakeServices machine;
        shell::MenuItem item{u"Auto Start"_s, {}, true, true, false};
        shell::RefreshAutoStartItem(item, machine.Settings, u"me"_s);
        QCOMPARE(item.Caption, u"Enable Auto Start"_s);
        QCOMPARE(item.Tag, u"0"_s);
        machine.Settings.SetValue(u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"me"_s,
                                  u"/app/me"_s);
        shell::RefreshAutoStartItem(item, machine.Settings, u"me"_s);
        QCOMPARE(item.Caption, u"Disable Auto Start"_s);
        QCOMPARE(item.Tag, u"1"_s);
        shell::RefreshAutoStartItem(item, machine.Settings, u"me"_s);
        QCOMPARE(item.Caption, u"Disable Auto Start"_s);
    }
};

QTEST_GUILESS_MAIN(tst_ShellMenuData)
#include "tst_ShellMenuData.moc"
