#pragma once

#include "platform/Files.h"
#include "shell/MenuState.h"

namespace shell {

/// Fills the lists that are the same for the whole run: the colours, and the styles of
/// @p stylesFolder (its path ends with a separator). It is done once, late, since it would only
/// hold up the moment at which the window appears.
void FillLateMenus(MenuState& state, const platform::Files& files, const QString& stylesFolder);

}  // namespace shell
