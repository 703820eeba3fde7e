#include "timers/SystemActions.h"

#include <QTest>

#include "support/FakeDialogs.h"
#include "timers/ActionDesk.h"

using namespace Qt::StringLiterals;

class tst_SystemActions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RunsActions_data();
    void RunsActions();
    void TellsOfARefusal_data();
    void TellsOfARefusal();
    void PostsABoxForWhatCannotBeOpened();
    void WaitsForNoMachine();
    void TellsALateRefusalToNobodyInAClosedClock();
    void KeepsQuietWhenAllIsWell();
};

void tst_SystemActions::RunsActions_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("log off") << u"Log Off"_s << QStringList{u"exit 0"_s};
    QTest::newRow("shutdown") << u"Normal Shutdown"_s << QStringList{u"exit 1"_s};
    QTest::newRow("reboot") << u"Reboot"_s << QStringList{u"exit 2"_s};
    QTest::newRow("forced") << u"Forced Shutdown"_s << QStringList{u"exit 13"_s};
    QTest::newRow("lock") << u"Lock Workstation"_s << QStringList{u"lock"_s};
    QTest::newRow("empty") << QString() << QStringList{};
    QTest::newRow("program") << u"APP/Tools/x.sh"_s
                             << QStringList{u"open APP/Tools/x.sh in APP/Tools"_s};
    QTest::newRow("as in files") << u"APP\\Tools\\x.sh"_s
                                 << QStringList{u"open APP/Tools/x.sh in APP/Tools"_s};
    QTest::newRow("beside the program")
        << u".\\Tools\\x.sh"_s << QStringList{u"open APP/Tools/x.sh in APP/Tools"_s};
    QTest::newRow("native beside it")
        << u"./Tools/x.sh"_s << QStringList{u"open APP/Tools/x.sh in APP/Tools"_s};
    QTest::newRow("odd name") << u".\\Tools\\a=b @c#d"_s
                              << QStringList{u"open APP/Tools/a=b @c#d in APP/Tools"_s};
    QTest::newRow("name alone") << u"editor"_s << QStringList{u"open editor in "_s};
    QTest::newRow("at the root") << u"/none"_s << QStringList{u"open /none in /"_s};
    QTest::newRow("folder that is missing")
        << u".\\None\\x.sh"_s << QStringList{u"open APP/None/x.sh in "_s};
    QTest::newRow("address") << u"https://example.org/x"_s
                             << QStringList{u"open https://example.org/x in "_s};
    QTest::newRow("letter case") << u"log off"_s << QStringList{u"open log off in "_s};
    QTest::newRow("with a blank") << u"Reboot "_s << QStringList{u"open Reboot  in "_s};
    QTest::newRow("none") << u"None"_s << QStringList{u"open None in "_s};
}

void tst_SystemActions::RunsActions() {
    QFETCH(QString, action);
    ActionDesk desk;
    desk.Machine.WriteFile(u"Tools/x.sh"_s, "#!/bin/sh\n");
    const QString app = desk.Machine.AppFolder();
    timers::ActionRunner(desk.Context()).RunAction(action.replace(u"APP"_s, app));
    QStringList& log = desk.Devices.Actions.Log;
    QTEST(log.replaceInStrings(app, u"APP"_s), "log");
}

void tst_SystemActions::TellsOfARefusal_data() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("told");
    QTest::newRow("log off") << u"Log Off"_s << u"Log Off was refused: not allowed"_s;
    QTest::newRow("shutdown") << u"Normal Shutdown"_s
                              << u"Normal Shutdown was refused: not allowed"_s;
    QTest::newRow("reboot") << u"Reboot"_s << u"Reboot was refused: not allowed"_s;
    QTest::newRow("forced") << u"Forced Shutdown"_s
                            << u"Forced Shutdown was refused: not allowed"_s;
    QTest::newRow("lock") << u"Lock Workstation"_s
                          << u"Lock Workstation was refused: not allowed"_s;
}

// Any box would fail the test: none is expected.
void tst_SystemActions::TellsOfARefusal() {
    QFETCH(QString, action);
    QFETCH(QString, told);
    ActionDesk desk;
    desk.Devices.Actions.Refusal = u"not allowed"_s;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(told));
    timers::ActionRunner(desk.Context()).RunAction(action);
    QCOMPARE(desk.Host.Status, QStringList{told});
}

void tst_SystemActions::PostsABoxForWhatCannotBeOpened() {
    ActionDesk desk;
    desk.Devices.Actions.Refusal = u"There is no x.exe"_s;
    desk.Machine.Dialogs.BoxAnswers = {1};
    timers::ActionRunner(desk.Context()).RunAction(u".\\x.exe"_s);
    QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 1U);
    QCOMPARE(desk.Machine.Dialogs.Boxes[0].Text, u"There is no x.exe"_s);
    QCOMPARE(desk.Machine.Dialogs.Boxes[0].Title, u"ExecuteLink"_s);
    QCOMPARE(desk.Machine.Dialogs.Boxes[0].Flags, 16);
    QCOMPARE(desk.Host.Status, QStringList());
}

// A machine that takes its time: nothing is done and nothing told before it does.
void tst_SystemActions::WaitsForNoMachine() {
    ActionDesk desk;
    desk.Devices.Actions.Refusal = u"not allowed"_s;
    desk.Devices.Actions.Slow = true;
    timers::ActionRunner runner(desk.Context());
    runner.RunAction(u"Reboot"_s);
    QCOMPARE(desk.Devices.Actions.Log, QStringList());
    QCOMPARE(desk.Host.Status, QStringList());
    QTest::ignoreMessage(QtWarningMsg, "Reboot was refused: not allowed");
    desk.Devices.Actions.DoTheRest();
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"exit 2"_s});
    QCOMPARE(desk.Host.Status, QStringList{u"Reboot was refused: not allowed"_s});
}

void tst_SystemActions::TellsALateRefusalToNobodyInAClosedClock() {
    ActionDesk desk;
    desk.Devices.Actions.Refusal = u"not allowed"_s;
    desk.Devices.Actions.Slow = true;
    timers::ActionRunner(desk.Context()).RunAction(u"Lock Workstation"_s);
    QTest::ignoreMessage(QtWarningMsg, "Lock Workstation was refused: not allowed");
    desk.Devices.Actions.DoTheRest();
    QCOMPARE(desk.Devices.Actions.Log, QStringList{u"lock"_s});
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_SystemActions::KeepsQuietWhenAllIsWell() {
    ActionDesk desk;
    for (const QString& action : {u"Log Off"_s, u"Lock Workstation"_s, u"editor"_s, QString()}) {
        timers::ActionRunner(desk.Context()).RunAction(action);
    }
    QCOMPARE(desk.Host.Status, QStringList());
}

QTEST_GUILESS_MAIN(tst_SystemActions)
#include "tst_SystemActions.moc"
