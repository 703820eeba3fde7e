#include "editor/EditLine.h"

#include <algorithm>

namespace editor {

void EditLine::SetText(const QString& text) {
    text_ = text;
    caret_ = static_cast<int>(text.size());
    completed_ = 0;
}

void EditLine::RemoveCompleted() {
    text_.chop(completed_);
    completed_ = 0;
}

void EditLine::Type(const QString& character) {
    RemoveCompleted();
    text_.insert(caret_, character);
    caret_ += static_cast<int>(character.size());
}

void EditLine::Complete(const QString& text) {
    text_ = text;
    caret_ = std::min(caret_, static_cast<int>(text.size()));
    completed_ = static_cast<int>(text.size()) - caret_;
}

int EditLine::Before(int position) const {
    const bool isPair = position >= 2 && text_[position - 1].isLowSurrogate() &&
                        text_[position - 2].isHighSurrogate();
    return std::max(position - (isPair ? 2 : 1), 0);
}

int EditLine::Behind(int position) const {
    const int length = static_cast<int>(text_.size());
    const bool isPair = position + 2 <= length && text_[position].isHighSurrogate() &&
                        text_[position + 1].isLowSurrogate();
    return std::min(position + (isPair ? 2 : 1), length);
}

void EditLine::Key(int code) {
    const bool deletes = code == KeyCode::Backspace || code == KeyCode::Delete;
    if (deletes && completed_ > 0) {
        RemoveCompleted();
        return;
    }
    completed_ = 0;
    const int from = code == KeyCode::Backspace ? Before(caret_) : caret_;
    switch (code) {
        case KeyCode::Left:
            caret_ = Before(caret_);
            break;
        case KeyCode::Right:
            caret_ = Behind(caret_);
            break;
        case KeyCode::Home:
            caret_ = 0;
            break;
        case KeyCode::End:
            caret_ = static_cast<int>(text_.size());
            break;
        case KeyCode::Backspace:
            text_.remove(from, caret_ - from);
            caret_ = from;
            break;
        case KeyCode::Delete:
            text_.remove(caret_, Behind(caret_) - caret_);
            break;
        default:
            break;
    }
}

}  // namespace editor
