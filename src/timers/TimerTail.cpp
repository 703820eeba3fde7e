#include "timers/TimerTail.h"

#include "foundation/Dates.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

// Places in the meta part of a line.
constexpr qsizetype TimeOfDay = 5;
constexpr qsizetype Instant = 6;
constexpr qsizetype Phase = 7;

constexpr QLatin1StringView Acts("acts");

QDateTime InstantOfText(const QString& text) {
    const QDateTime instant = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    return instant.isValid() && instant.timeSpec() == Qt::UTC ? instant : QDateTime();
}

}  // namespace

QString TailText(const ClockTimer& timer) {
    if (!timer.Due.At.isValid()) {
        return {};
    }
    return u","_s + (timer.Due.WholeDay ? timer.TimerTime : QString()) + u',' +
           timer.Due.At.toString(Qt::ISODate) + (timer.Due.Acting ? u","_s + Acts : QString());
}

bool FillFromTail(const TimerLine& line, ClockTimer& timer) {
    const QDateTime instant = InstantOfText(line.Meta.value(Instant));
    if (!instant.isValid()) {
        return false;
    }
    const QTime time = QTime::fromString(line.Meta.value(TimeOfDay).trimmed(), u"HH:mm"_s);
    timer.TimerTime = HourMinute(time.isValid() ? time : line.DialTime());
    timer.Due = {instant, time.isValid(), line.Meta.value(Phase).trimmed() == Acts};
    return true;
}

QString KeptLineText(const ClockTimer& timer, const QDateTime& reading) {
    return OnOneLine(MetaText(timer) + mduAPILib::ShortDate(reading.date()) + u' ' +
                     HourMinute(reading.time()) + u'=' + timer.Message.trimmed());
}

}  // namespace timers
