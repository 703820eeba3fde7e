#include "editor/GridDesk.h"

/// How an edit ends: with the focus, by another cell, when the data change under it.
class tst_ctlEditGridEnding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EndsWithTheFocus();
    void StaysForItsOwnMenu();
    void StaysWhileAnotherProgramHasTheKeyboard();
    void EndsByAnotherCell();
    void AsksBeforeTheFocusLeaves();
    void EndsBeforeARefresh();
    void DropsAnEditWhoseRowIsAnother();
    void WritesWhereTheRowHasMoved();
    void LetsTheGridGo();
};

void tst_ctlEditGridEnding::EndsWithTheFocus() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"new"_s);
    desk.Beside.setFocus();
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 3), u"new"_s);
    QVERIFY(desk.Beside.hasFocus());
    QCOMPARE(desk.Host.Events.filter(u"CellChanged"_s).size(), 1);
}

void tst_ctlEditGridEnding::StaysForItsOwnMenu() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"n"_s);
    QFocusEvent event(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(desk.Editor(), &event);
    QVERIFY(desk.Editor() != nullptr);
    QCOMPARE(desk.Cell(1, 3), u"abc"_s);
}

void tst_ctlEditGridEnding::StaysWhileAnotherProgramHasTheKeyboard() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"n"_s);
    QApplication::setActiveWindow(nullptr);
    QVERIFY(desk.Editor() != nullptr);
    QVERIFY(!desk.Host.Events.contains(u"Validate"_s));
    QApplication::setActiveWindow(&desk.Window);
    QVERIFY(desk.Editor()->hasFocus());
    desk.Type(u"ew"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"new"_s);
}

void tst_ctlEditGridEnding::EndsByAnotherCell() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"new"_s);
    desk.ClickCell(3, 2);
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 3), u"new"_s);
    QCOMPARE(desk.Grid.Data().Row(), 3);
    const qsizetype changed = desk.Host.Events.indexOf(u"CellChanged 1 3"_s);
    QVERIFY(changed >= 0);
    QVERIFY(changed < desk.Host.Events.indexOf(u"RowColChange"_s));
}

void tst_ctlEditGridEnding::AsksBeforeTheFocusLeaves() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Beside.setFocus();
    QCOMPARE(desk.Host.Events, QStringList{u"Validate"_s});
    desk.View().setFocus();
    desk.Type(u"x"_s);  // to the editor, which is the grid's own
    QCOMPARE(desk.Host.Events.filter(u"Validate"_s).size(), 1);
    desk.Host.KeepsFocus = true;
    const int before = desk.Host.Focuses;
    desk.Beside.setFocus();
    QCOMPARE(desk.Host.Events.filter(u"Validate"_s).size(), 2);
    QTRY_VERIFY(desk.View().hasFocus());
    QCOMPARE(desk.Host.Focuses, before + 1);
    desk.Grid.Look().CausesValidation = false;
    desk.Beside.setFocus();
    QCOMPARE(desk.Host.Events.filter(u"Validate"_s).size(), 2);
}

void tst_ctlEditGridEnding::EndsBeforeARefresh() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"new"_s);
    desk.Grid.Data().SetTextMatrix(2, 0, u"changed"_s);
    desk.Grid.Refresh();
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 3), u"new"_s);
    QCOMPARE(desk.View().model()->index(1, 0).data().toString(), u"changed"_s);
}

void tst_ctlEditGridEnding::DropsAnEditWhoseRowIsAnother() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetRowData(1, 10);
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"new"_s);
    desk.Grid.Data().SetRowData(1, 11);  // another record with the same text
    desk.Grid.Refresh();
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 3), u"abc"_s);
    desk.Type(u"new"_s);
    desk.Grid.Data().SetTextMatrix(1, 3, u"other"_s);
    desk.Grid.Refresh();
    QCOMPARE(desk.Cell(1, 3), u"other"_s);
}

void tst_ctlEditGridEnding::WritesWhereTheRowHasMoved() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetRowData(2, 7);
    desk.GoTo(2, GridDesk::Text);
    desk.Type(u"new"_s);
    desk.Grid.Data().RemoveItem(1);
    desk.Grid.Refresh();
    QCOMPARE(desk.Cell(1, 3), u"new"_s);
    QCOMPARE(desk.Cell(2, 3), u"e"_s);
}

void tst_ctlEditGridEnding::LetsTheGridGo() {
    FakeServices machine;
    RecordingHost host;
    QWidget window;
    auto* grid = new ctlEditGrid(machine.Clock, host, &window);
    grid->SetCellCtl(1, 1);
    grid->Columns().AddCellComboItem(1, u"A"_s);
    grid->Data().SetCol(1);
    grid->Refresh();
    window.show();
    grid->View().setFocus();
    QVERIFY(grid->OnCellKeyPress(13));
    delete grid;
    QCoreApplication::processEvents();
    QVERIFY(window.findChildren<QWidget*>().isEmpty());
}

QTEST_MAIN(tst_ctlEditGridEnding)
#include "tst_ctlEditGridEnding.moc"
