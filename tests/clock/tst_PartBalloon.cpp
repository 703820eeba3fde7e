#include <QScopeGuard>
#include <QToolTip>

#include "MouseDesk.h"
#include "foundation/Contrast.h"
#include "foundation/ui/BalloonWindow.h"

namespace {

struct HintDesk : MouseDesk {
    using MouseDesk::MouseDesk;

    /// The balloon on the screen; null for none.
    const BalloonWindow* Tip() const {
        for (const BalloonWindow* tip : Clock->findChildren<BalloonWindow*>()) {
            if (tip->isVisible()) {
                return tip;
            }
        }
        return nullptr;
    }
    QString Title() const { return Tip() != nullptr ? Tip()->Look().Title : u"none"_s; }
    QString Text() const { return Tip() != nullptr ? Tip()->Look().Text : QString(); }
    void Wait(int milliseconds) { Base.Machine.Clock.Advance(milliseconds); }
    void RestOn(const QPoint& at) {
        MoveTo(at + QPoint(0, 1));  // a mouse that stands there already would tell nothing
        MoveTo(at);
        Wait(500);
    }
};

}  // namespace

class tst_PartBalloon : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachPartHasItsHint() {
        HintDesk desk;
        const mduUILib::ClockControls& controls = desk.Clock->Controls();
        desk.RestOn({155, 105});
        QCOMPARE(desk.Title(), u"Clock Hand Settings"_s);
        desk.RestOn(HintDesk::MiddleOf(controls.lblHour(15)));
        QCOMPARE(desk.Title(), u"Clock Hour Number"_s);
        QCOMPARE(desk.Text(), u"Set timer\r\nSet hour number colour"_s);
        desk.RestOn(HintDesk::MiddleOf(controls.imgClockNumber(6)));
        QCOMPARE(desk.Title(), u"Time 1:12"_s);
        QCOMPARE(desk.Text(), u"Set timer for 1:12 to 1:24"_s);
        desk.RestOn(HintDesk::MiddleOf(controls.imgSpeaker(1)));
        QCOMPARE(desk.Title(), QString());
        QVERIFY(desk.Text().startsWith(u"Speech Day Pattern:"_s));
        desk.RestOn({200, 60});
        QCOMPARE(desk.Title(), u"none"_s);
    }

    void Calculator() {
        HintDesk desk("Clocks=Analogue", "Clocks=Calculator");
        const mduUILib::ClockControls& controls = desk.Clock->Controls();
        desk.RestOn(HintDesk::MiddleOf(controls.lblTimeInput(1)));
        QCOMPARE(desk.Title(), u"Local time settings"_s);
        desk.RestOn(HintDesk::MiddleOf(controls.lblTimeOutput(1)));
        QCOMPARE(desk.Title(), u"Calculated Time Settings"_s);
    }

    void ATimersMarkInItsColour_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("blue") << QByteArray("Blue") << QColor(Qt::blue);
        QTest::newRow("yellow") << QByteArray("Yellow") << QColor(Qt::yellow);
    }

    // In a shade of it that can be read on the desktop's paper.
    void ATimersMarkInItsColour() {
        QFETCH(QByteArray, name);
        QFETCH(QColor, colour);
        const QPalette before = QToolTip::palette();
        QPalette paper = before;
        paper.setColor(QPalette::ToolTipBase, QColor(255, 255, 220));
        QToolTip::setPalette(paper);
        const auto restore = qScopeGuard([&] { QToolTip::setPalette(before); });
        HintDesk desk;
        desk.Base.Machine.WriteFile(u"tester/Timers/Nepal Standard TimeTimer.txt"_s,
                                    "5," + name + ",,,0#3:00@Tea\r\n");
        desk.Clock = desk.Running(u"Nepal Standard Time"_s);
        desk.Frame()->setGeometry(QRect(QPoint(200, 150), QSize(300, 200) + desk.FrameSize()));
        desk.Base.Machine.Clock.Advance(2000);
        desk.Origin = desk.Clock->mapTo(&desk.Base.Area, QPoint(0, 0));
        desk.RestOn(HintDesk::MiddleOf(desk.Clock->Controls().imgTimer(1)));
        QCOMPARE(desk.Title(), u"Timer Message"_s);
        QVERIFY(desk.Text().startsWith(u"Tea\r\n"_s));
        const BalloonLook look = desk.Tip()->Look();
        QCOMPARE(look.Back, QColor(255, 255, 220));
        QCOMPARE(look.Fore.hsvHue(), colour.hsvHue());
        QVERIFY(mduUILib::ContrastRatio(look.Fore, look.Back) >= 4.5);
    }

    /// The digits are one part: the balloon stays from one to the next, clear of all of them.
    void TheDigitsAreOnePart() {
        HintDesk desk("Clocks=Analogue", "Clocks=Digital");
        const mduUILib::ClockControls& controls = desk.Clock->Controls();
        desk.RestOn(HintDesk::MiddleOf(controls.lblDigitalNumber(1)));
        QCOMPARE(desk.Title(), u"Digital Number Settings"_s);
        const BalloonWindow* tip = desk.Tip();
        desk.MoveTo(HintDesk::MiddleOf(controls.lblDigitalNumber(3)));
        QCOMPARE(desk.Tip(), tip);
        const int lowest = static_cast<int>(controls.lblDigitalNumber(3).Rect().bottom());
        QVERIFY(tip->pos().y() >= desk.Clock->mapToGlobal(QPoint(0, lowest)).y());
    }

    void ItWaitsForTheMouseToRest() {
        HintDesk desk;
        const QPoint three = HintDesk::MiddleOf(desk.Clock->Controls().lblHour(15));
        desk.MoveTo(three);
        desk.Wait(499);
        QCOMPARE(desk.Title(), u"none"_s);
        desk.MoveTo(three + QPoint(1, 0));  // still on the same part
        desk.Wait(1);
        QCOMPARE(desk.Title(), u"Clock Hour Number"_s);
        desk.Wait(10000);
        QCOMPARE(desk.Title(), u"none"_s);
    }

    void APressClearsIt() {
        HintDesk desk;
        const QPoint three = HintDesk::MiddleOf(desk.Clock->Controls().lblHour(15));
        desk.RestOn(three);
        QVERIFY(desk.Tip() != nullptr);
        desk.Mouse(QEvent::MouseButtonPress, three);
        desk.Release(three);
        QCOMPARE(desk.Title(), u"none"_s);
        desk.RestOn(three + QPoint(1, 0));
        QCOMPARE(desk.Title(), u"none"_s);
        desk.MoveTo(three);
        desk.RestOn({200, 60});
        desk.MoveTo(three);
        desk.Wait(300);
        desk.Mouse(QEvent::MouseButtonPress, three);  // one that is still to come, too
        desk.Release(three);
        desk.Wait(1000);
        QCOMPARE(desk.Title(), u"none"_s);
    }

    void NothingIsLeftOfAClockThatIsGone_data() {
        using Act = std::function<void(HintDesk&)>;
        QTest::addColumn<Act>("act");
        QTest::newRow("closed") << Act([](HintDesk& desk) { desk.Base.Close(desk.Clock); });
        QTest::newRow("minimised") << Act([](HintDesk& desk) { desk.Clock->SetWindowState(1); });
        QTest::newRow("disabled") << Act([](HintDesk& desk) { desk.Clock->EnableWindow(false); });
    }

    void NothingIsLeftOfAClockThatIsGone() {
        QFETCH(std::function<void(HintDesk&)>, act);
        HintDesk desk;
        desk.RestOn({155, 105});
        QVERIFY(desk.Tip() != nullptr);
        act(desk);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            QVERIFY(window->objectName() != u"TipWindow"_s || !window->isVisible());
        }
        desk.Wait(1000);
    }

    void ADisabledClockHasNoHints_data() {
        QTest::addColumn<QByteArray>("enable");
        QTest::newRow("from its start") << QByteArray("Enable=No");
        QTest::newRow("in between") << QByteArray("Enable=Yes");
    }

    void ADisabledClockHasNoHints() {
        QFETCH(QByteArray, enable);
        HintDesk desk("Enable=Yes", enable);
        desk.Clock->EnableWindow(false);
        QMouseEvent move(QEvent::MouseMove, QPointF(155, 105), QPointF(155, 105), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.Clock, &move);
        desk.Wait(500);
        QCOMPARE(desk.Title(), u"none"_s);
        desk.Clock->EnableWindow(true);
        QCoreApplication::sendEvent(desk.Clock, &move);
        desk.Wait(500);
        QCOMPARE(desk.Title(), u"Clock Hand Settings"_s);
    }
};

QTEST_MAIN(tst_PartBalloon)
#include "tst_PartBalloon.moc"
