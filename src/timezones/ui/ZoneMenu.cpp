#include "timezones/ui/ZoneMenu.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ShowFilter;
using mduTimeZones::SourceMode;
using mduTimeZones::ZoneSort;

ZoneMenu::ZoneMenu(QWidget* owner, std::function<void(Item)> onItem)
    : owner_(owner),
      onItem_(std::move(onItem)),
      timeZoneMenu_(new QMenu(owner)),
      mapMenu_(new QMenu(owner)) {
    timeZoneMenu_->setObjectName(u"TimeZoneMenu"_s);
    mapMenu_->setObjectName(u"MapMenu"_s);
    QMenu& menu = *timeZoneMenu_;
    AddSorts();
    Add(menu, Item::SelectAll, u"SelectAll"_s, u"Select All"_s);
    Add(menu, Item::SelectNone, u"SelectNone"_s, u"Select None"_s);
    Add(menu, Item::ShowTimeZoneDetailsMenu, u"ShowTimeZoneDetailsMenu"_s,
        u"Show Time Zone Details"_s);
    AddSources();
    Add(menu, Item::ShowAll, u"ShowAll"_s, u"Show All"_s, true);
    Add(menu, Item::ShowSelected, u"ShowSelected"_s, u"Show Selected"_s, true);
    Add(menu, Item::ShowUnselected, u"ShowUnselected"_s, u"Show Unselected"_s, true);
    Add(menu, Item::DeleteSelected, u"DeleteSelected"_s, u"Delete Selected"_s);
    Add(menu, Item::MapVisible, u"MapVisible"_s, u"Hide Map"_s);
    Add(menu, Item::Close, u"Close"_s, u"Close"_s);
    Add(*mapMenu_, Item::HideMap, u"HideMap"_s, u"Hide Map"_s);
}

QMenu* ZoneMenu::AddMenu(QMenu& menu, const QString& name, const QString& caption) {
    QMenu* inner = menu.addMenu(caption);
    inner->setObjectName(name);
    return inner;
}

void ZoneMenu::Add(QMenu& menu, Item item, const QString& name, const QString& caption,
                   bool isChoice) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(name);
    action->setCheckable(isChoice);
    QObject::connect(action, &QAction::triggered, owner_, [this, item] { onItem_(item); });
    actions_[item] = action;
}

void ZoneMenu::AddSorts() {
    QMenu& names = *AddMenu(*timeZoneMenu_, u"SortTimeZoneName"_s, u"Sort Time Zone Name"_s);
    Add(names, Item::NameAscending, u"NameAscending"_s, u"Ascending"_s, true);
    Add(names, Item::NameDescending, u"NameDescending"_s, u"Descending"_s, true);
    QMenu& times = *AddMenu(*timeZoneMenu_, u"SortGMTTime"_s, u"Sort GMT Time"_s);
    Add(times, Item::GMTAscending, u"GMTAscending"_s, u"Ascending"_s, true);
    Add(times, Item::GMTDescending, u"GMTDescending"_s, u"Descending"_s, true);
}

void ZoneMenu::AddSources() {
    QMenu& menu = *AddMenu(*timeZoneMenu_, u"ShowListSource"_s, u"Show List Source"_s);
    Add(menu, Item::SourceWindows, u"SourceWindows"_s, u"Windows"_s, true);
    Add(menu, Item::SourceTempolark, u"SourceTempolark"_s, u"Tempolark"_s, true);
    Add(menu, Item::SourceSelected, u"SourceSelected"_s, u"Tempolark Selectable TZ List"_s, true);
    Add(menu, Item::SourceBoth, u"SourceBoth"_s, u"Both Windows and Tempolark"_s, true);
}

void ZoneMenu::Refresh(const State& state) {
    const auto mark = [this](Item item, bool on) { Action(item).setChecked(on); };
    mark(Item::NameAscending, state.Sort == ZoneSort::NameAscending);
    mark(Item::NameDescending, state.Sort == ZoneSort::NameDescending);
    mark(Item::GMTAscending, state.Sort == ZoneSort::GMTAscending);
    mark(Item::GMTDescending, state.Sort == ZoneSort::GMTDescending);
    mark(Item::SourceWindows, state.Source == SourceMode::Windows);
    mark(Item::SourceTempolark, state.Source == SourceMode::Tempolark);
    mark(Item::SourceSelected, state.Source == SourceMode::Selected);
    mark(Item::SourceBoth, state.Source == SourceMode::Both);
    mark(Item::ShowAll, state.Show == ShowFilter::All);
    mark(Item::ShowSelected, state.Show == ShowFilter::Selected);
    mark(Item::ShowUnselected, state.Show == ShowFilter::Unselected);
    Action(Item::ShowTimeZoneDetailsMenu).setEnabled(state.HasRow);
    Action(Item::DeleteSelected).setEnabled(state.Source == SourceMode::Selected);
    Action(Item::MapVisible).setText(state.MapVisible ? u"Hide Map"_s : u"Show Map"_s);
}
