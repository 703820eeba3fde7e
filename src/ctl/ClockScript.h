#pragma once

#include <QDateTime>
#include <QStringList>
#include <optional>
#include <vector>

namespace ctl {

/// What happens to the machine and to the program while "clock run" plays a script.
enum class ScriptAction { Sleep, SetClock, Zone, Kill, Quit, Start, DiskFull, DiskFree };

/// One line of a script: "at TIME STEP".
///
///     at 2026-06-15T14:00:00 sleep 90                      # suspended, in minutes
///     at 2026-06-15T16:00:00 set-clock 2026-06-15T15:00:00
///     at 2026-06-15T16:10:00 zone Asia/Tokyo               # the machine moves
///     at 2026-06-15T16:20:00 kill                          # also quit, start, disk-full,
///     disk-free
struct ScriptStep {
    QDateTime At;  ///< the machine's local time
    ScriptAction Action = ScriptAction::Start;
    int Minutes = 0;  ///< of a sleep, 0 or more
    QDateTime Time;   ///< that the clock is set to, local
    QString Zone;     ///< an identifier; nobody has looked whether there is such a zone

    bool operator==(const ScriptStep&) const = default;
};

/// The steps of a text, in its order; "#" begins a comment, and empty lines do not count. Nothing
/// where a line is no step: @p wrong is then that line.
std::optional<std::vector<ScriptStep>> ReadClockScript(const QStringList& lines, QString& wrong);

}  // namespace ctl
