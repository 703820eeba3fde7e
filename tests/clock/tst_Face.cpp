#include <QTest>

#include "clock/Face.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;

namespace {

/// Parts that note what they are asked for.
struct NotingParts final : drawing::Dial,
                           drawing::DigitalClock,
                           drawing::CalculatorClock,
                           drawing::Background,
                           drawing::Overlays {
    QStringList Log;
    bool Painted = false;
    bool Random = false;

    void DrawDialNumbers(drawing::DialParts parts) override {
        const QStringList words = {u"no dial"_s, u"numbers"_s, u"dial"_s};
        Log += words[static_cast<int>(parts)];
    }
    void RecolourNumbers() override { Log += u"recolour"_s; }
    bool NumbersArePainted() const override { return Painted; }
    bool NumbersAreRandom() const override { return Random; }
    void DrawDigitalClock(const QString& format) override { Log += u"digits "_s + format; }
    void SetDigitalLayout() override { Log += u"digital layout"_s; }
    void HideDigitalClock() override { Log += u"no digits"_s; }
    void DrawCalculatorClock() override { Log += u"lines"_s; }
    void SetCalculatorClock(drawing::CalculatorTexts texts) override {
        Log += texts == drawing::CalculatorTexts::PresentTime ? u"calculator"_s : u"blank"_s;
    }
    void HideCalculatorClock() override { Log += u"no calculator"_s; }
    void DrawBackgroundPicture(drawing::Surface& surface) const override { surface.Cls(0xFFFFFF); }
    void ApplyTransparency() override { Log += u"transparency"_s; }
    void SetSunMoon() override { Log += u"sun"_s; }
    void SetLocationLabel() override { Log += u"name"_s; }
    void HideSunMoon() override { Log += u"no sun"_s; }
    void HideLocationLabel() override { Log += u"no name"_s; }
};

struct Desk {
    FakeFace On;
    NotingParts Parts;
    clockcore::ClockData Data;
    clockcore::Face Face{Data,
                         On.Controls,
                         On.Window,
                         {Parts, Parts, Parts, Parts, Parts},
                         On.Machine.Clock,
                         On.Machine.Random};

    explicit Desk(ClockKind kind = ClockKind::Analogue) {
        Data.Tag.Kind = kind;
        Set(u"Clock CentralX(%)"_s, u"-1"_s);
        Set(u"Clock CentralY(%)"_s, u"-1"_s);
        Set(u"Digital Clock Format"_s, u"hh:mm,hh:mm:ss"_s);
        Set(u"Second Hand Style"_s, u"Line"_s);
        Set(u"Second Hand Length(%)"_s, u"80"_s);
        Set(u"Second Hand Line Width"_s, u"3"_s);
    }

    void Set(const QString& key, const QString& value) {
        mduLib::PutPropertyRaw(key, value, Data.EditProperties());
    }
    QString Logged() { return std::exchange(Parts.Log, {}).join(u", "_s); }
    QString HandText() const { return On.Controls.lblClock(1).Caption; }
    QRegion Presented() const { return On.Window.Presented.back(); }
};

}  // namespace

/// The face, on a surface of 200 by 200 pixels, at noon.
class tst_Face : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Prepares_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, ClockKind kind, const QString& log) {
            QTest::newRow(name) << static_cast<int>(kind) << log;
        };
        row("analogue", ClockKind::Analogue, u"dial, no digits, no calculator"_s);
        row("digital", ClockKind::Digital, u"no dial, no sun, digital layout, no calculator"_s);
        row("calculator", ClockKind::Calculator,
            u"no dial, no sun, no name, no digits, calculator"_s);
        row("both", ClockKind::AnalogueAndDigital,
            u"dial, no name, digital layout, no calculator"_s);
        row("typed into", ClockKind::CalculatorInput, u"no dial, no sun, no name, no digits"_s);
        row("message", ClockKind::CalculatorMessage, u"no dial, no sun, no name, no digits"_s);
        row("none", ClockKind::None, u"no dial, no sun, no name, no digits, no calculator"_s);
    }

    void Prepares() {
        QFETCH(int, kind);
        Desk desk(static_cast<ClockKind>(kind));
        desk.Face.PrepareClockFace();
        QTEST(desk.Logged(), "log");
    }

    void Draws_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, ClockKind kind, const QString& log) {
            QTest::newRow(name) << static_cast<int>(kind) << log;
        };
        row("analogue", ClockKind::Analogue, u"sun, name"_s);
        row("digital", ClockKind::Digital, u"digits hh:mm, name"_s);
        row("calculator", ClockKind::Calculator, u"lines"_s);
        row("both", ClockKind::AnalogueAndDigital, u"sun, digits hh:mm"_s);
        row("typed into", ClockKind::CalculatorInput, {});
        row("message", ClockKind::CalculatorMessage, {});
        row("none", ClockKind::None, {});
    }

    void Draws() {
        QFETCH(int, kind);
        Desk desk(static_cast<ClockKind>(kind));
        desk.Face.ReadDigitalFormat();
        desk.Face.DrawClockFace();
        QTEST(desk.Logged(), "log");
        QCOMPARE(desk.On.Window.Presented.size(), 1U);
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
    }

    void TellsTheTimeOfItsZone() {
        Desk desk;
        desk.Data.Zone.HoursFromLocal = 5.5F;
        desk.On.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(3, 35, 7)));
        desk.Face.DrawClockFace();
        QCOMPARE(desk.HandText(), u"09:05:07"_s);
    }

    /// At twelve all hands stand upright; the second hand of 80 % reaches from the middle to 20.
    void AimsTheHands() {
        Desk desk;
        desk.Set(u"Second Hand Colour"_s, u"Red"_s);
        desk.Face.DrawClockFace();
        const QImage& picture = desk.On.Window.Drawn.Image();
        QCOMPARE(picture.pixelColor(100, 40).name(), u"#ff0000"_s);
        QVERIFY(picture.pixelColor(100, 15).name() != u"#ff0000"_s);
    }

    void ASecondMovesLittle() {
        Desk desk;
        desk.Face.DrawClockFace();
        desk.On.Machine.Clock.Advance(1000);
        desk.Face.DrawClockFace();
        const QRect changed = desk.Presented().boundingRect();
        QVERIFY(!changed.isEmpty() && changed.width() < 60 && changed.height() < 120);
        QCOMPARE(desk.HandText(), u"12:00:01"_s);
    }

    void ADialThatGoesTakesItsHandsAlong() {
        Desk desk;
        desk.Set(u"Second Hand Colour"_s, u"Red"_s);
        desk.Face.DrawClockFace();
        desk.Data.Tag.Kind = ClockKind::Digital;
        desk.Face.PrepareClockFace();
        desk.Face.DrawClockFace();
        QVERIFY(desk.On.Window.Drawn.Image().pixelColor(100, 40).name() != u"#ff0000"_s);
    }

    void IsNotPaintedUnseen() {
        Desk desk;
        desk.Face.DrawClockFace();
        desk.On.Window.Seen = false;
        desk.On.Machine.Clock.Advance(1000);
        desk.Face.DrawClockFace();
        QCOMPARE(desk.HandText(), u"12:00:01"_s);
        QCOMPARE(desk.On.Window.Presented.size(), 1U);
        desk.On.Window.Seen = true;
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
    }

    void ReadsItsLookWhenThePropertiesChange() {
        Desk desk;
        desk.Parts.Painted = true;
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Logged(), u"numbers, sun, name"_s);
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Logged(), u"sun, name"_s);
        desk.Set(u"Second Hand Colour"_s, u"Blue"_s);
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Logged(), u"numbers, sun, name"_s);
        QCOMPARE(desk.On.Window.Drawn.Image().pixelColor(100, 40).name(), u"#0000ff"_s);
    }

    void NumbersOfAnotherColourAtEachPass() {
        Desk desk;
        desk.Parts.Random = true;
        desk.Face.DrawClockFace();
        desk.Logged();
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Logged(), u"numbers, sun, name"_s);
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
        desk.Set(u"Clock Special"_s, u"Analogue Hour Number Random Colour"_s);
        desk.Face.DrawClockFace();
        QCOMPARE(desk.Logged(), u"recolour, sun, name"_s);
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
    }

    void TakesTheWindowsColour() {
        Desk desk;
        desk.On.Window.Colour = 0x123456;
        desk.Face.ApplyWindowBackground();
        QCOMPARE(desk.On.Controls.picFrame(1).ForeColor, 0x123456);
        QCOMPARE(desk.Logged(), u"transparency"_s);
    }

    void AChangeOfTheStillLayerIsShown() {
        Desk desk;
        desk.Face.DrawClockFace();
        desk.Face.ShowChanges();
        QVERIFY(desk.Presented().isEmpty());
        desk.Face.StillChanged();
        desk.Face.ShowChanges();
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
        desk.Face.ShowChanges();
        QVERIFY(desk.Presented().isEmpty());
        desk.Face.Invalidate();
        desk.Face.ShowChanges();
        QCOMPARE(desk.Presented(), QRegion(0, 0, 200, 200));
    }
};

QTEST_GUILESS_MAIN(tst_Face)
#include "tst_Face.moc"
