#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "shell/ShellDesk.h"
#include "shell/ToolCommands.h"
#include "support/FakeDialogs.h"

/// Real clocks in the real shell, told what to do from its menus.
class tst_ShellCommandsOnClocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RemovingAZoneAsksFirst() {
        Desk desk;
        desk.Zone(u"Tokyo Standard Time"_s);
        QVERIFY(desk.Start());
        desk.Machine.Dialogs.BoxAnswers = {7};
        desk.ClickItem(u"DeleteTimeZone"_s, 1);
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), std::size_t(1));
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Title, u"Remove Time Zone"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Flags, 4 + 32 + 256);  // No is the default
        QVERIFY(desk.Machine.Dialogs.Boxes[0].Text.contains(u"Tokyo Standard Time"_s));
        QVERIFY(!desk.User(u"TimeZones/Tokyo Standard Time.ini"_s).isEmpty());
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.ClickItem(u"DeleteTimeZone"_s, 1);
        QVERIFY(!desk.HasZone(u"Tokyo Standard Time"_s));
        QCOMPARE(desk.Status().section(u" << "_s, 0, 0),
                 u"Removed the time zone Tokyo Standard Time"_s);
    }

    void AnOpenClockIsClosedBeforeItsZoneGoes() {
        Desk desk;
        desk.Zone(u"Tokyo Standard Time"_s);
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Settle();
        desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, {});
        desk.Open(u"Auto Start"_s);
        Desk::Item(desk.Menu(u"OpenedAction"_s), u"Tokyo Standard Time"_s)->trigger();
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.ClickItem(u"DeleteTimeZone"_s, 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList());
        QVERIFY(!desk.HasZone(u"Tokyo Standard Time"_s));
        QCOMPARE(desk.User(u"AutoStart.txt"_s), QByteArray("Tokyo Standard Time=\r\n"));
    }

    void AllZonesAreRemovedAfterOneQuestion() {
        Desk desk;
        for (int i = 10; i < 30; ++i) {
            desk.Zone(u"Zone %1"_s.arg(i));
        }
        QVERIFY(desk.Start());
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.ClickItem(u"DeleteTimeZone"_s, 16);
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), std::size_t(1));
        QVERIFY(desk.Machine.Dialogs.Boxes[0].Text.contains(u"all 21 "_s));  // and UTC
        QVERIFY(!desk.HasZone(u"Zone 10"_s));
        QVERIFY(!desk.HasZone(u"Zone 29"_s));
        QCOMPARE(desk.Entry(u"TimeZone"_s, 1)->text(), u"None"_s);
    }

    /// Between the filling of the menu and the click.
    void AFileThatHasGoneMeanwhile() {
        Desk desk;
        desk.Zone(u"Tokyo Standard Time"_s);
        QVERIFY(desk.Start());
        QAction* entry = desk.Entry(u"DeleteTimeZone"_s, 1);
        QVERIFY(QFile::remove(desk.Machine.AppFolder() +
                              u"/tester/TimeZones/Tokyo Standard Time.ini"_s));
        desk.Machine.Dialogs.BoxAnswers = {6};
        entry->trigger();
        QVERIFY(!desk.HasZone(u"Tokyo Standard Time"_s));
    }

    void NamesThatDoNotExistAreNotOffered() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/OpenedForms.txt"_s, "Gone=\r\nLost=\r\nUTC=\r\n");
        desk.Zone(u"UTC"_s);
        QVERIFY(desk.Start());
        desk.Open(u"Launch"_s);
        QCOMPARE(Desk::Texts(desk.Menu(u"LastOpened"_s)), (QStringList{u"UTC"_s, u"All"_s}));
    }

    void AllOfTheLastOnesLeavesRemovedZonesAlone() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/OpenedForms.txt"_s, "Zone 1=\r\nZone 2=\r\nZone 3=\r\n");
        for (const QString& name : {u"Zone 1"_s, u"Zone 2"_s, u"Zone 3"_s}) {
            desk.Zone(name);
        }
        QVERIFY(desk.Start());
        desk.Entry(u"FileItem"_s, 1);
        for (int time = 0; time < 2; ++time) {
            desk.Machine.Dialogs.BoxAnswers = {6};
            desk.ClickItem(u"DeleteTimeZone"_s, 3);  // the last zone, behind UTC
        }
        desk.ClickItem(u"FileItem"_s, 2);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Zone 1"_s});
        QVERIFY(!desk.HasZone(u"Zone 2"_s));
        QVERIFY(!desk.HasZone(u"Zone 3"_s));
    }

    void TheFilePickerHidesTheHeader() {
        Desk desk;
        for (int i = 10; i < 27; ++i) {
            desk.Zone(u"Zone %1"_s.arg(i));
        }
        QVERIFY(desk.Start());
        desk.Machine.Dialogs.FileAnswers = {QString(), u"/somewhere/Zone 25.ini"_s};
        desk.ClickItem(u"TimeZone"_s, 16);
        QVERIFY(desk.HeaderShows());
        desk.ClickItem(u"TimeZone"_s, 16);
        QVERIFY(!desk.HeaderShows());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Zone 25"_s});
    }

    void AnIndexOutsideTheMenuDoesNothing() {
        Desk desk;
        QVERIFY(desk.Start());
        for (const int index : {-1, 0, 99}) {
            desk.Shell->DoMenuItem(1.0F, index);
            desk.Shell->DoMenuItem(8.0F, index);
            desk.Shell->DoMenuItem(9.0F, index);
            desk.Shell->DoMenuItem(4.0F, index);
        }
        QCOMPARE(desk.Clocks(), QStringList());
    }

    void TwoThousandZoneFiles() {
        Desk desk;
        for (int i = 0; i < 2000; ++i) {
            desk.Machine.WriteFile(u"tester/TimeZones/Zone %1.ini"_s.arg(i), "x:Clocks=1\r\n");
        }
        QVERIFY(desk.Start());
        desk.Open(u"Launch"_s);
        QCOMPARE(desk.Menu(u"Open"_s)->actions().size(), 16);
        QCOMPARE(desk.Menu(u"Open"_s)->actions().last()->text(), u"More"_s);
        QCOMPARE(desk.Menu(u"Remove"_s)->actions().last()->text(), u"All"_s);
    }

    void EveryClockIsTold() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(10);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Settle();
        desk.ClickItem(u"Clocks"_s, 2);
        desk.ClickItem(u"ClockColours"_s, 6);
        desk.ClickItem(u"SaveSettings"_s, 1);
        for (const QString& zone : {u"UTC"_s, u"Tokyo Standard Time"_s}) {
            const QByteArray file = desk.User(u"TimeZones/"_s + zone + u".ini"_s);
            QVERIFY(file.contains("Clocks=Digital"));
            QVERIFY(file.contains("Window Background Colour=Red"));
            QVERIFY(desk.Status().contains(u"Saved the style of "_s + zone));
        }
    }

    void CustomAsksOnceForAllClocks() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(10);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Shell->LaunchTempolark(u"Tokyo Standard Time"_s);
        desk.Settle();
        desk.Machine.Dialogs.ColourAnswers = {0x112233};
        desk.ClickItem(u"ClockColours"_s, 10);
        QVERIFY(desk.Machine.Dialogs.ColourAnswers.empty());
        desk.ClickItem(u"SaveSettings"_s, 1);
        QVERIFY(desk.User(u"TimeZones/UTC.ini"_s).contains("Window Background Colour=1122867"));
    }

    void SixtyClocksCloseAtOnce() {
        Desk desk;
        QVERIFY(desk.Start());
        for (int i = 0; i < 60; ++i) {
            desk.Shell->LaunchTempolark(u"Zone %1"_s.arg(i));
        }
        QCOMPARE(desk.Clocks().size(), 60);
        desk.Settle();
        desk.Open(u"Close"_s);
        Desk::Item(desk.Menu(u"OpenedAction"_s), u"All"_s)->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.Clocks().size(), 0);
        QTRY_VERIFY(desk.HeaderShows());
    }

    /// A command that nobody handles, or a handler that no menu knows, is a slip in a name.
    void EveryCommandHasAHandler() {
        Desk desk;
        QVERIFY(desk.Start());
        QStringList without, unknown = desk.Shell->Commands().Names();
        for (const QString& name : shell::CommandsOfMenus()) {
            if (!desk.Shell->Commands().Handles(name)) {
                without += name;
            }
            unknown.removeAll(name);
        }
        without.sort();
        QCOMPARE(without, shell::MenuCommands::ThatDoNothing());
        // These two have a button of the toolbar alone.
        QCOMPARE(unknown, (QStringList{u"ActiveProperties"_s, u"LaunchDatebrook"_s}));
        for (int i = 1; i <= shell::Tool::Count; ++i) {
            const shell::ToolAction action = shell::ActionOfTool(i);
            QVERIFY2(action.Command.isEmpty() || desk.Shell->Commands().Handles(action.Command),
                     qPrintable(action.Command));
            QVERIFY2(action.Menu.isEmpty() || desk.Menu(action.Menu) != nullptr,
                     qPrintable(action.Menu));
        }
    }

    void EveryEntryAnswers() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(10);
        // What opens a box, a window or ends the program has tests of its own.
        const QStringList aside = {u"Exit"_s,          u"MainItem"_s,       u"ToolbarCustomize"_s,
                                   u"TimeZone"_s,      u"DeleteTimeZone"_s, u"NewClock"_s,
                                   u"ChooseTimeZone"_s};
        for (const shell::MenuTable& table : shell::MenuCatalogue()) {
            Q_EMIT desk.Menu(table.Name)->aboutToShow();
            for (QAction* action : desk.Shell->findChildren<QAction*>()) {
                const QString name = action->objectName().section(u'(', 0, 0);
                if (name.isEmpty() || aside.contains(name) || !action->isEnabled() ||
                    action->text() == u"Custom"_s || action->text() == u"More"_s) {
                    continue;
                }
                action->trigger();
            }
        }
        QVERIFY(desk.Shell->isVisible());
        desk.ClickItem(u"ToolBarPositions"_s, 1);
        desk.Stop();
    }
};

QTEST_MAIN(tst_ShellCommandsOnClocks)
#include "tst_ShellCommandsOnClocks.moc"
