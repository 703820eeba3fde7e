#include "shell/ui/TextEditing.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace TextEditing {

namespace {

bool HasClipboardText() {
    return !QGuiApplication::clipboard()->text().isEmpty();
}

/// What holds of a text, however it is shown.
struct TextState {
    bool CanUndo = false;
    bool CanRedo = false;
    bool HasSelection = false;
    bool IsEmpty = true;
    bool MayWrite = false;
    bool MayCopy = true;  ///< not from a line that hides what is typed
};

TextState StateOf(const QLineEdit& line) {
    return {line.isUndoAvailable(), line.isRedoAvailable(), line.hasSelectedText(),
            line.text().isEmpty(),  !line.isReadOnly(),     line.echoMode() == QLineEdit::Normal};
}

template <class Box>
TextState StateOf(const Box& box) {
    return {box.document()->isUndoAvailable(), box.document()->isRedoAvailable(),
            box.textCursor().hasSelection(), box.document()->isEmpty(), !box.isReadOnly()};
}

bool Can(const TextState& state, EditAction action) {
    switch (action) {
        case EditAction::Undo:
            return state.CanUndo;
        case EditAction::Redo:
            return state.CanRedo;
        case EditAction::Cut:
            return state.MayWrite && state.HasSelection && state.MayCopy;
        case EditAction::Copy:
            return state.HasSelection && state.MayCopy;
        case EditAction::Paste:
            return state.MayWrite && HasClipboardText();
        case EditAction::Delete:
            return state.MayWrite && state.HasSelection;
        case EditAction::Clear:
            return state.MayWrite && !state.IsEmpty;
        case EditAction::SelectAll:
            return !state.IsEmpty;
        case EditAction::Find:
            return false;
    }
    return false;
}

void DeleteSelection(QLineEdit& line) {
    line.del();
}

template <class Box>
void DeleteSelection(Box& box) {
    box.textCursor().removeSelectedText();
}

template <class Text>
void Do(Text& text, EditAction action) {
    switch (action) {
        case EditAction::Undo:
            return text.undo();
        case EditAction::Redo:
            return text.redo();
        case EditAction::Cut:
            return text.cut();
        case EditAction::Copy:
            return text.copy();
        case EditAction::Paste:
            return text.paste();
        case EditAction::Delete:
            return DeleteSelection(text);
        case EditAction::Clear:
            text.selectAll();
            return DeleteSelection(text);  // which can be undone
        case EditAction::SelectAll:
            return text.selectAll();
        case EditAction::Find:
            return;
    }
}

/// The text of a widget that has a line inside and the focus for it; else the widget itself.
QWidget* TextIn(QWidget* widget) {
    if (const auto* list = qobject_cast<QComboBox*>(widget); list != nullptr) {
        return list->lineEdit();
    }
    const auto* spin = qobject_cast<QAbstractSpinBox*>(widget);
    return spin != nullptr ? spin->findChild<QLineEdit*>({}, Qt::FindDirectChildrenOnly) : widget;
}

/// Calls @p act with the widget as the kind of text that it is. @return whether it is any
template <class Act>
bool AsText(QWidget* given, const Act& act) {
    QWidget* widget = TextIn(given);
    const auto as = [&](auto* text) {
        if (text != nullptr) {
            act(*text);
        }
        return text != nullptr;
    };
    return as(qobject_cast<QLineEdit*>(widget)) || as(qobject_cast<QTextEdit*>(widget)) ||
           as(qobject_cast<QPlainTextEdit*>(widget));
}

}  // namespace

std::optional<bool> CanEdit(const QWidget* widget, EditAction action) {
    std::optional<bool> can;
    AsText(const_cast<QWidget*>(widget),
           [&](const auto& text) { can = Can(StateOf(text), action); });
    return can;
}

void Edit(QWidget* widget, EditAction action) {
    if (CanEdit(widget, action).value_or(false)) {
        AsText(widget, [action](auto& text) { Do(text, action); });
    }
}

}  // namespace TextEditing
