#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_EditGridSelection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EndsWithANewCell();
    void RefusesCellsThatAreNotThere();
    void SelectsBackwards();
    void Clips_data();
    void Clips();
    void ClipsNothing();
    void ClipsARow();
    void Fills_data();
    void Fills();
};

void tst_EditGridSelection::EndsWithANewCell() {
    EditGridData grid({5, 4, 1, 0});
    grid.SetRow(1);
    grid.SetCol(1);
    QVERIFY(grid.SetRowSel(3));
    QVERIFY(grid.SetColSel(2));
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.Col(), 1);
    QVERIFY(grid.SetRow(2));
    QCOMPARE(grid.RowSel(), 2);
    QCOMPARE(grid.ColSel(), 1);
    grid.SetRowSel(4);
    QVERIFY(grid.SetCol(3));
    QCOMPARE(grid.RowSel(), 2);
    QCOMPARE(grid.ColSel(), 3);
}

void tst_EditGridSelection::RefusesCellsThatAreNotThere() {
    EditGridData grid({3, 2, 1, 0});
    QVERIFY(!grid.SetRow(3));
    QVERIFY(!grid.SetRow(-1));
    QVERIFY(!grid.SetCol(2));
    QVERIFY(!grid.SetCol(-1));
    QVERIFY(!grid.SetRowSel(3));
    QVERIFY(!grid.SetRowSel(-1));
    QVERIFY(!grid.SetColSel(2));
    QVERIFY(!grid.SetColSel(-1));
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.RowSel(), 1);
    QCOMPARE(grid.ColSel(), 0);
    QVERIFY(grid.SetRow(0));  // a heading may be the current row
}

void tst_EditGridSelection::SelectsBackwards() {
    EditGridData grid({5, 4, 1, 0});
    grid.SetRow(3);
    grid.SetCol(2);
    grid.SetRowSel(1);
    grid.SetColSel(0);
    const editor::CellBlock block = grid.Selection();
    QCOMPARE(block.Top, 1);
    QCOMPARE(block.Bottom, 3);
    QCOMPARE(block.Left, 0);
    QCOMPARE(block.Right, 2);
}

void tst_EditGridSelection::Clips_data() {
    QTest::addColumn<QList<int>>("block");
    QTest::addColumn<QString>("text");
    QTest::newRow("a cell") << QList<int>{1, 1, 1, 1} << u"b"_s;
    QTest::newRow("a row") << QList<int>{2, 0, 2, 2} << u"d\te\tf"_s;
    QTest::newRow("a column") << QList<int>{1, 2, 3, 2} << u"c\rf\ri"_s;
    QTest::newRow("a block") << QList<int>{1, 0, 2, 1} << u"a\tb\rd\te"_s;
    QTest::newRow("backwards") << QList<int>{2, 1, 1, 0} << u"a\tb\rd\te"_s;
    QTest::newRow("a heading") << QList<int>{0, 0, 1, 0} << u"A\ra"_s;
}

void tst_EditGridSelection::Clips() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"a|b|c"_s, u"d|e|f"_s, u"g|h|i"_s}, 3);
    QFETCH(QList<int>, block);
    grid.SetRow(block[0]);
    grid.SetCol(block[1]);
    grid.SetRowSel(block[2]);
    grid.SetColSel(block[3]);
    QTEST(grid.Clip(), "text");
}

void tst_EditGridSelection::ClipsNothing() {
    QCOMPARE(EditGridData({0, 3, 0, 0}).Clip(), QString());
    QCOMPARE(EditGridData({0, 3, 0, 0}).Selection().Bottom, -1);
    QCOMPARE(EditGridData({3, 0, 1, 0}).Selection().Right, -1);
    QCOMPARE(GridOf({u"A"_s}, 1).Clip(), u"A"_s);
    QCOMPARE(EditGridData({3, 0, 1, 0}).Clip(), QString());
    QCOMPARE(EditGridData({3, 3, 1, 0}).RowClipText(1), u"\t\t"_s);
}

void tst_EditGridSelection::ClipsARow() {
    const EditGridData grid = GridOf({u"A|B"_s, u"a|b"_s}, 2);
    QCOMPARE(grid.RowClipText(1), u"a\tb"_s);
    QCOMPARE(grid.RowClipText(0), u"A\tB"_s);
    QCOMPARE(grid.RowClipText(2), u"\t"_s);
}

void tst_EditGridSelection::Fills_data() {
    QTest::addColumn<QList<int>>("block");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("rows");
    const QList<int> block{1, 1, 2, 2};
    QTest::newRow("as large") << block << u"1\t2\r3\t4"_s
                              << QStringList{u"a|1|2"_s, u"d|3|4"_s, u"g|h|i"_s};
    QTest::newRow("larger") << block << u"1\t2\t9\r3\t4\t9\r9\t9\t9"_s
                            << QStringList{u"a|1|2"_s, u"d|3|4"_s, u"g|h|i"_s};
    QTest::newRow("smaller") << block << u"1"_s << QStringList{u"a|1|c"_s, u"d|e|f"_s, u"g|h|i"_s};
    QTest::newRow("ragged") << block << u"1\r3\t4"_s
                            << QStringList{u"a|1|c"_s, u"d|3|4"_s, u"g|h|i"_s};
    QTest::newRow("empty") << block << QString() << QStringList{u"a||c"_s, u"d|e|f"_s, u"g|h|i"_s};
    QTest::newRow("empty pieces") << block << u"\t2\r\r"_s
                                  << QStringList{u"a||2"_s, u"d||f"_s, u"g|h|i"_s};
    QTest::newRow("carriage return and line feed")
        << block << u"1\t2\r\n3\t4\r\n"_s << QStringList{u"a|1|2"_s, u"d|3|4"_s, u"g|h|i"_s};
    QTest::newRow("a line feed is text")
        << block << u"1\n2"_s << QStringList{u"a|1\n2|c"_s, u"d|e|f"_s, u"g|h|i"_s};
    QTest::newRow("backwards") << QList<int>{2, 2, 1, 1} << u"1\t2\r3\t4"_s
                               << QStringList{u"a|1|2"_s, u"d|3|4"_s, u"g|h|i"_s};
    QTest::newRow("one cell") << QList<int>{3, 2, 3, 2} << u"1\t2\r3"_s
                              << QStringList{u"a|b|c"_s, u"d|e|f"_s, u"g|h|1"_s};
}

void tst_EditGridSelection::Fills() {
    EditGridData grid = GridOf({u"A|B|C"_s, u"a|b|c"_s, u"d|e|f"_s, u"g|h|i"_s}, 3);
    QFETCH(QList<int>, block);
    grid.SetRow(block[0]);
    grid.SetCol(block[1]);
    grid.SetRowSel(block[2]);
    grid.SetColSel(block[3]);
    QFETCH(QString, text);
    grid.SetClip(text);
    QTEST(RowsOf(grid), "rows");
    QCOMPARE(grid.RowClipText(0), u"A\tB\tC"_s);
}

QTEST_GUILESS_MAIN(tst_EditGridSelection)
#include "tst_EditGridSelection.moc"
