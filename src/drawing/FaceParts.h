#pragma once

#include <QString>

#include "drawing/Surface.h"

/// The parts of a clock's face beside its hands, as the tick and the face see them. The parts lay
/// out the clock's controls; `FaceComposer` paints them. By themselves these classes do nothing.
namespace drawing {

/// What of the dial is to be seen.
enum class DialParts {
    None,     ///< the dial is hidden
    Numbers,  ///< the hour numbers; the spots stay as they are
    All
};

/// How the dial is laid out.
struct DialOrder {
    DialParts Parts = DialParts::All;
    QString Style = {};     ///< of the numbers; empty means the property's
    bool AsShadow = false;  ///< the numbers as their own shadow, without themselves
};

/// What stands still under the hands: hour numbers and minute spots.
class Dial {
public:
    virtual ~Dial() = default;

    virtual void SetClockDial(const DialOrder& /*order*/) {}
    /// Lays the dial out in the style of the properties, the numbers with their shadow where the
    /// style has one.
    virtual void DrawDialNumbers(DialParts /*parts*/) {}
    /// Shows the spots that the layout wants. @p hour is that of the clock; no style goes by it.
    virtual void ShowMinuteSpots(int /*hour*/) {}
    virtual void ApplyClockSpecial() {}
    /// Gives every hour number a fresh random colour, painted or as a caption.
    virtual void RecolourNumbers() {}

    /// Whether the numbers are painted on the surface rather than captions.
    virtual bool NumbersArePainted() const { return false; }
    /// Whether the numbers take another colour at each pass.
    virtual bool NumbersAreRandom() const { return false; }
    /// Paints numbers, spots and captions: the still layer above the background.
    virtual void PaintStill(Surface& /*surface*/) const {}
    /// Paints the numbers that lie above the hands: recoloured ones.
    virtual void PaintNumbersOver(Surface& /*surface*/) const {}
};

/// The digital read-out.
class DigitalClock {
public:
    virtual ~DigitalClock() = default;

    /// Fills the digits with the zone's present time and runs the motion of the chosen effect.
    virtual void DrawDigitalClock(const QString& /*format*/) {}
    virtual void SetDigitalLayout() {}
    virtual void HideDigitalClock() {}
    /// Takes a motion that is under way to its last step at once.
    virtual void FinishMotion() {}
};

/// What the lines of the calculator begin with.
enum class CalculatorTexts { Blank, PresentTime };

/// The two lines of the calculator.
class CalculatorClock {
public:
    virtual ~CalculatorClock() = default;

    virtual void DrawCalculatorClock() {}
    /// Shows both lines.
    virtual void SetCalculatorClock(CalculatorTexts /*texts*/) {}
    virtual void SetCalculatorLayout() {}
    /// Fonts, places and colours by the properties; the texts stay, also one that is typed.
    virtual void ApplyCalculatorLook() {}
    virtual void HideCalculatorClock() {}
    /// Begins the input state: the caret stands in the line of the local time.
    virtual void BeginInput() {}
    /// One key of the input state, as a virtual key code (13 Enter, 27 Esc, 9 Tab, 37 and 39 left
    /// and right, 45 Insert, 46 Delete, 8 Backspace), one of `TitleEdit.h`, or the code of a typed
    /// character.
    /// @return false when the key ended the input.
    virtual bool EditCalculatorKey(int /*keyCode*/) { return false; }
};

/// What lies under and around the hands: pictures, shapes, transparency.
class Background {
public:
    virtual ~Background() = default;

    /// Loads "Clock Image File" into `imgClock(1)`.
    virtual void LoadClockPicture() {}
    /// Loads "Window Background File" into `picFrame`; a file that has changed is read anew.
    virtual void LoadWindowPicture() {}
    /// Whether a dial picture lies under the hands.
    virtual bool HasClockPicture() const { return false; }
    /// Paints colour and pictures on the whole surface: the bottom of the still layer.
    virtual void DrawBackgroundPicture(Surface& /*surface*/) const {}
    /// Turns the window's transparency on or off, as "Window Background Colour" tells.
    virtual void ApplyTransparency() {}
    virtual void SetWindowShape() {}
    virtual void SetClockShape() {}
    /// Applies once more what depends on the whole surface: shapes and picture sizes.
    virtual void ApplySurface() {}
    /// Moves on to the next picture of the folder, with a wipe.
    virtual void ShowAutoBackground() {}
    /// Takes a wipe that is under way to its end at once.
    virtual void FinishWipe() {}
};

/// What lies over the dial.
class Overlays {
public:
    virtual ~Overlays() = default;

    /// Pictures, sizes and places of all of them.
    virtual void LayOutOverlays() {}
    virtual void LoadFlag() {}
    virtual void SetFlagPosition() {}
    virtual void SetSunMoon() {}
    virtual void SetSpeakerPosition() {}
    virtual void SetTransparentIconPosition() {}
    virtual void SetLocationLabel() {}
    virtual void HideSunMoon() {}
    virtual void HideLocationLabel() {}
};

}  // namespace drawing
