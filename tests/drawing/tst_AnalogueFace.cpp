#include <QTest>

#include "drawing/AnalogueFace.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using drawing::AnalogueFace;
using drawing::AnalogueLook;
using drawing::HandTime;
using drawing::Surface;

constexpr int White = 0xFFFFFF;

/// Parts of the face that write down how they are called.
struct RecordingDial final : drawing::Dial {
    QStringList& Calls;
    bool Painted = false;
    explicit RecordingDial(QStringList& calls) : Calls(calls) {}
    void DrawDialNumbers(bool, const QString&, bool) override { Calls += u"numbers"_s; }
    void RecolourNumbers() override { Calls += u"recolour"_s; }
    bool NumbersArePainted() const override { return Painted; }
};

struct RecordingBackground final : drawing::Background {
    QStringList& Calls;
    bool HasPicture = false;
    explicit RecordingBackground(QStringList& calls) : Calls(calls) {}
    bool HasClockPicture() const override { return HasPicture; }
    void DrawBackgroundPicture() override { Calls += u"picture"_s; }
};

class tst_AnalogueFace : public QObject {
    Q_OBJECT

    QStringList calls_;
    RecordingDial dial_{calls_};
    RecordingBackground background_{calls_};
    FakeRandom random_;

    static AnalogueLook Look() {
        AnalogueLook look;
        look.Hour = {drawing::HandStyle::Frame, u"Blue"_s, 55, 3};
        look.Minute = {drawing::HandStyle::Line, u"Black"_s, 75, 4};
        look.Second = {drawing::HandStyle::Line, u"Red"_s, 85, 1};
        look.HeadColour = u"Green"_s;
        look.ClockSpecial = u"None"_s;
        return look;
    }

private Q_SLOTS:
    void init() {
        calls_.clear();
        dial_.Painted = false;
        background_.HasPicture = false;
    }

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
        AnalogueFace face(dial_, background_, random_);
        AnalogueLook look = Look();
        look.Hour.Style = look.Minute.Style = drawing::HandStyle::Unknown;
        look.Second.LengthPercent = 90;
        face.DrawAnalogueClock(surface, look, {0, 0, 15}, White);
        // Centre (150, 100), length 90: the tip stands at three, on (240, 100).
        QCOMPARE(surface.Image().pixel(240, 100), 0xFFFF0000U);
        QCOMPARE(surface.Image().pixel(241, 100), 0xFFFFFFFFU);
        QCOMPARE(surface.Image().pixel(200, 100), 0xFFFF0000U);
    }

    void SecondHandLiesOnTopAndHubOverAll() {
        Surface surface(200, 200, 1.0);
        AnalogueFace face(dial_, background_, random_);
        AnalogueLook look = Look();
        look.Hour.Style = drawing::HandStyle::Line;
        look.Second.LineWidth = 9;
        face.DrawAnalogueClock(surface, look, {0, 0, 0}, White);
        QCOMPARE(surface.Image().pixel(100, 60), 0xFFFF0000U);
        QCOMPARE(surface.Image().pixel(100, 100), qRgb(0, 235, 0));  // the hub's first ring
    }

    void UnknownSecondHandIsLeftOut() {
        Surface with(200, 200, 1.0);
        AnalogueLook look = Look();
        look.Second = {};
        AnalogueFace(dial_, background_, random_).DrawAnalogueClock(with, look, {6, 0, 15}, White);
        QCOMPARE(with.Image().pixel(170, 100), 0xFFFFFFFFU);
    }

    void OrderWithoutPicture() {
        dial_.Painted = true;
        Surface surface(50, 50, 1.0);
        AnalogueFace(dial_, background_, random_)
            .DrawAnalogueClock(surface, Look(), {1, 2, 3}, White);
        QCOMPARE(calls_, QStringList{u"numbers"_s});
    }

    void OrderWithPicture() {
        dial_.Painted = true;
        background_.HasPicture = true;
        Surface surface(50, 50, 1.0);
        AnalogueLook look = Look();
        look.ClockSpecial = u"Analogue Hour Number Random Colour"_s;
        AnalogueFace(dial_, background_, random_)
            .DrawAnalogueClock(surface, look, {1, 2, 3}, White);
        QCOMPARE(calls_, (QStringList{u"picture"_s, u"numbers"_s, u"recolour"_s}));
    }

    void RandomHandChangesColour() {
        random_.Numbers = {0.1, 0.2, 0.3, 0.7, 0.8, 0.9};
        Surface surface(200, 200, 1.0);
        AnalogueFace face(dial_, background_, random_);
        AnalogueLook look = Look();
        look.Second.Colour = u"Random"_s;
        face.DrawAnalogueClock(surface, look, {0, 0, 15}, White);
        const QRgb first = surface.Image().pixel(150, 100);
        face.DrawAnalogueClock(surface, look, {0, 0, 15}, White);
        // blue 0.1, green 0.2, red 0.3 of 255, cut; then 0.7, 0.8, 0.9
        QCOMPARE(first, qRgb(76, 51, 25));
        QCOMPARE(surface.Image().pixel(150, 100), qRgb(229, 204, 178));
    }

    /// A pass that paints only what moved leaves the same pixels as a whole one: over two minutes
    /// of seconds and over every minute of twelve hours.
    void PartialPassEqualsWholePass_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("special");
        QTest::newRow("250") << QSize(250, 250) << u"None"_s;
        QTest::newRow("wide") << QSize(177, 90) << u"None"_s;
        QTest::newRow("backward") << QSize(120, 121) << u"Analogue Backward"_s;
        QTest::newRow("right half") << QSize(99, 140) << u"Analogue Right Half"_s;
        QTest::newRow("tiny") << QSize(9, 7) << u"None"_s;
    }

    void PartialPassEqualsWholePass() {
        QFETCH(QSize, size);
        QFETCH(QString, special);
        AnalogueLook look = Look();
        look.ClockSpecial = special;
        Surface kept(size.width(), size.height(), 1.0);
        AnalogueFace face(dial_, background_, random_);
        const auto check = [&](const HandTime& time) {
            face.DrawAnalogueClock(kept, look, time, White);
            Surface whole(size.width(), size.height(), 1.0);
            AnalogueFace(dial_, background_, random_).DrawAnalogueClock(whole, look, time, White);
            QVERIFY2(kept.Image() == whole.Image(),
                     qPrintable(u"%1:%2:%3"_s.arg(time.Hour).arg(time.Minute).arg(time.Second)));
        };
        for (int second = 0; second < 120; ++second) {
            check({10, 58 + second / 60, second % 60});
        }
        for (int minute = 0; minute < 720; minute += 7) {
            check({minute / 60, minute % 60, 0});
        }
    }

    void NumbersAreRecolouredAtEveryPass() {
        Surface surface(50, 50, 1.0);
        AnalogueFace face(dial_, background_, random_);
        AnalogueLook look = Look();
        look.ClockSpecial = u"Analogue Hour Number Random Colour"_s;
        for (int pass = 0; pass < 3; ++pass) {
            face.DrawAnalogueClock(surface, look, {1, 2, 3}, White);
        }
        QCOMPARE(calls_, (QStringList{u"recolour"_s, u"recolour"_s, u"recolour"_s}));
    }

    /// Numbers without measure neither crash nor take their time.
    void OutrageousNumbers() {
        Surface surface(100, 100, 1.0);
        AnalogueFace face(dial_, background_, random_);
        AnalogueLook look = Look();
        look.Hour.LengthPercent = 1e12;
        look.Hour.LineWidth = 2147483647;
        look.Minute.LengthPercent = -1e12;
        look.Second.LineWidth = -2147483647;
        look.CentralX = 1e12;
        look.CentralY = -1e300;
        face.DrawAnalogueClock(surface, look, {1, 2, 3}, White);
        look.CentralX = look.CentralY = -1;
        face.DrawAnalogueClock(surface, look, {1, 2, 4}, White);
        // The hour hand is wider than the surface: nothing of the background is left.
        QCOMPARE(surface.Image().pixel(2, 2), qRgb(0, 0, 255));
    }

    void AnEqualTimeChangesNothing() {
        Surface surface(100, 100, 1.0);
        AnalogueFace face(dial_, background_, random_);
        QCOMPARE(face.DrawAnalogueClock(surface, Look(), {1, 2, 3}, White), QRect(0, 0, 100, 100));
        QVERIFY(face.DrawAnalogueClock(surface, Look(), {1, 2, 3}, White).isEmpty());
        face.Invalidate();
        QCOMPARE(face.DrawAnalogueClock(surface, Look(), {1, 2, 3}, White), QRect(0, 0, 100, 100));
    }
};

QTEST_GUILESS_MAIN(tst_AnalogueFace)
#include "tst_AnalogueFace.moc"
