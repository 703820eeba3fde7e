#include "platform/TzYear.h"

#include <QDateTime>
#include <algorithm>

namespace platform {

namespace {

constexpr qint64 day = 86400;
constexpr qint64 margin = 3 * day;

int OffsetAt(const QTimeZone& zone, qint64 instant) {
    return zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(instant, Qt::UTC));
}

/// The first second in (from, to] with an offset other than the one at @p from.
qint64 SecondOfChange(const QTimeZone& zone, qint64 from, qint64 to) {
    const int before = OffsetAt(zone, from);
    while (to - from > 1) {
        const qint64 middle = from + (to - from) / 2;
        (OffsetAt(zone, middle) == before ? from : to) = middle;
    }
    return to;
}

}  // namespace

// The offsets are searched for their changes, because QTimeZone lists no transitions behind 2037
// and lists some that change the name only.
TzYear ReadTzYear(const QTimeZone& zone, int year) {
    const qint64 begin = QDate(year, 1, 1).startOfDay(Qt::UTC).toSecsSinceEpoch() - margin;
    const qint64 end = QDate(year + 1, 1, 1).startOfDay(Qt::UTC).toSecsSinceEpoch() + margin;
    TzYear result{year, OffsetAt(zone, begin), {}};
    int offset = result.FirstOffset;
    for (qint64 from = begin; from < end;) {
        const qint64 to = std::min(from + day, end);
        if (OffsetAt(zone, to) == offset) {
            from = to;
            continue;
        }
        from = SecondOfChange(zone, from, to);
        const int after = OffsetAt(zone, from);
        result.Changes.push_back({from, offset, after});
        offset = after;
    }
    return result;
}

QDateTime TzLocalMoment(qint64 instant, int offset) {
    return QDateTime::fromSecsSinceEpoch(instant + offset, Qt::UTC);
}

}  // namespace platform
