#include "timezones/ZoneSources.h"

#include <QtEndian>
#include <algorithm>

#include "platform/Services.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::SYSTEMTIME;
using platform::ZoneDatabase;
using platform::ZoneRoot;

constexpr qsizetype LongestText = 255;
constexpr qsizetype TziSize = 44;

/// The subkey at an index; a name that does not fit the buffer ends the list.
std::optional<QString> Subkey(const ZoneDatabase& zones, int index) {
    std::optional<QString> name = zones.SubkeyName(index);
    return name && name->size() <= platform::LongestSubkey ? name : std::nullopt;
}

QString TextOf(const ZoneDatabase& zones, const QString& subkey, const QString& name) {
    const QString text = zones.TextValue(subkey, name).value_or(QString());
    return text.size() > LongestText ? QString() : text.section(QChar(u'\0'), 0, 0);
}

std::int32_t IntAt(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<qint32>(bytes.constData() + offset);
}

SYSTEMTIME TransitionAt(const QByteArray& bytes, qsizetype offset) {
    const auto field = [&](qsizetype index) {
        return qFromLittleEndian<qint16>(bytes.constData() + offset + 2 * index);
    };
    return {field(0), field(1), field(2), field(3), field(4), field(5), field(6), field(7)};
}

/// The sum as 32 bits hold it, whatever the bytes were.
std::int32_t Total(std::int32_t bias, std::int32_t relative) {
    return static_cast<std::int32_t>(std::int64_t{bias} + relative);
}

TimeZoneRecord RecordOfSubkey(const ZoneDatabase& zones, const QString& subkey) {
    TimeZoneRecord record;
    const auto texts = ReadZoneValues(zones, subkey, {u"Display"_s, u"Std"_s, u"Dlt"_s});
    record.KeyName = subkey;
    record.DisplayName = texts[0];
    record.StandardName = texts[1];
    record.DaylightName = texts[2];
    ReadZoneTZI(zones, subkey, record);
    return record;
}

TimeZoneRecord ListedRecord(const ZoneDatabase& zones, const QString& subkey, float localHours) {
    TimeZoneRecord record = RecordOfSubkey(zones, subkey);
    record.CurrentGMTHours = Hours(record.StandardBias);
    record.HoursFromLocal = localHours - record.CurrentGMTHours;
    return record;
}

/// What a search of the whole list finds, reading only the names on the way.
std::optional<TimeZoneRecord> FindInDatabase(const platform::Services& services,
                                             const QString& standardName) {
    const ZoneDatabase& zones = services.Zones;
    if (zones.Open() != ZoneRoot::Opened) {
        return std::nullopt;
    }
    for (int index = 0; const auto subkey = Subkey(zones, index); ++index) {
        if (TextOf(zones, *subkey, u"Std"_s) == standardName) {
            return ListedRecord(zones, *subkey, GetLocalZone(services).CurrentGMTHours);
        }
    }
    return std::nullopt;
}

std::optional<TimeZoneRecord> FindInProfiles(const platform::Services& services,
                                             const QString& folder, const QString& standardName) {
    const TimeZoneRecords records = ListProfileTimeZones(services, folder);
    const auto found = std::find_if(
        records.begin(), records.end(),
        [&](const TimeZoneRecord& record) { return record.StandardName == standardName; });
    return found == records.end() ? std::nullopt : std::optional(*found);
}

TimeZoneRecord RecordOfInformation(const platform::TimeZoneInformation& information) {
    TimeZoneRecord record;
    record.StandardName = information.StandardName;
    record.StandardDate = information.StandardDate;
    record.StandardBias = Total(information.Bias, information.StandardBias);
    record.DaylightName = information.DaylightName;
    record.DaylightDate = information.DaylightDate;
    record.DaylightBias = Total(information.Bias, information.DaylightBias);
    const bool daylight = information.Result == 2;
    record.CurrentName = daylight ? record.DaylightName : record.StandardName;
    record.CurrentGMTHours = Hours(daylight ? record.DaylightBias : record.StandardBias);
    record.HoursFromLocal = record.CurrentGMTHours;
    return record;
}

}  // namespace

TimeZoneRecords ListWindowsTimeZones(const platform::Services& services) {
    const ZoneDatabase& zones = services.Zones;
    const ZoneRoot root = zones.Open();
    if (root != ZoneRoot::Opened) {
        return TimeZoneRecords(root == ZoneRoot::Missing ? 2 : 0);
    }
    const float localHours = GetLocalZone(services).CurrentGMTHours;
    TimeZoneRecords records(101);
    for (int index = 0; const auto subkey = Subkey(zones, index); ++index) {
        const auto number = static_cast<std::size_t>(index) + 1;
        if (number >= records.size()) {
            records.resize(number + 21);
        }
        records[number] = ListedRecord(zones, *subkey, localHours);
    }
    return records;
}

void ReadZoneTZI(const ZoneDatabase& zones, const QString& subkey, TimeZoneRecord& record) {
    TakeTzi(zones.TziValue(subkey).value_or(QByteArray()), record);
}

void TakeTzi(QByteArray tzi, TimeZoneRecord& record) {
    if (tzi.size() != TziSize) {
        tzi = QByteArray(TziSize, '\0');
    }
    record.Bias = IntAt(tzi, 0);
    record.StandardBias = Total(record.Bias, IntAt(tzi, 4));
    record.DaylightBias = Total(record.Bias, IntAt(tzi, 8));
    record.StandardDate = TransitionAt(tzi, 12);
    record.DaylightDate = TransitionAt(tzi, 28);
}

std::array<QString, 3> ReadZoneValues(const ZoneDatabase& zones, const QString& subkey,
                                      const std::array<QString, 3>& names) {
    return {TextOf(zones, subkey, names[0]), TextOf(zones, subkey, names[1]),
            TextOf(zones, subkey, names[2])};
}

TimeZoneRecord GetLocalZone(const platform::Services& services) {
    const platform::TimeZoneInformation information = services.Zones.GetTimeZoneInformation();
    switch (information.Result) {
        case 1:
        case 2:
            return RecordOfInformation(information);
        case 0:
        case -1:
            return ReadRegistryLocalZone(services);
        default:
            return {};
    }
}

// Daylight time is not applied on this path.
TimeZoneRecord ReadRegistryLocalZone(const platform::Services& services) {
    TimeZoneRecord record = RecordOfSubkey(services.Zones, services.Zones.LocalStandardName());
    record.CurrentName = record.StandardName;
    record.CurrentGMTHours = Hours(record.StandardBias);
    record.HoursFromLocal = record.CurrentGMTHours;
    return record;
}

TimeZoneRecord FindTimeZone(const platform::Services& services, const PathTable& paths,
                            const QString& standardName) {
    TimeZoneRecord nothing;
    nothing.StandardName = standardName;
    if (standardName.trimmed().isEmpty()) {
        return nothing;  // a blank name is the mark of an empty record
    }
    if (const auto found = FindInDatabase(services, standardName)) {
        return *found;
    }
    return FindInProfiles(services, paths.ProfileFolder, standardName).value_or(nothing);
}

}  // namespace mduTimeZones
