#pragma once

#include <QString>

#include "drawing/Surface.h"

/// The parts of a clock's face beside its hands, as the tick and the face see them. The parts lay
/// out the clock's controls; `FaceComposer` paints them.
namespace drawing {

/// What stands still under the hands: hour numbers and minute spots.
class Dial {
public:
    virtual ~Dial() = default;

    /// Lays the whole dial out; @p show false hides it. An empty @p style means the property's.
    virtual void SetClockDial(bool show, const QString& style, bool shadow, bool numbersOnly) = 0;
    /// Lays the hour numbers out, with their shadow where the style has one.
    virtual void DrawDialNumbers(bool show, const QString& style, bool numbersOnly) = 0;
    virtual void ShowMinuteSpots(int hour) = 0;
    virtual void ApplyClockSpecial() = 0;
    /// Gives every hour number a fresh random colour, painted or as a caption.
    virtual void RecolourNumbers() = 0;

    /// Whether the numbers are painted on the surface rather than captions.
    virtual bool NumbersArePainted() const = 0;
    /// Whether the numbers take another colour at each pass.
    virtual bool NumbersAreRandom() const = 0;
    /// Paints numbers, spots and captions: the still layer above the background.
    virtual void PaintStill(Surface& surface) const = 0;
    /// Paints the numbers that lie above the hands: recoloured ones.
    virtual void PaintNumbersOver(Surface& surface) const = 0;
};

/// The digital read-out.
class DigitalClock {
public:
    virtual ~DigitalClock() = default;

    /// Fills the digits with the zone's present time and runs the motion of the chosen effect.
    virtual void DrawDigitalClock(const QString& format) = 0;
    virtual void SetDigitalLayout() = 0;
    virtual void HideDigitalClock() = 0;
    /// Takes a motion that is under way to its last step at once.
    virtual void FinishMotion() = 0;
};

/// The two lines of the calculator.
class CalculatorClock {
public:
    virtual ~CalculatorClock() = default;

    virtual void DrawCalculatorClock() = 0;
    virtual void SetCalculatorClock(bool fill) = 0;
    virtual void SetCalculatorLayout() = 0;
    virtual void HideCalculatorClock() = 0;
    /// Begins the input state: the caret stands in the line of the local time.
    virtual void BeginInput() = 0;
    /// One key of the input state, as a virtual key code (13 Enter, 27 Esc, 9 Tab, 37 and 39 left
    /// and right, 45 Insert, 46 Delete, 8 Backspace) or the code of a typed character.
    /// @return false when the key ended the input.
    virtual bool EditCalculatorKey(int keyCode) = 0;
};

/// What lies under and around the hands: pictures, shapes, transparency.
class Background {
public:
    virtual ~Background() = default;

    /// Loads "Clock Image File" into `imgClock(1)`.
    virtual void LoadClockPicture() = 0;
    /// Loads "Window Background File" into `picFrame`; @p force reads the file once more.
    virtual void LoadWindowPicture(bool force) = 0;
    /// Whether a dial picture lies under the hands.
    virtual bool HasClockPicture() const = 0;
    /// Paints colour and pictures on the whole surface: the bottom of the still layer.
    virtual void DrawBackgroundPicture(Surface& surface) const = 0;
    /// Turns the window's transparency on or off, as "Window Background Colour" tells.
    virtual void ApplyTransparency() = 0;
    virtual void SetWindowShape() = 0;
    virtual void SetClockShape() = 0;
    /// Applies once more what depends on the whole surface: shapes and picture sizes.
    virtual void ApplySurface() = 0;
    /// Moves on to the next picture of the folder, with a wipe.
    virtual void ShowAutoBackground() = 0;
    /// Takes a wipe that is under way to its end at once.
    virtual void FinishWipe() = 0;
};

/// What lies over the dial.
class Overlays {
public:
    virtual ~Overlays() = default;

    /// Pictures, sizes and places of all of them.
    virtual void LayOutOverlays() = 0;
    virtual void LoadFlag() = 0;
    virtual void SetFlagPosition() = 0;
    virtual void SetSunMoon() = 0;
    virtual void SetSpeakerPosition() = 0;
    virtual void SetTransparentIconPosition() = 0;
    virtual void SetLocationLabel() = 0;
    virtual void HideSunMoon() = 0;
    virtual void HideLocationLabel() = 0;
};

}  // namespace drawing
