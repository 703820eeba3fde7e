#include <QTest>
#include <random>

#include "drawing/Hands3D.h"
#include "support/NaiveHands.h"

using drawing::Pi;
using drawing::Surface;

constexpr int White = 0xFFFFFF;

/// The shaded hands against their plain form, line by line: not one pixel may differ.
class tst_FanFill : public QObject {
    Q_OBJECT

    struct Place {
        int Side;
        QPoint Centre;
        QRect Clip;
    };

    /// In the middle, near and beyond an edge, and in small parts of the surface.
    static QList<Place> PlacesFor(int length) {
        const int side = std::min(2 * length + 40, 320);
        const int middle = side / 2;
        return {{side, {middle, middle}, {}},
                {side, {3, side - 4}, {}},
                {side, {-15, middle + 1}, {}},
                {side, {middle, middle}, QRect(middle - 9, middle + 3, 14, 11)},
                {side, {middle, middle}, QRect(middle + 2, middle - 30, 2, 40)},
                {side, {middle, middle}, QRect(1, 1, 3, 3)}};
    }

    template <typename Draw>
    static QImage Drawn(const Place& place, const Draw& draw) {
        Surface surface(place.Side, place.Side, 1.0);
        surface.Cls(White);
        surface.SetClip(place.Clip);
        draw(surface, place.Centre.x(), place.Centre.y());
        return surface.Image().copy();
    }

    static bool KiteIsEqual(const Place& place, double angle, int length, int width, int tone) {
        return Drawn(place, [&](Surface& surface, int cx, int cy) {
                   drawing::Draw3D(surface, cx, cy, angle, length, 0.3F, tone, width);
               }) == Drawn(place, [&](Surface& surface, int cx, int cy) {
                   naive::Draw3D(surface, cx, cy, angle, length, tone, width);
               });
    }

    static bool BarIsEqual(const Place& place, double angle, int length, int width, int tone) {
        return Drawn(place, [&](Surface& surface, int cx, int cy) {
                   drawing::Draw3DSimpleLine(surface, cx, cy, angle, length, 0.3F, tone, width);
               }) == Drawn(place, [&](Surface& surface, int cx, int cy) {
                   naive::Draw3DSimpleLine(surface, cx, cy, angle, length, tone, width);
               });
    }

    static double HourAngle(int minute) {
        return Pi - Pi * (minute / 60) / 6 - Pi * (minute % 60) / 360;
    }

private Q_SLOTS:
    void EveryMinuteOfADay() {
        const Place place{110, {55, 54}, {}};
        for (int minute = 0; minute < 1440; ++minute) {
            const double angle = HourAngle(minute);
            QVERIFY2(KiteIsEqual(place, angle, 50, 6, 1), qPrintable(QString::number(minute)));
            QVERIFY2(BarIsEqual(place, angle, 50, 2, 2), qPrintable(QString::number(minute)));
        }
    }

    void AnyAngle() {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> angles(-4 * Pi, Pi);
        const Place place{230, {115, 115}, {}};
        for (int i = 0; i < 720; ++i) {
            const double angle = angles(random);
            QVERIFY2(KiteIsEqual(place, angle, 94, 4, 2),
                     qPrintable(QString::number(angle, 'g', 17)));
            if (i % 4 == 0) {
                QVERIFY2(BarIsEqual(place, angle, 94, 3, 1),
                         qPrintable(QString::number(angle, 'g', 17)));
            }
        }
    }

    void EverySizeAndPlace_data() {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("width");
        for (const int length : {1, 2, 5, 20, 50, 94, 100, 106, 300}) {
            for (const int width : {0, 1, 3, 6, 12, 40, 100}) {
                QTest::addRow("%d long, %d wide", length, width) << length << width;
            }
        }
    }

    void EverySizeAndPlace() {
        QFETCH(int, length);
        QFETCH(int, width);
        // The plain form takes its time: the larger the hand, the fewer the angles.
        const int cost = (width + 1) * (length + width);
        const int stride = cost < 600 ? 2 : cost < 3000 ? 7 : 29;
        for (const Place& place : PlacesFor(length)) {
            for (int second = 0; second < 60; second += stride) {
                const double angle = Pi - drawing::TwoPi * second / 60;
                QVERIFY2(KiteIsEqual(place, angle, length, width, 1),
                         qPrintable(QString::number(second)));
                QVERIFY2(BarIsEqual(place, angle, length, width, 2),
                         qPrintable(QString::number(second)));
            }
        }
    }

    void FarBeyondTheSurface() {
        const Place place{60, {30, 30}, {}};
        for (const double angle : {Pi, 2.5, 1.0, 0.3, -1.2}) {
            QVERIFY(KiteIsEqual(place, angle, 6000, 1, 1));
            QVERIFY(BarIsEqual(place, angle, 6000, 3, 1));
        }
    }

    void AnyTriangle_data() {
        QTest::addColumn<int>("reach");
        QTest::newRow("tiny: many are flat or of one point") << 4;
        QTest::newRow("small") << 12;
        QTest::newRow("larger than the surface") << 90;
    }

    void AnyTriangle() {
        QFETCH(int, reach);
        std::mt19937 random(2);
        std::uniform_int_distribution<int> coordinates(-reach, reach);
        const auto next = [&] { return coordinates(random); };
        for (int i = 0; i < 2000; ++i) {
            const Place place{40, {20, 20}, i % 3 == 0 ? QRect(12, 15, 9, 14) : QRect()};
            const int x1 = next(), y1 = next(), x2 = next(), y2 = next(), x3 = next(), y3 = next();
            const QImage fast = Drawn(place, [&](Surface& surface, int cx, int cy) {
                drawing::FillTriangle(surface, cx + x1, cy + y1, cx + x2, cy + y2, cx + x3, cy + y3,
                                      0);
            });
            const QImage plain = Drawn(place, [&](Surface& surface, int cx, int cy) {
                naive::FillTriangle(surface, cx + x1, cy + y1, cx + x2, cy + y2, cx + x3, cy + y3,
                                    0);
            });
            QVERIFY2(fast == plain, qPrintable(QString::number(i)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_FanFill)
#include "tst_FanFill.moc"
