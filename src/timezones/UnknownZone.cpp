#include "timezones/UnknownZone.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "foundation/FileHelpers.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSearch.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

/// How many letters have to be changed, added or taken away to make one text of the other.
qsizetype Distance(const QString& from, const QString& to) {
    std::vector<qsizetype> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool same = from[i] == to[static_cast<qsizetype>(j) - 1];
            const qsizetype changed = diagonal + (same ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

qsizetype DistanceTo(const CalledZone& zone, const QString& folded) {
    qsizetype nearest = Distance(folded, FoldForSearch(zone.StandardName));
    for (const QString& name : zone.Names) {
        nearest = std::min(nearest, Distance(folded, FoldForSearch(name)));
    }
    return nearest;
}

// "(GMT+09:00) Tokyo, Osaka, Kyoto, Sapporo" tells the cities, "Tokyo Standard Time" a short name.
CalledZone FromDatabase(const platform::ZoneDatabase& zones, const TimeZoneRecord& record) {
    CalledZone zone{record.StandardName, zones.Countries(record.KeyName)};
    zone.Names += record.DisplayName.section(u") "_s, 1).split(u", "_s);
    zone.Names += QString(record.StandardName).remove(u" Standard Time"_s);
    return zone;
}

// Profiles come behind the database, as they do when a zone is looked for.
std::vector<CalledZone> AllZones(const platform::Services& services, const PathTable& paths) {
    std::vector<CalledZone> zones;
    for (const TimeZoneRecord& record : ListWindowsTimeZones(services)) {
        if (!record.StandardName.isEmpty()) {
            zones.push_back(FromDatabase(services.Zones, record));
        }
    }
    for (const TimeZoneRecord& record : ListProfileTimeZones(services, paths.ProfileFolder)) {
        if (!record.KeyName.isEmpty()) {
            zones.push_back({record.StandardName, {}});
        }
    }
    return zones;
}

bool FileShowsAnotherTime(const platform::Services& services, const PathTable& paths,
                          const QString& name) {
    if (!mduLib::ZoneNameProblem(name).isEmpty()) {
        return false;
    }
    ClockProperties properties;
    const QString file = paths.ZoneFileFolder + mduLib::AddIniExtension(mduLib::ZoneFileStem(name));
    LoadZoneFile(services.FileSystem, file, properties);
    TimeZoneRecord record;
    OverlayZoneKeys(record, properties, services.Clock.Now());
    return record.StandardBias != 0 || record.DaylightBias != 0;
}

}  // namespace

QString NearestZoneName(const QString& typed, const std::vector<CalledZone>& zones) {
    const QString folded = FoldForSearch(typed).simplified();
    if (folded.isEmpty()) {
        return {};
    }
    qsizetype nearest = std::max(std::min<qsizetype>(3, folded.size()), folded.size() / 3 + 1);
    QString name;
    for (const CalledZone& zone : zones) {
        if (const qsizetype distance = DistanceTo(zone, folded); distance < nearest) {
            nearest = distance;
            name = zone.StandardName;
        }
    }
    return name;
}

QString UnknownZoneNotice(const platform::Services& services, const PathTable& paths,
                          const QString& name) {
    if (!FindTimeZone(services, paths, name).KeyName.isEmpty()) {
        return {};
    }
    const QString notice = u"No time zone is called \"%1\": it counts as GMT"_s.arg(name);
    const QString nearest = NearestZoneName(name, AllZones(services, paths));
    return nearest.isEmpty() ? notice : notice + u". The nearest is \"%1\""_s.arg(nearest);
}

QString UnknownClockNotice(const platform::Services& services, const PathTable& paths,
                           const QString& name) {
    return FileShowsAnotherTime(services, paths, name)
               ? QString()
               : UnknownZoneNotice(services, paths, mduLib::StripIniExtension(name));
}

}  // namespace mduTimeZones
