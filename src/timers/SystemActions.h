#pragma once

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

/// Carries an action out: one of the five above, letter for letter, and any other text that is not
/// empty by opening it as a program or a file, with its own folder as the working folder. ".\x.exe"
/// lies beside the program. A refusal shows a box headed "ExecuteLink" with the reason.
///
/// The privilege to shut the machine down is asked for by `platform::SystemActions` itself, which
/// knows what this machine needs.
void RunAction(const TimerContext& context, const QString& action);

}  // namespace timers
