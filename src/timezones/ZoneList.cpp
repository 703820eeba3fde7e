#include "timezones/ZoneList.h"

#include <QSet>
#include <algorithm>
#include <numeric>

#include "platform/Services.h"
#include "platform/WallClock.h"
#include "timezones/ZoneDescription.h"
#include "timezones/ZoneSearch.h"
#include "timezones/ZoneSources.h"

namespace mduTimeZones {

ZoneList::ZoneList(const platform::Services& services, const PathTable& paths)
    : services_(services), paths_(paths) {}

void ZoneList::Load() {
    ReadSource();
    cities_.clear();
    if (!words_.isEmpty()) {
        ReadCities();
    }
    Fill();
}

void ZoneList::ReadSource() {
    source_.clear();
    if (Source == SourceMode::Windows || Source == SourceMode::Both) {
        FillWindowsRows(source_, ListWindowsTimeZones(services_), {}, services_);
    }
    if (Source == SourceMode::Tempolark || Source == SourceMode::Both) {
        FillProfileRows(source_, ListProfileTimeZones(services_, paths_.ProfileFolder), {},
                        services_);
    }
    if (Source == SourceMode::Selected) {
        FillZoneFileRows(source_, ListProfileTimeZones(services_, paths_.ZoneFileFolder), {},
                         services_);
    }
}

// A zone that the source lists already is not offered a second time.
void ZoneList::ReadCities() {
    if (Source == SourceMode::Tempolark || Source == SourceMode::Both) {
        return;
    }
    QSet<QString> listed;
    for (const ZoneRow& row : source_) {
        listed.insert(row.Name);
    }
    FillFoundCities(cities_, ListProfileTimeZones(services_, paths_.ProfileFolder), {}, services_);
    std::erase_if(cities_, [&](const ZoneRow& row) { return listed.contains(row.Name); });
}

void ZoneList::SetBand(std::optional<double> hours) {
    band_ = hours;
    Fill();
}

void ZoneList::Fill() {
    rows_.clear();
    AddRows(source_);
    AddRows(cities_);
    Order();
}

void ZoneList::AddRows(const ZoneRows& rows) {
    const RowFilter filter{Show, ChosenZones(services_.FileSystem, paths_.ZoneFileFolder), band_};
    for (const ZoneRow& row : rows) {
        if (filter.Lists(row.Record)) {
            rows_.push_back(row);
            rows_.back().Checked = rows_.back().HasFile = IsChosen(filter.Chosen, row.Name);
        }
    }
}

void ZoneList::SetSort(ZoneSort sort) {
    sort_ = sort;
    Order();
}

void ZoneList::Order() {
    order_.resize(rows_.size());
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    if (sort_ != ZoneSort::None) {
        const bool byName = sort_ == ZoneSort::NameAscending || sort_ == ZoneSort::NameDescending;
        const bool up = sort_ == ZoneSort::NameAscending || sort_ == ZoneSort::GMTAscending;
        const auto key = byName ? &ZoneRow::Name : &ZoneRow::DisplayName;
        std::stable_sort(order_.begin(), order_.end(), [&](std::size_t one, std::size_t other) {
            const int order = (rows_[one].*key).compare(rows_[other].*key, Qt::CaseInsensitive);
            return up ? order < 0 : order > 0;
        });
    }
    List();
}

// Profiles are many: they are read when the first letter is typed. What is checked by then stays
// so.
void ZoneList::SetSearch(const QString& typed) {
    words_ = SearchWords(typed);
    if (!words_.isEmpty() && cities_.empty()) {
        ReadCities();
        AddRows(cities_);
        Order();
    } else {
        List();
    }
}

void ZoneList::List() {
    listed_.clear();
    std::vector<int> ranks(rows_.size());
    for (const std::size_t index : order_) {
        const ZoneRow& row = rows_[index];
        if (words_.isEmpty() ? !row.IsFoundCity : IsFound(row.SearchText, words_)) {
            listed_.push_back(index);
            ranks[index] = words_.isEmpty() ? 0 : MatchRank(row.Name, row.DisplayName, words_);
        }
    }
    std::stable_sort(listed_.begin(), listed_.end(),
                     [&](std::size_t one, std::size_t other) { return ranks[one] < ranks[other]; });
}

const ZoneRow& ZoneList::operator[](int position) const {
    return rows_[listed_[static_cast<std::size_t>(position)]];
}

ZoneRow& ZoneList::operator[](int position) {
    return rows_[listed_[static_cast<std::size_t>(position)]];
}

int ZoneList::PositionOf(const ZoneRow& row) const {
    const auto index = static_cast<std::size_t>(&row - rows_.data());
    const auto found = std::find(listed_.begin(), listed_.end(), index);
    return found == listed_.end() ? -1 : static_cast<int>(found - listed_.begin());
}

int ZoneList::Find(const QString& name, const QString& toolTipText) const {
    for (int position = 0; position < Count(); ++position) {
        const ZoneRow& row = (*this)[position];
        if (row.Name == name && row.ToolTipText == toolTipText) {
            return position;
        }
    }
    return -1;
}

std::vector<ZoneRow*> ZoneList::AllRows() {
    std::vector<ZoneRow*> rows;
    rows.reserve(order_.size());
    for (const std::size_t index : order_) {
        rows.push_back(&rows_[index]);
    }
    return rows;
}

QStringList ZoneList::NamesOf(const std::function<bool(const ZoneRow& row)>& wanted) const {
    QStringList names;
    for (const std::size_t index : order_) {
        if (wanted(rows_[index])) {
            names += rows_[index].Name;
        }
    }
    names.removeDuplicates();
    return names;
}

QStringList ZoneList::UnsavedNames() const {
    return NamesOf([](const ZoneRow& row) { return row.Checked && !row.HasFile; });
}

QStringList ZoneList::UncheckedNames() const {
    if (Source == SourceMode::Selected) {
        return {};
    }
    const QString chosen = ChosenZones(services_.FileSystem, paths_.ZoneFileFolder);
    return NamesOf([&](const ZoneRow& row) {
        return row.HasFile && !row.Checked && IsChosen(chosen, row.Name);
    });
}

QStringList ZoneList::CheckedNames() const {
    QStringList names;
    for (const std::size_t index : listed_) {
        if (rows_[index].Checked) {
            names += rows_[index].Name;
        }
    }
    names.removeDuplicates();
    return names;
}

QString ZoneList::Tag(const ZoneRow& row) const {
    return ZoneDescription(row.Record, services_.Clock.Now().date());
}

}  // namespace mduTimeZones
