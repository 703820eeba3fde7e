#pragma once

#include <functional>

#include "timezones/ZoneRows.h"

namespace mduTimeZones {

enum class ZoneSort { None, NameAscending, NameDescending, GMTAscending, GMTDescending };

/// The list of the window of zones: the rows of a source, those of them that are listed, and their
/// order. Positions count the listed rows from 0.
///
///     ZoneList list(services, paths);
///     list.Load();
///     list.SetSearch(u"norway"_s);  // one row: "W. Europe Standard Time"
class ZoneList {
public:
    ZoneList(const platform::Services& services, const PathTable& paths);

    SourceMode Source = SourceMode::Windows;  ///< takes effect with `Load`
    ShowFilter Show = ShowFilter::All;        ///< takes effect with `Load`

    /// Reads the source and fills the rows anew; checks follow the files.
    void Load();

    /// Fills the rows anew from the source as it was read last. Nothing ends the narrowing.
    void SetBand(std::optional<double> hours);
    std::optional<double> Band() const { return band_; }

    /// Sorts by the texts of a column, case aside; rows of the same text keep their order. GMT
    /// order is that of the display texts, not of their numbers.
    void SetSort(ZoneSort sort);
    ZoneSort Sort() const { return sort_; }

    /// Lists only what is found by these words, the best match first; cities that have a profile
    /// are found whatever the source is.
    void SetSearch(const QString& typed);

    int Count() const { return static_cast<int>(listed_.size()); }
    const ZoneRow& operator[](int position) const;
    ZoneRow& operator[](int position);
    int PositionOf(const ZoneRow& row) const;  ///< -1 when the row is not listed
    /// The position of a zone, -1 when it is not listed. Profiles may share a name: the tool tip
    /// text tells them apart.
    int Find(const QString& name, const QString& toolTipText) const;

    /// All rows in list order, with those that the search leaves out.
    std::vector<ZoneRow*> AllRows();
    int CheckedCount() const { return static_cast<int>(CheckedNames().size()); }

    /// The names of checked rows that have no file yet, in list order, each once.
    QStringList UnsavedNames() const;

    /// The names of rows that are no longer checked and have a file at this moment, each once. In a
    /// list of zone files a check only selects, and no row counts.
    QStringList UncheckedNames() const;

    /// The names of the rows that are listed and checked, each once.
    QStringList CheckedNames() const;

    /// The text that tells of a row's zone. It is worked out when it is asked for.
    QString Tag(const ZoneRow& row) const;

private:
    void ReadSource();
    void ReadCities();
    void Fill();
    void AddRows(const ZoneRows& rows);
    void Order();
    void List();
    QStringList NamesOf(const std::function<bool(const ZoneRow& row)>& wanted) const;

    const platform::Services& services_;
    const PathTable& paths_;
    ZoneRows source_;  ///< all that the source holds, as it was read last
    ZoneRows cities_;  ///< what a search finds besides, once one was begun
    std::optional<double> band_;
    ZoneSort sort_ = ZoneSort::None;
    QStringList words_;
    ZoneRows rows_;                    ///< those that choice and band let through
    std::vector<std::size_t> order_;   ///< indexes of all rows as they are sorted
    std::vector<std::size_t> listed_;  ///< of these, the ones that are listed
};

}  // namespace mduTimeZones
