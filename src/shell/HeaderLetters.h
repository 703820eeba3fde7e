#pragma once

#include <QPointF>
#include <QSizeF>
#include <QStringList>
#include <optional>
#include <vector>

namespace platform {
class RandomNumbers;
}

/// The letters that stand on the shell while no clock is open.
namespace shell {

/// The letters of the header, from 1 to 17.
inline const QString HeaderText = QStringLiteral("Tempolark Central");

/// The code of a value of "Heading Variation": "Rotation" -1, "Random" 1, "Up Down" 2, "Bend Down"
/// 3, "Bend Up" 4, anything else 0.
int HeadingVariationCode(const QString& value);

QStringList HeadingVariationNames();

/// How far each letter stands below the line (above it where negative), in twips.
/// @param mode 0 on one line; 1 at random and 2 in turns up and down, within the amplitude; 3 and 4
///   along a sine arc over the width of the word, bending down or up. Any other mode leaves the
///   letters where they are: nothing.
std::optional<std::vector<double>> ArrangeHeaderLetters(int mode, double amplitude, int count,
                                                        platform::RandomNumbers& random);

/// How far apart the highest and the lowest letter may stand, in twips.
inline constexpr double HeaderAmplitude = 1000;

/// The same for a style's code: amplitude 1000, and 0 for code 0. A code outside 0 to 5: nothing.
std::optional<std::vector<double>> PlaceHeader(int code, int count,
                                               platform::RandomNumbers& random);

/// A random colour for each letter; one that lies within 500 of the back colour, as a number, is
/// moved by 500, away from it.
std::vector<int> RandomHeaderColours(int count, int backColour, platform::RandomNumbers& random);

/// The opening show: letters on their way to their places, at each step nearer by a two-hundredth
/// of the area's width and a three-hundredth of its height.
class HeaderShow {
public:
    HeaderShow() = default;

    /// The letters begin outside the area, one above it, the next below.
    HeaderShow(std::vector<QPointF> targets, QSizeF area);

    /// One step. @return whether a letter is still on its way.
    bool Step();

    const std::vector<QPointF>& Places() const { return places_; }

private:
    std::vector<QPointF> places_;
    std::vector<QPointF> targets_;
    QSizeF area_;
};

}  // namespace shell
