#include "clock/HiddenParts.h"

#include <algorithm>

#include "drawing/DialNumbers.h"
#include "drawing/DialStyles.h"
#include "drawing/FlagPosition.h"
#include "foundation/MenuLists.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int Twelve = 60;  // the index of twelve o'clock

QString Value(QStringView key, const ClockProperties& properties) {
    return mduLib::GetProperty(key.toString(), properties);
}

// Whether a value hides its part. Some depend on other keys.

bool HidesSpeaker(const QString& value, const ClockProperties&) {
    return !mduUILib::YesNoToBool(value);
}

bool HidesFlag(const QString& value, const ClockProperties&) {
    return drawing::ReadFlagPosition(value) == drawing::FlagPosition::Icon;
}

bool HidesZoneName(const QString& value, const ClockProperties&) {
    return mduAPILib::Val(value) == 0;
}

bool HidesNumbers(const QString& value, const ClockProperties&) {
    const drawing::NumberStyle style(value);
    for (int hour = 1; hour <= 12; ++hour) {
        if (style.IsNumbered(hour * 5) && (style.IsPainted() || style.ShowsCaption(hour))) {
            return false;
        }
    }
    return true;
}

// Painted numbers, and those of some special faces, have a size of their own.
bool HidesNumbersBySize(const QString& value, const ClockProperties& properties) {
    const drawing::NumberStyle style(Value(u"Hour Number Style", properties));
    return !style.IsPainted() && drawing::CaptionSize(Twelve, drawing::ReadClockSpecial(properties),
                                                      0, mduAPILib::IntegerValue(value)) < 1;
}

bool HidesSpots(const QString& value, const ClockProperties&) {
    const drawing::SpotStyle style(value);
    for (int index = 1; index <= Twelve; ++index) {
        if (style.Wants(index)) {
            return false;
        }
    }
    return true;
}

bool HidesSpotsBySize(const QString& value, const ClockProperties&) {
    return drawing::SpotSize(mduAPILib::IntegerValue(value), 0, 1) == 0;
}

// Whether a clock has the part at all.

bool HasSpeaker(const ClockData&, const ShowableParts& showable) {
    return showable.Speaker;
}

bool HasFlag(const ClockData&, const ShowableParts& showable) {
    return showable.Flag;
}

bool HasZoneName(const ClockData& data, const ShowableParts&) {
    return data.Is(ClockKind::Analogue) || data.Is(ClockKind::Digital);
}

bool HasDial(const ClockData& data, const ShowableParts&) {
    return data.IsAnalogue();
}

/// A part and a key that may hide it. A part with several keys has as many rows, in the order in
/// which they are put right.
constexpr struct Row {
    QStringView Part;
    bool (*IsThere)(const ClockData& data, const ShowableParts& showable);
    QStringView Key;
    bool (*Hides)(const QString& value, const ClockProperties& properties);
    Redraw What;
    QStringView Shown;  ///< where neither the default file nor the choices have a value
} Rows[] = {
    {u"Speaker", HasSpeaker, u"Speaker", HidesSpeaker, Redraw::Speech, u"Yes"},
    {u"Flag", HasFlag, u"Flag Position", HidesFlag, Redraw::Flag, u"Top right"},
    {u"Zone Name", HasZoneName, u"Time Zone Label Size", HidesZoneName, Redraw::Location, u"-1"},
    {u"Hour Numbers", HasDial, u"Hour Number Style", HidesNumbers, Redraw::HourNumbers,
     u"Number 12"},
    {u"Hour Numbers", HasDial, u"Hour Number Size", HidesNumbersBySize, Redraw::HourNumbers, u"-1"},
    {u"Minute Spots", HasDial, u"Minute Spot Style", HidesSpots, Redraw::MinuteSpots, u"Spot 60"},
    {u"Minute Spots", HasDial, u"Minute Spot Size", HidesSpotsBySize, Redraw::MinuteSpots, u"-1"},
};

bool IsHidden(const Row& row, const ClockProperties& properties) {
    return row.Hides(Value(row.Key, properties), properties);
}

QString ShowingValue(const Row& row, const ClockProperties& present,
                     const ClockProperties& defaults) {
    const QString key = row.Key.toString();
    QStringList values;
    if (mduLib::FindPropertyRow(key, defaults) > 0) {
        values += mduLib::GetProperty(key, defaults).trimmed();
    }
    values += mduUILib::FillMenuFromList(mduLib::GetPropertyChoices(key, present));
    const auto shows = [&](const QString& value) {
        return !value.isEmpty() && !row.Hides(value, present);
    };
    const auto found = std::find_if(values.begin(), values.end(), shows);
    return found == values.end() ? row.Shown.toString() : *found;
}

}  // namespace

QStringList HiddenParts(const ClockData& data, const ShowableParts& showable) {
    QStringList parts;
    for (const Row& row : Rows) {
        const QString part = row.Part.toString();
        const bool isThere = !data.Tag.IsWrapper && row.IsThere(data, showable);
        if (isThere && IsHidden(row, data.Properties()) && !parts.contains(part)) {
            parts += part;
        }
    }
    return parts;
}

std::vector<WayBack> WaysBack(const QString& part, const ClockProperties& present,
                              const ClockProperties& defaults) {
    std::vector<WayBack> ways;
    ClockProperties shown = present;  // as it will be behind each step
    for (const Row& row : Rows) {
        if (row.Part == part && IsHidden(row, shown)) {
            ways.push_back({row.Key.toString(), ShowingValue(row, shown, defaults), row.What});
            mduLib::PutProperty(ways.back().Key, ways.back().Value, shown);
        }
    }
    return ways;
}

}  // namespace clockcore
