#include "drawing/ClockSpecial.h"

#include "foundation/PropertyLookup.h"
#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr mduUILib::WordTable<ClockSpecial, 16> Specials = {{{
    {"None"_L1, ClockSpecial::None},
    {"Analogue Backward"_L1, ClockSpecial::AnalogueBackward},
    {"Analogue Hour Number Random Colour"_L1, ClockSpecial::RandomNumberColour},
    {"Analogue Left Half"_L1, ClockSpecial::AnalogueLeftHalf},
    {"Analogue Right Half"_L1, ClockSpecial::AnalogueRightHalf},
    {"Analogue Hour Font Even"_L1, ClockSpecial::HourFontEven},
    {"Analogue Hour Font Triangle"_L1, ClockSpecial::HourFontTriangle},
    {"Analogue Hour Font Quarter"_L1, ClockSpecial::HourFontQuarter},
    {"Analogue Hour Font Small to Big"_L1, ClockSpecial::HourFontSmallToBig},
    {"Analogue Hour Font Big to Small"_L1, ClockSpecial::HourFontBigToSmall},
    {"Digital Backward"_L1, ClockSpecial::DigitalBackward},
    {"Digital Up Down"_L1, ClockSpecial::DigitalUpDown},
    {"Digital Wave"_L1, ClockSpecial::DigitalWave},
    {"Digital Up Down Wave"_L1, ClockSpecial::DigitalUpDownWave},
    {"Digital Vertical"_L1, ClockSpecial::DigitalVertical},
    {"World Map"_L1, ClockSpecial::WorldMap},
}}};

}  // namespace

ClockSpecial ReadClockSpecial(const QString& text) {
    return Specials.Find(text).value_or(ClockSpecial::None);
}

ClockSpecial ReadClockSpecial(const ClockProperties& properties) {
    return ReadClockSpecial(mduLib::GetProperty(u"Clock Special"_s, properties));
}

QString ClockSpecialName(ClockSpecial special) {
    return Specials.NameOf(special);
}

QStringList ClockSpecialNames() {
    return Specials.Words();
}

}  // namespace drawing
