// The keys of the window of properties.
#include <QKeyEvent>
#include <QTableView>

#include "editor/EditorKeys.h"
#include "editor/ui/GridKeys.h"
#include "editor/ui/PropertyWindowParts.h"
#include "editor/ui/frmProperties.h"
#include "foundation/Shortcuts.h"

using namespace Qt::StringLiterals;
namespace KeyShift = mduUILib::KeyShift;

namespace {

constexpr int F1 = 112;
constexpr int F5 = 116;
constexpr int CtrlAlt = KeyShift::Ctrl + KeyShift::Alt;
constexpr int CtrlShift = KeyShift::Ctrl + KeyShift::Shift;

/// The keys that do something to the name of a new zone other than typing a character.
int NameKeyCode(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return editor::KeyCode::Enter;
        case Qt::Key_Backspace:
            return editor::KeyCode::Backspace;
        case Qt::Key_Delete:
            return editor::KeyCode::Delete;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Left:
            return editor::KeyCode::Left;
        case Qt::Key_Right:
            return editor::KeyCode::Right;
        case Qt::Key_Home:
            return drawing::HomeKey;
        case Qt::Key_End:
            return drawing::EndKey;
        default:
            return 0;
    }
}

struct EditKeyRow {
    int Code;
    int Shift;
    EditAction Action;
};

constexpr EditKeyRow EditKeys[] = {
    {'Z', KeyShift::Ctrl, EditAction::Undo},      {'Y', KeyShift::Ctrl, EditAction::Redo},
    {'Z', CtrlShift, EditAction::Redo},           {'X', KeyShift::Ctrl, EditAction::Cut},
    {'C', KeyShift::Ctrl, EditAction::Copy},      {'V', KeyShift::Ctrl, EditAction::Paste},
    {'A', KeyShift::Ctrl, EditAction::SelectAll}, {'F', KeyShift::Ctrl, EditAction::Find}};

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

// Other keys of the grid are its own; while a name is typed it has none, since it is disabled.
bool frmProperties::WindowKey(int code, int shift) {
    if (code == 'A' && shift == CtrlAlt) {
        FlipNewFile();
        return true;
    }
    if (code == F1) {
        parts_->Owner.ShowHelp();
        return true;
    }
    if (code == F5 && !parts_->Sheet.IsForNewFile()) {
        RunItem(PropertyMenu::Item::RefreshByDefault);
        return true;
    }
    if (code == editor::KeyCode::Escape) {
        Unload();
        return true;
    }
    return EditKey(code, shift);
}

bool frmProperties::EditKey(int code, int shift) {
    for (const EditKeyRow& row : EditKeys) {
        if (row.Code == code && row.Shift == shift) {
            if (!parts_->Grid.Control().Editing().IsEditing()) {
                Edit(row.Action);  // else the key is one of the line that is typed
            }
            return true;
        }
    }
    return false;
}

void frmProperties::FlipNewFile() {
    parts_->Grid.EndEdit();
    parts_->Grid.InOneStep([this] { parts_->Sheet.FlipNewFile(); });
    ShowState();
    FocusStart();
}

void frmProperties::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button != nullptr && IsEnter(*event)) {
        button->click();
    } else if (!parts_ ||
               !(WindowKey(editor::HostCode(*event), editor::HostShift(event->modifiers())) ||
                 NameKey(*event))) {
        QWidget::keyPressEvent(event);
    }
}

bool frmProperties::NameKey(const QKeyEvent& event) {
    if (!parts_->Sheet.IsForNewFile()) {
        return false;
    }
    const int special = NameKeyCode(event.key());
    const bool types = special == 0 && editor::IsPlainKey(event) && !event.text().isEmpty();
    if (special == 0 && !types) {
        return false;
    }
    bool ended = special != 0 && parts_->Sheet.TitleKey(special);
    const bool isShift = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool isOnPad = event.modifiers().testFlag(Qt::KeypadModifier);
    const QString text = isOnPad ? event.text() : editor::NameKey(event.text(), isShift);
    for (const QChar character : types ? text : QString()) {
        ended = parts_->Sheet.TitleKey(drawing::TypedKey(character)) || ended;
    }
    if (ended) {
        parts_->Sheet.TitleKey(drawing::EndKey);  // the caret is back, should the name go on
        PressButton();
    }
    ShowState();
    return true;
}

bool frmProperties::eventFilter(QObject* watched, QEvent* event) {
    const bool isSearch = parts_ && watched == &parts_->Controls.Search();
    if (isSearch && event->type() == QEvent::KeyPress &&
        SearchKey(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// From the line one goes on to the grid, and Escape empties it before it closes the window.
bool frmProperties::SearchKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape && !parts_->Controls.Search().text().isEmpty()) {
        parts_->Controls.Search().clear();
        return true;
    }
    if ((event.key() == Qt::Key_Down || IsEnter(event)) && parts_->Grid.Count() > 0) {
        parts_->Grid.Control().View().setFocus();
        return true;
    }
    return false;
}
