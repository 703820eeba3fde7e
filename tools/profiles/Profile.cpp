#include "Profile.h"

#include "foundation/PropertyLookup.h"
#include "platform/TzFolder.h"
#include "platform/TzRule.h"
#include "timezones/ExactKeys.h"
#include "timezones/TransitionText.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace profiles {

namespace {

using platform::SYSTEMTIME;

// A date, because the reader of a list of profiles understands no yearly form.
QString DateText(SYSTEMTIME change, const QDate& today) {
    if (change.wYear == 0 && change.wMonth != 0) {
        const QDate date =
            mduTimeZones::RuleTransitionDate(change.wDay, change.wDayOfWeek, change.wMonth, today);
        change.wYear = static_cast<std::int16_t>(date.year());
        change.wDay = static_cast<std::int16_t>(date.day());
    }
    return mduTimeZones::TransitionText(change, today);
}

/// The texts of the six keys, in their order.
QStringList ZoneTexts(const City& city, const QDateTime& now) {
    const QDate today = now.date();
    const platform::TzYear year = platform::ReadTzYear(platform::TzZone(city.Iana), today.year());
    const platform::TzRule rule = platform::MakeTzRule(year, now.toSecsSinceEpoch());
    return {city.Name,
            DateText(rule.StandardDate, today),
            QString::number(rule.Bias),
            city.Name + u" Daylight Time"_s,
            DateText(rule.DaylightDate, today),
            QString::number(rule.Bias + rule.DaylightBias)};
}

QString Degrees(double angle) {
    return QString::number(angle, 'f', 4);
}

}  // namespace

ClockProperties MakeProfile(const City& city, const QDateTime& now, const QString& flag,
                            const ClockProperties& defaults) {
    ClockProperties profile = defaults;
    const QStringList& keys = mduTimeZones::ZoneKeys();
    const QStringList texts = ZoneTexts(city, now);
    for (qsizetype key = 0; key < keys.size(); ++key) {
        mduLib::PutPropertyRaw(keys[key], texts[key], profile, u"Time Zone"_s);
    }
    if (mduLib::FindPropertyRow(mduTimeZones::ZoneIdKey, profile) > 0) {
        mduLib::PutProperty(mduTimeZones::ZoneIdKey, QString::fromUtf8(city.Iana), profile);
    }
    if (!flag.isEmpty()) {
        mduLib::PutProperty(u"Flag File"_s, flag, profile, u"Time Zone"_s);
    }
    mduLib::AppendProperty(u"Zone"_s, u"Latitude"_s, Degrees(city.Place.Latitude), profile);
    mduLib::AppendProperty(u"Zone"_s, u"Longitude"_s, Degrees(city.Place.Longitude), profile);
    mduLib::AppendProperty(u"Zone"_s, u"Country"_s, city.Country, profile);
    mduLib::AppendProperty(u"Zone"_s, u"City"_s, city.Name, profile);
    return profile;
}

}  // namespace profiles
