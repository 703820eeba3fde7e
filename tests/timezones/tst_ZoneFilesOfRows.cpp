#include <QTest>

#include "timezones/ZoneFilesOfRows.h"
#include "timezones/ZoneListDesk.h"

using namespace mduTimeZones;

namespace {

const QString Tokyo = u"Tokyo Standard Time"_s;
const QString Europe = u"W. Europe Standard Time"_s;

struct Desk : ZoneListDesk {
    explicit Desk(SourceMode source = SourceMode::Both) {
        Oslo = Profile(u"Oslo.ini"_s, "W. Europe Standard Time", -60, "Clock:Mine=oslo\r\n");
        List.Source = source;
        List.Load();
    }
    ZoneRow& Row(const QString& name) {
        for (ZoneRow* row : List.AllRows()) {
            if (row->Name == name) {
                return *row;
            }
        }
        qFatal("no such row");
    }
    QString Make(const QString& name) { return MakeZoneFile(Machine.Services, Paths, Row(name)); }
    RowsOutcome Save() { return SaveCheckedZones(Machine.Services, Paths, List); }
    RowsOutcome Delete() {
        return RemoveZones(
            Machine.Services, Paths, List.CheckedNames(),
            [this](const QString& name) { return DeleteZoneFile(Machine.Services, Paths, name); });
    }

    QString Oslo;
    ZoneList List{Machine.Services, Paths};
};

}  // namespace

class tst_ZoneFilesOfRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CopiesAProfile();
    void MakesAFileOfTheDatabase();
    void KeepsAFileThatIsThere();
    void RefusesNames_data();
    void RefusesNames();
    void TellsOfAFailedCopy();
    void TellsOfAVanishedProfile();
    void LeavesAProfileThatIsTheFileItself();
    void SavesWhatIsMissing();
    void SavesWhatTheSearchHides();
    void GoesOnAfterAProblem();
    void DeletesCheckedRows();
    void DeletesOnlyWhatIsListed();
    void TellsWhatCannotBeDeleted();
    void SaveQuestion_data();
    void SaveQuestion();
    void DeleteQuestion_data();
    void DeleteQuestion();
};

void tst_ZoneFilesOfRows::CopiesAProfile() {
    Desk desk;
    QCOMPARE(desk.Make(Europe), QString());
    QCOMPARE(desk.ReadZoneFile(Europe), desk.Machine.ReadFile(u"Timezones/Oslo.ini"_s));
    QVERIFY(desk.ReadZoneFile(Europe).contains("Clock:Mine=oslo"));
    QVERIFY(desk.Row(Europe).HasFile);
}

void tst_ZoneFilesOfRows::MakesAFileOfTheDatabase() {
    Desk desk;
    QCOMPARE(desk.Make(Tokyo), QString());
    QCOMPARE(desk.ReadZoneFile(Tokyo),
             QByteArray("Time Zone:Time Zone Standard Name=Tokyo Standard Time\r\n"
                        "A:B=c\r\n"
                        "Time Zone Standard Start Time=0.0.0 0:00:00\r\n"
                        "Time Zone Standard GMT (Minutes)=-540\r\n"
                        "Time Zone Daylight Name=Tokyo Daylight Time\r\n"
                        "Time Zone Daylight Start Time=0.0.0 0:00:00\r\n"
                        "Time Zone Daylight GMT (Minutes)=-540\r\n"));
}

void tst_ZoneFilesOfRows::KeepsAFileThatIsThere() {
    Desk desk;
    desk.ZoneFile(Tokyo, "A:B=own\r\n");
    desk.ZoneFile(Europe, "A:B=own\r\n");
    QCOMPARE(desk.Make(Tokyo), QString());
    QCOMPARE(desk.Make(Europe), QString());
    QCOMPARE(desk.ReadZoneFile(Tokyo), QByteArray("A:B=own\r\n"));
    QCOMPARE(desk.ReadZoneFile(Europe), QByteArray("A:B=own\r\n"));
    QVERIFY(desk.Row(Tokyo).HasFile);
}

void tst_ZoneFilesOfRows::RefusesNames_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("separator") << u"Etc/UTC"_s;
    QTest::newRow("the other separator") << u"Etc\\UTC"_s;
    QTest::newRow("parent") << u"..\u0041"_s;
    QTest::newRow("control character") << u"A\u0007B"_s;
}

void tst_ZoneFilesOfRows::RefusesNames() {
    QFETCH(QString, name);
    Desk desk;
    ZoneRow& row = desk.Row(Tokyo);
    row.Name = name;
    row.Checked = true;
    QVERIFY(!MakeZoneFile(desk.Machine.Services, desk.Paths, row).isEmpty());
    QVERIFY(!row.HasFile);
    QCOMPARE(desk.Save().Problems.size(), 1);
    QCOMPARE(desk.Delete().Files, 0);
    QCOMPARE(desk.Machine.Files.Writes, QStringList());
}

void tst_ZoneFilesOfRows::TellsOfAFailedCopy() {
    Desk desk;
    desk.Machine.Files.Unwritable += ZoneFilePath(desk.Paths, Tokyo);
    QCOMPARE(desk.Make(Tokyo), u"Tokyo Standard Time could not be saved"_s);
    QVERIFY(!desk.Row(Tokyo).HasFile);
}

void tst_ZoneFilesOfRows::TellsOfAVanishedProfile() {
    Desk desk;
    QVERIFY(QFile::remove(desk.Oslo));
    QCOMPARE(desk.Make(Europe), u"W. Europe Standard Time could not be saved"_s);
    QCOMPARE(desk.ReadZoneFile(Europe), QByteArray());
}

void tst_ZoneFilesOfRows::LeavesAProfileThatIsTheFileItself() {
    Desk desk;
    desk.ZoneFile(u"UTC"_s, "Time Zone:Time Zone Standard Name=UTC\r\nA:B=own\r\n");
    desk.List.Source = SourceMode::Selected;
    desk.List.Load();
    desk.Machine.Files.Writes.clear();
    QCOMPARE(desk.Make(u"UTC"_s), QString());
    QCOMPARE(desk.Machine.Files.Writes, QStringList());
    QVERIFY(desk.ReadZoneFile(u"UTC"_s).contains("own"));
}

void tst_ZoneFilesOfRows::SavesWhatIsMissing() {
    Desk desk;
    desk.ZoneFile(u"UTC"_s, "A:B=own\r\n");
    for (const QString& name : {Tokyo, Europe, u"UTC"_s}) {
        desk.Row(name).Checked = true;
    }
    const RowsOutcome outcome = desk.Save();
    QCOMPARE(outcome.Files, 2);
    QCOMPARE(outcome.Problems, QStringList());
    QVERIFY(desk.ReadZoneFile(Tokyo).contains("-540"));
    QVERIFY(desk.ReadZoneFile(Europe).contains("oslo"));
    QCOMPARE(desk.ReadZoneFile(u"UTC"_s), QByteArray("A:B=own\r\n"));
    QCOMPARE(desk.ReadZoneFile(u"Eastern Standard Time"_s), QByteArray());
    QCOMPARE(desk.List.UnsavedNames(), QStringList());
    QCOMPARE(desk.Save().Files, 0);
}

void tst_ZoneFilesOfRows::SavesWhatTheSearchHides() {
    Desk desk;
    desk.Row(Tokyo).Checked = true;
    desk.List.SetSearch(u"oslo"_s);
    QCOMPARE(desk.Save().Files, 1);
}

void tst_ZoneFilesOfRows::GoesOnAfterAProblem() {
    Desk desk;
    desk.Machine.Files.Unwritable += ZoneFilePath(desk.Paths, Tokyo);
    desk.Row(Tokyo).Checked = true;
    desk.Row(Europe).Checked = true;
    const RowsOutcome outcome = desk.Save();
    QCOMPARE(outcome.Files, 1);
    QCOMPARE(outcome.Problems, QStringList{u"Tokyo Standard Time could not be saved"_s});
    QCOMPARE(desk.List.UnsavedNames(), QStringList{Tokyo});
}

void tst_ZoneFilesOfRows::DeletesCheckedRows() {
    Desk desk;
    desk.ZoneFile(Tokyo);
    desk.ZoneFile(Europe);
    desk.List.Load();
    desk.Row(Europe).Checked = false;
    desk.Row(u"UTC"_s).Checked = true;  // it has no file
    const RowsOutcome outcome = desk.Delete();
    QCOMPARE(outcome.Files, 1);
    QCOMPARE(outcome.Problems, QStringList());
    QVERIFY(!QFile::exists(ZoneFilePath(desk.Paths, Tokyo)));
    QVERIFY(QFile::exists(ZoneFilePath(desk.Paths, Europe)));
    QVERIFY(QFile::exists(desk.Oslo));
}

void tst_ZoneFilesOfRows::DeletesOnlyWhatIsListed() {
    Desk desk;
    desk.ZoneFile(Tokyo);
    desk.ZoneFile(Europe);
    desk.List.Load();
    desk.List.SetSearch(u"oslo"_s);
    QCOMPARE(desk.Delete().Files, 1);
    QVERIFY(QFile::exists(ZoneFilePath(desk.Paths, Tokyo)));
    QVERIFY(!QFile::exists(ZoneFilePath(desk.Paths, Europe)));
}

void tst_ZoneFilesOfRows::TellsWhatCannotBeDeleted() {
    Desk desk;
    desk.ZoneFile(Tokyo);
    desk.List.Load();
    desk.Machine.Files.Undeletable += ZoneFilePath(desk.Paths, Tokyo);
    const RowsOutcome outcome = desk.Delete();
    QCOMPARE(outcome.Files, 0);
    QCOMPARE(outcome.Problems, QStringList{u"Tokyo Standard Time could not be deleted"_s});
}

void tst_ZoneFilesOfRows::SaveQuestion_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<QString>("question");
    const QStringList none;
    const QStringList three{u"A"_s, u"B"_s, u"C"_s};
    const QStringList four{u"A"_s, u"B"_s, u"C"_s, u"D"_s};
    QTest::newRow("one") << QStringList{u"UTC"_s} << none << u"Do you want to save the UTC?"_s;
    QTest::newRow("three") << three << none << u"Do you want to save the A, B, C?"_s;
    QTest::newRow("four") << four << none << u"Do you want to save the 4?"_s;
    QTest::newRow("one goes")
        << none << QStringList{u"UTC"_s}
        << u"Do you want to save the removal of UTC, with the settings of its clock?"_s;
    QTest::newRow("three go")
        << none << three
        << u"Do you want to save the removal of A, B, C, with the settings of their clocks?"_s;
    QTest::newRow("four go") << none << four
                             << u"Do you want to save the removal of 4 time zones, with the "
                                "settings of their clocks?"_s;
    QTest::newRow("both") << QStringList{u"UTC"_s} << QStringList{u"A"_s, u"B"_s}
                          << u"Do you want to save the UTC, and the removal of A, B, with the "
                             "settings of their clocks?"_s;
}

void tst_ZoneFilesOfRows::SaveQuestion() {
    QFETCH(QStringList, names);
    QFETCH(QStringList, removed);
    QTEST(mduTimeZones::SaveQuestion(names, removed), "question");
}

void tst_ZoneFilesOfRows::DeleteQuestion_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("question");
    const QString begin = u"Do you want to delete the selected time zone profiles?\n\n"_s;
    QTest::newRow("one") << QStringList{u"UTC"_s}
                         << begin + u"1 time zone, with the settings of its clock: UTC."_s;
    QTest::newRow("three") << QStringList{u"A"_s, u"B"_s, u"C"_s}
                           << begin +
                                  u"3 time zones, with the settings of their clocks: A, B, C."_s;
    QTest::newRow("four") << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s}
                          << begin + u"4 time zones, with the settings of their clocks."_s;
}

void tst_ZoneFilesOfRows::DeleteQuestion() {
    QFETCH(QStringList, names);
    QTEST(mduTimeZones::DeleteQuestion(names), "question");
}

QTEST_GUILESS_MAIN(tst_ZoneFilesOfRows)
#include "tst_ZoneFilesOfRows.moc"
