#pragma once

#include <QObject>
#include <optional>

#include "clock/ClockData.h"
#include "clock/ClockLook.h"
#include "drawing/Canvas.h"
#include "foundation/Program.h"

namespace clockcore {

/// What is asked before a clock's look changes. The clock may be closed, and gone, when the answer
/// comes; then nothing is done. A tick must not come here.
class LookDialogs {
public:
    /// @param clock goes when the clock goes
    LookDialogs(const QObject& clock, const Program& program, const WatchedState& state,
                const drawing::Canvas& canvas, ClockLook& look)
        : clock_(clock), program_(program), state_(state), canvas_(canvas), look_(look) {}

    /// Asks for a colour, with @p present to begin with: red in the low byte. Nothing when it was
    /// cancelled, or when the clock has gone meanwhile, and with it whoever asked.
    std::optional<int> PickColour(int present);
    /// Asks for a colour, with the present one to begin with, and makes it the window's. Cancelled,
    /// nothing changes.
    void PickWindowBackColour();
    /// Applies a style file. An empty name or "More" asks for one; cancelled, the clock is laid out
    /// anew as it is.
    /// @param styleFile the full path
    void SetClockStyle(const QString& styleFile);
    /// Asks a question with a Yes and a No. @return whether it was answered with Yes, and the clock
    /// is still there
    bool Confirms(const QString& question, const QString& title);
    /// Asks for a name and writes the clock's look there, without its zone. Cancelled, nothing is
    /// written.
    void SaveStyleAs();

private:
    const QObject& clock_;
    Program program_;
    const WatchedState& state_;
    const drawing::Canvas& canvas_;
    ClockLook& look_;
};

}  // namespace clockcore
