#pragma once

#include <QString>

namespace clockcore {

/// The clock's window, as its logic sees it.
class ClockWindow {
public:
    virtual ~ClockWindow() = default;

    virtual bool IsMDIChild() const = 0;
    virtual bool IsActiveForm() const = 0;    ///< the form that the screen reports as active
    virtual bool IsActiveWindow() const = 0;  ///< the system's active window
    virtual bool IsEnabled() const = 0;

    virtual int TimerInterval() const = 0;  ///< of `timClock`, in milliseconds
    virtual void SetTimerInterval(int milliseconds) = 0;

    virtual int ScaleLeft() const = 0;
    virtual int ScaleWidth() const = 0;

    /// Clears the surface to the background colour.
    virtual void Cls() = 0;
    /// While locked, nothing that is drawn shows.
    virtual void LockWindowUpdate(bool locked) = 0;
    virtual void HideHandShapes() = 0;
    /// Ends the clock by itself; the tick goes on no further.
    virtual void CloseClock() = 0;
};

/// Where the window stands and how it is framed.
class ClockPlacement {
public:
    virtual ~ClockPlacement() = default;

    virtual void ApplyWindowState() {}
    virtual void ApplyWindowRect() {}
    virtual void ApplyWindowBorder() {}
    virtual void ApplyTitleBar() {}
    virtual void SetClockCaption() {}
    /// Opens or closes the window, with its animation.
    virtual void ShowClockWindow(bool /*show*/) {}
};

/// The face: its background colour, its still parts, its moving parts.
class ClockFace {
public:
    virtual ~ClockFace() = default;

    virtual void ApplyWindowBackground() {}
    /// Reads "Digital Clock Format".
    virtual void ReadDigitalFormat() {}
    /// The parts that do not move, for the mode.
    virtual void PrepareClockFace() {}
    /// One repaint by clock kind: the moving parts.
    virtual void DrawClockFace() {}
};

/// The pop-up menus of the clock.
class ClockMenus {
public:
    virtual ~ClockMenus() = default;

    /// Fills the menu arrays that have one member at first, the action list among them.
    virtual void FillMenuArrays() {}
};

/// Styles, and what the tray agent needs to know.
class ClockStyles {
public:
    virtual ~ClockStyles() = default;

    /// Moves on to the next style file.
    virtual void ApplyNextStyle() {}
    /// Leaves the program folder where the tray agent looks for it.
    virtual void RecordProgramFolder() {}
};

}  // namespace clockcore
