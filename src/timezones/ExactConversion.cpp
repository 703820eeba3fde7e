#include "timezones/ExactConversion.h"

#include "foundation/Dates.h"
#include "timezones/ExactZone.h"
#include "timezones/ZoneConversion.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

/// The text of a reading; empty where no date of the files can tell it.
QString TextOf(const QDateTime& reading) {
    const QDate date = reading.date();
    return mduAPILib::ValidDate(date.day(), date.month(), date.year())
               ? mduAPILib::MomentText(reading)
               : QString();
}

}  // namespace

QString ConvertedTime::Shown() const {
    if (Texts.isEmpty() || Texts[0] == Texts[1]) {
        return Text;
    }
    const bool sameDay = Texts[0].section(u' ', 0, 0) == Texts[1].section(u' ', 0, 0);
    return Texts[0] + u" or "_s + (sameDay ? Texts[1].section(u' ', 1) : Texts[1]);
}

QString ConvertedTime::ShownAsTimes() const {
    return Texts.isEmpty() || Texts[0] == Texts[1]
               ? Text
               : Texts[0].section(u' ', 1) + u" or "_s + Texts[1].section(u' ', 1);
}

ConvertedTime ConvertTime(const platform::ZoneDatabase& zones, const QString& text, bool toZone,
                          const TimeZoneRecord& record, const QDateTime& now) {
    if (record.ExactId.isEmpty()) {
        return {.Text = ConvertZoneTime(text, toZone, record, now)};
    }
    const std::optional<QDateTime> moment = MomentOfText(text, now);
    if (!moment) {
        return {};
    }
    const ExactZone machine(zones, {});
    const ExactZone zone(zones, record.ExactId);
    QStringList texts;
    for (const qint64 instant : (toZone ? machine : zone).InstantsOf(*moment)) {
        texts += TextOf((toZone ? zone : machine).ReadingAt(instant));
    }
    if (texts.isEmpty()) {
        return {.Text = u"does not exist"_s, .IsGap = true};
    }
    return {.Text = texts[0], .Texts = texts.size() > 1 ? texts : QStringList()};
}

QString ExactNameAt(const platform::ZoneDatabase& zones, const TimeZoneRecord& record,
                    const QDateTime& reading, bool isZoneTime) {
    const ExactZone zone(zones, record.ExactId);
    const ExactZone shown(zones, isZoneTime ? record.ExactId : QString());
    return zone.At(shown.InstantOf(reading)).Daylight ? record.DaylightName : record.StandardName;
}

}  // namespace mduTimeZones
