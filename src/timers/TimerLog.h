#pragma once

#include <QDateTime>
#include <QStringList>
#include <functional>
#include <vector>

namespace platform {
class Files;
}

struct PathTable;

/// What has become of timers, for those who ask later: the file "Timers.log".
namespace timers {

/// A timer was made or given another time; came in its minute, came late, or came too late and was
/// not shown; was taken off the dial. Its action was asked for, was carried out, was refused.
enum class TimerHappening {
    Set,
    Fired,
    Late,
    Skipped,
    Removed,
    ActionAsked,
    ActionRun,
    ActionRefused
};

/// A word for it, as it stands in the file: "fired", "action-asked".
QString HappeningText(TimerHappening happening);

/// One line of the log.
struct TimerEvent {
    QDateTime At;  ///< in GMT, to the second
    QString Clock;
    TimerHappening Happening = TimerHappening::Set;
    QString Time;     ///< of the timer, "15:10"
    qint64 Late = 0;  ///< seconds behind the moment at which it was due
    QString Message;

    bool operator==(const TimerEvent&) const = default;
};

/// The log of the timers of all clocks: the last 500 events, one a line, the oldest first. What
/// separates the values is a tabulator; those in a message become blanks.
///
///     2026-11-16T14:22:10Z  London  late  14:10  730  Call home
class TimerLog {
public:
    static constexpr qsizetype MostEvents = 500;

    /// @param files outlives the log
    /// @param path tells the path of the file, see `PathIn`, whenever it is asked for
    TimerLog(platform::Files& files, std::function<QString()> path)
        : files_(files), path_(std::move(path)) {}

    /// In the data folder; in the program folder where no user is known.
    static QString PathIn(const PathTable& paths);

    /// Keeps an event until it is written.
    void Add(const TimerEvent& event);
    /// Puts what was added behind what the file holds, in one step. What can't be written is kept
    /// for the next time.
    void Write();

    /// The events of the file, the oldest first. Lines that are none are left out.
    std::vector<TimerEvent> Events() const;

private:
    QStringList Lines() const;

    platform::Files& files_;
    std::function<QString()> path_;
    QStringList added_;
};

}  // namespace timers
