#include "timezones/ZoneList.h"

#include <algorithm>
#include <numeric>

#include "timezones/ZoneDescription.h"
#include "timezones/ZoneSearch.h"
#include "timezones/ZoneSources.h"

namespace mduTimeZones {

ZoneList::ZoneList(const platform::Services& services, const PathTable& paths)
    : services_(services), paths_(paths) {}

void ZoneList::Load() {
    const bool windows = Source == SourceMode::Windows || Source == SourceMode::Both;
    const QString folder = Source == SourceMode::Windows    ? QString()
                           : Source == SourceMode::Selected ? paths_.ZoneFileFolder
                                                            : paths_.ProfileFolder;
    source_.clear();
    if (windows) {
        FillWindowsRows(source_, ListWindowsTimeZones(services_), {}, services_);
    }
    if (!folder.isEmpty()) {
        FillProfileRows(source_, ListProfileTimeZones(services_, folder), {}, services_);
    }
    Fill();
}

void ZoneList::SetBand(std::optional<double> hours) {
    band_ = hours;
    Fill();
}

void ZoneList::Fill() {
    const RowFilter filter{Show, ChosenZones(services_.FileSystem, paths_.ZoneFileFolder), band_};
    rows_.clear();
    for (const ZoneRow& row : source_) {
        if (filter.Lists(row.Record)) {
            rows_.push_back(row);
            rows_.back().Checked = rows_.back().HasFile = IsChosen(filter.Chosen, row.Name);
        }
    }
    Order();
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

void ZoneList::SetSearch(const QString& typed) {
    words_ = SearchWords(typed);
    List();
}

void ZoneList::List() {
    listed_.clear();
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(listed_),
                 [&](std::size_t index) { return IsFound(rows_[index].SearchText, words_); });
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

int ZoneList::CheckedCount() const {
    return static_cast<int>(
        std::count_if(listed_.begin(), listed_.end(),
                      [this](std::size_t index) { return rows_[index].Checked; }));
}

QStringList ZoneList::UnsavedNames() const {
    QStringList names;
    for (const std::size_t index : order_) {
        const ZoneRow& row = rows_[index];
        if (row.Checked && !row.HasFile) {
            names += row.Name;
        }
    }
    names.removeDuplicates();
    return names;
}

QString ZoneList::Tag(const ZoneRow& row) const {
    return ZoneDescription(row.Record, services_.Clock.Now().date());
}

}  // namespace mduTimeZones
