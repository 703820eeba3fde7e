#include <QTest>

#include "timezones/SunShade.h"

using namespace mduTimeZones;

namespace {

QDateTime Gmt(int month, int day, int hour) {
    return QDateTime(QDate(2026, month, day), QTime(hour, 0), Qt::UTC);
}

const QDateTime JuneNoon = Gmt(6, 21, 12);

}  // namespace

class tst_SunShade : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SunStandsOver_data();
    void SunStandsOver();
    void Heights();
    void Darkens_data();
    void Darkens();
    void PaintsTheNight();
    void PolesHaveTheirSeasons();
};

void tst_SunShade::SunStandsOver_data() {
    QTest::addColumn<QDateTime>("gmt");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("June, noon") << JuneNoon << 23.4 << 0.4;
    QTest::newRow("June, midnight") << Gmt(6, 21, 0) << 23.4 << 180.4;
    QTest::newRow("December, 18:00") << Gmt(12, 21, 18) << -23.4 << -90.5;
    QTest::newRow("March, 6:00") << Gmt(3, 21, 6) << -0.4 << 91.9;
    QTest::newRow("November: the sun is early") << Gmt(11, 3, 12) << -15.9 << -4.1;
}

void tst_SunShade::SunStandsOver() {
    QFETCH(QDateTime, gmt);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const platform::ZonePlace sun = SunOver(gmt);
    QVERIFY2(qAbs(sun.Latitude - latitude) < 0.3, qPrintable(QString::number(sun.Latitude)));
    QVERIFY2(qAbs(sun.Longitude - longitude) < 0.5, qPrintable(QString::number(sun.Longitude)));
}

void tst_SunShade::Heights() {
    const platform::ZonePlace sun{20, 30};
    QVERIFY(qAbs(SunHeight(sun, {20, 30}) - 1) < 1e-9);
    QVERIFY(qAbs(SunHeight(sun, {-20, -150}) + 1) < 1e-9);
    QVERIFY(qAbs(SunHeight(sun, {-70, 30})) < 1e-9);
}

void tst_SunShade::Darkens_data() {
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("noon") << 60.0 << 0.0 << 0.0;
    QTest::newRow("horizon") << 0.0 << 0.0 << 0.0;
    QTest::newRow("dusk") << -9.0 << 0.4 << 0.6;
    QTest::newRow("end of twilight") << -18.0 << 1.0 << 1.0;
    QTest::newRow("midnight") << -60.0 << 1.0 << 1.0;
}

void tst_SunShade::Darkens() {
    QFETCH(double, degrees);
    QFETCH(double, least);
    QFETCH(double, most);
    const double darkness = Darkness(qSin(degrees * 3.14159265358979 / 180));
    QVERIFY2(darkness >= least - 1e-6 && darkness <= most + 1e-6,
             qPrintable(QString::number(darkness)));
}

void tst_SunShade::PaintsTheNight() {
    const QImage night = NightPicture(JuneNoon, QSize(360, 180), 120);
    QCOMPARE(night.size(), QSize(360, 180));
    QCOMPARE(qAlpha(night.pixel(180, 90)), 0);  // noon on the equator
    QCOMPARE(qAlpha(night.pixel(0, 90)), 120);  // midnight
    QCOMPARE(qAlpha(night.pixel(359, 90)), 120);
    const int dusk = qAlpha(night.pixel(280, 90));  // 10 degrees behind the sunset
    QVERIFY(dusk > 20 && dusk < 110);
}

void tst_SunShade::PolesHaveTheirSeasons() {
    const QImage june = NightPicture(JuneNoon, QSize(72, 36), 120);
    QCOMPARE(qAlpha(june.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(june.pixel(0, 35)), 120);
    const QImage december = NightPicture(Gmt(12, 21, 12), QSize(72, 36), 120);
    QCOMPARE(qAlpha(december.pixel(0, 0)), 120);
    QCOMPARE(qAlpha(december.pixel(0, 35)), 0);
}

QTEST_APPLESS_MAIN(tst_SunShade)
#include "tst_SunShade.moc"
