#include "editor/GridText.h"

#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_GridText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WritesAGrid_data();
    void WritesAGrid();
    void SelectsWhatItWrites();
    void WritesAGridWithoutRows();
    void WritesAColumn();
    void FillsTheSelection();
    void TakesBackWhatItHasWritten();
    void WritesTheCurrentRow();
    void JoinsARow_data();
    void JoinsARow();
    void SplitsIntoARow_data();
    void SplitsIntoARow();
};

void tst_GridText::WritesAGrid_data() {
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("delimiter");
    QTest::addColumn<QString>("text");
    const QStringList full{u"P|V"_s, u"1|a"_s, u"2|b"_s};
    QTest::newRow("delimiter") << full << u";"_s << u"1\ta;2\tb;"_s;
    QTest::newRow("long delimiter") << full << u" <> "_s << u"1\ta<>2\tb<>"_s;
    QTest::newRow("no delimiter") << full << QString() << u"1\ta\r\n2\tb\r\n"_s;
    QTest::newRow("blank delimiter") << full << u" \t"_s << u"1\ta\r\n2\tb\r\n"_s;
    QTest::newRow("up to an empty column 1")
        << QStringList{u"P|V"_s, u"1|a"_s, u"2|"_s, u"3|c"_s} << u";"_s << u"1\ta;2\t;"_s;
    QTest::newRow("a blank is text")
        << QStringList{u"P|V"_s, u"1| "_s, u"2|b"_s} << u";"_s << u"1\t ;2\tb;"_s;
    QTest::newRow("empty") << QStringList{u"P|V"_s, u"|"_s, u"|"_s} << u";"_s << u"\t;"_s;
}

void tst_GridText::WritesAGrid() {
    QFETCH(QStringList, rows);
    QFETCH(QString, delimiter);
    EditGridData grid = GridOf(rows, 2);
    QTEST(editor::Grid2Str(grid, delimiter), "text");
}

void tst_GridText::SelectsWhatItWrites() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"1|a|x"_s, u"2||y"_s, u"3|c|z"_s}, 3);
    editor::Grid2Str(grid, u";"_s);
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.RowSel(), 2);
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.ColSel(), 2);
    QCOMPARE(grid.Mode, editor::SelectionMode::ByColumn);
}

void tst_GridText::WritesAGridWithoutRows() {
    EditGridData heading({1, 2, 1, 0});
    QCOMPARE(editor::Grid2Str(heading, u";"_s), QString());
    EditGridData none({0, 0, 0, 0});
    QCOMPARE(editor::Grid2Str(none, u";"_s), QString());
    EditGridData noColumns({2, 0, 1, 0});
    QCOMPARE(editor::Grid2Str(noColumns, u";"_s), u";"_s);
}

void tst_GridText::WritesAColumn() {
    EditGridData grid = GridOf({u"P"_s, u"a"_s, u"b"_s, QString(), u"d"_s}, 1);
    QCOMPARE(editor::Grid2Str(grid, u";"_s), u"a;b;;"_s);
}

void tst_GridText::FillsTheSelection() {
    EditGridData grid = GridOf({u"P|V"_s, u"a|1"_s, u"b|2"_s}, 2);
    grid.SetRow(1);
    grid.SetRowSel(2);
    editor::Str2Gird(grid, u"x\ty\rz"_s);
    QCOMPARE(RowsOf(grid), QStringList({u"x|1"_s, u"z|2"_s}));
}

void tst_GridText::TakesBackWhatItHasWritten() {
    EditGridData grid = GridOf({u"P|V"_s, u"a|1"_s, u"b|2"_s}, 2);
    const QString text = editor::Grid2Str(grid, {});
    EditGridData other({3, 2, 1, 0});
    other.SetRowSel(2);
    other.SetColSel(1);
    editor::Str2Gird(other, text);
    QCOMPARE(RowsOf(other), QStringList({u"a|1"_s, u"b|2"_s}));
}

void tst_GridText::WritesTheCurrentRow() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"a|b|c"_s, u"d|e|f"_s}, 3);
    grid.SetRow(2);
    grid.SetCol(1);
    grid.SetRowSel(1);
    QCOMPARE(editor::CurrentRowStr(grid), u"d\te\tf"_s);
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.RowSel(), 2);
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.ColSel(), 2);
}

void tst_GridText::JoinsARow_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("stopCol");
    QTest::addColumn<std::optional<QString>>("text");
    using Text = std::optional<QString>;
    QTest::newRow("whole") << 3 << 0 << Text(u"1,b,c,d"_s);
    QTest::newRow("up to column 2") << 3 << 2 << Text(u"1,b"_s);
    QTest::newRow("up to column 1") << 3 << 1 << Text(u"1"_s);
    QTest::newRow("up to the last") << 3 << 3 << Text(u"1,b,c"_s);
    QTest::newRow("a stop behind the end") << 3 << 4 << Text(u"1,b,c,d"_s);
    QTest::newRow("a stop before the start") << 3 << -1 << Text(u"1,b,c,d"_s);
    QTest::newRow("the heading") << 0 << 0 << Text(u"A,B,C,D"_s);
    QTest::newRow("nothing is escaped") << 1 << 0 << Text(u"x,y,,\t,"_s);
    QTest::newRow("no such row") << 4 << 0 << Text();
    QTest::newRow("a row below nothing") << -1 << 0 << Text();
}

void tst_GridText::JoinsARow() {
    const EditGridData grid = GridOf({u"A|B|C|D"_s, u"x,y||\t|"_s, QString(), u"1|b|c|d"_s}, 4);
    QFETCH(int, row);
    QFETCH(int, stopCol);
    QTEST(editor::RowToStr(grid, row, stopCol), "text");
}

void tst_GridText::SplitsIntoARow_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("done");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("whole") << u"9,x,y"_s << 1 << true << QStringList{u"1|x|y"_s, u"2|d|e"_s};
    QTest::newRow("longer") << u"9,x,y,z"_s << 2 << true << QStringList{u"1|b|c"_s, u"2|x|y"_s};
    QTest::newRow("shorter keeps what it wrote")
        << u"9,x"_s << 1 << false << QStringList{u"1|x|c"_s, u"2|d|e"_s};
    QTest::newRow("empty") << QString() << 1 << false << QStringList{u"1|b|c"_s, u"2|d|e"_s};
    QTest::newRow("empty elements") << u",,"_s << 1 << true << QStringList{u"1||"_s, u"2|d|e"_s};
    QTest::newRow("no such row") << u"9,x,y"_s << 3 << false << QStringList{u"1|b|c"_s, u"2|d|e"_s};
}

void tst_GridText::SplitsIntoARow() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"1|b|c"_s, u"2|d|e"_s}, 3);
    QFETCH(QString, text);
    QFETCH(int, row);
    QTEST(editor::StrToRow(grid, text, row), "done");
    QTEST(RowsOf(grid), "rows");
    EditGridData column({2, 1, 1, 0});
    QVERIFY(editor::StrToRow(column, u"9"_s, 1));
    QVERIFY(!editor::StrToRow(column, u"9"_s, 2));
    QCOMPARE(RowsOf(column), QStringList{QString()});
}

QTEST_GUILESS_MAIN(tst_GridText)
#include "tst_GridText.moc"
