#include "timezones/ZoneRows.h"

#include <QHash>

#include "foundation/FileHelpers.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "timezones/ProfileFacts.h"
#include "timezones/ZoneSearch.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

constexpr double HalfAnHour = 0.5;
constexpr double HoursToGreenwich = 12;  // from where the map's hours begin

ZoneRow PlainRow(const TimeZoneRecord& record, const RowFilter& filter) {
    ZoneRow row;
    row.Name = record.StandardName;
    row.DisplayName = record.DisplayName;
    row.Checked = row.HasFile = IsChosen(filter.Chosen, record.StandardName);
    row.Record = record;
    return row;
}

ZoneRow ProfileRow(const TimeZoneRecord& record, const ProfileFacts& facts,
                   const RowFilter& filter) {
    ZoneRow row = PlainRow(record, filter);
    row.ToolTipText = record.KeyName;
    row.Place = facts.Place;
    return row;
}

/// A file without the keys of its zone reads so; see `ListProfileTimeZones`.
bool TellsNoZone(const TimeZoneRecord& record) {
    return record.StandardName.isEmpty() || record.StandardName == u"0"_s;
}

ZoneRow ZoneFileRow(TimeZoneRecord record, const TimeZoneRecord& known, const RowFilter& filter,
                    const platform::Services& services) {
    const QString path = record.KeyName;
    const bool isKnown = !known.StandardName.isEmpty();
    if (isKnown && TellsNoZone(record)) {
        record = known;
        record.KeyName = path;
    }
    record.StandardName = mduLib::FileBaseName(path, false);
    ProfileFacts facts = ReadProfileFacts(services.FileSystem, path);
    QString cities;
    if (isKnown) {
        facts.Place = facts.Place ? facts.Place : services.Zones.Place(known.KeyName);
        cities = ZoneSearchText(known, services.Zones.Countries(known.KeyName));
    }
    ZoneRow row = ProfileRow(record, facts, filter);
    row.SearchText = ZoneSearchText(record, {facts.Country}) + u' ' + cities;
    return row;
}

}  // namespace

QString ChosenZones(const platform::Files& files, const QString& folder) {
    QString chosen;
    if (!folder.isEmpty()) {
        for (const QString& name : files.FileNames(folder)) {
            chosen += u'@' + mduLib::StripIniExtension(name) + u'@';
        }
    }
    return chosen;
}

bool IsChosen(const QString& chosenZones, const QString& name) {
    return chosenZones.contains(u'@' + name + u'@');
}

bool IsInBand(const TimeZoneRecord& record, double value) {
    const double hours = HoursToGreenwich + static_cast<double>(record.CurrentGMTHours);
    return hours >= value - HalfAnHour && hours <= value + HalfAnHour;
}

bool RowFilter::Lists(const TimeZoneRecord& record) const {
    if (record.StandardName.trimmed().isEmpty() || (Band && !IsInBand(record, *Band))) {
        return false;
    }
    const bool wanted = Show == ShowFilter::Selected;
    return Show == ShowFilter::All || IsChosen(Chosen, record.StandardName) == wanted;
}

void FillWindowsRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services) {
    for (const TimeZoneRecord& record : records) {
        if (filter.Lists(record)) {
            ZoneRow row = PlainRow(record, filter);
            row.Place = services.Zones.Place(record.KeyName);
            row.SearchText = ZoneSearchText(record, services.Zones.Countries(record.KeyName));
            rows.push_back(std::move(row));
        }
    }
}

void FillProfileRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services) {
    for (const TimeZoneRecord& record : records) {
        if (filter.Lists(record)) {
            const ProfileFacts facts = ReadProfileFacts(services.FileSystem, record.KeyName);
            ZoneRow row = ProfileRow(record, facts, filter);
            row.SearchText = ZoneSearchText(record, {facts.Country});
            rows.push_back(std::move(row));
        }
    }
}

void FillZoneFileRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                      const platform::Services& services) {
    QHash<QString, TimeZoneRecord> database;
    for (const TimeZoneRecord& record : ListWindowsTimeZones(services)) {
        database.insert(record.StandardName, record);
    }
    for (const TimeZoneRecord& record : records) {
        if (record.KeyName.isEmpty()) {
            continue;
        }
        const TimeZoneRecord known = database.value(mduLib::FileBaseName(record.KeyName, false));
        ZoneRow row = ZoneFileRow(record, known, filter, services);
        if (filter.Lists(row.Record)) {
            rows.push_back(std::move(row));
        }
    }
}

void FillFoundCities(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services) {
    for (const TimeZoneRecord& record : records) {
        if (filter.Lists(record)) {
            const ProfileFacts facts = ReadProfileFacts(services.FileSystem, record.KeyName);
            ZoneRow row = ProfileRow(record, facts, filter);
            row.IsFoundCity = true;
            row.SearchText = FoldForSearch(row.Name + u' ' + facts.Country);
            rows.push_back(std::move(row));
        }
    }
}

}  // namespace mduTimeZones
