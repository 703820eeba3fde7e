#include <QTest>
#include <cmath>

#include "drawing/Angles.h"

using namespace Qt::StringLiterals;
using drawing::HandTime;

/// Where a hand points, as a place on the face of a wall clock: 0 to 12 hours.
static double PlaceOf(double angle) {
    double place = (3.14159265358979 - angle) / 6.28318530717958 * 12;
    place = std::fmod(place, 12.0);
    return std::round((place < -1e-9 ? place + 12 : place) * 1000) / 1000;
}

class tst_Angles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Hands_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<QList<int>>("time");
        QTest::addColumn<double>("hour");
        QTest::addColumn<double>("minute");
        QTest::addColumn<double>("second");
        const QString none = u"None"_s;
        const QString back = u"Analogue Backward"_s;
        const QString right = u"Analogue Right Half"_s;
        const QString left = u"Analogue Left Half"_s;
        QTest::newRow("midnight") << none << QList{0, 0, 0} << 0.0 << 0.0 << 0.0;
        QTest::newRow("15:00 stands at three") << none << QList{15, 0, 0} << 3.0 << 0.0 << 0.0;
        QTest::newRow("hour moves with minutes") << none << QList{1, 30, 0} << 1.5 << 6.0 << 0.0;
        QTest::newRow("minute does not move with seconds")
            << none << QList{0, 15, 59} << 0.25 << 3.0 << 11.8;
        QTest::newRow("backward midnight") << back << QList{0, 0, 0} << 0.0 << 0.0 << 0.0;
        QTest::newRow("backward 03:00") << back << QList{3, 0, 0} << 9.0 << 0.0 << 0.0;
        QTest::newRow("backward minute 20") << back << QList{0, 20, 5} << 11.667 << 8.0 << 11.0;
        QTest::newRow("right half 09:00") << right << QList{9, 0, 0} << 3.0 << 0.0 << 0.0;
        QTest::newRow("right half 06:30 leans left of six")
            << right << QList{6, 30, 0} << 6.5 << 6.0 << 0.0;
        QTest::newRow("right half 07:00") << right << QList{7, 0, 0} << 5.0 << 0.0 << 0.0;
        QTest::newRow("right half 18:59 leans left")
            << right << QList{18, 59, 30} << 6.983 << 0.2 << 6.0;
        QTest::newRow("right half 19:00") << right << QList{19, 0, 31} << 5.0 << 0.0 << 5.8;
        QTest::newRow("right half 23:45") << right << QList{23, 45, 59} << 0.25 << 3.0 << 0.2;
        QTest::newRow("right half second 30") << right << QList{0, 0, 30} << 0.0 << 0.0 << 6.0;
        QTest::newRow("left half second 15") << left << QList{0, 0, 15} << 0.0 << 0.0 << 9.0;
        QTest::newRow("left half second 45") << left << QList{0, 0, 45} << 0.0 << 0.0 << 9.0;
        QTest::newRow("left half 03:00") << left << QList{3, 0, 0} << 9.0 << 0.0 << 0.0;
        QTest::newRow("left half 09:00") << left << QList{9, 0, 0} << 9.0 << 0.0 << 0.0;
        QTest::newRow("left half 12:00") << left << QList{12, 0, 30} << 0.0 << 0.0 << 6.0;
        QTest::newRow("an unknown text is forward")
            << u"Analogue backward"_s << QList{3, 0, 0} << 3.0 << 0.0 << 0.0;
    }

    void Hands() {
        QFETCH(QString, special);
        QFETCH(QList<int>, time);
        const drawing::HandAngles angles =
            drawing::AnglesAt({time[0], time[1], time[2]}, drawing::ReadClockSpecial(special));
        QTEST(PlaceOf(angles.Hour), "hour");
        QTEST(PlaceOf(angles.Minute), "minute");
        QTEST(PlaceOf(angles.Second), "second");
    }

    void StoredConstants() {
        const drawing::HandAngles angles = drawing::AnglesAt({0, 0, 0}, {});
        QCOMPARE(angles.Hour, 3.14159265358979);
        const drawing::HandAngles evening = drawing::AnglesAt({18, 0, 45}, {});
        QCOMPARE(evening.Hour, 3.14159265358979 - 3.14159265358979 * 18 / 6);
        QCOMPARE(evening.Second, 3.14159265358979 - 6.28318530717958 * 45 / 60);
    }
};

QTEST_APPLESS_MAIN(tst_Angles)
#include "tst_Angles.moc"
