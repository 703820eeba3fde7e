#pragma once

#include "clock/MenuNode.h"
#include "foundation/Program.h"

namespace clockcore {

/// Gives the entries of a clock's menu their pictures, those of its sub-menus aside: our own, from
/// the folder of pictures, 48 pixels wide and high. An entry of another name, a separator, and one
/// whose file is missing have none. All clocks share them, and none is read twice.
void SetMenuIcon(MenuNode& menu, const Program& program);

}  // namespace clockcore
