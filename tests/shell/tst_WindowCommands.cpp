#include "shell/WindowCommands.h"

#include <QTest>

#include "shell/FakeShell.h"
#include "support/FakeDialogs.h"
#include "support/FakeForms.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

/// Commands to several windows, by their names.
class tst_WindowCommands : public QObject {
    Q_OBJECT

private:
    struct Desk : MachineWithZones {
        QStringList Log;
        FakeShell Shell;
        FakeForm ShellForm{Windows, u"frmMain"_s, u"shell"_s, Log};
        FakeClock A{Windows, u"A"_s, Log};
        FakeForm B{Windows, u"frmTimeZones"_s, u"B"_s, Log};
        shell::MenuState State;
        shell::MenuCommands Commands{State};

        Desk() {
            Module.Paths.StylesFolder = u"/styles"_s;
            shell::AddWindowCommands(Commands, Windows, ShellForm, [this](shell::Arrangement code) {
                Log += u"arrange %1"_s.arg(static_cast<int>(code));
            });
            shell::AddClockCommands(Commands, TheProgram, Shell);
        }
        QString Click(const QString& entry, int index) {
            Log.clear();
            return Commands.Click(entry, index) ? Log.join(u'|') : u"nothing"_s;
        }
    };

private Q_SLOTS:
    void WindowMenu_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("effect");
        QTest::newRow("Tile") << 1 << u"arrange 1"_s;
        QTest::newRow("Cascade") << 2 << u"arrange 2"_s;
        QTest::newRow("Arrang Icons") << 3 << u"arrange 3"_s;
        QTest::newRow("Maximise All") << 4 << u"shell: state 2|A: state 2|B: state 2"_s;
        QTest::newRow("Restore All")
            << 5 << u"A: state 0|A: focus|A: lay out|B: state 0|B: focus"_s;
        QTest::newRow("Minimise All") << 6 << u"A: state 1|B: state 1"_s;
        QTest::newRow("Close All") << 8 << u"B: close|A: close"_s;
    }

    void WindowMenu() {
        QFETCH(int, index);
        Desk desk;
        QTEST(desk.Click(u"WindowItem"_s, index), "effect");
    }

    void AWindowComesToTheFront() {
        Desk desk;
        desk.State[u"OpenedWindow"_s](1) = {u"B"_s, QString::number(desk.B.hwnd())};
        QCOMPARE(desk.Click(u"OpenedWindow"_s, 1), u"B: show|B: focus"_s);
        desk.State[u"OpenedWindow"_s](1) = {u"All"_s, u"0"_s};
        QCOMPARE(desk.Click(u"OpenedWindow"_s, 1), QString());
    }

    void EveryClockFollows() {
        Desk desk;
        QCOMPARE(desk.Click(u"Clocks"_s, 3), u"A: clocks 3"_s);
        QCOMPARE(desk.Click(u"SaveSettings"_s, 1), u"A: save"_s);
        desk.State[u"ClockStyles"_s](1) = {u"Blue"_s, u"/styles/Blue.ini"_s};
        QCOMPARE(desk.Click(u"ClockStyles"_s, 1), u"A: style /styles/Blue.ini"_s);
        desk.State[u"ClockColours"_s](1) = {u"Red"_s, u"Red"_s};
        QCOMPARE(desk.Click(u"ClockColours"_s, 1), u"A: colour Red Red"_s);
    }

    void MoreAsksForAStyle() {
        Desk desk;
        desk.State[u"ClockStyles"_s](1) = {u"More"_s, {}};
        desk.Machine.Dialogs.FileAnswers = {QString(), u"/else/My.ini"_s};
        QCOMPARE(desk.Click(u"ClockStyles"_s, 1), QString());
        QCOMPARE(desk.Click(u"ClockStyles"_s, 1), u"A: style /else/My.ini"_s);
        QCOMPARE(desk.Machine.Dialogs.PickerFolders, (QStringList{u"/styles"_s, u"/styles"_s}));
        QCOMPARE(desk.Machine.Dialogs.PickerTitles.last(), u"Clock Styles"_s);
    }

    void CustomAsksForAColour() {
        Desk desk;
        desk.State[u"ClockColours"_s](1) = {u"Custom"_s, u"Custom"_s};
        desk.Machine.Dialogs.ColourAnswers = {-1, 0x112233};
        QCOMPARE(desk.Click(u"ClockColours"_s, 1), QString());
        QCOMPARE(desk.Click(u"ClockColours"_s, 1), u"A: colour 1122867 Custom"_s);
    }
};

QTEST_GUILESS_MAIN(tst_WindowCommands)
#include "tst_WindowCommands.moc"
