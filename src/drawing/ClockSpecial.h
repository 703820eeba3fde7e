#pragma once

#include <QStringList>

#include "foundation/ClockProperty.h"

namespace drawing {

/// The effects of "Clock Special", one at a time. A name tells which kind of clock it is for; on
/// any other kind it makes no difference.
enum class ClockSpecial {
    None,
    AnalogueBackward,    ///< the dial is mirrored
    RandomNumberColour,  ///< the numbers take other colours at each pass
    AnalogueLeftHalf,    ///< the dial is folded: what would lie right is mirrored
    AnalogueRightHalf,
    HourFontEven,  ///< from here on, captions with sizes of their own
    HourFontTriangle,
    HourFontQuarter,
    HourFontSmallToBig,
    HourFontBigToSmall,
    DigitalBackward,  ///< from here on, digits that are laid out or move in another way
    DigitalUpDown,
    DigitalWave,
    DigitalUpDownWave,
    DigitalVertical,
    WorldMap  ///< a name for styles with a map as their ground; it changes nothing by itself
};

/// Blanks around the text are dropped, letter case counts; any other text is `None`.
///
///     ReadClockSpecial(u" Digital Wave "_s)  // DigitalWave
///     ReadClockSpecial(u"digital wave"_s)    // None
ClockSpecial ReadClockSpecial(const QString& text);
/// The same of the key "Clock Special"; without it `None`.
ClockSpecial ReadClockSpecial(const ClockProperties& properties);

/// The property's word for it.
QString ClockSpecialName(ClockSpecial special);
/// All words, "None" first.
QStringList ClockSpecialNames();

}  // namespace drawing
