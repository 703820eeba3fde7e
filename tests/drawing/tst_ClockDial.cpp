#include <QBuffer>
#include <QTest>
#include <cmath>

#include "drawing/ClockDial.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::ClockDial;
using drawing::PaintedNumber;
using mduUILib::Control;

constexpr int Red = 255;
constexpr int ColourA = 4161471;   // of the random numbers 0.25, 0.5, 0.75
constexpr int ColourB = 12549951;  // of 0.75, 0.5, 0.25

/// A dial on a square surface: red numbers at 75 %, spots at 95 %, sizes by themselves.
struct DialOnFace : FakeFace {
    explicit DialOnFace(const QString& numberStyle, int size = 400, double ratio = 1)
        : FakeFace(size, size, ratio) {
        Set(u"Clock CentralX(%)"_s, u"-1"_s);
        Set(u"Clock CentralY(%)"_s, u"-1"_s);
        Set(u"Hour Number Style"_s, numberStyle);
        Set(u"Hour Number Position(%)"_s, u"75"_s);
        Set(u"Hour Number Size"_s, u"-1"_s);
        Set(u"Hour Number Font"_s, u"Arial"_s);
        Set(u"Hour Number Colour"_s, u"Red"_s);
        Set(u"Minute Spot Style"_s, u"Spot 60"_s);
        Set(u"Minute Spot Position(%)"_s, u"95"_s);
        Set(u"Minute Spot Size"_s, u"-1"_s);
        Set(u"Clock Special"_s, u"None"_s);
        Machine.Random.Numbers = {0.25, 0.5, 0.75, 0.75, 0.5, 0.25};
    }

    ClockDial Dial{Context()};

    DialOnFace& LaidOut() {
        Dial.SetClockDial({drawing::DialParts::All});
        return *this;
    }

    const Control& Label(int index) const { return Controls.lblHour(index); }
    const Control& Spot(int index) const { return Controls.imgClockNumber(index); }

    /// How many pixels of a colour a painted still layer has.
    int Pixels(int colour) {
        Window.Drawn.Cls(0xFFFFFF);
        Dial.PaintStill(Window.Drawn);
        return Count(colour);
    }

    int Count(int colour) const {
        const QImage& image = Window.Drawn.Image();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixel(x, y) == drawing::ToRgb(colour) ? 1 : 0;
            }
        }
        return count;
    }

    QString VisibleSpots() const { return Visible(Controls.imgClockNumber); }
    QString VisibleLabels() const { return Visible(Controls.lblHour); }

private:
    static QString Visible(const mduUILib::ControlArray& array) {
        QStringList visible;
        for (int index = 1; index <= 60; ++index) {
            if (array(index).Visible) {
                visible += QString::number(index);
            }
        }
        return visible.join(u' ');
    }
};

class tst_ClockDial : public QObject {
    Q_OBJECT

    static double MiddleOf(const Control& label) {
        return static_cast<double>(label.Left + label.Width / 2);
    }
    static double PointAbove(const Control& label) {
        return static_cast<double>(label.Top) + static_cast<double>(label.Height) / 1.6;
    }
    static bool IsNear(double a, double b) { return std::abs(a - b) < 0.001; }

private Q_SLOTS:
    void CaptionsStandOnTheirRing_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("index");
        QTest::addColumn<QPointF>("point");
        const QString none = u"None"_s;
        QTest::newRow("3") << none << 15 << QPointF(344, 200);
        QTest::newRow("12") << none << 60 << QPointF(200, 56);
        QTest::newRow("9") << none << 45 << QPointF(56, 200);
        QTest::newRow("1") << none << 5 << QPointF(272, 75);
        const QString backward = u"Analogue Backward"_s;
        QTest::newRow("backward 3") << backward << 15 << QPointF(58, 200);
        QTest::newRow("backward 12") << backward << 60 << QPointF(202, 56);
        const QString right = u"Analogue Right Half"_s;
        QTest::newRow("right half 5") << right << 25 << QPointF(272, 325);
        QTest::newRow("right half 7") << right << 35 << QPointF(272, 325);
        QTest::newRow("right half 11") << right << 55 << QPointF(272, 75);
        QTest::newRow("left half 3") << u"Analogue Left Half"_s << 15 << QPointF(56, 200);
    }

    void CaptionsStandOnTheirRing() {
        QFETCH(QString, special);
        QFETCH(int, index);
        QFETCH(QPointF, point);
        DialOnFace face(u"Number 12"_s);
        face.Set(u"Clock Special"_s, special);
        const Control& label = face.LaidOut().Label(index);
        QVERIFY(IsNear(MiddleOf(label), point.x()));
        QVERIFY(IsNear(PointAbove(label), point.y()));
    }

    void CaptionsTellTheHour() {
        DialOnFace face(u"Number 12"_s);
        face.LaidOut();
        QCOMPARE(face.Label(5).Caption, u"1"_s);
        QCOMPARE(face.Label(60).Caption, u"12"_s);
        QCOMPARE(face.Label(15).Font.family(), u"Arial"_s);
        QCOMPARE(face.Label(15).Font.pointSize(), 20);
        QCOMPARE(face.Label(15).ForeColor, Red);
        QVERIFY(!face.Dial.NumbersArePainted());
        QVERIFY(face.Pixels(Red) > 100);
    }

    void LabelsBetweenTheHoursAreBlankTargets() {
        DialOnFace face(u"Number Cross 4"_s);
        face.LaidOut();
        QCOMPARE(face.VisibleLabels(), u"13 14 15 16 17 28 29 30 31 32 43 44 45 46 47 58 59 60"_s);
        QCOMPARE(face.Label(14).Caption, QString());
        QVERIFY(face.Label(14).Height > 20);
        QCOMPARE(face.Label(14).Width, face.Label(14).Height);
    }

    void FewerNumbersHideTheOthers() {
        DialOnFace face(u"Number 12"_s);
        face.LaidOut();
        face.Set(u"Hour Number Style"_s, u"Number Vertical 2"_s);
        face.LaidOut();
        QVERIFY(face.Label(60).Visible && face.Label(30).Visible);
        QVERIFY(!face.Label(15).Visible && !face.Label(5).Visible);
        face.Set(u"Hour Number Style"_s, u"No Numbers"_s);
        QCOMPARE(face.LaidOut().VisibleLabels(), QString());
        face.Set(u"Hour Number Style"_s, u"Somehow"_s);
        QCOMPARE(face.LaidOut().VisibleLabels(), QString());
    }

    void StyleGivenGoesBeforeTheProperty() {
        DialOnFace face(u"Number 12"_s);
        face.Dial.SetClockDial({.Style = u"True Roman Vertical 2"_s});
        QVERIFY(face.Dial.NumbersArePainted());
        QCOMPARE(face.Dial.Numbers().size(), 2U);
    }

    void FontSizes_data() {
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("size1");
        QTest::addColumn<int>("size12");
        QTest::newRow("none") << u"None"_s << 20 << 20;
        QTest::newRow("even") << u"Analogue Hour Font Even"_s << 20 << 40;
        QTest::newRow("falling") << u"Analogue Hour Font Big to Small"_s << 61 << 17;
        QTest::newRow("rising") << u"Analogue Hour Font Small to Big"_s << 9 << 41;
    }

    void FontSizes() {
        QFETCH(QString, special);
        DialOnFace face(u"Number 12"_s);
        face.Set(u"Clock Special"_s, special);
        face.LaidOut();
        QTEST(face.Label(5).Font.pointSize(), "size1");
        QTEST(face.Label(60).Font.pointSize(), "size12");
    }

    void SizeOfASmallClock() {
        DialOnFace face(u"Number 12"_s, 200);
        QCOMPARE(face.LaidOut().Label(5).Font.pointSize(), 10);
    }

    void FineScreenHasTwiceThePixels() {
        DialOnFace plain(u"Number 12"_s, 400);
        DialOnFace fine(u"Number 12"_s, 800, 2);
        plain.LaidOut();
        fine.LaidOut();
        QCOMPARE(fine.Label(15).Font.pointSize(), 20);
        QVERIFY(IsNear(MiddleOf(fine.Label(15)), 688));
        QVERIFY(std::abs(fine.Label(15).Height - 2 * plain.Label(15).Height) <= 2);
        QCOMPARE(fine.Spot(15).Width, 16.0F);
    }

    void PaintedNumbersAreKeptForPainting() {
        DialOnFace face(u"Roman Horizontal 2"_s);
        face.LaidOut();
        QVERIFY(face.Dial.NumbersArePainted());
        QVERIFY(face.Dial.Shadows().empty());
        QCOMPARE(face.Dial.Numbers().size(), 2U);
        const PaintedNumber& three = face.Dial.Numbers()[0];  // stands at (344, 200)
        QCOMPARE(three.Text, u"III"_s);
        QVERIFY(IsNear(three.X, 332.16667));
        QVERIFY(IsNear(three.Y, 181));
        QCOMPARE(three.Font.Height, 36);
        QCOMPARE(three.Font.Width, 7);
        QCOMPARE(three.Colour, Red);
        QVERIFY(face.Pixels(Red) > 50);
    }

    void PaintedNumbersStandWhereTheyShould() {
        DialOnFace face(u"Roman Cross 4"_s);
        face.Set(u"Minute Spot Style"_s, u"No Spots"_s);
        face.LaidOut().Pixels(Red);
        const QImage& image = face.Window.Drawn.Image();
        QRect inked;
        for (int i = 0; i < 400 * 100; ++i) {  // the top quarter holds hour 12 alone
            if (image.pixel(i % 400, i / 400) == qRgb(255, 0, 0)) {
                inked |= QRect(i % 400, i / 400, 1, 1);
            }
        }
        QVERIFY(std::abs(inked.center().x() - 200) <= 5);
        QVERIFY(std::abs(inked.center().y() - 56) <= 5);
        QVERIFY(inked.height() >= 19 && inked.height() <= 24);  // capitals: 0.655 of the em
    }

    void PaintedNumbersHideTheCaptions() {
        DialOnFace face(u"Number 12"_s);
        face.LaidOut();
        face.Set(u"Hour Number Style"_s, u"True Roman 12"_s);
        face.LaidOut();
        QCOMPARE(face.VisibleLabels(), u"60"_s);  // a click target without a text
        QCOMPARE(face.Label(60).Caption, u"  "_s);
        QCOMPARE(face.Label(15).Width, 14.0F);
        QVERIFY(IsNear(static_cast<double>(face.Label(15).Left), 331.07692));
        QCOMPARE(face.Label(15).Top, 184.0F);
    }

    void ThreeDNumbersHaveAShadow() {
        DialOnFace face(u"3D Horizontal 2"_s);
        face.LaidOut();
        QCOMPARE(face.Dial.Shadows().size(), 2U);
        const PaintedNumber& shadow = face.Dial.Shadows()[0];  // stands at (342, 202)
        const PaintedNumber& number = face.Dial.Numbers()[0];
        QCOMPARE(shadow.Text, u"3"_s);
        QCOMPARE(shadow.Colour, 0x1E1E1E);
        QVERIFY(IsNear(shadow.X, 330.4));
        QVERIFY(IsNear(shadow.Y, 181.5));
        QCOMPARE(number.Colour, Red);
        QVERIFY(IsNear(number.X, 332.4));
        QVERIFY(IsNear(number.Y, 179.5));
    }

    void ShadowIsPaintedFirst() {
        DialOnFace face(u"3D 12"_s);
        face.Set(u"Minute Spot Style"_s, u"No Spots"_s);
        face.LaidOut();
        drawing::Surface alone(400, 400, 1);
        alone.Cls(0xFFFFFF);
        for (const PaintedNumber& number : face.Dial.Numbers()) {
            drawing::DrawFontText(alone, number.Text, number.X, number.Y, number.Font, Red);
        }
        QVERIFY(face.Pixels(Red) > 500);
        QVERIFY(face.Count(0x1E1E1E) > 100);
        for (int i = 0; i < 400 * 400; ++i) {  // the numbers are whole, whatever lies below
            if (alone.Image().pixel(i % 400, i / 400) == qRgb(255, 0, 0)) {
                QCOMPARE(qRed(face.Window.Drawn.Image().pixel(i % 400, i / 400)), 255);
            }
        }
    }

    void ShadowOfALargeDialIsLimited() {
        DialOnFace face(u"3D Horizontal 2"_s, 800);
        face.LaidOut();
        // Numbers stand at (688, 400); the shadow at (686, 403).
        const PaintedNumber& shadow = face.Dial.Shadows()[0];
        const PaintedNumber& number = face.Dial.Numbers()[0];
        QVERIFY(IsNear(number.X - shadow.X, 2));
        QVERIFY(IsNear(shadow.Y - number.Y, 3));
    }

    void BothWaysToLayOutLeaveTheSame() {
        DialOnFace face(u"3D 12"_s);
        face.LaidOut();
        const int red = face.Pixels(Red);
        face.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
        QCOMPARE(face.Dial.Shadows().size(), 12U);
        QCOMPARE(face.Pixels(Red), red);
        face.Dial.SetClockDial({drawing::DialParts::Numbers, u"Roman 12"_s});
        QVERIFY(face.Dial.Shadows().empty());
    }

    void ShadowForm() {
        DialOnFace face(u"Roman 12"_s);
        face.Dial.SetClockDial({.Parts = drawing::DialParts::Numbers, .AsShadow = true});
        QCOMPARE(face.Dial.Shadows().size(), 12U);
        QVERIFY(face.Dial.Numbers().empty());
    }

    void TinyWindowTakesTheDefaultFont() {
        DialOnFace face(u"Roman 12"_s, 5);  // 75 twips
        QCOMPARE(face.LaidOut().Dial.Numbers()[0].Font.Height, 0);
    }

    void SpotsStandUpAndLeftOfTheirRing() {
        DialOnFace face(u"No Numbers"_s);
        face.LaidOut();  // 8 pixels large, on a ring of 182
        QCOMPARE(face.Spot(15).Left, 374.0F);
        QCOMPARE(face.Spot(15).Top, 192.0F);
        QVERIFY(std::abs(face.Spot(60).Left - 192) < 0.001F);
        QCOMPARE(face.Spot(60).Top, 10.0F);
        QCOMPARE(face.Spot(15).Width, 8.0F);
        QCOMPARE(face.Spot(15).Height, 8.0F);
        face.Set(u"Minute Spot Size"_s, u"5"_s);
        face.LaidOut();  // 200 - 2.5 rounds to 198
        QCOMPARE(face.Spot(15).Left, 377.5F);
        QCOMPARE(face.Spot(15).Top, 195.5F);
    }

    void SpotsFollowTheSpecialFace() {
        DialOnFace face(u"No Numbers"_s);
        face.Set(u"Clock Special"_s, u"Analogue Backward"_s);
        QCOMPARE(face.LaidOut().Spot(15).Left, 10.0F);
    }

    void SpotsTellTheirTime() {
        DialOnFace face(u"No Numbers"_s);
        face.LaidOut();
        QCOMPARE(face.Spot(6).ToolTipText, u"1:12"_s);
        QCOMPARE(face.Spot(60).ToolTipText, u"12:00"_s);
    }

    void SpotsByStyle() {
        DialOnFace face(u"No Numbers"_s);
        face.Set(u"Minute Spot Style"_s, u"Spot 8"_s);
        QCOMPARE(face.LaidOut().VisibleSpots(), u"5 10 20 25 35 40 50 55"_s);
        QCOMPARE(face.Spot(5).Tag, u"True"_s);
        QCOMPARE(face.Spot(15).Tag, u"False"_s);
        face.Set(u"Minute Spot Style"_s, u"No Spots"_s);
        QCOMPARE(face.LaidOut().VisibleSpots(), QString());
    }

    void SpotsOfSizeZeroAreNone() {
        DialOnFace face(u"No Numbers"_s);
        face.Set(u"Minute Spot Size"_s, u"0"_s);
        QCOMPARE(face.LaidOut().VisibleSpots(), QString());
        face.Dial.ShowMinuteSpots(10);
        QCOMPARE(face.VisibleSpots(), QString());
    }

    void SpotPicturesDifferByHalfAndAreShared() {
        DialOnFace face(u"No Numbers"_s);
        face.LaidOut();
        QVERIFY(face.Spot(1).Picture && !face.Spot(1).Picture->isNull());
        QCOMPARE(face.Spot(1).Picture, face.Spot(30).Picture);
        QCOMPARE(face.Spot(1).Picture, face.Spot(60).Picture);
        QCOMPARE(face.Spot(31).Picture, face.Spot(59).Picture);
        QVERIFY(*face.Spot(30).Picture != *face.Spot(31).Picture);
        QCOMPARE(face.Spot(1).Picture->size(), QSize(8, 8));
    }

    void SpotPictureOfAFile() {
        QImage green(6, 6, QImage::Format_RGB32);
        green.fill(Qt::green);
        QByteArray content;
        QBuffer buffer(&content);
        buffer.open(QIODevice::WriteOnly);
        green.save(&buffer, "BMP");
        DialOnFace face(u"No Numbers"_s);
        face.Machine.WriteFile(u"Images/spot.bmp"_s, content);
        face.Set(u"Minute Spot Image File"_s, u".\\Images\\spot.bmp"_s);
        face.LaidOut().Pixels(0x00FF00);
        QCOMPARE(face.Spot(1).Picture, face.Spot(31).Picture);
        QCOMPARE(face.Window.Drawn.Image().pixel(378, 196), qRgb(0, 255, 0));
    }

    void MissingSpotPictureLeavesTheStoredOnes() {
        DialOnFace face(u"No Numbers"_s);
        face.Machine.WriteFile(u"Images/broken.jpg"_s, "no picture");
        for (const QString& file :
             {u".\\Images\\none.bmp"_s, u".\\Images\\broken.jpg"_s, u"None"_s, QString()}) {
            face.Set(u"Minute Spot Image File"_s, file);
            face.LaidOut();
            QVERIFY(face.Spot(1).Picture != face.Spot(31).Picture);
            QVERIFY(face.Spot(1).Visible);
        }
    }

    void NumbersOnlyLeavesTheSpots() {
        DialOnFace face(u"Number 12"_s);
        face.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
        QCOMPARE(face.VisibleSpots(), QString());
        QVERIFY(face.Label(15).Visible);
    }

    void HidesAll() {
        DialOnFace face(u"3D 12"_s);
        face.LaidOut();
        face.Dial.SetClockDial({drawing::DialParts::None});
        QCOMPARE(face.VisibleLabels() + face.VisibleSpots(), QString());
        QVERIFY(face.Dial.Numbers().empty() && face.Dial.Shadows().empty());
        QVERIFY(!face.Dial.NumbersArePainted());
        face.Dial.ShowMinuteSpots(3);
        face.Dial.ApplyClockSpecial();
        QCOMPARE(face.VisibleLabels() + face.VisibleSpots(), QString());
    }

    void ShowsTheSpotsThatTheirTagsWant() {
        DialOnFace face(u"No Numbers"_s);
        face.Set(u"Minute Spot Style"_s, u"Vertical 2"_s);
        face.LaidOut();
        const int changes = face.Window.StillChanges;
        face.Controls.imgClockNumber(30).Visible = false;
        face.Controls.imgClockNumber(7).Visible = true;
        face.Dial.ShowMinuteSpots(12);
        QCOMPARE(face.VisibleSpots(), u"30 60"_s);
        QCOMPARE(face.Window.StillChanges, changes + 1);
    }

    void ApplyClockSpecialLaysOutAnew() {
        DialOnFace face(u"Number 12"_s);
        face.LaidOut();
        face.Set(u"Clock Special"_s, u"Analogue Hour Font Even"_s);
        const int changes = face.Window.StillChanges;
        face.Dial.ApplyClockSpecial();
        QCOMPARE(face.Label(10).Font.pointSize(), 40);
        QCOMPARE(face.Window.StillChanges, changes + 1);
    }

    void ColourOfTheBackgroundGetsASecondChance() {
        DialOnFace face(u"Roman 12"_s);
        face.Set(u"Hour Number Colour"_s, u"Random"_s);
        face.Window.Colour = ColourA;
        QCOMPARE(face.LaidOut().Dial.Numbers()[0].Colour, ColourB);
        face.Window.Colour = 0;
        QCOMPARE(face.LaidOut().Dial.Numbers()[0].Colour, ColourA);
        face.Set(u"Hour Number Colour"_s, u"Black"_s);
        QCOMPARE(face.LaidOut().Dial.Numbers()[0].Colour, 0);
    }

    void CaptionsTakeAColourEach() {
        DialOnFace face(u"Number Vertical 2"_s);
        face.Set(u"Hour Number Colour"_s, u"random"_s);
        face.LaidOut();  // the indexes 28, 29, 30, 31, 32, 58, 59, 60 in turn
        QCOMPARE(face.Label(28).ForeColor, ColourA);
        QCOMPARE(face.Label(29).ForeColor, ColourB);
        QVERIFY(!face.Dial.NumbersAreRandom());
    }

    void NumbersAreRandom() {
        DialOnFace face(u"Roman 12"_s);
        QVERIFY(!face.LaidOut().Dial.NumbersAreRandom());
        face.Set(u"Hour Number Colour"_s, u" RANDOM "_s);
        QVERIFY(face.LaidOut().Dial.NumbersAreRandom());
        face.Set(u"Hour Number Colour"_s, u"Red"_s);
        face.Set(u"Clock Special"_s, u"Analogue Hour Number Random Colour"_s);
        QVERIFY(face.LaidOut().Dial.NumbersAreRandom());
    }

    void RecolouredNumbersLieAboveTheHands() {
        DialOnFace face(u"True Roman 12"_s);
        face.Set(u"Clock Special"_s, u"Analogue Hour Number Random Colour"_s);
        face.LaidOut();
        face.Window.Drawn.Cls(0);
        face.Dial.PaintNumbersOver(face.Window.Drawn);
        QCOMPARE(face.Count(0), 400 * 400);
        face.Dial.RecolourNumbers();
        face.Dial.PaintNumbersOver(face.Window.Drawn);
        QVERIFY(face.Count(ColourA) > 50);
        QVERIFY(face.Count(ColourB) > 50);
        QCOMPARE(face.Count(Red), 0);
        face.Set(u"Clock Special"_s, u"None"_s);
        face.Window.Drawn.Cls(0);
        face.Dial.PaintNumbersOver(face.Window.Drawn);
        QCOMPARE(face.Count(0), 400 * 400);
    }

    void RecoloursCaptions() {
        DialOnFace face(u"Number 12"_s);
        face.Set(u"Clock Special"_s, u"Analogue Hour Number Random Colour"_s);
        face.LaidOut();
        const int changes = face.Window.StillChanges;
        face.Dial.RecolourNumbers();
        QCOMPARE(face.Label(5).ForeColor, ColourA);
        QCOMPARE(face.Label(10).ForeColor, ColourB);
        QCOMPARE(face.Window.StillChanges, changes + 1);
    }

    void OddValues_data() {
        QTest::addColumn<QString>("value");
        for (const char* value : {"-1", "0", "1", "-7", "100000", "99999999999", "abc", ""}) {
            QTest::newRow(value) << QString::fromLatin1(value);
        }
    }

    void OddValues() {
        QFETCH(QString, value);
        for (const QString& style : {u"Number 12"_s, u"True Roman 12"_s, u"3D 12"_s}) {
            DialOnFace face(style);
            for (const QString& key :
                 {u"Hour Number Size"_s, u"Minute Spot Size"_s, u"Hour Number Position(%)"_s,
                  u"Minute Spot Position(%)"_s, u"Clock CentralX(%)"_s, u"Clock CentralY(%)"_s}) {
                face.Set(key, value);
                face.LaidOut().Pixels(Red);
            }
            for (const QString& key :
                 {u"Hour Number Font"_s, u"Hour Number Colour"_s, u"Hour Number Style"_s,
                  u"Minute Spot Style"_s, u"Clock Special"_s, u"Minute Spot Image File"_s}) {
                face.Set(key, value);
                face.LaidOut().Pixels(Red);
            }
        }
    }

    void SizesBelowOnePaintNoCaption() {
        DialOnFace face(u"Number 12"_s);
        face.Set(u"Minute Spot Style"_s, u"No Spots"_s);
        for (const QString& size : {u"0"_s, u"-2"_s, u"100000"_s}) {
            face.Set(u"Hour Number Size"_s, size);
            QCOMPARE(face.LaidOut().Pixels(0xFFFFFF), 400 * 400);
        }
        face.Set(u"Hour Number Size"_s, u"1"_s);
        QVERIFY(face.LaidOut().Label(15).Visible);
    }

    void OddSurfaces() {
        for (const QString& style : {u"Number 12"_s, u"True Roman 12"_s, u"3D 12"_s}) {
            for (const int size : {1, 2, 4000}) {
                DialOnFace face(style, size);
                face.LaidOut();
                face.Dial.PaintStill(face.Window.Drawn);
                QCOMPARE(face.Dial.Numbers().size(), style == u"Number 12"_s ? 0U : 12U);
            }
        }
    }

    void HugeSpotsAreQuick() {
        DialOnFace face(u"No Numbers"_s, 4000);
        for (const QString& size : {u"2000"_s, u"4000"_s, u"100000"_s}) {
            face.Set(u"Minute Spot Size"_s, size);
            face.LaidOut();
            face.Dial.PaintStill(face.Window.Drawn);
        }
    }
};

QTEST_MAIN(tst_ClockDial)
#include "tst_ClockDial.moc"
