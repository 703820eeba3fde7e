#pragma once

#include "foundation/Forms.h"

namespace MsgBox {
/// Flags of a question about what can't be brought back: Enter answers No. They are those of
/// `YesNoQuestion`, and 256 for the second button as the default.
///
///     if (shell.ShowMsgbox(question, MsgBox::RemovalQuestion, title) == MsgBox::Yes) { ... }
inline constexpr int RemovalQuestion = YesNoQuestion + 256;
}  // namespace MsgBox
