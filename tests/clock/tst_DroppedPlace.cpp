#include <QTest>

#include "clock/DroppedPlace.h"

using namespace Qt::StringLiterals;
using clockcore::Dragged;
using clockcore::DroppedPlace;
using clockcore::StoreDroppedPlace;

class tst_DroppedPlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// (10 * 15 + 1500) / 6000 and (20 * 15 + 1500) / 6000.
    void Dial() {
        const DroppedPlace expected{u"Clock CentralX(%)"_s, u"Clock CentralY(%)"_s, u"27.5"_s,
                                    u"30"_s};
        QVERIFY(StoreDroppedPlace({1500, 1500}, Dragged::Dial, {6000, 6000}, 15) == expected);
    }

    /// (5 * 15 + 1500) / 6000 and (1500 - 30 * 15) / 6000.
    void Digits() {
        const DroppedPlace expected{u"Digital Clock CentralX(%)"_s, u"Digital Clock CentralY(%)"_s,
                                    u"26.25"_s, u"17.5"_s};
        QVERIFY(StoreDroppedPlace({1500, 1500}, Dragged::Digits, {6000, 6000}, 15) == expected);
    }

    void EachSideHasItsOwnMeasure() {
        const DroppedPlace place = StoreDroppedPlace({850, 700}, Dragged::Dial, {4000, 2000}, 15);
        QCOMPARE(place.X, u"25"_s);
        QCOMPARE(place.Y, u"50"_s);
    }

    void AFineScreen() {
        const DroppedPlace place = StoreDroppedPlace({925, 850}, Dragged::Dial, {4000, 2000}, 7.5);
        QCOMPARE(place.X, u"25"_s);
        QCOMPARE(place.Y, u"50"_s);
    }

    void OutsideOfTheWindow() {
        const DroppedPlace above =
            StoreDroppedPlace({-1650, 150}, Dragged::Digits, {3000, 3000}, 15);
        QCOMPARE(above.X, u"-52.5"_s);
        QCOMPARE(above.Y, u"-10"_s);
        QCOMPARE(StoreDroppedPlace({5850, 0}, Dragged::Dial, {3000, 3000}, 15).X, u"200"_s);
    }

    /// 1150 of 3000: seven digits, as a single-precision number is written.
    void NoEndOfDigits() {
        QCOMPARE(StoreDroppedPlace({1000, 0}, Dragged::Dial, {3000, 3000}, 15).X, u"38.33333"_s);
    }
};

QTEST_GUILESS_MAIN(tst_DroppedPlace)
#include "tst_DroppedPlace.moc"
