#include "shell/HeaderLayout.h"

#include <algorithm>

namespace shell {

namespace {

constexpr int FootMargin = 12;
constexpr int Gap = 8;
constexpr int SmallestLetter = 10;
constexpr double LineOfLetters = 0.36;  // of the height
constexpr int BelowTheLetters = 110;    // from their line to the invitation, where there is room

}  // namespace

HeaderLayout LayOutHeader(const HeaderSizes& sizes) {
    HeaderLayout layout;
    const int foot = sizes.Height - FootMargin - sizes.Line - Gap;
    layout.ShowsFoot = foot - sizes.Invitation >= Gap;
    const double line = sizes.Height * LineOfLetters;
    layout.InvitationTop = layout.ShowsFoot ? std::min(static_cast<int>(line) + BelowTheLetters,
                                                       foot - sizes.Invitation)
                                            : std::max((sizes.Height - sizes.Invitation) / 2, 0);

    const double above = sizes.Rise + sizes.Ascent;
    const double below = sizes.Rise + sizes.Descent;
    const double room = layout.InvitationTop - Gap;
    const double scale = std::clamp(room / (above + below), 0.0, 1.0);
    layout.LetterScale = sizes.LetterSize * scale < SmallestLetter ? 0 : scale;
    layout.Baseline =
        std::clamp(line, above * scale, std::max(room - below * scale, above * scale));
    return layout;
}

}  // namespace shell
