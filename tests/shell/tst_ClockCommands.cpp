#include <QTest>

#include "shell/ClockCommands.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;

namespace {

/// A window that takes others along when it closes.
class Companion final : public RecordingForm<IForm> {
public:
    using RecordingForm::RecordingForm;

    std::vector<IForm*> Others;

    void Unload() override {
        RecordingForm::Unload();
        for (IForm* other : Others) {
            other->Unload();
        }
    }
};

}  // namespace

class tst_ClockCommands : public QObject {
    Q_OBJECT

    /// The shell and three clocks with another window between them.
    struct Desk {
        QStringList Log;
        Forms Windows;
        FakeForm Shell{Windows, u"frmMain"_s, u"shell"_s, Log};
        FakeClock A{Windows, u"A"_s, Log};
        FakeForm Other{Windows, u"frmProperties"_s, u"other"_s, Log};
        FakeClock B{Windows, u"B"_s, Log};
        FakeClock C{Windows, u"C"_s, Log};
    };

    static QStringList Lines(const char* text) { return QString::fromLatin1(text).split(u'|'); }

private Q_SLOTS:
    void CloseAllSkipsNone() {
        Desk desk;
        shell::SendToAllClocks(desk.Windows, 16, 0);
        QCOMPARE(desk.Log, Lines("A: close|B: close|C: close"));
        QCOMPARE(desk.Windows.Count(), 2);
    }

    void CloseAllEndsWhereOneRefuses() {
        Desk desk;
        desk.B.RefusesToClose = true;
        shell::SendToAllClocks(desk.Windows, 16, 0);
        QCOMPARE(desk.Log, Lines("A: close|B: close|C: close"));
        QCOMPARE(desk.Windows.Count(), 3);
    }

    void SystemCommands_data() {
        QTest::addColumn<int>("message");
        QTest::addColumn<int>("wParam");
        QTest::addColumn<QString>("effect");
        QTest::newRow("maximise") << 274 << 61488 << u"A: state 2"_s;
        QTest::newRow("minimise") << 274 << 61472 << u"A: state 1"_s;
        QTest::newRow("restore") << 274 << 61728 << u"A: state 0"_s;
        QTest::newRow("unknown command") << 274 << 5 << QString();
        QTest::newRow("unknown message") << 99 << 61488 << QString();
        QTest::newRow("close") << 16 << 0 << u"A: close"_s;
    }

    void SystemCommands() {
        QFETCH(int, message);
        QFETCH(int, wParam);
        Desk desk;
        shell::SendToClock(desk.Windows, QString::number(desk.A.hwnd()), message, wParam);
        QTEST(desk.Log.join(u'|'), "effect");
    }

    void Targets_data() {
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("reached");
        QTest::newRow("zero: all") << u"0"_s << 3;
        QTest::newRow("negative: all") << u"-4"_s << 3;
        QTest::newRow("no number: all") << u"All"_s << 3;
        QTest::newRow("empty: all") << QString() << 3;
        QTest::newRow("unknown handle: none") << u"999999"_s << 0;
    }

    void Targets() {
        QFETCH(QString, target);
        Desk desk;
        shell::SendToClock(desk.Windows, target, 274, 61472);
        QTEST(static_cast<int>(desk.Log.size()), "reached");
    }

    void Enables() {
        Desk desk;
        shell::EnableClock(desk.Windows, QString::number(desk.B.hwnd()), 0);
        QVERIFY(!desk.B.Enabled);
        QVERIFY(desk.A.Enabled);
        shell::EnableAllClocks(desk.Windows, 0);
        QVERIFY(!desk.A.Enabled);
        QVERIFY(desk.Other.Enabled);
        shell::EnableClock(desk.Windows, u"0"_s, -1);
        QVERIFY(desk.A.Enabled && desk.B.Enabled && desk.C.Enabled);
    }

    void SevenCommands() {
        QStringList tags;
        QList<std::uint32_t> masks;
        for (const shell::OpenedCommand& command : shell::OpenedCommands()) {
            tags += command.Tag;
            masks += command.StyleMask;
        }
        QCOMPARE(tags, Lines("Close|Disable|Enable|Maximize|Minimize|Restore|Auto Start"));
        QCOMPARE(masks, (QList<std::uint32_t>{0, 0x8000000, 1, 0x1000000, 0x20000000, 2, 0}));
    }

    void CommandsReachTheirTarget() {
        Desk desk;
        const auto& commands = shell::OpenedCommands();
        const QString handle = QString::number(desk.C.hwnd());
        for (std::size_t i = 1; i < 6; ++i) {
            commands[i].Run(desk.Windows, handle);
        }
        commands[0].Run(desk.Windows, handle);
        QCOMPARE(desk.Log, Lines("C: disable|C: enable|C: state 2|C: state 1|C: state 0|C: close"));
        QVERIFY(!commands[6].Run);
    }

    void Broadcasts() {
        Desk desk;
        using shell::Broadcast;
        shell::BroadcastToClocks(desk.Windows, Broadcast::Clocks, 2, {}, {});
        shell::BroadcastToClocks(desk.Windows, Broadcast::ClockStyles, 1, u"Wood.ini"_s, {});
        shell::BroadcastToClocks(desk.Windows, Broadcast::ClockColours, 1, u"255"_s, u"Custom"_s);
        shell::BroadcastToClocks(desk.Windows, Broadcast::SaveSettings, 0, {}, {});
        QCOMPARE(desk.Log, Lines("A: clocks 2|B: clocks 2|C: clocks 2|"
                                 "A: style Wood.ini|B: style Wood.ini|C: style Wood.ini|"
                                 "A: colour 255 Custom|B: colour 255 Custom|C: colour 255 Custom|"
                                 "A: save|B: save|C: save"));
    }

    void NumberedStyle() {
        Desk desk;
        const QStringList styles = {u"Gold.ini"_s, u"Wood.ini"_s};
        shell::ApplyStyleToClocks(desk.Windows, u"/styles/"_s, styles, 1);
        QCOMPARE(desk.Log.size(), 3);
        QCOMPARE(desk.Log.first(), u"A: style /styles/Wood.ini"_s);
        shell::ApplyStyleToClocks(desk.Windows, u"/styles/"_s, styles, 2);
        shell::ApplyStyleToClocks(desk.Windows, u"/styles/"_s, styles, -1);
        shell::ApplyStyleToClocks(desk.Windows, u"/styles/"_s, {}, 0);
        QCOMPARE(desk.Log.size(), 3);
        shell::ApplyStyleToClocks(desk.Windows, u"/styles/"_s, styles, 0);
        QCOMPARE(desk.Log.size(), 6);
        QCOMPARE(desk.Log.last(), u"C: style /styles/Gold.ini"_s);
    }

    void ShellColourGoesToTransparentClocks() {
        Desk desk;
        desk.B.Drawing = 1;
        shell::SyncClockBackColours(desk.Windows, 0x123456);
        QCOMPARE(desk.B.Colour, 0x123456);
        QCOMPARE(desk.A.Colour, 0);
        QCOMPARE(desk.Log, Lines("B: refresh"));
    }

    void MaximiseAllTakesTheShellAlong() {
        Forms windows;
        QStringList log;
        FakeForm alone(windows, u"frmMain"_s, u"shell"_s, log);
        shell::MaximiseAllChildren(windows, alone);
        QCOMPARE(log, Lines("shell: state 2"));
        Desk desk;
        shell::MaximiseAllChildren(desk.Windows, desk.Shell);
        QCOMPARE(desk.Log, Lines("shell: state 2|A: state 2|other: state 2|B: state 2|C: state 2"));
    }

    void RestoreAndMinimiseLeaveTheShell() {
        Desk desk;
        shell::MinimiseAllChildren(desk.Windows);
        QCOMPARE(desk.Log, Lines("A: state 1|other: state 1|B: state 1|C: state 1"));
        desk.Log.clear();
        shell::RestoreAllChildren(desk.Windows);
        QCOMPARE(desk.Log, Lines("A: state 0|A: focus|A: lay out|other: state 0|other: focus|"
                                 "B: state 0|B: focus|B: lay out|C: state 0|C: focus|C: lay out"));
    }

    void CalendarAndCalculatorStay() {
        Forms windows;
        QStringList log;
        FakeForm shellWindow(windows, u"frmMain"_s, u"shell"_s, log);
        FakeForm calendar(windows, u"frmCalendar"_s, u"calendar"_s, log);
        FakeForm calculator(windows, u"frmCalculator"_s, u"calculator"_s, log);
        shell::MinimiseAllChildren(windows);
        QCOMPARE(log, QStringList());
    }

    void CloseAllTakesEveryWindowFromTheLast() {
        Desk desk;
        shell::CloseAllChildren(desk.Windows);
        QCOMPARE(desk.Log, Lines("C: close|B: close|other: close|A: close"));
        QCOMPARE(desk.Windows.Count(), 1);
    }

    /// The window of zones removes the zones that are no longer checked, and their clocks go, too.
    void CloseAllGoesOnWhereAWindowTakesOthersAlong() {
        Desk desk;
        Companion zones{desk.Windows, u"frmTimeZones"_s, u"zones"_s, desk.Log};
        zones.Others = {&desk.B, &desk.C, &desk.Other};
        shell::CloseAllChildren(desk.Windows);
        QCOMPARE(desk.Log, Lines("zones: close|B: close|C: close|other: close|A: close"));
        QCOMPARE(desk.Windows.Count(), 1);
    }

    void CloseAllClocksGoesOnWhereAClockTakesOthersAlong() {
        Desk desk;
        Companion first{desk.Windows, ClockWindowName, u"first"_s, desk.Log};
        Companion last{desk.Windows, ClockWindowName, u"last"_s, desk.Log};
        FakeClock end{desk.Windows, u"end"_s, desk.Log};
        first.Others = {&desk.A, &desk.B, &last};
        shell::SendToAllClocks(desk.Windows, 16, 0);
        QCOMPARE(desk.Log, Lines("A: close|B: close|C: close|first: close|A: close|B: close|"
                                 "last: close|end: close"));
        QCOMPARE(desk.Windows.Count(), 2);
    }

    void ClosesTheClocksOfOneZone() {
        Desk desk;
        FakeForm like{desk.Windows, u"frmProperties"_s, u"B"_s, desk.Log};
        Companion twin{desk.Windows, ClockWindowName, u"B"_s, desk.Log};
        FakeClock end{desk.Windows, u"end"_s, desk.Log};
        twin.Others = {&end};
        shell::CloseClocksOf(desk.Windows, u"B"_s);
        QCOMPARE(desk.Log, Lines("B: close|B: close|end: close"));
        QCOMPARE(desk.Windows.Count(), 5);  // the shell, A, C, and two that are no clocks
    }

    void ActivateNeverFindsTheFirst() {
        Desk desk;
        QVERIFY(!shell::ActivateWindowByHandle(desk.Windows, desk.Shell.hwnd()));
        QVERIFY(!shell::ActivateWindowByHandle(desk.Windows, 0));
        QVERIFY(shell::ActivateWindowByHandle(desk.Windows, desk.B.hwnd()));
        QCOMPARE(desk.Log, Lines("B: show|B: focus"));
    }

    void ActivateRestoresAMinimisedWindowOnly() {
        Desk desk;
        desk.A.State = 2;
        desk.B.State = 1;
        shell::ActivateWindowByHandle(desk.Windows, desk.A.hwnd());
        shell::ActivateWindowByHandle(desk.Windows, desk.B.hwnd());
        QCOMPARE(desk.Log, Lines("A: show|A: focus|B: state 0|B: show|B: focus"));
    }
};

QTEST_APPLESS_MAIN(tst_ClockCommands)
#include "tst_ClockCommands.moc"
