#include <QFontInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QTest>
#include <cmath>

#include "drawing/LabelText.h"
#include "drawing/Surface.h"

using namespace Qt::StringLiterals;
using drawing::Surface;
using mduUILib::Control;

class tst_LabelText : public QObject {
    Q_OBJECT

    static Control Label(const QString& caption, double points) {
        Control label;
        label.Visible = true;
        label.Caption = caption;
        label.Font = QFont(u"Courier New"_s);
        label.Font.setPointSizeF(points);
        return label;
    }

    /// The rectangle of all pixels that are not white after the label was painted.
    static QRect Painted(const Control& label) {
        Surface surface(200, 200, 1);
        surface.Cls(0xFFFFFF);
        surface.Paint([&](QPainter& painter) { drawing::PaintLabel(painter, label, 1); });
        QRect painted;
        for (int i = 0; i < 200 * 200; ++i) {
            if (surface.Image().pixel(i % 200, i / 200) != qRgb(255, 255, 255)) {
                painted |= QRect(i % 200, i / 200, 1, 1);
            }
        }
        return painted;
    }

private Q_SLOTS:
    void PixelSize_data() {
        QTest::addColumn<double>("points");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<int>("pixels");
        QTest::newRow("12 points") << 12.0 << 1.0 << 16;
        QTest::newRow("10 points") << 10.0 << 1.0 << 13;
        QTest::newRow("fine screen") << 10.0 << 2.0 << 27;
        QTest::newRow("tiny") << 0.1 << 1.0 << 1;
        QTest::newRow("huge") << 100000.0 << 2.0 << 4000;
    }

    void PixelSize() {
        QFETCH(double, points);
        QFETCH(double, ratio);
        QTEST(drawing::PixelFont(Label({}, points).Font, ratio).pixelSize(), "pixels");
    }

    void FontStandsIn() {
        const QString family = QFontInfo(drawing::PixelFont(Label({}, 9).Font, 1)).family();
        QVERIFY2(family == u"Liberation Mono"_s || family == u"Courier New"_s, qPrintable(family));
    }

    void SizeOfText() {
        // Letters of this font are 0.6 of the em wide: 12 pixels at 15 points.
        const QSizeF size = drawing::TextSize(Label({}, 15).Font, u"12345"_s, 1);
        QVERIFY(size.width() >= 60 && size.width() <= 61);
        QVERIFY(size.height() >= 22 && size.height() <= 24);  // 1.133 of 20
        QCOMPARE(drawing::TextSize(Label({}, 15).Font, {}, 1).width(), 0.0);
    }

    void LabelTakesTheSizeOfItsCaption() {
        Control label = Label(u"12"_s, 15);
        drawing::AutoSize(label, 1);
        QVERIFY(label.Width >= 24 && label.Width <= 25);
        label.Caption.clear();
        drawing::AutoSize(label, 1);
        QCOMPARE(label.Width, 0.0F);
        QVERIFY(label.Height >= 22 && label.Height <= 24);
    }

    void CaptionIsCentred() {
        Control label = Label(u"HH"_s, 15);
        label.Left = 50;
        label.Top = 40;
        label.Width = 100;
        label.Height = 60;
        const QRect painted = Painted(label);
        QVERIFY(std::abs(painted.center().x() - 100) <= 1);
        QVERIFY(std::abs(painted.center().y() - 70) <= 3);
    }

    void ColourHasRedInTheLowByte() {
        Control label = Label(u"\u2588"_s, 60);
        label.ForeColor = 0xFF0000;
        label.Width = label.Height = 200;
        Surface surface(200, 200, 1);
        surface.Paint([&](QPainter& painter) { drawing::PaintLabel(painter, label, 1); });
        QCOMPARE(surface.Image().pixel(100, 100), qRgb(0, 0, 255));
    }

    void PaintsNothing() {
        Control label = Label(u"8"_s, 20);
        label.Width = label.Height = 100;
        QVERIFY(!Painted(label).isEmpty());
        label.Visible = false;
        QVERIFY(Painted(label).isEmpty());
        label.Visible = true;
        label.Caption.clear();
        QVERIFY(Painted(label).isEmpty());
        QVERIFY(Painted(Label(u"8"_s, 100000)).isEmpty());
    }

    void ImageFillsItsRectangle() {
        QImage green(2, 2, QImage::Format_RGB32);
        green.fill(Qt::green);
        Control image;
        image.Left = 10;
        image.Top = 20;
        image.Width = image.Height = 30;
        image.Picture = std::make_shared<const QImage>(green);
        Surface surface(100, 100, 1);
        surface.Paint([&](QPainter& painter) { drawing::PaintImage(painter, image); });
        QCOMPARE(surface.Image().pixel(25, 35), qRgb(0, 0, 0));
        image.Visible = true;
        surface.Paint([&](QPainter& painter) { drawing::PaintImage(painter, image); });
        QCOMPARE(surface.Image().pixel(10, 20), qRgb(0, 255, 0));
        QCOMPARE(surface.Image().pixel(39, 49), qRgb(0, 255, 0));
        QCOMPARE(surface.Image().pixel(40, 50), qRgb(0, 0, 0));
        QCOMPARE(surface.Image().pixel(9, 20), qRgb(0, 0, 0));
    }
};

QTEST_MAIN(tst_LabelText)
#include "tst_LabelText.moc"
