#include <QTest>

#include "foundation/ui/BalloonWindow.h"

using namespace Qt::StringLiterals;

namespace {

/// A plain yellow tip with words in blue, at a tool in the upper left of the screen.
struct Tip {
    QWidget Owner;
    int Clicks = 0;
    BalloonWindow Window{&Owner, [this] { ++Clicks; }};

    void Show(const QString& title, const QString& text, int icon) {
        BalloonLook look{title, text, icon, QColor(255, 255, 192), Qt::blue};
        look.IsBalloon = false;
        Window.Appear(look, QRect(20, 20, 16, 16), BalloonStand::Hanging);
    }

    /// What the words cover, from the corner inside the margin; empty where there are none.
    QRect Words() {
        const QImage image = Window.grab().toImage();
        QRect words;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.blue() > colour.red() + 120 && colour.green() < 100) {
                    words |= QRect(x, y, 1, 1);
                }
            }
        }
        const QPoint inside = Window.Place().Body.topLeft() + QPoint(12, 12);
        return words.translated(-inside);
    }
    int InsideWidth() const { return Window.Place().Body.width() - 24; }
};

}  // namespace

class tst_BalloonWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The icon is 18 pixels wide, with a gap of 8 behind it.
    void TheTitleStandsBesideTheIcon() {
        Tip tip;
        tip.Show(u"IIII"_s, {}, 0);
        const QRect alone = tip.Words();
        QVERIFY(alone.left() >= 0 && alone.left() <= 2);
        tip.Show(u"IIII"_s, {}, 2);
        const QRect beside = tip.Words();
        QCOMPARE(beside.left(), alone.left() + 26);
        QCOMPARE(beside.width(), alone.width());
    }

    /// The title is as high as the icon where its words are not.
    void TheTitleStandsInTheMiddleOfTheIcon() {
        Tip tip;
        tip.Show(u"H"_s, {}, 2);
        QVERIFY(qAbs(tip.Words().center().y() - 9) <= 1);
    }

    /// Its lines are broken where the room beside the icon ends, and none of them is lost.
    void ALongTitleKeepsWithinTheTip() {
        Tip tip;
        tip.Show(u"wide words "_s.repeated(20), {}, 2);
        const QRect title = tip.Words();
        const int line = QFontMetrics(tip.Window.font()).height();
        QVERIFY(title.height() > line);
        QVERIFY(title.left() >= 26);
        QVERIFY2(title.right() <= tip.InsideWidth(), qPrintable(QString::number(title.right())));
        QCOMPARE(tip.Window.Place().Body.height() - 24 - title.bottom() < line / 2, true);
    }

    /// 6 pixels below the title; without a title, where that would stand.
    void TheTextStandsBelowTheTitle() {
        Tip tip;
        tip.Show({}, u"H"_s, 0);
        const QRect alone = tip.Words();
        tip.Show(u" "_s, u"H"_s, 0);
        QFont bold = tip.Window.font();
        bold.setBold(true);
        const int title = QFontMetrics(bold).boundingRect(QRect(0, 0, 540, 99), 0, u" "_s).height();
        QCOMPARE(tip.Words(), alone.translated(0, title + 6));
        tip.Show({}, u"H"_s, 2);
        QCOMPARE(tip.Words(), alone.translated(0, 18 + 6));
    }

    void APressIsTold() {
        Tip tip;
        tip.Show(u"Title"_s, u"Text"_s, 0);
        QTest::mousePress(&tip.Window, Qt::LeftButton);
        QCOMPARE(tip.Clicks, 1);
    }
};

QTEST_MAIN(tst_BalloonWindow)
#include "tst_BalloonWindow.moc"
