#include "editor/ui/GridInput.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "editor/ui/GridKeys.h"

namespace KeyCode = editor::KeyCode;
using editor::EditKey;

namespace {

constexpr int F4 = 115;

}  // namespace

void GridInput::SetView(GridView& view, CellDelegate& delegate, ColChooserBox& chooser) {
    view_ = &view;
    delegate_ = &delegate;
    chooser_ = &chooser;
}

// While an editor is open its keys come here only when it does not take them.
bool GridInput::KeyPress(QKeyEvent& event) {
    if (parts_.Editing.IsEditing()) {
        return false;
    }
    int code = editor::HostCode(event);
    if (code != 0) {
        parts_.Host.KeyDown(code, editor::HostShift(event.modifiers()));
        if (code == 0) {
            return true;
        }
    }
    const int character = editor::TypedCode(event);
    return character != 0 ? Type(character) : PressControl(event, code);
}

bool GridInput::Type(int character) {
    parts_.Host.KeyPress(character);
    if (character == 0) {
        return true;
    }
    const CellLook look = parts_.LookOf(parts_.Data.Row(), parts_.Data.Col());
    if (character == ' ' && look.Check) {
        return PressButton();
    }
    return Enter({0, editor::TextOf(character)});
}

bool GridInput::PressControl(const QKeyEvent& event, int code) {
    if (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier)) {
        ShowColChooser(parts_.Data.Col());
        return true;
    }
    if (!editor::IsPlainKey(event)) {
        return false;
    }
    if (code == F4) {
        return PressButton();
    }
    if (code == KeyCode::Tab) {
        return event.key() == Qt::Key_Tab && MoveOn();
    }
    int ascii = code;
    const bool isCharacter =
        code == KeyCode::Enter || code == KeyCode::Backspace || code == KeyCode::Escape;
    if (isCharacter) {
        parts_.Host.KeyPress(ascii);
    }
    if (isCharacter && ascii == 0) {
        return true;
    }
    return (code == KeyCode::Enter || code == KeyCode::Backspace) && Enter({code, {}});
}

// The last cell lets the focus go on, so that the keyboard never stays caught in the grid.
bool GridInput::MoveOn() {
    return !IsAtTheEnd() && Enter({KeyCode::Tab, {}});
}

bool GridInput::IsAtTheEnd() const {
    const int lastLine = actors_.Model.rowCount() - 1;
    const bool isLastCol = parts_.Data.Col() >= parts_.Data.Cols() - 1;
    return lastLine < 0 || (isLastCol && parts_.Data.Row() >= actors_.Model.RowOf(lastLine));
}

bool GridInput::Enter(const EditKey& key) {
    const bool isDone = parts_.Editing.OnGridKey(key);
    actors_.Editors.ShowOpened();
    actors_.Cursor.ShowIn(*view_);
    return isDone;
}

bool GridInput::PressButton() {
    const CellLook look = parts_.LookOf(parts_.Data.Row(), parts_.Data.Col());
    if (!look.Button && !look.Check) {
        return false;
    }
    parts_.Host.ButtonClicked(parts_.Data.Row(), parts_.Data.Col());
    return true;
}

void GridInput::KeyRelease(QKeyEvent& event) {
    if (const int code = editor::HostCode(event); code != 0) {
        parts_.Host.KeyUp(code, editor::HostShift(event.modifiers()));
    }
}

// What is composed begins in place of the cell's text; what is committed at once is typed.
bool GridInput::InputMethod(QInputMethodEvent& event) {
    if (parts_.Editing.IsEditing()) {
        return false;
    }
    if (!event.commitString().isEmpty()) {
        return TypeByInputMethod(event.commitString());
    }
    if (event.preeditString().isEmpty() ||
        parts_.Columns.Ctl(parts_.Data.Col()).Id == editor::EditorKind::Combo ||
        !actors_.Editors.OnCellKeyPress(KeyCode::Enter)) {
        return false;
    }
    LineOf(actors_.Editors.Widget())->selectAll();
    return QCoreApplication::sendEvent(actors_.Editors.Widget(), &event);
}

bool GridInput::TypeByInputMethod(const QString& text) {
    const QList<uint> points = text.toUcs4();
    Type(static_cast<int>(points.first()));
    const QString rest = text.mid(editor::TextOf(static_cast<int>(points.first())).size());
    QLineEdit* line =
        actors_.Editors.Widget() != nullptr ? LineOf(actors_.Editors.Widget()) : nullptr;
    if (line != nullptr && !rest.isEmpty()) {
        line->insert(rest);
    }
    return true;
}

QPoint GridInput::InGrid(const QMouseEvent& event) const {
    return view_->parentWidget()->mapFromGlobal(event.globalPosition().toPoint());
}

void GridInput::NoteMouse(const QMouseEvent& event) {
    const GridPlaces places(parts_, actors_.Model, *view_);
    mouseRow_ = places.RowAt(InGrid(event));
    mouseCol_ = places.ColAt(InGrid(event));
}

void GridInput::MouseDown(const QMouseEvent& event) {
    NoteMouse(event);
    actors_.Editors.End();
    isPressed_ = event.button() == Qt::LeftButton;
    onButton_ = isPressed_ && IsOnButton(event.position().toPoint());
    parts_.Host.MouseDown(editor::HostButton(event.button()), editor::HostShift(event.modifiers()),
                          InGrid(event).x(), InGrid(event).y());
}

bool GridInput::IsOnButton(const QPoint& place) const {
    const QModelIndex cell = view_->indexAt(place);
    if (!cell.isValid()) {
        return false;
    }
    const CellParts parts = delegate_->PartsAt(cell);
    return parts.Button.contains(place) || parts.Check.contains(place);
}

void GridInput::MousePressed(const QPoint& place) {
    if (view_->indexAt(place).isValid()) {
        handlers_.Compact();
    }
}

void GridInput::MouseMove(const QMouseEvent& event) {
    NoteMouse(event);
    parts_.Host.MouseMove(editor::HostButton(event.button()), editor::HostShift(event.modifiers()),
                          InGrid(event).x(), InGrid(event).y());
}

void GridInput::MouseUp(const QMouseEvent& event) {
    NoteMouse(event);
    parts_.Host.MouseUp(editor::HostButton(event.button()), editor::HostShift(event.modifiers()),
                        InGrid(event).x(), InGrid(event).y());
}

void GridInput::MouseReleased(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !std::exchange(isPressed_, false)) {
        return;
    }
    parts_.Host.Click();
    if (mouseRow_ == 0 && actors_.Model.HeaderRows() == 0) {
        ShowColChooser(mouseCol_);
    } else if (onButton_ && IsOnButton(event.position().toPoint())) {
        PressButton();
    }
}

void GridInput::DoubleClick(const QMouseEvent& event) {
    NoteMouse(event);
    parts_.Host.DblClick();
}

void GridInput::CursorMoved() {
    actors_.Cursor.TakeFrom(*view_);
}

void GridInput::Scrolled() {
    parts_.Host.Scroll();
}

void GridInput::HeaderEvent(const QEvent& event) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            MouseDown(mouse);
            isPressed_ = false;
            break;
        case QEvent::MouseMove:
            MouseMove(mouse);
            break;
        case QEvent::MouseButtonRelease:
            MouseUp(mouse);
            break;
        case QEvent::MouseButtonDblClick:
            DoubleClick(mouse);
            break;
        default:
            break;
    }
}

void GridInput::HeadingClicked(int col) {
    parts_.Host.Click();
    ShowColChooser(col);
}

void GridInput::ShowColChooser(int col) {
    const GridPlaces places(parts_, actors_.Model, *view_);
    if (parts_.Data.HasCol(col)) {
        actors_.Editors.End();
        chooser_->ShowColChooser(col, places.HeadingRect(col));
    }
}
