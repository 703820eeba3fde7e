#pragma once

#include <QWidget>
#include <optional>

#include "foundation/Forms.h"

/// Lines and boxes of text, as the menu "Edit" acts on them. A line within a list or within spin
/// buttons, which have the focus in its place, counts as one.
namespace TextEditing {

/// Whether a text can do that at this moment; nothing for a widget that is no text.
std::optional<bool> CanEdit(const QWidget* widget, EditAction action);

/// Does it; nothing where it can't, or for a widget that is no text.
void Edit(QWidget* widget, EditAction action);

}  // namespace TextEditing
