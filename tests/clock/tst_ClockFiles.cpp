#include <QTest>

#include "clock/ClockFiles.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "support/FakePropertyWindow.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

namespace {

const QString Eastern = u"Eastern Standard Time"_s;
const QString File = u"tester/TimeZones/Eastern Standard Time.ini"_s;

/// The files of one clock, on a machine at noon of 15 June 2026.
struct Desk : MachineWithZones {
    Desk() {
        QString zone = u"UTC"_s;
        mduMain::SetupPaths(Module, Services, zone);
    }

    /// A file of the year before, as it was left then.
    void LeaveOldFile() {
        QByteArray content = Machine.ReadFile(u"ini/Tempolark.ini"_s);
        content.replace("Time Zone Standard Start Time=",
                        "Time Zone Standard Start Time=02/11/2025 2:00:00");
        content.replace("Time Zone Daylight Start Time=",
                        "Time Zone Daylight Start Time=09/03/2025 2:00:00");
        content.replace("Time Zone Standard GMT (Minutes)=",
                        "Time Zone Standard GMT (Minutes)=300");
        content.replace("Time Zone Daylight GMT (Minutes)=",
                        "Time Zone Daylight GMT (Minutes)=240");
        Machine.WriteFile(File, content);
    }

    /// One with days of 2026 that the database does not have.
    void LeaveFileOfThisYear() {
        LeaveOldFile();
        QByteArray content = Machine.ReadFile(File);
        content.replace("02/11/2025", "03/11/2026").replace("09/03/2025", "10/03/2026");
        Machine.WriteFile(File, content);
    }

    bool FileHas(const QByteArray& key, const QByteArray& value) const {
        return Machine.ReadFile(File).contains(key + '=' + value + "\r\n");
    }
    bool FileIsOf2026() const {
        return FileHas("Time Zone Standard Start Time", "01/11/2026 2:00:00") &&
               FileHas("Time Zone Daylight Start Time", "08/03/2026 2:00:00");
    }
    bool ZoneIsOf2026() const {
        return Data.Zone.StandardDate == platform::SYSTEMTIME{2026, 11, 0, 1, 2, 0, 0, 0} &&
               Data.Zone.DaylightDate == platform::SYSTEMTIME{2026, 3, 0, 8, 2, 0, 0, 0};
    }

    clockcore::ClockData Data;
    QStringList Reports;
    clockcore::ClockFiles Files{Data, TheProgram, [this](const QString& text) { Reports += text; }};
};

}  // namespace

/// A clock's file never shows the days of another year.
class tst_ClockFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RenewsAFileThatWasThereBefore();
    void FollowsANewEditionOfTheDatabase();
    void RenewsAFileThatHasJustBeenMerged();
    void LeavesAMergedFileOfThisYear();
    void RenewsAFileThatIsReadAsItStands();
    void RenewsAnOpenClockInTheNextYear();
    void RenewsTheZoneAloneInOneWrite();
    void LeavesWhatItMayNotWrite();
    void TellsTheWindowsThatEditItsFile();
};

void tst_ClockFiles::RenewsAFileThatWasThereBefore() {
    Desk desk;
    desk.LeaveOldFile();
    QVERIFY(desk.Files.LoadForShell(Eastern));
    QVERIFY(desk.FileIsOf2026());
    QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Name"_s, desk.Module.CurrentProperties),
             Eastern);
    desk.Files.FillZone(Eastern);
    QVERIFY(desk.ZoneIsOf2026());
    QCOMPARE(desk.Data.Zone.CurrentName, u"Eastern Daylight Time"_s);
}

// The keys are of this year, but other days were foretold when they were written.
void tst_ClockFiles::FollowsANewEditionOfTheDatabase() {
    Desk desk;
    desk.LeaveFileOfThisYear();
    QVERIFY(desk.Files.LoadForShell(Eastern));
    QVERIFY(desk.FileIsOf2026());
    QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Start Time"_s, desk.Data.Properties()),
             u"01/11/2026 2:00:00"_s);
    QCOMPARE(desk.Module.CurrentProperties, desk.Data.Properties());
}

void tst_ClockFiles::RenewsAFileThatHasJustBeenMerged() {
    Desk desk;
    desk.LeaveOldFile();
    desk.Machine.SetAge(File, 7200);
    QVERIFY(desk.Files.LoadForShell(Eastern));
    QVERIFY(desk.FileIsOf2026());
    QCOMPARE(mduLib::GetProperty(u"Time Zone Daylight Start Time"_s, desk.Module.CurrentProperties),
             u"08/03/2026 2:00:00"_s);
}

void tst_ClockFiles::LeavesAMergedFileOfThisYear() {
    Desk desk;
    desk.LeaveFileOfThisYear();
    desk.Machine.SetAge(File, 7200);
    QVERIFY(desk.Files.LoadForShell(Eastern));
    QVERIFY(desk.FileHas("Time Zone Standard Start Time", "03/11/2026 2:00:00"));
}

void tst_ClockFiles::RenewsAFileThatIsReadAsItStands() {
    Desk desk;
    desk.LeaveOldFile();
    QVERIFY(desk.Files.NameCurrentFile(Eastern));
    desk.Files.LoadCurrent();
    desk.Files.FillZone(Eastern);
    QVERIFY(desk.FileIsOf2026());
    QVERIFY(desk.ZoneIsOf2026());
}

void tst_ClockFiles::RenewsAnOpenClockInTheNextYear() {
    Desk desk;
    desk.Machine.Clock.SetNow(QDateTime(QDate(2025, 12, 31), QTime(23, 0), Qt::UTC));
    desk.LeaveOldFile();
    QVERIFY(desk.Files.LoadForShell(Eastern));
    desk.Files.FillZone(Eastern);
    QVERIFY(desk.FileHas("Time Zone Standard Start Time", "02/11/2025 2:00:00"));
    desk.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC));
    desk.Files.RefreshZone();
    QVERIFY(desk.FileIsOf2026());
    QVERIFY(desk.ZoneIsOf2026());
    QCOMPARE(desk.Data.Zone.CurrentGMTHours, 4.0F);
}

// A look that is only tried, or that has come by itself, is not the user's choice.
void tst_ClockFiles::RenewsTheZoneAloneInOneWrite() {
    Desk desk;
    desk.LeaveOldFile();
    QVERIFY(desk.Files.NameCurrentFile(Eastern));
    desk.Files.LoadCurrent();
    mduLib::PutProperty(u"Zone Colour"_s, u"tried"_s, desk.Data.EditProperties());
    desk.Machine.WriteFile(File, desk.Machine.ReadFile(File) + "Other=saved meanwhile\r\n");
    desk.Machine.Files.Writes.clear();
    desk.Files.RefreshZone();
    QCOMPARE(desk.Machine.Files.Writes, QStringList{desk.Data.PropertyFileName});
    QVERIFY(desk.FileIsOf2026());
    QVERIFY(desk.FileHas("Time Zone Standard Name", "Eastern Standard Time"));
    QVERIFY(desk.FileHas("Time Zone Standard GMT (Minutes)", "300"));
    QVERIFY(desk.FileHas("Time Zone Daylight Name", "Eastern Daylight Time"));
    QVERIFY(desk.FileHas("Time Zone Daylight GMT (Minutes)", "240"));
    QVERIFY(desk.FileHas("Other", "saved meanwhile"));
    QVERIFY(!desk.Machine.ReadFile(File).contains("tried"));
    QCOMPARE(mduLib::GetProperty(u"Zone Colour"_s, desk.Data.Properties()), u"tried"_s);
    QVERIFY(desk.ZoneIsOf2026());
}

void tst_ClockFiles::LeavesWhatItMayNotWrite() {
    Desk desk;
    desk.Machine.WriteFile(File, QByteArray("a\0b", 3));
    QVERIFY(desk.Files.LoadForShell(Eastern));
    desk.Files.FillZone(Eastern);
    QCOMPARE(desk.Machine.ReadFile(File), QByteArray("a\0b", 3));
    QCOMPARE(desk.Reports.size(), 1);
}

void tst_ClockFiles::TellsTheWindowsThatEditItsFile() {
    Desk desk;
    desk.Files.LoadForShell(Eastern);
    QStringList log;
    const FakePropertyWindow other(desk.Windows, desk.Machine.AppFolder() + u"/other.ini"_s, log);
    const FakePropertyWindow window(desk.Windows, desk.Data.PropertyFileName, log);
    desk.Files.SaveKey(u"Hour Hand Colour"_s);
    QCOMPARE(log, QStringList{u"Properties: changed"_s});
    desk.Files.SavePosition({15, 30, 300, 450});
    QCOMPARE(log.size(), 2);
    desk.Machine.Files.Unwritable += desk.Data.PropertyFileName;
    mduLib::PutProperty(u"Hour Hand Colour"_s, u"Cyan"_s, desk.Data.EditProperties());
    QVERIFY(!desk.Files.SaveKey(u"Hour Hand Colour"_s));
    QVERIFY(!desk.Files.SavePosition({16, 30, 300, 450}));
    QCOMPARE(log.size(), 2);
}

QTEST_GUILESS_MAIN(tst_ClockFiles)
#include "tst_ClockFiles.moc"
