#include "foundation/NamedValues.h"

#include <algorithm>
#include <array>
#include <limits>

#include "foundation/Numbers.h"
#include "platform/RandomNumbers.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

struct NamedColour {
    QLatin1StringView Name;
    int Value;
};

// White stays off the transparent key: a white hand on a transparent window must not vanish.
constexpr NamedColour Colours[] = {
    {"Red"_L1, 0x0000FF},         {"Black"_L1, 0x000000},
    {"Green"_L1, 0x00FF00},       {"Yellow"_L1, 0x00FFFF},
    {"Blue"_L1, 0xFF0000},        {"Magenta"_L1, 0xFF00FF},
    {"Cyan"_L1, 0xFFFF00},        {"White"_L1, 0xFFFFFD},
    {"White"_L1, TransparentKey}, {"Transparent"_L1, TransparentWindow}};

/// By their numbers.
constexpr std::array WindowStates = {"Normal"_L1, "Minimized"_L1, "Maximized"_L1};

int RandomColour(platform::RandomNumbers& random) {
    random.Seed();
    const int blue = static_cast<int>(random.Next() * 255.0);
    const int green = static_cast<int>(random.Next() * 255.0);
    const int red = static_cast<int>(random.Next() * 255.0);
    return blue << 16 | green << 8 | red;
}

int ColourNumber(const QString& text) {
    const double value = mduAPILib::Val(text);
    const bool fits =
        value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return fits && mduAPILib::IsNumeric(text) ? mduAPILib::RoundToInteger(value) : 0;
}

}  // namespace

QString ColourWord(const QString& text) {
    return text.trimmed().toLower();
}

int ColourValue(const QString& text, platform::RandomNumbers& random) {
    const QString word = ColourWord(text);
    if (word == "random"_L1) {
        return RandomColour(random);
    }
    if (word == "transparent"_L1) {
        return TransparentKey;
    }
    for (const NamedColour& colour : Colours) {
        if (word.compare(colour.Name, Qt::CaseInsensitive) == 0) {
            return colour.Value;
        }
    }
    return ColourNumber(word);
}

QString ColourName(int colour) {
    for (const NamedColour& named : Colours) {
        if (named.Value == colour) {
            return named.Name;
        }
    }
    return QString::number(colour);
}

const QStringList& MenuColours() {
    static const QStringList names = {u"Black"_s,   u"Blue"_s, u"Cyan"_s,  u"Green"_s,
                                      u"Magenta"_s, u"Red"_s,  u"White"_s, u"Yellow"_s};
    return names;
}

bool IsCustomColour(const QString& text) {
    return text == "Custom"_L1;
}

bool YesNoToBool(const QString& text) {
    return text.trimmed().compare("no"_L1, Qt::CaseInsensitive) != 0;
}

QString BoolToYesNo(bool flag) {
    return flag ? u"Yes"_s : u"No"_s;
}

bool IsNoneValue(const QString& text) {
    return text.isEmpty() || text == "0"_L1 || text == "None"_L1;
}

int WindowStateValue(const QString& text) {
    const auto isText = [&text](QLatin1StringView word) {
        return text.compare(word, Qt::CaseInsensitive) == 0;
    };
    const auto* found = std::find_if(WindowStates.begin(), WindowStates.end(), isText);
    return found == WindowStates.end() ? 0 : static_cast<int>(found - WindowStates.begin());
}

QString WindowStateName(int state) {
    const bool isKnown = state >= 0 && state < static_cast<int>(WindowStates.size());
    return WindowStates[isKnown ? static_cast<std::size_t>(state) : 0];
}

QString ToolbarPositionName(int code, bool visible) {
    const QStringList names = {u"None"_s, u"Top"_s, u"Bottom"_s, u"Left"_s, u"Right"_s};
    const QString& name = names[code >= 1 && code <= 4 ? code : 0];
    return visible ? name : name + u":Hide"_s;
}

int ToolbarIconSize(const QString& text) {
    return text.contains("Large Size"_L1) ? 2 : 1;
}

bool IsPictureFile(const QString& name) {
    const QString ending = name.right(4).toUpper();
    return ending == ".JPG"_L1 || ending == ".GIF"_L1 || ending == ".BMP"_L1;
}

QString FunctionKeyName(int code) {
    return code >= 112 && code <= 123 ? u'F' + QString::number(code - 111) : QString();
}

}  // namespace mduUILib
