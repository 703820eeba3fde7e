#include "Music.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <sstream>

#include "Room.h"
#include "Tones.h"

namespace sounds {

namespace {

constexpr double MusicLevel =
    -21;  // dB of full scale, over the whole piece; encoding adds a little to the peaks
constexpr double MusicCeiling = -2.5;

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

// Place runs from 0, left, to 1, right.
void Place(Stereo& stage, const Wave& note, double time, double level, double place) {
    Mix(stage.Left, note, time, level * std::sqrt(1 - place));
    Mix(stage.Right, note, time + 0.0004 * (place - 0.5) + 0.0002, level * std::sqrt(place));
}

Stereo OnStage(Stereo dry, const RoomKind& room) {
    const std::size_t length = std::max(dry.Left.size(), dry.Right.size());
    dry.Left.resize(length);
    dry.Right.resize(length);
    return {InRoom(dry.Left, room, false), InRoom(dry.Right, room, true)};
}

struct ArpeggioBar {
    const char* Bass;
    const char* Run;   // eighths
    const char* Song;  // over the first eighth, or nothing
};

constexpr ArpeggioBar Strings[] = {
    {"D2", "A2 D3 F#3 A3 D4 A3 F#3 A2", "F#4"},    {"B2", "F#3 A3 D4 F#4 D4 A3 F#3 A3", ""},
    {"G2", "D3 G3 B3 D4 F#4 D4 B3 G3", "A4"},      {"A2", "E3 A3 D4 E4 C#4 A3 E3 A3", "B4"},
    {"F#2", "C#3 F#3 A3 C#4 E4 C#4 A3 F#3", "A4"}, {"G2", "D3 B3 D4 G4 D4 B3 D3 B3", "F#4"},
    {"E2", "B2 G3 B3 D4 E3 A3 C#4 E4", "E4"},      {"D2", "A2 E3 F#3 A3 D4 F#4 A4 D5", "D4"}};

struct WaltzBar {
    const char* Bass;
    const char* Chord;  // on the second and third beat
    const char* Song;   // six eighths; "-" lets the last one ring
};

constexpr WaltzBar Waltz[] = {
    {"F4", "A4 C5", "C6 - A5 - F6 -"},     {"F4", "A4 C5", "E6 - D6 - C6 -"},
    {"D4", "A4 F5", "D6 - A5 - D6 -"},     {"D4", "A4 F5", "F6 E6 D6 - A5 -"},
    {"Bb4", "D5 F5", "Bb5 - D6 - F6 -"},   {"G4", "Bb4 D5", "G6 - F6 D6 Bb5 -"},
    {"C4", "G4 E5", "C6 - E6 - G6 -"},     {"C4", "Bb4 E5", "Bb5 - G5 - E5 -"},
    {"F4", "A4 C5", "A5 C6 A5 - F6 -"},    {"A4", "C5 E5", "E6 - C6 - A5 -"},
    {"Bb4", "D5 F5", "D6 - F6 - A6 -"},    {"Bb4", "Db5 F5", "G6 - F6 - Db6 -"},
    {"A4", "C5 F5", "C6 - F6 - A6 -"},     {"D4", "F#4 C5", "F#6 - A6 - C7 -"},
    {"G4", "Bb4 E5", "Bb6 - G6 E6 D6 C6"}, {"F4", "A4 C5", "F6 - - - F5 -"}};

struct Cloud {
    const char* Chord;
    const char* Drops;  // one each 1.5 s; "-" is a rest
};

constexpr Cloud Clouds[] = {{"C3 G3 D4 E4", "- G5 - D6"},
                            {"A2 E3 G3 C4", "E5 - B5 -"},
                            {"F2 C3 A3 E4", "- C6 G5 -"},
                            {"D3 A3 C4 F4", "A5 - - E6"},
                            {"C3 G3 B3 E4", "D6 - G5 -"}};

const std::vector<Partial> Comb{
    {1, 1, 0.75}, {2.01, 0.22, 0.4}, {3.02, 0.1, 0.2}, {5.93, 0.12, 0.09}, {9.1, 0.05, 0.04}};
const std::vector<Partial> Drop{{1, 1, 1.1, 0.006}, {2, 0.25, 0.7, 0.004}, {4.02, 0.08, 0.3}};

}  // namespace

std::vector<Piece> AllPieces() {
    return {{"Little Waltz", LittleWaltz},
            {"Morning Strings", MorningStrings},
            {"Still Water", StillWater}};
}

Stereo MorningStrings() {
    constexpr double eighth = 0.42;  // seconds
    Stereo stage;
    double time = 0;
    std::uint32_t seed = 100;
    for (const ArpeggioBar& bar : Strings) {
        Place(stage, Pluck(FrequencyOf(bar.Bass), 4.2, 0.32, 7, ++seed), time, 0.9, 0.42);
        if (*bar.Song) {
            Place(stage, Pluck(FrequencyOf(bar.Song), 3.4, 0.5, 6, ++seed), time, 0.75, 0.6);
        }
        double stress = 0.62;
        for (const std::string& note : Words(bar.Run)) {
            // The hand is never quite even, and slows down where the piece ends.
            const double late = 0.012 * (static_cast<double>(seed * 7 % 5) / 4);
            Place(stage, Pluck(FrequencyOf(note), 3, 0.42, 5, ++seed), time + late, stress, 0.5);
            stress = stress < 0.55 ? 0.58 : 0.48;
            time += eighth * (&bar == &Strings[std::size(Strings) - 1] ? 1.12 : 1);
        }
    }
    Stereo played = OnStage(std::move(stage), {0.18, 0.12, 1.4});
    FinishPiece(played, 1.5);
    return played;
}

Stereo LittleWaltz() {
    constexpr double beat = 0.46;  // seconds
    Stereo stage;
    double bar = 0;
    const auto pin = [&stage](const std::string& note, double time, double level, double place) {
        if (note != "-") {
            Place(stage, Strike(FrequencyOf(note), 2.2, Comb), time, level, place);
        }
    };
    for (const WaltzBar& row : Waltz) {
        const double slower = &row >= &Waltz[std::size(Waltz) - 2] ? 1.1 : 1;
        pin(row.Bass, bar, 0.55, 0.4);
        for (const std::string& note : Words(row.Chord)) {
            pin(note, bar + beat * slower, 0.22, 0.42);
            pin(note, bar + 2 * beat * slower, 0.18, 0.42);
        }
        double time = bar;
        for (const std::string& note : Words(row.Song)) {
            pin(note, time, 0.5, 0.6);
            time += beat / 2 * slower;
        }
        bar += 3 * beat * slower;
    }
    Stereo played = OnStage(std::move(stage), {0.2, 0.1, 1.1});
    FinishPiece(played, 1.2);
    return played;
}

Stereo StillWater() {
    constexpr double step = 5.6;  // seconds from chord to chord
    Stereo stage;
    double time = 0;
    std::uint32_t seed = 200;
    for (const Cloud& cloud : Clouds) {
        for (const std::string& note : Words(cloud.Chord)) {
            // Each ear hears a choir of its own, which makes it wide.
            for (const bool right : {false, true}) {
                Mix(right ? stage.Right : stage.Left,
                    Pad(FrequencyOf(note), step + 2.8, 2.4, 2.8, ++seed), time, 0.1);
            }
        }
        double drop = time + 1;
        double place = 0.3;
        for (const std::string& note : Words(cloud.Drops)) {
            Place(stage, Strike(FrequencyOf(note), 3, Drop, 0.6), drop, 0.11, place);
            drop += step / 4;
            place = 1 - place;
        }
        time += step;
    }
    Stereo played = OnStage(std::move(stage), {0.15, 0.3, 2.4});
    FinishPiece(played, 3);
    return played;
}

void FinishPiece(Stereo& piece, double fadeOut) {
    double power = 0;
    for (Wave* ear : {&piece.Left, &piece.Right}) {
        *ear = WithSilentEnds(WithoutDrift(*ear, SynthesisRate), SynthesisRate, 0.004, fadeOut);
        power += std::inner_product(ear->begin(), ear->end(), ear->begin(), 0.0) /
                 static_cast<double>(2 * ear->size());
    }
    // One gain for both ears, so that nothing on the stage moves.
    const double gain = FromDecibels(MusicLevel) / std::sqrt(power);
    for (Wave* ear : {&piece.Left, &piece.Right}) {
        Amplify(*ear, gain, FromDecibels(MusicCeiling));
    }
}

}  // namespace sounds
