#include "shell/ToolCommands.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ToolCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Catalogue_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("image");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("Launch") << 1 << u"\"1,1\""_s << 1 << u"Launch"_s
                                << u"Create new timezones\r\nLaunch clocks\r\nLaunch previous "
                                   "opened clocks\r\nChoose timezones\r\nRemove timezones\r\nClose "
                                   "Tempolark Central"_s;
        QTest::newRow("Close") << 2 << u"\"1,2\""_s << 2 << u"Close"_s << u"Close opened clocks"_s;
        QTest::newRow("Disable") << 3 << u"\"1,3\""_s << 3 << u"Disable"_s
                                 << u"Disable opened clocks"_s;
        QTest::newRow("Enable") << 4 << u"\"1,4\""_s << 4 << u"Enable"_s
                                << u"Enable opened clocks"_s;
        QTest::newRow("Maximize") << 5 << u"\"1,5\""_s << 5 << u"Maximize"_s
                                  << u"Maximize opened clocks"_s;
        QTest::newRow("Minimize") << 6 << u"\"1,6\""_s << 6 << u"Minimize"_s
                                  << u"Minimize opened clocks"_s;
        QTest::newRow("Restore") << 7 << u"\"1,7\""_s << 7 << u"Restore"_s
                                 << u"Restore opened clocks"_s;
        QTest::newRow("Auto Start") << 8 << u"\"1,8\""_s << 8 << u"Auto Start"_s
                                    << u"Set the selected clock\r\nto start automatically"_s;
        QTest::newRow("Property") << 9 << u"\"3,9\""_s << 9 << u"Property"_s << u"Set properties"_s;
        QTest::newRow("Shortcut") << 10 << u"\"3,10\""_s << 10 << u"Shortcut"_s
                                  << u"Manage shortcuts"_s;
        QTest::newRow("Timezone") << 11 << u"\"3,11\""_s << 11 << u"Timezone"_s
                                  << u"Select timezones"_s;
        QTest::newRow("Clock Agent") << 12 << u"\"3,12\""_s << 12 << u"Clock Agent"_s
                                     << u"Place Tempolark Agent to System tray\r\n"
                                        "Remove Tempolark Agent from System tray"_s;
        QTest::newRow("separator 13") << 13 << QString() << 0 << QString() << QString();
        QTest::newRow("CProperty")
            << 14 << u"\"3,14\""_s << 13 << u"CProperty"_s << u"Set tempolark central settings"_s;
        QTest::newRow("Manage Clocks")
            << 15 << u"\"3,15\""_s << 14 << u"Manage Clocks"_s
            << u"Set all to analogue or digital or calculator\r\nSet all to clock style\r\nSet all "
               "to clock colour\r\nSave all properites of clocks"_s;
        QTest::newRow("Organize Windows")
            << 16 << u"\"3,16\""_s << 15 << u"Organize Windows"_s
            << u"Tile window\r\nCascade window\r\nArrange icons\r\nMaximise all\r\nRestore "
               "all\r\nMinimise all\r\nClose all"_s;
        QTest::newRow("Datebrook")
            << 17 << u"\"3,17\""_s << 16 << u"Datebrook"_s << u"Launch Datebrook"_s;
        QTest::newRow("separator 18") << 18 << QString() << 0 << QString() << QString();
        QTest::newRow("Help") << 19 << u"\"9,19\""_s << 17 << u"Help"_s
                              << u"Tempolark Central Help\r\nTempolark Help\r\n"
                                 "Tempolark Agent Help"_s;
        QTest::newRow("Exit") << 20 << u"\"2,20\""_s << 18 << u"Exit"_s
                              << u"Close Tempolark Central"_s;
    }

    void Catalogue() {
        QFETCH(int, index);
        const shell::ToolButton button = shell::SetupToolButton(index, u"Large Size"_s);
        QTEST(button.Key, "key");
        QTEST(button.Image, "image");
        QTEST(button.Tag, "tag");
        QTEST(button.ToolTipText, "toolTip");
        QCOMPARE(button.Description, button.ToolTipText);
        QCOMPARE(button.Caption, QString());
    }

    void EveryButtonDoesOneThing() {
        QStringList actions;
        for (int i = 0; i <= 21; ++i) {
            const shell::ToolAction action = shell::ActionOfTool(i);
            actions += action.Menu + u'/' + action.Command;
        }
        QCOMPARE(actions.join(u' '),
                 u"/ File/ OpenedAction/ OpenedAction/ OpenedAction/ OpenedAction/ OpenedAction/ "
                 "OpenedAction/ OpenedAction/ /ActiveProperties /SetShortcut /ChooseTimeZone "
                 "TempolarkAgent/ / CentralProperty/ WindowsProperty/ Window/ /LaunchDatebrook / "
                 "/Help /Exit /"_s);
    }

    void CaptionsComeWithTheSize() {
        QCOMPARE(shell::SetupToolButton(5, u"Small Size with Caption"_s).Caption, u"Maximize"_s);
        QCOMPARE(shell::SetupToolButton(5, u"Large Size with Caption"_s).Caption, u"Maximize"_s);
        QCOMPARE(shell::SetupToolButton(5, u"Small Size"_s).Caption, QString());
    }

    void DatebrookIsNeverVisible() {
        for (const QString& size : {u"Small Size"_s, u"Small Size with Caption"_s, u"Large Size"_s,
                                    u"Large Size with Caption"_s}) {
            QVERIFY(!shell::SetupToolButton(17, size).Visible);
            QVERIFY(shell::SetupToolButton(16, size).Visible);
        }
    }

    void IndexOfAKey_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("index");
        QTest::newRow("quotes and all") << u"\"1,5\""_s << 5;
        QTest::newRow("two digits") << u"\"9,19\""_s << 19;
        QTest::newRow("no comma") << u"\"5\""_s << 0;
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("no number") << u"\"1,x\""_s << 0;
    }

    void IndexOfAKey() {
        QFETCH(QString, key);
        QTEST(shell::ToolIndexOfKey(key), "index");
    }
};

QTEST_GUILESS_MAIN(tst_ToolCommands)
#include "tst_ToolCommands.moc"
