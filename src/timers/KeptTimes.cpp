#include "timers/KeptTimes.h"

#include "foundation/PropertyLookup.h"
#include "timers/TimerTail.h"
#include "timezones/ExactZone.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

LateWay LateWayOf(const QString& word) {
    const std::pair<QLatin1StringView, LateWay> ways[] = {
        {"Show"_L1, LateWay::Show}, {"Ask"_L1, LateWay::Ask}, {"Skip"_L1, LateWay::Skip}};
    for (const auto& [name, way] : ways) {
        if (word.compare(name, Qt::CaseInsensitive) == 0) {
            return way;
        }
    }
    return LateWay::ByTheRules;
}

TimerDay DayOf(bool whole) {
    return whole ? TimerDay::Whole : TimerDay::Half;
}

// A line of the calculator: a date and a time of day, and no values.
bool IsPlainMoment(const TimerLine& line) {
    return line.OneShot && !line.TimeAlone && line.When.date().isValid() &&
           line.Meta == QStringList{QString()};
}

}  // namespace

bool KeptTimes::ReadKeys() {
    const QString clock = mduLib::GetProperty(u"Timer Clock"_s, context_.Properties);
    const LateWay late =
        LateWayOf(mduLib::GetProperty(u"Late Timers"_s, context_.Properties).trimmed());
    const bool isOn = late != LateWay::ByTheRules || clock == "24"_L1 || clock == "12"_L1;
    const TimerDay day = DayOf(clock == "24"_L1);
    const bool isNew = isOn != isOn_ || late != late_ || day != day_;
    isOn_ = isOn;
    late_ = late;
    day_ = day;
    return isNew;
}

ClockMoment KeptTimes::Present() const {
    return {context_.ClockTime(),
            QDateTime::fromSecsSinceEpoch(context_.Services.Clock.Instant(), Qt::UTC)};
}

bool KeptTimes::KnowsItsZone() const {
    return !context_.Zone.ExactId.isEmpty();
}

ClockOffset KeptTimes::Offset() const {
    if (KnowsItsZone()) {
        return [zone = mduTimeZones::ExactZone(context_.Services.Zones, context_.Zone.ExactId)](
                   const QDateTime& instant) { return zone.At(instant.toSecsSinceEpoch()).Offset; };
    }
    const ClockMoment now = Present();
    return [ahead = static_cast<int>(now.Instant.secsTo(now.Reading))](const QDateTime&) {
        return ahead;
    };
}

QString KeptTimes::PickedTime(const QString& time) const {
    const ClockMoment now = Present();
    const std::optional<QTime> picked = TimeOfText(time, now.Reading.date().year());
    if (!isOn_ || day_ == TimerDay::Half || !picked) {
        return time;
    }
    return HourMinute(NextComing(*picked, TimerDay::Half, now.Instant, Offset()).Reading.time());
}

TimerDue KeptTimes::NextDue(const ClockTimer& timer, const QDateTime& instant) const {
    const std::optional<QTime> time = TimeOfText(timer.TimerTime, instant.date().year());
    if (!time) {
        return {};
    }
    const bool whole = timer.Due.At.isValid() ? timer.Due.WholeDay : day_ == TimerDay::Whole;
    return {NextComing(*time, DayOf(whole), instant, Offset()).Instant, whole, false};
}

ClockTimer KeptTimes::Completed(const ClockTimer& before, const ClockTimer& timer) const {
    ClockTimer result = timer;
    const bool isGiven = timer.Due.At.isValid() && timer.Due != before.Due;
    if (!isOn_ || !timer.OnDial) {
        result.Due = {};
    } else if (!isGiven && (timer.TimerTime != before.TimerTime || !timer.Due.At.isValid())) {
        result.Due = {};
        result.Due = NextDue(result, Present().Instant);
    }
    return result;
}

QDateTime KeptTimes::Anew(const ClockTimer& timer) const {
    const QDateTime& due = timer.Due.At;
    const std::optional<QTime> time = TimeOfText(timer.TimerTime, due.date().year());
    if (!time || timer.Due.Acting) {
        return due;
    }
    const ClockOffset offset = Offset();
    return InstantOf(ReadingOf(due, *time, DayOf(timer.Due.WholeDay), offset(due)), offset);
}

TimerLineUse KeptTimes::UseOf(const TimerLine& line) const {
    const std::optional<QDateTime> due = DueOf(line);
    if (due && line.OneShot) {
        const bool isNear = Present().Instant.secsTo(*due) < Near;
        return {isNear, !isNear};
    }
    if (due || line.TimeAlone) {
        return {true, false};
    }
    return timers::UseOf(line, Present().Reading);
}

std::optional<QDateTime> KeptTimes::DueOf(const TimerLine& line) const {
    ClockTimer timer;
    if (FillFromTail(line, timer)) {
        return timer.Due.At;
    }
    return IsPlainMoment(line) ? std::optional(InstantOf(line.When, Offset())) : std::nullopt;
}

void KeptTimes::Fill(const TimerLine& line, ClockTimer& timer) const {
    timer.Due = {};
    if (FillFromTail(line, timer)) {
        timer.Due.At = Anew(timer);
    } else if (const std::optional<QDateTime> due = DueOf(line)) {
        timer.TimerTime = HourMinute(line.When.time());
        timer.Due = {*due, true, false};
    } else {
        timer.TimerTime = PickedTime(HourMinute(line.DialTime()));
    }
}

}  // namespace timers
