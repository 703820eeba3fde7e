#pragma once

#include <QString>

/// The parts of a clock's face beside its hands.
namespace drawing {

/// What stands still under the hands: hour numbers and minute spots.
class Dial {
public:
    virtual ~Dial() = default;

    /// Lays the whole dial out; @p show false hides it. An empty @p style means the property's.
    virtual void SetClockDial(bool /*show*/, const QString& /*style*/, bool /*shadow*/,
                              bool /*numbersOnly*/) {}
    /// Draws the hour numbers, with their shadow where the style has one.
    virtual void DrawDialNumbers(bool /*show*/, const QString& /*style*/, bool /*numbersOnly*/) {}
    virtual void ShowMinuteSpots(int /*hour*/) {}
    virtual void ApplyClockSpecial() {}
    /// Gives the hour numbers fresh random colours, painted or as captions.
    virtual void RecolourNumbers() {}
    /// Whether the numbers are painted on the surface at each pass.
    virtual bool NumbersArePainted() const { return false; }
};

/// The digital read-out.
class DigitalClock {
public:
    virtual ~DigitalClock() = default;

    virtual void DrawDigitalClock(const QString& /*format*/) {}
    virtual void SetDigitalLayout() {}
    virtual void HideDigitalClock() {}
};

/// The two lines of the calculator.
class CalculatorClock {
public:
    virtual ~CalculatorClock() = default;

    virtual void DrawCalculatorClock() {}
    virtual void SetCalculatorClock(bool /*fill*/) {}
    virtual void SetCalculatorLayout() {}
};

/// What lies under and around the hands: pictures, shapes, transparency.
class Background {
public:
    virtual ~Background() = default;

    virtual void LoadClockPicture() {}
    /// Whether a dial picture lies under the hands.
    virtual bool HasClockPicture() const { return false; }
    virtual void DrawBackgroundPicture() {}
    virtual void ApplyTransparency() {}
    virtual void SetWindowShape() {}
    virtual void SetClockShape() {}
    /// Applies once more what depends on the whole surface.
    virtual void ApplySurface() {}
    virtual void ShowAutoBackground() {}
};

/// What lies over the dial.
class Overlays {
public:
    virtual ~Overlays() = default;

    virtual void LayOutOverlays() {}
    virtual void LoadFlag() {}
    virtual void SetFlagPosition() {}
    virtual void SetSunMoon() {}
    virtual void SetSpeakerPosition() {}
    virtual void SetTransparentIconPosition() {}
    virtual void SetLocationLabel() {}
};

}  // namespace drawing
