#include "timezones/ZoneRows.h"

#include "foundation/FileHelpers.h"
#include "timezones/ProfileFacts.h"
#include "timezones/ZoneSearch.h"

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
            ZoneRow row = PlainRow(record, filter);
            row.ToolTipText = record.KeyName;
            row.Place = facts.Place;
            row.SearchText = ZoneSearchText(record, {facts.Country});
            rows.push_back(std::move(row));
        }
    }
}

}  // namespace mduTimeZones
