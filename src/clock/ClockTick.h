#pragma once

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "drawing/FaceParts.h"
#include "foundation/ModuleState.h"
#include "foundation/OncePerSecond.h"
#include "platform/WallClock.h"
#include "speech/ClockVoice.h"
#include "timers/ClockSounds.h"
#include "timers/MessageChannel.h"
#include "timers/TimerSlots.h"

namespace clockcore {

/// The parts of one clock, all of which the clock owns.
struct ClockParts {
    ClockWindow& Window;
    ClockPlacement& Placement;
    ClockFace& Face;
    drawing::Dial& Dial;
    drawing::DigitalClock& Digital;
    drawing::CalculatorClock& Calculator;
    drawing::Background& Background;
    drawing::Overlays& Overlays;
    timers::TimerSlots& Timers;
    timers::MessageChannel& Messages;
    timers::ClockSounds& Sounds;
    speech::ClockVoice& Voice;
    speech::SpokenTime& Spoken;
    speech::ClockMusic& Music;
    ClockMenus& Menus;
    ClockStyles& Styles;
};

/// The heart of a clock: what each event of `timClock` does, by the clock's state. It holds no time
/// of its own; it asks the wall clock anew at every tick.
class ClockTick {
public:
    ClockTick(ClockData& data, const ClockParts& parts, const ModuleState& module,
              const platform::WallClock& clock)
        : data_(data), parts_(parts), module_(module), clock_(clock) {}

    void Tick();

    /// Makes the next tick a redraw, after the parts that moved have been placed anew.
    void RequestRedraw();

private:
    void FirstTick();
    void FirstTickOfWrapper();
    void Redraw();
    void NormalTick();
    bool StayTimeIsOver() const;
    void HandleFocus();
    void CheckTimers();
    void CheckSpokenTime();
    void DrawClockFace();
    void PlaySounds();
    void RunMessage();
    void Rotate();
    void RotateStyle(int localSecond);
    void RotateBackground(int localSecond);
    void CheckMusic();
    void RefreshTickValues();

    ClockData& data_;
    ClockParts parts_;
    const ModuleState& module_;
    const platform::WallClock& clock_;

    /// Property values that each second needs, read again when the properties change.
    int revisionRead_ = -1;
    double stayTime_ = 0;
    int autoBackground_ = 0;
    OncePerSecond rotation_;  ///< the turn of styles and backgrounds
};

/// The date and time text that timers compare on, such as "25/03/2008 2:05:09".
QString ClockTimeText(const QDateTime& clockTime);

}  // namespace clockcore
