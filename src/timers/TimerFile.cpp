#include "timers/TimerFile.h"

#include <algorithm>

#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "platform/RandomNumbers.h"
#include "timers/TimerTail.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr qsizetype ShortestMoment = 7;  // a head below this length is a time alone

// line = head "@" message [ "@" ignored ] | head "=" message [ "=" ignored ]
void SplitAtMark(const QString& text, TimerLine& line) {
    const QChar mark = line.OneShot ? u'=' : u'@';
    line.Head = text.section(mark, 0, 0);
    line.Message = text.section(mark, 1, 1);
}

// head = [ meta "#" ] when; meta = value { "," value }
void SplitMeta(TimerLine& line) {
    line.Meta = QStringList{QString()};
    const qsizetype end = line.Head.indexOf(u'#');
    if (end >= 0) {
        line.Meta = line.Head.left(end).split(u',');
        line.Head.remove(0, end + 1);
    }
}

// when = time [ "#" ignored ] | time "@" message
// A permanent timer whose message held "=" is a one-shot one now, with what stood before that.
void SplitWhen(TimerLine& line) {
    const qsizetype at = line.Head.indexOf(u'@');
    if (at >= 0) {
        line.Message = line.Head.mid(at + 1);
        line.Head.truncate(at);
    }
    line.Head = line.Head.section(u'#', 0, 0);
}

QString NumberText(double value) {
    return QString::number(value, 'g', 15);
}

// The hour loses its half of the day; an hour of the first half leaves the head as it stands.
QString HeadTime(const TimerLine& line) {
    const QTime time = line.DialTime();
    return line.When.time().hour() < HalfDay ? line.Head
                                             : u"%1:%2"_s.arg(time.hour()).arg(time.minute());
}

// when = date blank hour ":" minute
QString OneShotWhen(const QTime& time, const QDateTime& clockTime) {
    const bool morning = clockTime.time().hour() < HalfDay;
    const bool keepHour = morning ? time.hour() > HalfDay : time.hour() >= HalfDay;
    const QDate date = morning ? clockTime.date() : clockTime.date().addDays(1);
    return u"%1 %2:%3"_s.arg(mduAPILib::ShortDate(date))
        .arg(keepHour ? time.hour() : time.hour() + HalfDay)
        .arg(time.minute());
}

// when = hour ":" minute
QString PermanentWhen(const QTime& time) {
    return u"%1:%2"_s.arg(time.hour() + HalfDay).arg(time.minute());
}

}  // namespace

QTime TimerLine::DialTime() const {
    const QTime time = When.time();
    return {time.hour() % HalfDay, time.minute()};
}

// line = head ( "@" | "=" ) message
std::optional<TimerLine> ParseTimerLine(const QString& line, int presentYear) {
    TimerLine result;
    result.OneShot = line.contains(u'=');
    if (!result.OneShot && !line.contains(u'@')) {
        return std::nullopt;
    }
    SplitAtMark(line, result);
    SplitMeta(result);
    SplitWhen(result);
    const auto moment = mduAPILib::ParseMoment(result.Head, presentYear);
    if (!moment) {
        return std::nullopt;
    }
    result.TimeAlone = result.Head.size() < ShortestMoment;
    result.When = moment->Moment;
    return result;
}

TimerLineUse UseOf(const TimerLine& line, const QDateTime& clockTime) {
    if (line.TimeAlone) {
        return {true, line.OneShot};
    }
    // A long head may be a time without a date, which lies before every day.
    if (!line.When.date().isValid()) {
        return {};
    }
    const qint64 days = clockTime.date().daysTo(line.When.date());
    const qint64 loaded = clockTime.time().hour() < HalfDay ? 0 : 1;
    return {days == loaded, days >= 0 && days != loaded};
}

void FillTimer(const TimerLine& line, platform::RandomNumbers& random, ClockTimer& timer) {
    timer.OnDial = true;
    timer.Permanent = line.OneShot ? QString() : u"P"_s;
    timer.TimerTime = HeadTime(line);
    timer.Message = line.Message;
    timer.DisplayMinutes = NumberText(mduAPILib::Val(line.Meta[0]));
    if (line.Meta.size() > 1) {
        timer.MessageColour = mduUILib::ColourValue(line.Meta[1], random);
    }
    timer.SoundFile = line.Meta.value(2, timer.SoundFile);
    timer.TimerAction = line.Meta.value(3, timer.TimerAction);
    timer.MusicVolume = line.Meta.value(4, timer.MusicVolume);
}

// meta = minutes "," colour "," sound "," action "," volume [ tail ] "#"
QString MetaText(const ClockTimer& timer) {
    return QStringList{timer.DisplayMinutes, mduUILib::ColourName(timer.MessageColour),
                       timer.SoundFile, timer.TimerAction, timer.MusicVolume}
               .join(u',') +
           TailText(timer) + u'#';
}

// line = meta [ when ] ( "@" | "=" ) message
QString TimerLineText(const ClockTimer& timer, const QDateTime& clockTime) {
    std::optional<QTime> time = TimeOfText(timer.TimerTime, clockTime.date().year());
    if (time && timer.Due.At.isValid()) {
        time = QTime(time->hour() % HalfDay, time->minute());
    }
    QString line = MetaText(timer);
    if (time) {
        line += timer.IsPermanent() ? PermanentWhen(*time) : OneShotWhen(*time, clockTime);
    }
    return OnOneLine(line + (timer.IsPermanent() ? u'@' : u'=') + timer.Message.trimmed());
}

QString DeferredLineText(const ClockTimer& timer, const QDate& date) {
    return OnOneLine(mduAPILib::ShortDate(date) + u' ' + timer.TimerTime + u'=' +
                     timer.Message.trimmed());
}

QString WhatIsLost(const ClockTimer& timer, const QString& line, int presentYear) {
    const std::optional<TimerLine> read = ParseTimerLine(line, presentYear);
    if (!read) {
        return u"A timer at %1 is kept no longer than its clock is open"_s.arg(timer.TimerTime);
    }
    return read->Message == OnOneLine(timer.Message.trimmed())
               ? QString()
               : u"When the clock is closed, the message is cut at \"%1\""_s.arg(
                     QChar(read->OneShot ? u'=' : u'@'));
}

bool CanBeKept(const QString& meta) {
    return std::none_of(meta.begin(), meta.end(), [](QChar c) { return u",#@="_s.contains(c); });
}

QString NotKept(const QString& meta) {
    return meta + u" has one of , # @ = in its name; no timer can keep it"_s;
}

QString OnOneLine(QString text) {
    text.replace(u"\r\n"_s, u" "_s);
    text.replace(u'\n', u' ');
    return text.replace(u'\r', u' ');
}

int WholeNumber(const QString& text) {
    constexpr double most = 1e9;
    return static_cast<int>(std::clamp(mduAPILib::Val(text), -most, most));
}

std::optional<QTime> TimeOfText(const QString& text, int presentYear) {
    const auto moment = mduAPILib::ParseMoment(text, presentYear);
    return moment ? std::optional(moment->Moment.time()) : std::nullopt;
}

QString HourMinute(const QTime& time) {
    return time.toString(u"HH:mm"_s);
}

}  // namespace timers
