#pragma once

#include <functional>

#include "platform/WallClock.h"
#include "shell/Eye.h"
#include "shell/StatusMessages.h"

namespace shell {

/// The run of the shell's one timer: two ticks end the start, all others move the message line, the
/// eye and the time. With an empty line it rests, and looks at the time each ten seconds.
class ShellStages {
public:
    /// What the stages do to the window. All must be there; none is called before `Start` but
    /// `ShowMessage`.
    struct Hooks {
        std::function<void()> FirstTick;   ///< the window stands: what would have held it up
        std::function<void()> SecondTick;  ///< its frame and its size are known
        /// The whole message line, empty to clear it.
        std::function<void(const QString& text)> ShowMessage;
        std::function<void(int frame)> ShowEye;  ///< from 1; 0: no picture
        /// The machine's time, as "14:05".
        std::function<void(const QString& time)> ShowTime;
    };

    /// @param clock outlives this; nothing ticks before `Start`
    ShellStages(platform::WallClock& clock, Hooks hooks);

    /// The first tick comes as soon as the event loop runs, the second 0.4 seconds later.
    void Start();

    /// Whether the first tick has come.
    bool HasBegun() const { return shellStage_ != 2; }

    /// Adds a message to the line; one that stands there already, and an empty one, changes
    /// nothing. It can be called before the start.
    void ShowStatusMsg(const QString& text);
    /// Empties the line at once.
    void ClearMessages();
    const QString& Panel() const { return status_.Panel(); }  ///< the message line

private:
    void TimerCtrl();
    void FirstTick();
    void MessageTick();
    void ShowTime() const;

    platform::WallClock& clock_;
    Hooks hooks_;
    StatusMessages status_;
    Eye eye_;
    int shellStage_ = 2;  ///< 2 until the first tick, 3 for the next, then 1
    std::unique_ptr<platform::Ticker> timerCtrl_;
};

}  // namespace shell
