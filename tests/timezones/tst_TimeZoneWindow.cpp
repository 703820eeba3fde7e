#include "timezones/ZoneWindowDesk.h"
#include "timezones/ui/frmTimeZones.h"

namespace {

const QString Tokyo = u"Tokyo Standard Time"_s;
const QString Eastern = u"Eastern Standard Time"_s;
const QString Europe = u"W. Europe Standard Time"_s;
const QString Pacific = u"SA Pacific Standard Time"_s;
const QString Utc = u"UTC"_s;

}  // namespace

class tst_TimeZoneWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensOnTheDatabase();
    void ItsRowsAreFlush();
    void IsAWindowOfTheProgram();
    void ClickOnABoxMakesTheFile();
    void ClickOnABoxMakesItsRowCurrent();
    void UncheckingAsksBeforeTheNextFill_data();
    void UncheckingAsksBeforeTheNextFill();
    void UncheckingInTheListOfFilesOnlySelects();
    void UncheckingAsksBeforeTheListOfFiles_data();
    void UncheckingAsksBeforeTheListOfFiles();
    void UncheckedFilesAreKeptByTheNextSource_data();
    void UncheckedFilesAreKeptByTheNextSource();
    void AsksForBothAtOnce();
    void CheckingAgainKeepsTheFile();
    void SpaceChecksARow();
    void ProfileRowsCopyTheirProfile();
    void RefusesImpossibleNames();
    void FailedCopyIsToldAndStaysChecked();
    void VanishedProfileIsTold();
    void ListsOtherSources();
    void FiltersByChoice();
    void SortsByMenuAndHeader();
    void SelectsAllAndNone();
    void SaveMakesTheFiles();
    void AsksBeforeItFillsAnew();
    void KeepsNothingOnNo();
    void AsksWhenItCloses();
    void ClosesWithoutAQuestionWhenAllIsSaved();
    void DeletesAfterAQuestion();
    void DeletesNothingOnNo();
    void DeletesNothingWhereNothingIsChecked();
    void ListsTheFileOfTheFirstStart();
    void DeleteIsForZoneFilesAlone_data();
    void DeleteIsForZoneFilesAlone();
};

/// All that stands below one another begins and ends at the same places.
void tst_TimeZoneWindow::ItsRowsAreFlush() {
    ZoneWindowDesk desk;
    desk.Open();
    const auto span = [&desk](const QString& first, const QString& last) {
        const auto edge = [&](const QString& name, const QPoint& corner) {
            return desk.Find<QWidget>(name).mapTo(desk.Window.get(), corner).x();
        };
        return std::pair(edge(first, {0, 0}), edge(last, {desk.Find<QWidget>(last).width(), 0}));
    };
    const auto list = span(u"lsvTimeZones"_s, u"lsvTimeZones"_s);
    QCOMPARE(list, std::pair(12, 792));
    QCOMPARE(span(u"imgMap"_s, u"imgMap"_s), list);
    QCOMPARE(span(u"txtSearch"_s, u"cmdView"_s), list);
    QCOMPARE(span(u"lblCount"_s, u"cmdButton0"_s), list);
}

void tst_TimeZoneWindow::OpensOnTheDatabase() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc);
    desk.Open();
    QCOMPARE(desk.Window->windowTitle(), u"Tempolark Central - Tempolark"_s);
    QCOMPARE(desk.Listed(), (QStringList{Tokyo, Eastern, Utc}));
    QVERIFY(desk.IsChecked(Utc));
    QVERIFY(!desk.IsChecked(Tokyo));
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"3 zones, 1 checked"_s);
    QCOMPARE(desk.Find<QPushButton>(u"cmdButton0"_s).text(), u"Close"_s);
    QCOMPARE(desk.Find<QPushButton>(u"cmdButton1"_s).text(), u"Save"_s);
    QVERIFY(desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
    QCOMPARE(desk.Shell.Boxes, QStringList());
}

void tst_TimeZoneWindow::IsAWindowOfTheProgram() {
    ZoneWindowDesk desk;
    desk.Open();
    QCOMPARE(desk.Windows.Count(), 2);
    IForm& form = desk.Windows[1];
    QCOMPARE(form.Name(), u"frmTimeZones"_s);
    QCOMPARE(form.Caption(), u"Tempolark Central - Tempolark"_s);
    QVERIFY(form.hwnd() > 0);
    QVERIFY(form.AsClock() == nullptr);
    form.EnableWindow(false);
    QVERIFY(!form.IsEnabled());
    form.EnableWindow(true);
    form.Unload();
    QVERIFY(!desk.Window->isVisible());
    desk.Window.reset();
    QCOMPARE(desk.Windows.Count(), 1);
}

void tst_TimeZoneWindow::ClickOnABoxMakesTheFile() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.ClickCheckBox(Tokyo);
    QVERIFY(desk.IsChecked(Tokyo));
    QVERIFY(desk.ReadZoneFile(Tokyo).contains("Time Zone Standard GMT (Minutes)=-540"));
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"3 zones, 1 checked"_s);
    QVERIFY(!desk.HasFile(Eastern));
}

void tst_TimeZoneWindow::ClickOnABoxMakesItsRowCurrent() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc);
    desk.Open();
    desk.GoTo(Tokyo);
    desk.ClickCheckBox(Eastern);
    QCOMPARE(desk.View().currentIndex().row(), 1);
    desk.Click(u"cmdLaunch"_s);
    QCOMPARE(desk.Shell.Launched, QStringList{Eastern});
    desk.ClickCheckBox(Utc);
    QCOMPARE(desk.View().currentIndex().row(), 2);
    QVERIFY(!desk.Find<QPushButton>(u"cmdLaunch"_s).isEnabled());
}

void tst_TimeZoneWindow::UncheckingAsksBeforeTheNextFill_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("stays");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("yes") << 6 << false << QStringList{u"1 time zone removed"_s};
    QTest::newRow("no") << 7 << true << QStringList();
}

void tst_TimeZoneWindow::UncheckingAsksBeforeTheNextFill() {
    QFETCH(int, answer);
    QFETCH(bool, stays);
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    desk.ClickCheckBox(Tokyo);
    QVERIFY(!desk.IsChecked(Tokyo));
    QCOMPARE(desk.ReadZoneFile(Tokyo), QByteArray("A:B=own\r\n"));
    desk.Shell.Answers = {answer};
    desk.Run(u"ShowAll"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to save the removal of Tokyo Standard Time, with the "
                         "settings of its clock?|292|Save Seleted Time Zones"_s});
    QCOMPARE(desk.HasFile(Tokyo), stays);
    QCOMPARE(desk.IsChecked(Tokyo), stays);
    QTEST(desk.Shell.Messages, "messages");
    desk.Run(u"ShowAll"_s);  // nothing is left to be asked
    desk.Click(u"cmdButton0"_s);
    QCOMPARE(desk.Shell.Boxes.size(), 1);
}

/// There a check tells what "Delete Selected" takes.
void tst_TimeZoneWindow::UncheckingInTheListOfFilesOnlySelects() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    desk.Run(u"SourceSelected"_s);
    desk.ClickCheckBox(Tokyo);
    desk.Run(u"ShowAll"_s);
    QCOMPARE(desk.Shell.Boxes, QStringList());
    QVERIFY(desk.IsChecked(Tokyo));
}

void tst_TimeZoneWindow::UncheckingAsksBeforeTheListOfFiles_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("yes") << 6 << QStringList();
    QTest::newRow("no") << 7 << QStringList{Tokyo};
}

/// The rows are those of the database still, whatever source comes next. It is asked once.
void tst_TimeZoneWindow::UncheckingAsksBeforeTheListOfFiles() {
    QFETCH(int, answer);
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo, "Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n");
    desk.Open();
    desk.ClickCheckBox(Tokyo);
    desk.Shell.Answers = {answer};
    desk.Run(u"SourceSelected"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to save the removal of Tokyo Standard Time, with the "
                         "settings of its clock?|292|Save Seleted Time Zones"_s});
    QTEST(desk.Listed(), "listed");
    QCOMPARE(desk.HasFile(Tokyo), answer == 7);
}

void tst_TimeZoneWindow::UncheckedFilesAreKeptByTheNextSource_data() {
    QTest::addColumn<QString>("source");
    QTest::newRow("database") << u"SourceWindows"_s;
    QTest::newRow("profiles") << u"SourceTempolark"_s;
    QTest::newRow("both") << u"SourceBoth"_s;
}

/// In the list of files a check tells what "Delete Selected" takes, and is no wish of its own.
void tst_TimeZoneWindow::UncheckedFilesAreKeptByTheNextSource() {
    QFETCH(QString, source);
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo, "Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n");
    desk.ZoneFile(Utc, "Time Zone:Time Zone Standard Name=UTC\r\n");
    desk.Open();
    desk.Run(u"SourceSelected"_s);
    desk.ClickCheckBox(Tokyo);
    QVERIFY(!desk.IsChecked(Tokyo));
    desk.Run(source);
    QCOMPARE(desk.Shell.Boxes, QStringList());
    QVERIFY(desk.HasFile(Tokyo));
    QVERIFY(desk.HasFile(Utc));
}

void tst_TimeZoneWindow::AsksForBothAtOnce() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.ClickCheckBox(Tokyo);
    desk.Shell.Answers = {6};
    desk.Click(u"cmdButton0"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to save the Eastern Standard Time, UTC, and the removal of "
                         "Tokyo Standard Time, with the settings of its clock?|292|Save Seleted "
                         "Time Zones"_s});
    QVERIFY(desk.HasFile(Eastern));
    QVERIFY(desk.HasFile(Utc));
    QVERIFY(!desk.HasFile(Tokyo));
    QCOMPARE(desk.Shell.Removed, QStringList{Tokyo});
}

void tst_TimeZoneWindow::CheckingAgainKeepsTheFile() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo);
    desk.Open();
    const QByteArray before = desk.ReadZoneFile(Tokyo);
    desk.ClickCheckBox(Tokyo);
    QVERIFY(!desk.IsChecked(Tokyo));
    desk.ClickCheckBox(Tokyo);
    QVERIFY(desk.IsChecked(Tokyo));
    QCOMPARE(desk.ReadZoneFile(Tokyo), before);
}

void tst_TimeZoneWindow::SpaceChecksARow() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.GoTo(Eastern);
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QVERIFY(desk.IsChecked(Eastern));
    QVERIFY(desk.HasFile(Eastern));
    desk.View().setCurrentIndex(desk.Row(Tokyo).siblingAtColumn(1));
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QVERIFY(desk.IsChecked(Tokyo));
    QTest::keyClick(&desk.View(), Qt::Key_Space);
    QVERIFY(!desk.IsChecked(Tokyo));
}

void tst_TimeZoneWindow::ProfileRowsCopyTheirProfile() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SourceTempolark"_s);
    QCOMPARE(desk.Listed(), (QStringList{Pacific, Europe}));
    desk.ClickCheckBox(Europe);
    QCOMPARE(desk.ReadZoneFile(Europe), desk.Machine.ReadFile(u"Timezones/Oslo.ini"_s));
}

void tst_TimeZoneWindow::RefusesImpossibleNames() {
    ZoneWindowDesk desk;
    desk.Machine.Zones.Add(u"Etc/Odd"_s, 0);
    desk.Open();
    desk.ClickCheckBox(u"Etc/Odd"_s);
    QVERIFY(!desk.IsChecked(u"Etc/Odd"_s));
    QCOMPARE(desk.Shell.Messages.size(), 1);
    QVERIFY(!desk.Shell.Messages[0].isEmpty());
    QCOMPARE(desk.Machine.Files.Writes, QStringList());
}

void tst_TimeZoneWindow::FailedCopyIsToldAndStaysChecked() {
    ZoneWindowDesk desk;
    const QString path = desk.Paths.ZoneFileFolder + Tokyo + u".ini"_s;
    desk.Machine.Files.Unwritable += path;
    desk.Open();
    desk.ClickCheckBox(Tokyo);
    QCOMPARE(desk.Shell.Messages, QStringList{u"Tokyo Standard Time could not be saved"_s});
    QVERIFY(desk.IsChecked(Tokyo));
    desk.Machine.Files.Unwritable.clear();
    desk.Click(u"cmdButton1"_s);
    QVERIFY(desk.HasFile(Tokyo));
    QCOMPARE(desk.Shell.Messages.last(), u"1 time zone saved"_s);
}

void tst_TimeZoneWindow::VanishedProfileIsTold() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SourceTempolark"_s);
    QVERIFY(QFile::remove(desk.Paths.ProfileFolder + u"Oslo.ini"_s));
    desk.ClickCheckBox(Europe);
    QCOMPARE(desk.Shell.Messages, QStringList{u"W. Europe Standard Time could not be saved"_s});
    desk.Shell.Answers = {7};
    desk.Run(u"SourceTempolark"_s);
    QCOMPARE(desk.Listed(), QStringList{Pacific});
}

void tst_TimeZoneWindow::ListsOtherSources() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc, "Time Zone:Time Zone Standard Name=UTC\r\n");
    desk.Open();
    desk.Run(u"SourceBoth"_s);
    QCOMPARE(desk.Listed(), (QStringList{Tokyo, Eastern, Utc, Pacific, Europe}));
    QVERIFY(desk.Find<QAction>(u"SourceBoth"_s).isChecked());
    desk.Run(u"SourceSelected"_s);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    QVERIFY(!desk.Find<QAction>(u"SourceBoth"_s).isChecked());
    desk.Run(u"SourceWindows"_s);
    QCOMPARE(desk.Listed(), (QStringList{Tokyo, Eastern, Utc}));
}

void tst_TimeZoneWindow::FiltersByChoice() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc);
    desk.Open();
    desk.Run(u"ShowSelected"_s);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.Run(u"ShowUnselected"_s);
    QCOMPARE(desk.Listed(), (QStringList{Tokyo, Eastern}));
    QVERIFY(desk.Find<QAction>(u"ShowUnselected"_s).isChecked());
    desk.Run(u"ShowAll"_s);
    QCOMPARE(desk.Listed().size(), 3);
}

void tst_TimeZoneWindow::SortsByMenuAndHeader() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.GoTo(Tokyo);
    desk.Run(u"NameAscending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Tokyo, Utc}));
    QCOMPARE(desk.View().currentIndex().row(), 1);  // the row stays the current one
    desk.Run(u"NameDescending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Utc, Tokyo, Eastern}));
    auto* header = desk.View().findChild<QHeaderView*>();
    const QPoint first(20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, first);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Tokyo, Utc}));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, first);
    QCOMPARE(desk.Listed(), (QStringList{Utc, Tokyo, Eastern}));
    desk.Run(u"GMTAscending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Tokyo, Utc}));
    desk.Run(u"GMTDescending"_s);
    QCOMPARE(desk.Listed(), (QStringList{Utc, Tokyo, Eastern}));
}

void tst_TimeZoneWindow::SelectsAllAndNone() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SelectAll"_s);
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"3 zones, 3 checked"_s);
    QVERIFY(!desk.HasFile(Tokyo));  // files come with Save
    desk.Run(u"SelectNone"_s);
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"3 zones, 0 checked"_s);
}

void tst_TimeZoneWindow::SaveMakesTheFiles() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc);
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.Click(u"cmdButton1"_s);
    QVERIFY(desk.HasFile(Tokyo));
    QVERIFY(desk.HasFile(Eastern));
    QCOMPARE(desk.ReadZoneFile(Utc), QByteArray("A:B=own\r\n"));
    QCOMPARE(desk.Shell.Messages, QStringList{u"2 time zones saved"_s});
    desk.Click(u"cmdButton1"_s);
    QCOMPARE(desk.Shell.Messages.last(), u"Nothing had to be saved"_s);
}

void tst_TimeZoneWindow::AsksBeforeItFillsAnew() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.Shell.Answers = {6};
    desk.Run(u"SourceTempolark"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to save the Tokyo Standard Time, Eastern Standard Time, "
                         "UTC?|36|Save Seleted Time Zones"_s});
    QVERIFY(desk.HasFile(Tokyo));
    QVERIFY(desk.HasFile(Utc));
    QCOMPARE(desk.Listed(), (QStringList{Pacific, Europe}));
}

void tst_TimeZoneWindow::KeepsNothingOnNo() {
    ZoneWindowDesk desk;
    desk.Machine.Zones.Add(u"Fourth Time"_s, 0);
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.Shell.Answers = {7};
    desk.Run(u"ShowAll"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to save the 4?|36|Save Seleted Time Zones"_s});
    QVERIFY(!desk.HasFile(Tokyo));
    QVERIFY(!desk.IsChecked(Tokyo));
}

void tst_TimeZoneWindow::AsksWhenItCloses() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(u"SelectAll"_s);
    desk.Shell.Answers = {6};
    desk.Click(u"cmdButton0"_s);
    QCOMPARE(desk.Shell.Boxes.size(), 1);
    QVERIFY(desk.HasFile(Eastern));
    QVERIFY(!desk.Window->isVisible());
}

void tst_TimeZoneWindow::ClosesWithoutAQuestionWhenAllIsSaved() {
    ZoneWindowDesk desk;
    desk.Open();
    desk.ClickCheckBox(Tokyo);
    desk.Run(u"Close"_s);
    QCOMPARE(desk.Shell.Boxes, QStringList());
    QVERIFY(!desk.Window->isVisible());
}

void tst_TimeZoneWindow::DeletesAfterAQuestion() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc, "Time Zone:Time Zone Standard Name=UTC\r\n");
    desk.ZoneFile(Tokyo, "Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n");
    desk.Open();
    desk.Run(u"SourceSelected"_s);
    QVERIFY(desk.IsChecked(Tokyo));
    desk.ClickCheckBox(Utc);  // it is to stay
    desk.Shell.Answers = {6};
    desk.Run(u"DeleteSelected"_s);
    QCOMPARE(desk.Shell.Boxes,
             QStringList{u"Do you want to delete the selected time zone profiles?\n\n1 time zone, "
                         "with the settings of its clock: Tokyo Standard Time.|292|"
                         "Delete Selected"_s});
    QVERIFY(!desk.HasFile(Tokyo));
    QVERIFY(desk.HasFile(Utc));
    QCOMPARE(desk.Shell.Removed, QStringList{Tokyo});
    QCOMPARE(desk.Listed(), QStringList{Utc});
    QCOMPARE(desk.Shell.Messages, QStringList{u"1 time zone deleted"_s});
}

void tst_TimeZoneWindow::DeletesNothingOnNo() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc, "Time Zone:Time Zone Standard Name=UTC\r\n");
    desk.Open();
    desk.Run(u"SourceSelected"_s);
    desk.Shell.Answers = {7};
    desk.Run(u"DeleteSelected"_s);
    QVERIFY(desk.HasFile(Utc));
    QCOMPARE(desk.Listed(), QStringList{Utc});
}

void tst_TimeZoneWindow::DeletesNothingWhereNothingIsChecked() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Utc, "Time Zone:Time Zone Standard Name=UTC\r\n");
    desk.Open();
    desk.Run(u"SourceSelected"_s);
    desk.Run(u"SelectNone"_s);
    desk.Run(u"DeleteSelected"_s);
    QCOMPARE(desk.Shell.Boxes, QStringList());
    QCOMPARE(desk.Shell.Messages, QStringList{u"No time zone is checked"_s});
    QVERIFY(desk.HasFile(Utc));
}

/// No clock has written its zone into it yet.
void tst_TimeZoneWindow::ListsTheFileOfTheFirstStart() {
    ZoneWindowDesk desk;
    desk.ZoneFile(Tokyo, "Time Zone:Time Zone Standard Name=\r\n");
    desk.Open();
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"3 zones, 1 checked"_s);
    desk.Run(u"SourceSelected"_s);
    QCOMPARE(desk.Listed(), QStringList{Tokyo});
    QCOMPARE(desk.Find<QLabel>(u"lblCount"_s).text(), u"1 zone, 1 checked"_s);
    QCOMPARE(desk.Map().Dots().size(), std::size_t{1});
}

void tst_TimeZoneWindow::DeleteIsForZoneFilesAlone_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("database") << u"SourceWindows"_s << false;
    QTest::newRow("profiles") << u"SourceTempolark"_s << false;
    QTest::newRow("zone files") << u"SourceSelected"_s << true;
    QTest::newRow("both") << u"SourceBoth"_s << false;
}

void tst_TimeZoneWindow::DeleteIsForZoneFilesAlone() {
    QFETCH(QString, source);
    ZoneWindowDesk desk;
    desk.Open();
    desk.Run(source);
    QTEST(desk.Find<QAction>(u"DeleteSelected"_s).isEnabled(), "enabled");
}

QTEST_MAIN(tst_TimeZoneWindow)
#include "tst_TimeZoneWindow.moc"
