#pragma once

#include <QDateTime>
#include <QHash>

#include "platform/WallClock.h"

namespace speech {

/// The reasons that the user has been told for something that could not be heard, and when. What
/// fails again and again would fill the status bar otherwise.
class ToldReasons {
public:
    explicit ToldReasons(const platform::WallClock& clock) : clock_(clock) {}

    /// Notes it with the present time; one that is there is told anew.
    void Add(const QString& reason) { told_.insert(reason, clock_.Now()); }
    /// Something has been heard: each reason is news again.
    void Clear() { told_.clear(); }

    bool Contains(const QString& reason) const { return told_.contains(reason); }
    bool IsEmpty() const { return told_.isEmpty(); }
    /// Whether it was added less than a minute ago.
    bool IsFresh(const QString& reason) const;
    /// Whether it was added less than five minutes ago: what is tried each minute is no news then.
    bool IsRecent(const QString& reason) const;

private:
    const platform::WallClock& clock_;
    QHash<QString, QDateTime> told_;
};

/// Whether @p since is a moment less than a minute away. A clock that was set back counts, too.
bool IsWithinAMinute(const QDateTime& since, const QDateTime& now);

}  // namespace speech
