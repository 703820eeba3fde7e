#include <QTest>

#include "drawing/Angles.h"
#include "drawing/HandStyles.h"
#include "drawing/Hands.h"

using namespace Qt::StringLiterals;
using drawing::HandStyle;
using drawing::Surface;

constexpr int White = 0xFFFFFF;
constexpr int Black = 0;
constexpr QRgb WhitePixel = 0xFFFFFFFF;
constexpr QRgb BlackPixel = 0xFF000000;

static Surface WhiteSurface(int side) {
    Surface surface(side, side, 1.0);
    surface.Cls(White);
    return surface;
}

static QRect PaintedBounds(const Surface& surface) {
    QRect bounds;
    for (int y = 0; y < surface.ScaleHeight(); ++y) {
        for (int x = 0; x < surface.ScaleWidth(); ++x) {
            if (surface.Image().pixel(x, y) != WhitePixel) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

class tst_Hands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Styles_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("line") << u"Line"_s << 1;
        QTest::newRow("frame") << u"Frame"_s << 2;
        QTest::newRow("metal simple") << u"3D Metal Simple"_s << 3;
        QTest::newRow("gold simple") << u"3D Gold Simple"_s << 4;
        QTest::newRow("metal") << u"3D Metal"_s << 5;
        QTest::newRow("gold") << u"3D Gold"_s << 6;
        QTest::newRow("3D") << u"3D"_s << 7;
        QTest::newRow("trimmed") << u"  Line "_s << 1;
        QTest::newRow("unknown") << u"Arrow"_s << 0;
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("missing key") << u"0"_s << 0;
    }

    void Styles() {
        QFETCH(QString, text);
        QTEST(static_cast<int>(drawing::ReadHandStyle(text)), "number");
    }

    void LineFromCentreToTip() {
        Surface surface = WhiteSurface(101);
        drawing::DrawClockHand(surface, HandStyle::Line, 50, 50, drawing::Pi, 40, Black, 1);
        QCOMPARE(PaintedBounds(surface), QRect(QPoint(50, 10), QPoint(50, 50)));
        QCOMPARE(surface.Image().pixel(50, 10), BlackPixel);
        QCOMPARE(surface.Image().pixel(50, 51), WhitePixel);  // no tail
    }

    void LineToTheRight() {
        Surface surface = WhiteSurface(101);
        drawing::DrawSimpleLine(surface, 50, 50, drawing::Pi / 2, 30, Black, 3);
        QCOMPARE(surface.Image().pixel(80, 50), BlackPixel);
        QCOMPARE(surface.Image().pixel(65, 49), BlackPixel);
        QCOMPARE(surface.Image().pixel(65, 51), BlackPixel);
        QCOMPARE(surface.Image().pixel(65, 53), WhitePixel);
    }

    void FrameHasFourCorners() {
        Surface surface = WhiteSurface(401);
        drawing::DrawFrame(surface, 200, 200, drawing::Pi, 150, Black, 1);
        QCOMPARE(surface.Image().pixel(200, 50), BlackPixel);   // tip
        QCOMPARE(surface.Image().pixel(200, 245), BlackPixel);  // tail, 0.3 of the length
        // The sides, 0.02 of the length away, and nothing between them and the axis.
        QCOMPARE(surface.Image().pixel(203, 200), BlackPixel);
        QCOMPARE(surface.Image().pixel(197, 200), BlackPixel);
        QCOMPARE(surface.Image().pixel(200, 200), WhitePixel);
        const QRect bounds = PaintedBounds(surface);
        QCOMPARE(bounds.top(), 50);
        QCOMPARE(bounds.bottom(), 245);
    }

    void NothingIsDrawn_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("length");
        QTest::newRow("unknown style") << 0 << 40;
        QTest::newRow("length 0") << 1 << 0;
        QTest::newRow("negative length") << 2 << -5;
    }

    void NothingIsDrawn() {
        QFETCH(int, style);
        QFETCH(int, length);
        Surface surface = WhiteSurface(101);
        drawing::DrawClockHand(surface, static_cast<HandStyle>(style), 50, 50, 1.0, length, Black,
                               3);
        QCOMPARE(PaintedBounds(surface), QRect());
    }

    void WidthZeroIsAHairline() {
        Surface surface = WhiteSurface(101);
        drawing::DrawSimpleLine(surface, 50, 50, drawing::Pi, 20, Black, 0);
        QCOMPARE(PaintedBounds(surface), QRect(QPoint(50, 30), QPoint(50, 50)));
    }

    void Rings_data() {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("rings");
        QTest::newRow("under 800") << 799 << 0;
        QTest::newRow("800 is half: to even") << 800 << 0;
        QTest::newRow("1600") << 1600 << 1;
        QTest::newRow("2400 is half: to even") << 2400 << 2;
        QTest::newRow("3750") << 3750 << 2;
        QTest::newRow("32000") << 32000 << 20;
        QTest::newRow("100000") << 100000 << 20;
    }

    void Rings() {
        QFETCH(int, height);
        QTEST(drawing::CentrePointRings(height), "rings");
    }

    void HubDarkensOutward() {
        Surface surface = WhiteSurface(101);
        surface.SetHeight(4800);                                      // three rings
        drawing::DrawCentrePoint(surface, 50, 50, 0x6496C8);          // RGB(200, 150, 100)
        QCOMPARE(surface.Image().pixel(50, 50), qRgb(180, 130, 80));  // ring 1, radius 0
        QCOMPARE(surface.Image().pixel(51, 50), qRgb(160, 110, 60));  // ring 2 wins on radius 1
        QCOMPARE(surface.Image().pixel(52, 50), qRgb(140, 90, 40));   // ring 3 wins on radius 2
        QCOMPARE(surface.Image().pixel(53, 50), qRgb(140, 90, 40));
        QCOMPARE(surface.Image().pixel(54, 50), WhitePixel);
    }

    void DarkHubIsBlack() {
        Surface surface = WhiteSurface(101);
        surface.SetHeight(3200);
        drawing::DrawCentrePoint(surface, 50, 50, 0x0A0A0A);
        QCOMPARE(surface.Image().pixel(50, 50), BlackPixel);
        QCOMPARE(surface.Image().pixel(52, 50), BlackPixel);
    }

    void PensGrowWithTheRatio() {
        Surface surface(101, 101, 2.0);
        surface.Cls(White);
        drawing::DrawClockHand(surface, HandStyle::Line, 50, 50, drawing::Pi / 2, 30, Black, 3);
        QCOMPARE(surface.Image().pixel(65, 48), BlackPixel);  // six pixels wide
        QCOMPARE(surface.Image().pixel(65, 52), BlackPixel);
        QCOMPARE(surface.Image().pixel(65, 54), WhitePixel);
    }

    void HubGrowsWithTheRatio() {
        Surface surface(101, 101, 2.0);
        surface.Cls(White);
        surface.SetHeight(4800);
        drawing::DrawCentrePoint(surface, 50, 50, 0x6496C8);
        QCOMPARE(surface.Image().pixel(51, 50), qRgb(180, 130, 80));
        QCOMPARE(surface.Image().pixel(52, 50), qRgb(160, 110, 60));
        QCOMPARE(surface.Image().pixel(53, 50), qRgb(160, 110, 60));
        QCOMPARE(surface.Image().pixel(54, 50), qRgb(140, 90, 40));
        QCOMPARE(surface.Image().pixel(56, 50), qRgb(140, 90, 40));
        QCOMPARE(surface.Image().pixel(57, 50), WhitePixel);
    }

    void BoundsHoldEveryPixel_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("width");
        for (const int width : {0, 1, 2, 3, 7, 20}) {
            QTest::addRow("line %d", width) << 1 << width;
            QTest::addRow("frame %d", width) << 2 << width;
        }
    }

    void BoundsHoldEveryPixel() {
        QFETCH(int, style);
        QFETCH(int, width);
        const auto handStyle = static_cast<HandStyle>(style);
        for (int degree = 0; degree < 360; degree += 7) {
            const double angle = degree * drawing::Pi / 180;
            Surface surface = WhiteSurface(151);
            drawing::DrawClockHand(surface, handStyle, 75, 75, angle, 50, Black, width);
            const QRect bounds = drawing::HandBounds(handStyle, 75, 75, angle, 50, width);
            QVERIFY2(bounds.contains(PaintedBounds(surface)), qPrintable(QString::number(degree)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Hands)
#include "tst_Hands.moc"
