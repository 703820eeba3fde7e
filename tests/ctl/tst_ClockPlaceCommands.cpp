#include <cmath>

#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_ClockPlaceCommands : public QObject {
    Q_OBJECT

    static CompanionAnswer Mark(const QByteArray& kind, const QString& time) {
        const Companion companion;
        companion.Write(u"clock.ini"_s, "Clocks=" + kind +
                                            "\r\nMinute Spot Position(%)=95\r\n"
                                            "Clock CentralX(%)=-1\r\nClock CentralY(%)=-1\r\n");
        return companion.Run(
            {u"clock"_s, u"mark"_s, u"clock.ini"_s, time, u"--size"_s, u"300x300"_s});
    }

    static bool IsNear(const QJsonValue& value, double expected) {
        return std::abs(value.toDouble() - expected) < 0.0001;
    }

private Q_SLOTS:
    void Drops_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("dial") << QStringList{u"1"_s, u"1500"_s, u"1500"_s}
                              << QByteArray("{\"x\":\"27.5\",\"y\":\"30\"}\n");
        QTest::newRow("digits") << QStringList{u"2"_s, u"1500"_s, u"1500"_s}
                                << QByteArray("{\"x\":\"26.25\",\"y\":\"17.5\"}\n");
        QTest::newRow("outside") << QStringList{u"1"_s, u"-750"_s, u"-900.0"_s}
                                 << QByteArray("{\"x\":\"-10\",\"y\":\"-10\"}\n");
    }

    void Drops() {
        QFETCH(QStringList, arguments);
        const CompanionAnswer answer = Companion().Run(
            QStringList{u"clock"_s, u"drop"_s} + arguments + QStringList{u"--size=400x400"_s});
        QCOMPARE(answer.Status, 0);
        QTEST(answer.Output, "output");
    }

    void Sizes_data() {
        QTest::addColumn<QString>("size");
        QTest::addColumn<int>("status");
        QTest::newRow("least") << u"1x1"_s << 0;
        QTest::newRow("most") << u"16000x16000"_s << 0;
        QTest::newRow("no width") << u"0x1"_s << 2;
        QTest::newRow("no height") << u"1x0"_s << 2;
        QTest::newRow("too wide") << u"16001x1"_s << 2;
        QTest::newRow("too high") << u"1x16001"_s << 2;
        QTest::newRow("three") << u"1x1x1"_s << 2;
    }

    void Sizes() {
        QFETCH(QString, size);
        const CompanionAnswer answer =
            Companion().Run({u"clock"_s, u"drop"_s, u"1"_s, u"0"_s, u"0"_s, u"--size"_s, size});
        QTEST(answer.Status, "status");
    }

    void WrongDrops_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("what") << QStringList{u"3"_s, u"0"_s, u"0"_s, u"--size=400x400"_s};
        QTest::newRow("nothing") << QStringList{u"0"_s, u"0"_s, u"0"_s, u"--size=400x400"_s};
        QTest::newRow("word") << QStringList{u"dial"_s, u"0"_s, u"0"_s, u"--size=400x400"_s};
        QTest::newRow("no number") << QStringList{u"1"_s, u"x"_s, u"0"_s, u"--size=400x400"_s};
        QTest::newRow("infinite") << QStringList{u"1"_s, u"0"_s, u"inf"_s, u"--size=400x400"_s};
        QTest::newRow("no size") << QStringList{u"1"_s, u"0"_s, u"0"_s};
        QTest::newRow("size of nothing") << QStringList{u"1"_s, u"0"_s, u"0"_s, u"--size=0x400"_s};
        QTest::newRow("two words") << QStringList{u"1"_s, u"0"_s, u"--size=400x400"_s};
    }

    void WrongDrops() {
        QFETCH(QStringList, arguments);
        QCOMPARE(Companion().Run(QStringList{u"clock"_s, u"drop"_s} + arguments).Status, 2);
    }

    /// The ring's radius is 120, the mark's side 21, and place 1 lies a 720th of a turn behind
    /// three o'clock.
    void AMarkOnADial() {
        const CompanionAnswer answer = Mark("Analogue", u"15:00"_s);
        QCOMPARE(answer.Status, 0);
        const QJsonObject mark = answer.Object();
        QCOMPARE(mark[u"spot"_s].toInt(), 15);
        QCOMPARE(mark[u"place"_s].toInt(), 1);
        QVERIFY(IsNear(mark[u"left"_s], 248.99543));
        QVERIFY(IsNear(mark[u"top"_s], 130.04718));
        QCOMPARE(mark[u"mark"_s].toArray(), QJsonArray({21, 21}));
    }

    /// A spot is 5 pixels wide; four times the mark's side are taken off.
    void AMarkAlongTheBottom() {
        const QJsonObject mark = Mark("Digital", u"3:00"_s).Object();
        QVERIFY(IsNear(mark[u"left"_s], -9));
        QVERIFY(IsNear(mark[u"top"_s], 279));
    }

    void AMarkOnAClockThatShowsNothing() {
        const QJsonObject mark = Mark("Sundial", u"3:00"_s).Object();
        QCOMPARE(mark[u"spot"_s].toInt(), 15);
        QVERIFY(IsNear(mark[u"left"_s], 13));
        QVERIFY(IsNear(mark[u"top"_s], 13));
    }

    void NoMark() {
        const CompanionAnswer noTime = Mark("Analogue", u"noon"_s);
        QCOMPARE(noTime.Status, 1);
        QCOMPARE(noTime.Output, "null\n");
        const CompanionAnswer noFile = Companion().Run(
            {u"clock"_s, u"mark"_s, u"none.ini"_s, u"3:00"_s, u"--size"_s, u"300x300"_s});
        QCOMPARE(noFile.Status, 1);
        QCOMPARE(noFile.Output, "null\n");
        QVERIFY(!noFile.Messages.isEmpty());
        QCOMPARE(Companion().Run({u"clock"_s, u"mark"_s, u"none.ini"_s, u"3:00"_s}).Status, 2);
    }
};

QTEST_GUILESS_MAIN(tst_ClockPlaceCommands)
#include "tst_ClockPlaceCommands.moc"
