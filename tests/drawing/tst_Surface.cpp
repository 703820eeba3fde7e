#include <QPainter>
#include <QTest>

#include "drawing/Surface.h"

using drawing::Surface;

namespace {

constexpr int White = 0xFFFFFF;
constexpr int Red = 0x0000FF;
constexpr QRgb RedPixel = 0xFFFF0000;
constexpr QRgb WhitePixel = 0xFFFFFFFF;

/// A white surface of 6 by 5 pixels that may be drawn on in 3 by 2 of them, from (2, 1).
struct Clipped {
    Surface Drawn{6, 5, 1};

    Clipped() {
        Drawn.Cls(White);
        Drawn.SetClip({2, 1, 3, 2});
    }
    /// The pixels that are red, a row a line.
    QString Reds() const {
        QStringList rows;
        for (int y = 0; y < 5; ++y) {
            QString row;
            for (int x = 0; x < 6; ++x) {
                const QRgb pixel = Drawn.Image().pixel(x, y);
                row += pixel == RedPixel ? u'#' : pixel == WhitePixel ? u'.' : u'?';
            }
            rows += row;
        }
        return rows.join(u' ');
    }
};

const QString Inside = QStringLiteral("...... ..###. ..###. ...... ......");

}  // namespace

class tst_Surface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsBlack() {
        const Surface surface(3, 2, 1);
        QCOMPARE(surface.Image().size(), QSize(3, 2));
        QCOMPARE(surface.Image().pixel(0, 0), 0xFF000000);
        QCOMPARE(surface.Image().pixel(2, 1), 0xFF000000);
    }

    void HasAtLeastAPixel() { QCOMPARE(Surface(0, -3, 1).Image().size(), QSize(1, 1)); }

    /// 15 twips are a logical pixel.
    void MeasuresItsHeight() {
        const Surface surface(60, 40, 2);
        QCOMPARE(surface.LogicalHeight(), 20.0);
        QCOMPARE(surface.TwipsPerDevicePixel(), 7.5);
        QCOMPARE(surface.Height(), 300);
    }

    void ClearsAll() {
        Surface surface(6, 5, 1);
        surface.Cls(Red);
        QCOMPARE(surface.Image().pixel(0, 0), RedPixel);
        QCOMPARE(surface.Image().pixel(5, 4), RedPixel);
    }

    void ClearsWithinTheClip() {
        Clipped clipped;
        clipped.Drawn.Cls(Red);
        QCOMPARE(clipped.Reds(), Inside);
        clipped.Drawn.SetClip({});
        clipped.Drawn.Cls(Red);
        QCOMPARE(clipped.Reds().count(u'#'), 30);
    }

    void SetsPixelsWithinTheClip() {
        Clipped clipped;
        for (int y = -1; y < 7; ++y) {
            for (int x = -1; x < 8; ++x) {
                clipped.Drawn.SetPixel(x, y, Red);
            }
        }
        QCOMPARE(clipped.Reds(), Inside);
    }

    void CopiesWithinTheClip() {
        Clipped clipped;
        QImage red(6, 5, QImage::Format_RGB32);
        red.fill(RedPixel);
        clipped.Drawn.CopyFrom(red);
        QCOMPARE(clipped.Reds(), Inside);
    }

    void PaintsWithinTheClip() {
        Clipped clipped;
        clipped.Drawn.Paint([](QPainter& painter) { painter.fillRect(0, 0, 6, 5, Qt::red); });
        QCOMPARE(clipped.Reds(), Inside);
    }

    void DrawsLinesWithinTheClip() {
        Clipped clipped;
        for (int y = 0; y < 5; ++y) {
            clipped.Drawn.Line(-4, y, 9, y, Red, 1);
        }
        QCOMPARE(clipped.Reds(), Inside);
    }

    /// A clip beyond the surface ends with it.
    void TheClipLiesOnTheSurface() {
        Clipped clipped;
        clipped.Drawn.SetClip({4, 3, 100, 100});
        QCOMPARE(clipped.Drawn.Clip(), QRect(4, 3, 2, 2));
        clipped.Drawn.Cls(Red);
        QCOMPARE(clipped.Reds(), QStringLiteral("...... ...... ...... ....## ....##"));
        clipped.Drawn.SetClip({-3, -3, 4, 4});
        QCOMPARE(clipped.Drawn.Clip(), QRect(0, 0, 1, 1));
    }

    /// A pixel that a line covers by half is half of it: 255 - 128 of green and blue are left.
    void LinesBlendWithWhatIsBelow() {
        Surface surface(9, 9, 1);
        surface.Cls(White);
        surface.Line(1, 4, 7, 4, Red, 2);
        QCOMPARE(surface.Image().pixel(4, 4), RedPixel);
        QCOMPARE(qRed(surface.Image().pixel(4, 3)), 255);
        QVERIFY(qAbs(qGreen(surface.Image().pixel(4, 3)) - 127) <= 2);
        QCOMPARE(surface.Image().pixel(4, 3), surface.Image().pixel(4, 5));
        QCOMPARE(surface.Image().pixel(4, 2), WhitePixel);
    }

    void ACopyIsOfTheWholeSurface() {
        Clipped clipped;
        clipped.Drawn.Cls(Red);
        QImage copy;
        clipped.Drawn.CopyTo(copy);
        QCOMPARE(copy, clipped.Drawn.Image());
        const uchar* pixels = copy.constBits();
        clipped.Drawn.Cls(White);
        clipped.Drawn.CopyTo(copy);
        QCOMPARE(copy.constBits(), pixels);  // used again
        QCOMPARE(copy.pixel(3, 2), WhitePixel);
    }

    void ColoursHaveRedInTheLowByte() {
        QCOMPARE(drawing::ToRgb(0x123456), qRgb(0x56, 0x34, 0x12));
    }
};

QTEST_GUILESS_MAIN(tst_Surface)
#include "tst_Surface.moc"
