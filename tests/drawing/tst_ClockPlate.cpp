#include <QPainter>
#include <QTest>

#include "drawing/ClockPlate.h"
#include "drawing/Shapes.h"

using namespace Qt::StringLiterals;
using drawing::PlateGround;

namespace {

const QRgb Light = qRgb(200, 150, 100);
const QRgb Ground = qRgb(10, 200, 30);  // what lay there before

/// A round plate in the middle of 200 by 100 pixels.
QImage Painted(PlateGround ground, QRgb colour, double ratio = 1) {
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing::PaintPlate(painter, drawing::ShapePath(drawing::Shape::Circle, QRect(50, 10, 100, 80)),
                        QColor(colour), ground, ratio);
    return image;
}

}  // namespace

class tst_ClockPlate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Shades_data() {
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QColor>("shade");
        QTest::newRow("white") << QColor(255, 255, 255) << QColor(204, 204, 204);
        QTest::newRow("light") << QColor(200, 150, 100) << QColor(160, 120, 80);
        QTest::newRow("the darkest that darkens") << QColor(64, 64, 64) << QColor(51, 51, 51);
        QTest::newRow("the lightest that lightens") << QColor(63, 63, 63) << QColor(90, 90, 90);
        QTest::newRow("black") << QColor(0, 0, 0) << QColor(36, 36, 36);
        QTest::newRow("blue is dark") << QColor(0, 0, 255) << QColor(36, 36, 255);
    }
    void Shades() {
        QFETCH(QColor, colour);
        QTEST(drawing::ShadeOf(colour), "shade");
    }

    void Box_data() {
        QTest::addColumn<QPoint>("centre");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QRect>("box");
        QTest::newRow("middle") << QPoint(200, 150) << 1.0 << QRect(0, 0, 400, 300);
        QTest::newRow("to the left") << QPoint(120, 150) << 1.0 << QRect(0, 0, 240, 300);
        QTest::newRow("to the right") << QPoint(280, 150) << 1.0 << QRect(160, 0, 240, 300);
        QTest::newRow("low") << QPoint(200, 220) << 1.0 << QRect(0, 140, 400, 160);
        QTest::newRow("at an edge") << QPoint(10, 150) << 1.0 << QRect(-40, 0, 100, 300);
        QTest::newRow("outside") << QPoint(200, 500) << 1.0 << QRect(0, 450, 400, 100);
        QTest::newRow("fine screen") << QPoint(10, 150) << 2.0 << QRect(-90, 0, 200, 300);
        QTest::newRow("no more than all") << QPoint(10, 10) << 5.0 << QRect(-190, -140, 400, 300);
    }
    void Box() {
        QFETCH(QPoint, centre);
        QFETCH(double, ratio);
        QTEST(drawing::PlateBox(centre, drawing::Surface(400, 300, ratio)), "box");
    }

    void OnAColour() {
        const QImage image = Painted(PlateGround::Colour, Light);
        QCOMPARE(image.pixel(100, 50), Light);
        QCOMPARE(image.pixel(100, 13), Light);
        QCOMPARE(image.pixel(5, 5), qRgb(160, 120, 80));
        QCOMPARE(image.pixel(199, 99), qRgb(160, 120, 80));
        QVERIFY(qRed(image.pixel(100, 92)) < 150);  // the shadow below
        QVERIFY(qRed(image.pixel(100, 6)) > qRed(image.pixel(100, 93)));
    }

    void OnAPicture() {
        const QImage image = Painted(PlateGround::Picture, Light);
        QCOMPARE(image.pixel(100, 50), Light);
        QCOMPARE(image.pixel(5, 5), qRgb(8, 156, 23));  // 199 parts of 255
        QVERIFY(qGreen(image.pixel(100, 92)) < 130);
    }

    void InATransparentWindow() {
        const QImage image = Painted(PlateGround::SeeThrough, Light);
        QCOMPARE(image.pixel(100, 50), qRgb(180, 135, 90));
        QCOMPARE(image.pixel(5, 5), Ground);
        QCOMPARE(image.pixel(100, 94), Ground);  // no shadow falls on what is behind
    }

    // White is see-through there: pixels that are neither would make a ragged seam.
    void HasAHardEdgeOnTheColourKey() {
        QSet<QRgb> colours;
        const QImage image = Painted(PlateGround::SeeThrough, qRgb(255, 255, 255));
        for (int x = 0; x < image.width(); ++x) {
            colours += image.pixel(x, 30);
        }
        QCOMPARE(colours, (QSet<QRgb>{Ground, qRgb(230, 230, 230), qRgb(150, 150, 150)}));
    }

    void TheEdgeIsAThinLine() {
        const QImage dark = Painted(PlateGround::SeeThrough, qRgb(0, 0, 0), 2);
        QCOMPARE(dark.pixel(100, 50), qRgb(26, 26, 26));
        QCOMPARE(dark.pixel(100, 10), qRgb(106, 106, 106));
        QCOMPARE(dark.pixel(100, 13), qRgb(26, 26, 26));
    }

    void LeavesThePainterAsItWas() {
        QImage image(50, 50, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPen pen = painter.pen();
        drawing::PaintPlate(painter, drawing::ShapePath(drawing::Shape::Diamond, image.rect()),
                            Qt::white, PlateGround::SeeThrough, 1);
        QCOMPARE(painter.pen(), pen);
        QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
    }
};

QTEST_GUILESS_MAIN(tst_ClockPlate)
#include "tst_ClockPlate.moc"
