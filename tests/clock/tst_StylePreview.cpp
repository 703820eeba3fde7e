#include "clock/StylePreview.h"

#include <QTest>

#include "clock/LookDesk.h"

using namespace Qt::StringLiterals;

namespace {

struct PreviewDesk : LookDesk {
    clockcore::StylePreview Preview{Data, TheProgram, Styles, Screen, Look};

    PreviewDesk() {
        Module.Paths.StylesFolder = Machine.AppFolder() + u"/Styles/"_s;
        Parts.Log.clear();
    }
    static ClockProperties HandColour(const QString& value) {
        ClockProperties values;
        mduLib::AppendProperty({}, u"Hour Hand Colour"_s, value, values);
        return values;
    }
    /// A style with several values of its own.
    void Style(const QString& name, const QMap<QString, QString>& values) {
        ClockProperties style;
        mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ZoneDefaultFile(), style);
        for (const auto& [key, value] : values.asKeyValueRange()) {
            mduLib::PutProperty(key, value, style);
        }
        Machine.WriteFile(u"Styles/"_s + name + u".ini"_s, mduLib::PropertyFileContent(style));
    }
};

}  // namespace

class tst_StylePreview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsAStyleAndGoesBack() {
        PreviewDesk desk;
        desk.Set(u"Hour Hand Colour"_s, u"Yellow"_s);
        const ClockProperties before = desk.Data.Properties();
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}, {u"Clocks"_s, u"Digital"_s}});
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Digital));
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
        desk.Preview.End();
        QCOMPARE(desk.Data.Properties(), before);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Analogue));
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
        desk.Preview.End();  // there is nothing to take back
        QCOMPARE(desk.Calls(), QString());
    }

    void OneStyleTakesTheOthersPlace() {
        PreviewDesk desk;
        const ClockProperties before = desk.Data.Properties();
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Style(u"Elm"_s, {{u"Minute Hand Colour"_s, u"Cyan"_s}});
        const QString own = desk.Value(u"Hour Hand Colour"_s);
        desk.Preview.Show(u"Oak"_s);
        desk.Preview.Show(u"Elm"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), own);
        QCOMPARE(desk.Value(u"Minute Hand Colour"_s), u"Cyan"_s);
        desk.Preview.End();
        QCOMPARE(desk.Data.Properties(), before);
    }

    void AStyleGivesTheValuesBack() {
        PreviewDesk desk;
        const ClockProperties before = desk.Data.Properties();
        const QString own = desk.Value(u"Hour Hand Colour"_s);
        desk.Style(u"Oak"_s, {{u"Minute Hand Colour"_s, u"Cyan"_s}});
        desk.Preview.ShowProperties(desk.HandColour(u"Red"_s));
        desk.Calls();
        desk.Preview.EndStyle();  // there is none
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), own);
        desk.Preview.EndStyle();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
        desk.Preview.Show(u"Oak"_s);
        desk.Preview.ShowProperties(desk.HandColour(u"Blue"_s));
        desk.Preview.EndStyle();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Blue"_s);
        desk.Preview.Show(u"Oak"_s);
        desk.Preview.End();
        QCOMPARE(desk.Data.Properties(), before);
        desk.Preview.EndStyle();
        desk.Preview.ShowProperties(desk.HandColour(u"Red"_s));
        desk.Preview.Forget();
        desk.Preview.Show(u"Oak"_s);
        desk.Preview.EndStyle();
        QCOMPARE(desk.Data.Properties(), before);
    }

    void ShowsSeveralValues() {
        PreviewDesk desk;
        const ClockProperties before = desk.Data.Properties();
        const QString own = desk.Value(u"Hour Hand Colour"_s);
        ClockProperties values;
        mduLib::AppendProperty({}, u"Hour Hand Colour"_s, u"Red,Blue"_s, values);
        mduLib::AppendProperty({}, u"Clocks"_s, u"Digital"_s, values);
        mduLib::AppendProperty({}, u"No Such Key"_s, u"1"_s, values);
        desk.Preview.ShowProperties(values);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Digital));
        QCOMPARE(desk.Data.Properties().UpperBound(), before.UpperBound());
        ClockProperties other;
        mduLib::AppendProperty({}, u"Minute Hand Colour"_s, u"Cyan"_s, other);
        desk.Preview.ShowProperties(other);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), own);
        QCOMPARE(desk.Value(u"Minute Hand Colour"_s), u"Cyan"_s);
        QVERIFY(desk.Data.Is(clockcore::ClockKind::Analogue));
        desk.Preview.ShowProperties({});
        QCOMPARE(desk.Data.Properties(), before);
    }

    void ValuesThatAreNotOfTheFaceDrawNothing() {
        PreviewDesk desk;
        ClockProperties values;
        mduLib::AppendProperty({}, u"Stay Time"_s, u"3"_s, values);
        desk.Preview.ShowProperties(values);
        QCOMPARE(desk.Calls(), QString());
        mduLib::AppendProperty({}, u"Hour Hand Colour"_s, u"Red"_s, values);
        desk.Preview.ShowProperties(values);
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
        ClockProperties other;
        mduLib::AppendProperty({}, u"Stay Time"_s, u"3"_s, other);
        desk.Preview.ShowProperties(other);  // and the hand's own colour comes back
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));
    }

    void OnlyTheFaceChanges_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("shown");
        QTest::newRow("shape") << u"Window Shape"_s << u"Circle"_s << true;
        QTest::newRow("colour") << u"Window Background Colour"_s << u"Red"_s << true;
        QTest::newRow("flag") << u"Flag File"_s << u"x.png"_s << true;
        QTest::newRow("hour number") << u"Hour Number Size"_s << u"20"_s << true;
        QTest::newRow("name of the zone") << u"Time Zone Colour"_s << u"Red"_s << true;
        QTest::newRow("zone") << u"Time Zone Standard GMT (Minutes)"_s << u"-60"_s << false;
        QTest::newRow("daylight") << u"Time Zone Daylight Name"_s << u"Summer"_s << false;
        QTest::newRow("place") << u"Window Left"_s << u"1000"_s << false;
        QTest::newRow("size") << u"Window Width"_s << u"1000"_s << false;
        QTest::newRow("state") << u"Window State"_s << u"Maximized"_s << false;
        QTest::newRow("switch") << u"Enable"_s << u"No"_s << false;
        QTest::newRow("stay") << u"Stay Time"_s << u"3"_s << false;
        QTest::newRow("music") << u"Music File"_s << u"x.mp3"_s << false;
        QTest::newRow("hour sound") << u"Hour Sound File"_s << u"x.wav"_s << false;
        QTest::newRow("timer") << u"Timer Sound File"_s << u"x.wav"_s << false;
        QTest::newRow("message") << u"Message Colour"_s << u"Blue"_s << false;
        QTest::newRow("speaker") << u"Speaker Volume"_s << u"1"_s << false;
        QTest::newRow("pattern") << u"Speech Hour Pattern"_s << u"<LongTime>"_s << false;
    }
    void OnlyTheFaceChanges() {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(bool, shown);
        PreviewDesk desk;
        const QString own = desk.Value(key);
        QVERIFY(own != value);
        desk.Style(u"Oak"_s, {{key, value}});
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Value(key), shown ? value : own);
    }

    void VoiceTimersAndFilesAreLeftAlone() {
        PreviewDesk desk;
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Machine.SetAge(u"Styles/Oak.ini"_s, 7200);  // older than the default
        const QByteArray style = desk.Machine.ReadFile(u"Styles/Oak.ini"_s);
        const QByteArray own = desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s);
        desk.Preview.Show(u"Oak"_s);
        desk.Preview.End();
        const QString calls = desk.Calls();
        for (const QString& call : {u"PrepareSpeaker"_s, u"ReadPatterns"_s, u"LoadTimers"_s,
                                    u"SaveTimer"_s, u"ApplyWindowRect"_s, u"able"_s}) {
            QVERIFY2(!calls.contains(call), qPrintable(calls));
        }
        QCOMPARE(desk.Machine.ReadFile(u"Styles/Oak.ini"_s), style);
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s), own);
        QCOMPARE(desk.Data.Dial.LastStyle, QString());
    }

    void OthersThanPlainClocksShowNone_data() {
        QTest::addColumn<clockcore::ClockKind>("kind");
        QTest::addColumn<bool>("isWrapper");
        QTest::newRow("a time is typed") << clockcore::ClockKind::CalculatorInput << false;
        QTest::newRow("a message is typed") << clockcore::ClockKind::CalculatorMessage << false;
        QTest::newRow("wrapper") << clockcore::ClockKind::Analogue << true;
    }
    void OthersThanPlainClocksShowNone() {
        QFETCH(clockcore::ClockKind, kind);
        QFETCH(bool, isWrapper);
        PreviewDesk desk;
        const clockcore::ClockTag tag{kind, isWrapper};
        desk.Data.Tag = tag;
        const ClockProperties before = desk.Data.Properties();
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Data.Properties(), before);
        desk.Preview.End();
        QVERIFY(desk.Data.Tag == tag);
        QCOMPARE(desk.Calls(), QString());
    }

    void AStyleThatIsGoneIsTold() {
        PreviewDesk desk;
        const ClockProperties before = desk.Data.Properties();
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Screen.Status,
                 QStringList(desk.Module.Paths.StylesFolder + u"Oak.ini is not there any more"_s));
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Data.Properties(), before);
        desk.Style(u"Elm"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Preview.Show(u"Elm"_s);
        desk.Machine.WriteFile(u"Styles/Ash.ini"_s, "no style\n");
        desk.Preview.Show(u"Ash"_s);
        QVERIFY(desk.Screen.Status.last().endsWith(u"Ash.ini is no clock style"_s));
        QCOMPARE(desk.Data.Properties(), before);
    }

    void WhatOthersChangeStays() {
        PreviewDesk desk;
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Preview.Show(u"Oak"_s);
        desk.Set(u"Hour Hand Colour"_s, u"Green"_s);
        desk.Preview.End();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Green"_s);
    }

    void ASaveStoresTheClocksOwnValues() {
        PreviewDesk desk;
        desk.Preview.ShowProperties(PreviewDesk::HandColour(u"Cyan"_s));
        desk.Look.SaveCurrentStyle();
        QCOMPARE(desk.Stored(desk.Data.PropertyFileName, u"Hour Hand Colour"_s), u"4731430"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"4731430"_s);
        desk.Preview.ShowProperties(PreviewDesk::HandColour(u"Cyan"_s));
        desk.Look.SaveStyle(desk.Module.Paths.StylesFolder + u"Mine.ini"_s);
        QCOMPARE(desk.Stored(desk.Module.Paths.StylesFolder + u"Mine.ini"_s, u"Hour Hand Colour"_s),
                 u"4731430"_s);
        QVERIFY(desk.Calls().contains(u"DrawClockFace"_s));  // with its own look
    }

    /// It is asked for while the clock goes on to show the other value.
    void ThePropertyWindowGetsTheClocksOwnValues() {
        PreviewDesk desk;
        desk.Preview.ShowProperties(PreviewDesk::HandColour(u"Cyan"_s));
        desk.Calls();
        desk.Look.SetProperty();
        QCOMPARE(mduLib::GetProperty(u"Hour Hand Colour"_s, desk.Module.CurrentProperties),
                 u"4731430"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Cyan"_s);
        QCOMPARE(desk.Calls(), QString());
    }

    /// What was shown is the clock's own from then on, so that nothing goes back.
    void NewPropertiesEndIt() {
        PreviewDesk desk;
        desk.Preview.ShowProperties(PreviewDesk::HandColour(u"Cyan"_s));
        mduLib::PutProperty(u"Hour Hand Colour"_s, u"Cyan"_s, desk.Module.CurrentProperties);
        desk.Look.RefreshForm({});
        desk.Preview.End();
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Cyan"_s);
    }

    void AStyleIsPutOnTheClocksOwnLook() {
        PreviewDesk desk;
        desk.Preview.ShowProperties(PreviewDesk::HandColour(u"Cyan"_s));
        desk.Look.ApplyClockStyle(desk.Module.Paths.StylesFolder + u"no such style.ini"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"4731430"_s);
    }

    void ALookWithoutAPreviewIsSavedAsItIs() {
        LookDesk desk;
        {
            clockcore::StylePreview gone(desk.Data, desk.TheProgram, desk.Styles, desk.Screen,
                                         desk.Look);
        }
        desk.Set(u"Hour Hand Colour"_s, u"Cyan"_s);
        desk.Look.SaveCurrentStyle();
        desk.Look.SetProperty();
        QCOMPARE(desk.Stored(desk.Data.PropertyFileName, u"Hour Hand Colour"_s), u"Cyan"_s);
    }

    void AClockThatClosesIsNotDrawn() {
        PreviewDesk desk;
        desk.Style(u"Oak"_s, {{u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Preview.Show(u"Oak"_s);
        desk.Calls();
        desk.Data.State = clockcore::ClockState::Closing;
        desk.Preview.End();
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Calls(), QString());
    }

    void AWindowOfTheDesktopKeepsItsFrame() {
        PreviewDesk desk;
        desk.Screen.MDIChild = false;
        desk.Style(u"Oak"_s, {{u"Window Shape"_s, u"Circle"_s},
                              {u"Window Border"_s, u"Classic"_s},
                              {u"Hour Hand Colour"_s, u"Red"_s}});
        desk.Preview.Show(u"Oak"_s);
        QCOMPARE(desk.Value(u"Window Shape"_s), u"Normal"_s);
        QCOMPARE(desk.Value(u"Window Border"_s), u"3D Border"_s);
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);
    }
};

QTEST_MAIN(tst_StylePreview)
#include "tst_StylePreview.moc"
