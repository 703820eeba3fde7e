#pragma once

#include <array>
#include <optional>

#include "drawing/Angles.h"
#include "drawing/FaceParts.h"
#include "drawing/Hands.h"
#include "foundation/ClockProperty.h"
#include "platform/Machine.h"

namespace drawing {

/// How one hand looks, as the properties tell it.
struct HandLook {
    HandStyle Style = HandStyle::Unknown;
    QString Colour;            ///< a colour name; "Random" is another colour at each pass
    double LengthPercent = 0;  ///< of the radius of the inscribed circle
    int LineWidth = 0;
};

/// What the analogue pass reads from the properties.
struct AnalogueLook {
    double CentralX = -1;  ///< percent of the surface's width; -1 means the middle
    double CentralY = -1;
    HandLook Hour, Minute, Second;
    QString HeadColour;
    QString ClockSpecial;
};

AnalogueLook ReadAnalogueLook(const ClockProperties& properties);

/// The centre of the dial on a surface, before rounding.
QPointF ClockCentre(const AnalogueLook& look, int scaleWidth, int scaleHeight);

/// The analogue pass: background, numbers, hands, hub. Every pass leaves the surface as if it had
/// been painted whole; where only hands have moved, no more than the pixels they touch is painted.
class AnalogueFace {
public:
    AnalogueFace(Dial& dial, Background& background, platform::RandomNumbers& random)
        : dial_(dial), background_(background), random_(random) {}

    /// @return the part of the surface that may have changed
    QRect DrawAnalogueClock(Surface& surface, const AnalogueLook& look, const HandTime& time,
                            int backColour);

    /// Makes the next pass a whole one: the surface has been touched by others.
    void Invalidate() { last_.reset(); }

private:
    struct Hand {
        HandStyle Style = HandStyle::Unknown;
        double Angle = Pi;
        int Length = 0;
        int LineWidth = 0;
        int Colour = 0;
        bool operator==(const Hand&) const = default;
    };

    /// All that a pass draws; two equal frames give equal pixels.
    struct Frame {
        int Cx = 0, Cy = 0;
        std::array<Hand, 3> Hands;
        int HeadColour = 0;
        int BackColour = 0;
        int Height = 0;
        QSize Size;
    };

    Frame MakeFrame(const Surface& surface, const AnalogueLook& look, const HandTime& time,
                    int backColour);
    Hand MakeHand(const HandLook& look, double angle, int diameter);
    std::optional<QRect> ChangedPart(const Frame& frame) const;
    void Paint(Surface& surface, const Frame& frame);

    Dial& dial_;
    Background& background_;
    platform::RandomNumbers& random_;
    std::optional<Frame> last_;
};

}  // namespace drawing
