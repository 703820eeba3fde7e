#include <QDir>
#include <algorithm>
#include <cstdlib>

#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/TransitionText.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

bool IsProfile(const QString& fileName) {
    return fileName != u"Tempolark.ini"_s && fileName.endsWith(u".ini"_s);
}

/// display = "(GMT" sign hours ":" minutes ") " name, west being "-". The minutes are the first two
/// characters of their number and a "0" behind it, so that 5 shows as "50".
QString ProfileDisplay(std::int32_t minutes, const QString& name) {
    const std::int64_t size = std::abs(std::int64_t{minutes});
    const QString hours = (u'0' + QString::number(size / 60)).right(2);
    const QString rest = (QString::number(size % 60) + u'0').left(2);
    return u"(GMT"_s + (minutes < 0 ? u'+' : u'-') + hours + u':' + rest + u") "_s + name;
}

TimeZoneRecord ProfileRecord(const ClockProperties& properties, const QString& name, bool isNT,
                             const QDate& today) {
    const auto text = [&](qsizetype key) {
        return mduLib::GetProperty(ZoneKeys()[key], properties).trimmed();
    };
    TimeZoneRecord record;
    record.StandardName = text(0);
    record.StandardDate = ParseTransitionDate(text(1), isNT, today);
    record.DaylightName = text(3);
    record.DaylightDate = ParseTransitionDate(text(4), isNT, today);

    const QString standard = text(2);
    const QString daylight = text(5);
    const bool numeric = mduAPILib::IsNumeric(standard);
    record.StandardBias = numeric ? mduAPILib::IntegerValue(standard) : 0;
    record.DisplayName = numeric ? ProfileDisplay(record.StandardBias, name) : name;
    record.DaylightBias = mduAPILib::IsNumeric(daylight) ? mduAPILib::IntegerValue(daylight) : 0;
    return record;
}

QStringList ProfileNames(const platform::Files& files, const QString& folder) {
    QStringList names;
    for (const QString& name : files.FileNames(folder)) {
        if (IsProfile(name)) {
            names.append(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

TimeZoneRecords ListProfileTimeZones(const platform::Services& services, const QString& folder) {
    const QStringList names =
        folder.isEmpty() ? QStringList() : ProfileNames(services.FileSystem, folder);
    const QDate today = services.Clock.Now().date();
    const float localHours = GetLocalZone(services).CurrentGMTHours;
    TimeZoneRecords records(21);
    std::size_t number = 0;
    for (const QString& name : names) {
        if (++number >= records.size()) {
            records.resize(number + 11);
        }
        const QString path = QDir(folder).filePath(name);
        ClockProperties properties;
        if (!mduLib::ReadPropertyFile(services.FileSystem, path, properties)) {
            continue;
        }
        TimeZoneRecord& record = records[number];
        record = ProfileRecord(properties, name.chopped(4), services.Zones.IsWindowsNT(), today);
        record.KeyName = path;
        record.CurrentGMTHours = Hours(record.StandardBias);
        record.HoursFromLocal = localHours - record.CurrentGMTHours;
    }
    return records;
}

}  // namespace mduTimeZones
