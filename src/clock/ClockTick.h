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

/// The parts of one clock, all of which the clock owns. The tick keeps references and decides in
/// which order they are asked. A test puts parts of its own here.
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
    /// @param module outlives the tick; only its command line is read
    /// @param clock the wall clock, which tells the machine's local time
    ClockTick(ClockData& data, const ClockParts& parts, const ModuleState& module,
              const platform::WallClock& clock)
        : data_(data), parts_(parts), module_(module), clock_(clock) {}

    /// One event of `timClock`: called once a second, and ten times a second while a message moves.
    /// What it does goes by `ClockData::State`:
    ///
    /// - `Loading` and `Closing`: nothing.
    /// - `FirstTickDue`: makes the window ready and shows it. A wrapper paints its ground and its
    ///   numbers and stays in this state, so that each tick does so again.
    /// - `RedrawRequested`: clears the surface, frames it anew and paints all of it, locked
    ///   meanwhile.
    /// - `Running`: the normal tick, below.
    ///
    /// A normal tick looks at the focus, fires timers, speaks the time, draws the face, sounds the
    /// hour and the second, moves the message, changes style and background, and looks after the
    /// music, in that order. A step that closes the clock is the last one: what is behind it is
    /// left out.
    void Tick();

    /// Makes the next tick a redraw, after the parts that moved have been placed anew.
    /// Nobody checks the state here: whoever asks sees to it that the clock is past its first tick
    /// and not closing.
    void RequestRedraw();

private:
    /// All that needs the window: place, picture, timers, voices, face, frame. Ends in
    /// `RedrawRequested`, so that the second tick is the one that draws.
    void FirstTick();
    void FirstTickOfWrapper();
    /// Paints everything, and draws the hands where they now belong. Ends in `Running`.
    void Redraw();
    void NormalTick();
    /// Whether "Stay Time" seconds have passed since the start. That key ends only a clock of a
    /// program that was started with a command line, and 0 or less means for ever.
    bool StayTimeIsOver() const;
    /// Brings the interval back to `timers::NormalInterval` for a clock that is not in front or is
    /// disabled.
    void HandleFocus();
    void CheckTimers();
    void CheckSpokenTime();
    void DrawClockFace();
    /// Sounds only a clock without a shell, and only at the normal interval. While the hour sounds,
    /// no second does.
    void PlaySounds();
    void RunMessage();
    /// Style and background, once a second.
    void Rotate();
    /// The next style at each second of the machine's clock that is a multiple of 10.
    /// @param localSecond 0 to 59
    void RotateStyle(int localSecond);
    /// The next picture at each second that is a multiple of "Auto Background Display". So 7
    /// seconds turn at 0, 7, ... 56 and again at 0, and 60 or more at each full minute. 0 or less
    /// turns nothing.
    void RotateBackground(int localSecond);
    void CheckMusic();
    void RefreshTickValues();

    ClockData& data_;
    ClockParts parts_;
    const ModuleState& module_;
    const platform::WallClock& clock_;

    /// Property values that each second needs, read again when the properties change.
    int revisionRead_ = -1;
    /// "Stay Time", in seconds.
    double stayTime_ = 0;
    /// "Auto Background Display", in seconds.
    int autoBackground_ = 0;
    OncePerSecond rotation_;  ///< the turn of styles and backgrounds
};

/// The date and time text that timers compare on, such as "25/03/2008 2:05:09": the hour without a
/// leading zero, minute and second with one.
QString ClockTimeText(const QDateTime& clockTime);

}  // namespace clockcore
