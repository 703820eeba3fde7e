#pragma once

#include <QDateTime>
#include <QString>

#include "foundation/ClockProperty.h"

/// What a clock says, and how often: templates of free text and tokens, one for each unit of time.
///
/// "Speech Hour Pattern6=It is <Past/To>" speaks at 0:00, 6:00, 12:00 and 18:00; the key without a
/// number speaks at each hour and goes before the numbered ones.
namespace speech {

/// The units of time, shortest first.
enum PatternKind { SecondPattern = 1, MinutePattern = 2, HourPattern = 3, DayPattern = 4 };

struct SpeechPattern {
    QString Text;
    int Period = 0;  ///< every so many units, 1 to 60; 0: the kind is switched off

    bool IsOn() const { return Period > 0; }
    bool operator==(const SpeechPattern&) const = default;
};

/// The key of a kind from 1 to 4, without a number: "Speech Second Pattern".
QString PatternKey(int kind);

/// Whether a value means that nothing is spoken: empty, "0" or "None".
bool IsSwitchedOff(const QString& value);

/// The pattern of the first key that is not switched off: the plain key, then 1, 2, up to 60.
SpeechPattern PatternOfKind(int kind, const ClockProperties& properties);

/// Whether a moment is one of those at which the kind's pattern is spoken. Never when it is off.
bool IsDue(const SpeechPattern& pattern, int kind, const QDateTime& moment);

/// The text to speak. Of each token the first occurrence is replaced, case counts, and what is no
/// token stays: at 15:10 "It is <Past/To>, <past/to>" gives "It is 10 Past 3, <past/to>".
///
/// Tokens: <Past/To>, <Location>, <ShortTime> "15:10", <LongTime> "15:10:00", <ShortDate>
/// "15/06/2026", <Minute> "10", <Second> "0", <LongDate> as the user's locale has it.
QString ExpandPattern(const QDateTime& moment, const QString& pattern, const QString& location);

}  // namespace speech
