#include <QTest>

#include "timers/DialSpot.h"

using timers::DialSpot;

class tst_DialSpot : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Spots_data() {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<int>("spot");
        QTest::addColumn<int>("place");
        QTest::newRow("midnight") << QTime(0, 0) << 0 << 1;
        QTest::newRow("noon") << QTime(12, 0) << 60 << 1;
        QTest::newRow("behind noon") << QTime(12, 59) << 64 << 12;
        QTest::newRow("one o'clock") << QTime(13, 0) << 5 << 1;
        QTest::newRow("morning") << QTime(3, 14) << 16 << 3;
        QTest::newRow("afternoon") << QTime(15, 14) << 16 << 3;
        QTest::newRow("last place of a spot") << QTime(3, 11) << 15 << 12;
        QTest::newRow("last minute") << QTime(23, 59) << 59 << 12;
    }

    void Spots() {
        QFETCH(QTime, time);
        const DialSpot at = timers::SpotOfTime(time);
        QTEST(at.Spot, "spot");
        QTEST(at.Place, "place");
    }
};

QTEST_GUILESS_MAIN(tst_DialSpot)
#include "tst_DialSpot.moc"
