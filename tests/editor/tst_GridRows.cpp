#include "editor/GridRows.h"

#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_GridRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KnowsRowsWithText();
    void ClearsARow();
    void ClearsTheGrid();
    void ClearsTheHeadings();
    void CopiesARow_data();
    void CopiesARow();
    void CopiesWhatBelongsToARow();
    void CopiesBehindTheEnd();
    void CopiesNothingThatIsNotThere();
    void OpensALine_data();
    void OpensALine();
    void OpensALineThatIsEmpty();
    void OpensNoLineInTheHeading();
    void OpensTheFirstLine();
    void KeepsMarksAtTheirTexts();
    void Duplicates();
    void DuplicatesNoHeading();
    void AddsRows();
    void AddsNothingElsewhere();
    void AddsDetails();
    void RemovesByName_data();
    void RemovesByName();
    void DeletesTheSelectedRows_data();
    void DeletesTheSelectedRows();
};

void tst_GridRows::KnowsRowsWithText() {
    const EditGridData grid = GridOf({u"A|B"_s, u" |\t"_s, u"|x"_s}, 2);
    QVERIFY(editor::RowHasText(grid, 0));
    QVERIFY(!editor::RowHasText(grid, 1));
    QVERIFY(editor::RowHasText(grid, 2));
    QVERIFY(!editor::RowHasText(grid, 3));
}

void tst_GridRows::ClearsARow() {
    EditGridData grid = GridOf({u"A|B"_s, u"1|a"_s, u"2|b"_s}, 2);
    grid.SetRowData(1, 5);
    grid.SetRowHeight(1, 400);
    grid.SetStruckThrough(1, true);
    QVERIFY(editor::ClearRow(grid, 1));
    QCOMPARE(RowsOf(grid), QStringList({u"|"_s, u"2|b"_s}));
    QCOMPARE(grid.RowData(1), 0);
    QCOMPARE(grid.RowHeight(1), 400);
    QVERIFY(!grid.IsStruckThrough(1));
    QVERIFY(!editor::ClearRow(grid, 3));
    QVERIFY(!editor::ClearRow(grid, -1));
}

void tst_GridRows::ClearsTheGrid() {
    EditGridData grid = GridOf({u"A|B"_s, u"1|a"_s, u"2|b"_s}, 2);
    grid.SetRowData(2, 5);
    editor::GridClear(grid);
    QCOMPARE(RowsOf(grid), QStringList({u"|"_s, u"|"_s}));
    QCOMPARE(grid.RowClipText(0), u"A\tB"_s);
    QCOMPARE(grid.RowData(2), 0);
}

void tst_GridRows::ClearsTheHeadings() {
    EditGridData grid = GridOf({u"A|B"_s, u"1|a"_s}, 2);
    editor::Clear(grid);
    QCOMPARE(RowsOf(grid), QStringList{u"|"_s});
    QCOMPARE(grid.RowClipText(0), u"\t"_s);
}

void tst_GridRows::CopiesARow_data() {
    QTest::addColumn<QString>("column0");
    QTest::addColumn<QString>("copied");
    QTest::newRow("a number") << u"7"_s << u"8"_s;
    QTest::newRow("below nothing") << u"-1"_s << u"0"_s;
    QTest::newRow("a fraction") << u"1.5"_s << u"2.5"_s;
    QTest::newRow("blanks around") << u" 9 "_s << u"10"_s;
    QTest::newRow("large") << u"999999"_s << u"1000000"_s;
    QTest::newRow("a word") << u"Key"_s << u"Key"_s;
    QTest::newRow("a number and more") << u"7a"_s << u"7a"_s;
    QTest::newRow("nothing") << QString() << QString();
}

void tst_GridRows::CopiesARow() {
    QFETCH(QString, column0);
    QFETCH(QString, copied);
    EditGridData grid = GridOf({u"A|B"_s, column0 + u"|a"_s, u"x|b"_s}, 2);
    QVERIFY(editor::CopyRow(grid, 1, 2));
    QCOMPARE(RowsOf(grid), QStringList({column0 + u"|a"_s, copied + u"|a"_s}));
}

void tst_GridRows::CopiesWhatBelongsToARow() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"x|a|"_s, u"y|b|c"_s}, 3);
    grid.SetRowData(1, 17);
    grid.SetStruckThrough(1, true);
    grid.SetRowHeight(2, 300);
    QVERIFY(editor::CopyRow(grid, 1, 2));
    QCOMPARE(RowsOf(grid), QStringList({u"x|a|"_s, u"x|a|"_s}));
    QCOMPARE(grid.RowData(2), 17);
    QVERIFY(grid.IsStruckThrough(2));
    QCOMPARE(grid.RowHeight(2), 300);
}

void tst_GridRows::CopiesBehindTheEnd() {
    EditGridData grid = GridOf({u"A"_s, u"1"_s}, 1);
    QVERIFY(editor::CopyRow(grid, 1, 3));
    QCOMPARE(RowsOf(grid), QStringList({u"1"_s, QString(), u"2"_s}));
}

void tst_GridRows::CopiesNothingThatIsNotThere() {
    EditGridData grid = GridOf({u"A"_s, u"1"_s}, 1);
    QVERIFY(!editor::CopyRow(grid, 2, 1));
    QVERIFY(!editor::CopyRow(grid, -1, 1));
    QVERIFY(!editor::CopyRow(grid, 1, -1));
    QVERIFY(!editor::CopyRow(grid, 1, 2'000'000'000));
    QCOMPARE(RowsOf(grid), QStringList{u"1"_s});
}

void tst_GridRows::OpensALine_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("moveDown");
    QTest::addColumn<int>("place");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("the first moves down")
        << 1 << true << 1 << QStringList{u"1|"_s, u"2|a"_s, u"3|b"_s, u"|"_s};
    QTest::newRow("the second moves down")
        << 2 << true << 2 << QStringList{u"1|a"_s, u"2|"_s, u"3|b"_s, u"|"_s};
    QTest::newRow("below the first")
        << 1 << false << 2 << QStringList{u"1|a"_s, u"2|"_s, u"3|b"_s, u"|"_s};
    QTest::newRow("below the second")
        << 2 << false << 3 << QStringList{u"1|a"_s, u"2|b"_s, u"3|"_s, u"|"_s};
    QTest::newRow("below the heading")
        << 0 << false << 1 << QStringList{u"1|"_s, u"2|a"_s, u"3|b"_s, u"|"_s};
    QTest::newRow("at an empty row")
        << 3 << true << 3 << QStringList{u"1|a"_s, u"2|b"_s, u"3|"_s, u"|"_s};
    QTest::newRow("behind the end")
        << 4 << false << 5 << QStringList{u"1|a"_s, u"2|b"_s, u"|"_s, u"|"_s, u"5|"_s};
}

void tst_GridRows::OpensALine() {
    EditGridData grid = GridOf({u"N|T"_s, u"1|a"_s, u"2|b"_s, u"|"_s, u"|"_s}, 2);
    QFETCH(int, row);
    QFETCH(bool, moveDown);
    grid.SetRow(row);
    QTEST(editor::InsertOneLine(grid, moveDown).value_or(-1), "place");
    QTEST(RowsOf(grid), "rows");
    QCOMPARE(grid.Row(), row);
    EditGridData full = GridOf({u"N|T"_s, u"1|a"_s, u"2| "_s}, 2);
    QCOMPARE(editor::InsertOneLine(full, true), 1);
    QCOMPARE(RowsOf(full), QStringList({u"1|"_s, u"2|a"_s, u"3| "_s}));
}

void tst_GridRows::OpensALineThatIsEmpty() {
    EditGridData grid = GridOf({u"N|T"_s, u"k|a"_s, u"|"_s}, 2);
    grid.SetRowData(1, 8);
    grid.SetStruckThrough(1, true);
    QCOMPARE(editor::InsertOneLine(grid, true), 1);
    QCOMPARE(RowsOf(grid), QStringList({u"1|"_s, u"k|a"_s}));
    QCOMPARE(grid.RowData(1), 0);
    QVERIFY(!grid.IsStruckThrough(1));
    QCOMPARE(grid.RowData(2), 8);
    QVERIFY(grid.IsStruckThrough(2));
}

void tst_GridRows::OpensNoLineInTheHeading() {
    EditGridData grid = GridOf({u"N"_s, u"1"_s}, 1);
    grid.SetRow(0);
    QVERIFY(!editor::InsertOneLine(grid, true));
    QCOMPARE(RowsOf(grid), QStringList{u"1"_s});
}

void tst_GridRows::OpensTheFirstLine() {
    EditGridData heading({1, 2, 1, 0});
    QCOMPARE(editor::InsertOneLine(heading, false), 1);
    QCOMPARE(RowsOf(heading), QStringList{u"1|"_s});
    EditGridData none({0, 1, 0, 0});
    QCOMPARE(editor::InsertOneLine(none, true), 0);
    QCOMPARE(none.Rows(), 1);
}

void tst_GridRows::KeepsMarksAtTheirTexts() {
    EditGridData grid = GridOf({u"N"_s, u"a"_s, u"b"_s, u"c"_s}, 1);
    grid.LastEditRow = 3;
    grid.ClippedRow.Source = 2;
    grid.SetRow(2);
    editor::InsertOneLine(grid, true);
    QCOMPARE(grid.LastEditRow, 4);
    QCOMPARE(grid.ClippedRow.Source, 3);
    grid.LastEditRow = 1;
    editor::InsertOneLine(grid, true);
    QCOMPARE(grid.LastEditRow, 1);
}

void tst_GridRows::Duplicates() {
    EditGridData grid = GridOf({u"N|T"_s, u"1|a"_s, u"2|b"_s}, 2);
    grid.SetRowData(1, 6);
    QCOMPARE(editor::Duplicate(grid), 2);
    QCOMPARE(RowsOf(grid), QStringList({u"1|a"_s, u"2|a"_s, u"3|b"_s}));
    QCOMPARE(grid.RowData(2), 6);
    QCOMPARE(grid.Row(), 1);
}

void tst_GridRows::DuplicatesNoHeading() {
    EditGridData grid = GridOf({u"N"_s, u"a"_s}, 1);
    grid.SetRow(0);
    QVERIFY(!editor::Duplicate(grid));
    EditGridData none({0, 1, 0, 0});
    QVERIFY(!editor::Duplicate(none));
    QCOMPARE(none.Rows(), 0);
}

void tst_GridRows::AddsRows() {
    EditGridData grid = GridOf({u"A|B"_s, u"a|1"_s}, 2);
    grid.LastEditRow = 1;
    QVERIFY(editor::AddItem(grid, u"b\t2\t3"_s));
    QCOMPARE(RowsOf(grid), QStringList({u"a|1"_s, u"b|2"_s}));
    QVERIFY(editor::AddItem(grid, u"c"_s, 1));
    QCOMPARE(RowsOf(grid), QStringList({u"c|"_s, u"a|1"_s, u"b|2"_s}));
    QCOMPARE(grid.LastEditRow, 2);
    QVERIFY(editor::AddItem(grid, u"d"_s, 4));
    QCOMPARE(RowsOf(grid), QStringList({u"c|"_s, u"a|1"_s, u"b|2"_s, u"d|"_s}));
}

void tst_GridRows::AddsNothingElsewhere() {
    EditGridData grid = GridOf({u"A"_s, u"a"_s}, 1);
    QVERIFY(!editor::AddItem(grid, u"x"_s, 0));
    QVERIFY(!editor::AddItem(grid, u"x"_s, 3));
    QVERIFY(!editor::AddItem(grid, u"x"_s, -1));
    QCOMPARE(RowsOf(grid), QStringList{u"a"_s});
    EditGridData largest({1'000'000, 1, 1, 0});
    QVERIFY(!editor::AddItem(largest, u"x"_s));
    QCOMPARE(largest.Rows(), 1'000'000);
}

void tst_GridRows::AddsDetails() {
    EditGridData grid = GridOf({u"A|B"_s, u"a|1"_s, u"|"_s, u"c|3"_s}, 2);
    QVERIFY(editor::AddRowDetail(grid, u"b\t2"_s));
    QCOMPARE(RowsOf(grid), QStringList({u"a|1"_s, u"b|2"_s, u"c|3"_s}));
    QVERIFY(editor::AddRowDetail(grid, u"d"_s));
    QCOMPARE(RowsOf(grid), QStringList({u"a|1"_s, u"b|2"_s, u"c|3"_s, u"d|"_s}));
}

void tst_GridRows::RemovesByName_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("removed");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("the first of two")
        << u"b"_s << true << QStringList{u"a|1"_s, u"b|3"_s, u"N|4"_s};
    QTest::newRow("no such name") << u"x"_s << false
                                  << QStringList{u"a|1"_s, u"b|2"_s, u"b|3"_s, u"N|4"_s};
    QTest::newRow("another letter case")
        << u"B"_s << false << QStringList{u"a|1"_s, u"b|2"_s, u"b|3"_s, u"N|4"_s};
    QTest::newRow("a heading's name")
        << u"N"_s << true << QStringList{u"a|1"_s, u"b|2"_s, u"b|3"_s};
    QTest::newRow("a value") << u"1"_s << false
                             << QStringList{u"a|1"_s, u"b|2"_s, u"b|3"_s, u"N|4"_s};
}

void tst_GridRows::RemovesByName() {
    EditGridData grid = GridOf({u"N|V"_s, u"a|1"_s, u"b|2"_s, u"b|3"_s, u"N|4"_s}, 2);
    QFETCH(QString, name);
    QTEST(editor::RemoveItemByName(grid, name), "removed");
    QTEST(RowsOf(grid), "rows");
    QCOMPARE(grid.TextMatrix(0, 0), u"N"_s);
}

void tst_GridRows::DeletesTheSelectedRows_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rowSel");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("one") << 2 << 2 << QStringList{u"a"_s, u"c"_s, u"d"_s, QString()};
    QTest::newRow("two") << 2 << 3 << QStringList{u"a"_s, u"d"_s, QString(), QString()};
    QTest::newRow("upwards") << 3 << 2 << QStringList{u"a"_s, u"d"_s, QString(), QString()};
    QTest::newRow("the last") << 4 << 4 << QStringList{u"a"_s, u"b"_s, u"c"_s, QString()};
    QTest::newRow("all") << 1 << 4 << QStringList{QString(), QString(), QString(), QString()};
    QTest::newRow("with the heading") << 0 << 1 << QStringList{u"b"_s, u"c"_s, u"d"_s, QString()};
    QTest::newRow("the heading alone") << 0 << 0 << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
}

void tst_GridRows::DeletesTheSelectedRows() {
    EditGridData grid = GridOf({u"N"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}, 1);
    QFETCH(int, row);
    QFETCH(int, rowSel);
    grid.SetRow(row);
    grid.SetRowSel(rowSel);
    editor::DeleteGridRows(grid);
    QTEST(RowsOf(grid), "rows");
    QCOMPARE(grid.Row(), std::min(row, rowSel));
    QCOMPARE(grid.RowSel(), std::min(row, rowSel));
    QCOMPARE(grid.TextMatrix(0, 0), u"N"_s);
    EditGridData none({0, 0, 0, 0});
    editor::DeleteGridRows(none);
    QCOMPARE(none.Rows(), 0);
}

QTEST_GUILESS_MAIN(tst_GridRows)
#include "tst_GridRows.moc"
