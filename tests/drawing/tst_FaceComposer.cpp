#include <QPainter>
#include <QTest>

#include "drawing/FaceComposer.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::FaceComposer;
using drawing::HandsFrame;
using drawing::Surface;

constexpr int Paper = 0xC0D0E0;  // blue 0xC0, green 0xD0, red 0xE0

/// Under the hands: a colour with one dark row.
struct PaperBackground final : drawing::Background {
    mutable int Painted = 0;
    void DrawBackgroundPicture(Surface& surface) const override {
        ++Painted;
        surface.Cls(Paper);
        for (int x = 0; x < surface.ScaleWidth(); ++x) {
            surface.SetPixel(x, 10, 0);
        }
    }
};

/// A dial with one dark column and, over the hands, one red pixel in the middle.
struct OneLineDial final : drawing::Dial {
    mutable int Painted = 0;
    bool Over = false;
    void PaintStill(Surface& surface) const override {
        ++Painted;
        for (int y = 0; y < surface.ScaleHeight(); ++y) {
            surface.SetPixel(5, y, 0);
        }
    }
    void PaintNumbersOver(Surface& surface) const override {
        if (Over) {
            surface.SetPixel(surface.ScaleWidth() / 2, surface.ScaleHeight() / 2, 255);
        }
    }
};

struct Stage {
    explicit Stage(int width = 120, int height = 100, double ratio = 1)
        : Face(width, height, ratio), Composer(Face.Window, Face.Controls, Dial, Background) {}

    FakeFace Face;
    PaperBackground Background;
    OneLineDial Dial;
    FaceComposer Composer;
    FakeRandom Random;
    drawing::AnalogueLook Look = [] {
        drawing::AnalogueLook look;
        look.Hour = {drawing::HandStyle::Metal, u"Blue"_s, 55, 6};
        look.Minute = {drawing::HandStyle::Frame, u"Black"_s, 75, 4};
        look.Second = {drawing::HandStyle::Line, u"Red"_s, 85, 1};
        look.HeadColour = u"Green"_s;
        return look;
    }();

    HandsFrame Hands(const drawing::HandTime& time) {
        return drawing::MakeHandsFrame(Face.Window.Drawn, Look, time, Random);
    }
    QRegion Compose(const drawing::HandTime& time) { return Composer.Compose(Hands(time)); }
    QRgb Pixel(int x, int y) const { return Face.Window.Drawn.Image().pixel(x, y); }

    mduUILib::Control& Label(const QString& caption, float left, float top) {
        mduUILib::Control& label = Face.Controls.lblDigitalNumber(1);
        label.Visible = true;
        label.Caption = caption;
        label.Font = QFont(u"DejaVu Sans"_s);
        label.Font.setPointSizeF(12);
        label.Left = left;
        label.Top = top;
        label.Width = 30;
        label.Height = 20;
        return label;
    }
};

class tst_FaceComposer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LayersLieInTheirOrder() {
        Stage stage;
        stage.Dial.Over = true;
        stage.Compose({0, 0, 0});
        QCOMPARE(stage.Pixel(1, 1), qRgb(0xE0, 0xD0, 0xC0));
        QCOMPARE(stage.Pixel(1, 10), qRgb(0, 0, 0));     // the background's row
        QCOMPARE(stage.Pixel(5, 50), qRgb(0, 0, 0));     // the dial's column above it
        QCOMPARE(stage.Pixel(60, 20), qRgb(255, 0, 0));  // the second hand at twelve over both
        QCOMPARE(stage.Pixel(60, 50), qRgb(255, 0, 0));  // a number over the hub
    }

    void StillLayerIsKept() {
        Stage stage;
        for (int second = 0; second < 5; ++second) {
            stage.Compose({1, 2, second});
        }
        QCOMPARE(stage.Background.Painted, 1);
        QCOMPARE(stage.Dial.Painted, 1);
        stage.Composer.StillChanged();
        QCOMPARE(stage.Compose({1, 2, 4}), QRegion(0, 0, 120, 100));
        QCOMPARE(stage.Background.Painted, 2);
    }

    void AnotherSizeTakesAnotherStillLayer() {
        Stage stage;
        stage.Compose({1, 2, 3});
        stage.Face.Window.Resize(60, 40);
        QCOMPARE(stage.Compose({1, 2, 3}), QRegion(0, 0, 60, 40));
        QCOMPARE(stage.Background.Painted, 2);
        QCOMPARE(stage.Pixel(1, 1), qRgb(0xE0, 0xD0, 0xC0));
    }

    void EqualPassChangesNothing() {
        Stage stage;
        QCOMPARE(stage.Compose({1, 2, 3}), QRegion(0, 0, 120, 100));
        QVERIFY(stage.Compose({1, 2, 3}).isEmpty());
        stage.Composer.Invalidate();
        QCOMPARE(stage.Compose({1, 2, 3}), QRegion(0, 0, 120, 100));
    }

    /// Whoever draws on the surface next may do so anywhere.
    void LeavesNoClipBehind() {
        Stage stage;
        mduUILib::Control& label = stage.Label(u"11"_s, 40, 60);
        stage.Composer.Compose(std::nullopt);
        label.Caption = u"12"_s;
        QVERIFY(!stage.Composer.Compose(std::nullopt).contains(QPoint(110, 5)));
        QCOMPARE(stage.Face.Window.Drawn.Clip(), QRect(0, 0, 120, 100));
    }

    void HandsComeAndGo() {
        Stage stage;
        stage.Compose({0, 0, 0});
        QCOMPARE(stage.Composer.Compose(std::nullopt), QRegion(0, 0, 120, 100));
        QCOMPARE(stage.Pixel(60, 20), qRgb(0xE0, 0xD0, 0xC0));
        QVERIFY(stage.Composer.Compose(std::nullopt).isEmpty());
    }

    void ALabelThatMovesLeavesNoTrace() {
        Stage stage;
        mduUILib::Control& label = stage.Label(u"88"_s, 40, 60);
        stage.Composer.Compose(std::nullopt);
        const QImage there = stage.Face.Window.Drawn.Image().copy();
        label.Top = 20;
        const QRegion changed = stage.Composer.Compose(std::nullopt);
        QVERIFY(changed.contains(QPoint(50, 70)));
        QVERIFY(changed.contains(QPoint(50, 30)));
        QVERIFY(!changed.contains(QPoint(110, 5)));
        label.Top = 60;
        stage.Composer.Compose(std::nullopt);
        QCOMPARE(stage.Face.Window.Drawn.Image(), there);
        label.Visible = false;
        stage.Composer.Compose(std::nullopt);
        QCOMPARE(stage.Pixel(50, 70), qRgb(0xE0, 0xD0, 0xC0));
    }

    void EachChangeOfALabelIsSeen() {
        Stage stage;
        mduUILib::Control& label = stage.Label(u"11"_s, 40, 60);
        stage.Composer.Compose(std::nullopt);
        QVERIFY(stage.Composer.Compose(std::nullopt).isEmpty());
        label.Caption = u"12"_s;
        QVERIFY(!stage.Composer.Compose(std::nullopt).isEmpty());
        label.ForeColor = 255;
        QVERIFY(!stage.Composer.Compose(std::nullopt).isEmpty());
        label.Font.setPointSizeF(13);
        QVERIFY(!stage.Composer.Compose(std::nullopt).isEmpty());
        QVERIFY(stage.Composer.Compose(std::nullopt).isEmpty());
    }

    void ImagesAreStretchedOverTheirRectangle() {
        Stage stage;
        QImage blue(3, 3, QImage::Format_ARGB32_Premultiplied);
        blue.fill(QColor(0, 0, 255));
        mduUILib::Control& flag = stage.Face.Controls.imgFlag(1);
        flag.Picture = std::make_shared<const QImage>(blue);
        flag.Left = 20;
        flag.Top = 30;
        flag.Width = 40;
        flag.Height = 20;
        stage.Composer.Compose(std::nullopt);
        QCOMPARE(stage.Pixel(40, 40), qRgb(0xE0, 0xD0, 0xC0));  // not visible yet
        flag.Visible = true;
        stage.Composer.Compose(std::nullopt);
        QCOMPARE(stage.Pixel(21, 31), qRgb(0, 0, 255));
        QCOMPARE(stage.Pixel(58, 48), qRgb(0, 0, 255));
        QCOMPARE(stage.Pixel(61, 40), qRgb(0xE0, 0xD0, 0xC0));
    }

    /// What is painted over what: the speaker over the flag over the hands.
    void OverlaysLieInTheirOrder() {
        Stage stage;
        const auto cover = [&stage](mduUILib::ControlArray& array, QRgb colour) {
            QImage picture(2, 2, QImage::Format_RGB32);
            picture.fill(colour);
            mduUILib::Control& image = array(array.First);
            image.Picture = std::make_shared<const QImage>(picture);
            image.Visible = true;
            image.Left = 50;
            image.Top = 10;
            image.Width = image.Height = 20;
        };
        cover(stage.Face.Controls.imgFlag, qRgb(0, 0, 255));
        stage.Compose({0, 0, 0});
        QCOMPARE(stage.Pixel(60, 20), qRgb(0, 0, 255));
        cover(stage.Face.Controls.imgSunMoon, qRgb(0, 255, 0));
        stage.Compose({0, 0, 0});
        QCOMPARE(stage.Pixel(60, 20), qRgb(0, 0, 255));
        cover(stage.Face.Controls.imgSpeaker, qRgb(9, 9, 9));
        stage.Compose({0, 0, 0});
        QCOMPARE(stage.Pixel(60, 20), qRgb(9, 9, 9));
    }

    /// A pass that paints only what moved leaves the same pixels as a whole one.
    void PartialPassEqualsWholePass_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("style");
        QTest::addColumn<double>("ratio");
        for (const QString& style : {u"Line"_s, u"3D Metal"_s, u"3D Gold Simple"_s, u"3D"_s}) {
            QTest::newRow(qPrintable(style)) << QSize(160, 150) << style << 1.0;
        }
        QTest::newRow("wide") << QSize(177, 90) << u"3D Metal"_s << 1.0;
        QTest::newRow("tiny") << QSize(9, 7) << u"3D Metal"_s << 1.0;
        QTest::newRow("fine") << QSize(300, 300) << u"3D Metal Simple"_s << 2.0;
    }

    void PartialPassEqualsWholePass() {
        QFETCH(QSize, size);
        QFETCH(QString, style);
        QFETCH(double, ratio);
        Stage kept(size.width(), size.height(), ratio);
        Stage whole(size.width(), size.height(), ratio);
        for (Stage* stage : {&kept, &whole}) {
            stage->Look.Hour.Style = stage->Look.Minute.Style = stage->Look.Second.Style =
                drawing::ReadHandStyle(style);
            stage->Label(u"12"_s, 30, 30);
        }
        const auto check = [&](const drawing::HandTime& time) {
            kept.Compose(time);
            whole.Composer.Invalidate();
            whole.Compose(time);
            QVERIFY2(kept.Face.Window.Drawn.Image() == whole.Face.Window.Drawn.Image(),
                     qPrintable(u"%1:%2:%3"_s.arg(time.Hour).arg(time.Minute).arg(time.Second)));
        };
        for (int second = 0; second < 120; ++second) {
            check({10, 58 + second / 60, second % 60});
        }
        for (int minute = 0; minute < 720; minute += 7) {
            check({minute / 60, minute % 60, 0});
        }
    }
};

QTEST_MAIN(tst_FaceComposer)
#include "tst_FaceComposer.moc"
