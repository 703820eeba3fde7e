#include "speech/ToldReasons.h"

#include <cstdlib>

namespace speech {

namespace {

constexpr qint64 Minute = 60;  // seconds

}  // namespace

bool ToldReasons::IsFresh(const QString& reason) const {
    return IsWithinAMinute(told_.value(reason), clock_.Now());
}

bool IsWithinAMinute(const QDateTime& since, const QDateTime& now) {
    return since.isValid() && std::abs(since.secsTo(now)) < Minute;
}

}  // namespace speech
