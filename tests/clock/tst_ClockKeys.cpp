#include "clock/ClockKeys.h"

#include <QTest>

#include "clock/FormDesk.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Ctrl = 2;

/// The one command on F2.
void Bind(FormDesk& desk, const QString& action) {
    desk.Module.ShortcutList.Reset();
    mduLib::AppendProperty({}, action, u"F2"_s, desk.Module.ShortcutList);
}

}  // namespace

class tst_ClockKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Codes_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("code");
        QTest::newRow("F1") << int(Qt::Key_F1) << 112;
        QTest::newRow("F12") << int(Qt::Key_F12) << 123;
        QTest::newRow("F13") << int(Qt::Key_F13) << 0;
        QTest::newRow("E") << int(Qt::Key_E) << 69;
        QTest::newRow("5") << int(Qt::Key_5) << 53;
        QTest::newRow("blank") << int(Qt::Key_Space) << 32;
        QTest::newRow("tilde") << int(Qt::Key_AsciiTilde) << 126;
        QTest::newRow("the brace is not F12") << int(Qt::Key_BraceLeft) << 0;
        QTest::newRow("bar") << int(Qt::Key_Bar) << 124;
        QTest::newRow("up") << int(Qt::Key_Up) << 0;
        QTest::newRow("Ctrl") << int(Qt::Key_Control) << 0;
    }
    void Codes() {
        QFETCH(int, key);
        QTEST(clockcore::KeyCodeOf(key), "code");
    }

    void KeysThatMeanSomething_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("shift");
        QTest::addColumn<bool>("isBound");
        QTest::newRow("bound") << 113 << 0 << true;
        QTest::newRow("not so") << 113 << Ctrl << false;
        QTest::newRow("to a command that no clock knows") << 75 << Ctrl << false;
        QTest::newRow("help") << 112 << 0 << true;
        QTest::newRow("enable") << int('E') << Ctrl << true;
        QTest::newRow("normal") << int('W') << Ctrl << true;
        QTest::newRow("size") << int('R') << Ctrl << true;
        QTest::newRow("a letter") << int('E') << 0 << false;
        QTest::newRow("no key") << 0 << Ctrl << false;
    }
    void KeysThatMeanSomething() {
        QFETCH(int, code);
        QFETCH(int, shift);
        FormDesk desk;
        Bind(desk, u"Clocks"_s);
        mduLib::AppendProperty({}, u"Dance"_s, u"Ctrl+K"_s, desk.Module.ShortcutList);
        QTEST(desk.Keys.IsBound(code, shift), "isBound");
    }

    void HelpIsOnF1() {
        FormDesk desk;
        QVERIFY(desk.Keys.ClockKeyDown(112, 0));
        QCOMPARE(desk.Shell.Take(), QStringList(u"clock help"_s));
    }

    void CtrlEEnables() {
        FormDesk desk;
        desk.Parts.TheWindow.Enabled = false;
        QVERIFY(!desk.Keys.ClockKeyDown('E', 0));
        QVERIFY(!desk.Keys.ClockKeyDown('W', Ctrl));
        QVERIFY(desk.Keys.ClockKeyDown(112, 0));
        QCOMPARE(desk.Shell.Take(), QStringList(u"clock help"_s));
        QVERIFY(!desk.Parts.TheWindow.Enabled);
        QVERIFY(desk.Keys.ClockKeyDown('E', Ctrl));
        QVERIFY(desk.Parts.TheWindow.Enabled);
        QCOMPARE(desk.Screen.Status, QStringList());  // the file says so already
        desk.Settings.SetEnabled(false);
        QVERIFY(desk.Keys.ClockKeyDown('E', Ctrl));
        QVERIFY(desk.Parts.TheWindow.Enabled);
        QCOMPARE(desk.InFile(u"Enable"_s), u"Yes"_s);
    }

    void CtrlWTakesTheNormalSize() {
        FormDesk desk;
        desk.Parts.ThePlacement.State = 2;
        QVERIFY(desk.Keys.ClockKeyDown('W', Ctrl));
        QCOMPARE(desk.Parts.ThePlacement.State, 0);
        QVERIFY(!desk.Keys.ClockKeyDown('W', 0));
        QVERIFY(!desk.Keys.ClockKeyDown('W', Ctrl | 4));
    }

    /// 96 pixels are an inch, which has 2540 hundredths of a millimetre.
    void CtrlRTakesTheSizeOfThePicture() {
        FormDesk desk;
        desk.Calls();
        QVERIFY(desk.Keys.ClockKeyDown('R', Ctrl));
        QCOMPARE(desk.Calls(), QString());  // no picture
        desk.Controls.imgClock(1).Picture =
            std::make_shared<const QImage>(192, 96, QImage::Format_RGB32);
        QVERIFY(desk.Keys.ClockKeyDown('R', Ctrl));
        QCOMPARE(desk.Calls(), u"size 5080 x 2540"_s);
        for (const int state : {1, 2}) {
            desk.Parts.ThePlacement.State = state;
            QVERIFY(desk.Keys.ClockKeyDown('R', Ctrl));
            QCOMPARE(desk.Calls(), QString());
        }
    }

    void OtherKeysAreLookedUp() {
        FormDesk desk;
        Bind(desk, u"Save Current Style"_s);
        QVERIFY(!desk.Keys.ClockKeyDown(114, 0));
        QVERIFY(!desk.Keys.ClockKeyDown(113, Ctrl));
        QVERIFY(!desk.Keys.ClockKeyDown(0, 0));
        QVERIFY(desk.Keys.ClockKeyDown(113, 0));
        QCOMPARE(desk.Screen.Status.size(), 1);
        QVERIFY(desk.Screen.Status[0].contains(u"the style of"_s));
        Bind(desk, u"Make Coffee"_s);
        QVERIFY(!desk.Keys.ClockKeyDown(113, 0));
    }

    void ChoicesGoRoundAndRound_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("next");
        QTest::newRow("second") << u"Clock Shape"_s << u"Normal,Normal,Circle,Diamond"_s
                                << u"Circle"_s;
        QTest::newRow("wraps") << u"Clock Shape"_s << u"Diamond,Normal,Circle,Diamond"_s
                               << u"Normal"_s;
        QTest::newRow("no choice")
            << u"Clock Special"_s << u"Odd,None,Analogue Backward"_s << u"None"_s;
        QTest::newRow("Custom would ask")
            << u"Window Background Colour"_s << u"Random,Black,Random,Custom"_s << u"Black"_s;
        QTest::newRow("without choices")
            << u"Hour Number Style"_s << u"Roman 12"_s << u"Roman 12"_s;
        QTest::newRow("kind") << u"Clocks"_s << u"Analogue,Analogue,Digital"_s << u"Digital"_s;
        QTest::newRow("border") << u"Window Border"_s << u"Classic,No Border,3D Border,Classic"_s
                                << u"No Border"_s;
        QTest::newRow("window shape")
            << u"Window Shape"_s << u"Normal,Normal,Circle"_s << u"Circle"_s;
    }
    void ChoicesGoRoundAndRound() {
        QFETCH(QString, name);
        QFETCH(QString, raw);
        FormDesk desk;
        mduLib::PutPropertyRaw(name, raw, desk.Data.EditProperties());
        Bind(desk, name);
        const QString before = desk.InFile(name);
        desk.Calls();
        QVERIFY(desk.Keys.ClockKeyDown(113, 0));
        QTEST(desk.Value(name), "next");
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
        QCOMPARE(desk.InFile(name), before);  // it waits for the save
    }

    void TheKindIsApplied() {
        FormDesk desk;
        Bind(desk, u"Clocks"_s);
        desk.Keys.ClockKeyDown(113, 0);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Digital));
    }

    void BordersAndShapesAreApplied() {
        FormDesk desk;
        Bind(desk, u"Window Shape"_s);
        desk.Calls();
        desk.Keys.ClockKeyDown(113, 0);
        const QString calls = desk.Calls();
        QVERIFY(calls.startsWith(u"ApplyWindowBorder|ApplyTitleBar|"_s));
        QVERIFY(calls.contains(u"SetWindowShape|SetClockShape"_s));
        QVERIFY(!calls.contains(u"ApplyWindowRect"_s) && !calls.contains(u"enable"_s));
        QVERIFY(!calls.contains(u"PrepareSpeaker"_s));
    }

    void States_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("state");
        QTest::newRow("normal") << u"Window Normal"_s << 0;
        QTest::newRow("minimised") << u"Window Minimized"_s << 1;
        QTest::newRow("maximised") << u"Window Maximized"_s << 2;
    }
    void States() {
        QFETCH(QString, name);
        FormDesk desk;
        desk.Parts.ThePlacement.State = 3;
        QVERIFY(desk.Keys.RunAction(name));
        QTEST(desk.Parts.ThePlacement.State, "state");
    }

    void TheTitleBarComesAndGoes() {
        FormDesk desk;
        desk.Keys.RunAction(u"Window Title Bar"_s);
        QCOMPARE(desk.Value(u"Window Title Bar"_s), u"No"_s);
        QVERIFY(desk.Calls().contains(u"ApplyTitleBar"_s));
        desk.Keys.RunAction(u"Window Title Bar"_s);
        QCOMPARE(desk.Value(u"Window Title Bar"_s), u"Yes"_s);
    }

    void DisableWorksBothWays() {
        FormDesk desk;
        Bind(desk, u"Disable"_s);
        QVERIFY(desk.Keys.ClockKeyDown(113, 0));
        QVERIFY(!desk.Parts.TheWindow.Enabled);
        QCOMPARE(desk.InFile(u"Enable"_s), u"No"_s);
        QVERIFY(desk.Keys.ClockKeyDown(113, 0));
        QVERIFY(desk.Parts.TheWindow.Enabled);
    }

    void StylesGoRound() {
        FormDesk desk;
        desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.WriteStyle(u"B.ini"_s, u"Hour Hand Colour"_s, u"Cyan"_s);
        QStringList colours;
        for (int turn = 0; turn < 3; ++turn) {
            desk.Keys.RunAction(u"Clock Style"_s);
            colours += desk.Value(u"Hour Hand Colour"_s);
        }
        QCOMPARE(colours[2], colours[0]);
        colours.removeLast();
        colours.sort();
        QCOMPARE(colours, QStringList({u"Cyan"_s, u"Red"_s}));
    }

    void ZonesGoRound() {
        FormDesk desk;
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Hour Hand Colour"_s, u"Red"_s);
        const QString own = desk.Value(u"Hour Hand Colour"_s);
        desk.Keys.RunAction(u"Time Zone Only"_s);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 9.0F);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), own);
        desk.Keys.RunAction(u"Time Zone Only"_s);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 0.0F);
        desk.Keys.RunAction(u"Time Zone with Style"_s);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 9.0F);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
    }

    void OpensWindows_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("told");
        QTest::newRow("properties") << u"Property Window"_s << u"open window 0"_s;
        QTest::newRow("zones") << u"TimeZones Window"_s << u"open window 1"_s;
        QTest::newRow("shortcuts") << u"Shortcut Window"_s << u"open window 2"_s;
    }
    void OpensWindows() {
        QFETCH(QString, name);
        FormDesk desk;
        QVERIFY(desk.Keys.RunAction(name));
        QTEST(desk.Shell.Take().join(u'|'), "told");
    }

    void SavesAStyle() {
        FormDesk desk;
        const QString path = desk.WriteStyle(u"Mine.ini"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.Machine.Dialogs.FileAnswers = {path};
        desk.Keys.RunAction(u"Save Style As"_s);
        QCOMPARE(desk.Stored(path, u"Hour Hand Colour"_s), u"Cyan"_s);
    }

    /// The stock list names no command that is not there.
    void TheStockListIsKnown() {
        FormDesk desk;
        QVERIFY(desk.Module.ShortcutList.UpperBound() >= 20);
        desk.Machine.Dialogs.FileAnswers = {QString()};
        for (int row = 1; row <= desk.Module.ShortcutList.UpperBound(); ++row) {
            const QString name = desk.Module.ShortcutList[row].Name;
            QVERIFY2(name.isEmpty() || desk.Keys.RunAction(name), qPrintable(name));
        }
    }
};

QTEST_MAIN(tst_ClockKeys)
#include "tst_ClockKeys.moc"
