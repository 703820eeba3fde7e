#include "clock/FormCommands.h"

#include <QTest>

#include "clock/FormDesk.h"
#include "support/FakeHelp.h"
#include "support/FakeSettings.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;

class tst_FormCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AKindIsChosen() {
        FormDesk desk;
        desk.Run(u"ClocksMenu"_s, u"Analogue and Digital"_s, 4);
        QVERIFY(desk.Data.Is(ClockKind::AnalogueAndDigital));
        QCOMPARE(desk.Value(u"Clocks"_s), u"Analogue and Digital"_s);
    }

    void AStyleIsChosenOrAskedFor() {
        FormDesk desk;
        desk.WriteStyle(u"More.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s);
        desk.Run(u"ClockStyles"_s, u"More"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Magenta"_s);
        QCOMPARE(desk.Data.Dial.LastStyle, u"More"_s);
        desk.Machine.Dialogs.FileAnswers = {
            desk.WriteStyle(u"Other.ini"_s, u"Hour Hand Colour"_s, u"Cyan"_s)};
        desk.Run(u"ClockStyles"_s, u"More"_s, 2, true);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Cyan"_s);
        QCOMPARE(desk.Data.Dial.LastStyle, u"Other"_s);
        const QString away = desk.Machine.WriteFile(u"Away/Oak.ini"_s, "Clocks=Digital");
        desk.Machine.Dialogs.FileAnswers = {away};
        desk.Run(u"ClockStyles"_s, u"More"_s, 3, true);
        QCOMPARE(desk.Value(u"Clocks"_s), u"Digital"_s);
        QCOMPARE(desk.Data.Dial.LastStyle, QString());  // the menu could not give it back
    }

    void AStyleThatIsGoneChangesNothing() {
        FormDesk desk;
        desk.Calls();
        desk.Parts.ThePlacement.State = 2;
        desk.Run(u"ClockStyles"_s, u"Oak"_s);
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Screen.Status,
                 QStringList(desk.Module.Paths.StylesFolder + u"Oak.ini is not there any more"_s));
    }

    void StatesAndPlaces_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("call");
        QTest::newRow("normal") << u"WindowStateMenu"_s << u"Normal"_s << 1
                                << u"SetWindowState 0"_s;
        QTest::newRow("minimised")
            << u"WindowStateMenu"_s << u"Minimized"_s << 2 << u"SetWindowState 1"_s;
        QTest::newRow("maximised")
            << u"WindowStateMenu"_s << u"Maximized"_s << 3 << u"SetWindowState 2"_s;
        QTest::newRow("restored") << u"Restore"_s << u"Restore"_s << 1 << u"SetWindowState 0"_s;
        QTest::newRow("place") << u"WindowPosition"_s << u"Top Right"_s << 2
                               << u"MoveTo Top Right"_s;
        QTest::newRow("closed") << u"Close"_s << u"Close"_s << 1 << u"CloseClock"_s;
    }
    void StatesAndPlaces() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(int, index);
        FormDesk desk;
        desk.Calls();
        desk.Run(name, caption, index);
        QTEST(desk.Calls().section(u'|', 0, 0), "call");
    }

    void TogglesMaximised() {
        FormDesk desk;
        for (const int state : {2, 0, 2}) {
            desk.Commands.ToggleMaximised();
            QCOMPARE(desk.Parts.ThePlacement.State, state);
        }
        desk.Parts.ThePlacement.State = 1;
        desk.Commands.ToggleMaximised();
        QCOMPARE(desk.Parts.ThePlacement.State, 0);
    }

    void AColourIsChosenOrPicked() {
        FormDesk desk;
        desk.Run(u"ClockColourMenu"_s, u"Transparent"_s, 9);
        QCOMPARE(desk.Value(u"Window Background Colour"_s), u"Transparent"_s);
        desk.Machine.Dialogs.ColourAnswers = {4711};
        desk.Run(u"ClockColourMenu"_s, u"Custom"_s, 10);
        QCOMPARE(desk.Value(u"Window Background Colour"_s), u"4711"_s);
    }

    void AZoneIsTakenOrLookedFor() {
        FormDesk desk;
        desk.WriteZone(u"Tokyo Standard Time"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.Run(u"CountryTimeZone"_s, u"Tokyo Standard Time"_s, 2);
        QCOMPARE(desk.Data.Zone.HoursFromLocal, 9.0F);
        QVERIFY(desk.Value(u"Hour Hand Colour"_s) != u"Red"_s);
        desk.Run(u"CountryTimeZone"_s, u"More"_s, 3, true);
        QCOMPARE(desk.Shell.Take(), QStringList(u"open window 1"_s));
    }

    void WindowsAreOpenedByTheShell_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("told");
        QTest::newRow("zones") << u"ChooseTimeZones"_s << u"open window 1"_s;
        QTest::newRow("properties") << u"PropertyMenu"_s << u"open window 0"_s;
        QTest::newRow("about") << u"About"_s << u"open window 3"_s;
        QTest::newRow("help") << u"Help"_s << u"clock help"_s;
    }
    void WindowsAreOpenedByTheShell() {
        QFETCH(QString, name);
        FormDesk desk;
        desk.Run(name);
        QTEST(desk.Shell.Take().join(u'|'), "told");
    }

    void ThePropertyWindowFindsTheClocksProperties() {
        FormDesk desk;
        desk.Module.CurrentProperties.Reset();
        desk.Module.Paths.CurrentPropertyFile = u"/another.ini"_s;
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.Run(u"PropertyMenu"_s);
        QCOMPARE(desk.Module.CurrentProperties, desk.Data.Properties());
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Data.PropertyFileName);
    }

    void WithoutAShellItAnswersItself() {
        FormDesk desk;
        desk.StandAlone();
        desk.Run(u"Help"_s);
        QCOMPARE(desk.Machine.Help.Pages.size(), 1U);
        QCOMPARE(desk.Machine.Help.Pages[0].Path,
                 desk.Machine.AppFolder() + u"/Help/Tempolark.chm"_s);
        QCOMPARE(desk.Machine.Help.Pages[0].ContextNumber, 600);
        desk.Machine.Dialogs.BoxAnswers = {1, 1, 1};
        desk.Run(u"About"_s);
        desk.Run(u"PropertyMenu"_s);
        desk.Machine.Help.Refusal = u"no help"_s;
        desk.Run(u"Help"_s);
        const std::vector<FakeDialogs::Box> boxes = desk.TakeBoxes();
        QCOMPARE(boxes.size(), 3U);
        QCOMPARE(boxes[0].Title, u"About"_s);
        QVERIFY(boxes[0].Text.startsWith(u"Tempolark "_s));
        QVERIFY(boxes[1].Text.contains(u"Tempolark Central"_s));
        QCOMPARE(boxes[2].Text, u"no help"_s);
    }

    void ShowsAndSpeaksTheZone() {
        FormDesk desk;
        desk.Machine.Dialogs.BoxAnswers = {1, 1};
        desk.Set(u"Speak Time Zone Details"_s, u"No"_s);
        desk.Run(u"ShowTimeZoneDetails"_s);
        QVERIFY(desk.Devices.Voices.Log.filter(u"local time"_s, Qt::CaseInsensitive).isEmpty());
        desk.Set(u"Speak Time Zone Details"_s, u"Yes"_s);
        desk.Run(u"ShowTimeZoneDetails"_s);
        const std::vector<FakeDialogs::Box> boxes = desk.TakeBoxes();
        QCOMPARE(boxes[1].Title, u"Timezone Info"_s);
        QVERIFY(boxes[1].Text.contains(u"is the same as Local Time"_s));
        QVERIFY(!desk.Devices.Voices.Log.filter(u"local time"_s, Qt::CaseInsensitive).isEmpty());
    }

    void AChildStartsWithTheShell() {
        FormDesk desk;
        desk.Run(u"AutoStart"_s);
        QCOMPARE(desk.Shell.Take(), QStringList(u"auto start UTC 1"_s));
        mduLib::PutPropertyRaw(u"UTC"_s, u"UTC"_s, desk.Module.AutoStartList);
        desk.Run(u"AutoStart"_s);
        QCOMPARE(desk.Shell.Take(), QStringList(u"auto start UTC 0"_s));
    }

    void AClockAloneStartsWithTheLogon() {
        const QString key = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
        FormDesk desk;
        desk.StandAlone();
        desk.Run(u"AutoStart"_s);
        const QString line = desk.Machine.Settings.Value(key, u"Tempolark UTC"_s).toString();
        QVERIFY2(line.endsWith(u"\\Tempolark.exe UTC"_s), qPrintable(line));
        desk.Run(u"AutoStart"_s);
        QCOMPARE(desk.Machine.Settings.Value(key, u"Tempolark UTC"_s).toString(), QString());
    }

    void BecomesTheScreenSaver() {
        FormDesk desk;
        desk.Run(u"ScreenSaverTime"_s, u"20"_s, 2);
        QCOMPARE(
            desk.Machine.Settings.Value(u"Control Panel\\Desktop"_s, u"SCRNSAVE.EXE"_s).toString(),
            desk.Module.Paths.AppEXEName());
        QCOMPARE(desk.Screen.Status, QStringList());
        desk.Machine.Settings.Unwritable = true;
        desk.Run(u"ScreenSaverTime"_s, u"Disabled"_s);
        QCOMPARE(desk.Screen.Status, QStringList(u"The setting can't be saved"_s));
    }

    void AHiddenPartIsShownAndSaved() {
        FormDesk desk;
        desk.Set(u"Minute Spot Style"_s, u"No Spots"_s);
        desk.Set(u"Minute Spot Size"_s, u"0"_s);
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);  // is tried out, and not saved along with it
        desk.Calls();
        desk.Run(u"HiddenPart"_s, u"Minute Spots"_s);
        QCOMPARE(desk.InFile(u"Minute Spot Style"_s), u"Spot 60"_s);
        QCOMPARE(desk.InFile(u"Minute Spot Size"_s), u"-1"_s);
        QVERIFY(desk.InFile(u"Hour Hand Colour"_s) != u"Cyan"_s);
        QVERIFY(desk.Calls().startsWith(u"DrawDialNumbers|DrawClockFace|SaveTimer"_s));
        QCOMPARE(desk.Screen.Status.last(), u"Saved the settings of India at 12:00:00"_s);
        desk.Screen.Status.clear();
        desk.Run(u"HiddenPart"_s, u"Minute Spots"_s);  // has been shown meanwhile
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    void AsksBeforeItDisables() {
        FormDesk desk;
        desk.Machine.Dialogs.BoxAnswers = {7, 6};
        desk.Run(u"EnableActive"_s);
        QVERIFY(desk.Parts.TheWindow.Enabled);
        desk.Run(u"EnableActive"_s);
        QVERIFY(!desk.Parts.TheWindow.Enabled);
        QCOMPARE(desk.InFile(u"Enable"_s), u"No"_s);
        const std::vector<FakeDialogs::Box> boxes = desk.TakeBoxes();
        QCOMPARE(boxes[0].Text, u"Do you want to disable the clock?"_s);
        QCOMPARE(boxes[0].Title, u"Set Clock Disabled"_s);
        QCOMPARE(boxes[0].Flags, 36);
        desk.Run(u"EnableActive"_s);  // no question to enable it
        QVERIFY(desk.Parts.TheWindow.Enabled);
        QCOMPARE(desk.InFile(u"Enable"_s), u"Yes"_s);
    }

    void SavesTheStyle() {
        FormDesk desk;
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.Run(u"SaveStyle"_s);
        QCOMPARE(desk.InFile(u"Hour Hand Colour"_s), u"Cyan"_s);
        const QString path = desk.Module.Paths.StylesFolder + u"Mine"_s;
        desk.WriteStyle(u"Other.ini"_s, u"Hour Hand Colour"_s, u"Red"_s);
        desk.Machine.Dialogs.FileAnswers = {path};
        desk.Run(u"SaveStyleAs"_s);
        QCOMPARE(desk.Stored(path + u".ini"_s, u"Hour Hand Colour"_s), u"Cyan"_s);
    }

    void AClosingClockDoesNothing() {
        FormDesk desk;
        desk.Data.State = clockcore::ClockState::Closing;
        desk.Calls();
        desk.Run(u"ClocksMenu"_s, u"Digital"_s, 2);
        desk.Run(u"Close"_s);
        desk.Commands.SetEnabled(false);
        QCOMPARE(desk.Calls(), QString());
        QVERIFY(desk.Data.Is(ClockKind::Analogue));
        QCOMPARE(desk.InFile(u"Enable"_s), u"Yes"_s);
    }

    void AnUnknownEntryDoesNothing() {
        FormDesk desk;
        desk.Calls();
        desk.Run(u"FormPopup"_s);
        QCOMPARE(desk.Calls(), QString());
    }
};

QTEST_MAIN(tst_FormCommands)
#include "tst_FormCommands.moc"
