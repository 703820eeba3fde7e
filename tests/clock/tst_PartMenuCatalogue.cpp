#include <QSet>
#include <QTest>

#include "clock/PartMenuCatalogue.h"

using namespace Qt::StringLiterals;
using clockcore::ClockPart;
using clockcore::MenuSource;
using clockcore::PartMenuRow;

namespace {

/// The rows of a menu with those of its groups, each in one line: "name caption".
void AddLines(QStringList& lines, std::span<const PartMenuRow> rows, const QString& indent = {}) {
    for (const PartMenuRow& row : rows) {
        lines += indent + (row.Source == MenuSource::Separator
                               ? u"-"_s
                               : row.Name.toString() + u": "_s + row.Caption.toString());
        AddLines(lines, row.Rows, indent + u"  "_s);
    }
}

QStringList Lines(QStringView menu) {
    for (const clockcore::PartMenu& each : clockcore::PartMenuCatalogue()) {
        if (each.Name == menu) {
            QStringList lines;
            AddLines(lines, each.Rows);
            return lines;
        }
    }
    return {};
}

std::vector<PartMenuRow> AllRows(std::span<const PartMenuRow> rows) {
    std::vector<PartMenuRow> all;
    for (const PartMenuRow& row : rows) {
        all.push_back(row);
        const auto below = AllRows(row.Rows);
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

std::vector<PartMenuRow> AllRows() {
    std::vector<PartMenuRow> all;
    for (const clockcore::PartMenu& menu : clockcore::PartMenuCatalogue()) {
        const auto rows = AllRows(menu.Rows);
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

}  // namespace

class tst_PartMenuCatalogue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachPartHasItsMenu_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("name");
        QTest::newRow("hands") << ClockPart::Hands << u"HandMenu"_s;
        QTest::newRow("numbers") << ClockPart::HourNumber << u"HourMenu"_s;
        QTest::newRow("digits") << ClockPart::Digits << u"DigitalClockMenu"_s;
        QTest::newRow("local time") << ClockPart::Input << u"CalculatorInputMenu"_s;
        QTest::newRow("zone's time") << ClockPart::Output << u"CalculatorOutputMenu"_s;
        QTest::newRow("location") << ClockPart::Location << u"LocationMenu"_s;
        QTest::newRow("message") << ClockPart::Message << u"MessageMenu"_s;
        QTest::newRow("action") << ClockPart::Action << u"ActionMenu"_s;
        QTest::newRow("speaker") << ClockPart::Speaker << u"SpeakerMenu"_s;
        QTest::newRow("flag") << ClockPart::Flag << u"FlagMenu"_s;
    }

    void EachPartHasItsMenu() {
        QFETCH(ClockPart, part);
        const clockcore::PartMenu* menu = clockcore::FindPartMenu(part);
        QVERIFY(menu != nullptr);
        QTEST(menu->Name.toString(), "name");
    }

    void TheOthersAreNotInTheCatalogue() {
        for (const ClockPart part : {ClockPart::Face, ClockPart::TimerMark, ClockPart::Spot}) {
            QVERIFY(clockcore::FindPartMenu(part) == nullptr);
        }
    }

    void TheirRowsInOrder_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("hands") << u"HandMenu"_s
                               << QStringList{u"HandColours: Hand Colour"_s,
                                              u"  HourHandColours: Hour Hand"_s,
                                              u"  MinuteHandColours: Minute Hand"_s,
                                              u"  SecondHandColours: Second Hand"_s,
                                              u"  HandHeadColours: Hand Head"_s,
                                              u"HandStyles: Hand Style"_s,
                                              u"  HourHandStyles: Hour Hand"_s,
                                              u"  MinuteHandStyles: Minute Hand"_s,
                                              u"  SecondHandStyles: Second Hand"_s,
                                              u"HandLengths: Hand Length (%)"_s,
                                              u"  HourHandLengths: Hour Hand"_s,
                                              u"  MinuteHandLengths: Minute Hand"_s,
                                              u"  SecondHandLengths: Second Hand"_s,
                                              u"HandLineWidths: Hand Line Width"_s,
                                              u"  HourHandLineWidths: Hour Hand"_s,
                                              u"  MinuteHandLineWidths: Minute Hand"_s,
                                              u"  SecondHandLineWidths: Second Hand"_s};
        QTest::newRow("numbers") << u"HourMenu"_s
                                 << QStringList{u"SetTimer: Set Timer"_s,
                                                u"-"_s,
                                                u"NumberStyle: Hour Number Style"_s,
                                                u"HourColour: Hour Number Colour"_s,
                                                u"HourFont: Hour Number Font"_s,
                                                u"HourSize: Hour Number Size"_s,
                                                u"HourPosition: Hour Number Position (%)"_s,
                                                u"-"_s,
                                                u"SpotStyle: Minute Spot Style"_s,
                                                u"SpotSize: Minute Spot Size"_s,
                                                u"SpotPosition: Minute Spot Position (%)"_s};
        QTest::newRow("digits") << u"DigitalClockMenu"_s
                                << QStringList{u"DigitalFormat: Digital Clock Format"_s,
                                               u"FontColour: Number Colour"_s,
                                               u"DigitalFont: Number Font"_s,
                                               u"DigitalNumberSize: Number Size"_s,
                                               u"-"_s,
                                               u"DigitalAutoPosition: Auto Position"_s};
        QTest::newRow("local time") << u"CalculatorInputMenu"_s
                                    << QStringList{u"LocalTimeFontColour: Local Time Font Colour"_s,
                                                   u"LocalTimeFont: Local Time Font"_s,
                                                   u"LocalTimeFontSize: Local Time Font Size"_s};
        QTest::newRow("zone's time")
            << u"CalculatorOutputMenu"_s
            << QStringList{u"OutputTimer: Set Timer"_s, u"-"_s,
                           u"CalculatedTimeFontColour: Calculated Time Font Colour"_s,
                           u"CalculatedTimeFont: Calculated Time Font"_s,
                           u"CalculatedTimeFontSize: Calculated Time Font Size"_s};
        QTest::newRow("location") << u"LocationMenu"_s
                                  << QStringList{u"LocationColour: Time Zone Colour"_s,
                                                 u"LocationSize: Time Zone Label Size"_s, u"-"_s,
                                                 u"LocationAutoPosition: Auto Position"_s};
        QTest::newRow("message") << u"MessageMenu"_s
                                 << QStringList{u"HideMessage: Hide Message"_s,
                                                u"MessageFontColour: Set Message Font Colour"_s};
        QTest::newRow("action") << u"ActionMenu"_s
                                << QStringList{
                                       u"ActionTime: Action Time"_s,
                                       u"CancelAction: Cancel Action"_s,
                                       u"SetActionMsgColour: Set Action Message Font Colour"_s};
        QTest::newRow("speaker") << u"SpeakerMenu"_s
                                 << QStringList{u"HideSpeaker: Hide Speaker"_s,
                                                u"DaySPFormat: Day Speak Pattern"_s,
                                                u"HourSPFormat: Hour Speak Pattern"_s,
                                                u"MinuteSPFormat: Minute Speak Pattern"_s,
                                                u"SecondSPFormat: Second Speak Pattern"_s,
                                                u"SpeakTimerMessage: Speak Timer Message"_s,
                                                u"SpeakActionMessage: Speak Action Message"_s,
                                                u"VoiceMenu: Speaker Voice"_s,
                                                u"SpeakerVolumeMenu: Speaker Volume"_s,
                                                u"SpeakRateMenu: Speak Rate"_s,
                                                u"MusicVolumeMenu: Music Volume"_s,
                                                u"SpeakerAutoPosition: Auto Position"_s};
        QTest::newRow("flag") << u"FlagMenu"_s << QStringList{u"FlagPos: "_s};
        QTest::newRow("tray") << u"SystemTrayMenu"_s
                              << QStringList{u"ShowClock: Show Clock"_s, u"SpeakTime: Speak Time"_s,
                                             u"-"_s, u"CloseClock: Close"_s};
    }

    void TheirRowsInOrder() {
        QFETCH(QString, menu);
        QTEST(Lines(menu), "lines");
    }

    void ElevenMenusAreAll() { QCOMPARE(clockcore::PartMenuCatalogue().size(), std::size_t{11}); }

    void ANameIsGivenOnce() {
        QSet<QString> names;
        for (const PartMenuRow& row : AllRows()) {
            if (row.Source != MenuSource::Separator) {
                QVERIFY2(!names.contains(row.Name.toString()), qPrintable(row.Name.toString()));
                names.insert(row.Name.toString());
            }
        }
        QCOMPARE(names.size(), 62);
    }

    // What a row is tells what it has beside its name.
    void ARowHasWhatItsKindNeeds() {
        for (const PartMenuRow& row : AllRows()) {
            const bool plain =
                row.Source == MenuSource::Group || row.Source == MenuSource::Separator ||
                row.Source == MenuSource::Command || row.Source == MenuSource::Times ||
                row.Source == MenuSource::ActionTime;
            QCOMPARE(row.Key.isEmpty(), plain);
            QCOMPARE(row.Value.isEmpty(), row.Source != MenuSource::Value);
            QCOMPARE(row.Rows.empty(), row.Source != MenuSource::Group);
        }
    }
};

QTEST_APPLESS_MAIN(tst_PartMenuCatalogue)
#include "tst_PartMenuCatalogue.moc"
