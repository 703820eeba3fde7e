#include "speech/ToldReasons.h"

#include <cstdlib>

namespace speech {

namespace {

constexpr qint64 Minute = 60;  // seconds

bool IsWithin(qint64 seconds, const QDateTime& since, const QDateTime& now) {
    return since.isValid() && std::abs(since.secsTo(now)) < seconds;
}

}  // namespace

bool ToldReasons::IsFresh(const QString& reason) const {
    return IsWithinAMinute(told_.value(reason), clock_.Now());
}

bool ToldReasons::IsRecent(const QString& reason) const {
    return IsWithin(5 * Minute, told_.value(reason), clock_.Now());
}

bool IsWithinAMinute(const QDateTime& since, const QDateTime& now) {
    return IsWithin(Minute, since, now);
}

}  // namespace speech
