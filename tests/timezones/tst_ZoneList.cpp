#include <QSignalSpy>
#include <QTest>

#include "timezones/ZoneListDesk.h"
#include "timezones/ZoneListModel.h"

using namespace mduTimeZones;

namespace {

/// A desk with two profiles and one zone that has a file, and a list of it.
struct Desk : ZoneListDesk {
    Desk() {
        Profile(u"Oslo.ini"_s, "W. Europe Standard Time", -60);
        Profile(u"Lima.ini"_s, "SA Pacific Standard Time", 300);
        ZoneFile(u"UTC"_s, "Time Zone:Time Zone Standard Name=UTC\r\n");
    }
    void Load(SourceMode source, ShowFilter show = ShowFilter::All) {
        List.Source = source;
        List.Show = show;
        List.Load();
    }
    QStringList Listed() const { return Names(List); }

    ZoneList List{Machine.Services, Paths};
};

const QString Tokyo = u"Tokyo Standard Time"_s;
const QString Eastern = u"Eastern Standard Time"_s;
const QString Europe = u"W. Europe Standard Time"_s;
const QString Pacific = u"SA Pacific Standard Time"_s;
const QString Utc = u"UTC"_s;

}  // namespace

class tst_ZoneList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ListsItsSource_data();
    void ListsItsSource();
    void ListsByChoice();
    void FollowsTheBand();
    void BandAndChoiceNarrowTogether();
    void Sorts_data();
    void Sorts();
    void KeepsItsSortAndSearch();
    void Searches();
    void CopesWithAVanishedFolder();
    void LeavesOutUnreadableProfiles();
    void FindsRows();
    void TellsWhatIsUnsaved();
    void TellsWhatIsUnchecked();
    void FindsCitiesWhateverTheSource_data();
    void FindsCitiesWhateverTheSource();
    void ListsTheBestMatchFirst();
    void ListsNoZoneTwice();
    void KeepsChecksWhenASearchBegins();
    void DescribesRows();
    void ModelShowsRows();
    void ModelChecksRows();
    void LoadsThousandsOfFiles();
};

void tst_ZoneList::ListsItsSource_data() {
    QTest::addColumn<SourceMode>("source");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("database") << SourceMode::Windows << QStringList{Tokyo, Eastern, Utc};
    QTest::newRow("profiles") << SourceMode::Tempolark << QStringList{Pacific, Europe};
    QTest::newRow("zone files") << SourceMode::Selected << QStringList{Utc};
    QTest::newRow("both") << SourceMode::Both << QStringList{Tokyo, Eastern, Utc, Pacific, Europe};
}

void tst_ZoneList::ListsItsSource() {
    QFETCH(SourceMode, source);
    Desk desk;
    desk.Load(source);
    QTEST(desk.Listed(), "names");
    const int utc = desk.List.Find(Utc, {});
    QVERIFY(utc < 0 || desk.List[utc].Checked);
    const int tokyo = desk.List.Find(Tokyo, {});
    QVERIFY(tokyo < 0 || !desk.List[tokyo].Checked);
}

void tst_ZoneList::ListsByChoice() {
    Desk desk;
    desk.Load(SourceMode::Both, ShowFilter::Selected);
    QCOMPARE(desk.Listed(), QStringList{Utc});
    desk.Load(SourceMode::Both, ShowFilter::Unselected);
    QCOMPARE(desk.Listed(), (QStringList{Tokyo, Eastern, Pacific, Europe}));
}

void tst_ZoneList::FollowsTheBand() {
    Desk desk;
    desk.Load(SourceMode::Both);
    desk.List.SetBand(17.1);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Pacific}));
    desk.Load(SourceMode::Tempolark);
    QCOMPARE(desk.Listed(), QStringList{Pacific});
    desk.List.SetBand({});
    QCOMPARE(desk.Listed(), (QStringList{Pacific, Europe}));
}

void tst_ZoneList::BandAndChoiceNarrowTogether() {
    Desk desk;
    desk.ZoneFile(Pacific);
    desk.Load(SourceMode::Both, ShowFilter::Selected);
    QCOMPARE(desk.Listed(), (QStringList{Utc, Pacific}));
    desk.List.SetBand(17.0);
    QCOMPARE(desk.Listed(), QStringList{Pacific});
}

void tst_ZoneList::Sorts_data() {
    QTest::addColumn<ZoneSort>("sort");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("name up") << ZoneSort::NameAscending
                             << QStringList{Eastern, Pacific, Tokyo, Utc, Europe};
    QTest::newRow("name down") << ZoneSort::NameDescending
                               << QStringList{Europe, Utc, Tokyo, Pacific, Eastern};
    // "(GMT) Eastern...", "(GMT) Tokyo...", "(GMT) UTC", "(GMT+01:00) Oslo", "(GMT-05:00) Lima"
    QTest::newRow("display up") << ZoneSort::GMTAscending
                                << QStringList{Eastern, Tokyo, Utc, Europe, Pacific};
    QTest::newRow("display down") << ZoneSort::GMTDescending
                                  << QStringList{Pacific, Europe, Utc, Tokyo, Eastern};
    QTest::newRow("none") << ZoneSort::None << QStringList{Tokyo, Eastern, Utc, Pacific, Europe};
}

void tst_ZoneList::Sorts() {
    QFETCH(ZoneSort, sort);
    Desk desk;
    desk.Load(SourceMode::Both);
    desk.List.SetSort(sort);
    QTEST(desk.Listed(), "names");
}

void tst_ZoneList::KeepsItsSortAndSearch() {
    Desk desk;
    desk.List.SetSort(ZoneSort::NameAscending);
    desk.List.SetSearch(u"standard"_s);
    desk.Load(SourceMode::Windows);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Pacific, Tokyo, Europe}));
}

void tst_ZoneList::Searches() {
    Desk desk;
    desk.Load(SourceMode::Both);
    desk.List.SetSearch(u"oslo"_s);
    QCOMPARE(desk.Listed(), QStringList{Europe});
    desk.List.SetSearch(u"-5:00"_s);
    QCOMPARE(desk.Listed(), (QStringList{Eastern, Pacific}));
    desk.List.SetSearch(u"nowhere"_s);
    QCOMPARE(desk.Listed(), QStringList());
    desk.List.SetSearch(QString());
    QCOMPARE(desk.List.Count(), 5);
    QCOMPARE(desk.List.CheckedCount(), 1);
}

void tst_ZoneList::CopesWithAVanishedFolder() {
    Desk desk;
    QDir(desk.Paths.ZoneFileFolder).removeRecursively();
    desk.Load(SourceMode::Selected);
    QCOMPARE(desk.Listed(), QStringList());
    desk.Load(SourceMode::Windows);
    QCOMPARE(desk.List.CheckedCount(), 0);
}

void tst_ZoneList::LeavesOutUnreadableProfiles() {
    Desk desk;
    desk.Machine.Files.Unreadable += desk.Paths.ProfileFolder + u"Lima.ini"_s;
    desk.Load(SourceMode::Tempolark);
    QCOMPARE(desk.Listed(), QStringList{Europe});
}

void tst_ZoneList::FindsRows() {
    Desk desk;
    const QString oslo = desk.Paths.ProfileFolder + u"Oslo.ini"_s;
    desk.Load(SourceMode::Both);
    QCOMPARE(desk.List.Find(Europe, oslo), 4);
    QCOMPARE(desk.List.Find(Europe, {}), -1);
    QCOMPARE(desk.List.PositionOf(desk.List[4]), 4);
    const ZoneRow& row = *desk.List.AllRows()[4];
    desk.List.SetSearch(u"tokyo"_s);
    QCOMPARE(desk.List.PositionOf(row), -1);
    QCOMPARE(desk.List.AllRows().size(), std::size_t{5});
}

void tst_ZoneList::TellsWhatIsUnsaved() {
    Desk desk;
    desk.Load(SourceMode::Both);
    QCOMPARE(desk.List.UnsavedNames(), QStringList());
    desk.List[4].Checked = true;
    desk.List[0].Checked = true;
    QCOMPARE(desk.List.UnsavedNames(), (QStringList{Tokyo, Europe}));
    desk.List.SetSearch(u"oslo"_s);
    QCOMPARE(desk.List.UnsavedNames(), (QStringList{Tokyo, Europe}));
    desk.List.AllRows()[0]->HasFile = true;
    QCOMPARE(desk.List.UnsavedNames(), QStringList{Europe});
}

void tst_ZoneList::TellsWhatIsUnchecked() {
    Desk desk;
    desk.ZoneFile(Tokyo);
    desk.Load(SourceMode::Windows);
    QCOMPARE(desk.List.UncheckedNames(), QStringList());
    desk.List[0].Checked = false;
    desk.List[2].Checked = false;
    QCOMPARE(desk.List.UncheckedNames(), (QStringList{Tokyo, Utc}));
    desk.List.SetSearch(u"tokyo"_s);
    QCOMPARE(desk.List.UncheckedNames(), (QStringList{Tokyo, Utc}));
    QVERIFY(QFile::remove(desk.Paths.ZoneFileFolder + Utc + u".ini"_s));
    QCOMPARE(desk.List.UncheckedNames(), QStringList{Tokyo});
    desk.List.SetSearch(QString());
    desk.Load(SourceMode::Selected);
    desk.List[0].Checked = false;
    QCOMPARE(desk.List.UncheckedNames(), QStringList());
}

void tst_ZoneList::FindsCitiesWhateverTheSource_data() {
    QTest::addColumn<SourceMode>("source");
    QTest::newRow("database") << SourceMode::Windows;
    QTest::newRow("profiles") << SourceMode::Tempolark;
    QTest::newRow("zone files") << SourceMode::Selected;
    QTest::newRow("both") << SourceMode::Both;
}

void tst_ZoneList::FindsCitiesWhateverTheSource() {
    QFETCH(SourceMode, source);
    Desk desk;
    desk.Profile(u"Bergen.ini"_s, "Bergen", -60, "Zone:Country=Norway\r\n");
    desk.Load(source);
    const int before = desk.List.Count();
    desk.List.SetSearch(u"norway"_s);
    QCOMPARE(desk.Listed(), QStringList{u"Bergen"_s});
    desk.List.SetSearch(QString());
    QCOMPARE(desk.List.Count(), before);
    desk.List.SetSearch(u"bergen"_s);
    desk.List.Load();
    QCOMPARE(desk.Listed(), QStringList{u"Bergen"_s});
    desk.List.SetBand(17.0);
    QCOMPARE(desk.Listed(), QStringList());
    desk.List.SetBand(11.0);
    QCOMPARE(desk.Listed(), QStringList{u"Bergen"_s});
}

void tst_ZoneList::ListsTheBestMatchFirst() {
    Desk desk;
    desk.Profile(u"Tokyo.ini"_s, "Tokyo", -540);
    desk.Profile(u"Bay of Tokyo.ini"_s, "Bay of Tokyo", -540);
    desk.Load(SourceMode::Windows);
    desk.List.SetSearch(u"tokyo"_s);
    QCOMPARE(desk.Listed(), (QStringList{u"Tokyo"_s, Tokyo, u"Bay of Tokyo"_s}));
    desk.List.SetSort(ZoneSort::NameDescending);
    QCOMPARE(desk.Listed(), (QStringList{u"Tokyo"_s, Tokyo, u"Bay of Tokyo"_s}));
}

void tst_ZoneList::ListsNoZoneTwice() {
    Desk desk;
    const QString tokyo = u"Tokyo"_s;
    desk.Profile(u"Tokyo.ini"_s, "Tokyo", -540);
    desk.ZoneFile(tokyo, "Time Zone:Time Zone Standard Name=Tokyo\r\n");
    desk.Load(SourceMode::Selected);
    desk.List.SetSearch(u"tokyo"_s);
    QCOMPARE(desk.Listed(), QStringList{tokyo});
    QCOMPARE(desk.List[0].ToolTipText, desk.Paths.ZoneFileFolder + u"Tokyo.ini"_s);
    QCOMPARE(desk.List.CheckedNames(), QStringList{tokyo});
}

void tst_ZoneList::KeepsChecksWhenASearchBegins() {
    Desk desk;
    desk.Load(SourceMode::Windows);
    desk.List[0].Checked = true;
    desk.List[2].Checked = false;
    desk.List.SetSearch(u"oslo"_s);
    desk.List.SetSearch(QString());
    QVERIFY(desk.List[0].Checked);
    QVERIFY(!desk.List[2].Checked);
}

void tst_ZoneList::DescribesRows() {
    Desk desk;
    desk.Load(SourceMode::Windows);
    QCOMPARE(desk.List.Tag(desk.List[0]),
             u"\r\nTokyo Standard Time is 9 hour(s) after Greenwich Standard Time\r\n\r\n"
             "Tokyo Standard Time is 9 hour(s)  before Local Time"_s);
}

void tst_ZoneList::ModelShowsRows() {
    Desk desk;
    ZoneListModel model(desk.List);
    model.Change([&] { desk.Load(SourceMode::Both); });
    QCOMPARE(model.rowCount(), 5);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole), u"Time Zone Name"_s);
    QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"GMT Time Zone"_s);
    const auto at = [&](int row, int column, int role) {
        return model.data(model.index(row, column), role);
    };
    QCOMPARE(at(3, 0, Qt::DisplayRole), Pacific);
    QCOMPARE(at(3, 1, Qt::DisplayRole), u"(GMT-05:00) Lima"_s);
    QCOMPARE(at(3, 0, Qt::ToolTipRole), desk.Paths.ProfileFolder + u"Lima.ini"_s);
    QCOMPARE(at(0, 0, Qt::ToolTipRole), QString());
    QCOMPARE(at(2, 0, Qt::CheckStateRole), static_cast<int>(Qt::Checked));
    QCOMPARE(at(0, 0, Qt::CheckStateRole), static_cast<int>(Qt::Unchecked));
    QVERIFY(!at(0, 1, Qt::CheckStateRole).isValid());
}

void tst_ZoneList::ModelChecksRows() {
    Desk desk;
    desk.Load(SourceMode::Windows);
    ZoneListModel model(desk.List);
    QList<int> told;
    model.OnChecked = [&](int position) { told += position; };
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(desk.List[1].Checked);
    QCOMPARE(told, QList<int>{1});
    QCOMPARE(changes.size(), 1);
    QVERIFY(!model.setData(model.index(1, 1), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(desk.List[1].Checked);
}

void tst_ZoneList::LoadsThousandsOfFiles() {
    Desk desk;
    for (int number = 0; number < 2000; ++number) {
        const QString name = u"Zone %1"_s.arg(number);
        desk.ZoneFile(name, "Time Zone:Time Zone Standard Name=" + name.toUtf8() + "\r\n");
    }
    desk.Load(SourceMode::Selected);
    QCOMPARE(desk.List.Count(), 2001);
    QCOMPARE(desk.List.CheckedCount(), 2001);
    desk.List.SetSearch(u"zone 1999"_s);
    QCOMPARE(desk.List.Count(), 1);
}

QTEST_GUILESS_MAIN(tst_ZoneList)
#include "tst_ZoneList.moc"
