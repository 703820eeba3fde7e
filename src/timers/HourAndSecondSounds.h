#pragma once

#include <QString>

#include "timers/ClockSounds.h"
#include "timers/TimerContext.h"

namespace timers {

/// The sounds of "Hour Sound File" and "Second Sound File". They follow the machine's own time, not
/// the clock's. A file that is missing is silent.
class HourAndSecondSounds final : public ClockSounds {
public:
    explicit HourAndSecondSounds(const TimerContext& context) : context_(context) {}

    /// Sounds at minute 0 and second 0, and is busy for that call and the five behind it.
    bool PlayHourSound() override;
    /// Sounds when another second has come.
    void PlaySecondSound() override;

    /// Counts the calls for which the sound is busy, from 1; 0 when it is not.
    int HourSoundCount() const { return hourSoundCount_; }
    /// The second, 0 to 59, at which the second sound was last considered; -1 before the first.
    int LastSecond() const { return lastSecond_; }

private:
    /// Plays the file that a property names. @return false when there is none
    bool Play(const QString& property);

    TimerContext context_;
    int hourSoundCount_ = 0;
    int lastSecond_ = -1;
};

}  // namespace timers
