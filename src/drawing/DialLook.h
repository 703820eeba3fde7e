#pragma once

#include <QPointF>
#include <QRectF>

#include "drawing/Canvas.h"
#include "drawing/DialNumbers.h"
#include "foundation/ClockProperty.h"

namespace drawing {

/// All that a dial's layout follows from, read once for each layout: the properties, and the size
/// of the window. Measures are in device pixels unless told otherwise.
///
/// The radii are percents of 0.48 of the surface's smaller side, by "Hour Number Position(%)" and
/// "Minute Spot Position(%)": 100 is just within the edge. Positions on the rings have indexes like
/// minutes, from 1 to 60, and 60 is at the top, also of a dial that is mirrored or folded.
struct DialLook {
    NumberStyle Style;
    ClockSpecial Special = ClockSpecial::None;
    QString NumberColour;  ///< a colour name
    QString NumberFont;
    int NumberSize = -1;  ///< of captions, in points; -1 for a size that follows the surface
    int NumberRadius = 0;
    SpotStyle Spots;
    int SpotSize = 0;
    int SpotRadius = 0;
    QString SpotImageFile;  ///< as the property holds it
    QPointF Centre;         ///< before rounding
    double LogicalHeight = 0;
    double OuterHeight = 0;  ///< of the window, in twips
    double Ratio = 1;        ///< device pixels to a logical pixel

    bool IsBackward() const { return Special == ClockSpecial::AnalogueBackward; }
    bool IsRecoloured() const { return Special == ClockSpecial::RandomNumberColour; }
    bool IsRandomColour() const;  ///< the colour of the numbers is "Random"

    /// The point of the number ring where an index stands. A shadow's ring lies 2 logical pixels to
    /// the left and 3 down, less on small clocks. A mirrored ring lies 2 logical pixels further to
    /// the right.
    QPointF NumberPoint(int index, bool shadow) const;

    /// The square of a spot. Half of its size is taken off twice: spots stand up and to the left of
    /// their ring.
    QRectF SpotPlace(int index) const;

private:
    /// The middle of the ring of the numbers or of their shadows, in whole pixels for the former.
    QPointF NumberCentre(bool shadow) const;
};

/// Reads the keys of numbers and spots, without the blanks around their values; a number is the
/// leading one of its text, or 0.
/// @param window for the size of its surface and of its outside
/// @param style of the numbers; an empty one means "Hour Number Style" of the properties
DialLook ReadDialLook(const ClockProperties& properties, Canvas& window, const QString& style);

}  // namespace drawing
