#include "editor/ui/CellEditors.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <limits>

#include "editor/EditorPlace.h"
#include "editor/ui/CellPainter.h"
#include "editor/ui/GridKeys.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;
using editor::EditKey;
using editor::EditorAction;
using editor::EditorKind;
namespace KeyCode = editor::KeyCode;

namespace {

constexpr int MostInName = 200;

bool IsUpOrDown(const EditKey& key) {
    return key.Typed.isEmpty() && (key.Code == KeyCode::Up || key.Code == KeyCode::Down);
}

bool IsPopupReason(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

QRectF InTwips(const QRect& pixels) {
    return {pixels.x() * TwipsPerPixel, pixels.y() * TwipsPerPixel, pixels.width() * TwipsPerPixel,
            pixels.height() * TwipsPerPixel};
}

QRect InPixels(const QRectF& twips) {
    return QRectF(twips.topLeft() / TwipsPerPixel, twips.size() / TwipsPerPixel).toRect();
}

}  // namespace

CellEditors::CellEditors(const GridParts& parts, GridModel& model, Handlers handlers)
    : parts_(parts), model_(model), handlers_(std::move(handlers)) {}

bool CellEditors::OnCellKeyPress(int keyAscii) {
    parts_.Editing.OnCellKeyPress(keyAscii);
    return ShowOpened();
}

bool CellEditors::ShowOpened() {
    if (!parts_.Editing.IsEditing() || widget_ != nullptr) {
        return parts_.Editing.IsEditing();
    }
    row_ = parts_.Data.LastEditRow;
    col_ = parts_.Editing.EditColumn();
    data_ = parts_.Data.RowData(row_);
    highlighted_ = -1;
    index_ = model_.index(model_.LineOf(row_), col_);
    if (index_.isValid()) {
        view_->scrollTo(index_);
        view_->openPersistentEditor(index_);
    }
    if (widget_ == nullptr) {  // the row is hidden
        parts_.Editing.CancelCellEdit();
        return false;
    }
    Mirror();
    widget_->setFocus();
    if (ListEditor* list = List(); list != nullptr && parts_.Editing.Editor()->IsDroppedDown()) {
        list->showPopup();
    }
    return true;
}

QWidget* CellEditors::Make(QWidget* parent) {
    switch (parts_.Editing.EditColumnId()) {
        case EditorKind::Text:
            widget_ = MakeLine(parent);
            break;
        case EditorKind::UpDown:
            widget_ = MakeSpin(parent);
            break;
        case EditorKind::Combo:
            widget_ = MakeList(parent, false);
            break;
        case EditorKind::ComboEdit:
            widget_ = MakeList(parent, true);
            break;
        case EditorKind::None:
            return nullptr;
    }
    const QString key = parts_.Data.TextMatrix(row_, 0);
    const QString heading = parts_.Data.TextMatrix(0, col_);
    widget_->setAccessibleName(OneLine(col_ > 0 && !key.isEmpty() ? key : heading, MostInName));
    return widget_;
}

QWidget* CellEditors::MakeLine(QWidget* parent) {
    auto* line = new QLineEdit(parent);
    line->setObjectName(u"ctlText"_s);
    Watch(*line);
    return line;
}

QWidget* CellEditors::MakeSpin(QWidget* parent) {
    auto* spin = new SpinEditor(
        [this](int step) {
            parts_.Editing.Spin(step);
            Mirror();
        },
        parent);
    Watch(*spin->Line());
    return spin;
}

QWidget* CellEditors::MakeList(QWidget* parent, bool hasLine) {
    const auto lookOf = [this](const QString& item) {
        return parts_.Looks.OfItem ? parts_.Looks.OfItem(row_, col_, item) : CellLook();
    };
    const auto opened = [this] {
        const int item = parts_.Editing.Burst().ListItem();
        if (item >= 0) {
            List()->view()->setCurrentIndex(List()->model()->index(item, 0));
        }
    };
    // Whether there has been a choice is known once what closed the list has done its work.
    const auto closed = [this] {
        QMetaObject::invokeMethod(this, &CellEditors::ForgetHighlight, Qt::QueuedConnection);
    };
    auto* list =
        new ListEditor(parts_.Editing.Editor()->Items(), hasLine, {opened, closed, lookOf}, parent);
    list->setPlaceholderText(OneLine(parts_.Editing.Editor()->OldText(), MostInName));
    list->view()->installEventFilter(this);
    connect(list, &QComboBox::activated, this, [this](int item) { Choose(item); });
    connect(list, &QComboBox::highlighted, this, [this](int item) {
        if (List() != nullptr && List()->IsOpen()) {
            Highlight(item);
        }
    });
    if (hasLine) {
        Watch(*list->lineEdit());
    }
    return list;
}

void CellEditors::Watch(QLineEdit& line) {
    line.setMaxLength(std::numeric_limits<int>::max());
    connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { TakeText(text); });
    connect(&line, &QLineEdit::textEdited, this, [this](const QString& text) { TakeEdited(text); });
}

// A list and a line are not lower than their cell, whose height comes from the font.
void CellEditors::Place(QWidget* widget, const QModelIndex& index) {
    QRect cell = view_->CellRect(index);
    QStyleOptionViewItem option;
    view_->initViewItemOption(&option);
    const CellLook look = parts_.LookOf(row_, col_);
    const QRect button = PartsOf(cell, look, true, option).Button;
    if (!button.isEmpty()) {
        cell = option.direction == Qt::RightToLeft ? cell.adjusted(button.width(), 0, 0, 0)
                                                   : cell.adjusted(0, 0, -button.width(), 0);
    }
    const QRectF place = editor::PlaceCellEditor(parts_.Editing.EditColumnId(), InTwips(cell));
    QRect pixels = InPixels(place);
    pixels.setHeight(std::max(pixels.height(), cell.height()));
    widget->setGeometry(pixels);
}

void CellEditors::Mirror() {
    const editor::CellEditor* editor = parts_.Editing.Editor();
    if (editor == nullptr || widget_ == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> mirroring(mirrors_, true);
    if (ListEditor* list = List(); list != nullptr) {
        list->setCurrentIndex(editor->ListIndex());
        list->view()->setCurrentIndex(list->model()->index(editor->ListIndex(), 0));
    }
    if (QLineEdit* line = LineOf(widget_); line != nullptr) {
        line->setText(editor->Text());
        line->setCursorPosition(static_cast<int>(editor->Text().size()));
    }
}

void CellEditors::TakeText(const QString& text) {
    editor::CellEditor* editor = parts_.Editing.Editor();
    if (!mirrors_ && editor != nullptr) {
        editor->SetText(OneLine(text, static_cast<int>(text.size())));
    }
}

// A character at the end of a line with a list completes it, the rest standing selected behind.
void CellEditors::TakeEdited(const QString& text) {
    const QString typed = std::exchange(typed_, QString());
    QLineEdit* line = LineOf(widget_);
    if (typed.isEmpty() || line->cursorPosition() != text.size()) {
        return;
    }
    const int item = parts_.Editing.TakeTyped(typed, text);
    if (item < 0) {
        return;
    }
    const QScopedValueRollback<bool> mirroring(mirrors_, true);
    const QString whole = parts_.Editing.Editor()->Text();
    List()->setCurrentIndex(item);
    line->setText(whole);
    line->setSelection(static_cast<int>(whole.size()),
                       static_cast<int>(text.size() - whole.size()));
    Highlight(item);
}

bool CellEditors::eventFilter(QObject* watched, QEvent* event) {
    if (!parts_.Editing.IsEditing() || widget_ == nullptr) {
        return false;
    }
    switch (event->type()) {
        case QEvent::KeyPress:
            return PressKey(static_cast<QKeyEvent&>(*event));
        case QEvent::InputMethod:
            typed_ = static_cast<QInputMethodEvent*>(event)->commitString();
            return false;
        case QEvent::FocusOut: {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (watched == widget_ && HasLeft(reason)) {
                End();
                handlers_.FocusLeft(reason);
            }
            return false;
        }
        default:
            return false;
    }
}

// The editor waits while another program, or its own menu or list, has the keyboard.
bool CellEditors::HasLeft(Qt::FocusReason reason) const {
    const bool isOwnList = List() != nullptr && List()->IsOpen();
    return !IsPopupReason(reason) && !isOwnList && QApplication::focusWidget() != nullptr;
}

// The host, to which the key would go on, steps back and forth by whole edits.
bool CellEditors::Redo(const QKeyEvent& event) {
    QLineEdit* line = LineOf(widget_);
    const bool asks = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
    if (asks && line != nullptr) {
        line->redo();
    }
    return asks && line != nullptr;
}

bool CellEditors::PressKey(QKeyEvent& event) {
    const int code = editor::HostCode(event);
    if (code != 0) {
        parts_.Host.KeyInCell(code, row_, col_);
    }
    const EditKey key = editor::EditKeyOf(event);
    typed_ = key.Typed;
    if (Redo(event)) {
        return true;
    }
    const bool isShifted = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool isForTheLine = isShifted && key.Code != KeyCode::Tab && key.Typed.isEmpty();
    if ((key.Code == 0 && key.Typed.isEmpty()) || isForTheLine) {
        return false;
    }
    return ActOn(key, editor::ActionOf(parts_.Editing.EditColumnId(), key));
}

bool CellEditors::ActOn(const EditKey& key, EditorAction action) {
    switch (action) {
        case EditorAction::Stays:
            return StayWith(key);
        case EditorAction::None:
            return true;
        case EditorAction::ClearsChoice:
            parts_.Editing.OnKeyFromEditor(key);
            Mirror();
            return true;
        case EditorAction::Ends:
            ChooseHighlighted();
            break;
        case EditorAction::EndsAndPages:
        case EditorAction::Cancels:
            break;
    }
    parts_.Editing.PageRows = view_->PageRows();
    Finish([&] { parts_.Editing.OnKeyFromEditor(key); });
    return true;
}

// What moves in a list or spins is the core's; all else acts in the line.
bool CellEditors::StayWith(const EditKey& key) {
    const bool isCores = parts_.Editing.EditColumnId() == EditorKind::Combo ||
                         (IsUpOrDown(key) && parts_.Editing.EditColumnId() != EditorKind::Text);
    if (!isCores) {
        return false;
    }
    ChooseHighlighted();
    parts_.Editing.OnKeyFromEditor(key);
    Mirror();
    if (List() != nullptr) {
        Highlight(parts_.Editing.Editor()->ListIndex());
    }
    return true;
}

// The mouse highlights entries of an open list that nobody has chosen yet.
void CellEditors::ChooseHighlighted() {
    if (ListEditor* list = List(); list != nullptr && list->IsOpen()) {
        parts_.Editing.Editor()->Choose(list->view()->currentIndex().row());
    }
}

void CellEditors::Choose(int item) {
    if (parts_.Editing.IsEditing()) {
        parts_.Editing.Editor()->Choose(item);
        End();
    }
}

void CellEditors::Highlight(int item) {
    if (item >= 0 && std::exchange(highlighted_, item) != item) {
        parts_.Host.ItemHighlighted(row_, col_, item);
    }
}

void CellEditors::ForgetHighlight() {
    if (std::exchange(highlighted_, -1) >= 0) {
        parts_.Host.ItemHighlighted(row_, col_, -1);
    }
}

template <typename Work>
void CellEditors::Finish(const Work& work) {
    if (!parts_.Editing.IsEditing()) {
        CloseWidget();
        return;
    }
    const QString before = parts_.Data.TextMatrix(parts_.Data.LastEditRow, col_);
    const int row = parts_.Data.LastEditRow;
    work();
    CloseWidget();
    model_.RowChanged(row);
    const bool isChanged = parts_.Data.TextMatrix(row, col_) != before;
    if (isChanged) {
        highlighted_ = -1;
        parts_.Host.CellChanged(row, col_);
    }
    ForgetHighlight();
    handlers_.Moved();
}

void CellEditors::End() {
    Finish([this] { parts_.Editing.EndCellEdit(); });
}

void CellEditors::Cancel() {
    Finish([this] { parts_.Editing.CancelCellEdit(); });
}

void CellEditors::EndOrDrop() {
    const editor::CellEditor* editor = parts_.Editing.Editor();
    if (editor == nullptr) {
        CloseWidget();
        return;
    }
    const int row = parts_.Data.LastEditRow;
    const bool isSameRow =
        parts_.Data.RowData(row) == data_ && parts_.Data.TextMatrix(row, col_) == editor->OldText();
    isSameRow ? End() : Cancel();
}

void CellEditors::CloseWidget() {
    QWidget* widget = widget_;
    widget_ = nullptr;
    if (widget == nullptr) {
        return;
    }
    auto* list = dynamic_cast<ListEditor*>(widget);
    if (list != nullptr && list->IsOpen()) {
        list->hidePopup();
    }
    if (widget->hasFocus()) {
        view_->setFocus();
    }
    if (index_.isValid()) {
        view_->closePersistentEditor(index_);
    }
}
