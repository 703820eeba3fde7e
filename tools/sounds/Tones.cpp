#include "Tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sounds {

namespace {

constexpr double Turn = 2 * std::numbers::pi;
constexpr double HighestTone = 15000;  // Hz

double TimeOf(std::size_t sample) {
    return static_cast<double>(sample) / SynthesisRate;
}

// 0 to 1 and back over the given times at both ends.
double Swell(double time, double seconds, double rise, double fall) {
    const auto smooth = [](double part) {
        const double x = std::clamp(part, 0.0, 1.0);
        return x * x * (3 - 2 * x);
    };
    return smooth(time / rise) * smooth((seconds - time) / fall);
}

void AddTone(Wave& wave, double frequency, const Partial& partial, double level) {
    if (frequency > HighestTone) {
        return;
    }
    const double attack = std::max(partial.Attack, 0.0008);
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = TimeOf(i);
        const double rise = time < 8 * attack ? 1 - std::exp(-time / attack) : 1;
        wave[i] +=
            level * rise * std::exp(-time / partial.Decay) * std::sin(Turn * frequency * time);
    }
}

// A note that is over before it has died away is damped, not cut.
void Damp(Wave& wave) {
    const double seconds = TimeOf(wave.size());
    for (std::size_t i = 0; i < wave.size(); ++i) {
        wave[i] *= Swell(TimeOf(i), seconds, 1e-9, 0.25 * seconds);
    }
}

// What a string is given at the start: noise, the softer the less bright, plucked off its middle.
std::vector<double> Excitation(std::size_t length, double bright, std::uint32_t seed) {
    Noise noise(seed);
    std::vector<double> line(length);
    double soft = 0;
    double softer = 0;
    for (double& value : line) {
        soft += bright * (noise() - soft);
        softer += bright * (soft - softer);
        value = softer;
    }
    std::vector<double> plucked(length);
    const std::size_t away = std::max<std::size_t>(1, length / 5);
    double mean = 0;
    for (std::size_t i = 0; i < length; ++i) {
        plucked[i] = line[i] - line[(i + length - away) % length];
        mean += plucked[i] / static_cast<double>(length);
    }
    double power = 0;
    for (double& value : plucked) {
        value -= mean;
        power += value * value / static_cast<double>(length);
    }
    std::ranges::for_each(plucked, [power](double& v) { v /= 4 * std::sqrt(power + 1e-12); });
    return plucked;
}

}  // namespace

Wave Strike(double frequency, double seconds, const std::vector<Partial>& partials, double spread) {
    constexpr double weaker = 0.24;  // of the two tones of a pair
    Wave wave(SamplesOf(seconds));
    for (const Partial& partial : partials) {
        const double tone = frequency * partial.Ratio;
        // Each pair beats at its own pace, or the whole bell would tremble.
        const double apart = spread * (0.6 + 0.8 * std::fmod(partial.Ratio * 7.3, 1));
        AddTone(wave, tone - apart / 2, partial, partial.Level * (1 - weaker));
        AddTone(wave, tone + apart / 2, partial, partial.Level * weaker);
    }
    Damp(wave);
    return wave;
}

Wave Pluck(double frequency, double seconds, double bright, double ring, std::uint32_t seed) {
    constexpr double softening = 0.28;  // the share of the neighbour in each round
    const double period = SynthesisRate / frequency - softening;
    const auto length = static_cast<std::size_t>(period - 0.3);
    const double rest = period - static_cast<double>(length);
    const double allPass = (1 - rest) / (1 + rest);
    const double loss = std::pow(10, -3 / (frequency * ring));

    std::vector<double> line = Excitation(length, bright, seed);
    Wave wave(SamplesOf(seconds));
    double before = 0;
    double passedIn = 0;
    double passedOut = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        double& cell = line[i % length];
        wave[i] = cell;
        const double softened = loss * ((1 - softening) * cell + softening * before);
        before = cell;
        passedOut = allPass * (softened - passedOut) + passedIn;
        passedIn = softened;
        cell = passedOut;
    }
    Damp(wave);
    return wave;
}

Wave Knock(double frequency, double decay, double seconds, std::uint32_t seed) {
    constexpr double burst = 0.0012;  // seconds
    const double radius = std::exp(-1 / (decay * SynthesisRate));
    const double angle = Turn * frequency / SynthesisRate;
    Noise noise(seed);
    Wave wave(SamplesOf(seconds));
    double last = 0;
    double lastButOne = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = TimeOf(i);
        const double blow = time < burst ? std::sin(std::numbers::pi * time / burst) : 0;
        const double out = blow * (0.6 + 0.4 * noise()) * std::sin(angle) +
                           2 * radius * std::cos(angle) * last - radius * radius * lastButOne;
        lastButOne = last;
        last = out;
        wave[i] = out;
    }
    return wave;
}

Wave Pipe(double frequency, double seconds, std::uint32_t seed) {
    Noise noise(seed);
    Wave wave(SamplesOf(seconds));
    double breath = 0;
    double phase = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = TimeOf(i);
        breath += 0.2 * (noise() - breath);
        // A pipe starts a little flat, and never stands quite still.
        const double sway = 1 - 0.02 * std::exp(-time / 0.02) + 0.002 * std::sin(Turn * 5.2 * time);
        phase += Turn * frequency * sway / SynthesisRate;
        const double tone = std::sin(phase) + 0.1 * std::sin(2 * phase) +
                            0.16 * std::sin(3 * phase) + 0.03 * std::sin(5 * phase);
        const double air = breath * (0.08 + 0.5 * std::exp(-time / 0.025));
        wave[i] = Swell(time, seconds, 0.035, 0.09) * (tone + air);
    }
    return wave;
}

Wave Beep(double frequency, double seconds) {
    Wave wave(SamplesOf(seconds));
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = TimeOf(i);
        const double phase = Turn * frequency * time;
        wave[i] = Swell(time, seconds, 0.006, 0.012) *
                  (std::sin(phase) + 0.22 * std::sin(3 * phase) + 0.06 * std::sin(5 * phase));
    }
    return wave;
}

Wave Modulated(double frequency, double ratio, double index, double decay, double seconds) {
    Wave wave(SamplesOf(seconds));
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = TimeOf(i);
        const double fading = std::exp(-time / decay);
        const double swing = index * fading * std::sin(Turn * frequency * ratio * time);
        wave[i] =
            fading * Swell(time, seconds, 0.003, 0.02) * std::sin(Turn * frequency * time + swing);
    }
    return wave;
}

Wave Pad(double frequency, double seconds, double rise, double fall, std::uint32_t seed) {
    constexpr int harmonics = 7;
    Noise chance(seed);
    Wave wave(SamplesOf(seconds));
    for (const double detune : {0.9985, 1.0, 1.0016}) {
        for (int n = 1; n <= harmonics; ++n) {
            const double start = Turn * chance();
            const double speed = 0.13 + 0.06 * chance();
            const double drift = Turn * chance();
            const double level = std::pow(n, -1.7);
            const double tone = Turn * frequency * detune * n;
            for (std::size_t i = 0; i < wave.size(); ++i) {
                const double time = TimeOf(i);
                const double alive = 0.65 + 0.35 * std::sin(Turn * speed * time + drift);
                wave[i] += level * alive * std::sin(tone * time + start);
            }
        }
    }
    for (std::size_t i = 0; i < wave.size(); ++i) {
        wave[i] *= Swell(TimeOf(i), seconds, rise, fall);
    }
    return wave;
}

double FrequencyOf(std::string_view note) {
    constexpr std::string_view letters = "C D EF G A B";  // by half-tones
    const std::size_t step = note.empty() ? letters.npos : letters.find(note.front());
    if (step == letters.npos || note.size() < 2 || note.front() == ' ') {
        return 0;
    }
    const int shift = note[1] == '#' ? 1 : note[1] == 'b' ? -1 : 0;
    const int octave = note.back() - '0';
    return 440 * std::exp2((static_cast<int>(step) + shift - 9) / 12.0 + octave - 4);
}

}  // namespace sounds
