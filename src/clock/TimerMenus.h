#pragma once

#include <memory>

#include "clock/DialTimers.h"
#include "clock/MenuNode.h"
#include "clock/TimerDialogs.h"
#include "timers/ActionList.h"

namespace clockcore {

/// The menus that make timers and change them, filled at the moment of opening. What is chosen in
/// them goes to `DialTimers`, or through `TimerDialogs` where something is asked first.
class TimerMenus {
public:
    /// What the menus show and command. All of it outlives them.
    struct Parts {
        DialTimers& Timers;
        TimerDialogs& Dialogs;
        const timers::ActionList& Actions;
    };

    TimerMenus(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    /// `SetTimer`: twelve times, each of which makes a timer. Without entries for a text that is no
    /// time; see `timers::FillTimeMenu`. Of a time of the dial, which has no date, each entry is
    /// what `DialTimers::PickedTime` makes of it.
    MenuNode SetTimerMenu(const QString& time) const;
    /// `ImgTimerMenu`: all that can be changed of a slot's timer. Without entries for a slot that
    /// has no timer on the dial. The sounds are left out until the machine has told that it has a
    /// device for them; it is asked anew each time, for the next one.
    MenuNode ImgTimerMenu(int slot);
    /// Asks the machine for its sound devices; the answer may come later.
    void CountSoundDevices();

private:
    void AddTime(MenuNode& menu, const QString& time) const;
    int PresentYear() const;
    MenuNode Colours(const ChosenTimer& chosen) const;
    MenuNode DisplayTimes(const ChosenTimer& chosen) const;
    MenuNode Sounds(const ChosenTimer& chosen) const;
    MenuNode SoundEntry(const ChosenTimer& chosen, const QString& caption,
                        const QString& stored) const;
    MenuNode ActionMenu(const ChosenTimer& chosen) const;
    MenuNode MusicVolumes(const ChosenTimer& chosen) const;
    MenuNode OtherTimes(const ChosenTimer& chosen) const;
    MenuNode PermanentEntry(const ChosenTimer& chosen) const;

    const ClockData& data_;
    Program program_;
    Parts parts_;
    /// As the machine told last. It may answer when the clock has gone.
    std::shared_ptr<int> devices_ = std::make_shared<int>(0);
};

}  // namespace clockcore
