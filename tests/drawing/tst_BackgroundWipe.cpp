#include <QPainter>
#include <QTest>

#include "drawing/BackgroundWipe.h"
#include "platform/SimulatedClock.h"

using drawing::BackgroundWipe;

static const QSize Size(200, 100);
static const QRect Whole(0, 0, 200, 100);

class tst_BackgroundWipe : public QObject {
    Q_OBJECT

    platform::SimulatedClock clock_{QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC),
                                    QTimeZone::utc()};

private Q_SLOTS:
    void Ends_data() {
        QTest::addColumn<int>("mode");
        for (int mode = 1; mode <= 5; ++mode) {
            QTest::addRow("mode %d", mode) << mode;
        }
    }

    void Ends() {
        QFETCH(int, mode);
        QVERIFY(drawing::WipeRevealed(mode, Size, 0).isEmpty());
        QCOMPARE(drawing::WipeRevealed(mode, Size, 1), QRegion(Whole));
        QCOMPARE(drawing::WipeRevealed(mode, QSize(1, 1), 1), QRegion(0, 0, 1, 1));
        QCOMPARE(drawing::WipeRevealed(mode, QSize(7, 4000), 1), QRegion(0, 0, 7, 4000));
    }

    void NeverHidesAgain_data() { Ends_data(); }

    void NeverHidesAgain() {
        QFETCH(int, mode);
        QRegion before;
        for (int step = 0; step <= 32; ++step) {
            const QRegion now = drawing::WipeRevealed(mode, Size, step / 32.0);
            QVERIFY(before.subtracted(now).isEmpty());
            QVERIFY(now.subtracted(Whole).isEmpty());
            before = now;
        }
    }

    void Quarter_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("revealed");
        QTest::newRow("1 row 24") << 1 << QPoint(199, 24) << true;
        QTest::newRow("1 row 25") << 1 << QPoint(0, 25) << false;
        QTest::newRow("2 column 49") << 2 << QPoint(49, 99) << true;
        QTest::newRow("2 column 50") << 2 << QPoint(50, 0) << false;
        QTest::newRow("3 in the row") << 3 << QPoint(199, 24) << true;
        QTest::newRow("3 in the column") << 3 << QPoint(49, 99) << true;
        QTest::newRow("3 beyond both") << 3 << QPoint(50, 25) << false;
        QTest::newRow("4 column 49") << 4 << QPoint(49, 99) << true;
        QTest::newRow("4 column 50") << 4 << QPoint(50, 0) << false;
        QTest::newRow("5 first column, upper half") << 5 << QPoint(3, 49) << true;
        QTest::newRow("5 first column, lower half") << 5 << QPoint(3, 50) << false;
        QTest::newRow("5 second column") << 5 << QPoint(12, 99) << false;
        QTest::newRow("unknown is as 1") << 9 << QPoint(199, 24) << true;
    }

    void Quarter() {
        QFETCH(int, mode);
        QFETCH(QPoint, at);
        QTEST(drawing::WipeRevealed(mode, Size, 0.25).contains(at), "revealed");
    }

    void SecondHalfOfTheBlindsRises() {
        const QRegion region = drawing::WipeRevealed(5, Size, 0.75);
        QVERIFY(region.contains(QPoint(3, 99)));   // first column: down to the bottom
        QVERIFY(region.contains(QPoint(12, 50)));  // second: from below to the middle
        QVERIFY(!region.contains(QPoint(12, 49)));
    }

    void Band_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("edge") << 1 << 1.0 << QPoint(0, 24) << 0xFF0000FF;
        QTest::newRow("first line") << 1 << 1.0 << QPoint(199, 25) << 0xFF282828;
        QTest::newRow("last line") << 1 << 1.0 << QPoint(5, 44) << 0xFFE6E6E6;
        QTest::newRow("behind the band") << 1 << 1.0 << QPoint(5, 45) << 0xFF0000FF;
        QTest::newRow("second line, twice as fine") << 1 << 2.0 << QPoint(5, 28) << 0xFF323232;
        QTest::newRow("twice as thick") << 1 << 2.0 << QPoint(5, 64) << 0xFFE6E6E6;
        QTest::newRow("behind the thick one") << 1 << 2.0 << QPoint(5, 65) << 0xFF0000FF;
        QTest::newRow("first column") << 2 << 1.0 << QPoint(50, 99) << 0xFF282828;
        QTest::newRow("last column") << 2 << 1.0 << QPoint(69, 0) << 0xFFE6E6E6;
        QTest::newRow("none in 3") << 3 << 1.0 << QPoint(55, 30) << 0xFF0000FF;
        QTest::newRow("none in 4") << 4 << 1.0 << QPoint(55, 30) << 0xFF0000FF;
        QTest::newRow("none in 5") << 5 << 1.0 << QPoint(3, 55) << 0xFF0000FF;
    }

    void Band() {
        QFETCH(int, mode);
        QFETCH(double, ratio);
        QFETCH(QPoint, at);
        QImage image(Size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter painter(&image);
        drawing::PaintWipeBand(painter, mode, Size, 0.25, ratio);
        QTEST(image.pixel(at), "colour");
    }

    void NoBandAtTheEnds() {
        QImage image(Size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QImage before = image.copy();
        QPainter painter(&image);
        drawing::PaintWipeBand(painter, 1, Size, 0, 1);
        drawing::PaintWipeBand(painter, 1, Size, 1, 1);
        QCOMPARE(image, before);
    }

    void LastsHalfASecond() {
        int steps = 0;
        BackgroundWipe wipe(clock_, [&steps] { ++steps; });
        wipe.Start(3);
        QCOMPARE(wipe.Mode(), 3);
        QCOMPARE(wipe.Part(), 0.0);
        clock_.Advance(400);
        QVERIFY(wipe.IsUnderWay());
        QCOMPARE(steps, 25);
        QCOMPARE(wipe.Part(), 0.8);
        clock_.Advance(200);
        QVERIFY(!wipe.IsUnderWay());
        QCOMPARE(wipe.Part(), 1.0);
        QCOMPARE(steps, 32);
        clock_.Advance(5000);
        QCOMPARE(steps, 32);
    }

    void SlowStepsAreFewer() {
        int steps = 0;
        BackgroundWipe wipe(clock_, [this, &steps] {
            ++steps;
            clock_.SetNow(clock_.Now().addMSecs(100));
        });
        wipe.Start(1);
        clock_.Advance(600);
        QVERIFY(!wipe.IsUnderWay());
        QVERIFY(steps >= 4 && steps <= 7);
    }

    void ASetBackClockDoesNotHoldIt() {
        BackgroundWipe wipe(clock_, [] {});
        wipe.Start(1);
        clock_.Advance(100);
        const double part = wipe.Part();
        clock_.SetNow(clock_.Now().addSecs(-3600));
        QVERIFY(part > 0.1);
        clock_.Advance(3600 * 1000 + 600);
        QVERIFY(!wipe.IsUnderWay());
        QCOMPARE(wipe.Part(), 1.0);
    }

    void StopsWithoutAStep() {
        int steps = 0;
        BackgroundWipe wipe(clock_, [&steps] { ++steps; });
        wipe.Stop();  // none is under way: nothing
        wipe.Start(2);
        clock_.Advance(20);
        QCOMPARE(steps, 1);
        wipe.Stop();
        QVERIFY(!wipe.IsUnderWay());
        clock_.Advance(1000);
        QCOMPARE(steps, 1);
    }

    void PlaysAgain() {
        BackgroundWipe wipe(clock_, [] {});
        wipe.Start(1);
        clock_.Advance(600);
        wipe.Start(2);
        QVERIFY(wipe.IsUnderWay());
        QCOMPARE(wipe.Part(), 0.0);
        clock_.Advance(600);
        QVERIFY(!wipe.IsUnderWay());
    }
};

QTEST_GUILESS_MAIN(tst_BackgroundWipe)
#include "tst_BackgroundWipe.moc"
