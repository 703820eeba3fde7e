#include "editor/GridDesk.h"

namespace {

void MoveTo(QWidget* widget, const QPoint& place, Qt::MouseButtons buttons = {}) {
    QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

}  // namespace

/// What the mouse does on the grid, its headings and its decorations.
class tst_ctlEditGridMouse : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsAClick();
    void TellsADoubleClick();
    void TellsTheRightButton();
    void TellsThePointer();
    void SelectsByDragging();
    void StaysOffFixedColumns();
    void ClosesGapsByAPress();
    void LeavesGapsOfABlock();
    void LeavesGapsWhereTheHostDoesNotAsk();
    void OpensNoChooserWithoutOptions();
    void SelectsNothingByHeadings();
    void TellsNoClickOfAWidth();
    void TellsARelease();
    void OpensTheChooser();
    void OpensTheChooserOverTheFirstRow();
    void SortsByTheColumnUnderIt();
    void AsksToFind();
    void FitsColumns();
    void HidesTheChooser();
    void OpensTheChooserByAKey();
    void PressesTheButton();
    void PressesTheCheckBox();
    void PressesByKeys();
    void Scrolls();
    void TurnsNoValue_data();
    void TurnsNoValue();
};

void tst_ctlEditGridMouse::TellsAClick() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.ClickCell(2, 4);
    QCOMPARE(desk.Host.Events,
             QStringList({u"MouseDown 1 0"_s, u"LeaveCell"_s, u"EnterCell"_s, u"RowColChange"_s,
                          u"SelChange"_s, u"MouseUp 1 0"_s, u"Click"_s}));
    QCOMPARE(desk.Grid.Data().Row(), 2);
    QCOMPARE(desk.Grid.Data().Col(), 4);
    QCOMPARE(desk.Grid.MouseRow(), 2);
    QCOMPARE(desk.Grid.MouseCol(), 4);
}

void tst_ctlEditGridMouse::TellsADoubleClick() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.ClickCell(1, 3);
    QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, desk.Middle(1, 3));
    QTest::mouseRelease(desk.View().viewport(), Qt::LeftButton, {}, desk.Middle(1, 3));
    QCOMPARE(desk.Host.Events, QStringList({u"MouseDown 1 0"_s, u"MouseUp 1 0"_s, u"Click"_s,
                                            u"DblClick"_s, u"MouseUp 1 0"_s}));
    QVERIFY(desk.Editor() == nullptr);
}

void tst_ctlEditGridMouse::TellsTheRightButton() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    QTest::mouseClick(desk.View().viewport(), Qt::RightButton, Qt::ControlModifier,
                      desk.Middle(2, 3));
    QCOMPARE(desk.Host.Events.first(), u"MouseDown 2 2"_s);
    QCOMPARE(desk.Host.Events.last(), u"MouseUp 2 2"_s);
    QVERIFY(!desk.Host.Events.contains(u"Click"_s));
}

void tst_ctlEditGridMouse::TellsThePointer() {
    GridDesk desk;
    desk.Show();
    const QPoint place = desk.Middle(3, 2);
    MoveTo(desk.View().viewport(), place);
    QCOMPARE(desk.Host.Pointer.toPoint(), desk.View().viewport()->mapTo(&desk.Grid, place));
    QCOMPARE(desk.Grid.MouseRow(), 3);
    MoveTo(desk.View().horizontalHeader()->viewport(), desk.Middle(0, 1));
    QCOMPARE(desk.Grid.MouseRow(), 0);
    QCOMPARE(desk.Grid.MouseCol(), 1);
    MoveTo(desk.View().viewport(), QPoint(5, 300));
    QCOMPARE(desk.Grid.MouseRow(), -1);
}

void tst_ctlEditGridMouse::SelectsByDragging() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    QWidget* cells = desk.View().viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, desk.Middle(3, 3));
    MoveTo(cells, desk.Middle(2, 2), Qt::LeftButton);
    QTest::mouseRelease(cells, Qt::LeftButton, {}, desk.Middle(2, 2));
    QCOMPARE(desk.Grid.Data().Row(), 3);
    QCOMPARE(desk.Grid.Data().Col(), 3);
    QCOMPARE(desk.Grid.Data().Clip(), u"3\td\r25/03/2008\te"_s);
}

void tst_ctlEditGridMouse::StaysOffFixedColumns() {
    GridDesk desk;
    desk.Grid.Data().SetFixedCols(1);
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.ClickCell(2, 0);
    QCOMPARE(desk.Grid.Data().Row(), 1);
    desk.Press(Qt::Key_Left);
    QCOMPARE(desk.Grid.Data().Col(), 1);
}

void tst_ctlEditGridMouse::ClosesGapsByAPress() {
    GridDesk desk;
    desk.Grid.CompactOnPress = true;
    desk.Grid.Data() = GridOf({u"A|B"_s, u"a|1"_s, u"|x"_s, u"c|3"_s}, 2);
    desk.Show();
    desk.GoTo(1, 1);
    desk.ClickCell(3, 0);
    QCOMPARE(RowsOf(desk.Grid.Data()), QStringList({u"a|1"_s, u"c|3"_s, u"|"_s}));
    const QModelIndex moved = desk.View().model()->index(1, 1);
    QCOMPARE(moved.data().toString(), u"3"_s);
}

void tst_ctlEditGridMouse::LeavesGapsOfABlock() {
    GridDesk desk;
    desk.Grid.CompactOnPress = true;
    desk.Grid.Data() = GridOf({u"A|B"_s, u"a|1"_s, u"|x"_s, u"c|3"_s}, 2);
    desk.Show();
    desk.GoTo(1, 0);
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, Qt::ShiftModifier, desk.Middle(3, 0));
    QCOMPARE(desk.Grid.Data().RowSel(), 3);
    QCOMPARE(desk.Cell(2, 1), u"x"_s);
}

void tst_ctlEditGridMouse::LeavesGapsWhereTheHostDoesNotAsk() {
    GridDesk desk;
    QVERIFY(!ctlEditGrid(desk.Machine.Clock, desk.Host, nullptr).CompactOnPress);
    desk.Grid.Data() = GridOf({u"A|B"_s, u"a|1"_s, u"|x"_s, u"c|3"_s}, 2);
    desk.Show();
    desk.GoTo(1, 1);
    desk.ClickCell(3, 0);
    QCOMPARE(desk.Cell(2, 1), u"x"_s);
}

void tst_ctlEditGridMouse::OpensNoChooserWithoutOptions() {
    GridDesk desk;
    desk.Show();
    desk.ClickHeading(3);
    QVERIFY(desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s)->isHidden());
    QCOMPARE(desk.Host.Events, QStringList({u"MouseDown 1 0"_s, u"MouseUp 1 0"_s, u"Click"_s}));
    QCOMPARE(desk.Grid.MouseRow(), 0);
    QCOMPARE(desk.Grid.MouseCol(), 3);
    QCOMPARE(desk.Grid.Data().Row(), 1);
}

void tst_ctlEditGridMouse::SelectsNothingByHeadings() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, GridDesk::Combo);
    QWidget* header = desk.View().horizontalHeader()->viewport();
    QTest::mousePress(header, Qt::LeftButton, {}, desk.Middle(0, 2));
    MoveTo(header, desk.Middle(0, 3), Qt::LeftButton);
    MoveTo(header, desk.Middle(0, 4), Qt::LeftButton);
    QTest::mouseRelease(header, Qt::LeftButton, {}, desk.Middle(0, 4));
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 1);
    QCOMPARE(desk.Grid.Data().Col(), 1);
}

/// Between two headings the mouse moves their edge.
void tst_ctlEditGridMouse::TellsNoClickOfAWidth() {
    GridDesk desk;
    desk.Show();
    QHeaderView* header = desk.View().horizontalHeader();
    const QPoint edge(header->sectionViewportPosition(3), 5);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    MoveTo(header->viewport(), edge + QPoint(30, 0), Qt::LeftButton);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
    QCOMPARE(desk.Host.Events, QStringList({u"MouseDown 1 0"_s, u"MouseUp 1 0"_s}));
}

/// Before the grid itself lets go of what is being selected.
void tst_ctlEditGridMouse::TellsARelease() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    QTest::mousePress(desk.View().viewport(), Qt::LeftButton, {}, desk.Middle(2, 3));
    const auto note = [&desk] { desk.Host.Events += u"released"_s; };
    connect(&desk.View(), &QTableView::clicked, this, note);
    QTest::mouseRelease(desk.View().viewport(), Qt::LeftButton, {}, desk.Middle(2, 3));
    QCOMPARE(desk.Host.Events.mid(desk.Host.Events.size() - 3),
             QStringList({u"MouseUp 1 0"_s, u"released"_s, u"Click"_s}));
}

void tst_ctlEditGridMouse::OpensTheChooser() {
    GridDesk desk;
    desk.Show();
    desk.Grid.SetColComboOption(u"10"_s);
    QCOMPARE(desk.Grid.ColComboOption(), u"10"_s);
    desk.ClickHeading(3);
    auto* chooser = desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s);
    QVERIFY(chooser->isVisible());
    QVERIFY(chooser->view()->isVisible());
    QCOMPARE(chooser->count(), 3);
    QCOMPARE(chooser->itemText(2), u"Find"_s);
    const QRect heading(desk.View().horizontalHeader()->viewport()->mapTo(
                            &desk.Grid, desk.Grid.Places().CellRect(0, 3).topLeft()),
                        desk.Grid.Places().CellRect(0, 3).size());
    QCOMPARE(chooser->geometry().topLeft(), heading.topLeft());
    QCOMPARE(chooser->width(), heading.width());
    QVERIFY(chooser->height() >= 19);
}

void tst_ctlEditGridMouse::OpensTheChooserOverTheFirstRow() {
    GridDesk desk;
    desk.Grid.Data().SetFixedRows(0);
    desk.Show();
    desk.Grid.SetColComboOption(u"7"_s);
    desk.GoTo(2, 1);
    desk.ClickCell(1, 1);
    auto* chooser = desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s);
    QVERIFY(chooser->isHidden());
    desk.ClickCell(0, 1);
    QVERIFY(chooser->isVisible());
}

void tst_ctlEditGridMouse::SortsByTheColumnUnderIt() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, GridDesk::Number);
    desk.Grid.SetColComboOption(u"8"_s);
    desk.ClickHeading(3);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"e"_s);
    QCOMPARE(desk.Cell(2, 3), u"d"_s);
    QCOMPARE(desk.Cell(3, 3), u"abc"_s);
    QCOMPARE(desk.View().model()->index(0, 3).data().toString(), u"e"_s);
    QVERIFY(desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s)->isHidden());
    QTRY_VERIFY(desk.View().hasFocus());
    QCOMPARE(desk.Grid.Data().Col(), 0);
}

void tst_ctlEditGridMouse::AsksToFind() {
    GridDesk desk;
    desk.Show();
    desk.Grid.SetColComboOption(u"10"_s);
    desk.ClickHeading(3);
    desk.Press(Qt::Key_End);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Host.Events.contains(u"FindAsked"_s));
}

void tst_ctlEditGridMouse::FitsColumns() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Columns().SetColFormat(u",,,@"_s);
    desk.Grid.Data().SetTextMatrix(2, 3, QString(60, u'W'));
    desk.Grid.Refresh();
    const int other = desk.View().columnWidth(1);
    desk.Grid.SetColComboOption(u"9"_s);
    desk.ClickHeading(3);
    desk.Press(Qt::Key_End);
    desk.Press(Qt::Key_Return);
    const int wide = desk.View().columnWidth(3);
    QVERIFY(wide > 300);
    QCOMPARE(desk.View().columnWidth(1), other);
    QCOMPARE(desk.Grid.Look().ColumnAt(3).Width, wide * 15);
}

void tst_ctlEditGridMouse::HidesTheChooser() {
    GridDesk desk;
    desk.Show();
    desk.Grid.SetColComboOption(u"7"_s);
    auto* chooser = desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s);
    desk.ClickHeading(3);
    desk.Press(Qt::Key_Escape);
    QTRY_VERIFY(chooser->isHidden());
    QCOMPARE(desk.Window.focusWidget(), &desk.View());
    QCOMPARE(desk.Cell(1, 3), u"abc"_s);
}

void tst_ctlEditGridMouse::OpensTheChooserByAKey() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::UpDown);
    desk.Press(Qt::Key_Down, Qt::AltModifier);
    auto* chooser = desk.Grid.findChild<QComboBox*>(u"ctlColCombo"_s);
    QVERIFY(chooser->isHidden());
    desk.Grid.SetColComboOption(u"0"_s);
    desk.Press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(chooser->isVisible());
    QCOMPARE(chooser->x(), desk.Grid.Places().HeadingRect(2).x());
}

void tst_ctlEditGridMouse::PressesTheButton() {
    GridDesk desk;
    desk.Grid.SetLooks(
        [](int, int col) {
            CellLook look;
            look.Button = col == 3;
            return look;
        },
        {});
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    const auto button = [&desk](int row) {
        const QRect cell = desk.Grid.Places().CellRect(row, 3);
        return QPoint(cell.right() - 8, cell.center().y());
    };
    QWidget* cells = desk.View().viewport();
    QTest::mouseClick(cells, Qt::LeftButton, {}, button(2));  // shown once the cell is current
    QVERIFY(desk.Host.Events.filter(u"ButtonClicked"_s).isEmpty());
    QTest::mouseClick(cells, Qt::LeftButton, {}, button(2));
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s), QStringList{u"ButtonClicked 2 3"_s});
    QTest::mouseClick(cells, Qt::LeftButton, {}, desk.Middle(2, 3));
    QTest::mousePress(cells, Qt::LeftButton, {}, button(2));
    QTest::mouseRelease(cells, Qt::LeftButton, {}, desk.Middle(2, 3));
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s).size(), 1);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() != nullptr);
    QTest::mouseClick(cells, Qt::LeftButton, {}, button(2));  // beside the open editor
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s).size(), 2);
    QVERIFY(desk.Editor() == nullptr);
}

void tst_ctlEditGridMouse::PressesTheCheckBox() {
    GridDesk desk;
    desk.Grid.SetLooks(
        [](int, int col) {
            CellLook look;
            if (col == 3) {
                look.Check = true;
            }
            return look;
        },
        {});
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    const QRect cell = desk.Grid.Places().CellRect(2, 3);
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 10, cell.center().y()));
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s), QStringList{u"ButtonClicked 2 3"_s});
    desk.ClickCell(2, 3);
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s).size(), 1);
}

void tst_ctlEditGridMouse::PressesByKeys() {
    GridDesk desk;
    desk.Grid.SetLooks(
        [](int row, int) {
            CellLook look;
            look.Button = row == 1;
            if (row == 2) {
                look.Check = false;
            }
            return look;
        },
        {});
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_F4);
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s), QStringList{u"ButtonClicked 1 3"_s});
    desk.GoTo(2, GridDesk::Text);
    desk.Press(Qt::Key_Space);
    QCOMPARE(desk.Host.Events.filter(u"ButtonClicked"_s), QStringList{u"ButtonClicked 2 3"_s});
    QVERIFY(desk.Editor() == nullptr);
    desk.GoTo(3, GridDesk::Text);
    desk.Press(Qt::Key_F4);
    QVERIFY(desk.Host.Events.filter(u"ButtonClicked"_s).isEmpty());
    desk.Press(Qt::Key_Space);
    QCOMPARE(desk.Line()->text(), u" "_s);
}

void tst_ctlEditGridMouse::Scrolls() {
    GridDesk desk;
    desk.Grid.Data().SetRows(500);
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Host.Scrolls = 0;
    desk.Grid.Places().SetTopRow(100);
    QCOMPARE(desk.Grid.Places().TopRow(), 100);
    QVERIFY(desk.Host.Scrolls > 0);
    QVERIFY(!desk.Grid.Places().RowIsVisible(99));
    QVERIFY(desk.Grid.Places().RowIsVisible(100));
    QVERIFY(desk.Grid.Places().RowIsVisible(0));
    QVERIFY(!desk.Grid.Places().RowIsVisible(200));
}

void tst_ctlEditGridMouse::TurnsNoValue_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("cell");
    QTest::newRow("a list that has been closed") << int(GridDesk::Combo) << u"Green"_s;
    QTest::newRow("spin buttons") << int(GridDesk::UpDown) << u"3"_s;
    QTest::newRow("a line with a list") << int(GridDesk::ComboEdit) << u"x"_s;
}

/// The wheel over an open editor goes on to the grid, which scrolls.
void tst_ctlEditGridMouse::TurnsNoValue() {
    QFETCH(int, col);
    QFETCH(QString, cell);
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, col);
    QVERIFY(desk.Grid.OnCellKeyPress(13));
    if (desk.List() != nullptr) {
        desk.List()->hidePopup();
    }
    QWidget* editor = desk.Editor();
    editor->setFocus();
    const QPointF place = editor->rect().center();
    QWheelEvent turn(place, editor->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(editor, &turn);
    QVERIFY(desk.Editor() != nullptr);
    QVERIFY(!turn.isAccepted());
    desk.Grid.EndCellEdit();
    QCOMPARE(desk.Cell(2, col), cell);
}

QTEST_MAIN(tst_ctlEditGridMouse)
#include "tst_ctlEditGridMouse.moc"
