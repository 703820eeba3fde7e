#include "timers/ActionList.h"

#include <QTest>

#include "timers/ActionDesk.h"

using namespace Qt::StringLiterals;

namespace {

struct ListDesk : ActionDesk {
    timers::ActionList List{Context()};

    /// The values behind the separator.
    QStringList Programs() const {
        QStringList values;
        for (std::size_t entry = 7; entry < List.Entries().size(); ++entry) {
            values += List.Entries()[entry].Value;
        }
        return values;
    }
    QByteArray File() const { return Machine.ReadFile(u"Action.txt"_s); }
};

}  // namespace

class tst_ActionList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BuildsTheMenu();
    void ReadsPrograms_data();
    void ReadsPrograms();
    void LeavesTheFileAloneOnReading();
    void ReadsWithoutAFile();
    void AddsPrograms();
    void ListsTheNewestTwice();
    void LeavesAListedProgramInPlace();
    void TurnsTheOrderAtEachSave();
    void KeepsPathsAsFilesDo();
    void KeepsTheMenuWhenTheFileCannotBeWritten();
    void FillsAnew();
    void OffersMinutes_data();
    void OffersMinutes();
};

void tst_ActionList::BuildsTheMenu() {
    ListDesk desk;
    desk.List.FillActionMenu();
    const QStringList expected = {u"None"_s,
                                  u"Log Off"_s,
                                  u"Normal Shutdown"_s,
                                  u"Reboot"_s,
                                  u"Forced Shutdown"_s,
                                  u"Lock Workstation"_s,
                                  u"-"_s,
                                  u"More"_s};
    QStringList captions, values;
    for (const timers::ActionEntry& entry : desk.List.Entries()) {
        captions += entry.Caption;
        values += entry.Value;
    }
    QCOMPARE(captions, expected);
    QCOMPARE(values, expected);
}

void tst_ActionList::ReadsPrograms_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("programs");
    QTest::newRow("empty") << ""_ba << QStringList{u"More"_s};
    QTest::newRow("one") << "a,\r\n"_ba << QStringList{u"a"_s, u"More"_s};
    QTest::newRow("without a comma") << "a\r\n"_ba << QStringList{u"a"_s, u"More"_s};
    QTest::newRow("without a line end") << "a"_ba << QStringList{u"a"_s, u"More"_s};
    QTest::newRow("three") << "a,b,c,\r\n"_ba << QStringList{u"c"_s, u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("four") << "a,b,c,d,\r\n"_ba << QStringList{u"d"_s, u"c"_s, u"b"_s, u"More"_s};
    QTest::newRow("two lines") << "a,b\r\nc\n"_ba << QStringList{u"c"_s, u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("empty pieces") << ",,a,,b,,\r\n\r\n,\r\n"_ba
                                  << QStringList{u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("blanks around a line")
        << "  a,b  \r\n   \r\n"_ba << QStringList{u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("the newest again")
        << "a,b,b,\r\n"_ba << QStringList{u"b"_s, u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("an older again") << "a,b,a,\r\n"_ba << QStringList{u"b"_s, u"a"_s, u"More"_s};
    QTest::newRow("a path") << "\\usr\\bin\\edit,\r\n"_ba
                            << QStringList{u"/usr/bin/edit"_s, u"More"_s};
    QTest::newRow("signs") << "a=b@c#d,\r\n"_ba << QStringList{u"a=b@c#d"_s, u"More"_s};
}

void tst_ActionList::ReadsPrograms() {
    QFETCH(QByteArray, content);
    ListDesk desk;
    desk.Machine.WriteFile(u"Action.txt"_s, content);
    desk.List.FillActionMenu();
    QTEST(desk.Programs(), "programs");
}

void tst_ActionList::LeavesTheFileAloneOnReading() {
    ListDesk desk;
    desk.Machine.WriteFile(u"Action.txt"_s, "a,b,c,d\n");
    desk.List.FillActionMenu();
    QCOMPARE(desk.Machine.Files.Writes, QStringList());
    QCOMPARE(desk.File(), QByteArray("a,b,c,d\n"));
}

void tst_ActionList::ReadsWithoutAFile() {
    ListDesk desk;
    desk.List.FillActionMenu();
    QCOMPARE(desk.Programs(), QStringList{u"More"_s});
    desk.Machine.WriteFile(u"Action.txt"_s, "a,");
    desk.Machine.Files.Unreadable = QStringList{desk.Module.Paths.ActionFile};
    desk.List.FillActionMenu();
    QCOMPARE(desk.Programs(), QStringList{u"More"_s});
}

void tst_ActionList::AddsPrograms() {
    ListDesk desk;
    desk.List.FillActionMenu();
    desk.List.AddActionProgram(u"a"_s);
    QCOMPARE(desk.Programs(), QStringList({u"a"_s, u"More"_s}));
    QCOMPARE(desk.File(), QByteArray("a,\r\n"));
    desk.List.AddActionProgram(u"b"_s);
    desk.List.AddActionProgram(u"c"_s);
    QCOMPARE(desk.Programs(), QStringList({u"c"_s, u"b"_s, u"a"_s, u"More"_s}));
    QCOMPARE(desk.List.Entries().size(), std::size_t{11});
    desk.List.AddActionProgram(u"d"_s);
    QCOMPARE(desk.Programs(), QStringList({u"d"_s, u"c"_s, u"b"_s, u"More"_s}));
    QCOMPARE(desk.File(), QByteArray("d,c,b,\r\n"));
    QCOMPARE(desk.List.Entries()[7], (timers::ActionEntry{u"d"_s, u"d"_s}));
    QCOMPARE(desk.List.Entries()[10], (timers::ActionEntry{u"More"_s, u"More"_s}));
}

void tst_ActionList::ListsTheNewestTwice() {
    ListDesk desk;
    desk.List.FillActionMenu();
    desk.List.AddActionProgram(u"a"_s);
    desk.List.AddActionProgram(u"a"_s);
    QCOMPARE(desk.Programs(), QStringList({u"a"_s, u"a"_s, u"More"_s}));
    QCOMPARE(desk.File(), QByteArray("a,a,\r\n"));
    desk.List.AddActionProgram(u"a"_s);
    QCOMPARE(desk.Programs(), QStringList({u"a"_s, u"a"_s, u"More"_s}));
}

void tst_ActionList::LeavesAListedProgramInPlace() {
    ListDesk desk;
    desk.List.FillActionMenu();
    for (const QString& program : {u"a"_s, u"b"_s, u"c"_s}) {
        desk.List.AddActionProgram(program);
    }
    desk.Machine.Files.Writes.clear();
    desk.List.AddActionProgram(u"a"_s);
    desk.List.AddActionProgram(u"b"_s);
    QCOMPARE(desk.Programs(), QStringList({u"c"_s, u"b"_s, u"a"_s, u"More"_s}));
    QCOMPARE(desk.Machine.Files.Writes, QStringList());
}

void tst_ActionList::TurnsTheOrderAtEachSave() {
    ListDesk desk;
    desk.Machine.WriteFile(u"Action.txt"_s, "a,b,\r\n");
    desk.List.FillActionMenu();
    QCOMPARE(desk.Programs(), QStringList({u"b"_s, u"a"_s, u"More"_s}));
    desk.List.AddActionProgram(u"c"_s);
    QCOMPARE(desk.File(), QByteArray("c,b,a,\r\n"));
    desk.List.FillActionMenu();
    QCOMPARE(desk.Programs(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"More"_s}));
    desk.List.AddActionProgram(u"d"_s);
    QCOMPARE(desk.File(), QByteArray("d,a,b,\r\n"));
}

void tst_ActionList::KeepsPathsAsFilesDo() {
    ListDesk desk;
    desk.List.FillActionMenu();
    desk.List.AddActionProgram(u"/opt/Größe/x"_s);
    QCOMPARE(desk.Programs(), QStringList({u"/opt/Größe/x"_s, u"More"_s}));
    QCOMPARE(QString::fromUtf8(desk.File()), u"\\opt\\Größe\\x,\r\n"_s);
}

void tst_ActionList::KeepsTheMenuWhenTheFileCannotBeWritten() {
    ListDesk desk;
    desk.Machine.WriteFile(u"Action.txt"_s, "a,\r\n");
    desk.List.FillActionMenu();
    desk.Machine.Files.Unwritable = QStringList{desk.Module.Paths.ActionFile};
    desk.List.AddActionProgram(u"b"_s);
    QCOMPARE(desk.Programs(), QStringList({u"b"_s, u"a"_s, u"More"_s}));
    QCOMPARE(desk.File(), QByteArray("a,\r\n"));
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_ActionList::FillsAnew() {
    ListDesk desk;
    desk.Machine.WriteFile(u"Action.txt"_s, "a,b,\r\n");
    desk.List.FillActionMenu();
    desk.List.FillActionMenu();
    QCOMPARE(desk.Programs(), QStringList({u"b"_s, u"a"_s, u"More"_s}));
}

void tst_ActionList::OffersMinutes_data() {
    using Minutes = std::vector<int>;
    QTest::addColumn<int>("left");
    QTest::addColumn<Minutes>("minutes");
    QTest::newRow("2 left") << 2 << Minutes{4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    QTest::newRow("none left") << 0 << Minutes{6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    QTest::newRow("7 left") << 7 << Minutes{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("8 left") << 8 << Minutes{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("an hour left") << 60 << Minutes{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
}

void tst_ActionList::OffersMinutes() {
    using Minutes = std::vector<int>;
    QFETCH(int, left);
    QFETCH(Minutes, minutes);
    QCOMPARE(timers::ActionTimes(left), minutes);
}

QTEST_GUILESS_MAIN(tst_ActionList)
#include "tst_ActionList.moc"
