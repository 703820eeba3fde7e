#pragma once

#include <QRect>
#include <optional>
#include <vector>

#include "foundation/ClockProperty.h"

/// Where a clock's window goes.
namespace clockcore {

/// What a file says of a window's place, in twips. Nothing stands for "find one yourself": that is
/// -1, and a width or height that no window can have.
struct StoredPlace {
    std::optional<double> Top, Left, Width, Height;
    bool operator==(const StoredPlace&) const = default;
};

StoredPlace ReadStoredPlace(const ClockProperties& properties);

/// The part of a shell's area that a window may take, and what stands there already.
struct Room {
    QRect View;                 ///< what is seen of the area
    QSize Most;                 ///< no window need be larger
    std::vector<QRect> Others;  ///< the places of the other windows
    int Step = 0;               ///< the height of a title bar, above 0
};

/// Whether enough of a window can be seen to take hold of it.
bool CanBeReached(const QRect& place, const QRect& view);

/// The place, moved so that the window can be seen and taken hold of, and not onto another window
/// as long as the view has room for one more title bar; as it stands where there is no need.
QRect InView(QRect place, const Room& room);

/// The place itself, moved into the view, where no other window is in its way; else the next beside
/// it that is free and in view; else down and to the right by as many title bars as it takes to
/// hide no other's title bar, beyond the view if need be.
QRect FreePlace(const QRect& wanted, const Room& room);

}  // namespace clockcore
