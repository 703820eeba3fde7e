#pragma once

#include <QMenu>
#include <functional>
#include <vector>

namespace clockcore {

/// What a right click on an action that counts down offers.
struct ActionCommands {
    std::function<void(int minutes)> Postpone;  ///< from the present time on
    std::function<void()> Cancel;
    std::function<void(const QString& colour)> SetColour;  ///< a name
};

/// The pop-up menu of an action: the minutes given, the end of the action, and the colours of its
/// text with @p colour (the name of the present one) ticked. It deletes itself when it closes.
/// @param minutes from `timers::ActionTimes`
/// @param commands are copied; what they refer to outlives the menu
QMenu* MakeActionMenu(QWidget* clock, const std::vector<int>& minutes, const QString& colour,
                      const ActionCommands& commands);

}  // namespace clockcore
