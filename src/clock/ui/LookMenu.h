#pragma once

#include <QMenu>
#include <QStringList>
#include <functional>

#include "clock/ClockMode.h"

namespace clockcore {

/// What a right click on a clock offers of its look.
struct LookCommands {
    /// Never `None` nor the input state.
    std::function<void(ClockKind kind)> SetClocks;
    /// A file's name of those that were given; "More" asks for a file.
    std::function<void(const QString& name)> SetClockStyle;
    std::function<void(const QString& colour)> SetColour;  ///< a name, or "Custom"
    std::function<void()> SaveCurrentStyle;
    std::function<void()> SaveStyleAs;
    std::function<void()> Help;
    std::function<void()> Close;
};

/// The pop-up menu of a clock's look, made at the moment of opening: the kind of clock (@p present
/// is ticked), the style files by their names, the colours of the window. It deletes itself when it
/// closes.
/// @param clock the menu's parent, at which the caller lets it pop up
/// @param styleFiles with ".ini" behind each, in any order; the menu sorts them and leaves that out
/// @param commands are copied; what they refer to outlives the menu
QMenu* MakeLookMenu(QWidget* clock, ClockKind present, const QStringList& styleFiles,
                    const LookCommands& commands);

}  // namespace clockcore
