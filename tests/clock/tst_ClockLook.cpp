#include <QTest>

#include "clock/LookDesk.h"
#include "support/FakePropertyWindow.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockState;
using drawing::DialParts;

class tst_ClockLook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ANewKindIsShownAtOnce() {
        LookDesk desk;
        desk.Controls.lblLocation(1).Caption = u"typed"_s;
        desk.Data.Zone.CurrentName = u"UTC"_s;
        desk.Data.Tag = {ClockKind::Analogue, true};
        desk.Look.SetClocks(ClockKind::Digital);
        QCOMPARE(desk.Calls(),
                 u"ApplyWindowBackground|PrepareClockFace|ReadDigitalFormat|LayOutOverlays|"
                 "SetDigitalLayout|PlaceTimerMarks|DrawClockFace"_s);
        QCOMPARE(desk.Value(u"Clocks"_s), u"Digital"_s);
        QCOMPARE(desk.Data.Tag.Text(), u"2"_s);
        QCOMPARE(desk.Controls.lblLocation(1).Caption, u"UTC"_s);
        QCOMPARE(desk.Data.State, ClockState::RedrawRequested);
    }

    void ANewKindWaitsForTheFirstTick() {
        LookDesk desk;
        desk.Data.State = ClockState::FirstTickDue;
        desk.Look.SetClocks(ClockKind::Calculator);
        QCOMPARE(desk.Calls(),
                 u"ApplyWindowBackground|PrepareClockFace|ReadDigitalFormat|LayOutOverlays"_s);
        QCOMPARE(desk.Data.State, ClockState::FirstTickDue);
        QCOMPARE(desk.Value(u"Clocks"_s), u"Calculator"_s);
    }

    void NoKindIsNothing() {
        for (const ClockKind kind : {ClockKind::None, ClockKind::CalculatorInput}) {
            LookDesk desk;
            const QString before = desk.Value(u"Clocks"_s);
            desk.Look.SetClocks(kind);
            QCOMPARE(desk.Calls(), QString());
            QCOMPARE(desk.Value(u"Clocks"_s), before);
            QCOMPARE(desk.Data.Tag.Text(), u"1"_s);
        }
    }

    void SetBackwardStoresAndDrawsNothing() {
        LookDesk desk;
        desk.Look.SetBackward();
        QCOMPARE(desk.Value(u"Clock Special"_s), u"Analogue Backward"_s);
        QCOMPARE(desk.Calls(), QString());
    }

    void BackgroundColours_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("stored");
        QTest::newRow("a name") << u"255"_s << u"Red"_s << u"Red"_s;
        QTest::newRow("picked") << u"255"_s << u"Custom"_s << u"255"_s;
    }

    void BackgroundColours() {
        QFETCH(QString, value);
        QFETCH(QString, caption);
        LookDesk desk;
        desk.Canvas.Transparent = true;
        desk.Look.SetWindowBackColour(value, caption);
        QTEST(desk.Value(u"Window Background Colour"_s), "stored");
        QVERIFY(!desk.Canvas.Transparent);
        QCOMPARE(desk.Calls(),
                 u"ApplyWindowBackground|DrawDialNumbers|SetTransparentIconPosition|StillChanged|"
                 "DrawClockFace"_s);
        QCOMPARE(desk.Parts.TheDial.Drawn, std::vector{DialParts::Numbers});
    }

    void ANewColourShowsNoDialOnDigits() {
        LookDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Look.SetWindowBackColour({}, u"Red"_s);
        QCOMPARE(desk.Parts.TheDial.Drawn, std::vector{DialParts::None});
    }

    void FitsANewSurface() {
        LookDesk desk;
        desk.Look.FitSurface();
        QCOMPARE(desk.Calls(),
                 u"ApplySurface|DrawDialNumbers|SetSunMoon|PlaceTimerMarks|LayOutOverlays|"
                 "DrawClockFace"_s);
        QCOMPARE(desk.Parts.TheDial.Drawn, std::vector{DialParts::All});
        QCOMPARE(desk.Controls.imgAction(1).Width, 14.0F);  // 7 % of the height
        QCOMPARE(desk.Controls.imgAction(1).Height, 14.0F);
        QCOMPARE(desk.Data.State, ClockState::RedrawRequested);
    }

    void ASurfaceBeforeTheFirstTickIsNotDrawn() {
        LookDesk desk;
        desk.Data.State = ClockState::FirstTickDue;
        desk.Look.FitSurface();
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Controls.imgAction(1).Width, 14.0F);
    }

    void ThePropertyWindowGetsThePlaceAsItStands() {
        LookDesk desk;
        desk.Parts.ThePlacement.ToStore = QRectF(150, 300, 4500, 6000);
        desk.Look.SetPropertyWithPlace();
        const ClockProperties& slot = desk.Module.CurrentProperties;
        QCOMPARE(mduLib::GetProperty(u"Window Left"_s, slot), u"150"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Top"_s, slot), u"300"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Width"_s, slot), u"4500"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Height"_s, slot), u"6000"_s);
        QCOMPARE(mduLib::GetProperty(u"Window State"_s, slot), u"Normal"_s);
        QVERIFY(desk.Value(u"Window Left"_s) != u"150"_s);
        QCOMPARE(desk.Calls(), QString());
    }

    /// Its state is told, its normal place stays that of the file.
    void AMaximisedWindowHasNoPlaceOfItsOwn() {
        LookDesk desk;
        desk.Set(u"Window Left"_s, u"75"_s);
        desk.Parts.ThePlacement.State = 2;
        desk.Look.SetPropertyWithPlace();
        const ClockProperties& slot = desk.Module.CurrentProperties;
        QCOMPARE(mduLib::GetProperty(u"Window Left"_s, slot), u"75"_s);
        QCOMPARE(mduLib::GetProperty(u"Window State"_s, slot), u"Maximized"_s);
    }

    void BeforeTheFirstTickThePlaceIsThatOfTheFile() {
        LookDesk desk;
        desk.Set(u"Window Left"_s, u"75"_s);
        desk.Data.State = ClockState::FirstTickDue;
        desk.Parts.ThePlacement.ToStore = QRectF(150, 300, 4500, 6000);
        desk.Look.SetPropertyWithPlace();
        QCOMPARE(mduLib::GetProperty(u"Window Left"_s, desk.Module.CurrentProperties), u"75"_s);
    }

    void ASaveTellsThePropertyWindow() {
        LookDesk desk;
        QStringList log;
        const FakePropertyWindow window(desk.Windows, desk.Data.PropertyFileName, log);
        desk.Look.SaveCurrentStyle();
        QCOMPARE(log, QStringList{u"Properties: changed"_s});
    }

    void EnablesByTheProperty() {
        LookDesk desk;
        desk.Set(u"Enable"_s, u"No"_s);
        desk.Look.ApplyEnable();
        desk.Set(u"Enable"_s, u"Yes"_s);
        desk.Look.ApplyEnable();
        QCOMPARE(desk.Calls(), u"disable|enable"_s);
    }

    void RefreshFormAppliesAllInOrder() {
        LookDesk desk;
        desk.Module.CurrentProperties = desk.Data.Properties();
        mduLib::PutProperty(u"Clocks"_s, u"Analogue and Digital"_s, desk.Module.CurrentProperties);
        desk.Look.RefreshForm(u"/other.ini"_s);
        QCOMPARE(desk.Calls(),
                 u"PrepareSpeaker|ReadPatterns|SetClockCaption|ApplyWindowRect|ApplyWindowBorder|"
                 "ApplyTitleBar|ApplyWindowState|PrepareClockFace|SetDigitalLayout|"
                 "ApplyWindowBackground|LoadClockPicture|LoadWindowPicture|SetWindowShape|"
                 "SetClockShape|enable|LoadFlag|LayOutOverlays|DrawClockFace"_s);
        QCOMPARE(desk.Data.Tag.Text(), u"4"_s);
        QCOMPARE(desk.Data.State, ClockState::RedrawRequested);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, u"/other.ini"_s);
        desk.Look.RefreshForm({});
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, u"/other.ini"_s);
    }

    void RefreshFormLeavesTheFirstTickToCome() {
        LookDesk desk;
        desk.Data.State = ClockState::FirstTickDue;
        desk.Module.CurrentProperties = desk.Data.Properties();
        desk.Look.RefreshForm({});
        const QString calls = desk.Calls();
        QVERIFY(calls.endsWith(u"LayOutOverlays"_s));
        QVERIFY(!calls.contains(u"SetDigitalLayout"_s));
        QCOMPARE(desk.Data.State, ClockState::FirstTickDue);
    }

    void AStyleIsAppliedAndPublished() {
        LookDesk desk;
        desk.Parts.ThePlacement.Shown = true;
        desk.Parts.ThePlacement.State = 2;
        const QString style = desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s);
        desk.Look.ApplyClockStyle(style);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Magenta"_s);
        QVERIFY(desk.Module.CurrentProperties == desk.Data.Properties());
        QCOMPARE(desk.Parts.ThePlacement.State, 0);
        const QString calls = desk.Calls();
        QVERIFY(calls.startsWith(u"SetWindowState 0|PrepareSpeaker"_s));
        QVERIFY(
            calls.endsWith(u"LayOutOverlays|DrawDialNumbers|SetSunMoon|PlaceTimerMarks|"
                           "DrawClockFace"_s));
        QCOMPARE(desk.Screen.Status, QStringList());
    }

    void AHiddenClockKeepsItsState() {
        LookDesk desk;
        desk.Parts.ThePlacement.State = 2;
        desk.Look.ApplyClockStyle(desk.WriteStyle(u"A.ini"_s, u"Clocks"_s, u"Digital"_s));
        QCOMPARE(desk.Parts.ThePlacement.State, 2);
        QVERIFY(!desk.Calls().contains(u"DrawDialNumbers"_s));
    }

    void AFileThatIsNoStyleIsTold() {
        LookDesk desk;
        const ClockProperties before = desk.Data.Properties();
        const QString path = desk.Machine.WriteFile(u"Styles/N.ini"_s, "nothing=1\r\n");
        desk.Look.ApplyClockStyle(path);
        QCOMPARE(desk.Screen.Status, QStringList{path + u" is no clock style"_s});
        QVERIFY(desk.Data.Properties() == before);
        desk.Look.ApplyClockStyle(u"/nonexistent.ini"_s);
        QCOMPARE(desk.Screen.Status.size(), 1);
        QVERIFY(desk.Data.Properties() == before);
    }

    void StylesFollowEachOtherInARing() {
        LookDesk desk;
        desk.Module.Paths.StylesFolder = desk.Machine.AppFolder() + u"/Styles/"_s;
        desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.WriteStyle(u"B.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s);
        QStringList seen;
        for (int turn = 0; turn < 3; ++turn) {
            desk.Look.ApplyNextStyle();
            seen += desk.Value(u"Hour Hand Colour"_s);
        }
        const QString first = desk.Styles.Names().first() == u"A.ini"_s ? u"Cyan"_s : u"Magenta"_s;
        const QString second = first == u"Cyan"_s ? u"Magenta"_s : u"Cyan"_s;
        QCOMPARE(seen, (QStringList{second, first, second}));
    }

    void TheStyleBehindTheLast() {
        LookDesk desk;
        desk.Module.Paths.StylesFolder = desk.Machine.AppFolder() + u"/Styles/"_s;
        for (const QString& colour : {u"Cyan"_s, u"Magenta"_s, u"Yellow"_s}) {
            desk.WriteStyle(colour + u".ini"_s, u"Hour Hand Colour"_s, colour);
        }
        QStringList names = desk.Styles.Names();
        names.replaceInStrings(u".ini"_s, QString());
        desk.Look.ApplyStyleBehindLast();  // none is on it
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), names[0]);
        desk.Look.ApplyClockStyle(desk.Module.Paths.StylesFolder + names[1] + u".ini"_s);
        desk.Look.ApplyStyleBehindLast();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), names[2]);
        desk.Look.ApplyStyleBehindLast();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), names[0]);
        desk.Look.ApplyNextStyle();  // counts for itself
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), names[1]);
        desk.Look.ApplyStyleBehindLast();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), names[2]);
    }

    void WithoutStylesTheTickGoesOn() {
        LookDesk desk;
        desk.Module.Paths.StylesFolder = desk.Machine.AppFolder() + u"/none/"_s;
        desk.Look.ApplyNextStyle();
        desk.Look.ApplyStyleBehindLast();
        QCOMPARE(desk.Calls(), QString());
    }

    void SavesTheLookWithItsPlace() {
        LookDesk desk;
        desk.Parts.ThePlacement.ToStore = QRectF(150, 300, 3600, 2700);
        desk.Parts.ThePlacement.State = 2;
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.Look.SaveCurrentStyle();
        const QString& file = desk.Data.PropertyFileName;
        QCOMPARE(desk.Stored(file, u"Hour Hand Colour"_s), u"Cyan"_s);
        QCOMPARE(desk.Stored(file, u"Window State"_s), u"Maximized"_s);
        QCOMPARE(desk.Stored(file, u"Window Left"_s), u"150"_s);
        QCOMPARE(desk.Stored(file, u"Window Height"_s), u"2700"_s);
        QCOMPARE(desk.Screen.Status, QStringList{u"Saved the style of India at 12:00:00"_s});
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, file);
    }

    void SavesPlacesOfTheFaceInLogicalPixels() {
        LookDesk desk;
        desk.Screen.Ratio = 2;
        desk.Set(u"Time Zone Name Left"_s, u"7"_s);
        desk.Set(u"Time Zone Name Top"_s, u"-1"_s);
        desk.Controls.lblLocation(1).Visible = true;
        desk.Controls.lblLocation(1).Left = 50;
        desk.Controls.lblLocation(1).Top = 70;
        desk.Look.SaveCurrentStyle();
        QCOMPARE(desk.Value(u"Time Zone Name Left"_s), u"25"_s);
        QCOMPARE(desk.Value(u"Time Zone Name Top"_s), u"-1"_s);  // it finds its own
    }

    void SavesTheFontOfCaptions_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<QString>("stored");
        QTest::newRow("on a dial") << ClockKind::Analogue << true << u"Cantarell"_s;
        QTest::newRow("hidden") << ClockKind::Analogue << false << u"Tuffy"_s;
        QTest::newRow("without a dial") << ClockKind::Digital << true << u"Tuffy"_s;
    }

    void SavesTheFontOfCaptions() {
        QFETCH(ClockKind, kind);
        QFETCH(bool, visible);
        LookDesk desk;
        desk.Data.Tag = {kind, false};
        desk.Set(u"Hour Number Font"_s, u"Tuffy"_s);
        desk.Controls.lblHour(60).Font = QFont(u"Cantarell"_s);
        desk.Controls.lblHour(60).Visible = visible;
        desk.Look.SaveCurrentStyle();
        QTEST(desk.Value(u"Hour Number Font"_s), "stored");
    }

    void SavesAStyleWithoutItsZone() {
        LookDesk desk;
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        desk.Look.SaveStyle(desk.Machine.AppFolder() + u"/Mine"_s);
        QCOMPARE(desk.Stored(path, u"Time Zone Standard Name"_s), QString());
        QCOMPARE(desk.Stored(path, u"Clocks"_s), u"Analogue"_s);
        const QString nowhere = desk.Machine.AppFolder() + u"/none/Mine.ini"_s;
        desk.Look.SaveStyle(nowhere);
        QCOMPARE(desk.Screen.Status, (QStringList{u"Saved the style Mine at 12:00:00"_s,
                                                  nowhere + u" can't be written"_s}));
    }
};

QTEST_MAIN(tst_ClockLook)
#include "tst_ClockLook.moc"
