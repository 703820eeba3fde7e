#include <QTest>

#include "drawing/SeenArea.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::SeenArea;

namespace {

/// An area of steps: rows 10 to 19 from 40 to 59, rows 20 to 49 from 20 to 79, rows 50 to 59 from
/// 40 to 59.
SeenArea Steps() {
    return SeenArea(QRegion(40, 10, 20, 10) + QRegion(20, 20, 60, 30) + QRegion(40, 50, 20, 10));
}

}  // namespace

class tst_SeenArea : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WithoutAnOutlineAllIsSeen() {
        for (const SeenArea& all : {SeenArea(), SeenArea(QRegion())}) {
            QVERIFY(all.IsWhole());
            QVERIFY(all.Holds(QRectF(-500, -500, 9999, 9999)));
            QCOMPARE(all.WayInward(QRectF(-50, -50, 10, 10), {QRectF(-50, -50, 10, 10)}, 3),
                     QPointF(0, 0));
            QVERIFY(!all.RowFor(0, 10, 1));
        }
        QVERIFY(!Steps().IsWhole());
    }

    void Holds_data() {
        QTest::addColumn<QRectF>("place");
        QTest::addColumn<bool>("seen");
        QTest::newRow("middle") << QRectF(45, 30, 5, 5) << true;
        QTest::newRow("wide part") << QRectF(20, 20, 60, 30) << true;
        QTest::newRow("a pixel too wide") << QRectF(20, 20, 61, 30) << false;
        QTest::newRow("a pixel to the left") << QRectF(19, 20, 60, 30) << false;
        QTest::newRow("a pixel too high") << QRectF(20, 19, 60, 30) << false;
        QTest::newRow("a pixel too low") << QRectF(20, 20, 60, 31) << false;
        QTest::newRow("the whole height") << QRectF(40, 10, 20, 50) << true;
        QTest::newRow("above") << QRectF(40, 9, 20, 5) << false;
        QTest::newRow("below") << QRectF(40, 56, 20, 5) << false;
        QTest::newRow("part of a pixel out") << QRectF(19.9, 30, 5, 5) << false;
        QTest::newRow("far away") << QRectF(500, 500, 5, 5) << false;
        QTest::newRow("one pixel at its end") << QRectF(59, 59, 1, 1) << true;
    }
    void Holds() {
        QFETCH(QRectF, place);
        QTEST(Steps().Holds(place), "seen");
    }

    // The middle is (50, 35).
    void WayInward_data() {
        QTest::addColumn<QRectF>("place");
        QTest::addColumn<double>("gap");
        QTest::addColumn<QPointF>("way");
        QTest::newRow("seen already") << QRectF(20, 20, 10, 10) << 0.0 << QPointF(0, 0);
        QTest::newRow("from the left") << QRectF(0, 30, 10, 10) << 0.0 << QPointF(20, 0);
        QTest::newRow("from above") << QRectF(45, 0, 10, 10) << 0.0 << QPointF(0, 10);
        QTest::newRow("aslant") << QRectF(0, -15, 10, 10) << 0.0 << QPointF(35, 35);
        QTest::newRow("with a gap") << QRectF(0, 30, 10, 10) << 3.0 << QPointF(23, 0);
        QTest::newRow("a gap where it stands") << QRectF(20, 30, 10, 10) << 3.0 << QPointF(3, 0);
        QTest::newRow("too large") << QRectF(0, 0, 80, 80) << 0.0 << QPointF(10, -5);
    }
    void WayInward() {
        QFETCH(QRectF, place);
        QFETCH(double, gap);
        QTEST(Steps().WayInward(place, {}, gap), "way");
    }

    void MakesWayForOthers_data() {
        QTest::addColumn<QRectF>("place");
        QTest::addColumn<QRectF>("other");
        QTest::addColumn<QPointF>("way");
        const QRectF place(20, 25, 10, 10);
        QTest::newRow("beside it") << place << QRectF(30, 25, 10, 10) << QPointF(0, 0);
        QTest::newRow("nearest is below") << place << QRectF(10, 15, 40, 14) << QPointF(0, 4);
        QTest::newRow("nearest is to the right") << place << QRectF(20, 0, 4, 90) << QPointF(4, 0);
        QTest::newRow("first inward, then aside")
            << QRectF(0, 25, 10, 10) << QRectF(10, 15, 40, 14) << QPointF(20, 4);
        QTest::newRow("nowhere") << place << QRectF(0, 0, 100, 100) << QPointF(0, 0);
        QTest::newRow("nowhere, but seen")
            << QRectF(0, 30, 10, 10) << QRectF(0, 0, 100, 100) << QPointF(20, 0);
    }
    void MakesWayForOthers() {
        QFETCH(QRectF, place);
        QFETCH(QRectF, other);
        QTEST(Steps().WayInward(place, {other}, 0), "way");
    }

    void MakesWayForAllOthers() {
        const std::vector<QRectF> others = {QRectF(10, 15, 40, 14), QRectF(20, 36, 30, 4)};
        QCOMPARE(Steps().WayInward(QRectF(20, 25, 10, 10), others, 0), QPointF(0, 15));
    }

    void RowFor_data() {
        QTest::addColumn<double>("top");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("width");
        QTest::addColumn<QRectF>("row");
        QTest::newRow("at once") << 25.0 << 8.0 << 60.0 << QRectF(20, 25, 60, 8);
        QTest::newRow("above the area") << 0.0 << 8.0 << 10.0 << QRectF(40, 10, 20, 8);
        QTest::newRow("wide enough further down") << 0.0 << 8.0 << 21.0 << QRectF(20, 20, 60, 8);
        QTest::newRow("wide enough by a hair") << 0.0 << 8.0 << 20.0 << QRectF(40, 10, 20, 8);
        QTest::newRow("as wide all over its height")
            << 0.0 << 31.0 << 30.0 << QRectF(40, 10, 20, 31);
        QTest::newRow("the widest") << 0.0 << 8.0 << 200.0 << QRectF(20, 20, 60, 8);
        QTest::newRow("whole pixels") << 24.3 << 7.2 << 60.0 << QRectF(20, 25, 60, 8);
        QTest::newRow("at the end") << 50.0 << 10.0 << 60.0 << QRectF(40, 50, 20, 10);
        QTest::newRow("behind the end") << 51.0 << 10.0 << 10.0 << QRectF();
        QTest::newRow("too high for it") << 0.0 << 51.0 << 10.0 << QRectF();
        QTest::newRow("no height") << 25.0 << 0.0 << 60.0 << QRectF(20, 25, 60, 1);
    }
    void RowFor() {
        QFETCH(double, top);
        QFETCH(double, height);
        QFETCH(double, width);
        QTEST(Steps().RowFor(top, height, width).value_or(QRectF()), "row");
    }

    void NoRowOfNoWidth() {
        const SeenArea stairs(QRegion(0, 0, 10, 10) + QRegion(10, 10, 10, 10));
        QVERIFY(stairs.RowFor(0, 10, 5));
        QVERIFY(!stairs.RowFor(0, 15, 5));
        const SeenArea column(QRegion(7, 0, 1, 10));
        QCOMPARE(column.RowFor(0, 5, 3).value_or(QRectF()), QRectF(7, 0, 1, 5));
    }

    void ThroughAWindowsShape() {
        FakeFace face(200, 100);
        face.Window.Outer = QSizeF(208 * 15, 128 * 15);
        face.Window.Offset = QPoint(4, 24);
        const drawing::WindowMeasures window = drawing::MeasuresOf(face.Window);
        QCOMPARE(window.Outer, QSize(208, 128));
        QCOMPARE(window.Client, QRect(4, 24, 200, 100));
        QVERIFY(drawing::SeenThrough(drawing::Shape::Normal, window).IsWhole());
        // Its corners are (100, 1), (198, 50), (100, 99), (2, 50) of the surface.
        const SeenArea diamond = drawing::SeenThrough(drawing::Shape::Diamond, window);
        QVERIFY(diamond.Holds(QRectF(99, 3, 2, 2)));
        QVERIFY(diamond.Holds(QRectF(6, 49, 4, 2)));
        QVERIFY(!diamond.Holds(QRectF(0, 49, 4, 2)));
        QVERIFY(diamond.Holds(QRectF(55, 28, 90, 44)));
        QVERIFY(!diamond.Holds(QRectF(45, 22, 110, 56)));
    }
};

QTEST_GUILESS_MAIN(tst_SeenArea)
#include "tst_SeenArea.moc"
