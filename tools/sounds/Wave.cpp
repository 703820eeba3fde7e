#include "Wave.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>
#include <numeric>

namespace sounds {

namespace {

constexpr double DriftFrequency = 18;  // Hz
constexpr double KneeOfCeiling = 0.62;

// A sinc under a Blackman window, whose sum is 1.
std::vector<double> LowPass(double cutOff, int halfLength) {
    std::vector<double> taps;
    double sum = 0;
    for (int i = -halfLength; i <= halfLength; ++i) {
        const double x = 2 * std::numbers::pi * cutOff / SynthesisRate * i;
        const double angle = std::numbers::pi * i / (halfLength + 1);
        const double window = 0.42 + 0.5 * std::cos(angle) + 0.08 * std::cos(2 * angle);
        taps.push_back(window * (i == 0 ? 1 : std::sin(x) / x));
        sum += taps.back();
    }
    std::ranges::for_each(taps, [sum](double& tap) { tap /= sum; });
    return taps;
}

// What stays of a value above the knee approaches the ceiling without reaching it.
double Rounded(double value, double ceiling) {
    const double knee = KneeOfCeiling * ceiling;
    const double size = std::abs(value);
    if (size <= knee) {
        return value;
    }
    const double room = ceiling - knee;
    return std::copysign(knee + room * std::tanh((size - knee) / room), value);
}

void Put(std::ofstream& file, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        file.put(static_cast<char>((value >> (8 * i)) & 0xff));
    }
}

std::uint32_t Sample(double value) {
    const double clamped = std::clamp(value, -1.0, 1.0);
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(clamped * 32767)));
}

}  // namespace

std::size_t SamplesOf(double seconds) {
    return static_cast<std::size_t>(std::max(0.0, std::round(seconds * SynthesisRate)));
}

void Mix(Wave& into, const Wave& sound, double atSecond, double level) {
    const std::size_t start = SamplesOf(atSecond);
    into.resize(std::max(into.size(), start + sound.size()));
    for (std::size_t i = 0; i < sound.size(); ++i) {
        into[start + i] += level * sound[i];
    }
}

Wave Halve(const Wave& sound) {
    constexpr int halfLength = 48;
    const std::vector<double> taps = LowPass(10000, halfLength);
    Wave half(sound.size() / 2);
    for (std::size_t i = 0; i < half.size(); ++i) {
        for (std::size_t tap = 0; tap < taps.size(); ++tap) {
            const std::size_t at = 2 * i + tap;  // halfLength samples late
            if (at >= halfLength && at - halfLength < sound.size()) {
                half[i] += taps[tap] * sound[at - halfLength];
            }
        }
    }
    return half;
}

Wave WithoutDrift(const Wave& sound, int rate) {
    const double keep = std::exp(-2 * std::numbers::pi * DriftFrequency / rate);
    Wave clean(sound.size());
    double before = 0;
    double out = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        out = keep * (out + sound[i] - before);
        before = sound[i];
        clean[i] = out;
    }
    return clean;
}

Wave WithSilentEnds(const Wave& sound, int rate, double fadeIn, double fadeOut) {
    const auto silence = static_cast<std::size_t>(SilenceAtEnds * rate);
    const auto shape = [rate](std::size_t distance, double fade) {
        const double part = std::min(1.0, static_cast<double>(distance) / (fade * rate));
        return 0.5 - 0.5 * std::cos(std::numbers::pi * part);
    };
    Wave whole(silence + sound.size() + silence);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        whole[silence + i] = sound[i] * shape(i, fadeIn) * shape(sound.size() - 1 - i, fadeOut);
    }
    return whole;
}

Wave Trimmed(Wave sound) {
    double peak = 0;
    std::ranges::for_each(sound, [&peak](double v) { peak = std::max(peak, std::abs(v)); });
    const double least = peak * FromDecibels(-66);
    while (!sound.empty() && std::abs(sound.back()) < least) {
        sound.pop_back();
    }
    return sound;
}

void Balance(Wave& sound) {
    const auto count = static_cast<double>(sound.size());
    const double mean = std::accumulate(sound.begin(), sound.end(), 0.0) / count;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double angle = 2 * std::numbers::pi * (static_cast<double>(i) + 0.5) / count;
        sound[i] -= mean * (1 - std::cos(angle));
    }
}

double Loudness(const Wave& sound, int rate) {
    const auto length = static_cast<std::size_t>(rate / 100);
    std::vector<double> powers;
    for (std::size_t start = 0; start + length <= sound.size(); start += length) {
        double power = 0;
        for (std::size_t i = start; i < start + length; ++i) {
            power += sound[i] * sound[i] / static_cast<double>(length);
        }
        powers.push_back(power);
    }
    if (powers.empty()) {
        return 0;
    }
    const double least = *std::ranges::max_element(powers) / 10;
    double sum = 0;
    int loud = 0;
    for (const double power : powers) {
        if (power >= least) {
            sum += power;
            ++loud;
        }
    }
    return std::sqrt(sum / loud);
}

void Amplify(Wave& sound, double gain, double ceiling) {
    for (double& value : sound) {
        value = Rounded(value * gain, ceiling);
    }
}

void Level(Wave& sound, int rate, double loudness, double ceiling) {
    // Rounding takes a little of the level; a second pass gives it back.
    for (int pass = 0; pass < 2; ++pass) {
        const double present = Loudness(sound, rate);
        if (present <= 0) {
            return;
        }
        Amplify(sound, loudness / present, ceiling);
    }
}

double FromDecibels(double decibels) {
    return std::pow(10, decibels / 20);
}

bool WriteWav(const std::string& path, int rate, const Wave& left, const Wave* right) {
    const std::uint32_t frame = right ? 4 : 2;
    const auto bytes = static_cast<std::uint32_t>(left.size()) * frame;
    std::ofstream file(path, std::ios::binary);
    file << "RIFF";
    Put(file, 36 + bytes, 4);
    file << "WAVEfmt ";
    Put(file, 16, 4);
    Put(file, 1, 2);  // plain numbers
    Put(file, right ? 2 : 1, 2);
    Put(file, static_cast<std::uint32_t>(rate), 4);
    Put(file, static_cast<std::uint32_t>(rate) * frame, 4);
    Put(file, frame, 2);
    Put(file, 16, 2);
    file << "data";
    Put(file, bytes, 4);
    for (std::size_t i = 0; i < left.size(); ++i) {
        Put(file, Sample(left[i]), 2);
        if (right) {
            Put(file, Sample((*right)[i]), 2);
        }
    }
    return file.flush().good();
}

}  // namespace sounds
