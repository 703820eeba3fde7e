#pragma once

/// Where the parts of the header stand, one below the other: the letters, the invitation to begin,
/// the lines at the foot. All in logical pixels.
namespace shell {

/// How much room the parts want.
struct HeaderSizes {
    int Height = 0;      ///< of the whole area
    int Invitation = 0;  ///< its height
    int Line = 0;        ///< the height of a line at the foot
    double Ascent = 0;   ///< of the letters at their full size
    double Descent = 0;  ///< the same
    double Rise = 0;     ///< how far a letter may stand above or below the line, at full size
    int LetterSize = 0;  ///< the letters' full size
};

/// Where they stand. In a low area the invitation moves up to the foot's upper edge, and the
/// letters shrink to what is left above it; parts without room are not shown, the invitation last
/// of all.
struct HeaderLayout {
    double Baseline = 0;     ///< of the letters
    double LetterScale = 1;  ///< of size and rise; 0: they are not shown
    int InvitationTop = 0;   ///< 0 where not even the invitation has room
    bool ShowsFoot = true;

    bool operator==(const HeaderLayout&) const = default;
};

HeaderLayout LayOutHeader(const HeaderSizes& sizes);

}  // namespace shell
