#pragma once

#include "clock/MenuNode.h"

class QMenu;
class QWidget;

namespace clockcore {

/// The widget of a menu and of its sub-menus, each with its node's name as object name. It deletes
/// itself when it closes; the caller lets it pop up.
/// @param clock the menu's parent
/// @param menu is copied; what its functions refer to outlives the menu
QMenu* MakeMenu(QWidget* clock, const MenuNode& menu);

}  // namespace clockcore
