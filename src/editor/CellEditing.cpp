#include "editor/CellEditing.h"

#include "editor/CellText.h"
#include "platform/WallClock.h"

namespace editor {

namespace {

constexpr int FirstCharacter = 32;

QString CharacterOf(int keyAscii) {
    const auto code = static_cast<char32_t>(keyAscii);
    return keyAscii < FirstCharacter || !QChar::isPrint(code) ? QString()
                                                              : QString::fromUcs4(&code, 1);
}

}  // namespace

CellEditing::CellEditing(EditGridData& grid, GridColumns& columns, platform::WallClock& clock)
    : grid_(grid), columns_(columns), clock_(clock), typeAhead_(clock) {}

int CellEditing::PresentYear() const {
    return clock_.Now().date().year();
}

bool CellEditing::OnCellKeyPress(int keyAscii) {
    return keyAscii != KeyCode::Escape && EnterCell(CharacterOf(keyAscii));
}

bool CellEditing::EnterCell(const QString& typed) {
    const int row = grid_.Row();
    const bool isRowForEdits =
        grid_.HasRow(row) && row >= grid_.FixedRows() && grid_.IsRowEditable(row);
    if (!Editable || !isRowForEdits || IsEditing()) {
        return false;
    }
    earlierEditRow_ = grid_.LastEditRow;
    grid_.LastEditRow = row;
    return columns_.IsEditable(grid_.Col()) && BeginCellEdit(typed);
}

bool CellEditing::BeginCellEdit(const QString& typed) {
    editColumn_ = grid_.Col();
    const EditorKind kind = columns_.Ctl(editColumn_).Id;
    const QStringList items = columns_.Items(editColumn_);
    if (kind == EditorKind::Combo && items.isEmpty()) {
        return false;
    }
    editor_.emplace(kind, grid_.TextMatrix(grid_.Row(), editColumn_), items);
    editor_->Begin(typed);
    return true;
}

bool CellEditing::OnGridKey(const EditKey& key) {
    if (!key.Typed.isEmpty()) {
        EnterCell(key.Typed);
        return true;
    }
    const bool movesOn =
        key.Code == KeyCode::Tab || (key.Code == KeyCode::Enter && MoveToNextOnEnter);
    if (movesOn) {
        MoveToNextCell();
        return true;
    }
    return (key.Code == KeyCode::Enter || key.Code == KeyCode::Backspace) &&
           OnCellKeyPress(key.Code);
}

void CellEditing::OnKeyFromEditor(const EditKey& key) {
    if (!editor_) {
        return;
    }
    switch (ActionOf(editor_->Kind(), key)) {
        case EditorAction::Stays:
            editor_->Key(key, typeAhead_, PresentYear());
            break;
        case EditorAction::ClearsChoice:
            editor_->ClearChoice();
            break;
        case EditorAction::Cancels:
            CancelCellEdit();
            break;
        case EditorAction::Ends:
            EndCellEdit();
            if (MoveToNextOnEnter) {
                MoveToNextCell();
            }
            break;
        case EditorAction::EndsAndPages:
            EndCellEdit();
            MoveByPage(key.Code);
            break;
        case EditorAction::None:
            break;
    }
}

int CellEditing::TakeTyped(const QString& character, const QString& text) {
    if (EditColumnId() != EditorKind::ComboEdit) {
        return -1;
    }
    const int item = typeAhead_.Typed(character, text, editor_->Items());
    editor_->SetText(item < 0 ? text : editor_->Items()[item]);
    return item;
}

void CellEditing::Spin(int step) {
    if (editor_) {
        editor_->Spin(step, PresentYear());
    }
}

void CellEditing::EndCellEdit() {
    if (!editor_) {
        return;
    }
    const bool isLine =
        editor_->Kind() == EditorKind::Text || editor_->Kind() == EditorKind::UpDown;
    const QString text = editor_->Text();
    const bool isNumber = isLine && columns_.HasNumberFormat(editColumn_);
    WriteValue(isNumber ? FormattedNumber(text) : text);
    editor_.reset();
    typeAhead_.End();
}

// The row may have gone, or moved, since the edit began; `LastEditRow` has followed it.
void CellEditing::WriteValue(const QString& text) {
    if (grid_.LastEditRow < grid_.FixedRows() || text == editor_->OldText()) {
        return;
    }
    RowChanges = grid_.SetTextMatrix(grid_.LastEditRow, editColumn_, text) || RowChanges;
}

void CellEditing::CancelCellEdit() {
    if (editor_) {
        grid_.LastEditRow = earlierEditRow_;
    }
    editor_.reset();
    typeAhead_.End();
}

void CellEditing::MoveToNextCell() {
    if (grid_.SetCol(grid_.Col() + 1)) {
        return;
    }
    int first = 0;
    while (first < grid_.Cols() && !columns_.IsEditable(first)) {
        ++first;
    }
    grid_.SetCol(first < grid_.Cols() ? first : 0);
    grid_.SetRow(NextRow(grid_.Row(), 1));
}

int CellEditing::NextRow(int row, int step) const {
    int next = row + step;
    while (grid_.HasRow(next) && grid_.RowHeight(next) == 0) {
        next += step;
    }
    return grid_.HasRow(next) && next >= grid_.FixedRows() ? next : row;
}

void CellEditing::MoveByPage(int code) {
    int row = grid_.Row();
    for (int moved = 0; moved < PageRows; ++moved) {
        row = NextRow(row, code == KeyCode::PageUp ? -1 : 1);
    }
    grid_.SetRow(row);
}

}  // namespace editor
