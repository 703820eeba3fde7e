#pragma once

#include <QRectF>
#include <optional>

#include "foundation/Urgency.h"
#include "timezones/ClockContext.h"

namespace timers {

/// What timers, messages and actions ask of the clock that they belong to. `clockcore::ClockHost`
/// is the real one; all places and sizes are device pixels of the drawing surface.
class TimerHost {
public:
    virtual ~TimerHost() = default;

    /// @param flags those of `SpeechFlags.h`, added up
    virtual void SpeakMessage(const QString& text, int flags, Urgency urgency) = 0;
    virtual void PurgeSpeech(Urgency urgency) = 0;
    virtual bool IsSpeaking() const { return false; }  ///< whether a text is under way
    /// @param path the full path of a file that is there
    virtual void PlaySound(const QString& path) = 0;
    virtual void StopMusic() = 0;

    /// A text for the shell's status bar; nothing happens without a shell.
    virtual void ShowStatus(const QString& text) = 0;

    /// A clock that is closing does nothing more: it goes no further from the next step on.
    virtual bool IsClosing() const { return false; }
    /// Whether somebody could see what moves on the face.
    virtual bool IsInSight() const { return true; }

    /// Gives a label the size of its caption.
    virtual void FitLabel(mduUILib::Control& label) = 0;
    /// Moves the mark of a timer: @p spot is the number of the minute spot (0 and above),
    /// @p place the place within it (1 to 12).
    virtual void PlaceMark(int slot, int spot, int place) = 0;

    virtual int TimerInterval() const = 0;  ///< of `timClock`, in milliseconds
    virtual void SetTimerInterval(int milliseconds) = 0;
    /// Of the clock, red in the low byte.
    virtual int BackColor() const = 0;
    virtual double DevicePixelRatio() const = 0;
    virtual int ScaleHeight() const = 0;  ///< of the drawing surface, in device pixels
    /// The room for a line of text of that height in the window's outline: the first row, @p top or
    /// below it, that is @p width wide, else the widest. Nothing in a window without an outline.
    virtual std::optional<QRectF> RowInOutline(double /*top*/, double /*height*/,
                                               double /*width*/) const {
        return std::nullopt;
    }
    /// The clock's properties for a change in memory; whoever keeps values of them reads these
    /// again.
    virtual ClockProperties& EditProperties() = 0;
};

using TimerContext = ClockContext<TimerHost>;

}  // namespace timers
