#pragma once

namespace timers {

/// The sounds of the hour and of each second. The tick asks for them; by itself the class is
/// silent.
class ClockSounds {
public:
    virtual ~ClockSounds() = default;

    /// Whether the hour sound has begun or is still busy; the sound of the second then waits.
    virtual bool PlayHourSound() { return false; }
    /// At most once in a second, however often it is called.
    virtual void PlaySecondSound() {}
};

}  // namespace timers
