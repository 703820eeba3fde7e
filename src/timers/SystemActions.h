#pragma once

#include <functional>
#include <memory>

#include "timers/TimerContext.h"

/// What a timer does to the machine when its time has run out.
namespace timers {

/// The actions that are no program; a menu shows them in this order, behind "None".
namespace ActionText {
inline constexpr QLatin1StringView None("None");
inline constexpr QLatin1StringView LogOff("Log Off");
inline constexpr QLatin1StringView NormalShutdown("Normal Shutdown");
inline constexpr QLatin1StringView Reboot("Reboot");
inline constexpr QLatin1StringView ForcedShutdown("Forced Shutdown");
inline constexpr QLatin1StringView LockWorkstation("Lock Workstation");
}  // namespace ActionText

/// Carries out the actions of one clock, without waiting for the machine.
///
/// The privilege to shut the machine down is asked for by `platform::SystemActions` itself, which
/// knows what this machine needs.
class ActionRunner {
public:
    explicit ActionRunner(const TimerContext& context) : context_(context) {}

    /// Carries an action out: one of the five above, letter for letter, and any other text that is
    /// not empty by opening it as a program or a file, with its own folder as the working folder.
    /// ".\x.exe" lies beside the program.
    ///
    /// Where one of the five is refused, the status bar and the program's error output tell why; a
    /// box would stand unseen before a locked screen. What can't be opened is told by a box headed
    /// "ExecuteLink", which is shown behind the tick.
    void RunAction(const QString& action);

private:
    void Exit(const QString& action, unsigned flags);
    void Lock();
    void Open(const QString& action);
    std::function<void(const QString&)> TellRefusal(const QString& action) const;

    TimerContext context_;
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  ///< watched by who answers late
};

}  // namespace timers
