#include "timezones/ExactZone.h"

namespace mduTimeZones {

namespace {

using platform::ZoneSpan;

// No clock has ever been further from Greenwich: Manila was 15:56 behind it.
constexpr qint64 FurthestFromGreenwich = qint64{24} * 3600;

}  // namespace

QDateTime ExactZone::ReadingAt(qint64 instant) const {
    return QDateTime::fromSecsSinceEpoch(instant + At(instant).Offset, Qt::UTC);
}

std::vector<qint64> ExactZone::InstantsOf(const QDateTime& reading) const {
    const qint64 shown = reading.toSecsSinceEpoch();
    std::vector<qint64> instants;
    for (qint64 from = shown - FurthestFromGreenwich; from < shown + FurthestFromGreenwich;) {
        const ZoneSpan span = At(from);
        const qint64 instant = shown - span.Offset;
        if (instant >= span.Since && instant < span.Until) {
            instants.push_back(instant);
        }
        from = span.Until;
    }
    return instants;
}

qint64 ExactZone::InstantOf(const QDateTime& reading) const {
    const std::vector<qint64> instants = InstantsOf(reading);
    if (!instants.empty()) {
        return instants.front();
    }
    const qint64 shown = reading.toSecsSinceEpoch();
    ZoneSpan span = At(shown - FurthestFromGreenwich);
    while (span.Until != ZoneSpan::Always && At(span.Until).Offset + span.Until <= shown) {
        span = At(span.Until);
    }
    return shown - span.Offset;
}

std::optional<ZoneChange> ExactZone::NextChange(qint64 instant) const {
    const ZoneSpan present = At(instant);
    for (ZoneSpan span = present; span.Until != ZoneSpan::Always;) {
        const ZoneSpan next = At(span.Until);
        if (next.Offset != present.Offset || next.Daylight != present.Daylight) {
            return ZoneChange{next.Since, span, next};
        }
        span = next;
    }
    return std::nullopt;
}

}  // namespace mduTimeZones
