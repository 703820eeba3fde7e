#include <QTest>
#include <cmath>

#include "drawing/DialNumbers.h"

using namespace Qt::StringLiterals;
using drawing::NumberPlacing;
using drawing::NumberStyle;
using drawing::PaintedNumber;

class tst_DialNumbers : public QObject {
    Q_OBJECT

    /// A number at (100, 100) in a window 400 pixels high: the font is 36 high and 7 wide.
    static PaintedNumber At100(const QString& style, int hour, bool isBackward = false) {
        return NumberPlacing(NumberStyle(style), 6000, 1, isBackward).Place(hour, {100, 100});
    }

    static bool IsNear(double a, double b) { return std::abs(a - b) < 0.0001; }

private Q_SLOTS:
    void Angle_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("angle");
        constexpr double right = 1.5707963267949;
        QTest::newRow("forward 3") << u"None"_s << 15 << right;
        QTest::newRow("forward 9") << u"None"_s << 45 << -right;
        QTest::newRow("forward 6") << u"None"_s << 30 << 0.0;
        QTest::newRow("forward 12") << u"None"_s << 60 << -3.14159265358979;
        QTest::newRow("backward 3") << u"Analogue Backward"_s << 15 << -right;
        QTest::newRow("backward 9") << u"Analogue Backward"_s << 45 << right;
        QTest::newRow("right half 3") << u"Analogue Right Half"_s << 15 << right;
        QTest::newRow("right half 9") << u"Analogue Right Half"_s << 45 << right;
        QTest::newRow("left half 3") << u"Analogue Left Half"_s << 15 << -right;
        QTest::newRow("left half 9") << u"Analogue Left Half"_s << 45 << -right;
        QTest::newRow("right half 31") << u"Analogue Right Half"_s << 31 << 0.104719755119659;
        QTest::newRow("left half 30") << u"Analogue Left Half"_s << 30 << 0.0;
        QTest::newRow("unknown") << u"analogue backward"_s << 15 << right;
    }

    void Angle() {
        QFETCH(QString, special);
        QFETCH(int, index);
        QFETCH(double, angle);
        QVERIFY(std::abs(drawing::DialAngle(index, drawing::ReadClockSpecial(special)) - angle) <
                1e-9);
    }

    void Size_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("scaleHeight");
        QTest::addColumn<int>("property");
        QTest::addColumn<int>("size");
        const auto row = [](const char* name, const QString& special, int index, double height,
                            int property, int size) {
            QTest::newRow(name) << special << index << height << property << size;
        };
        row("automatic", u"None"_s, 5, 200, -1, 10);
        row("automatic, cut", u"None"_s, 5, 199, -1, 9);
        row("automatic, floor", u"None"_s, 5, 20, -1, 4);
        row("as it stands", u"None"_s, 5, 200, 7, 7);
        row("as it stands, below the floor", u"None"_s, 5, 200, 1, 1);
        row("as it stands, -2", u"None"_s, 5, 200, -2, -2);
        row("as it stands, huge", u"None"_s, 5, 200, 100000, 100000);
        row("even, hour 1", u"Analogue Hour Font Even"_s, 5, 200, 7, 10);
        row("even, hour 2", u"Analogue Hour Font Even"_s, 10, 200, 7, 20);
        row("quarter, hour 3", u"Analogue Hour Font Quarter"_s, 15, 200, 7, 20);
        row("quarter, hour 4", u"Analogue Hour Font Quarter"_s, 20, 200, 7, 10);
        row("triangle, hour 4", u"Analogue Hour Font Triangle"_s, 20, 200, 7, 20);
        row("triangle, hour 3", u"Analogue Hour Font Triangle"_s, 15, 200, 7, 10);
        row("falling, hour 1", u"Analogue Hour Font Big to Small"_s, 5, 310, 7, 47);
        row("falling, hour 12", u"Analogue Hour Font Big to Small"_s, 60, 300, 7, 13);
        row("falling, floor, hour 1", u"Analogue Hour Font Big to Small"_s, 5, 20, 7, 4);
        row("falling, floor, hour 12", u"Analogue Hour Font Big to Small"_s, 60, 20, 7, 4);
        row("rising, hour 1", u"Analogue Hour Font Small to Big"_s, 5, 300, 7, 7);
        row("rising, hour 12", u"Analogue Hour Font Small to Big"_s, 60, 300, 7, 30);
    }

    void Size() {
        QFETCH(QString, special);
        QFETCH(int, index);
        QFETCH(double, scaleHeight);
        QFETCH(int, property);
        QTEST(
            drawing::CaptionSize(index, drawing::ReadClockSpecial(special), scaleHeight, property),
            "size");
    }

    void SpotSizes() {
        QCOMPARE(drawing::SpotSize(-1, 299, 1), 5);
        QCOMPARE(drawing::SpotSize(-1, 100, 1), 4);
        QCOMPARE(drawing::SpotSize(-1, 100, 2), 8);
        QCOMPARE(drawing::SpotSize(0, 300, 1), 0);
        QCOMPARE(drawing::SpotSize(7, 300, 1), 7);
        QCOMPARE(drawing::SpotSize(7, 300, 2), 14);
        QCOMPARE(drawing::SpotSize(-5, 300, 1), 0);
    }

    void SpotTimes() {
        QCOMPARE(drawing::SpotTime(1), u"0:12"_s);
        QCOMPARE(drawing::SpotTime(5), u"1:00"_s);
        QCOMPARE(drawing::SpotTime(6), u"1:12"_s);
        QCOMPARE(drawing::SpotTime(59), u"11:48"_s);
        QCOMPARE(drawing::SpotTime(60), u"12:00"_s);
    }

    void FontFollowsTheWindow_data() {
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<int>("fontHeight");
        QTest::addColumn<int>("fontWidth");
        QTest::newRow("400 pixels") << 6000.0 << 1.0 << 36 << 7;
        QTest::newRow("250 pixels") << 3750.0 << 1.0 << 22 << 4;
        QTest::newRow("fine screen") << 6000.0 << 2.0 << 72 << 14;
        QTest::newRow("83 twips") << 83.0 << 1.0 << 0 << 0;
        QTest::newRow("84 twips") << 84.0 << 1.0 << 1 << 0;
    }

    void FontFollowsTheWindow() {
        QFETCH(double, height);
        QFETCH(double, ratio);
        const NumberPlacing placing(NumberStyle(u"Roman 12"_s), height, ratio, false);
        QTEST(placing.Height(), "fontHeight");
        QTEST(placing.Width(), "fontWidth");
    }

    void Radial_data() {
        QTest::addColumn<int>("hour");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("escapement");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::newRow("1") << 1 << u"I"_s << 6800 << 115.6 << 78.6;
        QTest::newRow("2") << 2 << u"II"_s << 3000 << 119.56 << 81.12;
        QTest::newRow("3") << 3 << u"III"_s << 2700 << 117.4 << 85.8;
        QTest::newRow("4") << 4 << u"IIII"_s << 2360 << 125.68 << 100.92;
        QTest::newRow("5") << 5 << u"V"_s << 2150 << 121.36 << 110.64;
        QTest::newRow("6") << 6 << u"VI"_s << 1800 << 108.4 << 114.6;
        QTest::newRow("7") << 7 << u"VII"_s << 1450 << 92.2 << 121.8;
        QTest::newRow("8") << 8 << u"VIII"_s << 1200 << 83.2 << 120.36;
        QTest::newRow("9") << 9 << u"IX"_s << -2700 << 77.44 << 104.88;
        QTest::newRow("10") << 10 << u"X"_s << -3000 << 73.12 << 87.6;
        QTest::newRow("11") << 11 << u"XI"_s << -3270 << 76.36 << 83.64;
        QTest::newRow("12") << 12 << u"XII"_s << 0 << 86.8 << 81.84;
    }

    void Radial() {
        QFETCH(int, hour);
        QFETCH(double, x);
        QFETCH(double, y);
        const PaintedNumber number = At100(u"True Roman 12"_s, hour);
        QTEST(number.Text, "text");
        QTEST(number.Font.Escapement, "escapement");
        QVERIFY2(IsNear(number.X, x), qPrintable(QString::number(number.X)));
        QVERIFY2(IsNear(number.Y, y), qPrintable(QString::number(number.Y)));
        QCOMPARE(number.Font.Height, 36);
        QCOMPARE(number.Font.Width, 7);
    }

    void Font() {
        const drawing::LogFont font = At100(u"Roman 12"_s, 4).Font;
        QCOMPARE(font.FaceName, u"Times New Roman"_s);
        QCOMPARE(font.Weight, 10000000);
        QVERIFY(!font.Italic && !font.Underline && !font.StrikeOut);
    }

    void Upright_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("hour");
        QTest::addColumn<bool>("isBackward");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<int>("width");
        const auto row = [](const char* name, const QString& style, int hour, bool isBackward,
                            const QString& text, double x, double y, int width) {
            QTest::newRow(name) << style << hour << isBackward << text << x << y << width;
        };
        row("Roman 4", u"Roman 12"_s, 4, false, u"IIII"_s, 88.1666667, 81, 7);
        row("Roman 8", u"Roman 12"_s, 8, false, u"VIII"_s, 77.2, 81, 7);
        row("Roman 12", u"Roman 12"_s, 12, true, u"XII"_s, 88.1666667, 81, 7);
        row("3D 1", u"3D 12"_s, 1, false, u"1"_s, 88.4, 79.5, 14);
        row("3D 12", u"3D 12"_s, 12, true, u"12"_s, 88.4, 79.5, 14);
        row("3D 10", u"3D 12"_s, 10, false, u"10"_s, 77.2, 79.5, 14);
        row("3D 11", u"3D 12"_s, 11, false, u"11"_s, 74.4, 79.5, 14);
        row("3D 10 backward", u"3D 12"_s, 10, true, u"10"_s, 81.4, 80.4, 14);
        row("3D 11 backward", u"3D 12"_s, 11, true, u"11"_s, 81.4, 80.4, 14);
    }

    void Upright() {
        QFETCH(QString, style);
        QFETCH(int, hour);
        QFETCH(bool, isBackward);
        QFETCH(double, x);
        QFETCH(double, y);
        const PaintedNumber number = At100(style, hour, isBackward);
        QTEST(number.Text, "text");
        QVERIFY2(IsNear(number.X, x), qPrintable(QString::number(number.X)));
        QVERIFY2(IsNear(number.Y, y), qPrintable(QString::number(number.Y)));
        QTEST(number.Font.Width, "width");
        QCOMPARE(number.Font.Escapement, 0);
    }

    void ClickArea() {
        const NumberPlacing placing(NumberStyle(u"Roman 12"_s), 6000, 1, false);
        const QRectF area = placing.ClickArea({100, 100});
        QVERIFY(IsNear(area.left(), 87.0769231));
        QCOMPARE(area.top(), 84.0);
        QCOMPARE(area.width(), 14.0);
        QVERIFY(IsNear(area.height(), 27.6923077));
    }

    void OddWindowsArePlaced() {
        for (const double height : {0.0, -15.0, 15.0, 1e9}) {
            const NumberPlacing placing(NumberStyle(u"3D 12"_s), height, 1, false);
            QCOMPARE(placing.Place(10, {32767, -32768}).Text, u"10"_s);
        }
    }
};

QTEST_APPLESS_MAIN(tst_DialNumbers)
#include "tst_DialNumbers.moc"
