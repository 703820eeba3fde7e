#include "editor/PropertyRecords.h"

#include <QTest>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using editor::PropertyRecords;
using editor::RowCommit;

namespace {

/// Records from lines "Name=value", without a gap.
ClockProperties Properties(const QStringList& lines) {
    ClockProperties properties;
    for (const QString& line : lines) {
        mduLib::AppendProperty({}, line.section(u'=', 0, 0), line.section(u'=', 1), properties);
    }
    return properties;
}

QStringList Lines(const ClockProperties& properties) {
    QStringList lines;
    for (int row = 1; row <= properties.UpperBound(); ++row) {
        lines += properties[row].Name + u'=' + properties[row].Value;
    }
    return lines;
}

}  // namespace

class tst_PropertyRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CommitsCanBeUndone();
    void ACommitWithoutAChangeIsNoCommand();
    void ARecordIsMeantByItsNumber();
    void CommitsMergeWithinAVisit();
    void CommitsThatComeBackLeaveNoCommand();
    void CommitsOfTwoRecordsStayApart();
    void AWholeValueStandsAlone();
    void IsDirtyWhileItDiffersFromWhatWasWritten();
    void ReplacesAll();
    void QuietValuesCantBeUndone();
    void QuietValuesSurviveAnUndoneList();
    void AnEditedPlaceIsUndoneWithItsList();
    void FollowsItsFile();
    void FollowsNoFileOfOtherKeys();
    void TellsOfChanges();
    void TakesALongValue();
};

void tst_PropertyRecords::CommitsCanBeUndone() {
    PropertyRecords records(Properties({u"Colour=Red,Red,Green"_s, u"Size=3"_s}));
    QCOMPARE(records.Commit(1, u"Green"_s), (RowCommit{u"Green"_s, true}));
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=Green,Red,Green"_s, u"Size=3"_s}));
    QCOMPARE(records.Undo().undoText(), u"Change Colour"_s);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=Red,Red,Green"_s, u"Size=3"_s}));
    records.Undo().redo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=Green,Red,Green"_s, u"Size=3"_s}));
}

void tst_PropertyRecords::ACommitWithoutAChangeIsNoCommand() {
    PropertyRecords records(Properties({u"Colour=Red,Red,Green"_s}));
    QCOMPARE(records.Commit(1, u"Red"_s), (RowCommit{u"Red"_s, false}));
    QCOMPARE(records.Commit(1, QString()), (RowCommit{u"Red"_s, false}));
    QCOMPARE(records.Commit(2, u"Blue"_s), (RowCommit{u"Blue"_s, false}));
    QCOMPARE(records.Commit(0, u"Blue"_s), (RowCommit{u"Blue"_s, false}));
    QCOMPARE(records.Undo().count(), 0);
    QCOMPARE(Lines(records.Now()), QStringList{u"Colour=Red,Red,Green"_s});
}

void tst_PropertyRecords::ARecordIsMeantByItsNumber() {
    PropertyRecords records(Properties({u"Colour=Red"_s, u"Colour=Green"_s}));
    records.Commit(2, u"Blue"_s);
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=Red"_s, u"Colour=Blue"_s}));
    records.Commit(1, u"White"_s);
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=White"_s, u"Colour=Blue"_s}));
    records.Undo().undo();
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Colour=Red"_s, u"Colour=Green"_s}));
}

void tst_PropertyRecords::CommitsMergeWithinAVisit() {
    PropertyRecords records(Properties({u"Size=1"_s}));
    records.Commit(1, u"2"_s);
    records.Commit(1, u"3"_s);
    QCOMPARE(records.Undo().count(), 1);
    records.BeginVisit();
    records.Commit(1, u"4"_s);
    QCOMPARE(records.Undo().count(), 2);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Size=3"_s});
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Size=1"_s});
    records.Undo().redo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Size=3"_s});
}

void tst_PropertyRecords::CommitsThatComeBackLeaveNoCommand() {
    PropertyRecords records(Properties({u"Size=1"_s}));
    records.Commit(1, u"2"_s);
    records.Commit(1, u"1"_s);
    QCOMPARE(records.Undo().count(), 0);
    QVERIFY(!records.IsDirty());
}

void tst_PropertyRecords::CommitsOfTwoRecordsStayApart() {
    PropertyRecords records(Properties({u"Size=1"_s, u"Width=1"_s}));
    records.Commit(1, u"2"_s);
    records.Commit(2, u"2"_s);
    QCOMPARE(records.Undo().count(), 2);
    QCOMPARE(records.Undo().undoText(), u"Change Width"_s);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Size=2"_s, u"Width=1"_s}));
}

void tst_PropertyRecords::AWholeValueStandsAlone() {
    PropertyRecords records(Properties({u"Colour=Red,Red"_s}));
    records.PutValue(1, u"Red,Red"_s, u"Nothing"_s);
    records.PutValue(2, u"Red"_s, u"Nowhere"_s);
    QCOMPARE(records.Undo().count(), 0);
    records.PutValue(1, u"Blue,Blue,Red"_s, u"First"_s);
    records.PutValue(1, u"White"_s, u"Second"_s);
    QCOMPARE(records.Undo().count(), 2);
    QCOMPARE(records.Undo().undoText(), u"Second"_s);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Colour=Blue,Blue,Red"_s});
}

void tst_PropertyRecords::IsDirtyWhileItDiffersFromWhatWasWritten() {
    PropertyRecords records(Properties({u"Size=1"_s}));
    QVERIFY(!records.IsDirty());
    records.Commit(1, u"2"_s);
    QVERIFY(records.IsDirty());
    records.MarkWritten();
    QVERIFY(!records.IsDirty());
    QCOMPARE(records.Undo().count(), 1);
    records.Undo().undo();
    QVERIFY(records.IsDirty());
    QCOMPARE(Lines(records.Written()), QStringList{u"Size=2"_s});
    records.Undo().redo();
    QVERIFY(!records.IsDirty());
}

void tst_PropertyRecords::ReplacesAll() {
    PropertyRecords records(Properties({u"Size=1"_s}));
    records.Replace(Properties({u"Size=1"_s}), u"Reload"_s);
    QCOMPARE(records.Undo().count(), 0);
    records.Replace(Properties({u"Width=2"_s, u"Size=4"_s}), u"Reload"_s);
    QCOMPARE(records.Undo().undoText(), u"Reload"_s);
    QCOMPARE(Lines(records.Now()), (QStringList{u"Width=2"_s, u"Size=4"_s}));
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Size=1"_s});
}

void tst_PropertyRecords::QuietValuesCantBeUndone() {
    PropertyRecords records(Properties({u"Window Top=1,1,2"_s}));
    records.PutQuietly(u"Window Top"_s, u"900"_s);
    QCOMPARE(Lines(records.Now()), QStringList{u"Window Top=900,1,2"_s});
    QVERIFY(!records.IsDirty());
    QCOMPARE(records.Undo().count(), 0);
    records.PutQuietly(u"Window State"_s, u"Normal"_s);
    QCOMPARE(mduLib::GetPropertyRaw(u"Window State"_s, records.Now()), u"Normal"_s);
    QVERIFY(!records.IsDirty());
    records.DropQuietly(u"Window Top"_s);  // the file's own
    QCOMPARE(records.Now().UpperBound(), 3);
    records.DropQuietly(u"Window State"_s);
    QCOMPARE(records.Now().UpperBound(), 1);
    QVERIFY(!records.IsDirty());
    records.DropQuietly(u"Window Top"_s);
    QCOMPARE(Lines(records.Now()), QStringList{u"Window Top=900,1,2"_s});
}

void tst_PropertyRecords::QuietValuesSurviveAnUndoneList() {
    PropertyRecords records(Properties({u"Window Top=1"_s, u"Size=1"_s}));
    records.Replace(Properties({u"Window Top=1"_s, u"Size=2"_s}), u"Refresh"_s);
    records.PutQuietly(u"Window Top"_s, u"900"_s);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Window Top=900"_s, u"Size=1"_s}));
    records.PutQuietly(u"Window Top"_s, u"700"_s);
    records.Undo().redo();
    QCOMPARE(Lines(records.Now()), (QStringList{u"Window Top=700"_s, u"Size=2"_s}));
}

void tst_PropertyRecords::AnEditedPlaceIsUndoneWithItsList() {
    PropertyRecords records(Properties({u"Window Top=1"_s}));
    records.Replace(Properties({u"Window Top=-1"_s}), u"Refresh"_s);
    QCOMPARE(Lines(records.Now()), QStringList{u"Window Top=-1"_s});
    records.PutQuietly(u"Window Top"_s, u"900"_s);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Window Top=1"_s});
}

void tst_PropertyRecords::FollowsItsFile() {
    ClockProperties withGap = Properties({u"Size=1"_s, u"Width=1"_s, u"Name=a"_s});
    withGap.Resize(5);
    withGap[5] = {{}, u"Last"_s, u"x"_s};
    PropertyRecords records(withGap);
    records.Commit(2, u"7"_s);
    QVERIFY(records.Follow(Properties({u"Size=2"_s, u"Width=3"_s, u"Name=a"_s, u"Last=y"_s})));
    QCOMPARE(Lines(records.Now()),
             (QStringList{u"Size=2"_s, u"Width=7"_s, u"Name=a"_s, u"="_s, u"Last=y"_s}));
    QCOMPARE(Lines(records.Written()),
             (QStringList{u"Size=2"_s, u"Width=3"_s, u"Name=a"_s, u"="_s, u"Last=y"_s}));
    QVERIFY(records.IsDirty());
}

void tst_PropertyRecords::FollowsNoFileOfOtherKeys() {
    PropertyRecords records(Properties({u"Size=1"_s, u"Width=1"_s}));
    QVERIFY(!records.Follow(Properties({u"Size=2"_s})));
    QVERIFY(!records.Follow(Properties({u"Width=2"_s, u"Size=2"_s})));
    QVERIFY(!records.Follow(Properties({u"Size=2"_s, u"Width=2"_s, u"Name=a"_s})));
    ClockProperties other = Properties({u"Size=2"_s, u"Width=2"_s});
    other[1].Category = u"Clock"_s;
    QVERIFY(!records.Follow(other));
    QCOMPARE(Lines(records.Now()), (QStringList{u"Size=1"_s, u"Width=1"_s}));
    QCOMPARE(Lines(records.Written()), (QStringList{u"Size=1"_s, u"Width=1"_s}));
}

void tst_PropertyRecords::TellsOfChanges() {
    PropertyRecords records(Properties({u"Size=1"_s, u"Window Top=1"_s}));
    QList<int> told;
    records.Watch([&told](int record) { told += record; });
    records.Commit(1, u"2"_s);
    records.Commit(1, u"2"_s);
    records.Undo().undo();
    records.PutQuietly(u"Window Top"_s, u"5"_s);
    records.PutQuietly(u"New"_s, u"5"_s);
    records.Replace(Properties({u"Size=8"_s}), u"Reload"_s);
    QCOMPARE(told, (QList<int>{1, 1, 2, 0, 0}));
}

void tst_PropertyRecords::TakesALongValue() {
    PropertyRecords records(Properties({u"Text=a"_s}));
    const QString text(200000, u'x');
    QCOMPARE(records.Commit(1, text), (RowCommit{text, true}));
    QCOMPARE(records.Now()[1].Value.size(), 200000);
    records.Undo().undo();
    QCOMPARE(Lines(records.Now()), QStringList{u"Text=a"_s});
}

QTEST_GUILESS_MAIN(tst_PropertyRecords)
#include "tst_PropertyRecords.moc"
