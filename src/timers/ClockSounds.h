#pragma once

namespace timers {

/// The sounds of the hour and of each second.
class ClockSounds {
public:
    virtual ~ClockSounds() = default;

    virtual bool PlayHourSound() { return false; }  ///< whether the hour sound is still busy
    virtual void PlaySecondSound() {}
};

}  // namespace timers
