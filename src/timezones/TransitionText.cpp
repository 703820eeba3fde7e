#include "timezones/TransitionText.h"

#include "foundation/Dates.h"
#include "foundation/Numbers.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::SYSTEMTIME;

std::int16_t Field(int value) {
    return static_cast<std::int16_t>(value);
}

/// Takes the numbers of a text from left to right.
class NumberCutter {
public:
    explicit NumberCutter(const QString& text) : text_(text) {}

    /// The number before the next @p delimiter; 0 when there is none, and the place stays.
    std::int16_t Next(QChar delimiter) {
        const qsizetype end = text_.indexOf(delimiter, begin_);
        if (end < 0) {
            return 0;
        }
        const QString number = text_.mid(begin_, end - begin_);
        begin_ = end + 1;
        return mduAPILib::ToInt16(mduAPILib::Val(number));
    }

private:
    QString text_;
    qsizetype begin_ = 0;
};

}  // namespace

void TakeMoment(SYSTEMTIME& transition, const QDateTime& moment) {
    transition.wYear = Field(moment.date().year());
    transition.wMonth = Field(moment.date().month());
    transition.wDay = Field(moment.date().day());
    transition.wHour = Field(moment.time().hour());
    transition.wMinute = Field(moment.time().minute());
    transition.wSecond = Field(moment.time().second());
}

// rule = occurrence "." weekday "." month " " time; absolute = date " " time
QString TransitionText(const SYSTEMTIME& transition, const QDate& today) {
    if (transition.wYear == 0) {
        return u"%1.%2.%3 "_s.arg(transition.wDay)
                   .arg(transition.wDayOfWeek)
                   .arg(transition.wMonth) +
               TimeText(transition);
    }
    const QDate date = DateFromParts(transition.wDay, transition.wMonth, transition.wYear, today);
    return mduAPILib::ShortDate(date) + u' ' + TimeText(transition);
}

SYSTEMTIME ParseTransitionText(const QString& text, SYSTEMTIME transition, const QDate& today) {
    NumberCutter numbers(text);
    transition.wDay = numbers.Next(u'.');
    transition.wDay = numbers.Next(u'.');
    transition.wMonth = numbers.Next(u' ');
    transition.wHour = numbers.Next(u':');
    transition.wMinute = numbers.Next(u':');
    transition.wSecond = numbers.Next(u':');
    if (transition.wDay == 0 && transition.wDayOfWeek == 0 && transition.wMonth == 0) {
        transition.wYear = 0;
        return transition;
    }
    const QDate date =
        RuleTransitionDate(transition.wDay, transition.wDayOfWeek, transition.wMonth, today);
    transition.wDay = Field(date.day());
    transition.wMonth = Field(date.month());
    transition.wYear = Field(date.year());
    return transition;
}

SYSTEMTIME ParseTransitionDate(const QString& text, bool isNT, const QDate& today) {
    SYSTEMTIME transition;
    if (!isNT && text.contains(u'/')) {
        return transition;
    }
    const auto parsed = mduAPILib::ParseMoment(text, today.year());
    if (parsed && parsed->HasDate) {
        TakeMoment(transition, parsed->Moment);
    }
    return transition;
}

}  // namespace mduTimeZones
