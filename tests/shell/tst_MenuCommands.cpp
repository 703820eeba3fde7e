#include "shell/MenuCommands.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Commands by name, and the numbers under which some of them can be called.
class tst_MenuCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachItemHasItsCommand_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("commands");
        QTest::newRow("WindowItem") << u"WindowItem"_s << 0
                                    << u",Tile,Cascade,ArrangeIcons,MaximiseAll,RestoreAll,"
                                       "MinimiseAll,,CloseAll,"_s;
        QTest::newRow("MainItem") << u"MainItem"_s << 0
                                  << u",,,Exit,,Help,About,,SaveTempolarkCentralSettings,"
                                     "Properties"_s;
        QTest::newRow("ToolsItem") << u"ToolsItem"_s << 14 << u",Startup"_s;
        QTest::newRow("ViewItem") << u"ViewItem"_s << 0 << u",,,"_s;
        QTest::newRow("EditItem") << u"EditItem"_s << 5 << u"EditItem,,EditItem"_s;
        QTest::newRow("Clocks") << u"Clocks"_s << 0 << u",Clocks,Clocks,Clocks"_s;
        QTest::newRow("a list has grown") << u"TimeZone"_s << 15 << u"TimeZone,TimeZone"_s;
        QTest::newRow("a submenu") << u"ToolBarMenu"_s << 1 << QString();
        QTest::newRow("no entry") << u"Tile"_s << 1 << QString();
        QTest::newRow("below the first") << u"TimeZone"_s << -1 << QString();
    }

    void EachItemHasItsCommand() {
        QFETCH(QString, entry);
        QFETCH(int, first);
        QFETCH(QString, commands);
        QStringList found;
        for (int i = first; i <= first + commands.count(u','); ++i) {
            found += shell::CommandOf(entry, i);
        }
        QCOMPARE(found.join(u','), commands);
    }

    void EveryCommandIsNamedOnce() {
        QStringList commands = shell::CommandsOfMenus();
        QVERIFY(commands.contains(u"Tile"_s) && commands.contains(u"NewClock"_s));
        QVERIFY(!commands.contains(QString()));
        QCOMPARE(commands.removeDuplicates(), 0);
    }

    void AClickGivesTheItem() {
        shell::MenuState state;
        state[u"TimeZone"_s].Load(2) = {u"Tokyo"_s, u"tag"_s, true, true, true};
        shell::MenuCommands commands(state);
        QStringList log;
        commands.Handle(u"TimeZone"_s, [&log, &state](int index, const shell::MenuItem& item) {
            state[u"TimeZone"_s].UnloadAbove(1);  // the menu is filled anew
            log += u"%1 %2 %3 %4"_s.arg(index).arg(item.Caption, item.Tag).arg(item.Checked);
        });
        QVERIFY(commands.Click(u"TimeZone"_s, 2));
        QCOMPARE(log, QStringList{u"2 Tokyo tag 1"_s});
        QVERIFY(!commands.Click(u"TimeZone"_s, 2));
        QVERIFY(!commands.Click(u"TimeZone"_s, 0));
        QVERIFY(commands.Click(u"TimeZone"_s, 1));
        QCOMPARE(log.size(), 2);
    }

    void ACommandRunsByItsName() {
        shell::MenuState state;
        shell::MenuCommands commands(state);
        QStringList log;
        commands.Handle(u"Exit"_s, [&log] { log += u"exit"_s; });
        commands.Handle(u"Clocks"_s, [&log](int index, const shell::MenuItem& item) {
            log += u"clocks %1 '%2'"_s.arg(index).arg(item.Caption);
        });
        QVERIFY(commands.Run(u"Exit"_s));
        QVERIFY(commands.Run(u"Clocks"_s));
        QVERIFY(!commands.Run(u"exit"_s));
        QVERIFY(!commands.Run(QString()));
        QCOMPARE(log, (QStringList{u"exit"_s, u"clocks 0 ''"_s}));
        QVERIFY(commands.Handles(u"Exit"_s));
        QVERIFY(!commands.Handles(u"Tile"_s));
        QCOMPARE(commands.Names(), (QStringList{u"Clocks"_s, u"Exit"_s}));
    }

    void NumbersOfDoMenuItem_data() {
        QTest::addColumn<float>("menuId");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("command");
        QTest::newRow("TimeZone") << 1.0F << 1 << u"TimeZone"_s;
        QTest::newRow("Tile") << 8.0F << 1 << u"Tile"_s;
        QTest::newRow("Cascade") << 8.0F << 2 << u"Cascade"_s;
        QTest::newRow("Arrang Icons") << 8.0F << 3 << u"ArrangeIcons"_s;
        QTest::newRow("Maximise All") << 8.0F << 4 << u"MaximiseAll"_s;
        QTest::newRow("Restore All") << 8.0F << 5 << u"RestoreAll"_s;
        QTest::newRow("Minimise All") << 8.0F << 6 << u"MinimiseAll"_s;
        QTest::newRow("a separator") << 8.0F << 7 << QString();
        QTest::newRow("Close All") << 8.0F << 8 << u"CloseAll"_s;
        QTest::newRow("the separator of the list") << 8.0F << 9 << QString();
        QTest::newRow("behind the last") << 8.0F << 10 << QString();
        QTest::newRow("nothing") << 9.0F << 1 << QString();
        QTest::newRow("Exit") << 9.0F << 3 << u"Exit"_s;
        QTest::newRow("Help") << 9.0F << 5 << u"Help"_s;
        QTest::newRow("About") << 9.0F << 6 << u"About"_s;
        QTest::newRow("Save Current Settings") << 9.0F << 8 << u"SaveTempolarkCentralSettings"_s;
        QTest::newRow("Properties") << 9.0F << 9 << u"Properties"_s;
        QTest::newRow("below the first") << 9.0F << -1 << QString();
        QTest::newRow("View") << 4.0F << 3 << QString();
        QTest::newRow("Tools") << 6.0F << 15 << QString();
        QTest::newRow("no menu") << 2.0F << 1 << QString();
        QTest::newRow("between two") << 8.5F << 1 << QString();
    }

    void NumbersOfDoMenuItem() {
        QFETCH(float, menuId);
        QFETCH(int, index);
        QFETCH(QString, command);
        shell::MenuState state;
        shell::MenuCommands commands(state);
        QStringList log;
        for (const QString& name : shell::CommandsOfMenus()) {
            commands.Handle(name, [&log, name] { log += name; });
        }
        QCOMPARE(commands.DoMenuItem(menuId, index), !command.isEmpty());
        QCOMPARE(log.join(u','), command);
    }
};

QTEST_GUILESS_MAIN(tst_MenuCommands)
#include "tst_MenuCommands.moc"
