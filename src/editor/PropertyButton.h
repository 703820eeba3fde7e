#pragma once

#include <QString>

namespace editor {

/// The states of the button beside "Close".
enum class ButtonTag { Apply = 0, Save = 1, Launch = 2 };

/// "Apply", "Save" or "Launch".
QString ButtonCaption(ButtonTag tag);

/// The state that a code asks for: -1 is Save, 2 Launch, any other Apply, unless the window edits
/// the name of a new zone, which leaves @p present.
ButtonTag ButtonState(int code, bool forNewFile, ButtonTag present);

}  // namespace editor
