#include <QClipboard>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>

#include "editor/GridDesk.h"
#include "editor/GridLines.h"
#include "editor/GridText.h"

/// What of the data and of its own state the grid shows, and where.
class tst_ctlEditGridState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheSelectionOfTheData();
    void SelectsByMode();
    void KeepsItsPlaceInARefresh();
    void KeepsWidths();
    void TakesItsSize();
    void ShowsInfo();
    void MergesCells();
    void TellsPlaces();
    void SortsByTheHost();
    void SavesItsState();
    void CopiesTheSelection();
    void ShowsOneRowAnew();
    void AppliesSwitches();
};

void tst_ctlEditGridState::ShowsTheSelectionOfTheData() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().SetRow(1);
    desk.Grid.Data().SetCol(1);
    desk.Grid.Data().SetRowSel(2);
    desk.Grid.Data().SetColSel(3);
    desk.Grid.Refresh();
    const QModelIndexList selected = desk.View().selectionModel()->selectedIndexes();
    QCOMPARE(selected.size(), 6);
    QVERIFY(selected.contains(desk.View().model()->index(1, 3)));
    editor::SelectGridNone(desk.Grid.Data());
    desk.Grid.Refresh();
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 1);
    editor::SelectGridAll(desk.Grid.Data());
    desk.Grid.Refresh();
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 15);
}

void tst_ctlEditGridState::SelectsByMode() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Data().Mode = editor::SelectionMode::ByRow;
    desk.GoTo(2, 3);
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 5);
    desk.ClickCell(1, 2);
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 5);
    QCOMPARE(desk.Grid.Data().Row(), 1);
    QCOMPARE(desk.Grid.Data().Col(), 2);
    editor::Grid2Str(desk.Grid.Data(), u";"_s);  // which selects by column
    desk.Grid.Refresh();
    desk.ClickCell(1, 2);
    QCOMPARE(desk.View().selectionModel()->selectedIndexes().size(), 3);
    QCOMPARE(desk.Grid.Data().Row(), 1);
}

void tst_ctlEditGridState::KeepsItsPlaceInARefresh() {
    GridDesk desk;
    desk.Grid.Data().SetRows(500);
    desk.Show();
    desk.GoTo(210, 3);
    desk.Grid.Places().SetTopRow(205);
    desk.Grid.Refresh();
    QCOMPARE(desk.Grid.Places().TopRow(), 205);
    desk.Grid.Data().SetRows(100);
    desk.Grid.Refresh();
    QVERIFY(desk.Grid.Places().RowIsVisible(99));
}

void tst_ctlEditGridState::KeepsWidths() {
    GridDesk desk;
    desk.Show();
    desk.Grid.Look().Column(1).Width = 3000;
    desk.Grid.Refresh();
    QCOMPARE(desk.View().columnWidth(1), 200);
    desk.View().setColumnWidth(1, 120);  // as the user drags it
    QCOMPARE(desk.Grid.Look().ColumnAt(1).Width, 1800);
    desk.Grid.Refresh();
    QCOMPARE(desk.View().columnWidth(1), 120);
}

void tst_ctlEditGridState::TakesItsSize() {
    GridDesk desk;
    for (int col = 0; col < 5; ++col) {
        desk.Grid.Look().Column(col).Width = 1500;
    }
    desk.Grid.Look().RowHeightMin = 600;
    desk.Grid.Look().BorderStyle = editor::GridLook::Frame::None;
    desk.Show();
    desk.Grid.Refresh();
    desk.Grid.SetGridSize({2'000, 2'000});
    const int header = desk.View().horizontalHeader()->height();
    QCOMPARE(desk.Grid.size(), QSize(500, 120 + header));
    desk.Grid.SetGridSize({300, 90});
    QCOMPARE(desk.Grid.size(), QSize(300, 90));
    desk.Grid.SetGridWidthByCaller(450);
    QCOMPARE(desk.Grid.size(), QSize(450, 90));
    desk.Grid.Look().BorderStyle = editor::GridLook::Frame::Single;
    desk.Grid.Refresh();
    QVERIFY(desk.View().frameWidth() > 0);
    desk.Grid.SetGridSize({2'000, 2'000});
    QTRY_COMPARE(desk.View().viewport()->width(), 500);
}

void tst_ctlEditGridState::ShowsInfo() {
    GridDesk desk;
    desk.Show();
    auto* info = desk.Grid.findChild<QLabel*>(u"txtInfo"_s);
    QVERIFY(info->isHidden());
    desk.Grid.ShowInfo(u"<b>plain</b>"_s);
    QVERIFY(info->isVisible());
    QCOMPARE(info->text(), u"<b>plain</b>"_s);
    QCOMPARE(info->textFormat(), Qt::PlainText);
    QCOMPARE(info->geometry().bottom(), desk.Grid.rect().bottom());
    desk.Grid.resize(640, 200);
    QCOMPARE(info->geometry().bottom(), 199);
    const int oneLine = info->height();
    desk.Grid.ShowInfo(QString(u"word "_s).repeated(60));
    QVERIFY(info->height() > oneLine + 10);
    QCOMPARE(info->geometry().bottom(), 199);
    desk.Grid.HideInfo();
    QVERIFY(info->isHidden());
}

void tst_ctlEditGridState::MergesCells() {
    GridDesk desk;
    desk.Grid.Data() = GridOf({u"A|B"_s, u"x|1"_s, u"x|2"_s, u"y|2"_s, u"|2"_s, u"|2"_s}, 2);
    desk.Grid.Look().Column(0).Merge = true;
    desk.Grid.Refresh();
    QCOMPARE(desk.View().rowSpan(0, 0), 1);
    desk.Grid.Look().MergeCells = true;
    desk.Grid.Refresh();
    QCOMPARE(desk.View().rowSpan(0, 0), 2);
    QCOMPARE(desk.View().rowSpan(2, 0), 1);
    QCOMPARE(desk.View().rowSpan(3, 0), 1);  // empty ones stay apart
    QCOMPARE(desk.View().rowSpan(1, 1), 1);
}

void tst_ctlEditGridState::TellsPlaces() {
    GridDesk desk;
    desk.Grid.Look().BorderStyle = editor::GridLook::Frame::None;
    desk.Grid.Look().RowHeightMin = 600;
    for (int col = 0; col < 5; ++col) {
        desk.Grid.Look().Column(col).Width = 3000;
    }
    desk.Show();
    desk.GoTo(2, 1);
    GridPlaces& places = desk.Grid.Places();
    const double header = desk.View().horizontalHeader()->height() * 15;
    QCOMPARE(places.CellLeft(), 3000.0);
    QCOMPARE(places.CellTop(), header + 600);
    QCOMPARE(places.CellWidth(), 3000.0);
    QCOMPARE(places.CellHeight(), 600.0);
    QCOMPARE(places.RowPos(0), 0.0);
    QCOMPARE(places.RowPos(3), header + 1200);
    QCOMPARE(places.RowPos(9), -1.0);
    QCOMPARE(places.ColPos(2), 6000.0);
    QCOMPARE(places.ColPos(5), -1.0);
    QCOMPARE(places.ColWidth(2), 3000.0);
    QVERIFY(places.ColIsVisible(3));
    QVERIFY(!places.ColIsVisible(4));
    QVERIFY(!places.ColIsVisible(7));
    places.SetLeftCol(1);
    QCOMPARE(places.LeftCol(), 1);
    QVERIFY(places.ColIsVisible(4));
    QVERIFY(!places.ColIsVisible(0));
    QCOMPARE(places.ColPos(1), 0.0);
}

void tst_ctlEditGridState::SortsByTheHost() {
    GridDesk desk;
    desk.Show();
    desk.Host.Order = [&desk](int row1, int row2) {
        return int(desk.Cell(row1, 3).size() - desk.Cell(row2, 3).size());
    };
    QVERIFY(desk.Grid.Sort(9));
    QCOMPARE(desk.Cell(1, 3), u"d"_s);
    QCOMPARE(desk.Cell(2, 3), u"e"_s);
    QCOMPARE(desk.Cell(3, 3), u"abc"_s);
    QCOMPARE(desk.View().model()->index(2, 3).data().toString(), u"abc"_s);
    QVERIFY(desk.Grid.Sort(1));
    QCOMPARE(desk.Cell(1, 0), u"1"_s);
    QVERIFY(!desk.Grid.Sort(10));
}

void tst_ctlEditGridState::SavesItsState() {
    GridDesk desk;
    desk.Grid.Look().GridColor = QColor(1, 2, 3);
    desk.Grid.Look().Column(2).Width = 777;
    desk.Grid.Editing().MoveToNextOnEnter = true;
    const QVariantMap bag = desk.Grid.SaveState();
    GridDesk other;
    other.Grid.Data() = editor::EditGridData();
    other.Grid.Setup();
    other.Grid.LoadState(bag);
    QCOMPARE(other.Grid.SaveState(), bag);
    QVERIFY(other.Grid.Look() == desk.Grid.Look());
    QCOMPARE(other.View().model()->rowCount(), 3);
    QVERIFY(other.Grid.Editing().MoveToNextOnEnter);
}

void tst_ctlEditGridState::CopiesTheSelection() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, 3);
    desk.Grid.Data().SetColSel(4);
    desk.Grid.CopySelection();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"abc\tBlue"_s);
}

void tst_ctlEditGridState::AppliesSwitches() {
    using Bars = editor::GridLook::Bars;
    GridDesk desk;
    editor::GridLook& look = desk.Grid.Look();
    look.ScrollBars = Bars::Horizontal;
    look.ScrollTrack = false;
    look.Enabled = false;
    look.MousePointer = 2;
    look.AllowUserResizing = editor::GridLook::Resizing::None;
    desk.Grid.Refresh();
    QCOMPARE(desk.View().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(desk.View().horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(!desk.View().verticalScrollBar()->hasTracking());
    QVERIFY(!desk.View().isEnabled());
    QCOMPARE(desk.View().viewport()->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(desk.View().horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    look.Redraw = false;
    desk.Grid.Refresh();
    QVERIFY(!desk.View().updatesEnabled());
}

void tst_ctlEditGridState::ShowsOneRowAnew() {
    GridDesk desk;
    desk.Grid.Data().SetRowHeight(2, 0);
    desk.Grid.Refresh();
    QSignalSpy changed(desk.View().model(), &QAbstractItemModel::dataChanged);
    desk.Grid.RefreshRow(1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].toModelIndex(), desk.View().model()->index(0, 0));
    QCOMPARE(changed[0][1].toModelIndex(), desk.View().model()->index(0, 4));
    desk.Grid.RefreshRow(0);  // the heading
    desk.Grid.RefreshRow(2);  // hidden
    desk.Grid.RefreshRow(9);
    QCOMPARE(changed.size(), 1);
}

QTEST_MAIN(tst_ctlEditGridState)
#include "tst_ctlEditGridState.moc"
