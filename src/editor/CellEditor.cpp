#include "editor/CellEditor.h"

#include <algorithm>

#include "editor/CellText.h"
#include "editor/ItemSearch.h"
#include "editor/TypeAhead.h"

namespace editor {

namespace {

/// Where a key leads in a list with @p count entries; @p present where it leads nowhere.
int MovedItem(int code, int present, int count) {
    switch (code) {
        case KeyCode::Up:
        case KeyCode::Left:
            return std::max(present - 1, 0);
        case KeyCode::Down:
        case KeyCode::Right:
            return std::min(present + 1, count - 1);
        case KeyCode::Home:
            return 0;
        case KeyCode::End:
            return count - 1;
        default:
            return present;
    }
}

bool IsUpOrDown(int code) {
    return code == KeyCode::Up || code == KeyCode::Down;
}

}  // namespace

CellEditor::CellEditor(EditorKind kind, const QString& cellText, const QStringList& items)
    : kind_(kind), oldText_(cellText), items_(items) {}

void CellEditor::Begin(const QString& typed) {
    const bool replaces = kind_ != EditorKind::Combo && !typed.isEmpty();
    SetText(replaces ? typed : oldText_);
    droppedDown_ = kind_ == EditorKind::Combo && !items_.isEmpty();
}

void CellEditor::SetText(const QString& text) {
    line_.SetText(text);
    listIndex_ = FindItem(items_, text);
}

bool CellEditor::Choose(int item) {
    if (item < 0 || item >= items_.size()) {
        return false;
    }
    listIndex_ = item;
    line_.SetText(items_[item]);
    return true;
}

void CellEditor::ClearChoice() {
    listIndex_ = -1;
    line_.SetText({});
}

void CellEditor::Key(const EditKey& key, TypeAhead& typeAhead, int presentYear) {
    const bool movesInList = key.Typed.isEmpty() && IsUpOrDown(key.Code);
    if (movesInList && kind_ == EditorKind::UpDown) {
        Spin(key.Code == KeyCode::Up ? 1 : -1, presentYear);
    } else if (kind_ == EditorKind::Combo || (movesInList && kind_ == EditorKind::ComboEdit)) {
        ListKey(key);
    } else {
        LineKey(key, typeAhead);
    }
}

void CellEditor::ListKey(const EditKey& key) {
    Choose(key.Typed.isEmpty() ? MovedItem(key.Code, listIndex_, static_cast<int>(items_.size()))
                               : FindItemByInitial(items_, key.Typed));
}

void CellEditor::LineKey(const EditKey& key, TypeAhead& typeAhead) {
    if (key.Typed.isEmpty()) {
        line_.Key(key.Code);
    } else if (kind_ == EditorKind::ComboEdit) {
        TypeWithList(key, typeAhead);
    } else {
        line_.Type(key.Typed);
    }
    listIndex_ = FindItem(items_, line_.Text());
}

void CellEditor::TypeWithList(const EditKey& key, TypeAhead& typeAhead) {
    line_.Type(key.Typed);
    const int item = typeAhead.Typed(key.Typed, line_.Text(), items_);
    if (item >= 0 && line_.Caret() == line_.Text().size()) {
        line_.Complete(items_[item]);
    }
}

void CellEditor::Spin(int step, int presentYear) {
    const std::optional<QString> spun = SpunText(line_.Text(), step, presentYear);
    if (spun) {
        line_.SetText(*spun);
    }
}

}  // namespace editor
