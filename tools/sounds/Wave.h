#pragma once

#include <string>
#include <vector>

/// Sound as numbers, and what is done to it before it is written.
namespace sounds {

/// Samples at SynthesisRate. 1 is full scale, which a sound may pass until it is levelled.
using Wave = std::vector<double>;

inline constexpr int SynthesisRate = 44100;

struct Stereo {
    Wave Left, Right;
};

/// Number of samples; never below 0.
std::size_t SamplesOf(double seconds);

/// Adds a sound to another from a moment on; the other grows as needed.
void Mix(Wave& into, const Wave& sound, double atSecond, double level = 1);

/// Half the rate. What lies above 10 kHz is taken away before, so that nothing folds back.
Wave Halve(const Wave& sound);

/// Takes away what swings slower than anybody hears, and with it any constant part.
Wave WithoutDrift(const Wave& sound, int rate);

/// Raised-cosine fades at both ends, between two breaths of silence of SilenceAtEnds seconds.
Wave WithSilentEnds(const Wave& sound, int rate, double fadeIn, double fadeOut);
inline constexpr double SilenceAtEnds = 0.003;

/// Without the end that nobody hears: from where the sound stays 66 dB below its peak.
Wave Trimmed(Wave sound);

/// Takes the mean to nothing by a slow swing that leaves the ends where they are.
void Balance(Wave& sound);

/// The effective level of the loud part: of the blocks of 10 ms that are at most 10 dB below the
/// loudest of them. A long decay thus counts no more than a short one.
double Loudness(const Wave& sound, int rate);

/// Peaks that come near the ceiling are rounded, never cut.
void Amplify(Wave& sound, double gain, double ceiling);

/// Brings the loud part to a level, under a ceiling as above.
void Level(Wave& sound, int rate, double loudness, double ceiling);

double FromDecibels(double decibels);

/// Writes a RIFF file of 16 bits; with two channels when right is given. Channels are equally long.
bool WriteWav(const std::string& path, int rate, const Wave& left, const Wave* right = nullptr);

}  // namespace sounds
