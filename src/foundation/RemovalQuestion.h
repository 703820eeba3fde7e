#pragma once

#include "foundation/Forms.h"

namespace MsgBox {
/// Flags of a question about what can't be brought back: Enter answers No.
inline constexpr int RemovalQuestion = YesNoQuestion + 256;
}  // namespace MsgBox
