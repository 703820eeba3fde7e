#pragma once

#include <vector>

#include "timers/TimerContext.h"

namespace timers {

/// One entry of the menu of actions. The value is what a timer stores; it is the same as the
/// caption.
struct ActionEntry {
    QString Caption;
    QString Value;
    bool operator==(const ActionEntry&) const = default;
};

/// The menu `TimerAction` of one clock: "None", the five system actions, a separator, up to three
/// programs with the newest first, and "More".
///
/// Programs are kept in `ActionFile`, one line with "," behind each. Reading adds them one by one
/// at the top, so the menu turns the file's order round, and each save turns it again. Paths are
/// native here and keep "\" in the file; one that holds "," can't be stored.
class ActionList {
public:
    explicit ActionList(const TimerContext& context) : context_(context) {}

    /// Builds the entries and reads the programs.
    void FillActionMenu();

    /// Adds each program of `ActionFile`; the file stays as it is.
    void LoadActionList();

    /// Adds a program at the top, pushes the oldest of three out and writes `ActionFile`. One that
    /// is listed already is left in its place; only the newest may be listed twice.
    void AddActionProgram(const QString& path);

    /// The entries, first entry first: entry 8 is at index 7. Empty before `FillActionMenu`.
    const std::vector<ActionEntry>& Entries() const { return entries_; }

private:
    int Count() const { return static_cast<int>(entries_.size()); }
    ActionEntry& Entry(int number) { return entries_[static_cast<std::size_t>(number - 1)]; }
    bool Insert(const QString& program);
    void Save();

    TimerContext context_;
    std::vector<ActionEntry> entries_;
};

/// The twelve entries of the menu `ActionTime`, in minutes: 6 less the minutes left and those that
/// follow, but none below -1. With 2 minutes left they run from 4 to 15.
std::vector<int> ActionTimes(int minutesLeft);

}  // namespace timers
