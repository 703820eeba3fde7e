#include "platform/TzSpans.h"

#include <QDateTime>
#include <algorithm>
#include <vector>

namespace platform {

namespace {

constexpr std::int64_t LongestHalf = std::int64_t{366} * 86400;

/// A span as the tz database has it: its daylight time may be one of less than none.
struct TzSpan {
    int Offset = 0;
    bool IsDst = false;
    std::int64_t Since = -ZoneSpan::Always;
    std::int64_t Until = ZoneSpan::Always;

    bool IsLike(const TzSpan& other) const {
        return Offset == other.Offset && IsDst == other.IsDst;
    }
    bool IsShort() const {
        return Since != -ZoneSpan::Always && Until != ZoneSpan::Always &&
               Until - Since <= LongestHalf;
    }
};

std::int64_t InstantOf(const QTimeZone::OffsetData& transition, std::int64_t otherwise) {
    return transition.atUtc.isValid() ? transition.atUtc.toSecsSinceEpoch() : otherwise;
}

// Both ways are asked from a little behind the second: from the very moment of the last change that
// the database lists, the next is not found, and the rule that goes on from there not looked into.
TzSpan ListedSpanAt(const QTimeZone& zone, std::int64_t instant) {
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(instant, Qt::UTC);
    if (!zone.hasTransitions()) {
        return {.Offset = zone.offsetFromUtc(moment)};  // UTC is no file, and tells no more
    }
    const QDateTime behind = moment.addMSecs(1);
    const QTimeZone::OffsetData data = zone.offsetData(moment);
    return {data.offsetFromUtc, data.daylightTimeOffset != 0,
            InstantOf(zone.previousTransition(behind), -ZoneSpan::Always),
            InstantOf(zone.nextTransition(behind), ZoneSpan::Always)};
}

// The database also lists changes that are none: of a name, of the law, of the end of its list.
TzSpan DatabaseSpanAt(const QTimeZone& zone, std::int64_t instant) {
    TzSpan span = ListedSpanAt(zone, instant);
    while (span.Since != -ZoneSpan::Always) {
        const TzSpan before = ListedSpanAt(zone, span.Since - 1);
        if (!before.IsLike(span)) {
            break;
        }
        span.Since = before.Since;
    }
    while (span.Until != ZoneSpan::Always) {
        const TzSpan next = ListedSpanAt(zone, span.Until);
        if (!next.IsLike(span)) {
            break;
        }
        span.Until = next.Until;
    }
    return span;
}

/// The spans before and behind one, as far as there are any.
std::vector<TzSpan> Neighbours(const QTimeZone& zone, const TzSpan& span) {
    std::vector<TzSpan> spans;
    if (span.Since != -ZoneSpan::Always) {
        spans.push_back(DatabaseSpanAt(zone, span.Since - 1));
    }
    if (span.Until != ZoneSpan::Always) {
        spans.push_back(DatabaseSpanAt(zone, span.Until));
    }
    return spans;
}

/// Whether what the database calls daylight time is the half with the earlier clock.
bool IsLessThanStandard(const QTimeZone& zone, const TzSpan& daylight) {
    const std::vector<TzSpan> around = Neighbours(zone, daylight);
    const auto isStandard = [&](const TzSpan& other, bool later) {
        return !other.IsDst &&
               (later ? other.Offset > daylight.Offset : other.Offset < daylight.Offset);
    };
    const auto any = [&](bool later) {
        return std::any_of(around.begin(), around.end(),
                           [&](const TzSpan& other) { return isStandard(other, later); });
    };
    return any(true) && !any(false);
}

bool IsDaylight(const QTimeZone& zone, const TzSpan& span) {
    if (span.IsDst) {
        return !IsLessThanStandard(zone, span);
    }
    if (!span.IsShort()) {
        return false;
    }
    const std::vector<TzSpan> around = Neighbours(zone, span);
    return std::any_of(around.begin(), around.end(), [&](const TzSpan& other) {
        return other.IsDst && other.Offset < span.Offset && IsLessThanStandard(zone, other);
    });
}

}  // namespace

ZoneSpan TzSpanAt(const QTimeZone& zone, std::int64_t instant) {
    const TzSpan span = DatabaseSpanAt(zone, instant);
    return {span.Offset, IsDaylight(zone, span), span.Since, span.Until};
}

}  // namespace platform
