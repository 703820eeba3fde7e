#include "editor/GridDesk.h"
#include "editor/GridLines.h"

/// How the grid shows its data: rows, columns, decorations, colours, states.
class tst_ctlEditGridLook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheFirstRowAsHeading();
    void ShowsFixedRowsBelow();
    void HidesRows();
    void ShowsNothingOfAnEmptyGrid();
    void HasRowsByTheFont();
    void HasRowsByTheirHeight();
    void PutsHeadingsAboveRows();
    void PaintsHeadingsBesideTheSelection();
    void PaintsSwatches();
    void PaintsPictures();
    void MirrorsDecorations();
    void PaintsColors();
    void StrikesThrough();
    void PaintsLines();
    void PaintsTheFocus();
    void HighlightsAsTold();
    void FollowsDarkColors();
    void CutsTipsOff();
    void ShowsItemsWithTheirLooks();
};

namespace {

/// The pixels of the grid as painted, at a place of the cells.
QColor PixelAt(GridDesk& desk, const QPoint& place) {
    return desk.View().viewport()->grab().toImage().pixelColor(place);
}

/// Whether a colour occurs in a part of the cells.
bool Shows(GridDesk& desk, const QRect& part, const QColor& color) {
    const QImage image = desk.View().viewport()->grab(part).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

std::function<CellLook(int, int)> OnlyAt(int row, int col, const CellLook& look) {
    return [row, col, look](int atRow, int atCol) {
        return row == atRow && col == atCol ? look : CellLook();
    };
}

}  // namespace

void tst_ctlEditGridLook::ShowsTheFirstRowAsHeading() {
    GridDesk desk;
    const QAbstractItemModel* model = desk.View().model();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->headerData(3, Qt::Horizontal).toString(), u"T"_s);
    QCOMPARE(model->index(0, 3).data().toString(), u"abc"_s);
    QVERIFY(!desk.View().horizontalHeader()->isHidden());
    desk.Grid.Data().SetFixedRows(0);
    desk.Grid.Refresh();
    QCOMPARE(model->rowCount(), 4);
    QVERIFY(desk.View().horizontalHeader()->isHidden());
}

void tst_ctlEditGridLook::ShowsFixedRowsBelow() {
    GridDesk desk;
    desk.Grid.Data().SetFixedRows(2);
    desk.Grid.Look().BackColorFixed = QColor(10, 200, 30);
    desk.Show();
    desk.GoTo(2, 3);
    QCOMPARE(desk.View().model()->rowCount(), 3);
    desk.Press(Qt::Key_Up);
    QCOMPARE(desk.Grid.Data().Row(), 2);
    QVERIFY(Shows(desk, desk.Grid.Places().CellRect(1, 3), QColor(10, 200, 30)));
    QVERIFY(!Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(10, 200, 30)));
}

void tst_ctlEditGridLook::HidesRows() {
    GridDesk desk;
    desk.Grid.Data().SetRowHeight(2, 0);
    desk.Show();
    desk.GoTo(1, 3);
    QCOMPARE(desk.View().model()->rowCount(), 2);
    desk.Press(Qt::Key_Down);
    QCOMPARE(desk.Grid.Data().Row(), 3);
    QVERIFY(!desk.Grid.Places().RowIsVisible(2));
    QCOMPARE(desk.Grid.Places().RowHeight(2), 0.0);
    desk.Type(u"x"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(3, 3), u"x"_s);
    desk.GoTo(2, 3);  // a hidden row can be current; no cell is
    QVERIFY(!desk.View().currentIndex().isValid());
    QVERIFY(!desk.Grid.OnCellKeyPress(13));
    QVERIFY(!desk.Grid.Editing().IsEditing());
}

void tst_ctlEditGridLook::ShowsNothingOfAnEmptyGrid() {
    GridDesk desk;
    desk.Show();
    for (const editor::GridSize size : {editor::GridSize{0, 0, 0, 0}, {1, 2, 1, 0}, {0, 3, 0, 0}}) {
        desk.Grid.Data() = editor::EditGridData(size);
        desk.Grid.Refresh();
        desk.Window.repaint();
        desk.Type(u"x"_s);
        desk.Press(Qt::Key_Down);
        desk.Press(Qt::Key_PageDown);
        desk.Press(Qt::Key_F4);
        QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, QPoint(50, 50));
        QVERIFY(desk.Editor() == nullptr);
        QCOMPARE(desk.Grid.Data().Rows(), size.Rows);
    }
    desk.Press(Qt::Key_Tab);
    QVERIFY(desk.Beside.hasFocus());
}

void tst_ctlEditGridLook::HasRowsByTheFont() {
    GridDesk desk;
    const int before = desk.View().rowHeight(0);
    QVERIFY(before >= desk.View().fontMetrics().height());
    QFont font = desk.Window.font();
    font.setPixelSize(40);
    desk.Window.setFont(font);
    QVERIFY(desk.View().rowHeight(0) >= 40);
    desk.Grid.Look().Font = QFont(font.family(), 6);
    desk.Grid.Look().HasFont = true;
    desk.Grid.Refresh();
    QVERIFY(desk.View().rowHeight(0) < before);
}

void tst_ctlEditGridLook::HasRowsByTheirHeight() {
    GridDesk desk;
    desk.Grid.Data().SetRowHeight(2, 900);
    desk.Grid.Refresh();
    QCOMPARE(desk.View().rowHeight(1), 60);
    QVERIFY(desk.View().rowHeight(0) < 40);
    QCOMPARE(desk.Grid.Places().RowHeight(2), 900.0);
    desk.Grid.Look().RowHeightMin = 1200;
    desk.Grid.Refresh();
    QCOMPARE(desk.View().rowHeight(1), 80);
}

void tst_ctlEditGridLook::PutsHeadingsAboveRows() {
    GridDesk desk;
    desk.Show();
    const int plain = desk.View().rowHeight(1);
    CellLook look;
    look.Heading = u"Hands"_s;
    desk.Grid.SetLooks(OnlyAt(2, 0, look), {});
    desk.Grid.Refresh();
    const int high = desk.View().rowHeight(1);
    QVERIFY(high > plain + 10);
    const QRect cell = desk.Grid.Places().CellRect(2, 3);
    QCOMPARE(cell.height(), plain);
    QCOMPARE(cell.bottom(), desk.View().visualRect(desk.View().model()->index(1, 3)).bottom());
    desk.ClickCell(2, 3);
    QCOMPARE(desk.Grid.Data().Row(), 2);
    desk.Grid.SetLooks({}, {});
    desk.Grid.Refresh();
    QCOMPARE(desk.View().rowHeight(1), plain);
}

void tst_ctlEditGridLook::PaintsHeadingsBesideTheSelection() {
    GridDesk desk;
    CellLook look;
    look.Heading = u"Hands"_s;
    desk.Grid.SetLooks(OnlyAt(2, 0, look), {});
    desk.Grid.Look().BackColorSel = QColor(250, 10, 20);
    desk.Show();
    desk.GoTo(2, 3);
    const QRect cell = desk.Grid.Places().CellRect(2, 3);
    QVERIFY(Shows(desk, cell, QColor(250, 10, 20)));
    const QRect heading(cell.left(), cell.top() - 15, cell.width(), 14);
    QVERIFY(!Shows(desk, heading, QColor(250, 10, 20)));
}

void tst_ctlEditGridLook::PaintsSwatches() {
    GridDesk desk;
    CellLook look;
    look.Swatch = QColor(12, 34, 56);
    desk.Grid.SetLooks(OnlyAt(1, 3, look), {});
    desk.Show();
    desk.GoTo(2, 0);
    const QRect cell = desk.Grid.Places().CellRect(1, 3);
    QCOMPARE(PixelAt(desk, QPoint(cell.left() + 10, cell.center().y())), QColor(12, 34, 56));
    QVERIFY(!Shows(desk, desk.Grid.Places().CellRect(1, 4), QColor(12, 34, 56)));
    QVERIFY(!Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(12, 34, 56)));
}

void tst_ctlEditGridLook::PaintsPictures() {
    GridDesk desk;
    CellLook look;
    look.Picture = QPixmap(400, 300);
    look.Picture.fill(QColor(200, 0, 100));
    desk.Grid.SetLooks(OnlyAt(1, 3, look), {});
    desk.Show();
    desk.GoTo(2, 0);
    const QRect cell = desk.Grid.Places().CellRect(1, 3);
    const QRect left(cell.left() + 6, cell.top() + 3, 15, cell.height() - 6);
    QVERIFY(Shows(desk, left, QColor(200, 0, 100)));
    const QRect right(cell.left() + 50, cell.top(), cell.width() - 50, cell.height());
    QVERIFY(!Shows(desk, right, QColor(200, 0, 100)));
}

void tst_ctlEditGridLook::MirrorsDecorations() {
    GridDesk desk;
    CellLook look;
    look.Swatch = QColor(12, 34, 56);
    look.Button = true;
    desk.Grid.SetLooks(OnlyAt(1, 3, look), {});
    desk.Grid.Look().RightToLeft = true;
    desk.Show();
    desk.GoTo(1, 3);
    const QRect cell = desk.Grid.Places().CellRect(1, 3);
    QCOMPARE(PixelAt(desk, QPoint(cell.right() - 10, cell.center().y())), QColor(12, 34, 56));
    QVERIFY(cell.left() < desk.Grid.Places().CellRect(1, 2).left());
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 8, cell.center().y()));
    QVERIFY(desk.Host.Events.contains(u"ButtonClicked 1 3"_s));
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor()->x() > cell.left() + 10);
    desk.Press(Qt::Key_Escape);
    desk.Press(Qt::Key_Left);
    QCOMPARE(desk.Grid.Data().Col(), 4);
}

void tst_ctlEditGridLook::PaintsColors() {
    GridDesk desk;
    desk.Grid.Look().BackColor = QColor(250, 250, 200);
    desk.Grid.Look().ForeColor = QColor(120, 0, 0);
    desk.Grid.Data().SetTextMatrix(1, 3, u"\u2588\u2588\u2588"_s);
    desk.Grid.Data().SetTextMatrix(2, 3, u"\u2588\u2588\u2588"_s);
    desk.Grid.Data().SetCellForeColor(2, 3, 0x00640A);  // red in the low byte
    desk.Show();
    desk.GoTo(3, 0);
    const QRect first = desk.Grid.Places().CellRect(1, 3);
    QVERIFY(Shows(desk, first, QColor(250, 250, 200)));
    QVERIFY(Shows(desk, first, QColor(120, 0, 0)));
    QVERIFY(Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(10, 100, 0)));
    QVERIFY(!Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(120, 0, 0)));
    editor::SetRowForeColor(desk.Grid.Data(), 2, editor::NoForeColor);
    desk.Grid.RefreshRow(2);
    QVERIFY(Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(120, 0, 0)));
}

void tst_ctlEditGridLook::StrikesThrough() {
    GridDesk desk;
    desk.Grid.Data().SetTextMatrix(1, 3, u"iiiiiiii"_s);
    desk.Show();
    desk.GoTo(2, 0);
    const auto row = [&desk] {
        return desk.View().viewport()->grab(desk.Grid.Places().CellRect(1, 3)).toImage();
    };
    const QImage before = row();
    desk.Grid.Data().SetStruckThrough(1, true);
    desk.Grid.RefreshRow(1);
    QVERIFY(row() != before);
    desk.Grid.Data().SetStruckThrough(1, false);
    desk.Grid.RefreshRow(1);
    QCOMPARE(row(), before);
}

void tst_ctlEditGridLook::PaintsLines() {
    GridDesk desk;
    desk.Grid.Look().GridColor = QColor(0, 0, 250);
    desk.Grid.Look().GridLineWidth = 3;
    desk.Show();
    desk.GoTo(3, 0);
    const QRect cell = desk.Grid.Places().CellRect(1, 3);
    QCOMPARE(PixelAt(desk, QPoint(cell.right() - 2, cell.center().y())), QColor(0, 0, 250));
    QVERIFY(PixelAt(desk, QPoint(cell.right() - 3, cell.center().y())) != QColor(0, 0, 250));
    QCOMPARE(PixelAt(desk, QPoint(cell.center().x(), cell.bottom() - 2)), QColor(0, 0, 250));
    desk.Grid.Look().GridLines = editor::GridLook::Lines::None;
    desk.Grid.Refresh();
    QVERIFY(!Shows(desk, cell, QColor(0, 0, 250)));
}

void tst_ctlEditGridLook::PaintsTheFocus() {
    GridDesk desk;
    desk.Grid.Look().ForeColorSel = QColor(0, 250, 0);
    desk.Grid.Data().SetTextMatrix(2, 0, QString());
    desk.Show();
    desk.GoTo(2, 0);
    const QRect cell = desk.Grid.Places().CellRect(2, 0);
    QVERIFY(Shows(desk, cell, QColor(0, 250, 0)));
    desk.Beside.setFocus();
    QVERIFY(!Shows(desk, cell, QColor(0, 250, 0)));
    desk.View().setFocus();
    desk.Grid.Look().FocusRect = 0;
    desk.Grid.Refresh();
    QVERIFY(!Shows(desk, cell, QColor(0, 250, 0)));
}

void tst_ctlEditGridLook::HighlightsAsTold() {
    using When = editor::GridLook::When;
    GridDesk desk;
    desk.Grid.Look().BackColorSel = QColor(250, 10, 20);
    desk.Show();
    desk.GoTo(2, 0);
    const QRect cell = desk.Grid.Places().CellRect(2, 0);
    QVERIFY(Shows(desk, cell, QColor(250, 10, 20)));
    desk.Grid.Look().HighLight = When::WithFocus;
    QVERIFY(Shows(desk, cell, QColor(250, 10, 20)));
    desk.Beside.setFocus();
    QVERIFY(!Shows(desk, cell, QColor(250, 10, 20)));
    desk.Grid.Look().HighLight = When::Always;
    QVERIFY(Shows(desk, cell, QColor(250, 10, 20)));
    desk.View().setFocus();
    desk.Grid.Look().HighLight = When::Never;
    desk.Grid.Look().FocusRect = 0;
    QVERIFY(!Shows(desk, cell, QColor(250, 10, 20)));
}

void tst_ctlEditGridLook::FollowsDarkColors() {
    GridDesk desk;
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    desk.Window.setPalette(dark);
    desk.Grid.Data().SetTextMatrix(1, 3, u"\u2588\u2588\u2588"_s);
    desk.Grid.Data().SetTextMatrix(2, 3, u"\u2588\u2588\u2588"_s);
    desk.Grid.Data().SetCellForeColor(2, 3, 0x640000);  // a dark blue can't be read on it
    desk.Show();
    desk.GoTo(3, 0);
    QVERIFY(Shows(desk, desk.Grid.Places().CellRect(1, 3), QColor(20, 20, 20)));
    QVERIFY(Shows(desk, desk.Grid.Places().CellRect(1, 3), QColor(240, 240, 240)));
    QVERIFY(!Shows(desk, desk.Grid.Places().CellRect(2, 3), QColor(0, 0, 100)));
}

void tst_ctlEditGridLook::CutsTipsOff() {
    GridDesk desk;
    desk.Show();
    QCOMPARE(OneLine(u"a\tb\nc"_s, 4), u"a b "_s);
    QCOMPARE(OneLine(u"a"_s, 4), u"a"_s);
    CellLook look;
    look.ToolTip = u"a tip"_s;
    desk.Grid.SetLooks(OnlyAt(1, 3, look), {});
    QCOMPARE(desk.View().model()->index(0, 3).data(Qt::ToolTipRole).toString(), u"a tip"_s);
    QCOMPARE(desk.View().model()->index(1, 3).data(Qt::ToolTipRole).toString(), QString());
    desk.Grid.SetToolTipText(u"of all"_s);
    QCOMPARE(desk.View().toolTip(), u"of all"_s);
    QCOMPARE(desk.Grid.Look().ToolTipText, u"of all"_s);
}

void tst_ctlEditGridLook::ShowsItemsWithTheirLooks() {
    GridDesk desk;
    QStringList asked;
    desk.Grid.SetLooks({}, [&asked](int row, int col, const QString& item) {
        asked += u"%1 %2 %3"_s.arg(row).arg(col).arg(item);
        CellLook look;
        look.Swatch = item == u"Green"_s ? QColor(1, 250, 3) : QColor(1, 2, 3);
        return look;
    });
    desk.Show();
    desk.GoTo(1, GridDesk::Combo);
    desk.Press(Qt::Key_Return);
    const auto* list = desk.List()->view();
    const auto item = [list](int number) {
        const QRect place = list->visualRect(list->model()->index(number, 0));
        return const_cast<QAbstractItemView*>(list)->viewport()->grab(place).toImage();
    };
    QCOMPARE(item(1).pixelColor(10, item(1).height() / 2), QColor(1, 250, 3));
    QCOMPARE(item(2).pixelColor(10, item(2).height() / 2), QColor(1, 2, 3));
    QVERIFY(asked.contains(u"1 1 Green"_s));
}

QTEST_MAIN(tst_ctlEditGridLook)
#include "tst_ctlEditGridLook.moc"
