#pragma once

#include <QImage>
#include <QRectF>
#include <QRegion>
#include <QString>
#include <optional>

namespace clockcore {

/// The clock's window, as its logic sees it.
/// `FormWindow` is the real one; a test has one of its own.
class ClockWindow {
public:
    virtual ~ClockWindow() = default;

    /// Whether the clock stands in a shell.
    virtual bool IsMDIChild() const = 0;
    virtual bool IsActiveForm() const = 0;    ///< the form that the screen reports as active
    virtual bool IsActiveWindow() const = 0;  ///< the system's active window
    virtual bool IsEnabled() const = 0;
    /// Lets the window and all that lies on it be used, or not.
    virtual void EnableWindow(bool enabled) = 0;

    /// Of `timClock`, in milliseconds; 0 while it is stopped.
    virtual int TimerInterval() const = 0;
    virtual void SetTimerInterval(int milliseconds) = 0;

    /// Where the surface begins and how wide it is, in device pixels.
    virtual int ScaleLeft() const = 0;
    virtual int ScaleWidth() const = 0;

    /// Clears the surface to the background colour.
    virtual void Cls() = 0;
    /// While locked, nothing that is drawn shows.
    virtual void LockWindowUpdate(bool locked) = 0;
    /// Hides the controls that stand for hands: hands are painted.
    virtual void HideHandShapes() = 0;
    /// Ends the clock by itself; the tick goes on no further.
    virtual void CloseClock() = 0;
};

/// Where the window stands and how it is framed. What is named "Apply" makes the window as the
/// properties tell. By itself the class does nothing, so that a test overrides only what it asks
/// for.
class ClockPlacement {
public:
    virtual ~ClockPlacement() = default;

    /// By "Window State". A wrapper takes the whole of its container.
    virtual void ApplyWindowState() {}
    virtual void ApplyWindowRect() {}
    virtual void ApplyWindowBorder() {}
    virtual void ApplyTitleBar() {}
    /// In a shell the name of the clock's file, by which others find the clock; the program's own
    /// name for a clock that stands alone.
    virtual void SetClockCaption() {}
    /// Opens or closes the window, with its animation.
    virtual void ShowClockWindow(bool /*show*/) {}
    /// Whether the window is open, be it minimised.
    virtual bool IsShown() const { return false; }

    virtual QString Caption() const { return {}; }
    virtual int WindowState() const { return 0; }  ///< 0 normal, 1 minimised, 2 maximised
    virtual void SetWindowState(int /*state*/) {}
    /// An entry of the position menu: each word of its caption acts by itself.
    virtual void MoveTo(const QString& /*caption*/) {}
    /// In twips: the position stays.
    virtual void SetOuterSize(const QSizeF& /*twips*/) {}
    virtual QRectF OuterRect() const { return {}; }  ///< in twips, at this moment
    /// What a file is to remember, in twips; nothing where that keeps what it has.
    virtual std::optional<QRectF> PlaceToStore() const { return std::nullopt; }
    /// Where the clock begins within the outer window, in device pixels.
    virtual QPoint SurfaceOffset() const { return {}; }
    /// The outline of the outer window, in device pixels; an empty region takes it away.
    virtual void SetWindowRgn(const QRegion& /*outline*/) {}
    /// Lets what the clock does not paint be see-through.
    virtual void SetColourKey(bool /*on*/) {}
    virtual void SetIcon(const QImage& /*picture*/) {}
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
    /// Paints and shows what has changed, with the hands where they are.
    virtual void ShowChanges() {}
    /// Makes the next repaint a whole one.
    virtual void Invalidate() {}
    /// Makes the next repaint begin with the still layer.
    virtual void StillChanged() {}
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
