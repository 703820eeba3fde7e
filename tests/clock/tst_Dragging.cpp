#include <QTest>

#include "clock/Dragging.h"

using clockcore::Dragging;
using clockcore::DragObject;

class tst_Dragging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AClickStaysAClick() {
        Dragging dragging;
        dragging.Press(DragObject::Flag, {10, 20});
        QCOMPARE(dragging.Object(), DragObject::Flag);
        QVERIFY(!dragging.Move({14, 25}, 10));  // 4 + 5
        QVERIFY(!dragging.IsUnderWay());
        QVERIFY(!dragging.Move({5, 16}, 10));  // 5 + 4 to the other side
    }

    void BothWaysCount() {
        using clockcore::IsDrag;
        QVERIFY(!IsDrag({10, 10}, {13, 16}, 10));
        QVERIFY(IsDrag({10, 10}, {14, 16}, 10));
        QVERIFY(IsDrag({10, 10}, {6, 4}, 10));
        QVERIFY(IsDrag({10, 10}, {20, 10}, 10));
        QVERIFY(!IsDrag({10, 10}, {10, 0.5}, 10));
    }

    void FromTheThresholdOnItMoves() {
        Dragging dragging;
        dragging.Press(DragObject::Flag, {10, 20});
        QVERIFY(dragging.Move({15, 25}, 10));
        QVERIFY(dragging.IsUnderWay());
        QCOMPARE(dragging.Way(), QPointF(5, 5));
        QCOMPARE(dragging.Pointer(), QPointF(15, 25));
        QVERIFY(dragging.Move({10, 20}, 10));  // back at its press it still is a drag
        QCOMPARE(dragging.Way(), QPointF(0, 0));
    }

    void NothingComesOfNothing() {
        Dragging dragging;
        QVERIFY(!dragging.Move({100, 100}, 10));
        dragging.Press(DragObject::None, {0, 0});
        QVERIFY(!dragging.Move({100, 100}, 10));
        QVERIFY(!dragging.IsUnderWay());
    }

    void AnEndAndAPressBeginAnew() {
        Dragging dragging;
        dragging.Press(DragObject::Dial, {0, 0});
        QVERIFY(dragging.Move({50, 0}, 10));
        dragging.End();
        QVERIFY(!dragging.IsUnderWay());
        QCOMPARE(dragging.Object(), DragObject::None);
        QVERIFY(!dragging.Move({90, 0}, 10));
        dragging.Press(DragObject::Dial, {0, 0});
        QVERIFY(dragging.Move({50, 0}, 10));
        dragging.Press(DragObject::Digits, {50, 0});
        QVERIFY(!dragging.IsUnderWay());
        QVERIFY(!dragging.Move({55, 0}, 10));
    }
};

QTEST_GUILESS_MAIN(tst_Dragging)
#include "tst_Dragging.moc"
