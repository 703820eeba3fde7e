#include "editor/CellEditor.h"

#include <QTest>

#include "editor/TypeAhead.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::CellEditor;
using editor::EditorKind;
namespace KeyCode = editor::KeyCode;

namespace {

const QStringList Colours{u"Red"_s, u"Green"_s, u"Blue"_s};

/// An editor and the keys that it is given.
struct Desk {
    FakeServices Machine;
    editor::TypeAhead Burst{Machine.Clock};
    CellEditor Editor;

    Desk(EditorKind kind, const QString& text, const QString& typed = {},
         const QStringList& items = Colours)
        : Editor(kind, text, items) {
        Editor.Begin(typed);
    }
    void Press(int code) { Editor.Key({code, {}}, Burst, 2026); }
    void Type(const QString& text) {
        for (const QChar character : text) {
            Editor.Key({0, character}, Burst, 2026);
        }
    }
};

}  // namespace

class tst_CellEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsWithTheCell_data();
    void BeginsWithTheCell();
    void BeginsWithACharacter_data();
    void BeginsWithACharacter();
    void DropsItsListDown();
    void TakesOverATextOfTheWindow();
    void ChoosesByPlace();
    void EditsALine();
    void SpinsByKeys();
    void SpinsNothingElse();
    void MovesInAList_data();
    void MovesInAList();
    void JumpsToAnInitial();
    void KeepsTheCellsTextInAList();
    void LetsTheChoiceGo();
    void TypesAhead();
    void CompletesOnlyAtTheEnd();
    void TypesWhatNoEntryHas();
    void PicksBesideTheLine();
};

void tst_CellEditor::BeginsWithTheCell_data() {
    QTest::addColumn<EditorKind>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::newRow("a list") << EditorKind::Combo << u"Green"_s << 1;
    QTest::newRow("a list without the text") << EditorKind::Combo << u"green"_s << -1;
    QTest::newRow("a line with a list") << EditorKind::ComboEdit << u"Blue"_s << 2;
    QTest::newRow("a line with a list without the text") << EditorKind::ComboEdit << u"x"_s << -1;
    QTest::newRow("a line") << EditorKind::Text << u"x"_s << -1;
    QTest::newRow("a line with buttons") << EditorKind::UpDown << u"3"_s << -1;
}

void tst_CellEditor::BeginsWithTheCell() {
    QFETCH(EditorKind, kind);
    QFETCH(QString, text);
    const Desk desk(kind, text);
    QCOMPARE(desk.Editor.Kind(), kind);
    QCOMPARE(desk.Editor.OldText(), text);
    QCOMPARE(desk.Editor.Text(), text);
    QTEST(desk.Editor.ListIndex(), "index");
    QCOMPARE(desk.Editor.Line().Caret(), text.size());
}

void tst_CellEditor::BeginsWithACharacter_data() {
    QTest::addColumn<EditorKind>("kind");
    QTest::addColumn<QString>("text");
    QTest::newRow("a list") << EditorKind::Combo << u"Red"_s;
    QTest::newRow("a line with a list") << EditorKind::ComboEdit << u"B"_s;
    QTest::newRow("a line") << EditorKind::Text << u"B"_s;
    QTest::newRow("a line with buttons") << EditorKind::UpDown << u"B"_s;
}

void tst_CellEditor::BeginsWithACharacter() {
    QFETCH(EditorKind, kind);
    const Desk desk(kind, u"Red"_s, u"B"_s);
    QTEST(desk.Editor.Text(), "text");
    QCOMPARE(desk.Editor.OldText(), u"Red"_s);
    QCOMPARE(desk.Editor.Line().Caret(), desk.Editor.Text().size());
    QCOMPARE(desk.Editor.Line().SelectedLength(), 0);
}

void tst_CellEditor::DropsItsListDown() {
    QVERIFY(Desk(EditorKind::Combo, u"Red"_s).Editor.IsDroppedDown());
    QVERIFY(!Desk(EditorKind::Combo, u"Red"_s, {}, {}).Editor.IsDroppedDown());
    QVERIFY(!Desk(EditorKind::ComboEdit, u"Red"_s).Editor.IsDroppedDown());
    QVERIFY(!Desk(EditorKind::Text, u"Red"_s).Editor.IsDroppedDown());
}

void tst_CellEditor::TakesOverATextOfTheWindow() {
    Desk desk(EditorKind::ComboEdit, u"Red"_s);
    desk.Editor.SetText(u"Blue"_s);
    QCOMPARE(desk.Editor.Text(), u"Blue"_s);
    QCOMPARE(desk.Editor.ListIndex(), 2);
    desk.Editor.SetText(u"Bluish"_s);
    QCOMPARE(desk.Editor.Text(), u"Bluish"_s);
    QCOMPARE(desk.Editor.ListIndex(), -1);
    QCOMPARE(desk.Editor.OldText(), u"Red"_s);
}

void tst_CellEditor::ChoosesByPlace() {
    Desk desk(EditorKind::Combo, u"Red"_s);
    QVERIFY(desk.Editor.Choose(2));
    QCOMPARE(desk.Editor.Text(), u"Blue"_s);
    QVERIFY(!desk.Editor.Choose(3));
    QVERIFY(!desk.Editor.Choose(-1));
    QCOMPARE(desk.Editor.ListIndex(), 2);
}

void tst_CellEditor::EditsALine() {
    Desk desk(EditorKind::Text, u"abc"_s);
    desk.Press(KeyCode::Left);
    desk.Type(u"x\u00e9"_s);
    desk.Press(KeyCode::Backspace);
    desk.Press(KeyCode::Delete);
    QCOMPARE(desk.Editor.Text(), u"abx"_s);
    desk.Press(KeyCode::Up);
    desk.Press(KeyCode::Down);
    QCOMPARE(desk.Editor.Text(), u"abx"_s);
    desk.Press(KeyCode::Home);
    desk.Type(u"."_s);
    QCOMPARE(desk.Editor.Text(), u".abx"_s);
}

void tst_CellEditor::SpinsByKeys() {
    Desk desk(EditorKind::UpDown, u"1.50"_s);
    desk.Press(KeyCode::Up);
    QCOMPARE(desk.Editor.Text(), u"2.50"_s);
    desk.Press(KeyCode::Down);
    desk.Press(KeyCode::Down);
    QCOMPARE(desk.Editor.Text(), u"0.50"_s);
    desk.Editor.Spin(1, 2026);
    QCOMPARE(desk.Editor.Text(), u"1.50"_s);
    desk.Editor.SetText(u"1/3"_s);
    desk.Press(KeyCode::Down);
    QCOMPARE(desk.Editor.Text(), u"28/02/2026"_s);
    desk.Type(u"&("_s);  // their numbers are those of Up and Down
    QCOMPARE(desk.Editor.Text(), u"28/02/2026&("_s);
}

void tst_CellEditor::SpinsNothingElse() {
    Desk desk(EditorKind::UpDown, u"soon"_s);
    desk.Press(KeyCode::Left);
    desk.Press(KeyCode::Up);
    QCOMPARE(desk.Editor.Text(), u"soon"_s);
    QCOMPARE(desk.Editor.Line().Caret(), 3);
}

void tst_CellEditor::MovesInAList_data() {
    QTest::addColumn<QString>("cell");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("down") << u"Red"_s << 40 << u"Green"_s;
    QTest::newRow("right") << u"Red"_s << 39 << u"Green"_s;
    QTest::newRow("down at the end") << u"Blue"_s << 40 << u"Blue"_s;
    QTest::newRow("up") << u"Blue"_s << 38 << u"Green"_s;
    QTest::newRow("left") << u"Blue"_s << 37 << u"Green"_s;
    QTest::newRow("up at the start") << u"Red"_s << 38 << u"Red"_s;
    QTest::newRow("end") << u"Red"_s << 35 << u"Blue"_s;
    QTest::newRow("home") << u"Blue"_s << 36 << u"Red"_s;
    QTest::newRow("down without a choice") << u"x"_s << 40 << u"Red"_s;
    QTest::newRow("up without a choice") << u"x"_s << 38 << u"Red"_s;
    QTest::newRow("backspace") << u"Green"_s << 8 << u"Green"_s;
}

void tst_CellEditor::MovesInAList() {
    QFETCH(QString, cell);
    QFETCH(int, code);
    Desk desk(EditorKind::Combo, cell);
    desk.Press(code);
    QTEST(desk.Editor.Text(), "text");
}

void tst_CellEditor::JumpsToAnInitial() {
    Desk desk(EditorKind::Combo, u"Red"_s, {}, {u"Red"_s, u"Blue"_s, u"Black"_s});
    desk.Type(u"b"_s);
    QCOMPARE(desk.Editor.Text(), u"Blue"_s);
    desk.Type(u"b"_s);
    QCOMPARE(desk.Editor.Text(), u"Blue"_s);
    desk.Type(u"x"_s);
    QCOMPARE(desk.Editor.Text(), u"Blue"_s);
    QCOMPARE(desk.Editor.ListIndex(), 1);
}

void tst_CellEditor::KeepsTheCellsTextInAList() {
    Desk desk(EditorKind::Combo, u"Purple"_s);
    desk.Type(u"x"_s);
    QCOMPARE(desk.Editor.ListIndex(), -1);
    QCOMPARE(desk.Editor.Text(), u"Purple"_s);
}

void tst_CellEditor::LetsTheChoiceGo() {
    Desk desk(EditorKind::Combo, u"Red"_s);
    desk.Editor.ClearChoice();
    QCOMPARE(desk.Editor.ListIndex(), -1);
    QCOMPARE(desk.Editor.Text(), QString());
}

void tst_CellEditor::TypesAhead() {
    Desk desk(EditorKind::ComboEdit, u"Red"_s, u"g"_s);
    QCOMPARE(desk.Editor.Text(), u"g"_s);
    desk.Type(u"r"_s);
    QCOMPARE(desk.Editor.Text(), u"Green"_s);
    QCOMPARE(desk.Editor.Line().TypedText(), u"Gr"_s);
    QCOMPARE(desk.Editor.ListIndex(), 1);
    QCOMPARE(desk.Burst.ListItem(), 1);
    desk.Type(u"i"_s);
    QCOMPARE(desk.Editor.Text(), u"Gri"_s);
    QCOMPARE(desk.Editor.ListIndex(), -1);
    QCOMPARE(desk.Burst.ListItem(), -1);
    desk.Press(KeyCode::Backspace);
    QCOMPARE(desk.Editor.Text(), u"Gr"_s);
}

void tst_CellEditor::CompletesOnlyAtTheEnd() {
    Desk desk(EditorKind::ComboEdit, u"Gre"_s);
    desk.Press(KeyCode::Home);
    desk.Press(KeyCode::Delete);
    desk.Type(u"G"_s);
    QCOMPARE(desk.Editor.Text(), u"Gre"_s);
    QCOMPARE(desk.Editor.Line().Caret(), 1);
}

void tst_CellEditor::TypesWhatNoEntryHas() {
    Desk desk(EditorKind::ComboEdit, u"Red"_s, u"x"_s);
    desk.Type(u"y"_s);
    QCOMPARE(desk.Editor.Text(), u"xy"_s);
    Desk without(EditorKind::ComboEdit, u"Red"_s, {}, {});
    without.Type(u"d"_s);
    QCOMPARE(without.Editor.Text(), u"Redd"_s);
}

void tst_CellEditor::PicksBesideTheLine() {
    Desk desk(EditorKind::ComboEdit, u"Red"_s);
    desk.Press(KeyCode::Down);
    QCOMPARE(desk.Editor.Text(), u"Green"_s);
    desk.Press(KeyCode::Left);
    desk.Press(KeyCode::Backspace);
    QCOMPARE(desk.Editor.Text(), u"Gren"_s);
    QCOMPARE(desk.Editor.ListIndex(), -1);
    desk.Press(KeyCode::Up);
    QCOMPARE(desk.Editor.Text(), u"Red"_s);
}

QTEST_GUILESS_MAIN(tst_CellEditor)
#include "tst_CellEditor.moc"
