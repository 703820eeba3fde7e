#pragma once

#include "clock/MenuNode.h"
#include "foundation/Program.h"

namespace clockcore {

/// Gives the entries of a clock's menu their pictures, those of its sub-menus aside: our own, from
/// the folder of pictures. An entry of another name, and one whose
/// file is missing, has none.
void SetMenuIcon(MenuNode& menu, const Program& program);

}  // namespace clockcore
