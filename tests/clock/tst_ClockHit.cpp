#include <QTest>

#include "clock/ClockHit.h"
#include "drawing/ClockDial.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using clockcore::ClockData;
using clockcore::ClockHit;
using clockcore::ClockKind;
using clockcore::ClockPart;
using mduUILib::Control;

namespace {

void Put(Control& control, float left, float top, float width, float height) {
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    control.Visible = true;
}

/// A dial of 300 by 300 with its numbers at 75 %.
struct NumbersOnDial : FakeFace {
    drawing::ClockDial Dial{Context()};

    explicit NumbersOnDial(const QString& style) : FakeFace(300, 300) {
        Set(u"Clock CentralX(%)"_s, u"-1"_s);
        Set(u"Clock CentralY(%)"_s, u"-1"_s);
        Set(u"Hour Number Position(%)"_s, u"75"_s);
        Set(u"Minute Spot Style"_s, u"No Spots"_s);
        SetStyle(style);
    }
    void SetStyle(const QString& style) {
        Set(u"Hour Number Style"_s, style);
        Dial.DrawDialNumbers(drawing::DialParts::All);
    }
    /// The pixels that a number alone paints.
    static std::vector<QPoint> Ink(const drawing::PaintedNumber& number) {
        drawing::Surface surface(300, 300, 1);
        surface.Cls(0xFFFFFF);
        drawing::DrawFontText(surface, number.Text, number.X, number.Y, number.Font, 0);
        std::vector<QPoint> ink;
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 300; ++x) {
                if (qGray(surface.Image().pixel(x, y)) < 128) {
                    ink.emplace_back(x, y);
                }
            }
        }
        return ink;
    }
};

/// A clock of a kind with its centre in the middle of 200 by 100 pixels.
struct Centred {
    ClockData Data;
    explicit Centred(ClockKind kind, const QString& x = u"-1"_s, const QString& y = u"-1"_s) {
        Data.Tag = {kind, false};
        mduLib::PutProperty(u"Clock CentralX(%)"_s, x, Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralY(%)"_s, y, Data.EditProperties());
    }
    ClockPart At(double x, double y) const {
        return clockcore::HitAt(Data, {}, {200, 100}, {x, y}).Part;
    }
};

}  // namespace

class tst_ClockHit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyClockIsItsFace() {
        QCOMPARE(clockcore::PartAt({}, {10, 10}).Part, ClockPart::Face);
    }

    void EachPartInItsRectangle() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        Put(controls.imgAction(1), 20, 0, 10, 10);
        Put(controls.lblActionMsg(1), 40, 0, 10, 10);
        Put(controls.lblMsg(1), 60, 0, 10, 10);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Speaker);
        QCOMPARE(clockcore::PartAt(controls, {15, 5}).Part, ClockPart::Face);
        QCOMPARE(clockcore::PartAt(controls, {25, 5}).Part, ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {45, 5}).Part, ClockPart::Action);
        QCOMPARE(clockcore::PartAt(controls, {65, 5}).Part, ClockPart::Message);
        QCOMPARE(clockcore::PartAt(controls, {65, 15}).Part, ClockPart::Face);
    }

    void TheUpperOneIsMeant() {
        mduUILib::ClockControls controls;
        Put(controls.lblMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Message);
        Put(controls.lblActionMsg(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Action);
        Put(controls.imgSpeaker(1), 0, 0, 50, 50);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Speaker);
    }

    void OneOfManyHasItsNumber() {
        mduUILib::ClockControls controls;
        Put(controls.imgTimer(100), 0, 0, 10, 10);
        Put(controls.lblHour(60), 20, 0, 10, 10);
        Put(controls.imgClockNumber(1), 40, 0, 10, 10);
        Put(controls.lblDigitalNumber(6), 60, 0, 10, 10);
        QCOMPARE(clockcore::PartAt(controls, {5, 5}), (ClockHit{ClockPart::TimerMark, 100}));
        QCOMPARE(clockcore::PartAt(controls, {25, 5}), (ClockHit{ClockPart::HourNumber, 60}));
        QCOMPARE(clockcore::PartAt(controls, {45, 5}), (ClockHit{ClockPart::Spot, 1}));
        QCOMPARE(clockcore::PartAt(controls, {65, 5}), (ClockHit{ClockPart::Digits, 6}));
        QCOMPARE(clockcore::PartAt(controls, {85, 5}), (ClockHit{ClockPart::Face, 1}));
    }

    // Two spots of 10 by 10, 4 apart, and a tiny one.
    void ASpotIsHitALittleBesideIt_data() {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<ClockHit>("hit");
        QTest::newRow("half its side") << QPointF(15.5, 25) << ClockHit{ClockPart::Spot, 1};
        QTest::newRow("further") << QPointF(14.5, 25) << ClockHit{};
        QTest::newRow("below") << QPointF(25, 34.5) << ClockHit{ClockPart::Spot, 1};
        QTest::newRow("further below") << QPointF(25, 35.5) << ClockHit{};
        QTest::newRow("nearer to the first") << QPointF(31.5, 25) << ClockHit{ClockPart::Spot, 1};
        QTest::newRow("nearer to the second") << QPointF(32.5, 25) << ClockHit{ClockPart::Spot, 2};
        QTest::newRow("tiny") << QPointF(105.5, 101) << ClockHit{ClockPart::Spot, 3};
        QTest::newRow("beside a tiny one") << QPointF(106.5, 101) << ClockHit{};
        QTest::newRow("hidden") << QPointF(151, 151) << ClockHit{};
        QTest::newRow("over another part") << QPointF(17, 17) << ClockHit{ClockPart::Flag, 1};
    }

    void ASpotIsHitALittleBesideIt() {
        QFETCH(QPointF, point);
        mduUILib::ClockControls controls;
        Put(controls.imgClockNumber(1), 20, 20, 10, 10);
        Put(controls.imgClockNumber(2), 34, 20, 10, 10);
        Put(controls.imgClockNumber(3), 100, 100, 2, 2);
        Put(controls.imgClockNumber(4), 150, 150, 2, 2);
        controls.imgClockNumber(4).Visible = false;
        Put(controls.imgFlag(1), 10, 10, 8, 8);
        QTEST(clockcore::PartAt(controls, point), "hit");
    }

    // As they are painted, the lowest first.
    void EachPartCoversThoseBelow() {
        mduUILib::ClockControls controls;
        const std::pair<mduUILib::Control*, ClockPart> parts[] = {
            {&controls.imgClockNumber(7), ClockPart::Spot},
            {&controls.lblHour(5), ClockPart::HourNumber},
            {&controls.lblDigitalNumber(1), ClockPart::Digits},
            {&controls.lblTimeInput(1), ClockPart::Input},
            {&controls.lblTimeOutput(1), ClockPart::Output},
            {&controls.imgFlag(1), ClockPart::Flag},
            {&controls.lblLocation(1), ClockPart::Location},
            {&controls.imgTimer(3), ClockPart::TimerMark},
            {&controls.lblMsg(1), ClockPart::Message},
        };
        for (const auto& [control, part] : parts) {
            Put(*control, 0, 0, 50, 50);
            QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, part);
        }
    }

    void AHiddenPartIsNotMeant() {
        mduUILib::ClockControls controls;
        Put(controls.imgSpeaker(1), 0, 0, 10, 10);
        controls.imgSpeaker(1).Visible = false;
        QCOMPARE(clockcore::PartAt(controls, {5, 5}).Part, ClockPart::Face);
    }

    void APaintedNumberIsHit_data() {
        QTest::addColumn<QString>("style");
        for (const char* style : {"3D 12", "Roman 12", "True Roman 12"}) {
            QTest::newRow(style) << QString::fromLatin1(style);
        }
    }

    // Each number means its own hour, but for what may reach into the one before it.
    void APaintedNumberIsHit() {
        QFETCH(QString, style);
        const NumbersOnDial desk(style);
        QCOMPARE(desk.Dial.Numbers().size(), std::size_t{12});
        for (int hour = 1; hour <= 12; ++hour) {
            const auto ink =
                NumbersOnDial::Ink(desk.Dial.Numbers()[static_cast<std::size_t>(hour - 1)]);
            std::size_t hits = 0;
            for (const QPoint& point : ink) {
                const ClockHit hit = clockcore::PartAt(desk.Controls, point);
                hits += hit == ClockHit{ClockPart::HourNumber, hour * 5} ? 1 : 0;
            }
            QVERIFY2(hits > 20 && hits * 5 >= ink.size() * 4, qPrintable(QString::number(hour)));
        }
    }

    // Numbers that were painted once are no more where the dial has others, or is gone.
    void APaintedNumberThatHasGoneIsNot() {
        NumbersOnDial desk(u"3D 12"_s);
        const QPointF three = desk.Controls.lblHour(15).Rect().center();
        QCOMPARE(clockcore::PartAt(desk.Controls, three), (ClockHit{ClockPart::HourNumber, 15}));
        desk.SetStyle(u"3D Vertical 2"_s);
        QCOMPARE(clockcore::PartAt(desk.Controls, three), ClockHit{});
        desk.SetStyle(u"3D 12"_s);
        desk.Dial.DrawDialNumbers(drawing::DialParts::None);
        QCOMPARE(clockcore::PartAt(desk.Controls, three), ClockHit{});
    }

    void TheHandsMeetAtTheCentre_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<ClockPart>("part");
        QTest::newRow("middle") << 100.0 << 50.0 << ClockPart::Hands;
        QTest::newRow("left bound") << 80.0 << 50.0 << ClockPart::Hands;
        QTest::newRow("beyond the left") << 79.0 << 50.0 << ClockPart::Face;
        QTest::newRow("right bound") << 120.0 << 50.0 << ClockPart::Hands;
        QTest::newRow("beyond the right") << 121.0 << 50.0 << ClockPart::Face;
        QTest::newRow("top bound") << 100.0 << 30.0 << ClockPart::Hands;
        QTest::newRow("above the top") << 100.0 << 29.0 << ClockPart::Face;
        QTest::newRow("bottom bound") << 100.0 << 70.0 << ClockPart::Hands;
        QTest::newRow("below the bottom") << 100.0 << 71.0 << ClockPart::Face;
        QTest::newRow("a corner") << 120.0 << 70.0 << ClockPart::Hands;
    }

    void TheHandsMeetAtTheCentre() {
        QFETCH(double, x);
        QFETCH(double, y);
        QTEST(Centred(ClockKind::Analogue).At(x, y), "part");
    }

    // 12.5 % of 200 is 25, and 90 % of 100 is 90.
    void TheCentreIsWhereThePropertiesHaveIt() {
        const Centred clock(ClockKind::Analogue, u"12.5"_s, u"90"_s);
        QCOMPARE(clock.At(45, 90), ClockPart::Hands);
        QCOMPARE(clock.At(46, 90), ClockPart::Face);
        QCOMPARE(clock.At(25, 70), ClockPart::Hands);
        QCOMPARE(clock.At(25, 69), ClockPart::Face);
    }

    void OnlyADialHasHands() {
        QCOMPARE(Centred(ClockKind::AnalogueAndDigital).At(100, 50), ClockPart::Hands);
        for (const ClockKind kind : {ClockKind::None, ClockKind::Digital, ClockKind::Calculator,
                                     ClockKind::CalculatorInput}) {
            QCOMPARE(Centred(kind).At(100, 50), ClockPart::Face);
        }
        Centred wrapper(ClockKind::Analogue);
        wrapper.Data.Tag.IsWrapper = true;
        QCOMPARE(wrapper.At(100, 50), ClockPart::Face);
    }

    void WhatLiesOverTheHandsIsMeant() {
        const Centred clock(ClockKind::AnalogueAndDigital);
        mduUILib::ClockControls controls;
        Put(controls.lblDigitalNumber(3), 90, 40, 20, 20);
        QCOMPARE(clockcore::HitAt(clock.Data, controls, {200, 100}, {100, 50}),
                 (ClockHit{ClockPart::Digits, 3}));
        QCOMPARE(clockcore::HitAt(clock.Data, controls, {200, 100}, {111, 50}),
                 ClockHit{ClockPart::Hands});
    }

    void TheFirstOfSeveral() {
        mduUILib::ClockControls controls;
        QVERIFY(clockcore::ControlAt(controls.lblHour, {5, 5}) == nullptr);
        Put(controls.lblHour(7), 0, 0, 10, 10);
        Put(controls.lblHour(30), 5, 0, 10, 10);
        QCOMPARE(clockcore::ControlAt(controls.lblHour, {7, 5}), &controls.lblHour(7));
        QCOMPARE(clockcore::ControlAt(controls.lblHour, {12, 5}), &controls.lblHour(30));
    }

    void PlacesOfParts() {
        const Centred clock(ClockKind::AnalogueAndDigital, u"25"_s);
        mduUILib::ClockControls controls;
        Put(controls.lblDigitalNumber(1), 10, 60, 20, 10);
        Put(controls.lblDigitalNumber(3), 40, 60, 20, 10);
        Put(controls.imgFlag(1), 5, 6, 7, 8);
        Put(controls.imgAction(1), 100, 50, 10, 10);
        Put(controls.lblActionMsg(1), 115, 52, 40, 6);
        const auto place = [&](ClockPart part, int index) {
            return PlaceOfPart(clock.Data, controls, {200, 100}, {part, index});
        };
        QCOMPARE(place(ClockPart::Hands, 1), QRectF(30, 30, 40, 40));
        QCOMPARE(place(ClockPart::Digits, 3), QRectF(10, 60, 50, 10));
        QCOMPARE(place(ClockPart::Flag, 1), QRectF(5, 6, 7, 8));
        Put(controls.imgClockNumber(60), 90, 2, 6, 6);
        QCOMPARE(place(ClockPart::Spot, 60), QRectF(90, 2, 6, 6));
        QVERIFY(place(ClockPart::Spot, 59).isEmpty());
        QVERIFY(place(ClockPart::Spot, 61).isEmpty());
        QCOMPARE(place(ClockPart::Action, 1), QRectF(100, 50, 55, 10));
        QVERIFY(place(ClockPart::Face, 1).isEmpty());
        QVERIFY(place(ClockPart::Speaker, 1).isEmpty());  // hidden
        QVERIFY(place(ClockPart::TimerMark, 101).isEmpty());
        QVERIFY(place(ClockPart::TimerMark, 0).isEmpty());
        const Centred digital(ClockKind::Digital);
        QVERIFY(PlaceOfPart(digital.Data, controls, {200, 100}, {ClockPart::Hands}).isEmpty());
    }
};

QTEST_MAIN(tst_ClockHit)
#include "tst_ClockHit.moc"
