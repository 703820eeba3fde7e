#include "editor/GridState.h"

#include <QTest>

#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::GridLook;

namespace {

struct Desk {
    FakeServices Machine;
    editor::EditGridData Data{{5, 3, 1, 1}};
    editor::GridColumns Columns;
    editor::CellEditing Editing{Data, Columns, Machine.Clock};
    GridLook Look;
    editor::GridState State{Data, Columns, Editing, Look};

    Desk() { Columns.Setup(3); }
};

}  // namespace

class tst_GridState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ComesBack();
    void LeavesWhatIsNotHeld();
    void RefusesOddSizes();
};

void tst_GridState::ComesBack() {
    Desk desk;
    desk.Columns.SetCellCtlID(1, 4);
    desk.Columns.SetCellCtlID(2, 2);
    desk.Columns.SetCellCtlVisible(2, false);
    desk.Columns.SetColFormat(u",,0.00"_s);
    desk.Data.Mode = editor::SelectionMode::ByRow;
    desk.Editing.Editable = false;
    desk.Editing.MoveToNextOnEnter = true;
    const QVariantMap bag = desk.State.Save();
    Desk other;
    other.Data = editor::EditGridData();
    other.State.Load(bag);
    QCOMPARE(other.Data.Rows(), 5);
    QCOMPARE(other.Data.Cols(), 3);
    QCOMPARE(other.Data.FixedCols(), 1);
    QCOMPARE(other.Data.Mode, editor::SelectionMode::ByRow);
    QVERIFY((other.Columns.Ctl(1) == editor::CellCtl{editor::EditorKind::ComboEdit, true}));
    QVERIFY((other.Columns.Ctl(2) == editor::CellCtl{editor::EditorKind::UpDown, false}));
    QCOMPARE(other.Columns.ColFormat(2), u"0.00"_s);
    QVERIFY(!other.Editing.Editable);
    QVERIFY(other.Editing.MoveToNextOnEnter);
    QCOMPARE(other.State.Save(), bag);
}

void tst_GridState::LeavesWhatIsNotHeld() {
    Desk desk;
    desk.Data.SetTextMatrix(2, 1, u"text"_s);
    desk.Columns.SetCellCtlID(1, 3);
    desk.Look.FocusRect = 2;
    desk.State.Load({});
    QCOMPARE(desk.Data.TextMatrix(2, 1), u"text"_s);
    QVERIFY(desk.Columns.IsEditable(1));
    QCOMPARE(desk.Look.FocusRect, 2);
    QVERIFY(desk.Editing.Editable);
    desk.State.Load({{u"Rows"_s, 9}});
    QCOMPARE(desk.Data.Rows(), 9);
    QCOMPARE(desk.Data.Cols(), 3);
}

void tst_GridState::RefusesOddSizes() {
    Desk desk;
    desk.State.Load({{u"Rows"_s, -1}});
    QCOMPARE(desk.Data.Rows(), 5);
    desk.State.Load({{u"Rows"_s, 2'000'000'000}});
    QCOMPARE(desk.Data.Rows(), 5);
    desk.State.Load({{u"SelectionMode"_s, 3}});
    QCOMPARE(desk.Data.Mode, editor::SelectionMode::Free);
}

QTEST_MAIN(tst_GridState)
#include "tst_GridState.moc"
