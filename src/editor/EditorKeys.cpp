#include "editor/EditorKeys.h"

namespace editor {

EditorAction ActionOf(EditorKind kind, const EditKey& key) {
    if (!key.Typed.isEmpty()) {
        return EditorAction::Stays;
    }
    switch (key.Code) {
        case KeyCode::Enter:
            return EditorAction::Ends;
        case KeyCode::Escape:
            return EditorAction::Cancels;
        case KeyCode::PageUp:
        case KeyCode::PageDown:
            return EditorAction::EndsAndPages;
        case KeyCode::Tab:
            return EditorAction::None;
        case KeyCode::Delete:
            return kind == EditorKind::Combo || kind == EditorKind::ComboEdit
                       ? EditorAction::ClearsChoice
                       : EditorAction::Stays;
        default:
            return EditorAction::Stays;
    }
}

}  // namespace editor
