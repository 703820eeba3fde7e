#include <QTest>

#include "foundation/BalloonPlace.h"

namespace {

const QRect Screen(0, 0, 1000, 800);
const QSize Body(200, 60);

}  // namespace

class tst_BalloonPlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Places_data();
    void Places();
    void Beside_data();
    void Beside();
    void StaysOnASmallScreen();
    void OutlineHoldsBodyAndPointer();
    void PlainTipHasNoPointer();
};

void tst_BalloonPlace::Places_data() {
    QTest::addColumn<QRect>("tool");
    QTest::addColumn<bool>("centred");
    QTest::addColumn<BalloonPlace>("place");
    const QRect low(0, 12, 200, 60);
    const QRect high(0, 0, 200, 60);
    QTest::newRow("below a point")
        << QRect(100, 100, 0, 0) << false
        << BalloonPlace{QRect(76, 100, 200, 72), low, QPoint(24, 0), BalloonSide::Below};
    QTest::newRow("below a tool") << QRect(100, 100, 40, 30) << false
                                  << BalloonPlace{QRect(96, 130, 200, 72), low, QPoint(24, 0),
                                                  BalloonSide::Below};
    QTest::newRow("centred") << QRect(300, 100, 0, 0) << true
                             << BalloonPlace{QRect(200, 100, 200, 72), low, QPoint(100, 0),
                                             BalloonSide::Below};
    QTest::newRow("above") << QRect(300, 740, 0, 0) << false
                           << BalloonPlace{QRect(276, 668, 200, 72), high, QPoint(24, 72),
                                           BalloonSide::Above};
    QTest::newRow("just below") << QRect(300, 728, 0, 0) << false
                                << BalloonPlace{QRect(276, 728, 200, 72), low, QPoint(24, 0),
                                                BalloonSide::Below};
    QTest::newRow("at the right edge")
        << QRect(950, 100, 0, 0) << false
        << BalloonPlace{QRect(800, 100, 200, 72), low, QPoint(150, 0), BalloonSide::Below};
    QTest::newRow("in the right corner")
        << QRect(999, 100, 0, 0) << false
        << BalloonPlace{QRect(800, 100, 200, 72), low, QPoint(183, 0), BalloonSide::Below};
    QTest::newRow("at the left edge")
        << QRect(5, 100, 0, 0) << false
        << BalloonPlace{QRect(0, 100, 200, 72), low, QPoint(17, 0), BalloonSide::Below};
}

void tst_BalloonPlace::Places() {
    QFETCH(QRect, tool);
    QFETCH(bool, centred);
    QFETCH(BalloonPlace, place);
    const BalloonPlace found = PlaceBalloon(Body, tool, Screen, centred);
    QCOMPARE(found.Window, place.Window);
    QCOMPARE(found.Body, place.Body);
    QCOMPARE(found.Tip, place.Tip);
    QCOMPARE(found.Side, place.Side);
}

void tst_BalloonPlace::Beside_data() {
    QTest::addColumn<QRect>("tool");
    QTest::addColumn<BalloonPlace>("place");
    const QRect right(12, 0, 200, 60);
    const QRect left(0, 0, 200, 60);
    QTest::newRow("right of a tool")
        << QRect(0, 100, 40, 30)
        << BalloonPlace{QRect(40, 91, 212, 60), right, QPoint(0, 24), BalloonSide::Right};
    QTest::newRow("left of a tool")
        << QRect(960, 100, 40, 30)
        << BalloonPlace{QRect(748, 91, 212, 60), left, QPoint(212, 24), BalloonSide::Left};
    QTest::newRow("just right") << QRect(748, 100, 40, 30)
                                << BalloonPlace{QRect(788, 91, 212, 60), right, QPoint(0, 24),
                                                BalloonSide::Right};
    QTest::newRow("at the upper edge")
        << QRect(0, 0, 40, 30)
        << BalloonPlace{QRect(40, 0, 212, 60), right, QPoint(0, 17), BalloonSide::Right};
    QTest::newRow("at the lower edge")
        << QRect(0, 760, 40, 40)
        << BalloonPlace{QRect(40, 740, 212, 60), right, QPoint(0, 40), BalloonSide::Right};
}

void tst_BalloonPlace::Beside() {
    QFETCH(QRect, tool);
    QFETCH(BalloonPlace, place);
    const BalloonPlace found = PlaceBalloonBeside(Body, tool, Screen);
    QCOMPARE(found.Window, place.Window);
    QCOMPARE(found.Body, place.Body);
    QCOMPARE(found.Tip, place.Tip);
    QCOMPARE(found.Side, place.Side);
}

void tst_BalloonPlace::StaysOnASmallScreen() {
    const BalloonPlace place =
        PlaceBalloon(QSize(900, 900), QRect(10, 10, 20, 20), QRect(0, 0, 400, 300), false);
    QCOMPARE(place.Window, QRect(0, 30, 400, 270));
    QCOMPARE(place.Body, QRect(0, 12, 400, 258));
    const BalloonPlace side =
        PlaceBalloonBeside(QSize(900, 900), QRect(10, 10, 20, 20), QRect(0, 0, 400, 300));
    QCOMPARE(side.Window, QRect(30, 0, 370, 300));
    QCOMPARE(side.Body, QRect(12, 0, 358, 300));
}

void tst_BalloonPlace::OutlineHoldsBodyAndPointer() {
    const BalloonPlace below = PlaceBalloon(Body, QRect(100, 100, 0, 0), Screen, false);
    const QPainterPath outline = BalloonOutline(below);
    QVERIFY(outline.contains(QPointF(100, 40)));
    QVERIFY(outline.contains(QPointF(24, 4)));
    QVERIFY(!outline.contains(QPointF(40, 4)));
    QVERIFY(!outline.contains(QPointF(1, 13)));  // the corner is round

    const BalloonPlace above = PlaceBalloon(Body, QRect(300, 740, 0, 0), Screen, false);
    QVERIFY(BalloonOutline(above).contains(QPointF(24, 68)));
    QVERIFY(!BalloonOutline(above).contains(QPointF(100, 68)));

    const BalloonPlace right = PlaceBalloonBeside(Body, QRect(0, 100, 40, 30), Screen);
    QVERIFY(BalloonOutline(right).contains(QPointF(4, 24)));
    QVERIFY(!BalloonOutline(right).contains(QPointF(4, 40)));
    QVERIFY(BalloonOutline(right).contains(QPointF(100, 30)));
    const BalloonPlace left = PlaceBalloonBeside(Body, QRect(960, 100, 40, 30), Screen);
    QVERIFY(BalloonOutline(left).contains(QPointF(208, 24)));
    QVERIFY(!BalloonOutline(left).contains(QPointF(208, 40)));
}

void tst_BalloonPlace::PlainTipHasNoPointer() {
    const BalloonPlace place = PlaceBalloon(Body, QRect(100, 100, 0, 0), Screen, false);
    QVERIFY(!PlainTipOutline(place).contains(QPointF(24, 4)));
    QVERIFY(PlainTipOutline(place).contains(QPointF(1, 13)));
}

QTEST_GUILESS_MAIN(tst_BalloonPlace)
#include "tst_BalloonPlace.moc"
