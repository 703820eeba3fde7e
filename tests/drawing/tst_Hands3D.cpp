#include <QTest>

#include "drawing/Angles.h"
#include "drawing/HandStyles.h"
#include "drawing/Hands3D.h"

using drawing::HandStyle;
using drawing::Pi;
using drawing::Surface;

constexpr int White = 0xFFFFFF;
constexpr QRgb WhitePixel = 0xFFFFFFFF;
constexpr QRgb ShadowPixel = 0xFF646464;
constexpr double Twelve = Pi;              // u = 5 pi / 6: |cos| is 0.866, |sin| is 0.5
constexpr double AllCosine = -2 * Pi / 3;  // u = 0
constexpr double AllSine = Pi / 3;         // u = pi / 2

static Surface WhiteSurface(int side, double ratio = 1) {
    Surface surface(side, side, ratio);
    surface.Cls(White);
    return surface;
}

static QRgb PixelAt(const Surface& surface, int x, int y) {
    return surface.Image().pixel(x, y);
}

static int CountOf(const Surface& surface, QRgb colour) {
    int count = 0;
    for (int y = 0; y < surface.ScaleHeight(); ++y) {
        for (int x = 0; x < surface.ScaleWidth(); ++x) {
            count += PixelAt(surface, x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

static QRect PaintedBounds(const Surface& surface) {
    QRect bounds;
    for (int y = 0; y < surface.ScaleHeight(); ++y) {
        for (int x = 0; x < surface.ScaleWidth(); ++x) {
            if (PixelAt(surface, x, y) != WhitePixel) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

/// A hand from (100, 100), 80 long; at twelve with a width of 20 its points are (100, 20),
/// (100, 124), (84, 100) and (116, 100).
static Surface KiteOf(int toneOrColour, int width, double angle = Twelve) {
    Surface surface = WhiteSurface(201);
    drawing::Draw3D(surface, 100, 100, angle, 80, 0.3F, toneOrColour, width);
    return surface;
}

static Surface BarOf(int tone, double width, double angle = Twelve) {
    Surface surface = WhiteSurface(201);
    drawing::Draw3DSimpleLine(surface, 100, 100, angle, 80, 0.3F, tone, width);
    return surface;
}

/// A pixel well inside one of the four triangles: tip and side, tip and other side, tail and ...
static QRgb InTriangle(const Surface& surface, double angle, int triangle) {
    const double along = triangle < 2 ? 10 : -6;
    const double across = triangle % 2 == 0 ? 5 : -5;  // the side stands at angle + pi / 2
    const double x = 100 + along * std::sin(angle) + across * std::sin(angle + Pi / 2);
    const double y = 100 + along * std::cos(angle) + across * std::cos(angle + Pi / 2);
    return PixelAt(surface, qRound(x), qRound(y));
}

class tst_Hands3D : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KiteShades_data() {
        QTest::addColumn<double>("angle");
        QTest::addColumn<int>("tone");
        QTest::addColumn<QList<QRgb>>("shades");
        QTest::newRow("metal at twelve") << Twelve << 1
                                         << QList<QRgb>{qRgb(202, 201, 201), qRgb(226, 225, 225),
                                                        qRgb(186, 185, 185), qRgb(208, 207, 207)};
        QTest::newRow("metal, all cosine") << AllCosine << 1
                                           << QList<QRgb>{qRgb(121, 120, 120), qRgb(191, 190, 190),
                                                          qRgb(111, 110, 110), qRgb(176, 175, 175)};
        QTest::newRow("metal, all sine") << AllSine << 1
                                         << QList<QRgb>{qRgb(196, 195, 195), qRgb(121, 120, 120),
                                                        qRgb(181, 180, 180), qRgb(111, 110, 110)};
        // 276, 284, 249 and 257: what is above 255 is pure yellow.
        QTest::newRow("gold at twelve") << Twelve << 2
                                        << QList<QRgb>{qRgb(255, 255, 0), qRgb(255, 255, 0),
                                                       qRgb(249, 249, 0), qRgb(255, 255, 0)};
        QTest::newRow("gold, all cosine") << AllCosine << 2
                                          << QList<QRgb>{qRgb(180, 180, 0), qRgb(230, 230, 0),
                                                         qRgb(160, 160, 0), qRgb(210, 210, 0)};
        QTest::newRow("gold, all sine") << AllSine << 2
                                        << QList<QRgb>{qRgb(240, 240, 0), qRgb(170, 170, 0),
                                                       qRgb(220, 220, 0), qRgb(150, 150, 0)};
        const QRgb plain = qRgb(17, 34, 51);
        QTest::newRow("any other value is the colour")
            << Twelve << 0x332211 << QList<QRgb>{plain, plain, plain, plain};
        const QRgb three = qRgb(3, 0, 0);
        QTest::newRow("colour 3") << Twelve << 3 << QList<QRgb>{three, three, three, three};
    }

    void KiteShades() {
        QFETCH(double, angle);
        QFETCH(int, tone);
        QFETCH(QList<QRgb>, shades);
        const Surface surface = KiteOf(tone, 20, angle);
        for (int triangle = 0; triangle < 4; ++triangle) {
            QCOMPARE(InTriangle(surface, angle, triangle), shades[triangle]);
        }
    }

    void ShadesRepeatAfterAWholeTurn() {
        // Half a turn away sine and cosine change places.
        QCOMPARE(InTriangle(KiteOf(2, 20, AllCosine), AllCosine, 0), qRgb(180, 180, 0));
        QCOMPARE(InTriangle(KiteOf(2, 20, AllCosine + Pi), AllCosine + Pi, 0), qRgb(240, 240, 0));
        QCOMPARE(KiteOf(2, 20, AllCosine - drawing::TwoPi).Image(),
                 KiteOf(2, 20, AllCosine).Image());
    }

    void ShadowOfAKite() {
        const Surface surface = KiteOf(1, 20);
        QCOMPARE(PixelAt(surface, 98, 128), ShadowPixel);  // of the tail, at (100, 124)
        QCOMPARE(PixelAt(surface, 98, 129), WhitePixel);
        QCOMPARE(PixelAt(surface, 82, 104), ShadowPixel);  // of the left side
        QCOMPARE(PixelAt(surface, 81, 104), WhitePixel);
        QCOMPARE(PaintedBounds(surface), QRect(QPoint(82, 20), QPoint(116, 128)));
    }

    /// Triangles share their edges; the later one wins there.
    void LaterTrianglesCoverTheEdges() {
        const Surface surface = KiteOf(1, 20);
        QCOMPARE(PixelAt(surface, 100, 60), qRgb(226, 225, 225));   // tip and other side
        QCOMPARE(PixelAt(surface, 100, 110), qRgb(208, 207, 207));  // tail and other side
        QCOMPARE(PixelAt(surface, 90, 100), qRgb(186, 185, 185));   // tail and side
        QCOMPARE(PixelAt(surface, 110, 100), qRgb(208, 207, 207));
        QCOMPARE(PixelAt(surface, 100, 100), qRgb(208, 207, 207));
    }

    void KiteOfWidthZeroIsALine() {
        const Surface surface = KiteOf(0x332211, 0);
        QCOMPARE(CountOf(surface, qRgb(17, 34, 51)), 105);  // (100, 20) to (100, 124)
        QCOMPARE(CountOf(surface, ShadowPixel), 105);       // (98, 24) to (98, 128)
        QCOMPARE(CountOf(surface, WhitePixel), 201 * 201 - 210);
        QCOMPARE(PixelAt(surface, 100, 20), qRgb(17, 34, 51));
        QCOMPARE(PixelAt(surface, 98, 128), ShadowPixel);
    }

    void RatiosAreInSinglePrecision() {
        // 10 percent and the tail's 0.3 are a hair more than that in single precision, so that
        // sides of 2.5 and a tail of 7.5 round outward.
        const auto points = drawing::KitePoints(100, 100, Twelve, 25, 0.3F, 10);
        QCOMPARE(points[0], QPoint(100, 75));
        QCOMPARE(points[1], QPoint(100, 108));
        QCOMPARE(points[2], QPoint(97, 100));
        QCOMPARE(points[3], QPoint(103, 100));
    }

    void PointsRoundHalfToEven() {
        // A quarter has no such excess: 97.5 and 102.5.
        const auto points = drawing::KitePoints(100, 100, Twelve, 10, 0.25F, 25);
        QCOMPARE(points[1], QPoint(100, 102));
        QCOMPARE(points[2], QPoint(98, 100));
        QCOMPARE(points[3], QPoint(102, 100));
    }

    void Bars_data() {
        QTest::addColumn<double>("angle");
        QTest::addColumn<int>("tone");
        QTest::addColumn<QRgb>("lit");
        QTest::addColumn<QRgb>("dark");
        QTest::newRow("metal at twelve")
            << Twelve << 1 << qRgb(227, 227, 227) << qRgb(255, 255, 255);
        QTest::newRow("metal, all sine")
            << AllSine << 1 << qRgb(195, 195, 195) << qRgb(130, 130, 130);
        QTest::newRow("metal, all cosine, 275")
            << AllCosine << 1 << qRgb(150, 150, 150) << qRgb(255, 255, 255);
        QTest::newRow("gold at twelve") << Twelve << 2 << qRgb(255, 255, 0) << qRgb(255, 255, 0);
        QTest::newRow("gold, all sine") << AllSine << 2 << qRgb(240, 240, 0) << qRgb(170, 170, 0);
        QTest::newRow("gold, all cosine")
            << AllCosine << 2 << qRgb(180, 180, 0) << qRgb(230, 230, 0);
    }

    void Bars() {
        QFETCH(double, angle);
        QFETCH(int, tone);
        QFETCH(QRgb, lit);
        QFETCH(QRgb, dark);
        const Surface surface = BarOf(tone, 6, angle);
        const auto beside = [&](double t) {
            return PixelAt(surface,
                           qRound(100 + 30 * std::sin(angle) + t * std::sin(1.5 * Pi + angle)),
                           qRound(100 + 30 * std::cos(angle) + t * std::cos(1.5 * Pi + angle)));
        };
        QCOMPARE(beside(-3), lit);
        QCOMPARE(beside(3), dark);
    }

    void BarHasAPointedEnd() {
        const Surface surface = BarOf(1, 3);
        const QRgb lit = qRgb(227, 227, 227);
        QCOMPARE(PixelAt(surface, 97, 20), lit);  // t = -3: as long as the hand
        QCOMPARE(PixelAt(surface, 97, 19), WhitePixel);
        QCOMPARE(PixelAt(surface, 99, 18), lit);  // t about -1: longer by 2
        QCOMPARE(PixelAt(surface, 96, 60), ShadowPixel);
        QCOMPARE(PixelAt(surface, 95, 60), ShadowPixel);
        QCOMPARE(PixelAt(surface, 94, 60), WhitePixel);
    }

    void BarOfWidthZeroIsASingleLine() {
        const Surface surface = BarOf(1, 0);
        QCOMPARE(CountOf(surface, qRgb(227, 227, 227)), 105);
        QCOMPARE(CountOf(surface, ShadowPixel), 105);
        QCOMPARE(PaintedBounds(surface), QRect(QPoint(98, 20), QPoint(100, 128)));
    }

    void BarOfANegativeWidthIsNothing() { QCOMPARE(PaintedBounds(BarOf(1, -1)), QRect()); }

    void FanFromOnePoint() {
        Surface surface = WhiteSurface(8);
        drawing::FillTriangle(surface, 0, 0, 4, 2, 4, 0, 0);
        // Slopes of 0, 1/8, 1/4, 3/8 and 1/2, rounded half to even.
        const QList<QPoint> expected = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {3, 0},
                                        {3, 1}, {3, 2}, {4, 0}, {4, 1}, {4, 2}};
        QCOMPARE(CountOf(surface, 0xFF000000), 10);
        for (const QPoint& pixel : expected) {
            QCOMPARE(surface.Image().pixel(pixel), 0xFF000000);
        }
    }

    void StylesPassTheirTone_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("colour");
        QTest::addColumn<QRgb>("pixel");
        QTest::newRow("metal simple") << 3 << 0 << qRgb(227, 227, 227);
        QTest::newRow("gold simple") << 4 << 0 << qRgb(255, 255, 0);
        QTest::newRow("metal") << 5 << 0 << qRgb(202, 201, 201);
        QTest::newRow("gold") << 6 << 0 << qRgb(255, 255, 0);
        QTest::newRow("3D") << 7 << 0x332211 << qRgb(17, 34, 51);
        QTest::newRow("3D of colour 1 is metal") << 7 << 1 << qRgb(202, 201, 201);
        QTest::newRow("3D of colour 2 is gold") << 7 << 2 << qRgb(255, 255, 0);
        QTest::newRow("unknown") << 0 << 0 << WhitePixel;
        QTest::newRow("out of range") << 99 << 0 << WhitePixel;
    }

    void StylesPassTheirTone() {
        QFETCH(int, style);
        QFETCH(int, colour);
        Surface surface = WhiteSurface(201);
        drawing::DrawClockHand(surface, static_cast<HandStyle>(style), 100, 100, Twelve, 80, colour,
                               20);
        QTEST(PixelAt(surface, 95, 90), "pixel");
    }

    void ShadowGrowsWithTheRatioOnly() {
        QCOMPARE(drawing::ShadowOffset(1), QPoint(-2, 4));
        QCOMPARE(drawing::ShadowOffset(2), QPoint(-4, 8));
        Surface surface = WhiteSurface(201, 2);
        drawing::DrawClockHand(surface, HandStyle::Solid, 100, 100, Twelve, 80, 0x332211, 0);
        QCOMPARE(PaintedBounds(surface), QRect(QPoint(96, 20), QPoint(100, 132)));
    }

    void BarsAreTwiceAsWideAtARatioOfTwo() {
        Surface surface = WhiteSurface(201, 2);
        drawing::DrawClockHand(surface, HandStyle::GoldSimple, 100, 100, Twelve, 80, 0, 3);
        QCOMPARE(PixelAt(surface, 106, 60), qRgb(255, 255, 0));
        QCOMPARE(PixelAt(surface, 107, 60), WhitePixel);
    }

    void AbsurdSizesAreClipped_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("width");
        for (const int style : {3, 5}) {
            QTest::addRow("style %d, wide", style) << style << 100 << 100000;
            QTest::addRow("style %d, long", style) << style << 32767 << 6;
            QTest::addRow("style %d, both", style) << style << 32767 << 100000;
            QTest::addRow("style %d, negative", style) << style << 32767 << -100000;
        }
    }

    void AbsurdSizesAreClipped() {
        QFETCH(int, style);
        QFETCH(int, length);
        QFETCH(int, width);
        Surface surface = WhiteSurface(400);
        drawing::DrawClockHand(surface, static_cast<HandStyle>(style), 200, 200, 2.5, length, 0,
                               width);
        QCOMPARE(PaintedBounds(surface).isEmpty(), style == 3 && width < 0);
    }

    void BoundsAreTight_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("width");
        QTest::addColumn<double>("ratio");
        for (const int style : {3, 4, 5, 6, 7}) {
            for (const int width : {-3, 0, 1, 3, 12, 40}) {
                QTest::addRow("style %d width %d", style, width) << style << width << 1.0;
                QTest::addRow("style %d width %d, twice", style, width) << style << width << 2.0;
            }
        }
    }

    void BoundsAreTight() {
        QFETCH(int, style);
        QFETCH(int, width);
        QFETCH(double, ratio);
        const auto handStyle = static_cast<HandStyle>(style);
        for (int degree = 0; degree < 360; degree += 9) {
            const double angle = degree * Pi / 180;
            Surface surface(320, 320, ratio);
            surface.Cls(0xFEFDFC);
            const QImage empty = surface.Image().copy();
            drawing::DrawClockHand(surface, handStyle, 160, 160, angle, 60, 0, width);
            QRect painted;
            for (int y = 0; y < 320; ++y) {
                for (int x = 0; x < 320; ++x) {
                    if (PixelAt(surface, x, y) != empty.pixel(x, y)) {
                        painted |= QRect(x, y, 1, 1);
                    }
                }
            }
            const QRect bounds = drawing::HandBounds(handStyle, 160, 160, angle, 60, width, ratio);
            QVERIFY2(bounds.contains(painted) || painted.isEmpty(),
                     qPrintable(QString::number(degree)));
            QVERIFY(painted.isEmpty() || painted.adjusted(-2, -2, 2, 2).contains(bounds));
            QCOMPARE(painted.isEmpty(), bounds.isEmpty());
        }
    }

    void BoundsOfHalfPixels_data() {
        QTest::addColumn<double>("angle");
        QTest::addColumn<QRect>("bounds");
        QTest::newRow("down") << 0.0 << QRect(QPoint(94, 74), QPoint(106, 186));
        QTest::newRow("right") << Pi / 2 << QRect(QPoint(74, 94), QPoint(186, 106));
        QTest::newRow("up") << Pi << QRect(QPoint(94, 14), QPoint(106, 126));
        QTest::newRow("left") << 3 * Pi / 2 << QRect(QPoint(14, 94), QPoint(126, 106));
    }

    /// The sides of such a bar lie at 94.5 and 105.5, which may be rounded either way, its ends at
    /// 80 + 5.5 and at 0.3 of that from the middle.
    void BoundsOfHalfPixels() {
        QFETCH(double, angle);
        QFETCH(QRect, bounds);
        QCOMPARE(drawing::BarBounds(100, 100, angle, 80, 0.3F, 5.5), bounds);
        Surface surface = BarOf(1, 5.5, angle);
        for (int y = 0; y < 201; ++y) {
            for (int x = 0; x < 201; ++x) {
                const QRgb pixel = PixelAt(surface, x, y);
                QVERIFY(pixel == WhitePixel || pixel == ShadowPixel || bounds.contains(x, y));
            }
        }
    }

    void NoBoundsWhereNothingIsDrawn() {
        QCOMPARE(drawing::HandBounds(HandStyle::Metal, 50, 50, 1, 0, 6), QRect());
        QCOMPARE(drawing::HandBounds(HandStyle::Unknown, 50, 50, 1, 40, 6), QRect());
    }
};

QTEST_GUILESS_MAIN(tst_Hands3D)
#include "tst_Hands3D.moc"
