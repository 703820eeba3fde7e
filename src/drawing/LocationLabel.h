#pragma once

#include <QPointF>

#include "drawing/SeenArea.h"
#include "drawing/Surface.h"
#include "foundation/ClockProperty.h"
#include "foundation/Controls.h"

namespace platform {
class RandomNumbers;
}

namespace drawing {

/// In the properties this is a left or a top that the clock works out by itself.
inline constexpr double AutomaticPlace = -1;

/// Both are worked out: nobody has put the thing where it stands.
inline bool IsAutomaticPlace(double left, double top) {
    return left == AutomaticPlace && top == AutomaticPlace;
}

/// How the zone's name is shown, as the properties tell it.
struct LocationLook {
    double Points = -1;            ///< below 0: automatic; 0: not shown
    double Left = AutomaticPlace;  ///< logical pixels
    double Top = AutomaticPlace;
    int Colour = 0;
    bool Digital = false;  ///< the read-out takes the middle of the surface

    bool IsAutomatic() const { return IsAutomaticPlace(Left, Top); }
};

/// A colour by chance is drawn here, once for each reading.
LocationLook ReadLocationLook(const ClockProperties& properties, platform::RandomNumbers& random);

/// The automatic size, in points: between 6 and a twentieth of the surface's logical height, such
/// that the name takes at most half of the width, or nine tenths below a read-out. 0 when the name
/// is wider than the surface even at 6 points.
double LocationPoints(const QString& name, const LocationLook& look, const Surface& surface);

/// Lays the label out around its caption. The automatic place is the middle of the lower half of
/// the dial around @p centre (0.2 of the smaller side below it), or 0.82 of the height below a
/// read-out; whatever fits stays within the surface. At that place a name of automatic size becomes
/// smaller until all of it is @p seen, but not below 6 points.
void PlaceLocationLabel(mduUILib::Control& label, const LocationLook& look, const Surface& surface,
                        const QPointF& centre, const SeenArea& seen = {});

}  // namespace drawing
