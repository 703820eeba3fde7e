#include "editor/GridFormat.h"

#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::ColAlign;
using editor::FormatPiece;

class tst_GridFormat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ReadsPieces();
    void SetsUpHeaders();
    void LeavesWhatIsNotTold();
    void MovesRows();
    void RefusesRows();
    void MovesColumns();
    void RefusesColumns();
};

void tst_GridFormat::ReadsPieces() {
    QVERIFY(editor::FormatOf({}).empty());
    const std::vector<FormatPiece> pieces = editor::FormatOf(u"Name|>Value|^|<<x"_s);
    QCOMPARE(pieces.size(), 4U);
    QVERIFY((pieces[0] == FormatPiece{u"Name"_s, ColAlign::Left}));
    QVERIFY((pieces[1] == FormatPiece{u"Value"_s, ColAlign::Right}));
    QVERIFY((pieces[2] == FormatPiece{QString(), ColAlign::Centre}));
    QVERIFY((pieces[3] == FormatPiece{u"<x"_s, ColAlign::Left}));
}

void tst_GridFormat::SetsUpHeaders() {
    editor::EditGridData grid = GridOf({u"a|b"_s, u"1|2"_s}, 2);
    editor::GridLook look;
    look.FormatString = u"Name|>Value|Lost"_s;
    SetupColHeaders(grid, look);
    QCOMPARE(grid.RowClipText(0), u"Name\tValue"_s);
    QCOMPARE(grid.RowClipText(1), u"1\t2"_s);
    QCOMPARE(look.ColumnAt(0).Alignment, ColAlign::Left);
    QCOMPARE(look.ColumnAt(1).Alignment, ColAlign::Right);
    QCOMPARE(look.ColumnAt(1).FixedAlignment, ColAlign::Right);
    QCOMPARE(look.Columns.size(), 2U);
}

void tst_GridFormat::LeavesWhatIsNotTold() {
    editor::EditGridData grid = GridOf({u"a|b"_s}, 2);
    editor::GridLook look;
    look.Column(1).Alignment = ColAlign::Centre;
    look.FormatString = u">"_s;
    SetupColHeaders(grid, look);
    QCOMPARE(grid.RowClipText(0), u"a\tb"_s);
    QCOMPARE(look.ColumnAt(0).Alignment, ColAlign::Right);
    QCOMPARE(look.ColumnAt(1).Alignment, ColAlign::Centre);
}

void tst_GridFormat::MovesRows() {
    editor::EditGridData grid = GridOf({u"h"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}, 1);
    grid.LastEditRow = 2;
    QVERIFY(SetRowPosition(grid, 1, 3));
    QCOMPARE(RowsOf(grid), QStringList({u"b"_s, u"c"_s, u"a"_s, u"d"_s}));
    QCOMPARE(grid.LastEditRow, 1);
    QVERIFY(SetRowPosition(grid, 4, 1));
    QCOMPARE(RowsOf(grid), QStringList({u"d"_s, u"b"_s, u"c"_s, u"a"_s}));
}

void tst_GridFormat::RefusesRows() {
    editor::EditGridData grid = GridOf({u"h"_s, u"a"_s, u"b"_s}, 1);
    for (const auto& [row, place] : {std::pair(0, 1), {1, 0}, {1, 1}, {1, 3}, {3, 1}, {-1, 1}}) {
        QVERIFY(!SetRowPosition(grid, row, place));
    }
    QCOMPARE(RowsOf(grid), QStringList({u"a"_s, u"b"_s}));
}

void tst_GridFormat::MovesColumns() {
    editor::EditGridData grid = GridOf({u"A|B|C"_s, u"1|2|3"_s}, 3);
    grid.SetRowData(1, 9);
    grid.SetCellForeColor(1, 0, 255);
    editor::GridLook look;
    look.Column(0).Width = 100;
    look.Column(2).Width = 300;
    QVERIFY(SetColPosition(grid, look, 0, 2));
    QCOMPARE(grid.RowClipText(0), u"B\tC\tA"_s);
    QCOMPARE(grid.RowClipText(1), u"2\t3\t1"_s);
    QCOMPARE(grid.RowData(1), 9);
    QCOMPARE(grid.CellForeColor(1, 0), editor::NoForeColor);
    QCOMPARE(grid.CellForeColor(1, 2), 255);
    QCOMPARE(look.ColumnAt(1).Width, 300);
    QCOMPARE(look.ColumnAt(2).Width, 100);
}

void tst_GridFormat::RefusesColumns() {
    editor::EditGridData grid = GridOf({u"A|B|C"_s}, 3);
    grid.SetFixedCols(1);
    editor::GridLook look;
    for (const auto& [col, place] : {std::pair(0, 1), {1, 0}, {1, 1}, {1, 3}, {3, 1}}) {
        QVERIFY(!SetColPosition(grid, look, col, place));
    }
    QCOMPARE(grid.RowClipText(0), u"A\tB\tC"_s);
}

QTEST_GUILESS_MAIN(tst_GridFormat)
#include "tst_GridFormat.moc"
