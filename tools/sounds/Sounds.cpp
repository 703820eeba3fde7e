#include "Sounds.h"

namespace sounds {

namespace {

constexpr double CommonLevel = -13;  // dB of full scale, over the loud part
constexpr double Ceiling = -1.6;     // dB of full scale
constexpr double FadeIn = 0.002;     // seconds
constexpr int Rate = SynthesisRate / 2;

}  // namespace

std::vector<Sound> AllSounds() {
    return {
        {"Bell", Bell, 0.9},
        {"Clock Tick", ClockTick, 0.03},
        {"Dewdrop", Dewdrop, 0.2},
        {"Digital Beeps", DigitalBeeps, 0.05, 2},
        {"Glass", Glass, 0.6},
        {"Gong", Gong, 1.5},
        {"Harp", Harp, 0.9},
        {"Marimba", Marimba, 0.4},
        {"Rising Alarm", RisingAlarm, 0.5},
        {"Singing Bowl", SingingBowl, 1.5},
        {"Soft Tick", SoftTick, 0.03},
        {"Two Notes", TwoNotes, 0.15},
        {"Westward Chime", WestwardChime, 1.1},
        {"Wood Block", WoodBlock, 0.06},
    };
}

Wave Finish(const Sound& sound) {
    const Wave clean = Trimmed(WithoutDrift(Halve(sound.Make()), Rate));
    Wave finished = WithSilentEnds(clean, Rate, FadeIn, sound.FadeOut);
    Level(finished, Rate, FromDecibels(CommonLevel + sound.Louder), FromDecibels(Ceiling));
    Balance(finished);
    return finished;
}

}  // namespace sounds
