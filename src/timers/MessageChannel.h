#pragma once

namespace timers {

inline constexpr int NormalInterval = 1000;  ///< of `timClock` while no message runs; milliseconds

/// The one running message of a clock, and the action that counts down, as the tick sees them.
class MessageChannel {
public:
    virtual ~MessageChannel() = default;

    /// Moves the message by one step and the countdown to the present time. Called by each
    /// normal tick.
    /// @param left where the drawing surface begins, in device pixels
    /// @param width its width, in device pixels
    virtual void RunMessage(int /*left*/, int /*width*/) {}
    /// Ends the message; the action counts on.
    virtual void HideMessage() {}
};

}  // namespace timers
