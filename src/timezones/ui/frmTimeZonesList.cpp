// What the list of the window of zones does.
#include <algorithm>

#include "foundation/FileHelpers.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ShowFilter;
using mduTimeZones::SourceMode;
using mduTimeZones::ZoneRow;
using mduTimeZones::ZoneSort;

/// Runs something that changes the rows and keeps the current one where it is still listed.
void frmTimeZones::Refill(const std::function<void()>& action) {
    balloon_.Destroy();
    const int before = CurrentPosition();
    const QString name = before < 0 ? QString() : list_[before].Name;
    const QString toolTip = before < 0 ? QString() : list_[before].ToolTipText;
    model_.Change(action);
    lsvTimeZones_->FitColumns();
    MakeCurrent(before < 0 ? -1 : list_.Find(name, toolTip));
    ShowRows();
}

void frmTimeZones::LoadZoneList(ShowFilter show) {
    ConfirmSave();
    Refill([&] {
        list_.Show = show;
        list_.Load();
    });
}

void frmTimeZones::NarrowToBand() {
    ConfirmSave();
    Refill([&] { list_.SetBand(imgMap_->Band().Hours()); });
    ShowBandButton();
}

// What the rows hold is judged by the source that they came from.
void frmTimeZones::SetSource(SourceMode source) {
    if (!isVisible()) {
        list_.Source = source;
        return;
    }
    ConfirmSave();
    Refill([&] {
        list_.Source = source;
        list_.Load();
    });
}

void frmTimeZones::SetSort(ZoneSort sort) {
    Refill([&] { list_.SetSort(sort); });
}

void frmTimeZones::SortByColumn(int column) {
    const ZoneSort up = column == 0 ? ZoneSort::NameAscending : ZoneSort::GMTAscending;
    const ZoneSort down = column == 0 ? ZoneSort::NameDescending : ZoneSort::GMTDescending;
    SetSort(list_.Sort() == up ? down : up);
}

// What Enter would open is the current row: the best match. Without a search no row is, so that
// "Launch" means all that are checked again.
void frmTimeZones::Search(const QString& typed) {
    Refill([&] { list_.SetSearch(typed); });
    if (typed.trimmed().isEmpty()) {
        lsvTimeZones_->selectionModel()->clear();
    } else if (list_.Count() > 0) {
        MakeCurrent(0);
    }
}

// A name that can't be a file's is never checked; what could not be written stays checked, so that
// it can be saved again.
bool frmTimeZones::MakeFileOf(int position) {
    ZoneRow& row = list_[position];
    const QString problem =
        mduTimeZones::MakeZoneFile(program_.Services, program_.Module.Paths, row);
    if (!problem.isEmpty()) {
        Tell(problem);
    }
    if (!mduLib::ZoneNameProblem(row.Name).isEmpty()) {
        row.Checked = false;
        model_.ChecksChanged();
    }
    return problem.isEmpty();
}

void frmTimeZones::CheckRow(int position) {
    if (list_[position].Checked) {
        MakeFileOf(position);
    }
    MakeCurrent(position);
    ShowRows();
}

void frmTimeZones::CheckAll(bool checked) {
    for (int position = 0; position < list_.Count(); ++position) {
        list_[position].Checked = checked;
    }
    model_.ChecksChanged();
    ShowRows();
}

/// Brings map, counts and buttons in line with the rows.
void frmTimeZones::ShowRows() {
    std::vector<MapDot> dots;
    rowOfDot_.clear();
    for (int position = 0; position < list_.Count(); ++position) {
        const ZoneRow& row = list_[position];
        if (row.Place) {
            dots.push_back({row.Name + u'\n' + row.DisplayName, *row.Place, row.Checked});
            rowOfDot_.push_back(position);
        }
    }
    imgMap_->SetDots(std::move(dots));
    lblCount_->setText(u"%1 %2, %3 checked"_s.arg(list_.Count())
                           .arg(list_.Count() == 1 ? u"zone"_s : u"zones"_s)
                           .arg(list_.CheckedCount()));
    lsvTimeZones_->SetEmptyText(EmptyText());
    ShowCurrent();
}

QString frmTimeZones::EmptyText() const {
    if (!txtSearch_->text().trimmed().isEmpty()) {
        return u"No zone is found by \u201C%1\u201D."_s.arg(txtSearch_->text().trimmed());
    }
    if (list_.Band()) {
        return u"No zone lies in this band of the map."_s;
    }
    return list_.Source == SourceMode::Selected || list_.Show == ShowFilter::Selected
               ? u"No zone is selected yet. Check one in the list of all zones."_s
               : u"There are no zones here."_s;
}

// The row that is lit. The toolkit also makes the first one current when the list gets the focus.
int frmTimeZones::CurrentPosition() const {
    const QModelIndexList lit = lsvTimeZones_->selectionModel()->selectedRows();
    return !lit.isEmpty() && lit.first().row() < list_.Count() ? lit.first().row() : -1;
}

void frmTimeZones::MakeCurrent(int position) {
    if (position >= 0) {
        lsvTimeZones_->setCurrentIndex(model_.index(position, 0));
        lsvTimeZones_->scrollTo(model_.index(position, 0));
    }
}

void frmTimeZones::ShowCurrent() {
    const int position = CurrentPosition();
    cmdLaunch_->setEnabled(position >= 0 ? list_[position].Checked : list_.CheckedCount() > 0);
    const auto found = std::find(rowOfDot_.begin(), rowOfDot_.end(), position);
    RefreshMenus();
    imgMap_->SetCurrentDot(found == rowOfDot_.end() ? -1
                                                    : static_cast<int>(found - rowOfDot_.begin()));
}

QString frmTimeZones::ToolTipOfRow(int position) const {
    return list_.Tag(list_[position]).trimmed();
}
