#pragma once

#include "Wave.h"

/// The room that a sound stands in.
namespace sounds {

struct RoomKind {
    double Early = 0.25;  ///< level of the first echoes from the walls
    double Tail = 0.05;   ///< level of what follows them
    double Ring = 0.4;    ///< seconds until the tail is gone
};

/// The sound with the echoes of one ear. The ears of a pair hear other walls at other times.
Wave InRoom(const Wave& dry, const RoomKind& room, bool rightEar = false);

}  // namespace sounds
