#include <QPushButton>
#include <QTest>
#include <QTimeZone>

#include "foundation/ui/mduBalloonTipLib.h"
#include "platform/SimulatedClock.h"

using namespace Qt::StringLiterals;

namespace {

/// A window at (50, 60) of the screen with a balloon of its own, at a clock moved by hand.
struct Desk {
    Desk() : Clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC), QTimeZone::utc()) {
        Owner->setGeometry(50, 60, 400, 300);
        Owner->show();
        Tip.Closed = [this] { ++Closings; };
    }

    bool IsSeen() const { return Tip.TipWindow() != nullptr && Tip.TipWindow()->isVisible(); }

    platform::SimulatedClock Clock;
    std::unique_ptr<QWidget> Owner = std::make_unique<QWidget>();
    CBalloonToolTip Tip{Clock};
    int Closings = 0;
};

/// A tip that appears where the pointer rests.
void MakeHoverTip(Desk& desk) {
    bool ok = false;
    desk.Tip.SetTipText(u"rest"_s);
    desk.Tip.CreateToolTip(desk.Owner.get(), ok);
    QVERIFY(ok);
}

void Enter(Desk& desk) {
    QEnterEvent event(QPointF(10, 10), QPointF(10, 10), QPointF(60, 70));
    QCoreApplication::sendEvent(desk.Owner.get(), &event);
}

void Leave(Desk& desk) {
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(desk.Owner.get(), &event);
}

}  // namespace

class tst_CBalloonToolTip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Defaults();
    void ToolFlags_data();
    void ToolFlags();
    void TracksItsPoint();
    void SetsUp();
    void ShowsInTwips();
    void ReloadsAtAnotherPlace();
    void ShowsErrorsInRed();
    void GoesAfterItsTime();
    void ShowBeginsTheTimeAnew();
    void ClosesOnAClick();
    void DestroyWithoutShownDoesNothing();
    void SecondCreateReplacesTheWindow();
    void RefusesNoOwner();
    void AppearsWhenThePointerRests();
    void GoesWhenThePointerLeaves();
    void GoesWithItsOwner();
    void HidesWithItsOwner();
    void MovesWithItsWindow();
    void ChoosesReadableColours();
    void CutsLongTexts();
    void ShowsOverAControl();
    void StandsBesideItsTool();
    void ShowsAfterItsDelay();
    void ADelayedTipIsCalledOff();
};

void tst_CBalloonToolTip::Defaults() {
    const Desk desk;
    const CBalloonToolTip& tip = desk.Tip;
    QCOMPARE(tip.CloseBox(), false);
    QCOMPARE(tip.Shown(), false);
    QCOMPARE(tip.VisibleTime(), 5000);
    QCOMPARE(tip.DelayTime(), 100);
    QCOMPARE(tip.Icon(), 0);
    QCOMPARE(tip.ForeColor(), -1);
    QCOMPARE(tip.Title(), QString());
    QCOMPARE(tip.PopupOnDemand(), false);
    QCOMPARE(tip.BackColor(), -1);
    QCOMPARE(tip.TipText(), QString());
    QCOMPARE(tip.Style(), 0);
    QCOMPARE(tip.Centered(), false);
}

void tst_CBalloonToolTip::ToolFlags_data() {
    QTest::addColumn<bool>("centered");
    QTest::addColumn<bool>("onDemand");
    QTest::addColumn<int>("flags");
    QTest::newRow("both") << true << true << 35;
    QTest::newRow("centered") << true << false << 19;
    QTest::newRow("on demand") << false << true << 289;
    QTest::newRow("neither") << false << false << 17;
}

void tst_CBalloonToolTip::ToolFlags() {
    QFETCH(bool, centered);
    QFETCH(bool, onDemand);
    Desk desk;
    desk.Tip.SetCentered(centered);
    desk.Tip.SetPopupOnDemand(onDemand);
    QTEST(desk.Tip.ToolFlags(), "flags");
}

void tst_CBalloonToolTip::TracksItsPoint() {
    Desk desk;
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.Show(300, 100);
    QCOMPARE(desk.Tip.TrackPosition(), 350 + 160 * 65536);
    QVERIFY(desk.Tip.Shown());
    QVERIFY(desk.IsSeen());
    const BalloonPlace& place = desk.Tip.TipWindow()->Place();
    QCOMPARE(place.Window.topLeft() + place.Tip, QPoint(350, 160));
    QCOMPARE(place.Side, BalloonSide::Below);
}

void tst_CBalloonToolTip::SetsUp() {
    Desk desk;
    desk.Tip.SetCentered(true);
    mduBalloonTipLib::SetupBalloon(desk.Tip, desk.Owner.get(), u"Title"_s, u"Text"_s, 0x123456,
                                   0xFFFFFF);
    QCOMPARE(desk.Tip.Style(), 1);
    QCOMPARE(desk.Tip.Icon(), 1);
    QCOMPARE(desk.Tip.Title(), u"Title"_s);
    QCOMPARE(desk.Tip.TipText(), u"Text"_s);
    QCOMPARE(desk.Tip.BackColor(), 0x123456);
    QCOMPARE(desk.Tip.ForeColor(), 0xFFFFFF);
    QCOMPARE(desk.Tip.DelayTime(), 500);
    QCOMPARE(desk.Tip.VisibleTime(), 10000);
    QCOMPARE(desk.Tip.Centered(), false);
    QVERIFY(!desk.Tip.Shown());
    QVERIFY(!desk.IsSeen());
    desk.Tip.BalloonWarningSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    QCOMPARE(desk.Tip.Icon(), 2);
}

void tst_CBalloonToolTip::ShowsInTwips() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 1500, 750, u"Title"_s, u"Text"_s);
    QVERIFY(desk.Tip.PopupOnDemand());
    QCOMPARE(desk.Tip.TrackPosition(), (50 + 99) + (60 + 49) * 65536);
    desk.Tip.ShowBalloonWarning(desk.Owner.get(), 15, 15, u"Title"_s, u"Text"_s);
    QCOMPARE(desk.Tip.TrackPosition(), 50 + 60 * 65536);
    QCOMPARE(desk.Tip.TipWindow()->Look().Icon, 2);
}

void tst_CBalloonToolTip::ReloadsAtAnotherPlace() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 1500, 750, u"Title"_s, u"Text"_s, 255, 0);
    desk.Tip.ReloadBalloonInfo(desk.Owner.get(), 3000, 750);
    QVERIFY(desk.Tip.Shown());
    QCOMPARE(desk.Tip.TrackPosition(), (50 + 199) + (60 + 49) * 65536);
    QCOMPARE(desk.Tip.TipWindow()->Look().Text, u"Text"_s);
    QCOMPARE(desk.Tip.BackColor(), 255);
}

void tst_CBalloonToolTip::ShowsErrorsInRed() {
    Desk desk;
    desk.Tip.ShowBalloonError(desk.Owner.get(), 20, 30, u"Title"_s, u"Text"_s, 0xFFFFFF);
    QCOMPARE(desk.Tip.TrackPosition(), 70 + 90 * 65536);
    QCOMPARE(desk.Tip.Icon(), 3);
    QCOMPARE(desk.Tip.Style(), 1);
    QCOMPARE(desk.Tip.TipWindow()->Look().Fore, QColor(255, 0, 0));
    QCOMPARE(desk.Tip.VisibleTime(), 5000);
}

void tst_CBalloonToolTip::GoesAfterItsTime() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s);
    desk.Clock.Advance(9999);
    QVERIFY(desk.IsSeen());
    QCOMPARE(desk.Closings, 0);
    desk.Clock.Advance(1);
    QVERIFY(!desk.IsSeen());
    QVERIFY(!desk.Tip.Shown());
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::ShowBeginsTheTimeAnew() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s);
    desk.Clock.Advance(6000);
    desk.Tip.Show(10, 10);
    desk.Clock.Advance(9000);
    QVERIFY(desk.IsSeen());
    desk.Clock.Advance(1000);
    QVERIFY(!desk.IsSeen());
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::ClosesOnAClick() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s);
    auto* window = desk.Owner->findChild<QWidget*>(u"TipWindow"_s);
    QVERIFY(window != nullptr);
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(30, 30));
    QVERIFY(!desk.IsSeen());
    QVERIFY(!desk.Tip.Shown());
    QCOMPARE(desk.Closings, 1);
    desk.Clock.Advance(20000);
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::DestroyWithoutShownDoesNothing() {
    Desk desk;
    desk.Tip.Destroy();
    QCOMPARE(desk.Closings, 0);
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.Destroy();
    QCOMPARE(desk.Closings, 0);
    desk.Tip.Show(0, 0);
    desk.Tip.Destroy();
    desk.Tip.Destroy();
    QCOMPARE(desk.Closings, 1);
    QVERIFY(!desk.IsSeen());
}

void tst_CBalloonToolTip::SecondCreateReplacesTheWindow() {
    Desk desk;
    bool ok = false;
    desk.Tip.CreateToolTip(desk.Owner.get(), ok);
    QVERIFY(ok);
    const QPointer<QWidget> first = desk.Owner->findChild<QWidget*>(u"TipWindow"_s);
    QVERIFY(first);
    desk.Tip.CreateToolTip(desk.Owner.get(), ok);
    QVERIFY(first.isNull());
    QCOMPARE(desk.Owner->findChildren<QWidget*>(u"TipWindow"_s).size(), 1);
}

void tst_CBalloonToolTip::RefusesNoOwner() {
    Desk desk;
    bool ok = true;
    desk.Tip.CreateToolTip(nullptr, ok);
    QVERIFY(!ok);
    desk.Tip.Show(1, 1);
    QVERIFY(!desk.Tip.Shown());
}

void tst_CBalloonToolTip::AppearsWhenThePointerRests() {
    Desk desk;
    MakeHoverTip(desk);
    Enter(desk);
    desk.Clock.Advance(99);
    QVERIFY(!desk.IsSeen());
    desk.Clock.Advance(1);
    QVERIFY(desk.IsSeen());
    desk.Clock.Advance(5000);
    QVERIFY(!desk.IsSeen());
    Enter(desk);  // still inside: once is enough
    desk.Clock.Advance(1000);
    QVERIFY(!desk.IsSeen());
    Leave(desk);
    Enter(desk);
    desk.Clock.Advance(100);
    QVERIFY(desk.IsSeen());
}

void tst_CBalloonToolTip::GoesWhenThePointerLeaves() {
    Desk desk;
    MakeHoverTip(desk);
    Enter(desk);
    Leave(desk);
    desk.Clock.Advance(1000);
    QVERIFY(!desk.IsSeen());
    Enter(desk);
    desk.Clock.Advance(100);
    QVERIFY(desk.IsSeen());
    QTest::mousePress(desk.Owner.get(), Qt::LeftButton);
    QVERIFY(!desk.IsSeen());
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::GoesWithItsOwner() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s);
    desk.Owner.reset();
    QCOMPARE(desk.Tip.TipWindow(), nullptr);
    QVERIFY(!desk.Tip.Shown());
    QCOMPARE(desk.Closings, 1);
    desk.Tip.Show(1, 1);
    desk.Clock.Advance(20000);
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::HidesWithItsOwner() {
    Desk desk;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s);
    desk.Owner->hide();
    QVERIFY(!desk.Tip.Shown());
    QCOMPARE(desk.Closings, 1);
}

void tst_CBalloonToolTip::MovesWithItsWindow() {
    Desk desk;
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.Show(100, 100);
    const QPoint before = desk.Tip.TipWindow()->pos();
    desk.Owner->move(desk.Owner->pos() + QPoint(7, 9));
    QTRY_COMPARE(desk.Tip.TipWindow()->pos() - before, QPoint(7, 9));
}

void tst_CBalloonToolTip::ChoosesReadableColours() {
    Desk desk;
    const int yellow = 255 + 255 * 256 + 180 * 65536;
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s, yellow);
    QCOMPARE(desk.Tip.TipWindow()->Look().Back, QColor(255, 255, 180));
    QCOMPARE(desk.Tip.TipWindow()->Look().Fore, QColor(Qt::black));
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"Text"_s, 0x400000);
    QCOMPARE(desk.Tip.TipWindow()->Look().Back, QColor(0, 0, 0x40));
    QCOMPARE(desk.Tip.TipWindow()->Look().Fore, QColor(Qt::white));
}

void tst_CBalloonToolTip::CutsLongTexts() {
    Desk desk;
    desk.Tip.SetMaxLength(8);
    desk.Tip.ShowBalloonInfo(desk.Owner.get(), 0, 0, u"Title"_s, u"\r\nLong text"_s);
    QCOMPARE(desk.Tip.TipWindow()->Look().Text, u"Long t"_s);
    QCOMPARE(desk.Tip.TipText(), u"\r\nLong text"_s);
}

void tst_CBalloonToolTip::ShowsOverAControl() {
    Desk desk;
    QWidget bar(desk.Owner.get());
    bar.setGeometry(10, 20, 300, 40);
    QPushButton button(&bar);
    button.setGeometry(100, 5, 60, 30);
    bar.show();
    mduBalloonTipLib::SetupBalloon(desk.Tip, desk.Owner.get(), u"Title"_s, u"Text"_s);
    mduBalloonTipLib::ShowBalloonOver(desk.Tip, *desk.Owner, button);
    QVERIFY(desk.Tip.PopupOnDemand());
    QVERIFY(desk.Tip.Shown());
    QCOMPARE(desk.Tip.TrackPosition(), (50 + 110) + (60 + 25) * 65536);
    const BalloonPlace& place = desk.Tip.TipWindow()->Place();
    QCOMPARE(place.Window.topLeft() + place.Tip, QPoint(160 + 30, 85 + 30));
}

void tst_CBalloonToolTip::StandsBesideItsTool() {
    Desk desk;
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.SetBeside(true);
    desk.Tip.Show(10, 100, {40, 30});
    const BalloonPlace& place = desk.Tip.TipWindow()->Place();
    QCOMPARE(place.Side, BalloonSide::Right);
    QCOMPARE(place.Window.topLeft() + place.Tip, QPoint(50 + 10 + 40, 60 + 100 + 15));
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    QVERIFY(!desk.Tip.Beside());
}

void tst_CBalloonToolTip::ShowsAfterItsDelay() {
    Desk desk;
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.AfterDelay([&desk] { desk.Tip.Show(10, 10); });
    QVERIFY(desk.Tip.PopupOnDemand());
    Enter(desk);  // does not begin the wait anew
    desk.Clock.Advance(499);
    QVERIFY(!desk.Tip.Shown());
    desk.Clock.Advance(1);
    QVERIFY(desk.IsSeen());
    desk.Clock.Advance(10000);
    QVERIFY(!desk.IsSeen());
    desk.Clock.Advance(20000);
    QVERIFY(!desk.IsSeen());
}

void tst_CBalloonToolTip::ADelayedTipIsCalledOff() {
    Desk desk;
    int calls = 0;
    desk.Tip.BalloonInfoSetup(desk.Owner.get(), u"Title"_s, u"Text"_s);
    desk.Tip.AfterDelay([&calls] { ++calls; });
    desk.Clock.Advance(400);
    desk.Tip.Destroy();
    desk.Clock.Advance(1000);
    QCOMPARE(calls, 0);
    desk.Tip.AfterDelay([&calls] { ++calls; });
    desk.Owner->hide();
    desk.Clock.Advance(1000);
    QCOMPARE(calls, 0);
    QCOMPARE(desk.Closings, 0);
}

QTEST_MAIN(tst_CBalloonToolTip)
#include "tst_CBalloonToolTip.moc"
