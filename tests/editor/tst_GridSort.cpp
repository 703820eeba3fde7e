#include "editor/GridSort.h"

#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_GridSort : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Sorts_data();
    void Sorts();
    void KeepsEqualRowsInOrder_data();
    void KeepsEqualRowsInOrder();
    void SortsByTheSelectedColumns();
    void SortsASelectedBlock();
    void SortsNoHeading();
    void LeavesEmptyRowsBehind();
    void TakesWhatBelongsToARow();
    void KnowsItsCodes();
    void SortsNothing();
    void SortsWhatRunsInACircle();
    void SortsManyRows();
    void SortsByAnotherOrder();
};

void tst_GridSort::Sorts_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("sorted");
    const QStringList mixed{u"b"_s, u"10"_s, u"A"_s, u"9"_s, u"a"_s, u"B"_s};
    QTest::newRow("none") << 0 << mixed << mixed;
    QTest::newRow("generic up") << 1 << mixed
                                << QStringList{u"9"_s, u"10"_s, u"A"_s, u"a"_s, u"b"_s, u"B"_s};
    QTest::newRow("generic down") << 2 << mixed
                                  << QStringList{u"b"_s, u"B"_s, u"A"_s, u"a"_s, u"10"_s, u"9"_s};
    const QStringList numbers{u"10 kg"_s, u"-2"_s, u"9.5"_s, u"x"_s, u"&HFF"_s, u"1e1x"_s};
    QTest::newRow("numeric up") << 3 << numbers << QStringList{u"-2"_s,    u"x"_s,    u"9.5"_s,
                                                               u"10 kg"_s, u"1e1x"_s, u"&HFF"_s};
    QTest::newRow("numeric down") << 4 << numbers << QStringList{u"&HFF"_s, u"10 kg"_s, u"1e1x"_s,
                                                                 u"9.5"_s,  u"x"_s,     u"-2"_s};
    QTest::newRow("no case up") << 5 << mixed
                                << QStringList{u"10"_s, u"9"_s, u"A"_s, u"a"_s, u"b"_s, u"B"_s};
    QTest::newRow("no case down") << 6 << mixed
                                  << QStringList{u"b"_s, u"B"_s, u"A"_s, u"a"_s, u"9"_s, u"10"_s};
    QTest::newRow("string up") << 7 << mixed
                               << QStringList{u"10"_s, u"9"_s, u"A"_s, u"B"_s, u"a"_s, u"b"_s};
    QTest::newRow("string down") << 8 << mixed
                                 << QStringList{u"b"_s, u"a"_s, u"B"_s, u"A"_s, u"9"_s, u"10"_s};
    QTest::newRow("other letters") << 5 << QStringList{u"\u00e9"_s, u"z"_s, u"\u00c9a"_s, u"e"_s}
                                   << QStringList{u"e"_s, u"z"_s, u"\u00e9"_s, u"\u00c9a"_s};
    QTest::newRow("a sign before digits")
        << 1 << QStringList{u"5"_s, u"#x"_s, u"-1"_s} << QStringList{u"#x"_s, u"-1"_s, u"5"_s};
}

void tst_GridSort::Sorts() {
    QFETCH(QStringList, rows);
    QFETCH(int, code);
    EditGridData grid = GridOf(QStringList{u"zz"_s} + rows, 1);
    QVERIFY(editor::Sort(grid, code));
    QTEST(RowsOf(grid), "sorted");
}

void tst_GridSort::KeepsEqualRowsInOrder_data() {
    QTest::addColumn<int>("code");
    for (int code = 1; code <= 8; ++code) {
        QTest::addRow("%d", code) << code;
    }
}

void tst_GridSort::KeepsEqualRowsInOrder() {
    QFETCH(int, code);
    const QStringList rows{u"5|a"_s, u"5|b"_s, u"5|c"_s, u"5|d"_s, u"5|e"_s};
    EditGridData grid = GridOf(QStringList{u"N|T"_s} + rows, 2);
    QVERIFY(editor::Sort(grid, code));
    QCOMPARE(RowsOf(grid), rows);
}

void tst_GridSort::SortsByTheSelectedColumns() {
    const QStringList rows{u"K|T|N"_s, u"x|b|2"_s, u"y|a|3"_s, u"z|b|1"_s};
    EditGridData grid = GridOf(rows, 3);
    grid.SetCol(1);
    editor::Sort(grid, 1);
    QCOMPARE(RowsOf(grid), QStringList({u"y|a|3"_s, u"x|b|2"_s, u"z|b|1"_s}));
    grid.SetColSel(2);
    editor::Sort(grid, 1);
    QCOMPARE(RowsOf(grid), QStringList({u"y|a|3"_s, u"z|b|1"_s, u"x|b|2"_s}));
    grid.SetCol(2);
    grid.SetColSel(1);
    editor::Sort(grid, 2);
    QCOMPARE(RowsOf(grid), QStringList({u"x|b|2"_s, u"z|b|1"_s, u"y|a|3"_s}));
}

void tst_GridSort::SortsASelectedBlock() {
    EditGridData grid = GridOf({u"T"_s, u"d"_s, u"c"_s, u"b"_s, u"a"_s}, 1);
    grid.SetRow(3);
    grid.SetRowSel(2);
    editor::Sort(grid, 7);
    QCOMPARE(RowsOf(grid), QStringList({u"d"_s, u"b"_s, u"c"_s, u"a"_s}));
    QCOMPARE(grid.Row(), 3);
    QCOMPARE(grid.RowSel(), 2);
}

void tst_GridSort::SortsNoHeading() {
    EditGridData grid = GridOf({u"z"_s, u"y"_s, u"b"_s, u"a"_s}, 1);
    grid.SetFixedRows(2);
    grid.SetRow(0);
    grid.SetRowSel(3);
    editor::Sort(grid, 7);
    QCOMPARE(grid.TextMatrix(0, 0), u"z"_s);
    QCOMPARE(RowsOf(grid), QStringList({u"y"_s, u"a"_s, u"b"_s}));
}

void tst_GridSort::LeavesEmptyRowsBehind() {
    for (const int code : {1, 2}) {
        EditGridData grid = GridOf({u"K|V"_s, u" |"_s, u"k|"_s, u"|"_s, u"|v"_s}, 2);
        grid.SetCol(1);
        editor::Sort(grid, code);
        QCOMPARE(RowsOf(grid).mid(2), QStringList({u" |"_s, u"|"_s}));
        QCOMPARE(RowsOf(grid)[0], code == 1 ? u"k|"_s : u"|v"_s);
    }
}

void tst_GridSort::TakesWhatBelongsToARow() {
    EditGridData grid = GridOf({u"T"_s, u"b"_s, u"a"_s}, 1);
    grid.SetRowData(1, 1);
    grid.SetRowData(2, 2);
    grid.SetStruckThrough(1, true);
    grid.LastEditRow = 1;
    editor::Sort(grid, 1);
    QCOMPARE(grid.RowData(1), 2);
    QCOMPARE(grid.RowData(2), 1);
    QVERIFY(grid.IsStruckThrough(2));
    QVERIFY(!grid.IsStruckThrough(1));
    QCOMPARE(grid.LastEditRow, 2);
    QCOMPARE(grid.Row(), 1);
}

void tst_GridSort::KnowsItsCodes() {
    EditGridData grid = GridOf({u"T"_s, u"b"_s, u"a"_s}, 1);
    QVERIFY(!editor::Sort(grid, -1));
    QVERIFY(!editor::Sort(grid, 9));
    QVERIFY(editor::Sort(grid, 0));
    QCOMPARE(RowsOf(grid), QStringList({u"b"_s, u"a"_s}));
    QVERIFY(editor::Sort(grid, 8));
}

void tst_GridSort::SortsNothing() {
    EditGridData none({0, 0, 0, 0});
    QVERIFY(editor::Sort(none, 1));
    EditGridData heading({1, 1, 1, 0});
    QVERIFY(editor::Sort(heading, 1));
    EditGridData noColumns({3, 0, 1, 0});
    QVERIFY(editor::Sort(noColumns, 1));
    QCOMPARE(noColumns.Rows(), 3);
}

void tst_GridSort::SortsWhatRunsInACircle() {
    EditGridData grid = GridOf({u"T"_s, u"10"_s, u"1a"_s, u"9"_s}, 1);
    editor::Sort(grid, 1);
    QStringList rows = RowsOf(grid);
    rows.sort();
    QCOMPARE(rows, QStringList({u"10"_s, u"1a"_s, u"9"_s}));
}

void tst_GridSort::SortsManyRows() {
    constexpr int count = 5000;
    EditGridData grid({count + 1, 1, 1, 0});
    for (int row = 1; row <= count; ++row) {
        grid.SetTextMatrix(row, 0, QString::number(row * 7 % 5003));  // each number once
    }
    editor::Sort(grid, 3);
    for (int row = 2; row <= count; ++row) {
        QVERIFY(grid.TextMatrix(row - 1, 0).toInt() < grid.TextMatrix(row, 0).toInt());
    }
}

void tst_GridSort::SortsByAnotherOrder() {
    EditGridData grid = GridOf({u"T"_s, u"ccc"_s, u""_s, u"a"_s, u"bb"_s, u"d"_s, u"eeee"_s}, 1);
    const auto byLength = [&grid](int row1, int row2) {
        return int(grid.TextMatrix(row1, 0).size() - grid.TextMatrix(row2, 0).size());
    };
    editor::SortBy(grid, byLength);
    QCOMPARE(RowsOf(grid), QStringList({u"a"_s, u"d"_s, u"bb"_s, u"ccc"_s, u"eeee"_s, u""_s}));
    grid.SetRow(4);
    grid.SetRowSel(2);
    editor::SortBy(grid, [](int row1, int row2) { return row2 - row1; });
    QCOMPARE(RowsOf(grid), QStringList({u"a"_s, u"ccc"_s, u"bb"_s, u"d"_s, u"eeee"_s, u""_s}));
    editor::SortBy(grid, [](int, int) { return 1; });  // no order at all
    QCOMPARE(grid.Rows(), 7);
}

QTEST_GUILESS_MAIN(tst_GridSort)
#include "tst_GridSort.moc"
