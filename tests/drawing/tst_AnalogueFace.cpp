#include <QTest>

#include "drawing/AnalogueFace.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;
using drawing::AnalogueLook;
using drawing::HandTime;
using drawing::Surface;

constexpr int White = 0xFFFFFF;

class tst_AnalogueFace : public QObject {
    Q_OBJECT

    FakeRandom random_;

    /// The hands and their hub on white.
    void Draw(Surface& surface, const AnalogueLook& look, const HandTime& time) {
        surface.Cls(White);
        drawing::PaintHands(surface, drawing::MakeHandsFrame(surface, look, time, random_));
    }

    static AnalogueLook Look() {
        AnalogueLook look;
        look.Hour = {drawing::HandStyle::Frame, u"Blue"_s, 55, 3};
        look.Minute = {drawing::HandStyle::Line, u"Black"_s, 75, 4};
        look.Second = {drawing::HandStyle::Line, u"Red"_s, 85, 1};
        look.HeadColour = u"Green"_s;
        look.Special = drawing::ClockSpecial::None;
        return look;
    }

private Q_SLOTS:
    void ReadsTheLook() {
        ClockProperties properties;
        mduLib::PutProperty(u"Hour Hand Style"_s, u"Frame"_s, properties);
        mduLib::PutProperty(u"Hour Hand Length(%)"_s, u"62.5"_s, properties);
        mduLib::PutProperty(u"Minute Hand Line Width"_s, u"2.5"_s, properties);
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"-1"_s, properties);
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"abc"_s, properties);
        const AnalogueLook look = drawing::ReadAnalogueLook(properties);
        QCOMPARE(look.Hour.Style, drawing::HandStyle::Frame);
        QCOMPARE(look.Hour.LengthPercent, 62.5);
        QCOMPARE(look.Minute.LineWidth, 2);
        QCOMPARE(look.Second.Style, drawing::HandStyle::Unknown);
        QCOMPARE(look.Second.LengthPercent, 0.0);
        QCOMPARE(look.CentralX, -1.0);
        QCOMPARE(look.CentralY, 0.0);
        QCOMPARE(look.HeadColour, u"0"_s);
    }

    void Centre_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<QPointF>("centre");
        QTest::newRow("middle") << -1.0 << -1.0 << QPointF(100.5, 50);
        QTest::newRow("edge") << 0.0 << 0.0 << QPointF(0, 0);
        QTest::newRow("percent") << 25.0 << 100.0 << QPointF(50.25, 100);
    }

    void Centre() {
        QFETCH(double, x);
        QFETCH(double, y);
        AnalogueLook look;
        look.CentralX = x;
        look.CentralY = y;
        QTEST(drawing::ClockCentre(look, 201, 100), "centre");
    }

    void LengthIsOfTheRadius() {
        Surface surface(300, 200, 1.0);
        AnalogueLook look = Look();
        look.Hour.Style = look.Minute.Style = drawing::HandStyle::Unknown;
        look.Second.LengthPercent = 90;
        Draw(surface, look, {0, 0, 15});
        // Centre (150, 100), length 90: the tip stands at three, on (240, 100).
        QCOMPARE(surface.Image().pixel(240, 100), 0xFFFF0000U);
        QCOMPARE(surface.Image().pixel(241, 100), 0xFFFFFFFFU);
        QCOMPARE(surface.Image().pixel(200, 100), 0xFFFF0000U);
    }

    void SecondHandLiesOnTopAndHubOverAll() {
        Surface surface(200, 200, 1.0);
        AnalogueLook look = Look();
        look.Hour.Style = drawing::HandStyle::Line;
        look.Second.LineWidth = 9;
        Draw(surface, look, {0, 0, 0});
        QCOMPARE(surface.Image().pixel(100, 60), 0xFFFF0000U);
        QCOMPARE(surface.Image().pixel(100, 100), qRgb(0, 235, 0));  // the hub's first ring
    }

    void UnknownSecondHandIsLeftOut() {
        Surface with(200, 200, 1.0);
        AnalogueLook look = Look();
        look.Second = {};
        Draw(with, look, {6, 0, 15});
        QCOMPARE(with.Image().pixel(170, 100), 0xFFFFFFFFU);
    }

    void RandomHandChangesColour() {
        random_.Numbers = {0.1, 0.2, 0.3, 0.7, 0.8, 0.9};
        Surface surface(200, 200, 1.0);
        AnalogueLook look = Look();
        look.Second.Colour = u"Random"_s;
        Draw(surface, look, {0, 0, 15});
        const QRgb first = surface.Image().pixel(150, 100);
        Draw(surface, look, {0, 0, 15});
        // blue 0.1, green 0.2, red 0.3 of 255, cut; then 0.7, 0.8, 0.9
        QCOMPARE(first, qRgb(76, 51, 25));
        QCOMPARE(surface.Image().pixel(150, 100), qRgb(229, 204, 178));
    }

    /// Numbers without measure neither crash nor take their time.
    void OutrageousNumbers() {
        Surface surface(100, 100, 1.0);
        AnalogueLook look = Look();
        look.Hour.LengthPercent = 1e12;
        look.Hour.LineWidth = 2147483647;
        look.Minute.LengthPercent = -1e12;
        look.Second.LineWidth = -2147483647;
        look.CentralX = 1e12;
        look.CentralY = -1e300;
        Draw(surface, look, {1, 2, 3});
        look.CentralX = look.CentralY = -1;
        Draw(surface, look, {1, 2, 4});
        // The hour hand is wider than the surface: nothing of the background is left.
        QCOMPARE(surface.Image().pixel(2, 2), qRgb(0, 0, 255));
    }

    /// Every pixel in which two frames differ lies in their difference.
    void DifferenceHoldsEveryChangedPixel_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<double>("ratio");
        for (const QString& style : drawing::HandStyleNames()) {
            QTest::newRow(qPrintable(style)) << style << 1.0;
            QTest::newRow(qPrintable(style + u" fine"_s)) << style << 2.0;
        }
    }

    void DifferenceHoldsEveryChangedPixel() {
        QFETCH(QString, style);
        QFETCH(double, ratio);
        AnalogueLook look = Look();
        look.Hour.Style = look.Minute.Style = look.Second.Style = drawing::ReadHandStyle(style);
        Surface before(160, 150, ratio);
        Surface after(160, 150, ratio);
        for (int minute = 0; minute < 720; minute += 13) {
            const HandTime first{minute / 60, minute % 60, minute % 60};
            const HandTime second{first.Hour, first.Minute, (first.Second + 1) % 60};
            Draw(before, look, first);
            Draw(after, look, second);
            const QRect difference = drawing::HandsDifference(
                drawing::MakeHandsFrame(before, look, first, random_),
                drawing::MakeHandsFrame(after, look, second, random_), ratio);
            for (int y = 0; y < 150; ++y) {
                for (int x = 0; x < 160; ++x) {
                    QVERIFY(before.Image().pixel(x, y) == after.Image().pixel(x, y) ||
                            difference.contains(x, y));
                }
            }
        }
    }

    void EqualFramesDoNotDiffer() {
        const Surface surface(100, 100, 1.0);
        const auto frame = [&] {
            return drawing::MakeHandsFrame(surface, Look(), {1, 2, 3}, random_);
        };
        QVERIFY(drawing::HandsDifference(frame(), frame(), 1).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_AnalogueFace)
#include "tst_AnalogueFace.moc"
