#include "editor/GridDesk.h"

/// What keys do on the grid and in its editors.
class tst_ctlEditGridKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensByAKey_data();
    void OpensByAKey();
    void StaysShut_data();
    void StaysShut();
    void EndsByEnter_data();
    void EndsByEnter();
    void CancelsByEscape_data();
    void CancelsByEscape();
    void DoesNothingByTab_data();
    void DoesNothingByTab();
    void StaysInTheLine_data();
    void StaysInTheLine();
    void EndsByThePageKeys_data();
    void EndsByThePageKeys();
    void MovesByAsManyRowsAsAreSeen();
    void ClearsTheChoiceByDelete_data();
    void ClearsTheChoiceByDelete();
    void MovesOnAtEnter();
    void OpensAtEnterWhereItDoesNotMoveOn();
    void MovesOnAtTab();
    void LetsTheFocusGoOnBehindTheLastCell();
    void MovesByTheKeysOfTheTable();
    void SelectsWithShift();
};

void tst_ctlEditGridKeys::OpensByAKey_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("text");
    QTest::newRow("a letter on a line") << 3 << u"x"_s << u"ctlText"_s << u"x"_s;
    QTest::newRow("a blank on a line") << 3 << u" "_s << u"ctlText"_s << u" "_s;
    QTest::newRow("an umlaut on a line") << 3 << u"\u00E4"_s << u"ctlText"_s << u"\u00E4"_s;
    QTest::newRow("a percent sign, whose code is an arrow's")
        << 3 << u"%"_s << u"ctlText"_s << u"%"_s;
    QTest::newRow("enter on a line") << 3 << QString() << u"ctlText"_s << u"abc"_s;
    QTest::newRow("a digit on a number") << 2 << u"7"_s << u"ctlUpDown"_s << u"7"_s;
    QTest::newRow("enter on a number") << 2 << QString() << u"ctlUpDown"_s << u"1.50"_s;
    QTest::newRow("a letter on a line with a list") << 4 << u"q"_s << u"ctlComboEdit"_s << u"q"_s;
    QTest::newRow("enter on a line with a list")
        << 4 << QString() << u"ctlComboEdit"_s << u"Blue"_s;
    QTest::newRow("a letter on a list") << 1 << u"g"_s << u"ctlCombo"_s << u"Red"_s;
}

void tst_ctlEditGridKeys::OpensByAKey() {
    QFETCH(int, col);
    QFETCH(QString, typed);
    QFETCH(QString, text);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    if (typed.isEmpty()) {
        desk.Press(Qt::Key_Return);
    } else {
        desk.Type(typed);
    }
    QVERIFY(desk.Editor() != nullptr);
    QTEST(desk.Editor()->objectName(), "widget");
    QCOMPARE(desk.Grid.Editing().Editor()->Text(), text);
    if (desk.Line() != nullptr) {
        QCOMPARE(desk.Line()->text(), text);
        QCOMPARE(desk.Line()->cursorPosition(), text.size());
        QVERIFY(!desk.Line()->hasSelectedText());
    }
    QCOMPARE(desk.List() != nullptr && desk.List()->IsOpen(), col == GridDesk::Combo);
    QVERIFY(desk.Editor()->hasFocus() || col == GridDesk::Combo);
}

void tst_ctlEditGridKeys::StaysShut_data() {
    QTest::addColumn<int>("which");
    QTest::newRow("a column without an editor") << 0;
    QTest::newRow("a row that is struck through") << 1;
    QTest::newRow("a row that is locked") << 2;
    QTest::newRow("a grid that is not editable") << 3;
    QTest::newRow("a column whose editor is hidden") << 4;
    QTest::newRow("a list without entries") << 5;
}

void tst_ctlEditGridKeys::StaysShut() {
    QFETCH(int, which);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, which == 0 ? 0 : which == 5 ? 1 : 3);
    desk.Grid.Data().SetStruckThrough(1, which == 1);
    desk.Grid.Data().SetEditableRow(1, which != 2);
    desk.Grid.Editing().Editable = which != 3;
    desk.Grid.Columns().SetCellCtlVisible(3, which != 4);
    desk.Grid.Columns().ClearCellCombo(1);
    const QString before = desk.Grid.Data().Clip();
    desk.Type(u"x"_s);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() == nullptr);
    QVERIFY(!desk.Grid.Editing().IsEditing());
    QCOMPARE(desk.Grid.Data().Clip(), before);
    QVERIFY(desk.View().hasFocus());
}

void tst_ctlEditGridKeys::EndsByEnter_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cell");
    QTest::newRow("list") << 1 << u"gg"_s << u"Green"_s;
    QTest::newRow("spin") << 2 << u"12"_s << u"12"_s;
    QTest::newRow("line") << 3 << u"xyz"_s << u"xyz"_s;
    QTest::newRow("line with a list") << 4 << u"mine"_s << u"mine"_s;
}

void tst_ctlEditGridKeys::EndsByEnter() {
    QFETCH(int, col);
    QFETCH(QString, typed);
    QFETCH(QString, cell);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Type(typed);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, col), cell);
    QVERIFY(desk.Host.Events.contains(u"CellChanged 1 %1"_s.arg(col)));
    QVERIFY(desk.Grid.Editing().RowChanges);
    QCOMPARE(desk.Grid.Data().Row(), 1);
    QCOMPARE(desk.Grid.Data().Col(), col);
    QTRY_VERIFY(desk.View().hasFocus());
}

void tst_ctlEditGridKeys::CancelsByEscape_data() {
    EndsByEnter_data();
}

void tst_ctlEditGridKeys::CancelsByEscape() {
    QFETCH(int, col);
    QFETCH(QString, typed);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Grid.Data().LastEditRow = 3;
    const QString before = desk.Cell(1, col);
    desk.Type(typed);
    desk.Press(Qt::Key_Escape);
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, col), before);
    QCOMPARE(desk.Grid.Data().LastEditRow, 3);
    QVERIFY(!desk.Grid.Editing().RowChanges);
    QVERIFY(!desk.Host.Events.contains(u"CellChanged 1 %1"_s.arg(col)));
    QTRY_VERIFY(desk.View().hasFocus());
}

void tst_ctlEditGridKeys::DoesNothingByTab_data() {
    EndsByEnter_data();
}

void tst_ctlEditGridKeys::DoesNothingByTab() {
    QFETCH(int, col);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Press(Qt::Key_Return);
    const QString before = desk.Grid.Editing().Editor()->Text();
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.Editor() != nullptr);
    QCOMPARE(desk.Grid.Editing().Editor()->Text(), before);
    QCOMPARE(desk.Grid.Data().Col(), col);
}

void tst_ctlEditGridKeys::StaysInTheLine_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caret");
    QTest::newRow("left in a line") << 3 << int(Qt::Key_Left) << u"abc"_s << 2;
    QTest::newRow("home in a line") << 3 << int(Qt::Key_Home) << u"abc"_s << 0;
    QTest::newRow("up in a line") << 3 << int(Qt::Key_Up) << u"abc"_s << 3;
    QTest::newRow("down in a line") << 3 << int(Qt::Key_Down) << u"abc"_s << 3;
    QTest::newRow("backspace in a line") << 3 << int(Qt::Key_Backspace) << u"ab"_s << 2;
    QTest::newRow("delete in a line") << 3 << int(Qt::Key_Delete) << u"abc"_s << 3;
    QTest::newRow("left in a spin") << 2 << int(Qt::Key_Left) << u"1.50"_s << 3;
    QTest::newRow("up in a spin") << 2 << int(Qt::Key_Up) << u"2.50"_s << 4;
    QTest::newRow("down in a spin") << 2 << int(Qt::Key_Down) << u"0.50"_s << 4;
    QTest::newRow("left in a line with a list") << 4 << int(Qt::Key_Left) << u"Blue"_s << 3;
    QTest::newRow("up in a line with a list") << 4 << int(Qt::Key_Up) << u"Green"_s << 5;
    QTest::newRow("backspace in a line with a list")
        << 4 << int(Qt::Key_Backspace) << u"Blu"_s << 3;
}

void tst_ctlEditGridKeys::StaysInTheLine() {
    QFETCH(int, col);
    QFETCH(int, key);
    QFETCH(QString, text);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key(key));
    QVERIFY(desk.Line() != nullptr);
    QCOMPARE(desk.Line()->text(), text);
    QTEST(desk.Line()->cursorPosition(), "caret");
    QCOMPARE(desk.Grid.Editing().Editor()->Text(), text);
    QCOMPARE(desk.Grid.Data().Row(), 1);
}

void tst_ctlEditGridKeys::EndsByThePageKeys_data() {
    EndsByEnter_data();
}

void tst_ctlEditGridKeys::EndsByThePageKeys() {
    QFETCH(int, col);
    QFETCH(QString, typed);
    QFETCH(QString, cell);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Type(typed);
    desk.Press(Qt::Key_PageDown);
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, col), cell);
    QCOMPARE(desk.Grid.Data().Row(), 3);
    QCOMPARE(desk.View().currentIndex().row(), 2);
    QVERIFY(desk.Host.Events.contains(u"RowColChange"_s));
}

void tst_ctlEditGridKeys::MovesByAsManyRowsAsAreSeen() {
    GridDesk desk;
    desk.Grid.Look().BorderStyle = editor::GridLook::Frame::None;
    desk.Grid.Look().RowHeightMin = 600;  // 40 pixels
    desk.Grid.Data().SetRows(50);
    desk.Show();
    desk.Grid.resize(640, 200 + desk.View().horizontalHeader()->height());
    desk.GoTo(1, GridDesk::Text);
    QCOMPARE(desk.View().viewport()->height(), 200);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_PageDown);
    QCOMPARE(desk.Grid.Data().Row(), 5);  // one of the five stays in sight
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_PageUp);
    QCOMPARE(desk.Grid.Data().Row(), 1);
}

void tst_ctlEditGridKeys::ClearsTheChoiceByDelete_data() {
    QTest::addColumn<int>("col");
    QTest::newRow("list") << 1;
    QTest::newRow("line with a list") << 4;
}

void tst_ctlEditGridKeys::ClearsTheChoiceByDelete() {
    QFETCH(int, col);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Delete);
    QCOMPARE(desk.List()->currentIndex(), -1);
    QCOMPARE(desk.List()->currentText(), QString());
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, col), QString());
}

void tst_ctlEditGridKeys::MovesOnAtEnter() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Editing().MoveToNextOnEnter = true;
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"x"_s);
    desk.Press(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(desk.Cell(1, 3), u"x"_s);
    QCOMPARE(desk.Grid.Data().Col(), 4);
    desk.Press(Qt::Key_Return);  // on the grid itself: behind the last column
    QCOMPARE(desk.Grid.Data().Row(), 2);
    QCOMPARE(desk.Grid.Data().Col(), 1);
    QCOMPARE(desk.View().currentIndex(), desk.View().model()->index(1, 1));
    QVERIFY(desk.Editor() == nullptr);
}

void tst_ctlEditGridKeys::OpensAtEnterWhereItDoesNotMoveOn() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() != nullptr);
    QCOMPARE(desk.Grid.Data().Col(), 3);
}

void tst_ctlEditGridKeys::MovesOnAtTab() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetRowHeight(2, 0);
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Tab);
    QCOMPARE(desk.Grid.Data().Col(), 4);
    QCOMPARE(desk.Host.Events.filter(u"RowColChange"_s).size(), 1);
    desk.Press(Qt::Key_Tab);
    QCOMPARE(desk.Grid.Data().Row(), 3);  // the second row is hidden
    QCOMPARE(desk.Grid.Data().Col(), 1);
    QVERIFY(desk.View().hasFocus());
}

void tst_ctlEditGridKeys::LetsTheFocusGoOnBehindTheLastCell() {
    GridDesk desk;
    QLineEdit last(&desk.Window);  // behind the one beside the grid
    desk.Show();
    desk.GoTo(3, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.Beside.hasFocus());
    QCOMPARE(desk.Grid.Data().Row(), 3);
    QCOMPARE(desk.Host.Events.filter(u"KeyDown"_s), QStringList{u"KeyDown 9 0"_s});
    desk.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(desk.View().hasFocus());
    QCOMPARE(desk.Grid.Data().Col(), 4);
}

void tst_ctlEditGridKeys::MovesByTheKeysOfTheTable() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, 1);
    const auto place = [&desk] {
        return std::pair(desk.Grid.Data().Row(), desk.Grid.Data().Col());
    };
    desk.Press(Qt::Key_Right);
    QCOMPARE(place(), std::pair(1, 2));
    desk.Press(Qt::Key_Down);
    QCOMPARE(place(), std::pair(2, 2));
    desk.Press(Qt::Key_Left);
    QCOMPARE(place(), std::pair(2, 1));
    desk.Press(Qt::Key_Up);
    desk.Press(Qt::Key_Up);
    QCOMPARE(place(), std::pair(1, 1));  // not into the heading
    desk.Press(Qt::Key_End);
    QCOMPARE(place(), std::pair(1, 4));
    desk.Press(Qt::Key_PageDown);
    QCOMPARE(place(), std::pair(3, 4));
    desk.Press(Qt::Key_Delete);
    QCOMPARE(place(), std::pair(3, 4));
    QVERIFY(desk.Editor() == nullptr);
}

void tst_ctlEditGridKeys::SelectsWithShift() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, 3);
    desk.Press(Qt::Key_Left, Qt::ShiftModifier);
    desk.Press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(desk.Grid.Data().Row(), 2);
    QCOMPARE(desk.Grid.Data().Col(), 3);
    QCOMPARE(desk.Grid.Data().RowSel(), 1);
    QCOMPARE(desk.Grid.Data().ColSel(), 2);
    QCOMPARE(desk.Grid.Data().Clip(), u"1.50\tabc\r3\td"_s);
    QVERIFY(!desk.Host.Events.contains(u"RowColChange"_s));
    QCOMPARE(desk.Host.Events.filter(u"SelChange"_s).size(), 2);
}

QTEST_MAIN(tst_ctlEditGridKeys)
#include "tst_ctlEditGridKeys.moc"
