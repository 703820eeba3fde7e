#include "editor/GridLines.h"

#include <QTest>

#include "editor/GridOf.h"
#include "editor/GridRows.h"
#include "editor/GridSort.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_GridLines : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NumbersRows();
    void SetsALinesNumber();
    void SetsTheNumberOfTheLastEdit();
    void StrikesARowThrough();
    void StrikesNothingThrough();
    void ClosesGaps_data();
    void ClosesGaps();
    void ClosesNoGapsOfABlock();
    void LeavesTheHeadings();
    void MovesARowWhole();
    void TellsTheSelectedText();
    void AddsUp_data();
    void AddsUp();
    void SelectsRows();
    void ColoursTexts();
    void ColoursGoWithTheirRow();
    void LocksRows();
};

void tst_GridLines::NumbersRows() {
    EditGridData grid = GridOf({u"N|T"_s, u"7|a"_s, u"|b"_s, u"x| "_s, u" |"_s, u"9|e"_s}, 2);
    editor::RefreshItemNumber(grid);
    QCOMPARE(RowsOf(grid), QStringList({u"1|a"_s, u"2|b"_s, u"3| "_s, u" |"_s, u"9|e"_s}));
    QCOMPARE(grid.TextMatrix(0, 0), u"N"_s);
}

void tst_GridLines::SetsALinesNumber() {
    EditGridData grid = GridOf({u"N|T"_s, u"1|a"_s}, 2);
    QVERIFY(editor::SetLineNumber(grid, 1, u"*"_s));
    QVERIFY(!editor::SetLineNumber(grid, 2, u"*"_s));
    QCOMPARE(RowsOf(grid), QStringList{u"*|a"_s});
}

void tst_GridLines::SetsTheNumberOfTheLastEdit() {
    EditGridData grid = GridOf({u"N"_s, u"1"_s, u"2"_s}, 1);
    QVERIFY(!editor::SetLastLineNumber(grid, u"*"_s));
    QCOMPARE(editor::LastLineNumber(grid), QString());
    grid.LastEditRow = 2;
    QCOMPARE(editor::LastLineNumber(grid), u"2"_s);
    QVERIFY(editor::SetLastLineNumber(grid, u"*"_s));
    QCOMPARE(editor::LastLineNumber(grid), u"*"_s);
    grid.LastEditRow = 3;
    QVERIFY(!editor::SetLastLineNumber(grid, u"!"_s));
    QCOMPARE(RowsOf(grid), QStringList({u"1"_s, u"*"_s}));
    QCOMPARE(grid.TextMatrix(0, 0), u"N"_s);
}

void tst_GridLines::StrikesARowThrough() {
    EditGridData grid({4, 3, 1, 0});
    grid.SetRow(2);
    grid.SetCol(1);
    QVERIFY(!editor::IsRowStrikeThrough(grid));
    QVERIFY(editor::SetRowStrikeThrough(grid, true));
    QVERIFY(editor::IsRowStrikeThrough(grid));
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.ColSel(), 2);
    QCOMPARE(grid.RowSel(), 2);
    QVERIFY(!grid.IsStruckThrough(1));
    QVERIFY(!grid.IsStruckThrough(3));
    QVERIFY(editor::ToggleRowStrikeThrough(grid));
    QVERIFY(!editor::IsRowStrikeThrough(grid));
    QVERIFY(editor::ToggleRowStrikeThrough(grid));
    QVERIFY(editor::IsRowStrikeThrough(grid));
    QVERIFY(editor::SetRowStrikeThrough(grid, false));
    QVERIFY(!editor::IsRowStrikeThrough(grid));
}

void tst_GridLines::StrikesNothingThrough() {
    EditGridData none({0, 0, 0, 0});
    QVERIFY(!editor::SetRowStrikeThrough(none, true));
    QVERIFY(!editor::IsRowStrikeThrough(none));
}

void tst_GridLines::ClosesGaps_data() {
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("closed");
    QTest::newRow("no gap") << QStringList{u"1|a"_s, u"2|b"_s} << QStringList{u"1|a"_s, u"2|b"_s};
    QTest::newRow("one") << QStringList{u"1|a"_s, u"|"_s, u"3|c"_s}
                         << QStringList{u"1|a"_s, u"3|c"_s, u"|"_s};
    QTest::newRow("blanks are a gap")
        << QStringList{u"|  "_s, u"2|b"_s} << QStringList{u"2|b"_s, u"|"_s};
    QTest::newRow("two behind each other")
        << QStringList{u"|"_s, u"|"_s, u"3|c"_s, u"|"_s, u"5|e"_s}
        << QStringList{u"3|c"_s, u"5|e"_s, u"|"_s, u"|"_s, u"|"_s};
    QTest::newRow("the gap's other columns go")
        << QStringList{u"1|a"_s, u"2|"_s, u"3|c"_s} << QStringList{u"1|a"_s, u"3|c"_s, u"|"_s};
    QTest::newRow("a gap at the end stays")
        << QStringList{u"1|a"_s, u"2|"_s} << QStringList{u"1|a"_s, u"2|"_s};
    QTest::newRow("nothing but gaps")
        << QStringList{u"1|"_s, u"2|"_s} << QStringList{u"1|"_s, u"2|"_s};
}

void tst_GridLines::ClosesGaps() {
    QFETCH(QStringList, rows);
    EditGridData grid = GridOf(QStringList{u"N|T"_s} + rows, 2);
    grid.SetCol(1);
    editor::CompactColumn(grid);
    QTEST(RowsOf(grid), "closed");
}

void tst_GridLines::ClosesNoGapsOfABlock() {
    EditGridData grid = GridOf({u"T"_s, QString(), u"b"_s}, 1);
    grid.SetRowSel(2);
    editor::CompactColumn(grid);
    QCOMPARE(RowsOf(grid), QStringList({QString(), u"b"_s}));
}

void tst_GridLines::LeavesTheHeadings() {
    EditGridData grid = GridOf({u"T"_s, QString(), QString(), u"b"_s}, 1);
    grid.SetFixedRows(2);
    editor::CompactColumn(grid);
    QCOMPARE(RowsOf(grid), QStringList({QString(), u"b"_s, QString()}));
    EditGridData unfixed = GridOf({QString(), u"a"_s}, 1);
    unfixed.SetFixedRows(0);
    editor::CompactColumn(unfixed);
    QCOMPARE(RowsOf(unfixed), QStringList{u"a"_s});
}

void tst_GridLines::MovesARowWhole() {
    EditGridData grid = GridOf({u"A|B"_s, u"|"_s, u"|b"_s}, 2);
    grid.SetRowData(2, 4);
    grid.SetStruckThrough(2, true);
    grid.LastEditRow = 2;
    grid.SetCol(1);
    editor::CompactColumn(grid);
    QCOMPARE(grid.RowData(1), 4);
    QVERIFY(grid.IsStruckThrough(1));
    QCOMPARE(grid.RowData(2), 0);
    QVERIFY(!grid.IsStruckThrough(2));
    QCOMPARE(grid.LastEditRow, 1);
}

void tst_GridLines::TellsTheSelectedText() {
    EditGridData grid = GridOf({u"A|B"_s, u"a|b"_s, u"c|d"_s}, 2);
    QCOMPARE(editor::GetHightLightValue(grid), u"a"_s);
    grid.SetRowSel(2);
    grid.SetColSel(1);
    QCOMPARE(editor::GetHightLightValue(grid), u"d"_s);
}

void tst_GridLines::AddsUp_data() {
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<double>("total");
    QTest::newRow("whole numbers") << QStringList{u"5"_s, u"1"_s, u"2"_s} << 3.0;
    QTest::newRow("fractions") << QStringList{u"T"_s, u"1.5"_s, u"-0.25"_s} << 1.25;
    QTest::newRow("texts count nothing")
        << QStringList{u"T"_s, u"2"_s, u"3 kg"_s, QString(), u" 4 "_s} << 6.0;
    QTest::newRow("nothing") << QStringList{u"5"_s} << 0.0;
}

void tst_GridLines::AddsUp() {
    QFETCH(QStringList, cells);
    const EditGridData grid = GridOf(cells, 1);
    QTEST(editor::ColTotal(grid, 0), "total");
    QCOMPARE(editor::ColTotal(grid, 1), 0.0);
    QCOMPARE(editor::ColTotal(grid, -1), 0.0);
}

void tst_GridLines::SelectsRows() {
    EditGridData grid({4, 3, 1, 1});
    QVERIFY(editor::SelectOneRow(grid, 2));
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.ColSel(), 2);
    QVERIFY(!editor::SelectOneRow(grid, 4));
    editor::SelectGridAll(grid);
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.Col(), 1);
    QCOMPARE(grid.RowSel(), 3);
    QCOMPARE(grid.ColSel(), 2);
    editor::SelectGridNone(grid);
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.RowSel(), 1);
    QCOMPARE(grid.Col(), 1);
    QCOMPARE(grid.ColSel(), 1);
}

void tst_GridLines::ColoursTexts() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"1|2|3"_s, u"4|5|6"_s}, 3);
    QCOMPARE(grid.CellForeColor(1, 1), editor::NoForeColor);
    QVERIFY(grid.SetCellForeColor(1, 1, 0x0000FF));
    QCOMPARE(grid.CellForeColor(1, 1), 255);
    QCOMPARE(grid.CellForeColor(1, 0), -1);
    QCOMPARE(grid.CellForeColor(1, 2), -1);
    QVERIFY(!grid.SetCellForeColor(3, 0, 1));
    QVERIFY(!grid.SetCellForeColor(1, 3, 1));
    QVERIFY(editor::SetRowForeColor(grid, 2, 7));
    QCOMPARE(grid.CellForeColor(2, 0), 7);
    QCOMPARE(grid.CellForeColor(2, 2), 7);
    QVERIFY(!editor::SetRowForeColor(grid, 3, 7));
    grid.SetRow(1);
    grid.SetCol(1);
    grid.SetRowSel(2);
    grid.SetColSel(2);
    editor::SetCellDefault(grid);
    QCOMPARE(grid.CellForeColor(1, 1), -1);
    QCOMPARE(grid.CellForeColor(2, 2), -1);
    QCOMPARE(grid.CellForeColor(2, 0), 7);
    grid.SetRow(0);
    grid.SetRowSel(1);
    editor::SetSelectionForeColor(grid, 9);
    QCOMPARE(grid.CellForeColor(0, 1), -1);
    QCOMPARE(grid.CellForeColor(1, 1), 9);
}

void tst_GridLines::ColoursGoWithTheirRow() {
    EditGridData grid = GridOf({u"A"_s, u"b"_s, u"a"_s}, 1);
    grid.SetCellForeColor(1, 0, 5);
    editor::Sort(grid, 7);
    QCOMPARE(grid.CellForeColor(1, 0), -1);
    QCOMPARE(grid.CellForeColor(2, 0), 5);
    editor::ClearRow(grid, 2);
    QCOMPARE(grid.CellForeColor(2, 0), -1);
}

void tst_GridLines::LocksRows() {
    EditGridData grid = GridOf({u"A"_s, u"b"_s, u"a"_s}, 1);
    QVERIFY(grid.IsRowEditable(1));
    QVERIFY(grid.SetEditableRow(1, false));
    QVERIFY(!grid.IsRowEditable(1));
    QVERIFY(grid.IsRowEditable(2));
    QVERIFY(grid.SetEditableRow(1, true));
    QVERIFY(grid.IsRowEditable(1));
    grid.SetStruckThrough(1, true);
    QVERIFY(!grid.IsRowEditable(1));
    QVERIFY(!grid.SetEditableRow(3, false));
}

QTEST_GUILESS_MAIN(tst_GridLines)
#include "tst_GridLines.moc"
