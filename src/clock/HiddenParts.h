#pragma once

#include <QStringList>
#include <vector>

#include "clock/ClockData.h"
#include "clock/PartMenuCatalogue.h"

/// A part of a clock that is hidden can't be clicked, and so its own menu can't bring it back. The
/// menu of the clock does.
namespace clockcore {

/// What a clock could show, whatever its properties say.
struct ShowableParts {
    bool Speaker = false;  ///< there is a voice
    bool Flag = false;     ///< the zone's flag has been read
};

/// The parts that the clock's properties hide, as a menu names them: "Speaker", "Flag",
/// "Zone Name", "Hour Numbers" and "Minute Spots", in this order. Those that a clock of its kind
/// has not are not among them, nor is any part of a wrapper. Digits can't be hidden.
QStringList HiddenParts(const ClockData& data, const ShowableParts& showable);

/// A key whose value hides a part, and a value that shows it.
struct WayBack {
    QString Key;
    QString Value;
    Redraw What = Redraw::Nothing;
    bool operator==(const WayBack&) const = default;
};

/// What shows a part again: one key, or two that hide it both. A key gets its value of the default
/// file, or where that hides the part, too, the first of the clock's choices that shows it.
///
///     WaysBack(u"Minute Spots"_s, present, defaults)  // "Minute Spot Style" := "Spot 60"
///
/// @param part one of `HiddenParts`; any other name gives nothing
std::vector<WayBack> WaysBack(const QString& part, const ClockProperties& present,
                              const ClockProperties& defaults);

}  // namespace clockcore
