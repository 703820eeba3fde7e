#pragma once

#include <cstdint>
#include <random>
#include <string_view>
#include <vector>

#include "Wave.h"

/// What sounds: things that are struck, plucked, blown, and electric tones.
namespace sounds {

/// One of the tones that make up the sound of a struck thing.
struct Partial {
    double Ratio;  ///< to the named frequency
    double Level;
    double Decay;       ///< seconds to fall to 1/e
    double Attack = 0;  ///< seconds to rise; a late one lets the sound bloom
};

/// A thing with partials of its own, struck once. Each partial is a pair of tones that lie spread
/// Hz apart and so beat slowly, as those of a bell that is never quite round.
Wave Strike(double frequency, double seconds, const std::vector<Partial>& partials,
            double spread = 0);

/// A string, by a delay line that loses its brightness while it goes round. Bright 0 to 1 is how
/// hard the plucking thing is; ring is the time in seconds until nothing is heard.
Wave Pluck(double frequency, double seconds, double bright, double ring, std::uint32_t seed);

/// Noise that rings in one resonance: the body of a click.
Wave Knock(double frequency, double decay, double seconds, std::uint32_t seed);

/// A stopped pipe: mostly its first tone, a hollow third above, a breath of air at the start.
Wave Pipe(double frequency, double seconds, std::uint32_t seed);

/// An electric tone of odd tones alone, soft at both ends.
Wave Beep(double frequency, double seconds);

/// Modulated frequency, whose brightness dies with the sound.
Wave Modulated(double frequency, double ratio, double index, double decay, double seconds);

/// Harmonics that come and go by themselves, three voices that lie a little apart.
Wave Pad(double frequency, double seconds, double rise, double fall, std::uint32_t seed);

/// "A4" is 440 Hz; "F#3" and "Bb2" too. An unknown name gives 0.
double FrequencyOf(std::string_view note);

/// Numbers between -1 and 1, the same for the same seed on each machine.
class Noise {
public:
    explicit Noise(std::uint32_t seed) : source_(seed) {}
    double operator()() { return static_cast<double>(source_()) / 2147483647.5 - 1; }

private:
    std::mt19937 source_;
};

}  // namespace sounds
