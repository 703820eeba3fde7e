#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>

/// What is stored when a part of a clock is dropped somewhere else.
namespace clockcore {

/// What was dragged, with the numbers that callers know it by.
enum class Dragged { Dial = 1, Digits = 2 };

/// The texts of the two keys of a place, as they are stored.
struct DroppedPlace {
    QString KeyX, KeyY;  ///< such as "Clock CentralX(%)"
    QString X, Y;        ///< percent of the window's outer width and height
    bool operator==(const DroppedPlace&) const = default;
};

/// The place of a dial or of the digits whose picture was let go.
/// @param at of the pointer in the window, in twips; it may lie outside
/// @param outer the window's outer size, in twips, above 0 both ways
/// @param twipsPerPixel of the screen, the same in both directions
///
/// A dial let go at (1500, 1500) of a window of 6000 by 6000 twips, with 15 twips to the pixel, is
/// stored as 27.5 and 30: it was held 10 pixels to the left of its middle and 20 above it. Digits
/// are held 5 to the left and 30 below.
DroppedPlace StoreDroppedPlace(const QPointF& at, Dragged what, const QSizeF& outer,
                               double twipsPerPixel);

}  // namespace clockcore
