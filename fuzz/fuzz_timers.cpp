#include "foundation/PropertyFile.h"
#include "fuzz/MemoryFiles.h"
#include "platform/RandomNumbers.h"
#include "timers/TimerFile.h"
#include "timers/TimerTail.h"

using namespace Qt::StringLiterals;

namespace {

/// The generator of "random" colours.
class Numbers final : public platform::RandomNumbers {
public:
    void Seed() override {}
    double Next() override { return 0.5; }
};

/// Whether a written line can be read as it was meant: nothing in it is quoted.
bool IsPlain(const timers::ClockTimer& timer) {
    for (const QString& text : {timer.SoundFile, timer.TimerAction, timer.MusicVolume}) {
        for (const QChar mark : {u',', u'#', u'@', u'=', u'\r'}) {
            if (text.contains(mark)) {
                return false;
            }
        }
    }
    return !timer.Message.contains(u'@') && !timer.Message.contains(u'=');
}

// In the afternoon every hour of the dial is written so that it reads back.
void WriteAndReadBack(const timers::ClockTimer& timer, const QDateTime& clockTime) {
    const QString text = timers::TimerLineText(timer, clockTime);
    Require(!text.contains(u'\n') && !text.contains(u'\r'));
    const int year = clockTime.date().year();
    const auto time = timers::TimeOfText(timer.TimerTime, year);
    if (!time || time->hour() >= 12 || !IsPlain(timer)) {
        return;
    }
    const auto line = timers::ParseTimerLine(text.trimmed(), year);
    Require(line.has_value());
    Require(timers::UseOf(*line, clockTime) == timers::TimerLineUse{true, false});
    Numbers random;
    timers::ClockTimer back;
    timers::FillTimer(*line, random, back);
    const auto timeBack = timers::TimeOfText(back.TimerTime, year);
    Require(timeBack && timers::HourMinute(*timeBack) == timers::HourMinute(*time));
    Require(back.Permanent == timer.Permanent && back.OnDial);
    Require(back.MusicVolume.trimmed() == timer.MusicVolume.trimmed());
}

// A timer that is kept as an instant comes back as it was, at any hour.
void WriteAndReadTail(const timers::TimerLine& line, const QDateTime& clockTime) {
    timers::ClockTimer timer;
    Numbers random;
    timers::FillTimer(line, random, timer);
    if (!timers::FillFromTail(line, timer)) {
        Require(!timer.Due.At.isValid());
        return;
    }
    const QString text = timers::TimerLineText(timer, clockTime);
    if (!IsPlain(timer)) {
        return;
    }
    const auto again = timers::ParseTimerLine(text.trimmed(), clockTime.date().year());
    Require(again.has_value());
    timers::ClockTimer back;
    Require(timers::FillFromTail(*again, back));
    Require(back.Due == timer.Due && back.TimerTime == timer.TimerTime);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QDateTime morning(QDate(2026, 11, 16), QTime(9, 0), Qt::UTC);
    const QDateTime evening(QDate(2026, 11, 16), QTime(21, 0), Qt::UTC);
    Numbers random;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QString& text : mduLib::FileLines(bytes)) {
        const auto line = timers::ParseTimerLine(text.trimmed(), 2026);
        if (!line) {
            continue;
        }
        timers::UseOf(*line, morning);
        timers::ClockTimer timer;
        timers::FillTimer(*line, random, timer);
        Require(timer.OnDial && timer.IsPermanent() != line->OneShot);
        WriteAndReadBack(timer, morning);
        WriteAndReadBack(timer, evening);
        WriteAndReadTail(*line, morning);
        WriteAndReadTail(*line, evening);
    }
    return 0;
}
