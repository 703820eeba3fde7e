#include "editor/RowOperation.h"

#include <QTest>
#include <functional>

#include "editor/GridLines.h"
#include "editor/GridOf.h"
#include "editor/GridRows.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;
using editor::RowOperation;

namespace {

constexpr int EmptyClip = -2;
constexpr int HasClip = -1;
constexpr int Cut = 1;
constexpr int Copy = 4;
constexpr int Paste = 5;
constexpr int Delete = 6;

EditGridData Letters() {
    EditGridData grid = GridOf({u"N|T"_s, u"1|a"_s, u"2|b"_s, u"3|c"_s, u"4|d"_s}, 2);
    for (int row = 1; row <= 4; ++row) {
        grid.SetRowData(row, row * 10);
    }
    return grid;
}

void At(EditGridData& grid, int row, int operation) {
    grid.SetRow(row);
    RowOperation(grid, operation);
}

}  // namespace

class tst_RowOperation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsOfItsClip();
    void TakesARow();
    void PastesNothing();
    void PastesACopy();
    void PastesACopyIntoTheSelection();
    void PastesWhatHoldsTabs();
    void PastesACut_data();
    void PastesACut();
    void PastesACutOnce();
    void KeepsTheEndOpen();
    void PastesIntoAFullGrid();
    void StrikesWhatWasStruck();
    void CutsNoHeading();
    void PastesIntoNoHeading();
    void LosesNoRowWithAnEmptiedClip();
    void FollowsTheCutRow();
    void ForgetsTheCutOfAClearedRow();
    void Deletes();
    void DeletesNoHeading();
    void KnowsNoOtherOperation();
};

void tst_RowOperation::TellsOfItsClip() {
    EditGridData grid = Letters();
    QCOMPARE(RowOperation(grid, HasClip), false);
    QCOMPARE(RowOperation(grid, Copy), std::nullopt);
    QCOMPARE(RowOperation(grid, HasClip), true);
    QCOMPARE(RowOperation(grid, EmptyClip), true);
    QCOMPARE(RowOperation(grid, HasClip), false);
    QCOMPARE(grid.ClippedRow.Text(), QString());
    EditGridData column({2, 1, 1, 0});
    RowOperation(column, Copy);
    QCOMPARE(RowOperation(column, HasClip), false);
}

void tst_RowOperation::TakesARow() {
    EditGridData grid = Letters();
    At(grid, 2, Cut);
    QCOMPARE(grid.ClippedRow.Text(), u"2\tb"_s);
    QCOMPARE(grid.ClippedRow.Data, 20);
    QCOMPARE(grid.ClippedRow.Source, 2);
    At(grid, 3, Copy);
    QCOMPARE(grid.ClippedRow.Text(), u"3\tc"_s);
    QCOMPARE(grid.ClippedRow.Data, 30);
    QCOMPARE(grid.ClippedRow.Source, -1);
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
}

void tst_RowOperation::PastesNothing() {
    EditGridData grid = Letters();
    QCOMPARE(RowOperation(grid, Paste), std::nullopt);
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
    QCOMPARE(grid.RowData(1), 10);
}

void tst_RowOperation::PastesACopy() {
    EditGridData grid = Letters();
    At(grid, 2, Copy);
    grid.SetRow(4);
    grid.SetColSel(1);
    RowOperation(grid, Paste);
    QCOMPARE(RowsOf(grid), QStringList({u"1|a"_s, u"2|b"_s, u"3|c"_s, u"2|b"_s}));
    QCOMPARE(grid.RowData(4), -1);
    QCOMPARE(grid.RowData(2), 20);
    QCOMPARE(grid.Rows(), 5);
}

void tst_RowOperation::PastesACopyIntoTheSelection() {
    EditGridData grid = Letters();
    At(grid, 2, Copy);
    grid.SetRow(3);
    grid.SetCol(1);
    grid.SetRowSel(4);
    RowOperation(grid, Paste);
    QCOMPARE(RowsOf(grid), QStringList({u"1|a"_s, u"2|b"_s, u"3|2"_s, u"4|d"_s}));
    QCOMPARE(grid.RowData(3), -1);
    QCOMPARE(grid.RowData(4), 40);
}

void tst_RowOperation::PastesWhatHoldsTabs() {
    EditGridData grid = Letters();
    grid.SetTextMatrix(1, 0, u"x\ty"_s);
    grid.SetTextMatrix(1, 1, u"p\rq"_s);
    At(grid, 1, Copy);
    grid.SetRow(2);
    grid.SetColSel(1);
    RowOperation(grid, Paste);
    QCOMPARE(grid.TextMatrix(2, 0), u"x\ty"_s);
    QCOMPARE(grid.TextMatrix(2, 1), u"p\rq"_s);
    QCOMPARE(grid.TextMatrix(3, 0), u"3"_s);
}

void tst_RowOperation::PastesACut_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("place");
    QTest::newRow("down") << 1 << 3 << QStringList{u"1|b"_s, u"2|a"_s, u"3|c"_s, u"4|d"_s} << 2;
    QTest::newRow("to the last") << 1 << 4 << QStringList{u"1|b"_s, u"2|c"_s, u"3|a"_s, u"4|d"_s}
                                 << 3;
    QTest::newRow("up") << 3 << 1 << QStringList{u"1|c"_s, u"2|a"_s, u"3|b"_s, u"4|d"_s} << 1;
    QTest::newRow("the last up") << 4 << 2 << QStringList{u"1|a"_s, u"2|d"_s, u"3|b"_s, u"4|c"_s}
                                 << 2;
    QTest::newRow("where it was") << 2 << 2 << QStringList{u"1|a"_s, u"2|b"_s, u"3|c"_s, u"4|d"_s}
                                  << 2;
    QTest::newRow("where it was, at the end")
        << 4 << 4 << QStringList{u"1|a"_s, u"2|b"_s, u"3|c"_s, u"4|d"_s} << 4;
}

void tst_RowOperation::PastesACut() {
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, place);
    EditGridData grid = Letters();
    At(grid, from, Cut);
    At(grid, to, Paste);
    QTEST(RowsOf(grid), "rows");
    QCOMPARE(grid.RowData(place), from * 10);
    QCOMPARE(grid.Rows(), 5);
    QCOMPARE(grid.Row(), place);
    QCOMPARE(grid.ClippedRow.Source, -1);
}

void tst_RowOperation::PastesACutOnce() {
    EditGridData grid = Letters();
    At(grid, 1, Cut);
    At(grid, 3, Paste);
    grid.SetRow(4);
    grid.SetColSel(1);
    RowOperation(grid, Paste);
    QCOMPARE(RowsOf(grid), QStringList({u"1|b"_s, u"2|a"_s, u"3|c"_s, u"1|a"_s}));
    QCOMPARE(grid.RowData(4), -1);
}

void tst_RowOperation::KeepsTheEndOpen() {
    EditGridData grid = GridOf({u"N|T"_s, u"1|a"_s, u"2|b"_s, u"|"_s}, 2);
    At(grid, 1, Cut);
    At(grid, 3, Paste);
    QCOMPARE(RowsOf(grid), QStringList({u"1|b"_s, u"2|a"_s, u"|"_s}));
    QCOMPARE(grid.RowHeight(3), 285);
    QCOMPARE(grid.RowHeight(2), 240);
}

void tst_RowOperation::PastesIntoAFullGrid() {
    EditGridData grid({1'000'000, 1, 1, 0});
    grid.SetTextMatrix(2, 0, u"b"_s);
    At(grid, 2, Cut);
    At(grid, 1, Paste);
    QCOMPARE(grid.Rows(), 1'000'000);
    QCOMPARE(grid.TextMatrix(2, 0), u"b"_s);
    QCOMPARE(grid.ClippedRow.Source, 2);
}

void tst_RowOperation::StrikesWhatWasStruck() {
    EditGridData grid = Letters();
    grid.SetStruckThrough(1, true);
    At(grid, 1, Cut);
    At(grid, 3, Paste);
    QVERIFY(!grid.IsStruckThrough(1));
    QVERIFY(grid.IsStruckThrough(2));
    QVERIFY(!grid.IsStruckThrough(3));
}

void tst_RowOperation::CutsNoHeading() {
    EditGridData grid = Letters();
    grid.SetFixedRows(2);
    At(grid, 1, Cut);
    QCOMPARE(grid.ClippedRow.Text(), u"1\ta"_s);
    QCOMPARE(grid.ClippedRow.Source, -1);
    At(grid, 0, Cut);
    QCOMPARE(grid.ClippedRow.Text(), u"N\tT"_s);
    QCOMPARE(grid.ClippedRow.Source, -1);
}

void tst_RowOperation::PastesIntoNoHeading() {
    EditGridData grid = Letters();
    At(grid, 2, Copy);
    At(grid, 0, Paste);
    QCOMPARE(grid.RowClipText(0), u"N\tT"_s);
    QCOMPARE(grid.RowData(0), 0);
    At(grid, 2, Cut);
    At(grid, 0, Paste);
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
    QCOMPARE(grid.ClippedRow.Source, 2);
}

void tst_RowOperation::LosesNoRowWithAnEmptiedClip() {
    EditGridData grid = Letters();
    At(grid, 1, Cut);
    RowOperation(grid, EmptyClip);
    At(grid, 3, Paste);
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
}

void tst_RowOperation::FollowsTheCutRow() {
    EditGridData grid = Letters();
    At(grid, 3, Cut);
    grid.RemoveItem(1);
    At(grid, 1, Paste);
    QCOMPARE(RowsOf(grid), QStringList({u"1|c"_s, u"2|b"_s, u"3|d"_s}));
}

/// The texts stay: what is pasted then is a copy.
void tst_RowOperation::ForgetsTheCutOfAClearedRow() {
    const std::vector<std::function<void(EditGridData&)>> clears = {
        [](EditGridData& grid) { editor::ClearRow(grid, 2); }, editor::GridClear, editor::Clear};
    for (const auto& clear : clears) {
        EditGridData grid = Letters();
        At(grid, 2, Cut);
        editor::ClearRow(grid, 1);
        editor::ClearRow(grid, -1);
        QCOMPARE(grid.ClippedRow.Source, 2);
        clear(grid);
        QCOMPARE(grid.ClippedRow.Source, -1);
        QCOMPARE(grid.ClippedRow.Text(), u"2\tb"_s);
        grid.SetTextMatrix(2, 1, u"new"_s);
        editor::SelectOneRow(grid, 1);
        RowOperation(grid, Paste);
        QCOMPARE(grid.RowClipText(1), u"2\tb"_s);
        QCOMPARE(grid.TextMatrix(2, 1), u"new"_s);
    }
}

void tst_RowOperation::Deletes() {
    EditGridData grid = Letters();
    At(grid, 2, Delete);
    QCOMPARE(RowsOf(grid), QStringList({u"1|a"_s, u"3|c"_s, u"4|d"_s, u"|"_s}));
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.RowHeight(4), 285);
    QCOMPARE(grid.RowHeight(3), 240);
    At(grid, 4, Delete);
    QCOMPARE(grid.Rows(), 5);
    QCOMPARE(grid.Row(), 4);
}

void tst_RowOperation::DeletesNoHeading() {
    EditGridData grid = Letters();
    At(grid, 0, Delete);
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
    EditGridData none({0, 0, 0, 0});
    RowOperation(none, Delete);
    QCOMPARE(none.Rows(), 0);
}

void tst_RowOperation::KnowsNoOtherOperation() {
    EditGridData grid = Letters();
    for (const int operation : {-3, 0, 2, 3, 7}) {
        QCOMPARE(RowOperation(grid, operation), std::nullopt);
    }
    QCOMPARE(RowsOf(grid), RowsOf(Letters()));
    QCOMPARE(grid.ClippedRow.Text(), QString());
}

QTEST_GUILESS_MAIN(tst_RowOperation)
#include "tst_RowOperation.moc"
