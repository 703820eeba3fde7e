#include "speech/SpeechPatterns.h"

#include <QLocale>
#include <array>

#include "foundation/Dates.h"
#include "foundation/PropertyLookup.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace speech {

namespace {

constexpr int LongestPeriod = 60;
constexpr QStringView PastToToken = u"<Past/To>";

// Few keys of a clock are about speech; the sixty numbered names are then looked up among these.
ClockProperties SpeechRows(const ClockProperties& properties) {
    ClockProperties speech = properties.EmptyOfItsKind();
    for (int row = 1; row <= properties.UpperBound(); ++row) {
        if (properties[row].Name.trimmed().startsWith("Speech "_L1, Qt::CaseInsensitive)) {
            speech.Resize(speech.UpperBound() + 1);
            speech[speech.UpperBound()] = properties[row];
        }
    }
    return speech;
}

int OnTwelveHours(int hour) {
    const int reduced = hour > 12 ? hour - 12 : hour;
    return reduced == 0 ? 12 : reduced;
}

// The blanks around the words are part of the text: " Quarter  Past 3".
QString PastToText(const QTime& time) {
    const bool isTo = time.minute() > 30;
    const int hour = OnTwelveHours(time.hour());
    const QString hourText = QString::number(isTo ? hour % 12 + 1 : hour);
    switch (time.minute()) {
        case 0:
            return hourText + u" O'Clock "_s;
        case 15:
            return u" Quarter  Past "_s + hourText;
        case 30:
            return u" Half  Past "_s + hourText;
        case 45:
            return u" Quarter  To "_s + hourText;
        default:
            return isTo ? QString::number(60 - time.minute()) + u" To "_s + hourText
                        : QString::number(time.minute()) + u" Past "_s + hourText;
    }
}

}  // namespace

QString PatternKey(int kind) {
    switch (kind) {
        case SecondPattern:
            return u"Speech Second Pattern"_s;
        case MinutePattern:
            return u"Speech Minute Pattern"_s;
        case HourPattern:
            return u"Speech Hour Pattern"_s;
        case DayPattern:
            return u"Speech Day Pattern"_s;
        default:
            return {};
    }
}

bool IsSwitchedOff(const QString& value) {
    const QString text = value.trimmed();
    return text.isEmpty() || text == "0"_L1 || text == "None"_L1;
}

SpeechPattern PatternOfKind(int kind, const ClockProperties& properties) {
    const QString key = PatternKey(kind);
    const ClockProperties rows = SpeechRows(properties);
    for (int number = 0; number <= LongestPeriod; ++number) {
        const QString text =
            mduLib::GetProperty(number == 0 ? key : key + QString::number(number), rows);
        if (!IsSwitchedOff(text)) {
            return {text, number == 0 ? 1 : number};
        }
    }
    return {};
}

bool IsDue(const SpeechPattern& pattern, int kind, const QDateTime& moment) {
    const QTime time = moment.time();
    const std::array units = {time.second(), time.minute(), time.hour(), moment.date().day()};
    if (!pattern.IsOn() || !moment.isValid() || kind < SecondPattern || kind > DayPattern) {
        return false;
    }
    const auto unit = static_cast<std::size_t>(kind - 1);
    for (std::size_t shorter = 0; shorter < unit; ++shorter) {
        if (units[shorter] != 0) {
            return false;
        }
    }
    return units[unit] % pattern.Period == 0;
}

QString ExpandPattern(const QDateTime& moment, const QString& pattern, const QString& location) {
    const QTime time = moment.time();
    const QDate date = moment.date();
    QString text = pattern;
    const auto replace = [&text](QStringView token, const QString& value) {
        text = mduLib::ReplaceFirst(text, token.toString(), value);
    };
    replace(PastToToken, PastToText(time));
    replace(u"<Location>", location);
    replace(u"<ShortTime>", time.toString(u"hh:mm"_s));
    replace(u"<LongTime>", time.toString(u"hh:mm:ss"_s));
    replace(u"<ShortDate>", mduAPILib::ShortDate(date));
    replace(u"<Minute>", QString::number(time.minute()));
    replace(u"<Second>", QString::number(time.second()));
    replace(u"<LongDate>", QLocale().toString(date, QLocale::LongFormat));
    return text;
}

}  // namespace speech
