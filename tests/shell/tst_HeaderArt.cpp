#include "shell/ui/HeaderArt.h"

#include <QPainter>
#include <QPushButton>
#include <QTest>

#include "drawing/Surface.h"
#include "foundation/Contrast.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

namespace {

/// A header on a ground of one colour; red in the low byte.
struct Art {
    Art(const QSize& size, int ground) : Ground(QColor(drawing::ToRgb(ground))) {
        Header.resize(size);
        Header.SetVersionLocation(u"Version 1.2.3"_s);
        Header.SetBackColour(ground);
        Header.show();
    }

    QRect Invitation() const { return Header.findChild<QPushButton*>()->geometry(); }

    QImage Picture() {
        QImage picture(Header.size(), QImage::Format_RGB32);
        picture.fill(Ground);
        Header.render(&picture, {}, {}, QWidget::DrawChildren);
        return picture;
    }
    /// The best contrast of any pixel of a rectangle to the ground.
    double Contrast(const QRect& where) {
        const QImage picture = Picture();
        double best = 1;
        for (int y = where.top(); y <= where.bottom(); ++y) {
            for (int x = where.left(); x <= where.right(); ++x) {
                best = std::max(best, mduUILib::ContrastRatio(picture.pixelColor(x, y), Ground));
            }
        }
        return best;
    }
    QRect Version() const { return {16, Header.height() - 28, 80, 16}; }
    QRect Maker() const { return {Header.width() - 120, Header.height() - 28, 104, 16}; }

    MachineWithZones Machine;
    QColor Ground;
    HeaderArt Header{Machine.TheProgram, {[] {}, [](const QPoint&) {}, [] {}}, nullptr};
};

}  // namespace

class tst_HeaderArt : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFootIsReadableOnEveryGround_data() {
        QTest::addColumn<int>("ground");
        QTest::newRow("green") << 0x00FF00;
        QTest::newRow("red") << 0x0000FF;
        QTest::newRow("blue") << 0xFF0000;
        QTest::newRow("cyan") << 0xFFFF00;
        QTest::newRow("magenta") << 0xFF00FF;
        QTest::newRow("yellow") << 0x00FFFF;
        QTest::newRow("black") << 0x000000;
        QTest::newRow("white") << 0xFFFFFF;
        QTest::newRow("grey") << 0x757575;
        QTest::newRow("the default") << 8411709;
    }

    void TheFootIsReadableOnEveryGround() {
        QFETCH(int, ground);
        Art art({700, 500}, ground);
        QVERIFY(art.Contrast(art.Version()) >= 4.5);
        QVERIFY(art.Contrast(art.Maker()) >= 4.5);
    }

    /// Whatever the picture has there, the text stands on the ground's colour.
    void OverAPictureTheFootBringsItsGround() {
        Art art({700, 500}, 0x00FFFF);  // the ink is black
        art.Ground = Qt::black;
        QCOMPARE(art.Contrast(art.Version()), 1.0);
        art.Header.SetOverPicture(true);
        QVERIFY(art.Contrast(art.Version()) >= 4.5);
        QVERIFY(art.Contrast(art.Maker()) >= 4.5);
        QVERIFY(art.Contrast(art.Invitation().adjusted(3, 3, -3, -3)) >= 4.5);
        art.Header.SetOverPicture(false);
        QCOMPARE(art.Contrast(art.Version()), 1.0);
    }

    void TheInvitationStandsClear_data() {
        QTest::addColumn<int>("height");
        for (const int height : {500, 300, 220, 160, 120, 60}) {
            QTest::addRow("%d pixels high", height) << height;
        }
    }

    /// Nothing is drawn below the button but the foot, which is clear of it.
    void TheInvitationStandsClear() {
        QFETCH(int, height);
        Art art({700, height}, 0xFFFFFF);
        const QRect invitation = art.Invitation();
        QVERIFY(art.Header.rect().contains(invitation));
        art.Header.findChild<QPushButton*>()->hide();
        const QRect around = invitation.adjusted(-2, -2, 2, 2) & art.Header.rect();
        QCOMPARE(art.Contrast(around), 1.0);
    }

    void ALowAreaShowsWhatHasRoom() {
        Art art({700, 200}, 0xFFFFFF);
        const QRect above(0, 0, 700, art.Invitation().top());
        QVERIFY(art.Contrast(above) > 4.5);  // the rims of the letters
        QVERIFY(art.Contrast(art.Version()) > 4.5);
        art.Header.resize(700, 50);
        QCOMPARE(art.Contrast({0, 0, 200, 50}), 1.0);
    }

    void ANarrowAreaShowsTheVersion() {
        Art art({250, 400}, 0xFFFFFF);
        QVERIFY(art.Contrast(art.Version()) > 4.5);
        QCOMPARE(art.Contrast({140, 372, 110, 28}), 1.0);
        QCOMPARE(art.Header.findChild<QPushButton*>()->font().pixelSize(), 14);
        art.Header.resize(190, 60);
        QVERIFY(art.Header.rect().contains(art.Invitation()));
        art.Header.resize(20, 60);  // it has no room at all
        QCOMPARE(art.Header.findChild<QPushButton*>()->font().pixelSize(), 9);
        art.Header.resize(700, 400);
        QCOMPARE(art.Header.findChild<QPushButton*>()->font().pixelSize(), 17);
    }
};

QTEST_MAIN(tst_HeaderArt)
#include "tst_HeaderArt.moc"
