#pragma once

#include <functional>

#include "foundation/ClockProperty.h"
#include "shell/MenuArray.h"

/// The clocks that open by themselves when the shell starts: records of name and value, where an
/// empty value means "no".
namespace shell {

/// Checks each item whose caption starts automatically. A value of "0" reads as "no" here.
void MarkAutoStartItems(MenuArray& opened, const ClockProperties& autoStartList);

/// Turns an entry over: one that was @p checked stops starting. "All" does so for every item of
/// @p opened but the last.
void SetAutoStartEntry(ClockProperties& autoStartList, const MenuArray& opened, const QString& name,
                       bool checked);

/// Calls @p launch with each value that is not empty, in file order. @return whether one was
/// launched.
bool LaunchAutoStartClocks(const ClockProperties& autoStartList,
                           const std::function<bool(const QString&)>& launch);

}  // namespace shell
