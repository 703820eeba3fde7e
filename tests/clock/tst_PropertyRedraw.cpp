#include <QTest>

#include "clock/SettingsDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::Redraw;

namespace {

QString CallsFor(Redraw what, ClockKind kind, const QString& value = {}) {
    SettingsDesk desk;
    desk.Data.Tag = {kind, false};
    desk.Calls();
    desk.Redraws.Apply(what, value);
    return desk.Calls();
}

}  // namespace

class tst_PropertyRedraw : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BringsOnePartUpToDate_data() {
        QTest::addColumn<Redraw>("what");
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<QString>("calls");
        const QString numbers = u"DrawDialNumbers|DrawClockFace"_s;
        const QString digits = u"ReadDigitalFormat|SetDigitalLayout|DrawClockFace"_s;
        const ClockKind both = ClockKind::AnalogueAndDigital;
        QTest::newRow("nothing") << Redraw::Nothing << both << QString();
        QTest::newRow("hands") << Redraw::Hands << both << u"DrawClockFace"_s;
        QTest::newRow("numbers") << Redraw::HourNumbers << both << numbers;
        QTest::newRow("numbers of a dial") << Redraw::HourNumbers << ClockKind::Analogue << numbers;
        QTest::newRow("numbers, no dial") << Redraw::HourNumbers << ClockKind::Digital << QString();
        QTest::newRow("spots") << Redraw::MinuteSpots << both << numbers;
        QTest::newRow("spots, no dial")
            << Redraw::MinuteSpots << ClockKind::Calculator << QString();
        QTest::newRow("digits") << Redraw::Digits << both << digits;
        QTest::newRow("digits alone") << Redraw::Digits << ClockKind::Digital << digits;
        QTest::newRow("no digits") << Redraw::Digits << ClockKind::Analogue << QString();
        QTest::newRow("lines") << Redraw::Calculator << ClockKind::Calculator
                               << u"ApplyCalculatorLook"_s;
        QTest::newRow("lines typed into")
            << Redraw::Calculator << ClockKind::CalculatorInput << u"ApplyCalculatorLook"_s;
        QTest::newRow("no lines") << Redraw::Calculator << both << QString();
        QTest::newRow("location") << Redraw::Location << both << u"LayOutOverlays|DrawClockFace"_s;
        QTest::newRow("flag") << Redraw::Flag << both << u"LayOutOverlays"_s;
        QTest::newRow("speaker's place") << Redraw::SpeakerPlace << both << u"SetSpeakerPosition"_s;
        QTest::newRow("patterns") << Redraw::Speech << both << u"ReadPatterns"_s;
        QTest::newRow("action") << Redraw::ActionMessage << both << QString();
    }

    void BringsOnePartUpToDate() {
        QFETCH(Redraw, what);
        QFETCH(ClockKind, kind);
        QTEST(CallsFor(what, kind), "calls");
    }

    // Numbers leave the spots as they are.
    void SpotsAreLaidOutWithTheNumbers() {
        SettingsDesk desk;
        desk.Data.Tag = {ClockKind::Analogue, false};
        desk.Redraws.Apply(Redraw::HourNumbers, {});
        desk.Redraws.Apply(Redraw::MinuteSpots, {});
        QVERIFY(desk.Parts.TheDial.Drawn ==
                (std::vector{drawing::DialParts::Numbers, drawing::DialParts::All}));
    }

    void TheMessageTakesAColour_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("colour");
        QTest::newRow("name") << u"Cyan"_s << 0xFFFF00;
        QTest::newRow("number") << u"4711"_s << 4711;
    }

    void TheMessageTakesAColour() {
        QFETCH(QString, value);
        SettingsDesk desk;
        desk.Redraws.Apply(Redraw::Message, value);
        QTEST(desk.Controls.lblMsg(1).ForeColor, "colour");
    }

    void TheVoiceHearsOfItsVolumeAndRate() {
        SettingsDesk desk;
        desk.Devices.Voices.Log.clear();
        desk.Redraws.Apply(Redraw::SpeakerVolume, u"3"_s);
        desk.Redraws.Apply(Redraw::SpeakRate, u"-4"_s);
        QCOMPARE(desk.Devices.Voices.Log, QStringList({u"volume 30"_s, u"rate -4"_s}));
        QCOMPARE(desk.Calls(), QString());
    }

    void TheSpeakerGoesByItsKey() {
        SettingsDesk desk;
        desk.Set(u"Speaker"_s, u"Yes"_s);
        desk.Redraws.Apply(Redraw::Speech, u"Yes"_s);
        QVERIFY(desk.Controls.imgSpeaker(1).Visible);
        desk.Set(u"Speaker"_s, u"No"_s);
        desk.Redraws.Apply(Redraw::Speech, u"No"_s);
        QVERIFY(!desk.Controls.imgSpeaker(1).Visible);
    }
};

QTEST_MAIN(tst_PropertyRedraw)
#include "tst_PropertyRedraw.moc"
