// Small phrases: pipes, bars of rosewood, strings, water.
#include <cmath>
#include <numbers>

#include "Room.h"
#include "Sounds.h"
#include "Tones.h"

namespace sounds {

// Up, where the bird of the forest would go down.
Wave TwoNotes() {
    Wave call;
    Mix(call, Pipe(FrequencyOf("D5"), 0.3, 51), 0, 0.85);
    Mix(call, Pipe(FrequencyOf("G5"), 0.55, 52), 0.36);
    return InRoom(call, {0.25, 0.12, 0.7});
}

Wave Marimba() {
    const std::vector<Partial> bar{
        {1, 1, 0.28}, {3.93, 0.28, 0.08}, {9.24, 0.1, 0.025}, {16.2, 0.03, 0.01}};
    Wave phrase;
    double time = 0;
    for (const char* note : {"G4", "D5", "B4", "E5"}) {
        Mix(phrase, Strike(FrequencyOf(note), 0.9, bar), time);
        time += 0.17;
    }
    return InRoom(phrase, {0.22, 0.08, 0.5});
}

Wave Harp() {
    Wave run;
    double time = 0;
    std::uint32_t seed = 60;
    for (const char* note : {"C4", "G4", "B4", "D5", "E5", "A5", "E6"}) {
        Mix(run, Pluck(FrequencyOf(note), 3.2 - time, 0.55, 6, ++seed), time);
        time += 0.11 + 0.004 * time;
    }
    return InRoom(run, {0.2, 0.08, 0.7});
}

// A falling drop shuts a bubble under it, whose tone climbs while it shrinks.
Wave Dewdrop() {
    const auto drop = [](double lowest, double highest) {
        Wave wave(SamplesOf(0.22));
        double phase = 0;
        for (std::size_t i = 0; i < wave.size(); ++i) {
            const double time = static_cast<double>(i) / SynthesisRate;
            const double climb = 1 - std::exp(-time / 0.03);
            const double tone = lowest + (highest - lowest) * climb;
            phase += 2 * std::numbers::pi * tone / SynthesisRate;
            wave[i] = std::sin(phase) * std::exp(-time / 0.045) * (1 - std::exp(-time / 0.003));
        }
        return wave;
    };
    Wave drops;
    Mix(drops, drop(620, 1350), 0);
    Mix(drops, drop(820, 1750), 0.2, 0.75);
    Mix(drops, drop(540, 1180), 0.43, 0.9);
    return InRoom(drops, {0.3, 0.16, 0.7});
}

}  // namespace sounds
