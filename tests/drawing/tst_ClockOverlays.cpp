#include <QBuffer>
#include <QTest>

#include "drawing/ClockOverlays.h"
#include "drawing/LabelText.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::ClockOverlays;

namespace {

/// A face with its overlays, and the keys as a new clock has them.
struct Overlaid : FakeFace {
    explicit Overlaid(int width = 200, int height = 200, double ratio = 1)
        : FakeFace(width, height, ratio), Part(Context()) {
        Set(u"Clocks"_s, u"Analogue"_s);
        Set(u"Flag Position"_s, u"Top right"_s);
        Set(u"Sun Moon Size"_s, u"24"_s);
        Set(u"Time Zone Colour"_s, u"Blue"_s);
        Set(u"Time Zone Label Size"_s, u"-1"_s);
        for (const QString& key :
             {u"Time Zone Name Left"_s, u"Time Zone Name Top"_s, u"Speaker Image Left"_s,
              u"Speaker Image Top"_s, u"Transparent Icon Left"_s, u"Transparent Icon Top"_s,
              u"Clock CentralX(%)"_s, u"Clock CentralY(%)"_s}) {
            Set(key, u"-1"_s);
        }
        Controls.lblLocation(1).Caption = u"Tokyo"_s;
    }

    ClockOverlays Part;

    /// A flag of the proportion 3 to 2.
    void WriteFlag(const QString& relativePath = u"flag.bmp"_s) {
        QImage flag(30, 20, QImage::Format_RGB32);
        flag.fill(Qt::red);
        QBuffer buffer;
        flag.save(&buffer, "BMP");
        Machine.WriteFile(relativePath, buffer.data());
        Set(u"Flag File"_s, u".\\"_s + relativePath);
    }
    void SetTime(int hour, int minute, int second) {
        Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(hour, minute, second), Qt::UTC));
    }
    /// Lays all out from the properties, and shows the name.
    const mduUILib::Control& Location() {
        Part.LayOutOverlays();
        Part.SetLocationLabel();
        return Controls.lblLocation(1);
    }
    const mduUILib::Control& Flag() { return Controls.imgFlag(1); }
};

QRectF RectOf(const mduUILib::Control& control) {
    return {static_cast<double>(control.Left), static_cast<double>(control.Top),
            static_cast<double>(control.Width), static_cast<double>(control.Height)};
}

}  // namespace

class tst_ClockOverlays : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FlagStandsInItsCorner_data() {
        QTest::addColumn<QString>("position");
        QTest::addColumn<QRectF>("place");
        QTest::newRow("top right") << u"Top right"_s << QRectF(146, 0, 54, 36);
        QTest::newRow("top left") << u"Top left"_s << QRectF(0, 0, 54, 36);
        QTest::newRow("bottom right") << u"Bottom right"_s << QRectF(146, 164, 54, 36);
        QTest::newRow("bottom left") << u"Bottom left"_s << QRectF(0, 164, 54, 36);
        QTest::newRow("case") << u"BOTTOMLEFT"_s << QRectF(0, 164, 54, 36);
        QTest::newRow("anything else") << u"nowhere"_s << QRectF(146, 0, 54, 36);
        QTest::newRow("absent") << u"0"_s << QRectF(146, 0, 54, 36);
    }
    void FlagStandsInItsCorner() {
        QFETCH(QString, position);
        QFETCH(QRectF, place);
        Overlaid face;
        face.WriteFlag();
        face.Set(u"Flag Position"_s, position);
        face.Part.LoadFlag();
        QVERIFY(face.Flag().Visible);
        QCOMPARE(RectOf(face.Flag()), place);
        QCOMPARE(face.Flag().Picture->size(), QSize(54, 36));
        QVERIFY(face.Window.Icons.empty());
    }

    void FlagFollowsTheSurface() {
        Overlaid face;
        face.WriteFlag();
        face.Part.LoadFlag();
        face.Window.Resize(400, 100);
        face.Part.LayOutOverlays();
        QCOMPARE(RectOf(face.Flag()), QRectF(373, 0, 27, 18));
        face.Window.Resize(1, 1);
        face.Part.LayOutOverlays();
        QCOMPARE(face.Flag().Height, 0.18F);
    }

    // Scaled to its place it would be far beyond what a picture may measure.
    void FlagLikeAThreadKeepsItsFile() {
        Overlaid face;
        QImage thread(3000, 1, QImage::Format_RGB32);
        thread.fill(Qt::red);
        QBuffer buffer;
        thread.save(&buffer, "BMP");
        face.Machine.WriteFile(u"thread.bmp"_s, buffer.data());
        face.Set(u"Flag File"_s, u".\\thread.bmp"_s);
        face.Part.LoadFlag();
        QCOMPARE(face.Flag().Width, 108000.0F);
        QCOMPARE(face.Flag().Picture->size(), QSize(3000, 1));
    }

    void FlagAsIcon() {
        Overlaid face;
        face.WriteFlag();
        face.Set(u"Flag Position"_s, u"Icon"_s);
        face.Part.LoadFlag();
        QVERIFY(!face.Flag().Visible);
        QCOMPARE(face.Window.Icons.size(), 1U);
        QCOMPARE(face.Window.Icons[0].size(), QSize(30, 20));
        face.Part.LayOutOverlays();
        QCOMPARE(face.Window.Icons.size(), 1U);
        // Back on the dial, the window has its stored icon again.
        face.Set(u"Flag Position"_s, u"Top left"_s);
        face.Part.SetFlagPosition();
        QVERIFY(face.Flag().Visible);
        QCOMPARE(face.Window.Icons.size(), 2U);
        QVERIFY(face.Window.Icons[1].isNull());
    }

    void IconWithoutAFlagIsTheStoredOne() {
        Overlaid face;
        face.Set(u"Flag Position"_s, u"Icon"_s);
        face.Set(u"Flag File"_s, u""_s);
        face.Part.LoadFlag();
        QCOMPARE(face.Window.Icons.size(), 1U);
        QVERIFY(face.Window.Icons[0].isNull());
    }

    void NoFlagToShow_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("absent") << u"0"_s;
        QTest::newRow("none") << u"None"_s;
        QTest::newRow("missing") << u".\\missing.bmp"_s;
        QTest::newRow("no picture") << u".\\text.bmp"_s;
        QTest::newRow("a folder") << u".\\"_s;
    }
    void NoFlagToShow() {
        QFETCH(QString, file);
        Overlaid face;
        face.WriteFlag();
        face.Part.LoadFlag();
        face.Machine.WriteFile(u"text.bmp"_s, "no picture at all");
        face.Set(u"Flag File"_s, file);
        face.Part.LoadFlag();
        QVERIFY(!face.Flag().Visible);
        QVERIFY(!face.Flag().Picture);
        QCOMPARE(face.Flag().Height, 36.0F);
    }

    // On a surface of 200 by 100 with marks of 24 the way of the left edge is 0 to 176, of the
    // upper edge 0 to 38.
    void SunAndMoonTravel_data() {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<int>("index");
        QTest::addColumn<QPointF>("place");
        QTest::newRow("midnight") << QTime(0, 0) << 0 << QPointF(0, 38);
        QTest::newRow("3") << QTime(3, 0) << 0 << QPointF(26, 11);
        QTest::newRow("just before 6") << QTime(5, 59, 59) << 0 << QPointF(88, 0);
        QTest::newRow("6") << QTime(6, 0) << 0 << QPointF(88, 0);
        QTest::newRow("8") << QTime(8, 0) << 0 << QPointF(132, 5);
        QTest::newRow("9") << QTime(9, 0) << 0 << QPointF(150, 11);
        QTest::newRow("just before noon") << QTime(11, 59, 59) << 0 << QPointF(176, 38);
        QTest::newRow("noon") << QTime(12, 0) << 1 << QPointF(0, 38);
        QTest::newRow("15") << QTime(15, 0) << 1 << QPointF(26, 11);
        QTest::newRow("18") << QTime(18, 0) << 1 << QPointF(88, 0);
        QTest::newRow("21") << QTime(21, 0) << 1 << QPointF(150, 11);
        QTest::newRow("end of day") << QTime(23, 59, 59) << 1 << QPointF(176, 38);
    }
    void SunAndMoonTravel() {
        QFETCH(QTime, time);
        QFETCH(int, index);
        QFETCH(QPointF, place);
        Overlaid face(200, 100);
        face.SetTime(time.hour(), time.minute(), time.second());
        face.Part.SetSunMoon();
        const mduUILib::Control& mark = face.Controls.imgSunMoon(index);
        QVERIFY(mark.Visible);
        QVERIFY(!face.Controls.imgSunMoon(1 - index).Visible);
        QCOMPARE(RectOf(mark), QRectF(place, QSizeF(24, 24)));
        QCOMPARE(mark.Picture->size(), QSize(24, 24));
    }

    void SunAndMoonGoByTheZone() {
        Overlaid face;
        face.SetTime(12, 0, 0);
        face.Zone.HoursFromLocal = -9.5F;
        face.Part.SetSunMoon();
        QVERIFY(face.Controls.imgSunMoon(0).Visible);
    }

    void SunMoonSize_data() {
        QTest::addColumn<QString>("size");
        QTest::addColumn<float>("side");
        QTest::newRow("one") << u"1"_s << 1.0F;
        QTest::newRow("48") << u"48"_s << 48.0F;
        QTest::newRow("no larger than the surface") << u"100000"_s << 100.0F;
    }
    void SunMoonSize() {
        QFETCH(QString, size);
        QFETCH(float, side);
        Overlaid face(200, 100);
        face.Set(u"Sun Moon Size"_s, size);
        face.Part.SetSunMoon();
        QCOMPARE(face.Controls.imgSunMoon(1).Height, side);
        QCOMPARE(face.Controls.imgSunMoon(1).Picture->width(), static_cast<int>(side));
    }

    void NoSunNoMoon_data() {
        QTest::addColumn<QString>("size");
        QTest::newRow("zero") << u"0"_s;
        QTest::newRow("below") << u"-1"_s;
        QTest::newRow("text") << u"large"_s;
    }
    void NoSunNoMoon() {
        QFETCH(QString, size);
        Overlaid face;
        face.Part.SetSunMoon();
        QVERIFY(face.Controls.imgSunMoon(1).Visible);
        face.Set(u"Sun Moon Size"_s, size);
        face.Part.LayOutOverlays();
        QVERIFY(!face.Controls.imgSunMoon(0).Visible);
        QVERIFY(!face.Controls.imgSunMoon(1).Visible);
    }

    void SunAndMoonHide() {
        Overlaid face;
        face.Part.SetSunMoon();
        face.Part.HideSunMoon();
        face.Part.LayOutOverlays();  // does not bring back what the mode does not show
        QVERIFY(!face.Controls.imgSunMoon(0).Visible);
        QVERIFY(!face.Controls.imgSunMoon(1).Visible);
    }

    void SunOnAFineScreen() {
        Overlaid face(400, 200, 2);
        face.SetTime(3, 0, 0);
        face.Part.SetSunMoon();
        QCOMPARE(RectOf(face.Controls.imgSunMoon(0)), QRectF(52, 22, 48, 48));
    }

    void SpeakerPlace_data() {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::addColumn<QRectF>("place");
        QTest::newRow("automatic") << u"-1"_s << u"-1"_s << QRectF(4, 182, 14, 14);
        QTest::newRow("stored") << u"30"_s << u"40"_s << QRectF(30, 40, 14, 14);
        QTest::newRow("corner") << u"0"_s << u"0"_s << QRectF(0, 0, 14, 14);
        QTest::newRow("half") << u"30"_s << u"-1"_s << QRectF(30, 182, 14, 14);
    }
    void SpeakerPlace() {
        QFETCH(QString, left);
        QFETCH(QString, top);
        QFETCH(QRectF, place);
        Overlaid face;
        face.Set(u"Speaker Image Left"_s, left);
        face.Set(u"Speaker Image Top"_s, top);
        face.Part.SetSpeakerPosition();
        const mduUILib::Control& speaker = face.Controls.imgSpeaker(1);
        QCOMPARE(RectOf(speaker), place);
        QVERIFY(!speaker.Visible);
        QCOMPARE(speaker.Picture->size(), QSize(14, 14));
    }

    void SpeakerGrowsWithTheFace() {
        Overlaid face(300, 300);
        face.Part.SetSpeakerPosition();
        QCOMPARE(RectOf(face.Controls.imgSpeaker(1)), QRectF(4, 275, 21, 21));
        QCOMPARE(face.Controls.imgSpeaker(1).Picture->width(), 21);
        face.Window.Resize(800, 800);
        face.Part.SetSpeakerPosition();
        QCOMPARE(RectOf(face.Controls.imgSpeaker(1)), QRectF(4, 764, 32, 32));
        QCOMPARE(face.Controls.imgSpeaker(1).Picture->width(), 32);
    }

    void SpeakerKeepsThePictureOfTheVoice() {
        Overlaid face;
        const auto talking = drawing::GetStockPicture(drawing::StockPicture::SpeakerTalking);
        face.Controls.imgSpeaker(1).Picture = talking;
        face.Controls.imgSpeaker(1).Visible = true;
        face.Part.SetSpeakerPosition();
        QCOMPARE(face.Controls.imgSpeaker(1).Picture, talking);
        QVERIFY(face.Controls.imgSpeaker(1).Visible);
    }

    // In a window of 200 by 200 the ellipse reaches from 10 to 189, and down to 189.
    void OutlineBringsThemInside_data() {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<QString>("flag");
        for (const QString& shape :
             {u"Circle"_s, u"Ellips"_s, u"Diamond"_s, u"Pentagon"_s, u"Hexagon"_s, u"Octagon"_s}) {
            for (const QString& flag :
                 {u"Top right"_s, u"Top left"_s, u"Bottom right"_s, u"Bottom left"_s}) {
                QTest::addRow("%s %s", qPrintable(shape), qPrintable(flag)) << shape << flag;
            }
        }
    }
    void OutlineBringsThemInside() {
        QFETCH(QString, shape);
        QFETCH(QString, flag);
        Overlaid face;
        face.WriteFlag();
        face.Set(u"Window Shape"_s, shape);
        face.Set(u"Flag Position"_s, flag);
        face.Window.Transparent = true;
        face.Controls.imgSpeaker(1).Visible = true;
        face.Part.LoadFlag();
        face.Part.LayOutOverlays();
        face.Part.SetLocationLabel();
        const drawing::SeenArea seen =
            drawing::SeenThrough(drawing::ReadShape(shape), drawing::MeasuresOf(face.Window));
        for (const int minute : {0, 60, 150, 270, 330, 400, 520, 580, 640, 719}) {
            face.SetTime(minute / 60, minute % 60, 0);
            face.Part.SetSunMoon();
            const QList<QRectF> places = {RectOf(face.Flag()), RectOf(face.Controls.shpArea(1)),
                                          RectOf(face.Controls.imgSpeaker(1)),
                                          RectOf(face.Controls.imgSunMoon(0))};
            for (const QRectF& place : places) {
                QVERIFY(seen.Holds(place));
                for (const QRectF& other : places) {
                    QVERIFY(place == other || !place.intersects(other));
                }
            }
        }
        QVERIFY(seen.Holds(RectOf(face.Controls.lblLocation(1))));
    }

    // A diamond's edge runs from (2, 100) to (100, 198): where it crosses the diagonal, at (51,
    // 149), the corner of what comes along there stays, 3 pixels about it included.
    void OutlineBringsThemNoFurther() {
        Overlaid face;
        face.Set(u"Window Shape"_s, u"Diamond"_s);
        face.Part.LayOutOverlays();
        QCOMPARE(RectOf(face.Controls.imgSpeaker(1)), QRectF(54, 132, 14, 14));
        face.Set(u"Window Shape"_s, u"Normal"_s);
        face.Part.LayOutOverlays();
        QCOMPARE(RectOf(face.Controls.imgSpeaker(1)), QRectF(4, 182, 14, 14));
    }

    void OutlineLeavesThePlaceOfTheUser_data() {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::newRow("both") << u"2"_s << u"3"_s;
        QTest::newRow("left") << u"2"_s << u"-1"_s;
        QTest::newRow("top") << u"-1"_s << u"3"_s;
    }
    void OutlineLeavesThePlaceOfTheUser() {
        QFETCH(QString, left);
        QFETCH(QString, top);
        Overlaid face;
        face.Window.Transparent = true;
        for (const QString& what :
             {u"Speaker Image "_s, u"Transparent Icon "_s, u"Time Zone Name "_s}) {
            face.Set(what + u"Left"_s, left);
            face.Set(what + u"Top"_s, top);
        }
        face.Location();
        const QRectF name = RectOf(face.Location());
        const QRectF speaker = RectOf(face.Controls.imgSpeaker(1));
        const QRectF handle = RectOf(face.Controls.shpArea(1));
        face.Set(u"Window Shape"_s, u"Diamond"_s);
        QCOMPARE(RectOf(face.Location()), name);
        QCOMPARE(RectOf(face.Controls.imgSpeaker(1)), speaker);
        QCOMPARE(RectOf(face.Controls.shpArea(1)), handle);
    }

    void OutlineFollowsTheWindow() {
        Overlaid face;
        face.Set(u"Window Shape"_s, u"Diamond"_s);
        face.SetTime(12, 0, 0);
        face.Part.LayOutOverlays();
        face.Part.SetSunMoon();
        QCOMPARE(face.Controls.imgSunMoon(1).Left, 20.0F);  // 2, half of its height, 3 twice
        face.Window.Resize(400, 400);
        face.Part.SetSunMoon();
        QCOMPARE(face.Controls.imgSunMoon(1).Left, 22.0F);
    }

    void OutlineKeepsThemClearOfTheDigits() {
        Overlaid face;
        face.WriteFlag();
        face.Set(u"Window Shape"_s, u"Diamond"_s);
        face.Part.LayOutOverlays();
        face.Part.LoadFlag();
        const QRectF digits(20, 55, 160, 50);
        QVERIFY(RectOf(face.Flag()).intersects(digits));
        mduUILib::Control& digit = face.Controls.lblDigitalNumber(3);
        digit.Left = 20;
        digit.Top = 55;
        digit.Width = 160;
        digit.Height = 50;
        digit.Visible = true;
        face.Part.LoadFlag();
        QVERIFY(!RectOf(face.Flag()).intersects(digits));
    }

    void OutlineMakesALongNameSmaller() {
        Overlaid face(400, 200);
        face.Set(u"Clocks"_s, u"Digital"_s);
        face.Controls.lblLocation(1).Caption = u"Pacific Standard Time"_s;
        const double plain = face.Location().Font.pointSizeF();
        face.Set(u"Window Shape"_s, u"Diamond"_s);
        const mduUILib::Control& label = face.Location();
        QVERIFY(label.Font.pointSizeF() < plain);
        QVERIFY(label.Font.pointSizeF() > 6);
        face.Set(u"Time Zone Label Size"_s, u"10"_s);
        QCOMPARE(face.Location().Font.pointSizeF(), 10.0);
    }

    void HandleShowsWhileTransparent() {
        Overlaid face;
        face.Part.SetTransparentIconPosition();
        QVERIFY(!face.Controls.shpArea(1).Visible);
        face.Window.Transparent = true;
        face.Part.SetTransparentIconPosition();
        QVERIFY(face.Controls.shpArea(1).Visible);
        QCOMPARE(RectOf(face.Controls.shpArea(1)), QRectF(0, 0, 16, 16));
        QCOMPARE(face.Controls.shpArea(1).Picture->size(), QSize(16, 16));
        face.Set(u"Transparent Icon Left"_s, u"25"_s);
        face.Set(u"Transparent Icon Top"_s, u"35"_s);
        face.Part.LayOutOverlays();
        QCOMPARE(RectOf(face.Controls.shpArea(1)), QRectF(25, 35, 16, 16));
    }

    void HandleOnAFineScreen() {
        Overlaid face(400, 400, 2);
        face.Window.Transparent = true;
        face.Set(u"Transparent Icon Left"_s, u"25"_s);
        face.Part.SetTransparentIconPosition();
        QCOMPARE(RectOf(face.Controls.shpArea(1)), QRectF(50, 0, 32, 32));
    }

    void NameBelowTheCentre() {
        Overlaid face;
        const mduUILib::Control& label = face.Location();
        QVERIFY(label.Visible);
        QCOMPARE(label.Font.pointSizeF(), 10.0);  // a twentieth of 200
        QCOMPARE(label.Font.family(), u"Arial"_s);
        QCOMPARE(label.ForeColor, 0xFF0000);
        const QPointF middle = RectOf(label).center();
        QVERIFY(qAbs(middle.x() - 100) <= 1);
        QVERIFY(qAbs(middle.y() - 140) <= 1);
    }

    void NameFollowsTheDial() {
        Overlaid face(400, 200);
        face.Set(u"Clock CentralX(%)"_s, u"75"_s);
        face.Set(u"Clock CentralY(%)"_s, u"40"_s);
        const QPointF middle = RectOf(face.Location()).center();
        QVERIFY(qAbs(middle.x() - 300) <= 1);
        QVERIFY(qAbs(middle.y() - 120) <= 1);
    }

    void NameUnderTheDigits() {
        Overlaid face(400, 200);
        face.Set(u"Clocks"_s, u"Digital"_s);
        const QPointF middle = RectOf(face.Location()).center();
        QVERIFY(qAbs(middle.x() - 200) <= 1);
        QVERIFY(qAbs(middle.y() - 164) <= 1);
    }

    void LongNameTakesHalfOfADial() {
        Overlaid face(400, 400);
        face.Controls.lblLocation(1).Caption = u"Pacific Standard Time (Mexico)"_s;
        const mduUILib::Control& dial = face.Location();
        QVERIFY(dial.Font.pointSizeF() < 20);
        QVERIFY(dial.Width <= 200);
        QVERIFY(dial.Width > 170);
        face.Set(u"Clocks"_s, u"Digital"_s);
        const mduUILib::Control& digits = face.Location();
        QVERIFY(digits.Width <= 360);
        QVERIFY(digits.Width > 300);
    }

    void SmallFaceKeepsSixPoints() {
        Overlaid face(100, 100);
        face.Controls.lblLocation(1).Caption = u"Nepal Standard"_s;
        const mduUILib::Control& label = face.Location();
        QVERIFY(label.Visible);
        QCOMPARE(label.Font.pointSizeF(), 6.0);
        QVERIFY(label.Width > 50);
        face.Controls.lblLocation(1).Caption = u"Central European Standard Time of the City"_s;
        QVERIFY(!face.Location().Visible);
    }

    void NameSizeOfTheProperty_data() {
        QTest::addColumn<QString>("size");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<double>("points");
        QTest::newRow("14") << u"14"_s << true << 14.0;
        QTest::newRow("wider than the surface") << u"72"_s << true << 72.0;
        QTest::newRow("hidden") << u"0"_s << false << 0.0;
        QTest::newRow("text") << u"large"_s << false << 0.0;
    }
    void NameSizeOfTheProperty() {
        QFETCH(QString, size);
        QFETCH(bool, visible);
        QFETCH(double, points);
        Overlaid face;
        face.Location();
        face.Set(u"Time Zone Label Size"_s, size);
        const mduUILib::Control& label = face.Location();
        QCOMPARE(label.Visible, visible);
        if (visible) {
            QCOMPARE(label.Font.pointSizeF(), points);
        }
    }

    void NamePlaceOfTheProperty() {
        Overlaid face;
        face.Set(u"Time Zone Name Left"_s, u"12"_s);
        face.Set(u"Time Zone Name Top"_s, u"30"_s);
        QCOMPARE(face.Location().Left, 12.0F);
        QCOMPARE(face.Controls.lblLocation(1).Top, 30.0F);
        // A place of a larger window is drawn back into the surface.
        face.Set(u"Time Zone Name Left"_s, u"500"_s);
        const mduUILib::Control& label = face.Location();
        QCOMPARE(label.Left + label.Width, 200.0F);
    }

    void NameOnAFineScreen() {
        Overlaid face(400, 400, 2);
        face.Set(u"Time Zone Name Left"_s, u"12"_s);
        const mduUILib::Control& label = face.Location();
        QCOMPARE(label.Left, 24.0F);
        QCOMPARE(label.Font.pointSizeF(), 10.0);
    }

    void NameIsLaidOutOnlyWhenSomethingChanged() {
        Overlaid face;
        face.Location();
        mduUILib::Control& label = face.Controls.lblLocation(1);
        label.Left = 1;
        face.Part.SetLocationLabel();
        QCOMPARE(label.Left, 1.0F);
        label.Caption = u"Osaka"_s;
        face.Part.SetLocationLabel();
        QVERIFY(label.Left > 50);
        label.Left = 1;
        face.Window.Resize(300, 300);
        face.Part.SetLocationLabel();
        QVERIFY(label.Left > 50);
    }

    void NameHides() {
        Overlaid face;
        face.Location();
        face.Part.HideLocationLabel();
        face.Part.LayOutOverlays();
        QVERIFY(!face.Controls.lblLocation(1).Visible);
        face.Part.SetLocationLabel();
        QVERIFY(face.Controls.lblLocation(1).Visible);
    }

    void RandomColourStaysFromSecondToSecond() {
        Overlaid face;
        face.Machine.Random.Numbers = {0.25, 0.5, 0.75, 0.125};
        face.Set(u"Time Zone Colour"_s, u"Random"_s);
        const int colour = face.Location().ForeColor;
        face.Part.SetLocationLabel();
        face.Controls.lblLocation(1).Caption = u"Osaka"_s;
        face.Part.SetLocationLabel();
        QCOMPARE(face.Controls.lblLocation(1).ForeColor, colour);
    }

    void NumbersOutOfAnyRange_data() {
        QTest::addColumn<QString>("number");
        QTest::newRow("0") << u"0"_s;
        QTest::newRow("1") << u"1"_s;
        QTest::newRow("100000") << u"100000"_s;
        QTest::newRow("-100000") << u"-100000"_s;
        QTest::newRow("text") << u"text"_s;
        QTest::newRow("1e300") << u"1e300"_s;
    }
    void NumbersOutOfAnyRange() {
        QFETCH(QString, number);
        for (const QSize& size : {QSize(1, 1), QSize(4000, 4000)}) {
            Overlaid face(size.width(), size.height());
            face.WriteFlag();
            face.Window.Transparent = true;
            for (const QString& key :
                 {u"Sun Moon Size"_s, u"Time Zone Label Size"_s, u"Time Zone Name Left"_s,
                  u"Time Zone Name Top"_s, u"Speaker Image Left"_s, u"Speaker Image Top"_s,
                  u"Transparent Icon Left"_s, u"Transparent Icon Top"_s}) {
                face.Set(key, number);
            }
            face.Part.LoadFlag();
            face.Part.SetSunMoon();
            face.Location();
            QVERIFY(face.Controls.imgSunMoon(1).Width <= static_cast<float>(size.width()));
        }
    }
};

QTEST_MAIN(tst_ClockOverlays)
#include "tst_ClockOverlays.moc"
