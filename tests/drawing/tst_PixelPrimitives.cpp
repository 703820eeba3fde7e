#include <QTest>
#include <cmath>
#include <set>

#include "drawing/PixelPrimitives.h"

using drawing::Surface;

using Pixels = std::set<std::pair<int, int>>;

constexpr int White = 0xFFFFFF;
constexpr int Red = 0x0000FF;

/// The pixels of a surface that are no longer white.
static Pixels Painted(const Surface& surface) {
    Pixels painted;
    for (int y = 0; y < surface.ScaleHeight(); ++y) {
        for (int x = 0; x < surface.ScaleWidth(); ++x) {
            if ((surface.Image().pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) {
                painted.insert({x, y});
            }
        }
    }
    return painted;
}

static Surface WhiteSurface(int width, int height) {
    Surface surface(width, height, 1.0);
    surface.Cls(White);
    return surface;
}

class tst_PixelPrimitives : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Line_data() {
        QTest::addColumn<QList<double>>("ends");
        QTest::addColumn<QList<QPoint>>("pixels");
        QTest::newRow("one point") << QList<double>{3, 4, 3, 4} << QList<QPoint>{{3, 4}};
        QTest::newRow("right") << QList<double>{1, 2, 4, 2}
                               << QList<QPoint>{{1, 2}, {2, 2}, {3, 2}, {4, 2}};
        QTest::newRow("left") << QList<double>{4, 2, 1, 2}
                              << QList<QPoint>{{4, 2}, {3, 2}, {2, 2}, {1, 2}};
        QTest::newRow("up") << QList<double>{2, 3, 2, 1} << QList<QPoint>{{2, 3}, {2, 2}, {2, 1}};
        QTest::newRow("diagonal: x drives when equal")
            << QList<double>{0, 0, 2, 2} << QList<QPoint>{{0, 0}, {1, 1}, {2, 2}};
        // y = x / 2: 0, 0.5, 1, 1.5, 2 round half to even.
        QTest::newRow("half to even")
            << QList<double>{0, 0, 4, 2} << QList<QPoint>{{0, 0}, {1, 0}, {2, 1}, {3, 2}, {4, 2}};
        QTest::newRow("steep, y drives")
            << QList<double>{0, 0, 1, 4} << QList<QPoint>{{0, 0}, {0, 1}, {0, 2}, {1, 3}, {1, 4}};
        // From 0.4 by steps of 1: 0.4, 1.4, 2.4; 3.4 would pass the end at 3.2.
        QTest::newRow("fractional ends lie short")
            << QList<double>{0.4, 1, 3.2, 1} << QList<QPoint>{{0, 1}, {1, 1}, {2, 1}};
    }

    void Line() {
        QFETCH(QList<double>, ends);
        QFETCH(QList<QPoint>, pixels);
        Surface surface = WhiteSurface(8, 8);
        drawing::DrawPixelLine(surface, ends[0], ends[1], ends[2], ends[3], 1, Red);
        Pixels expected;
        for (const QPoint& pixel : pixels) {
            expected.insert({pixel.x(), pixel.y()});
        }
        QCOMPARE(Painted(surface), expected);
        QCOMPARE(surface.Image().pixel(pixels[0]), 0xFFFF0000U);
    }

    void LineIsClipped() {
        Surface surface = WhiteSurface(4, 4);
        drawing::DrawPixelLine(surface, -10, 1, 20, 1, 1, Red);
        QCOMPARE(Painted(surface), (Pixels{{0, 1}, {1, 1}, {2, 1}, {3, 1}}));
    }

    void CircleOfRadiusOne() {
        Surface surface = WhiteSurface(9, 9);
        drawing::DrawPixelCircle(surface, 4, 4, 1, 0, Red);
        // Every direction rounds to one of the eight neighbours.
        QCOMPARE(Painted(surface),
                 (Pixels{{3, 3}, {4, 3}, {5, 3}, {3, 4}, {5, 4}, {3, 5}, {4, 5}, {5, 5}}));
    }

    void ThicknessPaintsTwoRings() {
        Surface surface = WhiteSurface(9, 9);
        drawing::DrawPixelCircle(surface, 4, 4, 1, 1, Red);
        QVERIFY(Painted(surface).contains({4, 4}));  // the ring of radius 0
        QCOMPARE(Painted(surface).size(), std::size_t(9));
    }

    void CircleTouchesItsRadius() {
        Surface surface = WhiteSurface(41, 41);
        drawing::DrawPixelCircle(surface, 20, 20, 15, 0, Red);
        const Pixels painted = Painted(surface);
        QVERIFY(painted.contains({35, 20}));
        QVERIFY(painted.contains({5, 20}));
        QVERIFY(painted.contains({20, 35}));
        QVERIFY(painted.contains({20, 5}));
        QVERIFY(!painted.contains({36, 20}));
        QVERIFY(!painted.contains({20, 20}));
    }

    /// Every ring, at even and odd centres, is what 361 rounded points give.
    void RingsAreTheirPoints() {
        for (int radius = 0; radius <= 25; ++radius) {
            for (const QPoint& centre : {QPoint(60, 60), QPoint(61, 60), QPoint(60, 61)}) {
                Surface surface = WhiteSurface(130, 130);
                drawing::DrawPixelCircle(surface, centre.x(), centre.y(), radius, 0, Red);
                Pixels expected;
                for (int d = 0; d <= 360; ++d) {
                    const double t = d * 6.28 / 360;
                    expected.insert(
                        {static_cast<int>(std::nearbyint(centre.x() + radius * std::cos(t))),
                         static_cast<int>(std::nearbyint(centre.y() + radius * std::sin(t)))});
                }
                QVERIFY2(Painted(surface) == expected, qPrintable(QString::number(radius)));
            }
        }
    }

    void PixelsOutsideAreClipped() {
        Surface surface = WhiteSurface(3, 3);
        for (const QPoint& point : {QPoint(-1, 0), QPoint(3, 0), QPoint(0, -1), QPoint(0, 3)}) {
            surface.SetPixel(point.x(), point.y(), Red);
        }
        QCOMPARE(Painted(surface), Pixels());
    }

    void ColoursHaveRedInTheLowByte() {
        Surface surface = WhiteSurface(1, 1);
        surface.SetPixel(0, 0, 0x332211);
        QCOMPARE(surface.Image().pixel(0, 0), 0xFF112233U);
    }
};

QTEST_APPLESS_MAIN(tst_PixelPrimitives)
#include "tst_PixelPrimitives.moc"
