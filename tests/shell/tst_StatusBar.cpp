#include <QTest>

#include "shell/ToolbarLook.h"
#include "shell/ui/StatusBar.h"

using namespace Qt::StringLiterals;

namespace {

/// A bar of 200 by 24 pixels, or 24 by 200: its eye is a red square, its words are blue.
struct Bar {
    explicit Bar(int align) : Status({QIcon(RedSquare())}, nullptr) {
        QPalette colours;
        colours.setColor(QPalette::Window, Qt::white);
        colours.setColor(QPalette::WindowText, Qt::blue);
        colours.setColor(QPalette::Mid, QColor(0, 128, 0));
        Status.setPalette(colours);
        Status.SetAlign(align);
        Status.resize(shell::IsVertical(align) ? QSize(24, 200) : QSize(200, 24));
    }

    static QPixmap RedSquare() {
        QPixmap square(16, 16);
        square.fill(Qt::red);
        return square;
    }

    /// The smallest rectangle that holds all pixels of about that colour.
    QRect Of(const QColor& colour) {
        const QImage image = Status.grab().toImage();
        const auto isNear = [&](const QColor& other) {
            return qAbs(other.red() - colour.red()) + qAbs(other.green() - colour.green()) +
                       qAbs(other.blue() - colour.blue()) <
                   150;
        };
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (isNear(image.pixelColor(x, y))) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }
    QRect Eye() { return Of(Qt::red); }
    QRect Words() { return Of(Qt::blue); }
    QRect Rule() { return Of(QColor(0, 128, 0)); }

    StatusBar Status;
};

}  // namespace

class tst_StatusBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheEyeStandsInTheMiddleOfItsEnd_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<QRect>("eye");
        QTest::newRow("top") << int{shell::Align::Top} << QRect(6, 4, 16, 16);
        QTest::newRow("bottom") << int{shell::Align::Bottom} << QRect(6, 4, 16, 16);
        QTest::newRow("left") << int{shell::Align::Left} << QRect(4, 6, 16, 16);
        QTest::newRow("right") << int{shell::Align::Right} << QRect(4, 6, 16, 16);
    }
    void TheEyeStandsInTheMiddleOfItsEnd() {
        QFETCH(int, align);
        Bar bar(align);
        QCOMPARE(bar.Eye(), QRect());
        bar.Status.SetEye(1);
        QTEST(bar.Eye(), "eye");
        bar.Status.SetEye(2);  // there is no such picture
        QCOMPARE(bar.Eye(), QRect());
    }

    void ALineAtItsInnerEdge_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<QRect>("line");
        QTest::newRow("top") << int{shell::Align::Top} << QRect(0, 23, 200, 1);
        QTest::newRow("bottom") << int{shell::Align::Bottom} << QRect(0, 0, 200, 1);
    }
    void ALineAtItsInnerEdge() {
        QFETCH(int, align);
        Bar bar(align);
        QTEST(bar.Rule(), "line");
    }

    void TheTimeStandsAtTheFarEnd() {
        Bar lying(shell::Align::Bottom);
        lying.Status.SetTimeText(u"14:05"_s);
        QVERIFY(qAbs(lying.Words().right() - 193) <= 2);
        QVERIFY(lying.Words().left() > 140);
        Bar upright(shell::Align::Right);
        upright.Status.SetTimeText(u"14:05"_s);
        QVERIFY(qAbs(upright.Words().bottom() - 193) <= 2);
        QVERIFY(upright.Words().top() > 140);
        QVERIFY(qAbs(upright.Words().center().x() - 12) <= 3);
    }

    /// It begins behind the eye, and ends before the time however long it is.
    void TheMessageStandsBetween() {
        Bar bar(shell::Align::Bottom);
        bar.Status.SetMessage(u"H"_s);
        QVERIFY(bar.Words().left() >= 27 && bar.Words().left() <= 30);
        bar.Status.SetTimeText(u"14:05"_s);
        const int timeLeft = [&bar] {
            bar.Status.SetMessage({});
            return bar.Words().left();
        }();
        bar.Status.SetMessage(QString(500, u'H'));
        const QImage image = bar.Status.grab().toImage();
        for (int y = 2; y < 24; ++y) {
            QCOMPARE(image.pixelColor(timeLeft - 6, y), QColor(Qt::white));
        }
        QVERIFY(bar.Words().left() <= 30);
    }

    void AtTheLeftThereIsNoMessage() {
        Bar bar(shell::Align::Left);
        bar.Status.SetMessage(u"H"_s);
        QCOMPARE(bar.Words(), QRect());
        bar.Status.SetAlign(shell::Align::Right);
        QVERIFY(bar.Words().isValid());
    }
};

QTEST_MAIN(tst_StatusBar)
#include "tst_StatusBar.moc"
