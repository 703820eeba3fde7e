// The short ones: escapements, wood, and a quartz clock's beeps.
#include "Room.h"
#include "Sounds.h"
#include "Tones.h"

namespace sounds {

namespace {

const RoomKind Case{0.18, 0, 0};  // a clock's own case

}  // namespace

// The tooth falls on the pallet, then the wheel comes to rest.
Wave ClockTick() {
    Wave tick;
    const auto fall = [&tick](double time, double level, std::uint32_t seed) {
        Mix(tick, Knock(640, 0.012, 0.07, seed), time, 0.8 * level);
        Mix(tick, Knock(1930, 0.008, 0.05, seed + 1), time, level);
        Mix(tick, Knock(3350, 0.005, 0.04, seed + 2), time, 0.8 * level);
        Mix(tick, Knock(5200, 0.003, 0.03, seed + 3), time, 0.5 * level);
    };
    fall(0, 1, 11);
    fall(0.017, 0.45, 21);
    return InRoom(tick, Case);
}

Wave SoftTick() {
    Wave tick;
    Mix(tick, Knock(410, 0.014, 0.08, 31), 0);
    Mix(tick, Knock(980, 0.009, 0.07, 32), 0, 0.8);
    Mix(tick, Knock(1720, 0.005, 0.05, 33), 0, 0.35);
    return InRoom(tick, Case);
}

Wave WoodBlock() {
    const std::vector<Partial> block{
        {1, 1, 0.035}, {1.47, 0.4, 0.02}, {2.57, 0.35, 0.014}, {4.1, 0.15, 0.006}};
    Wave stroke = Strike(890, 0.25, block);
    Mix(stroke, Knock(2600, 0.003, 0.03, 41), 0, 0.5);
    return InRoom(stroke, {0.25, 0.05, 0.2});
}

Wave DigitalBeeps() {
    Wave beeps;
    for (const double group : {0.0, 0.72}) {
        for (const double beat : {0.0, 0.12, 0.24, 0.36}) {
            Mix(beeps, Beep(1976, 0.075), group + beat);
        }
    }
    return InRoom(beeps, {0.06, 0, 0});
}

}  // namespace sounds
