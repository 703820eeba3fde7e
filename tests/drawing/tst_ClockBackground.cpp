#include <QBuffer>
#include <QTest>

#include "drawing/ClockBackground.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::ClockBackground;
using drawing::Surface;

constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Green = 0xFF00FF00;
constexpr QRgb Blue = 0xFF0000FF;
constexpr QRgb White = 0xFFFFFFFF;

static QByteArray Bitmap(QRgb colour) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "bmp");
    return bytes;
}

class tst_ClockBackground : public QObject {
    Q_OBJECT

    std::unique_ptr<FakeFace> face_;
    std::unique_ptr<ClockBackground> background_;

    void Make(int width, int height, double ratio = 1) {
        background_.reset();
        face_ = std::make_unique<FakeFace>(width, height, ratio);
        face_->Paths.ImagesFolder = face_->Machine.AppFolder() + u"/images/"_s;
        face_->Set(u"Clock CentralX(%)"_s, u"-1"_s);
        face_->Set(u"Clock CentralY(%)"_s, u"-1"_s);
        face_->Set(u"Clock Image Size(%)"_s, u"100"_s);
        face_->Set(u"Clock Image Brightness(%)"_s, u"100"_s);
        background_ = std::make_unique<ClockBackground>(face_->Context());
    }

    QString WriteBitmap(const QString& name, QRgb colour) {
        return face_->Machine.WriteFile(name, Bitmap(colour));
    }

    void LoadDial(QRgb colour) {
        WriteBitmap(u"dial.bmp"_s, colour);
        face_->Set(u"Clock Image File"_s, u".\\dial.bmp"_s);
        background_->LoadClockPicture();
    }

    const QImage& Painted() {
        background_->DrawBackgroundPicture(face_->Window.Drawn);
        return face_->Window.Drawn.Image();
    }

    QRgb PixelAt(int x, int y) { return Painted().pixel(x, y); }

    mduUILib::Control& Shown() { return face_->Controls.imgClock(1); }
    mduUILib::Control& Holder() { return face_->Controls.imgClock(0); }

    QRectF Box() { return {Shown().Left, Shown().Top, Shown().Width, Shown().Height}; }

    /// A folder with a red, a green and a blue picture, of which the red one is shown.
    void LoadFirstOfThree() {
        const QString red = WriteBitmap(u"pictures/1.bmp"_s, Red);
        WriteBitmap(u"pictures/2.bmp"_s, Green);
        WriteBitmap(u"pictures/3.BMP"_s, Blue);
        face_->Set(u"Clock Image File"_s, red);
        background_->LoadClockPicture();
    }

    /// The next picture, its wipe played to the end.
    QRgb Change() {
        background_->ShowAutoBackground();
        face_->Machine.Clock.Advance(600);
        return PixelAt(100, 100);
    }

private Q_SLOTS:
    void init() { Make(200, 200); }

    void PlainColour() {
        face_->Window.Colour = 0x0000FF;  // red
        QCOMPARE(PixelAt(0, 0), Red);
        QCOMPARE(PixelAt(199, 199), Red);
        QVERIFY(!background_->HasClockPicture());
    }

    void DialPicture() {
        LoadDial(Blue);
        QVERIFY(background_->HasClockPicture());
        QCOMPARE(PixelAt(0, 0), Blue);
        QCOMPARE(PixelAt(199, 199), Blue);
        QVERIFY(face_->Window.StillChanges > 0);
    }

    void DialPictureSize_data() {
        QTest::addColumn<QString>("percent");
        QTest::addColumn<QSize>("surface");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QRectF>("box");
        const QSize square(200, 200);
        QTest::newRow("whole") << u"100"_s << square << 1.0 << QRectF(0, 0, 200, 200);
        QTest::newRow("80") << u"80"_s << square << 1.0 << QRectF(20, 20, 160, 160);
        QTest::newRow("wide") << u"50"_s << QSize(400, 240) << 1.0 << QRectF(60, 60, 280, 120);
        QTest::newRow("half to even")
            << u"90"_s << QSize(250, 250) << 1.0 << QRectF(12, 12, 226, 226);
        QTest::newRow("held at 100") << u"40"_s << square << 1.0 << QRectF(60, 60, 100, 100);
        QTest::newRow("held on a fine screen")
            << u"40"_s << QSize(400, 400) << 2.0 << QRectF(120, 120, 200, 200);
        QTest::newRow("missing key") << u"0"_s << square << 1.0 << QRectF(100, 100, 100, 100);
        QTest::newRow("text") << u"large"_s << square << 1.0 << QRectF(100, 100, 100, 100);
        QTest::newRow("negative") << u"-1"_s << square << 1.0 << QRectF(101, 101, 100, 100);
        QTest::newRow("larger than the face")
            << u"200"_s << square << 1.0 << QRectF(-100, -100, 400, 400);
        QTest::newRow("no more than 400")
            << u"100000"_s << square << 1.0 << QRectF(-300, -300, 800, 800);
        QTest::newRow("no less than -400")
            << u"-1e300"_s << square << 1.0 << QRectF(500, 500, 100, 100);
    }

    void DialPictureSize() {
        QFETCH(QString, percent);
        QFETCH(QSize, surface);
        QFETCH(double, ratio);
        Make(surface.width(), surface.height(), ratio);
        face_->Set(u"Clock Image Size(%)"_s, percent);
        LoadDial(Blue);
        QTEST(Box(), "box");
        Painted();
    }

    void NoPictureTakesTheWholeFace() {
        Make(300, 50);
        face_->Set(u"Clock Image Size(%)"_s, u"50"_s);
        background_->LoadClockPicture();
        QCOMPARE(Box(), QRectF(0, 0, 300, 100));
    }

    void SmallerPictureOnTheColour() {
        face_->Window.Colour = 0x00FF00;
        face_->Set(u"Clock Image Size(%)"_s, u"80"_s);
        LoadDial(Blue);
        QCOMPARE(PixelAt(19, 100), Green);
        QCOMPARE(PixelAt(20, 100), Blue);
        QCOMPARE(PixelAt(179, 179), Blue);
        QCOMPARE(PixelAt(180, 180), Green);
    }

    void FarLargerPicture() {
        Make(1200, 1200);
        face_->Set(u"Clock Image Size(%)"_s, u"400"_s);
        LoadDial(Blue);
        QCOMPARE(PixelAt(0, 0), Blue);
        QCOMPARE(PixelAt(1199, 1199), Blue);
    }

    void ASizeFollowsAtTheNextApplication() {
        LoadDial(Blue);
        face_->Set(u"Clock Image Size(%)"_s, u"80"_s);
        background_->ApplySurface();
        QCOMPARE(Box(), QRectF(20, 20, 160, 160));
        QCOMPARE(PixelAt(0, 0), White);
    }

    void AnotherSurfaceSizeFollowsByItself() {
        LoadDial(Blue);
        face_->Window.Resize(300, 400);
        QCOMPARE(PixelAt(299, 399), Blue);
        QCOMPARE(Box(), QRectF(0, 0, 300, 400));
    }

    void Brightness() {
        face_->Set(u"Clock Image Brightness(%)"_s, u"40"_s);
        LoadDial(Blue);
        QCOMPARE(PixelAt(100, 100), 0xFF000066);
    }

    void HiddenUnlessTransparent() {
        Shown().Visible = true;
        face_->Window.Transparent = true;
        LoadDial(Blue);
        QVERIFY(Shown().Visible);
        face_->Window.Transparent = false;
        background_->ApplySurface();
        QVERIFY(!Shown().Visible);
    }

    void TheSpeckOfATransparentWindow() {
        face_->Window.Transparent = true;
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        background_->LoadWindowPicture();
        Holder().Picture = std::make_shared<const QImage>(9, 9, QImage::Format_RGB32);
        background_->ApplySurface();
        QCOMPARE(Shown().Picture.get(), face_->Controls.picFrame(1).Picture.get());
        QCOMPARE(Box(), QRectF(97.5, 97.5, 5, 5));
    }

    void MatBehindAll() {
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        background_->LoadWindowPicture();
        QCOMPARE(PixelAt(0, 0), Green);
        face_->Set(u"Clock Image Size(%)"_s, u"80"_s);
        LoadDial(Blue);
        QCOMPARE(PixelAt(0, 0), Green);
        QCOMPARE(PixelAt(100, 100), Blue);
    }

    void MatComesWithTheSurface() {
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        background_->ApplySurface();
        QCOMPARE(PixelAt(0, 0), Green);
    }

    void AChangedFileIsReadAnew() {
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        face_->Machine.SetAge(u"mat.bmp"_s, 100);
        background_->LoadWindowPicture();
        WriteBitmap(u"mat.bmp"_s, Blue);
        face_->Machine.SetAge(u"mat.bmp"_s, 50);
        background_->LoadWindowPicture();
        QCOMPARE(PixelAt(0, 0), Blue);
    }

    void ClockShape_data() {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<QRgb>("corner");
        QTest::addColumn<QRgb>("top");
        QTest::newRow("circle") << u"Circle"_s << White << Blue;
        QTest::newRow("ellips") << u"Ellips"_s << White << Blue;
        QTest::newRow("diamond") << u"Diamond"_s << White << Blue;
        QTest::newRow("pentagon") << u"Pentagon"_s << White << White;
        QTest::newRow("normal") << u"Normal"_s << Blue << Blue;
        QTest::newRow("unknown") << u"Ellipse"_s << Blue << Blue;
    }

    void ClockShape() {
        QFETCH(QString, shape);
        face_->Set(u"Clock Shape"_s, shape);
        LoadDial(Blue);
        QCOMPARE(PixelAt(100, 100), Blue);
        QTEST(PixelAt(10, 10), "corner");
        QTEST(PixelAt(100, 5), "top");
    }

    void ClockShapeStandsAroundTheCentre() {
        face_->Set(u"Clock Image Size(%)"_s, u"50"_s);
        face_->Set(u"Clock CentralX(%)"_s, u"40"_s);
        face_->Set(u"Clock Shape"_s, u"Diamond"_s);
        LoadDial(Blue);
        // The picture lies at 50 to 150, the figure at 30 to 130 across.
        QCOMPARE(PixelAt(80, 54), Blue);
        QCOMPARE(PixelAt(125, 100), Blue);
        QCOMPARE(PixelAt(135, 100), White);
        QCOMPARE(PixelAt(45, 100), White);
    }

    void ClockShapeHasASoftEdge() {
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        LoadDial(Blue);
        const QImage& image = Painted();
        int between = 0;
        for (int x = 0; x < 100; ++x) {
            const int red = qRed(image.pixel(x, 40));
            between += red > 30 && red < 225 ? 1 : 0;
        }
        QVERIFY(between > 0);
    }

    void ClockShapeWithoutAPicture_data() {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<QRgb>("corner");
        QTest::addColumn<QRgb>("top");
        const QRgb colour = 0xFF64C896;
        const QRgb shade = 0xFF50A078;
        QTest::newRow("circle") << u"Circle"_s << shade << colour;
        QTest::newRow("ellips") << u"Ellips"_s << shade << colour;
        QTest::newRow("diamond") << u"Diamond"_s << shade << colour;
        QTest::newRow("octagon") << u"Octagon"_s << shade << colour;
        QTest::newRow("pentagon") << u"Pentagon"_s << shade << shade;
        QTest::newRow("normal") << u"Normal"_s << colour << colour;
        QTest::newRow("unknown") << u"Ellipse"_s << colour << colour;
    }

    // A plate in the window's colour.
    void ClockShapeWithoutAPicture() {
        QFETCH(QString, shape);
        face_->Window.Colour = 0x96C864;
        face_->Set(u"Clock Shape"_s, shape);
        background_->SetClockShape();
        QCOMPARE(PixelAt(100, 100), 0xFF64C896);
        QTEST(PixelAt(3, 3), "corner");
        QTEST(PixelAt(100, 10), "top");
    }

    void APlateStandsAroundTheCentre() {
        Make(400, 200);
        face_->Window.Colour = 0x96C864;
        face_->Set(u"Clock CentralX(%)"_s, u"25"_s);
        face_->Set(u"Clock Shape"_s, u"Diamond"_s);
        background_->SetClockShape();
        QCOMPARE(PixelAt(10, 100), 0xFF64C896);
        QCOMPARE(PixelAt(190, 100), 0xFF64C896);
        QCOMPARE(PixelAt(220, 100), 0xFF50A078);
    }

    void APlateOnTheWindowsPicture() {
        face_->Window.Colour = 0x96C864;
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        background_->ApplySurface();
        QCOMPARE(PixelAt(100, 100), 0xFF64C896);
        QCOMPARE(PixelAt(2, 2), 0xFF00C700);
    }

    void APlateInATransparentWindow() {
        face_->Window.Colour = 0x96C864;
        face_->Window.Transparent = true;
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        background_->SetClockShape();
        QCOMPARE(PixelAt(100, 100), 0xFF5AB487);
        QCOMPARE(PixelAt(2, 2), 0xFF64C896);
    }

    void APictureTakesThePlaceOfAPlate() {
        face_->Window.Colour = 0x00FF00;
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        LoadDial(Blue);
        QCOMPARE(PixelAt(100, 100), Blue);
        QCOMPARE(PixelAt(2, 2), Green);
        face_->Set(u"Clock Image File"_s, u"None"_s);
        background_->LoadClockPicture();
        QCOMPARE(PixelAt(100, 100), Green);
        QCOMPARE(PixelAt(2, 2), 0xFF00CC00);
    }

    // The first picture comes in over the plate, on the plain colour.
    void AWipeBeginsWithThePlate() {
        face_->Window.Colour = 0x00FF00;
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        WriteBitmap(u"images/Background/a.bmp"_s, Blue);
        background_->SetClockShape();
        background_->ShowAutoBackground();
        face_->Machine.Clock.Advance(256);  // 102 rows of 200
        QCOMPARE(PixelAt(100, 50), Blue);
        QCOMPARE(PixelAt(2, 2), Green);
        QCOMPARE(PixelAt(100, 150), Green);
        QCOMPARE(PixelAt(2, 197), 0xFF00CC00);
    }

    void ColourKey_data() {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("shape");
        QTest::addColumn<bool>("key");
        QTest::newRow("plain") << u"White"_s << u"Normal"_s << false;
        QTest::newRow("transparent") << u"Transparent"_s << u"Normal"_s << true;
        QTest::newRow("shape") << u"White"_s << u"Circle"_s << true;
        QTest::newRow("unknown shape") << u"White"_s << u"Round"_s << false;
    }

    void ColourKey() {
        QFETCH(QString, colour);
        QFETCH(QString, shape);
        face_->Set(u"Window Background Colour"_s, colour);
        face_->Set(u"Clock Shape"_s, shape);
        background_->ApplyTransparency();
        QTEST(face_->Window.ColourKey, "key");
        face_->Window.ColourKey = false;
        background_->SetClockShape();
        QTEST(face_->Window.ColourKey, "key");
    }

    void WindowColour_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("colour");
        QTest::addColumn<bool>("transparent");
        QTest::newRow("white is not the key") << u"White"_s << 0xFFFFFD << false;
        QTest::newRow("name") << u" Blue "_s << 0xFF0000 << false;
        QTest::newRow("number") << u"1193046"_s << 0x123456 << false;
        QTest::newRow("transparent") << u"Transparent"_s << 0x445566 << true;
        QTest::newRow("custom") << u"Custom"_s << 0 << false;
        QTest::newRow("missing key") << QString() << 0 << false;
    }

    void WindowColour() {
        QFETCH(QString, text);
        face_->Window.ParentColour = 0x445566;
        face_->Window.Transparent = true;
        face_->Set(u"Window Background Colour"_s, text);
        background_->ApplyTransparency();
        QTEST(face_->Window.Colour, "colour");
        QTEST(face_->Window.Transparent, "transparent");
    }

    void WindowShape() {
        face_->Set(u"Window Shape"_s, u"Diamond"_s);
        background_->SetWindowShape();
        QCOMPARE(face_->Window.Outlines.size(), std::size_t(1));
        const QRegion outline = face_->Window.Outlines.back();
        QVERIFY(outline.contains(QPoint(100, 100)));
        QVERIFY(!outline.contains(QPoint(20, 20)));
        face_->Set(u"Window Shape"_s, u"Normal"_s);
        background_->SetWindowShape();
        QVERIFY(face_->Window.Outlines.back().isEmpty());
    }

    void WindowShapeInItsFrame() {
        // 208 x 228 pixels outside, borders of 4 and a title bar of 20.
        face_->Window.Outer = QSizeF(3120, 3420);
        face_->Window.Offset = QPoint(4, 24);
        face_->Set(u"Window Shape"_s, u"Ellips"_s);
        background_->SetWindowShape();
        QCOMPARE(face_->Window.Outlines.back().boundingRect(), QRect(10, 28, 188, 190));
    }

    void AMinimisedWindowKeepsItsShape() {
        face_->Set(u"Window Shape"_s, u"Circle"_s);
        face_->Window.State = 1;
        background_->SetWindowShape();
        background_->ApplySurface();
        QVERIFY(face_->Window.Outlines.empty());
        face_->Window.State = 0;
        background_->ApplySurface();
        QCOMPARE(face_->Window.Outlines.size(), std::size_t(1));
    }

    void ShapedAgainWhenTheSizeChanges() {
        face_->Set(u"Window Shape"_s, u"Circle"_s);
        background_->SetWindowShape();
        background_->ApplySurface();
        QCOMPARE(face_->Window.Outlines.size(), std::size_t(1));
        face_->Window.Resize(300, 150);
        background_->ApplySurface();
        QCOMPARE(face_->Window.Outlines.size(), std::size_t(2));
        QCOMPARE(face_->Window.Outlines.back().boundingRect(), QRect(10, 0, 280, 140));
    }

    void UnreadablePictureIsToldOnce() {
        const QString path = face_->Machine.WriteFile(u"dial.jpg"_s, "no picture");
        face_->Set(u"Clock Image File"_s, u".\\dial.jpg"_s);
        background_->LoadClockPicture();
        background_->LoadClockPicture();
        QCOMPARE(face_->Window.Status, QStringList(path + u" can't be read as a picture"_s));
        QVERIFY(!background_->HasClockPicture());
        face_->Set(u"Window Background File"_s, path);
        background_->LoadWindowPicture();
        QVERIFY(!face_->Controls.picFrame(1).Picture);
    }

    void MissingPicture_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << QString();
        QTest::newRow("none") << u"None"_s;
        QTest::newRow("missing") << u".\\none.jpg"_s;
        QTest::newRow("a folder") << u".\\"_s;
        QTest::newRow("odd") << u"?*<>|"_s;
    }

    void MissingPicture() {
        QFETCH(QString, path);
        LoadDial(Blue);
        face_->Set(u"Clock Image File"_s, path);
        background_->LoadClockPicture();
        QVERIFY(!background_->HasClockPicture());
        QVERIFY(face_->Window.Status.isEmpty());
        QCOMPARE(PixelAt(100, 100), White);
    }

    void ClocksSharePictures() {
        LoadDial(Blue);
        const auto first = Shown().Picture;
        mduUILib::ClockControls otherControls;
        const drawing::FaceContext own = face_->Context();
        ClockBackground other({own.Properties, own.Zone, otherControls, own.Window, own.Clock,
                               own.FileSystem, own.Random, own.Pictures, own.Paths, own.Zones});
        other.LoadClockPicture();
        QCOMPARE(otherControls.imgClock(1).Picture.get(), first.get());
    }

    void RotationGoesRound() {
        LoadFirstOfThree();
        QCOMPARE(PixelAt(100, 100), Red);
        QCOMPARE(Change(), Green);
        QCOMPARE(Change(), Blue);
        QCOMPARE(Change(), Red);
        QVERIFY(face_->Machine.ReadFile(u"pictures/1.bmp"_s) == Bitmap(Red));
    }

    void RotationKeepsTheProperty() {
        LoadFirstOfThree();
        const QString before = mduLib::GetProperty(u"Clock Image File"_s, face_->Properties);
        Change();
        QCOMPARE(mduLib::GetProperty(u"Clock Image File"_s, face_->Properties), before);
    }

    void RotationPassesOverWhatItCannotRead() {
        LoadFirstOfThree();
        face_->Machine.WriteFile(u"pictures/2.bmp"_s, "broken");
        WriteBitmap(u"pictures/2.txt"_s, Green);
        QCOMPARE(Change(), Blue);
        QCOMPARE(Change(), Red);
        QVERIFY(face_->Window.Status.isEmpty());
    }

    // Whatever is loaded by its name takes its turn, too.
    void RotationTakesEveryKindOfPicture() {
        face_->Set(u"Clock Image File"_s, WriteBitmap(u"pictures/1.bmp"_s, Red));
        WriteBitmap(u"pictures/2.png"_s, Green);
        WriteBitmap(u"pictures/3.JPEG"_s, Blue);
        WriteBitmap(u"pictures/4.jpg"_s, White);
        WriteBitmap(u"pictures/5png"_s, Red);
        background_->LoadClockPicture();
        QCOMPARE(Change(), Green);
        QCOMPARE(Change(), Blue);
        QCOMPARE(Change(), White);
        QCOMPARE(Change(), Red);
        QCOMPARE(Change(), Green);
    }

    void ASinglePictureStays() {
        face_->Set(u"Clock Image File"_s, WriteBitmap(u"pictures/1.bmp"_s, Red));
        background_->LoadClockPicture();
        const int changes = face_->Window.StillChanges;
        QCOMPARE(Change(), Red);
        QVERIFY(!Holder().Picture);
        QCOMPARE(face_->Window.StillChanges, changes);
    }

    void AnEmptyFolderChangesNothing() {
        QCOMPARE(Change(), White);
        QVERIFY(!background_->HasClockPicture());
    }

    void TheFolderToFallBackOn() {
        WriteBitmap(u"images/Background/a.bmp"_s, Green);
        WriteBitmap(u"images/Background/b.bmp"_s, Blue);
        face_->Set(u"Clock Image File"_s, u".\\gone.jpg"_s);
        background_->LoadClockPicture();
        QCOMPARE(Change(), Green);
        QCOMPARE(Change(), Blue);
        QCOMPARE(Change(), Green);
    }

    void AnUnseenClockChangesAtOnce() {
        LoadFirstOfThree();
        face_->Window.Seen = false;
        background_->ShowAutoBackground();
        QVERIFY(!Holder().Picture);
        QCOMPARE(PixelAt(100, 100), Green);
    }

    void ASpeckChangesAtOnce() {
        face_->Window.Transparent = true;
        WriteBitmap(u"images/Background/a.bmp"_s, Green);
        background_->ShowAutoBackground();
        QCOMPARE(PixelAt(100, 100), Green);
        QVERIFY(!Holder().Picture);
    }

    void WipesComeInTurn() {
        LoadFirstOfThree();
        // After 256 ms of 500 each mode has revealed another part. Probed: the top right, the
        // bottom left, and the bottom of a column of mode 5 that has not begun; then whether a grey
        // band runs down before the middle.
        const QList<QList<bool>> revealed = {{true, false, false, false},
                                             {false, true, true, true},
                                             {true, true, true, false},
                                             {false, true, true, false},
                                             {false, true, false, false}};
        for (int turn = 0; turn < 6; ++turn) {
            const QRgb before = PixelAt(100, 100);
            background_->ShowAutoBackground();
            face_->Machine.Clock.Advance(256);
            const QImage image = Painted().copy();
            const QList<bool>& mode = revealed[turn % 5];
            QCOMPARE(image.pixel(196, 5) != before, mode[0]);
            QCOMPARE(image.pixel(3, 196) != before, mode[1]);
            QCOMPARE(image.pixel(12, 190) != before, mode[2]);
            QCOMPARE(image.pixel(110, 190) != before && image.pixel(130, 190) == before, mode[3]);
            face_->Machine.Clock.Advance(400);
        }
    }

    void AWipeEndsAsThePlainPicture() {
        face_->Window.Colour = 0x00FF00;
        face_->Set(u"Clock Image Size(%)"_s, u"80"_s);
        face_->Set(u"Clock Shape"_s, u"Circle"_s);
        LoadFirstOfThree();
        for (int mode = 1; mode <= 5; ++mode) {
            Change();
            const QImage wiped = Painted().copy();
            ClockBackground plain(face_->Context());
            plain.DrawBackgroundPicture(face_->Window.Drawn);
            QCOMPARE(face_->Window.Drawn.Image(), wiped);
            QVERIFY(!Holder().Picture);
        }
    }

    void MiddleOfTheFirstWipe() {
        LoadFirstOfThree();
        background_->ShowAutoBackground();
        QVERIFY(Holder().Picture);
        QCOMPARE(PixelAt(100, 0), Red);
        face_->Machine.Clock.Advance(256);  // 102 rows of 200
        QCOMPARE(PixelAt(100, 101), Green);
        QCOMPARE(PixelAt(100, 102), 0xFF282828);
        QCOMPARE(PixelAt(100, 121), 0xFFE6E6E6);
        QCOMPARE(PixelAt(100, 122), Red);
        QVERIFY(face_->Window.Shows >= 16);
    }

    void AWipeRevealsTheColourWhereThePictureIsGlass() {
        LoadFirstOfThree();
        QImage glass(40, 40, QImage::Format_ARGB32_Premultiplied);
        glass.fill(Qt::transparent);
        background_->ShowAutoBackground();
        Holder().Picture = std::make_shared<const QImage>(glass);
        face_->Machine.Clock.Advance(256);
        QCOMPARE(PixelAt(100, 50), White);
    }

    void FinishedAtOnce() {
        LoadFirstOfThree();
        background_->ShowAutoBackground();
        face_->Machine.Clock.Advance(100);
        background_->FinishWipe();
        QVERIFY(!Holder().Picture);
        QCOMPARE(PixelAt(100, 199), Green);
        const int shows = face_->Window.Shows;
        face_->Machine.Clock.Advance(1000);
        QCOMPARE(face_->Window.Shows, shows);
        background_->FinishWipe();
        QCOMPARE(face_->Window.Shows, shows);
    }

    void ANewWipeFinishesTheOld() {
        LoadFirstOfThree();
        background_->ShowAutoBackground();
        background_->ShowAutoBackground();
        QCOMPARE(PixelAt(100, 100), Green);
        face_->Machine.Clock.Advance(600);
        QCOMPARE(PixelAt(100, 100), Blue);
    }

    void ALoadEndsAWipe() {
        LoadFirstOfThree();
        background_->ShowAutoBackground();
        face_->Machine.Clock.Advance(100);
        background_->LoadClockPicture();
        QVERIFY(!Holder().Picture);
        face_->Machine.Clock.Advance(600);
        QCOMPARE(PixelAt(100, 100), Red);
    }

    void OddSurfaces_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("one pixel") << QSize(1, 1);
        QTest::newRow("a line") << QSize(4000, 1);
        QTest::newRow("huge") << QSize(4000, 4000);
    }

    void OddSurfaces() {
        QFETCH(QSize, size);
        Make(size.width(), size.height());
        face_->Set(u"Clock Image Size(%)"_s, u"400"_s);
        face_->Set(u"Clock Shape"_s, u"Octagon"_s);
        face_->Set(u"Window Shape"_s, u"Circle"_s);
        face_->Set(u"Window Background File"_s, WriteBitmap(u"mat.bmp"_s, Green));
        background_->LoadWindowPicture();
        LoadDial(Blue);
        background_->ApplySurface();
        QCOMPARE(PixelAt(size.width() / 2, size.height() / 2), Blue);
    }
};

QTEST_GUILESS_MAIN(tst_ClockBackground)
#include "tst_ClockBackground.moc"
