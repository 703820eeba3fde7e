#include <QTest>

#include "timezones/MapBand.h"

using namespace mduTimeZones;

namespace {

constexpr double Width = 7800;  // twips: columns of 300

bool IsNear(const QPointF& one, const QPointF& other) {
    return (one - other).manhattanLength() < 0.01;
}

}  // namespace

class tst_MapBand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Hours_data();
    void Hours();
    void HasTwoDecimals();
    void ChangesOnlyOffTheHalves_data();
    void ChangesOnlyOffTheHalves();
    void NeedsAnotherHour();
    void TellsHoursLessTwelve();
    void PlacesTheWorld();
    void CutsALowMapAtThePoles();
    void CentresOnATallMap();
    void PlacesColumns();
};

void tst_MapBand::Hours_data() {
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("hours");
    QTest::newRow("180 W") << 250.0 << -12.0;
    QTest::newRow("Greenwich") << 3850.0 << 0.0;
    QTest::newRow("180 E") << 7450.0 << 12.0;
    QTest::newRow("left edge") << 0.0 << -12.83;
    QTest::newRow("right edge") << 7800.0 << 13.17;
    QTest::newRow("an hour and a half") << 4300.0 << 1.5;
}

void tst_MapBand::Hours() {
    QFETCH(double, x);
    QFETCH(double, hours);
    QVERIFY(qAbs(MapHours(x, Width) - hours) < 1e-9);
    QVERIFY(qAbs(MapX(hours, Width) - x) < 2);
}

void tst_MapBand::HasTwoDecimals() {
    // 3901 less 250 is 12.17 columns of 300.
    QVERIFY(qAbs(MapHours(3901, Width) - 0.17) < 1e-9);
}

void tst_MapBand::ChangesOnlyOffTheHalves_data() {
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("changes");
    QTest::newRow("0.00") << 3850.0 << false;
    QTest::newRow("0.04") << 3862.0 << false;
    QTest::newRow("0.06") << 3868.0 << true;
    QTest::newRow("0.30") << 3940.0 << true;
    QTest::newRow("0.46") << 3988.0 << false;
    QTest::newRow("0.54") << 4012.0 << false;
    QTest::newRow("0.56") << 4018.0 << true;
    QTest::newRow("-0.50") << 3700.0 << false;
    QTest::newRow("-0.60") << 3670.0 << true;
}

void tst_MapBand::ChangesOnlyOffTheHalves() {
    QFETCH(double, x);
    QFETCH(bool, changes);
    MapBand band;
    QCOMPARE(band.MoveTo(x, Width), changes);
    QCOMPARE(band.Hours().has_value(), changes);
}

void tst_MapBand::NeedsAnotherHour() {
    MapBand band;
    QVERIFY(band.MoveTo(3940, Width));
    QVERIFY(!band.MoveTo(3940, Width));
    QVERIFY(!band.MoveTo(3940.5, Width));  // the same two decimals
    QVERIFY(band.MoveTo(3970, Width));
    QVERIFY(!band.MoveTo(4000, Width));  // the band of before stays
    QVERIFY(qAbs(*band.G() - 0.4) < 1e-9);
}

void tst_MapBand::TellsHoursLessTwelve() {
    MapBand band;
    QVERIFY(!band.Hours());
    band.Set(-5);
    QCOMPARE(band.Hours(), 17.0);
    band.Set(14);
    QCOMPARE(band.Hours(), -2.0);
    band.Clear();
    QVERIFY(!band.Hours());
}

// 780 pixels: columns of 30, the world 720 x 360.
void tst_MapBand::PlacesTheWorld() {
    const MapLayout layout(QRectF(0, 0, 780, 360));
    const QRectF world = layout.World();
    QVERIFY(IsNear(world.topLeft(), QPointF(250 / 15.0, 0)));
    QCOMPARE(world.size(), QSizeF(720, 360));
    QVERIFY(IsNear(layout.PointOf({0, 0}), QPointF(376.667, 180)));
    QVERIFY(IsNear(layout.PointOf({90, -180}), QPointF(16.667, 0)));
    QVERIFY(IsNear(layout.PointOf({-45, 90}), QPointF(556.667, 270)));
}

void tst_MapBand::CutsALowMapAtThePoles() {
    // The middle of the map is 15 N: 150 of the world's 360 pixels from its top.
    QVERIFY(qAbs(MapLayout(QRectF(0, 0, 780, 200)).World().top() + 50) < 0.01);
    // The world ends at the bottom edge of a map that is nearly high enough.
    QVERIFY(qAbs(MapLayout(QRectF(0, 0, 780, 350)).World().top()) < 0.01);
}

void tst_MapBand::CentresOnATallMap() {
    QVERIFY(qAbs(MapLayout(QRectF(0, 0, 780, 460)).World().top() - 50) < 0.01);
}

void tst_MapBand::PlacesColumns() {
    const QRectF column = MapLayout(QRectF(0, 0, 780, 360)).Column(0);
    QVERIFY(IsNear(column.topLeft(), QPointF(361.667, 0)));
    QCOMPARE(column.size(), QSizeF(30, 360));
}

QTEST_APPLESS_MAIN(tst_MapBand)
#include "tst_MapBand.moc"
