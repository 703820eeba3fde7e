#pragma once

#include <QString>

#include "editor/EditorKeys.h"

namespace editor {

/// A line of text with a caret. What has been completed stands selected behind the caret: the next
/// character replaces it, the keys that move keep it.
class EditLine {
public:
    /// Another text, with the caret at its end.
    void SetText(const QString& text);
    const QString& Text() const { return text_; }
    /// The text before what has been completed.
    QString TypedText() const { return text_.left(text_.size() - completed_); }

    int Caret() const { return caret_; }               ///< from 0 to the length of the text
    int SelectedLength() const { return completed_; }  ///< characters behind the caret

    void Type(const QString& character);
    /// Shows @p text with all behind the caret selected.
    void Complete(const QString& text);
    /// Moves the caret, or deletes; a whole character even where it takes two units. Other codes
    /// do nothing.
    void Key(int code);

private:
    void RemoveCompleted();
    int Before(int position) const;
    int Behind(int position) const;

    QString text_;
    int caret_ = 0;
    int completed_ = 0;
};

}  // namespace editor
