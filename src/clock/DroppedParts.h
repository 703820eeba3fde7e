#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <utility>
#include <vector>

#include "clock/DragObjects.h"
#include "drawing/Canvas.h"

/// What is stored when a part of a clock has been dropped or pushed somewhere else.
namespace clockcore {

/// Keys of the properties, each with its new value.
using KeyValues = std::vector<std::pair<QString, QString>>;

/// A window as a drop needs it.
struct DropWindow {
    QSizeF Surface;    ///< device pixels
    QSizeF Outer;      ///< twips, the frame included
    double Ratio = 1;  ///< device pixels to a logical one
    bool operator==(const DropWindow&) const = default;
};

DropWindow DropWindowOf(drawing::Canvas& canvas);

/// The keys that a drag of an object writes; none for the window, whose place is stored when the
/// clock closes.
std::vector<QString> KeysOf(DragObject object);

/// The place of a dial or of digits that were let go, as `StoreDroppedPlace` has it, with the
/// middle of them brought back into the surface: for the dial that is 0 to 100. The grip is one of
/// device pixels, so on a fine screen it is shorter.
/// @param pointer in logical pixels of the clock, anywhere
/// @param size of the read-out, in device pixels; that of the dial does not matter
KeyValues DroppedPercent(DragObject object, const QPointF& pointer, const QSizeF& size,
                         const DropWindow& window);

/// The same for one that is pushed by percents of the surface from where it stands.
/// @param place the dial's centre or the left top of the digits, in device pixels
KeyValues PushedPercent(DragObject object, const QPointF& place, const QPoint& percents,
                        const QSizeF& size, const DropWindow& window);

/// The corner of the surface, in the words of "Flag Position", that is nearest to the middle of a
/// flag. One that lies exactly between goes to the top and to the right.
KeyValues DroppedCorner(const QRectF& flag, const QSizeF& surface);

/// The left top of a name, a speaker or a handle, in whole logical pixels; all of it is brought
/// back into the surface if it fits there.
/// @param part in device pixels
KeyValues DroppedPixels(DragObject object, const QRectF& part, const DropWindow& window);

/// The part moved so that all of it lies in the surface. One that is larger begins at 0.
QRectF InSight(QRectF part, const QSizeF& surface);

}  // namespace clockcore
