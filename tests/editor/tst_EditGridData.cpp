#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;
using editor::GridSize;

class tst_EditGridData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsAtTheFirstFreeCell_data();
    void BeginsAtTheFirstFreeCell();
    void RefusesSizes_data();
    void RefusesSizes();
    void KeepsTexts();
    void ReadsNothingOutsideItself();
    void CountsCellsAlongTheRows();
    void KeepsWhatARowHolds();
    void RefusesWhatARowCannotHold();
    void KeepsTheHeightWhereARowIsPut();
    void GrowsAndShrinks();
    void KeepsItsHeadings();
    void FixesWhatItHas();
    void ForgetsMarksOfRowsThatWentAtTheEnd();
    void ShrinksByColumns();
    void RemovesARow();
    void RemovesNoHeading();
    void StaysWithItsRowsOnRemoval();
    void ForgetsWhatStoodAtARemovedRow();
    void ReordersRows();
    void FollowsAMove();
    void HoldsNothing();
};

void tst_EditGridData::BeginsAtTheFirstFreeCell_data() {
    QTest::addColumn<GridSize>("size");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::newRow("headings") << GridSize{4, 3, 2, 1} << 2 << 1;
    QTest::newRow("no headings") << GridSize{4, 3, 0, 0} << 0 << 0;
    QTest::newRow("headings alone") << GridSize{2, 2, 2, 2} << 1 << 1;
    QTest::newRow("nothing") << GridSize{0, 0, 0, 0} << 0 << 0;
}

void tst_EditGridData::BeginsAtTheFirstFreeCell() {
    QFETCH(GridSize, size);
    const EditGridData grid(size);
    QCOMPARE(grid.Rows(), size.Rows);
    QCOMPARE(grid.Cols(), size.Cols);
    QTEST(grid.Row(), "row");
    QTEST(grid.Col(), "col");
    QTEST(grid.RowSel(), "row");
    QTEST(grid.ColSel(), "col");
}

void tst_EditGridData::RefusesSizes_data() {
    QTest::addColumn<GridSize>("size");
    QTest::addColumn<bool>("possible");
    QTest::newRow("the most") << GridSize{1'000'000, 1'000, 0, 0} << true;
    QTest::newRow("too many rows") << GridSize{1'000'001, 1, 0, 0} << false;
    QTest::newRow("too many columns") << GridSize{1, 1'001, 0, 0} << false;
    QTest::newRow("rows below nothing") << GridSize{-1, 1, 0, 0} << false;
    QTest::newRow("columns below nothing") << GridSize{1, -1, 0, 0} << false;
    QTest::newRow("more fixed rows than rows") << GridSize{2, 2, 3, 0} << false;
    QTest::newRow("more fixed columns than columns") << GridSize{2, 2, 0, 3} << false;
    QTest::newRow("fixed rows below nothing") << GridSize{2, 2, -1, 0} << false;
    QTest::newRow("fixed columns below nothing") << GridSize{2, 2, 0, -1} << false;
    QTest::newRow("all fixed") << GridSize{2, 2, 2, 2} << true;
}

void tst_EditGridData::RefusesSizes() {
    QFETCH(GridSize, size);
    QTEST(size.IsPossible(), "possible");
    QFETCH(bool, possible);
    const EditGridData grid(size);
    QCOMPARE(grid.Rows(), possible ? size.Rows : 2);
    QCOMPARE(grid.Cols(), possible ? size.Cols : 2);
}

void tst_EditGridData::KeepsTexts() {
    EditGridData grid({3, 3, 1, 0});
    QVERIFY(grid.SetTextMatrix(2, 2, u"\u00e9\u65e5\U0001F600"_s));
    QVERIFY(grid.SetTextMatrix(0, 0, u"Property"_s));
    QVERIFY(grid.SetTextMatrix(1, 1, u"a\tb\r\nc"_s));
    QCOMPARE(grid.TextMatrix(2, 2), u"\u00e9\u65e5\U0001F600"_s);
    QCOMPARE(grid.TextMatrix(0, 0), u"Property"_s);
    QCOMPARE(grid.TextMatrix(1, 1), u"a\tb\r\nc"_s);
    QCOMPARE(grid.TextMatrix(2, 1), QString());
}

void tst_EditGridData::ReadsNothingOutsideItself() {
    EditGridData grid({2, 2, 1, 0});
    QVERIFY(!grid.SetTextMatrix(2, 0, u"x"_s));
    QVERIFY(!grid.SetTextMatrix(0, 2, u"x"_s));
    QVERIFY(!grid.SetTextMatrix(-1, 0, u"x"_s));
    QVERIFY(!grid.SetTextMatrix(0, -1, u"x"_s));
    QCOMPARE(grid.TextMatrix(2, 0), QString());
    QCOMPARE(grid.TextMatrix(0, 2), QString());
    QCOMPARE(grid.TextMatrix(-1, 0), QString());
    QCOMPARE(grid.TextMatrix(0, -1), QString());
    QCOMPARE(RowsOf(grid), QStringList{u"|"_s});
}

void tst_EditGridData::CountsCellsAlongTheRows() {
    EditGridData grid({3, 3, 0, 0});
    QVERIFY(grid.SetTextArray(5, u"x"_s));
    QCOMPARE(grid.TextMatrix(1, 2), u"x"_s);
    QCOMPARE(grid.TextArray(5), u"x"_s);
    QCOMPARE(grid.TextArray(4), QString());
    QVERIFY(grid.SetTextArray(8, u"last"_s));
    QVERIFY(!grid.SetTextArray(9, u"y"_s));
    QVERIFY(!grid.SetTextArray(-1, u"y"_s));
    QCOMPARE(grid.TextArray(9), QString());
    QCOMPARE(grid.TextArray(-1), QString());
    EditGridData none({3, 0, 0, 0});
    QVERIFY(!none.SetTextArray(0, u"y"_s));
    QCOMPARE(none.TextArray(0), QString());
}

void tst_EditGridData::KeepsWhatARowHolds() {
    EditGridData grid({3, 2, 1, 0});
    QCOMPARE(grid.RowData(1), 0);
    QCOMPARE(grid.RowHeight(1), 240);
    QVERIFY(!grid.IsStruckThrough(1));
    QVERIFY(grid.SetRowData(1, -7));
    QVERIFY(grid.SetRowHeight(1, 300));
    QVERIFY(grid.SetStruckThrough(1, true));
    QCOMPARE(grid.RowData(1), -7);
    QCOMPARE(grid.RowHeight(1), 300);
    QVERIFY(grid.IsStruckThrough(1));
    QCOMPARE(grid.RowData(2), 0);
    QVERIFY(!grid.IsStruckThrough(2));
}

void tst_EditGridData::RefusesWhatARowCannotHold() {
    EditGridData grid({3, 2, 1, 0});
    QVERIFY(!grid.SetRowData(3, 1));
    QVERIFY(!grid.SetRowHeight(3, 1));
    QVERIFY(!grid.SetRowHeight(1, -1));
    QVERIFY(grid.SetRowHeight(1, 0));
    QVERIFY(!grid.SetStruckThrough(3, true));
    QVERIFY(!grid.PutRow(3, {}));
    QCOMPARE(grid.RowData(3), 0);
    QVERIFY(!grid.IsStruckThrough(-1));
}

void tst_EditGridData::KeepsTheHeightWhereARowIsPut() {
    EditGridData grid({3, 2, 1, 0});
    grid.SetRowHeight(2, 500);
    QVERIFY(grid.PutRow(2, {{u"a"_s, u"b"_s, u"beyond"_s}, 9, 700, true, false, {}}));
    QCOMPARE(RowsOf(grid), QStringList({u"|"_s, u"a|b"_s}));
    QCOMPARE(grid.RowData(2), 9);
    QCOMPARE(grid.RowHeight(2), 500);
    QVERIFY(grid.IsStruckThrough(2));
    QVERIFY(grid.SetCols(3));
    QCOMPARE(grid.TextMatrix(2, 2), QString());
}

void tst_EditGridData::GrowsAndShrinks() {
    EditGridData grid = GridOf({u"P|V"_s, u"a|1"_s, u"b|2"_s}, 2);
    grid.SetRow(2);
    QVERIFY(grid.SetRows(4));
    QCOMPARE(RowsOf(grid), QStringList({u"a|1"_s, u"b|2"_s, u"|"_s}));
    QCOMPARE(grid.Row(), 2);
    grid.SetRowSel(3);
    QVERIFY(grid.SetRows(2));
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.RowSel(), 1);
    QVERIFY(grid.SetRows(3));
    QCOMPARE(RowsOf(grid), QStringList({u"a|1"_s, u"|"_s}));
}

void tst_EditGridData::KeepsItsHeadings() {
    EditGridData grid({3, 3, 2, 2});
    QVERIFY(!grid.SetRows(1));
    QVERIFY(!grid.SetRows(-1));
    QVERIFY(!grid.SetRows(1'000'001));
    QVERIFY(!grid.SetCols(1));
    QVERIFY(!grid.SetCols(1'001));
    QCOMPARE(grid.Rows(), 3);
    QCOMPARE(grid.Cols(), 3);
    QVERIFY(grid.SetRows(2));
    QVERIFY(grid.SetCols(2));
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.Col(), 1);
}

void tst_EditGridData::FixesWhatItHas() {
    EditGridData grid({3, 2, 1, 1});
    QVERIFY(grid.SetFixedRows(3));
    QVERIFY(grid.SetFixedCols(0));
    QCOMPARE(grid.FixedRows(), 3);
    QCOMPARE(grid.FixedCols(), 0);
    QVERIFY(!grid.SetFixedRows(4));
    QVERIFY(!grid.SetFixedRows(-1));
    QVERIFY(!grid.SetFixedCols(3));
    QVERIFY(!grid.SetFixedCols(-1));
    QCOMPARE(grid.FixedRows(), 3);
    QCOMPARE(grid.FixedCols(), 0);
}

void tst_EditGridData::ForgetsMarksOfRowsThatWentAtTheEnd() {
    EditGridData grid({5, 2, 1, 0});
    grid.LastEditRow = 3;
    grid.ClippedRow.Source = 3;
    QVERIFY(grid.SetRows(4));
    QCOMPARE(grid.LastEditRow, 3);
    QCOMPARE(grid.ClippedRow.Source, 3);
    QVERIFY(grid.SetRows(3));
    QCOMPARE(grid.LastEditRow, -1);
    QCOMPARE(grid.ClippedRow.Source, -1);
}

void tst_EditGridData::ShrinksByColumns() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"a|b|c"_s}, 3);
    grid.SetCol(1);
    grid.SetColSel(2);
    grid.SetCellForeColor(1, 2, 255);
    QVERIFY(grid.SetCols(1));
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.ColSel(), 0);
    QVERIFY(grid.SetCols(3));
    QCOMPARE(RowsOf(grid), QStringList{u"a||"_s});
    QCOMPARE(grid.CellForeColor(1, 2), editor::NoForeColor);
}

void tst_EditGridData::RemovesARow() {
    EditGridData grid = GridOf({u"P"_s, u"a"_s, u"b"_s, u"c"_s}, 1);
    grid.SetRowData(3, 33);
    QVERIFY(grid.RemoveItem(2));
    QCOMPARE(RowsOf(grid), QStringList({u"a"_s, u"c"_s}));
    QCOMPARE(grid.RowData(2), 33);
}

void tst_EditGridData::RemovesNoHeading() {
    EditGridData grid = GridOf({u"P"_s, u"a"_s}, 1);
    QVERIFY(!grid.RemoveItem(0));
    QVERIFY(!grid.RemoveItem(2));
    QVERIFY(!grid.RemoveItem(-1));
    QCOMPARE(grid.Rows(), 2);
    QVERIFY(grid.RemoveItem(1));
    QCOMPARE(grid.Rows(), 1);
    QCOMPARE(grid.Row(), 0);
}

void tst_EditGridData::StaysWithItsRowsOnRemoval() {
    EditGridData grid({9, 1, 1, 0});
    grid.SetRow(5);
    grid.SetRowSel(7);
    grid.LastEditRow = 6;
    grid.ClippedRow.Source = 4;
    QVERIFY(grid.RemoveItem(3));
    QCOMPARE(grid.Row(), 4);
    QCOMPARE(grid.RowSel(), 6);
    QCOMPARE(grid.LastEditRow, 5);
    QCOMPARE(grid.ClippedRow.Source, 3);
    QVERIFY(grid.RemoveItem(6));
    QCOMPARE(grid.Row(), 4);
    QCOMPARE(grid.RowSel(), 6);
    QCOMPARE(grid.LastEditRow, 5);
    QCOMPARE(grid.ClippedRow.Source, 3);
}

void tst_EditGridData::ForgetsWhatStoodAtARemovedRow() {
    EditGridData grid({4, 1, 1, 0});
    grid.SetRow(3);
    grid.LastEditRow = 3;
    grid.ClippedRow.Source = 3;
    QVERIFY(grid.RemoveItem(3));
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.LastEditRow, -1);
    QCOMPARE(grid.ClippedRow.Source, -1);
}

void tst_EditGridData::ReordersRows() {
    EditGridData grid = GridOf({u"P"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}, 1);
    grid.SetRowData(4, 44);
    grid.SetStruckThrough(4, true);
    grid.SetRow(3);
    grid.LastEditRow = 4;
    grid.ClippedRow.Source = 1;
    grid.Reorder(2, std::vector<int>{4, 2, 3});
    QCOMPARE(RowsOf(grid), QStringList({u"a"_s, u"d"_s, u"b"_s, u"c"_s}));
    QCOMPARE(grid.RowData(2), 44);
    QVERIFY(grid.IsStruckThrough(2));
    QCOMPARE(grid.Row(), 3);
    QCOMPARE(grid.LastEditRow, 2);
    QCOMPARE(grid.ClippedRow.Source, 1);
}

void tst_EditGridData::FollowsAMove() {
    EditGridData grid({5, 1, 1, 0});
    grid.LastEditRow = 2;
    grid.ClippedRow.Source = 3;
    grid.FollowMove(2, 3);
    QCOMPARE(grid.LastEditRow, 3);
    QCOMPARE(grid.ClippedRow.Source, -1);
    grid.FollowMove(1, 4);
    QCOMPARE(grid.LastEditRow, 3);
}

void tst_EditGridData::HoldsNothing() {
    EditGridData grid({0, 0, 0, 0});
    QVERIFY(!grid.SetRow(0));
    QVERIFY(!grid.SetCol(0));
    QVERIFY(!grid.RemoveItem(0));
    QCOMPARE(grid.TextMatrix(0, 0), QString());
    QVERIFY(grid.SetRows(1));
    QVERIFY(grid.SetCols(1));
    QVERIFY(grid.SetRow(0));
    QVERIFY(grid.SetTextMatrix(0, 0, u"x"_s));
    QCOMPARE(grid.Clip(), u"x"_s);
}

QTEST_GUILESS_MAIN(tst_EditGridData)
#include "tst_EditGridData.moc"
