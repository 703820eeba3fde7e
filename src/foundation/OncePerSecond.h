#pragma once

#include <QDateTime>
#include <utility>

/// Tells the first moment of each second from those that follow in it. A clock that is set back
/// begins another second, too.
///
///     OncePerSecond turn;
///     turn.IsNew(at 12:00:00.010)  // true, as the first of all is
///     turn.IsNew(at 12:00:00.900)  // false
///     turn.IsNew(at 12:00:01.000)  // true
class OncePerSecond {
public:
    /// Whether no call before this one was in the same second. @p moment is a valid one.
    bool IsNew(const QDateTime& moment) {
        const QDateTime second = moment.addMSecs(-moment.time().msec());
        return std::exchange(last_, second) != second;
    }

private:
    QDateTime last_;  ///< the second of the last call; invalid before the first
};
