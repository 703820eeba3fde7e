#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QToolTip>

#include "timezones/ZoneWindowDesk.h"
#include "timezones/ui/frmTimeZones.h"

// Searching, the map, launching, details, and the way of the keyboard.

namespace {

const QString Tokyo = u"Tokyo Standard Time"_s;
const QString Eastern = u"Eastern Standard Time"_s;
const QString Pacific = u"SA Pacific Standard Time"_s;
const QString Utc = u"UTC"_s;

// The map is 780 pixels wide: columns of 30, Greenwich at 376 2/3.
constexpr int AtGreenwich = 380;  // 0.11 hours east
constexpr int InNewYork = 225;    // 5.06 hours west

}  // namespace

class tst_TimeZoneWindowFinding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheMenuEditFinds();
    void NarrowsAsOneTypes();
    void TellsThatNothingIsFound();
    void GoesOnFromTheField();
    void EnterInTheFieldOpensTheBestMatch();
    void EnterInAnEmptyFieldGoesToTheList();
    void EscapeEmptiesTheField();
    void ShowsDots();
    void ClickOnADotPicksItsZone();
    void DotsFollowTheirRows();
    void DragPicksABand();
    void BandNeedsToLeaveTheHalves();
    void BandGoesWithItsButton();
    void BandKeepsItsFilter();
    void QuestionEndsTheDrag();
    void KeysPickABand();
    void RightPressOpensTheMapMenu();
    void HidesAndShowsTheMap();
    void SplitterFollowsTheMouse();
    void SplitterFollowsKeys();
    void SplitterMovedInALowWindow();
    void LaunchesACheckedRow();
    void DoubleClickLaunches();
    void EnterLaunches();
    void UncheckedRowsAreOpenedAtOnce();
    void ARowWithoutAFileIsNotOpened();
    void LaunchesAllCheckedRowsWhenNoneIsCurrent();
    void LaunchesAllCheckedRowsByKeyboard();
    void ARowsTipIsItsDescription();
    void ACityIsOpenedFromItsProfile();
    void ShowsDetails();
    void SpeaksDetails();
    void EscapeClosesTheBalloon();
    void EveryControlHasANameAndATabStop();
    void LivesInTheShellsFrame();
    void StaysUsableWhenSmall();
    void OpensWithThousandsOfZoneFiles();
};

void tst_TimeZoneWindowFinding::NarrowsAsOneTypes() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SourceBoth"_s);
    QTest::keyClicks(&desk.Search(), u"jap"_s);
    QCOMPARE(desk.Listed(), QStringList{Tokyo});
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"1 zone, 0 checked"_s);
    desk.Search().clear();
    QTest::keyClicks(&desk.Search(), u"-5:00"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Pacific}));
    desk.Search().clear();
    QTest::keyClicks(&desk.Search(), u"oslo"_s);
    QCOMPARE(desk.Listed().size(), 1);
    desk.Search().clear();
    QCOMPARE(desk.Listed().size(), 5);
}

void tst_TimeZoneWindowFinding::TellsThatNothingIsFound() {
    ZoneWindowDesk desk;
    desk.Open();
    QTest::keyClicks(&desk.Search(), u"xyz"_s);
    QCOMPARE(desk.Listed(), QStringList());
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"0 zones, 0 checked"_s);
    QVERIFY(!desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
    QTest::keyClick(&desk.Search(), Qt::Key_Down);
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QCOMPARE(desk.Shell.Launched, QStringList());
}

void tst_TimeZoneWindowFinding::GoesOnFromTheField() {
    ZoneWindowDesk desk;
    desk.Open();
    QTest::keyClicks(&desk.Search(), u"eastern"_s);
    QTest::keyClick(&desk.Search(), Qt::Key_Down);
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QVERIFY(desk.HasFile(Eastern));
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QCOMPARE(desk.Shell.Launched, QStringList{Eastern});
}

void tst_TimeZoneWindowFinding::EnterInTheFieldOpensTheBestMatch() {
    ZoneWindowDesk desk;
    desk.Profile(u"New York.ini"_s, "New York", 300, "Clock:Mine=york\r\n");
    desk.Machine.Zones.Subkeys[1].Texts[u"Display"_s] = u"(GMT-05:00) New York, Toronto"_s;
    desk.Open();
    desk.GoTo(Eastern);
    QTest::keyClicks(&desk.Search(), u"new york"_s);
    QCOMPARE(desk.Listed(), (QStringList{u"New York"_s, Eastern}));
    QCOMPARE(desk.View().currentIndex().row(), 0);
    QTest::keyClick(&desk.Search(), Qt::Key_Return);
    QCOMPARE(desk.Shell.Launched, QStringList{u"New York"_s});
    QVERIFY(desk.ReadZoneFile(u"New York"_s).contains("Clock:Mine=york"));
    QVERIFY(desk.IsChecked(u"New York"_s));
    QVERIFY(!desk.HasFile(Eastern));
}

void tst_TimeZoneWindowFinding::EnterInAnEmptyFieldGoesToTheList() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Window->activateWindow();
    desk.Search().setFocus();
    QTest::keyClick(&desk.Search(), Qt::Key_Return);
    QCOMPARE(desk.Shell.Launched, QStringList());
    QTRY_COMPARE(QApplication::focusWidget(), &desk.View());
    QCOMPARE(desk.View().currentIndex().row(), 0);
}

void tst_TimeZoneWindowFinding::EscapeEmptiesTheField() {
    ZoneWindowDesk desk;
    desk.Open();
    QTest::keyClicks(&desk.Search(), u"eastern"_s);
    QTest::keyClick(&desk.Search(), Qt::Key_Escape);
    QCOMPARE(desk.Search().text(), QString());
    QCOMPARE(desk.Listed().size(), 3);
}

void tst_TimeZoneWindowFinding::ShowsDots() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    const std::vector<MapDot>& dots = desk.Map().Dots();
    QCOMPARE(dots.size(), std::size_t{2});  // UTC has no place
    QVERIFY(dots[0].Name.startsWith(Tokyo));
    QVERIFY(dots[0].Checked);
    QVERIFY(!dots[1].Checked);
    QTest::keyClicks(&desk.Search(), u"eastern"_s);
    QCOMPARE(dots.size(), std::size_t{1});
    // 74 W lies 106 of 360 degrees into a world of 720 pixels that begins at 16 2/3.
    QVERIFY(qAbs(desk.Map().PointOfDot(0).x() - 228.667) < 0.01);
}

void tst_TimeZoneWindowFinding::ClickOnADotPicksItsZone() {
    ZoneWindowDesk desk;
    desk.Open();
    QTest::mouseClick(&desk.Map(), Qt::LeftButton, {}, desk.Map().PointOfDot(1).toPoint());
    QCOMPARE(desk.View().currentIndex().row(), 1);
    QCOMPARE(desk.Listed().size(), 3);
    QTest::mouseClick(&desk.Map(), Qt::LeftButton, {}, QPoint(390, 250));  // the open sea
    QCOMPARE(desk.View().currentIndex().row(), 1);
}

void tst_TimeZoneWindowFinding::DotsFollowTheirRows() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"NameAscending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Tokyo, Utc}));
    QTest::mouseClick(&desk.Map(), Qt::LeftButton, {}, desk.Map().PointOfDot(1).toPoint());
    QCOMPARE(desk.View().currentIndex().row(), 1);
    desk.Run(u"NameDescending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Utc, Tokyo, Eastern}));
    QTest::mouseClick(&desk.Map(), Qt::LeftButton, {}, desk.Map().PointOfDot(1).toPoint());
    QCOMPARE(desk.View().currentIndex().row(), 2);
}

void tst_TimeZoneWindowFinding::DragPicksABand() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& shpArea = desk.Find<QWidget>(u"shpArea"_s);
    QVERIFY(!shpArea.isVisible());
    desk.Drag(400, InNewYork);
    QCOMPARE(desk.Listed(), QStringList{Eastern});
    QVERIFY(shpArea.isVisible());
    QCOMPARE(desk.Map().cursor().shape(), Qt::ClosedHandCursor);
    // The column of 30 pixels around 225; its edges are those of 5.06 hours west.
    QCOMPARE(shpArea.geometry(), QRect(210, 0, 30, desk.Map().height()));
    desk.MoveHeld(AtGreenwich);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.LetGo(AtGreenwich);
    QVERIFY(!shpArea.isVisible());
    QCOMPARE(desk.Map().cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.MoveHeld(InNewYork);  // without the button
    QCOMPARE(desk.Listed(), QStringList{Utc});
}

void tst_TimeZoneWindowFinding::BandNeedsToLeaveTheHalves() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Drag(400, 377);  // 0.01 hours: 0 in tenths
    QCOMPARE(desk.Listed().size(), 3);
    QVERIFY(!desk.Map().Band().Hours());
    desk.MoveHeld(379);  // 0.08 hours: 1 in tenths
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.MoveHeld(392);  // 0.51 hours: the band of before stays
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.LetGo(392);
}

void tst_TimeZoneWindowFinding::BandGoesWithItsButton() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& button = desk.Find<QToolButton>(u"cmdBand"_s);
    QVERIFY(!button.isVisible());
    desk.Drag(400, 364);  // 0.42 hours west
    desk.LetGo(364);
    QVERIFY(button.isVisible());
    QCOMPARE(button.accessibleName(), u"Around GMT-00:25, show the zones of all hours again"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!button.isVisible());
    QCOMPARE(desk.Listed().size(), 3);
}

void tst_TimeZoneWindowFinding::BandKeepsItsFilter() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Pacific);
    desk.Open();
    desk.Run(u"SourceBoth"_s);
    desk.Run(u"ShowSelected"_s);
    desk.Drag(400, InNewYork);
    desk.LetGo(InNewYork);
    QCOMPARE(desk.Listed(), QStringList{Pacific});
    desk.Run(u"ShowAll"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Pacific}));
}

void tst_TimeZoneWindowFinding::QuestionEndsTheDrag() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.Shell.Answers = {7};
    desk.Drag(400, InNewYork);
    QCOMPARE(desk.Shell.Boxes.size(), 1);
    QVERIFY(!desk.Find<QWidget>(u"shpArea"_s).isVisible());
    desk.MoveHeld(AtGreenwich);
    QCOMPARE(desk.Listed(), QStringList{Eastern});
}

void tst_TimeZoneWindowFinding::KeysPickABand() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Map().setFocus();
    QTest::keyClick(&desk.Map(), Qt::Key_Right);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    for (int step = 0; step < 5; ++step) {
        QTest::keyClick(&desk.Map(), Qt::Key_Left);
    }
    QCOMPARE(desk.Listed(), QStringList{Eastern});
    for (int step = 0; step < 40; ++step) {
        QTest::keyClick(&desk.Map(), Qt::Key_Left);
    }
    QCOMPARE(desk.Map().Band().G(), -12.0);
    QTest::keyClick(&desk.Map(), Qt::Key_Escape);
    QCOMPARE(desk.Listed().size(), 3);
}

void tst_TimeZoneWindowFinding::RightPressOpensTheMapMenu() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& menu = desk.Find<QMenu>(u"MapMenu"_s);
    QTest::mousePress(&desk.Map(), Qt::RightButton, {}, QPoint(50, 50));
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.actions().size(), 1);
    QCOMPARE(menu.actions()[0]->text(), u"Hide Map"_s);
    menu.close();
    desk.Run(u"HideMap"_s);
    QVERIFY(!desk.Map().isVisible());
}

void tst_TimeZoneWindowFinding::HidesAndShowsTheMap() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& item = desk.Find<QAction>(u"MapVisible"_s);
    const int listHeight = desk.View().height();
    QCOMPARE(item.text(), u"Hide Map"_s);
    item.trigger();
    QVERIFY(!desk.Map().isVisible());
    QCOMPARE(item.text(), u"Show Map"_s);
    QVERIFY(desk.View().height() > listHeight);
    item.trigger();
    QVERIFY(desk.Map().isVisible());
    QCOMPARE(item.text(), u"Hide Map"_s);
    QCOMPARE(desk.View().height(), listHeight);
}

void tst_TimeZoneWindowFinding::SplitterFollowsTheMouse() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& splitter = desk.Find<QWidget>(u"imgSplitter"_s);
    auto& bar = desk.Find<QWidget>(u"picSplitter"_s);
    const int mapHeight = desk.Map().height();
    const int listTop = desk.View().y();
    QVERIFY(!bar.isVisible());
    QTest::mousePress(&splitter, Qt::LeftButton, {}, QPoint(100, 5));
    QVERIFY(bar.isVisible());
    QTest::mouseMove(&splitter, QPoint(100, -45));
    QCOMPARE(bar.y(), splitter.y() - 50);
    QCOMPARE(desk.Map().height(), mapHeight);
    QTest::mouseRelease(&splitter, Qt::LeftButton, {}, QPoint(100, -45));
    QVERIFY(!bar.isVisible());
    QCOMPARE(desk.Map().height(), mapHeight - 50);
    QCOMPARE(desk.View().y(), listTop - 50);
}

void tst_TimeZoneWindowFinding::SplitterFollowsKeys() {
    ZoneWindowDesk desk;
    desk.Open();
    auto& splitter = desk.Find<QWidget>(u"imgSplitter"_s);
    const int mapHeight = desk.Map().height();
    QTest::keyClick(&splitter, Qt::Key_Up);
    QCOMPARE(desk.Map().height(), mapHeight - 24);
    for (int step = 0; step < 60; ++step) {
        QTest::keyClick(&splitter, Qt::Key_Down);
    }
    QCOMPARE(desk.View().height(), 120);
    for (int step = 0; step < 60; ++step) {
        QTest::keyClick(&splitter, Qt::Key_Up);
    }
    QCOMPARE(desk.Map().height(), 80);
}

/// The map has no room there at all; moved up so, it is as low as can be in a higher window.
void tst_TimeZoneWindowFinding::SplitterMovedInALowWindow() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Window->resize(804, 150);
    auto& splitter = desk.Find<QWidget>(u"imgSplitter"_s);
    QTest::keyClick(&splitter, Qt::Key_Up);
    desk.Window->resize(804, 640);
    QCOMPARE(desk.Map().height(), 80);
}

void tst_TimeZoneWindowFinding::LaunchesACheckedRow() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    auto& launch = desk.Find<QPushButton>(u"cmdLaunch"_s);
    desk.GoTo(Tokyo);
    QVERIFY(launch.isEnabled());
    desk.GoTo(Eastern);
    QVERIFY(!launch.isEnabled());
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QVERIFY(launch.isEnabled());
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, QStringList{Eastern});
    // A file that has vanished meanwhile is made once more.
    QVERIFY(QFile::remove(desk.Paths.ZoneFileFolder + Tokyo + u".ini"_s));
    desk.GoTo(Tokyo);
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, (QStringList{Eastern, Tokyo}));
}

void tst_TimeZoneWindowFinding::DoubleClickLaunches() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    const QPoint text = desk.CheckBox(Tokyo) + QPoint(80, 0);
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, text);
    QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, text);
    QCOMPARE(desk.Shell.Launched, QStringList{Tokyo});
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, desk.CheckBox(Eastern));
    QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, desk.CheckBox(Eastern));
    QCOMPARE(desk.Shell.Launched, QStringList{Tokyo});
}

void tst_TimeZoneWindowFinding::EnterLaunches() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    desk.GoTo(Tokyo);
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QTest::keyClick(&desk.View(), Qt::Key_Enter);
    QCOMPARE(desk.Shell.Launched, (QStringList{Tokyo, Tokyo}));
}

void tst_TimeZoneWindowFinding::UncheckedRowsAreOpenedAtOnce() {
    ZoneWindowDesk desk;
    desk.Open();
    const QPoint text = desk.CheckBox(Tokyo) + QPoint(80, 0);
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, text);
    QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, text);
    QCOMPARE(desk.Shell.Launched, QStringList{Tokyo});
    QVERIFY(desk.IsChecked(Tokyo));
    QVERIFY(desk.HasFile(Tokyo));
    QVERIFY(desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
    desk.GoTo(Eastern);
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QCOMPARE(desk.Shell.Launched, (QStringList{Tokyo, Eastern}));
    QVERIFY(desk.HasFile(Eastern));
}

void tst_TimeZoneWindowFinding::ARowWithoutAFileIsNotOpened() {
    ZoneWindowDesk desk;
    desk.Machine.Zones.Add(u"Etc/Odd"_s, 0);
    desk.Machine.Files.Unwritable += desk.Paths.ZoneFileFolder + Tokyo + u".ini"_s;
    desk.Open();
    for (const QString& zone : {Tokyo, u"Etc/Odd"_s}) {
        desk.GoTo(zone);
        QTest::keyClick(&desk.View(), Qt::Key_Return);
    }
    QCOMPARE(desk.Shell.Launched, QStringList());
    QCOMPARE(desk.Shell.Messages, (QStringList{u"Tokyo Standard Time could not be saved"_s,
                                               u"A time zone's name can't hold a path "
                                               "separator"_s}));
    QVERIFY(!desk.IsChecked(u"Etc/Odd"_s));
}

void tst_TimeZoneWindowFinding::LaunchesAllCheckedRowsWhenNoneIsCurrent() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    QVERIFY(desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
    desk.Run(u"SelectNone"_s);
    QVERIFY(!desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
    desk.Run(u"SelectAll"_s);
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, (QStringList{Tokyo, Eastern, Utc}));
    QVERIFY(desk.HasFile(Eastern));
    desk.Click(u"cmdButton0"_s);
    QCOMPARE(desk.Shell.Boxes, QStringList());
}

// The list gets the focus on the way to the button, but no row is chosen by that.
void tst_TimeZoneWindowFinding::LaunchesAllCheckedRowsByKeyboard() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.ZoneFile(Eastern);
    desk.Open();
    QTreeView& list = desk.View();
    list.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(list.hasFocus());
    auto& launch = desk.Find<QPushButton>(u"cmdLaunch"_s);
    QVERIFY(launch.isEnabled());
    launch.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&launch, Qt::Key_Space);
    QCOMPARE(desk.Shell.Launched, (QStringList{Tokyo, Eastern}));
    // A search chooses its best match; without one all that are checked are meant again.
    desk.Shell.Launched.clear();
    QTest::keyClicks(&desk.Search(), u"jap"_s);
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, QStringList{Tokyo});
    desk.Search().clear();
    desk.Shell.Launched.clear();
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, (QStringList{Tokyo, Eastern}));
}

void tst_TimeZoneWindowFinding::ARowsTipIsItsDescription() {
    ZoneWindowDesk desk;
    desk.Profile(u"Bergen.ini"_s, "Bergen", -60, "Zone:Country=Norway\r\n");
    desk.Open();
    desk.Run(u"SourceBoth"_s);
    QTreeView& list = desk.View();
    const auto tipOf = [&](const QString& name) {
        const QPoint at = list.visualRect(desk.Row(name)).center();
        QHelpEvent help(QEvent::ToolTip, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::text();
    };
    QVERIFY2(tipOf(u"Bergen"_s).startsWith(u"Bergen"_s), qPrintable(QToolTip::text()));
    QVERIFY2(!QToolTip::text().contains(u'/'), qPrintable(QToolTip::text()));
    QVERIFY2(QToolTip::text().contains(u"1 hour(s) after Greenwich"_s),
             qPrintable(QToolTip::text()));
    QVERIFY2(tipOf(Tokyo).contains(u"Tokyo"_s), qPrintable(QToolTip::text()));
}

void tst_TimeZoneWindowFinding::ACityIsOpenedFromItsProfile() {
    ZoneWindowDesk desk;
    desk.Profile(u"Bergen.ini"_s, "Bergen", -60, "Zone:Country=Norway\r\n");
    desk.Open();
    QTest::keyClicks(&desk.Search(), u"norway"_s);
    desk.ClickCheckBox(u"Bergen"_s);
    QCOMPARE(desk.ReadZoneFile(u"Bergen"_s), desk.Machine.ReadFile(u"Timezones/Bergen.ini"_s));
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, QStringList{u"Bergen"_s});
}

void tst_TimeZoneWindowFinding::ShowsDetails() {
    ZoneWindowDesk desk;
    desk.Open();
    QVERIFY(!desk.Find<QAction>(u"ShowTimeZoneDetailsMenu"_s).isEnabled());
    desk.GoTo(Tokyo);
    desk.Run(u"ShowTimeZoneDetailsMenu"_s);
    const CBalloonToolTip& balloon = desk.Window->Balloon();
    QVERIFY(balloon.Shown());
    QCOMPARE(balloon.Title(), u"Timezone Info"_s);
    QCOMPARE(balloon.TipText(),
             u"\r\nTokyo Standard Time is 9 hour(s) after Greenwich Standard Time\r\n\r\n"
             "Tokyo Standard Time is 9 hour(s)  before Local Time"_s);
    QCOMPARE(balloon.TipWindow()->Look().Back, QColor(255, 255, 180));
    const QPoint row = desk.View().visualRect(desk.Row(Tokyo)).topLeft();
    const QPoint onScreen = desk.View().viewport()->mapToGlobal(row);
    QCOMPARE(balloon.TrackPosition(), onScreen.x() + onScreen.y() * 65536);
    QCOMPARE(desk.Shell.Spoken, QStringList());
    desk.Machine.Clock.Advance(10000);
    QVERIFY(!balloon.Shown());
    QCOMPARE(desk.Shell.Purges, 1);
}

void tst_TimeZoneWindowFinding::SpeaksDetails() {
    ZoneWindowDesk desk;
    desk.Shell.Speak = u"Yes"_s;
    desk.Open();
    desk.GoTo(Tokyo);
    desk.Run(u"ShowTimeZoneDetailsMenu"_s);
    QCOMPARE(desk.Shell.Purges, 1);
    QCOMPARE(desk.Shell.Spoken, QStringList{desk.Window->Balloon().TipText()});
    desk.Run(u"NameAscending"_s);  // the rows move away below the balloon
    QVERIFY(!desk.Window->Balloon().Shown());
    QCOMPARE(desk.Shell.Purges, 2);
}

void tst_TimeZoneWindowFinding::EscapeClosesTheBalloon() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.GoTo(Tokyo);
    desk.Run(u"ShowTimeZoneDetailsMenu"_s);
    QTest::keyClick(&desk.View(), Qt::Key_Escape);
    QVERIFY(!desk.Window->Balloon().Shown());
}

void tst_TimeZoneWindowFinding::EveryControlHasANameAndATabStop() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    desk.GoTo(Tokyo);
    desk.Window->activateWindow();
    desk.Search().setFocus();
    QStringList stops;
    for (int step = 0; step < 20 && !stops.contains(u"txtSearch"_s); ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* widget = QApplication::focusWidget();
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        stops += widget->objectName();
    }
    QCOMPARE(stops, (QStringList{u"cmdView"_s, u"lsvTimeZones"_s, u"cmdLaunch"_s, u"cmdButton1"_s,
                                 u"cmdButton0"_s, u"imgMap"_s, u"imgSplitter"_s, u"txtSearch"_s}));
}

void tst_TimeZoneWindowFinding::LivesInTheShellsFrame() {
    ZoneWindowDesk desk;
    QMdiArea area;
    area.resize(900, 700);
    area.show();
    auto* window = new frmTimeZones(desk.TheProgram, nullptr);
    QMdiSubWindow* frame = area.addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    window->ShowMe(desk.Main, &desk.Shell, 0, 0);
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->windowTitle(), u"Tempolark Central - Tempolark"_s);
    window->SetWindowState(2);
    QCOMPARE(window->WindowState(), 2);
    window->SetWindowState(0);
    QCOMPARE(window->WindowState(), 0);
    window->SetFocus();
    QCOMPARE(area.activeSubWindow(), frame);
    QCOMPARE(desk.Windows.Count(), 2);
    window->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(desk.Windows.Count(), 1);
    QVERIFY(area.subWindowList().isEmpty());
}

void tst_TimeZoneWindowFinding::StaysUsableWhenSmall() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Window->resize(420, 320);
    QTRY_COMPARE(desk.Window->size(), QSize(420, 320));
    QVERIFY(desk.View().height() >= 100);
    QVERIFY(desk.Map().height() >= 60);
    QVERIFY(desk.View().columnWidth(0) >= 220);
    const QWidget& close = desk.Find<QPushButton>(u"cmdButton0"_s);
    const QPoint corner = close.mapTo(desk.Window.get(), QPoint(close.width(), close.height()));
    QVERIFY(corner.x() <= 420 && corner.y() <= 320);
}

void tst_TimeZoneWindowFinding::OpensWithThousandsOfZoneFiles() {
    ZoneWindowDesk desk;
    for (int number = 0; number < 2000; ++number) {
        desk.ZoneFile(u"Zone %1"_s.arg(number),
                      "Time Zone:Time Zone Standard Name=Zone " + QByteArray::number(number));
    }
    desk.Open();
    QCOMPARE(desk.Listed().size(), 3);
    desk.Run(u"SourceSelected"_s);
    QCOMPARE(desk.Listed().size(), 2000);
    QTest::keyClicks(&desk.Search(), u"zone 1999"_s);
    QCOMPARE(desk.Listed(), QStringList{u"Zone 1999"_s});
}

void tst_TimeZoneWindowFinding::TheMenuEditFinds() {
    ZoneWindowDesk desk;
    desk.Open();
    IEditTarget* target = desk.Window->AsEditTarget();
    QVERIFY(target != nullptr);
    QVERIFY(target->CanEdit(EditAction::Find));
    QVERIFY(!target->CanEdit(EditAction::Undo));
    QTest::keyClicks(&desk.Search(), u"Tok"_s);
    desk.View().setFocus();
    target->Edit(EditAction::Undo);
    QVERIFY(desk.View().hasFocus());
    target->Edit(EditAction::Find);
    QVERIFY(desk.Search().hasFocus());
    QCOMPARE(desk.Search().selectedText(), u"Tok"_s);
}

QTEST_MAIN(tst_TimeZoneWindowFinding)
#include "tst_TimeZoneWindowFinding.moc"
