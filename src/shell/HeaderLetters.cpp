#include "shell/HeaderLetters.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "foundation/WordTable.h"
#include "platform/RandomNumbers.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr mduUILib::WordTable<int, 6> Variations = {{{{"Rotation"_L1, -1},
                                                      {"Random"_L1, 1},
                                                      {"Up Down"_L1, 2},
                                                      {"Bend Down"_L1, 3},
                                                      {"Bend Up"_L1, 4},
                                                      {"None"_L1, 0}}}};

}  // namespace

QStringList HeadingVariationNames() {
    return Variations.Words();
}

int HeadingVariationCode(const QString& value) {
    return Variations.Find(value).value_or(0);
}

std::optional<std::vector<double>> ArrangeHeaderLetters(int mode, double amplitude, int count,
                                                        platform::RandomNumbers& random) {
    if (mode < 0 || mode > 4) {
        return std::nullopt;
    }
    std::vector<double> offsets(static_cast<std::size_t>(std::max(count, 0)), 0.0);
    const double half = amplitude / 2;
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        const double along = offsets.size() < 2
                                 ? 0.5
                                 : static_cast<double>(i) / static_cast<double>(offsets.size() - 1);
        const double arc = amplitude * std::sin(std::numbers::pi * along);
        switch (mode) {
            case 1:
                offsets[i] = random.Next() * amplitude - half;
                break;
            case 2:
                offsets[i] = i % 2 == 0 ? -half : half;
                break;
            case 3:
                offsets[i] = arc - half;
                break;
            case 4:
                offsets[i] = half - arc;
                break;
            default:
                break;
        }
    }
    return offsets;
}

std::optional<std::vector<double>> PlaceHeader(int code, int count,
                                               platform::RandomNumbers& random) {
    return ArrangeHeaderLetters(code, code == 0 ? 0 : HeaderAmplitude, count, random);
}

std::vector<int> RandomHeaderColours(int count, int backColour, platform::RandomNumbers& random) {
    constexpr int near = 500;
    std::vector<int> colours;
    for (int i = 0; i < count; ++i) {
        const auto component = [&random] { return static_cast<int>(random.Next() * 255); };
        const int red = component();
        const int green = component();
        int colour = red | green << 8 | component() << 16;
        if (std::abs(colour - backColour) <= near) {
            // Away from the ground, but not below black; no letter comes near white.
            const bool up = colour >= backColour || colour < near;
            colour += up ? near : -near;
        }
        colours.push_back(colour);
    }
    return colours;
}

HeaderShow::HeaderShow(std::vector<QPointF> targets, QSizeF area)
    : targets_(std::move(targets)), area_(area) {
    for (std::size_t i = 0; i < targets_.size(); ++i) {
        const QPointF& target = targets_[i];
        const double fromSide = area_.width() - target.x();
        places_.emplace_back(fromSide, i % 2 == 0 ? -area_.height() / 6 : area_.height());
    }
}

bool HeaderShow::Step() {
    const double across = area_.width() / 200;
    const double down = area_.height() / 300;
    bool moving = false;
    for (std::size_t i = 0; i < places_.size(); ++i) {
        const QPointF way = targets_[i] - places_[i];
        places_[i] += {std::clamp(way.x(), -across, across), std::clamp(way.y(), -down, down)};
        moving = moving || places_[i] != targets_[i];
    }
    return moving;
}

}  // namespace shell
