#include "editor/ui/PropertyGrid.h"

#include <QHeaderView>
#include <QTableView>

#include "foundation/NamedValues.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;
using editor::EditorKind;
using editor::ValueSort;

namespace {

constexpr int KeyColumn = 0;
constexpr int ValueColumn = 1;
constexpr int LeastRows = 25;
constexpr double KeyShare = 0.58;  // of the window's width
constexpr double ValueShare = 0.30;
constexpr int RoomInRow = 8;  // pixels above and below a text
constexpr QRgb HeaderGround = 0xFFC0FFC0;
constexpr QRgb HeaderText = 0xFF000080;

int Twips(double pixels) {
    return static_cast<int>(pixels * TwipsPerPixel);
}

}  // namespace

PropertyGrid::PropertyGrid(const Program& program, editor::PropertySheet& sheet,
                           const editor::PropertyOwner& owner, Events events, QWidget* parent)
    : program_(program),
      sheet_(sheet),
      owner_(owner),
      events_(std::move(events)),
      preview_(owner, sheet.Records()),
      looks_(program),
      grdProperty_(new ctlEditGrid(program.Services.Clock, *this, parent)) {
    SetupPropertyGrid();
    sheet_.Records().Watch([this](int record) { RecordChanged(record); });
}

// The control tells this of all that it does, and so goes first.
PropertyGrid::~PropertyGrid() {
    sheet_.Records().Watch([](int) {});
    delete grdProperty_;
}

void PropertyGrid::SetupPropertyGrid() {
    grdProperty_->setObjectName(u"grdProperty"_s);
    grdProperty_->CompactOnPress = false;  // a gap is an empty value
    editor::GridLook& look = grdProperty_->Look();
    look.ForeColorFixed = QColor::fromRgb(HeaderText);
    look.BackColorFixed = QColor::fromRgb(HeaderGround);
    look.RowHeightMin = Twips(grdProperty_->fontMetrics().height() + RoomInRow);
    grdProperty_->SetLooks(
        [this](int row, int col) { return LookOf(row, col); },
        [this](int row, int, const QString& item) { return LookOfItem(row, item); });
    grdProperty_->SetName(u"Properties"_s);
    grdProperty_->View().installEventFilter(this);
    connect(grdProperty_->View().horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int col) { events_.HeaderClicked(col); });
}

void PropertyGrid::SetupPropertyHeaders() {
    grdProperty_->Data().SetTextMatrix(0, KeyColumn, u"Property"_s);
    grdProperty_->Data().SetTextMatrix(0, ValueColumn, u"Value"_s);
}

void PropertyGrid::ShowSortMark() {
    QHeaderView& header = *grdProperty_->View().horizontalHeader();
    const auto mark = sheet_.View().Mark();
    header.setSortIndicatorShown(mark.has_value());
    if (mark) {
        header.setSortIndicator(mark->Column,
                                mark->IsAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

void PropertyGrid::FitColumns(int windowWidth) {
    editor::GridLook& look = grdProperty_->Look();
    look.Column(KeyColumn).Width = Twips(windowWidth * KeyShare);
    look.Column(ValueColumn).Width = Twips(windowWidth * ValueShare);
    look.Column(ValueColumn).Alignment = editor::ColAlign::Left;
    grdProperty_->Refresh();
}

void PropertyGrid::Fill() {
    const int current = CurrentRecord();
    grdProperty_->CancelCellEdit();
    filling_ = true;
    FillPropertyGrid();
    lastRow_ = std::max(RowOf(current), 1);
    grdProperty_->Data().SetRow(lastRow_);
    grdProperty_->Data().SetCol(ValueColumn);
    SetupRowEditor();
    grdProperty_->Refresh();
    filling_ = false;
    events_.RowChanged();
}

// Rows behind the records stay empty and are not seen.
void PropertyGrid::FillPropertyGrid() {
    records_ = sheet_.Shown();
    editor::EditGridData& data = grdProperty_->Data();
    data = editor::EditGridData({std::max(LeastRows, Count() + 2), 2, 1, 0});
    grdProperty_->Setup();
    grdProperty_->Tag = sheet_.View().Tag();
    SetupPropertyHeaders();
    ShowSortMark();
    for (int row = 1; row < data.Rows(); ++row) {
        if (row <= Count()) {
            FillRow(row, records_[static_cast<std::size_t>(row - 1)]);
        } else {
            data.SetRowHeight(row, 0);
        }
    }
}

void PropertyGrid::FillRow(int row, int record) {
    editor::EditGridData& data = grdProperty_->Data();
    data.SetTextMatrix(row, KeyColumn, sheet_.Key(record));
    data.SetRowData(row, record);
    data.SetTextMatrix(row, ValueColumn, sheet_.Cell(record));
}

int PropertyGrid::CurrentRecord() const {
    const editor::EditGridData& data = grdProperty_->Data();
    return data.Row() < 1 ? 0 : data.RowData(data.Row());
}

QString PropertyGrid::CurrentCell() const {
    const editor::EditGridData& data = grdProperty_->Data();
    return data.TextMatrix(data.Row(), ValueColumn);
}

std::vector<int> PropertyGrid::SelectedRecords() const {
    const editor::EditGridData& data = grdProperty_->Data();
    const editor::CellBlock block = data.Selection();
    std::vector<int> records;
    for (int row = std::max(block.Top, 1); row <= block.Bottom; ++row) {
        if (data.RowData(row) > 0) {
            records.push_back(data.RowData(row));
        }
    }
    return records;
}

int PropertyGrid::RowOf(int record) const {
    const auto found = std::find(records_.begin(), records_.end(), record);
    return found == records_.end() ? 0 : static_cast<int>(found - records_.begin()) + 1;
}

bool PropertyGrid::GoTo(int record) {
    const int row = RowOf(record);
    if (row == 0) {
        return false;
    }
    grdProperty_->Data().SetRow(row);
    grdProperty_->Data().SetCol(ValueColumn);
    RowColChange();
    grdProperty_->Refresh();
    grdProperty_->View().scrollTo(grdProperty_->View().currentIndex());
    return true;
}

void PropertyGrid::SetEditable(bool editable) {
    grdProperty_->Editing().Editable = editable;
    grdProperty_->setEnabled(editable);
    using When = editor::GridLook::When;
    grdProperty_->Look().HighLight = editable ? When::Always : When::Never;
    SetupRowEditor();
    grdProperty_->Refresh();
}

// How the current row's value is edited.
void PropertyGrid::SetupRowEditor() {
    const int record = CurrentRecord();
    ClearRowEditor();
    if (record == 0 || !grdProperty_->Editing().Editable) {
        return;
    }
    const editor::ValueForm form =
        editor::FormOf(sheet_.Key(record), sheet_.Properties()[record].Value);
    grdProperty_->SetCellCtl(ValueColumn, static_cast<int>(form.Kind));
    if (form.HasList()) {
        FillValueChoices(form, sheet_.Choices(record));
    }
}

// Any colour can be mixed, whether its list says so or not.
void PropertyGrid::FillValueChoices(const editor::ValueForm& form, QStringList choices) {
    const bool isColour = form.Sort == ValueSort::Colour;
    if (isColour && std::none_of(choices.begin(), choices.end(), mduUILib::IsCustomColour)) {
        choices += u"Custom"_s;
    }
    for (const QString& choice : choices) {
        if (form.Kind == EditorKind::Combo) {
            grdProperty_->Columns().AddCellComboItem(ValueColumn, choice);
        } else {
            grdProperty_->Columns().AddCellComboEditItem(ValueColumn, choice);
        }
    }
}

void PropertyGrid::ClearRowEditor() {
    grdProperty_->SetCellCtl(ValueColumn, static_cast<int>(EditorKind::None));
    grdProperty_->Columns().ClearCellCombo(ValueColumn);
    grdProperty_->Columns().ClearCellComboEdit(ValueColumn);
}

void PropertyGrid::CommitRow(int row) {
    editor::EditGridData& data = grdProperty_->Data();
    const int record = data.RowData(row);
    if (row < 1 || record == 0) {
        return;
    }
    sheet_.Records().BeginVisit();
    const editor::RowCommit commit = Take(record, data.TextMatrix(row, ValueColumn));
    if (commit.Cell != data.TextMatrix(row, ValueColumn)) {
        data.SetTextMatrix(row, ValueColumn, commit.Cell);
        grdProperty_->RefreshRow(row);
    }
}

// What stands behind a comma would be taken for choices.
editor::RowCommit PropertyGrid::Take(int record, const QString& text) {
    if (text.contains(u',')) {
        events_.HasComma();
    }
    return sheet_.Commit(record, editor::PropertyCell(text));
}

void PropertyGrid::RowColChange() {
    if (filling_) {
        return;
    }
    CommitRow(lastRow_);
    lastRow_ = grdProperty_->Data().Row();
    SetupRowEditor();
    events_.RowChanged();
}

void PropertyGrid::EndEdit() {
    grdProperty_->EndCellEdit();
    CommitRow(grdProperty_->Data().Row());
}

CellLook PropertyGrid::LookOf(int row, int col) const {
    const int record = grdProperty_->Data().RowData(row);
    if (row < 1 || record == 0) {
        return {};
    }
    CellLook look;
    if (col == ValueColumn) {
        look = looks_.LookOf(sheet_.Key(record), sheet_.Properties()[record].Value,
                             grdProperty_->Data().TextMatrix(row, col));
    } else {
        look.Heading = sheet_.View().HeadingOver(records_, row - 1, sheet_.Properties());
    }
    look.Bold = sheet_.DiffersFromDefault(record);
    return look;
}

CellLook PropertyGrid::LookOfItem(int row, const QString& item) const {
    const int record = grdProperty_->Data().RowData(row);
    if (record == 0) {
        return {};
    }
    CellLook look = looks_.LookOf(sheet_.Key(record), sheet_.Properties()[record].Value, item);
    look.Button = false;
    look.Check.reset();
    return look;
}
