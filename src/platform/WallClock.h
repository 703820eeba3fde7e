#pragma once

#include <QDateTime>
#include <functional>
#include <memory>

namespace platform {

/// A repeating timer. It calls back on the user-interface thread and is never re-entered: while its
/// callback runs (also through a nested event loop) no second call of the same ticker comes.
class Ticker {
public:
    virtual ~Ticker() = default;

    /// The time between two calls, in milliseconds; 0 stops the ticker. A ticker of exactly 1000 ms
    /// is aimed just behind the turn of the wall clock's second, so that all clocks wake together
    /// and no second is skipped. A shot that is already due sooner than the new interval still
    /// comes; a shot that would come later is brought forward.
    virtual void SetInterval(int milliseconds) = 0;
    virtual int Interval() const = 0;
};

/// The one source of time. Nothing else in the program asks the machine for the time or waits.
class WallClock {
public:
    virtual ~WallClock() = default;

    /// The machine's local date and time, to the millisecond. It is a wall-clock reading: the value
    /// carries `Qt::UTC`, so that arithmetic on it is plain and never
    /// consults a zone.
    virtual QDateTime Now() const = 0;

    /// The offset of the machine's local time from GMT at this moment, in seconds; east positive.
    virtual int OffsetFromGmt() const = 0;

    /// The present instant: seconds since 1970 in GMT. Unlike a reading it is never ambiguous.
    virtual qint64 Instant() const { return Now().toSecsSinceEpoch() - OffsetFromGmt(); }

    /// A stopped ticker that calls @p onTick once an interval has been set.
    virtual std::unique_ptr<Ticker> MakeTicker(std::function<void()> onTick) = 0;
};

}  // namespace platform
