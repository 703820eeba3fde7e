#include <QClipboard>
#include <QListView>

#include "editor/GridDesk.h"

/// The editors over a cell: their places, lists, spinning, type-ahead.
class tst_ctlEditGridEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LiesOverItsCell_data();
    void LiesOverItsCell();
    void LeavesRoomForTheButton();
    void ShowsOneAtATime();
    void SpinsByButtons_data();
    void SpinsByButtons();
    void FormatsNumbersAtTheEnd();
    void OpensTheListAtTheCell();
    void JumpsToAnInitial();
    void PicksByTheMouse();
    void PicksByEnter();
    void TellsTheHighlight();
    void TellsThatNothingWasChosen();
    void TellsNoHighlightBehindAChoice();
    void KeepsATextThatIsInNoList();
    void CompletesWhatIsTyped();
    void EndsTheBurst();
    void CompletesNothingBehindBackspace();
    void PutsWhatWasPastedInOneLine();
    void KeepsALongText();
    void GivesItsControls();
    void HasNames();
};

void tst_ctlEditGridEditors::LiesOverItsCell_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<int>("left");  // beside the cell's
    QTest::addColumn<int>("width");
    QTest::newRow("list") << 1 << -1 << 0;
    QTest::newRow("spin") << 2 << 1 << -1;
    QTest::newRow("line") << 3 << 1 << -1;
    QTest::newRow("line with a list") << 4 << -1 << 0;
}

void tst_ctlEditGridEditors::LiesOverItsCell() {
    QFETCH(int, col);
    QFETCH(int, left);
    QFETCH(int, width);
    GridDesk desk;
    desk.Grid.Look().Column(col).Width = 1500;
    desk.Grid.Look().RowHeightMin = 600;
    desk.Show();
    desk.GoTo(2, col);
    desk.Press(Qt::Key_Return);
    const QRect cell = desk.Grid.Places().CellRect(2, col);
    QCOMPARE(cell.size(), QSize(100, 40));
    QCOMPARE(desk.Editor()->x(), cell.x() + left);
    QCOMPARE(desk.Editor()->width(), cell.width() + width);
    QCOMPARE(desk.Editor()->height(), 40);
}

void tst_ctlEditGridEditors::LeavesRoomForTheButton() {
    GridDesk desk;
    desk.Grid.SetLooks(
        [](int row, int) {
            CellLook look;
            look.Heading = row == 2 ? u"Second"_s : QString();
            look.Button = true;
            return look;
        },
        {});
    desk.Show();
    desk.GoTo(2, GridDesk::Text);
    const QRect cell = desk.Grid.Places().CellRect(2, 3);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor()->geometry().right() < cell.right() - 15);
    QVERIFY(desk.Editor()->y() >= cell.top());
    QVERIFY(desk.Editor()->y() <= cell.top() + 1);
}

void tst_ctlEditGridEditors::ShowsOneAtATime() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Grid.OnCellKeyPress(13));  // it is open already
    int visible = 0;
    for (const auto* child :
         desk.View().viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        visible += child->isVisible() ? 1 : 0;
    }
    QCOMPARE(visible, 1);
}

void tst_ctlEditGridEditors::SpinsByButtons_data() {
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("down");
    QTest::newRow("a fraction") << u"1.50"_s << u"2.50"_s << u"0.50"_s;
    QTest::newRow("a whole number") << u"3"_s << u"4"_s << u"2"_s;
    QTest::newRow("a date") << u"28/02/2024"_s << u"29/02/2024"_s << u"27/02/2024"_s;
    QTest::newRow("any other text") << u"abc"_s << u"abc"_s << u"abc"_s;
}

void tst_ctlEditGridEditors::SpinsByButtons() {
    QFETCH(QString, cell);
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetTextMatrix(1, 2, cell);
    desk.GoTo(1, GridDesk::UpDown);
    desk.Press(Qt::Key_Return);
    const auto press = [&desk](QStyle::SubControl button) {
        QStyleOptionSpinBox option;
        option.initFrom(desk.Editor());
        option.subControls = QStyle::SC_All;
        const QRect place = desk.Editor()->style()->subControlRect(QStyle::CC_SpinBox, &option,
                                                                   button, desk.Editor());
        QTest::mouseClick(desk.Editor(), Qt::LeftButton, {}, place.center());
    };
    press(QStyle::SC_SpinBoxUp);
    QTEST(desk.Line()->text(), "up");
    press(QStyle::SC_SpinBoxDown);
    press(QStyle::SC_SpinBoxDown);
    QTEST(desk.Line()->text(), "down");
    QVERIFY(desk.Line()->x() < 10);  // the text at the left, the buttons at the right
    desk.Press(Qt::Key_Return);
    QTEST(desk.Cell(1, 2), "down");
}

void tst_ctlEditGridEditors::FormatsNumbersAtTheEnd() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Columns().SetColFormat(u",,0.00"_s);
    desk.GoTo(1, GridDesk::UpDown);
    desk.Type(u"7.5"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 2), u"7.50"_s);
    desk.Type(u"8"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 2), u"8"_s);
}

void tst_ctlEditGridEditors::OpensTheListAtTheCell() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.List()->IsOpen());
    QCOMPARE(desk.List()->currentText(), u"Green"_s);
    QCOMPARE(desk.List()->view()->currentIndex().row(), 1);
    QCOMPARE(desk.List()->view()->objectName(), u"ctlList"_s);
    QVERIFY(!desk.List()->isEditable());
}

void tst_ctlEditGridEditors::JumpsToAnInitial() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    desk.Type(u"b"_s);
    QCOMPARE(desk.List()->view()->currentIndex().row(), 2);
    desk.Type(u"q"_s);
    QCOMPARE(desk.List()->view()->currentIndex().row(), 2);
    desk.Press(Qt::Key_Up);
    QCOMPARE(desk.List()->view()->currentIndex().row(), 1);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 1), u"Green"_s);
}

void tst_ctlEditGridEditors::PicksByTheMouse() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);  // a list that opens is deaf to clicks for this long
    desk.Press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QApplication::setDoubleClickInterval(interval);
    auto* list = desk.List()->view();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(2, 0)).center());
    QTRY_VERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 1), u"Blue"_s);
    QCOMPARE(desk.Host.Events.filter(u"CellChanged"_s), QStringList{u"CellChanged 1 1"_s});
    QTRY_VERIFY(desk.View().hasFocus());
}

void tst_ctlEditGridEditors::PicksByEnter() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Return);
    QVERIFY(!desk.List()->IsOpen());
    desk.Press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(desk.List()->IsOpen());
    desk.Press(Qt::Key_Home);
    QCOMPARE(desk.List()->view()->currentIndex().row(), 0);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.Cell(1, 4), u"Green"_s);
}

void tst_ctlEditGridEditors::TellsTheHighlight() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    desk.Host.Highlights.clear();
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Down);
    QCOMPARE(desk.Host.Highlights, QStringList({u"1 1 1"_s, u"1 1 2"_s}));
    desk.Press(Qt::Key_Escape);
    QCOMPARE(desk.Host.Highlights.last(), u"1 1 -1"_s);
    QCOMPARE(desk.Cell(1, 1), u"Red"_s);
    QCOMPARE(desk.Host.Highlights.size(), 3);
}

void tst_ctlEditGridEditors::TellsThatNothingWasChosen() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Down);
    desk.List()->hidePopup();
    QTRY_COMPARE(desk.Host.Highlights.last(), u"1 1 -1"_s);
    QVERIFY(desk.Editor() != nullptr);
}

void tst_ctlEditGridEditors::TellsNoHighlightBehindAChoice() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_Down);
    desk.Press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(desk.Host.Highlights.last(), u"1 1 1"_s);
    QCOMPARE(desk.Cell(1, 1), u"Green"_s);
}

void tst_ctlEditGridEditors::KeepsATextThatIsInNoList() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetTextMatrix(1, 1, u"Mauve"_s);
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.List()->currentIndex(), -1);
    QCOMPARE(desk.List()->placeholderText(), u"Mauve"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 1), u"Mauve"_s);
}

void tst_ctlEditGridEditors::CompletesWhatIsTyped() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Return);
    desk.Line()->selectAll();
    desk.Type(u"g"_s);
    QCOMPARE(desk.Line()->text(), u"Green"_s);
    QCOMPARE(desk.Line()->selectedText(), u"reen"_s);
    QCOMPARE(desk.Grid.Editing().Burst().ListItem(), 1);
    desk.Type(u"x"_s);
    QCOMPARE(desk.Line()->text(), u"Gx"_s);
    QCOMPARE(desk.Grid.Editing().Burst().ListItem(), -1);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 4), u"Gx"_s);
}

void tst_ctlEditGridEditors::EndsTheBurst() {
    GridDesk desk;
    desk.Show();
    desk.Grid.SetTypeCheckingTime(500);
    desk.GoTo(1, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Return);
    desk.Line()->selectAll();
    desk.Type(u"b"_s);
    QCOMPARE(desk.Grid.Editing().Burst().TypedText(), u"b"_s);
    desk.Machine.Clock.Advance(499);
    QCOMPARE(desk.Grid.Editing().Burst().ListItem(), 2);
    desk.Machine.Clock.Advance(1);
    QCOMPARE(desk.Grid.Editing().Burst().ListItem(), -1);
    QCOMPARE(desk.Line()->text(), u"Blue"_s);
}

void tst_ctlEditGridEditors::CompletesNothingBehindBackspace() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Return);
    desk.Line()->selectAll();
    desk.Type(u"gr"_s);
    desk.Press(Qt::Key_Backspace);
    QCOMPARE(desk.Line()->text(), u"Gr"_s);
    desk.Press(Qt::Key_Backspace);
    QCOMPARE(desk.Line()->text(), u"G"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 4), u"G"_s);
}

void tst_ctlEditGridEditors::PutsWhatWasPastedInOneLine() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Return);
    desk.Line()->selectAll();
    QGuiApplication::clipboard()->setText(u"a\tb\r\nc\u00DF"_s);
    desk.Press(Qt::Key_V, Qt::ControlModifier);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"a b  c\u00DF"_s);
}

void tst_ctlEditGridEditors::KeepsALongText() {
    const QString text(200'000, u'w');
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetTextMatrix(1, 3, text);
    desk.GoTo(1, GridDesk::Text);
    desk.Window.repaint();
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Line()->text().size(), 200'000);
    desk.Type(u"!"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), text + u"!"_s);
}

void tst_ctlEditGridEditors::GivesItsControls() {
    GridDesk desk;
    desk.Show();
    QVERIFY(desk.Grid.GetCellTextBox() == nullptr);
    QVERIFY(desk.Grid.GetCellCombo() == nullptr);
    QVERIFY(desk.Grid.GetCellComboEdit() == nullptr);
    QCOMPARE(desk.Grid.GetComboEditText(), QString());
    desk.Grid.SetComboEditText(u"lost"_s);
    desk.GoTo(1, GridDesk::ComboEdit);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Grid.GetComboEditCtl(4), desk.List());
    QCOMPARE(desk.Grid.GetCellComboEdit(), desk.List());
    QVERIFY(desk.Grid.GetComboEditCtl(1) == nullptr);
    QVERIFY(desk.Grid.GetComboCtl(4) == nullptr);
    QCOMPARE(desk.Grid.GetCellTextBox(), desk.Line());
    desk.Grid.SetComboEditText(u"given"_s);
    QCOMPARE(desk.Line()->text(), u"given"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 4), u"given"_s);
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Grid.GetCellCombo() != nullptr);
    QVERIFY(desk.Grid.GetCellComboEdit() == nullptr);
}

void tst_ctlEditGridEditors::HasNames() {
    GridDesk desk;
    desk.Show();
    desk.Grid.SetName(u"Properties"_s);
    QCOMPARE(desk.View().accessibleName(), u"Properties"_s);
    desk.Grid.Data().SetTextMatrix(1, 0, u"Hour Hand Colour"_s);
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Editor()->accessibleName(), u"Hour Hand Colour"_s);
    const QModelIndex cell = desk.View().model()->index(0, 3);
    QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), u"Hour Hand Colour, abc"_s);
    QCOMPARE(cell.siblingAtColumn(0).data(Qt::AccessibleTextRole).toString(),
             u"Hour Hand Colour, Red, 1.50, abc, Blue"_s);
}

QTEST_MAIN(tst_ctlEditGridEditors)
#include "tst_ctlEditGridEditors.moc"
