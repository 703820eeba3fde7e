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

    void TheTimeAtATurn_data() {
        QTest::addColumn<double>("places");
        QTest::addColumn<QTime>("time");
        QTest::newRow("the first place") << 1.0 << QTime(0, 0);
        QTest::newRow("twelve o'clock itself") << 0.0 << QTime(11, 59);
        QTest::newRow("a turn and twelve o'clock") << 720.0 << QTime(11, 59);
        QTest::newRow("three") << 181.0 << QTime(3, 0);
        QTest::newRow("nearer to the next") << 181.6 << QTime(3, 1);
        QTest::newRow("nearer to this") << 181.4 << QTime(3, 0);
        QTest::newRow("nearly round") << 719.6 << QTime(11, 59);
        QTest::newRow("backwards") << -539.0 << QTime(3, 0);
        QTest::newRow("twice round") << 1621.0 << QTime(3, 0);
    }

    void TheTimeAtATurn() {
        QFETCH(double, places);
        QTEST(timers::TimeAtTurn(places / 720), "time");
    }

    void EachMinuteComesBack() {
        for (int minute = 0; minute < 720; ++minute) {
            const QTime time(minute / 60, minute % 60);
            const DialSpot at = timers::SpotOfTime(time);
            QCOMPARE(timers::TimeAtTurn((at.Place / 12.0 + at.Spot) / 60), time);
        }
    }
};

QTEST_GUILESS_MAIN(tst_DialSpot)
#include "tst_DialSpot.moc"
