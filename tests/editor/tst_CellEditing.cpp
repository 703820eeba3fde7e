#include "editor/CellEditing.h"

#include <QTest>

#include "editor/GridOf.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::EditorKind;
namespace KeyCode = editor::KeyCode;

namespace {

/// Five columns, one for each kind of editor, and three rows.
struct Desk {
    FakeServices Machine;
    editor::EditGridData Grid = GridOf(
        {u"N|C|U|T|E"_s, u"1|Red|1.50|abc|Blue"_s, u"2|Green|3|d|x"_s, u"3||25/03/2008|e|"_s}, 5);
    editor::GridColumns Columns;
    editor::CellEditing Editing{Grid, Columns, Machine.Clock};

    Desk() {
        Columns.Setup(5);
        for (int id = 0; id <= 4; ++id) {
            Columns.SetCellCtlID(id, id);
        }
        for (const QString& colour : {u"Red"_s, u"Green"_s, u"Blue"_s}) {
            Columns.AddCellComboItem(1, colour);
            Columns.AddCellComboEditItem(4, colour);
        }
    }
    void GoTo(int row, int col) {
        Grid.SetRow(row);
        Grid.SetCol(col);
    }
    void Press(int code) {
        if (Editing.IsEditing()) {
            Editing.OnKeyFromEditor({code, {}});
        } else {
            Editing.OnGridKey({code, {}});
        }
    }
    void Type(const QString& text) {
        for (const QChar character : text) {
            if (Editing.IsEditing()) {
                Editing.OnKeyFromEditor({0, character});
            } else {
                Editing.OnGridKey({0, character});
            }
        }
    }
    QString Cell() const { return Grid.TextMatrix(Grid.Row(), Grid.Col()); }
};

}  // namespace

class tst_CellEditing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EntersByKey_data();
    void EntersByKey();
    void StaysOut_data();
    void StaysOut();
    void EntersOnce();
    void NotesTheRow();
    void OpensNoEmptyList();
    void WritesAtTheEnd_data();
    void WritesAtTheEnd();
    void WritesNumbers_data();
    void WritesNumbers();
    void CancelsWithoutATrace();
    void TellsOfChanges();
    void EndsByThePageKeys();
    void StaysAtTab();
    void MovesOnAtEnter();
    void MovesOnFromTheGrid();
    void LeavesOtherKeysToTheGrid();
    void MovesToTheNextCell();
    void MovesWhereNothingCanBeEdited();
    void Spins();
    void EndsNothing();
    void WritesToARowThatHasMoved();
    void WritesNothingToARowThatHasGone();
    void EndsTheBurst();
    void TakesAWholeCharacter();
    void PassesHiddenRows();
    void TakesWhatAWindowHasTyped();
};

void tst_CellEditing::EntersByKey_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("a letter") << 3 << int('x') << u"x"_s;
    QTest::newRow("a blank") << 3 << 32 << u" "_s;
    QTest::newRow("below 32") << 3 << 31 << u"abc"_s;
    QTest::newRow("delete's character") << 3 << 127 << u"abc"_s;
    QTest::newRow("no character at all") << 3 << 0 << u"abc"_s;
    QTest::newRow("a large one") << 3 << 0x1F600 << u"\U0001F600"_s;
    QTest::newRow("half of one") << 3 << 0xD83D << u"abc"_s;
    QTest::newRow("a list") << 1 << int('g') << u"Red"_s;
    QTest::newRow("a line with buttons") << 2 << int('7') << u"7"_s;
    QTest::newRow("a line with a list") << 4 << int('G') << u"G"_s;
    QTest::newRow("a line with a list, by enter") << 4 << 13 << u"Blue"_s;
}

void tst_CellEditing::EntersByKey() {
    QFETCH(int, col);
    QFETCH(int, key);
    Desk desk;
    desk.GoTo(1, col);
    const QString cell = desk.Cell();
    QVERIFY(desk.Editing.OnCellKeyPress(key));
    QVERIFY(desk.Editing.IsEditing());
    QTEST(desk.Editing.Editor()->Text(), "text");
    QCOMPARE(desk.Editing.EditColumnId(), static_cast<EditorKind>(col));
    QCOMPARE(desk.Cell(), cell);
}

void tst_CellEditing::StaysOut_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<int>("lastEditRow");
    QTest::newRow("a heading") << 0 << 3 << true << 0;
    QTest::newRow("a row that is struck through") << 2 << 3 << true << 0;
    QTest::newRow("nothing may be edited") << 1 << 3 << false << 0;
    QTest::newRow("a column without an editor") << 1 << 0 << true << 1;
}

void tst_CellEditing::StaysOut() {
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(bool, editable);
    Desk desk;
    desk.Grid.SetStruckThrough(2, true);
    desk.Editing.Editable = editable;
    desk.GoTo(row, col);
    QVERIFY(!desk.Editing.OnCellKeyPress('x'));
    QVERIFY(!desk.Editing.IsEditing());
    QCOMPARE(desk.Editing.Editor(), nullptr);
    QCOMPARE(desk.Editing.EditColumnId(), EditorKind::None);
    QTEST(desk.Grid.LastEditRow, "lastEditRow");
}

void tst_CellEditing::EntersOnce() {
    Desk desk;
    desk.GoTo(1, 3);
    QVERIFY(!desk.Editing.OnCellKeyPress(KeyCode::Escape));
    QVERIFY(desk.Editing.OnCellKeyPress('x'));
    QVERIFY(!desk.Editing.OnCellKeyPress('y'));
    QCOMPARE(desk.Editing.Editor()->Text(), u"x"_s);
    Desk hidden;
    hidden.GoTo(1, 3);
    hidden.Columns.SetCellCtlVisible(3, false);
    QVERIFY(!hidden.Editing.OnCellKeyPress('x'));
}

void tst_CellEditing::NotesTheRow() {
    Desk desk;
    desk.GoTo(2, 3);
    desk.Editing.OnCellKeyPress('x');
    QCOMPARE(desk.Grid.LastEditRow, 2);
    desk.Press(KeyCode::Enter);
    QCOMPARE(desk.Grid.LastEditRow, 2);
}

void tst_CellEditing::OpensNoEmptyList() {
    Desk desk;
    desk.Columns.ClearCellCombo(1);
    desk.Columns.ClearCellComboEdit(4);
    desk.GoTo(1, 1);
    QVERIFY(!desk.Editing.OnCellKeyPress('g'));
    QCOMPARE(desk.Cell(), u"Red"_s);
    desk.GoTo(1, 4);
    QVERIFY(desk.Editing.OnCellKeyPress('g'));
}

void tst_CellEditing::WritesAtTheEnd_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("cell");
    const int up = KeyCode::Up;
    const int down = KeyCode::Down;
    QTest::newRow("a text") << 1 << 3 << u"xy"_s << QList<int>() << u"xy"_s;
    QTest::newRow("a text with blanks") << 1 << 3 << u" x "_s << QList<int>() << u" x "_s;
    QTest::newRow("an emptied text") << 1 << 3 << u"x"_s << QList<int>{8} << QString();
    QTest::newRow("delete in a text") << 1 << 3 << u"xy"_s << QList<int>{36, 46} << u"y"_s;
    QTest::newRow("the text as it was") << 1 << 3 << QString() << QList<int>{13} << u"abc"_s;
    QTest::newRow("a spun number") << 1 << 2 << QString() << QList<int>{13, up} << u"2.50"_s;
    QTest::newRow("a number spun down") << 2 << 2 << QString() << QList<int>{13, down} << u"2"_s;
    QTest::newRow("a spun date") << 3 << 2 << QString() << QList<int>{13, up} << u"26/03/2008"_s;
    QTest::newRow("a choice") << 1 << 1 << QString() << QList<int>{13, down, down} << u"Blue"_s;
    QTest::newRow("no choice any more") << 1 << 1 << QString() << QList<int>{13, 46} << QString();
    QTest::newRow("a choice by its initial") << 1 << 1 << u"gb"_s << QList<int>() << u"Blue"_s;
    QTest::newRow("a completed text") << 2 << 4 << u"Gr"_s << QList<int>() << u"Green"_s;
    QTest::newRow("a text of its own") << 2 << 4 << u"Gry"_s << QList<int>() << u"Gry"_s;
    QTest::newRow("a line with a list, cleared")
        << 1 << 4 << u"Gr"_s << QList<int>{46} << QString();
}

void tst_CellEditing::WritesAtTheEnd() {
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(QString, typed);
    QFETCH(QList<int>, keys);
    Desk desk;
    desk.GoTo(row, col);
    desk.Type(typed);
    for (const int key : keys) {
        desk.Press(key);
    }
    QVERIFY(desk.Editing.IsEditing());
    desk.Press(KeyCode::Enter);
    QVERIFY(!desk.Editing.IsEditing());
    QTEST(desk.Cell(), "cell");
    QCOMPARE(desk.Grid.Row(), row);
    QCOMPARE(desk.Grid.Col(), col);
}

void tst_CellEditing::WritesNumbers_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cell");
    QTest::newRow("a fraction") << 3 << u" 1.5 "_s << u"1.50"_s;
    QTest::newRow("a whole number") << 3 << u"08"_s << u"8"_s;
    QTest::newRow("a word") << 3 << u" x "_s << u"x"_s;
    QTest::newRow("with buttons") << 2 << u"4.0"_s << u"4.00"_s;
    QTest::newRow("a list's text stays") << 4 << u"1.5"_s << u"1.5"_s;
}

void tst_CellEditing::WritesNumbers() {
    QFETCH(int, col);
    QFETCH(QString, typed);
    Desk desk;
    desk.Columns.SetColFormat(u"0,0,0,0,0"_s);
    desk.GoTo(1, col);
    desk.Type(typed);
    desk.Press(KeyCode::Enter);
    QTEST(desk.Cell(), "cell");
}

void tst_CellEditing::CancelsWithoutATrace() {
    Desk desk;
    desk.Grid.LastEditRow = 3;
    desk.GoTo(1, 3);
    desk.Type(u"xyz"_s);
    desk.Press(KeyCode::Escape);
    QVERIFY(!desk.Editing.IsEditing());
    QCOMPARE(desk.Cell(), u"abc"_s);
    QCOMPARE(desk.Grid.LastEditRow, 3);
    QVERIFY(!desk.Editing.RowChanges);
    desk.Editing.CancelCellEdit();
    QCOMPARE(desk.Grid.LastEditRow, 3);
}

void tst_CellEditing::TellsOfChanges() {
    Desk desk;
    desk.GoTo(1, 3);
    desk.Type(u"abc"_s);
    desk.Press(KeyCode::Enter);
    QVERIFY(!desk.Editing.RowChanges);
    desk.Type(u"abd"_s);
    QVERIFY(!desk.Editing.RowChanges);
    desk.Press(KeyCode::Enter);
    QVERIFY(desk.Editing.RowChanges);
    desk.Type(u"abd"_s);
    desk.Press(KeyCode::Enter);
    QVERIFY(desk.Editing.RowChanges);
}

void tst_CellEditing::EndsByThePageKeys() {
    Desk desk;
    desk.Editing.PageRows = 2;
    desk.GoTo(1, 3);
    desk.Type(u"x"_s);
    desk.Press(KeyCode::PageDown);
    QVERIFY(!desk.Editing.IsEditing());
    QCOMPARE(desk.Grid.TextMatrix(1, 3), u"x"_s);
    QCOMPARE(desk.Grid.Row(), 3);
    QCOMPARE(desk.Grid.Col(), 3);
    desk.Type(u"y"_s);
    desk.Press(KeyCode::PageDown);
    QCOMPARE(desk.Grid.Row(), 3);
    desk.GoTo(2, 4);
    desk.Type(u"z"_s);
    desk.Press(KeyCode::PageUp);
    QCOMPARE(desk.Grid.Row(), 1);
    QCOMPARE(desk.Grid.TextMatrix(2, 4), u"z"_s);
}

void tst_CellEditing::StaysAtTab() {
    Desk desk;
    desk.GoTo(1, 3);
    desk.Type(u"x"_s);
    desk.Press(KeyCode::Tab);
    QVERIFY(desk.Editing.IsEditing());
    QCOMPARE(desk.Editing.Editor()->Text(), u"x"_s);
    QCOMPARE(desk.Grid.Col(), 3);
}

void tst_CellEditing::MovesOnAtEnter() {
    Desk desk;
    desk.Editing.MoveToNextOnEnter = true;
    desk.GoTo(1, 3);
    desk.Type(u"x"_s);
    desk.Press(KeyCode::Enter);
    QCOMPARE(desk.Grid.TextMatrix(1, 3), u"x"_s);
    QCOMPARE(desk.Grid.Row(), 1);
    QCOMPARE(desk.Grid.Col(), 4);
    desk.Press(KeyCode::Enter);
    QVERIFY(!desk.Editing.IsEditing());
    QCOMPARE(desk.Grid.Row(), 2);
    QCOMPARE(desk.Grid.Col(), 1);
}

void tst_CellEditing::MovesOnFromTheGrid() {
    Desk desk;
    desk.GoTo(1, 2);
    QVERIFY(desk.Editing.OnGridKey({KeyCode::Tab, {}}));
    QCOMPARE(desk.Grid.Col(), 3);
    QVERIFY(!desk.Editing.IsEditing());
    QVERIFY(desk.Editing.OnGridKey({KeyCode::Backspace, {}}));
    QCOMPARE(desk.Editing.Editor()->Text(), u"abc"_s);
}

void tst_CellEditing::LeavesOtherKeysToTheGrid() {
    Desk desk;
    desk.GoTo(1, 3);
    for (const int code : {27, 33, 34, 35, 36, 37, 38, 39, 40, 46}) {
        QVERIFY(!desk.Editing.OnGridKey({code, {}}));
        QVERIFY(!desk.Editing.IsEditing());
    }
    QCOMPARE(desk.Cell(), u"abc"_s);
    QCOMPARE(desk.Grid.Row(), 1);
}

void tst_CellEditing::MovesToTheNextCell() {
    Desk desk;
    desk.GoTo(1, 3);
    desk.Editing.MoveToNextCell();
    QCOMPARE(desk.Grid.Row(), 1);
    QCOMPARE(desk.Grid.Col(), 4);
    desk.Editing.MoveToNextCell();
    QCOMPARE(desk.Grid.Row(), 2);
    QCOMPARE(desk.Grid.Col(), 1);
    desk.GoTo(3, 4);
    desk.Editing.MoveToNextCell();
    QCOMPARE(desk.Grid.Row(), 3);
    QCOMPARE(desk.Grid.Col(), 1);
}

void tst_CellEditing::MovesWhereNothingCanBeEdited() {
    Desk desk;
    desk.Columns = {};
    desk.GoTo(1, 4);
    desk.Editing.MoveToNextCell();
    QCOMPARE(desk.Grid.Row(), 2);
    QCOMPARE(desk.Grid.Col(), 0);
    desk.Grid = editor::EditGridData({0, 0, 0, 0});
    desk.Editing.MoveToNextCell();
    QVERIFY(!desk.Editing.OnCellKeyPress('x'));
    QCOMPARE(desk.Grid.Row(), 0);
}

void tst_CellEditing::Spins() {
    Desk desk;
    desk.Editing.Spin(1);
    desk.GoTo(2, 2);
    desk.Press(KeyCode::Enter);
    desk.Editing.Spin(1);
    desk.Editing.Spin(1);
    desk.Editing.Spin(-1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"4"_s);
    desk.Editing.Editor()->SetText(u"14/6"_s);
    desk.Editing.Spin(1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"15/06/2026"_s);
}

void tst_CellEditing::EndsNothing() {
    Desk desk;
    desk.GoTo(1, 3);
    desk.Editing.EndCellEdit();
    desk.Editing.OnKeyFromEditor({KeyCode::Enter, {}});
    desk.Editing.OnKeyFromEditor({0, u"x"_s});
    QCOMPARE(desk.Cell(), u"abc"_s);
    QVERIFY(!desk.Editing.IsEditing());
}

void tst_CellEditing::WritesToARowThatHasMoved() {
    Desk desk;
    desk.GoTo(2, 3);
    desk.Type(u"x"_s);
    desk.Grid.RemoveItem(1);
    desk.Editing.EndCellEdit();
    QCOMPARE(RowsOf(desk.Grid), QStringList({u"2|Green|3|x|x"_s, u"3||25/03/2008|e|"_s}));
}

void tst_CellEditing::WritesNothingToARowThatHasGone() {
    Desk desk;
    desk.Grid.SetFixedRows(0);
    desk.GoTo(2, 3);
    desk.Type(u"y"_s);
    desk.Grid.RemoveItem(2);
    desk.Editing.EndCellEdit();
    QCOMPARE(desk.Grid.TextMatrix(0, 3), u"T"_s);
    QCOMPARE(RowsOf(desk.Grid), QStringList({u"1|Red|1.50|abc|Blue"_s, u"3||25/03/2008|e|"_s}));
    QVERIFY(!desk.Editing.RowChanges);
}

void tst_CellEditing::EndsTheBurst() {
    Desk desk;
    desk.Editing.SetTypeCheckingTime(200);
    desk.GoTo(1, 4);
    desk.Type(u"Gr"_s);
    QCOMPARE(desk.Editing.Burst().ListItem(), 1);
    desk.Machine.Clock.Advance(200);
    QCOMPARE(desk.Editing.Burst().ListItem(), -1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"Green"_s);
    desk.Type(u"e"_s);
    desk.Press(KeyCode::Escape);
    QCOMPARE(desk.Editing.Burst().ListItem(), -1);
    desk.Type(u"Re"_s);
    desk.Press(KeyCode::Enter);
    QCOMPARE(desk.Editing.Burst().TypedText(), QString());
}

void tst_CellEditing::TakesAWholeCharacter() {
    Desk desk;
    desk.GoTo(1, 3);
    QVERIFY(desk.Editing.OnGridKey({0, u"e\u0301"_s}));
    QCOMPARE(desk.Editing.Editor()->Text(), u"e\u0301"_s);
}

void tst_CellEditing::PassesHiddenRows() {
    Desk desk;
    desk.Grid.SetRowHeight(2, 0);
    desk.GoTo(1, 4);
    desk.Editing.MoveToNextCell();
    QCOMPARE(desk.Grid.Row(), 3);
    desk.Editing.PageRows = 1;
    desk.Type(u"x"_s);
    desk.Press(KeyCode::PageUp);
    QCOMPARE(desk.Grid.Row(), 1);
    desk.Grid.SetRowHeight(3, 0);
    desk.GoTo(1, 4);
    desk.Editing.MoveToNextCell();  // none is seen below
    QCOMPARE(desk.Grid.Row(), 1);
}

void tst_CellEditing::TakesWhatAWindowHasTyped() {
    Desk desk;
    QCOMPARE(desk.Editing.TakeTyped(u"g"_s, u"g"_s), -1);
    desk.GoTo(1, 3);
    desk.Type(u"x"_s);
    QCOMPARE(desk.Editing.TakeTyped(u"g"_s, u"g"_s), -1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"x"_s);
    desk.Press(KeyCode::Escape);
    desk.GoTo(1, 4);
    desk.Type(u"x"_s);
    QCOMPARE(desk.Editing.EditColumn(), 4);
    QCOMPARE(desk.Editing.TakeTyped(u"g"_s, u"g"_s), 1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"Green"_s);
    QCOMPARE(desk.Editing.TakeTyped(u"q"_s, u"gq"_s), -1);
    QCOMPARE(desk.Editing.Editor()->Text(), u"gq"_s);
    QCOMPARE(desk.Editing.Burst().TypedText(), u"gq"_s);
}

QTEST_GUILESS_MAIN(tst_CellEditing)
#include "tst_CellEditing.moc"
