// Metal and glass: what is cast, beaten or blown, and rings long.
#include <cmath>

#include "Room.h"
#include "Sounds.h"
#include "Tones.h"

namespace sounds {

namespace {

// A cast bell: hum, prime, minor third, fifth, octave and what lies above.
const std::vector<Partial> Cast{{0.5, 0.35, 1.7},    {1, 0.8, 1.2},       {1.183, 0.55, 0.9},
                                {1.506, 0.25, 0.7},  {2, 0.85, 0.75},     {2.514, 0.28, 0.45},
                                {2.662, 0.2, 0.4},   {3.011, 0.26, 0.32}, {4.166, 0.2, 0.22},
                                {5.433, 0.12, 0.13}, {6.8, 0.06, 0.08}};

// A hanging tube; its ear hears a tone that is none of these.
const std::vector<Partial> Tube{{0.5, 0.12, 1.4}, {1, 0.75, 1.3},      {1.506, 0.2, 0.9},
                                {2, 0.6, 0.8},    {2.76, 0.16, 0.5},   {3, 0.22, 0.42},
                                {4.1, 0.13, 0.3}, {5.404, 0.09, 0.16}, {6.9, 0.05, 0.09}};

const std::vector<Partial> Goblet{
    {1, 0.8, 0.5}, {2.32, 0.5, 0.3}, {2.335, 0.2, 0.34}, {4.25, 0.2, 0.14}, {6.63, 0.1, 0.06}};

// The high tones of a gong come after the low ones, out of their own swinging.
const std::vector<Partial> Tamtam{
    {0.5, 0.3, 2.2, 0.02},   {1, 0.9, 1.8, 0.015},    {1.23, 0.35, 1.5, 0.03},
    {1.51, 0.55, 1.4, 0.03}, {1.94, 0.5, 1.2, 0.06},  {2.37, 0.5, 1.1, 0.09},
    {2.83, 0.45, 1.0, 0.12}, {3.42, 0.42, 0.9, 0.15}, {4.19, 0.38, 0.8, 0.19},
    {5.07, 0.32, 0.7, 0.22}, {6.31, 0.26, 0.6, 0.25}, {7.77, 0.2, 0.5, 0.28},
    {9.6, 0.15, 0.45, 0.3},  {12.1, 0.11, 0.4, 0.3},  {15.3, 0.08, 0.3, 0.28},
    {19.4, 0.05, 0.25, 0.26}};

const std::vector<Partial> Bowl{{1, 1, 2.2, 0.03},
                                {2.71, 0.55, 1.6, 0.02},
                                {5.15, 0.22, 0.9, 0.012},
                                {8.43, 0.08, 0.45, 0.006},
                                {12.2, 0.03, 0.2, 0.004}};

const RoomKind Hall{0.2, 0.1, 0.9};

}  // namespace

Wave Bell() {
    return InRoom(Strike(FrequencyOf("E5"), 3, Cast, 0.9), {0.2, 0.06, 0.5});
}

Wave WestwardChime() {
    Wave chime;
    double time = 0;
    for (const char* note : {"F4", "C5", "A4", "D5"}) {
        Mix(chime, Strike(FrequencyOf(note), 2.9 - 0.4 * time, Tube, 0.7), time);
        time += 0.46;
    }
    return InRoom(chime, Hall);
}

Wave Glass() {
    return InRoom(Strike(FrequencyOf("A5"), 1.5, Goblet, 1.6), {0.22, 0.08, 0.5});
}

Wave Gong() {
    return InRoom(Strike(FrequencyOf("D3"), 3.6, Tamtam, 1.3), {0.15, 0.08, 0.6});
}

Wave SingingBowl() {
    return InRoom(Strike(FrequencyOf("A3"), 3.6, Bowl, 1.1), {0.15, 0.06, 0.4});
}

// Pairs of strokes that come closer, grow by 20 dB and climb, so that nobody wakes with a start.
Wave RisingAlarm() {
    constexpr double last = 6.9;  // seconds
    Wave alarm;
    double time = 0;
    while (time < last) {
        const double part = time / last;
        const double level = FromDecibels(-20 + 20 * part);
        Mix(alarm, Strike(FrequencyOf("D5"), 0.9, Goblet, 1), time, level);
        Mix(alarm, Strike(FrequencyOf(part < 0.5 ? "G5" : "A5"), 0.9, Goblet, 1), time + 0.15,
            level);
        Mix(alarm, Modulated(FrequencyOf("D4"), 3, 1 + 2 * part, 0.2, 0.6), time, 0.5 * level);
        time += 0.95 - 0.45 * part;
    }
    return InRoom(alarm, {0.2, 0.05, 0.4});
}

}  // namespace sounds
