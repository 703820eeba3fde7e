#pragma once

#include "timers/DueTime.h"
#include "timers/TimerContext.h"
#include "timers/TimerFile.h"

/// The two keys by which a clock keeps its timers as instants, and what a time means by them.
namespace timers {

/// What becomes of a timer whose minute was not lived through ("Late Timers").
enum class LateWay {
    ByTheRules,  ///< it waits for its next coming, as if nothing had been; also without the key
    Show,
    Ask,
    Skip  ///< the log alone tells of it
};

/// Times of a clock as instants. With neither of the keys nothing here is on, and a timer goes by
/// the rules of the dial: either half of the day, never late, with no date.
class KeptTimes {
public:
    /// @param context outlives it
    explicit KeptTimes(const TimerContext& context) : context_(context) {}

    /// Reads "Late Timers" and "Timer Clock". @return whether they say something new
    bool ReadKeys();
    bool IsOn() const { return isOn_; }
    LateWay Late() const { return late_; }

    /// What the clock shows, and the instant.
    ClockMoment Present() const;
    /// Whether the clock's zone is exact, so that its offset is known at every instant.
    bool KnowsItsZone() const;
    /// How far the clock is ahead of GMT; where its zone is not exact, as far as at present at
    /// every instant.
    ClockOffset Offset() const;

    /// What a time means that was picked on the twelve hours of the dial: with 24 hours its next
    /// coming, "15:10" for "03:10"; else what it is. So is a text that is no time.
    QString PickedTime(const QString& time) const;

    /// When a timer comes next, seen from @p instant: by what it says of the day or, for one that
    /// does not say, by "Timer Clock". Without an instant for a time that can't be read.
    TimerDue NextDue(const ClockTimer& timer, const QDateTime& instant) const;
    /// The timer as it is to stand in its slot: with an instant if it is on the dial, none if not.
    /// One that is given another time, or has no instant yet, gets its next coming.
    ClockTimer Completed(const ClockTimer& before, const ClockTimer& timer) const;
    /// What is done with a line. One for a day that is near, or has gone, is loaded.
    TimerLineUse UseOf(const TimerLine& line) const;
    /// When the timer of a line is due; nothing where the line does not tell its day.
    std::optional<QDateTime> DueOf(const TimerLine& line) const;
    /// Behind `FillTimer`: time and instant as the line means them.
    void Fill(const TimerLine& line, ClockTimer& timer) const;

    /// How long before it is due a timer comes onto the dial: a day, in seconds.
    static constexpr qint64 Near = 86'400;

private:
    /// The instant of the timer's reading by the clock's present offset.
    QDateTime Anew(const ClockTimer& timer) const;

    TimerContext context_;
    bool isOn_ = false;
    LateWay late_ = LateWay::ByTheRules;
    TimerDay day_ = TimerDay::Half;
};

}  // namespace timers
