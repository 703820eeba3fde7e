#pragma once

#include <optional>
#include <vector>

#include "foundation/ModuleState.h"
#include "platform/ZoneDatabase.h"
#include "timezones/TimeZoneRecord.h"

namespace platform {
class Files;
struct Services;
}  // namespace platform

/// The rows of the window of zones, before any sorting or searching.
namespace mduTimeZones {

/// Where the rows come from; the numbers are those of the window's modes.
enum class SourceMode { Windows = 1, Tempolark = 2, Selected = 3, Both = 4 };

/// Which rows are listed, by whether the zone has a file.
enum class ShowFilter { All, Selected, Unselected };

/// The names of the files of a folder, without ".ini", each with "@" around it: "@London@@UTC@".
QString ChosenZones(const platform::Files& files, const QString& folder);
/// Whether such a text holds a name, letter case included.
bool IsChosen(const QString& chosenZones, const QString& name);

/// One row of the list, whatever it comes from. It is a value; nothing in it follows the files by
/// itself.
struct ZoneRow {
    QString Name;         ///< key and text: the zone's `StandardName`
    QString DisplayName;  ///< the second column
    QString ToolTipText;  ///< the full path of the row's file; empty for a zone of the database
    /// What the user sees and changes; it begins as `HasFile`.
    bool Checked = false;
    bool HasFile = false;  ///< as far as the list knows: files may vanish at any time
    TimeZoneRecord Record;
    std::optional<platform::ZonePlace> Place;
    QString SearchText;        ///< see `ZoneSearch.h`
    bool IsFoundCity = false;  ///< a profile beside the source: only a search lists it
};
using ZoneRows = std::vector<ZoneRow>;

/// What narrows the rows while they are filled in.
struct RowFilter {
    ShowFilter Show = ShowFilter::All;
    QString Chosen;              ///< `ChosenZones` of the folder of zone files
    std::optional<double> Band;  ///< hours picked on the map, see `MapBand`

    /// Whether a record passes choice and band. Records without a name are never listed.
    bool Lists(const TimeZoneRecord& record) const;
};

/// Whether a record lies in the band of the hours @p value, half an hour to either side and both
/// ends included. Hours count like those of the map: GMT+12 is 0, GMT is 12, GMT-12 is 24.
bool IsInBand(const TimeZoneRecord& record, double value);

/// Append the rows of records from the database, or from profiles, in array order. The rows of zone
/// files are named after the files, as their clocks are; what a file does not tell (its zone's
/// offset, when no clock has opened it yet, its place, its cities) comes from the database.
void FillWindowsRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services);
void FillProfileRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services);
void FillZoneFileRows(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                      const platform::Services& services);

/// The rows of profiles that a search alone lists. They are found by city and country, not by an
/// offset or a word that hundreds of them share.
void FillFoundCities(ZoneRows& rows, const TimeZoneRecords& records, const RowFilter& filter,
                     const platform::Services& services);

}  // namespace mduTimeZones
