#include <QTest>

#include "drawing/Angles.h"
#include "drawing/Shapes.h"

using namespace Qt::StringLiterals;
using drawing::Shape;
using drawing::WindowMeasures;

static const QRect Box(0, 0, 200, 100);

/// A window with borders of 4 and a title bar of 20, on a plain screen.
static WindowMeasures Framed() {
    return {QSize(208, 128), QRect(4, 24, 200, 100), 1};
}

class tst_Shapes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DiamondCorners() {
        QCOMPARE(drawing::PolygonPoints(4, -drawing::Pi / 2, Box),
                 QPolygon({{100, 1}, {198, 50}, {100, 99}, {2, 50}}));
    }

    void DiamondKeepsItsPlace() {
        QCOMPARE(drawing::PolygonPoints(4, -drawing::Pi / 2, Box.translated(30, 7)),
                 QPolygon({{130, 8}, {228, 57}, {130, 106}, {32, 57}}));
    }

    void SixCornersBeginAtThree() {
        QCOMPARE(drawing::PolygonPoints(6, 0, QRect(0, 0, 100, 100)),
                 QPolygon({{99, 50}, {75, 92}, {26, 92}, {1, 50}, {25, 8}, {74, 7}}));
    }

    void NoTurnsAreWhole() {
        // 6.28 is less than two pi: the corners on the far side lag behind.
        const QPolygon points = drawing::PolygonPoints(4, 0, QRect(0, 0, 4000, 4000));
        QCOMPARE(points[0], QPoint(3960, 2000));
        QCOMPARE(points[2], QPoint(40, 2003));
    }

    void CornerCounts_data() {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<int>("corners");
        QTest::newRow("diamond") << Shape::Diamond << 4;
        QTest::newRow("pentagon") << Shape::Pentagon << 6;
        QTest::newRow("hexagon") << Shape::Hexagon << 8;
        QTest::newRow("octagon") << Shape::Octagon << 10;
    }

    void CornerCounts() {
        QFETCH(Shape, shape);
        // A move, a line to each further corner, and the line that closes the figure.
        const QPainterPath path = drawing::ShapePath(shape, Box);
        QTEST(path.elementCount() - 1, "corners");
        QCOMPARE(QPointF(path.elementAt(0)), QPointF(path.elementAt(path.elementCount() - 1)));
    }

    /// A diamond at twelve o'clock, the others at three.
    void FirstCorners() {
        QCOMPARE(QPointF(drawing::ShapePath(Shape::Diamond, Box).elementAt(0)), QPointF(100, 1));
        for (const Shape shape : {Shape::Pentagon, Shape::Hexagon, Shape::Octagon}) {
            QCOMPARE(QPointF(drawing::ShapePath(shape, Box).elementAt(0)), QPointF(198, 50));
        }
    }

    void DiamondRegion_data() {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("inside");
        QTest::newRow("middle") << QPoint(100, 50) << true;
        QTest::newRow("below the top corner") << QPoint(100, 3) << true;
        QTest::newRow("above the top corner") << QPoint(100, 0) << false;
        QTest::newRow("right corner") << QPoint(195, 50) << true;
        QTest::newRow("beyond it") << QPoint(199, 50) << false;
        QTest::newRow("bottom corner") << QPoint(100, 96) << true;
        QTest::newRow("beyond the bottom") << QPoint(100, 99) << false;
        QTest::newRow("left corner") << QPoint(5, 50) << true;
        QTest::newRow("beyond the left") << QPoint(0, 50) << false;
        QTest::newRow("a corner of the box") << QPoint(20, 20) << false;
    }

    void DiamondRegion() {
        QFETCH(QPoint, at);
        const WindowMeasures bare{Box.size(), Box, 1};
        QTEST(drawing::WindowFigure(Shape::Diamond, bare)->contains(at), "inside");
    }

    void CircleIsEllips() {
        const QPainterPath circle = drawing::ShapePath(Shape::Circle, Box);
        QCOMPARE(circle, drawing::ShapePath(Shape::Ellips, Box));
        QCOMPARE(circle.boundingRect(), QRectF(Box));
        QVERIFY(circle.contains(QPointF(100, 1)));
        QVERIFY(circle.contains(QPointF(1, 50)));
        QVERIFY(!circle.contains(QPointF(10, 10)));
        QCOMPARE(drawing::WindowFigure(Shape::Circle, Framed()),
                 drawing::WindowFigure(Shape::Ellips, Framed()));
    }

    void Rectangle_data() {
        QTest::addColumn<Shape>("shape");
        QTest::newRow("normal") << Shape::Normal;
        QTest::newRow("unknown") << Shape::Unknown;
    }

    void Rectangle() {
        QFETCH(Shape, shape);
        QVERIFY(!drawing::IsFigure(shape));
        QVERIFY(drawing::ShapePath(shape, Box).isEmpty());
        QVERIFY(!drawing::WindowFigure(shape, Framed()));
    }

    void Names_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Shape>("shape");
        QTest::newRow("normal") << u"Normal"_s << Shape::Normal;
        QTest::newRow("circle") << u"Circle"_s << Shape::Circle;
        QTest::newRow("so spelled") << u"Ellips"_s << Shape::Ellips;
        QTest::newRow("diamond") << u"Diamond"_s << Shape::Diamond;
        QTest::newRow("pentagon") << u"Pentagon"_s << Shape::Pentagon;
        QTest::newRow("blanks") << u" Hexagon "_s << Shape::Hexagon;
        QTest::newRow("octagon") << u"Octagon"_s << Shape::Octagon;
        QTest::newRow("lower case") << u"hexagon"_s << Shape::Unknown;
        QTest::newRow("empty") << QString() << Shape::Unknown;
        QTest::newRow("missing key") << u"0"_s << Shape::Unknown;
        QTest::newRow("well spelled") << u"Ellipse"_s << Shape::Unknown;
        QTest::newRow("unknown") << u"Heart"_s << Shape::Unknown;
    }

    void Names() {
        QFETCH(QString, text);
        QTEST(drawing::ReadShape(text), "shape");
    }

    void NamesInTheirOrder() {
        QCOMPARE(drawing::ShapeNames(),
                 QStringList({u"Normal"_s, u"Circle"_s, u"Ellips"_s, u"Diamond"_s, u"Pentagon"_s,
                              u"Hexagon"_s, u"Octagon"_s}));
    }

    void WindowEllipse() {
        // Ten from the sides and the bottom, title bar and borders (28 in all) from the top.
        const QRegion figure = drawing::WindowFigure(Shape::Circle, Framed()).value_or(QRegion());
        QCOMPARE(figure.boundingRect(), QRect(10, 28, 188, 90));
    }

    void WindowEllipseOnAFineScreen() {
        const WindowMeasures window{QSize(400, 400), QRect(0, 0, 400, 400), 2};
        const QRegion figure = drawing::WindowFigure(Shape::Ellips, window).value_or(QRegion());
        QCOMPARE(figure.boundingRect(), QRect(20, 0, 360, 380));
    }

    void WindowPolygonsFillTheClientArea() {
        const QRegion figure = drawing::WindowFigure(Shape::Diamond, Framed()).value_or(QRegion());
        QVERIFY(Framed().Client.contains(figure.boundingRect()));
        QVERIFY(figure.contains(QPoint(104, 28)));  // below the top corner (104, 25)
        QVERIFY(figure.contains(QPoint(199, 74)));  // before the right one (202, 74)
        QVERIFY(!figure.contains(QPoint(104, 24)));
        QVERIFY(!figure.contains(QPoint(20, 40)));
    }

    void TinyWindowsStayRectangles_data() {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<int>("side");
        QTest::newRow("no room for an ellipse") << Shape::Circle << 20;
        QTest::newRow("less than none") << Shape::Ellips << 5;
        QTest::newRow("polygon") << Shape::Diamond << 1;
        QTest::newRow("nothing at all") << Shape::Octagon << 0;
    }

    void TinyWindowsStayRectangles() {
        QFETCH(Shape, shape);
        QFETCH(int, side);
        const WindowMeasures window{QSize(side, side), QRect(0, 0, side, side), 1};
        QVERIFY(!drawing::WindowFigure(shape, window));
    }

    void HugeWindowsToo() {
        const WindowMeasures window{QSize(4000, 4000), QRect(0, 0, 4000, 4000), 1};
        QVERIFY(drawing::WindowFigure(Shape::Circle, window)->contains(QPoint(2000, 2000)));
        QVERIFY(drawing::WindowFigure(Shape::Pentagon, window)->contains(QPoint(3900, 2000)));
    }
};

QTEST_GUILESS_MAIN(tst_Shapes)
#include "tst_Shapes.moc"
