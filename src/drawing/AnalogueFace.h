#pragma once

#include <QPointF>
#include <array>

#include "drawing/Angles.h"
#include "drawing/HandStyles.h"
#include "foundation/ClockProperty.h"

namespace platform {
class RandomNumbers;
}

namespace drawing {

/// How one hand looks, as the properties tell it.
struct HandLook {
    HandStyle Style = HandStyle::Unknown;
    QString Colour;            ///< a colour name; "Random" is another colour at each pass
    double LengthPercent = 0;  ///< of the radius of the inscribed circle
    /// As the property has it; what it means depends on the style (`DrawClockHand`).
    int LineWidth = 0;
};

/// What the analogue pass reads from the properties.
/// It stays the same until the properties change; only colours by chance are picked at each pass.
struct AnalogueLook {
    double CentralX = -1;  ///< percent of the surface's width; -1 means the middle
    double CentralY = -1;
    HandLook Hour, Minute, Second;
    /// Of the hub; a colour name.
    QString HeadColour;
    ClockSpecial Special = ClockSpecial::None;
};

/// A key that is missing reads "0": a hand of that length or style is not drawn.
AnalogueLook ReadAnalogueLook(const ClockProperties& properties);

/// The centre of the dial on a surface, before rounding.
QPointF ClockCentre(const AnalogueLook& look, int scaleWidth, int scaleHeight);
QPointF ClockCentre(const ClockProperties& properties, int scaleWidth, int scaleHeight);

/// All that hands and hub show; two equal frames give equal pixels.
struct HandsFrame {
    struct Hand {
        HandStyle Style = HandStyle::Unknown;
        /// In radians as in `Angles.h`: pi is twelve o'clock, and the angle falls as the hand goes
        /// on.
        double Angle = Pi;
        /// In device pixels; 0 or less is not drawn.
        int Length = 0;
        int LineWidth = 0;
        int Colour = 0;
        bool operator==(const Hand&) const = default;
    };
    /// The centre, in device pixels.
    int Cx = 0, Cy = 0;
    std::array<Hand, 3> Hands;  ///< hour, minute, second: in the order of painting
    int HeadColour = 0;
    int Height = 0;  ///< of the outer window, in twips
    bool operator==(const HandsFrame&) const = default;
};

/// Works out where the hands stand at a time, and their colours for this pass.
HandsFrame MakeHandsFrame(const Surface& surface, const AnalogueLook& look, const HandTime& time,
                          platform::RandomNumbers& random);

/// Draws the hands in their order, then the hub over their roots.
void PaintHands(Surface& surface, const HandsFrame& frame);

/// A rectangle that holds every pixel in which two frames may differ.
QRect HandsDifference(const HandsFrame& before, const HandsFrame& now, double devicePixelRatio);

}  // namespace drawing
