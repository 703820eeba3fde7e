#pragma once

namespace timers {

inline constexpr int NormalInterval = 1000;  ///< of `timClock` while no message runs; milliseconds

/// The one running message of a clock, and the action that counts down.
class MessageChannel {
public:
    virtual ~MessageChannel() = default;

    /// Moves the message by one step. @p left and @p width are those of the drawing surface.
    virtual void RunMessage(int /*left*/, int /*width*/) {}
    virtual void HideMessage() {}
};

}  // namespace timers
