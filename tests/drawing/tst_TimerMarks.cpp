#include <QTest>

#include "drawing/TimerMarks.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using drawing::Surface;

class tst_TimerMarks : public QObject {
    Q_OBJECT

    static ClockProperties Look(const QString& special = u"None"_s) {
        ClockProperties properties;
        mduLib::PutProperty(u"Minute Spot Position(%)"_s, u"100"_s, properties);
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"-1"_s, properties);
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"-1"_s, properties);
        mduLib::PutProperty(u"Clock Special"_s, special, properties);
        return properties;
    }

private Q_SLOTS:
    // A face of 200: radius 84 around (100, 100); the mark's lower right corner lies on the ring.
    void OnTheRing_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("spot");
        QTest::addColumn<int>("place");
        QTest::addColumn<QPointF>("corner");
        QTest::newRow("place 0 of twelve") << u"None"_s << 0 << 0 << QPointF(100, 16);
        QTest::newRow("three") << u"None"_s << 15 << 0 << QPointF(184, 100);
        QTest::newRow("six") << u"None"_s << 30 << 0 << QPointF(100, 184);
        QTest::newRow("three, backward") << u"Analogue Backward"_s << 15 << 0 << QPointF(16, 100);
        // A whole spot further: a turn of 6 degrees.
        QTest::newRow("twelve places") << u"None"_s << 0 << 12 << QPointF(108.7804, 16.4602);
    }

    void OnTheRing() {
        QFETCH(QString, special);
        QFETCH(int, spot);
        QFETCH(int, place);
        QFETCH(QPointF, corner);
        const Surface surface(200, 200, 1);
        const QPointF at =
            drawing::TimerMarkPlace(surface, Look(special), true, spot, place, {16, 14});
        QVERIFY(qAbs(at.x() + 16 - corner.x()) < 0.001);
        QVERIFY(qAbs(at.y() + 14 - corner.y()) < 0.001);
    }

    void TheTurnOfAPoint_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<QPointF>("corner");
        QTest::addColumn<double>("turn");
        QTest::newRow("twelve") << u"None"_s << QPointF(100, 16) << 0.0;
        QTest::newRow("three, off the ring") << u"None"_s << QPointF(110, 100) << 0.25;
        QTest::newRow("six, beside the window") << u"None"_s << QPointF(100, 900) << 0.5;
        QTest::newRow("nine") << u"None"_s << QPointF(16, 100) << 0.75;
        QTest::newRow("half past ten") << u"None"_s << QPointF(50, 50) << 0.875;
        QTest::newRow("three, backward") << u"Analogue Backward"_s << QPointF(16, 100) << 0.25;
        QTest::newRow("the centre") << u"None"_s << QPointF(100, 100) << 0.0;
    }

    void TheTurnOfAPoint() {
        QFETCH(QString, special);
        QFETCH(QPointF, corner);
        QFETCH(double, turn);
        const double found = drawing::TurnOnTheRing(Surface(200, 200, 1), Look(special), corner);
        QVERIFY2(qAbs(found - turn) < 1e-9, qPrintable(QString::number(found)));
    }

    // The middle of the dial stands elsewhere, as its keys tell.
    void TheRingHasTheCentreOfTheDial() {
        ClockProperties look = Look();
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"25"_s, look);
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"75"_s, look);
        const Surface surface(200, 200, 1);
        QVERIFY(qAbs(drawing::TurnOnTheRing(surface, look, {100, 150}) - 0.25) < 1e-9);
        const QPointF six = drawing::TimerMarkPlace(surface, look, true, 30, 0, {16, 14});
        QVERIFY(qAbs(six.x() + 16 - 50) < 0.001 && qAbs(six.y() + 14 - 234) < 0.001);
    }

    void AlongTheBottom_data() {
        QTest::addColumn<int>("spot");
        QTest::addColumn<QPointF>("place");
        QTest::newRow("at the left") << 0 << QPointF(0, 86);
        QTest::newRow("less than its width") << 3 << QPointF(15, 86);
        QTest::newRow("its width") << 4 << QPointF(20 - 64, 86);
        QTest::newRow("half-way") << 30 << QPointF(150 - 64, 86);
    }

    void AlongTheBottom() {
        QFETCH(int, spot);
        const Surface surface(300, 100, 1);
        QTEST(drawing::TimerMarkPlace(surface, Look(), false, spot, 7, {16, 14}), "place");
    }

    void SideGrowsWithTheFace() {
        QCOMPARE(drawing::TimerMarkSide(Surface(100, 100, 1)), 12.0);
        QCOMPARE(drawing::TimerMarkSide(Surface(300, 300, 1)), 21.0);
        QCOMPARE(drawing::TimerMarkSide(Surface(900, 900, 1)), 28.0);
        QCOMPARE(drawing::TimerMarkSide(Surface(600, 600, 2)), 42.0);
    }
};

QTEST_GUILESS_MAIN(tst_TimerMarks)
#include "tst_TimerMarks.moc"
