#pragma once

#include <functional>
#include <optional>

#include "foundation/Forms.h"
#include "shell/MenuArray.h"

/// The menu "Edit": what its items do, each by its number from 1.
namespace shell {

/// Nothing for a separator, for "Check Spelling" and for numbers outside the menu.
std::optional<EditAction> EditActionOf(int index);

/// Greys the items that can't be done at this moment, and gives each the keys that do the same
/// where one edits; none where @p keysHold is not true, as in a window that records them.
void RefreshEditItems(MenuArray& items, const std::function<bool(EditAction)>& canEdit,
                      bool keysHold);

}  // namespace shell
